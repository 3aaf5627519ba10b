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
    const press = (event, button) => {
      event.preventDefault();
      canvas.focus({preventScroll: true});
      const box = canvas.getBoundingClientRect();
      const x = (event.clientX - box.left) / box.width * screen.width;
      const y = (event.clientY - box.top) / box.height * screen.height;
      if (name === 'lower') side = x < screen.width / 2 ? 'L' : 'R';
      this.link.send({type: 'mouse', screen: name, x: Math.floor(x), y: Math.floor(y), button});
    };
    canvas.addEventListener('click', (event) => press(event, 'left'));
    canvas.addEventListener('contextmenu', (event) => press(event, 'right'));
    if (hasKeypad) this.keyboard(canvas, () => side);
    return canvas;
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
