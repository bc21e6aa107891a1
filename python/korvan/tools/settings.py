"""Settings as strings: ``PdfOptions.timeout=5000``, as the command line takes them."""

from __future__ import annotations

import enum
import re
from collections.abc import Callable, Mapping
from importlib import import_module
from typing import Any

from korvan.cad import Color, ColorTranslator, LoadOptions, PointF, Rectangle, ResolutionSetting, SizeF
from korvan.cad.imageoptions import ImageOptionsBase, VectorRasterizationOptions
from korvan.tools.errors import ToolError, message_of, nearest, nearest_are, unknown

# Options that are part of others: their class, whose they are, and the member that has them.
_PARTS = {
    "PdfDocumentOptions": ("options", "core_pdf_options"),
    "PdfDocumentInfo": ("options", "pdf_document_info"),
    "MultiPageOptions": ("options", "multi_page_options"),
    "ResolutionSetting": ("options", "resolution_settings"),
    "GraphicsOptions": ("raster", "graphics_options"),
    "PenOptions": ("raster", "pen_options"),
    "Margins": ("raster", "margins"),
    "RasterizationQuality": ("raster", "quality"),
    "ObserverPoint": ("raster", "observer_point"),
    "RdOptimizerSettings": ("options", "rd_opt_settings"),
    "VectorizationOptions": ("load", "vectorization_options"),
}
_ALIASES = {"load": "LoadOptions", "page": "CadRasterizationOptions", "quality": "RasterizationQuality"}
_MODULES = ("korvan.cad", "korvan.cad.imageoptions", "korvan.cad.fileformats", "korvan.cad.fileformats.pdf",
            "korvan.cad.fileformats.cad",
            "korvan.cad.fileformats.cad.cadconsts", "korvan.cad.fileformats.png")
_SWITCHES = {"true": True, "yes": True, "on": True, "1": True, "false": False, "no": False, "off": False, "0": False}


def find_class(name: str) -> type[Any] | None:
    """A class of the library by its name, among those that options refer to."""
    for module in _MODULES:
        found = getattr(import_module(module), name, None)
        if isinstance(found, type):
            return found
    return None


def parse_color(text: str) -> Color:
    """A colour by its CSS name or as ``#rrggbb``."""
    try:
        return ColorTranslator.from_html(text)
    except RuntimeError as failure:
        raise ToolError(f"{text!r} is not a colour: use a name such as 'white', or #rrggbb") from failure


def _member_of(kind: type[Any], text: str) -> Any:
    """The member of an enumeration, by its name."""
    members: Mapping[str, Any] = kind.__members__
    names = {name.replace("_", "").casefold(): name for name in members}
    found = names.get(re.sub(r"[-_ .]", "", text).casefold())
    if found is None:
        raise ToolError(f"{text!r} is none of {', '.join(members)}")
    return members[found]


def _switch(text: str) -> bool:
    if text.casefold() not in _SWITCHES:
        raise ToolError(f"{text!r} is neither true nor false")
    return _SWITCHES[text.casefold()]


def _number(kind: Callable[[str], Any], text: str) -> Any:
    try:
        return kind(text)
    except ValueError as failure:
        raise ToolError(f"{text!r} is not a number") from failure


def _parse(current: object, text: str) -> Any:
    """A value of the type that a member has now."""
    if isinstance(current, enum.Enum):
        return _member_of(type(current), text)
    if isinstance(current, bool):
        return _switch(text)
    if isinstance(current, (int, float)):
        return _number(type(current), text)
    if isinstance(current, Color):
        return parse_color(text)
    if isinstance(current, (SizeF, PointF)):
        return type(current)(*_numbers(float, text, 2))
    if isinstance(current, Rectangle):
        return Rectangle(*_numbers(int, text, 4))
    return text


def _is_list(current: object) -> bool:
    return hasattr(current, "__len__") and not isinstance(current, (str, enum.Enum))


def _numbers(kind: Callable[[str], Any], text: str, count: int) -> list[Any]:
    found = [_number(kind, one) for one in text.split(",")]
    if len(found) != count:
        raise ToolError(f"{text!r} has to be {count} numbers, separated by commas")
    return found


def _assign_list(target: Any, member: str, items: list[str]) -> None:
    """Sets a list, whose items may be strings, numbers or names of members of an enumeration."""
    try:
        setattr(target, member, items)
        return
    except (TypeError, RuntimeError) as failure:
        kind = _wanted(failure)
        if kind is None and "integer" not in str(failure):
            raise
    if kind is not None:
        setattr(target, member, [_member_of(kind, item) for item in items])
    else:
        setattr(target, member, [_number(int, item) for item in items])


def _wanted(failure: Exception) -> type[Any] | None:
    """The enumeration that a member takes, by the error of a wrong value."""
    match = re.search(r"can't build (\w+) value", str(failure))
    kind = find_class(match[1]) if match else None
    return kind if isinstance(kind, enum.EnumType) else None


def _assign_unknown(target: Any, member: str, text: str) -> None:
    """Sets a member that has no value yet, whose class only the error of a wrong value names."""
    try:
        setattr(target, member, text)
    except TypeError as failure:
        kind = _wanted(failure)
        if kind is None:
            raise ToolError(f"{member} takes no text: set the members of its class") from failure
        setattr(target, member, _member_of(kind, text))


def assign(target: Any, member: str, text: str) -> None:
    """Sets a member of options from its text.

    :raises ToolError: There is no such member, or it does not take the value.
    """
    known = [name for name in dir(target) if not name.startswith("_")
             and type(getattr(target.__class__, name)).__name__ == "getset_descriptor"]
    name = re.sub(r"(?<=[a-z0-9])(?=[A-Z])", "_", member).replace("-", "_").lower()
    if name not in known:
        raise unknown(f"member of {type(target).__name__}", member, known)
    try:
        current = getattr(target, name)
        if current is None:
            _assign_unknown(target, name, text)
        else:
            if _is_list(current):
                _assign_list(target, name, [item.strip() for item in text.split(",")])
            else:
                setattr(target, name, _parse(current, text))
    except (AttributeError, RuntimeError, TypeError, OverflowError) as failure:
        reason = "it cannot be set" if isinstance(failure, AttributeError) else message_of(failure)
        raise ToolError(f"{type(target).__name__}.{name}: {reason}") from failure
    except ToolError as failure:
        raise ToolError(f"{type(target).__name__}.{name}: {failure}") from failure


class Settings:
    """Settings by class, checked before anything is loaded, and applied to the options of one conversion."""

    def __init__(self, given: Mapping[str, str] | None) -> None:
        self._given: list[tuple[str, str, str]] = []
        for key, value in (given or {}).items():
            owner, _, member = key.rpartition(".")
            if not owner:
                raise ToolError(f"setting {key!r} names no class: write class.member, as in PdfOptions.timeout")
            self._given.append((self._class_name(owner), member, str(value)))

    @staticmethod
    def _class_name(owner: str) -> str:
        name = _ALIASES.get(owner.casefold(), owner)
        options = import_module("korvan.cad.imageoptions")
        known = {*_PARTS, "LoadOptions", *(one for one in dir(options) if one.endswith("Options"))}
        by_key = {one.casefold(): one for one in known}
        for key in (name.casefold(), name.casefold() + "options"):
            if key in by_key:
                return by_key[key]
        near = nearest(owner, known)
        raise ToolError(f"there are no options {owner!r}" + (f"; {nearest_are(near)}" if near else ""))

    def wants(self, *classes: str) -> bool:
        """Whether any setting is for one of the classes."""
        return any(name in classes for name, _, _ in self._given)

    def apply_to_load(self, options: LoadOptions) -> None:
        for name, member, text in self._given:
            if name == "LoadOptions":
                assign(options, member, text)
            elif _PARTS.get(name, ("",))[0] == "load":
                assign(self._part(name, options), member, text)

    def apply(self, options: ImageOptionsBase, raster: VectorRasterizationOptions) -> None:
        """Applies what is not for loading.

        :raises ToolError: A setting is of a class that has no part in this conversion.
        """
        own = {kind.__name__ for kind in type(options).__mro__}
        page = {kind.__name__ for kind in type(raster).__mro__}
        for name, member, text in self._given:
            if name in own:
                assign(options, member, text)
            elif name in page:
                assign(raster, member, text)
            elif name in _PARTS:
                owner = _PARTS[name][0]
                if owner != "load":
                    assign(self._part(name, options if owner == "options" else raster), member, text)
            elif name != "LoadOptions":
                raise ToolError(f"{name} has no part in this conversion, which takes {type(options).__name__}")

    @staticmethod
    def _part(name: str, owner: Any) -> Any:
        """The options of a class that are part of others, made where there are none yet."""
        member = _PARTS[name][1]
        if not hasattr(owner, member):
            raise ToolError(f"{type(owner).__name__} has no {name}")
        part = getattr(owner, member)
        if part is None:
            kind = find_class(name)
            assert kind is not None
            part = ResolutionSetting(96.0, 96.0) if kind is ResolutionSetting else kind()
            setattr(owner, member, part)
        return part

    @property
    def concerns_page(self) -> bool:
        """Whether a setting is for how pages are rendered."""
        return self.wants("CadRasterizationOptions", "VectorRasterizationOptions", "GraphicsOptions", "PenOptions",
                          "Margins", "RasterizationQuality", "ObserverPoint")
