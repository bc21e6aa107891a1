"""Shows documents in PDF.js, the viewer of browsers: each page beside its image, its texts and its layers.

Rendered pages are in build/acceptance/pdf afterwards.
"""

from __future__ import annotations

import json
import re
import subprocess
import sys
from collections import Counter
from pathlib import Path
from typing import Any

from prerequisites import ROOT, require, skip

HERE = Path(__file__).resolve().parent
RESULTS = ROOT / "build" / "acceptance" / "pdf"
MODULES = ROOT / "build" / "npm" / "node_modules"
VERSION = "4.10.38"
OLDEST_NODE = 20
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


def show(document: Path, pixels: Path) -> dict[str, Any]:
    command = ["node", HERE / "show_pdf.mjs", MODULES, document, pixels, document.with_suffix(".shown.png")]
    done = subprocess.run(command, check=True, capture_output=True, text=True, timeout=120)
    result: dict[str, Any] = json.loads(done.stdout)
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
    if seen["text"].count("Pumpe") != 200:
        found.append(f"{seen['text'].count('Pumpe')} of 200 texts of blocks")
    return found


def main() -> int:
    require("node", "pdftotext")
    node = subprocess.run(["node", "--version"], check=True, capture_output=True, text=True).stdout.strip()
    if int(node.removeprefix("v").split(".")[0]) < OLDEST_NODE:
        skip(f"PDF.js {VERSION} needs Node.js {OLDEST_NODE}; {node} is installed")
    ensure = ROOT / "tools" / "ensure-npm-package.sh"
    if subprocess.run([ensure, "pdfjs-dist", VERSION], check=False).returncode != 0:
        skip("PDF.js cannot be installed")
    RESULTS.mkdir(parents=True, exist_ok=True)
    forms = RESULTS / "forms.dxf"
    block_drawing(forms)
    drawings = [forms, *sorted((ROOT / "examples" / "drawings").glob("*.dxf")),
                *sorted((ROOT.parent / "shared" / "drawings" / "dxf").glob("*.dxf"))]
    count = 0
    for drawing in drawings:
        document, pixels = save(drawing)
        seen = show(document, pixels)
        found = faults(document, seen) + (check_forms(seen) if drawing is forms else [])
        count += 1 if found else 0
        print(f"{drawing.name}: {'; '.join(found) or 'as its image'}")
    print(f"{len(drawings) - count} of {len(drawings)} documents are shown as their images")
    return int(count > 0)


if __name__ == "__main__":
    sys.exit(main())
