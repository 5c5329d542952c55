// The manual in a real browser, read from disk and from a server.

import assert from 'node:assert/strict';
import { after, afterEach, before, beforeEach, describe, test } from 'node:test';
import { collectComplaints, launch, picture, ways } from './browser.mjs';
import { detailPages, pathBelow, treeEntries } from './manual_set.mjs';

// The browser scrolls by whole pixels, so the anchor may lie a fraction above the window.
function isInSight(name) {
  const { top } = document.querySelector(`a[name="${name}"]`).getBoundingClientRect();
  return top > -1 && top < window.innerHeight;
}

for (const [way, open] of Object.entries(ways)) {
  describe(`the manual, read from ${way}`, () => {
    let set, browser, page, complaints;

    before(async () => {
      set = await open();
      browser = await launch();
    });
    after(async () => {
      await browser?.close();
      set?.close();
    });
    beforeEach(async () => {
      page = await browser.newPage({ viewport: { width: 1280, height: 800 } });
      complaints = collectComplaints(page);
    });
    afterEach(async () => {
      await page.close();
      assert.deepEqual(complaints, []);
    });

    const goto = (path) => page.goto(`${set.address}/${path}`);
    const openFrames = async () => {
      await goto('manual_sfrm.htm');
      return { contents: page.frame('contents'), main: page.frame('main') };
    };
    const at = (frame) => pathBelow(set.address, frame.url());
    const heading = (frame) => frame.locator('h1, h2').first().innerText();

    test('the start page shows its text to a browser without Java, and its links work', async () => {
      await goto('manual.htm');
      assert.match(await page.innerText('body'), /For the best appearance.*Other options are available/s);
      await picture(page, `start-${way}`);
      await page.click('text=static table of contents');
      await page.waitForURL('**/manual_sfrm.htm');
      assert.deepEqual(page.frames().slice(1).map((frame) => frame.name()), ['contents', 'main']);
      await page.goBack();
      await page.click('text=table of contents applet');
      await page.waitForURL('**/manual_ffrm.htm');
      const contents = page.frame('contents');
      assert.match(await contents.innerText('body'), /You must enable Java/);
      await contents.click('text=static table of contents');
      await contents.waitForURL('**/manual_scnt.htm');
    });

    test('the static frame set shows the contents at the left and the first page at the right', async () => {
      const { contents, main } = await openFrames();
      assert.equal(await contents.innerText('h2'), 'Table of Contents');
      assert.equal(await heading(main), 'The IDocument interface');
      const [left, right] = await Promise.all(
        [contents, main].map(async (frame) => (await frame.frameElement()).boundingBox()),
      );
      assert.ok(left.x + left.width <= right.x && left.width < right.width);
      await picture(page, `frames-${way}`);
    });

    test('every contents entry shows its page at its anchor', async () => {
      const { contents, main } = await openFrames();
      const links = contents.locator('a[href]');
      const entries = treeEntries();
      assert.equal(await links.count(), entries.length);
      for (const [index, { text, href }] of entries.entries()) {
        await links.nth(index).click();
        await main.waitForURL(`${set.address}/${href}`);
        const anchor = main.locator(`a[name="${href.split('#')[1]}"]`);
        assert.equal(await anchor.locator('..').innerText(), text);
        await main.waitForFunction(isInSight, href.split('#')[1]);
      }
    });

    test('the arrows walk the whole set, from front to back and back again', async () => {
      const pages = detailPages();
      const { main } = await openFrames();
      for (const path of pages.slice(1)) {
        await main.click('a:has(> img[src$="forwardON.gif"])');
        await main.waitForURL(`${set.address}/${path}`);
      }
      assert.equal(await main.locator('img[src$="forwardOFF.gif"]').count(), 1);
      for (const path of pages.slice(0, -1).reverse()) {
        await main.click('a:has(> img[src$="backON.gif"])');
        await main.waitForURL(`${set.address}/${path}`);
      }
      assert.equal(await main.locator('img[src$="backOFF.gif"]').count(), 1);
    });

    test('cross-references jump across directories, forward and backward', async () => {
      await goto('manual_dtl.htm');
      await page.getByRole('link', { name: 'insertXref', exact: true }).click();
      assert.equal(await page.innerText('h2'), 'insertXref');
      assert.match(at(page), /^links\/.*#GUID-operation-insertXref$/);
      await page.locator('li').getByRole('link', { name: 'insertText', exact: true }).click();
      assert.equal(await page.innerText('h2'), 'insertText');
      assert.match(at(page), /^text\//);
    });

    test('a click on a region of the diagram goes to the page of its element', async () => {
      const page4 = detailPages()[3];
      await goto(page4);
      const regions = await page.$$eval('area', (areas) =>
        areas.map((area) => ({ href: area.href, corners: area.coords.split(',').map(Number) })),
      );
      assert.equal(regions.length, 6);
      for (const { href, corners } of regions) {
        await goto(page4);
        const position = { x: (corners[0] + corners[2]) / 2, y: (corners[1] + corners[5]) / 2 };
        await page.locator('img[usemap]').click({ position });
        await page.waitForURL(href);
      }
      await goto(page4);
      await page.locator('img[usemap]').click({ position: { x: 20, y: 20 } });
      assert.equal(at(page), page4);
    });

    test('the linked document and the included text are there', async () => {
      await goto(detailPages()[2]);
      assert.match(await page.innerText('body'), /trace, overrideRegistry\ncreate\n\s+setOption/);
      await page.click('text=first-report.txt');
      await page.waitForURL('**/docs/first-report.txt');
      assert.match(await page.innerText('body'), /\["create","report\.htm"\]/);
    });

    if (way !== 'disk') return;
    test('every page shows its pictures and fits windows of 1280 and 800 pixels', async () => {
      for (const path of detailPages()) {
        await goto(path);
        const missing = await page.$$eval('img', (pictures) =>
          pictures.filter((one) => one.naturalWidth === 0).map((one) => one.src),
        );
        assert.deepEqual(missing, []);
        for (const width of [1280, 800]) {
          await page.setViewportSize({ width, height: 800 });
          const overhang = await page.evaluate(
            () => document.documentElement.scrollWidth - document.documentElement.clientWidth,
          );
          assert.equal(overhang, 0, `${path} is wider than ${width} pixels`);
          await picture(page, `${path.replaceAll('/', '-').replace('.htm', '')}-${width}`);
        }
      }
    });
  });
}
