// Reads one layout, an SVG document of the library, into a list of items to draw.
"use strict";

const STROKE = 0, FILL = 1, TEXT = 2, IMAGE = 3, CLIP = 4, UNCLIP = 5;
// Strokes of one style are drawn together, up to this many: more would be drawn where few are in view.
const CHUNK = 48;
// Widths of lines that do not grow with the drawing, in hundredths of a millimetre; 13 is the thinnest one written.
const LINE_WEIGHTS = [13, 15, 18, 20, 25, 30, 35, 40, 50, 53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211];
const PIXELS_PER_MILLIMETRE = 96 / 25.4;

/** Orders cells of a grid of 1024 by 1024 so that near ones are near in the order. */
function interleave(x, y) {
  let order = 0;
  for (let bit = 9; bit >= 0; bit--) {
    order = order * 4 + ((x >> bit) & 1) * 2 + ((y >> bit) & 1);
  }
  return order;
}

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
    this._symbols = new Map();  // the tags of what is drawn in several places, by identifier
    this._recorded = null;
    this._depth = 0;
    this._place = null;  // the matrix of the symbol that is drawn
    this._strokeStyle = null;
    this._strokeParts = [];
  }

  read(source) {
    scanTags(source, (tag, attributes, text) => this._open(tag, attributes, text), () => this._close());
    this._flushStrokes();
    return this;
  }

  _open(tag, attributes, text) {
    if (this._recorded !== null) {
      this._depth++;
      this._recorded.push([tag, attributes, text]);
      return;
    }
    if (tag === "g" && attributes.id?.startsWith("symbol-")) {
      this._recorded = [];
      this._depth = 0;
      this._symbols.set("#" + attributes.id, this._recorded);
    }
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
        this._definition = { tag, ...attributes, stops: [],
          matrix: multiply(this._place, matrixOf(attributes.gradientTransform)) };
        this._gradients.set(attributes.id, this._definition);
        break;
      case "stop":
        this._definition.stops.push({ offset: Number(attributes.offset), color: colorOf(attributes["stop-color"]),
          alpha: Number(attributes["stop-opacity"] ?? 1) });
        break;
      case "image":
        if (this._imageNumbers.has("#" + attributes.id)) {
          break;
        }
        this._imageNumbers.set("#" + attributes.id, this.images.length);
        this.images.push({ url: attributes["xlink:href"], sharp: attributes["image-rendering"] === "pixelated" });
        break;
      case "use":
        this._use(attributes);
        break;
    }
  }

  _close() {
    if (this._recorded !== null) {
      if (--this._depth >= 0) {
        this._recorded.push(null);
        return;
      }
      this._recorded = null;
    }
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
    const parts = this.geometry.read(attributes.d, this._place);
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
    const matrix = multiply(this._place, matrixOf(style.transform));
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

  /** Draws a symbol: its tags are read again, with the matrix of the place. */
  _useSymbol(tags, place) {
    const before = this._place;
    this._place = multiply(before, place);
    for (const found of tags) {
      if (found === null) {
        this._close();
      } else {
        this._open(...found);
      }
    }
    this._place = before;
  }

  _use(attributes) {
    const symbol = this._symbols.get(attributes["xlink:href"]);
    if (symbol !== undefined) {
      this._useSymbol(symbol, placeOf(attributes.transform ?? ""));
      return;
    }
    const number = this._imageNumbers.get(attributes["xlink:href"]);
    if (number === undefined) {
      return;
    }
    this._flushStrokes();
    const matrix = multiply(this._place, matrixOf(attributes.transform));
    this.items.push({ kind: IMAGE, layer: this._layer, image: number, matrix, alpha: Number(attributes.opacity ?? 1),
      ...boundsOfCorners(matrix, 0, 0, 1, 1) });
  }
}
