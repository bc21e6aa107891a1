"""Every conversion, ten thousand times over: blocks and managed objects stay where they were."""

from __future__ import annotations

import datetime as dt
import decimal
import gc
import io
import sys
import unittest
import uuid
from collections.abc import Callable

from korvan import probe

ROUNDS = 10_000
# Blocks that the interpreter itself may keep: free lists, interned names, a grown dictionary.
SLACK = 64

echo = probe.Echo()
echo.peer = probe.Echo()
echo.face = echo
echo.blob = b"bytes"
collections = probe.Collections()
boxes = collections.boxes
words = collections.words
loose = probe.LooseList()
stream = probe.Streams.open(b"first\nsecond\n" * 200)


def assign(name: str, value: object) -> Callable[[], None]:
    def body() -> None:
        setattr(echo, name, value)
        getattr(echo, name)

    return body


def refused(call: Callable[[], object]) -> Callable[[], None]:
    def body() -> None:
        try:
            call()
        except Exception:  # noqa: BLE001: whatever it is, it must not leak
            return
        raise AssertionError("not refused")

    return body


CLEAN: dict[str, Callable[[], object]] = {
    "integers": assign("signed64", 2**60),
    "floats": assign("float64", 1.5),
    "text": assign("text", "\u20ac" * 100),
    "bytes": assign("blob", b"x" * 1000),
    "small enum members": assign("choice", probe.Choice.THIRD),
    "structs": assign("pair", probe.Pair(1.0, 2.0)),
    "objects": assign("peer", probe.Echo()),
    "interfaces": assign("face", probe.OpenShape()),
    "moments": assign("moment", dt.datetime(2024, 1, 1)),
    "aware moments": assign("moment", dt.datetime(2024, 1, 1, tzinfo=dt.timezone.utc)),
    "durations": assign("span", dt.timedelta(1)),
    "uuids": assign("ident", uuid.UUID(int=5)),
    "versions": assign("release", (1, 2, 3)),
    "nullables": assign("maybe_int", 7),
    "variants": assign("anything", decimal.Decimal("1.5")),
    "construction": probe.Echo,
    "construction by the last form": lambda: probe.Box(other=None),
    "overloads": lambda: echo.pick(echo),
    "misfits": refused(lambda: echo.pick(b"")),
    "refused values": refused(lambda: setattr(echo, "signed8", 1000)),
    "managed failures": refused(lambda: echo.fail("System.Exception", "x")),
    "ref parameters": lambda: echo.twice([1]),
    "out parameters": lambda: echo.try_get("a", []),
    "lists walked": lambda: echo.join([1, "two", 3.5], "-"),
    "iterables walked": lambda: echo.sum(iter((1, 2, 3))),
    "typed lists walked": lambda: list(collections.boxes),
    "lists made of views": lambda: [boxes[::-1], boxes + [None], boxes * 3, boxes.copy()],
    "slices assigned": lambda: boxes.__setitem__(slice(0, 2), list(boxes)),
    "slices taken whole": lambda: boxes.__setitem__(slice(0, 2), boxes),
    "growing and shrinking": lambda: (words.extend(words), words.extend(iter("ab")),
                                      words.__delitem__(slice(2, None))),
    "refused items": refused(lambda: words.__setitem__(slice(0, 1), [1])),
    "untyped items": lambda: (loose.extend([1, "two", boxes]), list(loose), loose.clear()),
    "lines of a stream": lambda: (stream.seek(0), list(stream), stream.seek(0), stream.readline(3)),
    "blocks of a stream": lambda: (stream.seek(0), stream.read(), stream.readinto(bytearray(9)),
                                   stream.seek(0), stream.write(b"first")),
    "streams": lambda: probe.Streams.open(b"x").close(),
    "casts": lambda: probe.Echo._cast_to(echo.face),
    "failed casts": lambda: probe.Box._cast_to(echo),
    "types": lambda: echo.get_type(),
    "comparison": lambda: echo == echo.peer,
    "text of an object": lambda: repr(echo),
}

def resident_kib() -> int:
    with open("/proc/self/status", encoding="ascii") as status:
        return int(next(line for line in status if line.startswith("VmRSS:")).split()[1])


def grown_blocks(body: Callable[[], object], rounds: int) -> int:
    for _ in range(200):
        body()
    gc.collect()
    before = sys.getallocatedblocks()
    for _ in range(rounds):
        body()
    gc.collect()
    return sys.getallocatedblocks() - before


class Leaks(unittest.TestCase):
    def test_conversions_leave_nothing_behind(self) -> None:
        live = echo.live()
        for name, body in CLEAN.items():
            with self.subTest(name):
                handles = probe._live_handles()
                # The smaller of two: a cache that fills once is no leak.
                grown = min(grown_blocks(body, ROUNDS), grown_blocks(body, ROUNDS))
                self.assertLess(grown, SLACK)
                self.assertEqual(probe._live_handles(), handles)
        self.assertLess(echo.live() - live, SLACK, "managed objects")
        # By now the managed collector has as much room as it wants; all of it once more takes none.
        memory = resident_kib()
        for body in CLEAN.values():
            grown_blocks(body, ROUNDS)
        self.assertLess(resident_kib() - memory, 20_000, "KiB of the process")

    def test_a_view_stays_behind_for_each_block_that_a_stream_was_given(self) -> None:
        # By contract: the stream may have kept it.
        grown = grown_blocks(lambda: echo.write_all(io.BytesIO(), b"x"), 1000)
        self.assertGreater(grown, 900)
        self.assertLess(grown, 3000 + SLACK)


if __name__ == "__main__":
    unittest.main()
