"""Works off a shard: what is to be done goes to the workers, what became of it to the journal."""

from __future__ import annotations

import base64
import json
import os
import shutil
import sqlite3
import time
from collections import deque
from collections.abc import Callable
from dataclasses import dataclass
from hashlib import blake2b
from pathlib import Path
from typing import Any

from korvan.batch.errors import BatchError, printable, telling
from korvan.batch.folder import BatchFolder, read_json, replace_file
from korvan.batch.journal import CRASHED, FAILED, Journal, Outcome, Work
from korvan.batch.scan import read_list
from korvan.batch.settings import Settings
from korvan.batch.summary import Summary
from korvan.batch.workers import Pool
from korvan.tools.processes import Event, Worker

Report = Callable[[Work, Outcome], None]


@dataclass(frozen=True)
class Modes:
    """What a run does beyond what is new."""

    retry: bool = False
    """Whether failed and crashed files are tried again."""
    verify: bool = False
    """Whether contents are compared where times would do."""


class ShardRun:
    """One run over a shard, whose lease the caller holds. ``on_tick`` renews it, ``on_outcome`` shows the progress."""

    def __init__(self, folder: BatchFolder, shard: int, settings: Settings, pool: Pool, *, modes: Modes,
                 on_tick: Callable[[], None], on_outcome: Report) -> None:
        self._folder = folder
        self._shard = shard
        self._settings = settings
        self._pool = pool
        self._modes = modes
        self._on_tick = on_tick
        self._on_outcome = on_outcome
        self._out = os.fsencode(folder.out)
        self._source = os.fsencode(settings.source)
        self._waiting: deque[Work] = deque()
        self._alone: deque[Work] = deque()
        self._noted: deque[Work] = deque()
        self._given_back: list[Work] = []
        self._finished: list[tuple[Work, Outcome]] = []
        self._converted = 0

    def run(self) -> Summary:
        """Converts what is to be converted.

        :raises BatchError: It can't go on: a stop was asked for, the disk is full, the lease was lost.
        """
        start = time.monotonic()
        recipe = self._settings.recipe.key(self._pool.version())
        content = self._folder.list_path(self._shard).read_bytes()
        extension = os.fsencode(self._settings.recipe.to)
        self._folder.clear_scratch(self._shard)
        journal = Journal(self._folder.journal_path(self._shard))
        try:
            journal.synchronize(read_list(content), extension, recipe, retry=self._modes.retry)
            journal.check_results(self._out, contents=self._modes.verify)
            works = journal.waiting(self._out)
            self._waiting.extend(work for work in works if not work.alone)
            self._alone.extend(work for work in works if work.alone)
            self._work_off(journal)
            summary = journal.summary()
        except sqlite3.Error as failure:
            raise BatchError(f"{printable(self._folder.journal_path(self._shard))}: {failure}") from failure
        finally:
            journal.close()
        summary.converted, summary.seconds = self._converted, time.monotonic() - start
        self._write_summary(summary, recipe, content)
        return summary

    def _work_off(self, journal: Journal) -> None:
        try:
            while self._waiting or self._alone or self._noted or self._finished or self._pool.busy():
                self._send_noted()
                begun = self._assign()
                if self._finished or begun:
                    journal.step(self._finished, begun)
                self._noted.extend(begun)
                for work, outcome in self._finished:
                    self._on_outcome(work, outcome)
                self._finished = []
                self._send_noted()
                if self._pool.busy() or self._waiting or self._alone or self._noted:
                    for event in self._pool.events():
                        self._handle(event, journal)
                self._on_tick()
        finally:
            self._given_back += [worker.task for worker in self._pool.busy()]
            self._pool.end_busy()
            self._folder.clear_scratch(self._shard)
            try:
                journal.step(self._finished, [])
                journal.give_back(self._given_back, self._noted)
            except BatchError:
                pass  # a full disk: the next run finds them as interrupted

    def _assign(self) -> list[Work]:
        """Files for the workers that are ready, and one for each of the others, which is not to wait for the journal
        when it is ready. When none is left, one of those that wait to be alone."""
        begun: list[Work] = []
        if self._waiting or self._noted:
            self._pool.fill(len(self._waiting) + len(self._noted) + len(self._pool.busy()))
        if self._waiting:
            count = len(self._pool.ready()) + self._pool.jobs - len(self._noted)
            while len(begun) < count and (work := self._next(self._waiting)):
                begun.append(work)
        elif self._alone and not self._noted and not self._pool.busy():
            self._pool.renew()
            if self._pool.ready() and (work := self._next(self._alone)):
                begun.append(work)
        return begun

    def _send_noted(self) -> None:
        """Gives files to the workers that are ready. The journal has them, so that a result is known to be ours."""
        if self._noted:
            for worker in self._pool.ready()[:len(self._noted)]:
                self._send(worker, self._noted.popleft())

    def _next(self, works: deque[Work]) -> Work | None:
        """The next file whose place of the result is free, or ours."""
        while works:
            work = works.popleft()
            place = os.path.join(self._out, work.target)
            if work.ours or self._settings.force or not os.path.lexists(place):
                return work
            text = f"{printable(work.target)} exists and is not of this batch (--force replaces it)"
            self._finished.append((work, Outcome(FAILED, "output", text)))
        return None

    def _send(self, worker: Worker, work: Work) -> None:
        task = {
            "source": os.fsdecode(os.path.join(self._source, work.path)),
            "target": os.fsdecode(os.path.join(self._out, work.target)),
            "scratch": str(self._scratch(worker)),
            "known": work.known_hash,
            "replace": work.ours or self._settings.force, "timeout": self._settings.limits.timeout,
            "thumbnail": self._settings.thumbnails and not work.crashes,
        }
        self._pool.send(worker, work, task)

    def _scratch(self, worker: Worker) -> Path:
        return self._folder.scratch(self._shard) / str(worker.number)

    def _handle(self, event: Event, journal: Journal) -> None:
        self._pool.drop(event)
        if not event.was_busy:
            return
        work: Work = event.task
        if event.end:  # what it left half-written is not to be moved with the next result
            shutil.rmtree(self._scratch(event.worker), ignore_errors=True)
        if event.reply is not None:
            succeeded, reply = event.reply
            self._take(work, reply if succeeded else {"state": FAILED, "kind": "fault", "error": reply})
        elif event.end == "died" or event.end == "memory" and not self._settings.limits.memory:
            self._crash(work, event, journal)
        else:
            self._take(work, {"state": FAILED, "kind": event.end, "error": event.error})

    def _take(self, work: Work, reply: dict[str, Any]) -> None:
        if reply.get("kind") == "full":
            self._given_back.append(work)
            raise BatchError(f"{printable(self._folder.out)}: {reply['error']}; the same command goes on from here")
        thumbnail = reply.get("thumbnail")
        outcome = Outcome(
            reply["state"], reply.get("kind", ""), reply.get("error", ""), reply.get("hash"), reply.get("size", 0),
            reply.get("modified", 0), reply.get("result_size"), reply.get("result_modified"),
            reply.get("seconds", 0.0), reply.get("memory", 0), reply.get("warnings", ()),
            base64.b64decode(thumbnail) if thumbnail else None)
        self._finished.append((work, outcome))
        self._converted += outcome.state != "unchanged"

    def _crash(self, work: Work, event: Event, journal: Journal) -> None:
        """The first crash puts a file at the end, where it is tried alone; the second one is its result."""
        if work.alone and work.crashes:
            state, kind = (CRASHED, "crash") if event.end == "died" else (FAILED, event.end)
            self._take(work, {"state": state, "kind": kind, "error": event.error})
            return
        journal.crash(work, event.error)
        self._alone.append(Work(work.path, work.target, work.size, work.modified, work.known_hash, work.crashes + 1,
                                alone=True, ours=True))

    def _write_summary(self, summary: Summary, recipe: str, content: bytes) -> None:
        path = self._folder.summary_path(self._shard)
        kept = {"list": _hash(content), "recipe": recipe, "summary": summary.to_json()}
        with telling(path):
            replace_file(path, json.dumps(kept).encode())


def read_summary(folder: BatchFolder, shard: int) -> Summary | None:
    """What the last run over a shard left, whatever was asked for."""
    try:
        return Summary.from_json(read_json(folder.summary_path(shard))["summary"])
    except (FileNotFoundError, BatchError, KeyError):
        return None


def is_finished(folder: BatchFolder, shard: int, recipe: str) -> bool:
    """Whether nothing is left to do for the files of a shard, as they were found last, by this recipe."""
    try:
        kept = read_json(folder.summary_path(shard))
        return bool(kept["summary"]["complete"] and kept["recipe"] == recipe
                    and kept["list"] == _hash(folder.list_path(shard).read_bytes()))
    except (OSError, BatchError, KeyError):
        return False


def _hash(content: bytes) -> str:
    return blake2b(content, digest_size=16).hexdigest()
