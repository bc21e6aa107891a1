"""Renders the model space of a drawing by the drawing add-on of ezdxf, on white, with our fonts.

Runs under the system's Python, with a checkout of ezdxf on its path: draw_reference.py SIDE DRAWING [TARGET].
STROKE_FONTS names a folder of compiled fonts, where there is one. Prints the processor time of loading and of drawing,
up to the text of an SVG, as a line of JSON.
"""

from __future__ import annotations

import json
import os
import subprocess
import sys
import time
from pathlib import Path

import ezdxf
from ezdxf import recover
from ezdxf.lldxf.const import DXFError
from ezdxf.addons.drawing import Frontend, RenderContext, config, layout, svg
from ezdxf.fonts import fonts

PIXELS_PER_MM = 96 / 25.4
# The fonts that ours takes instead of those of other systems and of stroke fonts; the others are found as they are.
REPLACEMENT = "LiberationSans-Regular.ttf"
REPLACEMENTS = {
    "LiberationSans-Bold.ttf": "arialbd.ttf",
    "LiberationSans-Italic.ttf": "ariali.ttf",
    "LiberationSerif-Regular.ttf": "times.ttf",
    "LiberationMono-Regular.ttf": "cour.ttf",
    REPLACEMENT: "arial.ttf",
}


def _use_our_fonts() -> None:
    manager = fonts.font_manager
    if os.environ.get("STROKE_FONTS"):
        manager.scan_folder(Path(os.environ["STROKE_FONTS"]))
    manager._fallback_font_name = REPLACEMENT  # pylint: disable=protected-access
    manager.add_synonyms({ours: theirs for ours, theirs in REPLACEMENTS.items() if manager.has_font(ours)})


def _read(drawing: str) -> ezdxf.document.Drawing:
    # Recovering decodes more, but knows no binary form.
    try:
        return recover.readfile(drawing)[0]
    except DXFError:
        return ezdxf.readfile(drawing)


def main() -> None:
    side, drawing, *target = sys.argv[1:]
    _use_our_fonts()
    start = time.process_time()
    document = _read(drawing)
    load = time.process_time() - start
    settings = config.Configuration(
        background_policy=config.BackgroundPolicy.WHITE,
        min_lineweight=1 / PIXELS_PER_MM,
    )
    start = time.process_time()
    backend = svg.SVGBackend()
    Frontend(RenderContext(document), backend, config=settings).draw_layout(document.modelspace())
    size = float(side) / PIXELS_PER_MM
    try:
        page = backend.get_string(layout.Page(size, size, layout.Units.mm, margins=layout.Margins.all(0)))
    except ValueError:
        # Nothing was drawn, so that there are no extents.
        page = '<svg xmlns="http://www.w3.org/2000/svg" width="1" height="1"/>'
    print(json.dumps({"load": load, "draw": time.process_time() - start}))
    if target:
        subprocess.run(["rsvg-convert", "-w", side, "-h", side, "--unlimited", "-b", "white", "-o", *target],
                       input=page, text=True, check=True)


if __name__ == "__main__":
    main()
