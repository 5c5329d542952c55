// Which rows the tree has: the entries whose ancestors are all open, in document order.
(function (nav) {
  'use strict';

  class TreeRows {
    constructor(roots) {
      this.roots = roots;
      this.open = new Map();
      this.rebuild();
    }

    rebuild() {
      this.ids = [];
      this.levels = [];
      this.parents = [];
      this.addChildren({ id: null, first: 0, count: this.roots }, 1);
    }

    addChildren(parent, level) {
      for (let id = parent.first; id < parent.first + parent.count; id += 1) {
        this.ids.push(id);
        this.levels.push(level);
        this.parents.push(parent);
        const opened = this.open.get(id);
        if (opened !== undefined) this.addChildren(opened, level + 1);
      }
    }

    // Opens entries: `{ id, first, count }`. Those without children stay as they are.
    expand(...entries) {
      for (const { id, first, count } of entries) {
        if (count > 0) this.open.set(id, { id, first, count });
      }
      this.rebuild();
    }

    collapse(id) {
      this.open.delete(id);
      this.rebuild();
    }

    isOpen(id) {
      return this.open.has(id);
    }

    indexOf(id) {
      return this.ids.indexOf(id);
    }

    get size() {
      return this.ids.length;
    }

    // A row's level and its position among its siblings, for assistive technology.
    at(index) {
      const id = this.ids[index];
      const parent = this.parents[index];
      return {
        id,
        level: this.levels[index],
        position: id - parent.first + 1,
        siblings: parent.count,
      };
    }

    // The row's parent as an index, or -1.
    parentIndex(index) {
      const { id } = this.parents[index];
      return id === null ? -1 : this.ids.lastIndexOf(id, index);
    }
  }

  nav.TreeRows = TreeRows;
})((globalThis.repNavigator ??= {}));
