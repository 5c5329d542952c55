// The navigator in browsers that are set up in special ways: dark, or without scripts.

import assert from 'node:assert/strict';
import { mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, test } from 'node:test';
import { writeFixture } from './fixture_set.mjs';
import { browsers, launch, open, violations, ways } from './reading.mjs';

const directory = mkdtempSync(join(tmpdir(), 'navigator-set-'));
writeFixture(directory);
after(() => rmSync(directory, { recursive: true }));

for (const browserName of browsers) {
  test(`${browserName} in a dark system shows dark pages`, async () => {
    const browser = await launch(browserName, 'dark');
    const page = await browser.newPage();
    if (browserName === 'chrome') {
      await page.emulateMediaFeatures([{ name: 'prefers-color-scheme', value: 'dark' }]);
    }
    await open(page, `${(await ways.disk(directory)).address}/rep_dtl.htm`);
    assert.equal(await page.evaluate(() => getComputedStyle(document.body).backgroundColor), 'rgb(20, 24, 30)');
    assert.deepEqual(await violations(page), []);
    await browser.close();
  });
}

for (const browserName of browsers) {
  test(`${browserName} without scripts shows pages as they always were`, async () => {
    const browser = await launch(browserName, 'light', { 'javascript.enabled': false });
    const page = await browser.newPage();
    if (browserName === 'chrome') await page.setJavaScriptEnabled(false);
    const { address } = await ways.disk(directory);
    await page.goto(`${address}/rep.htm`, { waitUntil: 'load' });
    const leftOf = (selector) => page.$eval(selector, (one) => one.getBoundingClientRect().left);
    assert.ok(await leftOf('.rn-start ul a') > await leftOf('.rn-start > li > a') + 10);
    assert.equal(await page.$('.rn-bar'), null);
    const link = await page.$eval('li:nth-child(3) a', (one) => one.href);
    assert.equal(link, `${address}/parts/rep_dtl3.htm#toc5`);
    await page.goto(link, { waitUntil: 'load' });
    assert.match(await page.$eval('body', (body) => body.innerText), /Parts/);
    await browser.close();
  });
}
