"""Helpers over ``korvan.cad`` for what programs with drawings do most: open, convert, query, measure, edit.

Names are imported when they are first used: ``from korvan.tools import convert`` loads what converting needs.
"""

from __future__ import annotations

from importlib import import_module

TYPE_CHECKING = False  # the typing module costs more to import than this package
if TYPE_CHECKING:
    from korvan.tools.conversion import ConversionResult as ConversionResult
    from korvan.tools.conversion import convert as convert
    from korvan.tools.description import describe as describe
    from korvan.tools.errors import ToolError as ToolError
    from korvan.tools.extraction import plain_text as plain_text
    from korvan.tools.extraction import texts as texts
    from korvan.tools.opening import cast as cast
    from korvan.tools.opening import open_drawing as open_drawing
    from korvan.tools.pool import Outcome as Outcome
    from korvan.tools.pool import Pool as Pool
    from korvan.tools.properties import property_sets as property_sets
    from korvan.tools.queries import blocks as blocks
    from korvan.tools.queries import entities as entities
    from korvan.tools.queries import query as query

_MODULES = {
    "ConversionResult": "conversion",
    "convert": "conversion",
    "describe": "description",
    "ToolError": "errors",
    "plain_text": "extraction",
    "texts": "extraction",
    "cast": "opening",
    "open_drawing": "opening",
    "Outcome": "pool",
    "Pool": "pool",
    "property_sets": "properties",
    "blocks": "queries",
    "entities": "queries",
    "query": "queries",
}

__all__ = [
    "ConversionResult", "Outcome", "Pool", "ToolError", "blocks", "cast", "convert", "describe", "entities",
    "open_drawing", "plain_text", "property_sets", "query", "texts",
]


def __getattr__(name: str) -> object:
    if name not in _MODULES:
        raise AttributeError(f"module {__name__!r} has no attribute {name!r}")
    found = getattr(import_module(f"{__name__}.{_MODULES[name]}"), name)
    globals()[name] = found
    return found


def __dir__() -> list[str]:
    return sorted({*globals(), *_MODULES})
