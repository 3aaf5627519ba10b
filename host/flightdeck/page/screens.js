// The screens: a canvas each in its bezel, live while it can be seen.

import {element} from './controls.js';
import {Screen} from './picture.js';

const UNIT = 564 / 424, TABLET = 340 / 448;  // width by height

/** In the order of the host's stream: name, title, proportions. */
export const SCREENS = [
  ['capt_outb', 'Captain outboard', UNIT], ['capt_inb', 'Captain inboard', UNIT], ['fo_inb', 'F/O inboard', UNIT],
  ['fo_outb', 'F/O outboard', UNIT], ['lower', 'Lower', UNIT], ['hud', 'HUD', 480 / 410], ['stby', 'Standby', 100 / 92],
  ['efb_l', 'Tablet L', TABLET], ['efb_r', 'Tablet R', TABLET], ['debug', 'Debug', UNIT],
];

export class Screens {
  /** keyboard(canvas, sideOf): gives a screen with a CDU the keyboard while it has the focus. */
  constructor(link, keyboard) {
    this.link = link;
    this.keyboard = keyboard;
    this.screens = new Map();
    this.families = [];
    this.observer = new IntersectionObserver((entries) => {
      for (const {target, isIntersecting} of entries) this.show(target.dataset.screen, isIntersecting);
    });
    // A large unit goes back by Escape and by a press beside it, which does nothing else.
    addEventListener('keydown', (event) => { if (event.key === 'Escape' && this.shrink()) event.stopPropagation(); }, true);
    addEventListener('click', (event) => {
      if (!this.large || this.large.contains(event.target)) return;
      event.stopPropagation();
      this.shrink();
    }, true);
  }

  enlarge(unit) {
    this.shrink();
    this.large = unit;
    unit.classList.add('large');
  }
  /** False when no unit was large. */
  shrink() {
    if (!this.large) return false;
    this.large.classList.remove('large');
    this.large = null;
    return true;
  }

  setFamilies(families) {
    this.families = families;
    for (const screen of this.screens.values()) screen.families = families;
  }
  take(index, bytes) { this.screens.get(SCREENS[index][0])?.take(bytes); }
  setDark(dark) {
    for (const screen of this.screens.values()) screen.setDark(dark);
  }
  forget() {
    for (const screen of this.screens.values()) screen.forget();
  }
  redraw() {
    for (const screen of this.screens.values()) screen.draw();
  }

  show(name, shown) {
    if (!shown) this.screens.get(name)?.forget();
    this.link.wantScreen(name, shown);
  }

  canvas(name) {
    const [, title, aspect] = SCREENS.find(([id]) => id === name), canvas = element('canvas', 'screen');
    canvas.dataset.screen = name;
    canvas.style.setProperty('--aspect', aspect);
    canvas.setAttribute('role', 'application');
    canvas.setAttribute('aria-label', title);
    canvas.tabIndex = 0;
    const screen = new Screen(canvas, this.families);
    this.screens.set(name, screen);
    this.observer.observe(canvas);
    const hasKeypad = /^(capt_|fo_|lower)/.test(name);
    let side = name.startsWith('fo') ? 'R' : 'L';
    const placeOf = (event) => {
      const box = canvas.getBoundingClientRect();
      return [(event.clientX - box.left) / box.width * screen.width,
              (event.clientY - box.top) / box.height * screen.height];
    };
    const press = (event, button) => {
      event.preventDefault();
      canvas.focus({preventScroll: true});
      const [x, y] = placeOf(event);
      if (name === 'lower') side = x < screen.width / 2 ? 'L' : 'R';
      this.link.send({type: 'mouse', screen: name, x: Math.floor(x), y: Math.floor(y), button});
    };
    canvas.addEventListener('click', (event) => press(event, 'left'));
    canvas.addEventListener('contextmenu', (event) => press(event, 'right'));
    if (hasKeypad) this.keyboard(canvas, () => side);
    if (name.startsWith('efb')) this.makeTablet(canvas, name, placeOf);
    return canvas;
  }

  /** A tablet takes drags, and a computer's keyboard while it has the focus. */
  makeTablet(canvas, name, placeOf) {
    const SLACK = 5;  // pixels that a finger may move in a touch
    let from = null, dragged = false;
    const send = (type, event, more) => {
      const [x, y] = placeOf(event).map(Math.floor);
      this.link.send({type, screen: name, x, y, ...more});
    };
    canvas.style.touchAction = 'none';
    canvas.addEventListener('pointerdown', (event) => { from = event; dragged = false; });
    canvas.addEventListener('pointermove', (event) => {
      if (!from || !(event.buttons & 1)) return;
      if (!dragged && Math.hypot(event.clientX - from.clientX, event.clientY - from.clientY) < SLACK) return;
      if (!dragged) {
        canvas.setPointerCapture(event.pointerId);
        send('mouse', from, {button: 'left'});
      }
      dragged = true;
      send('drag', event);
    });
    for (const end of ['pointerup', 'pointercancel']) canvas.addEventListener(end, () => { from = null; });
    // The press at the drag's beginning has been sent.
    canvas.addEventListener('click', (event) => { if (dragged) event.stopImmediatePropagation(); }, true);
    const KEYS = {Enter: '\n', Backspace: '\b'};
    const type = (text) => this.link.send({type: 'type', screen: name, text});
    canvas.addEventListener('keydown', (event) => {
      if (event.ctrlKey || event.altKey || event.metaKey) return;
      const key = KEYS[event.key] ?? (event.key.length === 1 ? event.key : '');
      if (!key) return;
      event.preventDefault();
      event.stopPropagation();
      type(/[a-z]/.test(key) && !event.shiftKey ? key.toUpperCase() : key);
    });
    canvas.addEventListener('paste', (event) => {
      event.preventDefault();
      type(event.clipboardData.getData('text').trim().slice(0, 40));
    });
  }

  /** The screen in its bezel, which opens it large or alone. */
  unit(name) {
    const [, title, aspect] = SCREENS.find(([id]) => id === name);
    const unit = element('figure', `unit ${name}`);
    const large = element('button', 'tool', '\u2922'), alone = element('a', 'tool', '\u2197');
    unit.style.setProperty('--aspect', aspect);
    large.setAttribute('aria-label', `${title}, large and back`);
    alone.setAttribute('aria-label', `${title}, alone in a window`);
    large.title = 'Large, and back by this key, Escape or a press beside it';
    alone.title = 'Alone in a window';
    alone.href = `/screen/${name}`;
    alone.target = '_blank';
    large.addEventListener('click', () => unit === this.large ? this.shrink() : this.enlarge(unit));
    unit.append(this.canvas(name), element('figcaption', '', title, large, alone));
    return unit;
  }
}
