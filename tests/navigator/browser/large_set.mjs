// A set of 10,000 pages and 100,000 entries. Only the navigator's data and the pages that a test
// visits are there in full.

import { mkdirSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { buildNavigator, headLines } from '../reference/builder.mjs';

const pageCount = 10000;

// The same numbers every time.
function randomFrom(seed) {
  let state = seed;
  return (limit) => {
    state = (Math.imul(state, 1664525) + 1013904223) >>> 0;
    return Math.floor((state / 2 ** 32) * limit);
  };
}

const syllables = ['ba', 'ce', 'di', 'fo', 'gu', 'ka', 'le', 'mi', 'no', 'pu', 'ra', 'se', 'ti', 'vo', 'zu', 'an', 'er', 'in', 'or', 'us'];

function vocabulary(random, size) {
  const words = new Set();
  while (words.size < size) {
    const length = 2 + random(3);
    words.add(Array.from({ length }, () => syllables[random(syllables.length)]).join(''));
  }
  return [...words];
}

const fileOf = (number) => `rep_dtl${number === 1 ? '' : number}.htm`;

// A page has one entry for itself, and nine below it; every tenth page is a part, every hundredth a
// chapter above parts.
function entriesOf(number, random, words) {
  const any = () => words[Math.floor(words.length * (random(1000) / 1000) ** 3)];
  const level = number % 100 === 1 ? 1 : number % 10 === 1 ? 2 : 3;
  const first = (number - 1) * 10 + 1;
  return Array.from({ length: 10 }, (_, index) => ({
    level: index === 0 ? level : level + 1 + (index > 5 ? 1 : 0),
    text: `${any()} ${any()} ${index === 0 ? number : index}`,
    href: `${fileOf(number)}#toc${first + index}`,
    gif: index === 0 ? 'Package.gif' : 'Class.gif',
  }));
}

const pageHtml = (entries) =>
  `<HTML>\n<HEAD>\n${headLines('', 'rep_nav')}</HEAD>\n<BODY>\n` +
  entries.map(({ text, href }) => `<H2><a name="${href.split('#')[1]}"></a>${text}</H2>\n`).join('') +
  '</BODY>\n</HTML>\n';

// Gives { words, entries, pageCount }: the words by falling frequency.
export function writeLargeSet(directory, visited) {
  const random = randomFrom(7);
  const words = vocabulary(random, 40000);
  const entries = [];
  const pages = [];
  for (let number = 1; number <= pageCount; number += 1) {
    const own = entriesOf(number, random, words);
    entries.push(...own);
    // 250 different words or so on a page, the common ones on most pages.
    const onPage = Array.from({ length: 350 }, () => words[Math.floor(words.length * (random(100000) / 100000) ** 3)]);
    pages.push([number, onPage]);
    if (visited.includes(number)) {
      mkdirSync(directory, { recursive: true });
      writeFileSync(join(directory, fileOf(number)), pageHtml(own));
    }
  }
  const set = { title: 'Large', start: 'rep.htm', name: 'rep_dtl', extension: '.htm', icons: [] };
  buildNavigator(join(directory, 'rep_nav'), set, entries, pages);
  writeFileSync(join(directory, 'empty.htm'), '<HTML><HEAD></HEAD><BODY></BODY></HTML>');
  return { words, entries, pageCount };
}
