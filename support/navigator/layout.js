// The navigator's frame around the page: the bar with its buttons, the drawer, and the page's own
// content in a main element.
(function (nav) {
  'use strict';

  const { element, interfaceWords: words } = nav;
  const isNarrow = () => matchMedia('(max-width: 60rem)').matches;

  function mainOf(body) {
    const main = element('main', { id: 'rn-main', class: 'rn-main', tabindex: '-1' });
    main.append(...body.childNodes);
    return main;
  }

  function makeButton(kind, label) {
    return element(
      'button',
      { type: 'button', class: `rn-button rn-button-${kind}`, 'aria-label': label, title: label },
      element('span', { class: `rn-sign rn-sign-${kind}`, 'aria-hidden': 'true' }),
    );
  }

  // Opens and closes the contents: a drawer over the page where it is narrow, a column beside it
  // where there is room.
  class Drawer {
    constructor(button, panel, memory) {
      Object.assign(this, { button, panel, memory });
      button.setAttribute('aria-controls', panel.id);
      button.addEventListener('click', () => this.toggle());
      matchMedia('(max-width: 60rem)').addEventListener('change', () => this.rest());
      document.addEventListener('keydown', (event) => this.onKey(event));
      document.addEventListener('focusin', (event) => this.onLeave(event));
      document.addEventListener('pointerdown', (event) => this.onLeave(event));
      addEventListener('pagehide', () => this.rest());
      this.rest();
    }

    // As it is without the reader's doing: closed where it would hide the page.
    rest() {
      this.show(!isNarrow() && this.memory.get('drawer') !== 'closed');
    }

    show(open) {
      this.open = open;
      document.documentElement.classList.toggle('rn-open', open);
      this.button.setAttribute('aria-expanded', String(open));
      this.panel.inert = !open;
    }

    toggle() {
      this.show(!this.open);
      if (!isNarrow()) {
        this.memory.set('drawer', this.open ? 'open' : 'closed');
      } else if (this.open) {
        this.panel.querySelector('[tabindex="0"]')?.focus();
      }
    }

    onKey(event) {
      if (event.key === 'Escape' && this.open && isNarrow()) {
        this.show(false);
        this.button.focus();
      }
    }

    // The drawer does not stay in front of what the reader has gone on to.
    onLeave({ target }) {
      const within = this.panel.contains(target) || this.button.contains(target);
      if (this.open && isNarrow() && !within) this.show(false);
    }
  }

  function build() {
    const layout = {
      main: mainOf(document.body),
      skip: element('a', { class: 'rn-skip', href: '#rn-main' }, words.skip),
      contentsButton: makeButton('contents', words.contents),
      themeButton: makeButton('theme', words.theme),
      home: element('a', { class: 'rn-home' }),
      search: element('div', { role: 'search', class: 'rn-search' }),
      contents: element('nav', { id: 'rn-contents', class: 'rn-contents', tabindex: '-1', 'aria-label': words.contents }),
      path: element('nav', { class: 'rn-path', 'aria-label': words.breadcrumb }),
      neighbours: element('div', { class: 'rn-neighbours' }),
    };
    const { skip, contentsButton, home, search, themeButton, contents, main } = layout;
    const bar = element('header', { class: 'rn-bar' }, contentsButton, home, search, themeButton);
    main.prepend(layout.path);
    main.append(layout.neighbours);
    document.body.append(skip, bar, contents, main);
    document.documentElement.classList.add('rn-on');
    skipTo(main, skip);
    return layout;
  }

  // The link's fragment would take the place of the reader's.
  function skipTo(main, skip) {
    skip.addEventListener('click', (event) => {
      event.preventDefault();
      main.focus();
    });
  }

  nav.layout = { build, Drawer };
})((globalThis.repNavigator ??= {}));
