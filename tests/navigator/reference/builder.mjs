// Makes the `_nav` directory of a document set, as docs/navigator.md describes it. A tool for the
// tests of the browser's side: it lets them do without the driver, and at any size.

import { copyFileSync, mkdirSync, readFileSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { nav, order, sourceDirectory } from '../browser_side.mjs';
import { writeData } from './data_writer.mjs';
import { entryTables } from './entry_tables.mjs';
import { entryText, pageText } from './html_text.mjs';
import { WordIndex } from './word_index.mjs';

export function headLines(wayUp, directoryName) {
  return (
    '<META NAME="viewport" CONTENT="width=device-width, initial-scale=1">\n' +
    `<LINK REL=STYLESHEET TYPE="text/css" HREF="${wayUp}${directoryName}/navigator.css" >\n` +
    `<SCRIPT SRC="${wayUp}${directoryName}/navigator.js" DEFER></SCRIPT>\n`
  );
}

export function putTogether(directory) {
  for (const extension of ['.js', '.css']) {
    const files = order.filter((name) => name.endsWith(extension));
    const texts = files.map((name) => `${readFileSync(join(sourceDirectory, name), 'ascii')}\n`);
    writeFileSync(join(directory, `navigator${extension}`), texts.join(''));
  }
}

function writeNumbered(directory, kind, files) {
  files.forEach((data, number) => writeData(directory, `${kind}${number}`, data));
}

function copyIcons(directory, icons, iconDirectory) {
  if (icons.length === 0) return;
  mkdirSync(join(directory, 'icons'), { recursive: true });
  for (const icon of icons) copyFileSync(join(iconDirectory, icon), join(directory, 'icons', icon));
}

// `set`: { title, start, name, extension, icons, iconDirectory }. `entries` in document order:
// { text, href, level, gif, stereoGif }. `pages`: an iterable of [number, html] or of
// [number, array of words].
export function buildNavigator(directory, set, entries, pages) {
  mkdirSync(directory, { recursive: true });
  const { title, start, name, extension, icons = [] } = set;
  const tables = entryTables(entries, set);
  const index = new WordIndex();
  for (const [number, content] of pages) {
    const words = typeof content === 'string' ? nav.searchWords.pageWords(pageText(content)) : content;
    index.addPage(number - 1, new Set(words));
  }
  for (const node of tables.nodes) {
    const words = new Set(nav.searchWords.entryWords(node.text));
    index.addEntry(node.id, words);
    index.addPage(node.page - 1, words);
  }
  const { firstWords, files } = index.files();
  putTogether(directory);
  copyIcons(directory, icons, set.iconDirectory);
  writeData(directory, 'set', {
    format: 1, title: entryText(title), start, name, extension, pages: tables.pages.length,
    entries: entries.length, roots: tables.roots, icons,
  });
  writeNumbered(directory, 'tree', tables.tree);
  writeNumbered(directory, 'page', tables.page);
  writeNumbered(directory, 'anchor', tables.anchor);
  writeData(directory, 'index', firstWords);
  writeNumbered(directory, 'word', files);
}
