"""The worker processes of this machine that convert the files of a batch, one file at a time each."""

from __future__ import annotations

import os
from collections.abc import Iterator
from functools import partial
from typing import Any

from korvan.batch import worker as conversion
from korvan.batch.errors import BadRecipe, BatchError
from korvan.batch.journal import Work
from korvan.batch.settings import Limits, Recipe
from korvan.batch.stopping import Stop
from korvan.tools.errors import ToolError
from korvan.tools.processes import PACKAGES, Event, Program, StartFailed, Worker, Workers

TICK = 0.1
GRACE = 2.0  # how much later than the library's own deadline a process is ended


def command_environment() -> dict[str, str]:
    """What another interpreter needs to find the package that this one has."""
    known = os.environ.get("PYTHONPATH", "")
    return {"PYTHONPATH": known if PACKAGES in known.split(":") else ":".join(filter(None, (PACKAGES, known)))}


class Pool:
    """As many workers as there are jobs, and their events."""

    def __init__(self, recipe: Recipe, limits: Limits, jobs: int, stop: Stop) -> None:
        cores = len(os.sched_getaffinity(0))
        self.limits = limits
        self.jobs = jobs or cores
        self.memory = _usable_memory()
        self._stop = stop
        program = Program(
            partial(conversion.greet, recipe.to, dict(recipe.options)), keeps_output=True, ends_with_thread=True,
            folder="/", environment={"DOTNET_PROCESSOR_COUNT": str(max(1, cores // self.jobs))})
        try:
            self._workers = Workers(program, self.jobs, stop)
        except ToolError as failure:
            raise BatchError(str(failure)) from failure

    def version(self) -> str:
        """The version of the converter, which the first worker tells.

        :raises BadRecipe: The worker finds the recipe wrong for any file.
        """
        return self._greeting().version

    def extensions(self) -> list[str]:
        """The file extensions of drawings that the converter reads."""
        return self._greeting().extensions

    def _greeting(self) -> conversion.Greeting:
        """What a worker tells of itself."""
        while True:
            self.fill(1)
            for worker in self._workers.all:
                if worker.is_started:
                    found: conversion.Greeting = worker.greeting
                    return found
            for _ in self.events():
                pass

    def fill(self, count: int) -> None:
        """Starts workers until there are as many."""
        self._workers.fill(count)

    def ready(self) -> list[Worker]:
        return self._workers.free()

    def busy(self) -> list[Worker]:
        return self._workers.busy()

    def send(self, worker: Worker, work: Work, task: dict[str, Any]) -> None:
        """Gives a worker a file."""
        seconds = self.limits.timeout or None
        worker.send(conversion.work, work, call=task, seconds=seconds, grace=(seconds or 0) / 10 + GRACE,
                    memory=self._memory_for(work))

    def _memory_for(self, work: Work) -> int:
        """The limit for a file: as it was asked for, or the share of the machine; a file alone gets all."""
        return self.limits.memory or (self.memory if work.alone else self.memory // self.jobs)

    def events(self) -> Iterator[Event]:
        """What happened within a tick.

        :raises Interrupted: A stop was asked for.
        :raises BatchError: Workers do not start, or find the recipe wrong for any file.
        """
        try:
            for event in self._workers.events(TICK, self._stop.check):
                greeting = event.worker.greeting
                if greeting and greeting.wrong:
                    raise BadRecipe(greeting.wrong)
                yield event
        except StartFailed as failure:
            raise BatchError(str(failure)) from failure

    def drop(self, event: Event) -> None:
        """Ends a worker that served long enough; others are started in its place."""
        worker = event.worker
        resident = event.reply[1].get("resident", 0) if event.reply and event.reply[0] else 0
        large = resident > (self.limits.memory or self.memory // self.jobs) // 2
        if worker.count >= self.limits.recycle or large:
            self._workers.remove(worker)

    def renew(self) -> None:
        """Leaves one new worker: what it does is not due to files before."""
        for worker in list(self._workers.all):
            if worker.count or worker.number:
                self._workers.remove(worker)
        self.fill(1)

    def end_busy(self) -> None:
        for worker in self.busy():
            self._workers.remove(worker)

    def close(self) -> None:
        self._workers.close()

    def __enter__(self) -> Pool:
        return self

    def __exit__(self, *exception: object) -> None:
        self.close()


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
