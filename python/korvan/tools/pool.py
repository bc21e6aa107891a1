"""A pool of processes in which a task that crashes, hangs or takes too much memory costs only itself.

Workers are started anew (``spawn``), since a runtime with threads does not survive a fork well. The parent watches
them: one that passes its deadline or its memory is killed, and a new one takes its place. The library writes files
atomically, so a killed worker leaves no half file.
"""

from __future__ import annotations

import multiprocessing
import os
import signal
import threading
import time
from collections import deque
from collections.abc import Callable, Generator, Iterable, Iterator
from dataclasses import dataclass
from itertools import islice
from multiprocessing.connection import Connection, wait
from multiprocessing.context import SpawnProcess
from types import TracebackType
from typing import Any, Generic, Literal, Self, TypeVar

from korvan.tools.errors import ToolError, message_of

Task = TypeVar("Task")
Result = TypeVar("Result")
Status = Literal["done", "failed", "died", "timeout", "memory"]
_PAGE = os.sysconf("SC_PAGE_SIZE")
_WATCH = 0.05
_START_LIMIT = 120.0
_MAX_LOST = 10
_PR_SET_PDEATHSIG = 1


@dataclass(frozen=True)
class Outcome(Generic[Task, Result]):
    """What became of a task."""

    task: Task
    status: Status
    """``done``; ``failed`` with an exception; ``died``, ``timeout`` or ``memory`` where the worker was lost."""
    value: Result | None = None
    """What the function returned."""
    error: str = ""
    """Why it was not done, in one line."""
    seconds: float = 0.0
    memory: int = 0
    """The most resident memory that the worker was seen with, in bytes; 0 where none was watched."""


def _end_with_parent() -> None:
    """Lets the system kill this process when its parent ends, however that ends."""
    import ctypes

    ctypes.CDLL(None).prctl(_PR_SET_PDEATHSIG, signal.SIGKILL)


def _work(pipe: Connection, imports: tuple[str, ...], ends_with_parent: bool) -> None:
    """The life of a worker: imports, then tasks until the pipe is closed."""
    signal.signal(signal.SIGINT, signal.SIG_IGN)  # the parent decides what Ctrl-C means
    signal.pthread_sigmask(signal.SIG_UNBLOCK, {signal.SIGINT})
    if ends_with_parent:
        _end_with_parent()
    for name in imports:
        __import__(name)
    pipe.send(("ready",))
    while True:
        try:
            function, task = pipe.recv()
        except EOFError:
            return
        try:
            answer = (True, function(task))
        except BaseException as failure:
            answer = (False, message_of(failure))
        try:
            pipe.send(answer)
        except Exception as failure:  # what cannot be pickled
            pipe.send((False, f"the result cannot be sent: {message_of(failure)}"))


def _resident(pid: int | None) -> int:
    """The resident memory of a process in bytes; 0 of one that is gone."""
    try:
        with open(f"/proc/{pid}/statm", encoding="ascii") as file:
            return int(file.read().split()[1]) * _PAGE
    except (OSError, IndexError, ValueError):
        return 0


def _end_of(process: SpawnProcess) -> str:
    """How a process ended, for people."""
    process.join(5)
    code = process.exitcode
    if code is not None and code < 0:
        try:
            return f"the worker was ended by {signal.Signals(-code).name}"
        except ValueError:
            return f"the worker was ended by signal {-code}"
    return f"the worker ended with exit code {code}"


class _Worker:
    """A process, the pipe to it, and the task that it has."""

    def __init__(self, imports: tuple[str, ...]) -> None:
        context = multiprocessing.get_context("spawn")
        self.pipe, other = context.Pipe()
        # A parent's thread that ends would take its workers along.
        is_main = threading.current_thread() is threading.main_thread()
        self.process = context.Process(target=_work, args=(other, imports, is_main), daemon=True)
        # The process starts with Ctrl-C blocked, until it can ignore it.
        mask = signal.pthread_sigmask(signal.SIG_BLOCK, {signal.SIGINT})
        try:
            self.process.start()
        finally:
            signal.pthread_sigmask(signal.SIG_SETMASK, mask)
        other.close()
        self.is_ready = False
        self.is_busy = False
        self.task: Any = None
        self.started = time.monotonic()
        self.memory = 0
        self.count = 0

    def assign(self, function: Callable[[Any], Any], task: Any) -> None:
        self.task, self.is_busy, self.started, self.memory = task, True, time.monotonic(), 0
        self.count += 1
        self.pipe.send((function, task))

    def outcome(self, status: Status, value: Any = None, error: str = "") -> Outcome[Any, Any]:
        self.is_busy = False
        return Outcome(self.task, status, value, error, time.monotonic() - self.started, self.memory)

    def close(self) -> None:
        """Lets an idle worker end by itself."""
        self.pipe.close()

    def kill(self) -> None:
        self.process.kill()
        self.process.join(5)
        self.pipe.close()


class Pool:
    """Processes that work on tasks one after the other.

    :param workers: How many; by default one for each processor that this process may use.
    :param memory: The resident memory in bytes at which a worker is killed; ``None`` for no limit. An idle worker
        with the library takes about 120 MB.
    :param deadline: The seconds after which a worker is killed that has not finished its task; ``None`` for none.
    :param recycle: After how many tasks a worker is replaced.
    :param imports: Modules that workers import before their first task, which is not counted to its time.
    """

    def __init__(self, workers: int | None = None, *, memory: int | None = None, deadline: float | None = None,
                 recycle: int = 1000, imports: Iterable[str] = ("korvan.cad",)) -> None:
        self._size = workers if workers is not None else len(os.sched_getaffinity(0))
        if self._size < 1:
            raise ToolError(f"a pool has at least one worker, not {workers}")
        self._memory, self._deadline, self._recycle = memory, deadline, max(1, recycle)
        self._imports = tuple(imports)
        self._workers: list[_Worker] = []
        self._lost = 0

    def __enter__(self) -> Self:
        return self

    def __exit__(self, kind: type[BaseException] | None, _value: BaseException | None,
                 _trace: TracebackType | None) -> None:
        self.close()

    def close(self) -> None:
        """Ends the workers; those that are at work are killed."""
        for worker in self._workers:
            if worker.is_busy or not worker.is_ready:
                worker.kill()
            else:
                worker.close()
        for worker in self._workers:
            worker.process.join(2)
            if worker.process.is_alive():
                worker.process.kill()
        self._workers.clear()

    def map(self, function: Callable[[Task], Result], tasks: Iterable[Task]) -> Generator[Outcome[Task, Result]]:
        """Calls a function for each task; returns the outcomes as they come, not in the order of the tasks.

        Tasks are taken as workers get free, so ``tasks`` may be long. The function has to be one of a module, so that
        workers can import it; tasks and results have to be picklable.

        :raises ToolError: The workers cannot start.
        """
        waiting = iter(tasks)
        queue: deque[Task] = deque()
        try:
            while True:
                queue.extend(islice(waiting, self._size - len(queue)))
                self._assign(function, queue)
                if not queue and not any(worker.is_busy for worker in self._workers):
                    return
                yield from self._collect()
        finally:
            for worker in [one for one in self._workers if one.is_busy]:  # the caller wants no more
                worker.kill()
                self._workers.remove(worker)

    def _assign(self, function: Callable[[Any], Any], queue: deque[Any]) -> None:
        """Assigns tasks to workers that are free, and starts as many more as there are tasks."""
        for worker in [one for one in self._workers if one.is_ready and not one.is_busy]:
            if not queue:
                return
            try:
                if worker.process.is_alive():
                    worker.assign(function, queue[0])
                    queue.popleft()
                    continue
            except OSError:
                pass
            worker.kill()  # it was ended while it was idle
            self._workers.remove(worker)
        starting = sum(not worker.is_ready for worker in self._workers)
        for _ in range(min(len(queue) - starting, self._size - len(self._workers))):
            self._workers.append(_Worker(self._imports))

    def _collect(self) -> Iterator[Outcome[Any, Any]]:
        """Waits a moment for answers, and checks time and memory of the workers."""
        watched = {worker.pipe: worker for worker in self._workers if worker.is_busy or not worker.is_ready}
        ready = wait(list(watched), _WATCH)
        for pipe, worker in watched.items():
            if pipe in ready:
                yield from self._receive(worker)
            else:
                yield from self._watch(worker)

    def _receive(self, worker: _Worker) -> Iterator[Outcome[Any, Any]]:
        try:
            answer = worker.pipe.recv()
        except (EOFError, ConnectionResetError):
            self._workers.remove(worker)
            reason = _end_of(worker.process)
            if not worker.is_ready:
                self._lost += 1
                if (worker.process.exitcode or 0) < 0 and self._lost <= _MAX_LOST:  # by a signal: another is started
                    return
                raise ToolError(f"no worker can start: {reason}. A program that uses a pool has to begin its work "
                                "under if __name__ == '__main__'") from None
            yield worker.outcome("died", error=reason)
            return
        if not worker.is_ready:
            worker.is_ready = True
            return
        succeeded, value = answer
        yield worker.outcome("done", value) if succeeded else worker.outcome("failed", error=value)
        if worker.count >= self._recycle:
            worker.close()
            self._workers.remove(worker)

    def _watch(self, worker: _Worker) -> Iterator[Outcome[Any, Any]]:
        passed = time.monotonic() - worker.started
        if not worker.is_ready:
            if passed > _START_LIMIT:
                raise ToolError(f"a worker has not started within {_START_LIMIT:g} s")
            return
        if self._memory is not None:
            worker.memory = max(worker.memory, _resident(worker.process.pid))
            if worker.memory > self._memory:
                yield self._lose(worker, "memory", f"takes more than {self._memory >> 20} MiB of memory")
                return
        if self._deadline is not None and passed > self._deadline:
            yield self._lose(worker, "timeout", f"takes longer than {self._deadline:g} s")

    def _lose(self, worker: _Worker, status: Status, error: str) -> Outcome[Any, Any]:
        worker.kill()
        self._workers.remove(worker)
        return worker.outcome(status, error=error)
