// A host of its own for each test, and a Chromium for each file to look at its page. Machines may be slow: tests wait
// for what they expect, and give it time.

import assert from 'node:assert/strict';
import {spawn} from 'node:child_process';
import {existsSync} from 'node:fs';
import {after} from 'node:test';

const CHROMIUM = process.env.CHROMIUM ?? '/usr/bin/chromium';
const SKIPPED = 77;

const playwright = await import('playwright-core').catch(() => null);
if (!playwright || !existsSync(CHROMIUM) || !existsSync(process.env.TZ900 ?? '')) {
  console.log('skipped: needs chromium, the npm packages of tests/browser and TZ900, the program');
  process.exit(SKIPPED);
}

export const sleep = (ms) => new Promise((done) => setTimeout(done, ms));

/** Waits until `condition` gives something true, and gives that. */
export async function until(what, condition, seconds = 60) {
  const end = Date.now() + seconds * 1000;
  let last;
  do {
    last = await condition();
    if (last) return last;
    await sleep(50);
  } while (Date.now() < end);
  assert.fail(`waited ${seconds} s for ${what}`);
}

/** Runs `tz900 fly`, on a port of its own where the options name none, until the test `t` ends. */
export async function startHost(t, ...options) {
  const port = options.includes('--port') ? [] : ['--port', '0'];
  const process_ = spawn(process.env.TZ900, ['fly', ...port, ...options], {stdio: ['ignore', 'pipe', 'pipe']});
  let told = '';
  for (const stream of [process_.stdout, process_.stderr]) stream.on('data', (data) => { told += data; });
  const ended = new Promise((done) => process_.on('exit', done));
  const stop = async () => {
    process_.kill('SIGINT');
    return ended;
  };
  t.after(async () => {
    process_.kill('SIGKILL');
    await ended;
  });
  const address = await until('the address', () => {
    assert.equal(process_.exitCode, null, told);
    return told.match(/http:\/\/\S+/)?.[0];
  });
  return {address, port: Number(new URL(address).port), stop, pid: process_.pid, told: () => told};
}

let browser;
after(async () => (await browser)?.close());

/** The file's browser. Each page has a profile of its own in it. */
export function openBrowser() {
  browser ??= playwright.chromium.launch({
    executablePath: CHROMIUM,
    args: ['--headless', '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
           '--disable-background-networking', '--disable-component-update', '--disable-sync'],
  });
  return browser;
}

/** A page of the flight deck, its link up, until the test `t` ends. What goes wrong in it fails the test. */
export async function openDeck(t, address, path = '', options = {}) {
  const page = await (await openBrowser()).newPage({viewport: {width: 1920, height: 1080}, ...options});
  t.after(() => page.close());
  page.setDefaultTimeout(60000);
  page.on('pageerror', (error) => assert.fail(`the page: ${error.message}`));
  await page.goto(address + path);
  await linkUp(page);
  return page;
}

export const linkUp = (page) => until('the link', () => page.evaluate(() => window.deck?.link.live === true));

export const setRate = (page, value) => page.evaluate((value) => window.deck.link.send({type: 'rate', value}), value);

/** Lets the eight seconds go by at once after which the system looks at its panels and lights its screens. */
export async function passStart(page) {
  await setRate(page, 32);
  await untilValue(page, 'outputs_running', 1);
  await setRate(page, 1);
}

/** What the page knows of a value that it watches. */
export const valueOf = (page, name) => page.evaluate((name) => {
  window.watchedByTest ??= {};
  window.watchedByTest[name] ??= window.deck.link.watch(name, () => {});
  return window.deck.link.values.get(name);
}, name);

export const setVariable = (page, name, text) =>
  page.evaluate(([name, text]) => window.deck.link.send({type: 'set', name, text: String(text)}), [name, text]);

/** Waits for a value of the system or the cockpit. */
export const untilValue = (page, name, wanted, seconds) =>
  until(`${name} to be ${wanted}`, async () => await valueOf(page, name) === String(wanted), seconds);

/** How many pixels of a screen's canvas show something, by a sparse grid. */
export const litPixels = (page, screen) => page.evaluate((screen) => {
  const canvas = document.querySelector(`canvas[data-screen=${screen}]`);
  const {data} = canvas.getContext('2d').getImageData(0, 0, canvas.width, canvas.height);
  let lit = 0;
  for (let i = 0; i < data.length; i += 4) lit += data[i + 3] > 0 && data[i] + data[i + 1] + data[i + 2] > 60;
  return lit;
}, screen);
