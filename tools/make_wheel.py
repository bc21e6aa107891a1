"""Packs the built package into a wheel that runs on a system with nothing but a C library: `make wheel`.

What `build/python` imports goes in, less debug symbols, XML documentation and the parts of the runtime that nothing
refers to; and what the library opens by name: shared libraries with those that they need, fonts as a last resort, and
the licences of all that. The same inputs give the same bytes.
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
from collections import Counter
from collections.abc import Mapping
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "tools"))

from packing import assemblies, fonts, libraries, licences, shell_files  # noqa: E402
from packing.description import description  # noqa: E402

NAME = "korvan_cad"
# The interpreter's own ABI, and the oldest C library that has what our files need.
TAG = "cp312-cp312-manylinux_2_34_x86_64"
LEFT_OUT = {".pdb", ".xml", ".pyc"}
RUNTIME = "korvan/netcore/netcore10.0/"
RUNTIME_LIBRARIES = {
    "libcoreclr.so",
    "libclrjit.so",
    "libSystem.Native.so",
    "libSystem.IO.Compression.Native.so",
    libraries.ENCRYPTION_BRIDGE,
    "libkorvan.embed.coreclrwrap.so",
}
STAMP = (2025, 1, 1, 0, 0, 0)

Contents = dict[str, bytes]


def project_version() -> str:
    """The version that CMake gives the project."""
    match = re.search(r"project\(korvan\.cad VERSION ([0-9.]+)", (ROOT / "CMakeLists.txt").read_text())
    if match is None:
        raise SystemExit("CMakeLists.txt names no version")
    return match[1]


def metadata(version: str) -> str:
    """METADATA: the core metadata, and the description for an index of packages."""
    fields = (
        "Metadata-Version: 2.1",
        "Name: korvan.cad",
        f"Version: {version}",
        "Summary: Read, change and convert CAD drawings",
        "License: MIT",
        "Requires-Python: ==3.12.*",
        "Keywords: CAD,DWG,DXF,IFC,CGM,PDF,SVG,drawings",
        "Classifier: Environment :: Console",
        "Classifier: Intended Audience :: Developers",
        "Classifier: License :: OSI Approved :: MIT License",
        "Classifier: Operating System :: POSIX :: Linux",
        "Classifier: Programming Language :: Python :: 3 :: Only",
        "Classifier: Programming Language :: Python :: 3.12",
        "Classifier: Programming Language :: Python :: Implementation :: CPython",
        "Classifier: Topic :: Multimedia :: Graphics :: Graphics Conversion",
        "Classifier: Topic :: Scientific/Engineering",
        "Classifier: Typing :: Typed",
        "Description-Content-Type: text/markdown",
    )
    return "\n".join(fields) + "\n\n" + description((ROOT / "README.md").read_text(encoding="utf-8"))


def wheel_file() -> str:
    """WHEEL: what kind of wheel this is."""
    return f"Wheel-Version: 1.0\nGenerator: korvan make_wheel\nRoot-Is-Purelib: false\nTag: {TAG}\n"


def entry_points() -> str:
    """entry_points.txt: the command, and where PyInstaller asks for the folders of the package's hooks."""
    return (
        "[console_scripts]\nkorvan = korvan.commands:main\n\n"
        "[pyinstaller40]\nhook-dirs = korvan.cad:get_pyinstaller_hook_dirs\n"
    )


def stripped(path: Path) -> bytes:
    """The bytes of a library of ours without the symbols that only debuggers read."""
    with tempfile.TemporaryDirectory() as scratch:
        target = Path(scratch, path.name)
        subprocess.run(["strip", "--strip-unneeded", "-o", str(target), str(path)], check=True)
        return target.read_bytes()


def own_files(package: Path) -> Contents:
    """What the build made, and the libraries of the runtime."""
    contents: Contents = {}
    for path in sorted(package.rglob("*")):
        name = path.relative_to(package).as_posix()
        is_of_others = name.startswith(RUNTIME) and path.name not in RUNTIME_LIBRARIES
        if path.is_file() and path.suffix not in LEFT_OUT and not is_of_others:
            is_ours = path.suffix == ".so" and ("cpython" in path.name or "coreclrwrap" in path.name)
            contents[name] = stripped(path) if is_ours else path.read_bytes()
    return contents


def runtime_files(package: Path, runtime: Path) -> Contents:
    """The trimmed runtime: ours, and of its own assemblies those that ours need."""
    ours = sorted((package / "korvan" / "assemblies").glob("*/*.dll"))
    files = {path.relative_to(package).as_posix(): path.name for path in ours}
    files |= {f"{RUNTIME}{name}": name for name in assemblies.needed(ours, runtime)}
    return {name: (runtime / file).read_bytes() for name, file in files.items()}


def carried_files(package: Path, substitutes: Path, info: str) -> Contents:
    """What the package takes from systems: libraries, fonts, and the licences of these and of the runtime."""
    opened = {name for path in (package / "korvan" / "assemblies").glob("*/*.dll")
              for name in assemblies.native_libraries(path)} - {"libc"}  # fmt: skip
    needed = libraries.closure(opened | {libraries.ENCRYPTION})
    replaced = {name: substitutes / name for name in needed if (substitutes / name).exists()}
    contents: Contents = {}
    sources: list[tuple[Path, str]] = []
    with tempfile.TemporaryDirectory() as scratch:
        for library in libraries.carry(needed | replaced, Path(scratch)):
            name = f"korvan/libraries/{library.file.name}"
            contents[name] = library.file.read_bytes()
            if library.source not in replaced.values():
                sources.append((library.source, name))
        bridge = Path(scratch, libraries.ENCRYPTION_BRIDGE)
        libraries.redirect_encryption(package / RUNTIME / bridge.name, bridge)
        contents[RUNTIME + bridge.name] = bridge.read_bytes()
    for path in libraries.last_resort():
        contents[f"korvan/libraries/last-resort/{path.name}"] = path.read_bytes()
        sources.append((path.resolve(), f"korvan/libraries/last-resort/{path.name}"))
    for name, path in fonts.files().items():
        contents[f"korvan/{name}"] = path.read_bytes()
        if not path.is_relative_to(ROOT):
            sources.append((path, f"korvan/{name}"))
    components = licences.of_debian(sources) + licences.of_runtime(RUNTIME)
    for component in components:
        contents[f"{info}/licenses/{component.name}.txt"] = component.text.read_bytes()
    contents[f"{info}/licenses/components.json"] = licences.listing(components).encode()
    return contents


def shared_files() -> Contents:
    """What goes below the prefix of an installation and not into the package."""
    folder = f"{NAME}-{project_version()}.data/data"
    return {f"{folder}/{name}": content for name, content in shell_files.files().items()}


class Wheel:
    """A wheel that is being written; keeps its RECORD."""

    def __init__(self, path: Path, info: str) -> None:
        self._zip = zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED, compresslevel=9)
        self._info = info
        self._record: list[str] = []

    def add(self, name: str, data: bytes, mode: int = 0o644) -> None:
        """Adds a file; the same input gives the same bytes."""
        entry = zipfile.ZipInfo(name, STAMP)
        entry.compress_type = zipfile.ZIP_DEFLATED
        entry.external_attr = (0o100000 | mode) << 16
        self._zip.writestr(entry, data, compresslevel=9)
        digest = base64.urlsafe_b64encode(hashlib.sha256(data).digest()).rstrip(b"=").decode()
        self._record.append(f"{name},sha256={digest},{len(data)}")

    def close(self) -> None:
        """Writes the RECORD, which does not list a hash of itself."""
        record = f"{self._info}/RECORD"
        lines = "\n".join([*self._record, f"{record},,"]) + "\n"
        self._zip.writestr(zipfile.ZipInfo(record, STAMP), lines)
        self._zip.close()


def write(contents: Mapping[str, bytes], out: Path) -> Path:
    """Writes a wheel with the files of a package, and gives its path."""
    version = project_version()
    info = dist_info()
    out.mkdir(parents=True, exist_ok=True)
    target = out / f"{NAME}-{version}-{TAG}.whl"
    wheel = Wheel(target, info)
    for name, data in sorted(contents.items()):
        wheel.add(name, data, 0o755 if data.startswith(b"\x7fELF") else 0o644)
    wheel.add(f"{info}/METADATA", metadata(version).encode())
    wheel.add(f"{info}/WHEEL", wheel_file().encode())
    wheel.add(f"{info}/entry_points.txt", entry_points().encode())
    wheel.add(f"{info}/licenses/LICENSE", (ROOT / "LICENSE").read_bytes())
    wheel.close()
    return target


def dist_info() -> str:
    """The folder of the wheel's own files."""
    return f"{NAME}-{project_version()}.dist-info"


def part_of(name: str) -> str:
    """The part that a file is counted with."""
    parts = name.split("/")
    if parts[0] != "korvan" or len(parts) == 2:
        return "extension modules" if name.endswith(".so") else "metadata and licences"
    return {
        "netcore": "runtime",
        "assemblies": "assemblies",
        "libraries": "shared libraries",
        "fonts": "fonts",
        "cad": "stubs",
    }.get(parts[1], "Python")


def print_sizes(wheel: Path) -> None:
    """Prints what each part takes, packed and installed."""
    packed: Counter[str] = Counter()
    installed: Counter[str] = Counter()
    for entry in zipfile.ZipFile(wheel).infolist():
        packed[part_of(entry.filename)] += entry.compress_size
        installed[part_of(entry.filename)] += entry.file_size
    for part, size in packed.most_common():
        print(f"{part:24}{size / 1e6:7.1f} MB packed{installed[part] / 1e6:7.1f} MB installed")
    print(f"{'all':24}{wheel.stat().st_size / 1e6:7.1f} MB packed{installed.total() / 1e6:7.1f} MB installed")


def main() -> int:
    parser = argparse.ArgumentParser(description=str(__doc__).splitlines()[0])
    parser.add_argument("--build", type=Path, required=True, help="folder of the build")
    parser.add_argument("--out", type=Path, required=True, help="where to write the wheel")
    arguments = parser.parse_args()
    package = arguments.build / "package"
    contents = own_files(package) | runtime_files(package, arguments.build / "wheel-runtime")
    contents |= carried_files(package, arguments.build / "substitutes", dist_info()) | shared_files()
    target = write(contents, arguments.out)
    print(target)
    print_sizes(target)
    return 0


if __name__ == "__main__":
    sys.exit(main())
