// What the tests know of the manual's document set, read from its files.

import { readdirSync, readFileSync } from 'node:fs';
import { basename, join } from 'node:path';
import { setDirectory } from './browser.mjs';

const isBridge = (path) => readFileSync(path, 'latin1').includes('HTTP-EQUIV="Refresh"');

// The detail pages in the order of their numbers, as paths below the set.
export function detailPages() {
  const pages = new Map();
  for (const entry of readdirSync(setDirectory, { recursive: true })) {
    const number = /^manual_dtl(\d*)\.htm$/.exec(basename(entry))?.[1];
    if (number !== undefined && !isBridge(join(setDirectory, entry))) {
      pages.set(Number(number || 1), entry);
    }
  }
  return [...pages.entries()].sort(([a], [b]) => a - b).map(([, path]) => path);
}

// The entries of the contents tree: text and link.
export function treeEntries() {
  const tree = readFileSync(join(setDirectory, 'manual_toc.dat'), 'latin1');
  return [...tree.matchAll(/\(NODE "((?:[^"\\]|\\.)*)" "([^"]*)"/g)].map(([, text, href]) => ({ text, href }));
}

// The path below the set that an address of the browser stands for, with its fragment.
export function pathBelow(address, url) {
  return decodeURIComponent(url.slice(address.length + 1));
}
