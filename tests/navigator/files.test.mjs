// What lies in support/navigator.

import assert from 'node:assert/strict';
import { readdirSync, readFileSync } from 'node:fs';
import { join } from 'node:path';
import { test } from 'node:test';
import { order, sourceDirectory } from './browser_side.mjs';

const read = (name) => readFileSync(join(sourceDirectory, name));

test('every script and style sheet is in the order, once', () => {
  const files = readdirSync(sourceDirectory).filter((name) => /\.(js|css)$/.test(name));
  assert.deepEqual([...order].sort(), files.sort());
});

test('all of them are ASCII, since pages have various character sets', () => {
  for (const name of order) assert.match(read(name).toString('latin1'), /^[\n -~]*$/, name);
});

test('nothing in them turns texts into markup or code', () => {
  for (const name of order) {
    assert.doesNotMatch(read(name).toString(), /innerHTML|outerHTML|insertAdjacentHTML|document\.write|\beval\b|new Function/, name);
  }
});

test('the loose icons are those of the archive', () => {
  const archive = readFileSync(join(sourceDirectory, '../icons.zip'));
  const icons = readdirSync(join(sourceDirectory, 'icons'));
  const packed = archive.toString('latin1').match(/\w+\.gif(?=PK\x01\x02|PK\x05\x06)/g);
  assert.equal(icons.length, packed.length);
  for (const icon of icons) {
    const bytes = Buffer.concat([Buffer.from(icon), read(join('icons', icon))]);
    assert.ok(archive.includes(bytes), icon);
  }
});
