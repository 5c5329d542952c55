// The element of one tree row: a real link, so that opening in a new tab and the context menu work.
(function (nav) {
  'use strict';

  const { element } = nav;

  class TreeRow {
    constructor(row) {
      this.id = row.id;
      this.filled = false;
      this.element = element('a', {
        role: 'treeitem',
        class: 'rn-row',
        tabindex: '-1',
        'aria-level': row.level,
        'aria-posinset': row.position,
        'aria-setsize': row.siblings,
        'data-rn-id': row.id,
      });
      this.element.style.setProperty('--rn-level', row.level);
      this.element.textContent = nav.interfaceWords.loading;
    }

    // Puts the entry in, once it is here. `icons` gives addresses of pictures.
    fill(entry, address, icons) {
      this.filled = true;
      this.hasChildren = entry.count > 0;
      this.element.href = address;
      this.element.title = entry.text;
      const text = element('span', { class: 'rn-text' }, entry.text);
      const pictures = icons.map((src) => element('img', { class: 'rn-icon', src, alt: '' }));
      this.element.replaceChildren(...this.twisty(), ...pictures, text);
    }

    twisty() {
      return this.hasChildren ? [element('span', { class: 'rn-twisty', 'aria-hidden': 'true' })] : [];
    }

    place(top) {
      this.element.style.top = `${top}px`;
    }

    update({ open, current, active }) {
      const set = (name, value) => {
        if (value === null) this.element.removeAttribute(name);
        else this.element.setAttribute(name, value);
      };
      set('aria-expanded', this.hasChildren ? String(open) : null);
      set('aria-current', current ? 'page' : null);
      set('tabindex', active ? '0' : '-1');
    }
  }

  nav.TreeRow = TreeRow;
})((globalThis.repNavigator ??= {}));
