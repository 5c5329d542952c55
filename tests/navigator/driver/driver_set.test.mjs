// A document set that the driver made with its navigator, against the reference builder's for the
// same set without one: every file is the same, byte for byte, but for the start page.
//   DOCHTML_REPLAY=PROGRAM node --test driver_set.test.mjs

import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { mkdtempSync, readFileSync, readdirSync, rmSync, statSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, before, describe, test } from 'node:test';
import { nav } from '../browser_side.mjs';
import { addToSet } from '../reference/add_to_set.mjs';
import { callsOf } from './driver_streams.mjs';

const replay = process.env.DOCHTML_REPLAY;
const support = join(import.meta.dirname, '../../../support');
const work = mkdtempSync(join(tmpdir(), 'driver-set-'));
const settings = join(work, 'settings.ini');
writeFileSync(settings, '');
after(() => rmSync(work, { recursive: true }));

function play(calls, name, ...options) {
  const directory = join(work, name);
  const stream = join(work, `${name}.jsonl`);
  writeFileSync(stream, calls.map((call) => `${JSON.stringify(call)}\n`).join(''));
  execFileSync(
    replay,
    ['--quiet', '--install-dir', support, '--settings', settings, '--ini', settings,
      '-o', join(directory, 'rep.htm'), ...options, stream],
    { env: { ...process.env, SOURCE_DATE_EPOCH: '946728000' } },
  );
  return directory;
}

const filesBelow = (directory) =>
  readdirSync(directory, { recursive: true })
    .filter((path) => statSync(join(directory, path)).isFile())
    .sort();

// The files of data, read as the browser reads them.
async function readBack(directory) {
  const files = new nav.DataFiles(async (name) => {
    const script = readFileSync(join(directory, `${name}.js`), 'latin1');
    assert.match(script, /^[ -~]*\n$/, name);
    new Function('repNav', script)((given, text) => files.receive(given, text));
  });
  const data = {};
  for (const file of filesBelow(directory)) {
    const [, name] = /^(set|(?:tree|page|anchor|word|index)\d*)\.js$/.exec(file) ?? [];
    if (name) data[name] = await files.get(name);
  }
  return data;
}

function checkList(text, below, name) {
  let last = -1;
  nav.numberList.each(text, (number) => {
    assert.ok(number > last && number < below, `${name}: ${text}`);
    last = number;
  });
}

function checkIndex(data) {
  let last = '';
  data.index.forEach((firstWord, number) => {
    const words = [];
    nav.wordFile.each(data[`word${number}`], '', (word, entries, pages) => {
      assert.ok(nav.wordFile.compareWords(last, word) < 0, word);
      assert.ok(word.isWellFormed(), word);
      checkList(entries, data.set.entries, word);
      checkList(pages, Number.MAX_SAFE_INTEGER, word);
      words.push(word);
      last = word;
    });
    assert.equal(words[0], firstWord);
  });
}

function checkSet(name, calls, ...options) {
  describe(name, () => {
    const made = join(work, `${name}-on`);
    const reference = join(work, `${name}-reference`);
    let files;
    before(() => {
      play(calls, `${name}-on`, '--set', 'Html.ScriptNavigator=true', ...options);
      const plain = play(calls, `${name}-off`, ...options);
      addToSet(plain, 'rep', reference, join(support, 'navigator/icons'));
      files = filesBelow(reference);
    });
    test('has the same files', () => {
      assert.deepEqual(filesBelow(made), files);
      assert.ok(files.includes('rep_nav/word0.js'));
    });
    test('can be read back', async () => checkIndex(await readBack(join(made, 'rep_nav'))));
    test('has the same bytes', () => {
      for (const file of files) {
        if (file === 'rep.htm') continue;
        assert.equal(readFileSync(join(made, file), 'latin1'), readFileSync(join(reference, file), 'latin1'), file);
      }
    });
  });
}

for (const [name, calls, ...options] of callsOf()) checkSet(name, calls, ...options);
