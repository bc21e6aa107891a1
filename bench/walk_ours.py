"""Sums the lengths of a drawing's lines by layer."""

from __future__ import annotations

import math
from collections.abc import Callable, Iterable

import korvan.cad
from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cad.cadobjects import CadEntityBase, CadLine

from walk_timing import main


def lengths_by_layer(entities: Iterable[CadEntityBase]) -> dict[str, float]:
    lengths: dict[str, float] = {}
    for entity in entities:
        cast = CadLine._cast_to(entity)
        if cast:
            line = cast.value
            start, end = line.first_point, line.second_point
            layer = line.layer_name
            lengths[layer] = lengths.get(layer, 0.0) + math.hypot(end.x - start.x, end.y - start.y)
    return lengths


def load(path: str) -> Callable[[], dict[str, float]]:
    entities = CadImage._cast_to(korvan.cad.Image.load(path)).value.entities
    return lambda: lengths_by_layer(entities)


if __name__ == "__main__":
    main(load)
