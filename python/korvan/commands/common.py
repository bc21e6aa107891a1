"""What the commands share: errors, JSON, progress, lists of files."""

from __future__ import annotations

import argparse
import os
import sys
import time
from collections.abc import Callable, Iterable, Iterator, Sequence
from typing import Any, TypeVar

Item = TypeVar("Item")
DRAWINGS = (".dxf", ".dwg", ".dwt")
MODELS = (".ifc", ".ifczip", ".ifcxml")
EXTENSIONS = (*DRAWINGS, *MODELS, ".cgm")


class Usage(Exception):
    """Wrong usage that the parser cannot see: it ends the command with exit code 2."""


def show(text: str) -> None:
    """Prints text that may come from a file, without its control sequences."""
    from korvan.tools.printing import shown

    print(shown(text))


def show_name(path: str, *, is_first: bool) -> None:
    """Prints the name of a file above what is said of it."""
    from korvan.tools.printing import one_line

    print(("" if is_first else "\n") + one_line(path))


def fail(path: object, failure: BaseException | str) -> None:
    """Prints an error about a file: one line on stderr."""
    from korvan.tools.errors import message_of, without_name
    from korvan.tools.printing import one_line

    text = failure if isinstance(failure, str) else message_of(failure)
    text = without_name(text, str(path))
    print(f"korvan: {one_line(path)}: {one_line(text)}", file=sys.stderr)


def print_json(value: object) -> None:
    """Prints a JSON document on a line of its own."""
    import json

    show(json.dumps(value, default=str, ensure_ascii=False))


def add_json(parser: argparse.ArgumentParser) -> None:
    parser.add_argument("--json", action="store_true", help="print JSON: one document a line, one line a file")


def add_files(parser: argparse.ArgumentParser, what: str = "drawings") -> None:
    parser.add_argument("files", nargs="+", metavar="FILE", help=f"{what}; a folder means the drawings in it and below")


def expand(paths: Iterable[str], extensions: tuple[str, ...] = EXTENSIONS) -> Iterator[str]:
    """The files, and those with the extensions in folders and below, in the order of their names."""
    for path in paths:
        if not os.path.isdir(path):
            yield path
            continue
        count = 0
        for folder, folders, names in os.walk(path):
            folders.sort()
            for name in sorted(names):
                file = os.path.join(folder, name)
                # A link that leads nowhere is an error of that file; a pipe would be waited for.
                if name.lower().endswith(extensions) and (os.path.isfile(file) or os.path.islink(file)):
                    count += 1
                    yield file
        if not count:
            yield path  # `each` says that it is empty


def each(paths: Sequence[str], work: Callable[[str], Item]) -> Iterator[tuple[str, Item]]:
    """The results of some work on files. For a file that fails, an error is printed."""
    from korvan.tools.errors import ToolError

    progress = Progress(len(paths))
    for path in paths:
        if os.path.isdir(path):
            progress.clear()
            fail(path, "has no such files in it or below")
            continue
        try:
            done = work(path)
        except (ToolError, RuntimeError, OSError) as failure:
            progress.clear()
            fail(path, failure)
            continue
        progress.clear()
        yield path, done
        sys.stdout.flush()
        progress.step(path)
    progress.clear()


def table(rows: Sequence[Sequence[object]], headings: Sequence[str]) -> str:
    """Columns of text, numbers to the right."""
    texts = [[str(one) for one in row] for row in rows]
    widths = [max(len(row[i]) for row in [list(headings), *texts]) for i in range(len(headings))]
    numeric = [bool(rows) and all(isinstance(row[i], (int, float)) for row in rows) for i in range(len(headings))]

    def line(row: Sequence[str]) -> str:
        cells = (cell.rjust(width) if right else cell.ljust(width)
                 for cell, width, right in zip(row, widths, numeric, strict=True))
        return "  ".join(cells).rstrip()

    return "\n".join([line(headings), *map(line, texts)])


def print_tables(
    paths: Sequence[str], find: Callable[[str], list[dict[str, Any]]], what: str,
    row: Callable[[dict[str, Any]], Sequence[object]], headings: Sequence[str], *, as_json: bool
) -> int:
    """Prints what is found in each file, as a table or, by the name of ``what``, as JSON; returns the exit code."""
    count = 0
    for path, found in each(paths, find):
        if as_json:
            print_json({"file": path, what: found})
        else:
            if len(paths) > 1:
                show_name(path, is_first=not count)
            show(table([row(one) for one in found], headings))
        count += 1
    return 1 if count < len(paths) else 0


def size_text(count: int) -> str:
    """A number of bytes for people."""
    value = float(count)
    for unit in ("B", "KiB", "MiB"):
        if value < 1024:
            return f"{value:.0f} {unit}" if unit == "B" else f"{value:.1f} {unit}"
        value /= 1024
    return f"{value:.1f} GiB"


def columns() -> int:
    """The width of the terminal, as ``shutil`` finds it; but that takes a command a tenth of its start to import."""
    try:
        return int(os.environ["COLUMNS"])
    except (KeyError, ValueError):
        pass
    try:
        return os.get_terminal_size(sys.__stdout__.fileno()).columns or 80 if sys.__stdout__ else 80
    except (OSError, ValueError):
        return 80


class HelpFormatter(argparse.RawDescriptionHelpFormatter):
    """Help as it is written, as wide as the terminal."""

    def __init__(self, prog: str) -> None:
        super().__init__(prog, width=columns() - 2)


class Progress:
    """A progress bar on stderr, only where that is a terminal and there is more than one step."""

    def __init__(self, total: int) -> None:
        self._total = total
        self._done = 0
        self._start = time.monotonic()
        self._shown = total > 1 and sys.stderr.isatty()

    def step(self, name: str) -> None:
        """Counts a step, and shows its name."""
        self._done += 1
        if not self._shown:
            return
        width = columns()
        bar = min(24, width // 4)
        filled = bar * self._done // self._total
        passed = time.monotonic() - self._start
        left = passed / self._done * (self._total - self._done)
        text = f"[{'#' * filled}{'.' * (bar - filled)}] {self._done}/{self._total}  {left:.0f} s left  {name}"
        print("\r\x1b[K" + text[: width - 1], end="", file=sys.stderr, flush=True)

    def clear(self) -> None:
        """Takes the bar away, so that a line can be printed."""
        if self._shown:
            print("\r\x1b[K", end="", file=sys.stderr, flush=True)


def parser_for(subparsers: Any, name: str, summary: str, examples: str) -> argparse.ArgumentParser:
    """The parser of a command, with examples at the end of its help."""
    parser: argparse.ArgumentParser = subparsers.add_parser(
        name, help=summary[0].lower() + summary[1:].rstrip("."), description=summary, epilog=f"examples:\n{examples}",
        formatter_class=HelpFormatter)
    return parser
