import assert from 'node:assert/strict';
import { describe, test } from 'node:test';
import { nav } from './browser_side.mjs';
import { WordIndex } from './reference/word_index.mjs';

const { compareWords, each, filesOf } = nav.wordFile;

function recordsOf(text, prefix = '') {
  const found = [];
  each(text, prefix, (word, entries, pages) => found.push({ word, entries, pages }));
  return found;
}

describe('a file of words', () => {
  const index = new WordIndex();
  index.addPage(0, ['class', 'classes', 'clock']);
  index.addPage(3, ['class']);
  index.addEntry(7, ['class']);
  const { firstWords, files } = index.files();

  test('shares the front of each word with the word before', () => {
    assert.deepEqual(files, ['Aclass,H,AC;Fes,,A;Cock,,A;']);
    assert.deepEqual(firstWords, ['class']);
  });

  test('gives its words back', () => {
    assert.deepEqual(recordsOf(files[0]), [
      { word: 'class', entries: 'H', pages: 'AC' },
      { word: 'classes', entries: '', pages: 'A' },
      { word: 'clock', entries: '', pages: 'A' },
    ]);
  });

  test('finds the words that begin with a prefix', () => {
    const words = (prefix) => recordsOf(files[0], prefix).map(({ word }) => word);
    assert.deepEqual(words('cl'), ['class', 'classes', 'clock']);
    assert.deepEqual(words('class'), ['class', 'classes']);
    assert.deepEqual(words('clz'), []);
    assert.deepEqual(words('a'), []);
  });
});

describe('the files of a prefix', () => {
  const first = ['a', 'ca', 'cab', 'cad', 'd'];
  for (const [prefix, expected] of [
    ['c', [0, 4]],
    ['ca', [1, 4]],
    ['cab', [2, 3]],
    ['cabin', [2, 3]],
    ['0', [0, 0]],
    ['e', [4, 5]],
  ]) {
    test(`"${prefix}" is in ${expected[0]} up to ${expected[1]}`, () => {
      assert.deepEqual(filesOf(first, prefix), expected);
    });
  }
});

test('words are in the order of their code points', () => {
  const ascending = ['', 'a', 'ab', 'b', '\u4e00', '\uf900', '\ud842\udfb7'];
  assert.deepEqual([...ascending].reverse().sort(compareWords), ascending);
});

test('surrogate pairs are not parted', () => {
  const index = new WordIndex();
  index.addPage(0, ['\u{20000}', '\u{20001}']);
  const { files } = index.files();
  assert.deepEqual(files, ['A\u{20000},,A;A\u{20001},,A;']);
  assert.deepEqual(recordsOf(files[0]).map(({ word }) => word), ['\u{20000}', '\u{20001}']);
});

test('a file ends before it gets too long', () => {
  const index = new WordIndex();
  for (let number = 0; number < 9000; number += 1) index.addPage(number, [`word${number}`]);
  const { firstWords, files } = index.files();
  assert.ok(files.length > 2);
  for (const text of files) assert.ok(text.length <= 32768);
  for (const text of files.slice(0, -1)) assert.ok(text.length > 32768 - 20);
  assert.deepEqual(files.map((text) => recordsOf(text)[0].word), firstWords);
});
