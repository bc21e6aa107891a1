"""The values of an object of a drawing as plain Python, to compare and to print them."""

from __future__ import annotations

import enum
from typing import Any

from korvan.cad import Color
from korvan.cad.fileformats.cad.cadobjects import Cad2DPoint, Cad3DPoint
from korvan.tools.opening import cast

# Identity, place in the file, handles of others and data of applications: two alike entities differ in them.
_LEFT_OUT = {
    "annotation_handle", "application_codes_container", "coordinate_system", "dimblk", "dimblk1", "dimblk2",
    "dimldrblk", "dimltex1", "dimltex2", "dimltype", "dimtxsty", "embedded_object_container",
    "graphics_block_name", "key", "layout_tab_name", "material", "object_handle", "plot_style", "seqend",
    "soft_owner", "type_name", "unique_id", "unknown_codes", "viewport_id", "viewport_status", "xdata_container",
}
# Left out at the end of a list where they are the default.
_DEFAULTS = {"bulges": 0.0, "start_widths": 0.0, "end_widths": 0.0}
_DEPTH = 4
_members: dict[type[Any], tuple[str, ...]] = {}


def member_names(kind: type[Any]) -> tuple[str, ...]:
    """The names of the properties that hold the values of a class."""
    found = _members.get(kind)
    if found is None:
        found = _members[kind] = tuple(
            name for name in dir(kind) if not name.startswith("_") and name not in _LEFT_OUT
            and not name.endswith("_handle") and type(getattr(kind, name)).__name__ == "getset_descriptor")
    return found


def _plain(value: Any, digits: int, depth: int) -> Any:
    if value is None or isinstance(value, (bool, str)):
        return value
    if isinstance(value, enum.Enum):
        return value.name or value.value
    if isinstance(value, int):
        return value
    if isinstance(value, float):
        return round(value, digits) + 0.0
    if isinstance(value, Cad3DPoint):
        return tuple(round(one, digits) + 0.0 for one in (value.x, value.y, value.z))
    if isinstance(value, Cad2DPoint):
        return round(value.x, digits) + 0.0, round(value.y, digits) + 0.0
    if isinstance(value, (bytes, bytearray)):
        return bytes(value)
    if isinstance(value, Color):
        return str(value)
    if hasattr(value, "__iter__"):
        return tuple(_plain(item, digits, depth) for item in value)
    return values(value, digits, depth - 1) if depth > 0 else str(value)


def values(thing: Any, digits: int = 6, depth: int = _DEPTH) -> dict[str, Any]:
    """The values of an entity, a layer or another object by the names of their properties.

    Points are tuples, enumerations their names, lists tuples, and objects within dictionaries. The handle, the owner
    and data of applications are left out.

    :param digits: The decimals that numbers are rounded to.
    """
    own = cast(thing) if hasattr(thing, "get_type") else thing
    kind: type[Any] = own.__class__
    found: dict[str, Any] = {"type": kind.__name__}
    for name in member_names(kind):
        try:
            value = _plain(getattr(own, name), digits, depth)
        except RuntimeError:  # a value that this object does not have
            continue
        found[name] = _normal(name, value)
    return found


def _normal(name: str, value: Any) -> Any:
    """One form of values that may be written in several."""
    if name == "block_name" and isinstance(value, str) and value.startswith("*"):
        return "*"  # made by a program, which numbers its blocks anew
    if name == "line_type_name" and isinstance(value, str):
        return value.upper()
    if name in _DEFAULTS:
        items: Any = value
        while items and items[-1] == _DEFAULTS[name]:
            items = items[:-1]
        return items
    return value


def fingerprint(found: Any) -> Any:
    """Values in a form that can be a key."""
    if isinstance(found, dict):
        items: Any = found.items()  # type: ignore[reportUnknownVariableType]
        return tuple((name, fingerprint(value)) for name, value in items)
    if isinstance(found, tuple):
        several: Any = found  # type: ignore[reportUnknownVariableType]
        return tuple(fingerprint(value) for value in several)
    return found


def copy_values(source: Any, target: Any) -> None:
    """Copies the plain values and lists of an object to a new one of its class, but not its name."""
    for name in member_names(source.__class__):
        if name == "name":
            continue
        value = getattr(source, name)
        if hasattr(value, "extend"):
            getattr(target, name).extend(list(value))
            continue
        try:
            setattr(target, name, value)
        except AttributeError:  # what can only be read follows from the rest
            continue
