"""Loads a drawing database and the same drawing as DXF; prints times and the number of objects as a line of JSON."""

from __future__ import annotations

import json
import sys
import time

import korvan.cad
from korvan.cad.fileformats.cad import CadImage
from korvan.cad.imageoptions import DxfOptions

SECONDS = 1.0


def _times(path: str) -> list[float]:
    times: list[float] = []
    end = time.perf_counter() + SECONDS
    while len(times) < 3 or time.perf_counter() < end:
        start = time.perf_counter()
        korvan.cad.Image.load(path)
        times.append(time.perf_counter() - start)
    return times


def main() -> None:
    """Prints the line."""
    path, same = sys.argv[1:]
    times = _times(path)
    image = korvan.cad.Image.load(path)
    drawing = CadImage._cast_to(image).value
    objects = len(drawing.objects) + sum(len(block.entities) for block in drawing.block_entities.values)
    image.save(same, DxfOptions())
    print(json.dumps({"best": min(times), "first": times[0], "objects": objects, "interchange": min(_times(same))}))


if __name__ == "__main__":
    main()
