"""Memory runs out at each allocation in turn: the call fails as such, and nothing is lost or ended by it."""

from __future__ import annotations

import datetime as dt
import decimal
import gc
import io
import sys
import unittest
import uuid
from collections.abc import Callable, Iterator

import failing_memory
from korvan import cad, probe
from korvan.cad.imageoptions import CadRasterizationOptions, PngOptions
from korvan.pycore import BytesAsStream
from korvan.pydrawing import Color, RectangleF

# More allocations than any of the calls makes.
LIMIT = 2000
# More wrappers than a module keeps the memory of.
SPARE = 300
# Blocks that a round may keep: the interpreter's free lists.
SLACK = 8
# The memory that is kept for the next wrappers and strings is full after these.
ROUNDS = 200
FEW_ROUNDS = 4

DRAWING = b"0\nSECTION\n2\nENTITIES\n0\nLINE\n10\n0\n20\n0\n11\n9\n21\n9\n0\nENDSEC\n0\nEOF\n"
PNG = PngOptions()
PNG.vector_rasterization_options = CadRasterizationOptions()

echo = probe.Echo()
echo.peer = probe.Echo()
echo.text = "some text that is too long to be kept"
echo.blob = b"bytes"
echo.face = probe.OpenShape()
echo.moment = dt.datetime(2024, 1, 1)
shelf = probe.Shelf()
collections = probe.Collections()
drawn = probe.Drawn()
streams = probe.Streams()
streams.held = probe.Streams.open(b"first\nsecond\n")
part = probe.Part()
part.inner = probe.Part.make(True)


def assign(name: str, value: object) -> Callable[[], object]:
    return lambda: setattr(echo, name, value)


def refused(call: Callable[[], object]) -> Callable[[], None]:
    def body() -> None:
        try:
            call()
        except (RuntimeError, TypeError):
            return
        raise AssertionError("not refused")

    return body


def of_any_kind(value: object) -> Callable[[], object]:
    return lambda: echo.same(value)


# Each ends in the creation of an object.
MADE: dict[str, Callable[[], object]] = {
    "an object by its constructor": probe.Echo,
    "an object by one of several forms": lambda: probe.Box("label"),
    "a struct": lambda: probe.Pair(1.0, 2.0),
    "a colour": lambda: Color.from_argb(1, 2, 3),
    "a rectangle": lambda: RectangleF(1, 2, 3, 4),
    "a view of bytes": lambda: BytesAsStream(b"x"),
    "an object of the library": lambda: cad.Size(1, 2),
    "a result of class type": lambda: echo.peer,
    "a result of struct type": lambda: echo.pair,
    "a result of enumeration type": lambda: echo.choice,
    "a result of an open interface": probe.Shapes.open,
    "a result of a hidden interface": probe.Shapes.hidden,
    "a struct behind an interface": probe.Shapes.boxed,
    "a result of its own class": lambda: part.inner,
    "a colour of a drawing": lambda: drawn.ink,
    "a rectangle of a drawing": lambda: drawn.frame,
    "a managed type": echo.get_type,
    "the type of a class": probe.Echo._type_of,
    "an enumeration's value of any type": lambda: probe.Choice.THIRD._as_uni_enum(),
    "a cast": lambda: probe.Echo._cast_to(echo),
    "a cast to an interface": lambda: probe.IFace._cast_as(echo.face),
    "a cast of a struct": lambda: probe.Pair._cast_to(probe.Pair(1.0, 2.0)),
    "a list": lambda: shelf.numbers,
    "an array of structs": lambda: shelf.pairs,
    "an iterable": lambda: shelf.counting,
    "an iterator": lambda: iter(shelf.counting),
    "an untyped list": lambda: shelf.loose,
    "an item": lambda: collections.boxes[0],
    "items": lambda: collections.boxes[:],
    "items on a walk": lambda: list(collections.boxes),
    "structs on a walk": lambda: list(shelf.pairs),
    "items of any kind": lambda: list(shelf.plain),
    "a stream": lambda: streams.held,
    "lines": lambda: probe.Streams.open(b"a\nb\n").readlines(),
    "text": lambda: echo.text,
    "a moment": lambda: echo.moment,
    "a duration": lambda: echo.span,
    "a UUID": lambda: echo.ident,
    "a text of an object": lambda: repr(echo),
    "a large integer of any kind": of_any_kind(2**40),
    "a decimal of any kind": of_any_kind(decimal.Decimal("1.5")),
    "a UUID of any kind": of_any_kind(uuid.UUID(int=7)),
    "an object of any kind": of_any_kind(echo),
    "a struct of any kind": of_any_kind(probe.Pair(1.0, 2.0)),
    "a list of any kind": of_any_kind(shelf.numbers),
}


# Each reads what is given, item by item or by calls back. None runs Python code: an interpreter of 3.12 does not
# survive where memory for a function runs out.
TAKEN: dict[str, Callable[[], object]] = {
    "text": assign("text", "\u20ac" * 300),
    "half a pair": assign("text", "x\U0001f600" * 300),
    "bytes": assign("blob", b"x" * 1000),
    "a moment": assign("moment", dt.datetime(2024, 1, 1)),
    "an aware moment": assign("moment", dt.datetime(2024, 1, 1, tzinfo=dt.timezone(dt.timedelta(hours=5)))),
    "a duration": assign("span", dt.timedelta(1, 2, 3)),
    "a UUID": assign("ident", uuid.UUID(int=2**100)),
    "a version": assign("release", (1, 2, 3)),
    "a struct": assign("pair", probe.Pair(1.0, 2.0)),
    "an interface": assign("face", probe.OpenShape()),
    "a managed exception": refused(lambda: echo.fail("System.Exception", "x")),
    "a misfit of all forms": refused(lambda: echo.pick(b"")),
    "a reference": lambda: echo.twice([100_000]),
    "an output": lambda: echo.try_get("a", []),
    "an iterable of any items": lambda: echo.sum(iter((1000, 2.5))),
    "a typed list": lambda: shelf.sum_numbers([1000, 2000]),
    "a typed list that is changed": lambda: probe.Collections.edit([probe.Box("a"), probe.Box("b")]),
    "a typed collection": lambda: probe.Collections.move(["x" * 300], "x" * 300, "y" * 300),
    "a typed iterable": lambda: shelf.join_words(iter(["word" * 300] * 3)),
    "a list of lists": lambda: probe.Collections.sum_table([[1000], [2000, 3000]]),
    "a list that is assigned": lambda: setattr(collections, "words", ["a" * 300, "b" * 300]),
    "items that are put in place": lambda: collections.boxes.__setitem__(slice(0, 2), [probe.Box("a"), probe.Box("b")]),
    "items that are added": lambda: (collections.words.extend(["a" * 300]), collections.words.pop()),
}

# A stream keeps a view of each block that it is given, a time zone what it was made of, and a decimal that could not
# be read its digits, all by contract: blocks are not counted.
KEEPING: dict[str, Callable[[], object]] = {
    "an aware moment of any kind": of_any_kind(dt.datetime(2024, 1, 1, tzinfo=dt.timezone.utc)),
    "a list of any items": lambda: echo.join(
        [2**40, "two", 3.5, decimal.Decimal("1.5"), uuid.UUID(int=7), dt.date(2024, 1, 1), dt.time(1, 2),
         dt.timedelta(1), b"x", echo, (1, 2), [3]], "-"),
    "a stream that is read": lambda: echo.read_all(io.BytesIO(b"x" * 1000)),
    "a stream that is written": lambda: echo.write_all(io.BytesIO(), b"x" * 1000),
    "a stream that is read ahead": lambda: probe.Streams.first_byte(io.BytesIO(b"x" * 1000)),
    "streams that are copied": lambda: probe.Streams.copy_to(io.BytesIO(b"x" * 1000), io.BytesIO()),
    "a drawing": lambda: cad.Image.load(io.BytesIO(DRAWING)).save(io.BytesIO(), PNG),
}


def drain(count: int) -> list[object]:
    """Takes the memory of wrappers that have gone, so that new ones need some."""
    return [(probe.Echo(), echo.get_type(), cad.Size(1, 2), probe.Echo._cast_to(None)) for _ in range(count)]


def failures(make: Callable[[], object]) -> Iterator[BaseException | None]:
    """What becomes of the call when its first allocation fails, its second, and so on; None for no harm."""
    held = drain(SPARE)
    for count in range(LIMIT):
        held += drain(4)
        told = None
        failing_memory.fail(count)
        try:
            make()
        except BaseException as error:  # noqa: BLE001: which it may be is what the tests ask
            told = error
        finally:
            was_reached = failing_memory.restore()
        if not was_reached:
            return
        yield told
    raise AssertionError("there is no end of allocations")


def sweep(make: Callable[[], object]) -> None:
    for _ in failures(make):
        pass


def chain(error: BaseException | None) -> Iterator[BaseException]:
    while error is not None:
        yield error
        error = error.__cause__ or error.__context__


class FailingMemory(unittest.TestCase):
    def setUp(self) -> None:
        # What a failure hides by another one is reported aside.
        self.aside: set[type] = set()
        self.addCleanup(setattr, sys, "unraisablehook", sys.unraisablehook)
        sys.unraisablehook = lambda told: self.aside.add(told.exc_type)

    def tearDown(self) -> None:
        self.assertLessEqual(self.aside, {MemoryError, ImportError})

    def test_what_fails_is_told_as_such(self) -> None:
        for name, call in {**MADE, **TAKEN, **KEEPING}.items():
            call()
            with self.subTest(name):
                for told in failures(call):
                    # The interpreter's words for a function that goes on with an error pending, or fails without one.
                    self.assertNotRegex(" ".join(map(str, chain(told))), "returned (NULL|a result)")
                call()

    def test_handles_and_blocks_are_given_back(self) -> None:
        for name, call in {**MADE, **TAKEN, **KEEPING}.items():
            with self.subTest(name):
                sweep(call)
                for _ in range(FEW_ROUNDS if name in KEEPING else ROUNDS):
                    gc.collect()
                    handles, blocks = probe._live_handles(), sys.getallocatedblocks()
                    sweep(call)
                    gc.collect()
                    grown = sys.getallocatedblocks() - blocks
                    self.assertEqual(probe._live_handles(), handles)
                    if grown < SLACK:
                        break
                if name not in KEEPING:
                    self.assertLess(grown, SLACK)


if __name__ == "__main__":
    unittest.main()
