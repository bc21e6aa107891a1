"""A pool of processes in which a task that crashes, hangs or takes too much memory costs only itself.

Workers are new processes, which the parent watches: one that passes its deadline or its memory is killed, and a new one
takes its place. The library writes files atomically, so a killed worker leaves no half file.
"""

from __future__ import annotations

import os
from collections import deque
from collections.abc import Callable, Generator, Iterable
from dataclasses import dataclass
from functools import partial
from itertools import islice
from types import TracebackType
from typing import Any, Generic, Literal, Self, TypeVar

from korvan.tools.errors import ToolError
from korvan.tools.processes import Event, Program, Workers
from korvan.tools.worker import import_modules

Task = TypeVar("Task")
Result = TypeVar("Result")
Status = Literal["done", "failed", "died", "timeout", "memory"]


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
    """The most resident memory that the worker was seen with, in bytes; 0 where none was limited."""


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
        size = workers if workers is not None else len(os.sched_getaffinity(0))
        if size < 1:
            raise ToolError(f"a pool has at least one worker, not {workers}")
        self._memory, self._deadline, self._recycle = memory, deadline, max(1, recycle)
        program = Program(partial(import_modules, tuple(imports)), has_main=True)
        self._size = size
        self._workers = Workers(program, size)

    def __enter__(self) -> Self:
        return self

    def __exit__(self, kind: type[BaseException] | None, _value: BaseException | None,
                 _trace: TracebackType | None) -> None:
        self.close()

    def close(self) -> None:
        """Ends the workers; those that are at work are killed."""
        self._workers.close(gently=True)

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
                self._workers.fill(len(queue) + len(self._workers.busy()))
                for worker in self._workers.free()[:len(queue)]:
                    worker.send(function, queue.popleft(), seconds=self._deadline, memory=self._memory)
                if not queue and not self._workers.busy():
                    return
                for event in self._workers.events():
                    if (outcome := self._outcome(event)) is not None:
                        yield outcome
        finally:
            for worker in self._workers.busy():  # the caller wants no more
                self._workers.remove(worker)

    def _outcome(self, event: Event) -> Outcome[Any, Any] | None:
        """What became of a task, if the event tells of one."""
        if event.reply is None:
            if not event.was_busy:
                return None
            return Outcome(event.task, event.end or "died", None, event.error, event.seconds, event.memory)
        if event.worker.count >= self._recycle:
            self._workers.remove(event.worker, gently=True)
        succeeded, value = event.reply
        if succeeded:
            return Outcome(event.task, "done", value, "", event.seconds, event.memory)
        return Outcome(event.task, "failed", None, value, event.seconds, event.memory)
