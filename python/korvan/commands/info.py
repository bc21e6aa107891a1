"""``korvan info``: what is in a drawing."""

from __future__ import annotations

import argparse
from collections.abc import Mapping, Sequence
from functools import partial
from typing import Any

from korvan.commands.common import add_files, add_json, each, expand, parser_for, print_json, show, show_name, size_text

_EXAMPLES = """  korvan info plan.dxf
  korvan info --quick archive/            every drawing below a folder, without rendering
  korvan info --json plan.dxf | jq .extents
"""
_SHOWN = 12


def add_parser(subparsers: Any) -> None:
    parser = parser_for(subparsers, "info", "Shows what is in drawings: release, units, extents, layers, fonts.",
                        _EXAMPLES)
    add_files(parser)
    parser.add_argument("--quick", action="store_true",
                        help="do not render: fonts that are replaced and what is not drawn stay unknown")
    add_json(parser)


def _list(items: Sequence[str]) -> str:
    more = f" and {len(items) - _SHOWN} more" if len(items) > _SHOWN else ""
    return ", ".join(items[:_SHOWN]) + more


def _layer(layer: Mapping[str, Any]) -> str:
    off = "off" if not layer["is_on"] else "frozen" if layer["is_frozen"] else ""
    return f"{layer['name']} ({off})" if off else str(layer["name"])


def _length(value: float) -> str:
    """A length with the digits that count: coordinates of maps in full, small ones with decimals."""
    return f"{value:.0f}" if 1e5 <= abs(value) < 1e12 else f"{value:g}"


def _extents(found: Mapping[str, Any]) -> str:
    low, high = found["extents"]["min"], found["extents"]["max"]
    size = " x ".join(_length(b - a) for a, b in zip(low, high, strict=True) if b - a or len(low) == 2)
    corners = " to ".join("(" + ", ".join(map(_length, corner)) + ")" for corner in (low, high))
    if not size and not any(found.get("entities", {}).values()):
        return "none"
    units = "" if found["units"] == "unitless" else f" {found['units']}"
    return f"{size or 0}{units}, {corners}"


def lines(found: Mapping[str, Any]) -> list[tuple[str, str]]:
    """Labels and texts for people."""
    release = found.get("release", "")
    name = release if release.startswith(found["format"]) else f"{found['format']} {release}".strip()  # IFC, IFC4
    rows = [("format", f"{name}, {size_text(found['bytes'])}")]
    rows += [(key, str(found[key])) for key in ("title", "author", "software") if found.get(key)]
    if "size" in found:
        width, height = found["size"]
        rows.append(("size", f"{width} x {height} pixels, {found['bits_per_pixel']} bits, {found['dpi'][0]:g} dpi"))
        rows.append(("pages", str(found["pages"])))
    if "extents" in found:
        rows.append(("extents", _extents(found)))
    if "layouts" in found:
        rows.append(("layouts", _list([str(one["name"]) for one in found["layouts"]])))
    if "layers" in found:
        rows.append((f"layers ({len(found['layers'])})", _list([_layer(one) for one in found["layers"]])))
        rows.append(("blocks", str(found["blocks"])))
    if "entities" in found:
        counts = found["entities"]
        rows.append((f"entities ({sum(counts.values())})", _list([f"{name} {n}" for name, n in counts.items()])))
    if found["fonts"]:
        rows.append(("fonts", _list([one["name"] + (f" (replaced by {one['replaced_by']})" if one["replaced_by"]
                                                    else "") for one in found["fonts"]])))
    rows += [("not drawn", text) for text in found["not_drawn"]]
    rows += [("defect", text) for text in found["defects"]]
    return rows


def run(arguments: argparse.Namespace) -> int:
    from korvan.tools.description import describe

    paths = list(expand(arguments.files))
    count = 0
    for path, found in each(paths, partial(describe, render=not arguments.quick)):
        if arguments.json:
            print_json(found)
        else:
            show_name(path, is_first=not count)
            rows = lines(found)
            width = max(len(label) for label, _ in rows)
            for label, text in rows:
                show(f"  {label:<{width}}  {text}".rstrip())
        count += 1
    return 1 if count < len(paths) else 0
