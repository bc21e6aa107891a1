"""How long one drawing's pixels take to be compressed, beside the command-line tools of the codecs' own makers."""

from __future__ import annotations

import io
import subprocess
import tempfile
import time
from collections.abc import Callable
from pathlib import Path

from report import Table, duration, ratio

HERE = Path(__file__).resolve().parent
PLAN = HERE.parent / "examples" / "drawings" / "floor_plan.dxf"
WIDTH = 4000.0
ROUNDS = 7


def _best(action: Callable[[], object]) -> float:
    times = []
    for _ in range(ROUNDS):
        start = time.perf_counter()
        action()
        times.append(time.perf_counter() - start)
    return min(times)


def _tool(command: list[str], target: Path) -> Callable[[], object]:
    def run() -> None:
        subprocess.run([*command, str(target)], check=True, capture_output=True)

    return run


def run(_modules: Path) -> None:
    from korvan import cad
    from korvan.cad.fileformats.tiff.enums import TiffCompressions, TiffExpectedFormat
    from korvan.cad.imageoptions import BmpOptions, CadRasterizationOptions, JpegOptions, TiffOptions

    raster = CadRasterizationOptions()
    raster.page_width = WIDTH
    bitmap = BmpOptions()
    bitmap.vector_rasterization_options = raster
    pixels = io.BytesIO()
    with cad.Image.load(str(PLAN)) as plan:
        plan.save(pixels, bitmap)
    pixels.seek(0)
    image = cad.Image.load(pixels)
    lzw, deflate = TiffOptions(), TiffOptions()
    deflate.compression = TiffCompressions.ADOBE_DEFLATE
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        plain, target = folder / "plain.tif", folder / "out"
        image.save(str(folder / "plain.bmp"), BmpOptions())
        image.save(str(plain), TiffOptions(TiffExpectedFormat.TIFF_NO_COMPRESSION_RGB))
        cjpeg = ["cjpeg", "-quality", "90", "-sample", "1x1", "-outfile", str(target), str(folder / "plain.bmp")]
        rows = (
            ("JPEG, quality 90", JpegOptions(), lambda: subprocess.run(cjpeg, check=True, capture_output=True),
             "cjpeg"),
            ("TIFF, LZW", lzw, _tool(["tiffcp", "-c", "lzw:2", str(plain)], target), "tiffcp"),
            ("TIFF, Deflate", deflate, _tool(["tiffcp", "-c", "zip:2", str(plain)], target), "tiffcp"),
        )
        title = f"Compressing {image.width} x {image.height} pixels to a file, beside a process of the codec's own tool"
        table = Table(title, ("", "size", "time", "tool", "its time", "its size", "of the tool's time"))
        for label, options, tool, tool_name in rows:
            path = folder / "ours"
            ours, theirs = _best(lambda: image.save(str(path), options)), _best(tool)
            table.add(label, f"{path.stat().st_size >> 10} KiB", duration(ours), tool_name, duration(theirs),
                      f"{target.stat().st_size >> 10} KiB", ratio(ours, theirs))
        table.print()
