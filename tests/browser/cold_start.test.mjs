// A pilot's morning: from a cold aircraft to lit screens, by clicking.

import assert from 'node:assert/strict';
import {test} from 'node:test';
import {litPixels, openDeck, passStart, setRate, startHost, until, untilValue, valueOf} from './support.mjs';

const face = (name) => `[data-name="${name}"] :is(.face, .dial)`;
const isLit = (page, lamp) => page.evaluate((lamp) =>
  document.querySelector(`[data-lamp="${lamp}"]`).classList.contains('lit'), lamp);
const number = async (page, name) => Number(await valueOf(page, name));

async function openCold(t) {
  const host = await startHost(t, '--cold');
  const page = await openDeck(t, host.address, '#Overhead');
  await passStart(page);
  return page;
}

test('from battery to screens', async (t) => {
  const page = await openCold(t);
  assert.equal(await number(page, 'power_level'), 0);
  for (const screen of ['capt_outb', 'capt_inb', 'fo_inb', 'fo_outb', 'stby'])
    assert.equal(await litPixels(page, screen), 0, screen);

  const windows = () => page.locator('.mcp-window .window').allTextContents();
  assert.equal((await windows()).join(''), '', 'the mode control panel is dark');
  await page.click(face('TZ_OH_ELE_BAT_Button'));
  await untilValue(page, 'power_level', 5);
  await until('the APU generator\'s OFF lamp', () => isLit(page, 'TZ_OH_Annun_OFF_APUL'));
  assert.equal(await litPixels(page, 'capt_outb'), 0, 'the battery alone lights no unit');

  await page.click(face('TZ_OH_ELE_APU_Switch'), {button: 'right'});
  await untilValue(page, 'lvar:TZ_OH_ELE_APU_Switch', 1);
  await page.click(face('TZ_OH_ELE_APU_Switch'), {button: 'right'});
  await untilValue(page, 'apu_starting', 1);
  await untilValue(page, 'lvar:TZ_OH_ELE_APU_Switch', 1);  // START springs back to ON
  await page.click('.rate[data-rate="32"]');
  await untilValue(page, 'apu_pwr_avail', 1, 120);
  await page.click('.rate[data-rate="1"]');
  await page.click(face('TZ_OH_APU_GEN_LEFT_Button'));
  await untilValue(page, 'power_level', 455);
  await until('the windows lit', async () => (await windows()).join('') !== '');
  await until('the OFF lamp to go out', async () => !await isLit(page, 'TZ_OH_Annun_OFF_APUL'));
  for (const screen of ['capt_outb', 'fo_outb', 'fo_inb', 'stby'])
    await until(`${screen} lit`, async () => await litPixels(page, screen) > 0);

  // The lower unit waits for its counter, ten seconds behind the power.
  await page.click('[data-view="Centre"].tab');
  if (await number(page, 'du_lwr_startup_cnt') < 58) assert.equal(await litPixels(page, 'lower'), 0);
  await setRate(page, 4);
  await until('the lower unit lit', async () => await litPixels(page, 'lower') > 0);
  await untilValue(page, 'du_lwr_startup_cnt', 60, 5);
  await until('the inboard unit lit', async () => await litPixels(page, 'capt_inb') > 0, 200);
});

test('a shut guard refuses', async (t) => {
  const page = await openCold(t);
  const guard = '[data-guard="TZ_OH_GEN_L1_Guard_Switch"]';
  await page.click(guard);
  // The system puts the button back.
  await until('the refusal', async () => await valueOf(page, 'lvar:TZ_OH_DRVDISC_L1_Button') === '0' &&
                                         await valueOf(page, 'drive_disc_l1') === '0');
  await page.waitForTimeout(1500);
  assert.equal(await valueOf(page, 'drive_disc_l1'), '0');
  await page.click(guard, {button: 'right'});
  await until('an open guard', () => page.evaluate((guard) =>
    document.querySelector(guard).classList.contains('open'), guard));
  await untilValue(page, 'TZ_OH_GEN_L1_Guard_Switch', 1);
  const box = await page.locator(guard).boundingBox();
  await page.mouse.click(box.x + box.width / 2, box.y + box.height * 0.8);  // below the cover's edge
  await untilValue(page, 'drive_disc_l1', 1);
  await page.click(guard, {button: 'right'});
  await untilValue(page, 'TZ_OH_GEN_L1_Guard_Switch', 0);
  assert.equal(await valueOf(page, 'drive_disc_l1'), '1', 'for good');
});

test('on a tablet a long press opens a guard and halves turn a selector', async (t) => {
  const page = await openCold(t);
  const touch = (selector, ms, at = 0.5) => page.evaluate(async ([selector, ms, at]) => {
    const target = document.querySelector(selector), box = target.getBoundingClientRect();
    const fields = {bubbles: true, pointerType: 'touch', clientX: box.left + box.width * at, clientY: box.top + box.height / 2};
    target.dispatchEvent(new PointerEvent('pointerdown', fields));
    await new Promise((done) => setTimeout(done, ms));
    target.dispatchEvent(new PointerEvent('pointerup', fields));
    target.dispatchEvent(new MouseEvent('click', fields));
  }, [selector, ms, at]);
  await touch('[data-guard="TZ_OH_RAT_Guard_Switch"]', 800);
  await untilValue(page, 'TZ_OH_RAT_Guard_Switch', 1);
  await touch(face('TZ_OH_WING_ANTICE_Switch'), 50, 0.8);
  await untilValue(page, 'TZ_OH_WING_ANTICE_Switch', 1);
  await touch(face('TZ_OH_WING_ANTICE_Switch'), 50, 0.8);
  await untilValue(page, 'TZ_OH_WING_ANTICE_Switch', 2);
  await touch(face('TZ_OH_WING_ANTICE_Switch'), 50, 0.2);
  await untilValue(page, 'TZ_OH_WING_ANTICE_Switch', 1);
});

test('every control of the system has its place on a panel', async (t) => {
  const host = await startHost(t);
  const page = await openDeck(t, host.address);
  const missing = await page.evaluate(() => [...window.deck.panels.controls.keys()].filter(
      (name) => !document.querySelector(`[data-name="${name}"], [data-guard="${name}"]`)));
  // By these the model tells an item of a CDU's face, which is clicked on its screen.
  assert.deepEqual(missing, ['TZ_CAPT_CDU_KEYPRESS', 'TZ_FO_CDU_KEYPRESS']);
});

test('the keyboard types on the keypad that has the focus, and the mode control panel turns', async (t) => {
  const page = await openCold(t);
  await page.click('[data-view="Centre"].tab');
  await page.locator('.keypad[data-side="R"]').focus();
  await page.keyboard.type('ksea/16');
  await untilValue(page, 'fo.ScratchPad', 'KSEA/16');
  await page.keyboard.press('Backspace');
  await untilValue(page, 'fo.ScratchPad', 'KSEA/1');
  await untilValue(page, 'capt.ScratchPad', '');

  const heading = Number(await valueOf(page, 'ap_hdgbug'));
  await page.click('[data-area="hdg +10"]');
  await page.click('[data-area="hdg +1"]');
  await untilValue(page, 'ap_hdgbug', (heading + 11) % 360);
});
