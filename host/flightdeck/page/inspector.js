// Finds and shows any variable of the system and any named variable, and sets it.

import {element} from './controls.js';

const MOST_ROWS = 150;

export class Inspector {
  constructor(link) {
    this.link = link;
    this.names = [];
    this.ends = [];
    this.search = element('input', 'search');
    this.search.type = 'search';
    this.search.placeholder = 'Part of a name, such as power or TZ_OH_Annun; or a path: FlightPlan[1].ident';
    this.search.addEventListener('input', () => this.list());
    this.rows = element('div', 'rows');
    this.told = element('span', 'told');
    this.element = element('div', 'inspector panel', '', element('div', 'bar', '', this.search, this.told), this.rows);
  }

  setNames(variables, named) {
    this.names = [...Object.entries(variables), ...named.map((name) => [`lvar:${name}`, 'named variable'])];
    if (this.shown) this.list();
  }

  /** Values are asked for only while it is looked at. */
  show(shown) {
    this.shown = shown;
    if (shown) this.list();
    else this.clear();
  }

  clear() {
    for (const end of this.ends.splice(0)) end();
    this.rows.replaceChildren();
  }

  list() {
    this.clear();
    const wanted = this.search.value.trim(), lower = wanted.toLowerCase();
    const found = this.names.filter(([name]) => name.toLowerCase().includes(lower));
    // A path into a record or a list isn't in the directory itself, nor are the host's own values.
    if (wanted && !this.names.some(([name]) => name === wanted) && /[.[]|^(token|aircraft|host):./.test(wanted))
      found.unshift([wanted, wanted.includes(':') ? 'host' : 'path']);
    this.told.textContent = found.length > MOST_ROWS ? `${MOST_ROWS} of ${found.length}` : String(found.length);
    for (const [name, type] of found.slice(0, MOST_ROWS)) this.rows.append(this.row(name, type));
  }

  row(name, type) {
    const value = element('input', 'value'), made = element('label', 'row', '', element('span', 'name', name), value);
    made.dataset.variable = name;
    made.append(element('span', 'type', type));
    if (/^(list|record)/.test(type)) {
      value.disabled = true;
      value.placeholder = `${name}${type.startsWith('list') ? '[1]' : ''}.`;
      return made;
    }
    let asked = null;
    const show = (text) => {
      if (document.activeElement !== value) value.value = text;
    };
    this.ends.push(this.link.watch(name, show));
    value.addEventListener('keydown', (event) => {
      if (event.key === 'Enter') {
        asked = value.value;
        this.set(name, asked);
        value.blur();
      }
      if (event.key === 'Escape') value.blur();
    });
    // What was written comes back with the values; what doesn't was refused.
    value.addEventListener('blur', () => {
      const written = asked;
      asked = null;
      setTimeout(() => {
        const now = this.link.values.get(name) ?? '';
        if (written !== null) made.classList.toggle('refused', !this.isSame(now, written));
        show(now);
      }, 600);
    });
    return made;
  }

  isSame(now, asked) {
    return now.trim() === asked.trim() || asked.trim() !== '' && Math.abs(Number(now) - Number(asked)) <= 1e-6 * Math.abs(Number(now));
  }

  set(name, text) {
    if (!name.startsWith('lvar:')) return this.link.send({type: 'set', name, text});
    const value = Number(text);
    if (text.trim() !== '' && Number.isFinite(value)) this.link.send({type: 'lvar', name: name.slice(5), value});
  }
}
