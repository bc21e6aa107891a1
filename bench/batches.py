"""How many drawings a batch converts in a second on one core and on two, and what a file costs.

A core more has to bring 1.9 times the throughput. Both are measured in turns; the best of each counts. The start of
the second worker, which takes as long as some hundred of these small drawings, shows in the smaller batch.
"""

from __future__ import annotations

import json
import os
import subprocess
import sys
import tempfile
from dataclasses import dataclass
from pathlib import Path

from report import Table, duration

DRAWINGS = Path(__file__).resolve().parents[1] / "examples" / "drawings"
SIZES = {1_000: 3, 10_000: 1}  # drawings, and how often
AIM = 1.9
MEBIBYTE = 1 << 20
PROGRAM = """
import json, os, resource, sys
from korvan.commands import main
os.sched_setaffinity(0, json.loads(sys.argv[1]))
code = main(["batch", *sys.argv[2:], "--json"])
own, all_workers = (resource.getrusage(who) for who in (resource.RUSAGE_SELF, resource.RUSAGE_CHILDREN))
print(json.dumps({"code": code, "own": own.ru_utime + own.ru_stime, "peak": own.ru_maxrss * 1024,
                  "workers": all_workers.ru_utime + all_workers.ru_stime, "worker_peak": all_workers.ru_maxrss * 1024}))
"""


@dataclass(frozen=True)
class Run:
    """One batch: its time, and processor time and memory of the main process and of the workers."""

    seconds: float
    own: float
    workers: float
    peak: int
    worker_peak: int


def make_folder(folder: Path, count: int) -> None:
    """Drawings that differ, in folders of a hundred."""
    sources = sorted([*DRAWINGS.glob("*.dxf"), *DRAWINGS.glob("*.cgm")])
    for number in range(count):
        source = sources[number % len(sources)]
        target = folder / f"{number // 100:03d}" / f"{number:05d}{source.suffix}"
        target.parent.mkdir(parents=True, exist_ok=True)
        mark = b"999\n%d\n" % number if source.suffix == ".dxf" else b""
        target.write_bytes(mark + source.read_bytes())


def convert(source: Path, out: Path, cores: list[int], *options: str) -> Run:
    """Converts the drawings of a folder by the processors that are named."""
    command = [sys.executable, "-c", PROGRAM, json.dumps(cores), str(source), "-o", str(out), "--to", "pdf", *options]
    lines = subprocess.run(command, check=True, capture_output=True, text=True).stdout.splitlines()
    summary, used = map(json.loads, lines[-2:])
    if not summary["success"]:
        raise RuntimeError(f"the batch failed: {summary}")
    return Run(summary["seconds"], used["own"], used["workers"], used["peak"], used["worker_peak"])


def run(_modules: Path) -> None:
    """Prints the tables."""
    # All results stay to the end: ext4 looks for inodes that were not freed in the last minutes, so that files are
    # made several times slower after many were deleted.
    with tempfile.TemporaryDirectory() as folder:
        for files, rounds in SIZES.items():
            (Path(folder) / str(files)).mkdir()
            _measure(Path(folder) / str(files), files, rounds)


def _measure(folder: Path, files: int, rounds: int) -> None:
    cores = sorted(os.sched_getaffinity(0))
    table = Table(f"{files} drawings to PDF by korvan batch",
                  ("by", "time", "files/s", "processor a file", "of it the main process", "main process", "a worker"))
    source = folder / "source"
    make_folder(source, files)
    for name, options in (("with thumbnails", ()), ("without", ("--no-thumbnails",))):
        best: dict[int, Run] = {}
        for number in range(rounds):
            for count in (1, 2):
                found = convert(source, folder / f"{name} {count} {number}", cores[:count], *options)
                best[count] = min(found, best.get(count, found), key=lambda run: run.seconds)
        for count, one in best.items():
            table.add(f"{count} of {len(cores)} cores, {name}", duration(one.seconds),
                      f"{files / one.seconds:.0f}", duration((one.own + one.workers) / files),
                      duration(one.own / files), f"{one.peak / MEBIBYTE:.0f} MiB",
                      f"{one.worker_peak / MEBIBYTE:.0f} MiB")
        gain = best[1].seconds / best[2].seconds
        table.add(f"two cores for one, {name}", f"{gain:.2f} x", f"aim {AIM:g} x: "
                  + ("held" if gain >= AIM else "MISSED"), "", "", "", "")
    table.print()
