// Lists of numbers: written by the reference builder, read by the browser's side.

import assert from 'node:assert/strict';
import { test } from 'node:test';
import { nav } from './browser_side.mjs';
import { numberListText } from './reference/number_list.mjs';

function read(text) {
  const numbers = [];
  nav.numberList.each(text, (number) => numbers.push(number));
  return numbers;
}

for (const [numbers, text] of [
  [[], ''],
  [[0], 'A'],
  [[31], 'f'],
  [[32], 'hA'],
  [[1000], '_I'],
  [[0, 1, 2], '.H'],
  [[5, 9, 1000], 'FD-e'],
  [[0, 1, 2, 3, 4, 5, 6, 7], '._D'],
  [[100000], 'jh1A'],
]) {
  test(`${JSON.stringify(numbers)} is written "${text}"`, () => {
    assert.equal(numberListText(numbers), text);
    assert.deepEqual(read(text), numbers);
  });
}

test('dense and sparse lists come back as they were', () => {
  for (const step of [1, 2, 3, 5, 7, 40, 1100]) {
    const numbers = Array.from({ length: 500 }, (_, index) => index * step + (index % 3 === 0 ? 0 : 1) * (step > 1));
    const ascending = [...new Set(numbers)].sort((a, b) => a - b);
    assert.deepEqual(read(numberListText(ascending)), ascending);
  }
});

test('the gaps are written when both forms are equally long', () => {
  assert.equal(numberListText([0, 6]), 'AF');
  assert.equal(numberListText([0, 3, 6]), 'ACC');
  assert.equal(numberListText([0, 1, 2, 6]), '.HB');
});
