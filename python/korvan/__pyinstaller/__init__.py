"""What an application that is frozen with PyInstaller has to take along.

``korvan.cad.get_pyinstaller_hook_dirs`` names this folder and one below each module's name. The
hooks in them say what they need through the functions here, which look at files alone: no module of
the family is imported while an application is analysed.
"""

from __future__ import annotations

from pathlib import Path

_PACKAGE = Path(__file__).resolve().parent.parent
_LEFT_OUT = {".pdb", ".xml"}

Entries = list[tuple[str, str]]


def collect(folder: str) -> tuple[Entries, Entries]:
    """The files below a folder of the package as (datas, binaries), each (source, target folder)."""
    datas: Entries = []
    binaries: Entries = []
    for path in sorted((_PACKAGE / folder).rglob("*")):
        if path.is_file() and path.suffix not in _LEFT_OUT:
            target = Path("korvan", path.parent.relative_to(_PACKAGE))
            entries = binaries if path.suffix == ".so" else datas
            entries.append((str(path), str(target)))
    return datas, binaries
