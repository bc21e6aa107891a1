"""``korvan texts``: searches the texts of drawings."""

from __future__ import annotations

import argparse
import re
import sys
from dataclasses import asdict
from fnmatch import fnmatchcase
from typing import Any

from korvan.commands.common import Usage, add_json, each, expand, parser_for, print_json, show

_EXAMPLES = """  korvan texts door plan.dxf               texts with "door"; case is ignored
  korvan texts 'DN *[0-9]+' archive/       a regular expression, in all drawings below a folder
  korvan texts '' plan.dxf                 all texts
  korvan texts --layer 'A-*' --kind MTEXT room plan.dxf
  korvan texts --count door *.dwg          how many there are in each
"""


def add_parser(subparsers: Any) -> None:
    parser = parser_for(subparsers, "texts", "Searches the texts of drawings, metafiles and building models.",
                        _EXAMPLES)
    parser.add_argument("pattern", metavar="PATTERN", help="a regular expression; '' for all texts")
    parser.add_argument("files", nargs="+", metavar="FILE",
                        help="drawings; a folder means the drawings in it and below")
    parser.add_argument("-F", "--fixed", action="store_true", help="the pattern is a plain string")
    parser.add_argument("-s", "--case-sensitive", action="store_true", help="distinguish upper and lower case")
    parser.add_argument("-c", "--count", action="store_true", help="print how many texts match")
    parser.add_argument("-l", "--list", action="store_true", help="print the names of files with a match")
    parser.add_argument("--layer", metavar="NAME", help="only on layers of this name or pattern")
    parser.add_argument("--kind", metavar="TYPE", help="only of this type: TEXT, MTEXT, ATTRIB")
    add_json(parser)


class _Search:
    """What is searched, and which layers and types the files have."""

    def __init__(self, pattern: re.Pattern[str], layer: str | None, kind: str | None) -> None:
        self.pattern = pattern
        self.layer = layer
        self.kind = kind
        self.layers: set[str] = set()
        self.kinds: set[str] = set()

    def find(self, path: str) -> list[Any]:
        from korvan.cad.fileformats.cad import CadImage
        from korvan.tools import open_drawing, texts

        found: list[Any] = []
        with open_drawing(path, tolerant=True) as image:
            if isinstance(image, CadImage):
                self.layers.update(image.layers.names)
            for text in texts(image):
                self.layers.add(text.layer)
                self.kinds.add(text.kind)
                if self._fits(text):
                    found.append(text)
        return found

    def _fits(self, text: Any) -> bool:
        return (self.pattern.search(text.text) is not None
                and (self.layer is None or fnmatchcase(text.layer.casefold(), self.layer.casefold()))
                and (self.kind is None or text.kind.casefold() == self.kind.casefold()))

    def check_names(self) -> None:
        """Refuses a layer or a type that no file has: it is misspelt."""
        from korvan.tools.errors import matching

        if self.layer is not None:
            matching("layer", [self.layer], sorted(filter(None, self.layers)))
        if self.kind is not None:
            matching("text of type", [self.kind], sorted(self.kinds))


def _print(arguments: argparse.Namespace, path: str, found: list[Any], pattern: re.Pattern[str]) -> None:
    from korvan.tools.printing import one_line, shown

    if arguments.json:
        print_json({"file": path, "texts": [asdict(text) for text in found]})
    elif arguments.count:
        show(f"{one_line(path)}: {len(found)}")
    elif arguments.list:
        print(one_line(path))
    else:
        colored = sys.stdout.isatty()
        for text in found:
            content = shown(" | ".join(text.text.split("\n")))
            if colored and pattern.pattern:
                content = pattern.sub(lambda match: f"\x1b[1;31m{match[0]}\x1b[0m", content)
            where = ", ".join(filter(None, (text.place, text.layer, f"{text.kind} {text.handle}".strip(), text.tag)))
            print(f"{one_line(path)}: {content}  ({shown(where)})")


def run(arguments: argparse.Namespace) -> int:
    try:
        pattern = re.compile(re.escape(arguments.pattern) if arguments.fixed else arguments.pattern,
                             0 if arguments.case_sensitive else re.IGNORECASE)
    except re.error as failure:
        raise Usage(f"{arguments.pattern!r} is no regular expression: {failure}; -F takes it as it is") from failure
    paths = list(expand(arguments.files))
    search = _Search(pattern, arguments.layer, arguments.kind)
    count = 0
    for path, found in each(paths, search.find):
        count += 1
        if found or arguments.count or arguments.json:
            _print(arguments, path, found, pattern)
    if count:
        search.check_names()
    return 1 if count < len(paths) else 0
