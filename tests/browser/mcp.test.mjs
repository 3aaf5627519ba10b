// The mode control panel by wheel, drag, keys and clicks.

import assert from 'node:assert/strict';
import {test} from 'node:test';
import {openDeck, passStart, startHost, until, untilValue, valueOf} from './support.mjs';

const windowOf = (page, value) => page.textContent(`.window[data-value="${value}"]`);
const knobBeside = (page, value) => page.locator(`.mcp-window:has([data-value="${value}"]) .mcp-knob`);

test('knobs turn by wheel, drag and keys, buttons light', async (t) => {
  const host = await startHost(t, '--no-pilot');
  const page = await openDeck(t, host.address);
  await passStart(page);
  const altitude = knobBeside(page, 'apalt');
  const start = Number(await valueOf(page, 'apalt'));
  const reaches = (value, what) => until(what, async () => Number(await windowOf(page, 'apalt')) === value);
  await altitude.hover();
  await page.mouse.wheel(0, -100);
  await reaches(start + 100, 'a step by the wheel');
  await altitude.press('PageUp');
  await reaches(start + 1100, 'a big step by a key');
  await altitude.press('ArrowDown');
  await reaches(start + 1000, 'a small step by a key');
  const box = await altitude.boundingBox();
  await page.mouse.move(box.x + box.width / 2, box.y + box.height / 2);
  await page.mouse.down();
  await page.mouse.move(box.x + box.width / 2, box.y + box.height / 2 - 31);
  await page.mouse.up();
  await reaches(start + 1500, 'five steps by a drag, and none by its end');

  await page.click('[data-area="atarm"] .face');
  await until('the light of the armed autothrottle', () => page.evaluate(() =>
    document.querySelector('[data-area="atarm"] .bar').classList.contains('lit')));
  const speed = Number(await valueOf(page, 'ap_spdbug'));
  await knobBeside(page, 'ap_spdbug').press('ArrowUp');
  await untilValue(page, 'ap_spdbug', speed + 1);
  assert.equal(await windowOf(page, 'ap_spdbug'), String(speed + 1));
});
