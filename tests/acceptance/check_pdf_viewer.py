"""Shows documents with PDF.js in a headless Chromium: each page beside its image, its texts and its layers.

Rendered pages are in build/acceptance/pdf afterwards.
"""

from __future__ import annotations

import base64
import re
import subprocess
import sys
from collections import Counter
from collections.abc import Generator
from contextlib import contextmanager
from http.server import SimpleHTTPRequestHandler, ThreadingHTTPServer
from pathlib import Path
from threading import Thread
from typing import Any

from browser import Browser
from prerequisites import ROOT, require, skip

HERE = Path(__file__).resolve().parent
RESULTS = ROOT / "build" / "acceptance" / "pdf"
MODULES = ROOT / "build" / "npm" / "node_modules"
VERSION = "4.10.38"
EMPTY = "<!DOCTYPE html><title>PDF.js</title>"
SIDE = 900.0
MOST_OFF = 0.01
"""The share of pixels of a page or of its image that the other may lack."""


def save(drawing: Path) -> tuple[Path, Path]:
    """Writes a drawing as PDF and, a pixel to a point, as an image."""
    from korvan.cad import Image, ResolutionSetting
    from korvan.cad.imageoptions import CadRasterizationOptions, PdfOptions, PngOptions

    raster = CadRasterizationOptions()
    raster.page_width = raster.page_height = SIDE
    pdf, png = PdfOptions(), PngOptions()
    pdf.vector_rasterization_options = png.vector_rasterization_options = raster
    png.resolution_settings = ResolutionSetting(72.0, 72.0)
    document, pixels = (RESULTS / f"{drawing.stem}{extension}" for extension in (".pdf", ".expected.png"))
    with Image.load(str(drawing)) as image:
        image.save(str(document), pdf)
        image.save(str(pixels), png)
    return document, pixels


class Files(SimpleHTTPRequestHandler):
    """The script of the page, PDF.js, and what is to be shown."""

    extensions_map = {**SimpleHTTPRequestHandler.extensions_map, ".mjs": "text/javascript"}

    def translate_path(self, path: str) -> str:
        name = path.removeprefix("/")
        folder = MODULES if name.startswith("pdfjs-dist/") else HERE if name == "show_pdf.mjs" else RESULTS
        return str(folder / name)

    def log_message(self, format: str, *arguments: object) -> None:
        pass


@contextmanager
def served() -> Generator[str]:
    """The address of a server on this machine."""
    with ThreadingHTTPServer(("127.0.0.1", 0), Files) as server:
        Thread(target=server.serve_forever, daemon=True).start()
        yield f"http://127.0.0.1:{server.server_port}"
        server.shutdown()


def show(browser: Browser, document: Path, pixels: Path, *, try_layers: bool) -> dict[str, Any]:
    script = "return import('/show_pdf.mjs').then((module) => module.show(...arguments))"
    result: dict[str, Any] = browser.run(script, document.name, pixels.name, try_layers)
    shown = base64.b64decode(result.pop("shown").partition(",")[2])
    document.with_suffix(".shown.png").write_bytes(shown)
    return result


def characters(text: str) -> Counter[str]:
    """Rotated texts are broken at other places by each reader."""
    return Counter(re.findall(r"[^\W_]", text))


def faults(document: Path, seen: dict[str, Any]) -> list[str]:
    """What is wrong with a page."""
    found = [f"a warning: {warning}" for warning in seen["warnings"]]
    if seen["size"] != seen["image"]:
        found.append(f"the page has {seen['size']} points, its image {seen['image']} pixels")
    found += [f"{seen[kind]:.1%} of the pixels are {kind}" for kind in ("missing", "extra") if seen[kind] > MOST_OFF]
    plain = subprocess.run(["pdftotext", document, "-"], check=True, capture_output=True, text=True).stdout
    lost = characters(plain) - characters(seen["text"])
    if lost.total() > MOST_OFF * characters(plain).total():
        found.append(f"{lost.total()} characters that are not found: {''.join(sorted(lost))[:40]}")
    return found


def block_drawing(path: Path) -> None:
    """Writes a drawing of a block with a text that is placed often, each time rotated by another angle."""
    tags: list[tuple[int, object]] = [(0, "SECTION"), (2, "BLOCKS"), (0, "BLOCK"), (8, "0"), (2, "PUMP"), (70, 0),
                                      (10, 0), (20, 0), (30, 0)]
    corners = ((0, 0), (8, 0), (8, 5), (0, 5), (0, 0))
    for (x0, y0), (x1, y1) in zip(corners, corners[1:], strict=False):
        tags += [(0, "LINE"), (8, "0"), (10, x0), (20, y0), (11, x1), (21, y1)]
    tags += [(0, "CIRCLE"), (8, "pipes"), (10, 4), (20, 2.5), (40, 2), (0, "TEXT"), (8, "0"), (10, 0), (20, 6), (40, 2),
             (1, "Pumpe"), (0, "ENDBLK"), (0, "ENDSEC"), (0, "SECTION"), (2, "ENTITIES")]
    for at in range(200):
        tags += [(0, "INSERT"), (8, ("walls", "notes")[at % 2]), (2, "PUMP"), (10, at % 20 * 15), (20, at // 20 * 15),
                 (50, 7 * at)]
    tags += [(0, "ENDSEC"), (0, "EOF")]
    path.write_text("".join(f"{code}\n{value}\n" for code, value in tags), encoding="ascii")


def check_forms(seen: dict[str, Any]) -> list[str]:
    """What is wrong with the page of placed blocks."""
    found = ["nothing is shown"] if seen["pixels"] < 1000 else []
    if sorted(seen["layers"]) != ["notes", "pipes", "walls"]:
        found.append(f"layers {seen['layers']}")
    without = seen["without"]
    if without.pop("", 1) != 0 or not all(0 < count < 0.95 * seen["pixels"] for count in without.values()):
        found.append(f"of {seen['pixels']} pixels, {without} are left when a layer is off")
    if seen["text"].count("Pumpe") != 200:
        found.append(f"{seen['text'].count('Pumpe')} of 200 texts of blocks")
    return found


def check(browser: Browser, drawing: Path, *, has_forms: bool) -> list[str]:
    """What is wrong with the document of a drawing."""
    document, pixels = save(drawing)
    seen = show(browser, document, pixels, try_layers=has_forms)
    return faults(document, seen) + (check_forms(seen) if has_forms else [])


def main() -> int:
    require("chromium", "chromedriver", "npm", "pdftotext")
    if subprocess.run([ROOT / "tools" / "ensure-npm-package.sh", "pdfjs-dist", VERSION], check=False).returncode != 0:
        skip("PDF.js cannot be installed")
    RESULTS.mkdir(parents=True, exist_ok=True)
    (RESULTS / "index.html").write_text(EMPTY, encoding="ascii")
    forms = RESULTS / "forms.dxf"
    block_drawing(forms)
    drawings = [forms, *sorted((ROOT / "examples" / "drawings").glob("*.dxf")),
                *sorted((ROOT.parent / "shared" / "drawings" / "dxf").glob("*.dxf"))]
    count = 0
    with served() as address, Browser() as browser:
        browser.open(f"{address}/index.html")
        for drawing in drawings:
            found = check(browser, drawing, has_forms=drawing is forms)
            count += 1 if found else 0
            print(f"{drawing.name}: {'; '.join(found) or 'as its image'}")
    print(f"{len(drawings) - count} of {len(drawings)} documents are shown as their images")
    return int(count > 0)


if __name__ == "__main__":
    sys.exit(main())
