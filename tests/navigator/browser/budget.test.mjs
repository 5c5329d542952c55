// What the navigator reads and builds for 100,000 entries in 10,000 pages. How long that takes is
// measured in bench/navigator.mjs.

import assert from 'node:assert/strict';
import { after, before, describe, test } from 'node:test';
import { LargeReading } from './large_reading.mjs';

const kilobyte = 1024;

describe('a large set', () => {
  const reading = new LargeReading();
  before(() => reading.start());
  after(() => reading.end());

  test('a page reads at most 200 KB for its tree, of at most 2,000 elements', async () => {
    await reading.open('rep_dtl5557.htm#toc55565');
    const elements = await reading.page.$eval('[role=tree]', (tree) => tree.querySelectorAll('*').length);
    assert.ok(reading.bytesRead() > 0 && reading.bytesRead() <= 200 * kilobyte, `${reading.bytesRead()} bytes`);
    assert.ok(elements > 100 && elements <= 2000, `${elements} elements`);
    const level = await reading.page.$eval('[aria-current=page]', (row) => row.getAttribute('aria-level'));
    assert.equal(level, '4');
  });

  test('a search for two words reads at most 500 KB', async () => {
    for (const query of reading.queries) {
      await reading.search(query);
      assert.ok(reading.bytesRead() > 0 && reading.bytesRead() <= 500 * kilobyte, `${query}: ${reading.bytesRead()} bytes`);
      assert.ok((await reading.page.$$('[role=option]')).length >= 10, query);
    }
  });
});
