// Takes the pictures of the navigator for the documentation, in Chromium.
//   node scripts/take_pictures.mjs SET_DIRECTORY PAGE PICTURE_DIRECTORY
// SET_DIRECTORY holds the reference that examples/object_model makes, PAGE is one of its pages.

import { join } from 'node:path';
import { pathToFileURL } from 'node:url';
import { launch, open } from '../tests/navigator/browser/reading.mjs';

const [setDirectory, pageName, pictureDirectory] = process.argv.slice(2);
const address = pathToFileURL(join(setDirectory, pageName)).href;

async function picture(browser, name, [width, height], prepare = async () => {}, scheme = 'light') {
  const page = await browser.newPage();
  await page.setViewport({ width, height });
  await page.emulateMediaFeatures([{ name: 'prefers-color-scheme', value: scheme }]);
  await open(page, address);
  await prepare(page);
  await page.screenshot({ path: join(pictureDirectory, `${name}.png`) });
  await page.close();
}

async function search(page) {
  await page.keyboard.press('/');
  await page.keyboard.type('read async');
  await page.waitForSelector('[role=option]');
  await page.waitForFunction(() => /result/.test(document.querySelector('[role=status]').textContent));
}

const openDrawer = async (page) => {
  await page.click('button[aria-label=Contents]');
  await page.waitForSelector('[role=tree]', { visible: true });
  // The drawer slides in.
  await page.evaluate(() => Promise.all(document.getAnimations().map((one) => one.finished)));
};

const desktop = [1000, 720];
const phone = [500, 720];
const browser = await launch('chrome');
try {
  await picture(browser, 'object-model', [1280, 900]);
  await picture(browser, 'tree', desktop);
  await picture(browser, 'search', desktop, search);
  await picture(browser, 'dark', desktop, undefined, 'dark');
  await picture(browser, 'phone', phone);
  await picture(browser, 'drawer', phone, openDrawer);
} finally {
  await browser.close();
}
