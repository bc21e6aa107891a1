"""Reads which libraries and symbol versions an x86-64 ELF file needs, and lowers versions."""

from __future__ import annotations

import struct
from dataclasses import dataclass, field
from pathlib import Path

# Tags of the dynamic section (System V ABI; the versions are those of the Linux Standard Base).
NULL, NEEDED, STRTAB, SYMTAB, SONAME, RUNPATH = 0, 1, 5, 6, 14, 29
VERSYM, VERNEED, VERNEEDNUM = 0x6FFFFFF0, 0x6FFFFFFE, 0x6FFFFFFF
SYMBOL_SIZE = 24


@dataclass
class Version:
    """A version of a library's symbols that a file needs."""

    library: str
    name: str
    place: int = field(repr=False)
    """Where the record is in the file."""
    index: int = field(repr=False)
    """The number by which symbols refer to it."""


def version_hash(name: str) -> int:
    """The hash by which the loader compares names of versions."""
    value = 0
    for byte in name.encode():
        value = (value << 4) + byte
        high = value & 0xF0000000
        value = (value ^ (high >> 24)) & ~high
    return value & 0xFFFFFFFF


class Elf:
    """A file; what is changed is in `data`."""

    def __init__(self, path: Path) -> None:
        self.path = path
        self.data = bytearray(path.read_bytes())
        if bytes(self.data[:6]) != b"\x7fELF\x02\x01":
            raise ValueError(f"{path} is no 64-bit little-endian ELF file")
        start, size, count = struct.unpack_from("<Q14xHH", self.data, 32)
        headers = [struct.unpack_from("<IIQQQQ", self.data, start + size * i) for i in range(count)]
        self._segments = [(header[3], header[2], header[5]) for header in headers if header[0] == 1]
        self._dynamic: dict[int, list[int]] = {}
        for kind, _, offset, _, _, length in headers:
            if kind == 2:
                for at in range(offset, offset + length, 16):
                    tag, value = struct.unpack_from("<QQ", self.data, at)
                    if tag == NULL:
                        break
                    self._dynamic.setdefault(tag, []).append(value)

    def _offset(self, address: int) -> int:
        for start, offset, length in self._segments:
            if start <= address < start + length:
                return address - start + offset
        raise ValueError(f"{self.path}: the address {address:#x} is in no segment")

    def _string(self, index: int) -> str:
        start = self._offset(self._dynamic[STRTAB][0]) + index
        return self.data[start : self.data.index(0, start)].decode()

    def _strings(self, tag: int) -> list[str]:
        return [self._string(index) for index in self._dynamic.get(tag, [])]

    @property
    def needed(self) -> list[str]:
        """The libraries that the loader loads with this file."""
        return self._strings(NEEDED)

    @property
    def soname(self) -> str | None:
        return next(iter(self._strings(SONAME)), None)

    @property
    def runpath(self) -> str | None:
        return next(iter(self._strings(RUNPATH)), None)

    @property
    def versions(self) -> list[Version]:
        """The versions of symbols that the file needs."""
        found: list[Version] = []
        at = self._offset(self._dynamic[VERNEED][0]) if VERNEED in self._dynamic else 0
        for _ in range(self._dynamic.get(VERNEEDNUM, [0])[0]):
            _, count, library, entries, following = struct.unpack_from("<HHIII", self.data, at)
            entry = at + entries
            for _ in range(count):
                _, _, index, name, step = struct.unpack_from("<IHHII", self.data, entry)
                found.append(Version(self._string(library), self._string(name), entry, index))
                entry += step
            at += following
        return found

    def symbols(self, version: Version) -> dict[str, int]:
        """The symbols that are needed in a version, and where each refers to it."""
        names, indices = (self._offset(self._dynamic[tag][0]) for tag in (SYMTAB, VERSYM))
        found: dict[str, int] = {}
        # The symbols end where the strings begin, in files of both linkers in use.
        count = (self._offset(self._dynamic[STRTAB][0]) - names) // SYMBOL_SIZE
        for i in range(count):
            if struct.unpack_from("<H", self.data, indices + 2 * i)[0] & 0x7FFF == version.index:
                found[self._string(struct.unpack_from("<I", self.data, names + SYMBOL_SIZE * i)[0])] = indices + 2 * i
        return found

    def rename_version(self, version: Version, name: str) -> None:
        """Asks for another version in place of one; the file has to have its name already."""
        strings = self._offset(self._dynamic[STRTAB][0])
        index = self.data.find(b"\0" + name.encode() + b"\0", strings) + 1 - strings
        if index <= 0 or self._string(index) != name:
            raise ValueError(f"{self.path} has no string {name}")
        struct.pack_into("<I", self.data, version.place, version_hash(name))
        struct.pack_into("<I", self.data, version.place + 8, index)

    def forget_version(self, place: int) -> None:
        """Takes a symbol of whatever version."""
        struct.pack_into("<H", self.data, place, 1)
