"""Puts a page together: one HTML document with its styles, scripts and data, which loads nothing.

What a drawing says is never markup: names and texts lie in compressed blocks, which the scripts of the
page read and set as text. A policy in the page forbids other scripts, styles and all connections.
"""

from __future__ import annotations

import base64
import gzip
import hashlib
import html
import json
import os
from collections.abc import Sequence
from dataclasses import asdict
from functools import cache
from importlib.resources import files
from string import Template

from korvan.tools.files import write_file
from korvan.viewer.contents import Contents, read_contents

_STYLE = ("page.css",)
_ENGINE = ("markup.js", "geometry.js", "scene.js", "painter.js", "engine.js")
_SCRIPT = ("camera.js", "measure.js", "picking.js", "panels.js", "main.js")


def build_page(
    source: str | os.PathLike[str], *, title: str | None = None, layouts: Sequence[str] | None = None
) -> str:
    """Gives the page of a file.

    :param source: The path of a drawing, a metafile or an image.
    :param title: The title of the page; the name of the file by default.
    :param layouts: Names of the layouts to show, in order; all of them by default.
    :raises ViewerError: The file has no 2D content, or not the layouts.
    :raises RuntimeError: The file cannot be read.
    """
    contents = read_contents(source, layouts)
    if title is not None:
        contents.title = title
    return render_page(contents)


def write_page(
    source: str | os.PathLike[str],
    target: str | os.PathLike[str],
    *,
    title: str | None = None,
    layouts: Sequence[str] | None = None,
) -> None:
    """Writes the page of a file, as ``build_page`` gives it."""
    page = build_page(source, title=title, layouts=layouts)
    write_file(target, page.encode())


def render_page(contents: Contents) -> str:
    """Gives the page of what was read."""
    style, engine, script = _asset(*_STYLE), _asset(*_ENGINE), _asset(*_SCRIPT)
    blocks = [_block("contents", gzip.compress(_description(contents).encode(), mtime=0))]
    blocks += [_block(f"layout-{i}", layout.data) for i, layout in enumerate(contents.layouts)]
    blocks += [_block(f"entities-{i}", layout.entities) for i, layout in enumerate(contents.layouts) if layout.entities]
    return Template(_asset("page.html")).substitute(
        policy=_policy(style, script),
        title=html.escape(contents.title),
        style=style,
        blocks="\n".join(blocks),
        engine=engine,
        script=script,
    )


def _description(contents: Contents) -> str:
    """What the scripts read first."""
    layouts = contents.layouts
    first = next((i for i, layout in enumerate(layouts) if not layout.message), 0)
    return json.dumps(
        {
            "title": contents.title,
            "first": first,
            "layers": [{"name": layer.name, "visible": layer.visible} for layer in contents.layers],
            "layouts": [
                {
                    "name": layout.name,
                    "isImage": layout.is_image,
                    "isSheet": layout.is_sheet,
                    "unit": layout.unit,
                    "viewports": [asdict(viewport) for viewport in layout.viewports],
                    "message": layout.message,
                }
                for layout in layouts
            ],
            "notes": contents.notes,
        }
    )


def _block(name: str, data: bytes) -> str:
    """Data that the browser does not run: its type is none of a script."""
    return f'<script type="application/octet-stream" id="{name}">{base64.b64encode(data).decode()}</script>'


@cache
def _asset(*names: str) -> str:
    folder = files("korvan.viewer") / "assets"
    return "".join((folder / name).read_text(encoding="utf-8") for name in names)


def _policy(style: str, script: str) -> str:
    """The page's own style and script, its worker and its images; nothing else, and no connection."""

    def digest(text: str) -> str:
        return "'sha256-" + base64.b64encode(hashlib.sha256(text.encode()).digest()).decode() + "'"

    return "; ".join(
        [
            "default-src 'none'",
            f"script-src {digest(script)}",
            f"style-src {digest(style)}",
            "worker-src blob:",
            "img-src data: blob:",
            "base-uri 'none'",
            "form-action 'none'",
        ]
    )
