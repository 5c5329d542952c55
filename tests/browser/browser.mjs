// What the browser tests share: the browser, ways to open the document set, and pictures.

import { mkdirSync } from 'node:fs';
import { createServer } from 'node:http';
import { readFile } from 'node:fs/promises';
import { extname, join, normalize } from 'node:path';
import { pathToFileURL } from 'node:url';
import { chromium } from 'playwright-core';

function directoryIn(variable) {
  if (!process.env[variable]) throw new Error(`${variable} must name a directory`);
  return process.env[variable];
}

export const setDirectory = directoryIn('MANUAL_SET');
export const pictureDirectory = directoryIn('MANUAL_PICTURES');

const flags = [
  '--no-sandbox',
  '--disable-gpu',
  '--disable-quic',
  '--no-first-run',
  '--disable-background-networking',
  '--disable-component-update',
  '--disable-sync',
];

export function launch(...furtherFlags) {
  return chromium.launch({
    executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium',
    headless: true,
    args: [...flags, ...furtherFlags],
  });
}

const contentTypes = {
  '.htm': 'text/html',
  '.css': 'text/css',
  '.js': 'text/javascript',
  '.gif': 'image/gif',
  '.JPG': 'image/jpeg',
  '.txt': 'text/plain',
};

async function answer(directory, request, response) {
  const path = decodeURIComponent(new URL(request.url, 'http://set').pathname);
  try {
    const bytes = await readFile(join(directory, normalize(path)));
    response.writeHead(200, { 'Content-Type': contentTypes[extname(path)] ?? 'application/octet-stream' });
    response.end(bytes);
  } catch {
    // The browser asks for this by itself.
    response.writeHead(path === '/favicon.ico' ? 204 : 404);
    response.end();
  }
}

// The two ways to read a document set. Each gives the address of the set and a way to end it.
export const ways = {
  disk: async (directory = setDirectory) => ({ address: pathToFileURL(directory).href, close: () => {} }),
  server: async (directory = setDirectory) => {
    const server = createServer((request, response) => answer(directory, request, response));
    await new Promise((listening) => server.listen(0, '127.0.0.1', listening));
    return {
      address: `http://127.0.0.1:${server.address().port}`,
      close: () => server.close(),
    };
  },
};

export async function picture(page, name) {
  mkdirSync(pictureDirectory, { recursive: true });
  await page.screenshot({ path: join(pictureDirectory, `${name}.png`) });
}

// Everything that a page complains about: scripts that failed, files that were not found.
export function collectComplaints(page) {
  const complaints = [];
  page.on('pageerror', (error) => complaints.push(`script: ${error.message}`));
  page.on('console', (message) => {
    if (message.type() === 'error') complaints.push(`console: ${message.text()}`);
  });
  page.on('requestfailed', (request) => {
    // A navigation that another one overtakes is no failure.
    if (request.failure()?.errorText !== 'net::ERR_ABORTED') {
      complaints.push(`request: ${request.url()} ${request.failure()?.errorText}`);
    }
  });
  page.on('response', (response) => {
    if (response.status() >= 400) complaints.push(`response: ${response.status()} ${response.url()}`);
  });
  return complaints;
}
