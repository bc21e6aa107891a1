"""``korvan blocks``: the blocks of drawings, and where they are used."""

from __future__ import annotations

import argparse
from collections import Counter
from functools import partial
from typing import Any

from korvan.commands.common import DRAWINGS, add_files, add_json, each, expand, parser_for, print_json, print_tables

_EXAMPLES = """  korvan blocks plan.dxf
  korvan blocks --unused *.dwg
  korvan blocks plan.dxf --attributes TITLE    the attributes of each reference, as CSV
  korvan blocks --json plan.dxf | jq '.blocks[] | select(.references > 10)'
"""
_HEADINGS = ("block", "references", "entities", "attributes", "base point")


def add_parser(subparsers: Any) -> None:
    parser = parser_for(subparsers, "blocks", "Lists the blocks of drawings: how often they are used, and for what.",
                        _EXAMPLES)
    add_files(parser)
    parser.add_argument("--unused", action="store_true", help="only blocks without references")
    parser.add_argument("--attributes", metavar="NAME",
                        help="print the attributes of the references to a block, or a pattern, as CSV")
    add_json(parser)


def _references(drawing: Any) -> Counter[str]:
    """How many references there are to each block, in layouts and in other blocks."""
    from korvan.tools import query

    return Counter(reference.name.casefold() for reference in query(drawing, "INSERT", layout="*", block="*"))


def _find(path: str, unused: bool) -> list[dict[str, Any]]:
    from korvan.cad.fileformats.cad import CadImage
    from korvan.tools import blocks, cast, open_drawing

    with open_drawing(path, CadImage, tolerant=True) as drawing:
        used = _references(drawing)
        found: list[dict[str, Any]] = []
        for block in blocks(drawing):
            count = used[block.name.casefold()]
            if unused and count:
                continue
            tags = [cast(one).definition_tag_string for one in block.entities if one.type_name_text == "ATTDEF"]
            point = block.base_point
            found.append({"name": block.name, "references": count, "entities": len(block.entities),
                          "attributes": tags, "base_point": [point.x, point.y, point.z],
                          "is_external_reference": block.is_external_reference, "path": block.x_ref_path_name,
                          "description": block.description})
        return found


def _attributes(path: str, name: str) -> list[dict[str, str]]:
    from korvan.cad.fileformats.cad import CadImage
    from korvan.tools import blocks, open_drawing, query
    from korvan.tools.errors import matching

    with open_drawing(path, CadImage, tolerant=True) as drawing:
        names = {one.casefold() for one in matching("block", [name], [block.name for block in blocks(drawing)])}
        rows: list[dict[str, str]] = []
        for reference in query(drawing, "INSERT", layout="*", block="*"):
            if reference.name.casefold() in names and len(reference.attributes):
                point = reference.insertion_point
                rows.append({"file": path, "block": reference.name, "handle": reference.unique_id,
                             "layer": reference.layer_name, "x": f"{point.x:g}", "y": f"{point.y:g}",
                             **{one.definition_tag_string: one.default_value for one in reference.attributes}})
        return rows


def _row(block: dict[str, Any]) -> tuple[object, ...]:
    name = f"{block['name']} -> {block['path']}" if block["is_external_reference"] else block["name"]
    point = ", ".join(f"{one:g}" for one in block["base_point"][:2])
    return name, block["references"], block["entities"], " ".join(block["attributes"]), point


def _run_attributes(arguments: argparse.Namespace, paths: list[str]) -> int:
    from korvan.commands.properties import write_csv

    rows: list[dict[str, str]] = []
    count = 0
    for path, found in each(paths, partial(_attributes, name=arguments.attributes)):
        count += 1
        if arguments.json:
            print_json({"file": path, "references": found})
        rows += found
    if not arguments.json:
        write_csv(rows)
    return 1 if count < len(paths) else 0


def run(arguments: argparse.Namespace) -> int:
    paths = list(expand(arguments.files, DRAWINGS))
    if arguments.attributes is not None:
        return _run_attributes(arguments, paths)
    find = partial(_find, unused=arguments.unused)
    return print_tables(paths, find, "blocks", _row, _HEADINGS, as_json=arguments.json)
