"""Runs a batch: finds the files, hands the shards to an engine, adds up and reports."""

from __future__ import annotations

import os
import shlex
import sys
import time
from collections.abc import Callable, Sequence
from dataclasses import dataclass, replace
from typing import Any

from korvan.batch.errors import BatchError, printable
from korvan.batch.folder import BatchFolder
from korvan.batch.lease import Lease
from korvan.batch.report import write_report
from korvan.batch.scan import Wanted, check_folders, count_files, places_from_json, places_to_json, scan
from korvan.batch.settings import Settings
from korvan.batch.shard import Modes, ShardRun, is_finished, read_summary
from korvan.batch.slurm import Slurm, SlurmOptions
from korvan.batch.stopping import Stop
from korvan.batch.summary import Summary
from korvan.batch.watching import Watcher
from korvan.batch.workers import Pool, command_environment

SHARD_SIZES = {"processes": 5_000, "slurm": 1_000, "commands": 1_000}
ATTEMPTS = 3  # jobs, one after the other, that finish no shard
LAYOUT = 1  # version of the folder of a batch


@dataclass(frozen=True)
class Run:
    """One run of a batch, with all that its steps need."""

    folder: BatchFolder
    settings: Settings
    modes: Modes
    watcher: Watcher
    stop: Stop
    lease: Lease

    def tick(self) -> None:
        self.stop.check()
        self.lease.renew()


def run_batch(settings: Settings, engine: str = "processes", *, modes: Modes = Modes(), watcher: Watcher | None = None,
              slurm: SlurmOptions | None = None, emit: Callable[[str], None] = print) -> Summary:
    """Converts the drawings of a folder, and goes on where an earlier run stood.

    :param settings: What is converted, where to, and how.
    :param engine: ``processes`` of this machine, tasks of ``slurm``, or ``commands``, which are only told.
    :param modes: Whether failures are tried again and contents compared.
    :param watcher: Hears of the progress.
    :param slurm: How tasks are given to Slurm.
    :param emit: Takes the lines of the engine ``commands``.
    :raises BatchError: The batch can't begin or go on; the journal is true.
    :raises Interrupted: A signal stopped it.
    """
    check_folders(settings.source, settings.out)
    folder = BatchFolder(settings.out)
    folder.create()
    watch = watcher or Watcher()
    start = time.monotonic()
    with Stop() as stop, Lease(folder.lease) as lease:
        settings = replace(settings, source=os.path.abspath(settings.source))
        run = Run(folder, settings, modes, watch, stop, lease)
        with Pool(settings.recipe, settings.limits, settings.jobs if engine == "processes" else 1, stop) as pool:
            if folder.read_plan() is None:  # all of it is to be done: workers start together
                pool.fill(count_files(settings.source, pool.jobs))
            plan = _plan(run, engine, pool.extensions())
            shards = range(len(plan["starts"]))
            watch.begin(plan["files"])
            summary = _process(run, shards, pool) if engine == "processes" else None
            recipe = settings.recipe.key(pool.version())
        if summary is None:
            todo = [shard for shard in shards if modes.retry or modes.verify or not is_finished(folder, shard, recipe)]
            if engine == "commands" and todo:
                for shard in todo:
                    emit(task_command(folder, [shard], modes))
                return _add_up(folder, shards)
            _distribute(run, Slurm(folder, slurm or SlurmOptions(), watch), todo, recipe)
            summary = _add_up(folder, shards)
            summary.converted = _add_up(folder, todo).converted
        summary.seconds = time.monotonic() - start
        summary.unreadable = plan["unreadable"]
        write_report(folder, summary, settings, shards, run.tick)
        return summary


def run_shards(out: str | os.PathLike[str], shards: Sequence[int], *, modes: Modes = Modes(), jobs: int = 0,
               watcher: Watcher | None = None) -> Summary:
    """What a task of a cluster does: works off some shards of a batch that was planned elsewhere.

    :raises BatchError: The shards can't be worked off, or one of them is held by another task.
    """
    folder = BatchFolder(out)
    plan = _read_plan(folder)
    if plan is None:
        raise BatchError(f"{printable(out)}: no batch was begun here")
    settings = Settings.from_json(plan["settings"], out, jobs)
    wrong = [shard for shard in shards if not 0 <= shard < len(plan["starts"])]
    if wrong:
        raise BatchError(f"{printable(out)}: has {len(plan['starts'])} shards, none {wrong[0]}")
    total = Summary()
    with Stop() as stop, Pool(settings.recipe, settings.limits, jobs, stop) as pool:
        for shard in shards:
            lease = Lease(folder.lease_path(shard))
            lease.wait(stop)
            with lease:
                run = Run(folder, settings, modes, watcher or Watcher(), stop, lease)
                total.add(_run_shard(run, shard, pool, run.tick))
    return total


def resume(out: str | os.PathLike[str], jobs: int = 0) -> Settings:
    """The settings of the batch in a folder, for going on without telling them again."""
    plan = _read_plan(BatchFolder(out))
    if plan is None:
        raise BatchError(f"{printable(out)}: no batch was begun here: name the folder of the drawings")
    return Settings.from_json(plan["settings"], out, jobs)


def task_command(folder: BatchFolder, shards: Sequence[int], modes: Modes) -> str:
    """The line of a shell that works off some shards."""
    words = ["env", *(f"{name}={value}" for name, value in command_environment().items()),
             sys.executable, "-P", "-m", "korvan", "batch", "-o", os.fspath(folder.out),
             "--shard", ",".join(map(str, shards))]
    words += ["--retry"] * modes.retry + ["--verify"] * modes.verify
    return shlex.join(words)


def _read_plan(folder: BatchFolder) -> dict[str, Any] | None:
    plan = folder.read_plan()
    if plan is not None and plan.get("layout") != LAYOUT:
        raise BatchError(f"{printable(folder.root)}: is of another version of korvan")
    return plan


def _plan(run: Run, engine: str, extensions: Sequence[str]) -> dict[str, Any]:
    """Finds the files and writes the lists of the shards; ranges that were dealt out once stay."""
    before = _read_plan(run.folder)
    if before and before["settings"]["source"] != os.fspath(run.settings.source):
        raise BatchError(f"{printable(run.folder.out)}: has results of {printable(before['settings']['source'])}; "
                         "results of another folder go elsewhere")

    def step(files: int) -> None:
        run.watcher.found(files)
        run.tick()

    starts = places_from_json(before["starts"]) if before else []
    dealer, unreadable = scan(run.folder, run.settings.source, Wanted(run.settings.patterns, extensions), starts,
                              run.settings.shard_size or SHARD_SIZES[engine], step)
    for text in unreadable:
        run.watcher.message(text)
    plan = {"layout": LAYOUT, "settings": run.settings.to_json(), "starts": places_to_json(dealer.starts),
            "files": dealer.files, "unreadable": unreadable}
    run.folder.write_plan(plan)
    return plan


def _run_shard(run: Run, shard: int, pool: Pool, on_tick: Callable[[], None]) -> Summary:
    return ShardRun(run.folder, shard, run.settings, pool, modes=run.modes, on_tick=on_tick,
                    on_outcome=run.watcher.outcome).run()


def _process(run: Run, shards: Sequence[int], pool: Pool) -> Summary:
    total = Summary()
    for shard in shards:
        with Lease(run.folder.lease_path(shard)) as lease:
            def tick(lease: Lease = lease) -> None:
                run.tick()
                lease.renew()

            total.add(_run_shard(run, shard, pool, tick))
    return total


def _distribute(run: Run, slurm: Slurm, todo: Sequence[int], recipe: str) -> None:
    """Gives shards to Slurm until all are finished, or several attempts bring nothing."""
    left = list(todo)
    vain = 0
    while left:
        job = slurm.find_job() or slurm.submit(left, lambda shards: task_command(run.folder, shards, run.modes))
        slurm.wait(job, run.stop, lambda: run.lease.renew())
        before, left = left, [shard for shard in left if not is_finished(run.folder, shard, recipe)]
        vain = vain + 1 if len(left) == len(before) else 0
        if vain == ATTEMPTS:
            raise BatchError(f"Slurm ended job {job} and no shard was finished: {slurm.last_line()}")
        if left:
            run.watcher.message(f"{len(left)} shards are left after job {job}: submitted again")


def _add_up(folder: BatchFolder, shards: Sequence[int]) -> Summary:
    """What stands in the summaries of the shards; files of a shard that has none yet are pending."""
    total = Summary()
    for shard in shards:
        summary = read_summary(folder, shard)
        if summary is None:
            files = folder.list_path(shard).read_bytes().count(b"\0")
            summary = Summary(files=files, pending=files)
        total.add(summary)
    return total
