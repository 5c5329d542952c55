// The entries of the contents by number. They lie in files of 200; each file brings the ancestors of
// its entries along.
(function (nav) {
  'use strict';

  const perFile = 200;
  const numbersPerFile = 1024;

  // Gives each record an entry's form. A href that begins with its fragment is on the page of the
  // record before.
  function* expand(records) {
    let page = '';
    for (const [id, text, href, first = 0, count = 0, icon = 0, stereotypeIcon = 0] of records) {
      if (!href.startsWith('#')) page = href.split('#')[0];
      yield { id, text, href: href.startsWith('#') ? page + href : href, first, count, icon, stereotypeIcon };
    }
  }

  const isChild = (parent, id) => id >= parent.first && id < parent.first + parent.count;

  class Entries {
    constructor(files, set) {
      this.files = files;
      this.set = set;
      this.loaded = new Map();
    }

    fileOf(id) {
      return Math.floor(id / perFile);
    }

    // The entry when its file is here already, or undefined.
    peek(id) {
      return this.loaded.get(this.fileOf(id))?.entries[id % perFile];
    }

    async get(id) {
      await this.load(id);
      return this.peek(id);
    }

    async load(id) {
      const number = this.fileOf(id);
      if (this.loaded.has(number)) return;
      const [records, ancestors] = await this.files.get(`tree${number}`);
      const numbered = records.map((record, index) => [number * perFile + index, ...record]);
      this.loaded.set(number, { entries: [...expand(numbered)], ancestors: [...expand(ancestors)] });
    }

    // The entry's ancestors, outermost first.
    async path(id) {
      await this.load(id);
      const { ancestors } = this.loaded.get(this.fileOf(id));
      const path = [];
      for (let child = id; child >= this.set.roots; child = path[0].id) {
        path.unshift(ancestors.find((ancestor) => isChild(ancestor, child)));
      }
      return path;
    }

    // The first entry of a page, or null.
    firstOfPage(page) {
      return page >= 1 && page <= this.set.pages ? this.numberAt('page', page) : null;
    }

    // The entry of an anchor `toc12`, or null.
    async ofAnchor(anchor) {
      return this.numberAt('anchor', anchor).catch(() => null);
    }

    async numberAt(kind, number) {
      const index = number - 1;
      const numbers = await this.files.get(`${kind}${Math.floor(index / numbersPerFile)}`);
      return numbers[index % numbersPerFile] ?? null;
    }
  }

  nav.Entries = Entries;
})((globalThis.repNavigator ??= {}));
