// The tree looks on the next page as it did on this one: what is open, and how far it is scrolled.
(function (nav) {
  'use strict';

  // A reader who opens more than this by hand loses the oldest.
  const mostOpen = 500;

  class TreeMemory {
    constructor(memory, set) {
      this.memory = memory;
      // A set that was made anew has other numbers.
      this.edition = `${set.title} ${set.entries} ${set.pages} ${set.roots}`;
    }

    save({ rows, panel, rowHeight }) {
      const top = Math.floor(panel.scrollTop / rowHeight);
      this.memory.set('tree', {
        edition: this.edition,
        open: [...rows.open.values()].slice(-mostOpen),
        top: rows.ids[top] ?? null,
        rest: panel.scrollTop - top * rowHeight,
      });
    }

    // Opens what was open; true when there was something to remember.
    restoreRows(rows) {
      this.saved = this.memory.get('tree');
      if (this.saved?.edition !== this.edition) this.saved = null;
      if (this.saved !== null) rows.expand(...this.saved.open);
    }

    restoreScroll({ rows, panel, tree, rowHeight }) {
      if (this.saved === null) return;
      tree.style.height = `${rows.size * rowHeight}px`;
      panel.scrollTop = rows.indexOf(this.saved.top) * rowHeight + this.saved.rest;
    }
  }

  nav.TreeMemory = TreeMemory;
})((globalThis.repNavigator ??= {}));
