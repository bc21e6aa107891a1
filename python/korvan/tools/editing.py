"""Copies entities between drawings with all they refer to, merges drawings, renames layers."""

from __future__ import annotations

import math
import re
from collections.abc import Iterable
from operator import mul
from typing import Any, Literal

from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cad.cadobjects import CadBlockEntity, CadEntityBase, CadInsertObject
from korvan.cad.fileformats.cad.cadtables import (
    CadBlockTableObject, CadDimensionStyleTable, CadLayerTable, CadLineTypeTableObject,
    CadStyleTableObject)
from korvan.tools.definitions import REFERENCES, copy_definition, new_handle
from korvan.tools.errors import ToolError, unknown
from korvan.tools.opening import cast
from korvan.tools.queries import MODEL
from korvan.tools.transforms import Transform, plane_axes, transform
from korvan.tools.plain_values import copy_values, fingerprint, values

Conflict = Literal["keep", "rename", "error"]
# What only the program that wrote it understands.
_BOUND = {"ACAD_PROXY_ENTITY"}
_KEPT_BY_HANDLE = {
    "dimtxsty": "styles", "dimltype": "line_types", "dimltex1": "line_types", "dimltex2": "line_types",
    "dimblk": "block_records", "dimblk1": "block_records", "dimblk2": "block_records",
    "dimldrblk": "block_records",
}


def _handle(drawing: CadImage, record: Any) -> str:
    """The handle of a record; a new one where it has none yet."""
    if not record.object_handle:
        record.object_handle = new_handle(drawing)
    return str(record.object_handle)


_RESERVED = re.compile(r"""[<>/\\":;?*|=`\x00-\x1f]""")


class _Copier:
    """Copies from one drawing to another; knows which names got another one there."""

    def __init__(self, source: CadImage, target: CadImage, conflict: Conflict) -> None:
        self.source, self.target, self.conflict = source, target, conflict
        self._names: dict[tuple[str, str], str] = {}

    def record(self, table: str, name: str, kind: type[Any]) -> str:
        """The name in the target of a record of a symbol table, which is copied there if need be."""
        key = table, name.casefold()
        if key in self._names:
            return self._names[key]
        self._names[key] = name
        found = getattr(self.source, table).find(name)
        if found is None:
            return name
        there: Any = getattr(self.target, table)
        # Files may have names that cannot be given, such as those of programs with an asterisk.
        name = self._names[key] = _RESERVED.sub("_", name)
        other = there.find(name)
        if other is not None:
            # One of a layer or style of the same name is enough, even where its colour differs.
            if self.conflict != "rename" or fingerprint(values(other)) == fingerprint(values(found)):
                return name
            name = self._names[key] = self._free(name, there)
        new = kind()
        new.name = name
        copy_values(found, new)
        there.add(new)
        self._refer(found, new)
        return name

    def _refer(self, found: Any, new: Any) -> None:
        """Lets a new record refer to others of the target as the old one does in the source."""
        if hasattr(found, "line_type_name"):
            new.line_type_name = self.line_type(found.line_type_name)
        for member, table in _KEPT_BY_HANDLE.items():
            handle = getattr(found, member, "")
            if not handle or handle == "0":
                continue
            record = next((one for one in getattr(self.source, table) if one.object_handle == handle), None)
            if record is None:
                continue
            name = (self.style(record.name) if table == "styles" else self.line_type(record.name)
                    if table == "line_types" else self.block(record.name))
            other = getattr(self.target, table).find(name)
            if other is not None:
                setattr(new, member, _handle(self.target, other))

    @staticmethod
    def _free(name: str, there: Any) -> str:
        number = 1
        while there.find(f"{name}_{number}") is not None:
            number += 1
        return f"{name}_{number}"

    def layer(self, name: str) -> str:
        return self.record("layers", name, CadLayerTable)

    def style(self, name: str) -> str:
        return self.record("styles", name, CadStyleTableObject)

    def line_type(self, name: str) -> str:
        if name.upper() in ("BYLAYER", "BYBLOCK", "CONTINUOUS"):
            return name
        return self.record("line_types", name, CadLineTypeTableObject)

    def block(self, name: str) -> str:
        """The name of a block in the target, with its entities copied there if need be."""
        key = "blocks", name.casefold()
        if key in self._names:
            return self._names[key]
        self._names[key] = name
        found = self.source.block_entities.find(name)
        if found is None:
            return name
        other = self.target.block_entities.find(name)
        if other is not None:
            same = [fingerprint(values(one)) for one in other.entities] == [
                fingerprint(values(one)) for one in found.entities]
            if same or (self.conflict == "keep" and not name.startswith("*")):
                return name
            if self.conflict == "error" and not name.startswith("*"):
                raise ToolError(f"both drawings have a block {name!r}, and they differ")
            name = self._names[key] = self._free(name, self.target.block_entities)
        new = CadBlockEntity()
        new.name = new.name_again = name
        new.base_point = found.base_point
        new.flags, new.description, new.x_ref_path_name = found.flags, found.description, found.x_ref_path_name
        new.layer_name = self.layer(found.layer_name)
        self.target.block_entities.add(new)
        if self.target.block_records.find(name) is None:  # what dimension styles refer to
            record = CadBlockTableObject()
            record.name = name
            self.target.block_records.add(record)
        for entity in found.entities:
            if (copied := self.entity(entity)) is not None:
                new.entities.append(copied)
        return name

    def entity(self, entity: CadEntityBase) -> Any:
        """A copy of an entity that refers to the target; ``None`` for what cannot leave its drawing."""
        if entity.type_name_text in _BOUND:
            return None
        own = cast(entity.clone())
        if own.type_name_text == "ACAD_TABLE":
            own = _block_of_table(own)
        self.adopt(own)
        for part in getattr(own, "attributes", None) or getattr(own, "vertices", None) or ():
            one = cast(part)
            if isinstance(one, CadEntityBase):
                self.adopt(one)
        return own

    def adopt(self, own: Any) -> None:
        own.layer_name = self.layer(own.layer_name)
        own.line_type_name = self.line_type(own.line_type_name)
        for member in ("text_style_name", "style_type"):
            name = getattr(own, member, None)
            if isinstance(name, str) and name:
                setattr(own, member, self.style(name))
        for member in ("dimension_style_name", "style_name"):
            name = getattr(own, member, None)
            if isinstance(name, str) and name and self.source.dimension_styles.find(name) is not None:
                setattr(own, member, self.record("dimension_styles", name, CadDimensionStyleTable))
        if own.type_name_text == "INSERT":
            own.name = self.block(own.name)
        elif getattr(own, "block_name", ""):
            own.block_name = self.block(own.block_name)
        elif own.type_name_text in REFERENCES:
            copy_definition(self.source, self.target, own)
            if hasattr(own, "image_def_reactor_reference"):
                own.image_def_reactor_reference = ""
        elif own.type_name_text == "VIEWPORT":
            self.view(own)

    def view(self, own: Any) -> None:
        """A viewport freezes the layers of these names; its clip boundary stays behind."""
        names = {layer.object_handle: layer.name for layer in self.source.layers}
        copied = (self.target.layers.find(self.layer(names[one])) for one in own.frozen_layers if one in names)
        own.frozen_layers[:] = [_handle(self.target, layer) for layer in copied]
        own.clipping_boundary_handle = ""


def _block_of_table(table: Any) -> Any:
    """A reference to the block that shows a table, as its cells refer to styles and fields of its drawing."""
    shown = CadInsertObject()
    for member in ("name", "layer_name", "line_type_name", "linetype_scale", "line_weight", "color_id", "color_value",
                   "color_name", "transparency", "visible", "insertion_point", "extrusion_direction", "scale_x",
                   "scale_y", "scale_z"):
        setattr(shown, member, getattr(table, member))
    along, normal = table.horizontal_direction, table.extrusion_direction
    x, y, _ = plane_axes((normal.x, normal.y, normal.z))
    across = (along.x, along.y, along.z)
    shown.rotation_angle = math.degrees(math.atan2(sum(map(mul, across, y)), sum(map(mul, across, x))))
    return shown


def _number_viewports(place: Iterable[CadEntityBase], copies: Iterable[Any]) -> None:
    """Viewports of a layout have numbers; 1 is the sheet itself."""
    views = [one for one in copies if one.type_name_text == "VIEWPORT"]
    number = max([1, *(cast(one).viewport_id for one in place if one.type_name_text == "VIEWPORT")]) if views else 1
    for number, view in enumerate(views, number + 1):
        view.viewport_id = view.viewport_status = number


def copy_entities(
    entities: Iterable[CadEntityBase], source: CadImage, target: CadImage, *, layout: str = MODEL,
    change: Transform | None = None, conflict: Conflict = "keep"
) -> list[Any]:
    """Copies entities to another drawing, or within one, with the layers, styles and blocks that they need.

    Images and underlays take their definitions along; paths of files stay as they are written. A table comes as a
    reference to the block that shows it, a viewport without its clip boundary. Proxy entities are not copied, as only
    the program that wrote them knows what they refer to.

    :param entities: What is copied, such as the result of a query.
    :param source: The drawing that they are from.
    :param target: The drawing that gets the copies; it may be the same.
    :param layout: The layout that they are put into.
    :param change: A transform of the copies.
    :param conflict: What happens where a block, layer or style of the same name differs: ``keep`` that of the
        target, ``rename`` the one that comes, or ``error`` for blocks.
    :returns: The copies, each as its own class.
    """
    if layout not in target.layouts.names:
        raise unknown("layout", layout, list(target.layouts.names))
    copier = _Copier(source, target, conflict)
    copies = [copied for entity in list(entities) if (copied := copier.entity(entity)) is not None]
    if change is not None:
        transform(copies, change)
    place = target.get_layout_entities(layout)
    _number_viewports(place, copies)
    for copied in copies:
        place.append(copied)
    return copies


def merge(
    target: CadImage, source: CadImage, *, change: Transform | None = None, conflict: Conflict = "keep"
) -> int:
    """Copies model space of a drawing into another one, with layers, styles and blocks; returns how many entities.

    Layers without entities come along as well. The drawings should have the same unit, or ``change`` a scale.
    """
    copier = _Copier(source, target, conflict)
    for layer in source.layers:
        copier.layer(layer.name)
    return len(copy_entities(source.entities, source, target, change=change, conflict=conflict))


def rename_layer(drawing: CadImage, old: str, new: str) -> int:
    """Renames a layer, and everything that refers to it; returns how many entities.

    If there is a layer of the new name, the entities move to it, and the old layer is removed.

    :raises ToolError: There is no such layer, or it is layer 0, which every drawing has.
    """
    layer = drawing.layers.find(old)
    if layer is None:
        raise unknown("layer", old, list(drawing.layers.names))
    if old == "0":
        raise ToolError("layer 0 keeps its name: every drawing has it")
    key, other = old.casefold(), drawing.layers.find(new)
    if other is None or other == layer:
        layer.name = new
    else:
        drawing.layers.remove(layer)
    count = 0
    for block in drawing.block_entities:
        if other is not None and other != layer:
            _replace_frozen(block.entities, layer.object_handle, other.object_handle)
        count += _move_to_layer([block, *block.entities], key, new)
    if drawing.header.current_layer.casefold() == key:
        drawing.header.current_layer = new
    return count


def _replace_frozen(entities: Iterable[CadEntityBase], old: str, new: str) -> None:
    """Viewports that freeze a layer which is removed freeze the other one."""
    for entity in entities:
        if entity.type_name_text == "VIEWPORT" and old:
            frozen: Any = cast(entity).frozen_layers
            frozen[:] = [new if handle == old else handle for handle in frozen]


def _move_to_layer(entities: Iterable[CadEntityBase], key: str, new: str) -> int:
    count = 0
    for entity in entities:
        if entity.layer_name.casefold() == key:
            entity.layer_name = new
            count += entity.type_name_text != "BLOCK"
        if entity.type_name_text in ("INSERT", "POLYLINE"):
            own = cast(entity)
            parts: Any = getattr(own, "attributes", None) or getattr(own, "vertices", ())
            for part in parts:
                if part.layer_name.casefold() == key:
                    part.layer_name = new
    return count
