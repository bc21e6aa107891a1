"""Helpers over ``korvan.cad`` for what programs with drawings do most: open, convert, query, measure, edit.

Names are imported when they are first used: ``from korvan.tools import convert`` loads what converting needs.
"""

from __future__ import annotations

from korvan._exports import lazy_exports

TYPE_CHECKING = False  # the typing module costs more to import than this package
if TYPE_CHECKING:
    from korvan.tools.auditing import Finding as Finding
    from korvan.tools.auditing import audit as audit
    from korvan.tools.comparison import Difference as Difference
    from korvan.tools.comparison import differences as differences
    from korvan.tools.comparison import overlay as overlay
    from korvan.tools.conversion import ConversionResult as ConversionResult
    from korvan.tools.conversion import convert as convert
    from korvan.tools.description import describe as describe
    from korvan.tools.dimensioning import add_diameter_dimension as add_diameter_dimension
    from korvan.tools.dimensioning import add_linear_dimension as add_linear_dimension
    from korvan.tools.dimensioning import add_radius_dimension as add_radius_dimension
    from korvan.tools.editing import copy_entities as copy_entities
    from korvan.tools.editing import merge as merge
    from korvan.tools.editing import rename_layer as rename_layer
    from korvan.tools.errors import ToolError as ToolError
    from korvan.tools.extraction import FoundText as FoundText
    from korvan.tools.extraction import plain_text as plain_text
    from korvan.tools.extraction import texts as texts
    from korvan.tools.measuring import Measure as Measure
    from korvan.tools.measuring import extents as extents
    from korvan.tools.measuring import measure as measure
    from korvan.tools.measuring import measure_layers as measure_layers
    from korvan.tools.opening import cast as cast
    from korvan.tools.opening import open_drawing as open_drawing
    from korvan.tools.plain_values import values as values
    from korvan.tools.pool import Outcome as Outcome
    from korvan.tools.pool import Pool as Pool
    from korvan.tools.properties import property_sets as property_sets
    from korvan.tools.queries import blocks as blocks
    from korvan.tools.queries import entities as entities
    from korvan.tools.queries import query as query
    from korvan.tools.transforms import Transform as Transform
    from korvan.tools.transforms import transform as transform

_MODULES = {
    "Finding": "auditing",
    "audit": "auditing",
    "Difference": "comparison",
    "differences": "comparison",
    "overlay": "comparison",
    "ConversionResult": "conversion",
    "convert": "conversion",
    "describe": "description",
    "add_diameter_dimension": "dimensioning",
    "add_linear_dimension": "dimensioning",
    "add_radius_dimension": "dimensioning",
    "copy_entities": "editing",
    "merge": "editing",
    "rename_layer": "editing",
    "ToolError": "errors",
    "FoundText": "extraction",
    "plain_text": "extraction",
    "texts": "extraction",
    "Measure": "measuring",
    "extents": "measuring",
    "measure": "measuring",
    "measure_layers": "measuring",
    "cast": "opening",
    "open_drawing": "opening",
    "values": "plain_values",
    "Outcome": "pool",
    "Pool": "pool",
    "property_sets": "properties",
    "blocks": "queries",
    "entities": "queries",
    "query": "queries",
    "Transform": "transforms",
    "transform": "transforms",
}

__all__ = [
    "ConversionResult", "Difference", "Finding", "FoundText", "Measure", "Outcome", "Pool", "ToolError",
    "Transform", "add_diameter_dimension", "add_linear_dimension", "add_radius_dimension", "audit", "blocks",
    "cast", "convert", "copy_entities", "describe", "differences", "entities", "extents", "measure",
    "measure_layers", "merge", "open_drawing", "overlay", "plain_text", "property_sets", "query", "rename_layer",
    "texts", "transform", "values",
]

__getattr__, __dir__ = lazy_exports(globals(), _MODULES)
