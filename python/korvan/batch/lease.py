"""Leases: files that say who works on a shard or a batch, on file systems whose locks cannot be trusted.

A lease has generations, ``name.1``, ``name.2`` and so on; the highest one holds. Who takes over creates the next one
exclusively, so that of two only one wins, and the former owner sees at its next look that it lost. The owner renews
the time of the file; ages are measured by the clock of the file server alone.
"""

from __future__ import annotations

import json
import os
import socket
import tempfile
import time
from dataclasses import dataclass
from pathlib import Path
from types import TracebackType
from typing import Any

from korvan.batch.errors import BatchError, printable, telling
from korvan.batch.stopping import Stop

RENEWED_EVERY = 5.0
STALE_AFTER = 60.0


class LeaseHeld(BatchError):
    """Another process has it."""

    def __init__(self, text: str, *, may_be_gone: bool = False) -> None:
        super().__init__(text)
        self.may_be_gone = may_be_gone
        """Whether it can't be seen from here if the process lives: its signs of life have to tell."""


class LeaseLost(BatchError):
    """Another process took over, since this one gave no sign of life for too long."""


def _read(path: str) -> str:
    try:
        with open(path, encoding="ascii") as file:
            return file.read()
    except OSError:
        return ""


def _process_start(process: int) -> str:
    """When a process began, in ticks; tells it from a later one with the same number. Empty if there is none."""
    fields = _read(f"/proc/{process}/stat").rpartition(")")[2].split()
    return fields[19] if len(fields) > 19 and fields[0] not in "ZX" else ""


def _machine() -> str:
    """The running system and the namespace of process numbers that this process sees."""
    try:
        namespace = os.readlink("/proc/self/ns/pid")
    except OSError:
        namespace = ""
    return _read("/proc/sys/kernel/random/boot_id").strip() + namespace


@dataclass(frozen=True)
class Holder:
    """Who holds a lease."""

    host: str
    process: int
    start: str
    machine: str
    since: float
    released: bool = False

    @classmethod
    def me(cls) -> Holder:
        return cls(socket.gethostname(), os.getpid(), _process_start(os.getpid()), _machine(), time.time())

    @classmethod
    def read(cls, path: Path) -> Holder | None:
        """The holder that a lease names; ``None`` while it is being written."""
        try:
            content: dict[str, Any] = json.loads(path.read_bytes())
            return cls(**content)
        except (OSError, ValueError, TypeError):
            return None

    def is_gone(self) -> bool:
        """Whether the process ended, as far as it can be seen from here."""
        if self.released:
            return True
        return self.machine == _machine() and _process_start(self.process) != self.start

    def is_visible(self) -> bool:
        """Whether this machine can see the process: its age then says nothing, it may only be stopped."""
        return self.machine == _machine()

    def __str__(self) -> str:
        return f"process {self.process} on {self.host}"


class Lease:
    """Held from ``take`` to ``release``, and renewed between them."""

    def __init__(self, path: Path) -> None:
        self._path = path
        self._generation = 0
        self._renewed = 0.0

    def take(self) -> None:
        """Takes the lease if nobody holds it, or who held it is gone.

        :raises LeaseHeld: It is held; the text says by whom.
        """
        with telling(self._path.parent):
            last = self._last()
            if last:
                self._refuse_held(self._file(last))
            try:
                handle = os.open(self._file(last + 1), os.O_WRONLY | os.O_CREAT | os.O_EXCL, 0o644)
            except FileExistsError:
                raise LeaseHeld(f"{printable(self._path.parent)}: another process has just taken it") from None
            try:
                with open(handle, "wb") as file:
                    file.write(_encode(Holder.me()))
            except OSError:
                self._file(last + 1).unlink(missing_ok=True)
                raise
            self._generation = last + 1
            self._renewed = time.monotonic()
            # Who listed the generations long ago may have created one that was given up and removed since.
            self.check()
            for generation in self._generations():
                if generation < self._generation:
                    self._file(generation).unlink(missing_ok=True)

    def wait(self, stop: Stop) -> None:
        """Takes the lease; waits while its holder may be gone: a task that was killed on another machine.

        :raises LeaseHeld: It is held by who lives.
        """
        end = time.monotonic() + STALE_AFTER + 2 * RENEWED_EVERY
        while True:
            try:
                return self.take()
            except LeaseHeld as failure:
                if not failure.may_be_gone or time.monotonic() > end:
                    raise
            stop.wait(RENEWED_EVERY)

    def renew(self) -> None:
        """Gives a sign of life if it is time for one.

        :raises LeaseLost: Another process took over.
        """
        if time.monotonic() - self._renewed < RENEWED_EVERY:
            return
        self.check()
        with telling(self._path):
            os.utime(self._file(self._generation))
        self._renewed = time.monotonic()

    def check(self) -> None:
        """Makes sure that the lease is still ours.

        :raises LeaseLost: Another process took over.
        """
        with telling(self._path.parent):
            last = self._last()
        if last != self._generation:
            holder = Holder.read(self._file(last))
            raise LeaseLost(f"{printable(self._path)}: was taken over by {holder or 'another process'}")

    def release(self) -> None:
        """Gives the lease up. The file stays, since generations must not begin anew."""
        if not self._generation:
            return
        path, self._generation = self._file(self._generation), 0
        me = Holder.me()
        released = Holder(me.host, me.process, me.start, me.machine, me.since, released=True)
        try:
            part = path.with_name(f".{path.name}.part")
            part.write_bytes(_encode(released))
            os.replace(part, path)
        except OSError:
            pass  # a full disk; the end of the process says the same

    def _file(self, generation: int) -> Path:
        return self._path.with_name(f"{self._path.name}.{generation}")

    def _generations(self) -> list[int]:
        prefix = self._path.name + "."
        names = [entry for entry in os.listdir(self._path.parent) if entry.startswith(prefix)]
        return [int(number) for name in names if (number := name.removeprefix(prefix)).isdigit()]

    def _last(self) -> int:
        return max(self._generations(), default=0)

    def _refuse_held(self, path: Path) -> None:
        holder = Holder.read(path)
        if holder and holder.is_gone():
            return
        age = _age(path)
        if holder and holder.is_visible() or age < STALE_AFTER:
            whom = str(holder or "another process")
            raise LeaseHeld(f"{printable(self._path.parent)}: is in use by {whom} (last sign of life {age:.0f} s ago)",
                            may_be_gone=not (holder and holder.is_visible()))

    def __enter__(self) -> Lease:
        if not self._generation:
            self.take()
        return self

    def __exit__(
        self, kind: type[BaseException] | None, failure: BaseException | None, trace: TracebackType | None
    ) -> None:
        self.release()


def _encode(holder: Holder) -> bytes:
    return json.dumps(holder.__dict__).encode()


def _age(path: Path) -> float:
    """Seconds since a file was touched, by the clock of its file server."""
    with tempfile.NamedTemporaryFile(dir=path.parent, prefix=".clock") as clock:
        os.utime(clock.name)
        now = os.stat(clock.name).st_mtime
    try:
        return max(0.0, now - path.stat().st_mtime)
    except FileNotFoundError:
        return 0.0
