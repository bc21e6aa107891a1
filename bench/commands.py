"""How long commands take from their start to their end: their start, and conversions beside those of ezdxf and
LibreCAD."""

from __future__ import annotations

import os
import shutil
import subprocess
import sys
import tempfile
import time
from collections.abc import Callable
from dataclasses import dataclass
from pathlib import Path

from report import Table, duration, ratio

ROOT = Path(__file__).resolve().parent.parent
EXAMPLES = ROOT / "examples" / "drawings"
SHARED = ROOT.parent / "shared" / "drawings" / "dxf"
SYSTEM_PYTHON = "/usr/bin/python3"
REAL = ("lwg__example_2018.dxf", "ezdxf__3_us_main.dxf")
ROUNDS = 5
HELP_AIM = 0.1
START_AIM = 0.25
FASTER_AIM = 10.0
LIMIT = 300


def seconds(command: list[str], environment: dict[str, str] | None = None, rounds: int = ROUNDS) -> tuple[float, float]:
    """The least time that passes, and the least processor time, of a command."""
    passed = used = float("inf")
    for _ in range(rounds):
        before = os.times()
        start = time.perf_counter()
        subprocess.run(command, env=environment, check=True, capture_output=True, timeout=LIMIT)
        passed = min(passed, time.perf_counter() - start)
        after = os.times()
        used = min(used, after.children_user + after.children_system - before.children_user - before.children_system)
    return passed, used


def korvan(*arguments: str) -> list[str]:
    return [sys.executable, "-m", "korvan", *arguments]


def _starts() -> None:
    plan = str(EXAMPLES / "floor_plan.dxf")
    bare, _ = seconds([sys.executable, "-c", "pass"])
    table = Table("Start of commands", ("", "passed", "processor time", "beside the bare interpreter"))
    rows = (("korvan --help", korvan("--help"), HELP_AIM),
            ("korvan convert --help", korvan("convert", "--help"), HELP_AIM),
            ("korvan layers, a drawing", korvan("layers", plan), START_AIM),
            ("korvan convert, a drawing to SVG", korvan("convert", plan, "-o", "/dev/null", "--to", "svg"), None))
    held: list[tuple[str, bool]] = []
    for name, command, aim in rows:
        passed, used = seconds(command)
        table.add(name, duration(passed), duration(used), ratio(passed, bare))
        if aim is not None:
            held.append((f"{name} within {duration(aim)}", used <= aim))
    table.print()
    for name, is_held in held:
        print(f"  {name}: {'held' if is_held else 'MISSED'} (processor time)")


@dataclass(frozen=True)
class Other:
    """A program that draws DXF files to PDF, and its command for a drawing and a file to write."""

    name: str
    command: Callable[[Path, Path], list[str]]

    def seconds(self, drawing: Path, target: Path) -> tuple[float, float] | None:
        """Time and processor time of a drawing; nothing if the program fails at it."""
        # Another Python: nothing of ours may reach it. Qt draws without a display.
        environment = {key: value for key, value in os.environ.items() if not key.startswith("PYTHON")}
        target.unlink(missing_ok=True)
        try:
            found = seconds(self.command(drawing, target), environment | {"QT_QPA_PLATFORM": "offscreen"}, rounds=2)
        except (subprocess.CalledProcessError, subprocess.TimeoutExpired):
            return None
        return found if target.exists() else None


OTHERS = (
    Other("ezdxf", lambda drawing, target: ["ezdxf", "draw", "-o", str(target), str(drawing)]),
    # It names the file after the drawing.
    Other("librecad", lambda drawing, target: ["librecad", "dxf2pdf", "-a", "-t", str(target.parent), str(drawing)]),
)


def _conversions(folder: Path) -> None:
    there = [other for other in OTHERS if shutil.which(other.name) is not None]
    for other in OTHERS:
        if other not in there:
            print(f"\n{other.name} is not installed: conversions are measured without it")
    drawings = sorted(EXAMPLES.glob("*.dxf")) + [path for name in REAL if (path := SHARED / name).is_file()]
    table = Table("korvan convert beside other programs, to PDF, the whole command: time, processor time",
                  ("", "korvan", *(f"{other.name}, faster" for other in there)))
    worst = dict.fromkeys((other.name for other in there), float("inf"))
    for drawing in drawings:
        passed, used = seconds(korvan("convert", str(drawing), "-o", str(folder / "out.pdf"), "-f", "-q"))
        cells = [f"{duration(passed)}, {duration(used)}"]
        for other in there:
            found = other.seconds(drawing, folder / f"{drawing.stem}.pdf")
            if found is None:
                cells.append("failed")
                continue
            worst[other.name] = min(worst[other.name], found[1] / used)
            cells.append(f"{duration(found[0])}, {duration(found[1])}: {found[0] / passed:.1f} x, "
                         f"{found[1] / used:.1f} x")
        table.add(drawing.name, *cells)
    target = str(folder / "all") + "/"
    passed, used = seconds(korvan("convert", *map(str, drawings), "-o", target, "--to", "pdf", "-f", "-q"))
    table.add("all of them by one command", f"{duration(passed)}, {duration(used)}", *("" for _ in there))
    table.print()
    if "ezdxf" in worst:
        held = "held" if worst["ezdxf"] >= FASTER_AIM else "MISSED"
        print(f"  {FASTER_AIM:g} times as fast as ezdxf draw: {held} ({worst['ezdxf']:.1f} x by processor time)")


def run(modules: Path) -> None:
    """Prints the tables."""
    _starts()
    with tempfile.TemporaryDirectory() as folder:
        _conversions(Path(folder))
