"""Programs that show pages or drawings, each with the format that it is asked for."""

from __future__ import annotations

import os
import shutil
import subprocess
import tempfile
from dataclasses import dataclass
from pathlib import Path
from typing import Callable

SYSTEM_PYTHON = "/usr/bin/python3"
SECONDS = 600
# LibreCAD asks about drawings that it cannot read, where nobody can answer.
READER_SECONDS = 20
SHEET_SCALE = 3

Show = Callable[[list[Path], Path, int], None]


@dataclass(frozen=True)
class Viewer:
    """A program, its format, and how it makes PNG of files: with the name of the drawing, into a folder."""

    name: str
    program: str
    extension: str
    show: Show
    may_refuse: bool = False

    @property
    def key(self) -> str:
        """The name of its folder and in the list of known reasons."""
        return f"{self.extension}-{self.program}"

    def is_there(self) -> bool:
        """Whether it is installed."""
        return shutil.which(self.program) is not None


def _run(*command: str | Path, seconds: int = SECONDS, variables: dict[str, str] | None = None) -> None:
    try:
        subprocess.run([str(part) for part in command], capture_output=True, timeout=seconds,
                       env=os.environ | (variables or {}))
    except subprocess.TimeoutExpired:
        print(f"{command[0]} needs more than {seconds} s")


def _target(page: Path, folder: Path) -> Path:
    return folder / f"{page.name.removesuffix(page.suffix)}.png"


def _poppler(pages: list[Path], folder: Path, side: int) -> None:
    for page in pages:
        target = _target(page, folder)
        _run("pdftocairo", "-png", "-singlefile", "-scale-to", str(side), page, target.with_suffix(""))


def _rsvg(pages: list[Path], folder: Path, side: int) -> None:
    for page in pages:
        _run("rsvg-convert", "--unlimited", "-b", "white", "-w", str(side), "-o", _target(page, folder), page)


def _inkscape(pages: list[Path], folder: Path, side: int) -> None:
    for page in pages:
        _run("inkscape", page, "--export-type=png", f"--export-width={side}", "--export-background=white",
             f"--export-filename={_target(page, folder)}")


def _office(pages: list[Path], folder: Path, side: int) -> None:
    with tempfile.TemporaryDirectory() as name:
        _run("soffice", f"-env:UserInstallation=file://{name}/profile", "--headless", "--convert-to",
             "pdf:draw_pdf_Export", "--outdir", name, *pages)
        for page in pages:
            made = Path(name) / f"{page.name.removesuffix(page.suffix)}.pdf"
            if made.exists():
                _run("pdftocairo", "-png", "-singlefile", "-scale-to", str(side), made,
                     _target(page, folder).with_suffix(""))


def _office_drawings(pages: list[Path], folder: Path, side: int) -> None:
    # A drawing takes a part of the sheet.
    _office(pages, folder, SHEET_SCALE * side)


def _chromium(pages: list[Path], folder: Path, side: int) -> None:
    with tempfile.TemporaryDirectory() as profile:
        for page in pages:
            _run("chromium", "--headless", "--no-sandbox", "--disable-gpu", "--hide-scrollbars",
                 f"--user-data-dir={profile}", f"--window-size={side + 100},{side + 100}",
                 f"--screenshot={_target(page, folder)}", page.as_uri())


def _librecad(pages: list[Path], folder: Path, side: int) -> None:
    with tempfile.TemporaryDirectory() as home:
        for page in pages:
            made = Path(home) / page.with_suffix(".pdf").name
            _run("librecad", "dxf2pdf", "-a", "-m", "-t", home, page,
                 seconds=READER_SECONDS, variables={"HOME": home, "QT_QPA_PLATFORM": "minimal"})
            if made.exists():
                _run("pdftocairo", "-png", "-singlefile", "-scale-to", str(side), made,
                     _target(page, folder).with_suffix(""))


# LibreOffice scales a CGM by its content onto a slide, which cuts it off, so that nothing can be held beside it; no
# other program of Debian shows it.
VIEWERS = (
    Viewer("poppler", "pdftocairo", "pdf", _poppler),
    Viewer("librsvg", "rsvg-convert", "svg", _rsvg),
    Viewer("Chromium", "chromium", "html", _chromium),
    Viewer("Inkscape", "inkscape", "emf", _inkscape),
    Viewer("LibreOffice", "soffice", "emf", _office),
    Viewer("Inkscape", "inkscape", "wmf", _inkscape),
    Viewer("LibreOffice", "soffice", "wmf", _office),
)
# These read the drawings themselves.
READERS = (
    Viewer("LibreCAD", "librecad", "dxf", _librecad, may_refuse=True),
    Viewer("LibreOffice", "soffice", "dxf", _office_drawings),
)
