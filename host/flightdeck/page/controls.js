// Controls as they stand on a panel. A control writes its named variable as the cockpit's model would, and shows
// what the variable says; what a click may do is the system's to decide.

const LONG_PRESS = 500;  // ms on touch: a right click
const STILL = 2;         // px that a finger may move meanwhile

export function element(tag, className, text, ...children) {
  const made = document.createElement(tag);
  if (className) made.className = className;
  if (text) made.textContent = text;
  made.append(...children);
  return made;
}

/** Clicks of either button, the wheel, a long press and the keyboard as two senses: down (left) and up (right).
    `halves`: on touch, where there is one finger, the right half means up. */
export function bindPress(target, press, {halves = false} = {}) {
  let timer = 0, long = false, touch = false;
  target.addEventListener('pointerdown', (event) => {
    long = false;
    touch = event.pointerType !== 'mouse';
    if (!touch) return;
    timer = setTimeout(() => {
      long = true;
      press(true, event);
    }, LONG_PRESS);
  });
  for (const end of ['pointerup', 'pointercancel', 'pointerleave'])
    target.addEventListener(end, () => clearTimeout(timer));
  target.addEventListener('pointermove', (event) => {
    if (Math.hypot(event.movementX, event.movementY) > STILL) clearTimeout(timer);
  });
  target.addEventListener('click', (event) => {
    if (long) return;
    const box = target.getBoundingClientRect();
    press(halves && touch && event.clientX > box.left + box.width / 2, event);
  });
  target.addEventListener('contextmenu', (event) => {
    event.preventDefault();
    if (!touch) press(true, event);
  });
  target.addEventListener('keydown', (event) => {
    if (event.key !== 'ArrowUp' && event.key !== 'ArrowDown') return;
    event.preventDefault();
    press(event.key === 'ArrowUp', event);
  });
}

// The position of what turns, for those who don't see it.
function tellPosition(face, at, text, min, max) {
  face.setAttribute('aria-valuenow', at);
  face.setAttribute('aria-valuemin', min);
  face.setAttribute('aria-valuemax', Math.max(max, min));
  face.setAttribute('aria-valuetext', text || String(at));
}

function nameFace(face, label) {
  face.dataset.label = label;
  face.setAttribute('aria-label', label);
}

export class Panels {
  constructor(link) {
    this.link = link;
    this.controls = new Map();
  }

  /** The controls as the module tells them: name to "CLASS SET MIN MAX GUARD STATE". */
  setControls(controls) {
    this.controls = new Map(Object.entries(controls).map(([name, told]) => {
      const [kind, , min, max, guard] = told.split(' ');
      return [name, {kind, min: Number(min), max: Number(max), guard: guard === '-' ? null : guard}];
    }));
  }

  write(name, value) { this.link.send({type: 'lvar', name, value}); }

  /** One click on a control's variable, `up` for the right button's sense. */
  operate(entry, up) {
    const {kind, min, max} = this.controls.get(entry.name), now = this.link.number(`lvar:${entry.name}`);
    if (kind === 'momentary') return this.link.send({type: 'press', name: entry.name, value: up ? 2 : 1});
    if (kind === 'guard') return this.write(entry.name, now === 0 ? 1 : 0);
    if (kind === 'rotary') return this.write(entry.name, up ? (now >= max ? min : now + 1) : now <= min ? max : now - 1);
    if (kind === 'switch' || kind === 'mirrored' && entry.look === 'switch') {
      const next = Math.max(min, Math.min(max, now + (up ? 1 : -1)));
      // At its end a two-position switch goes back: there is but one way.
      return this.write(entry.name, next === now && max - min === 1 ? (now === min ? max : min) : next);
    }
    this.write(entry.name, now === 0 ? 1 : 0);
  }

  /** A lamp on a part of a control; one that burns is told with the name of the face. */
  lamp([name, text, colour], parent, face) {
    const lit = element('i', `lamp ${colour}`);
    lit.dataset.lamp = name;
    if (text) lit.dataset.text = text;
    this.link.watch(name.includes(':') ? name : `lvar:${name}`, (value) => {
      lit.classList.toggle('lit', Number(value) !== 0);
      const burning = [...parent.querySelectorAll('.lamp.lit')].map((lamp) => lamp.dataset.text ?? 'lit');
      face.setAttribute('aria-label', [face.dataset.label, ...burning].join(', '));
    });
    parent.append(lit);
  }

  /** The element of a panel's entry. */
  make(entry) {
    const makers = {button: this.button, switch: this.selector, key: this.key, handle: this.handle,
                    area: this.area, event: this.event, lever: this.lever, toggle: this.toggle};
    const made = makers[entry.look].call(this, entry);
    if (entry.name) {
      made.dataset.name = entry.name;
      made.title = entry.name;
    }
    return made;
  }

  /** The elements of entries, without the controls that the module doesn't tell. */
  makeAll(entries) {
    return entries.filter(({name}) => !name || this.controls.has(name)).map((entry) => this.make(entry));
  }

  // A control with its label above; what is pressed is its face.
  frame(className, entry, face) {
    const made = element('div', `control ${className}`);
    made.append(element('span', 'label', entry.label), face);
    nameFace(face, entry.label);
    if (this.isGuarded(entry)) this.cover(entry, face);
    return made;
  }
  isGuarded(entry) { return Boolean(this.controls.get(entry.name)?.guard); }

  cover(entry, face) {
    const {guard} = this.controls.get(entry.name);
    const cover = element('span', 'cover');
    const wrap = element('div', 'guarded');
    face.replaceWith(wrap);
    wrap.append(face, cover);
    wrap.dataset.guard = guard;
    this.link.watch(`lvar:${guard}`, (value) => wrap.classList.toggle('open', Number(value) !== 0));
    bindPress(wrap, (up, event) => {
      event.stopPropagation();
      // A cover that stands open is shut at its edge, or by the right button like it was opened.
      if (up || event.target === cover && wrap.classList.contains('open')) this.operate({name: guard}, up);
      else this.operate(entry, entry.look === 'switch' && this.link.number(`lvar:${entry.name}`) === 0);
    });
  }

  button(entry) {
    const face = element('button', 'face');
    const stays = element('i', 'stays');
    stays.dataset.text = entry.stays;
    face.append(stays);
    for (const lamp of entry.lamps) this.lamp(lamp, face, face);
    this.link.watch(`lvar:${entry.name}`, (value) => {
      face.classList.toggle('in', Number(value) !== 0);
      face.setAttribute('aria-pressed', Number(value) !== 0);
    });
    if (entry.areas)
      bindPress(face, () => this.link.send({type: 'area', gauge: 'MCP', button: 'left',
                                             area: entry.areas[this.link.number(`lvar:${entry.name}`) === 0 ? 1 : 0]}));
    else if (!this.isGuarded(entry)) bindPress(face, () => this.operate(entry, false));
    return this.frame('push', entry, face);
  }

  selector(entry) {
    const face = element('button', 'dial'), pointer = element('span', 'pointer'), text = element('span', 'position');
    face.append(pointer);
    const made = this.frame('selector', entry, face);
    made.append(text);
    for (const lamp of entry.lamps) this.lamp(lamp, made, face);
    face.setAttribute('role', 'slider');
    this.link.watch(`lvar:${entry.name}`, (value) => {
      const {kind, min, max} = this.controls.get(entry.name), at = Number(value);
      const count = Math.max(1, Math.max(max, at) - min);
      const turn = kind === 'rotary' ? (at - min) / (count + 1) * 360 : ((at - min) / count - 0.5) * Math.min(270, 60 * count);
      pointer.style.transform = `rotate(${turn}deg)`;
      text.textContent = entry.positions[at - min] ?? (kind === 'rotary' ? '' : value);
      tellPosition(face, at, text.textContent, min, max);
    });
    if (!this.isGuarded(entry)) {
      bindPress(face, (up) => this.operate(entry, up), {halves: true});
      face.addEventListener('wheel', (event) => {
        event.preventDefault();
        this.operate(entry, event.deltaY < 0);
      }, {passive: false});
    }
    return made;
  }

  key(entry) {
    const face = element('button', 'face', entry.lamps.length ? '' : entry.label);
    nameFace(face, entry.label);
    for (const lamp of entry.lamps) this.lamp(lamp, face, face);
    bindPress(face, (up) => this.operate(entry, up));
    if (!entry.lamps.some(([, text]) => text)) {
      if (entry.lamps.length) face.prepend(entry.label);
      face.classList.add('plain');
      const made = element('div', 'control key');
      made.append(face);
      return made;
    }
    return this.frame('push', entry, face);
  }

  handle(entry) {
    const face = element('button', 'pull', entry.text), text = element('span', 'position');
    const made = this.frame('handle', entry, face);
    made.append(text);
    for (const lamp of entry.lamps) this.lamp(lamp, made, face);
    this.link.watch(`lvar:${entry.name}`, (value) => {
      face.classList.toggle('out', Number(value) !== 0);
      face.setAttribute('aria-pressed', Number(value) !== 0);
      text.textContent = ['IN', 'OUT', ...entry.bottles][Number(value)] ?? value;
    });
    // The left button pulls it and pushes it in, the right one turns what is pulled to a bottle.
    bindPress(face, (up) => {
      const now = this.link.number(`lvar:${entry.name}`);
      this.write(entry.name, !up ? (now === 0 ? 1 : 0) : now === 0 ? 1 : now > entry.bottles.length ? 2 : now + 1);
    });
    return made;
  }

  // A button that is worked through a mouse area of its gauge.
  area(entry) {
    const face = element('button', 'face plain', entry.label), bar = element('i', 'bar');
    face.append(bar);
    const made = element('div', 'control key area', '', face);
    made.dataset.area = entry.area;
    nameFace(face, `${entry.label}${/^[A-Z/ ]+$/.test(entry.label) && entry.label.length > 4 ? '' : ` ${entry.area}`}`);
    const seen = () => {
      const lit = entry.lit.some(([name, on]) => on.includes(this.link.number(name)));
      bar.classList.toggle('lit', lit);
      face.setAttribute('aria-pressed', lit);
    };
    for (const [name] of entry.lit) this.link.watch(name, () => queueMicrotask(seen));
    bindPress(face, (up) =>
      this.link.send({type: 'area', gauge: entry.gauge, area: entry.area, button: up ? 'right' : 'left'}));
    return made;
  }

  // What the pilot's own hardware does: a key event for each way.
  event(entry) {
    const face = element('button', 'lever'), text = element('span', 'position');
    const made = this.frame('selector', entry, face);
    made.append(text);
    this.link.watch(entry.value, (value) => {
      const on = Number(value) !== 0 ? 1 : 0;
      face.classList.toggle('up', on === 1);
      face.setAttribute('aria-pressed', on === 1);
      text.textContent = entry.texts[on];
    });
    bindPress(face, () =>
      this.link.send({type: 'event', event: entry.events[this.link.number(entry.value) !== 0 ? 0 : 1], value: 0}));
    return made;
  }

  // What the host's aircraft has or hasn't by itself: a failure, an open door.
  toggle(entry) {
    const face = element('button', 'face'), stays = element('i', 'stays'), value = `host:${entry.sends}:${entry.what}`;
    stays.dataset.text = entry.stays;
    face.append(stays);
    this.link.watch(value, (now) => {
      face.classList.toggle('in', now === '1');
      face.setAttribute('aria-pressed', now === '1');
    });
    bindPress(face, () => this.link.send({type: entry.sends, name: entry.what, value: this.link.number(value) === 0 ? 1 : 0}));
    const made = this.frame('push', entry, face);
    made.dataset[entry.sends] = entry.what;
    return made;
  }

  // The pilot's own lever: a click moves it by one stop.
  lever(entry) {
    const face = element('button', 'dial'), pointer = element('span', 'pointer'), text = element('span', 'position');
    face.append(pointer);
    const made = this.frame('selector', entry, face), last = entry.stops.length - 1;
    made.append(text);
    made.dataset.lever = entry.lever;
    const stop = () => {
      const at = this.link.number(entry.value) / entry.full;
      return entry.stops.reduce((best, [, value], i) =>
        Math.abs(value - at) < Math.abs(entry.stops[best][1] - at) ? i : best, 0);
    };
    face.setAttribute('role', 'slider');
    this.link.watch(entry.value, () => queueMicrotask(() => {
      tellPosition(face, stop(), entry.stops[stop()][0], 0, last);
      pointer.style.transform = `rotate(${(stop() / last - 0.5) * Math.min(270, 60 * last)}deg)`;
      text.textContent = entry.stops[stop()][0];
    }));
    const move = (up) => this.link.send({type: 'lever', name: entry.lever,
                                         value: entry.stops[Math.max(0, Math.min(last, stop() + (up ? 1 : -1)))][1]});
    bindPress(face, (up) => move(last === 1 ? stop() === 0 : up), {halves: true});
    face.addEventListener('wheel', (event) => {
      event.preventDefault();
      move(event.deltaY < 0);
    }, {passive: false});
    return made;
  }

  /** A panel of titled groups. */
  groups(list, className) {
    const panel = element('div', `panel ${className}`);
    for (const {title, controls} of list) {
      const group = element('section', 'group', '', element('h2', '', title));
      group.append(element('div', 'controls', '', ...this.makeAll(controls)));
      panel.append(group);
    }
    return panel;
  }
}
