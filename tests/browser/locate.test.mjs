// The locate buttons, in a browser that seems to have Java: the start page builds its frames, and
// the contents applet is replaced by a stand-in that records what it is asked to select. A variable
// "name" of a page leaves the frame's name alone, as the buttons, which look for the frame
// "contents", need it; in the browser itself the contents page renames its frame.

import assert from 'node:assert/strict';
import { after, before, describe, test } from 'node:test';
import { collectComplaints, launch, picture, ways } from './browser.mjs';
import { detailPages, treeEntries } from './manual_set.mjs';

function standIn() {
  navigator.__proto__.javaEnabled = () => true;
  Object.defineProperty(window, 'name', { value: window.name, writable: true });
  window.selected = [];
  const applet = {
    selectItemByUrl: (url) => window.selected.push(url),
    viewResized: () => {},
  };
  Object.defineProperty(Document.prototype, 'applets', { get: () => [applet] });
}

// From disk every file is a stranger to the others, unless the browser is told otherwise.
const furtherFlags = { disk: ['--allow-file-access-from-files'], server: [] };

for (const [way, open] of Object.entries(ways)) {
  describe(`the locate buttons, read from ${way}`, () => {
    let set, browser, page, complaints;

    before(async () => {
      set = await open();
      browser = await launch(...furtherFlags[way]);
      page = await browser.newPage({ viewport: { width: 1280, height: 800 } });
      await page.addInitScript(standIn);
      complaints = collectComplaints(page);
      await page.goto(`${set.address}/manual.htm`);
    });
    after(async () => {
      await browser?.close();
      set?.close();
    });

    const selected = () => page.frame('contents').evaluate(() => window.selected);

    test('the start page builds its frames', async () => {
      assert.deepEqual(page.frames().slice(1).map((frame) => frame.name()), ['contents', 'main']);
      assert.equal(page.frame('contents').url(), `${set.address}/manual_cnt.htm`);
      assert.equal(page.frame('main').url(), `${set.address}/manual_dtl.htm`);
    });

    test('a button selects the entry that stands before it', async () => {
      const entries = treeEntries();
      const main = page.frame('main');
      let buttons = 0;
      for (const path of detailPages()) {
        await main.goto(`${set.address}/${path}`);
        const button = main.locator('input.locatebtn');
        if ((await button.count()) === 0) continue;
        await button.click();
        const expected = entries.find(({ href }) => href.startsWith(`${path}#`)).href;
        assert.equal((await selected()).at(-1), expected);
        buttons += 1;
      }
      assert.equal(buttons, 42);
    });

    test('the address may carry a fragment of its own', async () => {
      const { href } = treeEntries().find(({ text }) => text === 'insertText');
      const main = page.frame('main');
      await main.goto(`${set.address}/${href.split('#')[0]}#GUID-operation-insertText`);
      await main.locator('input.locatebtn').click();
      assert.equal((await selected()).at(-1), href);
    });

    test('the picture of a button changes under the mouse', async () => {
      const main = page.frame('main');
      const button = main.locator('input.locatebtn');
      const shown = () => button.evaluate((input) => input.src.split('/').pop());
      await page.mouse.move(1, 1);
      assert.equal(await shown(), 'locate_in_brw.JPG');
      await button.hover();
      assert.equal(await shown(), 'locate_in_brw_button_mouse_over.JPG');
      await picture(page, `locate-${way}`);
      await page.mouse.move(1, 1);
      assert.equal(await shown(), 'locate_in_brw.JPG');
    });

    test('the browser has nothing to complain about', () => {
      assert.deepEqual(complaints, []);
    });
  });
}
