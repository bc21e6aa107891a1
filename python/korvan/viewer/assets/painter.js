// Draws the items of a scene that are in view, in slices of time.
"use strict";

// Below these sizes in pixels, text is a bar and a stroke a dot.
const SMALLEST_TEXT = 2.5, SMALLEST_STROKE = 0.7;
const SHORTEST_PERIOD = 3;
const DARK = { background: [21, 23, 28], foreground: [232, 234, 238] };
const SLICE = 12;

/** A colour of the drawing, which was made for white paper, on the background of the page. */
function adaptColor([red, green, blue], dark) {
  if (!dark) {
    return [red, green, blue];
  }
  const most = Math.max(red, green, blue), least = Math.min(red, green, blue);
  if (most - least < 32) {  // greys change their ends
    const share = 1 - (most + least) / 510;
    return DARK.background.map((low, i) => Math.round(low + (DARK.foreground[i] - low) * share));
  }
  const luminance = (0.2126 * red + 0.7152 * green + 0.0722 * blue) / 255;
  const share = luminance < 0.35 ? 0.55 * (1 - luminance / 0.35) : 0;
  return [red, green, blue].map((part) => Math.round(part + (255 - part) * share));
}

function cssColor(color, alpha) {
  return alpha < 1 ? `rgba(${color.join()},${alpha})` : `rgb(${color.join()})`;
}

class Painter {
  constructor(scene, images) {
    this.scene = scene;
    this.images = images;
    this.hidden = new Set();  // numbers of layers
    this.dark = false;
    this.weights = true;
    this.style = null;
    this.plotted = false;  // whether line weights grow with the sheet
    this._colors = new Map();
  }

  setTheme(dark) {
    this.dark = dark;
    this._colors.clear();
  }

  /** The colour of the first item of a layer, as a sample. */
  colorOfLayer(layer, dark) {
    const item = this.scene.items.find((found) => found.layer === layer && (found.style?.color ?? found.color));
    return item === undefined ? null : cssColor(adaptColor(item.style?.color ?? item.color, dark), 1);
  }

  /** Bounds of what is visible; those of the page if nothing is. */
  visibleBounds() {
    const bounds = boundsOf(this.scene.items.filter((item) => item.kind < CLIP && !this.hidden.has(item.layer)));
    return bounds.minX <= bounds.maxX ? bounds
      : { minX: 0, minY: 0, maxX: this.scene.width, maxY: this.scene.height };
  }

  /** Draws an area, in pixels, of a view: the page point at the top left corner and the pixels of a page unit. Pauses
   * between slices, and stops when it has been cancelled. */
  async draw(context, view, area, pause) {
    const { items } = this.scene;
    const left = view.x + area.x / view.scale, right = left + area.width / view.scale;
    const top = view.y + area.y / view.scale, bottom = top + area.height / view.scale;
    const margin = 4 / view.scale;  // of lines that are wider than their geometry
    context.setTransform(1, 0, 0, 1, 0, 0);
    context.save();
    context.beginPath();
    context.rect(area.x, area.y, area.width, area.height);
    context.clip();
    context.clearRect(area.x, area.y, area.width, area.height);
    let depth = 1;
    let until = performance.now() + SLICE;
    for (let i = 0; i < items.length; i++) {
      const item = items[i];
      if (item.kind === UNCLIP) {
        context.restore();
        depth--;
        continue;
      }
      const outside = item.minX > right + margin || item.maxX < left - margin || item.minY > bottom + margin
        || item.maxY < top - margin;
      if (item.kind === CLIP) {
        if (outside) {
          i = item.end;
          continue;
        }
        context.save();
        depth++;
        this._place(context, view, item);
        context.clip(item.path, item.evenOdd ? "evenodd" : "nonzero");
        continue;
      }
      if (outside || this.hidden.has(item.layer)) {
        continue;
      }
      this._drawItem(context, view, item);
      if ((i & 15) === 0 && performance.now() > until) {
        if (!await pause(depth === 1)) {
          return false;
        }
        until = performance.now() + SLICE;
      }
    }
    context.restore();
    return true;
  }

  _color(color, alpha) {
    const key = (color[0] << 16) + (color[1] << 8) + color[2] + alpha;
    let css = this._colors.get(key);
    if (css === undefined) {
      css = cssColor(adaptColor(color, this.dark), alpha);
      this._colors.set(key, css);
    }
    return css;
  }

  /** Sets the transform for a path, which lies relative to the centre of its bounds. */
  _place(context, view, item) {
    const x = (item.minX + item.maxX) / 2, y = (item.minY + item.maxY) / 2;
    if (item.path === null) {
      item.path = this.scene.geometry.path(item.parts, x, y);
    }
    context.setTransform(view.scale, 0, 0, view.scale, (x - view.x) * view.scale, (y - view.y) * view.scale);
  }

  _drawItem(context, view, item) {
    switch (item.kind) {
      case STROKE:
        this._stroke(context, view, item);
        break;
      case FILL:
        this._fill(context, view, item);
        break;
      case TEXT:
        this._text(context, view, item);
        break;
      case IMAGE:
        this._image(context, view, item);
        break;
    }
  }

  _stroke(context, view, item) {
    const { style } = item;
    const color = this._color(style.color, style.alpha);
    const extent = Math.max(item.maxX - item.minX, item.maxY - item.minY) * view.scale;
    if (extent < SMALLEST_STROKE) {
      context.setTransform(1, 0, 0, 1, 0, 0);
      context.fillStyle = color;
      context.fillRect((item.minX - view.x) * view.scale, (item.minY - view.y) * view.scale, 1, 1);
      return;
    }
    this._place(context, view, item);
    context.strokeStyle = color;
    context.lineWidth = this._widthOf(style, view) / view.scale;
    context.lineCap = style.cap;
    context.lineJoin = style.join;
    context.miterLimit = style.miter;
    const dashed = style.period * view.scale > SHORTEST_PERIOD && extent / (style.period * view.scale) < 20000;
    context.setLineDash(dashed ? style.dash : []);
    context.lineDashOffset = style.dashOffset;
    context.stroke(item.path);
  }

  /** The width of a stroke in pixels of the screen. */
  _widthOf(style, view) {
    if (!style.fixed) {
      return Math.max(style.width * view.scale, view.ratio);
    }
    if (!this.weights) {
      return view.ratio;
    }
    return Math.max(this.plotted ? style.width * view.scale : style.width * view.ratio, view.ratio);
  }

  _fill(context, view, item) {
    this._place(context, view, item);
    const rule = item.evenOdd ? "evenodd" : "nonzero";
    if (item.gradient === null) {
      context.fillStyle = this._color(item.color, item.alpha);
      context.fill(item.path, rule);
      return;
    }
    context.save();
    context.clip(item.path, rule);
    this._shade(context, view, item);
    context.restore();
  }

  _shade(context, view, { gradient, minX, minY, maxX, maxY }) {
    const [a, b, c, d, e, f] = gradient.matrix;
    const determinant = a * d - b * c;
    if (determinant === 0) {
      return;
    }
    const { scale } = view;
    context.setTransform(a * scale, b * scale, c * scale, d * scale, (e - view.x) * scale, (f - view.y) * scale);
    const focus = [Number(gradient.fx ?? 0), Number(gradient.fy ?? 0)];
    const paint = gradient.tag === "linearGradient" ? context.createLinearGradient(-1, 0, 1, 0)
      : context.createRadialGradient(...focus, 0, 0, 0, 1);
    for (const stop of gradient.stops) {
      paint.addColorStop(Math.min(1, Math.max(0, stop.offset)), this._color(stop.color, stop.alpha));
    }
    context.fillStyle = paint;
    const inverse = [d / determinant, -b / determinant, -c / determinant, a / determinant,
      (c * f - d * e) / determinant, (b * e - a * f) / determinant];
    const area = boundsOfCorners(inverse, minX, minY, maxX, maxY);
    context.fillRect(area.minX, area.minY, area.maxX - area.minX, area.maxY - area.minY);
  }

  _text(context, view, item) {
    const [a, b, c, d, e, f] = item.matrix;
    const { scale } = view;
    context.setTransform(a * scale, b * scale, c * scale, d * scale, (e - view.x) * scale, (f - view.y) * scale);
    if (item.height * scale < SMALLEST_TEXT) {
      context.fillStyle = this._color(item.color, item.alpha * 0.45);
      context.fillRect(0, -item.size * 0.55, item.length, item.size * 0.4);
      return;
    }
    context.fillStyle = this._color(item.color, item.alpha);
    context.font = item.font;
    if (item.stretch === 0) {
      const natural = context.measureText(item.string).width;
      item.stretch = natural > 0 && item.length > 0 ? item.length / natural : 1;
    }
    context.scale(item.stretch, 1);
    context.fillText(item.string, 0, 0);
  }

  _image(context, view, item) {
    const image = this.images[item.image];
    if (image === null) {
      return;
    }
    const [a, b, c, d, e, f] = item.matrix;
    const { scale } = view;
    context.setTransform(a * scale, b * scale, c * scale, d * scale, (e - view.x) * scale, (f - view.y) * scale);
    context.globalAlpha = item.alpha;
    const isEnlarged = scale * Math.hypot(a, b) > 8 * image.width;
    context.imageSmoothingEnabled = !(this.scene.images[item.image].sharp || isEnlarged);
    context.drawImage(image, 0, 0, 1, 1);
    context.globalAlpha = 1;
  }

  /** The numbers of the layers of what is drawn at a page point, or within a distance. */
  layersAt(x, y, distance) {
    this._probe ??= new OffscreenCanvas(1, 1).getContext("2d");
    this._probe.lineWidth = 2 * distance;
    const found = new Set();
    for (const item of this.scene.items) {
      if (item.kind < CLIP && !found.has(item.layer) && !this.hidden.has(item.layer) && isNear(item, x, y, distance)
        && this._isAt(item, x, y)) {
        found.add(item.layer);
      }
    }
    return found;
  }

  _isAt(item, x, y) {
    if (item.kind > FILL) {
      return true;  // the box of a text or an image
    }
    const context = this._probe;
    const centerX = (item.minX + item.maxX) / 2, centerY = (item.minY + item.maxY) / 2;
    item.path ??= this.scene.geometry.path(item.parts, centerX, centerY);
    return context.isPointInStroke(item.path, x - centerX, y - centerY) || (item.kind === FILL
      && context.isPointInPath(item.path, x - centerX, y - centerY, item.evenOdd ? "evenodd" : "nonzero"));
  }

  /** The end point or corner that is nearest to a page point, within a distance; null if there is none. */
  nearest(x, y, distance) {
    let found = null;
    let least = distance;
    const { verbs, coords } = this.scene.geometry;
    for (const item of this.scene.items) {
      if (item.kind > FILL || this.hidden.has(item.layer) || !isNear(item, x, y, distance)) {
        continue;
      }
      for (const part of item.parts) {
        if (!isNear(part, x, y, distance)) {
          continue;
        }
        let at = part.coord;
        for (let i = part.verb; i < part.verbEnd; i++) {
          at += COORDINATES[verbs[i]];
          const far = verbs[i] === CLOSE ? Infinity : Math.hypot(coords[at - 2] - x, coords[at - 1] - y);
          if (far < least) {
            least = far;
            found = { x: coords[at - 2], y: coords[at - 1] };
          }
        }
      }
    }
    return found;
  }
}

function isNear(bounds, x, y, distance) {
  return x > bounds.minX - distance && x < bounds.maxX + distance && y > bounds.minY - distance
    && y < bounds.maxY + distance;
}
