// Puts the flight deck together and follows the link.

import {element, Panels} from './controls.js';
import {Files} from './files.js';
import {makeGlareshield} from './glareshield.js';
import {Hands} from './hands.js';
import {Inspector} from './inspector.js';
import {makeKeyboardHelp, makeKeypad, takeKeyboard} from './keypad.js';
import {Link} from './link.js';
import {efbKeys, efbLabels, failures, flightLevers, ground, overhead, pedestal} from './panels.js';
import {Screens} from './screens.js';

// A page of one screen, or of one unit for a phone or tablet; else the whole deck.
const [, kind, which] = location.pathname.match(/^\/(screen|cdu|tablet)\/(\w+)$/) ?? [];
const alone = kind === 'screen' ? which : null;

const link = new Link({
  hello(message) {
    screens.forget();
    screens.setFamilies(message.fonts ?? []);
    loadFonts(message.fonts ?? []);
    panels.setControls(message.controls ?? {});
    onAircraft = {ground: message.ground ?? [], failures: message.failures ?? []};
    version.textContent = message.version ?? '';
    flightLevers.flaps.stops = message.flaps.map(([degrees, at]) => [degrees === 0 ? 'UP' : String(degrees), at]);
    if (!built) (kind ? handheld : deck)();
    built = true;
    inspector.setNames(message.variables ?? {}, message.named ?? []);
  },
  picture(index, bytes) { screens.take(index, bytes); },
  live(live) {
    document.body.classList.toggle('lost', !live);
    screens.setDark(!live);
  },
});
const panels = new Panels(link);
let built = Boolean(alone);  // the deck stands once it is known which controls there are
const screens = new Screens(link, (canvas, sideOf) => takeKeyboard(canvas, panels, sideOf));
const inspector = new Inspector(link);
const files = new Files();

// The same files as the host's own rasteriser uses.
let fontsLoaded = '';
async function loadFonts(families) {
  if (fontsLoaded === families.join()) return;
  fontsLoaded = families.join();
  document.fonts.clear();
  await Promise.allSettled(families.map((family, number) => {
    const font = new FontFace(family, `url(/font/${number})`, {weight: 'bold'});
    document.fonts.add(font);
    return font.load();
  }));
  screens.redraw();
}

function tablet(side) {
  const column = (place) => element('div', `efb-keys ${place}`, '', ...panels.makeAll(efbKeys[place].map((name) =>
      ({look: 'key', name: `TZ_EFB_${side}_${name}_Button`, label: efbLabels[name] ?? name, lamps: []}))));
  return element('div', `efb panel side-${side}`, '', column('top'), column('left'),
                 screens.unit(side === 'L' ? 'efb_l' : 'efb_r'), column('right'), column('bottom'));
}

function timeControls() {
  const made = element('div', 'time'), pause = element('button', 'pause', 'PAUSE');
  pause.addEventListener('click', () =>
    link.send({type: 'pause', value: link.number('host:paused') === 0 ? 1 : 0}));
  link.watch('host:paused', (value) => {
    pause.classList.toggle('lit', value === '1');
    pause.setAttribute('aria-pressed', value === '1');
  });
  made.append(pause);
  for (const rate of [0.5, 1, 2, 4, 8, 16, 32, 64]) {
    const button = element('button', 'rate', rate === 0.5 ? '\u00bd' : String(rate));
    button.title = `${rate} times real time`;
    button.dataset.rate = rate;
    button.addEventListener('click', () => link.send({type: 'rate', value: rate}));
    link.watch('host:rate', (value) => button.classList.toggle('lit', Number(value) === rate));
    made.append(button);
  }
  return made;
}

let onAircraft = {ground: [], failures: []};  // what the ground can do to it, what can fail
const version = element('small', 'version');

function bar() {
  const made = element('header', 'top');
  const number = (label, name, unit, tell = (value) => String(Math.round(value))) => {
    const shown = element('b', '', '-');
    shown.dataset.fact = name;
    link.watch(name, (value) => { shown.textContent = tell(Number(value)); });
    return element('span', 'fact', label, shown, unit);
  };
  const heading = (value) => String(Math.round(value) % 360 || 360).padStart(3, '0');
  const doing = element('span', 'doing'), starting = element('span', 'starting', 'starting');
  const control = element('button', 'control-key');
  const tellPilot = () => {
    const pilot = link.values.get('host:pilot'), mine = link.values.get('host:user_has');
    doing.textContent = (pilot ? `pilot: ${pilot}` : '') + (mine ? `; you have ${mine}` : '');
    control.hidden = !pilot;
    control.textContent = mine ? 'GIVE BACK' : 'I HAVE CONTROL';
  };
  for (const name of ['host:pilot', 'host:user_has']) link.watch(name, () => queueMicrotask(tellPilot));
  control.hidden = true;
  control.addEventListener('click', () => link.send({type: 'control', value: link.values.get('host:user_has') ? 0 : 1}));
  link.watch('outputs_running', (value) => { starting.hidden = value !== '0'; });
  const clock = element('b', '', '-');
  link.watch('host:clock', (value) => { clock.textContent = value; });
  const state = element('span', 'link-state');
  made.append(element('h1', '', 'TZ900'), state, element('span', 'fact', 'UTC ', clock),
              number('ALT ', 'aircraft:alt', ' ft'), number('IAS ', 'aircraft:ias', ' kt'), number('GS ', 'aircraft:gs', ' kt'),
              number('HDG ', 'mag_hdg', '\u00b0 mag', heading), number('FUEL ', 'aircraft:fuel', ' lb'),
              number('PWR ', 'power_level', ' of 1000'), starting, doing, control, timeControls(), version);
  return made;
}

function lower() {
  const views = {
    Centre: element('div', 'view centre', '', tablet('L'), makeKeypad(panels, 'L'), screens.unit('lower'),
                    makeKeypad(panels, 'R'), tablet('R')),
    Overhead: element('div', 'view', '', panels.groups(overhead, 'overhead')),
    Pedestal: element('div', 'view', '', panels.groups(pedestal, 'pedestal')),
    Ground: element('div', 'view', '', panels.groups(ground(onAircraft.ground), 'overhead')),
    Failures: element('div', 'view', '', panels.groups(failures(onAircraft.failures), 'overhead')),
    Hands: element('div', 'view', '', new Hands(panels).element),
    Files: element('div', 'view', '', files.element),
    Inspector: element('div', 'view inspection', '', inspector.element, screens.unit('debug')),
  };
  const tabs = element('nav', 'tabs'), made = element('section', 'lower-deck', '', tabs, ...Object.values(views));
  made.setAttribute('aria-label', 'Below the displays');
  const choose = (name) => {
    for (const [other, view] of Object.entries(views)) view.hidden = other !== name;
    for (const tab of tabs.children) tab.classList.toggle('lit', tab.dataset.view === name);
    document.body.dataset.view = name;
    inspector.show(name === 'Inspector');
    files.show(name === 'Files');
    history.replaceState(null, '', `${location.pathname}${location.search}#${name}`);
  };
  for (const name of Object.keys(views)) {
    const tab = element('button', 'tab', name);
    tab.dataset.view = name;
    tab.addEventListener('click', () => choose(name));
    tabs.append(tab);
  }
  const asked = decodeURIComponent(location.hash.slice(1));
  choose(asked in views ? asked : 'Centre');
  return made;
}

function deck() {
  const displays = element('main', 'displays');
  displays.append(screens.unit('capt_outb'), screens.unit('capt_inb'),
                  element('div', 'middle', '', screens.unit('hud'), screens.unit('stby')),
                  screens.unit('fo_inb'), screens.unit('fo_outb'));
  document.body.append(bar(), makeGlareshield(panels), displays, lower());
}

// A page that is about one thing only.
function pageOf(title, ...children) {
  document.title = `TZ900 ${title}`;
  document.body.append(element('main', 'page', '', element('h1', 'unseen', document.title), ...children));
}

// One unit with its keys, as large as the phone or tablet is.
function handheld() {
  const side = which.toUpperCase();
  document.body.classList.add('handheld');
  if (kind === 'tablet') return pageOf(`tablet ${side}`, tablet(side));
  pageOf(`CDU ${side}`, element('div', `half ${side}`, '', screens.canvas('lower')), makeKeypad(panels, side));
}

// One screen for a monitor of its own. With ?bare there is nothing but the picture.
function screenAlone() {
  document.body.classList.add('alone');
  const canvas = screens.canvas(alone);
  pageOf(alone, canvas);
  if (!new URLSearchParams(location.search).has('bare'))
    document.body.append(element('footer', 'hints', '', element('span', '', alone),
                                 element('span', '', 'Alt+Enter: full screen'), element('span', '', '?bare: the picture alone')));
  canvas.focus();
  addEventListener('keydown', (event) => {
    if (!event.altKey || event.key !== 'Enter') return;
    event.preventDefault();
    if (document.fullscreenElement) document.exitFullscreen();
    else document.documentElement.requestFullscreen();
  });
  // A monitor in a home cockpit stays on; the lock ends whenever the page is hidden.
  const stayAwake = () => {
    if (document.visibilityState === 'visible') navigator.wakeLock?.request('screen').catch(() => {});
  };
  document.addEventListener('visibilitychange', stayAwake);
  stayAwake();
}

for (const name of ['capt.ScratchPad', 'fo.ScratchPad']) link.watch(name, () => {});  // what a held CLR clears
document.body.append(makeKeyboardHelp());
document.body.classList.add('lost');
if (alone) screenAlone();
// For tests and the curious.
window.deck = {link, screens, panels};
