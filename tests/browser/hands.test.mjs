// I have control: the pilot lets go of what a user touches; stick, keys and gamepad fly.

import assert from 'node:assert/strict';
import {mkdtempSync, rmSync, writeFileSync} from 'node:fs';
import {tmpdir} from 'node:os';
import {join} from 'node:path';
import {test} from 'node:test';
import {openDeck, passStart, setRate, startHost, until, untilValue, valueOf} from './support.mjs';

const number = async (page, name) => Number(await valueOf(page, name));
const reaches = (page, name, good, seconds) => until(name, async () => good(await number(page, name)), seconds);

test('the pilot lets go of what is touched, and the stick flies', async (t) => {
  const host = await startHost(t);
  const page = await openDeck(t, host.address, '#Hands');
  await setRate(page, 32);
  await reaches(page, 'aircraft:alt', (feet) => feet > 6000);
  await untilValue(page, 'lvar:ap_master_l', 1);
  await setRate(page, 1);
  const told = (text) => until(text, async () => (await page.textContent('.doing')).includes(text));
  await page.click('.hands [data-lever="flaps"] .dial', {button: 'right'});
  await told('; you have flaps');
  await reaches(page, 'token:907', (degrees) => Math.abs(degrees - 1) < 0.01);
  await page.waitForTimeout(2000);
  assert.ok(await number(page, 'token:328') > 0, 'they stay where the user has them');

  const box = await page.locator('.pad').boundingBox();
  await page.mouse.move(box.x + box.width / 2, box.y + box.height / 2);
  await page.mouse.down();
  await page.mouse.move(box.x + box.width * 0.9, box.y + box.height / 2);
  await untilValue(page, 'lvar:ap_master_l', 0);
  await reaches(page, 'aircraft:bank', (degrees) => degrees > 25);
  await told('; you have flaps, stick and autopilot');
  await page.mouse.up();
  await reaches(page, 'aircraft:bank', (degrees) => Math.abs(degrees) < 2);

  await page.locator('.pad').focus();
  await page.keyboard.down('ArrowLeft');
  await reaches(page, 'aircraft:bank', (degrees) => degrees < -15);
  await page.keyboard.up('ArrowLeft');
  await page.locator('input[data-lever="thrust"]').fill('0.3');
  await reaches(page, 'token:128', (raw) => Math.abs(raw - 0.3 * 16384) < 2);
  await page.locator('input[data-lever="thrust_right"]').fill('0.5');  // one engine's alone
  await reaches(page, 'token:163', (raw) => Math.abs(raw - 0.5 * 16384) < 2);
  await reaches(page, 'token:128', (raw) => Math.abs(raw - 0.3 * 16384) < 2);

  await page.click('.control-key');
  await untilValue(page, 'host:user_has', '');
  await untilValue(page, 'lvar:ap_master_l', 1);
  await untilValue(page, 'lvar:at_armed_left', 1);
  await untilValue(page, 'token:328', 0);
});

test('without a pilot nobody acts, and a gamepad that vanishes lets go', async (t) => {
  const host = await startHost(t, '--no-pilot');
  const page = await openDeck(t, host.address, '#Hands');
  await passStart(page);
  assert.equal(await number(page, 'token:328'), 0, 'no flaps were set');
  assert.ok(await page.locator('.control-key').isHidden());
  const pad = (axes, pressed) => page.evaluate(([axes, pressed]) => {
    const buttons = [...Array(16).keys()].map((i) => ({pressed: i === pressed}));
    navigator.getGamepads = () => axes ? [{index: 0, connected: true, mapping: '', axes, buttons}] : [null];
    dispatchEvent(new Event('gamepadconnected'));
  }, [axes, pressed]);
  await pad([0, 0, 0, 1]);
  await pad([0, 0, 0, -1]);
  await reaches(page, 'token:128', (raw) => raw === 16384);
  await reaches(page, 'aircraft:gs', (knots) => knots > 20);
  const before = await number(page, 'mag_hdg');
  await pad([0, 0, 0.8, -1]);
  await reaches(page, 'mag_hdg', (degrees) => degrees > before + 4);
  await pad(null);
  await page.waitForTimeout(1000);
  const left = await number(page, 'mag_hdg');
  await page.waitForTimeout(1500);
  assert.ok(Math.abs(await number(page, 'mag_hdg') - left) < 0.5, 'it rolls straight on');
  // Levers from a page that means no good.
  await page.evaluate(() => {
    for (const value of [1e12, -1e12]) for (const name of ['thrust', 'rudder', 'trim', 'brakes', 'nothing'])
      window.deck.link.send({type: 'lever', name, value});
  });
  await reaches(page, 'token:128', (raw) => raw === -4096);
});

test('a recording is shown, and a key takes over', async (t) => {
  const folder = mkdtempSync(join(tmpdir(), 'tz900-played-'));
  t.after(() => rmSync(folder, {recursive: true}));
  const recording = join(folder, 'seen.scn');
  writeFileSync(recording, 'at 47.45 -122.31 12000 180 280\nfdm on\nstart\ntick 180\nset capt.ScratchPad SHOWN\ntick 9000\n');
  const host = await startHost(t, '--play', recording, '--rate', '16');
  const page = await openDeck(t, host.address);
  await until('what is shown', async () => (await page.textContent('.doing')).includes('shows seen.scn'));
  await untilValue(page, 'capt.ScratchPad', 'SHOWN');
  assert.equal(await valueOf(page, 'host:rate'), '16');
  await page.click('.pause');
  await untilValue(page, 'host:paused', 1);
  await setRate(page, 2);
  await page.click('.pause');
  await page.locator('canvas[data-screen="lower"]').focus();
  await page.keyboard.press('A');
  await untilValue(page, 'host:pilot', '');
  await untilValue(page, 'capt.ScratchPad', 'SHOWNA');
  assert.match(host.told(), /Taken over, after 0:0\d:\d\d; the flight is yours/);
});
