// Dark and light: the system's choice, unless the reader has made another one.
(function (nav) {
  'use strict';

  const root = document.documentElement;
  const dark = matchMedia('(prefers-color-scheme: dark)');
  const ofSystem = () => (dark.matches ? 'dark' : 'light');
  const chosen = () => root.getAttribute('data-rn-theme') ?? ofSystem();

  function apply(theme) {
    if (theme === 'dark' || theme === 'light') {
      root.setAttribute('data-rn-theme', theme);
    } else {
      root.removeAttribute('data-rn-theme');
    }
  }

  // The choice that agrees with the system's is none: the pages follow the system again.
  function toggle() {
    const theme = chosen() === 'dark' ? 'light' : 'dark';
    if (theme === ofSystem()) {
      nav.lasting.forget('theme');
    } else {
      nav.lasting.set('theme', theme);
    }
    apply(theme === ofSystem() ? null : theme);
  }

  // The pages' own style sheet takes part when its colours are custom properties.
  function markThemed() {
    const themed = getComputedStyle(root).getPropertyValue('--page-text') !== '';
    root.classList.toggle('rn-themed', themed);
  }

  function connect(button) {
    const show = () => button.setAttribute('aria-pressed', String(chosen() === 'dark'));
    button.addEventListener('click', () => {
      toggle();
      show();
    });
    dark.addEventListener('change', show);
    // A page that the browser has kept may be of before the reader's choice.
    addEventListener('pageshow', () => {
      apply(nav.lasting.get('theme'));
      show();
    });
    show();
  }

  nav.theme = {
    start: () => {
      apply(nav.lasting.get('theme'));
      markThemed();
    },
    connect,
  };
})((globalThis.repNavigator ??= {}));
