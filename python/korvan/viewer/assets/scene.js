// Reads one layout, an SVG document of the library, into a list of items to draw.
"use strict";

const MOVE = 0, LINE = 1, CURVE = 2, CLOSE = 3;
const STROKE = 0, FILL = 1, TEXT = 2, IMAGE = 3, CLIP = 4, UNCLIP = 5;
const COORDINATES = [2, 2, 6, 0];
// Strokes of one style are drawn together, up to this many: more would be drawn where few are in view.
const CHUNK = 48;
// Widths of lines that do not grow with the drawing, in hundredths of a millimetre; 13 is the thinnest one written.
const LINE_WEIGHTS = [13, 15, 18, 20, 25, 30, 35, 40, 50, 53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211];
const PIXELS_PER_MILLIMETRE = 96 / 25.4;

/** Calls the handler at each start tag, with its attributes and the text up to the next tag, and at each end tag. */
function scanTags(source, onOpen, onClose) {
  const attribute = /\s+([\w:.-]+)="([^"]*)"/y;
  const name = /[\w:.-]+/y;
  let at = source.indexOf("<");
  while (at >= 0) {
    const next = source.charCodeAt(at + 1);
    if (next === 33 || next === 63) {  // <! and <?
      at = source.indexOf("<", at + 1);
      continue;
    }
    if (next === 47) {  // </
      onClose();
      at = source.indexOf("<", at + 1);
      continue;
    }
    name.lastIndex = at + 1;
    const tag = name.exec(source)[0];
    const attributes = {};
    let end = name.lastIndex;
    attribute.lastIndex = end;
    for (let match; (match = attribute.exec(source)) !== null; end = attribute.lastIndex) {
      attributes[match[1]] = match[2];
    }
    const close = source.indexOf(">", end);
    at = source.indexOf("<", close);
    onOpen(tag, attributes, tag === "text" ? source.slice(close + 1, at < 0 ? undefined : at) : "");
    if (source.charCodeAt(close - 1) === 47) {
      onClose();
    }
  }
}

const ENTITIES = { lt: "<", gt: ">", amp: "&", quot: '"', apos: "'" };

function unescapeText(text) {
  return text.replace(/&(#x[0-9a-f]+|#\d+|\w+);/gi, (whole, entity) => {
    if (entity[0] !== "#") {
      return ENTITIES[entity] ?? whole;
    }
    const hexadecimal = entity[1] === "x" || entity[1] === "X";
    const code = hexadecimal ? parseInt(entity.slice(2), 16) : parseInt(entity.slice(1), 10);
    return code <= 0x10ffff ? String.fromCodePoint(code) : whole;
  });
}

/** Verbs and absolute coordinates of all paths, in two arrays that grow. */
class Geometry {
  constructor() {
    this.verbs = new Uint8Array(1 << 14);
    this.coords = new Float64Array(1 << 16);
    this.verbCount = 0;
    this.coordCount = 0;
  }

  add(verb) {
    if (this.verbCount === this.verbs.length) {
      const larger = new Uint8Array(this.verbs.length * 2);
      larger.set(this.verbs);
      this.verbs = larger;
    }
    this.verbs[this.verbCount++] = verb;
  }

  point(x, y) {
    if (this.coordCount + 2 > this.coords.length) {
      const larger = new Float64Array(this.coords.length * 2);
      larger.set(this.coords);
      this.coords = larger;
    }
    this.coords[this.coordCount++] = x;
    this.coords[this.coordCount++] = y;
  }

  /** Reads path data; returns its parts, each from one move to the next, with their bounds. */
  read(data) {
    const parts = [];
    const length = data.length;
    let at = 0, command = 0, x = 0, y = 0, startX = 0, startY = 0, part = null;
    const number = () => {
      let c = data.charCodeAt(at);
      while (c === 32 || c === 44 || c === 10) {
        c = data.charCodeAt(++at);
      }
      const negative = c === 45;
      if (negative) {
        c = data.charCodeAt(++at);
      }
      let value = 0, scale = 0;
      for (;; c = data.charCodeAt(++at)) {
        if (c >= 48 && c <= 57) {
          value = value * 10 + c - 48;
          scale *= 10;
        } else if (c === 46 && scale === 0) {
          scale = 1;
        } else {
          break;
        }
      }
      value = scale > 1 ? value / scale : value;
      return negative ? -value : value;
    };
    const extend = () => {
      part.minX = Math.min(part.minX, x);
      part.maxX = Math.max(part.maxX, x);
      part.minY = Math.min(part.minY, y);
      part.maxY = Math.max(part.maxY, y);
    };
    const begin = () => {
      part = { verb: this.verbCount, coord: this.coordCount, verbEnd: 0, minX: x, maxX: x, minY: y, maxY: y };
      parts.push(part);
      this.add(MOVE);
      this.point(x, y);
    };
    const lineTo = () => {
      if (part === null) {
        begin();
      }
      this.add(LINE);
      this.point(x, y);
      extend();
    };
    while (at < length) {
      const c = data.charCodeAt(at);
      if (c === 32 || c === 44 || c === 10) {
        at++;
        continue;
      }
      if (c >= 65) {
        command = c;
        at++;
      }
      const from = command >= 97 ? 1 : 0;  // lower case: relative to the current point
      switch (command | 32) {
        case 109:  // m
          x = number() + from * x;
          y = number() + from * y;
          startX = x;
          startY = y;
          begin();
          command = from ? 108 : 76;
          break;
        case 108:  // l
          x = number() + from * x;
          y = number() + from * y;
          lineTo();
          break;
        case 104:  // h
          x = number() + from * x;
          lineTo();
          break;
        case 118:  // v
          y = number() + from * y;
          lineTo();
          break;
        case 99: {  // c
          if (part === null) {
            begin();
          }
          const originX = from * x, originY = from * y;
          this.add(CURVE);
          for (let i = 0; i < 3; i++) {
            x = number() + originX;
            y = number() + originY;
            this.point(x, y);
            extend();
          }
          break;
        }
        case 122:  // z
          if (part !== null) {
            this.add(CLOSE);
          }
          x = startX;
          y = startY;
          part = null;
          break;
        default:
          throw new Error(`The path command ${String.fromCharCode(command)} is not known.`);
      }
    }
    for (let i = 0; i < parts.length; i++) {
      parts[i].verbEnd = i + 1 < parts.length ? parts[i + 1].verb : this.verbCount;
    }
    return parts;
  }

  /** Draws parts as one path, with coordinates relative to a point near them, which keeps their precision. */
  path(parts, originX, originY) {
    const path = new Path2D();
    const { verbs, coords } = this;
    for (const part of parts) {
      let at = part.coord;
      for (let i = part.verb; i < part.verbEnd; i++) {
        switch (verbs[i]) {
          case MOVE:
            path.moveTo(coords[at] - originX, coords[at + 1] - originY);
            break;
          case LINE:
            path.lineTo(coords[at] - originX, coords[at + 1] - originY);
            break;
          case CURVE:
            path.bezierCurveTo(coords[at] - originX, coords[at + 1] - originY, coords[at + 2] - originX,
              coords[at + 3] - originY, coords[at + 4] - originX, coords[at + 5] - originY);
            break;
          default:
            path.closePath();
        }
        at += COORDINATES[verbs[i]];
      }
    }
    return path;
  }
}

function boundsOf(parts) {
  const bounds = { minX: Infinity, minY: Infinity, maxX: -Infinity, maxY: -Infinity };
  for (const part of parts) {
    bounds.minX = Math.min(bounds.minX, part.minX);
    bounds.minY = Math.min(bounds.minY, part.minY);
    bounds.maxX = Math.max(bounds.maxX, part.maxX);
    bounds.maxY = Math.max(bounds.maxY, part.maxY);
  }
  return bounds;
}

/** Bounds of a rectangle after a matrix. */
function boundsOfCorners(matrix, left, top, right, bottom) {
  const [a, b, c, d, e, f] = matrix;
  const xs = [left, right].flatMap((x) => [top, bottom].map((y) => a * x + c * y + e));
  const ys = [left, right].flatMap((x) => [top, bottom].map((y) => b * x + d * y + f));
  return { minX: Math.min(...xs), minY: Math.min(...ys), maxX: Math.max(...xs), maxY: Math.max(...ys) };
}

/** Orders cells of a grid of 1024 by 1024 so that near ones are near in the order. */
function interleave(x, y) {
  let order = 0;
  for (let bit = 9; bit >= 0; bit--) {
    order = order * 4 + ((x >> bit) & 1) * 2 + ((y >> bit) & 1);
  }
  return order;
}

const matrixOf = (text) => (text.match(/-?[\d.]+(?:e[+-]?\d+)?/gi) ?? []).map(Number);
const colorOf = (text) => [1, 3, 5].map((at) => parseInt(text.slice(at, at + 2), 16));

/** From the end of a text to the start of another: along its baseline and across it. */
function gapBetween({ matrix: [a, b, , , e, f], length }, { matrix }) {
  const scale = Math.hypot(a, b);
  const x = matrix[4] - e - a * length, y = matrix[5] - f - b * length;
  return { along: (x * a + y * b) / scale, across: (y * a - x * b) / scale };
}

function isContinued(text, next) {
  const { along, across } = gapBetween(text, next);
  const isParallel = Math.abs(text.matrix[0] * next.matrix[1] - text.matrix[1] * next.matrix[0])
    < 1e-3 * Math.hypot(text.matrix[0], text.matrix[1]) * Math.hypot(next.matrix[0], next.matrix[1]);
  return text.layer === next.layer && isParallel && Math.abs(across) < 0.3 * text.height
    && along > -0.3 * text.height && along < 0.8 * text.height;
}

class SceneReader {
  constructor() {
    this.geometry = new Geometry();
    this.items = [];
    this.layers = [];
    this.texts = [];
    this.images = [];
    this.notes = [];
    this._top = { fill: "#000000" };
    this._frames = [];
    this._classes = new Map();
    this._layer = -1;
    this._clips = new Map();
    this._openClips = [];
    this._gradients = new Map();
    this._imageNumbers = new Map();
    this._definition = null;
    this._strokeStyle = null;
    this._strokeParts = [];
  }

  read(source) {
    scanTags(source, (tag, attributes, text) => this._open(tag, attributes, text), () => this._close());
    this._flushStrokes();
    return this;
  }

  _open(tag, attributes, text) {
    const frame = { tag, layer: this._layer, top: this._top, clip: false, definition: this._definition };
    this._frames.push(frame);
    switch (tag) {
      case "svg":
        [, , this.width, this.height] = attributes.viewBox.split(" ").map(Number);
        this.matrix = matrixOf(attributes["data-from-drawing"] ?? "1 0 0 1 0 0");
        break;
      case "g":
        this._group(attributes, frame);
        break;
      case "clipPath":
        this._definition = [];
        this._clips.set(attributes.id, this._definition);
        break;
      case "rect":
        this._rectangle(attributes);
        break;
      case "path":
        this._path(attributes);
        break;
      case "text":
        this._text(attributes, text);
        break;
      case "linearGradient":
      case "radialGradient":
        this._definition = { tag, ...attributes, stops: [], matrix: matrixOf(attributes.gradientTransform) };
        this._gradients.set(attributes.id, this._definition);
        break;
      case "stop":
        this._definition.stops.push({ offset: Number(attributes.offset), color: colorOf(attributes["stop-color"]),
          alpha: Number(attributes["stop-opacity"] ?? 1) });
        break;
      case "image":
        this._imageNumbers.set("#" + attributes.id, this.images.length);
        this.images.push({ url: attributes["xlink:href"], sharp: attributes["image-rendering"] === "pixelated" });
        break;
      case "use":
        this._use(attributes);
        break;
    }
  }

  _close() {
    const frame = this._frames.pop();
    if (frame === undefined) {
      return;
    }
    if (frame.clip) {
      this._flushStrokes();
      const opened = this._openClips.pop();
      this.items[opened].end = this.items.length;
      this.items.push({ kind: UNCLIP, layer: -1 });
    }
    this._layer = frame.layer;
    this._top = frame.top;
    this._definition = frame.definition;
  }

  _group(attributes, frame) {
    this._top = { ...this._top, ...attributes };
    const name = attributes.class;
    if (name !== undefined && name.startsWith("layer-")) {
      if (!this._classes.has(name)) {
        this._classes.set(name, this.layers.length);
        this.layers.push(unescapeText(attributes["data-name"] ?? name.slice(6)));
      }
      this._layer = this._classes.get(name);
    }
    const clip = attributes["clip-path"];
    if (clip !== undefined) {
      this._flushStrokes();
      const parts = this._clips.get(clip.slice(5, -1)) ?? [];
      frame.clip = true;
      this._openClips.push(this.items.length);
      this._push(CLIP, parts, { evenOdd: parts.evenOdd === true });
      delete this._top["clip-path"];
    }
  }

  _rectangle(attributes) {
    if (!Array.isArray(this._definition)) {
      return;  // the background, which the page paints itself
    }
    const [x, y, width, height] = ["x", "y", "width", "height"].map((name) => Number(attributes[name]));
    this._definition.push(...this.geometry.read(`M${x} ${y}h${width}v${height}h${-width}z`));
  }

  _path(attributes) {
    const parts = this.geometry.read(attributes.d);
    if (Array.isArray(this._definition)) {
      this._definition.push(...parts);
      this._definition.evenOdd = attributes["clip-rule"] === "evenodd";
      return;
    }
    const style = { ...this._top, ...attributes };
    if (style.stroke !== undefined && style.stroke !== "none") {
      this._stroke(style, parts);
      return;
    }
    if (style.fill === "none" || parts.length === 0) {
      return;
    }
    this._flushStrokes();
    const shaded = style.fill.startsWith("url(");
    this._push(FILL, parts, {
      color: shaded ? null : colorOf(style.fill),
      gradient: shaded ? this._gradients.get(style.fill.slice(5, -1)) : null,
      alpha: Number(style["fill-opacity"] ?? 1),
      evenOdd: style["fill-rule"] === "evenodd",
    });
  }

  _stroke(attributes, parts) {
    const alpha = Number(attributes["stroke-opacity"] ?? 1);
    const key = ["stroke", "stroke-width", "stroke-linecap", "stroke-linejoin", "stroke-dasharray",
      "stroke-dashoffset"].map((name) => attributes[name]).join() + this._layer;
    // Crossings of transparent strokes show, so each of them stays by itself.
    if (this._strokeStyle === null || this._strokeStyle.key !== key || alpha < 1) {
      this._flushStrokes();
      const width = Number(attributes["stroke-width"]);
      const weight = Math.round(width / PIXELS_PER_MILLIMETRE * 1000) / 10;
      this._strokeStyle = {
        key, layer: this._layer, color: colorOf(attributes.stroke), alpha,
        cap: attributes["stroke-linecap"] ?? "round", join: attributes["stroke-linejoin"] ?? "round",
        miter: Number(attributes["stroke-miterlimit"] ?? 4),
        width, fixed: width < 0.5 || LINE_WEIGHTS.some((known) => Math.abs(known - weight) < 0.06),
        dash: (attributes["stroke-dasharray"] ?? "").split(" ").filter(Boolean).map(Number),
        dashOffset: Number(attributes["stroke-dashoffset"] ?? 0),
      };
      this._strokeStyle.period = this._strokeStyle.dash.reduce((sum, length) => sum + length, 0);
    }
    for (const part of parts) {
      this._strokeParts.push(part);
    }
  }

  /** Makes items of the strokes of one style: near ones together, as their order does not show. */
  _flushStrokes() {
    const style = this._strokeStyle;
    if (style === null) {
      return;
    }
    const parts = this._strokeParts;
    this._strokeStyle = null;
    this._strokeParts = [];
    if (parts.length > CHUNK) {
      const cell = Math.max(this.width, this.height) / 1023;
      const at = (value) => Math.min(1023, Math.max(0, Math.floor(value / cell)));
      for (const part of parts) {
        part.order = interleave(at((part.minX + part.maxX) / 2), at((part.minY + part.maxY) / 2));
      }
      parts.sort((a, b) => a.order - b.order);
    }
    for (let i = 0; i < parts.length; i += CHUNK) {
      this._push(STROKE, parts.slice(i, i + CHUNK), { style }, style.layer);
    }
  }

  _push(kind, parts, more, layer = this._layer) {
    const item = { kind, layer, parts, path: null, ...boundsOf(parts), ...more };
    const growing = kind === STROKE && !more.style.fixed ? more.style.width / 2 : 0;
    item.minX -= growing;
    item.minY -= growing;
    item.maxX += growing;
    item.maxY += growing;
    this.items.push(item);
  }

  _text(attributes, text) {
    this._flushStrokes();
    const style = { ...this._top, ...attributes };
    const matrix = matrixOf(style.transform);
    const size = Number(style["font-size"]);
    const length = Number(style.textLength);
    const string = unescapeText(text);
    const hidden = style.fill === "none";
    const height = Math.hypot(matrix[2], matrix[3]) * size;
    const bounds = boundsOfCorners(matrix, 0, -size * 0.9, length, size * 0.25);
    this._addText({ string, layer: this._layer, matrix, height, length, ...bounds });
    if (!hidden && string.trim() !== "") {
      const font = `${style["font-style"] ?? ""} ${style["font-weight"] ?? ""} ${size}px ` +
        unescapeText(style["font-family"]);
      this.items.push({ kind: TEXT, layer: this._layer, string, matrix, size, length, height, font, stretch: 0,
        color: colorOf(style.fill), alpha: Number(style["fill-opacity"] ?? 1), ...bounds });
    }
  }

  /** Adds a text to those that are searched. Words that were written one by one are one text. */
  _addText(text) {
    const last = this.texts[this.texts.length - 1];
    if (last === undefined || !isContinued(last, text)) {
      this.texts.push(text);
      return;
    }
    const isApart = gapBetween(last, text).along > 0.1 * text.height;
    last.string += (isApart && !last.string.endsWith(" ") ? " " : "") + text.string;
    [last.matrix, last.length] = [text.matrix, text.length];
    Object.assign(last, boundsOf([last, text]));
  }

  _use(attributes) {
    const number = this._imageNumbers.get(attributes["xlink:href"]);
    if (number === undefined) {
      return;
    }
    this._flushStrokes();
    const matrix = matrixOf(attributes.transform);
    this.items.push({ kind: IMAGE, layer: this._layer, image: number, matrix, alpha: Number(attributes.opacity ?? 1),
      ...boundsOfCorners(matrix, 0, 0, 1, 1) });
  }
}
