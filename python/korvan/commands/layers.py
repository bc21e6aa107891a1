"""``korvan layers``: the layers of drawings."""

from __future__ import annotations

import argparse
from functools import partial
from typing import Any

from korvan.commands.common import DRAWINGS, add_files, add_json, expand, parser_for, print_tables

_EXAMPLES = """  korvan layers plan.dxf
  korvan layers plan.dxf --match 'WALL*'
  korvan layers --empty *.dxf              layers without entities
  korvan layers --json plan.dxf | jq -r '.layers[].name'
"""
_HEADINGS = ("layer", "entities", "state", "colour", "line type", "weight", "plotted")


def add_parser(subparsers: Any) -> None:
    parser = parser_for(subparsers, "layers", "Lists the layers of drawings, with how many entities are on each.",
                        _EXAMPLES)
    add_files(parser)
    parser.add_argument("--match", metavar="NAME", help="only layers of this name or pattern")
    parser.add_argument("--empty", action="store_true", help="only layers without entities")
    add_json(parser)


def _find(path: str, match: str | None, empty: bool) -> list[dict[str, Any]]:
    from korvan.cad.fileformats.cad import CadImage
    from korvan.tools import open_drawing
    from korvan.tools.description import layers
    from korvan.tools.errors import matching

    with open_drawing(path, CadImage, tolerant=True) as drawing:
        found = layers(drawing)
        names = set(matching("layer", [match], [one["name"] for one in found])) if match else None
        return [one for one in found if (names is None or one["name"] in names) and not (empty and one["entities"])]


def _row(layer: dict[str, Any]) -> tuple[object, ...]:
    states = [name for name, is_so in (("off", not layer["is_on"]), ("frozen", layer["is_frozen"]),
                                       ("locked", layer["is_locked"])) if is_so]
    weight = layer["line_weight"]
    return (layer["name"], layer["entities"], " ".join(states) or "on", layer["color"], layer["line_type"],
            f"{weight / 100:.2f} mm" if weight >= 0 else "default", "yes" if layer["is_plottable"] else "no")


def run(arguments: argparse.Namespace) -> int:
    paths = list(expand(arguments.files, DRAWINGS))
    find = partial(_find, match=arguments.match, empty=arguments.empty)
    return print_tables(paths, find, "layers", _row, _HEADINGS, as_json=arguments.json)
