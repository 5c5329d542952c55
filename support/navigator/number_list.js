// Lists of ascending numbers as the search index writes them: gaps, or bits after a dot.
(function (nav) {
  'use strict';

  const alphabet = 'ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_';
  const values = new Uint8Array(128);
  [...alphabet].forEach((character, value) => {
    values[character.charCodeAt(0)] = value;
  });

  function eachBit(text, take) {
    for (let at = 1; at < text.length; at += 1) {
      const bits = values[text.charCodeAt(at)];
      for (let bit = 0; bit < 6; bit += 1) {
        if (bits & (1 << bit)) take((at - 1) * 6 + bit);
      }
    }
  }

  function eachGap(text, take) {
    let number = -1;
    let gap = 0;
    for (let at = 0; at < text.length; at += 1) {
      const value = values[text.charCodeAt(at)];
      gap = gap * 32 + (value & 31);
      if (value < 32) {
        number += gap + 1;
        take(number);
        gap = 0;
      }
    }
  }

  nav.numberList = {
    alphabet,
    valueOf: (text, at) => values[text.charCodeAt(at)],
    each: (text, take) => (text.startsWith('.') ? eachBit(text, take) : eachGap(text, take)),
  };
})((globalThis.repNavigator ??= {}));
