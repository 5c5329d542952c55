import assert from 'node:assert/strict';
import { describe, test } from 'node:test';
import { nav } from './browser_side.mjs';

const { contentsAnchor, findOf, pageNumber, rootOf, withQuery } = nav.place;
const set = { name: 'rep 1_dtl', extension: '.htm' };

describe('the number of a page', () => {
  for (const [address, number] of [
    ['file:///a/rep%201_dtl.htm', 1],
    ['file:///a/b/rep%201_dtl27.htm?find=x#toc3', 27],
    ['http://host/rep%201_dtl7.htm', 7],
    ['file:///a/rep%201.htm', null],
    ['file:///a/rep%201_dtl07.htm', null],
    ['file:///a/rep%201_dtl1.htm', null],
    ['file:///a/rep%201_dtl2b.htm', null],
    ['file:///a/other_dtl2.htm', null],
    ['file:///a/%E0%A4%A', null],
  ]) {
    test(`${address}: ${number}`, () => assert.equal(pageNumber(address, set), number));
  }
});

test('the set lies above the script', () => {
  assert.equal(rootOf('file:///a/b/rep_nav/navigator.js'), 'file:///a/b/');
});

test('a query goes in front of the fragment', () => {
  assert.equal(withQuery('d/rep_dtl2.htm#toc5', 'a & b'), 'd/rep_dtl2.htm?find=a%20%26%20b#toc5');
  assert.equal(withQuery('rep_dtl2.htm', '#1'), 'rep_dtl2.htm?find=%231');
  assert.equal(findOf('file:///d/rep_dtl2.htm?find=a%20%26%20b#toc5'), 'a & b');
  assert.equal(findOf('file:///d/rep_dtl2.htm'), '');
});

test('an anchor of the contents is recognised by its name', () => {
  assert.equal(contentsAnchor('#toc12'), 12);
  assert.equal(contentsAnchor('toc12'), 12);
  for (const other of ['', '#', '#toc', '#toc0', '#toc1x', '#Page 7', '#atoc1']) {
    assert.equal(contentsAnchor(other), null);
  }
});
