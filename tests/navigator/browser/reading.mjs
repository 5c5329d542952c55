// Browsers and the ways to read a document set: what the browser tests of the navigator share.

import { mkdirSync, readFileSync } from 'node:fs';
import { readFile } from 'node:fs/promises';
import { createServer } from 'node:http';
import { createRequire } from 'node:module';
import { extname, join, normalize } from 'node:path';
import { pathToFileURL } from 'node:url';
import puppeteer from 'puppeteer-core';

const executables = {
  chrome: process.env.CHROMIUM ?? '/usr/bin/chromium',
  firefox: process.env.FIREFOX ?? '/usr/bin/firefox-esr',
};
const flags = ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
  '--disable-background-networking', '--disable-component-update', '--disable-sync'];

export const browsers = process.env.NAVIGATOR_BROWSERS?.split(',') ?? Object.keys(executables);

// `scheme`: the colours that the system prefers. `prefs`: further preferences of Firefox.
export function launch(browser, scheme = 'light', prefs = {}) {
  return puppeteer.launch({
    browser,
    executablePath: executables[browser],
    headless: true,
    args: browser === 'chrome' ? flags : [],
    extraPrefsFirefox: {
      'layout.css.prefers-color-scheme.content-override': scheme === 'dark' ? 0 : 1,
      ...prefs,
    },
  });
}

const contentTypes = { '.htm': 'text/html', '.css': 'text/css', '.js': 'text/javascript',
  '.gif': 'image/gif', '.JPG': 'image/jpeg' };

const answerFrom = (directory) => async (request, response) => {
  const path = decodeURIComponent(new URL(request.url, 'http://set').pathname);
  try {
    const bytes = await readFile(join(directory, normalize(path)));
    response.writeHead(200, {
      'Content-Type': contentTypes[extname(path)] ?? 'application/octet-stream',
      'Content-Security-Policy': "default-src 'self'",
    });
    response.end(bytes);
  } catch {
    response.writeHead(path === '/favicon.ico' ? 204 : 404);
    response.end();
  }
};

// Each gives the set's address and a way to end it. The server forbids all but its own files.
export const ways = {
  disk: async (directory) => ({ address: pathToFileURL(directory).href, close: () => {} }),
  server: async (directory) => {
    const server = createServer(answerFrom(directory));
    await new Promise((listening) => server.listen(0, '127.0.0.1', listening));
    return { address: `http://127.0.0.1:${server.address().port}`, close: () => server.close() };
  },
};

// The navigator has come to rest on this page.
export const ready = (page) =>
  page.waitForFunction(() =>
    globalThis.repNavigator?.current?.ready?.then(() => document.readyState === 'complete'));

export async function open(page, address) {
  await page.goto(address, { waitUntil: 'load' });
  await ready(page);
}

// After an action that leads to another page.
export async function follow(page, action) {
  await Promise.all([page.waitForNavigation({ waitUntil: 'load' }), action()]);
  await ready(page);
}

// What the pages themselves give rise to: their buttons' handlers, which the server's policy
// forbids, and their lack of a character set.
const ofThePages = /inline event handler|script-src-attr|character encoding/;

export function collectComplaints(page) {
  const complaints = [];
  const collect = (text) => {
    if (!ofThePages.test(text)) complaints.push(text);
  };
  page.on('pageerror', (error) => collect(`script: ${error.message}`));
  page.on('console', (message) => {
    if (message.type() === 'error') collect(`console: ${message.text()}`);
  });
  return complaints;
}

export async function picture(page, name) {
  const directory = process.env.NAVIGATOR_PICTURES;
  if (!directory) return;
  mkdirSync(directory, { recursive: true });
  await page.screenshot({ path: join(directory, `${name}.png`) });
}

const axe = readFileSync(createRequire(import.meta.url).resolve('axe-core/axe.min.js'), 'utf8');

// What axe finds in the navigator's own markup.
export async function violations(page) {
  await page.evaluate(axe);
  return page.evaluate(async () => {
    const own = ['.rn-bar', '.rn-contents', '.rn-path', '.rn-neighbours', '.rn-skip'];
    const runOnly = ['wcag2a', 'wcag2aa', 'wcag21a', 'wcag21aa'];
    const { violations: found } = await globalThis.axe.run({ include: own }, { runOnly, resultTypes: ['violations'], preload: false });
    return found.flatMap(({ id, nodes }) => nodes.map(({ html, failureSummary }) => `${id}: ${html} ${failureSummary}`));
  });
}
