// A document set that the driver made with its navigator, against the reference builder's for the
// same set without one: every file is the same, byte for byte, but for the start page.
//   DOCHTML_REPLAY=PROGRAM node --test driver_set.test.mjs

import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { mkdtempSync, readFileSync, readdirSync, rmSync, statSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, before, describe, test } from 'node:test';
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
    test('has the same bytes', () => {
      for (const file of files) {
        if (file === 'rep.htm') continue;
        assert.equal(readFileSync(join(made, file), 'latin1'), readFileSync(join(reference, file), 'latin1'), file);
      }
    });
  });
}

for (const [name, calls, ...options] of callsOf()) checkSet(name, calls, ...options);
