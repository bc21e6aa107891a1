"""A file of each format that is read, made of the example drawings."""

from __future__ import annotations

import shutil
from pathlib import Path

from prerequisites import ROOT

EXAMPLES = ROOT / "examples" / "drawings"
DRAWINGS = {"plan.dxf": "floor_plan.dxf", "house.ifc": "garden_house.ifc", "valve.cgm": "gate_valve.cgm"}
OPTIONS = {
    "plan.dwg": "DwgOptions",
    "plan.bmp": "BmpOptions",
    "plan.dcm": "DicomOptions",
    "plan.gif": "GifOptions",
    "plan.jpg": "JpegOptions",
    "plan.jp2": "Jpeg2000Options",
    "plan.png": "PngOptions",
    "plan.psd": "PsdOptions",
    "plan.webp": "WebPOptions",
}


def write_samples(folder: Path) -> None:
    """Writes the files into a folder."""
    from korvan import cad
    from korvan.cad import imageoptions
    from korvan.cad.fileformats.tiff.enums import TiffExpectedFormat

    for name, example in DRAWINGS.items():
        shutil.copy(EXAMPLES / example, folder / name)
    with cad.Image.load(str(EXAMPLES / "floor_plan.dxf")) as plan:
        for name, options in OPTIONS.items():
            plan.save(str(folder / name), getattr(imageoptions, options)())
        plan.save(str(folder / "plan.tif"), imageoptions.TiffOptions(TiffExpectedFormat.DEFAULT))
