// Reads drawing databases by a reader of another program: read_dwg.mjs <folder of npm modules> <file>...
// Prints a line of JSON a file: how many entities of each class, layers and block records it has.

import { readFileSync } from "node:fs";
import { join } from "node:path";
import { pathToFileURL } from "node:url";

const [modules, ...files] = process.argv.slice(2);
const { LibreDwg, Dwg_File_Type: type } = await import(
  pathToFileURL(join(modules, "@mlightcad/libredwg-web/dist/libredwg-web.js")));

for (const file of files) {
  const result = {};
  try {
    const reader = await LibreDwg.create();
    const data = reader.dwg_read_data(new Uint8Array(readFileSync(file)).buffer, type.DWG);
    const drawing = reader.convert(data);
    for (const entity of drawing.entities) {
      result[entity.type] = (result[entity.type] ?? 0) + 1;
    }
    result.layers = drawing.tables.LAYER.entries.length;
    result["block records"] = drawing.tables.BLOCK_RECORD.entries.length;
  } catch (error) {
    result.error = String(error);
  }
  console.log(`counts ${JSON.stringify(result)}`);
}
