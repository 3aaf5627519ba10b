// The glareshield: the mode control panel between the outer panels of both sides.

import {bindPress, element} from './controls.js';
import {displaySelect, efis, glareshieldEnds, modeControl} from './panels.js';

function digits(entry, value) {
  const number = Math.round(Number(value));
  const text = String(Math.abs(number)).padStart(entry.pad ? entry.digits : 1, '0');
  return (entry.sign ? (number < 0 ? '-' : number > 0 ? '+' : '') : '') + text;
}

// A window over its knob. The knob turns by the wheel and by the keys beside it, with Shift in big steps.
function makeWindow(panels, entry) {
  const {link} = panels;
  const shown = element('output', 'window'), made = element('div', 'mcp-window');
  shown.dataset.value = entry.value;
  const show = () => {
    const blank = entry.blank && entry.blank[1].includes(link.number(entry.blank[0]));
    shown.textContent = blank ? '' : digits(entry, link.values.get(entry.value) ?? 0);
  };
  link.watch(entry.value, () => queueMicrotask(show));
  if (entry.blank) link.watch(entry.blank[0], () => queueMicrotask(show));

  const turn = (detents) => link.send({type: 'area', gauge: 'MCP', button: 'left',
                                       area: `${entry.knob} ${detents > 0 ? '+' : '-'}${Math.abs(detents)}`});
  const step = (label, detents) => {
    const made = element('button', 'step', label);
    made.title = `${entry.label} ${detents > 0 ? '+' : ''}${detents}`;
    made.dataset.area = `${entry.knob} ${detents > 0 ? '+' : ''}${detents}`;
    made.addEventListener('click', () => turn(detents));
    return made;
  };
  const knob = element('button', 'dial mcp-knob');
  knob.title = 'Turn by the wheel, with Shift in big steps';
  bindPress(knob, (up, event) => turn((up ? 1 : -1) * (event.shiftKey ? 10 : 1)), {halves: true});
  knob.addEventListener('wheel', (event) => {
    event.preventDefault();
    turn((event.deltaY < 0 ? 1 : -1) * (event.shiftKey ? 10 : 1));
  }, {passive: false});
  made.append(element('span', 'label', entry.label), shown,
              element('div', 'turn', '', step('\u00ab', -10), step('\u2039', -1), knob, step('\u203a', 1), step('\u00bb', 10)),
              element('div', 'row', '', ...panels.makeAll(entry.keys)));
  return made;
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
  const mcp = element('div', 'mcp panel');
  mcp.append(column('stack', panels, modeControl.left),
             ...modeControl.windows.map((entry) => makeWindow(panels, entry)),
             column('modes', panels, modeControl.modes), column('stack', panels, modeControl.right),
             column('stack more', panels, modeControl.more));
  made.append(outerPanel(panels, 'L'), mcp, outerPanel(panels, 'R'));
  return made;
}
