// The page's canvas against Cairo, on the same lists.

import assert from 'node:assert/strict';
import {execFileSync} from 'node:child_process';
import {mkdtempSync, readdirSync, readFileSync, rmSync} from 'node:fs';
import {tmpdir} from 'node:os';
import {join} from 'node:path';
import {test} from 'node:test';
import {setTimeout as wait} from 'node:timers/promises';
import {openDeck, startHost} from './support.mjs';

const WIDTH = 320, HEIGHT = 240;
const MEAN = 3;     // of 255, over all pixels
const SHIFT = 0.5;  // pixels

// The picture form ends with its primitives, each a length and its bytes; a message for a page that has nothing
// yet says that all of them are new.
function messageOf(list) {
  let at = 8, count = 0;
  for (let shift = 0;; shift += 7) {
    const byte = list[at++];
    count |= (byte & 0x7f) << shift;
    if (byte < 0x80) break;
  }
  const run = [];
  for (let value = count * 2 + 1;; value >>= 7) {
    run.push(value >= 0x80 ? value & 0x7f | 0x80 : value);
    if (value < 0x80) break;
  }
  return Buffer.concat([list.subarray(0, 8), Buffer.from(run), list.subarray(at)]);
}

// Evened out over 5 by 5 pixels, so that two ways of smoothing edges become alike.
function evened(grey) {
  const out = new Float64Array(grey.length);
  for (let y = 2; y < HEIGHT - 2; ++y)
    for (let x = 2; x < WIDTH - 2; ++x)
      for (let v = y - 2; v <= y + 2; ++v)
        for (let u = x - 2; u <= x + 2; ++u) out[y * WIDTH + x] += grey[v * WIDTH + u];
  return out;
}

// How far `a` must be moved to lie on `b`, by least squares over the slopes of the picture.
function shiftBetween(a, b) {
  const from = evened(a), to = evened(b);
  let xx = 0, xy = 0, yy = 0, ex = 0, ey = 0;
  for (let y = 1; y < HEIGHT - 1; ++y)
    for (let x = 1; x < WIDTH - 1; ++x) {
      const at = y * WIDTH + x, sx = (from[at + 1] - from[at - 1]) / 2, sy = (from[at + WIDTH] - from[at - WIDTH]) / 2;
      const error = from[at] - to[at];
      xx += sx * sx, xy += sx * sy, yy += sy * sy, ex += sx * error, ey += sy * error;
    }
  const determinant = xx * yy - xy * xy;
  if (determinant <= 1e-6 * xx * yy) return 0;
  return Math.hypot((yy * ex - xy * ey) / determinant, (xx * ey - xy * ex) / determinant);
}

test('the canvas shows what Cairo paints', async (t) => {
  const folder = mkdtempSync(join(tmpdir(), 'tz900-pictures-'));
  t.after(() => rmSync(folder, {recursive: true}));
  execFileSync(process.env.TZ900_PICTURES, [folder]);
  const host = await startHost(t);
  const page = await openDeck(t, host.address, 'screen/debug');
  await page.route('**/image/**', async (route) => {
    await wait(300);
    await route.fulfill({path: join(folder, 'picture.png')});
  });
  await page.evaluate(async ([width, height]) => {
    const {Screen} = await import('/picture.js');
    const canvas = document.createElement('canvas');
    canvas.style = `position: fixed; left: 0; top: 0; width: ${width}px; height: ${height}px`;
    document.body.append(canvas);
    await Promise.all([...document.fonts].map((font) => font.load()));
    window.drawCase = async (bytes) => {
      const screen = new Screen(canvas, window.deck.screens.families);
      screen.take(Uint8Array.from(atob(bytes), (c) => c.charCodeAt(0)));
      screen.draw();
      await Promise.all([...Screen.pictures.values()].map((picture) => picture.decode()));
      screen.draw();
      const {data} = canvas.getContext('2d').getImageData(0, 0, width, height);
      let text = '';
      for (let i = 0; i < data.length; i += 8192) text += String.fromCharCode(...data.subarray(i, i + 8192));
      return btoa(text);
    };
  }, [WIDTH, HEIGHT]);

  // The image comes when every screen has long been drawn without it.
  const message = messageOf(readFileSync(join(folder, 'images.list'))).toString('base64');
  const inked = await page.evaluate(async (message) => {
    const {Screen} = await import('/picture.js');
    const screens = [1, 2].map(() => {
      const canvas = document.createElement('canvas');
      canvas.style = 'position: fixed; left: 0; top: 0; width: 160px; height: 120px';
      document.body.append(canvas);
      return new Screen(canvas);
    });
    for (const screen of screens) screen.take(Uint8Array.from(atob(message), (c) => c.charCodeAt(0)));
    const isInked = ({canvas: {width, height}, context}) =>
      context.getImageData(0, 0, width, height).data.some((value, i) => i % 4 < 3 && value > 0);
    for (let frame = 0; frame < 600 && !screens.every(isInked); ++frame)
      await new Promise((done) => requestAnimationFrame(done));
    return screens.map(isInked);
  }, message);
  assert.deepEqual(inked, [true, true], 'an image is drawn on each screen that waits for it');

  const names = readdirSync(folder).filter((file) => file.endsWith('.list')).map((file) => file.slice(0, -5));
  assert.ok(names.length > 20);
  const wrong = [];
  for (const name of names) {
    const message = messageOf(readFileSync(join(folder, `${name}.list`)));
    const canvas = Buffer.from(await page.evaluate((bytes) => window.drawCase(bytes), message.toString('base64')), 'base64');
    const cairo = readFileSync(join(folder, `${name}.argb`));
    let sum = 0, inked = 0;
    const ours = new Float64Array(WIDTH * HEIGHT), theirs = new Float64Array(WIDTH * HEIGHT);
    for (let i = 0; i < WIDTH * HEIGHT; ++i) {
      let difference = 0, ink = 0;
      for (let channel = 0; channel < 3; ++channel) {
        const a = canvas[4 * i + 2 - channel] * canvas[4 * i + 3] / 255, b = cairo[4 * i + channel];
        difference += Math.abs(a - b) / 3;
        ink += a + b;
        ours[i] += a, theirs[i] += b;
      }
      sum += difference;
      inked += ink > 0;
    }
    const mean = sum / (WIDTH * HEIGHT), meanInked = sum / Math.max(1, inked), shift = shiftBetween(ours, theirs);
    t.diagnostic(`${name}: mean ${mean.toFixed(2)}, where inked ${meanInked.toFixed(2)}, shift ${shift.toFixed(2)}`);
    if (mean > MEAN || shift > SHIFT || !(inked > 0)) wrong.push(`${name}: mean ${mean}, shift ${shift}`);
  }
  assert.deepEqual(wrong, []);
});
