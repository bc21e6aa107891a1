"""Holds rendered drawings beside what other programs render: `make fidelity`.

Four kinds of tables: drawings beside the drawing add-on of ezdxf, where EZDXF names a checkout of it; drawings as
other programs read them; our pages as other programs show them; DWG beside DXF, both by us. The second and the third
are held beside our own pixels. A figure is the share of the foreground that has foreground of the other side within
two pixels. Programs that are not installed are named and left out.

    build/python bench/fidelity/run.py [--drawings FOLDER] [--out FOLDER] [--only TEXT] [TABLE ...]
"""

from __future__ import annotations

import argparse
import json
import os
import shutil
import subprocess
import sys
import tomllib
from dataclasses import dataclass
from pathlib import Path

HERE = Path(__file__).resolve().parent
ROOT = HERE.parent.parent
sys.path.insert(0, str(HERE.parent))

from report import Table  # noqa: E402 the folder above has it
from viewers import READERS, SYSTEM_PYTHON, VIEWERS, Viewer  # noqa: E402

SIDE = 1600
DRAWING_AIM = 98.0
PAGE_AIM = 99.0
SECONDS = 300
# The checkout has few compiled fonts: one of them is drawn by both sides for all of these.
STROKE_FONT = "fonts/strokefonts/iso3098.shx"
STROKE_FONTS = ("txt", "monotxt", "simplex", "romans", "romand", "isocp", "isoct")


@dataclass(frozen=True)
class Shares:
    """Per cent of the foreground of each side that the other side has, too."""

    forth: float
    back: float

    @property
    def least(self) -> float:
        """The lower one."""
        return min(self.forth, self.back)

    def cells(self) -> tuple[str, str]:
        """As the table has them."""
        return f"{self.forth:.2f}", f"{self.back:.2f}"


def _stroke_fonts(checkout: Path, folder: Path) -> dict[str, str]:
    """A folder of compiled fonts, as a variable for programs."""
    folder.mkdir(parents=True, exist_ok=True)
    for name in STROKE_FONTS:
        shutil.copy(checkout / STROKE_FONT, folder / f"{name}.shx")
    return {"STROKE_FONTS": str(folder)}


def _ours(drawings: list[Path], out: Path, extensions: list[str], variables: dict[str, str]) -> None:
    command = [sys.executable, str(HERE / "draw_ours.py"), str(SIDE), str(out), ",".join(extensions)]
    subprocess.run([*command, *map(str, drawings)], check=True, env=os.environ | variables)


def _reference(drawing: Path, target: Path, checkout: Path, variables: dict[str, str]) -> str | None:
    """Renders by the add-on; returns why it could not."""
    environment = {key: value for key, value in os.environ.items() if not key.startswith("PYTHON")} | variables
    environment |= {"PYTHONPATH": str(checkout / "src"), "XDG_CACHE_HOME": str(target.parent / "cache")}
    command = [SYSTEM_PYTHON, str(HERE / "draw_reference.py"), str(SIDE), str(drawing), str(target)]
    try:
        result = subprocess.run(command, env=environment, capture_output=True, text=True, timeout=SECONDS)
    except subprocess.TimeoutExpired:
        return f"the add-on needs more than {SECONDS} s"
    if result.returncode != 0:
        return "the add-on fails: " + (result.stderr.strip().splitlines() or ["without a message"])[-1]
    return None


def _compare(pairs: list[tuple[Path, Path, Path]]) -> list[Shares | str]:
    """The shares of pairs of images, each with the file that shows the difference; or why there are none."""
    if not pairs:
        return []
    names = json.dumps([[str(path) for path in pair] for pair in pairs])
    result = subprocess.run([SYSTEM_PYTHON, str(HERE / "compare.py")], input=names, capture_output=True, text=True,
                            env={key: value for key, value in os.environ.items() if not key.startswith("PYTHON")})
    if result.returncode != 0:
        sys.exit(f"compare.py fails (it needs numpy, scipy and Pillow of {SYSTEM_PYTHON}):\n{result.stderr}")
    found: list[list[float] | str] = [json.loads(line) for line in result.stdout.splitlines()]
    return [row if isinstance(row, str) else Shares(*row) for row in found]


def _reason(name: str, known: dict[str, str]) -> str | None:
    """Why a drawing is not as another program shows it; the part of its name up to "__" says where it is from."""
    return known.get(name.rpartition("__")[2])


def _add(table: Table, name: str, found: Shares | str, aim: float, known: dict[str, str]) -> bool:
    """Adds a row; says whether it reaches the aim or has a known reason not to."""
    if isinstance(found, str):
        table.add(name, "", "", _reason(name, known) or found)
        return _reason(name, known) is not None
    reason = "" if found.least >= aim else _reason(name, known) or "?"
    table.add(name, *found.cells(), reason)
    return reason != "?"


def _drawings(drawings: list[Path], out: Path, known: dict[str, str]) -> bool:
    checkout = os.environ.get("EZDXF")
    if not checkout:
        print("\nEZDXF names no checkout of ezdxf: drawings are not compared")
        return True
    folder = out / "reference"
    folder.mkdir(parents=True, exist_ok=True)
    variables = _stroke_fonts(Path(checkout), out / "fonts")
    _ours(drawings, out / "same-fonts", ["png"], variables)
    failures = {path: _reference(path, folder / f"{path.name}.png", Path(checkout), variables) for path in drawings}
    able = [path for path, failure in failures.items() if failure is None]
    shares = dict(zip(able, _compare([
        (folder / f"{path.name}.png", out / "same-fonts" / f"{path.name}.png", out / "drawings" / f"{path.name}.png")
        for path in able])))
    table = Table("Drawings beside the add-on, per cent of the foreground that the other has",
                  ("", "its, in ours", "ours, in its", "below the aim because"))
    rows = [_add(table, path.name, shares.get(path) or failures[path] or "", DRAWING_AIM, known) for path in drawings]
    table.print()
    print(f"  aim, {DRAWING_AIM:g} % both ways or a known reason: {'held' if all(rows) else 'MISSED'}")
    return all(rows)


def _installed(viewers: tuple[Viewer, ...]) -> list[Viewer]:
    for viewer in viewers:
        if not viewer.is_there():
            print(f"{viewer.name} is not installed: {viewer.extension} is not shown by it")
    return [viewer for viewer in viewers if viewer.is_there()]


def _readers(drawings: list[Path], out: Path, known: dict[str, dict[str, str]]) -> bool:
    readers = _installed(READERS)
    folder = out / "ours"
    _ours(drawings, folder, ["png"], {})
    for path in drawings:
        shutil.copy(path, folder / f"{path.name}.dxf")
    return all([_pages_by(reader, drawings, out, known, DRAWING_AIM) for reader in readers])


def _pages(drawings: list[Path], out: Path, known: dict[str, dict[str, str]]) -> bool:
    viewers = _installed(VIEWERS)
    _ours(drawings, out / "ours", ["png", *sorted({viewer.extension for viewer in viewers})], {})
    held = [_pages_by(viewer, drawings, out, known, PAGE_AIM) for viewer in viewers]
    return all(held)


def _twins(drawings: list[Path], out: Path, known: dict[str, dict[str, str]], only: str) -> bool:
    """DWG beside the DXF of the same name, and beside our DXF of it, loaded again."""
    folder = drawings[0].parent
    encoded = sorted(path for path in (folder.parent / "dwg").glob("*.dwg") if only in path.name)
    _ours(encoded, out / "dwg", ["png", "dxf"], {})
    twins = {path: folder / f"{path.stem}.dxf" for path in encoded if (folder / f"{path.stem}.dxf").exists()}
    saved = {path: out / "dwg" / f"{path.name}.dxf" for path in encoded}
    held = []
    for title, key, pairs in (
        ("the DXF of the same name", "twins", twins), ("our DXF of it, loaded again", "saved", saved),
    ):
        there = [path for path in pairs if pairs[path].exists()]
        _ours([pairs[path] for path in there], out / key, ["png"], {})
        shares = dict(zip(there, _compare([
            (out / key / f"{pairs[path].name}.png", out / "dwg" / f"{path.name}.png",
             out / f"dwg-{key}" / f"{path.name}.png") for path in there])))
        table = Table(f"DWG beside {title}, both by us", ("", "its, in ours", "ours, in its", "below the aim because"))
        rows = [_add(table, path.name, shares.get(path, "no DXF was saved"), DRAWING_AIM, known[key]) for path in pairs]
        table.print()
        print(f"  aim, {DRAWING_AIM:g} % both ways or a known reason: {'held' if all(rows) else 'MISSED'}")
        held += rows
    return all(held)


def _pages_by(
    viewer: Viewer, drawings: list[Path], out: Path, known: dict[str, dict[str, str]], aim: float,
) -> bool:
    folder = out / viewer.key
    folder.mkdir(parents=True, exist_ok=True)
    there = [path for path in drawings if (out / "ours" / f"{path.name}.{viewer.extension}").exists()]
    viewer.show([out / "ours" / f"{path.name}.{viewer.extension}" for path in there], folder, SIDE)
    shown = [path for path in there if (folder / f"{path.name}.png").exists()]
    compared = out / f"pages-{viewer.key}"
    shares = dict(zip(shown, _compare([
        (folder / name, out / "ours" / name, compared / name) for name in (f"{path.name}.png" for path in shown)])))
    table = Table(f"{viewer.extension} by {viewer.name}, beside our pixels",
                  ("", "its, in ours", "ours, in its", "below the aim because"))
    rows = [_add(table, path.name, shares.get(path, "nothing was shown"), aim, known.get(viewer.key, {}))
            or (viewer.may_refuse and path not in shares) for path in there]
    table.print()
    print(f"  aim, {aim:g} % both ways or a known reason: {'held' if all(rows) else 'MISSED'}")
    return all(rows)


def main() -> int:
    parser = argparse.ArgumentParser(description=(__doc__ or "").splitlines()[0])
    parser.add_argument("--drawings", type=Path, default=ROOT.parent / "shared" / "drawings" / "dxf")
    parser.add_argument("--out", type=Path, default=ROOT / "build" / "fidelity")
    parser.add_argument("--only", default="", help="text that the names of the drawings have to contain")
    parser.add_argument("tables", nargs="*", help="drawings, readers, pages, twins; all by default")
    arguments = parser.parse_args()
    drawings = sorted(path for path in arguments.drawings.glob("*.dxf*") if arguments.only in path.name)
    if not drawings:
        print(f"{arguments.drawings} has no drawings: nothing is compared")
        return 0
    known = tomllib.loads((HERE / "known.toml").read_text(encoding="utf-8"))
    out = arguments.out.resolve()
    tables = {
        "drawings": lambda: _drawings(drawings, out, known["drawings"]),
        "readers": lambda: _readers(drawings, out, known["readers"]),
        "pages": lambda: _pages(drawings, out, known["pages"]),
        "twins": lambda: _twins(drawings, out, known["twins"], arguments.only),
    }
    held = [table() for name, table in tables.items() if not arguments.tables or name in arguments.tables]
    return 0 if all(held) else 1


if __name__ == "__main__":
    sys.exit(main())
