"""Tasks of a Slurm cluster: one job array for the shards that are left, found again by its name."""

from __future__ import annotations

import os
import re
import shlex
import subprocess
import time
from collections.abc import Callable, Sequence
from dataclasses import dataclass
from hashlib import blake2b

from korvan.batch.errors import BatchError, Interrupted
from korvan.batch.folder import BatchFolder, replace_file
from korvan.batch.shard import read_summary
from korvan.batch.stopping import Stop
from korvan.batch.watching import Watcher

_LARGEST_ARRAY = 1001  # Slurm's own default
_ENDED = ("invalid job id", "invalid job")


@dataclass(frozen=True)
class SlurmOptions:
    """How tasks are given to Slurm."""

    options: Sequence[str] = ()
    """Options of ``sbatch``, such as ``--partition=long``."""
    tasks: int = 0
    """Tasks that the shards are dealt out to; 0 is one task a shard, as far as the cluster takes so many."""
    jobs: int = 0
    """Processors of one task; 0 is one."""
    poll: float = 10.0
    """Seconds between two looks at the queue, at most; the first ones come sooner."""


class Slurm:
    """The job of a batch. Its name is made of the folder, so that a later run finds it."""

    def __init__(self, folder: BatchFolder, options: SlurmOptions, watcher: Watcher) -> None:
        self._folder = folder
        self._options = options
        self._watcher = watcher
        self._name = "korvan-" + blake2b(os.fsencode(os.path.realpath(folder.out)), digest_size=8).hexdigest()

    def find_job(self) -> str | None:
        """The job of this batch that an earlier run left in the queue."""
        found = self._queue("--name", self._name)
        if not found:
            return None
        job = found[0].partition("_")[0]
        self._watcher.message(f"job {job} of an earlier run is in the queue: waiting for it")
        return job

    def submit(self, shards: Sequence[int], command: Callable[[Sequence[int]], str]) -> str:
        """Submits one array for the shards, and gives the number of the job."""
        count = min(len(shards), self._options.tasks or len(shards), self._largest_array())
        each = -(-len(shards) // count)
        parts = [shards[first : first + each] for first in range(0, len(shards), each)]
        self._folder.slurm.mkdir(exist_ok=True)
        tasks = self._folder.slurm / "tasks"
        replace_file(tasks, "".join(command(part) + "\n" for part in parts).encode("utf-8", "surrogateescape"))
        # The array's own list: the next one may be written while tasks of this one still wait.
        kept = tasks.with_name(f"tasks.{time.time_ns()}")
        os.rename(tasks, kept)
        script = f"#!/bin/sh\neval \"exec $(sed -n \"$((SLURM_ARRAY_TASK_ID + 1))p\" {shlex.quote(str(kept))})\"\n"
        words = ["sbatch", "--parsable", f"--job-name={self._name}", f"--array=0-{len(parts) - 1}", "--requeue",
                 f"--output={self._folder.slurm}/%A_%a.log", f"--cpus-per-task={self._options.jobs or 1}",
                 *self._options.options]
        job = _call(words, script).partition(";")[0].strip()
        self._watcher.message(f"job {job}: {len(parts)} tasks for {len(shards)} shards")
        return job

    def wait(self, job: str, stop: Stop, on_tick: Callable[[], None]) -> None:
        """Waits until no task of the job is in the queue.

        :raises Interrupted: A stop was asked for; the job is cancelled.
        """
        pause = 0.5
        try:
            while self._queue("--jobs", job):
                self._watcher.count(self._count())
                on_tick()
                stop.wait(pause)
                pause = min(self._options.poll, pause * 1.3)
        except Interrupted:
            _call(["scancel", job])
            raise

    def last_line(self) -> str:
        """The last line that a task printed."""
        logs = sorted(self._folder.slurm.glob("*.log"), key=lambda path: path.stat().st_mtime, reverse=True)
        for path in logs[:20]:
            lines = path.read_text("utf-8", "replace").strip().splitlines()
            if lines:
                return lines[-1]
        return f"see {self._folder.slurm}"

    def _count(self) -> int:
        summaries = (read_summary(self._folder, int(path.parent.name))
                     for path in self._folder.shards.glob("*/summary.json"))
        return sum(summary.files - summary.pending for summary in summaries if summary)

    def _queue(self, *selection: str) -> list[str]:
        """Jobs and tasks that wait or run."""
        try:
            text = _call(["squeue", "--noheader", "--format=%i", "--me", *selection])
        except BatchError as failure:
            if any(words in str(failure).lower() for words in _ENDED):  # it ended long ago
                return []
            raise
        return text.split()

    def _largest_array(self) -> int:
        found = re.search(r"^MaxArraySize\s*=\s*(\d+)", _call(["scontrol", "show", "config"]), re.MULTILINE)
        return max(1, int(found[1]) if found else _LARGEST_ARRAY)


def _call(words: Sequence[str], text: str | None = None) -> str:
    """Runs a program of Slurm's."""
    try:
        done = subprocess.run(words, input=text, capture_output=True, text=True, check=False, process_group=0)
    except FileNotFoundError:
        raise BatchError(f"{words[0]} is not installed: the engine slurm needs the programs of Slurm") from None
    if done.returncode:
        raise BatchError(f"{words[0]}: {' '.join(done.stderr.split()) or done.returncode}")
    return done.stdout
