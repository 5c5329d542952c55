// A set in UTF-8 in a real browser, read from disk and from a server: its texts are shown as they
// are, and its links open files whose names a browser could misread.

import assert from 'node:assert/strict';
import { after, afterEach, before, beforeEach, describe, test } from 'node:test';
import { collectComplaints, launch, picture, setDirectory, ways } from './browser.mjs';
import { directory, headings, inserted, linked, makeSet, name, title } from './utf8_set.mjs';

const inDirectory = directory.replaceAll('\\', '/');
const pages = headings.map((heading, number) => {
  const count = number === 0 ? '' : number + 1;
  return `${number % 2 === 1 ? `${inDirectory}/` : ''}${name}_dtl${count}.htm`;
});
const inAddress = (path) => path.split('/').map(encodeURIComponent).join('/');
const shown = (text) => text.replace(/ {2}/g, '\u00a0 ');

// With frames for browsers without the navigator's scripts, and with the navigator.
const kinds = {
  frames: ['--set', 'Html.Navig=1', '--set', 'Html.SupportOld=true'],
  navigator: ['--set', 'Html.Navig=1', '--set', 'Html.ScriptNavigator=true'],
};
for (const [kind, options] of Object.entries(kinds)) makeSet(`${setDirectory}/${kind}`, ...options);

for (const [way, openSet] of Object.entries(ways)) {
  describe(`a set in UTF-8, read from ${way}`, () => {
    let browser, page, complaints;
    const sets = {};

    before(async () => {
      for (const kind of Object.keys(kinds)) sets[kind] = await openSet(`${setDirectory}/${kind}`);
      browser = await launch();
    });
    after(async () => {
      await browser?.close();
      for (const set of Object.values(sets)) set.close();
    });
    beforeEach(async () => {
      page = await browser.newPage({ viewport: { width: 1280, height: 800 } });
      complaints = collectComplaints(page);
    });
    afterEach(async () => {
      await page.close();
      assert.deepEqual(complaints, []);
    });

    const goto = (path, kind = 'frames') => page.goto(`${sets[kind].address}/${inAddress(path)}`);
    // Waits until the frame shows an anchor of the page.
    const opens = (frame, path) =>
      frame.waitForURL((url) => url.hash !== '' && decodeURIComponent(url.pathname).endsWith(`/${path}`));
    const heading = async (frame) => (await frame.locator('h1').evaluate((one) => one.textContent)).trim();

    test('pages show their texts as they are', async () => {
      for (const [number, text] of headings.entries()) {
        await goto(pages[number]);
        assert.equal(await page.evaluate(() => document.characterSet), 'UTF-8');
        assert.equal(await page.title(), title);
        assert.equal(await heading(page), text);
        const body = await page.evaluate(() => document.body.textContent);
        assert.ok(body.includes(shown(`${text}  ${text}`)), body);
        assert.ok(body.trimEnd().endsWith(title), body);
      }
      await picture(page, `utf8-${way}`);
      const body = await page.innerText('body');
      assert.ok(body.includes(inserted.utf8) && body.includes(inserted.codePage), body);
      assert.ok(!body.includes('\ufeff'));
    });

    test('links lead from directory to directory', async () => {
      for (const from of pages.keys()) {
        for (const to of [(from + 1) % pages.length, (from + 2) % pages.length]) {
          await goto(pages[from]);
          await page.getByRole('link', { name: `→ ${headings[to]}`, exact: true }).click();
          await opens(page, pages[to]);
          assert.equal(await heading(page), headings[to]);
        }
      }
    });

    test('the picture is shown, and leads to its page', async () => {
      await goto(pages.at(-1));
      const shownPicture = page.locator('a > img');
      assert.ok(await shownPicture.evaluate((one) => one.naturalWidth) > 0);
      await shownPicture.click();
      await opens(page, pages[0]);
    });

    test('the linked file opens', async () => {
      await goto(pages.at(-1));
      await page.getByRole('link', { name: 'メモ', exact: true }).click();
      await page.waitForURL((url) => decodeURIComponent(url.pathname).endsWith(`/docs/${linked}`));
      assert.equal(await page.innerText('body'), 'linked');
    });

    test('the frames find their pages, and the contents lead to all of them', async () => {
      await goto(`${name}.htm`);
      await page.click('text=static table of contents');
      await page.waitForURL((url) => url.pathname.endsWith('_sfrm.htm'));
      const [contents, main] = [page.frame('contents'), page.frame('main')];
      const links = contents.locator('a[href]');
      for (const [number, text] of headings.entries()) {
        const link = links.filter({ hasText: text });
        assert.equal(await link.evaluate((one) => one.textContent), text);
        await link.click();
        await opens(main, pages[number]);
      }
      await picture(page, `utf8-frames-${way}`);
    });

    test('the navigator lists, finds and opens the pages', async () => {
      await goto(pages[0], 'navigator');
      const row = (text) => page.locator('[role=treeitem]', { hasText: text });
      for (const [number, text] of headings.entries()) {
        await row(text).click();
        await opens(page, pages[number]);
      }
      await picture(page, `utf8-navigator-${way}`);
      await page.fill('input[type=search]', 'цена');
      await page.waitForFunction(() => /result/i.test(document.querySelector('[role=status]').textContent));
      await page.locator('[role=option]').first().click();
      await page.waitForURL((url) => decodeURIComponent(url.pathname).endsWith(`/${pages[1]}`));
      assert.equal(await heading(page), 'Цена');
    });
  });
}
