// From a key of the keyboard to the changed scratchpad on the page's canvas, in Chromium on the real page.

import {test} from 'node:test';
import {openDeck, startHost, untilValue} from '../tests/browser/support.mjs';

const PRESSES = 300;
const REACH_MS = 120;  // of 99 in 100
const PERIOD_MS = 1000 / 18;  // the yardstick: one call of the host

test('key to canvas', async (t) => {
  const host = await startHost(t);
  const page = await openDeck(t, host.address);
  await untilValue(page, 'outputs_running', 1);
  const times = await page.evaluate(async (presses) => {
    const canvas = document.querySelector('canvas[data-screen="lower"]');
    const picture = canvas.getContext('2d'), scale = canvas.width / 564;
    const scratchpad = () => picture.getImageData(43 * scale, 205 * scale, 202 * scale, 16 * scale).data.join();
    const wait = (ms) => new Promise((done) => setTimeout(done, ms));
    canvas.focus();
    const times = [];
    for (let i = 0; i < presses; ++i) {
      await wait(150 + Math.random() * 200);  // at any place of the host's period
      const before = scratchpad(), start = performance.now();
      canvas.dispatchEvent(new KeyboardEvent('keydown', {key: i % 2 ? 'Backspace' : 'A', bubbles: true, cancelable: true}));
      while (scratchpad() === before && performance.now() - start < 5000) await wait(1);
      times.push(performance.now() - start);
    }
    return times.sort((a, b) => a - b);
  }, PRESSES);
  const at = (share) => times[Math.floor(share * (times.length - 1))];
  const row = (what, ms) => console.log(`${what} ${ms.toFixed(0)} ms, ${(ms / PERIOD_MS).toFixed(1)} service calls`);
  row('key press to changed canvas, median', at(0.5));
  row(`key press to changed canvas, p99 (to reach: ${REACH_MS} ms)`, at(0.99));
});
