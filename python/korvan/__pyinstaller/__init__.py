"""What an application that is frozen with PyInstaller has to take along.

``korvan.cad.get_pyinstaller_hook_dirs`` names this folder and one below each module's name. The
hooks in them say what they need through the functions here, which look at files alone: no module of
the family is imported while an application is analysed.
"""

from __future__ import annotations

from pathlib import Path

_PACKAGE = Path(__file__).resolve().parent.parent
_LEFT_OUT = {".pdb", ".xml", ".py", ".pyc", ".pyi"}
_LIBRARY = b"\x7fELF"

Entries = list[tuple[str, str]]


def _is_library(path: Path) -> bool:
    with path.open("rb") as file:
        return file.read(len(_LIBRARY)) == _LIBRARY


def collect(*folders: str) -> tuple[Entries, Entries]:
    """The files below folders of the package as (datas, binaries), each (source, target folder).

    Modules are left out, which an analysis finds by itself. A folder that is not there has no files: a package that was
    not installed from a wheel uses the libraries and fonts of the system.
    """
    datas: Entries = []
    binaries: Entries = []
    for path in sorted(path for folder in folders for path in (_PACKAGE / folder).rglob("*")):
        if path.is_file() and path.suffix not in _LEFT_OUT:
            target = Path("korvan", path.parent.relative_to(_PACKAGE))
            entries = binaries if _is_library(path) else datas
            entries.append((str(path), str(target)))
    return datas, binaries
