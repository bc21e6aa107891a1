"""Renders the model space of drawings, on white, in the formats that are named; dxf saves the drawings themselves.

    build/python bench/fidelity/draw_ours.py SIDE FOLDER png,pdf DRAWING ...

STROKE_FONTS names a folder of compiled fonts, where there is one.
"""

from __future__ import annotations

import os
import sys
from pathlib import Path

import korvan.cad
from korvan.cad import Color, imageoptions
from korvan.cad.fileformats.cad import CadDrawTypeMode

OPTIONS = {
    "png": imageoptions.PngOptions,
    "pdf": imageoptions.PdfOptions,
    "svg": imageoptions.SvgOptions,
    "emf": imageoptions.EmfOptions,
    "wmf": imageoptions.WmfOptions,
    "html": imageoptions.Html5Options,
    "dxf": imageoptions.DxfOptions,
}
MARGIN = 0.01


def _page(side: float) -> imageoptions.CadRasterizationOptions:
    page = imageoptions.CadRasterizationOptions()
    page.page_width = page.page_height = side
    # Lines on the border of a page are drawn by half, or not at all, as programs round.
    page.border_x = page.border_y = side * MARGIN
    page.layouts = ["Model"]
    page.draw_type = CadDrawTypeMode.USE_OBJECT_COLOR
    page.background_color = Color.white
    if os.environ.get("STROKE_FONTS"):
        page.shx_fonts = [os.environ["STROKE_FONTS"]]
    return page


def main() -> None:
    side, folder, extensions, *drawings = sys.argv[1:]
    Path(folder).mkdir(parents=True, exist_ok=True)
    for drawing in drawings:
        name = Path(folder) / Path(drawing).name
        load = korvan.cad.LoadOptions()
        load.ignore_errors = True
        image = korvan.cad.Image.load(drawing, load)
        for extension in extensions.split(","):
            options = OPTIONS[extension]()
            if extension != "dxf":
                options.vector_rasterization_options = _page(float(side))
            target = f"{name}.{extension}"
            try:
                image.save(target, options)
            except RuntimeError as error:
                print(f"{target}: {error}", file=sys.stderr)
                if os.path.exists(target):
                    os.remove(target)


if __name__ == "__main__":
    main()
