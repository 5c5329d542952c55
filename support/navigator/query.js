// Finding the entries and pages that match all words of a query by prefix.
(function (nav) {
  'use strict';

  const mostWords = 8;
  const mostFiles = 8;

  // Counts, for each number, how many words of the query it matches, and how many of them whole.
  class Tally {
    constructor(size) {
      this.words = new Uint8Array(size);
      this.whole = new Uint8Array(size);
    }

    // `word` counts from 0. A number that did not match all words before stays out.
    add(word, list, whole) {
      nav.numberList.each(list, (number) => {
        if (this.words[number] === word) this.words[number] = word + 1;
        if (whole) this.whole[number] += 1;
      });
    }

    // The numbers that match all words, those with more whole words first.
    result(words) {
      const groups = Array.from({ length: words + 1 }, () => []);
      for (let number = 0; number < this.words.length; number += 1) {
        if (this.words[number] === words) groups[words - this.whole[number]].push(number);
      }
      return groups.flat();
    }
  }

  class Query {
    constructor(files, set) {
      this.files = files;
      this.set = set;
    }

    // Reads ahead what every query needs.
    prepare() {
      this.files.get('index').catch(() => {});
    }

    // { words, entries, pages, partial }: numbers of entries and of pages. Partial means that a
    // prefix has more words than are read for it.
    async run(text) {
      const words = nav.searchWords.queryWords(text).slice(0, mostWords);
      if (words.length === 0) return { words, entries: [], pages: [], partial: false };
      const perWord = Math.max(1, Math.floor(mostFiles / words.length));
      const matches = await Promise.all(words.map((word) => this.matchesOf(word, perWord)));
      return { words, partial: matches.some(({ partial }) => partial), ...this.combine(words, matches) };
    }

    async matchesOf(word, most) {
      const firstWords = await this.files.get('index');
      const [first, end] = nav.wordFile.filesOf(firstWords, word);
      const numbers = Array.from({ length: Math.min(end - first, most) }, (_, at) => first + at);
      const texts = await Promise.all(numbers.map((number) => this.files.get(`word${number}`)));
      return {
        texts,
        partial: end - first > most,
      };
    }

    combine(words, matches) {
      const entries = new Tally(this.set.entries);
      const pages = new Tally(this.set.pages);
      words.forEach((wanted, index) => {
        for (const text of matches[index].texts) {
          nav.wordFile.each(text, wanted, (word, entryList, pageList) => {
            entries.add(index, entryList, word === wanted);
            pages.add(index, pageList, word === wanted);
          });
        }
      });
      return {
        entries: entries.result(words.length),
        pages: pages.result(words.length).map((index) => index + 1),
      };
    }
  }

  nav.Query = Query;
})((globalThis.repNavigator ??= {}));
