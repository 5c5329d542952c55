import assert from 'node:assert/strict';
import { mkdtempSync, readFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { test } from 'node:test';
import { runInNewContext } from 'node:vm';
import { nav } from './browser_side.mjs';
import { writeData } from './reference/data_writer.mjs';

test('a file is read once, whoever asks', async () => {
  const loads = [];
  const files = new nav.DataFiles(async (name) => {
    loads.push(name);
    files.receive(name, '[1]');
  });
  assert.deepEqual(await Promise.all([files.get('tree0'), files.get('tree0')]), [[1], [1]]);
  assert.deepEqual(loads, ['tree0']);
});

test('a file that failed may be tried again', async () => {
  let works = false;
  const files = new nav.DataFiles(async (name) => {
    if (!works) throw new Error('no such file');
    files.receive(name, '2');
  });
  await assert.rejects(files.get('set'), /no such file/);
  works = true;
  assert.equal(await files.get('set'), 2);
});

test('a script that hands over nothing is an error', async () => {
  const files = new nav.DataFiles(async () => {});
  await assert.rejects(files.get('set'), /set\.js holds no data/);
});

test('any text survives the way through a file, which is ASCII', () => {
  const directory = mkdtempSync(join(tmpdir(), 'navigator-'));
  const texts = ['</script>', '\u2028\u2029', "it's \"quoted\" \\ \\u0041", '\ud83d\ude00', '<!--', '\u202e\u0000\n'];
  writeData(directory, 'tree0', texts);
  const source = readFileSync(join(directory, 'tree0.js'), 'latin1');
  assert.match(source, /^[ -~]*\n$/);
  assert.ok(!source.includes('</script') && !source.includes('<!--'));
  const received = [];
  runInNewContext(source, { repNav: (...values) => received.push(...values) });
  assert.equal(received[0], 'tree0');
  assert.deepEqual(JSON.parse(received[1]), texts);
});
