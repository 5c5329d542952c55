// A small set for the tests of entries and queries, built and read without a browser.

import { mkdtempSync, readFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { runInNewContext } from 'node:vm';
import { nav } from './browser_side.mjs';
import { buildNavigator } from './reference/builder.mjs';

// What the browser's script element does.
export function filesIn(directory) {
  const loaded = [];
  const files = new nav.DataFiles(async (name) => {
    loaded.push(name);
    const source = readFileSync(join(directory, `${name}.js`), 'ascii');
    runInNewContext(source, { repNav: (...values) => files.receive(...values) });
  });
  return { files, loaded };
}

export async function smallSet(entries, pages) {
  const directory = mkdtempSync(join(tmpdir(), 'navigator-'));
  const set = { title: 'Small', start: 'rep.htm', name: 'rep_dtl', extension: '.htm', icons: [] };
  buildNavigator(directory, set, entries, pages);
  const { files, loaded } = filesIn(directory);
  const description = await files.get('set');
  return {
    set: description,
    loaded,
    entries: new nav.Entries(files, description),
    query: new nav.Query(files, description),
  };
}
