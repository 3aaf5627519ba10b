// The multi-function keypads, and a computer's keyboard in their place.

import {element} from './controls.js';
import {keypad} from './panels.js';

const variable = (side, key) => `TZ_FMC_${side}_${key}_Button`;

export function makeKeypad(panels, side) {
  const made = element('div', 'keypad panel');
  made.tabIndex = 0;
  made.dataset.side = side;
  const key = (name) => ({look: 'key', name: variable(side, name), label: keypad.labels[name] ?? name,
                          lamps: name === 'EXEC' ? [[keypad.lamp[side], '', 'green']] : []});
  const block = (name) => element('div', `keys ${name}`, '', ...panels.makeAll(keypad.blocks[name].map(key)));
  made.append(block('formats'), block('pages'),
              element('div', 'alphabet', '', block('letters'), block('digits')));
  made.addEventListener('keydown', (event) => typeKey(panels, side, event));
  return made;
}

/** Presses the key of the keypad that a key of the keyboard stands for. */
export function typeKey(panels, side, event) {
  if (event.ctrlKey || event.altKey || event.metaKey) return;
  const letter = /^[a-z0-9]$/i.test(event.key) ? event.key.toUpperCase() : keypad.typed[event.key];
  if (!letter) return;
  event.preventDefault();
  event.stopPropagation();
  panels.link.send({type: 'press', name: variable(side, letter), value: 1});
}
