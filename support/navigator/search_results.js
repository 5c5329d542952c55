// What a query found, ten at a time, in the form in which the list shows it.
(function (nav) {
  'use strict';

  const atATime = 10;
  // Entries in up to so many files are all looked at, to count their pages once.
  const mostFilesForCount = 12;

  class SearchResults {
    constructor(entries, found) {
      this.entries = entries;
      this.found = found;
      this.shown = 0;
      this.pagesShown = new Set();
    }

    // How many there are: { count, exact }. A page that has an entry in the list is not listed
    // again, so that counting both may need the entries themselves.
    async count() {
      const { entries, pages } = this.found;
      if (entries.length === 0 || pages.length === 0) {
        return { count: entries.length + pages.length, exact: true };
      }
      const files = new Set(entries.map((id) => this.entries.fileOf(id)));
      if (files.size > mostFilesForCount) {
        return { count: Math.max(entries.length, pages.length), exact: false };
      }
      const withEntry = await this.pagesOf(entries);
      const others = pages.filter((page) => !withEntry.has(page));
      return { count: entries.length + others.length, exact: true };
    }

    async pagesOf(ids) {
      const entries = await Promise.all(ids.map((id) => this.entries.get(id)));
      return new Set(entries.map((entry) => this.pageOf(entry)));
    }

    pageOf({ href }) {
      return nav.place.pageNumber(new URL(href, 'file:///').href, this.entries.set);
    }

    // The next results: [{ entry, path, page }]; empty at the end. `page` marks a match in the page's text.
    async more() {
      const results = [];
      const { entries, pages } = this.found;
      while (results.length < atATime && this.shown < entries.length + pages.length) {
        const wanted = atATime - results.length;
        const from = this.shown;
        const ids = entries.slice(from, from + wanted);
        const start = Math.max(0, from - entries.length);
        const texts = ids.length > 0 ? [] : pages.slice(start, start + wanted);
        this.shown += ids.length + texts.length;
        results.push(...(await Promise.all(ids.map((id) => this.ofEntry(id)))));
        results.push(...(await this.ofPages(texts)));
      }
      return results;
    }

    async ofEntry(id) {
      const [entry, path] = await Promise.all([this.entries.get(id), this.entries.path(id)]);
      this.pagesShown.add(this.pageOf(entry));
      return { entry, path, page: false };
    }

    async ofPages(pages) {
      const others = pages.filter((page) => !this.pagesShown.has(page));
      const firsts = await Promise.all(others.map((page) => this.entries.firstOfPage(page)));
      const results = await Promise.all(firsts.filter((id) => id !== null).map((id) => this.ofEntry(id)));
      return results.map((result) => ({ ...result, page: true }));
    }
  }

  nav.SearchResults = SearchResults;
})((globalThis.repNavigator ??= {}));
