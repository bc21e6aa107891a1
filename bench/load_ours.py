"""Loads a drawing through korvan.cad and prints time and memory as one line of JSON."""

from __future__ import annotations

import json
import sys
import time

import korvan.cad
from korvan.cad.fileformats.cad import CadImage


AT_LEAST = 3


def peak_kib() -> int:
    """The most memory that this program had so far.

    Not ru_maxrss: that one starts with what the parent had when it forked.
    """
    with open("/proc/self/status", encoding="ascii") as status:
        line = next(line for line in status if line.startswith("VmHWM:"))
    return int(line.split()[1])


def main() -> None:
    path, seconds = sys.argv[1], float(sys.argv[2])
    base = peak_kib()
    times: list[float] = []
    peak = entities = 0
    while len(times) < AT_LEAST or sum(times) < seconds:
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
