// A screen's picture: decodes what the host sends and replays it on a canvas at the window's own resolution.
// The byte form is told in src/paint/encode.h and host/flightdeck/picture_stream.h.

const UNIT = 32;

class Reader {
  constructor(bytes) {
    this.bytes = bytes;
    this.at = 0;
  }
  get left() { return this.bytes.length - this.at; }
  byte() { return this.bytes[this.at++]; }
  varint() {
    let value = 0, shift = 0, byte;
    do {
      byte = this.bytes[this.at++];
      value += (byte & 0x7f) * 2 ** shift;
      shift += 7;
    } while (byte & 0x80);
    return value;
  }
  signed() {
    const value = this.varint();
    return value % 2 ? -(value + 1) / 2 : value / 2;
  }
  number(unit = UNIT) { return this.signed() / unit; }
  float() {
    const value = new DataView(this.bytes.buffer, this.bytes.byteOffset + this.at, 4).getFloat32(0, true);
    this.at += 4;
    return value;
  }
  colour() {
    const [blue, green, red, alpha] = this.bytes.subarray(this.at, this.at + 4);
    this.at += 4;
    return `rgba(${red},${green},${blue},${alpha / 255})`;
  }
  take(count) {
    this.at += count;
    return this.bytes.subarray(this.at - count, this.at);
  }
  text() { return new TextDecoder().decode(this.take(this.varint())); }
}

// Axes of their own for a pen or a text, as arguments of transform() after a rotation.
function readAxes(reader) {
  const rotation = reader.number() * Math.PI / 180, stretch = reader.number(1024), skew = reader.number(1024);
  return {rotation, stretch, skew};
}

function readPath(reader) {
  const winding = reader.byte() === 1;
  const verbs = reader.take(reader.varint());
  const points = [];
  let x = 0, y = 0;
  const point = () => {
    x += reader.signed();
    y += reader.signed();
    points.push(x / UNIT, y / UNIT);
  };
  for (const verb of verbs)
    for (let left = [1, 1, 3, 0][verb]; left > 0; --left) point();
  return {rule: winding ? 'nonzero' : 'evenodd', verbs, points};
}

// Each primitive is decoded once, into a function that draws it.
function readPrimitive(bytes) {
  const reader = new Reader(bytes);
  switch (reader.byte()) {
    case 0: {
      const colour = reader.colour();
      return (canvas) => canvas.clear(colour);
    }
    case 1: {
      const colour = reader.colour(), path = readPath(reader);
      return (canvas) => canvas.fill(colour, path);
    }
    case 2: {
      const colour = reader.colour(), width = reader.number(), ends = reader.byte();
      const axes = ends >= 16 ? readAxes(reader) : null;
      const dashes = [];
      for (let left = reader.varint(); left > 0; --left) dashes.push(reader.number());
      const path = readPath(reader);
      return (canvas) => canvas.stroke(colour, width, ends % 16, axes, dashes, path);
    }
    case 3: {
      const colour = reader.colour();
      const [x, y, size] = [reader.number(), reader.number(), reader.number()];
      const axes = readAxes(reader), family = reader.byte(), text = reader.text();
      return (canvas) => canvas.text(colour, x, y, size, axes, family, text);
    }
    case 4: {
      const [x, y, width, height, rotation] =
          [reader.number(), reader.number(), reader.number(), reader.number(), reader.number()];
      const file = reader.text();
      return (canvas) => canvas.image(file, x, y, width, height, rotation);
    }
    case 5: {
      const path = readPath(reader);
      return (canvas) => canvas.clipIn(path);
    }
    case 6: {
      const path = readPath(reader);
      return (canvas) => canvas.clipOut(path);
    }
    case 7:
      return (canvas) => canvas.unclip();
    default:
      return () => {};
  }
}

const MOST_IMAGES = 200;

// What brings a colon into the middle of its cell, in parts of the em, by font; 0 where characters differ in width.
const pointShifts = new Map();
function pointShift(context) {
  const font = context.font.slice(context.font.indexOf('"'));
  if (!pointShifts.has(font)) {
    if (!document.fonts.check(context.font)) return 0;  // not there yet
    const kept = context.font, size = 1000;
    context.font = `bold ${size}px ${font}`;
    const colon = context.measureText(':');
    const middle = (colon.actualBoundingBoxRight - colon.actualBoundingBoxLeft) / 2;
    const same = Math.abs(colon.width - context.measureText('0').width) < 1;
    pointShifts.set(font, same ? (colon.width / 2 - middle) / size : 0);
    context.font = kept;
  }
  return pointShifts.get(font);
}

export class Screen {
  /** families: the font family of each number, as the host names them; may come later. */
  constructor(canvas, families = []) {
    this.canvas = canvas;
    this.context = canvas.getContext('2d');
    this.families = families;
    this.primitives = [];
    this.width = 564;
    this.height = 424;
    this.dark = false;
    this.pictures = 0;  // drawn so far
    new ResizeObserver(() => this.draw()).observe(canvas);
  }

  /** Takes one message of the picture stream. */
  take(bytes) {
    const reader = new Reader(bytes), next = [];
    this.width = reader.float();
    this.height = reader.float();
    while (reader.left > 0) {
      const run = reader.varint(), count = Math.floor(run / 2);
      if (run % 2 === 0) {
        const from = reader.varint();
        for (let i = 0; i < count; ++i) next.push(this.primitives[from + i]);
      } else {
        for (let i = 0; i < count; ++i) next.push(readPrimitive(reader.take(reader.varint()).slice()));
      }
    }
    this.primitives = next;
    this.drawSoon();
  }

  /** Nothing is better than what was: without a link the screen is dark. What it had is kept, for the stream
      goes on from it when the link was only late. */
  setDark(dark) {
    if (this.dark === dark) return;
    this.dark = dark;
    this.draw();
  }

  /** A new link begins with an empty screen. */
  forget() {
    this.primitives = [];
    this.draw();
  }

  drawSoon() {
    if (this.drawQueued) return;
    this.drawQueued = true;
    requestAnimationFrame(() => {
      this.drawQueued = false;
      this.draw();
    });
  }

  draw() {
    const density = window.devicePixelRatio || 1, {canvas, context} = this;
    const width = Math.round(canvas.clientWidth * density), height = Math.round(canvas.clientHeight * density);
    if (width === 0 || height === 0) return;
    if (canvas.width !== width || canvas.height !== height) Object.assign(canvas, {width, height});
    this.sx = width / this.width;
    this.sy = height / this.height;
    context.save();
    context.setTransform(1, 0, 0, 1, 0, 0);
    context.clearRect(0, 0, width, height);
    context.setTransform(this.sx, 0, 0, this.sy, 0, 0);
    context.save();
    if (!this.dark)
      for (const primitive of this.primitives) primitive?.(this);
    context.restore();
    context.restore();
    ++this.pictures;
  }

  trace(path, dx = 0, dy = 0) {
    const {context} = this, p = path.points;
    let i = 0;
    context.beginPath();
    for (const verb of path.verbs) {
      if (verb === 0) context.moveTo(p[i++] + dx, p[i++] + dy);
      else if (verb === 1) context.lineTo(p[i++] + dx, p[i++] + dy);
      else if (verb === 2)
        context.bezierCurveTo(p[i++] + dx, p[i++] + dy, p[i++] + dx, p[i++] + dy, p[i++] + dx, p[i++] + dy);
      else context.closePath();
    }
  }

  clear(colour) {
    const {context} = this;
    context.clearRect(-1, -1, this.width + 2, this.height + 2);
    context.fillStyle = colour;
    context.fillRect(-1, -1, this.width + 2, this.height + 2);
  }
  fill(colour, path) {
    this.trace(path);
    this.context.fillStyle = colour;
    this.context.fill(path.rule);
  }
  enter({rotation, stretch, skew}) {
    this.context.rotate(rotation);
    this.context.transform(stretch, 0, skew, 1, 0, 0);
  }
  stroke(colour, width, ends, axes, dashes, path) {
    const {context} = this, halfX = 0.5 / this.sx, halfY = 0.5 / this.sy;
    this.trace(path, halfX, halfY);
    context.strokeStyle = colour;
    const least = 2 * Math.min(halfX, halfY), across = Math.max(width, least);
    context.lineWidth = across;
    context.lineCap = ['butt', 'square', 'round'][ends % 4];
    context.lineJoin = ['miter', 'bevel', 'round'][Math.floor(ends / 4)];
    context.setLineDash(dashes);
    if (!axes) return context.stroke();
    context.save();
    this.enter({...axes, stretch: Math.max(width * axes.stretch, least) / across});
    context.stroke();
    context.restore();
  }
  text(colour, x, y, size, axes, family, text) {
    const {context} = this;
    context.save();
    context.translate(x, y);
    this.enter(axes);
    context.font = `bold ${size}px "${this.families[family] ?? this.families[0]}"`;
    context.fontKerning = 'none';
    context.textRendering = 'geometricPrecision';  // places and sizes as they are, no hinting
    context.textBaseline = 'alphabetic';
    context.fillStyle = colour;
    this.fillText(text, size);
    context.restore();
  }
  // Points stand in the middle of their cells, as FontMetrics::point_shift has it for the other renderer.
  fillText(text, size) {
    const {context} = this, shift = /[.,:;]/.test(text) ? pointShift(context) * size : 0;
    if (shift === 0) return context.fillText(text, 0, 0);
    let done = '';
    for (const piece of text.split(/([.,:;])/)) {
      context.fillText(piece, context.measureText(done).width + (/^[.,:;]$/.test(piece) ? shift : 0), 0);
      done += piece;
    }
  }
  image(file, x, y, width, height, rotation) {
    const picture = Screen.picture(file);
    if (!picture.complete) picture.waiting.add(this);
    if (!picture.complete || picture.naturalWidth === 0) return;
    const {context} = this;
    context.save();
    context.translate(x, y);
    context.rotate(rotation * Math.PI / 180);
    context.beginPath();
    context.rect(0, 0, width, height);
    context.clip();
    // The first pixel has its middle where the first pixel of the place has it.
    context.drawImage(picture, (1 / this.sx - width / picture.naturalWidth) / 2,
                      (1 / this.sy - height / picture.naturalHeight) / 2, width, height);
    context.restore();
  }
  clipIn(path) {
    this.trace(path);
    this.context.clip(path.rule);
  }
  clipOut(path) {
    this.trace(path);
    this.context.rect(-1e4, -1e4, 2e4, 2e4);
    this.context.clip('evenodd');
  }
  unclip() {
    const {context} = this;
    context.restore();
    context.save();
  }

  /** The image of a name; the screens in its `waiting` are drawn again when it has come. */
  static pictures = new Map();
  static picture(file) {
    let picture = Screen.pictures.get(file);
    if (!picture) {
      if (Screen.pictures.size >= MOST_IMAGES) Screen.pictures.delete(Screen.pictures.keys().next().value);
      picture = new Image();
      picture.waiting = new Set();
      picture.onload = () => {
        for (const screen of picture.waiting) screen.drawSoon();
        picture.waiting.clear();
      };
      picture.onerror = () => Screen.pictures.delete(file);  // the host may have been away: asked for again
      picture.src = `/image/${encodeURIComponent(file)}`;
      Screen.pictures.set(file, picture);
    }
    return picture;
  }
}
