// The screens: a canvas each in its bezel, live while it can be seen.

import {element} from './controls.js';
import {Screen} from './picture.js';

/** In the order of the host's stream. */
export const SCREENS = [
  ['capt_outb', 'Captain outboard'], ['capt_inb', 'Captain inboard'], ['fo_inb', 'F/O inboard'],
  ['fo_outb', 'F/O outboard'], ['lower', 'Lower'], ['hud', 'HUD'], ['stby', 'Standby'],
  ['efb_l', 'Tablet L'], ['efb_r', 'Tablet R'], ['debug', 'Debug'],
];

export class Screens {
  /** typed(side, key): a key typed while a screen with a CDU has the focus. */
  constructor(link, typed) {
    this.link = link;
    this.typed = typed;
    this.screens = new Map();
    this.families = [];
    this.observer = new IntersectionObserver((entries) => {
      for (const {target, isIntersecting} of entries) this.show(target.dataset.screen, isIntersecting);
    });
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
    const canvas = element('canvas', 'screen');
    canvas.dataset.screen = name;
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
    if (hasKeypad) canvas.addEventListener('keydown', (event) => this.typed(side, event));
    return canvas;
  }

  /** The screen in its bezel, which opens it large or alone. */
  unit(name) {
    const [, title] = SCREENS.find(([id]) => id === name);
    const unit = element('figure', `unit ${name}`);
    const large = element('button', 'tool', '\u2922'), alone = element('a', 'tool', '\u2197');
    large.title = 'Large, and back';
    alone.title = 'Alone in a window';
    alone.href = `/screen/${name}`;
    alone.target = '_blank';
    large.addEventListener('click', () => unit.classList.toggle('large'));
    unit.append(this.canvas(name), element('figcaption', '', title, large, alone));
    return unit;
  }
}
