// Finds the entity that was clicked: of those whose box has the point, the smallest that may be drawn there.
"use strict";

const REACH = 5;  // pixels

function sums(differences) {
  let sum = 0;
  return differences.map((difference) => (sum += difference));
}

/** What is known of the entities of a layout, as the builder stored it. */
class EntityTable {
  constructor({ kinds, layers, origin, step, x, y, width, height, kind, layer, handle }) {
    this._kinds = kinds;
    this._layers = layers;
    this._origin = origin;
    this._step = step;
    [this._x, this._y, this._handle] = [x, y, handle].map(sums);
    [this._width, this._height, this._kind, this._layer] = [width, height, kind, layer];
  }

  /** Entities that may be drawn at a point of the drawing, small ones first; parts of a block have their own layers. */
  at({ x, y }, reach, layers) {
    const [left, bottom] = this._origin;
    const [column, row] = [(x - left) / this._step, (y - bottom) / this._step];
    const margin = reach / this._step;
    const found = [];
    for (let i = 0; i < this._x.length; i++) {
      const isInside = column >= this._x[i] - margin && column <= this._x[i] + this._width[i] + margin
        && row >= this._y[i] - margin && row <= this._y[i] + this._height[i] + margin;
      const [, , hasParts] = this._kinds[this._kind[i]];
      if (isInside && (hasParts || layers.has(this._layers[this._layer[i]]))) {
        found.push(i);
      }
    }
    const size = (i) => this._width[i] + this._height[i];
    return found.sort((a, b) => size(a) - size(b));
  }

  entity(i) {
    const [type, block] = this._kinds[this._kind[i]];
    const minX = this._origin[0] + this._x[i] * this._step, minY = this._origin[1] + this._y[i] * this._step;
    const handle = this._handle[i] === 0 ? "" : this._handle[i].toString(16).toUpperCase();
    return { type, block, handle, layer: this._layers[this._layer[i]],
      minX, minY, maxX: minX + this._width[i] * this._step, maxY: minY + this._height[i] * this._step };
  }
}

class Picker {
  constructor(camera, onPick) {
    this.camera = camera;
    this.onPick = onPick;
    this._table = null;
    this._wanted = null;
    this._ids = 0;
    this._last = "";
    this._turn = 0;
  }

  /** Takes the table of another layout, null if it has none. */
  open(table) {
    this._table = table && new EntityTable(table);
    this.clear();
  }

  clear() {
    this._wanted = null;
    this._last = "";
    this.onPick(null);
  }

  /** Asks what is drawn at a point of the window. */
  pick(windowX, windowY) {
    if (this._table === null || this.camera.view === null) {
      return;
    }
    const { camera } = this;
    const at = camera.toPage(windowX, windowY);
    const distance = REACH * camera.ratio / camera.view.scale;
    this._wanted = { id: ++this._ids, at, distance };
    camera.engine.postMessage({ type: "pick", id: this._ids, ...at, distance });
  }

  /** Shows an entity at the point; each further click there shows the next larger one. */
  accept({ id, layers }) {
    if (this._wanted === null || id !== this._wanted.id) {
      return;
    }
    const { at, distance } = this._wanted;
    const { matrix } = this.camera.page;
    const reach = distance / Math.hypot(matrix[0], matrix[1]);
    const found = layers.length > 0 ? this._table.at(drawingPoint(matrix, at), reach, new Set(layers)) : [];
    const key = found.join();
    this._turn = key === this._last ? this._turn + 1 : 0;
    this._last = key;
    this.onPick(found.length > 0 ? this._table.entity(found[this._turn % found.length]) : null);
  }
}

/** The box of an entity on the page. */
function boxOnPage([a, b, c, d, e, f], { minX, minY, maxX, maxY }) {
  const corners = [[minX, minY], [maxX, minY], [minX, maxY], [maxX, maxY]]
    .map(([x, y]) => [a * x + c * y + e, b * x + d * y + f]);
  const [xs, ys] = [0, 1].map((axis) => corners.map((corner) => corner[axis]));
  return { minX: Math.min(...xs), minY: Math.min(...ys), maxX: Math.max(...xs), maxY: Math.max(...ys) };
}

function showEntity(entity) {
  const rows = entity === null ? [] : [["Type", entity.type], ["Block", entity.block], ["Handle", entity.handle],
    ["Layer", entity.layer]].filter(([, value]) => value !== "");
  $$("entity").replaceChildren(...rows.flatMap(([label, value]) => ["dt", "dd"].map((tag, i) => {
    const element = document.createElement(tag);
    element.textContent = [label, value][i];
    return element;
  })));
  $$("entity-section").hidden = entity === null;
}
