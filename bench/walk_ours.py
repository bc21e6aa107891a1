"""Sums the lengths of a drawing's lines by layer, again and again, and prints the best time as one line of JSON."""

from __future__ import annotations

import json
import math
import sys
import time
from collections.abc import Iterable

import korvan.cad
from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cad.cadobjects import CadEntityBase, CadLine


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


def main() -> None:
    path, seconds = sys.argv[1], float(sys.argv[2])
    drawing = CadImage._cast_to(korvan.cad.Image.load(path)).value
    entities = drawing.entities
    best, end = float("inf"), time.perf_counter() + seconds
    while time.perf_counter() < end:
        start = time.process_time()
        lengths = lengths_by_layer(entities)
        best = min(best, time.process_time() - start)
    print(json.dumps({"best": best, "lengths": {layer: round(length, 3) for layer, length in lengths.items()}}))


if __name__ == "__main__":
    main()
