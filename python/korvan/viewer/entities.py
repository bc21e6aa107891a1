"""What a page tells of the entities of a layout when they are clicked: boxes, types, handles and layers."""

from __future__ import annotations

import gzip
import json
import math
from collections.abc import Sequence
from typing import TYPE_CHECKING

from korvan._entity_rows import EntityRows, entity_bounds

if TYPE_CHECKING:
    from korvan.cad.fileformats.cad import CadImage

_GRID = 16_383  # steps over the longer side of the layout
_SMALL = 16_384  # bytes that are never too many
# What has parts on layers of their own.
_WITH_PARTS = frozenset(("INSERT", "DIMENSION", "ARC_DIMENSION", "LARGE_RADIAL_DIMENSION", "ACAD_TABLE", "LEADER",
                         "MULTILEADER", "TOLERANCE", "MLINE", "ACAD_PROXY_ENTITY", "VIEWPORT"))


def entity_table(drawing: CadImage, layout: str, most: int) -> bytes:
    """The table of the entities of a layout, as compressed JSON; empty if it takes more bytes than it may."""
    boxes = entity_bounds(drawing, layout)
    if not boxes.indices:
        return b""
    table = gzip.compress(json.dumps(_columns(drawing, layout, boxes), separators=(",", ":")).encode(), mtime=0)
    return table if len(table) <= max(most, _SMALL) else b""


def _columns(drawing: CadImage, layout: str, boxes: EntityRows) -> dict[str, object]:
    left, bottom = min(boxes.values[0::4]), min(boxes.values[1::4])
    longest = max(max(boxes.values[2::4]) - left, max(boxes.values[3::4]) - bottom)
    step = longest / _GRID or 1.0
    kinds: dict[tuple[str, str, int], int] = {}
    layers: dict[str, int] = {}
    rows: list[tuple[int, int, int, int, int, int, int]] = []
    entities = drawing.get_layout_entities(layout)
    for row, index in enumerate(boxes.indices):
        entity = entities[index]
        x0, y0, x1, y1 = boxes.values[4 * row:4 * row + 4]
        x, y = math.floor((x0 - left) / step), math.floor((y0 - bottom) / step)
        type_name = entity.type_name_text
        kind = (type_name, _block_name(entity) if type_name == "INSERT" else "", int(type_name in _WITH_PARTS))
        rows.append((kinds.setdefault(kind, len(kinds)), layers.setdefault(entity.layer_name, len(layers)), x, y,
                     math.ceil((x1 - left) / step) - x, math.ceil((y1 - bottom) / step) - y,
                     int(entity.object_handle or "0", 16)))
    rows.sort(key=lambda row: row[:2])
    kind_column, layer_column, x_column, y_column, width, height, handle = map(list, zip(*rows, strict=True))
    return {"kinds": list(kinds), "layers": list(layers), "origin": [left, bottom], "step": step,
            "x": _differences(x_column), "y": _differences(y_column), "width": width, "height": height,
            "kind": kind_column, "layer": layer_column, "handle": _differences(handle)}


def _block_name(entity: object) -> str:
    from korvan.cad.fileformats.cad.cadobjects import CadInsertObject

    found = CadInsertObject._cast_to(entity)
    return found.value.name if found else ""


def _differences(values: Sequence[int]) -> list[int]:
    """Each number less the one before it, which takes fewer digits."""
    return [value - before for before, value in zip([0, *values], values, strict=False)]
