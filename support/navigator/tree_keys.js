// The keys of the tree, after the tree view pattern of the ARIA practices. Tab, and whatever comes
// with Ctrl, Alt or Meta, stays the browser's.
(function (nav) {
  'use strict';

  class TreeKeys {
    constructor(view) {
      this.view = view;
      this.typed = '';
      view.tree.addEventListener('keydown', (event) => this.onKey(event));
    }

    onKey(event) {
      if (event.ctrlKey || event.altKey || event.metaKey) return;
      const index = this.view.rows.indexOf(this.view.idOf(event.target));
      const action = this.actionOf(event.key, index);
      if (action === null) return;
      event.preventDefault();
      action();
    }

    actionOf(key, index) {
      const { view } = this;
      const actions = {
        ArrowDown: () => view.focus(index + 1),
        ArrowUp: () => view.focus(index - 1),
        Home: () => view.focus(0),
        End: () => view.focus(view.rows.size - 1),
        ArrowRight: () => this.goIn(index),
        ArrowLeft: () => this.goOut(index),
        ' ': () => view.shown.get(view.rows.ids[index]).element.click(),
      };
      if (Object.hasOwn(actions, key)) return actions[key];
      return key.length === 1 && key !== '/' ? () => this.typeAhead(key, index) : null;
    }

    goIn(index) {
      const { rows } = this.view;
      const id = rows.ids[index];
      if (!rows.isOpen(id)) this.view.toggle(id);
      else this.view.focus(index + 1);
    }

    goOut(index) {
      const { rows } = this.view;
      const id = rows.ids[index];
      if (rows.isOpen(id)) this.view.toggle(id);
      else this.view.focus(rows.parentIndex(index));
    }

    // To the next row whose text begins with what was typed.
    typeAhead(key, index) {
      clearTimeout(this.pause);
      this.pause = setTimeout(() => (this.typed = ''), 700);
      this.typed += key.toLowerCase();
      const { rows, entries } = this.view;
      const first = this.typed.length === 1 ? 1 : 0;
      for (let step = first; step < rows.size; step += 1) {
        const at = (index + step) % rows.size;
        const text = entries.peek(rows.ids[at])?.text.toLowerCase() ?? '';
        if (text.startsWith(this.typed)) return this.view.focus(at);
      }
    }
  }

  nav.TreeKeys = TreeKeys;
})((globalThis.repNavigator ??= {}));
