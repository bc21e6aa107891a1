"""Lengths, areas and extents of entities."""

from __future__ import annotations

from collections.abc import Iterable
from dataclasses import dataclass

from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cad.cadobjects import CadEntityBase
from korvan.tools.opening import enum_name


@dataclass
class Measure:
    """Sums over entities, in drawing units."""

    count: int = 0
    length: float = 0.0
    """Of lines and curves, and of the outlines of areas."""
    area: float = 0.0
    """Of closed entities."""


def measure(entities: Iterable[CadEntityBase]) -> Measure:
    """Sums the lengths and areas of entities."""
    total = Measure()
    for entity in entities:
        total.count += 1
        total.length += entity.get_length() or 0.0
        total.area += entity.get_area() or 0.0
    return total


def measure_layers(entities: Iterable[CadEntityBase]) -> dict[str, Measure]:
    """Sums the lengths and areas of entities by the names of their layers."""
    found: dict[str, Measure] = {}
    for entity in entities:
        total = found.setdefault(entity.layer_name, Measure())
        total.count += 1
        total.length += entity.get_length() or 0.0
        total.area += entity.get_area() or 0.0
    return found


def extents(drawing: CadImage) -> tuple[tuple[float, float, float], tuple[float, float, float]]:
    """The least and the largest coordinates of model space."""
    low, high = drawing.min_point, drawing.max_point
    return (low.x, low.y, low.z), (high.x, high.y, high.z)


# Metres in a unit, by the name of the unit.
_METRES = {
    "KILOMETER": 1000.0, "METER": 1.0, "DECIMETER": 0.1, "CENTIMETER": 0.01, "MILLIMETER": 0.001, "MICROMETER": 1e-6,
    "INCH": 0.0254, "FOOT": 0.3048, "YARD": 0.9144, "MILE": 1609.344, "MIL": 2.54e-5,
}


def metres(drawing: CadImage) -> float | None:
    """How many metres the unit of a drawing has; ``None`` where it states none."""
    return _METRES.get(enum_name(drawing.unit_type))
