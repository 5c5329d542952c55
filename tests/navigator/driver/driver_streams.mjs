// Streams of calls for document sets of many kinds: [name, calls, options...].

// The same numbers in every run.
function randomNumbers(seed) {
  let state = seed;
  return (below) => {
    state = (Math.imul(state, 1664525) + 1013904223) >>> 0;
    return Math.floor((state / 2 ** 32) * below);
  };
}

const syllables = ['or', 'der', 'line', 'Item', 'X', '9', 'caf\u00e9', '\u00c6', 'stra\u00dfe', '_', '-', '\u00d7', 'Q'];
const oddities = ['<B>', '"it\'s"', '&amp;', '&#233;', '&#x6771;&#x4eac;', '&nbsp;', '&#0;', '<', '>', '\\', '</script>', '&#128512;'];

function word(random) {
  if (random(12) === 0) return oddities[random(oddities.length)];
  return Array.from({ length: 1 + random(5) }, () => syllables[random(syllables.length)]).join('');
}

const words = (random, count) => Array.from({ length: count }, () => word(random)).join(' ');

function randomReport(seed, pages) {
  const random = randomNumbers(seed);
  const calls = [['create', 'rep.htm'], ['setOption', 'title', `Report "${seed}" <&amp;> caf\u00e9`]];
  for (let page = 0; page < pages; page += 1) {
    if (page > 0) calls.push(['insertPageBreak']);
    if (random(5) === 0) calls.push(['pushDirectory', `sub${random(3)}`]);
    if (random(4) === 0) calls.push(['popDirectory']);
    calls.push(['insertTag', `page${page}`]);
    for (let part = random(4); part > 0; part -= 1) {
      calls.push(['setStyle', `Heading ${1 + random(6)}`], ['insertText', words(random, 1 + random(6))], ['insertEndl']);
      calls.push(['setStyle', 'Normal'], ['insertText', words(random, random(40))], ['insertEndl']);
      calls.push(['insertXref', 'see', `page${random(pages)}`]);
    }
  }
  calls.push(['close']);
  return calls;
}

// Texts of arbitrary characters, among them controls (no line ends), halves of pairs and pieces of markup. Windows-1252
// is Latin-1 but for U+0080 to U+009F.
function arbitraryText(random) {
  const pieces = ['<B', '>', '</', '<!--', '-->', '&#x2', '&#x104', '0', '2;', ';', '"', "'", '\\', '<SCRIPT', '</SCRIPT>', '&#x20BB7;', '&#x20BB8;'];
  const character = () => {
    const kind = random(12);
    if (kind === 0) return pieces[random(pieces.length)];
    if (kind === 1) return String.fromCharCode(0xa0 + random(0x60));
    if (kind === 2) return String.fromCharCode(1 + random(9));
    if (kind === 3) return String.fromCharCode(0xd7f0 + random(0x820));
    return String.fromCharCode(0x20 + random(0x60));
  };
  return Array.from({ length: random(60) }, character).join('');
}

function arbitrary(seed) {
  const random = randomNumbers(seed);
  const calls = [['create', 'rep.htm'], ['setOption', 'title', arbitraryText(random)]];
  for (let part = 0; part < 150; part += 1) {
    if (random(8) === 0) calls.push(['insertPageBreak']);
    const style = random(3) === 0 ? `Heading ${1 + random(9)}` : 'Normal';
    calls.push(['setStyle', style], ['insertText', arbitraryText(random)], ['insertEndl']);
  }
  calls.push(['close']);
  return calls;
}

const longWord = 'abcdefgh'.repeat(40);
const edges = [
  ['create', 'rep.htm'],
  ['setStyle', 'Heading 3'], ['insertText', 'XMLFileName get_value2Go aB'], ['insertEndl'],
  ['setStyle', 'Heading 1'], ['insertText', longWord], ['insertEndl'],
  ['setStyle', 'Normal'], ['insertText', `${longWord}\u00e9 ${longWord}&#233;x 12345678\u00e9 ${'a'.repeat(31)}\u00c6z`],
  ['insertText', '<SCRIPT>var hidden = "<";</SCRIPT><!-- hidden > too --><P TITLE="a>b">shown</P><STYLE>x</STYLE>'],
  ['insertText', '&eacute; & &# &#; &#x; &#xg; caf&#233;s caf&#xE9; &#1114112; 2&lt;3 <4 < a<b'],
  ['insertPageBreak'],
  ['insertText', 'A page without a heading'],
  ['insertPageBreak'],
  ['setStyle', 'Heading 1'], ['insertText', 'Last'], ['insertEndl'],
  ['insertText', '<P title="never closed> swallowed'],
  ['close'],
];

const manyEntries = [
  ['create', 'rep.htm'],
  ...Array.from({ length: 1500 }, (_, index) => [
    ['setStyle', `Heading ${1 + (index % 7)}`],
    ['insertText', `Entry${index} ${index % 2 ? 'Odd' : 'Even'}`],
    ['insertEndl'],
    ['setStyle', 'Normal'],
    ['insertText', `unique${index * 7919} shared`],
    ...(index % 100 === 99 ? [['insertPageBreak']] : []),
  ]).flat(),
  ['close'],
];

export const callsOf = () => [
  ['edges', edges, '--set', 'Html.PassThrough=true'],
  ['many-entries', manyEntries],
  ['empty', [['create', 'rep.htm'], ['close']]],
  ...[1, 2, 3, 4, 5, 6].map((seed) => [`random-${seed}`, randomReport(seed, 40 * seed), '--set', `Html.PassThrough=${seed % 2 === 0}`]),
  ...[11, 12, 13, 14].map((seed) => [`arbitrary-${seed}`, arbitrary(seed), '--set', `Html.PassThrough=${seed % 2 === 0}`]),
];
