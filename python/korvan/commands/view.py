"""``korvan view``: shows a drawing in the browser."""

from __future__ import annotations

import argparse
import sys
import time
from pathlib import Path
from typing import Any

from korvan.commands.common import add_json, fail, parser_for, print_json, size_text

_EXAMPLES = """  korvan view plan.dwg                     open it in the browser; Ctrl+C ends
  korvan view plan.dwg -o plan.html        write a page that works without network, to be sent
  korvan view plan.dxf --layout "Plot 1"   only this layout
"""


def add_parser(subparsers: Any) -> None:
    parser = parser_for(subparsers, "view", "Shows a drawing in the browser: layers, layouts, search, measuring.",
                        _EXAMPLES)
    parser.add_argument("file", metavar="FILE", help="a drawing, a metafile or an image")
    parser.add_argument("-o", "--out", "--output", metavar="PAGE", dest="output",
                        help="write the page to a file, or to standard output (-), and serve nothing")
    parser.add_argument("-f", "--force", action="store_true", help="replace a page that exists")
    parser.add_argument("--layout", "--layouts", dest="layout", action="append", metavar="NAME",
                        help="show only this layout; may be repeated")
    parser.add_argument("--title", help="the title of the page; the name of the file by default")
    parser.add_argument("--no-browser", action="store_true", help="print the address and open no browser")
    parser.add_argument("--port", type=int, default=0, help="the port on 127.0.0.1; a free one by default")
    add_json(parser)


def run(arguments: argparse.Namespace) -> int:
    """Writes or serves the page. Returns 0, or 1 if the file cannot be shown."""
    from korvan.viewer import build_page

    target = None if arguments.output is None else Path(arguments.output)
    if target is not None and arguments.output != "-" and target.is_file() and not arguments.force:
        fail(target, "exists; --force replaces it")
        return 1
    started = time.monotonic()
    try:
        page = build_page(arguments.file, title=arguments.title, layouts=arguments.layout).encode()
    except (OSError, RuntimeError) as failure:
        fail(arguments.file, failure)
        return 1
    seconds = round(time.monotonic() - started, 3)
    if target is None:
        return _serve(page, arguments, seconds)
    return _write(page, target, arguments, seconds)


def _write(page: bytes, target: Path, arguments: argparse.Namespace, seconds: float) -> int:
    from korvan.tools.files import write_file
    from korvan.tools.printing import one_line

    if arguments.output == "-":
        sys.stdout.buffer.write(page)
        return 0
    try:
        write_file(target, page)
    except OSError as failure:
        fail(target, failure)
        return 1
    if arguments.json:
        print_json({"page": str(target), "bytes": len(page), "seconds": seconds})
    else:
        print(f"{one_line(target)}  {size_text(len(page))}  {seconds:.2f} s")
    return 0


def _serve(page: bytes, arguments: argparse.Namespace, seconds: float) -> int:
    import webbrowser

    from korvan.viewer import PageServer

    try:
        with PageServer(page, arguments.port) as server:
            if arguments.json:
                print_json({"url": server.url, "bytes": len(page), "seconds": seconds})
            else:
                print(f"{server.url}  (Ctrl+C ends)")
            sys.stdout.flush()
            if not arguments.no_browser:
                webbrowser.open(server.url)
            server.wait()
    except OSError as failure:
        fail(f"port {arguments.port}", failure)
        return 1
    except KeyboardInterrupt:
        print(file=sys.stderr)
    return 0
