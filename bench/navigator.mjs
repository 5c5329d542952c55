// What the navigator costs a reader of 100,000 entries in 10,000 pages, in Chromium.
//   node bench/navigator.mjs
// The tree's script is that of a page less that of an empty page in the same run. The machine may be
// busy with other things: of several rounds the median counts, for a search the best.

import { LargeReading } from '../tests/navigator/browser/large_reading.mjs';

const rounds = 7;
const reading = new LargeReading();

const median = (numbers) => [...numbers].sort((a, b) => a - b)[Math.floor(numbers.length / 2)];
const report = (name, value, unit, goal) =>
  console.log(`${name.padEnd(44)} ${value.toFixed(unit === 'ms' ? 1 : 0).padStart(9)} ${unit.padEnd(5)} goal ${goal}`);

async function scriptOf(load) {
  const times = [];
  for (let round = 0; round < rounds; round += 1) {
    await reading.page.goto('about:blank');
    const start = (await reading.page.metrics()).ScriptDuration;
    await load();
    times.push(((await reading.page.metrics()).ScriptDuration - start) * 1000);
  }
  return median(times);
}

async function tree() {
  const empty = await scriptOf(() => reading.page.goto(reading.address('empty.htm')));
  const full = await scriptOf(() => reading.open('rep_dtl5557.htm#toc55565'));
  report('tree: script', full - empty, 'ms', 50);
  report('tree: from the start to the tree, on the clock', await reading.between('start', 'tree'), 'ms', '-');
  report('tree: read', reading.bytesRead(), 'bytes', 200 * 1024);
  report('tree: elements', await reading.page.$eval('[role=tree]', (one) => one.querySelectorAll('*').length), '', 2000);
}

async function search(query) {
  const times = [];
  for (let round = 0; round < rounds; round += 1) {
    await reading.search(query);
    times.push(await reading.between('query', 'result'));
  }
  report(`"${query}": first result after the last key`, Math.min(...times), 'ms', 150);
  report(`"${query}": read`, reading.bytesRead(), 'bytes', 500 * 1024);
}

await reading.start();
try {
  await tree();
  for (const query of reading.queries) await search(query);
} finally {
  await reading.end();
}
