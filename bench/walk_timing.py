"""What both programs that walk a drawing share: their argument, their clock and what they print."""

from __future__ import annotations

import json
import sys
import time
from collections.abc import Callable


def main(load: Callable[[str], Callable[[], dict[str, float]]]) -> None:
    """Runs what `load` gives for the drawing again and again, and prints the best time as one line of JSON."""
    path, seconds = sys.argv[1], float(sys.argv[2])
    walk = load(path)
    best, end = float("inf"), time.perf_counter() + seconds
    while time.perf_counter() < end:
        # Of the process: others on the machine do not count.
        start = time.process_time()
        lengths = walk()
        best = min(best, time.process_time() - start)
    print(json.dumps({"best": best, "lengths": {layer: round(length, 3) for layer, length in lengths.items()}}))
