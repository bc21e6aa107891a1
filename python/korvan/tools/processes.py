"""Worker processes: started, watched, ended. A worker works on one task at a time.

Workers are new interpreters, since a runtime with threads does not survive a fork well. What schedules the tasks is in
``korvan.tools.pool`` and in ``korvan.batch``.
"""

from __future__ import annotations

import os
import pickle
import selectors
import signal
import socket
import subprocess
import sys
import tempfile
import threading
import time
from collections.abc import Callable, Iterator, Mapping
from dataclasses import dataclass, field
from itertools import islice
from pathlib import Path
from typing import IO, Any, Literal, Protocol

import korvan
from korvan.tools.errors import ToolError
from korvan.tools.worker import LENGTH, pack

TICK = 0.05
START = 120.0  # seconds until a worker has to be ready
STARTS = 5  # failed starts, one after the other, after which no more are tried
PACKAGES = str(Path(korvan.__file__).resolve().parents[1])
PATIENCE = 2.0  # seconds for idle workers to end by themselves
_PAGE = os.sysconf("SC_PAGE_SIZE")
_RUN = ("import sys; {path!r} in sys.path or sys.path.insert(0, {path!r}); "
        "from korvan.tools.worker import main; main({descriptor}, {parent})")
End = Literal["", "died", "timeout", "memory"]


class StartFailed(ToolError):
    """Workers do not start."""


class HasDescriptor(Protocol):
    """What can be waited for."""

    def fileno(self) -> int: ...


@dataclass(frozen=True)
class Program:
    """What workers are started with."""

    greet: Callable[[], Any]
    """Is called by a worker before its first task; what it returns tells that the worker is ready. Picklable."""
    has_main: bool = False
    """Whether workers import the program of this process, so that functions of it can be tasks."""
    keeps_output: bool = False
    """Whether what a worker prints is kept, and told as the reason when it ends, instead of being shown."""
    ends_with_thread: bool = False
    """Whether workers end with the thread that starts them, and not with its process only."""
    folder: str | None = None
    """The current folder; that of this process by default."""
    environment: Mapping[str, str] = field(default_factory=dict[str, str])
    """Variables beside those of this process."""


@dataclass(frozen=True)
class Event:
    """Something that a worker did: it is ready, it answered, or it ended."""

    worker: Worker
    was_busy: bool = False
    """Whether it worked on a task."""
    task: Any = None
    reply: tuple[bool, Any] | None = None
    """Whether the task succeeded, and the result or the message."""
    end: End = ""
    """How the worker ended, if it did."""
    error: str = ""
    seconds: float = 0.0
    memory: int = 0
    """The most resident memory that the worker was seen with, in bytes; 0 where none was watched."""


class Worker:
    """A process, the socket to it, and the task that it has."""

    def __init__(self, number: int, program: Program) -> None:
        self.number = number
        self.greeting: Any = None
        self.is_started = False
        self.task: Any = None
        self.is_busy = False
        self.count = 0
        """How many tasks it was given."""
        self.limit: int | None = None
        """The resident memory that the present task may take, in bytes."""
        self.memory = 0
        self._has_main = program.has_main
        self._began = time.monotonic()
        self._deadline = self._began + START
        self._late = f"has not started within {START:g} s"
        self._end: tuple[End, str] = ("", "")
        self._buffer = bytearray()
        self._output: IO[bytes] | None = tempfile.TemporaryFile() if program.keeps_output else None
        start = pack((_preparation() if program.has_main else None, pickle.dumps(program.greet)))
        self._socket, theirs = socket.socketpair()
        with theirs:
            self._process = subprocess.Popen(
                _command(theirs.fileno(), program), stdin=subprocess.DEVNULL, stdout=self._output, stderr=self._output,
                pass_fds=[theirs.fileno()], cwd=program.folder, env={**os.environ, **program.environment},
                process_group=0)  # Ctrl-C in a terminal is for this process, which ends its workers itself
        self._tell(start)

    def fileno(self) -> int:
        return self._socket.fileno()

    def process(self) -> int:
        return self._process.pid

    def is_free(self) -> bool:
        """Whether it can be given a task."""
        return self.is_started and not self.is_busy and not self._end[0] and not self.has_ended()

    def send(self, function: Callable[[Any], Any], task: Any, *, call: Any = None,
             seconds: float | None = None, grace: float = 0.0, memory: int | None = None) -> None:
        """Gives the worker a task. If it has ended meanwhile, that is told by the next event.

        :param function: A function of a module; it is called with ``call``, or with the task.
        :param task: What events tell of.
        :param seconds: After how many the worker is killed; None for never.
        :param grace: How much later it is killed, where the task looks at the time itself.
        :param memory: The resident memory in bytes at which it is killed; None for any.
        """
        message = pack((function, task if call is None else call))
        self.task, self.is_busy, self.limit, self.memory = task, True, memory, 0
        self.count += 1
        self._began = time.monotonic()
        if seconds is None:
            self._deadline = float("inf")
        else:
            self._deadline = self._began + seconds + grace
            stubborn = ", and did not stop when it was asked to" if grace else ""
            self._late = f"takes longer than {seconds:g} s{stubborn}"
        self._tell(message)

    def receive(self) -> Event | None:
        """What the worker said, once it is whole."""
        try:
            block = self._socket.recv(1 << 20)
        except ConnectionResetError:
            block = b""
        if not block:
            return self._ended()
        self._buffer += block
        if len(self._buffer) < LENGTH + int.from_bytes(self._buffer[:LENGTH], "little"):
            return None
        succeeded, value = pickle.loads(memoryview(self._buffer)[LENGTH:])
        self._buffer = bytearray()
        self._deadline = float("inf")
        if not self.is_started:
            if not succeeded:
                raise StartFailed(self.why_no_start(value))
            self.is_started, self.greeting = True, value
            return Event(self)
        return self._event(reply=(succeeded, value))

    def watch(self) -> None:
        """Kills the process if it takes too long or too much memory."""
        if self._end[0]:
            return
        if time.monotonic() > self._deadline:
            self._kill_for("timeout", self._late)
        elif self.is_busy and self.limit is not None:
            taken = _resident(self._process.pid)
            self.memory = max(self.memory, taken)
            if taken > self.limit:
                self._kill_for("memory", f"takes more than {self.limit >> 20} MiB of memory "
                                         f"({taken >> 20} MiB when it was ended)")

    def kill(self) -> None:
        self._process.kill()

    def leave(self) -> None:
        """Lets the process end by itself as soon as it is idle."""
        self._socket.close()

    def has_ended(self) -> bool:
        return self._process.poll() is not None

    def end(self, *, patience: float = 0.0) -> None:
        """Waits so many seconds for the end of the process, then kills it."""
        self._socket.close()
        try:
            if patience:
                self._process.wait(patience)
        except subprocess.TimeoutExpired:
            pass
        self._process.kill()
        self._process.wait()
        if self._output:
            self._output.close()

    def why_no_start(self, error: str) -> str:
        """What is told when this worker did not start."""
        hint = ". A program that uses a pool has to begin its work under if __name__ == '__main__'"
        return f"no worker can start: {error}" + (hint if self._has_main else "")

    def _event(self, reply: tuple[bool, Any] | None = None, end: End = "", error: str = "") -> Event:
        event = Event(self, self.is_busy, self.task, reply, end, error, time.monotonic() - self._began, self.memory)
        self.task, self.is_busy = None, False
        return event

    def _tell(self, message: bytes) -> None:
        try:
            self._socket.sendall(message)
        except (BrokenPipeError, ConnectionResetError):
            pass  # the end of the process is an event of its own

    def _kill_for(self, end: End, error: str) -> None:
        self._end = end, error
        self._process.kill()

    def _ended(self) -> Event:
        self._process.kill()  # a closed socket is an end, even if something of the process is left
        status = self._process.wait()
        end, error = self._end
        self._end = end or "died", error
        return self._event(end=end or "died", error=error or self._describe(status))

    def _describe(self, status: int) -> str:
        """How the process ended, for people, with the first line that it printed."""
        how = f"exit code {status}"
        if status < 0:
            try:
                how = signal.Signals(-status).name
            except ValueError:
                how = f"signal {-status}"
        text = f"the worker ended with {how}" if status >= 0 else f"the worker was ended by {how}"
        if not self._output:
            return text
        self._output.seek(0)
        lines = self._output.read(1 << 16).decode("utf-8", "replace").split("\n")
        said = next((line.strip() for line in lines if line.strip()), "")
        return text + (f": {said[:200]}" if said else "")


class Workers:
    """As many workers as there are at most, and their events.

    :param program: What they are started with.
    :param size: How many there are at most.
    :param wake: What ends a wait for events when it becomes readable.
    """

    def __init__(self, program: Program, size: int, wake: HasDescriptor | None = None) -> None:
        if getattr(sys, "frozen", False):
            raise ToolError("a frozen application has no interpreter that workers could run in")
        self.size = size
        self.all: list[Worker] = []
        self._program = program
        self._leaving: list[Worker] = []
        self._failed_starts = 0
        self._next_watch = 0.0
        self._wake = wake
        self._selector: selectors.DefaultSelector | None = None

    def fill(self, count: int) -> None:
        """Starts workers until there are as many, or as there are at most."""
        taken = {worker.number for worker in self.all}
        numbers = (number for number in range(self.size) if number not in taken)
        for number in islice(numbers, max(0, count - len(self.all))):
            worker = Worker(number, self._program)
            self.all.append(worker)
            self._waiting().register(worker, selectors.EVENT_READ, worker)

    def free(self) -> list[Worker]:
        return [worker for worker in self.all if worker.is_free()]

    def busy(self) -> list[Worker]:
        return [worker for worker in self.all if worker.is_busy]

    def events(self, seconds: float = TICK, check: Callable[[], None] | None = None) -> Iterator[Event]:
        """What happened within some time. Those that ended are no longer among the workers.

        :param check: Is called after the wait, before the events.
        :raises StartFailed: Workers do not start.
        """
        found = self._waiting().select(seconds)
        if check:
            check()
        for key, _ in found:
            worker = key.data
            if isinstance(worker, Worker) and worker in self.all and (event := worker.receive()):
                if event.end:
                    self.remove(worker)
                self._count_start(event)
                yield event
        if (now := time.monotonic()) >= self._next_watch:
            self._next_watch = now + TICK
            for worker in self.all:
                worker.watch()
            self._leaving = [worker for worker in self._leaving if not worker.has_ended()]

    def remove(self, worker: Worker, *, gently: bool = False) -> None:
        """Ends a worker; gently, it ends by itself when it is idle."""
        if worker not in self.all:
            return
        self._waiting().unregister(worker)
        self.all.remove(worker)
        if gently:
            worker.leave()
            self._leaving.append(worker)
        else:
            worker.end()

    def close(self, *, gently: bool = False) -> None:
        """Ends all workers; gently, those that are idle end by themselves."""
        for worker in list(self.all):
            if gently and worker.is_free():
                self.remove(worker, gently=True)
            else:
                worker.kill()  # all at once: to give much memory back takes the system a while
        for worker in list(self.all):
            self.remove(worker)
        until = time.monotonic() + PATIENCE
        for worker in self._leaving:
            worker.end(patience=max(0.0, until - time.monotonic()))
        self._leaving.clear()
        if self._selector is not None:
            self._selector.close()
            self._selector = None

    def _waiting(self) -> selectors.DefaultSelector:
        """What is waited for: workers, and what wakes."""
        if self._selector is None:
            self._selector = selectors.DefaultSelector()
            if self._wake is not None:
                self._selector.register(self._wake, selectors.EVENT_READ)
        return self._selector

    def _count_start(self, event: Event) -> None:
        self._failed_starts = self._failed_starts + 1 if event.end and not event.worker.is_started else 0
        if self._failed_starts >= STARTS:
            raise StartFailed(event.worker.why_no_start(event.error))


def _command(descriptor: int, program: Program) -> list[str]:
    """The command line of a worker."""
    with_thread = program.ends_with_thread or threading.current_thread() is threading.main_thread()
    parent = os.getpid() if with_thread else 0
    return [sys.executable, "-P", "-c", _RUN.format(path=PACKAGES, descriptor=descriptor, parent=parent)]


def _preparation() -> dict[str, Any]:
    """What a worker needs to import the program of this process."""
    from multiprocessing import spawn

    found: dict[str, Any] = spawn.get_preparation_data("korvan worker")
    found["authkey"] = bytes(found["authkey"])  # itself, it is pickled for processes of multiprocessing only
    return found


def _resident(process: int) -> int:
    """The resident memory of a process in bytes; 0 of one that is gone."""
    try:
        with open(f"/proc/{process}/statm", encoding="ascii") as file:
            return int(file.read().split()[1]) * _PAGE
    except (OSError, IndexError, ValueError):
        return 0
