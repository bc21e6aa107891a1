// Renders the first page of a PDF document with PDF.js, the viewer of browsers, and compares it with an image of the
// page. Is imported by a page of a browser.
import * as pdfjs from "/pdfjs-dist/legacy/build/pdf.mjs";

const REACH = 2;
const CLEAR = 48;
const FAINT = 8;

// How much each pixel differs from white.
function strengths(context, width, height) {
  const { data } = context.getImageData(0, 0, width, height);
  const result = new Uint8Array(width * height);
  for (let i = 0; i < result.length; i++) {
    result[i] = 255 - Math.min(data[4 * i], data[4 * i + 1], data[4 * i + 2]);
  }
  return result;
}

// The share of the pixels where one clearly shows something that have something near in the other.
function share(one, other, width, height) {
  let all = 0;
  let found = 0;
  for (let y = 0; y < height; y++) {
    for (let x = 0; x < width; x++) {
      if (one[y * width + x] > CLEAR) {
        all++;
        found += showsNear(other, x, y, width, height) ? 1 : 0;
      }
    }
  }
  return all === 0 ? 1 : found / all;
}

function showsNear(pixels, x, y, width, height) {
  for (let v = Math.max(0, y - REACH); v <= Math.min(height - 1, y + REACH); v++) {
    for (let u = Math.max(0, x - REACH); u <= Math.min(width - 1, x + REACH); u++) {
      if (pixels[v * width + u] > FAINT) {
        return true;
      }
    }
  }
  return false;
}

function count(pixels) {
  return pixels.reduce((sum, pixel) => sum + (pixel > CLEAR ? 1 : 0), 0);
}

function contextOf(width, height) {
  const canvas = Object.assign(document.createElement("canvas"), { width, height });
  return canvas.getContext("2d", { willReadFrequently: true });
}

async function render(page, groups) {
  const viewport = page.getViewport({ scale: 1 });
  const [width, height] = [Math.round(viewport.width), Math.round(viewport.height)];
  const canvasContext = contextOf(width, height);
  const optionalContentConfigPromise = Promise.resolve(groups);
  await page.render({ canvasContext, viewport, background: "white", optionalContentConfigPromise }).promise;
  return { width, height, canvas: canvasContext.canvas, pixels: strengths(canvasContext, width, height) };
}

async function imageOf(address, width, height) {
  const image = await createImageBitmap(await (await fetch(address)).blob());
  const context = contextOf(width, height);
  context.fillStyle = "white";
  context.fillRect(0, 0, width, height);
  context.drawImage(image, 0, 0);
  return { size: [image.width, image.height], pixels: strengths(context, width, height) };
}

// How many pixels the page shows when a layer is off, by the name of the layer, and when all are.
async function withoutLayers(pdf, page) {
  const names = {};
  const groups = await pdf.getOptionalContentConfig();
  const all = Object.entries(groups.getGroups() ?? {});
  for (const [id, group] of all) {
    groups.setVisibility(id, false);
    names[group.name] = count((await render(page, groups)).pixels);
    groups.setVisibility(id, true);
  }
  all.forEach(([id]) => groups.setVisibility(id, false));
  names[""] = count((await render(page, groups)).pixels);
  return names;
}

export async function show(documentAddress, imageAddress, tryLayers) {
  const warnings = [];
  // PDF.js writes its warnings to the console, of this thread where its worker is there already.
  console.log = (message) => String(message).endsWith("Setting up fake worker.") || warnings.push(String(message));
  globalThis.pdfjsWorker ??= await import("/pdfjs-dist/legacy/build/pdf.worker.mjs");
  const data = new Uint8Array(await (await fetch(documentAddress)).arrayBuffer());
  const pdf = await pdfjs.getDocument({
    data, isEvalSupported: false, verbosity: pdfjs.VerbosityLevel.WARNINGS,
  }).promise;
  const page = await pdf.getPage(1);
  const groups = await pdf.getOptionalContentConfig();
  const shown = await render(page, groups);
  const { width, height } = shown;
  const wanted = await imageOf(imageAddress, width, height);
  const content = await page.getTextContent();
  return {
    size: [width, height],
    image: wanted.size,
    pixels: count(wanted.pixels),
    missing: 1 - share(wanted.pixels, shown.pixels, width, height),
    extra: 1 - share(shown.pixels, wanted.pixels, width, height),
    text: content.items.map((item) => item.str + (item.hasEOL ? "\n" : "")).join(" "),
    layers: Object.values(groups.getGroups() ?? {}).map((group) => group.name),
    without: tryLayers ? await withoutLayers(pdf, page) : {},
    shown: shown.canvas.toDataURL("image/png"),
    warnings,
  };
}
