"""What is in a file, as a dictionary: format, units, extents, layouts, layers, counts, fonts."""

from __future__ import annotations

import io
import os
from collections import Counter
from typing import Any

from korvan.cad import Image, RasterImage
from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cgm import CgmImage
from korvan.cad.fileformats.ifc import IfcImage
from korvan.cad.imageoptions import CadRasterizationOptions, PdfOptions
from korvan.tools.layouts import used_layouts
from korvan.tools.errors import message_of, without_name
from korvan.tools.opening import enum_name, load, load_options

# The releases of drawings, by the version that files state.
RELEASES = {
    1009: "R12", 1012: "R13", 1014: "R14", 1015: "2000", 1018: "2004", 1021: "2007", 1024: "2010", 1027: "2013",
    1032: "2018",
}


def _number(value: float) -> float:
    return round(value, 6) + 0.0


def _extents(drawing: CadImage) -> dict[str, list[float]]:
    low, high = drawing.min_point, drawing.max_point
    return {"min": [_number(one) for one in (low.x, low.y, low.z)],
            "max": [_number(one) for one in (high.x, high.y, high.z)]}


def _layouts(drawing: CadImage) -> list[dict[str, Any]]:
    return [{"name": layout.layout_name, "entities": len(drawing.get_layout_entities(layout.layout_name)),
             "paper": layout.paper_size, "paper_mm": [_number(layout.paper_width), _number(layout.paper_height)]}
            for layout in drawing.layouts]


def layers(drawing: CadImage) -> list[dict[str, Any]]:
    """The layers with their properties, and how many entities of all blocks and layouts are on them."""
    counts: Counter[str] = Counter()
    for block in drawing.block_entities:
        counts.update(entity.layer_name.casefold() for entity in block.entities)
    return [{"name": layer.name, "entities": counts[layer.name.casefold()], "is_on": layer.is_on,
             "is_frozen": layer.is_frozen, "is_locked": layer.is_locked, "is_plottable": layer.is_plottable,
             "color": abs(layer.color_id), "line_type": layer.line_type_name, "line_weight": layer.line_weight}
            for layer in drawing.layers]


def _render(image: Image) -> tuple[list[str], dict[str, str], str | None]:
    """What is not drawn faithfully, the fonts that are replaced, and why nothing can be drawn if so."""
    options = PdfOptions()
    if isinstance(image, IfcImage) and not image.can_save(options):
        return [], {}, "building models are not drawn yet"
    if isinstance(image, CadImage):
        raster = CadRasterizationOptions()
        raster.layouts = used_layouts(image) or ["Model"]
        options.vector_rasterization_options = raster
    try:
        image.save(io.BytesIO(), options)
    except RuntimeError as failure:
        return [], {}, message_of(failure)
    result = options.render_result
    if result is None:
        return [], {}, None
    replaced = dict(one.split(": ", 1) for one in result.font_substitutions if ": " in one)
    return [one.message for one in result.failures], replaced, None


def _font_key(name: str) -> str:
    return os.path.splitext(name)[0].casefold()


def _fonts(wanted: list[str], replaced: dict[str, str]) -> list[dict[str, str | None]]:
    names = {_font_key(name): name for name in [*replaced, *wanted]}.values()  # arial.ttf and Arial are one
    by_key = {_font_key(name): by for name, by in replaced.items()}
    return [{"name": name, "replaced_by": by_key.get(_font_key(name))} for name in names if name]


def _release(drawing: CadImage) -> str:
    """The release; empty where the file states none."""
    number = int(drawing.version)
    return RELEASES.get(number, enum_name(drawing.version) if number else "")


def _describe_drawing(drawing: CadImage) -> dict[str, Any]:
    summary = drawing.header.summary_info
    counts = Counter(entity.type_name_text for name in drawing.layouts.names
                     for entity in drawing.get_layout_entities(name))
    return {
        "release": _release(drawing),
        "title": summary.title, "author": summary.author, "units": enum_name(drawing.unit_type).lower(),
        "extents": _extents(drawing), "layouts": _layouts(drawing), "layers": layers(drawing),
        "blocks": sum(not block.name.startswith("*") for block in drawing.block_entities),
        "entities": dict(counts.most_common()), "unknown_entities": drawing.unknown_entity_count,
    }


def _wanted_fonts(image: Image) -> list[str]:
    if isinstance(image, CadImage):
        return [name for style in image.styles
                for name in ([style.font_family or style.primary_font_name, style.big_font_name])]
    if isinstance(image, CgmImage):
        return [text.font_name for text in image.get_texts()]
    return []


def _describe_model(model: IfcImage) -> dict[str, Any]:
    counts = Counter(entity.entity_name for entity in model.entities)
    header = model.header.file_name
    return {"release": model.version.name, "title": header.name, "author": ", ".join(filter(None, header.author)),
            "software": header.originating_system, "entities": dict(counts.most_common())}


def _describe_metafile(metafile: CgmImage) -> dict[str, Any]:
    counts = Counter(type(command).__name__ for command in metafile.file.commands)
    return {"release": metafile.file.encoding.name.lower(), "title": metafile.file.name,
            "layouts": [{"name": name} for name in metafile.picture_names],
            "extents": {"min": [0, 0], "max": [metafile.width, metafile.height]},
            "units": enum_name(metafile.unit_type).lower(), "entities": dict(counts.most_common())}


def _describe_raster(image: RasterImage) -> dict[str, Any]:
    return {"size": [image.width, image.height], "pages": image.page_count, "bits_per_pixel": image.bits_per_pixel,
            "dpi": [_number(image.horizontal_resolution), _number(image.vertical_resolution)],
            "has_alpha": image.has_alpha}


def format_name(image: Image) -> str:
    """The name of the format of an open file."""
    if isinstance(image, RasterImage):
        return enum_name(image.file_format)
    return type(image).__name__.removesuffix("Image").upper()


def describe(source: str | os.PathLike[str], *, render: bool = True) -> dict[str, Any]:
    """What is in a file.

    :param source: The file.
    :param render: Whether it is rendered to find which fonts are replaced and what is not drawn.
    :raises ToolError: The file cannot be opened.
    """
    given = load_options(tolerant=True)
    with load(source, given) as image:
        found: dict[str, Any] = {"file": os.fspath(source), "bytes": os.path.getsize(source),
                                 "format": format_name(image)}
        if isinstance(image, CadImage):
            found |= _describe_drawing(image)
        elif isinstance(image, CgmImage):
            found |= _describe_metafile(image)
        elif isinstance(image, IfcImage):
            found |= _describe_model(image)
        elif isinstance(image, RasterImage):
            found |= _describe_raster(image)
        not_drawn, replaced, cannot = _render(image) if render and not isinstance(image, RasterImage) else ([], {}, "")
        found["fonts"] = _fonts(_wanted_fonts(image), replaced)
        found["not_drawn"] = [cannot] if cannot else not_drawn
        found["defects"] = [without_name(text, os.fspath(source)) for text in given.errors]
        return found
