import assert from 'node:assert/strict';
import { before, describe, test } from 'node:test';
import { nav } from './browser_side.mjs';
import { smallSet } from './small_set.mjs';

const contents = [
  [1, 'Orders', 'rep_dtl.htm#toc1'],
  [2, 'OrderLine', 'rep_dtl.htm#toc2'],
  [1, 'Order', 'rep_dtl2.htm#toc3'],
  [1, 'Other', 'rep_dtl3.htm#toc4'],
].map(([level, text, href]) => ({ level, text, href }));
const pages = [
  [1, '<BODY>Orders hold lines. OrderLine</BODY>'],
  [2, '<BODY>An order</BODY>'],
  [3, '<BODY>It has lines, and an ordering.</BODY>'],
];

describe('a query', () => {
  let small;
  before(async () => {
    small = await smallSet(contents, pages);
  });
  const run = async (text) => {
    const { entries, pages: found } = await small.query.run(text);
    const texts = await Promise.all(entries.map(async (id) => (await small.entries.get(id)).text));
    return [texts, found];
  };

  test('finds by prefix, whole words first', async () => {
    assert.deepEqual(await run('order'), [['Order', 'Orders', 'OrderLine'], [2, 1, 3]]);
  });
  test('finds what has all of its words', async () => {
    assert.deepEqual(await run('lin ord'), [['OrderLine'], [1, 3]]);
    assert.deepEqual(await run('order nothing'), [[], []]);
  });
  test('of no words finds nothing', async () => assert.deepEqual(await run(' ,. '), [[], []]));

  test('lists a page only when none of its entries is listed', async () => {
    const results = new nav.SearchResults(small.entries, await small.query.run('line'));
    assert.deepEqual(await results.count(), { count: 2, exact: true });
    const listed = (await results.more()).map(({ entry, page, path }) => [entry.text, page, path.length]);
    assert.deepEqual(listed, [['OrderLine', false, 1], ['Other', true, 0]]);
    assert.deepEqual(await results.more(), []);
  });
});

test('results come ten at a time', async () => {
  const entries = Array.from({ length: 25 }, (_, index) => ({
    level: 1, text: `Item ${index}`, href: index === 0 ? 'rep_dtl.htm#toc1' : `rep_dtl${index + 1}.htm#toc${index + 1}`,
  }));
  const small = await smallSet(entries, []);
  const results = new nav.SearchResults(small.entries, await small.query.run('item'));
  const sizes = [];
  for (let more = await results.more(); more.length > 0; more = await results.more()) sizes.push(more.length);
  assert.deepEqual(sizes, [10, 10, 5]);
});

test('a prefix of too many words reads its first files, and says so', async () => {
  const words = Array.from({ length: 60000 }, (_, index) => `s${index}`);
  const small = await smallSet(contents, [[1, words]]);
  const { partial, pages: found } = await small.query.run('s');
  assert.equal(partial, true);
  assert.deepEqual(found, [1]);
  assert.equal(small.loaded.filter((name) => name.startsWith('word')).length, 8);
  assert.equal((await small.query.run('s59999')).partial, false);
});

test('marks merge where words overlap', () => {
  assert.deepEqual(nav.hitMarks.hitsIn('Text and textual con\u00adtext', ['text']), [[0, 4], [9, 16]]);
  assert.deepEqual(nav.hitMarks.hitsIn('\u6771\u4eac\u90fd', ['\u6771\u4eac', '\u4eac\u90fd']), [[0, 3]]);
});
