"""Helpers over ``korvan.cad`` for what programs with drawings do most: open, convert, query, measure, edit.

Names are imported when they are first used: ``from korvan.tools import convert`` loads what converting needs.
"""

from __future__ import annotations

from importlib import import_module

TYPE_CHECKING = False  # the typing module costs more to import than this package
if TYPE_CHECKING:
    from korvan.tools.conversion import ConversionResult as ConversionResult
    from korvan.tools.conversion import convert as convert
    from korvan.tools.errors import ToolError as ToolError
    from korvan.tools.opening import cast as cast
    from korvan.tools.opening import open_drawing as open_drawing
    from korvan.tools.pool import Outcome as Outcome
    from korvan.tools.pool import Pool as Pool

_MODULES = {
    "ConversionResult": "conversion",
    "convert": "conversion",
    "ToolError": "errors",
    "cast": "opening",
    "open_drawing": "opening",
    "Outcome": "pool",
    "Pool": "pool",
}

__all__ = ["ConversionResult", "Outcome", "Pool", "ToolError", "cast", "convert", "open_drawing"]


def __getattr__(name: str) -> object:
    if name not in _MODULES:
        raise AttributeError(f"module {__name__!r} has no attribute {name!r}")
    found = getattr(import_module(f"{__name__}.{_MODULES[name]}"), name)
    globals()[name] = found
    return found


def __dir__() -> list[str]:
    return sorted({*globals(), *_MODULES})
