"""100 MB through a Python stream, each way, beside the same copy in Python alone."""

from __future__ import annotations

import io
import tempfile
import time
from collections.abc import Callable
from pathlib import Path

import korvan.probe as probe

from report import Table, ratio

SIZE = 100_000_000
ROUNDS = 5
BLOCK = 1 << 16


class Counting(io.RawIOBase):
    """Counts what reaches the Python object below."""

    def __init__(self, below: io.BufferedIOBase) -> None:
        self.below = below
        self.calls = 0

    def readable(self) -> bool:
        return True

    def writable(self) -> bool:
        return True

    def seekable(self) -> bool:
        return True

    def seek(self, offset: int, whence: int = 0) -> int:
        return self.below.seek(offset, whence)

    def tell(self) -> int:
        return self.below.tell()

    def readinto(self, buffer: memoryview) -> int:
        self.calls += 1
        return self.below.readinto(buffer)

    def write(self, data: memoryview) -> int:
        self.calls += 1
        return self.below.write(data)


def _best(work: Callable[[], object]) -> float:
    best = float("inf")
    for _ in range(ROUNDS):
        start = time.perf_counter()
        work()
        best = min(best, time.perf_counter() - start)
    return best


def _copy(source: io.BufferedIOBase, target: io.BufferedIOBase) -> None:
    buffer = memoryview(bytearray(BLOCK))
    while count := source.readinto(buffer):
        target.write(buffer[:count])


def _rows(folder: Path) -> list[tuple[str, Callable[[], object], Callable[[], object], int]]:
    """Name, our way, Python's way, and the crossings of ours."""
    echo, data = probe.Echo(), bytes(range(256)) * (SIZE // 256)
    path, target = folder / "source", folder / "target"
    path.write_bytes(data)

    def read_file() -> None:
        with open(path, "rb") as file:
            probe.Streams.drain(file)

    def read_file_in_python() -> None:
        buffer = bytearray(BLOCK)
        with open(path, "rb", buffering=0) as file:
            while file.readinto(buffer):
                pass

    def write_file() -> None:
        with open(target, "wb") as file:
            probe.Streams.pour(file, SIZE)

    def write_file_in_python() -> None:
        block = data[:BLOCK]
        with open(target, "wb") as file:
            for _ in range(SIZE // BLOCK):
                file.write(block)

    reading, writing = Counting(io.BytesIO(data)), Counting(io.BytesIO())
    probe.Streams.drain(reading)
    probe.Streams.pour(writing, SIZE)
    return [
        ("managed code reads a Python file", read_file, read_file_in_python, reading.calls),
        ("managed code writes a Python file", write_file, write_file_in_python, writing.calls),
        ("Python reads a managed stream", lambda: _copy(probe.Streams.open(data), io.BytesIO()),
         lambda: _copy(io.BytesIO(data), io.BytesIO()), SIZE // BLOCK),
        ("Python writes a managed stream", lambda: _copy(io.BytesIO(data), probe.Streams.open(b"")),
         lambda: _copy(io.BytesIO(data), io.BytesIO()), SIZE // BLOCK),
    ]


def run(modules: Path) -> None:
    """Prints the table."""
    table = Table(f"{SIZE // 1_000_000} MB through a stream, best of {ROUNDS}",
                  ("", "ours", "Python alone", "of Python's speed", "crossings"))
    with tempfile.TemporaryDirectory() as folder:
        for name, ours, in_python, crossings in _rows(Path(folder)):
            our_time, python_time = _best(ours), _best(in_python)
            table.add(name, f"{SIZE / our_time / 1e6:,.0f} MB/s", f"{SIZE / python_time / 1e6:,.0f} MB/s",
                      ratio(python_time, our_time), f"{crossings:,}")
    table.print()
