"""``korvan view``: shows a drawing in the browser."""

from __future__ import annotations

import argparse
import json
import sys
import time
from pathlib import Path
from typing import TYPE_CHECKING

if TYPE_CHECKING:
    # The type that argparse gives to parsers has no public name.
    Subparsers = argparse._SubParsersAction[argparse.ArgumentParser]

_EXAMPLES = """\
examples:
  korvan view plan.dwg                     open it in the browser; Ctrl+C ends
  korvan view plan.dwg -o plan.html        write a page that works without network, to be sent
  korvan view plan.dxf --layout "Plot 1"   only this layout
"""


def add_parser(subparsers: Subparsers) -> None:
    """Adds the command to the parser of all commands."""
    parser = subparsers.add_parser(
        "view",
        help="show a drawing in the browser",
        description="Writes one HTML page with layers, layouts, text search and measuring, and shows it.",
        epilog=_EXAMPLES,
        formatter_class=argparse.RawDescriptionHelpFormatter,
    )
    parser.add_argument("file", help="a drawing, a metafile or an image")
    parser.add_argument("-o", "--output", metavar="PAGE", type=Path, help="write the page to a file and serve nothing")
    parser.add_argument("--layout", action="append", metavar="NAME", help="show only this layout; may be repeated")
    parser.add_argument("--title", help="the title of the page; the name of the file by default")
    parser.add_argument("--no-browser", action="store_true", help="print the address and open no browser")
    parser.add_argument("--port", type=int, default=0, help="the port on 127.0.0.1; a free one by default")
    parser.add_argument("--json", action="store_true", help="print the result as JSON")
    parser.set_defaults(run=run)


def run(arguments: argparse.Namespace) -> int:
    """Writes or serves the page. Returns 0, or 1 if the file cannot be shown."""
    from korvan.viewer import build_page

    started = time.monotonic()
    try:
        page = build_page(arguments.file, title=arguments.title, layouts=arguments.layout)
        if arguments.output is not None:
            arguments.output.write_text(page, encoding="utf-8", newline="\n")
    except (OSError, RuntimeError) as error:
        print(f"korvan view: {arguments.file}: {error}", file=sys.stderr)
        return 1
    seconds = round(time.monotonic() - started, 3)
    if arguments.output is None:
        return _serve(page, arguments, seconds)
    if arguments.json:
        print(json.dumps({"page": str(arguments.output), "bytes": len(page), "seconds": seconds}))
    else:
        print(f"{arguments.output}  {len(page) / 1e6:.1f} MB  {seconds:.2f} s")
    return 0


def _serve(page: str, arguments: argparse.Namespace, seconds: float) -> int:
    import webbrowser

    from korvan.viewer import PageServer

    try:
        with PageServer(page, arguments.port) as server:
            if arguments.json:
                print(json.dumps({"url": server.url, "bytes": len(page), "seconds": seconds}), flush=True)
            else:
                print(f"{server.url}  (Ctrl+C ends)", flush=True)
            if not arguments.no_browser:
                webbrowser.open(server.url)
            server.wait()
    except OSError as error:
        print(f"korvan view: port {arguments.port}: {error}", file=sys.stderr)
        return 1
    except KeyboardInterrupt:
        print(file=sys.stderr)
    return 0
