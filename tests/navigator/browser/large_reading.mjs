// A large set open in Chromium, with a count of what the navigator reads.

import { mkdtempSync, rmSync, statSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { pathToFileURL } from 'node:url';
import { writeLargeSet } from './large_set.mjs';
import { launch, open } from './reading.mjs';

const data = /\/(set|tree|page|anchor|index|word)\d*\.js$/;

export class LargeReading {
  async start() {
    this.directory = mkdtempSync(join(tmpdir(), 'navigator-large-'));
    const { words } = writeLargeSet(this.directory, [5001, 5557]);
    // Two common words; prefixes of many; one rare and one common prefix; nearly all there is.
    this.queries = [
      `${words[0]} ${words[1]}`,
      'ba er',
      `${words[30000].slice(0, 4)} ${words[20].slice(0, 3)}`,
      'b c',
    ];
    this.browser = await launch('chrome');
    this.page = await this.browser.newPage();
    await this.page.setViewport({ width: 1280, height: 800 });
    this.read = [];
    this.page.on('request', (request) => {
      const file = new URL(request.url()).pathname;
      if (data.test(file)) this.read.push(file);
    });
  }

  async end() {
    await this.browser?.close();
    rmSync(this.directory, { recursive: true, force: true });
  }

  address(file) {
    return `${pathToFileURL(this.directory).href}/${file}`;
  }

  bytesRead() {
    return this.read.reduce((sum, file) => sum + statSync(file).size, 0);
  }

  async open(file) {
    this.read = [];
    await open(this.page, this.address(file));
  }

  // Types a query on a page that has searched nothing yet, and waits for the number of its results.
  // What the search read is counted from the focus on; the key that counts is the last one.
  async search(text) {
    const { page } = this;
    await this.open('rep_dtl5001.htm');
    this.read = [];
    await page.click('input[type=search]');
    await page.waitForNetworkIdle({ idleTime: 100 });
    await page.evaluate((value) => (document.querySelector('input[type=search]').value = value), text.slice(0, -1));
    await page.keyboard.type(text.at(-1));
    await page.waitForFunction(() => /result/i.test(document.querySelector('[role=status]').textContent));
    await page.waitForNetworkIdle({ idleTime: 100 });
  }

  // Milliseconds between two of the navigator's performance marks.
  between(...names) {
    return this.page.evaluate((marks) => {
      const [start, end] = marks.map((name) => performance.getEntriesByName(name)[0].startTime);
      return end - start;
    }, names.map((name) => `rep_nav:${name}`));
  }
}
