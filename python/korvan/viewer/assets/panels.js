// The side panel and the tabs. Strings of the drawing are set as text, never as markup.
"use strict";

const $$ = (id) => document.getElementById(id);

class Layers {
  constructor(layers, onChange) {
    this.onChange = onChange;
    this._boxes = new Map();
    this._stored = new Map(layers.map((layer) => [layer.name, layer.visible]));
    for (const layer of layers) {
      this._add(layer);
    }
    $$("all-layers").onclick = () => this._set(() => true);
    $$("no-layers").onclick = () => this._set(() => false);
    $$("own-layers").onclick = () => this._set((name) => this._stored.get(name) ?? true);
  }

  /** Names of the layers that are switched off. */
  get hidden() {
    return [...this._boxes].filter(([, { box }]) => !box.checked).map(([name]) => name);
  }

  /** Marks the layers that have something on this layout, and shows a colour of theirs. */
  mark(layers) {
    for (const { name } of layers) {  // a file need not list all layers that it uses
      if (!this._boxes.has(name)) {
        this._add({ name, visible: true });
      }
    }
    $$("layers-section").hidden = this._boxes.size === 0;
    const colors = new Map(layers.map((layer) => [layer.name, layer]));
    for (const [name, { item, swatch }] of this._boxes) {
      item.classList.toggle("empty", !colors.has(name));
      for (const theme of ["light", "dark"]) {
        swatch.style.setProperty(`--${theme}`, colors.get(name)?.[theme] ?? "transparent");
      }
    }
  }

  _add({ name, visible }) {
    const item = document.createElement("li");
    const label = document.createElement("label");
    const box = document.createElement("input");
    const swatch = document.createElement("span");
    box.type = "checkbox";
    box.checked = visible;
    box.onchange = () => this.onChange();
    swatch.className = "swatch";
    label.append(box, swatch, document.createTextNode(name));
    item.append(label);
    $$("layers").append(item);
    this._boxes.set(name, { box, item, swatch });
  }

  _set(isVisible) {
    for (const [name, { box }] of this._boxes) {
      box.checked = isVisible(name);
    }
    this.onChange();
  }
}

class Tabs {
  constructor(names, onSelect) {
    this.onSelect = onSelect;
    this.selected = -1;
    this._tabs = names.map((name, i) => {
      const tab = document.createElement("button");
      tab.setAttribute("role", "tab");
      tab.textContent = tab.title = name;
      tab.onclick = () => this.select(i);
      $$("tabs").append(tab);
      return tab;
    });
  }

  select(index) {
    if (index < 0 || index >= this._tabs.length || index === this.selected) {
      return;
    }
    this.selected = index;
    this._tabs.forEach((tab, i) => {
      tab.setAttribute("aria-selected", String(i === index));
      tab.tabIndex = i === index ? 0 : -1;
    });
    this._tabs[index].scrollIntoView({ block: "nearest", inline: "nearest" });
    this.onSelect(index);
  }
}

class Search {
  constructor(onShow) {
    this.onShow = onShow;
    this.texts = [];
    this.matches = [];
    this.current = -1;
    $$("query").oninput = () => this.run();
    $$("search").onsubmit = (event) => {
      event.preventDefault();
      this.step(1);
    };
    $$("previous").onclick = () => this.step(-1);
    $$("query").onkeydown = (event) => {
      if (event.key === "Enter" && event.shiftKey) {
        event.preventDefault();
        this.step(-1);
      } else if (event.key === "Escape") {
        $$("query").value = "";
        this.run();
        $$("drawing").focus();
      }
    };
  }

  /** Takes the texts of another layout, or other layers. */
  update(texts) {
    this.texts = texts;
    this.run();
  }

  run() {
    const wanted = fold($$("query").value.trim());
    this.matches = wanted === "" ? [] : this.texts.filter((text) => fold(text.string).includes(wanted));
    this.current = -1;
    this._report(wanted !== "");
    this.onShow(null);
  }

  step(by) {
    const count = this.matches.length;
    if (count > 0) {
      this.current = this.current < 0 && by < 0 ? count - 1 : (this.current + by + count) % count;
      this._report(true);
      this.onShow(this.matches[this.current]);
    }
  }

  _report(isAsked) {
    const count = this.matches.length;
    const place = this.current >= 0 ? `${this.current + 1} of ` : "";
    $$("matches").textContent = !isAsked ? "" : count === 0 ? "Not found on this layout"
      : `${place}${count} ${count === 1 ? "match" : "matches"}`;
  }
}

/** Case and accents do not count. */
function fold(text) {
  return text.normalize("NFKD").replace(/\p{M}/gu, "").toLowerCase();
}
