"""Signals that end a batch: they are noted, and wake who waits; nothing is interrupted in its middle."""

from __future__ import annotations

import signal
import socket
import threading
from types import FrameType, TracebackType
from typing import Any

from korvan.batch.errors import Interrupted

_SIGNALS = (signal.SIGINT, signal.SIGTERM, signal.SIGHUP)


class Stop:
    """While it is entered, signals ask the batch to stop. In other threads than the main one, only ``ask`` does."""

    def __init__(self) -> None:
        self._name = ""
        self._reader, self._writer = socket.socketpair()
        self._before: dict[int, Any] = {}
        self._wakeup = -1
        for end in (self._reader, self._writer):
            end.setblocking(False)

    def fileno(self) -> int:
        """Readable once a stop was asked for."""
        return self._reader.fileno()

    def ask(self, name: str = "stopped") -> None:
        self._name = self._name or name
        try:
            self._writer.send(b"\0")
        except BlockingIOError:
            pass

    def check(self) -> None:
        """Raises ``Interrupted`` if a stop was asked for."""
        if self._name:
            raise Interrupted(f"{self._name}: stopped; the same command goes on from here")

    def wait(self, seconds: float) -> None:
        """Sleeps, but no longer than until a stop is asked for."""
        self._reader.settimeout(seconds)
        try:
            self._reader.recv(1, socket.MSG_PEEK)
        except TimeoutError:
            pass
        finally:
            self._reader.setblocking(False)
        self.check()

    def _note(self, number: int, _frame: FrameType | None) -> None:
        self.ask("interrupted" if number == signal.SIGINT else signal.Signals(number).name)

    def __enter__(self) -> Stop:
        if threading.current_thread() is threading.main_thread():
            self._before = {number: signal.signal(number, self._note) for number in _SIGNALS
                            if signal.getsignal(number) is not signal.SIG_IGN}
            self._wakeup = signal.set_wakeup_fd(self._writer.fileno(), warn_on_full_buffer=False)
        return self

    def __exit__(
        self, kind: type[BaseException] | None, failure: BaseException | None, trace: TracebackType | None
    ) -> None:
        if threading.current_thread() is threading.main_thread():
            signal.set_wakeup_fd(self._wakeup)
            for number, handler in self._before.items():
                signal.signal(number, handler)
        self._reader.close()
        self._writer.close()
