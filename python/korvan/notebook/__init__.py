"""Drawings in notebooks.

``show(drawing)`` is an image of a drawing, a metafile or a raster image. After ``%load_ext korvan.notebook``, open
files show themselves when they are the last value of a cell.
"""

from __future__ import annotations

import base64
import io
import os
from collections.abc import Iterable, Sequence
from functools import cached_property
from html import escape, unescape
from typing import Any

from korvan.cad import Image, RasterImage
from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cgm import CgmImage
from korvan.cad.fileformats.ifc import IfcImage
from korvan.cad.imageoptions import CadRasterizationOptions, ImageOptionsBase, PngOptions, SvgOptions
from korvan.tools.layouts import layout_names
from korvan.tools.description import format_name
from korvan.tools.errors import matching
from korvan.tools.opening import cast, enum_name, open_drawing
from korvan.tools.plain_values import values
from korvan.tools.settings import parse_color

_WIDTH = 900
# Larger ones make a notebook slow to open; they are shown as pixels.
_MAX_SVG = 2 << 20


class View:
    """An image of an open file for notebooks: SVG, or PNG where that would be large."""

    def __init__(self, image: Image, width: int = _WIDTH, layout: str | None = None,
                 layers: Sequence[str] | None = None, background: str | None = None) -> None:
        self._image, self._width, self._background = image, width, background
        self._layouts = matching("layout", [layout], layout_names(image)) if layout is not None else []
        known = list(image.layers.names) if isinstance(image, CadImage) else []
        self._layers = matching("layer", layers, known) if layers is not None else []

    def _render(self, options: ImageOptionsBase) -> bytes:
        if not isinstance(self._image, RasterImage):
            raster = CadRasterizationOptions()
            raster.page_width = float(self._width)
            if self._layouts:
                raster.layouts = self._layouts
            if self._layers:
                raster.layers = self._layers
            if self._background is not None:
                raster.background_color = parse_color(self._background)
                raster.embed_background = isinstance(options, SvgOptions)
            options.vector_rasterization_options = raster
        page = io.BytesIO()
        self._image.save(page, options)
        return page.getvalue()

    def _caption(self) -> str:
        image = self._image
        parts = [format_name(image), *self._layouts]
        if not isinstance(image, IfcImage):
            unit = enum_name(image.unit_type).lower()
            parts.append(f"{image.width} × {image.height} " + ("" if unit in ("unitless", "custom") else unit))
        return escape(", ".join(part.strip() for part in parts))

    @cached_property
    def _drawn(self) -> str | None:
        if isinstance(self._image, (RasterImage, IfcImage)):
            return None
        found = self._render(SvgOptions())
        return found.decode() if len(found) <= _MAX_SVG else None

    def svg(self) -> str | None:
        """The image as SVG; ``None`` where it would be large, or has pixels."""
        return self._drawn

    def png(self) -> bytes | None:
        """The image as PNG; ``None`` of a building model."""
        return None if isinstance(self._image, IfcImage) else self._render(PngOptions())

    def html(self) -> str:
        """The image with a caption; of a building model a table of its elements."""
        if isinstance(self._image, IfcImage):
            return model_table(self._image)
        svg = self.svg()
        kind, data = ("svg+xml", svg.encode()) if svg is not None else ("png", self._render(PngOptions()))
        source = f"data:image/{kind};base64,{base64.b64encode(data).decode()}"
        return (f'<figure><img alt="{self._caption()}" style="max-width:100%;background:white" src="{source}">'
                f"<figcaption>{self._caption()}</figcaption></figure>")

    _repr_svg_ = svg
    _repr_png_ = png
    _repr_html_ = html

    def __repr__(self) -> str:
        return f"<view of {unescape(self._caption())}>"


def show(
    source: Image | str | os.PathLike[str], *, width: int = _WIDTH, layout: str | None = None,
    layers: Sequence[str] | None = None, background: str | None = None
) -> View:
    """An image of a file for a notebook.

    :param source: An open file, or the path of one.
    :param width: The width in pixels.
    :param layout: The name of a layout, or a picture of a metafile; model space by default.
    :param layers: Names or patterns of layers; all by default.
    :param background: The colour of the background.
    :raises ToolError: The file cannot be opened, or a name is not there.
    """
    image = cast(source) if isinstance(source, Image) else open_drawing(source)
    return View(image, width, layout, layers, background)


def _html_table(rows: Iterable[Sequence[object]], headings: Sequence[str]) -> str:
    def line(cells: Sequence[object], tag: str) -> str:
        return "<tr>" + "".join(f"<{tag}>{escape(str(cell))}</{tag}>" for cell in cells) + "</tr>"

    return f"<table>{line(headings, 'th')}{''.join(line(row, 'td') for row in rows)}</table>"


def model_table(model: IfcImage) -> str:
    """The counts of the elements of a building model as an HTML table."""
    counts: dict[str, int] = {}
    for entity in model.get_entities_of_type("IfcObject"):
        counts[entity.entity_name] = counts.get(entity.entity_name, 0) + 1
    rows = sorted(counts.items(), key=lambda row: (-row[1], row[0]))
    return f"<p>{escape(enum_name(model.version))}</p>" + _html_table(rows, ("entity", "count"))


class Table:
    """Entities as a table for notebooks: ``Table(query(drawing, "CIRCLE"))``."""

    def __init__(self, entities: Iterable[Any], columns: Sequence[str] | None = None, limit: int = 200) -> None:
        found = [(entity, values(entity)) for _, entity in zip(range(limit), entities)]
        names = dict.fromkeys(name for _, one in found for name in one)
        own = [name for name in names if name not in ("type", "layer_name") and len({str(one.get(name))
               for _, one in found}) > 1]
        self.columns = list(columns) if columns is not None else ["layer_name", *own]
        self.rows = [(entity.unique_id, entity.type_name_text, *(one.get(name, "") for name in self.columns))
                     for entity, one in found]

    def _repr_html_(self) -> str:
        return _html_table(self.rows, ("handle", "type", *self.columns))

    def __repr__(self) -> str:
        return f"<table of {len(self.rows)} entities>"


def _svg(image: Image) -> str | None:
    return View(cast(image)).svg()


def _png(image: Image) -> bytes | None:
    return View(cast(image)).png()


def _html(image: Image) -> str:
    return View(cast(image)).html()


_KINDS = (CadImage, CgmImage, IfcImage, RasterImage)
_FORMATS = {"image/svg+xml": _svg, "image/png": _png, "text/html": _html}


def load_ipython_extension(shell: Any) -> None:
    """Lets open files show themselves: ``%load_ext korvan.notebook``."""
    for name, function in _FORMATS.items():
        for kind in _KINDS:
            shell.display_formatter.formatters[name].for_type(kind, function)


def unload_ipython_extension(shell: Any) -> None:
    """Lets open files show as text again."""
    for name in _FORMATS:
        for kind in _KINDS:
            shell.display_formatter.formatters[name].pop(kind, None)
