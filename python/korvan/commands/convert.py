"""``korvan convert``: drawings to pages, images, meshes and other drawings."""

from __future__ import annotations

import argparse
import errno
import os
import sys
from collections.abc import Iterator
from typing import TYPE_CHECKING, Any

from korvan.commands.common import Progress, Usage, add_json, fail, parser_for, print_json, show, size_text

if TYPE_CHECKING:
    from korvan.tools import ConversionResult

_EXAMPLES = """  korvan convert plan.dxf -o plan.pdf
  korvan convert plan.dxf -o plan.pdf --layout '*' --paper A3
  korvan convert plan.dxf -o 'plan-{layout}.png'
  korvan convert *.dwg -o images/ --to png --size 1600x --background black
  korvan convert plan.dxf -o plan.svg --layer 'WALL*' --layer DOOR --color-mode black
  korvan convert new.dwg -o old.dxf --release R2000
  korvan convert plan.dxf -o plan.pdf --set PdfDocumentOptions.compliance=PDF_A1B
  korvan convert plan.dxf -o - --to svg | gzip > plan.svgz
"""


def add_parser(subparsers: Any) -> None:
    parser = parser_for(subparsers, "convert", "Converts drawings to the format of the target.", _EXAMPLES)
    parser.add_argument("files", nargs="+", metavar="IN", help="drawings, metafiles, building models or images")
    parser.add_argument("-o", "--out", required=True, metavar="OUT",
                        help="the file to write, with {layout} in its name a file for each layout; a folder (ends "
                             "with /) for many; - for standard output")
    parser.add_argument("--to", metavar="EXT", help="the format, as an extension; by default that of OUT")
    page = parser.add_argument_group("what is drawn, and how")
    page.add_argument("--layout", "--layouts", action="append", dest="layouts", metavar="NAME",
                      help="a layout to draw, or a pattern; repeat for more (default: Model)")
    page.add_argument("--layer", "--layers", action="append", dest="layers", metavar="NAME",
                      help="a layer to draw, or a pattern; repeat for more (default: all)")
    page.add_argument("--size", metavar="WxH", help="page: 1600x1200 or 1600x (pixels, points), 420x297mm, 11x17in")
    page.add_argument("--paper", metavar="NAME", help="paper: A4, A3-portrait, letter, ARCH-D")
    page.add_argument("--dpi", type=float, metavar="N", help="pixels per inch (default: 150 for images on paper)")
    page.add_argument("--background", metavar="COLOR", help="colour of the background: black, #202428")
    page.add_argument("--color-mode", metavar="MODE", help="object, or one colour for all, such as black")
    page.add_argument("--fonts", action="append", default=[], metavar="PATH",
                      help="a folder with fonts or a shape font; repeat for more")
    page.add_argument("--release", metavar="R", help="release of DXF and DWG: R2000, R2018")
    page.add_argument("--set", action="append", default=[], dest="settings", metavar="CLASS.MEMBER=VALUE",
                      help="any option of the library; repeat for more")
    parser.add_argument("-f", "--force", action="store_true", help="replace files that exist")
    parser.add_argument("--tolerant", action="store_true", help="leave damaged objects out")
    parser.add_argument("--timeout", type=float, metavar="S", help="seconds that a file may take")
    parser.add_argument("-j", "--jobs", type=int, default=1, metavar="N",
                        help="work in N processes, where a file that crashes fails alone; 0 for one a processor")
    parser.add_argument("--memory", type=int, metavar="MIB",
                        help="memory that a file may take in MiB, with what a process takes (about 120)")
    parser.add_argument("-v", "--verbose", action="store_true", help="list what was left out or approximated")
    parser.add_argument("-q", "--quiet", action="store_true", help="print errors only")
    add_json(parser)


def parse_settings(given: list[str]) -> dict[str, str]:
    """The settings of ``--set``."""
    settings: dict[str, str] = {}
    for one in given:
        key, equals, value = one.partition("=")
        if not equals or "." not in key:
            raise Usage(f"--set {one}: write CLASS.MEMBER=VALUE")
        settings[key] = value
    return settings


def _target(arguments: argparse.Namespace) -> str:
    """Where to write: a folder for more than one file."""
    target: str = arguments.out
    if target == "-":
        if len(arguments.files) > 1 or arguments.to is None:
            raise Usage("standard output takes one file, and its format by --to")
        return "/dev/stdout"
    if len(arguments.files) > 1 and not target.endswith("/") and not os.path.isdir(target):
        raise Usage(f"{target} is not a folder, but there are {len(arguments.files)} files: write {target}/")
    return target


def _check(arguments: argparse.Namespace) -> None:
    """Refuses what is wrong for each of the files, before any is read."""
    from korvan.tools.errors import ToolError
    from korvan.tools.formats import find_target
    from korvan.tools.pages import paper_size, parse_size
    from korvan.tools.settings import Settings, parse_color

    try:
        find_target(arguments.out, arguments.to).make_options(arguments.release)
        Settings(parse_settings(arguments.settings))
        if arguments.size is not None:
            parse_size(arguments.size)
        if arguments.paper is not None:
            paper_size(arguments.paper, is_wide=True)
        for color in (arguments.background, arguments.color_mode):
            if color is not None and color != "object":
                parse_color(color)
    except ToolError as failure:
        raise Usage(str(failure)) from failure


def _report(arguments: argparse.Namespace, source: str, done: ConversionResult) -> None:
    from korvan.tools.printing import one_line

    if arguments.json:
        print_json({"source": source, "output": str(done.output), "outputs": list(map(str, done.outputs)),
                    "format": done.format, "seconds": round(done.seconds, 4), "warnings": done.warnings,
                    "fonts": done.fonts})
    elif not arguments.quiet:
        notes = [*done.warnings, *(f"font {font.replace(': ', ' is replaced by ', 1)}" for font in done.fonts)]
        names = ", ".join(map(one_line, done.outputs))
        size = size_text(sum(output.stat().st_size for output in done.outputs))
        plural = "s" if len(notes) > 1 else ""
        count = f", {len(notes)} note{plural} (-v lists them)" if notes and not arguments.verbose else ""
        show(f"{one_line(source)} -> {names} ({size}, {done.seconds:.2f} s{count})")
        for note in notes if arguments.verbose else ():
            show(f"  {note}")


def _tasks(arguments: argparse.Namespace, target: str) -> Iterator[tuple[str, str, dict[str, Any]]]:
    """Source, target and options of each conversion; a target that is there twice fails here."""
    from korvan.tools.conversion import output_path

    options: dict[str, Any] = {
        name: getattr(arguments, name) for name in (
            "to", "layouts", "layers", "size", "paper", "dpi", "background", "color_mode", "fonts", "release", "force",
            "tolerant", "timeout")}
    options["settings"] = parse_settings(arguments.settings)
    written: dict[str, str] = {}
    for source in arguments.files:
        path = str(output_path(source, target, arguments.to))
        if path in written and len(arguments.files) > 1:
            raise Usage(f"{source} and {written[path]} would both become {path}")
        written[path] = source
        yield source, target, options


def convert_task(task: tuple[str, str, dict[str, Any]]) -> ConversionResult:
    """One conversion, for worker processes too."""
    from korvan.tools.conversion import convert

    source, target, options = task
    return convert(source, target, **options)


def _outcomes(tasks: list[tuple[str, str, dict[str, Any]]], jobs: int, memory: int | None
              ) -> Iterator[tuple[str, ConversionResult | None, str]]:
    """Source, result and error of each conversion as they come."""
    from korvan.tools.errors import ToolError, message_of

    if memory is None and (jobs == 1 or len(tasks) == 1):
        for task in tasks:
            try:
                yield task[0], convert_task(task), ""
            except (ToolError, RuntimeError, OSError) as failure:
                yield task[0], None, message_of(failure)
        return
    from korvan.tools.pool import Pool

    timeout = tasks[0][2]["timeout"]
    # The conversion ends itself in time where it can; the pool ends what does not.
    deadline = timeout + 5 if timeout is not None else None
    with Pool(jobs or None, deadline=deadline, memory=memory) as pool:
        for outcome in pool.map(convert_task, tasks):
            yield outcome.task[0], outcome.value, outcome.error


def run(arguments: argparse.Namespace) -> int:
    target = _target(arguments)
    _check(arguments)
    if arguments.jobs < 0:
        raise Usage(f"--jobs {arguments.jobs}: write 1 or more, or 0 for one a processor")
    if arguments.memory is not None and arguments.memory < 1:
        raise Usage(f"--memory {arguments.memory}: write a number of MiB, such as 1000")
    if arguments.timeout is not None and arguments.timeout <= 0:
        raise Usage(f"--timeout {arguments.timeout:g}: write more than 0 seconds")
    if target.endswith("/"):
        os.makedirs(target, exist_ok=True)
    tasks = list(_tasks(arguments, target))
    to_stdout = arguments.out == "-"
    memory = arguments.memory << 20 if arguments.memory is not None else None
    progress = Progress(len(tasks))
    failed = 0
    for source, done, error in _outcomes(tasks, arguments.jobs, memory):
        progress.clear()
        if done is None:
            failed += 1
            if to_stdout and error.endswith(os.strerror(errno.EPIPE)):
                break  # the reader has enough
            fail(source, error + ("; korvan batch converts folders" if os.path.isdir(source) else ""))
            if arguments.json and not to_stdout:
                print_json({"source": source, "error": error})
        elif not to_stdout:
            _report(arguments, source, done)
        sys.stdout.flush()
        progress.step(source)
    progress.clear()
    return 1 if failed else 0
