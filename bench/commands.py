"""How long commands take from their start to their end: their start, and conversions beside those of ezdxf."""

from __future__ import annotations

import os
import shutil
import subprocess
import sys
import tempfile
import time
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


def _conversions(folder: Path) -> None:
    if shutil.which("ezdxf") is None:
        print("\nezdxf is not installed: conversions are measured without it")
        return
    # Another Python: nothing of ours may reach it.
    environment = {key: value for key, value in os.environ.items() if not key.startswith("PYTHON")}
    drawings = sorted(EXAMPLES.glob("*.dxf")) + [path for name in REAL if (path := SHARED / name).is_file()]
    table = Table("korvan convert beside ezdxf draw, to PDF, the whole command",
                  ("", "korvan", "ezdxf", "faster", "faster by processor time"))
    worst = float("inf")
    total = total_use = 0.0
    for drawing in drawings:
        target = str(folder / "out.pdf")
        passed, used = seconds(korvan("convert", str(drawing), "-o", target, "-f", "-q"))
        try:
            theirs, their_use = seconds(["ezdxf", "draw", "-o", target, str(drawing)], environment, rounds=2)
        except (subprocess.CalledProcessError, subprocess.TimeoutExpired):
            table.add(drawing.name, duration(passed), "failed", "", "")
            continue
        worst = min(worst, their_use / used)
        total, total_use = total + theirs, total_use + their_use
        table.add(drawing.name, duration(passed), duration(theirs), f"{theirs / passed:.1f} x",
                  f"{their_use / used:.1f} x")
    target = str(folder / "all") + "/"
    passed, used = seconds(korvan("convert", *map(str, drawings), "-o", target, "--to", "pdf", "-f", "-q"))
    table.add("all of them by one command", duration(passed), duration(total), f"{total / passed:.1f} x",
              f"{total_use / used:.1f} x")
    table.print()
    held = "held" if worst >= FASTER_AIM else "MISSED"
    print(f"  {FASTER_AIM:g} times as fast as ezdxf draw: {held} ({worst:.1f} x by processor time)")


def run(modules: Path) -> None:
    """Prints the tables."""
    _starts()
    with tempfile.TemporaryDirectory() as folder:
        _conversions(Path(folder))
