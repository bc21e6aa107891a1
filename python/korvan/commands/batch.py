"""``korvan batch``: whole folders of drawings, with a journal."""

from __future__ import annotations

import argparse
import os
import shlex
import sys
import time
from dataclasses import replace
from typing import TYPE_CHECKING, Any

from korvan.commands.common import Usage, add_json, columns, parser_for, print_json

if TYPE_CHECKING:
    from korvan.batch.settings import Limits, Settings
    from korvan.batch.summary import Summary
    from korvan.batch.watching import Watcher

_EXAMPLES = """  korvan batch drawings -o pdfs --to pdf          the folder and those below it; the report is
                                                  pdfs/_batch/report.html
  korvan batch -o pdfs                            go on after a kill, or with what is new since
  korvan batch drawings -o pdfs --to pdf --retry  try again what failed
  korvan batch drawings -o images --to png --size 1600x --layout '*' --jobs 8
  korvan batch drawings -o pdfs --to pdf --engine slurm --sbatch '--partition=long --time=2:00:00'
  korvan batch drawings -o pdfs --to pdf --engine commands | parallel -j 4

exit codes: 0 each file has its result, 1 some have none or the batch was stopped, 2 wrong usage
"""
_OPTIONS = ("layouts", "layers", "size", "paper", "dpi", "background", "color_mode", "release")


def add_parser(subparsers: Any) -> None:
    parser = parser_for(subparsers, "batch", "Converts folders of drawings, and goes on where it was stopped.",
                        _EXAMPLES)
    parser.add_argument("folder", nargs="?", metavar="FOLDER", help="the drawings; without it, OUT says what to do")
    parser.add_argument("-o", "--out", required=True, metavar="OUT", help="the folder of the results and the journal")
    parser.add_argument("--to", metavar="EXT", help="the format of the results, as an extension")
    parser.add_argument("--pattern", action="append", default=[], dest="patterns", metavar="NAME",
                        help="names to take, such as '*.dwg'; repeat for more (default: all drawings)")
    _add_page(parser)
    work = parser.add_argument_group("how it is done")
    work.add_argument("-j", "--jobs", type=int, default=0, metavar="N", help="processes (default: one a processor)")
    work.add_argument("--timeout", type=float, metavar="S",
                      help="seconds that a file may take, 0 for any (default: 300)")
    work.add_argument("--memory", type=int, metavar="MIB",
                      help="memory that a file may take (default: its share of what is free)")
    work.add_argument("--no-thumbnails", action="store_true",
                      help="report without thumbnails, which takes half the time")
    work.add_argument("-f", "--force", action="store_true", help="replace files that are not of this batch")
    work.add_argument("--retry", action="store_true", help="try again what failed or crashed")
    work.add_argument("--verify", action="store_true", help="compare contents, not only times and sizes")
    cluster = parser.add_argument_group("where it is done")
    cluster.add_argument("--engine", choices=("processes", "slurm", "commands"), default="processes",
                         help="processes of this machine, a Slurm job array, or a line for a shell for each shard")
    cluster.add_argument("--shard-size", type=int, default=0, metavar="N",
                         help="files of a shard, as a new batch is begun (default: 5000, on clusters 1000)")
    cluster.add_argument("--sbatch", action="append", default=[], metavar="OPTIONS", help="options for sbatch")
    cluster.add_argument("--tasks", type=int, default=0, metavar="N",
                         help="tasks of the job array (default: one a shard)")
    cluster.add_argument("--shard", metavar="N,...", help="work off these shards of a batch that was begun before")
    parser.add_argument("-q", "--quiet", action="store_true", help="print errors only")
    add_json(parser)


def _add_page(parser: argparse.ArgumentParser) -> None:
    page = parser.add_argument_group("what is drawn, and how (see korvan convert --help)")
    page.add_argument("--layout", "--layouts", action="append", dest="layouts", metavar="NAME",
                      help="a layout, or a pattern")
    page.add_argument("--layer", "--layers", action="append", dest="layers", metavar="NAME",
                      help="a layer, or a pattern")
    page.add_argument("--size", metavar="WxH", help="size of the page")
    page.add_argument("--paper", metavar="NAME", help="paper, such as A3")
    page.add_argument("--dpi", type=float, metavar="N", help="pixels per inch")
    page.add_argument("--background", metavar="COLOR", help="colour of the background")
    page.add_argument("--color-mode", metavar="MODE", help="object, or one colour for all")
    page.add_argument("--fonts", action="append", default=[], metavar="PATH", help="a folder with fonts, or a font")
    page.add_argument("--release", metavar="R", help="release of DXF and DWG")
    page.add_argument("--set", action="append", default=[], dest="settings", metavar="CLASS.MEMBER=VALUE",
                      help="any option of the library")
    page.add_argument("--tolerant", action="store_true", help="leave damaged objects out")


def _options(arguments: argparse.Namespace) -> dict[str, Any]:
    """The keyword arguments of a conversion, as far as they were given."""
    from korvan.commands.convert import parse_settings

    found = {name: getattr(arguments, name) for name in _OPTIONS if getattr(arguments, name) is not None}
    if arguments.fonts:
        found["fonts"] = [os.path.abspath(path) for path in arguments.fonts]
    if arguments.settings:
        found["settings"] = parse_settings(arguments.settings)
    if arguments.tolerant:
        found["tolerant"] = True
    return found


def _limits(arguments: argparse.Namespace, known: Limits) -> Limits:
    """The limits of a file, as far as they were given."""
    from korvan.batch.settings import MEBIBYTE

    timeout = known.timeout if arguments.timeout is None else arguments.timeout
    return replace(known, timeout=timeout,
                   memory=known.memory if arguments.memory is None else arguments.memory * MEBIBYTE)


def _settings(arguments: argparse.Namespace) -> Settings:
    from korvan.batch.engines import resume
    from korvan.batch.settings import Limits, Recipe, Settings

    for name in ("jobs", "timeout", "memory", "shard_size", "tasks"):
        if getattr(arguments, name) is not None and not 0 <= getattr(arguments, name) < float("inf"):
            raise Usage(f"--{name.replace('_', '-')} {getattr(arguments, name)}: is no number of this kind")
    if arguments.folder is None:
        if arguments.to is not None or arguments.patterns or _options(arguments):
            raise Usage("name the folder of the drawings; without it, what is drawn is what OUT was begun with")
        kept = resume(arguments.out, arguments.jobs)
        return replace(kept, limits=_limits(arguments, kept.limits), force=arguments.force or kept.force,
                       thumbnails=kept.thumbnails and not arguments.no_thumbnails)
    if arguments.to is None:
        raise Usage("name the format of the results (--to), such as pdf")
    recipe = Recipe(arguments.to.lower().removeprefix("."), _options(arguments))
    if not recipe.to.isalnum():
        raise Usage(f"--to {arguments.to}: is no extension")
    limits = _limits(arguments, Limits())
    return Settings(arguments.folder, arguments.out, recipe, limits, tuple(arguments.patterns),
                    not arguments.no_thumbnails, arguments.force, arguments.jobs, arguments.shard_size)


def _make_watcher(quiet: bool) -> Watcher:
    from korvan.batch.errors import printable
    from korvan.batch.journal import CRASHED, FAILED, Outcome, Work
    from korvan.batch.watching import Watcher

    class Lines(Watcher):
        """One line on stderr for each file that fails, and a line of progress where a person looks."""

        def __init__(self) -> None:
            self._files = 0
            self._seen = 0
            self._start = time.monotonic()
            self._shown = 0.0
            self._terminal = sys.stderr.isatty() and not quiet

        def _print(self, text: str) -> None:
            self.clear()
            print(f"korvan: {text}", file=sys.stderr)

        def clear(self) -> None:
            if self._terminal:
                print("\r\x1b[K", end="", file=sys.stderr, flush=True)

        def _progress(self, text: str) -> None:
            now = time.monotonic()
            if self._terminal and now - self._shown > 0.1:
                self._shown = now
                width = columns()
                print("\r\x1b[K" + text[: width - 1], end="", file=sys.stderr, flush=True)

        def found(self, files: int) -> None:
            self._progress(f"{files} drawings found")

        def begin(self, files: int) -> None:
            self._files = files
            self._start = time.monotonic()

        def outcome(self, work: Work, outcome: Outcome) -> None:
            if outcome.state in (FAILED, CRASHED):
                self._print(f"{printable(work.path)}: {outcome.error}")
            self.count(self._seen + 1)

        def count(self, files: int) -> None:
            self._seen = files
            rate = files / max(0.1, time.monotonic() - self._start)
            of = f" of {self._files}" if self._files else ""
            self._progress(f"{files}{of} files, {rate:.1f} files/s")

        def message(self, text: str) -> None:
            self._print(text)

    return Lines()


def _run(arguments: argparse.Namespace, watcher: Watcher) -> Summary:
    from korvan.batch.engines import run_batch, run_shards
    from korvan.batch.shard import Modes
    from korvan.batch.slurm import SlurmOptions

    modes = Modes(arguments.retry, arguments.verify)
    if arguments.shard is not None:
        if not all(part.isascii() and part.isdigit() for part in arguments.shard.split(",")):
            raise Usage(f"--shard {arguments.shard}: write numbers, such as 3 or 3,4,5")
        shards = [int(part) for part in arguments.shard.split(",")]
        return run_shards(arguments.out, shards, modes=modes, jobs=arguments.jobs or _task_jobs(), watcher=watcher)
    options = [word for one in arguments.sbatch for word in shlex.split(one)]
    slurm = SlurmOptions(options, arguments.tasks, arguments.jobs)
    return run_batch(_settings(arguments), arguments.engine, modes=modes, watcher=watcher, slurm=slurm)


def _task_jobs() -> int:
    """The processors that a cluster gave this task; 0 where none is said."""
    given = os.environ.get("SLURM_CPUS_PER_TASK", "")
    return int(given) if given.isdigit() else 0


def run(arguments: argparse.Namespace) -> int:
    from korvan.batch.errors import BadRecipe, BatchError, Interrupted

    watcher = _make_watcher(arguments.quiet)
    try:
        summary = _run(arguments, watcher)
    except Interrupted as failure:
        watcher.message(str(failure))
        return 130
    except BadRecipe as failure:
        raise Usage(str(failure)) from failure
    except BatchError as failure:
        watcher.message(str(failure))
        return 1
    emitted = arguments.engine == "commands" and not summary.is_complete
    stream = sys.stderr if emitted else sys.stdout
    if arguments.json and not emitted:
        print_json({**summary.to_json(), "report": None if arguments.shard else _report(arguments.out)})
    elif not arguments.quiet:
        print(str(summary) if arguments.shard or emitted else f"{summary}\n{_report(arguments.out)}", file=stream)
    return 0 if emitted or summary.is_success else 1


def _report(out: str) -> str:
    return os.path.join(out, "_batch", "report.html")
