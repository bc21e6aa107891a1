"""Binary file objects of every kind that a program may hand over: sources of given bytes, and targets."""

from __future__ import annotations

import bz2
import gzip
import io
import lzma
import os
import socket
import tempfile
import threading
import zipfile
from collections.abc import Callable
from contextlib import ExitStack
from pathlib import Path
from typing import Any

from korvan import probe
from korvan.pycore import BytesAsStream


class OneWay(io.RawIOBase):
    """Reads or writes forward only, a thousand bytes at most at a time."""

    SHORT = 1000

    def __init__(self, content: bytes | None = None) -> None:
        super().__init__()
        self.content = content
        self.position = 0
        self.taken = bytearray()

    def readable(self) -> bool:
        return self.content is not None

    def writable(self) -> bool:
        return self.content is None

    def readinto(self, target: Any) -> int:
        assert self.content is not None
        view = memoryview(target)
        part = self.content[self.position : self.position + min(self.SHORT, view.nbytes)]
        view[: len(part)] = part
        self.position += len(part)
        return len(part)

    def write(self, data: Any) -> int:
        part = bytes(memoryview(data)[: self.SHORT])
        self.taken += part
        return len(part)


def stored(opener: Callable[..., Any]) -> Callable[[bytes, ExitStack], Any]:
    """A file that the opener writes first."""

    def open_it(data: bytes, stack: ExitStack) -> Any:
        path = Path(stack.enter_context(tempfile.TemporaryDirectory())) / "file"
        with opener(path, "wb") as file:
            file.write(data)
        return stack.enter_context(opener(path, "rb"))

    return open_it


def raw_file(path: Path, mode: str) -> Any:
    return open(path, mode, buffering=0)


def archive_member(data: bytes, stack: ExitStack) -> Any:
    packed = io.BytesIO()
    with zipfile.ZipFile(packed, "w", zipfile.ZIP_DEFLATED) as archive:
        archive.writestr("member", data)
    return stack.enter_context(stack.enter_context(zipfile.ZipFile(packed)).open("member"))


def fed(data: bytes, stack: ExitStack, close: Callable[[], object], send: Callable[[bytes], object]) -> None:
    """Another thread sends the bytes and closes its end."""
    feeder = threading.Thread(target=lambda: (send(data), close()))
    feeder.start()
    stack.callback(feeder.join)


def pipe(data: bytes, stack: ExitStack) -> Any:
    reading, writing = os.pipe()
    end = open(writing, "wb")
    fed(data, stack, end.close, end.write)
    return stack.enter_context(open(reading, "rb"))


def socket_file(buffering: int) -> Callable[[bytes, ExitStack], Any]:
    def open_it(data: bytes, stack: ExitStack) -> Any:
        ours, theirs = socket.socketpair()
        fed(data, stack, theirs.close, theirs.sendall)
        stack.enter_context(ours)
        return stack.enter_context(ours.makefile("rb", buffering=buffering))

    return open_it


SOURCES: dict[str, Callable[[bytes, ExitStack], Any]] = {
    "open": stored(open),
    "open, unbuffered": stored(raw_file),
    "io.BytesIO": lambda data, stack: io.BytesIO(data),
    "BytesAsStream": lambda data, stack: BytesAsStream(data),
    "gzip": stored(gzip.open),
    "bz2": stored(bz2.open),
    "lzma": stored(lzma.open),
    "a member of an archive": archive_member,
    "a pipe": pipe,
    "a socket's file": socket_file(8192),
    "a socket's file, unbuffered": socket_file(0),
    "forward only, short reads": lambda data, stack: OneWay(data),
    "a managed stream": lambda data, stack: probe.Streams.open(data),
    "a buffer over a managed stream": lambda data, stack: io.BufferedReader(probe.Streams.open(data)),
}

Target = tuple[Any, Callable[[], bytes]]


def written(opener: Callable[..., Any]) -> Callable[[ExitStack], Target]:
    def open_it(stack: ExitStack) -> Target:
        path = Path(stack.enter_context(tempfile.TemporaryDirectory())) / "file"
        file = stack.enter_context(opener(path, "wb"))

        def content() -> bytes:
            file.close()
            with opener(path, "rb") as again:
                return again.read()

        return file, content

    return open_it


def memory_target(stack: ExitStack) -> Target:
    file = io.BytesIO()
    return file, file.getvalue


def one_way_target(stack: ExitStack) -> Target:
    file = OneWay()
    return file, lambda: bytes(file.taken)


def member_target(stack: ExitStack) -> Target:
    packed = io.BytesIO()
    archive = zipfile.ZipFile(packed, "w")
    file = stack.enter_context(archive.open("member", "w"))

    def content() -> bytes:
        file.close()
        archive.close()
        return zipfile.ZipFile(packed).read("member")

    return file, content


def socket_target(stack: ExitStack) -> Target:
    ours, theirs = socket.socketpair()
    stack.enter_context(theirs)
    received: list[bytes] = []
    collector = threading.Thread(target=lambda: received.extend(iter(lambda: theirs.recv(65536), b"")))
    collector.start()
    file = stack.enter_context(ours.makefile("wb"))

    def content() -> bytes:
        file.close()
        ours.close()
        collector.join()
        return b"".join(received)

    return file, content


def managed_target(stack: ExitStack) -> Target:
    stream = probe.Streams.open(b"")

    def content() -> bytes:
        stream.seek(0)
        return stream.read()

    return stream, content


TARGETS: dict[str, Callable[[ExitStack], Target]] = {
    "open": written(open),
    "open, unbuffered": written(raw_file),
    "io.BytesIO": memory_target,
    "gzip": written(gzip.open),
    "lzma": written(lzma.open),
    "a member of an archive": member_target,
    "a socket's file": socket_target,
    "forward only, short writes": one_way_target,
    "a managed stream": managed_target,
}
