"""Loads a drawing through korvan.cad and prints time and memory as one line of JSON."""

from __future__ import annotations

import json
import resource
import sys
import time

import korvan.cad
from korvan.cad.fileformats.cad import CadImage


def peak_kib() -> int:
    """The most memory that the process had so far."""
    return resource.getrusage(resource.RUSAGE_SELF).ru_maxrss


def main() -> None:
    path, rounds = sys.argv[1], int(sys.argv[2])
    base = peak_kib()
    times: list[float] = []
    peak = entities = 0
    for _ in range(rounds):
        start = time.perf_counter()
        image = korvan.cad.Image.load(path)
        times.append(time.perf_counter() - start)
        peak = peak or peak_kib()
        entities = len(CadImage._cast_to(image).value.entities)
        image.__exit__(None, None, None)
        del image
    print(json.dumps({"first": times[0], "best": min(times), "peak": peak, "base": base, "entities": entities}))


if __name__ == "__main__":
    main()
