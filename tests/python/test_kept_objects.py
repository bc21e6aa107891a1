"""Python objects given to managed ones: copied ones go home with the call, kept ones soon after their keeper."""

from __future__ import annotations

import gc
import io
import os
import sys
import tempfile
import unittest
from collections.abc import Callable

import child
from korvan import probe
from korvan.cad import ColorPalette, StreamContainer
from korvan.cad.imageoptions import CadRasterizationOptions
from korvan.cad.sources import StreamSource

# As many as may wait for the collector at once, with room for what it finds late.
MOST_STREAMS = 300
MOST_LISTS = 3000
MIB = 1024


def resident_kib() -> int:
    with open("/proc/self/status", encoding="ascii") as status:
        return int(next(line for line in status if line.startswith("VmRSS:")).split()[1])


class Counted:
    alive = 0

    def __init__(self, *arguments: object) -> None:
        super().__init__(*arguments)
        Counted.alive += 1

    def __del__(self) -> None:
        Counted.alive -= 1


class CountedStream(Counted, io.BytesIO):
    pass


class CountedList(Counted, list):
    pass


class Descriptor(io.RawIOBase):
    """An open file that is closed when it goes, without the warning that io's own give."""

    def __init__(self, path: str) -> None:
        super().__init__()
        self._descriptor = os.open(path, os.O_RDONLY)

    def readable(self) -> bool:
        return True

    def close(self) -> None:
        if not self.closed:
            os.close(self._descriptor)
        super().close()


holder = probe.Streams()
collections = probe.Collections()
echo = probe.Echo()


class Copied(unittest.TestCase):
    def test_what_is_copied_or_refused_goes_home_with_the_call(self) -> None:
        items, mixed, words = [1, 2], [1, "x"], ["a"]
        rows = [[1], [2]]
        rasterization, loose, shelf = CadRasterizationOptions(), probe.LooseCollections(), probe.Shelf()
        table: list[tuple[str, object, Callable[[], object]]] = [
            ("List<T> setter", items, lambda: setattr(shelf, "numbers", items)),
            ("array setter", items, lambda: setattr(collections, "numbers", items)),
            ("string[] of the library", words, lambda: setattr(rasterization, "layers", words)),
            ("ArrayList setter", words, lambda: setattr(loose, "growing", words)),
            ("Array setter", words, lambda: setattr(loose, "fixed", words)),
            ("rows of a List of lists", rows[0], lambda: setattr(collections, "table", rows)),
            ("constructor", items, lambda: ColorPalette(items)),
            ("refused constructor", mixed, lambda: ColorPalette(mixed)),
            ("refused setter", mixed, lambda: setattr(shelf, "numbers", mixed)),
            ("a list in a method's list", words, lambda: echo.join([words], ",")),
            ("rows that a method reads", rows[0], lambda: probe.Collections.sum_table(rows)),
        ]
        for name, given, call in table:
            with self.subTest(name):
                before = sys.getrefcount(given)
                for _ in range(20):
                    try:
                        call()
                    except (TypeError, RuntimeError):
                        self.assertIn(given, (mixed, words), "refused")
                self.assertEqual(sys.getrefcount(given), before)

    def test_what_a_copy_is_made_of_lives_with_it(self) -> None:
        loose = probe.LooseCollections()
        loose.growing = [[1, 2], (3,), "text"]
        collections.pages = [["a"], ("b", "c")]
        gc.collect()
        self.assertEqual([loose.growing[0], loose.growing[1]], [[1, 2], (3,)])
        self.assertEqual([list(page) for page in collections.pages], [["a"], ["b", "c"]])

    def test_wrapped_items_of_any_sequence_go_home(self) -> None:
        box, pair = probe.Box("z"), probe.Pair(1.0, 2.0)
        before = probe._live_handles()
        sequence = (box, 1, pair, "x", box)
        text = echo.join(sequence, "|")
        counts = [sys.getrefcount(item) for item in (box, pair)]
        for _ in range(50):
            self.assertEqual(echo.join(sequence, "|"), text)
            echo.join((probe.Box("a"), probe.Pair(1.0, 2.0), probe.Box("b")), "|")
        echo.anything = sequence
        self.assertIs(echo.anything, sequence)
        echo.anything = None
        del sequence
        echo.live()
        probe.Echo()
        self.assertEqual(probe._live_handles(), before)
        self.assertEqual([sys.getrefcount(item) + 2 - at for item, at in ((box, 0), (pair, 1))],
                         [count for count in counts])


class Kept(unittest.TestCase):
    def check(self, most: int, rounds: int, body: Callable[[], object]) -> None:
        base = Counted.alive
        highest = 0
        for _ in range(rounds):
            body()
            highest = max(highest, Counted.alive - base)
        self.assertLess(highest, most)
        self.assertGreater(highest, 0, "nothing is kept")

    def test_a_loop_that_replaces_what_is_kept_lets_it_go(self) -> None:
        options = [("stream setter", MOST_STREAMS, lambda: setattr(holder, "held", CountedStream())),
                   ("stream constructor", MOST_STREAMS, lambda: StreamContainer(CountedStream(), True)),
                   ("source", MOST_STREAMS, lambda: StreamSource(CountedStream())),
                   ("stream as an item", MOST_STREAMS * 2,
                    lambda: collections.tapes.__setitem__(0, CountedStream())),
                   ("list as a view", MOST_LISTS, lambda: setattr(collections, "editable", CountedList([1]))),
                   ("iterable", MOST_LISTS, lambda: setattr(collections, "pages", CountedList([["a"]])))]
        for name, most, body in options:
            with self.subTest(name):
                self.check(most, 4 * most, body)

    def test_files_are_closed_before_there_are_too_many(self) -> None:
        highest = 0
        with tempfile.NamedTemporaryFile() as file:
            before = len(os.listdir("/proc/self/fd"))
            for i in range(3000):
                StreamContainer(Descriptor(file.name))
                if i % 20 == 0:
                    highest = max(highest, len(os.listdir("/proc/self/fd")) - before)
        self.assertLess(highest, MOST_STREAMS)

    def test_large_objects_are_let_go_by_their_size(self) -> None:
        for name, body in (("setter", lambda: setattr(holder, "held", io.BytesIO(b"x" * 4_000_000))),
                           ("constructor", lambda: StreamSource(io.BytesIO(b"x" * 4_000_000))),
                           ("view", lambda: setattr(collections, "editable", list(range(100_000, 300_000))))):
            with self.subTest(name):
                before = resident_kib()
                highest = 0
                for _ in range(250):  # a gigabyte
                    body()
                    highest = max(highest, resident_kib() - before)
                self.assertLess(highest, 400 * MIB)

    def test_a_forked_process_lets_go_as_well(self) -> None:
        # It has none of the runtime's own threads.
        done = child.run("""
            import io, os, sys
            from korvan import probe
            def resident():
                with open("/proc/self/statm") as status:
                    return int(status.read().split()[1]) * 4096 // 2**20
            streams = probe.Streams()
            streams.held = io.BytesIO()
            forked = os.fork()
            if forked == 0:
                before = resident()
                for _ in range(1000):  # a gigabyte
                    streams.held = io.BytesIO(b"x" * 1_000_000)
                os._exit(resident() - before > 400)
            print(os.waitstatus_to_exitcode(os.waitpid(forked, 0)[1]))
            """)
        self.assertEqual(done.stdout, "0\n", done.stderr)

    def test_what_is_in_use_stays(self) -> None:
        kept = []
        for number in range(1500):
            streams = probe.Streams()
            streams.held = io.BytesIO(bytes([number % 256]))
            kept.append(streams)
            if number % 3:
                kept.pop(number // 3)
        echo.live()
        for streams in kept:
            self.assertEqual(len(echo.read_all(streams.held)), 1)
            streams.held.seek(0)


if __name__ == "__main__":
    unittest.main()
