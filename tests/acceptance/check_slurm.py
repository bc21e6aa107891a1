"""A batch on a Slurm cluster of one node that the check starts: the main process and a task are killed on the way."""

from __future__ import annotations

import contextlib
import json
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path
from typing import Any

from cluster import Cluster, wait_for
from prerequisites import ROOT, require

PYTHON = ROOT / "build" / "python"
DRAWINGS = ROOT / "examples" / "drawings"
FILES = 240
SHARDS = 12


def expect(condition: object, what: str) -> None:
    if not condition:
        raise AssertionError(what)


def make_drawings(folder: Path) -> None:
    sources = sorted(DRAWINGS.glob("*.dxf"))
    for number in range(FILES):
        source = sources[number % len(sources)]
        target = folder / f"{number // 20:02d}" / f"{number:03d}.dxf"
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(b"999\n%d\n" % number + source.read_bytes())


def find_task(out: Path) -> int | None:
    """A process of a task that works on a shard of the folder."""
    for entry in Path("/proc").iterdir():
        if entry.name.isdigit():
            try:
                words = (entry / "cmdline").read_bytes().split(b"\0")
            except OSError:
                continue
            if b"--shard" in words and os.fsencode(out) in words:
                return int(entry.name)
    return None


class Check:
    def __init__(self, cluster: Cluster, root: Path) -> None:
        self.cluster = cluster
        self.source = root / "drawings"
        self.out = root / "results"

    def start(self) -> subprocess.Popen[str]:
        command = [str(PYTHON), "-m", "korvan", "batch", str(self.source), "-o", str(self.out), "--to", "pdf", "--json",
                   "--engine", "slurm", "--shard-size", str(FILES // SHARDS)]
        return subprocess.Popen(command, env=self.cluster.environment, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                                text=True)

    def finish(self, process: subprocess.Popen[str]) -> tuple[dict[str, Any], str]:
        output, errors = process.communicate(timeout=300)
        print(errors.strip(), flush=True)
        return (json.loads(output) if output else {}), errors

    def results(self) -> set[str]:
        return {str(path.relative_to(self.out)) for path in self.out.rglob("*.pdf")}

    def kill_task(self) -> None:
        """Kills a task that outlives the main process; one may end and another begin meanwhile."""
        killed = False
        while not killed:
            wait_for(lambda: find_task(self.out), "a task that outlives the main process")
            if task := find_task(self.out):
                with contextlib.suppress(ProcessLookupError):
                    os.kill(task, signal.SIGKILL)
                    killed = True

    def check_kills(self) -> None:
        process = self.start()
        wait_for(lambda: find_task(self.out), "the first task")
        wait_for(self.results, "the first result")
        process.kill()
        process.communicate()
        self.kill_task()
        for path in self.out.rglob("*.pdf"):
            expect(path.read_bytes()[-6:].strip() == b"%%EOF", f"{path} is half-written")
        summary, errors = self.finish(self.start())
        expect("of an earlier run is in the queue" in errors, "the job that was left was not found")
        expect("submitted again" in errors, "the shard whose task was killed was not submitted again")
        expect((summary.get("done"), summary.get("files")) == (FILES, FILES), f"not all files are done: {summary}")
        expected = {str(path.relative_to(self.source).with_suffix(".pdf")) for path in self.source.rglob("*.dxf")}
        expect(self.results() == expected, "the results are not those of the sources")

    def check_that_nothing_is_left(self) -> None:
        start = time.monotonic()
        summary, errors = self.finish(self.start())
        expect(summary.get("done") == FILES and not errors, f"a second run finds something to do: {errors}")
        print(f"nothing to do: {time.monotonic() - start:.1f} s")

    def check_interruption(self) -> None:
        shutil.rmtree(self.out)
        process = self.start()
        wait_for(lambda: find_task(self.out), "a task")
        process.send_signal(signal.SIGINT)
        _, errors = self.finish(process)
        expect(process.returncode == 130, f"Ctrl-C: {process.returncode}, {errors}")
        done = len(self.results())
        expect(done < FILES, "the batch was over before Ctrl-C reached it")
        wait_for(lambda: not self.cluster.call("squeue", "--noheader") and not find_task(self.out), "the job is gone")
        summary, _ = self.finish(self.start())
        expect(summary.get("done") == FILES, f"after Ctrl-C not all files are done: {summary}")


def main() -> int:
    require("slurmctld", "slurmd", "sbatch", "munged", root=True)
    # Jobs in the background of a shell ignore Ctrl-C, and so would every process that they start.
    signal.signal(signal.SIGINT, signal.default_int_handler)
    with tempfile.TemporaryDirectory(prefix="korvan-slurm-") as folder:
        root = Path(folder)
        root.chmod(0o755)
        (root / "cluster").mkdir()
        with Cluster(root / "cluster") as cluster:
            check = Check(cluster, root)
            make_drawings(check.source)
            try:
                check.check_kills()
                check.check_that_nothing_is_left()
                check.check_interruption()
            except AssertionError as failure:
                for path in sorted(check.out.glob("_batch/slurm/*.log"))[-3:]:
                    print(f"{path.name}: {path.read_text('utf-8', 'replace')[-500:]}")
                print(failure)
                return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
