"""Python objects for calls that should be refused: of every type, of every size, and objects that misbehave."""

from __future__ import annotations

import datetime as dt
import decimal
import enum
import io
import uuid
from collections.abc import Callable
from pathlib import Path
from random import Random
from typing import Any


class Wordless(Exception):
    """An error whose text can't be had."""

    def __str__(self) -> str:
        raise ValueError


ERRORS = (ValueError, KeyError, TypeError, IndexError, AttributeError, RuntimeError, Wordless, StopIteration)
CLAIMS = (uuid.UUID, decimal.Decimal, decimal.DecimalTuple, dt.datetime, dt.time, str, int, float, bytes, list, tuple,
          io.RawIOBase, io.BufferedIOBase, type, object, enum.Enum)


class Values:
    """Makes values from one source of chance."""

    # The types of Python that a parameter may name: of each, right ones, and what only claims to be one.
    CLAIMED = ("UUID", "Decimal", "datetime", "timedelta")

    def __init__(self, random: Random, types: list[type], pool: list[Any]) -> None:
        self._random = random
        self._types = types
        self._pool = pool
        self._makers: tuple[tuple[int, Callable[[], Any]], ...] = (
            (4, self._plain), (4, self._number), (3, self._text), (2, self._buffer), (3, self._collection),
            (6, self._live), (2, self._empty), (2, self._enum), (1, self._moment), (9, self._hostile),
        )
        self._weights = [weight for weight, _ in self._makers]

    def value(self, depth: int = 0) -> Any:
        if depth > 2:
            return self._plain()
        (_, maker), = self._random.choices(self._makers, self._weights)
        return maker() if maker is not self._collection else self._collection(depth)

    def claiming(self, name: str) -> Any:
        type_, right = {
            "UUID": (uuid.UUID, lambda: uuid.UUID(int=7)), "Decimal": (decimal.Decimal, lambda: decimal.Decimal("1.5")),
            "datetime": (dt.datetime, self._moment), "timedelta": (dt.timedelta, lambda: dt.timedelta(1)),
        }[name]
        hostile = {"UUID": HostileUuid, "Decimal": HostileDecimal}.get(name, Raising)
        return self._random.choice((right, right, self._hostile, lambda: hostile(self._random, self._pool),
                                    lambda: Lying(self._random, self._pool, type_)))()

    def arguments(self) -> list[Any]:
        return [self.value() for _ in range(self._random.choice((0, 0, 1, 1, 1, 2, 2, 3, 4, 6)))]

    def _plain(self) -> Any:
        return self._random.choice((
            None, True, False, 0, 1, "x", 1.5, ..., NotImplemented, object(), int, {}, {1: 2}, set()))

    def _number(self) -> Any:
        power = self._random.choice((7, 8, 15, 16, 31, 32, 53, 63, 64, 100))
        near = self._random.choice((-1, 1)) * 2**power + self._random.randint(-1, 1)
        return self._random.choice((
            self._random.randint(-3, 12), near, float(near), float("nan"), float("inf"), -0.0, 1e308, 5e-324, 2j,
            decimal.Decimal(near), decimal.Decimal("NaN"), decimal.Decimal("1E+500"), decimal.Decimal("-0.0000001"),
            decimal.DecimalTuple(0, (1, 2, near), -3), uuid.UUID(int=abs(near) % 2**128)))

    def _text(self) -> Any:
        return self._random.choice((
            "", "x", "name", "\0", "a\0b", "\ud800", "\U0001f600", "\u0660", "0", "-1", "%s%n{0}", "l" * 5000,
            "out.pdf", "out.dxf", b"path", Path("out.png"), "IFCWALL", "Model"))

    def _buffer(self) -> Any:
        data = bytes(self._random.randrange(256) for _ in range(self._random.choice((0, 1, 16, 100))))
        released = memoryview(bytearray(data))
        released.release()
        return self._random.choice((
            data, bytearray(data), memoryview(data)[::2], released, io.BytesIO(data),
            io.BufferedReader(io.BytesIO(data)), io.StringIO("text"), LyingStream(self._random),
            LyingStream(self._random)))

    def _collection(self, depth: int = 0) -> Any:
        items = [self.value(depth + 1) for _ in range(self._random.choice((0, 1, 2, 3, 8)))]
        kind = self._random.choice((list, list, tuple, iter, SelfClearing, HostileSequence))
        return HostileSequence(self._random, items) if kind is HostileSequence else kind(items)

    def _live(self) -> Any:
        return self._random.choice(self._pool) if self._pool else None

    def _empty(self) -> Any:
        type_ = self._random.choice(self._types)
        try:
            return self._random.choice((type_.__new__(type_), type_))
        except Exception:  # noqa: BLE001: enums and static classes can't be made so
            return type_

    def _enum(self) -> Any:
        type_ = self._random.choice(self._types)
        return self._random.choice(list(type_)) if issubclass(type_, enum.Enum) and len(type_) else type_

    def _moment(self) -> Any:
        zone = HostileZone(self._random)
        return self._random.choice((
            dt.datetime.max, dt.datetime.min, dt.date(2024, 2, 29), dt.timedelta.max, dt.timedelta.min, dt.time(23, 59),
            dt.datetime(9999, 12, 31, tzinfo=zone), dt.time(1, tzinfo=zone),
            dt.datetime(1, 1, 1, tzinfo=dt.timezone.max)))

    def _hostile(self) -> Any:
        return self._random.choice((
            Lying, Raising, Remaking, Dying, HostileUuid, HostileDecimal))(self._random, self._pool)


class _Hostile:
    def __init__(self, random: Random, pool: list[Any]) -> None:
        self.random = random
        self.pool = pool

    def error(self) -> Exception:
        return self.random.choice(ERRORS)("hostile")


class Lying(_Hostile):
    """Says that it is of another class."""

    def __init__(self, random: Random, pool: list[Any], claim: type | None = None) -> None:
        super().__init__(random, pool)
        self.claim = claim or random.choice(CLAIMS)

    __class__ = property(lambda self: self.claim)  # type: ignore[assignment]

    def __getattr__(self, name: str) -> Any:
        parts = ("bytes_le", "exponent", "digits", "sign", "as_tuple", "tzinfo", "utcoffset", "closed")
        if name in parts and self.random.random() < 0.7:
            return self.random.choice((None, 1, b"short", "x", (1, 2), lambda: (0, (1,), 0), [self]))
        raise AttributeError(name)


class Raising(_Hostile):
    """Raises whatever it is asked."""

    @property
    def __class__(self) -> Any:  # type: ignore[override]
        raise self.error()

    def __len__(self) -> int:
        raise self.error()

    __index__ = __bool__ = __hash__ = __len__

    def __iter__(self) -> Any:
        raise self.error()

    __str__ = __fspath__ = __buffer__ = __iter__

    def __eq__(self, other: object) -> bool:
        raise self.error()

    def __getitem__(self, index: object) -> Any:
        raise self.error()


class Remaking(_Hostile):
    """Makes a live object anew while it is looked at."""

    @property
    def __class__(self) -> Any:  # type: ignore[override]
        if self.pool:
            victim = self.random.choice(self.pool)
            try:
                victim.__init__()
            except Exception:  # noqa: BLE001: most have no such constructor
                pass
        return object


class Dying(_Hostile):
    """Calls the library when it is deallocated."""

    def __del__(self) -> None:
        if self.pool:
            repr(self.random.choice(self.pool))


class HostileUuid(uuid.UUID):
    def __init__(self, random: Random, _: list[Any]) -> None:
        super().__init__(int=random.choice((0, 5)))
        object.__setattr__(self, "_choice", random.choice((b"short", None, b"x" * 40, "text")))

    __slots__ = ("_choice",)

    @property
    def bytes_le(self) -> Any:
        if self._choice is None:  # type: ignore[attr-defined]
            raise KeyError("bytes")
        return self._choice  # type: ignore[attr-defined]


class HostileDecimal(decimal.Decimal):
    random: Random

    def __new__(cls, random: Random, _: list[Any]) -> HostileDecimal:
        made = super().__new__(cls, random.choice(("1", "1E+100", "-0")))
        made.random = random
        return made

    def as_tuple(self) -> Any:
        return self.random.choice((
            None, (0, (1,), 0), decimal.DecimalTuple(0, (), 0), decimal.DecimalTuple(9, "x", -40)))


class HostileZone(dt.tzinfo):
    def __init__(self, random: Random) -> None:
        self.random = random

    def utcoffset(self, _: Any) -> Any:
        if self.random.random() < 0.3:
            raise self.random.choice(ERRORS)("zone")
        return self.random.choice((None, "x", dt.timedelta(hours=23, minutes=59), dt.timedelta(microseconds=7)))


class SelfClearing(list[Any]):
    """Lets its items go when it is asked for its length or an item."""

    def __len__(self) -> int:
        self.clear()
        return 3

    def __getitem__(self, index: Any) -> Any:
        self.clear()
        return None


class HostileSequence:
    """Says one length, has another, and changes with each item."""

    def __init__(self, random: Random, items: list[Any]) -> None:
        self.random = random
        self.items = items

    def __len__(self) -> int:
        return self.random.choice((0, 1, len(self.items), len(self.items) + 2, -1 if self.random.random() < 0.1 else 1))

    def __getitem__(self, index: Any) -> Any:
        if self.items and self.random.random() < 0.3:
            self.items.pop()
        if self.random.random() < 0.1:
            raise self.random.choice(ERRORS)("item")
        return self.items[index]


class LyingStream(io.RawIOBase):
    """Counts what it never moved."""

    def __init__(self, random: Random) -> None:
        self.random = random

    def _answer(self, *_: Any) -> Any:
        if self.random.random() < 0.2:
            raise self.random.choice(ERRORS)("stream")
        return self.random.choice((0, 0, 1, -1, None, 2**40, "x", True))

    readinto = write = seek = tell = truncate = _answer  # type: ignore[assignment]

    def readable(self) -> Any:
        return self.random.choice((True, True, False, 1))

    writable = seekable = readable
