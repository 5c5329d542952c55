// The words of one index file, and which files hold the words that begin with a prefix.
(function (nav) {
  'use strict';

  // By code points. JavaScript compares UTF-16 units, where the astral planes come too early.
  function compareWords(left, right) {
    const shorter = Math.min(left.length, right.length);
    for (let at = 0; at < shorter; at += 1) {
      const a = left.charCodeAt(at);
      const b = right.charCodeAt(at);
      if (a === b) continue;
      const isHigh = (unit) => unit >= 0xd800 && unit <= 0xdfff;
      return isHigh(a) === isHigh(b) ? a - b : isHigh(a) ? 1 : -1;
    }
    return left.length - right.length;
  }

  // Calls `take(word, entries, pages)` for the words of a file that begin with a prefix, the lists
  // still as texts.
  function each(text, prefix, take) {
    let word = '';
    for (let at = 0; at < text.length; ) {
      const comma = text.indexOf(',', at);
      const second = text.indexOf(',', comma + 1);
      const end = text.indexOf(';', second);
      word = word.slice(0, nav.numberList.valueOf(text, at)) + text.slice(at + 1, comma);
      if (word.startsWith(prefix)) {
        take(word, text.slice(comma + 1, second), text.slice(second + 1, end));
      } else if (compareWords(word, prefix) > 0) {
        return;
      }
      at = end + 1;
    }
  }

  // The numbers of the files that may hold words with a prefix: [first, one past the last].
  function filesOf(firstWords, prefix) {
    let first = firstWords.findIndex((word) => compareWords(word, prefix) > 0);
    if (first < 0) first = firstWords.length;
    let end = first;
    while (end < firstWords.length && firstWords[end].startsWith(prefix)) end += 1;
    return [Math.max(0, first - 1), end];
  }

  nav.wordFile = { compareWords, each, filesOf };
})((globalThis.repNavigator ??= {}));
