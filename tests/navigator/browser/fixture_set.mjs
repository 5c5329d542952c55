// A document set as the driver lays one down, small and full of traps: pages in directories, texts
// that look like markup, anchors without entries, a page without entries, locate buttons.

import { cpSync, mkdirSync, writeFileSync } from 'node:fs';
import { dirname, join } from 'node:path';
import { buildNavigator, headLines } from '../reference/builder.mjs';

const support = join(import.meta.dirname, '../../../support');

export const hostile = [
  '&lt;img src=x onerror=window.hurt=1>',
  '&lt;/script>&lt;script>window.hurt=1&lt;/script>',
  'line\u2028separator',
  '\u202eright to left override',
  '&amp;lt;b&amp;gt; decoded once',
  'x'.repeat(10000),
];

const headingPages = [
  { path: 'rep_dtl.htm', headings: [[1, 'Introduction'], [2, 'Purpose'], [2, 'OrderLine']] },
  { path: 'rep_dtl2.htm', headings: [] },
  { path: 'parts/rep_dtl3.htm', headings: [[1, 'Parts'], [2, 'Engine'], [3, 'Piston'], [3, 'Valve']] },
  { path: 'parts/inner/rep_dtl4.htm', headings: [[2, 'Wheel'], [5, 'Rim']] },
  { path: 'rep_dtl5.htm', headings: [[1, 'Hostile names'], ...hostile.map((text) => [2, text])] },
];
// Enough to scroll in the tree.
for (let number = 6; number <= 60; number += 1) {
  headingPages.push({ path: `rep_dtl${number}.htm`, headings: [[1, `Chapter ${number}`], [2, `Section of ${number}`]] });
}

const wayUp = (path) => '../'.repeat(path.split('/').length - 1);

const locateButton = (up) =>
  ` <input type=image class=locatebtn src="${up}pixs/locate_in_brw.JPG" title="Locate in browser"` +
  ' onclick="top.contents.Locate(location.href,this, document)">';

const page = (path, body) =>
  '<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.0 Transitional//EN">\n<HTML>\n<HEAD>\n' +
  '  <META HTTP-EQUIV="Content-Type" CONTENT="text/html; iso-8859-1">\n  <TITLE>Fixture</TITLE>\n' +
  `  <LINK REL=STYLESHEET TYPE="text/css" HREF="${wayUp(path)}default.css" >\n` +
  `${headLines(wayUp(path), 'rep_nav')}</HEAD>\n\n${body}\n</HTML>\n`;

const filler = 'Some words on the matter, caf\u00e9 included. '.repeat(40);

function detailPage({ path, headings }, number, nextAnchor) {
  const entries = [];
  const parts = headings.map(([level, text]) => {
    const anchor = `toc${nextAnchor()}`;
    entries.push({ level, text: text.replace(/[\u2028\u202e]/g, (c) => `&#${c.charCodeAt(0)};`),
      href: `${path}#${anchor}`, gif: level === 1 ? 'Package.gif' : 'Class.gif' });
    return (
      `<H${level}><a name="${anchor}"></a>${entries.at(-1).text.slice(0, 300)}</H${level}>\n` +
      `${filler}<a name="GUID-${anchor}"></a>${locateButton(wayUp(path))}<BR>\n`
    );
  });
  if (entries.length === 0) {
    nextAnchor();
    entries.push({ level: 1, text: `Page ${number}`, href: `${path}#Page ${number}`, gif: '__None.gif' });
    parts.push('A page that nobody gave a heading. Unusualword.');
  }
  const body = `<BODY  >\n<a name="Page ${number}"></a>${parts.join('')}\n</BODY>`;
  return { entries, html: page(path, body) };
}

// The frame set of the static contents, tables that are wide for a phone, and a page with a style sheet that knows no themes.
function writeOddPages(directory) {
  writeFileSync(
    join(directory, 'rep_sfrm.htm'),
    '<HTML><HEAD></HEAD>\n<FRAMESET COLS="30%,*"><FRAME SRC="rep_scnt.htm" NAME="contents">' +
      '<FRAME SRC="rep_dtl.htm" NAME="main"></FRAMESET>\n</HTML>\n',
  );
  writeFileSync(join(directory, 'rep_scnt.htm'), '<HTML><BODY>Static</BODY></HTML>');
  writeFileSync(join(directory, 'own.css'), 'BODY { color: #222; background: #fff; }');
  const table = (cells) => `<TABLE BORDER=1 CELLSPACING=0 CELLPADDING=2>\n<TR>\n${cells.map((text) => `<TD>${text}</TD>`).join('\n')}</TR>\n</TABLE>\n`;
  writeFileSync(join(directory, 'tables.htm'), page('tables.htm',
    `<BODY  >\n${table(['children_foreach', 'void', filler])}${table(Array(9).fill('double'))}</BODY>`), 'latin1');
  const foreign = page('foreign.htm', '<BODY>Foreign</BODY>').replace('default.css', 'own.css');
  writeFileSync(join(directory, 'foreign.htm'), foreign);
}

// The upper levels of the contents, as the start page lists them.
function upperLevels(entries) {
  const link = ({ href, text }) => `<A HREF="${href}">${text.slice(0, 200)}</A>`;
  const starts = entries.flatMap(({ level }, index) => (level === 1 ? [index] : []));
  const items = starts.map((start, index) => {
    const below = entries.slice(start + 1, starts[index + 1]).filter(({ level }) => level === 2);
    const list = below.map((entry) => `<LI>${link(entry)}</LI>\n`).join('');
    return `<LI>${link(entries[start])}${list && `\n<UL>\n${list}</UL>`}</LI>\n`;
  });
  return `<UL CLASS="rn-start">\n${items.join('')}</UL>`;
}

// Writes the set; gives { entries, paths }.
export function writeFixture(directory) {
  let anchors = 0;
  const made = headingPages.map((each, index) => detailPage(each, index + 1, () => (anchors += 1)));
  headingPages.forEach(({ path }, index) => {
    mkdirSync(dirname(join(directory, path)), { recursive: true });
    writeFileSync(join(directory, path), made[index].html, 'latin1');
  });
  writeOddPages(directory);
  for (const name of ['default.css', 'pixs']) {
    cpSync(join(support, name), join(directory, name), { recursive: true });
  }
  const entries = made.flatMap((each) => each.entries);
  writeFileSync(join(directory, 'rep.htm'), page('rep.htm', `<BODY>\n<H1>Fixture</H1>\n${upperLevels(entries)}\n</BODY>`), 'latin1');
  const set = { title: 'Fixture', start: 'rep.htm', name: 'rep_dtl', extension: '.htm',
    icons: ['Package.gif', 'Class.gif', '__None.gif'], iconDirectory: iconDirectoryIn(directory) };
  buildNavigator(join(directory, 'rep_nav'), set, entries, made.map(({ html }, index) => [index + 1, html]));
  return { entries, paths: headingPages.map(({ path }) => path) };
}

// Every icon is a picture of one dot.
function iconDirectoryIn(directory) {
  const icons = join(directory, 'loose');
  mkdirSync(icons, { recursive: true });
  const dot = Buffer.from('R0lGODlhAQABAIAAAAAA/wAAACwAAAAAAQABAAACAkQBADs=', 'base64');
  for (const name of ['Package.gif', 'Class.gif', '__None.gif']) writeFileSync(join(icons, name), dot);
  return icons;
}
