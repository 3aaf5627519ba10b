// Stored flight plans and panel states: what there is, to be fetched; flight plans come in by a drop anywhere on the page.

import {element} from './controls.js';

const MOST_BYTES = 1 << 20;
const isPlan = (name) => /\.(rte|pln)$/i.test(name);

export class Files {
  constructor() {
    this.told = element('p', 'files-told', 'Drop a flight plan (.rte or .PLN) anywhere on this page, or choose one here.');
    this.told.setAttribute('role', 'status');
    const chosen = element('input');
    chosen.type = 'file';
    chosen.accept = '.rte,.pln';
    chosen.multiple = true;
    chosen.setAttribute('aria-label', 'Flight plans to store');
    chosen.addEventListener('change', () => this.storeAll(chosen.files));
    this.lists = element('div', 'file-lists');
    this.element = element('section', 'files', '', this.told, chosen, this.lists);
    addEventListener('dragover', (event) => event.preventDefault());
    addEventListener('drop', (event) => {
      event.preventDefault();
      this.storeAll(event.dataTransfer.files);
    });
  }
  show(shown) { if (shown) this.list(); }

  async list() {
    const answer = await fetch('/files');
    if (!answer.ok) return;
    const {routes, panels} = await answer.json();
    const listed = (title, path, names) => element('div', 'file-list', '', element('h2', '', title),
        ...(names.length > 0 ? names : ['none']).map((name) => names.length > 0 ? this.link(path, name) : element('p', '', name)));
    this.lists.replaceChildren(listed('Flight plans', '/route/', routes), listed('Panel states', '/panel/', panels));
  }
  link(path, name) {
    const made = element('a', '', name);
    made.href = path + encodeURIComponent(name);
    made.download = name;
    return element('p', '', '', made);
  }

  async storeAll(files) {
    const told = [];
    for (const file of files) told.push(await this.store(file));
    this.told.textContent = told.join(' ');
    this.list();
  }
  async store(file) {
    if (!isPlan(file.name)) return `${file.name} is no flight plan: .rte or .PLN.`;
    if (file.size > MOST_BYTES) return `${file.name} is too large for a flight plan.`;
    const answer = await fetch(`/route/${encodeURIComponent(file.name)}`, {method: 'PUT', body: file}).catch(() => null);
    return answer?.status === 201 ? `${file.name} is stored.` : `${file.name} was refused.`;
  }
}
