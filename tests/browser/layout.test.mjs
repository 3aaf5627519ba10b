// The page at every size: nothing covers anything else, what is pressed can be hit, what is written can be read.

import assert from 'node:assert/strict';
import {test} from 'node:test';
import {openDeck, startHost} from './support.mjs';

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
      box.top = Math.max(box.top, edge.top);
      box.bottom = Math.min(box.bottom, edge.bottom);
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
  for (const view of ['Centre', 'Overhead', 'Pedestal', 'Inspector']) {
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

test('by touch', async (t) => {
  const host = await startHost(t);
  const faults = [];
  for (const size of [[390, 844], [1024, 768], [1280, 800]])
    faults.push(...await look(t, host, size, {hasTouch: true, isMobile: true}, 40));
  assert.deepEqual(faults, []);
});
