"""What a page shows of a file: its layouts as SVG documents, or its pages as images."""

from __future__ import annotations

import gzip
import io
import os
from collections.abc import Generator, Iterator, Sequence
from contextlib import contextmanager
from dataclasses import dataclass, field, replace
from pathlib import Path
from typing import TYPE_CHECKING

from korvan.tools.errors import message_of
from korvan.viewer.entities import entity_table

if TYPE_CHECKING:
    import korvan.cad
    from korvan.cad.fileformats.cad import CadImage
    from korvan.cad.imageoptions import CadRasterizationOptions, ImageOptionsBase

# Coordinates of a document have three decimal places: on a large page they keep what a deep zoom shows.
_MODEL_SIZE = 25_400.0
_MOST_PAGES = 500
_MOST_NOTES = 50
_SHEET = 1  # the number of the viewport that is the sheet itself
_PERSPECTIVE, _OFF = 1, 131072  # status of a viewport
_FASTEST = 4  # level of gzip: the smallest one takes five times as long for a tenth less
_UNITS = {
    "KILOMETER": "km",
    "METER": "m",
    "DECIMETER": "dm",
    "CENTIMETER": "cm",
    "MILLIMETER": "mm",
    "MICROMETER": "µm",
    "INCH": "in",
    "FOOT": "ft",
    "YARD": "yd",
    "MILE": "mi",
}
_REASONS = {
    "ENTITY_NOT_DRAWN": "Not drawn",
    "MISSING_GLYPH": "Without a glyph",
    "MISSING_PICTURE": "Not found",
}


class ViewerError(RuntimeError):
    """A file that cannot be shown, and why."""


@dataclass(frozen=True)
class Viewport:
    """A viewport of a sheet that shows model space in plan view; what is measured in it is in units of the model."""

    bounds: tuple[float, float, float, float]
    """The least and the largest X and Y, in units of the paper."""
    scale: float
    """Units of the model to one unit of the paper."""
    offset: tuple[float, float]
    """The model point of the paper's origin; without meaning if the view is turned."""
    unit: str


@dataclass(frozen=True)
class Layout:
    """A layout of a drawing, or a page of an image."""

    name: str
    data: bytes
    """The SVG document, compressed with gzip, or the file of an image."""
    is_image: bool = False
    is_sheet: bool = False
    """Whether it has a paper, with which line widths are scaled."""
    unit: str = ""
    viewports: tuple[Viewport, ...] = ()
    message: str = ""
    """Why it cannot be shown; empty if it can."""
    entities: bytes = b""
    """What a click tells of entities, as ``entity_table`` gives it; empty without."""


@dataclass(frozen=True)
class Layer:
    """A layer, and whether the file shows it."""

    name: str
    visible: bool


@dataclass
class Contents:
    """What a page shows."""

    title: str
    layouts: list[Layout]
    layers: list[Layer] = field(default_factory=list[Layer])
    notes: list[str] = field(default_factory=list[str])
    """What was not drawn faithfully, and fonts that were replaced."""


def _why_no_view(image: korvan.cad.Image) -> str:
    """What is missing, and which commands tell of such a file."""
    from korvan.cad.fileformats.ifc import IfcImage

    if IfcImage._cast_to(image):
        return ("there is no 2D view of building models: their solids are not drawn yet; korvan info lists their "
                "contents, korvan properties their property sets")
    return "there is no 2D view of this kind of file: its meshes and solids are not drawn yet; korvan info describes it"


def read_contents(source: str | os.PathLike[str], layouts: Sequence[str] | None = None) -> Contents:
    """Reads a file.

    :param source: The path of a drawing, a metafile or an image.
    :param layouts: Names of the layouts to show, in order; None for all of them.
    :raises ViewerError: The file has no 2D content, or not the layouts.
    :raises RuntimeError: The file cannot be read.
    """
    from korvan.cad import Image, RasterImage
    from korvan.cad.fileformats.cad import CadImage
    from korvan.cad.imageoptions import PngOptions, SvgOptions

    path = Path(source)
    if not path.is_file():
        raise ViewerError("is a folder: a page shows one file" if os.path.isdir(path) else "there is no such file")
    name = os.fsencode(path.name).decode("utf-8", "replace")  # a page has no bytes that are no UTF-8
    with Image.load(str(path)) as image:
        if drawing := CadImage._cast_to(image):
            return _read_drawing(name, image, drawing.value, layouts)
        if layouts:
            raise ViewerError("only drawings have layouts to select")
        if RasterImage._cast_to(image) or not image.can_save(SvgOptions()):
            if not image.can_save(PngOptions()):
                raise ViewerError(_why_no_view(image))
            return Contents(name, list(_read_pages(image)))
        contents = Contents(name, [])
        contents.layouts.append(_render(image, os.path.splitext(name)[0], None, contents, is_sheet=True))
        return contents


def _read_drawing(
    title: str, image: korvan.cad.Image, drawing: CadImage, wanted: Sequence[str] | None
) -> Contents:
    names = list(drawing.layouts.names)
    if wanted is not None:
        known = {name.casefold(): name for name in names}
        if missing := [name for name in wanted if name.casefold() not in known]:
            raise ViewerError(f"no layout {missing[0]!r}; it has {', '.join(map(repr, names))}")
        names = [known[name.casefold()] for name in wanted]
    contents = Contents(title, [])
    contents.layers += [Layer(layer.name, layer.is_on and not layer.is_frozen) for layer in drawing.layers]
    contents.layers.sort(key=lambda layer: layer.name.casefold())
    unit = _UNITS.get(image.unit_type.name or "", "")
    with _all_layers(drawing):
        for name in names:
            is_sheet = name.casefold() != "model"
            layout = _render(image, name, unit, contents, is_sheet=is_sheet)
            viewports = tuple(_viewports(drawing, name, unit)) if is_sheet else ()
            entities = b"" if layout.message else entity_table(drawing, name, len(layout.data) // 6)
            contents.layouts.append(replace(layout, viewports=viewports, entities=entities))
    return contents


def _viewports(drawing: CadImage, layout: str, unit: str) -> Iterator[Viewport]:
    from korvan.cad.fileformats.cad.cadobjects import CadViewport

    for entity in drawing.get_layout_entities(layout):
        cast = CadViewport._cast_to(entity)
        if not cast or cast.value.viewport_id == _SHEET:
            continue
        port = cast.value
        direction = port.view_direction
        is_plan = direction.z > 0 and abs(direction.x) + abs(direction.y) < 1e-9 * direction.z
        is_shown = port.viewport_status != 0 and not port.status_flags & (_PERSPECTIVE | _OFF)
        if is_plan and is_shown and port.height > 0 and port.view_height > 0:
            x, y = port.center_point.x, port.center_point.y
            scale = port.view_height / port.height
            yield Viewport(
                bounds=(x - port.width / 2, y - port.height / 2, x + port.width / 2, y + port.height / 2),
                scale=scale,
                offset=(port.view_target.x + port.view_center.x - x * scale,
                        port.view_target.y + port.view_center.y - y * scale),
                unit=unit,
            )


@contextmanager
def _all_layers(drawing: CadImage) -> Generator[None, None, None]:
    """Shows all layers while it is open: the page has switches of its own."""
    stored = [(layer, layer.is_on, layer.is_frozen) for layer in drawing.layers]
    for layer, _, _ in stored:
        layer.is_on = True
        layer.is_frozen = False
    try:
        yield
    finally:
        for layer, is_on, is_frozen in stored:
            layer.is_on = is_on
            layer.is_frozen = is_frozen


def _page_options(name: str, width: float, height: float) -> CadRasterizationOptions:
    from korvan.cad.imageoptions import CadRasterizationOptions

    page = CadRasterizationOptions()
    page.layouts = [name]
    page.page_width, page.page_height = width, height
    return page


def _render(image: korvan.cad.Image, name: str, unit: str | None, contents: Contents, *, is_sheet: bool) -> Layout:
    from korvan.cad.imageoptions import SvgOptions

    options = SvgOptions()
    options.text_as_shapes = False
    target = io.BytesIO()
    if unit is not None:
        options.vector_rasterization_options = _page_options(name, 0.0 if is_sheet else _MODEL_SIZE, 0.0)
    try:
        try:
            image.save(target, options)
        except RuntimeError:
            if unit is None or is_sheet:
                raise
            target = io.BytesIO()  # a drawing that is so much higher than wide has its size from its height
            options.vector_rasterization_options = _page_options(name, 0.0, _MODEL_SIZE)
            image.save(target, options)
    except RuntimeError as error:
        return Layout(name, b"", message=f"This layout cannot be drawn: {message_of(error)}")
    _add_notes(options, contents)
    document = gzip.compress(target.getbuffer(), _FASTEST, mtime=0)
    return Layout(name, document, is_sheet=is_sheet, unit="" if is_sheet else unit or "")


def _add_notes(options: ImageOptionsBase, contents: Contents) -> None:
    result = options.render_result
    if result is None:
        return
    found = [f"{_REASONS.get(failure.render_code.name or '', 'Changed')}: {failure.message}"
             for failure in result.failures]
    found += [f"Font {substitution.replace(': ', ' is replaced by ', 1)}" for substitution in result.font_substitutions]
    for note in found:
        if note not in contents.notes and len(contents.notes) < _MOST_NOTES:
            contents.notes.append(note)


def _read_pages(image: korvan.cad.Image) -> Iterator[Layout]:
    """The pages of an image, as PNG files."""
    from korvan.cad import RasterImage

    if raster := RasterImage._cast_to(image):
        for number in range(min(raster.value.page_count, _MOST_PAGES)):
            yield _page(number + 1, raster.value.get_page(number))
    else:
        yield _page(1, image)


def _page(number: int, image: korvan.cad.Image) -> Layout:
    from korvan.cad.imageoptions import PngOptions

    target = io.BytesIO()
    image.save(target, PngOptions())
    return Layout(f"Page {number}", target.getvalue(), is_image=True, unit="px")
