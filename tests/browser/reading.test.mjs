// The page for those who don't see it, by an accessibility linter.

import assert from 'node:assert/strict';
import {readFileSync} from 'node:fs';
import {test} from 'node:test';
import {openDeck, startHost} from './support.mjs';

const AXE = readFileSync(new URL('node_modules/axe-core/axe.min.js', import.meta.url), 'utf8');

async function findings(page, what) {
  await page.evaluate(AXE);
  const {violations} = await page.evaluate(() => window.axe.run());
  return violations.flatMap(({id, nodes}) => nodes.map(({html}) => `${what}: ${id}: ${html.slice(0, 160)}`));
}

test('every control has a role and a name', async (t) => {
  const host = await startHost(t), found = [];
  const page = await openDeck(t, host.address);
  for (const view of ['Centre', 'Overhead', 'Pedestal', 'Ground', 'Failures', 'Hands', 'Inspector']) {
    await page.click(`[data-view="${view}"].tab`);
    found.push(...await findings(page, view));
  }
  for (const path of ['screen/capt_inb', 'cdu/l', 'tablet/r']) {
    const alone = await openDeck(t, host.address, path);
    await alone.waitForSelector('canvas');
    found.push(...await findings(alone, path));
  }
  assert.deepEqual(found, []);
});
