"""Mutated files for all readers and writers: nothing may crash, hang, raise without a name, or take too much.

Starts from small drawings of each kind of entity and from files of every format that is read. A mutant that leads to a
message that was not met before joins the corpus, so that the next ones begin behind it. What fails is kept with its
reason; its smallest form belongs into the tests.
"""

from __future__ import annotations

import argparse
import json
import os
import shutil
import subprocess
import sys
import time
from collections import Counter
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
WORKER = Path(__file__).with_name("fuzz_worker.py")
HANG = 40.0  # seconds of the processor for one mutant
LAST = 1 << 40


class Worker:
    """A process that runs the rounds of a seed, with what it has printed."""

    def __init__(self, folder: Path, seed: int, first: int, last: int, kinds: str) -> None:
        self.folder, self.seed, self.last, self.kinds = folder, seed, last, kinds
        self.state = folder / f"state{seed}"
        self.state.write_bytes(first.to_bytes(8, "little"))
        self.log = folder / f"log{seed}"
        self.start(first)

    def start(self, first: int) -> None:
        self.read, self.log_file = 0, self.log.open("wb")
        self.watched = (first, 0.0)
        self.process = subprocess.Popen(
            [sys.executable, str(WORKER), str(self.folder), str(self.seed), str(first), str(self.last), self.kinds],
            stdout=self.log_file,
        )

    @property
    def round(self) -> int:
        return int.from_bytes(self.state.read_bytes(), "little")

    def replies(self) -> list[dict]:
        with self.log.open("rb") as log:
            log.seek(self.read)
            whole = log.read().rpartition(b"\n")[0]
        self.read += len(whole) + 1 if whole else 0
        return [json.loads(line) for line in whole.splitlines()]

    def is_hanging(self) -> bool:
        fields = Path(f"/proc/{self.process.pid}/stat").read_text(encoding="ascii").rpartition(") ")[2].split()
        used = (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")
        if self.round != self.watched[0]:
            self.watched = (self.round, used)
        return used - self.watched[1] > HANG

    def fail(self, reason: str) -> str:
        """Keeps the mutant at which the process ended or hangs, and goes on behind it."""
        self.process.kill()
        self.process.wait()
        number = self.round
        mutant = max(self.folder.glob(f"mutant{self.seed}.*"), key=lambda path: path.stat().st_mtime, default=None)
        name = f"{reason}-{self.seed}-{number}{mutant.suffix if mutant else ''}"
        if mutant:
            shutil.copy(mutant, self.folder / "finds" / name)
        self.start(number + 1)
        return name


def prepare(folder: Path, more: Path | None) -> None:
    for name in ("corpus", "finds"):
        (folder / name).mkdir(parents=True, exist_ok=True)
    seeds = folder / "seeds"
    if not seeds.exists():
        made = folder / "seeds.part"
        made.mkdir(exist_ok=True)
        subprocess.run([sys.executable, str(WORKER), "--seeds", str(made), *([str(more)] if more else [])], check=True)
        made.rename(seeds)


class Totals:
    """What all workers have reported."""

    def __init__(self) -> None:
        self.counts: Counter[str] = Counter()
        self.places = self.finds = 0

    def take(self, reply: dict) -> None:
        if "find" in reply:
            self.finds += 1
            print(f"{reply['find']}:", json.dumps(reply["error"])[:400], flush=True)
            return
        self.counts.update(reply["counts"])
        self.places = max(self.places, reply["places"])

    def __str__(self) -> str:
        by_kind = ", ".join(f"{kind[1:]} {count}" for kind, count in sorted(self.counts.items()))
        return f"{self.counts.total()} mutants ({by_kind}), {self.places} places of errors, {self.finds} finds"


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--minutes", type=float, default=5)
    parser.add_argument("--rounds", type=int, default=LAST, help="of each worker")
    parser.add_argument("--workers", type=int, default=1, help="processes, each with the next seed")
    parser.add_argument("--kinds", default="", help="file extensions to mutate, separated by commas")
    parser.add_argument("--more", type=Path, help="folder with further drawings, whose entities become seeds")
    parser.add_argument("--first", type=int, default=0, help="the first round")
    parser.add_argument("--folder", type=Path, default=ROOT / "build" / "fuzz")
    arguments = parser.parse_args()
    folder, totals, first = arguments.folder, Totals(), arguments.first
    prepare(folder, arguments.more)
    workers = [Worker(folder, seed, first, first + arguments.rounds, arguments.kinds)
               for seed in range(arguments.seed, arguments.seed + arguments.workers)]
    end, shown = time.monotonic() + 60 * arguments.minutes, 0
    running = list(workers)
    while running and time.monotonic() < end:
        time.sleep(0.2)
        for worker in list(running):
            ended = worker.process.poll()
            for reply in worker.replies():
                totals.take(reply)
            if ended == 0:
                running.remove(worker)
            elif ended is not None or worker.is_hanging():
                totals.take({"find": worker.fail("hang" if ended is None else "ended"), "error": ended})
        if totals.counts.total() >= shown + 10_000:
            shown = totals.counts.total()
            print(totals, flush=True)
    for worker in workers:
        worker.process.kill()
        worker.process.wait()
    print(totals, flush=True)
    return 1 if totals.finds else 0


if __name__ == "__main__":
    sys.exit(main())
