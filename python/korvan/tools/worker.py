"""A worker process: it works on one task after the other, as it is told over a socket.

``korvan.tools.processes`` starts it. A message is its length in eight bytes, and a pickled object.
"""

from __future__ import annotations

import ctypes
import os
import pickle
import signal
import socket
from collections.abc import Iterable
from typing import BinaryIO

from korvan.tools.errors import message_of

LENGTH = 8
_PR_SET_PDEATHSIG = 1


def pack(message: object) -> bytes:
    """A message as the bytes that are sent."""
    content = pickle.dumps(message, pickle.HIGHEST_PROTOCOL)
    return len(content).to_bytes(LENGTH, "little") + content


def _read(stream: BinaryIO) -> bytes | None:
    """The next message, still pickled; ``None`` when the other side has ended."""
    try:
        length = stream.read(LENGTH)
        content = stream.read(int.from_bytes(length, "little"))
    except ConnectionResetError:  # it ended before it read the last answer
        return None
    return content if len(length) == LENGTH and content else None


def _end_with_parent(parent: int) -> None:
    """Lets the system kill this process when the thread that started it ends, however that ends."""
    ctypes.CDLL(None).prctl(_PR_SET_PDEATHSIG, signal.SIGKILL, 0, 0, 0)
    if os.getppid() != parent:
        os._exit(1)


def _import_main(preparation: dict[str, object]) -> None:
    """Imports the program of the parent, so that its functions can be called."""
    from multiprocessing import process, spawn

    current = process.current_process()
    setattr(current, "_inheriting", True)  # noqa: B010: a pool that is started meanwhile is an error
    try:
        spawn.prepare(preparation)
    finally:
        delattr(current, "_inheriting")


def import_modules(names: Iterable[str]) -> None:
    """What workers do first that only need modules."""
    for name in names:
        __import__(name)


def _answer(content: bytes) -> bytes:
    """Does a task; whether it succeeded, and the result or the message of its error, as a message."""
    try:
        function, task = pickle.loads(content)
        answer = (True, function(task))
    except BaseException as failure:
        answer = (False, message_of(failure))
    try:
        return pack(answer)
    except Exception as failure:  # what cannot be pickled
        return pack((False, f"the result cannot be sent: {message_of(failure)}"))


def main(descriptor: int, parent: int) -> None:
    """The life of a worker, until the socket is closed.

    :param parent: The process with which it ends; 0 if it only ends when it is idle.
    """
    signal.signal(signal.SIGINT, signal.SIG_IGN)  # the parent decides what Ctrl-C means
    if parent:
        _end_with_parent(parent)
    connection = socket.socket(fileno=descriptor)
    with connection.makefile("rb") as messages:
        if not (start := _read(messages)):
            return
        try:
            preparation, greeting = pickle.loads(start)
            if preparation is not None:
                _import_main(preparation)
            function = pickle.loads(greeting)
            reply = pack((True, function()))
        except BaseException as failure:
            connection.sendall(pack((False, message_of(failure))))
            raise
        connection.sendall(reply)
        while content := _read(messages):
            try:
                connection.sendall(_answer(content))
            except (BrokenPipeError, ConnectionResetError):
                return  # the parent has ended

