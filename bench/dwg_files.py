"""How long drawing databases take to load, beside a native reader and beside the same drawing as DXF.

The other reader is a program that decodes one file and ends, as `dwgread` does; DWG_READER names it. It runs as a
process, so its figure has the start of a process in it, which is measured with a file of no content and taken off.
"""

from __future__ import annotations

import json
import os
import resource
import subprocess
import sys
import tempfile
import time
from dataclasses import dataclass
from pathlib import Path

from report import Table, duration, ratio

HERE = Path(__file__).resolve().parent
FOLDER = HERE.parent.parent / "shared" / "drawings" / "dwg"
READER = "DWG_READER"
LARGEST = 24
RUNS = 5
FASTER_AIM = 5.0
COLUMNS = ("", "size", "objects", "load", "first load", "MB/s", "objects/s", "of DXF", "other reader", "load to PDF")


@dataclass(frozen=True)
class Load:
    """Seconds of the best and the first load, the objects of the drawing, and the seconds of the same as DXF."""

    best: float
    first: float
    objects: int
    interchange: float


def _measure(path: Path, folder: Path) -> Load:
    command = [sys.executable, str(HERE / "load_dwg.py"), str(path), str(folder / "same.dxf")]
    result = subprocess.run(command, check=True, capture_output=True, text=True)
    return Load(**json.loads(result.stdout.splitlines()[-1]))


def _process(command: list[str]) -> float:
    """The smallest processor time of a process."""
    best = float("inf")
    for _ in range(RUNS):
        # Not os.times: it counts in ticks of 10 ms, longer than most files take.
        before = resource.getrusage(resource.RUSAGE_CHILDREN)
        subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)
        after = resource.getrusage(resource.RUSAGE_CHILDREN)
        best = min(best, after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime)
    return best


def _to_pdf(path: Path, folder: Path) -> float:
    code = ("import sys, korvan.cad; from korvan.cad.imageoptions import PdfOptions; "
            "korvan.cad.Image.load(sys.argv[1]).save(sys.argv[2], PdfOptions())")
    start = time.perf_counter()
    subprocess.run([sys.executable, "-c", code, str(path), str(folder / "page.pdf")], check=True)
    return time.perf_counter() - start


def run(_modules: Path) -> None:
    """Prints the table; the drawings are left out where they do not lie beside the checkout."""
    files = sorted(FOLDER.glob("*.dwg"), key=lambda file: -file.stat().st_size)
    if not files:
        print(f"\n{FOLDER} is not there: left out")
        return
    reader = os.environ.get(READER)
    table = Table("Drawing databases", COLUMNS)
    ratios: list[float] = []
    with tempfile.TemporaryDirectory(prefix="korvan-bench-") as name:
        folder = Path(name)
        nothing = folder / "nothing.dwg"
        nothing.write_bytes(b"AC1015")
        start = _process([reader, str(nothing)]) if reader else 0.0
        for file in files[:LARGEST]:
            load = _measure(file, folder)
            ratios.append(load.interchange / load.best)
            theirs = duration(max(0.0, _process([reader, str(file)]) - start)) if reader else "not given"
            size = file.stat().st_size
            table.add(file.name, f"{size / 1e6:.2f} MB", str(load.objects), duration(load.best), duration(load.first),
                      f"{size / 1e6 / load.best:.0f}", f"{load.objects / load.best:,.0f}",
                      ratio(load.best, load.interchange), theirs, duration(_to_pdf(file, folder)))
    table.print()
    held = sum(1 for one in ratios if one >= FASTER_AIM)
    print(f"  aim, {FASTER_AIM:g} x faster than the same drawing as DXF: held by {held} of {len(ratios)}")
