"""What differs between two drawings or two building models, as a list and as an image."""

from __future__ import annotations

import io
import os
import struct
import zlib
from collections import Counter, defaultdict
from collections.abc import Callable, Iterable, Iterator, Mapping
from dataclasses import dataclass, field
from typing import Any, Literal

from korvan._entity_rows import entity_digests
from korvan.cad import Image, RasterImage
from korvan.cad.fileformats.cad import CadDrawTypeMode, CadImage
from korvan.cad.fileformats.cad.cadobjects import Cad3DPoint, CadEntityBase, CadLine
from korvan.cad.fileformats.ifc import IfcImage
from korvan.cad.imageoptions import CadRasterizationOptions, PngOptions
from korvan.tools.errors import ToolError
from korvan.tools.opening import cast, describe_kind, open_drawing
from korvan.tools.properties import property_sets
from korvan.tools.queries import is_space
from korvan.tools.plain_values import fingerprint, values

# Around the extents, as widths of lines and texts may reach beyond them.
_MARGIN = 0.06
Change = Literal["added", "removed", "changed"]


@dataclass(frozen=True)
class Difference:
    """Something that was added, removed or changed."""

    change: Change
    kind: str
    """The type of an entity, or ``layer``, ``block``, ``layout``, ``line type``, ``text style``."""
    name: str
    """A name; of an entity its handle, and of an element of a building model its GlobalId."""
    place: str = ""
    """The layout or block that an entity is in."""
    layer: str = ""
    values: dict[str, tuple[Any, Any]] = field(default_factory=dict[str, tuple[Any, Any]])
    """The values that changed by their names, before and after."""


def _changed(before: Mapping[str, Any], after: Mapping[str, Any]) -> dict[str, tuple[Any, Any]]:
    names = dict.fromkeys([*before, *after])
    return {name: (before.get(name), after.get(name)) for name in names if before.get(name) != after.get(name)}


def _by_name(kind: str, before: Mapping[str, dict[str, Any]], after: Mapping[str, dict[str, Any]]
             ) -> Iterator[Difference]:
    for name, one in before.items():
        if name not in after:
            yield Difference("removed", kind, name)
        elif found := _changed(one, after[name]):
            yield Difference("changed", kind, name, values=found)
    for name in after:
        if name not in before:
            yield Difference("added", kind, name)


def _table(items: Iterable[Any]) -> dict[str, dict[str, Any]]:
    return {item.name: values(item, depth=1) for item in items}


@dataclass
class _Entity:
    """An entity of one side, with what it is compared by."""

    handle: str
    kind: str
    layer: str
    values: dict[str, Any]


def _unpaired(before: list[bytes], after: list[bytes]) -> tuple[list[int], list[int]]:
    """The entities of either side that are not as many on the other one, by their indices."""
    counts, others = Counter(before), Counter(after)
    return ([at for at, one in enumerate(before) if counts[one] != others[one]],
            [at for at, one in enumerate(after) if counts[one] != others[one]])


def _read(entities: Any, indices: list[int], digests: list[bytes], digits: int) -> list[_Entity]:
    found: list[_Entity] = []
    for at in indices:
        entity = cast(entities[at])
        one = _Entity(entity.unique_id, entity.type_name_text, entity.layer_name, values(entity, digits))
        # Of an entity without a class, and of data of modelers, it is known only whether they are the same.
        if type(entity) is CadEntityBase or hasattr(entity, "acis_data"):
            one.values["data"] = digests[at].hex()
        found.append(one)
    return found


def _space(place: str, before: Any, after: Any, digits: int) -> Iterator[Difference]:
    """Differences of one layout or block; only what has no counterpart is looked at one by one."""
    old, new = entity_digests(before, digits), entity_digests(after, digits)
    first, second = _unpaired(old, new)
    yield from _entities(place, _read(before, first, old, digits), _read(after, second, new, digits))


def _entities(place: str, before: list[_Entity], after: list[_Entity]) -> Iterator[Difference]:
    """Differences of one layout or block. Alike entities are pairs, whatever their handles; then handles decide."""
    alike: defaultdict[Any, dict[str, list[_Entity]]] = defaultdict(dict)
    for one in after:
        alike[fingerprint(one.values)].setdefault(one.handle, []).append(one)
    left: list[_Entity] = []
    for one in before:
        partners = alike.get(fingerprint(one.values))
        if partners:
            same = one.handle if one.handle in partners else next(iter(partners))
            partners[same].pop()
            if not partners[same]:
                del partners[same]
        else:
            left.append(one)
    rest = [one for ones in alike.values() for several in ones.values() for one in several]
    others = {(one.handle, one.kind): one for one in rest if one.handle}
    for one in left:
        other = others.pop((one.handle, one.kind), None)
        if other is None:
            yield Difference("removed", one.kind, one.handle, place, one.layer)
        else:
            yield Difference("changed", one.kind, one.handle, place, other.layer, _changed(one.values, other.values))
    for one in rest:
        if not one.handle or (one.handle, one.kind) in others:
            yield Difference("added", one.kind, one.handle, place, one.layer)


def _spaces(drawing: CadImage) -> dict[str, Iterable[CadEntityBase]]:
    """Layouts and named blocks with their entities. Blocks that programs made follow from what refers to them."""
    found: dict[str, Iterable[CadEntityBase]] = {
        name: drawing.get_layout_entities(name) for name in drawing.layouts.names}
    found |= {block.name: block.entities for block in drawing.block_entities
              if not block.name.startswith("*") and not is_space(block.name)}
    return found


def _drawings(before: CadImage, after: CadImage, digits: int) -> Iterator[Difference]:
    tables: list[tuple[str, Callable[[CadImage], Iterable[Any]]]] = [
        ("layer", lambda drawing: drawing.layers), ("line type", lambda drawing: drawing.line_types),
        ("text style", lambda drawing: [one for one in drawing.styles if one.name]),
        ("dimension style", lambda drawing: drawing.dimension_styles)]
    for kind, items in tables:
        yield from _by_name(kind, _table(items(before)), _table(items(after)))
    old, new = _spaces(before), _spaces(after)
    layouts = {*before.layouts.names, *after.layouts.names}
    for name in dict.fromkeys([*old, *new]):
        kind = "layout" if name in layouts else "block"
        if name not in new or name not in old:
            yield Difference("removed" if name not in new else "added", kind, name)
        else:
            yield from _space(name, old[name], new[name], digits)


def _element(element: Any) -> dict[str, Any]:
    """Attributes of an element that are no references, and its properties."""
    own = {name: element.get_attribute(name) for name in element.attribute_names if name != "GlobalId"}
    found = {name: value for name, value in own.items() if isinstance(value, (str, int, float, bool))}
    for name, members in property_sets(element, inherited=False).items():
        found |= {f"{name}.{key}": value for key, value in members.items()}
    return found


def _models(before: IfcImage, after: IfcImage) -> Iterator[Difference]:
    sides: list[dict[str, Any]] = []
    for model in (before, after):
        sides.append({one.get_attribute("GlobalId"): one for one in model.get_entities_of_type("IfcObject")})
    old, new = sides
    for key, one in old.items():
        if key not in new:
            yield Difference("removed", one.entity_name, key, layer=one.get_attribute("Name") or "")
        elif found := _changed(_element(one), _element(new[key])):
            yield Difference("changed", one.entity_name, key, layer=one.get_attribute("Name") or "", values=found)
    for key, one in new.items():
        if key not in old:
            yield Difference("added", one.entity_name, key, layer=one.get_attribute("Name") or "")


def differences(before: Image, after: Image, *, digits: int = 6) -> list[Difference]:
    """What differs between two drawings, or two building models.

    Entities that are alike are pairs, whatever their handles, so that a drawing which another program wrote anew does
    not differ in everything.

    :param digits: The decimals that numbers are compared by.
    :raises ToolError: The files are not of one kind, or of a kind that is not compared.
    """
    if isinstance(before, CadImage) and isinstance(after, CadImage):
        return list(_drawings(before, after, digits))
    if isinstance(before, IfcImage) and isinstance(after, IfcImage):
        return list(_models(before, after))
    raise ToolError(f"{describe_kind(type(before))} and {describe_kind(type(after))} are not compared: "
                    "compare two drawings, or two building models")


def _frame(drawings: Iterable[CadImage]) -> tuple[float, float, float, float] | None:
    """The extents of all, so that each is rendered at the same place."""
    corners = [(one.min_point, one.max_point) for one in drawings if len(one.entities)]
    if not corners:
        return None
    left, lower = min(low.x for low, _ in corners), min(low.y for low, _ in corners)
    right, upper = max(high.x for _, high in corners), max(high.y for _, high in corners)
    margin = _MARGIN * max(right - left, upper - lower)
    return left - margin, lower - margin, right + margin, upper + margin


def _gray(drawing: CadImage, frame: tuple[float, float, float, float] | None, width: int
          ) -> tuple[int, int, bytes]:
    """Width, height and lightness of the pixels of model space, black on white."""
    if frame is not None:
        for x, y in (frame[:2], frame[2:]):  # with dots at the corners, both have the same extents
            dot = CadLine()
            dot.first_point = dot.second_point = Cad3DPoint(x, y, 0.0)
            drawing.add_entity(dot)
    raster = CadRasterizationOptions()
    raster.page_width = float(width)
    raster.draw_type = CadDrawTypeMode.USE_DRAW_COLOR
    options = PngOptions()
    options.vector_rasterization_options = raster
    page = io.BytesIO()
    drawing.save(page, options)
    page.seek(0)
    with Image.load(page) as image:
        pixels = RasterImage._cast_to(image).value
        data = pixels.load_raw_data(pixels.bounds, pixels.raw_data_settings)
        return pixels.width, pixels.height, bytes(data[1::len(data) // (pixels.width * pixels.height)])


def _png(width: int, height: int, pixels: bytes | bytearray) -> bytes:
    """A PNG file of RGB pixels."""
    def chunk(kind: bytes, data: bytes) -> bytes:
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    rows = b"".join(b"\0" + pixels[at:at + width * 3] for at in range(0, len(pixels), width * 3))
    header = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b"")


def overlay(before: str | os.PathLike[str], after: str | os.PathLike[str], *, width: int = 1600) -> bytes:
    """Model space of two drawings over each other as a PNG image: red what only the first has, blue what only the
    second has, black what both have.

    :param width: The width of the image in pixels.
    """
    with open_drawing(before, CadImage, tolerant=True) as old, open_drawing(after, CadImage, tolerant=True) as new:
        frame = _frame((old, new))
        across, down, first = _gray(old, frame, width)
        size = across, down
        across, down, second = _gray(new, frame, width)
        if (across, down) != size:
            raise ToolError("the drawings cannot be laid over each other")
    both = int.from_bytes(first, "big") & int.from_bytes(second, "big")
    pixels = bytearray(3 * across * down)
    pixels[0::3], pixels[2::3] = second, first
    pixels[1::3] = both.to_bytes(across * down, "big")
    return _png(across, down, pixels)
