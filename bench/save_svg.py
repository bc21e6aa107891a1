"""Loads a drawing, saves it as SVG several times, and prints times, sizes and memory as one line of JSON."""

from __future__ import annotations

import json
import sys
import time
from pathlib import Path

import korvan.cad
from korvan.cad.imageoptions import SvgOptions
from load_ours import peak_kib

ROUNDS = 4


def main() -> None:
    path, target, as_shapes = sys.argv[1], Path(sys.argv[2]), sys.argv[3] == "shapes"
    start = time.perf_counter()
    image = korvan.cad.Image.load(path)
    load = time.perf_counter() - start
    loaded = peak_kib()
    times: list[float] = []
    for _ in range(ROUNDS):
        options = SvgOptions()
        options.text_as_shapes = as_shapes
        start = time.perf_counter()
        image.save(str(target), options)
        times.append(time.perf_counter() - start)
    print(json.dumps({"load": load, "first": times[0], "second": times[1], "best": min(times), "loaded": loaded,
                      "peak": peak_kib(), "bytes": target.stat().st_size}))


if __name__ == "__main__":
    main()
