// The search index: words, the entries and the pages that hold them.

import { nav } from '../browser_side.mjs';
import { stringText } from './data_writer.mjs';
import { numberListText } from './number_list.mjs';

const largestFile = 32768;
const longestShared = 63;

export class WordIndex {
  #words = new Map();

  // Pages by their numbers less 1. Both may come in any order, and more than once.
  addPage(index, words) {
    for (const word of words) this.#listsOf(word).pages.push(index);
  }

  addEntry(id, words) {
    for (const word of words) this.#listsOf(word).entries.push(id);
  }

  #listsOf(word) {
    if (!this.#words.has(word)) this.#words.set(word, { entries: [], pages: [] });
    return this.#words.get(word);
  }

  // { firstWords, files }: the data of index.js and of the files of words.
  files() {
    const { compareWords } = nav.wordFile;
    const words = [...this.#words.keys()].sort(compareWords);
    const firstWords = [];
    const files = [];
    let size = Infinity;
    let last = '';
    for (const word of words) {
      let record = this.#record(word, last);
      if (size + written(record) > largestFile) {
        record = this.#record(word, '');
        firstWords.push(word);
        files.push([]);
        size = 0;
      }
      files.at(-1).push(record);
      size += written(record);
      last = word;
    }
    return { firstWords, files: files.map((records) => records.join('')) };
  }

  #record(word, last) {
    let shared = 0;
    while (shared < longestShared && shared < last.length && word[shared] === last[shared]) shared += 1;
    if (shared > 0 && /[\ud800-\udbff]/.test(word[shared - 1])) shared -= 1;
    const { entries, pages } = this.#words.get(word);
    const lists = [entries, pages].map((numbers) => numberListText(ascending(numbers)));
    return `${nav.numberList.alphabet[shared]}${word.slice(shared)},${lists.join(',')};`;
  }
}

const written = (record) => stringText(record).length - 2;

const ascending = (numbers) => [...new Set(numbers)].sort((a, b) => a - b);
