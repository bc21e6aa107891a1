"""Which assemblies of the runtime the package needs: what ours refer to, and what those refer to."""

from __future__ import annotations

import struct
from collections.abc import Iterable
from dataclasses import dataclass
from pathlib import Path

CORE = "System.Private.CoreLib"
NOT_LOADED = {
    "System.Net.Http": "XML is never read from the network",
    "System.Linq.Expressions": "XML is neither serialized nor transformed by style sheets",
}
"""References that nothing follows, with the reason. The suite of tests runs without these assemblies."""


@dataclass(frozen=True)
class _Index:
    """A column with a row of one of several tables, and the bits that tell of which."""

    bits: int
    tables: tuple[int, ...]


# Columns of the metadata tables up to that of references (ECMA-335, II.22): a number of bytes, a heap (s, g, b), or an
# index of rows.
type _Column = int | str | _Index
_TYPE = _Index(2, (0x02, 0x01, 0x1B))
_CONSTANT = _Index(2, (0x04, 0x08, 0x17))
_ATTRIBUTE_PARENT = _Index(5, (
    0x06, 0x04, 0x01, 0x02, 0x08, 0x09, 0x0A, 0x00, 0x0E, 0x17, 0x14, 0x11, 0x1A, 0x1B, 0x20, 0x23, 0x26, 0x27, 0x28,
    0x2A, 0x2B, 0x2C,
))  # fmt: skip
_MARSHAL = _Index(1, (0x04, 0x08))
_SECURITY = _Index(2, (0x02, 0x06, 0x20))
_MEMBER_PARENT = _Index(3, (0x02, 0x01, 0x1A, 0x06, 0x1B))
_SEMANTICS = _Index(1, (0x14, 0x17))
_METHOD = _Index(1, (0x06, 0x0A))
_FORWARDED = _Index(1, (0x04, 0x06))
_ATTRIBUTE_TYPE = _Index(3, (0x06, 0x0A))
_SCOPE = _Index(2, (0x00, 0x1A, 0x23, 0x01))


def _row(table: int) -> _Index:
    return _Index(0, (table,))


_TABLES: dict[int, tuple[_Column, ...]] = {
    0x00: (2, "s", "g", "g", "g"),
    0x01: (_SCOPE, "s", "s"),
    0x02: (4, "s", "s", _TYPE, _row(0x04), _row(0x06)),
    0x03: (_row(0x04),),
    0x04: (2, "s", "b"),
    0x05: (_row(0x06),),
    0x06: (8, "s", "b", _row(0x08)),
    0x07: (_row(0x08),),
    0x08: (4, "s"),
    0x09: (_row(0x02), _TYPE),
    0x0A: (_MEMBER_PARENT, "s", "b"),
    0x0B: (2, _CONSTANT, "b"),
    0x0C: (_ATTRIBUTE_PARENT, _ATTRIBUTE_TYPE, "b"),
    0x0D: (_MARSHAL, "b"),
    0x0E: (2, _SECURITY, "b"),
    0x0F: (6, _row(0x02)),
    0x10: (4, _row(0x04)),
    0x11: ("b",),
    0x12: (_row(0x02), _row(0x14)),
    0x13: (_row(0x14),),
    0x14: (2, "s", _TYPE),
    0x15: (_row(0x02), _row(0x17)),
    0x16: (_row(0x17),),
    0x17: (2, "s", "b"),
    0x18: (2, _row(0x06), _SEMANTICS),
    0x19: (_row(0x02), _METHOD, _METHOD),
    0x1A: ("s",),
    0x1B: ("b",),
    0x1C: (2, _FORWARDED, "s", _row(0x1A)),
    0x1D: (4, _row(0x04)),
    0x1E: (8,),
    0x1F: (4,),
    0x20: (16, "b", "s", "s"),
    0x21: (4,),
    0x22: (12,),
    0x23: (12, "b", "s", "s", "b"),
}
_MODULES, _REFERENCES = 0x1A, 0x23


class _Metadata:
    """The metadata of an assembly, as far as its table of references."""

    def __init__(self, data: bytes) -> None:
        self._data = data
        header = struct.unpack_from("<I", data, 60)[0]
        count, options = struct.unpack_from("<H", data, header + 6)[0], struct.unpack_from("<H", data, header + 20)[0]
        first = header + 24
        directories = first + (112 if struct.unpack_from("<H", data, first)[0] == 0x20B else 96)
        self._sections = [struct.unpack_from("<IIII", data, first + options + 40 * i + 8) for i in range(count)]
        cli = self._offset(struct.unpack_from("<I", data, directories + 14 * 8)[0])
        root = self._offset(struct.unpack_from("<I", data, cli + 8)[0])
        streams = self._streams(root)
        tables, self._names = streams["#~"], streams["#Strings"]
        sizes, present = data[tables + 6], struct.unpack_from("<Q", data, tables + 8)[0]
        self._heaps = {heap: 4 if sizes >> bit & 1 else 2 for bit, heap in enumerate("sgb")}
        self._rows = [0] * 64
        self._first_row = tables + 24
        for table in range(64):
            if present >> table & 1:
                self._rows[table] = struct.unpack_from("<I", data, self._first_row)[0]
                self._first_row += 4

    def _offset(self, address: int) -> int:
        for size, start, length, offset in self._sections:
            if start <= address < start + max(size, length):
                return address - start + offset
        raise ValueError("an address is in no section")

    def _streams(self, root: int) -> dict[str, int]:
        at = root + 16 + struct.unpack_from("<I", self._data, root + 12)[0]
        count = struct.unpack_from("<H", self._data, at + 2)[0]
        at += 4
        streams: dict[str, int] = {}
        for _ in range(count):
            end = self._data.index(0, at + 8)
            streams[self._data[at + 8 : end].decode()] = root + struct.unpack_from("<I", self._data, at)[0]
            at += 8 + ((end - at - 8) // 4 + 1) * 4
        return streams

    def _width(self, column: _Column) -> int:
        if isinstance(column, int):
            return column
        if isinstance(column, str):
            return self._heaps[column]
        return 4 if max(self._rows[table] for table in column.tables) >= 1 << (16 - column.bits) else 2

    def strings(self, table: int, column: int) -> list[str]:
        """The strings of a column of a table."""
        at = self._first_row
        for earlier in range(table):
            if self._rows[earlier]:
                at += self._rows[earlier] * sum(self._width(each) for each in _TABLES[earlier])
        widths = [self._width(each) for each in _TABLES[table]]
        before, size, string = sum(widths[:column]), sum(widths), self._heaps["s"]
        names: list[str] = []
        for row in range(self._rows[table]):
            place = at + row * size + before
            start = self._names + int.from_bytes(self._data[place : place + string], "little")
            names.append(self._data[start : self._data.index(0, start)].decode())
        return names


def references(path: Path) -> list[str]:
    """The names of the assemblies that an assembly refers to."""
    return _Metadata(path.read_bytes()).strings(_REFERENCES, 2)


def native_libraries(path: Path) -> list[str]:
    """The names of the shared libraries whose functions an assembly calls."""
    return _Metadata(path.read_bytes()).strings(_MODULES, 0)


def needed(assemblies: Iterable[Path], runtime: Path) -> set[str]:
    """The file names of the runtime's assemblies that have to be there for ours."""
    ours = {path.stem: path for path in assemblies}
    found = {CORE}
    left = [name for path in ours.values() for name in references(path)]
    while left:
        name = left.pop()
        path = runtime / f"{name}.dll"
        if name not in found | ours.keys() | NOT_LOADED.keys() and path.is_file():
            found.add(name)
            left += references(path)
    return {f"{name}.dll" for name in found}
