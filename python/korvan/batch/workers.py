"""The worker processes of this machine: started, watched, ended. A worker takes one file at a time."""

from __future__ import annotations

import json
import os
import selectors
import signal
import socket
import subprocess
import sys
import tempfile
import time
from collections.abc import Iterator
from dataclasses import dataclass
from pathlib import Path
from typing import Any

import korvan
from korvan.batch.errors import BadRecipe, BatchError
from korvan.batch.journal import Work
from korvan.batch.settings import MEBIBYTE, Limits, Recipe
from korvan.batch.stopping import Stop

TICK = 0.1
START = 120.0  # seconds until a worker has to be ready
GRACE = 2.0  # how much later than the library's own deadline a process is ended
STARTS = 3  # failed starts of workers, one after the other, that end the batch
_PACKAGES = str(Path(korvan.__file__).resolve().parents[1])


def command_environment() -> dict[str, str]:
    """What another interpreter needs to find the package that this one has."""
    known = os.environ.get("PYTHONPATH", "")
    return {"PYTHONPATH": known if _PACKAGES in known.split(":") else ":".join(filter(None, (_PACKAGES, known)))}


@dataclass(frozen=True)
class Event:
    """Something that a worker did: it is ready, it answered, or it ended at a piece of work."""

    worker: Worker
    work: Work | None = None
    reply: dict[str, Any] | None = None
    kind: str = ""
    error: str = ""


class Worker:
    """A process. Its output is kept for the case that it ends, and told as the reason."""

    def __init__(self, number: int, recipe: Recipe, threads: int) -> None:
        self.number = number
        self.work: Work | None = None
        self.version = ""
        self.extensions: list[str] = []
        self.files = 0
        self.memory = 0
        """The limit for the present work, in bytes."""
        self._deadline = time.monotonic() + START
        self._killed_for = ("", "")
        self._buffer = b""
        self._output = tempfile.TemporaryFile()
        self._socket, theirs = socket.socketpair()
        with theirs:
            self._process = subprocess.Popen(
                [sys.executable, "-P", "-m", "korvan.batch.worker", str(theirs.fileno()), str(os.getpid())],
                stdin=subprocess.DEVNULL, stdout=self._output, stderr=self._output, pass_fds=[theirs.fileno()],
                cwd="/", process_group=0,  # Ctrl-C in a terminal is for the batch, which ends its workers itself
                env={**os.environ, **command_environment(), "DOTNET_PROCESSOR_COUNT": str(threads)})
        self._tell({"to": recipe.to, "options": dict(recipe.options)})

    def fileno(self) -> int:
        return self._socket.fileno()

    def process(self) -> int:
        return self._process.pid

    def is_ready(self) -> bool:
        return bool(self.version) and self.work is None

    def send(self, work: Work, task: dict[str, Any], seconds: float, memory: int) -> None:
        """Gives the worker a file. If it has ended, that is told by the next event."""
        self.work, self.memory = work, memory
        self.files += 1
        self._deadline = time.monotonic() + seconds * 1.1 + GRACE if seconds else float("inf")
        self._tell(task)

    def receive(self) -> Event | None:
        """What the worker said, once it is whole."""
        try:
            block = self._socket.recv(1 << 20)
        except ConnectionResetError:
            block = b""
        if not block:
            return self._ended()
        self._buffer += block
        if not self._buffer.endswith(b"\n"):
            return None
        message: dict[str, Any] = json.loads(self._buffer)
        self._buffer = b""
        if not self.version:
            if message["wrong"]:
                raise BadRecipe(message["wrong"])
            self.version, self.extensions = message["version"], message["extensions"]
            self._deadline = float("inf")
            return Event(self)
        work, self.work = self.work, None
        self._deadline = float("inf")
        return Event(self, work, message)

    def watch(self) -> None:
        """Ends the process if its file takes too long or too much."""
        if self._killed_for[0]:
            return
        if time.monotonic() > self._deadline:
            self._kill_for("timeout", "takes longer than it may, and did not stop when it was asked to")
        elif self.work and self.memory and (taken := _resident(self._process.pid)) > self.memory:
            self._kill_for("memory", f"takes more than {self.memory // MEBIBYTE} MiB of memory "
                                     f"({taken // MEBIBYTE} MiB when it was ended)")

    def kill(self) -> None:
        self._process.kill()

    def end(self) -> None:
        self.kill()
        self._process.wait()
        self._socket.close()
        self._output.close()

    def _tell(self, message: dict[str, Any]) -> None:
        try:
            self._socket.sendall(json.dumps(message).encode("ascii") + b"\n")
        except (BrokenPipeError, ConnectionResetError):
            pass  # the end of the process is an event of its own

    def _kill_for(self, kind: str, error: str) -> None:
        self._killed_for = kind, error
        self._process.kill()

    def _ended(self) -> Event:
        self._process.kill()  # a closed connection is an end, even if something of the process is left
        status = self._process.wait()
        kind, error = self._killed_for
        work, self.work = self.work, None
        return Event(self, work, None, kind or "crash", error or self._describe(status))

    def _describe(self, status: int) -> str:
        end = f"ended with exit code {status}"
        if status < 0:
            end = f"was ended by {signal.Signals(-status).name}"
        self._output.seek(0)
        lines = self._output.read(1 << 16).decode("utf-8", "replace").split("\n")
        said = next((line.strip() for line in lines if line.strip()), "")
        return f"the process {end}" + (f": {said[:200]}" if said else "")


class Pool:
    """As many workers as there are jobs, and their events."""

    def __init__(self, recipe: Recipe, limits: Limits, jobs: int, stop: Stop) -> None:
        if getattr(sys, "frozen", False):
            raise BatchError("a frozen application has no interpreter that workers could run in")
        self.limits = limits
        self._recipe = recipe
        self.jobs = jobs or len(os.sched_getaffinity(0))
        self.memory = _usable_memory()
        self._stop = stop
        self._workers: list[Worker] = []
        self._failed_starts = 0
        self._next_watch = 0.0
        self._selector = selectors.DefaultSelector()
        self._selector.register(stop, selectors.EVENT_READ)
        self._threads = max(1, len(os.sched_getaffinity(0)) // self.jobs)

    def version(self) -> str:
        """The version of the converter, which the first worker tells.

        :raises BadRecipe: The worker finds the recipe wrong for any file.
        """
        return self._first().version

    def extensions(self) -> list[str]:
        """The file extensions of drawings that the converter reads."""
        return self._first().extensions

    def _first(self) -> Worker:
        """A worker that has told of itself."""
        while True:
            self.fill(1)
            for worker in self._workers:
                if worker.version:
                    return worker
            for event in self.events():
                self.drop(event)

    def fill(self, count: int) -> None:
        """Starts workers until there are as many."""
        taken = {worker.number for worker in self._workers}
        for number in range(min(count, self.jobs)):
            if number not in taken:
                worker = Worker(number, self._recipe, self._threads)
                self._workers.append(worker)
                self._selector.register(worker, selectors.EVENT_READ, worker)

    def ready(self) -> list[Worker]:
        return [worker for worker in self._workers if worker.is_ready()]

    def busy(self) -> list[Worker]:
        return [worker for worker in self._workers if worker.work is not None]

    def memory_for(self, work: Work) -> int:
        """The limit for a file: as it was asked for, or the share of the machine; a file alone gets all."""
        return self.limits.memory or (self.memory if work.alone else self.memory // self.jobs)

    def events(self) -> Iterator[Event]:
        """What happened within a tick.

        :raises Interrupted: A stop was asked for.
        :raises BatchError: Workers do not start.
        """
        found = self._selector.select(TICK)
        self._stop.check()
        for key, _ in found:
            if isinstance(key.data, Worker) and (event := key.data.receive()):
                self._count_start(event)
                yield event
        if (now := time.monotonic()) >= self._next_watch:
            self._next_watch = now + TICK
            for worker in self._workers:
                worker.watch()

    def drop(self, event: Event) -> None:
        """Forgets a worker that ended, or that served long enough; others are started in its place."""
        worker = event.worker
        reply = event.reply or {}
        large = reply.get("resident", 0) > (self.limits.memory or self.memory // self.jobs) // 2
        if event.error or worker.files >= self.limits.recycle or large and worker.files:
            self.remove(worker)

    def remove(self, worker: Worker) -> None:
        self._selector.unregister(worker)
        self._workers.remove(worker)
        worker.end()

    def renew(self) -> None:
        """Leaves one new worker: what it does is not due to files before."""
        for worker in list(self._workers):
            if worker.files or worker.number:
                self.remove(worker)
        self.fill(1)

    def end_busy(self) -> None:
        for worker in self.busy():
            self.remove(worker)

    def close(self) -> None:
        for worker in self._workers:
            worker.kill()  # all at once: to give much memory back takes the system a while
        for worker in list(self._workers):
            self.remove(worker)
        self._selector.close()

    def _count_start(self, event: Event) -> None:
        self._failed_starts = self._failed_starts + 1 if event.error and not event.worker.version else 0
        if self._failed_starts >= STARTS:
            raise BatchError(f"workers do not start: {event.error}")

    def __enter__(self) -> Pool:
        return self

    def __exit__(self, *exception: object) -> None:
        self.close()


def _resident(process: int) -> int:
    try:
        with open(f"/proc/{process}/statm", encoding="ascii") as file:
            return int(file.read().split()[1]) * os.sysconf("SC_PAGE_SIZE")
    except (OSError, IndexError):
        return 0


def _read_number(path: str) -> int:
    try:
        with open(path, encoding="ascii") as file:
            return int(file.read())
    except (OSError, ValueError):
        return 0


def _usable_memory() -> int:
    """What the workers may take together: nine tenths of what is free, or of what the control group allows."""
    free = os.sysconf("SC_AVPHYS_PAGES") * os.sysconf("SC_PAGE_SIZE")
    try:
        with open("/proc/meminfo", encoding="ascii") as file:
            free = next((int(line.split()[1]) * 1024 for line in file if line.startswith("MemAvailable:")), free)
        with open("/proc/self/cgroup", encoding="ascii") as file:
            group = next((line.split("::", 1)[1].strip() for line in file if line.startswith("0::")), "/")
    except OSError:
        group = "/"
    allowed = _read_number(f"/sys/fs/cgroup{group}/memory.max") or free
    return min(free, allowed) * 9 // 10
