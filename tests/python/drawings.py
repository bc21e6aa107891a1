"""Where the real drawings lie, and independent readers of what is made of them."""

from __future__ import annotations

import shutil
import struct
import subprocess
import unittest
import zlib
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
EXAMPLES = ROOT / "examples" / "drawings"
SHARED = ROOT.parent / "shared" / "drawings"


def needs_shared(test: object) -> object:
    """Skips, and says so, where the real drawings are not beside the checkout."""
    return unittest.skipUnless(SHARED.is_dir(), f"no real drawings: {SHARED} is not there")(test)


def needs_tools(*names: str) -> object:
    missing = [name for name in names if shutil.which(name) is None]
    return unittest.skipIf(missing, f"not installed: {', '.join(missing)}")


def tool(*command: str) -> str:
    """The tool's output; its failure fails the test."""
    done = subprocess.run(command, capture_output=True, text=True, timeout=60, check=False)
    if done.returncode != 0:
        raise AssertionError(f"{' '.join(command)}: {done.stderr}")
    return done.stdout


class Png:
    """A PNG file, decoded: size and pixels as RGBA or RGB rows."""

    def __init__(self, data: bytes) -> None:
        if data[:8] != b"\x89PNG\r\n\x1a\n":
            raise AssertionError("no PNG signature")
        position, pixels = 8, b""
        kind = b""
        while kind != b"IEND":
            (length,) = struct.unpack_from(">I", data, position)
            kind = data[position + 4 : position + 8]
            body = data[position + 8 : position + 8 + length]
            (crc,) = struct.unpack_from(">I", data, position + 8 + length)
            if crc != zlib.crc32(kind + body):
                raise AssertionError(f"checksum of {kind!r}")
            if kind == b"IHDR":
                self.width, self.height, depth, color = struct.unpack_from(">IIBB", body)
                if depth != 8 or color not in (2, 6):
                    raise AssertionError(f"depth {depth}, colour type {color}")
                self.channels = 4 if color == 6 else 3
            elif kind == b"IDAT":
                pixels += body
            position += 12 + length
        self._rows = self._unfilter(zlib.decompress(pixels))

    def _unfilter(self, raw: bytes) -> list[bytearray]:
        stride, step = self.width * self.channels, self.channels
        if len(raw) != (stride + 1) * self.height:
            raise AssertionError("pixel data of the wrong length")
        rows: list[bytearray] = []
        above = bytearray(stride)
        for y in range(self.height):
            kind = raw[y * (stride + 1)]
            row = bytearray(raw[y * (stride + 1) + 1 : (y + 1) * (stride + 1)])
            for i in range(stride) if kind else ():
                left = row[i - step] if i >= step else 0
                corner = above[i - step] if i >= step else 0
                row[i] = (row[i] + _predict(kind, left, above[i], corner)) & 0xFF
            rows.append(row)
            above = row
        return rows

    def pixel(self, x: int, y: int) -> tuple[int, ...]:
        return tuple(self._rows[y][x * self.channels : x * self.channels + 3])

    def coverage(self) -> float:
        """The share of pixels that are not the colour of the upper left one."""
        step = self.channels
        background = bytes(self._rows[0][:step])
        marked = sum(
            row[i : i + step] != background
            for row in self._rows
            for i in range(0, len(row), step)
        )
        return marked / (self.width * self.height)


def _predict(kind: int, left: int, above: int, corner: int) -> int:
    if kind == 1:
        return left
    if kind == 2:
        return above
    if kind == 3:
        return (left + above) // 2
    estimate = left + above - corner
    distances = [(abs(estimate - value), rank) for rank, value in enumerate((left, above, corner))]
    return (left, above, corner)[min(distances)[1]]
