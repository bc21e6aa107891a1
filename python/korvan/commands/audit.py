"""``korvan audit``: defects of drawings, and their correction."""

from __future__ import annotations

import argparse
import os
from collections import Counter
from functools import partial
from typing import Any

from korvan.commands.common import DRAWINGS, Usage, add_files, add_json, each, expand, parser_for, print_json, show

_EXAMPLES = """  korvan audit plan.dxf
  korvan audit --summary archive/
  korvan audit --fix plan.dxf -o sound.dxf
  korvan audit --fix *.dxf -o sound/
  korvan audit --codes                    the kinds of defects
"""


class _Codes(argparse.Action):
    """Prints the kinds of defects."""

    def __call__(self, parser: argparse.ArgumentParser, *_: object) -> None:
        from korvan.tools.auditing import CODES

        for code, text in CODES.items():
            show(f"{code}  {text}")
        parser.exit()


def add_parser(subparsers: Any) -> None:
    parser = parser_for(subparsers, "audit", "Finds defects of drawings: missing layers, lines without length.",
                        _EXAMPLES)
    add_files(parser)
    parser.add_argument("--fix", action="store_true", help="correct what can be, and write the drawing to OUT")
    parser.add_argument("-o", "--out", metavar="OUT", help="the file or folder (ends with /) for corrected drawings")
    parser.add_argument("-f", "--force", action="store_true", help="replace files that exist")
    parser.add_argument("--ignore", action="append", default=[], type=int, metavar="CODE",
                        help="leave out a kind of defect; repeat for more")
    parser.add_argument("--summary", action="store_true", help="print counts only")
    parser.add_argument("--exit-code", action="store_true", help="end with 1 if there are defects that stay")
    parser.add_argument("--codes", action=_Codes, nargs=0, help="list the kinds of defects and exit")
    add_json(parser)


def _place(path: str, out: str) -> str:
    return os.path.join(out, os.path.basename(path)) if out.endswith("/") or os.path.isdir(out) else out


def _target(path: str, out: str, force: bool) -> str:
    from korvan.tools.errors import ToolError

    target = _place(path, out)
    if os.path.exists(target) and not force:
        raise ToolError(f"{target} exists; --force replaces it")
    return target


def _audit(path: str, out: str | None, force: bool) -> list[Any]:
    from korvan.cad.fileformats.cad import CadImage
    from korvan.tools.auditing import audit
    from korvan.tools.errors import ToolError, without_name
    from korvan.tools.opening import load, load_options

    options = load_options(tolerant=True)
    with load(path, options) as drawing:
        if not isinstance(drawing, CadImage):
            raise ToolError("is no drawing, so it cannot be audited")
        target = _target(path, out, force) if out is not None else None
        defects = [without_name(text, path).rstrip(".") for text in options.errors]
        found = audit(drawing, fix=target is not None, defects=defects)
        if target is not None:
            drawing.save(target)
        return found


def _print(path: str, found: list[Any], target: str, summary: bool) -> None:
    from korvan.tools.auditing import CODES
    from korvan.tools.printing import one_line

    fixed = sum(one.count for one in found if one.is_fixed)
    count = sum(one.count for one in found)
    corrected = f", {fixed} corrected" if fixed else ""
    written = f"; written to {one_line(target)}" if target else ""
    show(f"{one_line(path)}: {count} finding{'' if count == 1 else 's'}{corrected}{written}")
    if summary:
        counts: Counter[int] = Counter()
        for one in found:
            counts[one.code] += one.count
        for code, count in sorted(counts.items()):
            show(f"  {code}: {count}  {CODES[code]}")
        return
    for one in found:
        where = " ".join(part for part in (one.place, one.handle) if part)
        fix = f"; {'corrected' if one.is_fixed else 'a fix'}: {one.fix}" if one.fix else ""
        more = f", and {one.count - 1} more" if one.count > 1 else ""
        show(f"  {one.code} {one.text}" + (f" ({where}{more})" if where else "") + fix)


def run(arguments: argparse.Namespace) -> int:
    if arguments.fix != (arguments.out is not None):
        raise Usage("--fix and -o OUT belong together")
    paths = list(expand(arguments.files, DRAWINGS))
    if arguments.fix and len(paths) > 1 and not (arguments.out.endswith("/") or os.path.isdir(arguments.out)):
        raise Usage(f"{arguments.out} is not a folder, but there are {len(paths)} files: write {arguments.out}/")
    if arguments.fix and arguments.out.endswith("/"):
        os.makedirs(arguments.out, exist_ok=True)
    count, stay = 0, 0
    for path, listed in each(paths, partial(_audit, out=arguments.out, force=arguments.force)):
        found: list[Any] = [one for one in listed if one.code not in arguments.ignore]
        stay += sum(not one.is_fixed for one in found)
        count += 1
        if arguments.json:
            rows: list[object] = [vars(one) for one in found]
            print_json({"file": path, "findings": rows})
        else:
            _print(path, found, _place(path, arguments.out) if arguments.fix else "", arguments.summary)
    return 1 if count < len(paths) or (stay and arguments.exit_code) else 0
