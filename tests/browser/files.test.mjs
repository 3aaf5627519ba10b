// Flight plans come in by the page and are there for the crew; nothing else comes in.

import assert from 'node:assert/strict';
import {test} from 'node:test';
import {openDeck, passStart, startHost, until} from './support.mjs';

test('a flight plan dropped on the page is stored, listed and fetched', async (t) => {
  const host = await startHost(t);
  const page = await openDeck(t, host.address, '#Files');
  await passStart(page);
  const plan = '[FlightPlan]\nKSEA 47.45 -122.31 APT\nKSFO 37.62 -122.37 APT\n';
  const drop = (name, text) => page.evaluate(([name, text]) => {
    const data = new DataTransfer();
    data.items.add(new File([text], name));
    document.body.dispatchEvent(new DragEvent('drop', {dataTransfer: data, bubbles: true, cancelable: true}));
  }, [name, text]);
  const told = (words) => until(words, async () => (await page.textContent('.files-told')).includes(words));
  await drop('My Plan 1.rte', plan);
  await told('My Plan 1.rte is stored.');
  const link = page.locator('.files a', {hasText: 'My Plan 1.rte'});
  await link.waitFor();
  assert.equal(await page.evaluate(async (href) => (await fetch(href)).text(), await link.getAttribute('href')), plan);
  await drop('notes.txt', 'x');
  await told('notes.txt is no flight plan');

  const put = (path, body, own) => page.evaluate(async ([path, body]) => (await fetch(path, {method: 'PUT', body})).status, [path, body]);
  for (const path of ['/route/temp.rte', '/route/..%2Fevil.rte', '/route/.rte', '/route/a%5Cb.rte', '/route/x.cfg', '/panel/x.pnl'])
    assert.equal(await put(path, plan), 400, path);
  assert.equal(await put('/route/nul.rte', 'a\0b'), 400);
  // who doesn't say where he comes from writes nothing
  const outside = await fetch(new URL('/route/outside.rte', host.address), {method: 'PUT', body: plan});
  assert.equal(outside.status, 405);
  assert.equal((await fetch(new URL('/route/outside.rte', host.address))).status, 404);
});
