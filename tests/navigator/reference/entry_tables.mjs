// The entries level by level, and the tables that lead to them.

import { nav } from '../browser_side.mjs';
import { entryText } from './html_text.mjs';

const deepest = 32;
const perFile = 200;
const numbersPerFile = 1024;

function correctedLevels(entries) {
  let before = 0;
  return entries.map(({ level }) => (before = Math.max(1, Math.min(level, before + 1, deepest))));
}

// Numbers by a counting sort; `first` and `count` from the entries of the next level between an
// entry and the next one that is not inside it.
function numberEntries(entries) {
  const levels = correctedLevels(entries);
  const sizes = new Array(deepest + 2).fill(0);
  for (const level of levels) sizes[level + 1] += 1;
  const next = sizes.slice(0, deepest + 2);
  for (let level = 1; level <= deepest + 1; level += 1) next[level] += next[level - 1] ?? 0;
  const nodes = [];
  const open = [];
  entries.forEach((entry, index) => {
    const level = levels[index];
    const node = { ...entry, id: next[level]++, first: 0, count: 0, parent: open[level - 1] ?? null };
    node.text = entryText(entry.text);
    open.length = level;
    open[level] = node;
    if (node.parent !== null) {
      if (node.parent.count === 0) node.parent.first = node.id;
      node.parent.count += 1;
    }
    nodes.push(node);
  });
  return { nodes, roots: sizes[2] };
}

function ancestorsOf(nodes) {
  const found = new Map();
  for (const node of nodes) {
    for (let up = node.parent; up !== null && !found.has(up.id); up = up.parent) found.set(up.id, up);
  }
  return [...found.values()].sort((a, b) => a.id - b.id);
}

function withoutZeros(record) {
  while (record.at(-1) === 0) record.pop();
  return record;
}

// A record without its number, its href without the page when that is the last record's.
function recorder(icons) {
  let lastPage = null;
  const number = (icon) => icons.indexOf(icon) + 1;
  return ({ text, href, first, count, gif, stereoGif }) => {
    const [page, ...fragment] = href.split('#');
    const short = page === lastPage && fragment.length > 0 ? `#${fragment.join('#')}` : href;
    lastPage = page;
    return withoutZeros([text, short, first, count, number(gif), number(stereoGif)]);
  };
}

function treeFiles(byId, icons) {
  const files = [];
  for (let start = 0; start < byId.length; start += perFile) {
    const nodes = byId.slice(start, start + perFile);
    const record = recorder(icons);
    const ancestor = recorder(icons);
    files.push([nodes.map(record), ancestorsOf(nodes).map((node) => [node.id, ...ancestor(node)])]);
  }
  return files;
}

function numberFiles(numbers) {
  const files = [];
  for (let start = 0; start < numbers.length; start += numbersPerFile) {
    files.push(Array.from(numbers.slice(start, start + numbersPerFile), (number) => number ?? null));
  }
  return files;
}

// { nodes in document order, byId, roots, tree, page, anchor } for entries `{ text, href, level, gif,
// stereoGif }`; the last three are files' data.
export function entryTables(entries, { name, extension, icons = [] }) {
  const { nodes, roots } = numberEntries(entries);
  const byId = [...nodes].sort((a, b) => a.id - b.id);
  const pages = [];
  const anchors = [];
  for (const node of nodes) {
    node.page = nav.place.pageNumber(new URL(node.href, 'file:///').href, { name, extension });
    pages[node.page - 1] ??= node.id;
    const anchor = nav.place.contentsAnchor(node.href.slice(node.href.indexOf('#')));
    if (anchor !== null) anchors[anchor - 1] = node.id;
  }
  return { nodes, roots, pages, tree: treeFiles(byId, icons), page: numberFiles(pages), anchor: numberFiles(anchors) };
}
