"""Programs that show pages, each with the format that it is asked for."""

from __future__ import annotations

import shutil
import subprocess
import tempfile
from dataclasses import dataclass
from pathlib import Path
from typing import Callable

SYSTEM_PYTHON = "/usr/bin/python3"
SECONDS = 600

Show = Callable[[list[Path], Path, int], None]


@dataclass(frozen=True)
class Viewer:
    """A program, its format, and how it makes PNG of files: with the name of the drawing, into a folder."""

    name: str
    program: str
    extension: str
    show: Show

    @property
    def key(self) -> str:
        """The name of its folder and in the list of known reasons."""
        return f"{self.extension}-{self.program}"

    def is_there(self) -> bool:
        """Whether it is installed."""
        return shutil.which(self.program) is not None


def _run(*command: str | Path) -> None:
    try:
        subprocess.run([str(part) for part in command], capture_output=True, timeout=SECONDS)
    except subprocess.TimeoutExpired:
        print(f"{command[0]} needs more than {SECONDS} s")


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


def _chromium(pages: list[Path], folder: Path, side: int) -> None:
    with tempfile.TemporaryDirectory() as profile:
        for page in pages:
            _run("chromium", "--headless", "--no-sandbox", "--disable-gpu", "--hide-scrollbars",
                 f"--user-data-dir={profile}", f"--window-size={side + 100},{side + 100}",
                 f"--screenshot={_target(page, folder)}", page.as_uri())


# No program of Debian shows CGM.
VIEWERS = (
    Viewer("poppler", "pdftocairo", "pdf", _poppler),
    Viewer("librsvg", "rsvg-convert", "svg", _rsvg),
    Viewer("Chromium", "chromium", "html", _chromium),
    Viewer("Inkscape", "inkscape", "emf", _inkscape),
    Viewer("LibreOffice", "soffice", "emf", _office),
    Viewer("Inkscape", "inkscape", "wmf", _inkscape),
    Viewer("LibreOffice", "soffice", "wmf", _office),
)
