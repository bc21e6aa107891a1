"""Packs the built package into a wheel: `make wheel`.

A wheel is a zip with three text files beside the package. Nothing is compiled here: what goes in is
what `build/python` imports, less debug symbols and XML documentation.
"""

from __future__ import annotations

import argparse
import base64
import hashlib
import re
import subprocess
import sys
import tempfile
import zipfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
NAME = "korvan_cad"
# The interpreter's own ABI, and the C library of the machine that compiled it.
TAG = "cp312-cp312-linux_x86_64"
LEFT_OUT = {".pdb", ".xml", ".pyc"}
STAMP = (2025, 1, 1, 0, 0, 0)


def project_version() -> str:
    """The version that CMake gives the project."""
    match = re.search(r"project\(korvan\.cad VERSION ([0-9.]+)", (ROOT / "CMakeLists.txt").read_text())
    if match is None:
        raise SystemExit("CMakeLists.txt names no version")
    return match[1]


def metadata(version: str) -> str:
    """METADATA: the core metadata and the README as description."""
    fields = (
        "Metadata-Version: 2.1",
        "Name: korvan.cad",
        f"Version: {version}",
        "Summary: Read, change and convert CAD drawings",
        "License: MIT",
        "Requires-Python: ==3.12.*",
        "Classifier: Operating System :: POSIX :: Linux",
        "Classifier: Programming Language :: Python :: 3.12",
        "Classifier: Typing :: Typed",
        "Description-Content-Type: text/markdown",
    )
    return "\n".join(fields) + "\n\n" + (ROOT / "README.md").read_text(encoding="utf-8")


def wheel_file() -> str:
    """WHEEL: what kind of wheel this is."""
    return f"Wheel-Version: 1.0\nGenerator: korvan make_wheel\nRoot-Is-Purelib: false\nTag: {TAG}\n"


def entry_points() -> str:
    """entry_points.txt: where PyInstaller asks for the folders of the package's hooks."""
    return "[pyinstaller40]\nhook-dirs = korvan.cad:get_pyinstaller_hook_dirs\n"


def stripped(path: Path, scratch: Path) -> bytes:
    """The bytes of a file; of our own libraries without their debug symbols."""
    is_ours = path.suffix == ".so" and ("cpython" in path.name or "coreclrwrap" in path.name)
    if not is_ours:
        return path.read_bytes()
    target = scratch / path.name
    subprocess.run(["strip", "--strip-debug", "-o", str(target), str(path)], check=True)
    return target.read_bytes()


class Wheel:
    """A wheel that is being written; keeps its RECORD."""

    def __init__(self, path: Path, info: str) -> None:
        self._zip = zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED, compresslevel=6)
        self._info = info
        self._record: list[str] = []

    def add(self, name: str, data: bytes, mode: int = 0o644) -> None:
        """Adds a file; the same input gives the same bytes."""
        entry = zipfile.ZipInfo(name, STAMP)
        entry.compress_type = zipfile.ZIP_DEFLATED
        entry.external_attr = (0o100000 | mode) << 16
        self._zip.writestr(entry, data)
        digest = base64.urlsafe_b64encode(hashlib.sha256(data).digest()).rstrip(b"=").decode()
        self._record.append(f"{name},sha256={digest},{len(data)}")

    def close(self) -> None:
        """Writes the RECORD, which does not list a hash of itself."""
        record = f"{self._info}/RECORD"
        lines = "\n".join([*self._record, f"{record},,"]) + "\n"
        self._zip.writestr(zipfile.ZipInfo(record, STAMP), lines)
        self._zip.close()


def make(package: Path, out: Path) -> Path:
    """Writes the wheel and gives its path."""
    version = project_version()
    info = f"{NAME}-{version}.dist-info"
    out.mkdir(parents=True, exist_ok=True)
    target = out / f"{NAME}-{version}-{TAG}.whl"
    wheel = Wheel(target, info)
    with tempfile.TemporaryDirectory() as scratch:
        for path in sorted(package.rglob("*")):
            if path.is_file() and path.suffix not in LEFT_OUT:
                mode = 0o755 if path.suffix == ".so" else 0o644
                wheel.add(path.relative_to(package).as_posix(), stripped(path, Path(scratch)), mode)
    wheel.add(f"{info}/METADATA", metadata(version).encode())
    wheel.add(f"{info}/WHEEL", wheel_file().encode())
    wheel.add(f"{info}/entry_points.txt", entry_points().encode())
    wheel.add(f"{info}/licenses/LICENSE", (ROOT / "LICENSE").read_bytes())
    wheel.close()
    return target


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--package", type=Path, required=True, help="folder that holds korvan/")
    parser.add_argument("--out", type=Path, required=True, help="where to write the wheel")
    arguments = parser.parse_args()
    target = make(arguments.package, arguments.out)
    print(f"{target}  {target.stat().st_size / 2**20:.1f} MiB")
    return 0


if __name__ == "__main__":
    sys.exit(main())
