// The multi-function keypads, and a computer's keyboard in their place.

import {element} from './controls.js';
import {handKeys, keyboard, keypad, otherKeys} from './panels.js';

const MOST_PASTED = 60;
const PRESSES = new Map(keyboard.map(([key, pressed]) => [key, pressed]));

const variable = (side, key) => `TZ_FMC_${side}_${key}_Button`;

export function makeKeypad(panels, side) {
  const made = element('div', 'keypad panel');
  made.tabIndex = 0;
  made.setAttribute('role', 'group');
  made.setAttribute('aria-label', side === 'L' ? 'Keypad of the captain' : 'Keypad of the first officer');
  made.dataset.side = side;
  const key = (name) => ({look: 'key', name: variable(side, name), label: keypad.labels[name] ?? name,
                          lamps: name === 'EXEC' ? [[keypad.lamp[side], '', 'green']] : []});
  const block = (name) => element('div', `keys ${name}`, '', ...panels.makeAll(keypad.blocks[name].map(key)));
  made.append(block('formats'), block('pages'),
              element('div', 'alphabet', '', block('letters'), block('digits')));
  takeKeyboard(made, panels, () => side);
  return made;
}

function pressedBy(character) {
  return /^[a-z0-9]$/i.test(character) ? character.toUpperCase() : PRESSES.get(character);
}

function press(panels, side, pressed) {
  const name = typeof pressed === 'number' ? `TZ_${side === 'L' ? 'CAPT' : 'FO'}_CDU_KEYPRESS` : variable(side, pressed);
  panels.link.send({type: 'press', name, value: typeof pressed === 'number' ? pressed : 1});
}

/** Gives an element that has the focus the keyboard of a CDU: keys, held ones and what is pasted. */
export function takeKeyboard(target, panels, sideOf) {
  target.addEventListener('keydown', (event) => {
    if (event.ctrlKey || event.altKey || event.metaKey) return;
    if (event.key === 'Escape') return document.activeElement.blur();
    const pressed = pressedBy(event.key);
    if (!pressed) return;
    event.preventDefault();
    event.stopPropagation();
    // A held key repeats faster than the unit takes keys: it would go on after it is let go.
    if (event.repeat && event.key !== 'Backspace') return;
    if (event.repeat) return clearHeld(panels, sideOf());
    press(panels, sideOf(), pressed);
  });
  target.addEventListener('keyup', () => { clearing = false; });
  target.addEventListener('paste', (event) => {
    event.preventDefault();
    for (const character of event.clipboardData.getData('text').trim().slice(0, MOST_PASTED))
      if (pressedBy(character)) press(panels, sideOf(), pressedBy(character));
  });
}

let clearing = false;

// CLR takes a character, or a message first: as often as there is something.
function clearHeld(panels, side) {
  if (clearing) return;
  clearing = true;
  const name = side === 'L' ? 'capt' : 'fo';
  const text = panels.link.values.get(`${name}.ScratchPad`) ?? '';
  for (let i = 0; i < text.length; ++i) press(panels, side, 'CLR');
}

/** The list of keys, which `?` opens and any key or press closes. */
export function makeKeyboardHelp() {
  const rows = [['A to Z, 0 to 9', 'themselves'], ...keyboard.map(([key, , text]) => [key === ' ' ? 'Space' : key, text]), ...otherKeys];
  const listOf = (rows) => element('dl', '', '', ...rows.map(([key, text]) =>
      element('div', '', '', element('dt', '', key), element('dd', '', text))));
  const made = element('dialog', 'help', '', element('h2', '', 'Keys of a CDU that has the keyboard'), listOf(rows),
                       element('p', '', 'A click on a screen with a CDU, or on a keypad, gives it the keyboard.'),
                       element('h2', '', 'Keys of HANDS, after a click on it'),
                       listOf(handKeys.map(([key, , text]) => [key, text])));
  made.addEventListener('click', () => made.close());
  addEventListener('keydown', (event) => {
    if (event.key !== '?' || /^(INPUT|TEXTAREA)$/.test(event.target.tagName)) return;
    event.preventDefault();
    if (made.open) made.close();
    else made.showModal();
  });
  return made;
}
