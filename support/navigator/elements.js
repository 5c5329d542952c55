// Making elements. Texts are put in as texts, never as markup.
(function (nav) {
  'use strict';

  // Children are elements or texts; a property that is null is left out.
  nav.element = function element(tag, properties = {}, ...children) {
    const made = document.createElement(tag);
    for (const [name, value] of Object.entries(properties)) {
      if (value !== null && value !== undefined) made.setAttribute(name, value);
    }
    made.append(...children);
    return made;
  };
})((globalThis.repNavigator ??= {}));
