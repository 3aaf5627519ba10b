// Flying by hand: stick, thrust, steering, brakes and trim by pointer, by the keyboard while the panel has it, and by a
// gamepad. What springs back goes to its middle whenever it is let go, however that comes about.

import {element} from './controls.js';
import {flightLevers, handGamepad, handKeys} from './panels.js';

const PERIOD = 80;      // ms between messages about one lever
const DEAD = 0.08;      // of a gamepad's axis
const SPRINGS = ['elevator', 'aileron', 'rudder', 'brakes'];

const clamp = (value, low, high) => Math.max(low, Math.min(high, value));

export class Hands {
  constructor(panels) {
    this.panels = panels;
    this.link = panels.link;
    this.at = new Map();    // where the levers that spring back are
    this.due = new Map();   // what isn't told yet
    this.shown = new Map();  // what draws a lever
    this.pads = new Map();  // the gamepads' axes and buttons as they were
    this.element = this.make();
    addEventListener('gamepadconnected', () => this.pollGamepads());
    addEventListener('blur', () => this.letGo());
  }

  /** Moves a lever; the first move is told at once, those that follow soon are told together. */
  move(name, value) {
    if (SPRINGS.includes(name)) {
      if ((this.at.get(name) ?? 0) === value) return;
      this.at.set(name, value);
      this.shown.get(name)?.(value);
    }
    this.due.set(name, value);
    if (!this.timer) this.tell();
  }
  tell() {
    for (const [name, value] of this.due) this.link.send({type: 'lever', name, value});
    this.timer = this.due.size > 0 ? setTimeout(() => this.tell(), PERIOD) : 0;
    this.due.clear();
  }
  letGo() { for (const name of SPRINGS) this.move(name, 0); }
  click(name, value) { this.link.send({type: 'lever', name, value}); }

  thrust() { return this.link.number('token:128') / 16384; }
  moveThrust(step) { this.move('thrust', clamp((this.due.get('thrust') ?? this.thrust()) + step, -0.25, 1)); }

  // What a key or a gamepad's button does; `down` is false when it is let go.
  act(what, down) {
    const [name, amount] = what.split(' '), by = Number(amount);
    if (SPRINGS.includes(name)) return this.move(name, down ? by : 0);
    if (!down) return;
    if (name === 'thrust') this.moveThrust(by);
    else if (name === 'trim') this.click('trim', by);
    else if (name === 'disconnect') this.link.send({type: 'lvar', name: 'TZ_AP_DISENGAGE_Switch_Right', value: 1});
    else if (name === 'toga') this.link.send({type: 'event', event: 0x10145, value: 0});
    else if (name === 'speedbrake') this.click(name, this.link.number('token:325') > 0 ? 0 : 1);
    else if (name === 'gear') this.click(name, this.link.number('token:331') > 0 ? 0 : 1);
    else if (name === 'flaps') this.stepFlaps(by);
  }
  stepFlaps(by) {
    const stops = flightLevers.flaps.stops.map(([, at]) => at), now = this.link.number('token:328') / 16384;
    const next = by > 0 ? stops.find((at) => at > now + 0.01) : stops.findLast((at) => at < now - 0.01);
    if (next !== undefined) this.click('flaps', next);
  }

  make() {
    const panel = element('div', 'panel hands');
    panel.tabIndex = 0;
    panel.setAttribute('role', 'group');
    panel.setAttribute('aria-label', 'Flying by hand');
    panel.append(this.pad(), this.sliders(), this.buttons());
    for (const name of ['token:128', 'token:163', 'token:325', 'token:328', 'token:331']) this.link.watch(name, () => {});
    const held = (event) => event.target.type !== 'range' && !event.ctrlKey && !event.altKey && !event.metaKey &&
        handKeys.find(([key]) => key === (event.key.length === 1 ? event.key.toUpperCase() : event.key));
    panel.addEventListener('keydown', (event) => {
      if (event.key === 'Escape') return document.activeElement.blur();
      const row = held(event);
      if (!row) return;
      event.preventDefault();
      if (!event.repeat || row[1].startsWith('thrust')) this.act(row[1], true);
    });
    panel.addEventListener('keyup', (event) => {
      const row = held(event);
      if (row) this.act(row[1], false);
    });
    panel.addEventListener('focusout', (event) => {
      if (!panel.contains(event.relatedTarget)) this.letGo();
    });
    return panel;
  }

  pad() {
    const pad = element('button', 'pad'), knob = element('i', 'knob');
    pad.append(knob);
    pad.setAttribute('aria-label', 'Stick');
    pad.title = 'Drag it: down is nose up';
    const show = () => {
      knob.style.left = `${50 + 40 * (this.at.get('aileron') ?? 0)}%`;
      knob.style.top = `${50 + 40 * (this.at.get('elevator') ?? 0)}%`;
    };
    for (const name of ['aileron', 'elevator']) this.shown.set(name, show);
    let held = false;
    const follow = (event) => {
      if (!held) return;
      const box = pad.getBoundingClientRect();
      const share = (at, from, size) => clamp((at - from - size / 2) / (size * 0.4), -1, 1);
      this.move('aileron', share(event.clientX, box.left, box.width));
      this.move('elevator', share(event.clientY, box.top, box.height));
    };
    pad.addEventListener('pointerdown', (event) => {
      held = true;
      pad.setPointerCapture(event.pointerId);
      follow(event);
    });
    pad.addEventListener('pointermove', follow);
    for (const end of ['pointerup', 'pointercancel', 'lostpointercapture'])
      pad.addEventListener(end, () => {
        if (held) for (const name of ['aileron', 'elevator']) this.move(name, 0);
        held = false;
      });
    return element('div', 'control stick', '', element('span', 'label', 'Stick'), pad);
  }

  // A lever with a place of its own; `token` shows where it is, without one it springs back.
  slider(label, lever, low, token) {
    const input = element('input'), text = element('output', 'position');
    Object.assign(input, {type: 'range', min: low, max: 1, step: 0.01, value: 0});
    input.setAttribute('aria-label', label);
    text.setAttribute('aria-label', `${label}, percent`);
    input.dataset.lever = lever;
    let held = false;
    const show = (value) => {
      if (!held) input.value = value;
      text.textContent = `${Math.round(value * 100)} %`;
    };
    show(0);
    const end = () => {
      held = false;
      if (!token) this.move(lever, 0);
    };
    input.addEventListener('pointerdown', () => { held = true; });
    for (const name of ['pointerup', 'pointercancel', 'change', 'blur', 'keyup']) input.addEventListener(name, end);
    input.addEventListener('input', () => this.move(lever, Number(input.value)));
    if (token) this.link.watch(token, (value) => show(Number(value) / 16384));
    else this.shown.set(lever, show);
    return element('label', 'slide', '', element('span', 'label', label), input, text);
  }
  sliders() {
    return element('div', 'slides', '', this.slider('Thrust', 'thrust', -0.25, 'token:128'),
                   this.slider('Left', 'thrust_left', -0.25, 'token:128'),
                   this.slider('Right', 'thrust_right', -0.25, 'token:163'),
                   this.slider('Speedbrake', 'speedbrake', 0, 'token:325'), this.slider('Steering', 'rudder', -1));
  }

  key(label, what) {
    const face = element('button', 'face plain', label);
    face.dataset.hand = what;
    face.addEventListener('pointerdown', () => this.act(what, true));
    for (const end of ['pointerup', 'pointercancel', 'pointerleave'])
      face.addEventListener(end, () => this.act(what, false));
    // Enter and the space bar, or who presses it for one.
    face.addEventListener('click', (event) => {
      if (event.detail !== 0) return;
      this.act(what, true);
      setTimeout(() => this.act(what, false), 1000);
    });
    return element('div', 'control key', '', face);
  }
  buttons() {
    const {flaps, gear, arm} = flightLevers;
    return element('div', 'controls', '', this.key('Brakes', 'brakes 1'), this.key('Trim down', 'trim -1'),
                   this.key('Trim up', 'trim 1'), this.key('A/P disc', 'disconnect'),
                   this.key('TO/GA', 'toga'), ...this.panels.makeAll([flaps, gear, arm]));
  }

  // A gamepad acts by what changes: one that lies there holds nothing, one that is gone neither.
  pollGamepads() {
    clearTimeout(this.polling);
    const there = [...navigator.getGamepads()].filter((pad) => pad?.connected);
    for (const pad of there) this.follow(pad);
    for (const index of [...this.pads.keys()])
      if (!there.some((pad) => pad.index === index)) {
        this.pads.delete(index);
        this.letGo();
      }
    if (there.length) this.polling = setTimeout(() => this.pollGamepads(), PERIOD / 2);
  }
  follow(pad) {
    const {axes, throttle, buttons} = handGamepad, was = this.pads.get(pad.index);
    const now = {axes: [...pad.axes], pressed: pad.buttons.map((button) => button.pressed)};
    this.pads.set(pad.index, now);
    if (!was) return;
    const moved = (i, least) => Math.abs(now.axes[i] - was.axes[i]) > least;
    axes.forEach((name, i) => {
      const value = Math.abs(now.axes[i]) < DEAD ? 0 : now.axes[i];
      if (i < now.axes.length && Number.isFinite(value) && moved(i, 0)) this.move(name, clamp(value, -1, 1));
    });
    // A stick's throttle stays where it is put; the same axis of a pad springs back, its triggers do that work.
    if (pad.mapping !== 'standard' && now.axes.length > throttle) {
      if (moved(throttle, 0.01)) this.move('thrust', clamp((1 - now.axes[throttle]) / 2, 0, 1));
      else now.axes[throttle] = was.axes[throttle];
    }
    for (const [i, what] of buttons) {
      const down = now.pressed[i] ?? false;
      if (down !== (was.pressed[i] ?? false) || down && what.startsWith('thrust')) this.act(what, down);
    }
  }
}
