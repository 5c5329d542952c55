// Writes lists of ascending numbers as the search index has them.

import { nav } from '../browser_side.mjs';

const { alphabet } = nav.numberList;

function gapText(gap) {
  let text = alphabet[gap % 32];
  for (let rest = Math.floor(gap / 32); rest > 0; rest = Math.floor(rest / 32)) {
    text = alphabet[32 + (rest % 32)] + text;
  }
  return text;
}

function gaps(numbers) {
  let last = -1;
  let text = '';
  for (const number of numbers) {
    text += gapText(number - last - 1);
    last = number;
  }
  return text;
}

function bits(numbers) {
  const values = new Uint8Array(Math.floor(numbers.at(-1) / 6) + 1);
  for (const number of numbers) values[Math.floor(number / 6)] |= 1 << number % 6;
  return `.${Array.from(values, (value) => alphabet[value]).join('')}`;
}

export function numberListText(numbers) {
  if (numbers.length === 0) return '';
  const asGaps = gaps(numbers);
  if (asGaps.length <= Math.floor(numbers.at(-1) / 6) + 2) return asGaps;
  return bits(numbers);
}
