// Puts the navigator together on this page. This file comes last.
(function (nav) {
  'use strict';

  const script = document.currentScript.src;

  // The contents' own frame set has a navigator already: its other frame.
  const inFrameSet = window !== window.top && window.name === 'main';

  class Navigator {
    constructor(root, directory) {
      this.root = root;
      this.directory = directory;
      this.files = new nav.DataFiles(nav.loadScript(directory));
      this.memory = nav.perTab(root);
      this.addressOf = ({ href }) => new URL(href, root).href;
      globalThis.repNav = (name, text) => this.files.receive(name, text);
    }

    build() {
      nav.theme.start();
      this.layout = nav.layout.build();
      nav.theme.connect(this.layout.themeButton);
      this.drawer = new nav.layout.Drawer(this.layout.contentsButton, this.layout.contents, this.memory);
      this.showHits();
    }

    async start() {
      performance.mark('rep_nav:start');
      this.set = await this.files.get('set');
      this.entries = new nav.Entries(this.files, this.set);
      this.page = nav.place.pageNumber(location.href, this.set);
      this.currentEntry = new nav.CurrentEntry(this.entries, this.page);
      this.home = { href: new URL(this.set.start, this.root).href, text: this.set.title };
      Object.assign(this.layout.home, { href: this.home.href, textContent: this.home.text });
      this.startSearch();
      this.startTree();
      await this.follow(false);
      this.tree.watch();
      performance.mark('rep_nav:tree', { detail: { bytes: this.files.bytesRead } });
      addEventListener('hashchange', () => {
        this.drawer.rest();
        this.follow(true);
      });
      await this.showNeighbours();
    }

    startTree() {
      const rows = new nav.TreeRows(this.set.roots);
      this.tree = new nav.TreeView(this.layout.contents, rows, this.entries, {
        addressOf: this.addressOf,
        iconsOf: (entry) => this.iconsOf(entry),
      });
      new nav.TreeKeys(this.tree);
      this.treeMemory = new nav.TreeMemory(this.memory, this.set);
      this.treeMemory.restoreRows(rows);
      addEventListener('pagehide', () => this.treeMemory.save(this.tree));
    }

    iconsOf({ icon, stereotypeIcon }) {
      return [icon, stereotypeIcon]
        .filter((number) => number > 0)
        .map((number) => `${this.directory}icons/${encodeURIComponent(this.set.icons[number - 1])}`);
    }

    startSearch() {
      const query = new nav.Query(this.files, this.set);
      this.searchBox = new nav.SearchBox(this.layout.search, {
        prepare: () => query.prepare(),
        search: async (text) => new nav.SearchResults(this.entries, await query.run(text)),
        addressOf: ({ entry, page }, text) => this.resultAddress(entry, page, text),
        title: this.set.title,
      });
    }

    // A hit in a page's text is looked for from the top of the page, not from its first entry.
    resultAddress(entry, page, text) {
      const href = page ? entry.href.split('#')[0] : entry.href;
      return new URL(nav.place.withQuery(href, text.trim()), this.root).href;
    }

    async follow(jumped) {
      const entry = await this.currentEntry.ofFragment(location.hash);
      const path = entry === null ? [] : await this.entries.path(entry.id);
      nav.pathAndNeighbours.showPath(this.layout.path, this.home, path, entry, this.addressOf);
      this.tree.measure();
      if (!jumped) this.treeMemory.restoreScroll(this.tree);
      if (entry === null) return this.tree.render();
      document.title = `${entry.text} \u2013 ${this.set.title}`;
      this.tree.showCurrent(entry, path);
    }

    showNeighbours() {
      const { neighbours } = this.layout;
      return nav.pathAndNeighbours.showNeighbours(neighbours, this.entries, this.page, this.addressOf);
    }

    showHits() {
      const { main } = this.layout;
      nav.hitMarks.mark(main, nav.place.findOf(location.href));
      const first = main.querySelector('mark.rn-hit');
      if (first !== null && location.hash === '') first.scrollIntoView({ block: 'center' });
      document.addEventListener('keydown', ({ key, target }) => {
        if (key === 'Escape' && !this.layout.search.contains(target)) nav.hitMarks.unmark(main);
      });
    }

    // What a locate button asks for.
    async locate(button) {
      await this.ready;
      const entry = await this.currentEntry.ofElement(button);
      if (entry === null) return;
      this.drawer.show(true);
      this.tree.showCurrent(entry, await this.entries.path(entry.id));
      this.tree.focus(this.tree.rows.indexOf(entry.id));
    }
  }

  // Locate buttons call `top.contents.Locate(...)`. Where a content security policy forbids their
  // own handler, a click reaches them all the same.
  function answerLocateButtons(navigator) {
    window.contents = { Locate: (address, button) => navigator.locate(button) };
    document.addEventListener('click', ({ target }) => {
      if (target.matches('input.locatebtn')) navigator.locate(target);
    });
  }

  if (!inFrameSet) {
    const root = nav.place.rootOf(script);
    nav.current = new Navigator(root, new URL('.', script).href);
    nav.current.build();
    answerLocateButtons(nav.current);
    // Without its data the navigator has nothing to show, and the page is as readable as ever.
    nav.current.ready = nav.current.start().catch((error) => console.error(error));
  }
})((globalThis.repNavigator ??= {}));
