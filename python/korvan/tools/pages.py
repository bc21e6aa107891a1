"""Sizes of pages: ``1600x1200``, ``420x297mm``, ``A3``."""

from __future__ import annotations

import re

from korvan.cad import ResolutionSetting
from korvan.cad.imageoptions import ImageOptionsBase, UnitType, VectorRasterizationOptions
from korvan.tools.errors import ToolError, nearest, nearest_are

DEFAULT_DPI = 150.0
_UNITS = {"mm": UnitType.MILLIMETER, "cm": UnitType.CENTIMETER, "m": UnitType.METER, "in": UnitType.INCH}
# Width and height in millimetres, upright. ISO 216, ANSI/ASME Y14.1.
PAPERS = {
    "A0": (841, 1189), "A1": (594, 841), "A2": (420, 594), "A3": (297, 420), "A4": (210, 297), "A5": (148, 210),
    "B0": (1000, 1414), "B1": (707, 1000), "B2": (500, 707), "B3": (353, 500), "B4": (250, 353), "B5": (176, 250),
    "LETTER": (215.9, 279.4), "LEGAL": (215.9, 355.6), "TABLOID": (279.4, 431.8),
    "ANSI-A": (215.9, 279.4), "ANSI-B": (279.4, 431.8), "ANSI-C": (431.8, 558.8), "ANSI-D": (558.8, 863.6),
    "ANSI-E": (863.6, 1117.6), "ARCH-A": (228.6, 304.8), "ARCH-B": (304.8, 457.2), "ARCH-C": (457.2, 609.6),
    "ARCH-D": (609.6, 914.4), "ARCH-E": (914.4, 1219.2),
}
_SIZE = re.compile(r"(\d+(?:\.\d+)?)?\s*(?:[x×*]\s*(\d+(?:\.\d+)?)?)?\s*(px|pt|mm|cm|m|in)?", re.IGNORECASE)


def paper_size(text: str, is_wide: bool) -> tuple[float, float]:
    """Width and height of a paper in millimetres.

    :param text: A name such as ``A3``, ``a3-portrait`` or ``letter-landscape``.
    :param is_wide: Whether the content is wider than high: the orientation if the name states none.
    """
    name, _, orientation = text.upper().rpartition("-")
    if orientation not in ("PORTRAIT", "LANDSCAPE"):
        name, orientation = text.upper(), "LANDSCAPE" if is_wide else "PORTRAIT"
    if name not in PAPERS:
        near = nearest(name, PAPERS) or ["A4", "A3", "LETTER"]
        raise ToolError(f"there is no paper {text!r}; {nearest_are(near)}")
    short, long = PAPERS[name]
    return (long, short) if orientation == "LANDSCAPE" else (short, long)


def parse_size(text: str) -> tuple[float, float, UnitType | None]:
    """Width, height and unit of a size; 0 for a side that follows from the other."""
    match = _SIZE.fullmatch(text.strip())
    if match is None or not (match[1] or match[2]):
        raise ToolError(f"{text!r} is no size: write 1600x1200, 1600x, 420x297mm or 11x17in")
    if any(side is not None and not float(side) for side in (match[1], match[2])):
        raise ToolError(f"{text!r} is no size: a side is more than 0; leave one out that follows from the other")
    return float(match[1] or 0), float(match[2] or 0), _UNITS.get((match[3] or "").lower())


def set_resolution(options: ImageOptionsBase, dpi: float) -> None:
    if not 1 <= dpi <= 100_000:
        raise ToolError(f"{dpi:g} is no resolution: write pixels per inch, such as 150")
    options.resolution_settings = ResolutionSetting(float(dpi), float(dpi))


def set_page(options: ImageOptionsBase, raster: VectorRasterizationOptions, *, size: str | None, paper: str | None,
             dpi: float | None, is_raster: bool, is_wide: bool) -> None:
    """Puts the size of the page into options. A page in units of length has pixels by its resolution."""
    if size is not None and paper is not None:
        raise ToolError("a page has either a size or a paper")
    unit: UnitType | None = None
    if size is not None:
        raster.page_width, raster.page_height, unit = parse_size(size)
    elif paper is not None:
        raster.page_width, raster.page_height = map(float, paper_size(paper, is_wide))
        unit = UnitType.MILLIMETER
    if unit is not None:
        raster.unit_type = unit
    if dpi is not None or (unit is not None and is_raster):
        set_resolution(options, dpi if dpi is not None else DEFAULT_DPI)
