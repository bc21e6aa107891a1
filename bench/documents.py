"""How long a drawing takes to be loaded and written as PDF, how that grows, and what it needs of memory."""

from __future__ import annotations

import json
import os
import subprocess
import sys
import tempfile
from dataclasses import dataclass
from pathlib import Path

from drawing_maker import BLOCK_HEAVY, HATCH_HEAVY, MAKERS, TEXT_HEAVY, Maker, make_drawing
from report import Table, duration, ratio

HERE = Path(__file__).resolve().parent
SHARED = HERE.parent.parent / "shared" / "drawings" / "dxf"
SYSTEM_PYTHON = "/usr/bin/python3"
LARGEST = 10
REFERENCE_SIDE = 1600
REFERENCE_SECONDS = 300
SIZES = (12_500, 25_000, 50_000, 100_000, 500_000)
KINDS: tuple[tuple[str, int, tuple[Maker, ...]], ...] = (
    ("lines, arcs and texts", 100_000, MAKERS),
    ("a third texts", 200_000, TEXT_HEAVY),
    ("half hatches", 20_000, HATCH_HEAVY),
    ("references of a block of 12", 40_000, BLOCK_HEAVY),
)
COLUMNS = ("entities", "load", "save", "both", "of the last, a doubling", "first save of the second",
           "peak memory", "PDF")
GROWTH_AIM = 2.1
FIRST_AIM = 1.3
SECONDS_AIM = 3.0
MEMORY_AIM = 400 * 1024


@dataclass(frozen=True)
class Save:
    """Processor time and memory in KiB of one load and two saves; bytes of the document."""

    load: float
    first: float
    second: float
    peak: int
    size: int

    @property
    def both(self) -> float:
        """The time of the load and of the first save."""
        return self.load + self.first


def _save(folder: Path, count: int, makers: tuple[Maker, ...]) -> Save:
    drawing = folder / "made.dxf"
    make_drawing(drawing, count, makers)
    return _save_drawing(drawing, folder)


def _save_drawing(drawing: Path, folder: Path) -> Save:
    command = [sys.executable, str(HERE / "save_ours.py"), str(drawing), str(folder / "made.pdf")]
    result = subprocess.run(command, check=True, capture_output=True, text=True)
    return Save(**json.loads(result.stdout.splitlines()[-1]))


def _reference(drawing: Path) -> float | None:
    """Processor time of the drawing add-on of ezdxf for loading and drawing; none without a checkout of it."""
    checkout = os.environ.get("EZDXF")
    if not checkout:
        return None
    # Another Python: nothing of ours may reach it.
    environment = {key: value for key, value in os.environ.items() if not key.startswith("PYTHON")}
    command = [SYSTEM_PYTHON, str(HERE / "fidelity" / "draw_reference.py"), str(REFERENCE_SIDE), str(drawing)]
    try:
        result = subprocess.run(command, env=environment | {"PYTHONPATH": f"{checkout}/src"}, capture_output=True,
                                text=True, timeout=REFERENCE_SECONDS)
    except subprocess.TimeoutExpired:
        return None
    return sum(json.loads(result.stdout.splitlines()[-1]).values()) if result.returncode == 0 else None


def _real_drawings(folder: Path) -> None:
    drawings = sorted(SHARED.glob("*.dxf"), key=lambda path: path.stat().st_size, reverse=True)[:LARGEST]
    if not drawings:
        print(f"\n{SHARED} is not there: no real drawings are measured")
        return
    if not os.environ.get("EZDXF"):
        print("\nEZDXF names no checkout of ezdxf: real drawings are measured without it")
    table = Table("The largest real drawings to PDF, processor time, beside the drawing add-on of ezdxf (to SVG)",
                  ("", *COLUMNS[1:4], "first save of the second", "peak memory", "PDF", "add-on", "faster"))
    for drawing in drawings:
        save, theirs = _save_drawing(drawing, folder), _reference(drawing)
        table.add(f"{drawing.name}, {drawing.stat().st_size / 1e6:.1f} MB", duration(save.load), duration(save.first),
                  duration(save.both), ratio(save.first, save.second), f"{save.peak / 1024:.0f} MiB",
                  f"{save.size / 1e6:.2f} MB", duration(theirs) if theirs else "",
                  f"{theirs / save.both:.1f} x" if theirs else "")
    table.print()


def _row(table: Table, name: str, save: Save, growth: str) -> None:
    table.add(name, duration(save.load), duration(save.first), duration(save.both), growth,
              ratio(save.first, save.second), f"{save.peak / 1024:.0f} MiB", f"{save.size / 1e6:.1f} MB")


def _growth(folder: Path) -> None:
    table = Table("Drawings to PDF, processor time", COLUMNS)
    before: tuple[int, float] | None = None
    worst = 0.0
    for count in SIZES:
        save = _save(folder, count, MAKERS)
        growth = ""
        if before is not None:
            per_doubling = (save.both / before[1]) * 2 * before[0] / count
            worst = max(worst, per_doubling)
            growth = f"{per_doubling:.2f} x"
        _row(table, str(count), save, growth)
        before = (count, save.both)
    table.print()
    for name, held in (
        (f"growth of {GROWTH_AIM} x a doubling", worst <= GROWTH_AIM),
        (f"{SECONDS_AIM:g} s for {SIZES[-1]} entities", save.both <= SECONDS_AIM),
        (f"{MEMORY_AIM >> 10} MiB for them", save.peak <= MEMORY_AIM),
        (f"first save within {FIRST_AIM} x of the second", save.first <= FIRST_AIM * save.second),
    ):
        print(f"  aim, {name}: {'held' if held else 'MISSED'}")


def run(_modules: Path) -> None:
    """Prints the tables."""
    with tempfile.TemporaryDirectory(prefix="korvan-bench-") as name:
        folder = Path(name)
        _growth(folder)
        table = Table("Kinds of drawings to PDF, processor time", COLUMNS)
        for label, count, makers in KINDS:
            _row(table, f"{count}, {label}", _save(folder, count, makers), "")
        table.print()
        _real_drawings(folder)
