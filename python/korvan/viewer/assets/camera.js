// The view: what part of the layout is on screen, and the images of it that the worker made.
"use strict";

const MARGIN = 0.15;  // of the window, drawn around it so that short moves need no new image
const NEAREST = 40000;  // zoom over the one that shows everything
const STALE = 3;  // how much an image is enlarged while the zoom goes on
const QUIET = 90;  // milliseconds without a change after which an outdated request is given up

class Camera {
  constructor(canvas, engine, onChange) {
    this.canvas = canvas;
    this.context = canvas.getContext("2d", { alpha: false });
    this.engine = engine;
    this.onChange = onChange;
    this.view = null;  // { x, y: the page point at the top left corner, scale: pixels of a page unit }
    this.page = null;
    this._sharp = null;
    this._overview = null;
    this._overviewState = -1;
    this._pending = null;
    this._state = 0;  // counts what changes images: layers, theme, widths
    this._ids = 0;
    this._dirty = false;
    this._changed = 0;
    this.firstImage = 0;
    this.isSharp = false;
    this._readColors();
    this.resize();
  }

  /** Shows nothing new until another layout has been read. */
  close() {
    this.view = this._pending = null;
    this.isSharp = false;
  }

  /** Shows another layout: its size, and the bounds of what is visible in it. */
  open(page, bounds) {
    this.page = page;
    this._sharp = this._overview = this._pending = null;
    this._overviewState = -1;
    this.bounds = bounds;
    this.fit();
  }

  resize() {
    this.ratio = window.devicePixelRatio || 1;
    const { clientWidth, clientHeight } = this.canvas;
    this.canvas.width = Math.max(1, Math.round(clientWidth * this.ratio));
    this.canvas.height = Math.max(1, Math.round(clientHeight * this.ratio));
    this.refresh();
  }

  /** Forgets images, after a change of the settings. */
  restyle() {
    this._state++;
    this._readColors();
    this.refresh();
  }

  _readColors() {
    const style = getComputedStyle(document.documentElement);
    this._colors = { desk: style.getPropertyValue("--desk"), sheet: style.getPropertyValue("--sheet") };
  }

  refresh() {
    this.isSharp = false;
    this._changed = performance.now();
    if (!this._dirty) {
      this._dirty = true;
      requestAnimationFrame(() => this._frame());
    }
  }

  get fittingScale() {
    const { minX, minY, maxX, maxY } = this.bounds;
    const width = Math.max(maxX - minX, 1e-9), height = Math.max(maxY - minY, 1e-9);
    return Math.min(this.canvas.width / width, this.canvas.height / height) * 0.94;
  }

  fit() {
    this.show(this.bounds, 1);
  }

  /** Shows bounds at the middle, at a share of the size at which they fill the window. */
  show({ minX, minY, maxX, maxY }, share, greatest = Infinity) {
    const width = Math.max(maxX - minX, 1e-9), height = Math.max(maxY - minY, 1e-9);
    const fitting = Math.min(this.canvas.width / width, this.canvas.height / height) * 0.94 * share;
    this._set((minX + maxX) / 2, (minY + maxY) / 2, Math.min(fitting, greatest));
  }

  _set(centreX, centreY, scale) {
    this.view = { x: centreX - this.canvas.width / 2 / scale, y: centreY - this.canvas.height / 2 / scale, scale,
      ratio: this.ratio };
    this._moved();
  }

  _moved() {
    this.onChange();
    this.refresh();
  }

  pan(deltaX, deltaY) {
    if (this.view !== null) {
      const { x, y, scale } = this.view;
      this.view = { ...this.view, x: x - deltaX * this.ratio / scale, y: y - deltaY * this.ratio / scale };
      this._moved();
    }
  }

  /** Zooms about a point of the window, which keeps its place. */
  zoom(factor, windowX = this.canvas.clientWidth / 2, windowY = this.canvas.clientHeight / 2) {
    if (this.view === null) {
      return;
    }
    const scale = Math.min(Math.max(this.view.scale * factor, this.fittingScale / 50), this.fittingScale * NEAREST);
    const point = this.toPage(windowX, windowY);
    this.view = { ...this.view, scale, x: point.x - windowX * this.ratio / scale,
      y: point.y - windowY * this.ratio / scale };
    this._moved();
  }

  toPage(windowX, windowY) {
    const { x, y, scale } = this.view;
    return { x: x + windowX * this.ratio / scale, y: y + windowY * this.ratio / scale };
  }

  toWindow(point) {
    const { x, y, scale } = this.view;
    return { x: (point.x - x) * scale / this.ratio, y: (point.y - y) * scale / this.ratio };
  }

  /** Takes an image from the worker. */
  accept({ id, view, overview, bitmap, done }) {
    if (this._pending === null || id !== this._pending.id) {
      bitmap.close();
      return;
    }
    const image = { view, bitmap, state: this._pending.state, done };
    if (overview) {
      this._overview?.bitmap.close();
      this._overview = image;
    } else {
      this._sharp?.bitmap.close();
      this._sharp = image;
      this.firstImage ||= performance.now();
    }
    if (done) {
      this._pending = null;
    }
    const changed = this._changed;
    this.refresh();
    this._changed = changed;
  }

  _frame() {
    this._dirty = false;
    if (this.view === null) {
      return;
    }
    this._paint();
    this._request();
  }

  _paint() {
    const { context, canvas, view } = this;
    context.setTransform(1, 0, 0, 1, 0, 0);
    context.fillStyle = this.page.isSheet ? this._colors.desk : this._colors.sheet;
    context.fillRect(0, 0, canvas.width, canvas.height);
    if (this.page.isSheet) {
      context.fillStyle = this._colors.sheet;
      context.fillRect(-view.x * view.scale, -view.y * view.scale, this.page.width * view.scale,
        this.page.height * view.scale);
    }
    if (!this._covers(this._sharp) && this._overview !== null) {
      this._place(this._overview);
    }
    if (this._sharp !== null) {
      this._place(this._sharp);
    }
  }

  _covers(image) {
    if (image === null || !image.done) {
      return false;
    }
    const { view, canvas } = this;
    const { bitmap, view: { x, y, scale } } = image;
    return x <= view.x && y <= view.y && x + bitmap.width / scale >= view.x + canvas.width / view.scale
      && y + bitmap.height / scale >= view.y + canvas.height / view.scale;
  }

  _place({ view: { x, y, scale }, bitmap }) {
    const { context, view } = this;
    const ratio = view.scale / scale;
    const left = (x - view.x) * view.scale, top = (y - view.y) * view.scale;
    if (Math.abs(ratio - 1) < 1e-9) {
      context.drawImage(bitmap, Math.round(left), Math.round(top));
      return;
    }
    context.imageSmoothingQuality = "low";
    // Only what is in the window: bitmaps that are enlarged much would not fit into memory.
    const x0 = Math.max(0, Math.floor(-left / ratio)), y0 = Math.max(0, Math.floor(-top / ratio));
    const x1 = Math.min(bitmap.width, Math.ceil((this.canvas.width - left) / ratio));
    const y1 = Math.min(bitmap.height, Math.ceil((this.canvas.height - top) / ratio));
    if (x1 > x0 && y1 > y0) {
      context.drawImage(bitmap, x0, y0, x1 - x0, y1 - y0, left + x0 * ratio, top + y0 * ratio, (x1 - x0) * ratio,
        (y1 - y0) * ratio);
    }
  }

  /** Asks for the image that is missing, one at a time. */
  _request() {
    const { view, canvas } = this;
    const isCurrent = (image) => image !== null && image.state === this._state;
    const isSharp = isCurrent(this._sharp) && this._covers(this._sharp) && this._sharp.view.scale === view.scale;
    this.isSharp = isSharp && this._pending === null;
    if (this._pending !== null) {
      const isOutdated = this._pending.view.scale !== view.scale || this._pending.state !== this._state;
      if (isOutdated && performance.now() - this._changed > QUIET) {
        this._pending = null;
      } else {
        if (isOutdated) {
          this._askLater();
        }
        return;
      }
    }
    if (!isSharp && this._isZooming()) {
      this._askLater();
    } else if (!isSharp) {
      const marginX = Math.round(canvas.width * MARGIN), marginY = Math.round(canvas.height * MARGIN);
      this._ask({ ...view, x: view.x - marginX / view.scale, y: view.y - marginY / view.scale },
        canvas.width + 2 * marginX, canvas.height + 2 * marginY, false);
    } else if (!isCurrent(this._overview)) {
      const scale = this.fittingScale;
      const { minX, minY, maxX, maxY } = this.bounds;
      this._ask({ x: minX - 4 / scale, y: minY - 4 / scale, scale, ratio: this.ratio },
        Math.ceil((maxX - minX) * scale) + 8, Math.ceil((maxY - minY) * scale) + 8, true);
    }
  }

  /** Whether the scale has just changed, but not by so much that the enlarged image shows little. */
  _isZooming() {
    if (this._sharp === null || this._sharp.state !== this._state || performance.now() - this._changed > QUIET) {
      return false;
    }
    const ratio = this.view.scale / this._sharp.view.scale;
    return ratio !== 1 && ratio > 1 / STALE && ratio < STALE;
  }

  _askLater() {
    clearTimeout(this._later);
    this._later = setTimeout(() => this._request(), QUIET);
  }

  _ask(view, width, height, overview) {
    this._pending = { id: ++this._ids, view, state: this._state };
    this.isSharp = false;
    this.engine.postMessage({ type: "draw", id: this._ids, view, width, height, overview });
  }
}
