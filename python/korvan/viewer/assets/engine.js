// The worker: reads layouts and draws views of them, so that the page never waits.
"use strict";

const INTERIM = 250;  // milliseconds between unfinished images of a slow view

let painter = null;
let last = null;  // the last image of a view that is whole
let newest = 0;
let current = null;  // settings
let opened = 0;  // counts layouts, as one may be asked for while another is read
const channel = new MessageChannel();
let resume = null;
channel.port1.onmessage = () => resume();

/** Lets messages in between two slices. */
function nextTask() {
  return new Promise((resolve) => {
    resume = resolve;
    channel.port2.postMessage(0);
  });
}

async function inflate(bytes) {
  const stream = new Blob([bytes]).stream().pipeThrough(new DecompressionStream("gzip"));
  return new Response(stream).text();
}

async function decodeImage(url) {
  const [head, data] = url.split(",", 2);
  const bytes = Uint8Array.from(atob(data), (character) => character.charCodeAt(0));
  try {
    return await createImageBitmap(new Blob([bytes], { type: head.slice(5).split(";")[0] }));
  } catch {
    return null;  // damaged: its place stays empty
  }
}

/** The scene of a page that is an image. */
async function imageScene(bytes) {
  const bitmap = await createImageBitmap(new Blob([bytes]));
  const { width, height } = bitmap;
  const place = { kind: IMAGE, layer: -1, image: 0, alpha: 1, matrix: [width, 0, 0, height, 0, 0] };
  const scene = { width, height, matrix: [1, 0, 0, -1, 0, height], layers: [], texts: [],
    geometry: new Geometry(), images: [{ sharp: false }],
    items: [{ ...place, minX: 0, minY: 0, maxX: width, maxY: height }] };
  return [scene, [bitmap]];
}

async function readLayout(bytes, isImage) {
  if (isImage) {
    return imageScene(bytes);
  }
  const scene = new SceneReader().read(await inflate(bytes));
  return [scene, await Promise.all(scene.images.map((image) => decodeImage(image.url)))];
}

async function open({ index, bytes, isImage, isPlotted, settings }) {
  const turn = ++opened;
  current = settings;
  let scene, images;
  try {
    [scene, images] = await readLayout(bytes, isImage);
  } catch (error) {
    if (turn === opened) {
      throw error;
    }
  }
  if (turn !== opened) {
    return;
  }
  painter = new Painter(scene, images);
  painter.plotted = isPlotted;
  apply(current);
  const { width, height, matrix, texts } = scene;
  const layers = scene.layers.map((name, i) => ({
    name, light: painter.colorOfLayer(i, false), dark: painter.colorOfLayer(i, true) }));
  postMessage({ type: "opened", index, width, height, matrix, layers, texts, bounds: painter.visibleBounds(),
    count: scene.items.length });
}

function apply({ hidden, dark, weights }) {
  const names = new Set(hidden);
  painter.hidden = new Set([...painter.scene.layers.keys()].filter((i) => names.has(painter.scene.layers[i])));
  painter.setTheme(dark);
  painter.weights = weights;
  painter.style = {};  // another one after each change
  last = null;
}

async function draw({ id, view, width, height, overview }) {
  newest = id;
  const canvas = new OffscreenCanvas(width, height);
  const context = canvas.getContext("2d");
  const send = async (done) => {
    const bitmap = await createImageBitmap(canvas);
    postMessage({ type: "drawn", id, view, overview, bitmap, done }, [bitmap]);
  };
  const { style } = painter;
  const areas = overview ? [{ x: 0, y: 0, width, height }] : reuseLast(context, view);
  const isMove = areas.length !== 1 || areas[0].width * areas[0].height < width * height;
  let shown = performance.now();
  for (const area of areas) {
    const finished = await painter.draw(context, view, area, async (isWhole) => {
      if (isWhole && !isMove && !overview && performance.now() - shown > INTERIM) {
        await send(false);
        shown = performance.now();
      }
      await nextTask();
      return newest === id;
    });
    if (!finished) {
      return;
    }
  }
  await send(true);
  if (!overview) {
    last = { canvas, view, style };
  }
}

/** Copies what the last image has of a view of the same scale, and returns the areas that it has not. */
function reuseLast(context, view) {
  const { width, height } = context.canvas;
  const whole = [{ x: 0, y: 0, width, height }];
  if (last === null || last.style !== painter.style || last.view.scale !== view.scale) {
    return whole;
  }
  const x = Math.round((last.view.x - view.x) * view.scale), y = Math.round((last.view.y - view.y) * view.scale);
  const { canvas } = last;
  const left = Math.max(0, x), right = Math.min(width, x + canvas.width);
  const top = Math.max(0, y), bottom = Math.min(height, y + canvas.height);
  if (right <= left || bottom <= top) {
    return whole;
  }
  view.x = last.view.x - x / view.scale;  // a whole number of pixels apart
  view.y = last.view.y - y / view.scale;
  context.drawImage(canvas, x, y);
  return [
    { x: 0, y: 0, width, height: top },
    { x: 0, y: bottom, width, height: height - bottom },
    { x: 0, y: top, width: left, height: bottom - top },
    { x: right, y: top, width: width - right, height: bottom - top },
  ].filter((area) => area.width > 0 && area.height > 0);
}

const HANDLERS = {
  open,
  draw,
  settings({ settings }) {
    current = settings;
    if (painter !== null) {
      apply(settings);
      postMessage({ type: "bounds", bounds: painter.visibleBounds() });
    }
  },
  pick({ id, x, y, distance }) {
    const layers = [...painter.layersAt(x, y, distance)].map((layer) => painter.scene.layers[layer] ?? "");
    postMessage({ type: "picked", id, layers });
  },
  snap({ id, x, y, distance }) {
    postMessage({ type: "snapped", id, point: painter.nearest(x, y, distance) });
  },
};

onmessage = async ({ data }) => {
  try {
    await HANDLERS[data.type](data);
  } catch (error) {
    postMessage({ type: "failed", message: error.message });
  }
};
