// The page at every size: nothing covers anything else, what is pressed can be hit, what is written can be read.

import assert from 'node:assert/strict';
import {test} from 'node:test';
import {openDeck, passStart, startHost, untilValue} from './support.mjs';

const SIZES = [
  [390, 844], [844, 390], [768, 1024], [1024, 768], [1280, 800], [1920, 1080], [2560, 1440], [3840, 2160],
];
const SMALLEST_TEXT = 10;

// What is wrong with the page as it stands, in words.
function faultsOf({target, text}) {
  const faults = [];
  const name = (element) => element.dataset.area ?? element.closest('[data-name]')?.dataset.name ??
      element.dataset.screen ?? `${element.className} ${element.textContent}`;
  const visible = (element) => element.checkVisibility({visibilityProperty: true}) && element.getClientRects().length > 0;
  // What shows of an element in the parts of the page that scroll.
  const seen = (element) => {
    const {left, top, right, bottom} = element.getBoundingClientRect(), box = {left, top, right, bottom};
    for (let holder = element.parentElement; holder !== document.body; holder = holder.parentElement) {
      if (getComputedStyle(holder).overflowY === 'visible') continue;
      const edge = holder.getBoundingClientRect();
      for (const side of ['left', 'top']) box[side] = Math.max(box[side], edge[side]);
      for (const side of ['right', 'bottom']) box[side] = Math.min(box[side], edge[side]);
    }
    return box;
  };
  const pressed = [...document.querySelectorAll('button, a, input, canvas')].filter(visible).map((element) =>
    ({element, box: element.getBoundingClientRect(), seen: seen(element)}));
  for (const {element, box} of pressed)
    if (Math.min(box.width, box.height) < target - 0.5)
      faults.push(`${name(element)} is ${box.width.toFixed(1)} by ${box.height.toFixed(1)}`);
  for (const [i, {element, seen: box}] of pressed.entries())
    for (const other of pressed.slice(i + 1)) {
      const wide = Math.min(box.right, other.seen.right) - Math.max(box.left, other.seen.left);
      const high = Math.min(box.bottom, other.seen.bottom) - Math.max(box.top, other.seen.top);
      if (wide > 1 && high > 1 && !element.contains(other.element) && !other.element.contains(element))
        faults.push(`${name(element)} and ${name(other.element)} cover each other`);
    }
  const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
  for (let node = walker.nextNode(); node; node = walker.nextNode()) {
    const holder = node.parentElement;
    if (!node.textContent.trim() || !visible(holder)) continue;
    const size = parseFloat(getComputedStyle(holder).fontSize);
    if (size < text) faults.push(`"${node.textContent.trim()}" is written in ${size} px`);
  }
  if (document.documentElement.scrollWidth > innerWidth + 1)
    faults.push(`the page is ${document.documentElement.scrollWidth} wide: ` + [...document.querySelectorAll('*')]
        .filter((element) => element.getBoundingClientRect().right > innerWidth + 1).map(name).slice(-2));
  return faults;
}

async function look(t, host, [width, height], options, target) {
  const found = [];
  const page = await openDeck(t, host.address, '', {viewport: {width, height}, ...options});
  for (const view of ['Centre', 'Overhead', 'Pedestal', 'Ground', 'Failures', 'Hands', 'Inspector']) {
    await page.click(`[data-view="${view}"].tab`);
    const faults = await page.evaluate(faultsOf, {target, text: SMALLEST_TEXT});
    found.push(...faults.map((fault) => `${width} by ${height}, ${view}: ${fault}`));
  }
  await page.close();
  return found;
}

test('by mouse, at eight sizes', async (t) => {
  const host = await startHost(t);
  const faults = [];
  for (const size of SIZES) faults.push(...await look(t, host, size, {}, 24));
  assert.deepEqual(faults, []);
});

test('one unit alone keeps its proportions, and is large and small again', async (t) => {
  const host = await startHost(t);
  const boxOf = (page, name) => page.locator(`canvas[data-screen="${name}"]`).boundingBox();
  for (const [width, height] of [[800, 390], [390, 844]]) {
    const alone = await openDeck(t, host.address, 'screen/stby', {viewport: {width, height}});
    const {width: wide, height: high} = await boxOf(alone, 'stby');
    assert.ok(Math.abs(wide / high - 100 / 92) < 0.01, `${wide} by ${high}`);
  }
  const bare = await openDeck(t, host.address, 'screen/lower?bare');
  assert.deepEqual(await bare.evaluate(() => [...document.body.querySelectorAll(':not(main, .unseen)')]
    .filter((element) => element.checkVisibility()).map((element) => element.tagName)), ['CANVAS']);
  assert.equal(await bare.evaluate(() => document.activeElement.dataset.screen), 'lower', 'it takes typing at once');

  const page = await openDeck(t, host.address, '', {viewport: {width: 1280, height: 800}});
  const ends = [(large) => large.press('Escape'), (large) => large.click(), () => page.mouse.click(5, 5)];
  for (const [i, name] of ['stby', 'lower', 'efb_l'].entries()) {
    const key = page.locator(`.unit.${name} button.tool`), before = await boxOf(page, name);
    await key.click();
    const box = await boxOf(page, name), tool = await key.boundingBox();
    assert.ok(box.width > 1200 || box.height > 740, `${name} is ${box.width} by ${box.height}`);
    assert.ok(tool.x > 0 && tool.x + tool.width < 1280 && tool.y >= 0, 'its key is within reach');
    await ends[i](key);
    assert.equal((await boxOf(page, name)).width, before.width, name);
  }
});

test('one unit for a phone', async (t) => {
  const host = await startHost(t), faults = [];
  for (const path of ['cdu/l', 'tablet/r'])
    for (const [width, height] of [[390, 844], [844, 390], [1024, 768]]) {
      const page = await openDeck(t, host.address, path, {viewport: {width, height}});
      await page.waitForSelector('button.face');
      const found = await page.evaluate(faultsOf, {target: 24, text: SMALLEST_TEXT});
      if (await page.evaluate(() => document.documentElement.scrollHeight > innerHeight)) found.push('it scrolls');
      faults.push(...found.map((fault) => `${path} ${width} by ${height}: ${fault}`));
    }
  assert.deepEqual(faults, []);
  const page = await openDeck(t, host.address, 'cdu/r', {viewport: {width: 390, height: 844}, hasTouch: true});
  await passStart(page);
  await page.tap('[data-name="TZ_FMC_R_Q_Button"] .face');
  await page.evaluate(() => window.deck.link.watch('fo.ScratchPad', () => {}));
  await untilValue(page, 'fo.ScratchPad', 'Q');
});

test('by touch', async (t) => {
  const host = await startHost(t);
  const faults = [];
  for (const size of [[390, 844], [1024, 768], [1280, 800]])
    faults.push(...await look(t, host, size, {hasTouch: true, isMobile: true}, 40));
  assert.deepEqual(faults, []);
});
