// Gives a document set that the driver made the navigator: copies it and changes the copy.
//   node add_to_set.mjs SET_DIRECTORY NAME TARGET_DIRECTORY [ICON_DIRECTORY]

import { cpSync, existsSync, readdirSync, readFileSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { nav } from '../browser_side.mjs';
import { buildNavigator, headLines } from './builder.mjs';

const isBridge = (html) => html.includes('HTTP-EQUIV="Refresh"');

// The entries of the tree file; its indentation gives their levels.
function treeEntries(text) {
  const field = '"((?:[^"\\\\]|\\\\.)*)"';
  const node = new RegExp(`^( *)\\(NODE ${field} "([^"]*)"(?: "([^"]*)")?(?: "([^"]*)")?`, 'gm');
  return [...text.matchAll(node)].map(([, indent, title, href, gif, stereoGif]) => ({
    text: title.replace(/\\(.)/g, '$1').replaceAll('<', '&lt;'),
    level: indent.length / 3,
    href,
    gif,
    stereoGif,
  }));
}

function pagesOf(directory, set) {
  const pages = [];
  for (const path of readdirSync(directory, { recursive: true })) {
    const number = nav.place.pageNumber(new URL(encodeURI(path), 'file:///').href, set);
    if (number === null) continue;
    const html = readFileSync(join(directory, path), 'latin1');
    if (!isBridge(html)) pages.push({ number, path, html });
  }
  return pages.sort((a, b) => a.number - b.number);
}

const wayUpFrom = (path) => '../'.repeat(path.split('/').length - 1);

function startPage(set, entries, directoryName, styleSheet) {
  const items = entries.filter(({ level }) => level === 1);
  const list = items.map(({ href, text }) => `<LI><A HREF="${href}">${text}</A></LI>\n`).join('');
  return (
    '<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.0 Transitional//EN">\n<HTML>\n<HEAD>\n' +
    `<TITLE>${set.title}</TITLE>\n${styleSheet}${headLines('', directoryName)}</HEAD>\n\n` +
    `<BODY>\n<H1>${set.title}</H1>\n<UL CLASS="rn-start">\n${list}</UL>\n</BODY>\n</HTML>\n`
  );
}

export function addToSet(source, name, target, iconDirectory) {
  cpSync(source, target, { recursive: true });
  const set = { name: `${name}_dtl`, extension: '.htm', start: `${name}.htm` };
  const directoryName = `${name}_nav`;
  const pages = pagesOf(target, set);
  set.title = /<TITLE>(.*?)<\/TITLE>/s.exec(pages[0].html)[1];
  const entries = treeEntries(readFileSync(join(target, `${name}_toc.dat`), 'latin1'));
  const names = new Set(entries.flatMap(({ gif, stereoGif }) => [gif, stereoGif]));
  set.icons = [...names].filter((icon) => icon && iconDirectory && existsSync(join(iconDirectory, icon)));
  set.iconDirectory = iconDirectory;
  for (const { path, html } of pages) {
    const head = headLines(wayUpFrom(path), directoryName);
    writeFileSync(join(target, path), html.replace('</HEAD>', `${head}</HEAD>`), 'latin1');
  }
  const styleSheet = /  <LINK REL=STYLESHEET.*\n/.exec(pages[0].html)?.[0] ?? '';
  writeFileSync(join(target, set.start), startPage(set, entries, directoryName, styleSheet), 'latin1');
  buildNavigator(join(target, directoryName), set, entries, pages.map(({ number, html }) => [number, html]));
  return { set, entries, pages };
}

if (process.argv[1] === import.meta.filename) addToSet(...process.argv.slice(2));
