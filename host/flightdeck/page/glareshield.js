// The glareshield: the mode control panel between the outer panels of both sides.

import {bindPress, element} from './controls.js';
import {displaySelect, efis, glareshieldEnds, modeControl} from './panels.js';

function digits(entry, value) {
  const number = Math.round(Number(value));
  const text = String(Math.abs(number)).padStart(entry.pad ? entry.digits : 1, '0');
  return (entry.sign ? (number < 0 ? '-' : number > 0 ? '+' : '') : '') + text;
}

const BATTERY_ALONE = 5;  // power_level, at which the panel is dark
const PIXELS_A_STEP = 6;  // of a drag

// A window over its knob. The knob turns by the wheel, by a drag up or right and by the arrow keys, with Shift or Page
// Up and Down in big steps, and by the keys beside it.
function makeWindow(panels, entry) {
  const {link} = panels;
  const shown = element('output', 'window'), made = element('div', 'mcp-window');
  shown.dataset.value = entry.value;
  shown.setAttribute('aria-label', entry.label);
  const show = () => {
    const dark = link.number('power_level') <= BATTERY_ALONE;
    const blank = dark || entry.blank && entry.blank[1].includes(link.number(entry.blank[0])) &&
                  !(entry.open && link.number(entry.open) === 1);
    const mach = entry.mach && link.number(entry.mach[0]) === 1 ? link.number(entry.mach[1]) : 0;
    shown.textContent = blank ? '' : mach > 0 ? mach.toFixed(3).slice(1) : digits(entry, link.values.get(entry.value) ?? 0);
  };
  for (const name of ['power_level', entry.value, entry.blank?.[0], entry.open, ...(entry.mach ?? [])])
    if (name) link.watch(name, () => queueMicrotask(show));

  const turn = (detents) => link.send({type: 'area', gauge: 'MCP', button: 'left',
                                       area: `${entry.knob} ${detents > 0 ? '+' : '-'}${Math.abs(detents)}`});
  const step = (label, detents) => {
    const made = element('button', 'step', label);
    made.title = `${entry.label} ${detents > 0 ? '+' : ''}${detents}`;
    made.setAttribute('aria-label', made.title);
    made.dataset.area = `${entry.knob} ${detents > 0 ? '+' : ''}${detents}`;
    made.addEventListener('click', () => turn(detents));
    return made;
  };
  const knob = element('button', 'dial mcp-knob');
  knob.setAttribute('aria-label', `${entry.label} knob`);
  knob.title = 'Turn by the wheel, a drag or the arrow keys, with Shift in big steps';
  bindPress(knob, (up, event) => turn((up ? 1 : -1) * (event.shiftKey ? 10 : 1)), {halves: true});
  bindDrag(knob, turn);
  knob.addEventListener('keydown', (event) => {
    if (event.key !== 'PageUp' && event.key !== 'PageDown') return;
    event.preventDefault();
    turn(event.key === 'PageUp' ? 10 : -10);
  });
  knob.addEventListener('wheel', (event) => {
    event.preventDefault();
    turn((event.deltaY < 0 ? 1 : -1) * (event.shiftKey ? 10 : 1));
  }, {passive: false});
  made.append(element('span', 'label', entry.label), shown,
              element('div', 'turn', '', step('\u00ab', -10), step('\u2039', -1), knob, step('\u203a', 1), step('\u00bb', 10)),
              element('div', 'row', '', ...panels.makeAll(entry.keys)));
  return made;
}

// A pointer held down on a knob and moved: a step for each few pixels. What was a drag is no click.
function bindDrag(knob, turn) {
  let from = 0, dragged = false, held = false;
  const along = (event) => event.clientX - event.clientY;
  knob.addEventListener('pointerdown', (event) => {
    held = event.button === 0;
    dragged = false;
    from = along(event);
    if (held) knob.setPointerCapture(event.pointerId);
  });
  knob.addEventListener('pointermove', (event) => {
    const steps = Math.trunc((along(event) - from) / PIXELS_A_STEP);
    if (!held || steps === 0) return;
    dragged = true;
    from += steps * PIXELS_A_STEP;
    for (let i = Math.abs(steps); i > 0; --i) turn(Math.sign(steps) * (event.shiftKey ? 10 : 1));
  });
  for (const end of ['pointerup', 'pointercancel']) knob.addEventListener(end, () => { held = false; });
  knob.addEventListener('click', (event) => { if (dragged) event.stopImmediatePropagation(); }, {capture: true});
}

function column(className, panels, entries) {
  return element('div', className, '', ...panels.makeAll(entries));
}

function outerPanel(panels, side) {
  const {halves, formats} = displaySelect(side);
  const made = element('div', `outer panel side-${side}`);
  made.append(element('div', 'efis', '', ...panels.makeAll(efis(side))),
              element('div', 'dsp', '', column('halves', panels, halves), column('formats', panels, formats)),
              column('ends', panels, glareshieldEnds(side)));
  return made;
}

export function makeGlareshield(panels) {
  const made = element('section', 'glareshield');
  made.setAttribute('aria-label', 'Glareshield');
  const mcp = element('div', 'mcp panel');
  mcp.append(column('stack', panels, modeControl.left),
             ...modeControl.windows.map((entry) => makeWindow(panels, entry)),
             column('modes', panels, modeControl.modes), column('stack', panels, modeControl.right),
             column('stack more', panels, modeControl.more));
  made.append(outerPanel(panels, 'L'), mcp, outerPanel(panels, 'R'));
  return made;
}
