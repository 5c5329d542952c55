// The search box and its list. Every key starts a search; one that another overtakes is dropped.
(function (nav) {
  'use strict';

  const { element, interfaceWords: words } = nav;

  class SearchBox {
    // `prepare()` is called when a search is to be expected; `search(text)` gives a promise for
    // SearchResults; `addressOf(result, text)` a link. The title is the path of what has no other.
    constructor(container, { prepare, search, addressOf, title }) {
      Object.assign(this, { container, prepare, search, addressOf, title });
      this.turn = 0;
      this.build();
      this.box.addEventListener('input', () => this.run());
      this.box.addEventListener('focus', () => this.reopen());
      this.list.addEventListener('scroll', () => this.onScroll(), { passive: true });
      container.addEventListener('keydown', (event) => this.onKey(event));
      document.addEventListener('keydown', (event) => this.onSlash(event));
      document.addEventListener('pointerdown', ({ target }) => this.onLeave(target));
      document.addEventListener('focusin', ({ target }) => this.onLeave(target));
    }

    build() {
      this.box = element('input', {
        type: 'search',
        class: 'rn-box',
        'aria-label': words.search,
        'aria-controls': 'rn-results',
        'aria-keyshortcuts': '/',
        placeholder: words.searchHint,
        autocomplete: 'off',
        spellcheck: 'false',
      });
      this.status = element('div', { role: 'status', class: 'rn-status' });
      this.list = element('div', {
        id: 'rn-results',
        role: 'listbox',
        class: 'rn-results',
        tabindex: '-1',
        'aria-label': words.results,
        hidden: '',
      });
      const panel = element('div', { class: 'rn-panel' }, this.status, this.list);
      this.container.append(this.box, panel);
    }

    async run() {
      const turn = (this.turn += 1);
      const text = this.box.value;
      performance.mark('rep_nav:query');
      if (text.trim() === '') return this.clear();
      try {
        const results = await this.search(text);
        const first = await results.more();
        if (turn === this.turn) await this.show(turn, results, first, text);
      } catch {
        if (turn === this.turn) this.fail();
      }
    }

    clear() {
      this.results = null;
      this.list.replaceChildren();
      this.list.hidden = true;
      this.status.textContent = '';
    }

    fail() {
      this.clear();
      this.status.textContent = words.noIndex;
    }

    async show(turn, results, first, text) {
      this.results = results;
      this.text = text;
      this.list.replaceChildren(...first.map((result) => this.optionOf(result)));
      this.list.hidden = first.length === 0;
      this.list.scrollTop = 0;
      this.setTabStop(this.list.firstChild);
      performance.mark('rep_nav:result');
      const counted = await results.count();
      if (turn === this.turn) this.status.textContent = this.statusOf(counted, results.found.partial);
      await this.fill(turn);
    }

    // A list that does not scroll would never ask for more.
    async fill(turn) {
      while (turn === this.turn && this.list.scrollHeight <= this.list.clientHeight && !this.list.hidden) {
        if (!(await this.more())) break;
      }
    }

    statusOf({ count, exact }, partial) {
      const number = () => {
        if (count === 0) return words.noResults;
        if (!exact) return words.manyResults(count);
        return count === 1 ? words.oneResult : words.someResults(count);
      };
      return partial ? `${number()}. ${words.typeMore}` : number();
    }

    optionOf(result) {
      const { entry, path, page } = result;
      const steps = path.length > 0 ? path.map((step) => step.text).join(' \u203a ') : this.title;
      return element(
        'a',
        { role: 'option', class: 'rn-option', tabindex: '-1', 'aria-selected': 'false',
          href: this.addressOf(result, this.text) },
        element('span', { class: 'rn-title' }, entry.text),
        page ? element('span', { class: 'rn-kind' }, words.pageText) : '',
        element('span', { class: 'rn-steps' }, steps),
      );
    }

    // One option is in the tab order: the one that had the focus last.
    setTabStop(option) {
      for (const other of this.list.children) {
        other.tabIndex = other === option ? 0 : -1;
        other.setAttribute('aria-selected', String(other === option && other === document.activeElement));
      }
    }

    // Shows further results; false when there are none.
    async more() {
      const { results } = this;
      if (!results || results.loading) return false;
      results.loading = true;
      const further = await results.more().catch(() => []);
      results.loading = false;
      if (results === this.results) this.list.append(...further.map((result) => this.optionOf(result)));
      return further.length > 0;
    }

    onScroll() {
      const { scrollTop, clientHeight, scrollHeight } = this.list;
      if (scrollTop + clientHeight > scrollHeight - clientHeight) this.more();
    }

    async go(option) {
      if (option === null) return;
      option.focus();
      this.setTabStop(option);
      if (option.nextElementSibling === null) await this.more();
    }

    onKey(event) {
      if (event.ctrlKey || event.altKey || event.metaKey || event.isComposing) return;
      const action = event.target === this.box ? this.boxAction(event.key) : this.listAction(event);
      if (action === undefined) return;
      event.preventDefault();
      action();
    }

    boxAction(key) {
      const first = this.list.hidden ? null : this.list.firstElementChild;
      return {
        ArrowDown: () => this.go(first),
        Enter: () => first?.click(),
        Escape: () => this.close(),
      }[key];
    }

    listAction({ key, target }) {
      const option = target.closest('[role=option]');
      return {
        ArrowDown: () => this.go(option.nextElementSibling),
        ArrowUp: () => (option.previousElementSibling ? this.go(option.previousElementSibling) : this.box.focus()),
        Home: () => this.go(this.list.firstElementChild),
        End: () => this.go(this.list.lastElementChild),
        ' ': () => option.click(),
        Escape: () => {
          this.box.focus();
          this.close();
        },
      }[key];
    }

    // A second Escape empties the box, as search boxes do.
    close() {
      if (this.list.hidden) this.box.value = '';
      this.turn += 1;
      this.list.hidden = true;
      this.status.textContent = '';
    }

    reopen() {
      this.prepare();
      if (this.list.hidden && this.box.value !== '') this.run();
    }

    onLeave(target) {
      if (!this.container.contains(target) && !this.list.hidden) {
        this.turn += 1;
        this.list.hidden = true;
        this.status.textContent = '';
      }
    }

    onSlash(event) {
      if (event.key !== '/' || event.ctrlKey || event.altKey || event.metaKey) return;
      if (event.target.closest('input:not([type=image]), textarea, select, [contenteditable]')) return;
      event.preventDefault();
      this.box.focus();
      this.box.select();
    }
  }

  nav.SearchBox = SearchBox;
})((globalThis.repNavigator ??= {}));
