"""What a building model costs: loading, all instances of a class, one by its global identifier, who refers to it."""

from __future__ import annotations

import json
import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path

from report import Table, duration, ratio

HERE = Path(__file__).resolve().parent
SHARED = HERE.parent.parent / "shared" / "drawings" / "ifc"
EXAMPLE = HERE.parent / "examples" / "drawings" / "garden_house.ifc"
MADE_BYTES = 100_000_000
SPEED_AIM = 60.0  # MB a second and core
MEMORY_AIM = 4.0  # times the size of the file


def make_model(source: Path, target: Path, size: int) -> None:
    """Repeats the records of a model, with numbers and global identifiers of their own, up to a size."""
    text = source.read_text(encoding="latin-1")
    head, body = text.split("DATA;", 1)
    body, tail = body.split("ENDSEC;", 1)
    largest = max(map(int, re.findall(r"^#(\d+)", body, re.MULTILINE)))
    parts = re.split(r"#(\d+)", body)
    numbers = [int(number) for number in parts[1::2]]
    with target.open("w", encoding="latin-1", newline="") as file:
        file.write(head + "DATA;")
        for copy in range(-(-size // len(body))):
            parts[1::2] = [f"#{number + copy * largest}" for number in numbers]
            repeated = "".join(parts)
            # The last places of an identifier tell copies apart.
            file.write(re.sub(r"(\('[0-9A-Za-z_$]{17})[0-9A-Za-z_$]{5}'", rf"\g<1>{copy:05d}'", repeated)
                       if copy else repeated)
        file.write("ENDSEC;" + tail)


def _ours(path: Path) -> dict[str, float]:
    environment = {key: value for key, value in os.environ.items() if key != "PYTHONDONTWRITEBYTECODE"}
    command = [sys.executable, str(HERE / "load_model.py"), str(path)]
    result = subprocess.run(command, env=environment, check=True, capture_output=True, text=True)
    return json.loads(result.stdout.splitlines()[-1])


def _loading(files: dict[str, Path]) -> dict[str, dict[str, float]]:
    table = Table("Loading a model", ("", "size", "time", "a core", "regex scan", "faster", "peak memory", "of size"))
    notes: list[str] = []
    all_figures: dict[str, dict[str, float]] = {}
    for name, path in files.items():
        figures = all_figures[name] = _ours(path)
        size = path.stat().st_size
        speed = size / figures["cpu"] / 1e6
        memory = (figures["peak"] - figures["base"]) * 1024 / size
        table.add(name, f"{size / 1e6:.1f} MB", duration(figures["load"]), f"{speed:.0f} MB/s",
                  duration(figures["scan"]), ratio(figures["scan"], figures["load"]),
                  f"{figures['peak'] / 1024:.0f} MiB", f"{memory:.1f} x")
        if size >= MADE_BYTES:
            notes.append(f"{name}: {SPEED_AIM:g} MB/s a core {'held' if speed >= SPEED_AIM else 'MISSED'}, "
                         f"{MEMORY_AIM:g} x its size {'held' if memory <= MEMORY_AIM else 'MISSED'}")
    table.print()
    for note in notes:
        print(f"  aim, {note}")
    return all_figures


def _finding(all_figures: dict[str, dict[str, float]]) -> None:
    table = Table("Finding in a model, beside a regex scan of its bytes",
                  ("", "first", "later", "of a scan", "found"))
    for name, figures in all_figures.items():
        for what, label in (("walls", "all walls"), ("global_id", "one by global id"), ("inverse", "who refers to it")):
            first, later = figures[f"{what}_first"], figures[f"{what}_later"]
            table.add(f"{name}, {label}", duration(first), duration(later), f"{later / figures['scan']:.1g} x",
                      f"{figures[f'{what}_found']:.0f}")
    table.print()


def run(_modules: Path) -> None:
    """Prints the tables; real models are left out where they do not lie beside the checkout."""
    largest = max(SHARED.glob("*.ifc"), key=lambda path: path.stat().st_size, default=None)
    if largest is None:
        print(f"\n{SHARED} is not there: the example stands for a real model")
    source = largest or EXAMPLE
    with tempfile.TemporaryDirectory(prefix="korvan-bench-") as folder:
        made = Path(folder) / "made.ifc"
        make_model(source, made, MADE_BYTES)
        figures = _loading({source.name: source, "made of it": made})
        _finding(figures)
