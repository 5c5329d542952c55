// What a code point is to the search: part of a word (and then of which, in its folded form), an
// ideograph, a separator, or nothing at all. docs/navigator.md has the rules; the builder of the
// index follows the same ones.
(function (nav) {
  'use strict';

  const nothing = '';
  const separator = null;

  // U+00C0 to U+017F, 32 in a line.
  const latin = `
    a a a a a a ae c e e e e i i i i d n o o o o o - o u u u u y th ss
    a a a a a a ae c e e e e i i i i d n o o o o o - o u u u u y th y
    a a a a a a c c c c c c c c d d d d e e e e e e e e e e g g g g
    g g g g h h h h i i i i i i i i i i ij ij j j k k k l l l l l l l
    l l l n n n n n n n n n o o o o o o oe oe r r r r r r s s s s s s
    s s t t t t t t u u u u u u u u u u u u w w y y y z z z z z z s`
    .trim()
    .split(/\s+/);

  const greek = new Map();
  for (const [base, ...accented] of [
    [0x3b1, 0x386, 0x3ac],
    [0x3b5, 0x388, 0x3ad],
    [0x3b7, 0x389, 0x3ae],
    [0x3b9, 0x38a, 0x390, 0x3aa, 0x3af, 0x3ca],
    [0x3bf, 0x38c, 0x3cc],
    [0x3c5, 0x38e, 0x3ab, 0x3b0, 0x3cb, 0x3cd],
    [0x3c9, 0x38f, 0x3ce],
    [0x3c3, 0x3c2],
  ]) {
    for (const code of accented) greek.set(code, String.fromCodePoint(base));
  }

  const within = (code, ranges) => ranges.some(([first, last]) => code >= first && code <= last);

  const ignored = [
    [0xad, 0xad], [0x300, 0x36f], [0x200b, 0x200f], [0x202a, 0x202e], [0x2060, 0x206f],
    [0xfe00, 0xfe0f], [0xfeff, 0xfeff],
  ];
  const ideographs = [
    [0x3005, 0x3005], [0x3040, 0x30ff], [0x31f0, 0x31ff], [0x3400, 0x4dbf], [0x4e00, 0x9fff],
    [0xf900, 0xfaff], [0x20000, 0x3ffff],
  ];
  const separators = [
    [0x80, 0xbf], [0x2000, 0x2bff], [0x2e00, 0x2e7f], [0x3000, 0x303f], [0xd800, 0xf8ff],
    [0xfe10, 0xfe6f], [0xff00, 0xff65], [0xffdd, 0xffff], [0x1f000, 0x1faff], [0xe0000, 0x10ffff],
  ];

  function foldAscii(code) {
    if (code >= 0x41 && code <= 0x5a) return String.fromCharCode(code + 32);
    if ((code >= 0x61 && code <= 0x7a) || (code >= 0x30 && code <= 0x39)) {
      return String.fromCharCode(code);
    }
    return separator;
  }

  function foldWide(code) {
    const ascii = code - 0xfee0;
    return ascii >= 0x30 && ascii <= 0x7a ? foldAscii(ascii) : separator;
  }

  function foldGreekOrCyrillic(code) {
    if (greek.has(code)) return greek.get(code);
    if (within(code, [[0x391, 0x3a1], [0x3a3, 0x3a9], [0x410, 0x42f]])) {
      return String.fromCodePoint(code + 32);
    }
    return String.fromCodePoint(within(code, [[0x400, 0x40f]]) ? code + 80 : code);
  }

  // The folded letters, '' for nothing, null for a separator.
  function fold(code) {
    if (code < 0x80) return foldAscii(code);
    if (within(code, ignored)) return nothing;
    if (code >= 0xc0 && code <= 0x17f) return code === 0xd7 || code === 0xf7 ? separator : latin[code - 0xc0];
    if (code >= 0x370 && code <= 0x4ff) return foldGreekOrCyrillic(code);
    if (code >= 0xff00 && code <= 0xff5a) return foldWide(code);
    if (!within(code, ideographs) && within(code, separators)) return separator;
    return String.fromCodePoint(code);
  }

  nav.codePoints = { fold, isIdeograph: (code) => code >= 0x3005 && within(code, ideographs) };
})((globalThis.repNavigator ??= {}));
