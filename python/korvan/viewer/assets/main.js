// Starts the page: reads what the builder stored, connects the worker, the view, the panels and the input.
"use strict";

const STEP = 1.25;

function storedBytes(id) {
  return Uint8Array.from(atob($$(id).textContent), (character) => character.charCodeAt(0));
}

async function storedText(id) {
  const stream = new Blob([storedBytes(id)]).stream().pipeThrough(new DecompressionStream("gzip"));
  return new Response(stream).text();
}

function startEngine() {
  const source = new Blob([$$("engine").textContent], { type: "text/javascript" });
  return new Worker(URL.createObjectURL(source));
}

/** The unit of a sheet, whose page has 96 pixels per inch. */
function paperUnit({ isSheet }, [a, b]) {
  const pixels = Math.hypot(a, b);
  const units = { mm: 96 / 25.4, in: 96 };
  return (isSheet && Object.keys(units).find((unit) => Math.abs(pixels / units[unit] - 1) < 1e-3)) || "";
}

class Viewer {
  constructor(drawing) {
    this.drawing = drawing;
    this.engine = startEngine();
    this.camera = new Camera($$("drawing"), this.engine, () => this._moved());
    this.measure = new Measure(this.camera, $$("overlay"), $$("reading"), (mode) => this._measuring(mode));
    this.picker = new Picker(this.camera, (entity) => this._pick(entity));
    this.layers = new Layers(drawing.layers, () => this._restyle());
    this.search = new Search((match) => this._show(match));
    this.tabs = new Tabs(drawing.layouts.map((layout) => layout.name), (index) => this._open(index));
    this.weights = true;
    this.dark = matchMedia("(prefers-color-scheme: dark)").matches;
    this._texts = [];
    this.engine.onmessage = ({ data }) => this[`_${data.type}`](data);
    this.engine.onerror = (event) => this._failed({ message: event.message });
  }

  start() {
    $$("title").textContent = $$("title").title = this.drawing.title;
    for (const note of this.drawing.notes) {
      const item = document.createElement("li");
      item.textContent = note;
      $$("notes").append(item);
    }
    $$("notes-section").hidden = this.drawing.notes.length === 0;
    this._setTheme(this.dark);
    matchMedia("(prefers-color-scheme: dark)").onchange = (event) => this._setTheme(event.matches);
    new ResizeObserver(() => this._resized()).observe($$("stage"));
    connectButtons(this);
    connectPointer(this);
    connectKeys(this);
    this.tabs.select(this.drawing.first);
  }

  get _settings() {
    return { hidden: this.layers.hidden, dark: this.dark, weights: this.weights };
  }

  _open(index) {
    const layout = this.drawing.layouts[index];
    this.picker.open(null);
    $$("message").textContent = layout.message ?? "";
    this.measure.start(null);
    this.camera.close();
    if (layout.message) {
      return;
    }
    $$("state").textContent = "Reading …";
    const bytes = storedBytes(`layout-${index}`);
    this.engine.postMessage({ type: "open", index, bytes, isImage: layout.isImage,
      isPlotted: layout.isSheet, settings: this._settings }, [bytes.buffer]);
  }

  _opened({ index, width, height, matrix, layers, texts, bounds, count }) {
    if (index !== this.tabs.selected) {  // another one has been selected meanwhile
      return;
    }
    const layout = this.drawing.layouts[index];
    const isSheet = layout.isSheet || layout.isImage;
    this.layers.mark(layers);
    this._names = layers.map((layer) => layer.name);
    this._texts = texts;
    const whole = { minX: 0, minY: 0, maxX: width, maxY: height };
    const { viewports } = layout;
    const unit = layout.unit || paperUnit(layout, matrix);
    this.camera.open({ width, height, matrix, isSheet, viewports, unit }, isSheet ? whole : bounds);
    this._updateSearch();
    this._readEntities(index);
    $$("message").textContent = count === 0 ? "There is nothing on this layout." : "";
  }

  async _readEntities(index) {
    const table = $$(`entities-${index}`) && JSON.parse(await storedText(`entities-${index}`));
    if (index === this.tabs.selected) {
      this.picker.open(table);
    }
  }

  _picked(answer) {
    this.picker.accept(answer);
  }

  _pick(entity) {
    this.measure.picked = entity && boxOnPage(this.camera.page.matrix, entity);
    this.measure.update();
    showEntity(entity);
  }

  _drawn(image) {
    this.camera.accept(image);
    $$("state").textContent = image.done ? "" : "Drawing …";
  }

  _bounds({ bounds }) {
    if (this.camera.page !== null && !this.camera.page.isSheet) {
      this.camera.bounds = bounds;
    }
  }

  _snapped(answer) {
    this.measure.accept(answer);
  }

  _failed({ message }) {
    $$("state").textContent = "";
    $$("message").textContent = `This layout cannot be shown: ${message}`;
  }

  _moved() {
    this.measure.update();
    $$("zoom").textContent = `${Math.round(this.camera.view.scale / this.camera.fittingScale * 100)} %`;
  }

  _resized() {
    const { view, canvas } = this.camera;
    const centre = view && { x: view.x + canvas.width / 2 / view.scale, y: view.y + canvas.height / 2 / view.scale };
    this.camera.resize();
    if (centre) {
      this.camera._set(centre.x, centre.y, view.scale);
    }
  }

  _restyle() {
    this.engine.postMessage({ type: "settings", settings: this._settings });
    this.camera.restyle();
    this._updateSearch();
  }

  _updateSearch() {
    const hidden = new Set(this.layers.hidden);
    this.search.update(this._texts.filter((text) => text.layer < 0 || !hidden.has(this._names[text.layer])));
  }

  _show(match) {
    this.measure.matches = this.search.matches;
    this.measure.current = this.search.current;
    if (match !== null) {
      const height = match.maxY - match.minY;
      this.camera.show(match, 0.3, 60 * this.camera.ratio / Math.max(height, 1e-9));
    } else {
      this.measure.update();
    }
  }

  _measuring(mode) {
    for (const name of ["distance", "area"]) {
      $$(name).setAttribute("aria-pressed", String(mode === name));
    }
    $$("drawing").classList.toggle("measuring", mode !== null);
  }

  _setTheme(dark) {
    this.dark = dark;
    document.documentElement.dataset.theme = dark ? "dark" : "light";
    $$("theme").setAttribute("aria-pressed", String(dark));
    if (this.tabs.selected >= 0) {
      this._restyle();
    }
  }

  toggleTheme() {
    this._setTheme(!this.dark);
  }

  toggleWeights() {
    this.weights = !this.weights;
    $$("weights").setAttribute("aria-pressed", String(this.weights));
    this._restyle();
  }

  toggleSide() {
    $$("side").hidden = !$$("side").hidden;
  }

  toggleHelp() {
    $$("keys").hidden = !$$("keys").hidden;
    $$("help").setAttribute("aria-pressed", String(!$$("keys").hidden));
  }
}

function connectButtons(viewer) {
  const actions = {
    "zoom-in": () => viewer.camera.zoom(STEP), "zoom-out": () => viewer.camera.zoom(1 / STEP),
    fit: () => viewer.camera.fit(), distance: () => viewer.measure.start("distance"),
    area: () => viewer.measure.start("area"), weights: () => viewer.toggleWeights(),
    theme: () => viewer.toggleTheme(), help: () => viewer.toggleHelp(),
  };
  for (const [id, action] of Object.entries(actions)) {
    $$(id).onclick = action;
  }
}

function connectPointer(viewer) {
  const { camera, measure } = viewer;
  const canvas = $$("drawing");
  const pointers = new Map();
  let travelled = 0;
  const local = (event) => {
    const box = canvas.getBoundingClientRect();
    return { x: event.clientX - box.left, y: event.clientY - box.top };
  };
  const spread = () => {
    const [a, b] = [...pointers.values()];
    return { x: (a.x + b.x) / 2, y: (a.y + b.y) / 2, distance: Math.hypot(a.x - b.x, a.y - b.y) };
  };
  canvas.onpointerdown = (event) => {
    canvas.setPointerCapture(event.pointerId);
    pointers.set(event.pointerId, local(event));
    travelled = 0;
  };
  canvas.onpointermove = (event) => {
    const at = local(event);
    if (camera.view === null) {
      return;
    }
    showPosition(viewer, at);
    const before = pointers.get(event.pointerId);
    if (before === undefined) {
      measure.move(at.x, at.y, !event.altKey);
      return;
    }
    const was = pointers.size === 2 ? spread() : null;
    pointers.set(event.pointerId, at);
    travelled += Math.abs(at.x - before.x) + Math.abs(at.y - before.y);
    if (was !== null) {
      const now = spread();
      camera.pan(now.x - was.x, now.y - was.y);
      camera.zoom(now.distance / Math.max(was.distance, 1), now.x, now.y);
    } else if (travelled > 3) {
      canvas.classList.add("dragging");
      camera.pan(at.x - before.x, at.y - before.y);
    }
  };
  const release = (event) => {
    const isClick = pointers.size === 1 && travelled <= 3 && event.type === "pointerup";
    pointers.delete(event.pointerId);
    canvas.classList.remove("dragging");
    if (isClick && event.button === 0) {
      const at = local(event);
      if (measure.mode !== null) {
        measure.add(at.x, at.y, !event.altKey);
      } else {
        viewer.picker.pick(at.x, at.y);
      }
    }
  };
  canvas.onpointerup = canvas.onpointercancel = release;
  canvas.ondblclick = () => (measure.mode === null ? camera.fit() : measure.finish());
  canvas.addEventListener("wheel", (event) => {
    event.preventDefault();
    const at = local(event);
    const lines = event.deltaMode === 1 ? 16 : 1;
    camera.zoom(Math.exp(-event.deltaY * lines * (event.ctrlKey ? 0.01 : 0.0016)), at.x, at.y);
  }, { passive: false });
}

function showPosition({ camera }, at) {
  const point = drawingPoint(camera.page.matrix, camera.toPage(at.x, at.y));
  $$("position").textContent = `${formatNumber(point.x)}, ${formatNumber(point.y)} ${camera.page.unit}`;
}

function connectKeys(viewer) {
  const { camera, measure, tabs } = viewer;
  const keys = {
    ArrowLeft: () => camera.pan(60, 0), ArrowRight: () => camera.pan(-60, 0),
    ArrowUp: () => camera.pan(0, 60), ArrowDown: () => camera.pan(0, -60),
    "+": () => camera.zoom(STEP), "=": () => camera.zoom(STEP), "-": () => camera.zoom(1 / STEP),
    f: () => camera.fit(), 0: () => camera.fit(), l: () => viewer.toggleSide(),
    d: () => measure.start("distance"), a: () => measure.start("area"),
    w: () => viewer.toggleWeights(), t: () => viewer.toggleTheme(), "?": () => viewer.toggleHelp(),
    PageUp: () => tabs.select(tabs.selected - 1), PageDown: () => tabs.select(tabs.selected + 1),
    Escape: () => {
      measure.start(null);
      viewer.picker.clear();
    },
    Backspace: () => measure.undo(),
    "/": () => {
      $$("side").hidden = false;
      $$("query").focus();
    },
  };
  document.addEventListener("keydown", (event) => {
    const isTyping = event.target instanceof HTMLInputElement && event.target.type === "search";
    if (isTyping || event.ctrlKey || event.metaKey) {
      return;
    }
    const isButton = event.target instanceof HTMLButtonElement || event.target instanceof HTMLInputElement;
    if (event.key === "Enter" && measure.mode !== null && !isButton) {
      measure.finish();
      return;
    }
    const action = keys[event.key] ?? keys[event.key.toLowerCase()];
    if (action !== undefined) {
      event.preventDefault();
      action();
    }
  });
}

async function start() {
  try {
    if (typeof OffscreenCanvas === "undefined" || typeof DecompressionStream === "undefined") {
      throw new Error("this browser is too old; it has to know OffscreenCanvas and DecompressionStream");
    }
    const viewer = new Viewer(JSON.parse(await storedText("contents")));
    document.documentElement.korvanViewer = viewer;
    viewer.start();
  } catch (error) {
    $$("message").textContent = `The drawing cannot be shown: ${error.message}`;
  }
}

start();
