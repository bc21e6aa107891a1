"""Finds defects of drawings, by number, and corrects those that can be corrected without a choice."""

from __future__ import annotations

from collections import Counter
from collections.abc import Callable, Iterator
from dataclasses import dataclass, replace
from functools import cache
from typing import Any

from korvan._entity_rows import entity_digests
from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cad.cadobjects import CadBlockEntity, CadEntityBase
from korvan.cad.fileformats.cad.cadtables import CadLayerTable
from korvan.tools.opening import cast
from korvan.tools.plain_values import fingerprint, values

CODES = {
    101: "an object was left out when the file was read",
    201: "an entity is on a layer that is not there",
    202: "a line type is not there",
    203: "a text style is not there",
    204: "a dimension style is not there",
    205: "a block reference names a block that is not there",
    206: "a block contains itself",
    301: "a line has no length",
    302: "a circle, arc or ellipse has no radius",
    303: "a text is empty",
    304: "a block reference is scaled to nothing",
    305: "a polyline has fewer than two vertices",
    306: "an entity is the same as another one",
    307: "a coordinate is not finite, or further from the origin than numbers are precise",
    401: "the drawing states no unit",
    402: "a block is not used",
}
_BY = {"BYLAYER", "BYBLOCK", "CONTINUOUS", ""}
_FAR = 1e9
_DIGITS = 6
# Anonymous blocks, arrowheads, and the spaces of R12, where they are no anonymous blocks.
_NEVER_REFERENCED = ("*", "_", "$MODEL_SPACE", "$PAPER_SPACE")
# Blocks of dimensions and tables, which programs make anew.
_GENERATED = ("*D", "*T")
_SAME = "STANDARD"


@dataclass(frozen=True)
class Finding:
    """A defect of a drawing."""

    code: int
    """The kind of defect: a key of ``CODES``."""
    text: str
    place: str = ""
    """The layout or block that it is in."""
    handle: str = ""
    fix: str = ""
    """What a fix does; empty where a person has to decide."""
    is_fixed: bool = False
    count: int = 1
    """How many alike findings there are in the place; the handle is that of the first."""


Fix = Callable[[], None]


class _Audit:
    """One audit: what is known about the drawing, the findings, and whether they are corrected."""

    def __init__(self, drawing: CadImage, fix: bool) -> None:
        self.drawing = drawing
        self.fix = fix
        self._found: dict[tuple[int, str, str], Finding] = {}
        self.layers = {layer.name.casefold() for layer in drawing.layers} | {"0"}  # each drawing has it
        self.line_types = {one.name.upper() for one in drawing.line_types} | _BY
        self.styles = {one.name.upper() for one in drawing.styles}
        self.dimension_styles = {one.name.upper() for one in drawing.dimension_styles}
        self.blocks = {block.name.casefold(): block for block in drawing.block_entities}
        self.used: set[str] = set()

    def find(self, code: int, text: str, place: str = "", entity: CadEntityBase | None = None,
             fix: tuple[str, Fix] | None = None) -> None:
        is_fixed = self.fix and fix is not None
        if fix is not None and self.fix:
            fix[1]()
        key = code, text, place
        if key in self._found:
            self._found[key] = replace(self._found[key], count=self._found[key].count + 1)
            return
        handle = entity.unique_id if entity is not None else ""
        self._found[key] = Finding(code, text, place, handle, fix[0] if fix else "", is_fixed)

    @property
    def findings(self) -> list[Finding]:
        return list(self._found.values())

    def run(self) -> None:
        if self.drawing.header.ins_units == 0:
            self.find(401, "the drawing states no unit: its lengths have no meaning to other programs")
        for block in list(self.drawing.block_entities):
            self.check_entities(block)
        self.check_cycles()
        for block in list(self.drawing.block_entities):
            name = block.name
            if not name.upper().startswith(_NEVER_REFERENCED) and name.casefold() not in self.used:
                self.find(402, f"block {name!r} is not used", name)

    def check_entities(self, block: CadBlockEntity) -> None:
        is_generated = block.name.upper().startswith(_GENERATED)
        digests = [] if is_generated else entity_digests(block, _DIGITS)
        counts = Counter(digests)
        seen: set[Any] = set()
        removed: list[int] = []
        for at, entity in enumerate(block.entities):
            own = cast(entity)
            self.check_references(own, block.name)
            if is_generated:
                continue
            for code, text in _degenerate(own):
                self.find(code, text, block.name, own, ("removes it", lambda at=at: removed.append(at)))
                break
            else:
                if counts[digests[at]] > 1:
                    fix: tuple[str, Fix] = "removes the second one", lambda at=at: removed.append(at)
                    self.check_duplicate(own, block.name, (digests[at], fingerprint(values(own, _DIGITS))), seen, fix)
        for at in reversed(removed):
            block.entities.pop(at)

    def check_duplicate(self, own: Any, place: str, key: Any, seen: set[Any], fix: tuple[str, Fix]) -> None:
        if key in seen and own.type_name_text != "VIEWPORT":
            self.find(306, f"{own.type_name_text} on {own.layer_name!r} is there twice", place, own,
                      fix)
        seen.add(key)

    def check_references(self, own: Any, place: str) -> None:
        kind, layer = own.type_name_text, own.layer_name
        if layer.casefold() not in self.layers:
            self.find(201, f"{kind} is on layer {layer!r}, which is not there", place, own,
                      ("adds the layer", lambda: self.add_layer(layer)))
        if own.line_type_name.upper() not in self.line_types:
            self.find(202, f"{kind} has line type {own.line_type_name!r}, which is not there", place, own,
                      ("sets it to that of the layer", lambda: setattr(own, "line_type_name", "BYLAYER")))
        for member, code, what in _style_members(type(own)):
            known = self.dimension_styles if code == 204 else self.styles
            name = getattr(own, member)
            if isinstance(name, str) and name and name.upper() not in known:
                fix = ("sets it to STANDARD", lambda one=member: setattr(own, one, _SAME))
                self.find(code, f"{kind} has {what} {name!r}, which is not there", place, own,
                          fix if _SAME in known else None)
        if kind == "INSERT":
            self.used.add(own.name.casefold())
            if own.name.casefold() not in self.blocks:
                self.find(205, f"a reference names block {own.name!r}, which is not there", place, own)
        if hasattr(type(own), "block_name") and isinstance(own.block_name, str):
            self.used.add(own.block_name.casefold())

    def add_layer(self, name: str) -> None:
        if name.casefold() not in self.layers:
            layer = CadLayerTable()
            layer.name = name
            self.drawing.layers.add(layer)
            self.layers.add(name.casefold())

    def check_cycles(self) -> None:
        inside = {name: {cast(entity).name.casefold() for entity in block.entities
                         if entity.type_name_text == "INSERT"} for name, block in self.blocks.items()}
        for start in inside:
            reached: set[str] = set()
            ways = list(inside[start])
            while ways:
                name = ways.pop()
                if name not in reached:
                    reached.add(name)
                    ways += inside.get(name, ())
            if start in reached:
                self.find(206, f"block {self.blocks[start].name!r} contains itself", self.blocks[start].name)


@cache
def _style_members(kind: type[Any]) -> tuple[tuple[str, int, str], ...]:
    """The properties of a class that name styles, with the code of a name that is not there."""
    return tuple(one for one in (("text_style_name", 203, "text style"), ("style_type", 203, "text style"),
                                 ("dimension_style_name", 204, "dimension style")) if hasattr(kind, one[0]))


@cache
def _point_members(kind: type[Any]) -> tuple[str, ...]:
    return tuple(name for name in ("first_point", "second_point", "center_point", "insertion_point", "first_alignment")
                 if hasattr(kind, name))


def _is_far(point: Any) -> bool:
    return not (abs(point.x) <= _FAR and abs(point.y) <= _FAR)  # NaN is far, too


def _degenerate(own: Any) -> Iterator[tuple[int, str]]:
    """What is wrong with the geometry of an entity."""
    kind = own.type_name_text
    points = [getattr(own, name) for name in _point_members(type(own))]
    if any(point is not None and _is_far(point) for point in points):
        yield 307, f"{kind} has a coordinate that is not finite, or beyond {_FAR:g}"
    if kind == "LINE":
        a, b = points
        if (a.x, a.y, a.z) == (b.x, b.y, b.z) and not own.thickness:
            yield 301, "LINE has no length"
    elif kind in ("CIRCLE", "ARC") and not own.radius > 0:
        yield 302, f"{kind} has the radius {own.radius:g}"
    elif kind == "ELLIPSE" and not own.axis_ratio:
        yield 302, "ELLIPSE has no second axis"
    elif kind in ("TEXT", "MTEXT") and not (own.text if kind == "MTEXT" else own.default_value).strip():
        yield 303, f"{kind} is empty"
    elif kind == "INSERT" and not (own.scale_x and own.scale_y):
        yield 304, f"reference to {own.name!r} is scaled to nothing"
    elif kind == "LWPOLYLINE" and len(own.coordinates) < 2:
        yield 305, f"LWPOLYLINE has {len(own.coordinates)} vertices"


def audit(drawing: CadImage, *, fix: bool = False, defects: list[str] | None = None) -> list[Finding]:
    """Finds the defects of a drawing.

    :param drawing: The drawing.
    :param fix: Whether what can be corrected without a choice is corrected, in the drawing that is open.
    :param defects: What loading the file left out, as ``LoadOptions.errors`` lists it.
    """
    run = _Audit(drawing, fix)
    for text in defects or ():
        run.find(101, text, fix=("leaves the object out", lambda: None))
    run.run()
    return run.findings
