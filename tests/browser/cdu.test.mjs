// A route entered in the browser: keys of the CDU by mouse and touch, entries by the keyboard.

import assert from 'node:assert/strict';
import {test} from 'node:test';
import {openDeck, passStart, startHost, until, untilValue, valueOf} from './support.mjs';

const CANVAS = 'canvas[data-screen="lower"]';
const KEYS = {RTE: [52, 235], LEGS: [52, 259], CLR_MSG: [222, 352], L1: [60, 51], R1: [220, 51], R6: [220, 191]};

async function openFlying(t, options) {
  const host = await startHost(t);
  const page = await openDeck(t, host.address, '', options);
  await passStart(page);
  return page;
}

// Where a place of a unit's frame lies on the page.
async function placeOn(page, [x, y]) {
  await page.locator(CANVAS).scrollIntoViewIfNeeded();
  const box = await page.locator(CANVAS).boundingBox();
  return [box.x + x * box.width / 564, box.y + y * box.height / 424];
}

const press = async (page, key) => page.mouse.click(...await placeOn(page, KEYS[key]));

test('mode keys, line keys, entries and messages', async (t) => {
  const page = await openFlying(t);
  await press(page, 'RTE');
  await untilValue(page, 'capt_fms_page', 22);
  await page.keyboard.type('qqqq');  // the canvas has the focus since it was clicked
  await untilValue(page, 'capt.ScratchPad', 'QQQQ');
  await press(page, 'R1');
  await untilValue(page, 'capt.CduMessageCount', 1);
  assert.equal(await valueOf(page, 'capt.ScratchPad'), 'QQQQ');
  await press(page, 'CLR_MSG');
  await untilValue(page, 'capt.CduMessageCount', 0);
  for (let left = 3; left >= 0; --left) {
    await page.keyboard.press('Backspace');
    await untilValue(page, 'capt.ScratchPad', 'Q'.repeat(left));
  }
  for (const key of 'ABCDEFGHIJKL') await page.keyboard.press(key);
  await untilValue(page, 'capt.ScratchPad', 'ABCDEFGHIJKL');
  await page.keyboard.down('Backspace');
  await page.keyboard.down('Backspace');  // held, it repeats
  await untilValue(page, 'capt.ScratchPad', '');
  await page.keyboard.up('Backspace');
  await page.keyboard.press('PageUp');
  await page.keyboard.press('Insert');
  await untilValue(page, 'capt_fms_page', 6);
  await page.evaluate(() => {
    const clipboardData = new DataTransfer();
    clipboardData.setData('text', 'n47w122.5\n');
    document.activeElement.dispatchEvent(new ClipboardEvent('paste', {clipboardData, bubbles: true, cancelable: true}));
  });
  await untilValue(page, 'capt.ScratchPad', 'N47W122.5');
  await page.keyboard.press('?');
  assert.ok(await page.locator('dialog.help').isVisible());
  await page.keyboard.press('Escape');
  assert.ok(!await page.locator('dialog.help').isVisible());
  const hasKeyboard = () => page.evaluate(() => document.activeElement.dataset.screen === 'lower');
  assert.ok(await hasKeyboard());
  await page.keyboard.press('Escape');
  assert.ok(!await hasKeyboard(), 'Escape gives the keyboard back');
  await press(page, 'RTE');
  for (let i = 0; i < 9; ++i) await page.keyboard.press('Backspace');
  await untilValue(page, 'capt.ScratchPad', '');
  await page.keyboard.press('F1');  // the origin of the demonstration flight, copied down
  await untilValue(page, 'capt.ScratchPad', 'KSEA');
});

test('by touch', async (t) => {
  const page = await openFlying(t, {hasTouch: true, viewport: {width: 1280, height: 800}});
  const tap = async (key) => page.touchscreen.tap(...await placeOn(page, KEYS[key]));
  await tap('LEGS');
  await untilValue(page, 'capt_fms_page', 6);
  const first = await valueOf(page, 'FlightPlan[1].ident');
  await tap('L1');
  await until('the leg to be copied down', async () => {
    const text = await valueOf(page, 'capt.ScratchPad');
    return text && (text === first || /^[A-Z0-9()]+$/.test(text));
  });
});
