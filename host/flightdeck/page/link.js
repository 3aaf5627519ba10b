// The WebSocket to the host: watched values and pictures come in, commands go out. It comes back by itself.

const SILENCE = 1500;  // ms without a sign of life, after which what is shown counts as old

export class Link {
  /** handlers: hello(message), picture(index, bytes), live(true or false) */
  constructor(handlers) {
    this.handlers = handlers;
    this.values = new Map();
    this.listeners = new Map();
    this.screens = new Set();
    this.live = false;
    this.retry = 0;
    setInterval(() => {
      if (this.live && performance.now() - this.heard > SILENCE) this.setLive(false);
    }, 250);
    this.open();
  }

  open() {
    const socket = new WebSocket(`ws://${location.host}/socket${location.search}`);
    this.socket = socket;
    socket.binaryType = 'arraybuffer';
    socket.onopen = () => {
      this.retry = 0;
      this.sendScreens();
      this.sendWatch();
    };
    socket.onmessage = ({data}) => {
      this.heard = performance.now();
      if (typeof data === 'string') this.takeText(JSON.parse(data));
      else this.takePictures(new Uint8Array(data));
      this.setLive(true);
    };
    socket.onclose = () => {
      this.setLive(false);
      setTimeout(() => this.open(), Math.min(2000, 300 * 2 ** this.retry++));
    };
  }

  setLive(live) {
    if (live === this.live) return;
    this.live = live;
    this.handlers.live(live);
  }

  takeText(message) {
    if (message.type === 'hello') this.handlers.hello(message);
    if (message.type !== 'values') return;
    for (const [name, value] of Object.entries(message.values)) {
      if (!this.listeners.has(name)) continue;
      this.values.set(name, value);
      for (const listener of this.listeners.get(name)) listener(value);
    }
  }

  // Each picture is a byte with the screen's place, 4 bytes of length, the message.
  takePictures(bytes) {
    const view = new DataView(bytes.buffer, bytes.byteOffset);
    for (let at = 0; at < bytes.length;) {
      const length = view.getUint32(at + 1, true);
      this.handlers.picture(bytes[at], bytes.subarray(at + 5, at + 5 + length));
      at += 5 + length;
    }
  }

  send(message) {
    if (this.socket.readyState === WebSocket.OPEN) this.socket.send(JSON.stringify(message));
  }

  /** Calls `listener` with the value's text now, if it is known, and at each change; gives what ends that. */
  watch(name, listener) {
    if (!this.listeners.has(name)) this.listeners.set(name, new Set());
    this.listeners.get(name).add(listener);
    this.watchSoon();
    if (this.values.has(name)) listener(this.values.get(name));
    return () => {
      const left = this.listeners.get(name);
      left?.delete(listener);
      if (left?.size !== 0) return;
      this.listeners.delete(name);
      this.values.delete(name);
      this.watchSoon();
    };
  }
  number(name) { return Number(this.values.get(name) ?? 0); }

  watchSoon() {
    if (this.watchQueued) return;
    this.watchQueued = true;
    queueMicrotask(() => {
      this.watchQueued = false;
      this.sendWatch();
    });
  }
  sendWatch() { this.send({type: 'watch', names: [...this.listeners.keys()]}); }

  wantScreen(name, wanted) {
    if (wanted === this.screens.has(name)) return;
    if (wanted) this.screens.add(name);
    else this.screens.delete(name);
    this.sendScreens();
  }
  sendScreens() { this.send({type: 'screens', names: [...this.screens]}); }
}
