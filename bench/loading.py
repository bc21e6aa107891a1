"""How long a drawing takes to load and what memory it needs, beside a reader written in Python."""

from __future__ import annotations

import json
import os
import subprocess
import sys
import tempfile
from dataclasses import dataclass
from pathlib import Path

from drawing_maker import make_drawing
from report import Table, duration, ratio

HERE = Path(__file__).resolve().parent
SAMPLE = HERE.parent.parent / "shared" / "drawings" / "dxf" / "ezdxf__uncommon.dxf"
SYSTEM_PYTHON = "/usr/bin/python3"
SIZES = (10_000, 50_000, 200_000)
COMPARED_SIZE = 50_000
FASTER_AIM = 20.0
MEMORY_AIM = 0.5
# Long enough for the runtime to compile its last version of the reader.
SECONDS = 2.0


@dataclass(frozen=True)
class Load:
    """What one reader needed for one file; memory in KiB."""

    first: float
    best: float
    peak: int
    base: int
    entities: int


def _run(interpreter: str, script: str, path: Path, environment: dict[str, str]) -> Load:
    command = [interpreter, str(HERE / script), str(path), str(SECONDS)]
    result = subprocess.run(command, env=environment, check=True, capture_output=True, text=True)
    return Load(**json.loads(result.stdout.splitlines()[-1]))


def _ours(path: Path) -> Load:
    environment = {key: value for key, value in os.environ.items() if key != "PYTHONDONTWRITEBYTECODE"}
    return _run(sys.executable, "load_ours.py", path, environment)


def _reference(path: Path) -> Load:
    # Another Python: nothing of ours may reach it.
    environment = {key: value for key, value in os.environ.items() if not key.startswith("PYTHON")}
    return _run(SYSTEM_PYTHON, "load_reference.py", path, environment)


def _mib(kib: int) -> str:
    return f"{kib / 1024:.0f} MiB"


def _compare(files: dict[str, Path]) -> None:
    table = Table("Loading, beside ezdxf under the system's Python",
                  ("", "entities", "time", "first load", "peak memory", "above start", "faster", "memory"))
    notes: list[str] = []
    for name, path in files.items():
        ours, theirs = _ours(path), _reference(path)
        faster, memory = theirs.best / ours.best, ours.peak / theirs.peak
        table.add(f"{name}, korvan.cad", str(ours.entities), duration(ours.best), duration(ours.first),
                  _mib(ours.peak), _mib(ours.peak - ours.base), f"{faster:.1f} x", ratio(ours.peak, theirs.peak))
        table.add(f"{name}, ezdxf", str(theirs.entities), duration(theirs.best), duration(theirs.first),
                  _mib(theirs.peak), _mib(theirs.peak - theirs.base), "", "")
        notes.append(f"{name}: {FASTER_AIM:g} x faster {'held' if faster >= FASTER_AIM else 'MISSED'}, "
                     f"{MEMORY_AIM:g} x memory {'held' if memory <= MEMORY_AIM else 'MISSED'}")
    table.print()
    for note in notes:
        print(f"  aim, {note}")


def _growth(drawings: dict[int, Path]) -> None:
    table = Table("Loading grows with size", ("entities", "time", "per entity", "of the smallest", "peak memory"))
    per_entity: list[float] = []
    for size, path in drawings.items():
        load = _ours(path)
        per_entity.append(load.best / size)
        table.add(str(size), duration(load.best), duration(per_entity[-1]), ratio(per_entity[-1], per_entity[0]),
                  _mib(load.peak))
    table.print()


def run(_modules: Path) -> None:
    """Prints the tables; the sample is left out where it does not lie beside the checkout."""
    with tempfile.TemporaryDirectory(prefix="korvan-bench-") as folder:
        drawings = {size: Path(folder) / f"made_{size}.dxf" for size in SIZES}
        for size, path in drawings.items():
            make_drawing(path, size)
        files = {f"{COMPARED_SIZE} made": drawings[COMPARED_SIZE]}
        if SAMPLE.exists():
            files[SAMPLE.name] = SAMPLE
        else:
            print(f"\n{SAMPLE} is not there: left out")
        _compare(files)
        _growth(drawings)
