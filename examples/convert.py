"""Converts drawings to PDF, SVG and PNG and tells what was written and how long it took.

    build/python examples/convert.py [--out FOLDER] [DRAWING ...]

Without arguments, converts every drawing of examples/drawings into build/demo.
"""

from __future__ import annotations

import argparse
import sys
import time
from dataclasses import dataclass
from pathlib import Path
from typing import Callable

import korvan.cad
from korvan.cad import imageoptions
from korvan.cad.fileformats.cad import CadImage

ROOT = Path(__file__).resolve().parent.parent
MODEL = "Model"
A3 = (420.0, 297.0)
PNG_WIDTH = 1600.0


@dataclass(frozen=True)
class Written:
    """One file that was written, or why it was not."""

    drawing: str
    file: Path
    seconds: float
    error: str = ""


def raster_options(width: float, height: float) -> imageoptions.CadRasterizationOptions:
    """How a drawing is put on its page: fitted, on white, every object in its own colour."""
    raster = imageoptions.CadRasterizationOptions()
    raster.page_width = width
    raster.page_height = height
    return raster


def pdf_options(layouts: list[str]) -> imageoptions.PdfOptions:
    """One A3 page for model space, and one for each sheet in the size of its paper."""
    options = imageoptions.PdfOptions()
    raster = raster_options(*A3)
    raster.unit_type = imageoptions.UnitType.MILLIMETER
    raster.layouts = layouts
    options.vector_rasterization_options = raster
    return options


def svg_options(_layouts: list[str]) -> imageoptions.SvgOptions:
    """Model space, as large as it needs at this width."""
    options = imageoptions.SvgOptions()
    options.vector_rasterization_options = raster_options(PNG_WIDTH, 0.0)
    return options


def png_options(layouts: list[str]) -> imageoptions.PngOptions:
    """The first sheet if there is one, else model space."""
    options = imageoptions.PngOptions()
    raster = raster_options(PNG_WIDTH, 0.0)
    raster.layouts = layouts[1:2] or layouts[:1]
    options.vector_rasterization_options = raster
    return options


FORMATS: dict[str, Callable[[list[str]], imageoptions.ImageOptionsBase]] = {
    ".pdf": pdf_options,
    ".svg": svg_options,
    ".png": png_options,
}


def used_layouts(drawing: CadImage) -> list[str]:
    """Model space and the sheets; model space alone where nothing was laid out on paper."""
    if not len(drawing.paper_space_entities):
        return [MODEL]
    return [MODEL, *(layout.layout_name for layout in drawing.layouts if layout.layout_name != MODEL)]


def convert(source: Path, out: Path) -> list[Written]:
    """Loads one drawing and writes it in every format."""
    results: list[Written] = []
    start = time.perf_counter()
    with korvan.cad.Image.load(str(source)) as image:
        drawing = CadImage._cast_to(image).value
        layouts = used_layouts(drawing)
        print(f"{source.name}: {len(drawing.entities)} entities, layouts {', '.join(layouts)};"
              f" loaded in {time.perf_counter() - start:.3f} s")
        for suffix, options in FORMATS.items():
            target = out / (source.stem + suffix)
            start = time.perf_counter()
            error = ""
            try:
                image.save(str(target), options(layouts))
            except RuntimeError as failure:
                error = str(failure)
            results.append(Written(source.name, target, time.perf_counter() - start, error))
    return results


def print_table(results: list[Written]) -> None:
    """One line a file: where it is, its size, the time it took."""
    width = max((len(str(result.file)) for result in results), default=0)
    print(f"\n{'written':<{width}}  {'KiB':>7}  {'seconds':>8}")
    for result in results:
        if result.error:
            print(f"{str(result.file):<{width}}  failed: {result.error}")
        else:
            size = result.file.stat().st_size / 1024
            print(f"{str(result.file):<{width}}  {size:7.1f}  {result.seconds:8.3f}")


def relative(path: Path) -> Path:
    """The path as one would type it from here, where it lies below."""
    here = Path.cwd()
    return path.relative_to(here) if path.is_relative_to(here) else path


def main() -> int:
    parser = argparse.ArgumentParser(description=(__doc__ or "").partition("\n")[0])
    parser.add_argument("drawings", nargs="*", type=Path, help="drawings to convert")
    parser.add_argument("--out", type=Path, default=ROOT / "build" / "demo", help="where to write")
    arguments = parser.parse_args()
    drawings = arguments.drawings or sorted((ROOT / "examples" / "drawings").glob("*.dxf"))
    out = relative(arguments.out)
    out.mkdir(parents=True, exist_ok=True)

    results: list[Written] = []
    failed = 0
    for source in drawings:
        try:
            results += convert(source, out)
        except RuntimeError as failure:
            failed += 1
            print(f"{source}: {failure}", file=sys.stderr)
    print_table(results)
    failed += sum(1 for result in results if result.error)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
