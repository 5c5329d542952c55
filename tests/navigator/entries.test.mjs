import assert from 'node:assert/strict';
import { before, describe, test } from 'node:test';
import { smallSet } from './small_set.mjs';

const entry = (level, text, href) => ({ level, text, href });

describe('entries', () => {
  let entries, set;
  before(async () => {
    ({ entries, set } = await smallSet(
      [
        entry(3, 'Introduction', 'rep_dtl.htm#toc1'),
        entry(9, 'Purpose', 'rep_dtl.htm#toc2'),
        entry(2, 'Scope &amp;lt; &lt;all&gt;', 'rep_dtl.htm#toc4'),
        entry(0, 'Page 2', 'sub/rep_dtl2.htm#Page 2'),
        entry(1, 'Details', 'sub/rep_dtl4.htm#toc6'),
        entry(2, 'First', 'sub/rep_dtl4.htm#toc7'),
        entry(3, 'Inner', 'sub/rep_dtl4.htm#toc8'),
      ],
      [],
    ));
  });
  const textOf = async (id) => (id === null ? null : (await entries.get(id)).text);

  test('are numbered level by level', async () => {
    const texts = await Promise.all([0, 1, 2, 3, 4, 5, 6].map(textOf));
    assert.deepEqual(texts, ['Introduction', 'Page 2', 'Details', 'Purpose', 'Scope &lt; <all>', 'First', 'Inner']);
    assert.equal(set.roots, 3);
  });

  test('know their children', async () => {
    const { first, count } = await entries.get(0);
    assert.deepEqual([first, count], [3, 2]);
  });

  test('know their pages, also where the file leaves them out', async () => {
    assert.equal((await entries.get(4)).href, 'rep_dtl.htm#toc4');
    assert.equal((await entries.get(6)).href, 'sub/rep_dtl4.htm#toc8');
  });

  test('know their ancestors', async () => {
    assert.deepEqual((await entries.path(6)).map(({ text }) => text), ['Details', 'First']);
    assert.deepEqual(await entries.path(1), []);
  });

  test('are found by page', async () => {
    assert.equal(await textOf(await entries.firstOfPage(1)), 'Introduction');
    assert.equal(await textOf(await entries.firstOfPage(2)), 'Page 2');
    assert.equal(await entries.firstOfPage(3), null);
    assert.equal(await entries.firstOfPage(5), null);
  });

  test('are found by anchor', async () => {
    assert.equal(await textOf(await entries.ofAnchor(7)), 'First');
    assert.equal(await entries.ofAnchor(3), null);
    assert.equal(await entries.ofAnchor(99), null);
    assert.equal(await entries.ofAnchor(5000), null);
  });
});

test('in a large set only the files that are needed are read', async () => {
  const many = Array.from({ length: 3000 }, (_, index) =>
    entry(index % 50 === 0 ? 1 : 2, `Entry ${index}`, `rep_dtl${index + 1}.htm#toc${index + 1}`.replace('dtl1.', 'dtl.')),
  );
  const { entries, loaded } = await smallSet(many, []);
  const id = await entries.ofAnchor(2999);
  assert.equal((await entries.get(id)).text, 'Entry 2998');
  assert.deepEqual((await entries.path(id)).map(({ text }) => text), ['Entry 2950']);
  assert.deepEqual(loaded, ['set', 'anchor2', `tree${Math.floor(id / 200)}`]);
});
