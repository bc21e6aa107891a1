"""Loads a drawing through ezdxf and prints time and memory as one line of JSON.

Runs under the system's Python, which Debian's package belongs to.
"""

from __future__ import annotations

import json
import sys
import time

import ezdxf


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
        document = ezdxf.readfile(path)
        times.append(time.perf_counter() - start)
        peak = peak or peak_kib()
        entities = len(document.modelspace())
        del document
    print(json.dumps({"first": times[0], "best": min(times), "peak": peak, "base": base, "entities": entities}))


if __name__ == "__main__":
    main()
