"""A user's task: each of 50,000 entities is cast, lines are measured by their points and summed by layer."""

from __future__ import annotations

import json
import os
import subprocess
import sys
import tempfile
from pathlib import Path

from drawing_maker import make_drawing
from report import Table, duration, ratio, verdict

HERE = Path(__file__).resolve().parent
SYSTEM_PYTHON = "/usr/bin/python3"
SIZES = (5_000, 50_000)
SECONDS = 5.0
AIM = 0.43  # 12 ms where ezdxf takes 28


def _run(interpreter: str, script: str, path: Path, environment: dict[str, str]) -> tuple[float, dict[str, float]]:
    command = [interpreter, str(HERE / script), str(path), str(SECONDS)]
    done = subprocess.run(command, env=environment, check=True, capture_output=True, text=True)
    told = json.loads(done.stdout.splitlines()[-1])
    return told["best"], told["lengths"]


def run(modules: Path) -> None:
    """Prints the table; both programs have to come to the same lengths."""
    table = Table("Entities walked, cast, measured and summed by layer", ("", "ours", "ezdxf", "of ezdxf", "aim"))
    with tempfile.TemporaryDirectory() as folder:
        for size in SIZES:
            path = Path(folder, f"{size}.dxf")
            make_drawing(path, size)
            ours, our_lengths = _run(sys.executable, "walk_ours.py", path, dict(os.environ))
            bare = {key: value for key, value in os.environ.items() if not key.startswith("PYTHON")}
            theirs, their_lengths = _run(SYSTEM_PYTHON, "walk_reference.py", path, bare)
            if our_lengths != their_lengths:
                raise AssertionError(f"the lengths differ: {our_lengths} and {their_lengths}")
            aim = verdict(ours, theirs, AIM) if size == SIZES[-1] else ""
            table.add(f"{size:,} entities", duration(ours), duration(theirs), ratio(ours, theirs), aim)
    table.print()
