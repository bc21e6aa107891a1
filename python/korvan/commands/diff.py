"""``korvan diff``: what differs between two drawings."""

from __future__ import annotations

import argparse
import os
from typing import TYPE_CHECKING, Any

from korvan.commands.common import Usage, add_json, fail, parser_for, print_json, show

if TYPE_CHECKING:
    from korvan.tools.comparison import Difference

_EXAMPLES = """  korvan diff old.dxf new.dxf
  korvan diff old.dxf new.dxf --overlay diff.png      red: only old, blue: only new
  korvan diff old.dxf new.dwg --summary --exit-code   exit code 1 if they differ
  korvan diff old.ifc new.ifc --json | jq .differences
"""
_SIGNS = {"added": "+", "removed": "-", "changed": "~"}


def add_parser(subparsers: Any) -> None:
    parser = parser_for(subparsers, "diff", "Lists what differs between two drawings, or two building models.",
                        _EXAMPLES)
    parser.add_argument("before", metavar="A", help="the first drawing")
    parser.add_argument("after", metavar="B", help="the second drawing")
    parser.add_argument("--overlay", metavar="PNG", help="write an image of both over each other")
    parser.add_argument("--width", type=int, default=1600, metavar="N", help="its width in pixels (default: 1600)")
    parser.add_argument("--digits", type=int, default=6, metavar="N",
                        help="decimals that numbers are compared by (default: 6)")
    parser.add_argument("--summary", action="store_true", help="print counts only")
    parser.add_argument("--exit-code", action="store_true", help="end with 1 if there are differences")
    parser.add_argument("-f", "--force", action="store_true", help="replace an image that exists")
    add_json(parser)


def _short(value: object) -> str:
    text = f"{value:g}" if isinstance(value, float) else str(value)
    return text if len(text) <= 60 else text[:57] + "..."


def _print(found: list[Difference], summary: bool) -> None:
    for one in () if summary else found:
        place = ", ".join(part for part in (one.place, one.layer) if part)
        show(f"{_SIGNS[one.change]} {one.kind} {one.name}" + (f"  ({place})" if place else ""))
        for name, (before, after) in one.values.items():
            show(f"    {name}: {_short(before)} -> {_short(after)}")
    counts = [f"{sum(one.change == change for one in found)} {change}" for change in _SIGNS]
    show("no differences" if not found else ", ".join(counts))


def _write_overlay(arguments: argparse.Namespace) -> None:
    from korvan.tools.comparison import overlay
    from korvan.tools.files import write_file

    write_file(arguments.overlay, overlay(arguments.before, arguments.after, width=arguments.width))


def run(arguments: argparse.Namespace) -> int:
    from korvan.tools import open_drawing
    from korvan.tools.comparison import differences
    from korvan.tools.errors import ToolError

    if arguments.overlay is not None and os.path.splitext(arguments.overlay)[1].lower() not in ("", ".png"):
        raise Usage(f"--overlay {arguments.overlay}: the image is a PNG file, so write a name that ends with .png")
    if arguments.overlay is not None and os.path.isfile(arguments.overlay) and not arguments.force:
        fail(arguments.overlay, "exists; --force replaces it")
        return 1
    path = arguments.before
    try:
        with open_drawing(path, tolerant=True) as before:
            path = arguments.after
            with open_drawing(path, tolerant=True) as after:
                found = differences(before, after, digits=arguments.digits)
        if arguments.overlay is not None:
            path = arguments.overlay
            _write_overlay(arguments)
    except (ToolError, RuntimeError, OSError) as failure:
        fail(path, failure)
        return 1
    if arguments.json:
        print_json({"before": arguments.before, "after": arguments.after,
                    "differences": [vars(one) for one in found]})
    else:
        _print(found, arguments.summary)
    return 1 if found and arguments.exit_code else 0
