// The navigator as a whole, in real browsers: each row of what it promises a reader.

import assert from 'node:assert/strict';
import { mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, afterEach, before, beforeEach, describe, test } from 'node:test';
import { writeFixture } from './fixture_set.mjs';
import { browsers, collectComplaints, follow, launch, open, picture, ready, violations, ways } from './reading.mjs';

const directory = mkdtempSync(join(tmpdir(), 'navigator-set-'));
writeFixture(directory);
after(() => rmSync(directory, { recursive: true }));

const wide = { width: 1280, height: 800 };
const narrow = { width: 390, height: 844 };

const current = (page) => page.$eval('[role=treeitem][aria-current=page]', (row) => ({
  text: row.textContent,
  level: row.getAttribute('aria-level'),
  inView: (() => {
    const { top, bottom } = row.getBoundingClientRect();
    return top >= 52 && bottom <= innerHeight;
  })(),
}));
const textsOf = (page, selector) => page.$$eval(selector, (all) => all.map((one) => one.textContent));
const focused = (page) => page.evaluate(() => ({
  role: document.activeElement.getAttribute('role') ?? document.activeElement.type ?? document.activeElement.tagName,
  text: document.activeElement.textContent,
}));
const fits = (page) => page.evaluate(() => document.scrollingElement.scrollWidth <= document.documentElement.clientWidth);
const press = async (page, ...keys) => {
  for (const key of keys) await page.keyboard.press(key);
};
const search = async (page, text) => {
  await page.type('input[type=search]', text);
  await page.waitForFunction(() => /result/i.test(document.querySelector('[role=status]').textContent));
};

for (const browserName of browsers) {
  for (const [way, openSet] of Object.entries(ways)) {
    describe(`the navigator in ${browserName}, from ${way}`, () => {
      let set, browser, page, complaints;
      before(async () => {
        set = await openSet(directory);
        browser = await launch(browserName);
      });
      after(async () => {
        await browser?.close();
        set?.close();
      });
      beforeEach(async () => {
        page = await browser.newPage();
        await page.setViewport(wide);
        complaints = collectComplaints(page);
      });
      afterEach(async () => {
        assert.equal(await page.evaluate(() => window.hurt), undefined);
        await page.close();
        assert.deepEqual(complaints, []);
      });
      const to = (path) => open(page, `${set.address}/${path}`);
      const at = () => decodeURIComponent(page.url().slice(set.address.length + 1));

      test('everything is found by its role and name', async () => {
        await to('parts/rep_dtl3.htm');
        await search(page, 'engine');
        for (const [role, name] of [
          ['navigation', 'Contents'], ['tree', 'Contents'], ['searchbox', 'Search'],
          ['listbox', 'Search results'], ['navigation', 'Breadcrumb'], ['button', 'Contents'],
          ['button', 'Theme'], ['link', 'Skip to content'], ['link', 'Previous: Page 2'],
          ['link', 'Next: Wheel'], ['treeitem', 'Engine'], ['option', 'Engine Parts'],
        ]) {
          const found = await page.$$(`::-p-aria([name="${name}"][role="${role}"])`);
          assert.equal(found.length, 1, `${role} "${name}"`);
        }
        assert.equal((await page.$$('[role=search]')).length, 1);
        assert.equal((await textsOf(page, '[role=status]'))[0], '1 result');
      });

      test('the tree marks, opens and shows the current entry, also after a jump', async () => {
        await to('parts/rep_dtl3.htm');
        assert.deepEqual(await current(page), { text: 'Parts', level: '1', inView: true });
        assert.equal(await page.$eval('[aria-current=page]', (row) => row.getAttribute('aria-expanded')), 'true');
        await page.evaluate(() => (location.hash = '#GUID-toc8'));
        await page.waitForFunction(() => /Valve/.test(document.querySelector('[aria-current=page]').textContent));
        assert.deepEqual(await current(page), { text: 'Valve', level: '3', inView: true });
        assert.deepEqual(await textsOf(page, '[aria-label=Breadcrumb] li'), ['Fixture', 'Parts', 'Engine', 'Valve']);
        await page.evaluate(() => history.back());
        await page.waitForFunction(() => document.querySelector('[aria-current=page]').textContent === 'Parts');
      });

      test('addresses are real: reload and back', async () => {
        await to('rep_dtl40.htm');
        assert.deepEqual(await current(page), { text: 'Chapter 40', level: '1', inView: true });
        await page.reload();
        await ready(page);
        assert.equal((await current(page)).text, 'Chapter 40');
        await follow(page, () => page.click('a[rel=next]'));
        assert.equal(at(), 'rep_dtl41.htm');
        assert.match(await page.title(), /^Chapter 41 /);
        await page.evaluate(() => history.back());
        await page.waitForFunction(() => /Chapter 40/.test(document.title));
        assert.match(await page.evaluate(() => location.pathname), /\/rep_dtl40\.htm$/);
        assert.equal((await current(page)).text, 'Chapter 40');
      });

      test('previous and next lead across directories, from the start page on', async () => {
        await to('rep.htm');
        const seen = [];
        for (let step = 0; step < 5; step += 1) {
          await follow(page, () => page.click('a[rel=next]'));
          seen.push(at());
        }
        assert.deepEqual(seen, ['rep_dtl.htm', 'rep_dtl2.htm', 'parts/rep_dtl3.htm', 'parts/inner/rep_dtl4.htm', 'rep_dtl5.htm']);
        await follow(page, () => page.click('a[rel=prev]'));
        assert.equal(at(), 'parts/inner/rep_dtl4.htm');
      });

      test('a search finds entries and text by prefix; the page that opens shows the hits', async () => {
        await to('rep_dtl.htm');
        await search(page, 'unus');
        assert.deepEqual(await textsOf(page, '[role=option] .rn-title'), ['Page 2']);
        await follow(page, () => press(page, 'Enter'));
        assert.equal(at(), 'rep_dtl2.htm?find=unus');
        assert.deepEqual(await textsOf(page, 'mark'), ['Unusualword']);
        await page.focus('#rn-main');
        await press(page, 'Escape');
        assert.deepEqual(await textsOf(page, 'mark'), []);
      });

      test('several words, words within words, accents', async () => {
        await to('rep_dtl.htm');
        await search(page, 'lin');
        assert.ok((await textsOf(page, '[role=option]')).some((text) => text.includes('OrderLineIntroduction')));
        await page.$eval('input[type=search]', (box) => (box.value = ''));
        await search(page, 'CAFE section of 7');
        assert.equal((await textsOf(page, '[role=option] .rn-title'))[0], 'Chapter 7');
      });

      test('names that look like markup are texts', async () => {
        await to('rep_dtl5.htm');
        const rows = await textsOf(page, '[role=treeitem][aria-level="2"]');
        assert.ok(rows.includes('<img src=x onerror=window.hurt=1>'));
        assert.ok(rows.includes('</script><script>window.hurt=1</script>'));
        assert.ok(rows.includes('&lt;b&gt; decoded once'));
        assert.ok(rows.includes(`${'x'.repeat(199)}\u2026`));
        await search(page, 'onerror');
        assert.ok((await textsOf(page, '[role=option] .rn-title')).includes('<img src=x onerror=window.hurt=1>'));
      });

      test('the keyboard alone: skip link, tree, search, results', async () => {
        await to('rep_dtl.htm');
        await press(page, 'Tab');
        assert.equal((await focused(page)).text, 'Skip to content');
        await press(page, 'Tab', 'Tab', 'Tab', 'Tab', 'Tab');
        assert.deepEqual(await focused(page), { role: 'treeitem', text: 'Introduction' });
        await press(page, 'ArrowRight');
        assert.equal((await focused(page)).text, 'Purpose');
        await press(page, 'ArrowLeft', 'ArrowLeft', 'ArrowDown', 'ArrowDown', 'ArrowRight', 'ArrowRight');
        assert.equal((await focused(page)).text, 'Engine');
        await press(page, 'End');
        assert.equal((await focused(page)).text, 'Chapter 60');
        await press(page, 'Home', 'p');
        assert.equal((await focused(page)).text, 'Page 2');
        await press(page, 'Tab');
        assert.notEqual((await focused(page)).role, 'treeitem');
        await press(page, '/');
        assert.equal((await focused(page)).role, 'search');
        await search(page, 'chapter 1');
        await press(page, 'ArrowDown');
        assert.deepEqual((await focused(page)).role, 'option');
        await press(page, 'ArrowDown', 'ArrowUp', 'ArrowUp');
        assert.equal((await focused(page)).role, 'search');
        await press(page, 'ArrowDown', 'ArrowDown');
        const { text } = await focused(page);
        await follow(page, () => press(page, 'Enter'));
        assert.ok(text.startsWith((await current(page)).text));
      });

      test('the skip link leads to the content and leaves the address alone', async () => {
        await to('rep_dtl.htm#toc2');
        await press(page, 'Tab');
        await page.focus('.rn-skip');
        await press(page, 'Enter');
        assert.equal(await page.evaluate(() => document.activeElement.id), 'rn-main');
        assert.equal(at(), 'rep_dtl.htm#toc2');
      });

      test('entries are links; their twisties open without leaving the page', async () => {
        await to('rep.htm');
        await page.click('[role=treeitem]:nth-child(3) .rn-twisty');
        await page.waitForFunction(() => /Engine/.test(document.querySelector('[role=tree]').textContent));
        assert.equal(at(), 'rep.htm');
        await follow(page, () => page.click('[role=treeitem]:nth-child(4)'));
        assert.equal(at(), 'parts/rep_dtl3.htm#toc6');
        assert.equal(await page.$$eval('[role=tree] [tabindex="0"]', (all) => all.length), 1);
      });

      test('a click with Ctrl opens a new tab', async () => {
        await to('rep_dtl.htm');
        const pages = (await browser.pages()).length;
        await page.keyboard.down('Control');
        await page.click('[aria-level="2"]');
        await page.keyboard.up('Control');
        let opened = [];
        for (let wait = 0; wait < 50 && opened.length <= pages; wait += 1) {
          opened = await browser.pages();
          await new Promise((passed) => setTimeout(passed, 100));
        }
        assert.equal(opened.length, pages + 1);
        assert.equal(at(), 'rep_dtl.htm');
        for (const other of opened) if (other !== page && opened.indexOf(other) >= pages) await other.close();
      });

      test('the tree stays as it is scrolled from page to page', async () => {
        await to('rep_dtl40.htm');
        const scrolled = await page.$eval('#rn-contents', (panel) => (panel.scrollTop -= 120));
        await follow(page, () => page.click('a[rel=next]'));
        const offset = await page.$eval('#rn-contents', (panel) => panel.scrollTop);
        assert.ok(Math.abs(offset - scrolled) <= 31, `${offset} instead of ${scrolled}`);
        assert.equal((await current(page)).inView, true);
      });

      test('a locate button opens the tree at its place', async () => {
        await to('parts/rep_dtl3.htm');
        await page.click('#rn-contents [aria-level="1"][aria-expanded=true] .rn-twisty');
        await page.$$eval('input.locatebtn', (buttons) => buttons[2].click());
        await page.waitForFunction(() => document.querySelector('[aria-current=page]')?.textContent === 'Piston');
        assert.deepEqual(await focused(page), { role: 'treeitem', text: 'Piston' });
      });

      test('on a phone a locate button opens the drawer', async () => {
        await page.setViewport(narrow);
        await to('parts/rep_dtl3.htm');
        await page.click('input.locatebtn:nth-of-type(2)');
        await page.waitForFunction(() => document.activeElement.getAttribute('role') === 'treeitem');
        assert.equal((await current(page)).text, (await focused(page)).text);
        assert.equal(await page.$eval('#rn-contents', (panel) => panel.inert), false);
      });

      test('the window.contents of old pages answers', async () => {
        await to('parts/rep_dtl3.htm');
        await page.evaluate(() => {
          const button = document.querySelectorAll('input.locatebtn')[3];
          window.top.contents.Locate(location.href, button, document);
        });
        await page.waitForFunction(() => document.querySelector('[aria-current=page]')?.textContent === 'Valve');
      });

      test('the theme is switched and remembered', async () => {
        await to('rep_dtl.htm');
        const ground = () => page.evaluate(() => getComputedStyle(document.body).backgroundColor);
        assert.equal(await ground(), 'rgb(255, 255, 255)');
        await page.click('button[aria-label=Theme]');
        assert.equal(await ground(), 'rgb(20, 24, 30)');
        await to('rep_dtl2.htm');
        assert.equal(await ground(), 'rgb(20, 24, 30)');
        assert.equal(await page.$eval('button[aria-label=Theme]', (button) => button.getAttribute('aria-pressed')), 'true');
        await page.click('button[aria-label=Theme]');
        assert.equal(await ground(), 'rgb(255, 255, 255)');
      });

      test('a page with a foreign style sheet keeps its own colours', async () => {
        await to('foreign.htm');
        await page.click('button[aria-label=Theme]');
        const grounds = await page.evaluate(() =>
          ['body', '.rn-bar'].map((one) => getComputedStyle(document.querySelector(one)).backgroundColor));
        assert.deepEqual(grounds, ['rgb(255, 255, 255)', 'rgb(25, 30, 38)']);
        await page.click('button[aria-label=Theme]');
      });

      test('a browser that denies storage loses the memory, not the navigator', async () => {
        await page.evaluateOnNewDocument(() => {
          for (const name of ['localStorage', 'sessionStorage']) {
            Object.defineProperty(window, name, { get: () => { throw new Error('denied'); } });
          }
        });
        await to('parts/rep_dtl3.htm');
        await page.click('button[aria-label=Theme]');
        await follow(page, () => page.click('a[rel=next]'));
        assert.equal((await current(page)).text, 'Wheel');
      });

      test('in the frame set of the static contents the navigator keeps quiet', async () => {
        await page.goto(`${set.address}/rep_sfrm.htm`, { waitUntil: 'load' });
        const frame = page.frames().find((one) => one.url().endsWith('/rep_dtl.htm'));
        assert.equal(await frame.$('.rn-bar'), null);
      });

      // Firefox prints only for its own driver, and reads style sheets only from a server: there the
      // rules for paper are made to count on the screen.
      const canPrint = browserName === 'chrome' || way === 'server';
      test('paper has the page alone', { skip: !canPrint && 'no print media over BiDi' }, async () => {
        await to('rep_dtl.htm');
        if (browserName === 'chrome') await page.emulateMediaType('print');
        else await page.evaluate(() => {
          const rules = [...document.styleSheets].flatMap((sheet) => [...sheet.cssRules]);
          for (const { media } of rules) if (media?.mediaText === 'print') media.mediaText = 'all';
        });
        const shown = await page.$$eval('.rn-bar, .rn-contents, .rn-skip, .rn-path, .rn-neighbours', (all) =>
          all.filter((one) => getComputedStyle(one).display !== 'none').length);
        assert.equal(shown, 0);
        assert.equal(await page.$eval('main', (main) => getComputedStyle(main).marginLeft), '0px');
      });

      test('icons are shown', async () => {
        await to('rep_dtl.htm');
        await page.waitForFunction(() => document.querySelector('[role=treeitem] img')?.naturalWidth === 1);
      });

      test('a phone has a drawer, a readable width and targets for fingers', async () => {
        await page.setViewport(narrow);
        await to('parts/rep_dtl3.htm');
        const drawerShown = () => page.$eval('#rn-contents', (panel) => getComputedStyle(panel).visibility === 'visible');
        assert.equal(await drawerShown(), false);
        assert.ok(await fits(page));
        await page.click('button[aria-label=Contents]');
        await page.waitForFunction(() => document.activeElement.getAttribute('role') === 'treeitem');
        assert.equal((await current(page)).inView, true);
        const small = await page.$$eval('.rn-bar button, .rn-bar input, [role=treeitem], .rn-neighbour, [aria-label=Breadcrumb] a', (all) =>
          all.map((one) => one.getBoundingClientRect()).filter(({ height }) => height < 44).length);
        assert.equal(small, 0);
        await picture(page, `drawer-${browserName}-${way}`);
        await press(page, 'Escape');
        assert.equal((await focused(page)).role, 'button');
        assert.equal(await page.$eval('#rn-contents', (panel) => panel.inert), true);
        await search(page, 'chapter');
        await picture(page, `results-${browserName}-${way}`);
        assert.ok(await fits(page));
      });

      test('on a phone short words in tables stay whole, and only a table scrolls', async () => {
        await page.setViewport(narrow);
        await to('tables.htm');
        const broken = await page.$$eval('td', (cells) => cells.filter(({ firstChild }) => {
          const range = document.createRange();
          range.selectNode(firstChild);
          return firstChild.length < 7 && range.getClientRects().length > 1;
        }).map(({ textContent }) => textContent));
        assert.deepEqual(broken, []);
        assert.ok(await fits(page));
        await picture(page, `tables-${browserName}-${way}`);
      });

      for (const [size, viewport] of Object.entries({ wide, narrow })) {
        test(`the start page shows its levels, ${size}`, async () => {
          await page.setViewport(viewport);
          await to('rep.htm');
          const lefts = await page.$$eval('.rn-start a', (links) => ['Introduction', 'Purpose'].map((text) =>
            links.find(({ textContent }) => textContent === text).getBoundingClientRect().left));
          assert.ok(lefts[1] > lefts[0] + 10, `${lefts}`);
          assert.ok(await fits(page));
          await picture(page, `start-${size}-${browserName}-${way}`);
        });

        test(`axe finds nothing against WCAG 2.1 AA, ${size}, light and dark`, async () => {
          await page.setViewport(viewport);
          await to('parts/rep_dtl3.htm');
          for (const theme of ['light', 'dark']) {
            if (size === 'narrow') await page.click('button[aria-label=Contents]');
            await new Promise((moved) => setTimeout(moved, 250));
            assert.deepEqual(await violations(page), []);
            await search(page, 'par');
            assert.deepEqual(await violations(page), []);
            await picture(page, `${theme}-${size}-${browserName}-${way}`);
            await page.$eval('input[type=search]', (box) => (box.value = ''));
            await page.click('button[aria-label=Theme]');
            assert.equal(await page.$eval('html', (html) => html.dataset.rnTheme ?? 'light'), theme === 'light' ? 'dark' : 'light');
          }
        });
      }
    });
  }
}
