// The link: lost, late and back again; several browsers; what is refused.

import assert from 'node:assert/strict';
import {createConnection} from 'node:net';
import {test} from 'node:test';
import {linkUp, litPixels, openDeck, passStart, setVariable, sleep, startHost, until, untilValue, valueOf} from './support.mjs';

const isDark = async (page) => await litPixels(page, 'stby') === 0;

test('a lost link blanks the screens within two seconds, and they come back after a restart', async (t) => {
  const host = await startHost(t);
  const page = await openDeck(t, host.address);
  await passStart(page);
  await until('a lit screen', async () => await litPixels(page, 'stby') > 0);

  // A host that hangs sends nothing and closes nothing.
  process.kill(host.pid, 'SIGSTOP');
  const stopped = Date.now();
  await until('dark screens', () => isDark(page), 10);
  assert.ok(Date.now() - stopped < 2500, `dark after ${Date.now() - stopped} ms`);
  assert.equal(await page.evaluate(() => document.body.classList.contains('lost')), true);
  process.kill(host.pid, 'SIGCONT');
  await until('a lit screen', async () => await litPixels(page, 'stby') > 0);

  assert.equal(await host.stop(), 0);
  const closed = Date.now();
  await until('dark screens', () => isDark(page), 10);
  assert.ok(Date.now() - closed < 2500, `dark after ${Date.now() - closed} ms`);
  await startHost(t, '--port', String(host.port));
  await linkUp(page);
  await passStart(page);
  await until('a lit screen', async () => await litPixels(page, 'stby') > 0);
});

test('two browsers see each other\'s hand', async (t) => {
  const host = await startHost(t);
  const one = await openDeck(t, host.address);
  const other = await openDeck(t, host.address, '#Inspector');
  await one.click('.rate[data-rate="4"]');
  await untilValue(other, 'host:rate', 4);
  await other.click('.pause');
  await untilValue(one, 'host:paused', 1);
  const clock = await valueOf(one, 'host:clock');
  await sleep(600);
  assert.equal(await valueOf(other, 'host:clock'), clock);
  await one.click('.pause');
  await until('time to go on', async () => await valueOf(other, 'host:clock') !== clock);

  // The inspector sets a variable, which both see.
  await other.fill('.search', 'TransAlt');
  await other.fill('.row[data-variable="TransAlt"] .value', '5500');
  await other.press('.row[data-variable="TransAlt"] .value', 'Enter');
  await untilValue(one, 'TransAlt', 5500);
  await other.fill('.row[data-variable="TransAlt"] .value', 'high');
  await other.press('.row[data-variable="TransAlt"] .value', 'Enter');
  await other.waitForSelector('.row[data-variable="TransAlt"].refused');
  await other.fill('.search', 'token:116');
  await until('a token by its number', async () =>
    Number(await other.inputValue('.row[data-variable="token:116"] .value')) > 0);
});

test('the bar tells units, and what the pilot does', async (t) => {
  const host = await startHost(t);
  const page = await openDeck(t, host.address);
  await until('the pilot', async () => /^pilot: [a-z]/.test(await page.textContent('.doing')));
  assert.match(await page.textContent('.top'), /HDG\s*\d{3}\u00b0 mag.*FUEL\s*\d+ lb/s);

  const cold = await openDeck(t, (await startHost(t, '--cold')).address);
  assert.ok(await cold.locator('.starting').isVisible());
  await passStart(cold);
  await until('the end of the start', async () => !await cold.locator('.starting').isVisible());
});

test('one screen opens alone and follows its unit', async (t) => {
  const host = await startHost(t);
  const page = await openDeck(t, host.address, 'screen/capt_inb', {viewport: {width: 900, height: 600}});
  await passStart(page);
  await until('a lit screen', async () => await litPixels(page, 'capt_inb') > 0, 120);
  const shown = () => page.evaluate(() => document.querySelector('canvas').toDataURL());
  const before = await shown();
  await setVariable(page, 'du_capt_inb_mode', 49);
  await until('another format', async () => await shown() !== before);
});

test('a click on a screen reaches what lies there', async (t) => {
  const host = await startHost(t);
  const page = await openDeck(t, host.address);
  await passStart(page);
  await until('a lit screen', async () => await litPixels(page, 'lower') > 0);
  const click = async (x, y) => {
    const box = await page.locator('canvas[data-screen=lower]').boundingBox();
    await page.mouse.click(box.x + x / 564 * box.width, box.y + y / 424 * box.height);
  };
  // The keys RTE and LEGS of both halves, as they are drawn below the CDU.
  await click(54, 234);
  await until('the captain\'s RTE page', async () => await valueOf(page, 'capt_fms_page') === '22');
  await click(282 + 76, 258);
  await until('the first officer\'s LEGS page', async () => await valueOf(page, 'fo_fms_page') === '6');
  assert.equal(await valueOf(page, 'capt_fms_page'), '22');
});

test('a page left open does not grow', async (t) => {
  const host = await startHost(t, '--rate', '16');
  const page = await openDeck(t, host.address);
  const session = await page.context().newCDPSession(page);
  const held = async () => {
    await session.send('HeapProfiler.collectGarbage');
    const {nodes, jsEventListeners} = await session.send('Memory.getDOMCounters');
    return {nodes, jsEventListeners, heap: (await session.send('Runtime.getHeapUsage')).usedSize};
  };
  const lookAround = async (times) => {
    for (let i = 0; i < times; ++i)
      for (const view of ['Overhead', 'Inspector', 'Centre']) {
        await page.click(`[data-view="${view}"].tab`);
        await sleep(100);
      }
    await sleep(2000);
  };
  await lookAround(1);  // what is made once, and the first pictures of all screens
  const before = await held();
  await lookAround(4);
  const after = await held();
  assert.ok(after.nodes <= before.nodes + 50, `nodes ${before.nodes} to ${after.nodes}`);
  assert.ok(after.jsEventListeners <= before.jsEventListeners + 20,
            `listeners ${before.jsEventListeners} to ${after.jsEventListeners}`);
  assert.ok(after.heap < before.heap * 1.3 + 1e6, `heap ${before.heap} to ${after.heap}`);
});

// What a page of our own never sends. Each closes its own link, with a reason, and nothing else.
const REFUSED = [
  ['not JSON at all', 'not a message'],
  ['[1, 2]', 'not a message'],
  ['{"type": 5}', 'not a message'],
  ['{"type": "launch"}', 'unknown message type'],
  ['{"type": "lvar", "name": "TZ_OH_ELE_BAT_Button"}', 'lvar'],
  ['{"type": "lvar", "name": "TZ_OH_ELE_BAT_Button", "value": 1e300}', 'lvar'],
  ['{"type": "lvar", "name": 7, "value": 1}', 'lvar'],
  ['{"type": "set", "name": "TransAlt", "text": 5}', 'set'],
  ['{"type": "press", "name": "TZ_FMC_L_A_Button"}', 'press'],
  ['{"type": "mouse", "screen": "lower", "x": 1, "y": 2, "button": "both"}', 'mouse'],
  ['{"type": "area", "gauge": "MCP"}', 'area'],
  ['{"type": "event", "event": "pause", "value": 0}', 'event'],
  ['{"type": "rate", "value": "fast"}', 'rate'],
  ['{"type": "lever", "name": "flaps"}', 'lever'],
  ['{"type": "screens", "names": ["door_camera"]}', 'no such screen'],
  ['{"type": "screens", "names": "lower"}', 'names'],
  ['{"type": "watch", "names": [5]}', 'names'],
  [`{"type": "watch", "names": ["${'x'.repeat(300)}"]}`, 'names'],
  ['[' .repeat(20000), 'not a message'],
];

test('a bad message closes its own link with a reason', async (t) => {
  const host = await startHost(t);
  const page = await openDeck(t, host.address);
  const closing = (message) => page.evaluate((message) => new Promise((done) => {
    const socket = new WebSocket(`ws://${location.host}/socket`);
    socket.onopen = () => socket.send(typeof message === 'string' ? message : new Uint8Array(message));
    socket.onclose = ({code, reason}) => done({code, reason});
  }), message);
  for (const [message, reason] of REFUSED) {
    const closed = await closing(message);
    assert.equal(closed.code, 1008, message.slice(0, 80));
    assert.ok(closed.reason.startsWith(reason), `${message.slice(0, 80)}: ${closed.reason}`);
  }
  assert.equal((await closing([1, 2, 3])).code, 1008);
  assert.equal((await closing('x'.repeat(100000))).code, 1009);
  const flood = await page.evaluate(() => new Promise((done) => {
    const socket = new WebSocket(`ws://${location.host}/socket`);
    socket.onopen = () => {
      for (let i = 0; i < 3000; ++i) socket.send('{"type": "rate", "value": 1}');
    };
    socket.onclose = ({reason}) => done(reason);
  }));
  assert.equal(flood, 'too many messages');
  assert.equal(await page.evaluate(() => window.deck.link.live), true);
});

// Status of a request that no browser would make: the target is sent as it stands.
function status(port, target, headers = {}) {
  return new Promise((done, failed) => {
    const socket = createConnection(port, '127.0.0.1');
    const fields = {Host: `127.0.0.1:${port}`, Connection: 'close', ...headers};
    socket.end(`GET ${target} HTTP/1.1\r\n${Object.entries(fields).map(([k, v]) => `${k}: ${v}\r\n`).join('')}\r\n`);
    let answer = '';
    socket.on('data', (data) => { answer += data.toString('latin1'); });
    socket.on('close', () => done(Number(answer.split(' ')[1])));
    socket.on('error', failed);
  });
}

const UPGRADE = {'Upgrade': 'websocket', 'Connection': 'Upgrade', 'Sec-WebSocket-Version': '13',
                 'Sec-WebSocket-Key': 'dGhlIHNhbXBsZSBub25jZQ=='};

test('who may come, and what there is', async (t) => {
  const {port} = await startHost(t);
  const cases = [
    ['/', 200], ['/index.html', 200], ['/main.js', 200], ['/screen/lower', 200], ['/font/0', 200],
    ['/screen/nothing', 404], ['/nothing.js', 404], ['/font/99', 404], ['/font/-1', 404], ['/font/0x', 404],
    ['/..', 404], ['/../deck.h', 404], ['/%2e%2e/deck.h', 404], ['/page/../../deck.h', 404], ['/.', 404],
    ['/screen/../../deck.h', 404], ['/image/../../etc/passwd', 404], ['/image/%2fetc%2fpasswd', 404],
    ['/image/..%2f..%2fetc%2fpasswd', 404], ['/image/Velarion%2ftz900.cfg', 404], ['/image/%', 404],
    ['/image/', 404], ['/socket', 404], ['/elsewhere', 404, UPGRADE],
    ['/', 403, {Origin: 'http://elsewhere.example'}],
    ['/socket', 403, {...UPGRADE, Origin: 'http://elsewhere.example'}],
    ['/socket', 403, {...UPGRADE, Origin: `https://127.0.0.1:${port}`}],
    ['/socket', 403, {...UPGRADE, Host: `elsewhere.example:${port}`, Origin: `http://elsewhere.example:${port}`}],
    ['/socket', 101, {...UPGRADE, Origin: `http://127.0.0.1:${port}`}],
  ];
  for (const [target, wanted, headers] of cases)
    assert.equal(await status(port, target, headers), wanted, `${target} ${JSON.stringify(headers ?? {})}`);

  const wide = await startHost(t, '--address', '0.0.0.0', '--token', 'secret2abcdef');
  const told = await until('the QR code', () => /\u2584[^]*\n\n/.test(wide.told()) && wide.told());
  assert.match(told, /and at http:\/\/127\.0\.0\.1:\d+\/\?token=secret2abcdef\n/);
  assert.equal(await status(wide.port, '/'), 403);
  assert.equal(await status(wide.port, '/?token=secret'), 403);
  assert.equal(await status(wide.port, '/socket', UPGRADE), 403);
  assert.equal(await status(wide.port, '/?token=secret2abcdeg'), 403);
  assert.equal(await status(wide.port, '/?token=secret2abcdef'), 200);
  assert.equal(await status(wide.port, '/main.js', {Cookie: 'token=secret2abcdef'}), 200);
  assert.equal(await status(wide.port, '/socket', {...UPGRADE, Cookie: 'token=secret2abcdef'}), 101);
});

test('who holds connections and asks for nothing keeps nobody out', async (t) => {
  const {port, address} = await startHost(t);
  const held = [...Array(600)].map(() => createConnection(port, '127.0.0.1'));
  t.after(() => held.forEach((socket) => socket.destroy()));
  let closed = 0;
  for (const socket of held) socket.on('error', () => {}).on('close', () => { ++closed; }).resume().write('GET / HT');
  await until('most to be dropped', () => closed >= 400);
  const page = await openDeck(t, address);
  await until('all to be dropped', () => closed === 600);
  await page.evaluate(() => {
    window.links = [...Array(31)].map(() => new WebSocket(`ws://${location.host}/socket`));
  });
  await until('the links', () => page.evaluate(() => window.links.every((link) => link.readyState === 1)));
  assert.equal(await status(port, '/'), 503);
  assert.equal(await status(port, '/socket', UPGRADE), 503);
  assert.equal(await status(port, '/main.js'), 200);
});

test('a browser that stops reading costs the host nothing', async (t) => {
  const host = await startHost(t);
  const page = await openDeck(t, host.address);
  const deaf = createConnection(host.port, '127.0.0.1');
  t.after(() => deaf.destroy());
  deaf.on('error', () => {});
  const fields = {Host: `127.0.0.1:${host.port}`, ...UPGRADE};
  deaf.write(`GET /socket HTTP/1.1\r\n${Object.entries(fields).map(([k, v]) => `${k}: ${v}\r\n`).join('')}\r\n`);
  const masked = (text) => Buffer.concat([Buffer.from([0x81, 0xfe, text.length >> 8, text.length & 255, 0, 0, 0, 0]),
                                          Buffer.from(text)]);
  deaf.write(masked(JSON.stringify({type: 'screens', names: ['capt_outb', 'capt_inb', 'fo_inb', 'lower', 'stby']}).padEnd(200)));
  deaf.pause();
  // The others go on as before.
  const pictures = () => page.evaluate(() => window.deck.screens.screens.get('capt_outb').pictures);
  for (let i = 0; i < 6; ++i) {
    const clock = await valueOf(page, 'host:clock');
    await setVariable(page, 'du_capt_outb_mode', 1 + i % 2);
    await until('time to go on', async () => await valueOf(page, 'host:clock') !== clock, 20);
  }
  assert.ok(await pictures() > 0);
  assert.equal(await page.evaluate(() => window.deck.link.live), true);
});
