// The rules for words and texts, by cases that the driver's half is tested with too.

import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { describe, test } from 'node:test';
import { nav } from './browser_side.mjs';
import { entryText, pageText } from './reference/html_text.mjs';

const cases = JSON.parse(readFileSync(join(import.meta.dirname, 'word_cases.json'), 'utf8'));
const { entryWords, pageWords, queryWords, placedWords } = nav.searchWords;

function check(kind, find) {
  describe(`words of ${kind}`, () => {
    for (const [text, expected] of cases[kind]) {
      test(JSON.stringify(text), () => assert.deepEqual(find(text), expected));
    }
  });
}

check('entry', entryWords);
check('page', pageWords);
check('query', queryWords);
check('html', (html) => pageWords(pageText(html)));
check('text', entryText);

test('a word knows where it lies in the text', () => {
  assert.deepEqual(placedWords('a cafe\u0301, \u6771\u4eac'), [
    { word: 'a', start: 0, end: 1 },
    { word: 'cafe', start: 2, end: 6 },
    { word: '\u6771\u4eac', start: 9, end: 11 },
    { word: '\u4eac', start: 10, end: 11 },
  ]);
});

test('a long text is cut with an ellipsis, counted in code points', () => {
  assert.equal(entryText('\u{1f600}'.repeat(200)), '\u{1f600}'.repeat(200));
  assert.equal(entryText('\u{1f600}'.repeat(201)), `${'\u{1f600}'.repeat(199)}\u2026`);
});

test('a lone surrogate becomes the replacement character', () => {
  assert.equal(entryText('a\ud800b'), 'a\ufffdb');
});
