// What a hand at the page feels, in Chromium on the real page: from a key of the keyboard to the changed scratchpad on
// the canvas, with one browser and with five; a line typed at once; and what a browser that comes and goes costs.

import {readFileSync} from 'node:fs';
import {test} from 'node:test';
import {openDeck, setVariable, startHost, untilValue} from '../tests/browser/support.mjs';

const PRESSES = Number(process.env.PRESSES ?? 200), LETTERS = 24, VISITS = 100;
const PERIOD_MS = 1000 / 18;  // the yardstick: one call of the host

const row = (what, ms, reach) => console.log(`${what} ${ms.toFixed(0)} ms${reach ? ` (to reach: ${reach} ms)` : ''}, ` +
                                             `${(ms / PERIOD_MS).toFixed(1)} service calls`);

/** Sorted times from a key to the canvas that shows it. */
const pressKeys = (page, presses) => page.evaluate(async (presses) => {
  const canvas = document.querySelector('canvas[data-screen="lower"]');
  const picture = canvas.getContext('2d'), scale = canvas.width / 564;
  window.scratchpad = () => picture.getImageData(43 * scale, 205 * scale, 202 * scale, 16 * scale).data.join();
  window.press = (key) =>
      canvas.dispatchEvent(new KeyboardEvent('keydown', {key, bubbles: true, cancelable: true}));
  const wait = (ms) => new Promise((done) => setTimeout(done, ms));
  canvas.focus();
  const times = [];
  for (let i = 0; i < presses; ++i) {
    await wait(150 + Math.random() * 200);  // at any place of the host's period
    const before = scratchpad(), start = performance.now();
    press(i % 2 ? 'Backspace' : 'A');
    while (scratchpad() === before && performance.now() - start < 5000) await wait(1);
    times.push(performance.now() - start);
  }
  return times.sort((a, b) => a - b);
}, presses);

const at = (times, share) => times[Math.floor(share * (times.length - 1))];

test('key to canvas', async (t) => {
  const host = await startHost(t);
  const page = await openDeck(t, host.address);
  await untilValue(page, 'outputs_running', 1);
  const alone = await pressKeys(page, PRESSES);
  row('key press to changed canvas, median', at(alone, 0.5));
  row('key press to changed canvas, p99', at(alone, 0.99), 120);

  const whole = await page.evaluate(async (letters) => {
    const start = performance.now();
    for (let i = 0; i < letters; ++i) press(String.fromCharCode(65 + i));
    let seen = scratchpad(), changed = start;
    while (performance.now() - Math.max(changed, start) < 1500) {
      await new Promise((done) => setTimeout(done, 1));
      const now = scratchpad();
      if (now !== seen) [seen, changed] = [now, performance.now()];
    }
    return changed - start;
  }, LETTERS);
  await untilValue(page, 'capt.ScratchPad', 'ABCDEFGHIJKLMNOPQRSTUVWX');
  row(`${LETTERS} letters typed at once`, whole, 500);
  await setVariable(page, 'capt.ScratchPad', '');

  const others = [];
  for (let i = 0; i < 4; ++i) others.push(await openDeck(t, host.address));
  row('key press to changed canvas, p99, five browsers', at(await pressKeys(page, PRESSES), 0.99), 150);
  for (const other of others) await other.close();

  const kilobytes = () => Number(readFileSync(`/proc/${host.pid}/status`, 'utf8').match(/VmRSS:\s*(\d+)/)[1]);
  const visit = (visits) => page.evaluate(async (visits) => {
    for (let i = 0; i < visits; ++i) {
      const link = new WebSocket(`ws://${location.host}/socket`);
      await new Promise((done) => { link.onopen = done; });
      link.send(JSON.stringify({type: 'screens', names: ['capt_outb', 'capt_inb', 'lower']}));
      link.send(JSON.stringify({type: 'watch', names: ['capt.ScratchPad', 'power_level', 'aircraft:alt']}));
      await new Promise((done) => setTimeout(done, 100));
      link.close();
      await new Promise((done) => { link.onclose = done; });
    }
  }, visits);
  await visit(VISITS / 2);
  const before = kilobytes();
  await visit(VISITS);
  console.log(`a browser that leaves and comes back ${VISITS} times costs ${Math.max(0, kilobytes() - before)} kB`);
});
