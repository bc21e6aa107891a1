"""Loads a model through korvan.cad, searches it, and prints times and memory as one line of JSON."""

from __future__ import annotations

import json
import re
import sys
import time
from collections.abc import Callable
from pathlib import Path

import korvan.cad
from korvan.cad.fileformats.ifc import IfcImage
from load_ours import peak_kib

LOADS = 5
SEARCHES = 64
RECORD = re.compile(rb"#(\d+)\s*=\s*(\w+)\s*\(")


def load(path: str) -> IfcImage:
    return IfcImage._cast_to(korvan.cad.Image.load(path)).value


def timed(call: Callable[[], object]) -> tuple[float, float, object]:
    """Elapsed seconds, seconds of all cores together, and the result."""
    start, cpu = time.perf_counter(), time.process_time()
    result = call()
    return time.perf_counter() - start, time.process_time() - cpu, result


def search(name: str, call: Callable[[], int]) -> dict[str, float]:
    """The first of some searches, and the best of the later ones."""
    first, _, found = timed(call)
    later = min(timed(call)[0] for _ in range(SEARCHES))
    return {f"{name}_first": first, f"{name}_later": later, f"{name}_found": found}


def main() -> None:
    path = sys.argv[1]
    base = peak_kib()
    model = load(path)
    peak = peak_kib()
    walls = model.get_entities_of_type("IfcWall")
    wall = walls[len(walls) - 1]
    figures = {"base": base, "peak": peak}
    del walls
    figures |= search("walls", lambda: sum(1 for _ in model.get_entities_of_type("IfcWall")))
    figures |= search("global_id", lambda: model.get_entity_by_global_id(wall.global_id) is not None)
    figures |= search("inverse", lambda: len(wall.is_defined_by))
    del model, wall
    loads = [timed(lambda: load(path))[:2] for _ in range(LOADS)]
    figures["load"], figures["cpu"] = map(min, zip(*loads))
    figures["scan"] = min(timed(lambda: len(RECORD.findall(Path(path).read_bytes())))[0] for _ in range(3))
    print(json.dumps(figures))


if __name__ == "__main__":
    main()
