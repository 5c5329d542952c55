// The tree on the page. Only the rows around the visible ones are elements, whatever is open.
(function (nav) {
  'use strict';

  const rowsAround = 100;

  class TreeView {
    // `addressOf` and `iconsOf` make addresses from an entry.
    constructor(panel, rows, entries, { addressOf, iconsOf }) {
      Object.assign(this, { panel, rows, entries, addressOf, iconsOf });
      this.shown = new Map();
      this.current = null;
      this.active = null;
      this.tree = nav.element('div', {
        role: 'tree',
        class: 'rn-tree',
        'aria-label': nav.interfaceWords.contents,
      });
      panel.append(this.tree);
      panel.addEventListener('scroll', () => this.render(), { passive: true });
      this.tree.addEventListener('click', (event) => this.onClick(event));
      this.tree.addEventListener('focusin', (event) => this.setActive(this.idOf(event.target)));
    }

    // From here on the tree fits itself to its panel.
    watch() {
      new ResizeObserver(() => this.measure()).observe(this.panel);
    }

    idOf(target) {
      return Number(target.closest('[data-rn-id]').getAttribute('data-rn-id'));
    }

    // A row's height in pixels comes from the style sheet; the reader may change it by zooming.
    measure() {
      const height = parseFloat(getComputedStyle(this.tree).getPropertyValue('line-height'));
      this.rowHeight = height > 0 ? height : 28;
      this.render();
    }

    visibleRange() {
      const first = Math.floor(this.panel.scrollTop / this.rowHeight);
      return [first, first + Math.ceil(this.panel.clientHeight / this.rowHeight)];
    }

    renderedIndices() {
      const [first, last] = this.visibleRange();
      const from = Math.max(0, first - rowsAround);
      const to = Math.min(this.rows.size, last + rowsAround);
      const indices = Array.from({ length: Math.max(0, to - from) }, (_, at) => from + at);
      const focused = this.focusedIndex();
      if (focused < 0 || (focused >= from && focused < to)) return indices;
      return focused < from ? [focused, ...indices] : [...indices, focused];
    }

    // A row that has the focus stays, wherever the reader scrolls.
    focusedIndex() {
      const focused = document.activeElement;
      return this.tree.contains(focused) && focused !== this.tree ? this.rows.indexOf(this.idOf(focused)) : -1;
    }

    render() {
      if (this.rowHeight === undefined) return;
      const indices = this.renderedIndices();
      this.tree.style.height = `${this.rows.size * this.rowHeight}px`;
      this.keepOnly(new Set(indices.map((index) => this.rows.ids[index])));
      this.chooseTabStop(indices);
      let next = this.tree.firstChild;
      for (const index of indices) {
        const { element } = this.rowAt(index);
        if (element === next) next = next.nextSibling;
        else this.tree.insertBefore(element, next);
      }
      this.loadMissing();
    }

    keepOnly(ids) {
      for (const [id, row] of this.shown) {
        if (ids.has(id)) continue;
        row.element.remove();
        this.shown.delete(id);
      }
    }

    // One row of the tree is in the tab order, always.
    chooseTabStop(indices) {
      const ids = indices.map((index) => this.rows.ids[index]);
      this.tabStop = [this.active, this.current].find((id) => id !== null && ids.includes(id)) ?? ids[0];
    }

    rowAt(index) {
      const place = this.rows.at(index);
      if (!this.shown.has(place.id)) this.shown.set(place.id, new nav.TreeRow(place));
      const row = this.shown.get(place.id);
      const entry = row.filled ? undefined : this.entries.peek(place.id);
      if (entry !== undefined) row.fill(entry, this.addressOf(entry), this.iconsOf(entry));
      row.place(index * this.rowHeight);
      row.update({
        open: this.rows.isOpen(place.id),
        current: place.id === this.current,
        active: place.id === this.tabStop,
      });
      return row;
    }

    // Rows whose entries are still to be read are filled in when those are here.
    async loadMissing() {
      const missing = [...this.shown.values()].filter((row) => !row.filled).map(({ id }) => id);
      if (missing.length === 0) return;
      const files = new Map(missing.map((id) => [this.entries.fileOf(id), id]));
      const loads = [...files.values()].map((id) => this.entries.load(id));
      const results = await Promise.allSettled(loads);
      if (results.some(({ status }) => status === 'fulfilled')) this.render();
    }

    // Opens an entry and the way to it, marks it and brings it into view.
    showCurrent(entry, path) {
      this.current = entry.id;
      this.active = entry.id;
      this.rows.expand(...path, entry);
      this.reveal(this.rows.indexOf(entry.id));
    }

    // Scrolls as little as possible, but not to the very edge.
    reveal(index) {
      const { panel, rowHeight } = this;
      this.tree.style.height = `${this.rows.size * rowHeight}px`;
      const top = index * rowHeight;
      const hidden = top < panel.scrollTop || top + rowHeight > panel.scrollTop + panel.clientHeight;
      if (hidden) panel.scrollTop = top - panel.clientHeight / 3;
      this.render();
    }

    toggle(id) {
      const entry = this.entries.peek(id);
      if (entry === undefined || entry.count === 0) return;
      if (this.rows.isOpen(id)) this.rows.collapse(id);
      else this.rows.expand(entry);
      this.active = id;
      this.render();
    }

    focus(index) {
      const id = this.rows.ids[index];
      if (id === undefined) return;
      this.active = id;
      this.reveal(index);
      this.shown.get(id).element.focus({ preventScroll: true });
    }

    setActive(id) {
      if (this.active === id) return;
      this.active = id;
      this.render();
    }

    onClick(event) {
      if (event.target.closest('.rn-twisty') === null) return;
      event.preventDefault();
      this.toggle(this.idOf(event.target));
    }
  }

  nav.TreeView = TreeView;
})((globalThis.repNavigator ??= {}));
