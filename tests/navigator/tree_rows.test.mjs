import assert from 'node:assert/strict';
import { beforeEach, describe, test } from 'node:test';
import { nav } from './browser_side.mjs';

// 0 and 1 are roots; 0 has 2, 3, 4; 3 has 5, 6; 1 has none.
const zero = { id: 0, first: 2, count: 3 };
const three = { id: 3, first: 5, count: 2 };
const one = { id: 1, first: 0, count: 0 };

describe('the rows of a tree', () => {
  let rows;
  beforeEach(() => {
    rows = new nav.TreeRows(2);
  });

  test('are the roots at first', () => assert.deepEqual(rows.ids, [0, 1]));

  test('hold the children of what is open', () => {
    rows.expand(zero, three);
    assert.deepEqual(rows.ids, [0, 2, 3, 5, 6, 4, 1]);
    assert.deepEqual(rows.levels, [1, 2, 2, 3, 3, 2, 1]);
  });

  test('lose all that is below what is closed, and get it back', () => {
    rows.expand(zero, three);
    rows.collapse(0);
    assert.deepEqual(rows.ids, [0, 1]);
    rows.expand(zero);
    assert.deepEqual(rows.ids, [0, 2, 3, 5, 6, 4, 1]);
  });

  test('an entry without children does not open', () => {
    rows.expand(one);
    assert.equal(rows.isOpen(1), false);
  });

  test('know their place among their siblings', () => {
    rows.expand(zero, three);
    assert.deepEqual(rows.at(4), { id: 6, level: 3, position: 2, siblings: 2 });
    assert.deepEqual(rows.at(6), { id: 1, level: 1, position: 2, siblings: 2 });
  });

  test('know their parents', () => {
    rows.expand(zero, three);
    assert.equal(rows.parentIndex(4), 2);
    assert.equal(rows.parentIndex(2), 0);
    assert.equal(rows.parentIndex(6), -1);
  });
});
