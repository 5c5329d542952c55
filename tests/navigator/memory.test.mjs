import assert from 'node:assert/strict';
import { test } from 'node:test';
import { nav } from './browser_side.mjs';

function fakeStorage() {
  const items = new Map();
  return {
    getItem: (key) => items.get(key) ?? null,
    setItem: (key, value) => items.set(key, value),
    removeItem: (key) => items.delete(key),
    items,
  };
}

test('what was remembered comes back', () => {
  const storage = fakeStorage();
  const memory = new nav.Memory(() => storage, 'set ');
  memory.set('theme', { dark: true });
  assert.deepEqual(memory.get('theme'), { dark: true });
  assert.deepEqual([...storage.items.keys()], ['set theme']);
  memory.forget('theme');
  assert.equal(memory.get('theme'), null);
});

test('a browser without storage is one that forgets', () => {
  const memory = new nav.Memory(() => { throw new Error('denied'); }, '');
  memory.set('theme', 'dark');
  memory.forget('theme');
  assert.equal(memory.get('theme'), null);
});

test('what somebody else has put there counts as nothing', () => {
  const storage = fakeStorage();
  storage.setItem('theme', '{not JSON');
  assert.equal(new nav.Memory(() => storage, '').get('theme'), null);
});
