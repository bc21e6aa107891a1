// Distances and areas, in drawing units, and the overlay that shows them and the matches of a search.
"use strict";

const SNAP = 12;  // pixels

/** The way from page points to drawing units, from the matrix of the layout. */
function drawingPoint([a, b, c, d, e, f], { x, y }) {
  const determinant = a * d - b * c;
  return { x: (d * (x - e) - c * (y - f)) / determinant, y: (a * (y - f) - b * (x - e)) / determinant };
}

/** Points of a sheet as those of the model, if one viewport shows them all. */
function throughViewport({ viewports, unit }, points) {
  const around = viewports.filter(({ bounds: [left, bottom, right, top] }) => points.length > 0
    && points.every(({ x, y }) => x >= left && x <= right && y >= bottom && y <= top));
  if (around.length === 0) {
    return { points, unit };
  }
  const areaOfPort = ({ bounds: [left, bottom, right, top] }) => (right - left) * (top - bottom);
  const port = around.reduce((least, other) => (areaOfPort(other) < areaOfPort(least) ? other : least));
  const [x0, y0] = port.offset;
  return { points: points.map(({ x, y }) => ({ x: x0 + x * port.scale, y: y0 + y * port.scale })), unit: port.unit };
}

function formatNumber(value) {
  const magnitude = Math.abs(value);
  const isWhole = magnitude >= 1e7 || magnitude === 0;
  const digits = isWhole ? 0 : Math.min(8, Math.max(0, 6 - Math.ceil(Math.log10(magnitude))));
  return Number(value.toFixed(digits)).toLocaleString("en", { maximumFractionDigits: digits, useGrouping: false });
}

function lengthOf(points) {
  let length = 0;
  for (let i = 1; i < points.length; i++) {
    length += Math.hypot(points[i].x - points[i - 1].x, points[i].y - points[i - 1].y);
  }
  return length;
}

/** The area of a polygon; coordinates far from the origin keep their precision. */
function areaOf(points) {
  let twice = 0;
  const [origin] = points;
  for (let i = 1; i + 1 < points.length; i++) {
    twice += (points[i].x - origin.x) * (points[i + 1].y - origin.y)
      - (points[i + 1].x - origin.x) * (points[i].y - origin.y);
  }
  return Math.abs(twice) / 2;
}

class Measure {
  constructor(camera, overlay, reading, onMode) {
    this.camera = camera;
    this.overlay = overlay;
    this.reading = reading;
    this.onMode = onMode;
    this.mode = null;  // "distance" or "area"
    this.points = [];  // on the page
    this.pointer = null;
    this.matches = [];
    this.current = -1;
    this.picked = null;  // the box of an entity on the page
    this._finished = false;
    this._snapId = 0;
    this._snapWanted = null;
    this._snapBusy = false;
    this._clicks = new Map();  // points of the page that wait for what is drawn near them, by number
    this._clickIds = 0;
    this._isFinishing = false;
  }

  start(mode) {
    this.mode = this.mode === mode || this.camera.view === null ? null : mode;
    this.points = [];
    this.pointer = null;
    this._finished = this._isFinishing = false;
    this._clicks.clear();
    this.onMode(this.mode);
    this.update();
  }

  /** Moves the free end to a point of the window; snaps to what is drawn near it. */
  move(windowX, windowY, snaps) {
    if (this.mode === null || this._finished) {
      return;
    }
    const { camera } = this;
    this.pointer = { ...camera.toPage(windowX, windowY), snapped: false };
    this.update();
    if (snaps) {
      this._snapWanted = { ...this.pointer, distance: SNAP * camera.ratio / camera.view.scale };
      this._askSnap();
    } else {
      this._snapWanted = null;
      this._snapId++;
    }
  }

  _askSnap() {
    if (!this._snapBusy && this._snapWanted !== null) {
      this._snapBusy = true;
      this.camera.engine.postMessage({ type: "snap", id: ++this._snapId, ...this._snapWanted });
      this._snapWanted = null;
    }
  }

  accept({ id, point }) {
    if (id < 0) {
      const clicked = this._clicks.get(id);
      if (clicked !== undefined) {
        this._clicks.delete(id);
        this._push(point ?? clicked);
      }
      return;
    }
    this._snapBusy = false;
    if (id === this._snapId && point !== null && this.pointer !== null && this._snapWanted === null) {
      this.pointer = { ...point, snapped: true };
      this.update();
    }
    this._askSnap();
  }

  /** Adds the point of a click, or what is drawn near it. */
  add(windowX, windowY, snaps) {
    if (this.mode === null) {
      return;
    }
    const { camera } = this;
    const clicked = camera.toPage(windowX, windowY);
    if (!snaps) {
      this._push(clicked);
      return;
    }
    const id = -(++this._clickIds);
    this._clicks.set(id, clicked);
    camera.engine.postMessage({ type: "snap", id, ...clicked, distance: SNAP * camera.ratio / camera.view.scale });
  }

  _push(point) {
    if (this._finished) {
      this.points = [];
      this._finished = false;
    }
    const last = this.points[this.points.length - 1];
    // The second click of a double click adds nothing.
    if (last === undefined || Math.hypot(last.x - point.x, last.y - point.y) * this.camera.view.scale > 1) {
      this.points.push(point);
    }
    this.pointer ??= point;
    if (this._isFinishing && this._clicks.size === 0) {
      this.finish();
    }
    this.update();
  }

  finish() {
    this._isFinishing = this._clicks.size > 0;
    if (!this._isFinishing) {
      this._finished = this.points.length > 1;
      this.update();
    }
  }

  undo() {
    this.points.pop();
    this._finished = false;
    this.update();
  }

  update() {
    this._draw();
    this.reading.textContent = this.mode === null ? "" : this._report();
  }

  _report() {
    const { matrix } = this.camera.page;
    const free = this.pointer !== null && !this._finished ? [this.pointer] : [];
    const { points, unit } = throughViewport(this.camera.page,
      [...this.points, ...free].map((point) => drawingPoint(matrix, point)));
    const suffix = unit ? " " + unit : "";
    if (this.points.length === 0) {
      return this.mode === "area" ? "Click the corners of an area." : "Click the first point.";
    }
    if (this.mode === "area") {
      const perimeter = formatNumber(lengthOf([...points, points[0]])) + suffix;
      return `Area ${formatNumber(areaOf(points))}${unit ? suffix + "²" : ""}   perimeter ${perimeter}`;
    }
    if (points.length < 2) {
      return "Click the next point.";
    }
    const [from, to] = points.slice(-2);
    const total = points.length > 2 ? `   total ${formatNumber(lengthOf(points))}${suffix}` : "";
    const angle = (Math.atan2(to.y - from.y, to.x - from.x) * 180 / Math.PI + 360) % 360;
    return `Distance ${formatNumber(lengthOf([from, to]))}${suffix}   Δx ${formatNumber(to.x - from.x)}   `
      + `Δy ${formatNumber(to.y - from.y)}   ${angle.toFixed(2)}°${total}`;
  }

  _draw() {
    const { overlay, camera } = this;
    const isEmpty = this.mode === null && this.matches.length === 0 && this.picked === null;
    overlay.hidden = isEmpty;
    if (isEmpty) {  // one surface less to compose in each frame
      return;
    }
    const context = overlay.getContext("2d");
    const width = camera.canvas.width, height = camera.canvas.height;
    if (overlay.width !== width || overlay.height !== height) {
      [overlay.width, overlay.height] = [width, height];
    }
    context.setTransform(1, 0, 0, 1, 0, 0);
    context.clearRect(0, 0, width, height);
    if (camera.view === null) {
      return;
    }
    context.scale(camera.ratio, camera.ratio);
    this._drawMatches(context);
    this._drawPicked(context);
    if (this.mode !== null) {
      this._drawMeasure(context);
    }
  }

  _drawMatches(context) {
    this.matches.forEach((match, i) => {
      const a = this.camera.toWindow({ x: match.minX, y: match.minY });
      const b = this.camera.toWindow({ x: match.maxX, y: match.maxY });
      const isCurrent = i === this.current;
      context.fillStyle = isCurrent ? "rgba(255,140,0,.45)" : "rgba(255,214,0,.35)";
      context.fillRect(a.x - 2, a.y - 2, b.x - a.x + 4, b.y - a.y + 4);
      if (isCurrent) {
        context.strokeStyle = "#e06c00";
        context.lineWidth = 2;
        context.strokeRect(a.x - 4, a.y - 4, b.x - a.x + 8, b.y - a.y + 8);
      }
    });
  }

  _drawPicked(context) {
    if (this.picked === null) {
      return;
    }
    const a = this.camera.toWindow({ x: this.picked.minX, y: this.picked.minY });
    const b = this.camera.toWindow({ x: this.picked.maxX, y: this.picked.maxY });
    context.strokeStyle = "#0b8fe0";
    context.lineWidth = 1.5;
    context.setLineDash([5, 4]);
    context.strokeRect(a.x - 4, a.y - 4, b.x - a.x + 8, b.y - a.y + 8);
    context.setLineDash([]);
  }

  _drawMeasure(context) {
    const free = this.pointer !== null && !this._finished ? [this.pointer] : [];
    const points = [...this.points, ...free].map((point) => this.camera.toWindow(point));
    context.strokeStyle = context.fillStyle = "#e0218a";
    context.lineWidth = 1.5;
    context.beginPath();
    points.forEach(({ x, y }) => context.lineTo(x, y));
    if (this.mode === "area") {
      context.closePath();
      context.globalAlpha = 0.15;
      context.fill("evenodd");
      context.globalAlpha = 1;
    }
    context.stroke();
    this.points.forEach((point) => {
      const { x, y } = this.camera.toWindow(point);
      context.fillRect(x - 2.5, y - 2.5, 5, 5);
    });
    if (free.length > 0 && this.pointer.snapped) {
      const { x, y } = points[points.length - 1];
      context.strokeRect(x - 6, y - 6, 12, 12);
    }
  }
}
