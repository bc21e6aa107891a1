"""Loads a drawing through ezdxf and prints time and memory as one line of JSON.

Runs under the system's Python, which Debian's package belongs to.
"""

from __future__ import annotations

import json
import resource
import sys
import time

import ezdxf


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
        document = ezdxf.readfile(path)
        times.append(time.perf_counter() - start)
        peak = peak or peak_kib()
        entities = len(document.modelspace())
        del document
    print(json.dumps({"first": times[0], "best": min(times), "peak": peak, "base": base, "entities": entities}))


if __name__ == "__main__":
    main()
