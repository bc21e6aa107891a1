"""``korvan properties``: property sets and quantities of building models as CSV."""

from __future__ import annotations

import argparse
import csv
import sys
from collections.abc import Iterable, Mapping
from functools import partial
from typing import Any

from korvan.commands.common import MODELS, add_files, add_json, each, expand, parser_for, print_json

_EXAMPLES = """  korvan properties house.ifc > house.csv
  korvan properties house.ifc --type IfcWall --set 'Pset_*'
  korvan properties house.ifc --type IfcDoor --wide      one row an element, one column a property
  korvan properties --json house.ifc | jq '.elements[] | .sets.Pset_WallCommon'
"""


def add_parser(subparsers: Any) -> None:
    parser = parser_for(subparsers, "properties", "Writes property sets and quantities of building models as CSV.",
                        _EXAMPLES)
    add_files(parser, "building models")
    parser.add_argument("--type", default="IfcElement", metavar="ENTITY",
                        help="elements of this entity and of those derived from it (default: IfcElement)")
    parser.add_argument("--set", metavar="NAME", help="only sets of this name or pattern")
    parser.add_argument("--own", action="store_true", help="leave out what an element has from its type")
    parser.add_argument("--wide", action="store_true", help="one row an element, one column a property")
    add_json(parser)


def write_csv(rows: Iterable[Mapping[str, object]]) -> None:
    """Rows as CSV, with a column for each key of any row. Texts that begin as formulas do stay texts."""
    from korvan.tools.printing import cell

    listed = list(rows)
    columns = list(dict.fromkeys(key for row in listed for key in row))
    if columns:
        writer = csv.writer(sys.stdout, lineterminator="\n")
        writer.writerow([cell(column) for column in columns])
        writer.writerows([cell(row.get(column, "")) for column in columns] for row in listed)


def _find(path: str, kind: str, wanted: str | None, own: bool, known: set[str]) -> list[dict[str, Any]]:
    from fnmatch import fnmatchcase

    from korvan.cad.fileformats.ifc import IfcImage
    from korvan.tools import open_drawing
    from korvan.tools.properties import elements, property_sets

    with open_drawing(path, IfcImage) as model:
        found: list[dict[str, Any]] = []
        for element in elements(model, kind):
            sets = property_sets(element, inherited=not own)
            known.update(sets)
            if wanted is not None:
                sets = {name: one for name, one in sets.items() if fnmatchcase(name.casefold(), wanted.casefold())}
            found.append({"entity": element.entity_name, "name": element.get_attribute("Name") or "",
                          "global_id": element.get_attribute("GlobalId") or "", "sets": sets})
        return found


def _text(value: object) -> object:
    """A value as the content of a cell."""
    if value is None:
        return ""
    if isinstance(value, list):
        return "; ".join(str(_text(item)) for item in value)  # type: ignore[reportUnknownVariableType]
    return value


def _rows(path: str, found: list[dict[str, Any]], wide: bool) -> Iterable[dict[str, object]]:
    for element in found:
        head: dict[str, object] = {"file": path, "entity": element["entity"], "name": element["name"],
                                   "global_id": element["global_id"]}
        values = [(name, key, _text(value)) for name, one in element["sets"].items() for key, value in one.items()]
        if wide:
            yield head | {f"{name}.{key}": value for name, key, value in values}
        else:
            yield from (head | {"set": name, "property": key, "value": value} for name, key, value in values)


def run(arguments: argparse.Namespace) -> int:
    paths = list(expand(arguments.files, MODELS))
    rows: list[dict[str, object]] = []
    count = 0
    known: set[str] = set()
    work = partial(_find, kind=arguments.type, wanted=arguments.set, own=arguments.own, known=known)
    for path, found in each(paths, work):
        count += 1
        if arguments.json:
            print_json({"file": path, "elements": found})
        else:
            rows.extend(_rows(path, found, arguments.wide))
    if count and arguments.set is not None:
        from korvan.tools.errors import matching

        matching("property set", [arguments.set], sorted(known))
    if not arguments.json:
        write_csv(rows)
    return 1 if count < len(paths) else 0
