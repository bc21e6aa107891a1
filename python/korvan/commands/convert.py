"""``korvan convert``: drawings to pages, images, meshes and other drawings."""

from __future__ import annotations

import argparse
import os
import sys
from typing import TYPE_CHECKING, Any

from korvan.commands.common import Progress, Usage, add_json, fail, parser_for, print_json, size_text

if TYPE_CHECKING:
    from korvan.tools import ConversionResult

_EXAMPLES = """  korvan convert plan.dxf -o plan.pdf
  korvan convert plan.dxf -o plan.pdf --layout '*' --paper A3
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
                        help="the file to write; a folder (ends with /) for many; - for standard output")
    parser.add_argument("--to", metavar="EXT", help="the format, as an extension; by default that of OUT")
    page = parser.add_argument_group("what is drawn, and how")
    page.add_argument("--layout", action="append", dest="layouts", metavar="NAME",
                      help="a layout to draw, or a pattern; repeat for more (default: Model)")
    page.add_argument("--layer", action="append", dest="layers", metavar="NAME",
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
    if arguments.json:
        print_json({"source": source, "output": str(done.output), "format": done.format,
                    "seconds": round(done.seconds, 4), "warnings": done.warnings, "fonts": done.fonts})
    elif not arguments.quiet:
        notes = [*done.warnings, *(f"font {font}" for font in done.fonts)]
        size = size_text(done.output.stat().st_size)
        count = f", {len(notes)} notes (-v lists them)" if notes and not arguments.verbose else ""
        print(f"{source} -> {done.output} ({size}, {done.seconds:.2f} s{count})")
        for note in notes if arguments.verbose else ():
            print(f"  {note}")


def run(arguments: argparse.Namespace) -> int:
    target = _target(arguments)
    _check(arguments)
    if target.endswith("/"):
        os.makedirs(target, exist_ok=True)
    from korvan.tools.conversion import convert, output_path
    from korvan.tools.errors import ToolError

    to_stdout = arguments.out == "-"
    settings = parse_settings(arguments.settings)
    written: dict[str, str] = {}
    progress = Progress(len(arguments.files))
    failed = 0
    for source in arguments.files:
        try:
            path = str(output_path(source, target, arguments.to))
            if path in written:
                raise ToolError(f"{path} is the result of {written[path]} already")
            done = convert(
                source, path, to=arguments.to, layouts=arguments.layouts, layers=arguments.layers,
                size=arguments.size, paper=arguments.paper, dpi=arguments.dpi, background=arguments.background,
                color_mode=arguments.color_mode, fonts=arguments.fonts, release=arguments.release,
                settings=settings, force=arguments.force, tolerant=arguments.tolerant, timeout=arguments.timeout)
            written[path] = source
            progress.clear()
            if not to_stdout:
                _report(arguments, source, done)
        except (ToolError, RuntimeError, OSError) as failure:
            failed += 1
            progress.clear()
            fail(source, failure)
            if arguments.json and not to_stdout:
                print_json({"source": source, "error": str(failure)})
        sys.stdout.flush()
        progress.step(source)
    progress.clear()
    return 1 if failed else 0
