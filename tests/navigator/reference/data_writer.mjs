// Writes a file of data: a call that hands over JSON, in ASCII.

import { writeFileSync } from 'node:fs';
import { join } from 'node:path';

const escaped = (unit) => `\\\\u${unit.charCodeAt(0).toString(16).padStart(4, '0')}`;

// A string as the file has it, with its quotes.
export const stringText = (text) => `"${text.replace(/[^ -~]|["'\\<]/g, escaped)}"`;

export function jsonText(value) {
  if (typeof value === 'string') return stringText(value);
  if (Array.isArray(value)) return `[${value.map(jsonText).join(',')}]`;
  if (value === null || typeof value === 'number') return String(value);
  const members = Object.entries(value).map(([name, member]) => `${stringText(name)}:${jsonText(member)}`);
  return `{${members.join(',')}}`;
}

export function writeData(directory, name, value) {
  writeFileSync(join(directory, `${name}.js`), `repNav("${name}",'${jsonText(value)}');\n`);
}
