// The words of a text, as the search index has them.
(function (nav) {
  'use strict';

  const longestWord = 32;

  const cut = (text) =>
    text.length <= longestWord ? text : [...text].slice(0, longestWord).join('');

  // The runs of letters and of ideographs: each with its code points and where it lies in the text.
  // A letter is [its folded form, itself].
  function runsOf(text) {
    const runs = [];
    let run = null;
    let at = 0;
    for (const character of text) {
      const code = character.codePointAt(0);
      const start = at;
      at += character.length;
      const folded = nav.codePoints.fold(code);
      if (folded === '') continue;
      if (folded === null) {
        run = null;
        continue;
      }
      const ideographs = nav.codePoints.isIdeograph(code);
      if (run === null || run.ideographs !== ideographs) {
        run = { ideographs, letters: [], start };
        runs.push(run);
      }
      run.letters.push({ folded, character, start, end: at });
      run.end = at;
    }
    return runs;
  }

  const folded = (letters) => cut(letters.map((letter) => letter.folded).join(''));

  // Each ideograph with its successor, the last one alone.
  const pairsOf = (run) =>
    run.letters.map((letter, index) => {
      const next = run.letters[index + 1] ?? letter;
      return {
        word: next === letter ? letter.folded : letter.folded + next.folded,
        start: letter.start,
        end: next.end,
      };
    });

  // The words with their places: [{ word, start, end }].
  const placedWords = (text) =>
    runsOf(text).flatMap((run) =>
      run.ideographs ? pairsOf(run) : { word: folded(run.letters), start: run.start, end: run.end },
    );

  const isCapital = (letter) => letter !== undefined && /^[A-Z]$/.test(letter.character);
  const isSmall = (letter) => letter !== undefined && /^[a-z]$/.test(letter.character);
  const isDigit = (letter) => /^[0-9]$/.test(letter.character);

  function beginsWithin(letters, index) {
    const before = letters[index - 1];
    return (
      isCapital(letters[index]) &&
      (isSmall(before) || isDigit(before) || (isCapital(before) && isSmall(letters[index + 1])))
    );
  }

  // The words of an entry's text, with those that begin within a word: `line` in `OrderLine`.
  function entryWords(text) {
    const words = placedWords(text).map(({ word }) => word);
    for (const { ideographs, letters } of runsOf(text)) {
      if (ideographs) continue;
      for (let index = 1; index < letters.length; index += 1) {
        if (beginsWithin(letters, index)) words.push(folded(letters.slice(index)));
      }
    }
    return words;
  }

  // The words of a query. A lone last ideograph says nothing that its pair does not say.
  const queryWords = (text) => [
    ...new Set(
      runsOf(text).flatMap((run) => {
        if (!run.ideographs) return [folded(run.letters)];
        const words = pairsOf(run).map(({ word }) => word);
        return words.length > 1 ? words.slice(0, -1) : words;
      }),
    ),
  ];

  nav.searchWords = {
    placedWords,
    entryWords,
    queryWords,
    pageWords: (text) => placedWords(text).map(({ word }) => word),
  };
})((globalThis.repNavigator ??= {}));
