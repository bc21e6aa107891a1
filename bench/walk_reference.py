"""The same as walk_ours.py through ezdxf. Runs under the system's Python, which Debian's package belongs to."""

from __future__ import annotations

import math
from collections.abc import Callable, Iterable

import ezdxf

from walk_timing import main


def lengths_by_layer(entities: Iterable) -> dict[str, float]:
    lengths: dict[str, float] = {}
    for entity in entities:
        if entity.dxftype() == "LINE":
            line = entity.dxf
            start, end = line.start, line.end
            layer = line.layer
            lengths[layer] = lengths.get(layer, 0.0) + math.hypot(end.x - start.x, end.y - start.y)
    return lengths


def load(path: str) -> Callable[[], dict[str, float]]:
    entities = ezdxf.readfile(path).modelspace()
    return lambda: lengths_by_layer(entities)


if __name__ == "__main__":
    main(load)
