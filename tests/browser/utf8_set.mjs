// A document set in UTF-8 whose texts and names come from several scripts, made with the replay
// tool. The names hold what a browser would misread in an address: "%", "#" and "?".

import { execFileSync } from 'node:child_process';
import { copyFileSync, mkdirSync, rmSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';

const support = join(import.meta.dirname, '../../support');

export const name = '報告 50%#1';
export const title = '注文の概要 – Обзор';
export const headings = ['価格', 'Цена', 'żółw 100%', 'سعر', 'מחיר', '👨‍👩‍👧 𠮷', 'cafe\u0301 café'];
export const directory = '注文?\\Часть #2';
export const picture = '図 %41#?.gif';
export const linked = 'メモ %20#?.txt';
export const inserted = { utf8: '全部 UTF-8: ąęß', codePage: 'Größe: 5 €' };

const heading = (text, level = 1) => [
  ['setStyle', `Heading ${level}`], ['insertText', text], ['insertEndl'], ['setStyle', 'Normal'],
];

// A page for each heading, every second one in the directory, with links to all pages. A directory
// begins a page by itself.
const page = (text, number) => [
  ...(number % 2 === 1 ? [['pushDirectory', directory]] : []),
  ...(number > 0 && number % 2 === 0 ? [['popDirectory'], ['insertPageBreak']] : []),
  ...heading(text),
  ['insertTag', `GUID-${text}`],
  ['insertText', `${text}  ${text}`], ['insertEndl'],
  ...headings.flatMap((other) => [['insertXref', `→ ${other}`, `GUID-${other}`], ['insertEndl']]),
];

const calls = (input) => [
  ['create', 'set.htm'],
  ['setOption', 'title', title],
  ['startFooter'], ['insertText', title], ['endFooter'],
  ...headings.flatMap(page),
  ['insertImage', `${input}\\${picture}`, `GUID-${headings[0]}`], ['insertEndl'],
  ['insertXref', 'メモ', `${input}\\${linked}`], ['insertEndl'],
  ['insertFile', `${input}\\utf8.txt`, 3],
  ['insertFile', `${input}\\8-bit.txt`, 3],
  ['close'],
];

// Makes the set in a directory.
export function makeSet(target, ...options) {
  const work = `${target}-work`;
  rmSync(work, { recursive: true, force: true });
  rmSync(target, { recursive: true, force: true });
  mkdirSync(join(work, 'in'), { recursive: true });
  mkdirSync(target, { recursive: true });
  copyFileSync(join(support, 'pix/backON.gif'), join(work, 'in', picture));
  writeFileSync(join(work, 'in', linked), 'linked');
  writeFileSync(join(work, 'in/utf8.txt'), `\ufeff${inserted.utf8}\n`);
  writeFileSync(join(work, 'in/8-bit.txt'), Buffer.from('Gr\xf6\xdfe: 5 \x80\n', 'latin1'));
  const stream = join(work, 'calls.jsonl');
  writeFileSync(stream, calls('I:').map((call) => `${JSON.stringify(call)}\n`).join(''));
  execFileSync(process.env.DOCHTML_REPLAY, [
    '--drive', `I=${join(work, 'in')}`,
    '--install-dir', support, '--set', `Settings.UserFilesDir=${support}`,
    '--set', 'Html.CharSet=UTF-8', '--output', join(target, `${name}.htm`), ...options, stream,
  ], { stdio: 'pipe' });
}
