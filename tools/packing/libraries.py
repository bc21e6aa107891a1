"""The shared libraries that go into the wheel: what is opened by name, and what the loader loads with it.

Each gets a name with a checksum, so that a process may have another version beside it, and finds the others in its own
folder. Symbols that the policy of the platform tag does not have are taken in older versions or from other libraries.
"""

from __future__ import annotations

import hashlib
import re
import subprocess
from collections.abc import Iterable
from dataclasses import dataclass
from pathlib import Path

from packing.elf import Elf, Version

POLICY = {"GLIBC": (2, 34), "GLIBCXX": (3, 4, 29), "CXXABI": (1, 3, 13), "GCC": (11, 0)}
"""The newest versions of symbols that manylinux_2_34 has."""

SYSTEM = {
    "ld-linux-x86-64.so.2", "libc.so.6", "libdl.so.2", "libm.so.6", "libpthread.so.0", "libresolv.so.2", "librt.so.1",
    "libutil.so.1",
}  # fmt: skip
"""Parts of the C library."""

LAST_RESORT = ("libgcc_s.so.1", "libstdc++.so.6")
"""What every system of the policy has, but bare ones: the newest in a process has to be used by all, so these keep
their names and are loaded only where there are none."""

ENCRYPTION = "libssl.so.3"
ENCRYPTION_CARRIED = "korvanssl.3"
"""The runtime opens OpenSSL by a name in its own library, which is replaced by one of the same length."""
ENCRYPTION_BRIDGE = "libSystem.Security.Cryptography.Native.OpenSsl.so"

OLDER = {"hypot": "GLIBC_2.2.5"}
"""Functions that do the same in an older version, but for errno."""
ELSEWHERE = {"arc4random_buf": "libbsd.so.0"}
"""Functions that the C library got later, and another library that has them."""


@dataclass(frozen=True)
class Library:
    """A library for the wheel."""

    source: Path
    file: Path


def exceeds_policy(version: Version) -> bool:
    """Determines whether a version of symbols is newer than the policy allows."""
    family, _, number = version.name.rpartition("_")
    if family not in POLICY or not re.fullmatch(r"[0-9.]+", number):
        return False
    return tuple(int(part) for part in number.split(".")) > POLICY[family]


def closure(names: Iterable[str]) -> dict[str, Path]:
    """The libraries of this system with these names, and those that they need, but the system's own."""
    listed = subprocess.run(["/sbin/ldconfig", "-p"], capture_output=True, text=True, check=True).stdout
    places: dict[str, Path] = {}
    for name, path in re.findall(r"^\s(\S+) \(libc6,x86-64[^)]*\) => (\S+)$", listed, re.MULTILINE):
        places.setdefault(name, Path(path).resolve())
    found: dict[str, Path] = {}
    left = list(names)
    while left:
        name = left.pop()
        if name in found or name in SYSTEM or name in LAST_RESORT:
            continue
        if name not in places:
            raise SystemExit(f"The shared library {name} is not installed: tools/ensure-packages.sh run")
        found[name] = places[name]
        left += Elf(places[name]).needed
    return dict(sorted(found.items()))


def last_resort() -> list[Path]:
    """The libraries of the compiler on this system."""
    folder = Path("/usr/lib/x86_64-linux-gnu")
    return [next(path for path in (folder / name, Path("/lib/x86_64-linux-gnu") / name) if path.exists())
            for name in LAST_RESORT]  # fmt: skip


def _carried_name(name: str, path: Path) -> str:
    if name == ENCRYPTION:
        return ENCRYPTION_CARRIED
    checksum = hashlib.sha256(path.read_bytes()).hexdigest()[:8]
    return name.replace(".so", f"-{checksum}.so", 1)


def _lower(elf: Elf) -> list[str]:
    """Makes a library fit the policy; the libraries that it needs on top for that."""
    added: list[str] = []
    for version in filter(exceeds_policy, elf.versions):
        older: set[str] = set()
        for symbol, place in elf.symbols(version).items():
            if symbol in OLDER:
                older.add(OLDER[symbol])
            elif symbol in ELSEWHERE:
                elf.forget_version(place)
                added.append(ELSEWHERE[symbol])
            else:
                raise SystemExit(f"{elf.path} needs {symbol}@{version.name}, which the platform tag does not allow")
        if len(older) > 1:
            raise SystemExit(f"{elf.path} needs several versions in place of {version.name}")
        elf.rename_version(version, older.pop() if older else "GLIBC_2.2.5")
    return added


def carry(libraries: dict[str, Path], folder: Path) -> list[Library]:
    """Writes the libraries into a folder, so that they find each other and fit the policy."""
    names = {name: _carried_name(name, path) for name, path in libraries.items()}
    carried: list[Library] = []
    for name, path in libraries.items():
        elf = Elf(path)
        added = _lower(elf)
        target = folder / names[name]
        target.write_bytes(elf.data)
        replaced: list[str] = []
        for needed in elf.needed:
            replaced += ["--replace-needed", needed, names[needed]] if needed in names else []
        # One step at a time: the program loses changes of names that it makes beside others.
        for step in (replaced, *(["--add-needed", names[needed]] for needed in added),
                     ["--set-soname", names[name]], ["--set-rpath", "$ORIGIN"]):  # fmt: skip
            if step:
                subprocess.run(["patchelf", *step, str(target)], check=True)
        carried.append(Library(path, target))
    return carried


def redirect_encryption(bridge: Path, target: Path) -> None:
    """Writes the runtime's bridge to OpenSSL so that it opens the carried library."""
    data = bridge.read_bytes()
    before, after = (f"{name}\0".encode() for name in (ENCRYPTION, ENCRYPTION_CARRIED))
    if data.count(before) != 1 or len(before) != len(after):
        raise SystemExit(f"{bridge} does not name {ENCRYPTION} once: the runtime opens OpenSSL in another way now")
    target.write_bytes(data.replace(before, after))
    subprocess.run(["patchelf", "--set-rpath", "$ORIGIN/../../libraries", str(target)], check=True)
