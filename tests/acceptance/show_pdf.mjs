// Renders the first page of a PDF document with PDF.js, the viewer of browsers, and compares it with an image of the
// page: node show_pdf.mjs <folder of node_modules> <document> <image> <rendered>. Prints one line of JSON.
import { readFileSync, writeFileSync } from "node:fs";
import { createRequire } from "node:module";
import { join } from "node:path";
import { pathToFileURL } from "node:url";

const REACH = 2;
const CLEAR = 48;
const FAINT = 8;

const [modules, document, image, rendered] = process.argv.slice(2);
const require = createRequire(join(modules, "index.js"));
const { createCanvas, loadImage } = require("@napi-rs/canvas");
const pdfjs = await import(pathToFileURL(join(modules, "pdfjs-dist/legacy/build/pdf.mjs")));

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

const warnings = [];
console.log = (message) => warnings.push(String(message)); // PDF.js writes its warnings there
const pdf = await pdfjs.getDocument({
  data: new Uint8Array(readFileSync(document)), isEvalSupported: false, verbosity: pdfjs.VerbosityLevel.WARNINGS,
}).promise;
const page = await pdf.getPage(1);
const viewport = page.getViewport({ scale: 1 });
const [width, height] = [Math.round(viewport.width), Math.round(viewport.height)];
const canvas = createCanvas(width, height);
const context = canvas.getContext("2d");
await page.render({ canvasContext: context, viewport, background: "white" }).promise;
writeFileSync(rendered, canvas.toBuffer("image/png"));

const expected = await loadImage(readFileSync(image));
const other = createCanvas(width, height).getContext("2d");
other.fillStyle = "white";
other.fillRect(0, 0, width, height);
other.drawImage(expected, 0, 0);
const [shown, wanted] = [strengths(context, width, height), strengths(other, width, height)];
const content = await page.getTextContent();
const groups = await pdf.getOptionalContentConfig();
process.stdout.write(JSON.stringify({
  size: [width, height],
  image: [expected.width, expected.height],
  pixels: wanted.reduce((sum, pixel) => sum + (pixel > CLEAR ? 1 : 0), 0),
  missing: 1 - share(wanted, shown, width, height),
  extra: 1 - share(shown, wanted, width, height),
  text: content.items.map((item) => item.str + (item.hasEOL ? "\n" : "")).join(" "),
  layers: Object.values(groups.getGroups() ?? {}).map((group) => group.name),
  warnings,
}) + "\n");
