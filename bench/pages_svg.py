"""How long drawings of growing size take to be saved as SVG, with text as text and as glyph outlines."""

from __future__ import annotations

import json
import math
import subprocess
import sys
import tempfile
from pathlib import Path

from drawing_maker import make_drawing
from report import Table, duration, ratio, verdict

HERE = Path(__file__).resolve().parent
SIZES = (12_500, 50_000, 200_000, 500_000)
FORMS = ("text", "shapes")
# A renderer written in Python takes about 100 us for an entity; ours has to be 20 times as fast.
PER_ENTITY_AIM = 5e-6
DOUBLING_AIM = 2.1
FIRST_AIM = 1.3


def _save(drawing: Path, target: Path, form: str) -> dict[str, float]:
    command = [sys.executable, str(HERE / "save_svg.py"), str(drawing), str(target), form]
    result = subprocess.run(command, check=True, capture_output=True, text=True)
    return json.loads(result.stdout.splitlines()[-1])


def _mib(kib: float) -> str:
    return f"{kib / 1024:.0f} MiB"


def run(_modules: Path) -> None:
    """Prints a table for each form."""
    with tempfile.TemporaryDirectory(prefix="korvan-bench-") as folder:
        drawings = {size: Path(folder) / f"made_{size}.dxf" for size in SIZES}
        for size, path in drawings.items():
            make_drawing(path, size)
        for form in FORMS:
            table = Table(f"Saving as SVG, {form}", ("entities", "load", "first save", "of the second", "save",
                                                     "per entity", "a doubling", "file", "above loading"))
            before: tuple[int, float] | None = None
            notes: list[str] = []
            for size, path in drawings.items():
                found = _save(path, Path(folder) / "page.svg", form)
                growth = (found["best"] / before[1]) ** (1 / math.log2(size / before[0])) if before else 2.0
                table.add(str(size), duration(found["load"]), duration(found["first"]),
                          ratio(found["first"], found["second"]), duration(found["best"]),
                          duration(found["best"] / size), f"{growth:.2f} x" if before else "",
                          _mib(found["bytes"] / 1024), _mib(found["peak"] - found["loaded"]))
                notes.append(f"{size}: {PER_ENTITY_AIM * 1e6:g} us an entity "
                             f"{'held' if found['best'] <= PER_ENTITY_AIM * size else 'MISSED'}, "
                             f"{DOUBLING_AIM:g} x a doubling {'held' if growth <= DOUBLING_AIM else 'MISSED'}, "
                             f"first save {verdict(found['first'], found['second'], FIRST_AIM)}")
                before = (size, found["best"])
            table.print()
            for note in notes:
                print(f"  aim, {note}")
