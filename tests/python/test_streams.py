"""Managed streams in Python, and Python file objects in managed code."""

from __future__ import annotations

import gzip
import io
import os
import shutil
import tempfile
import unittest
import zipfile
from contextlib import ExitStack
from typing import Any

from file_objects import SOURCES, TARGETS, OneWay
from korvan import probe

TEXT = b"first\nsecond\n\nlast"
Streams = probe.Streams


class ReadingStreams(unittest.TestCase):
    def test_bytes_come_as_asked_for(self) -> None:
        stream = Streams.open(TEXT)
        self.assertEqual((stream.read(0), stream.read(2), stream.tell()), (b"", b"fi", 2))
        self.assertEqual((stream.read(None), stream.read(), stream.read(5)), (TEXT[2:], b"", b""))
        stream.seek(-4, 2)
        self.assertEqual((stream.readall(), stream.readall()), (b"last", b""))
        stream.seek(0)
        self.assertEqual(stream.read(2**31), TEXT)
        with self.assertRaisesRegex(TypeError, "should be integer or None, not 'str'"):
            stream.read("x")
        with self.assertRaises(TypeError):
            stream.read(1, 2)

    def test_large_reads_grow_and_lose_nothing(self) -> None:
        for size in (1023, 1024, 1025, 5120, 8193, 70_000, 600_001):
            content = bytes(range(256)) * (size // 256 + 1)
            stream = Streams.open(content[:size])
            self.assertEqual(stream.read(), content[:size])

    def test_a_short_transfer_is_a_short_read_but_no_end(self) -> None:
        stream = Streams.open_slow(TEXT)
        self.assertEqual((stream.read(10), stream.readline(), stream.read()),
                         (b"fir", b"st\n", TEXT[6:]))
        stream.seek(0)
        target = bytearray(10)
        self.assertEqual((stream.readinto(target), bytes(target[:3])), (3, b"fir"))

    def test_lines_end_behind_their_newline(self) -> None:
        lines = TEXT.splitlines(keepends=True)
        for opener in (Streams.open, Streams.open_slow):
            stream = opener(TEXT)
            self.assertEqual((stream.readline(), stream.tell()), (b"first\n", 6))
            self.assertEqual([stream.readline(n) for n in (0, 3, 100, -1)],
                             [b"", b"sec", b"ond\n", b"\n"])
            self.assertEqual([stream.readline(), stream.readline(None)], [b"last", b""])
            stream.seek(0)
            self.assertEqual(list(stream), lines)
            stream.seek(0)
            self.assertEqual((next(stream), stream.read()), (lines[0], TEXT[6:]))

    def test_long_lines_are_found_across_blocks(self) -> None:
        for length in (1023, 1024, 1025, 5119, 5120, 9000):
            stream = Streams.open(b"x" * length + b"\nrest")
            self.assertEqual((len(stream.readline()), stream.tell()), (length + 1, length + 1))
            self.assertEqual(stream.readline(), b"rest")
            stream.seek(0)
            self.assertEqual(len(stream.readline(length)), length)
            self.assertEqual(stream.tell(), length)

    def test_readlines_stops_where_a_file_does(self) -> None:
        for hint in (None, -1, 0, 1, 6, 7, 13, 14, 15, 100):
            with self.subTest(hint=hint):
                self.assertEqual(Streams.open(TEXT).readlines(hint),
                                 io.BytesIO(TEXT).readlines(hint))

    def test_lines_need_a_seekable_stream(self) -> None:
        stream = Streams.open_forward(TEXT)
        for operation in (stream.readline, stream.readlines, lambda: iter(stream)):
            with self.assertRaisesRegex(TypeError, "the inner stream is not seekable"):
                operation()
        self.assertEqual(stream.read(), TEXT)
        with self.assertRaisesRegex(TypeError, "exception was thrown during 'CanSeek'") as caught:
            Streams.open_forward(b"").readline()
        self.assertIn("no answer", str(caught.exception.__cause__))


class WritingStreams(unittest.TestCase):
    def test_any_contiguous_buffer_is_written(self) -> None:
        stream = Streams.open(b"")
        self.assertEqual([stream.write(each) for each in (b"ab", bytearray(b"c"), memoryview(b"de"))],
                         [2, 1, 2])
        self.assertEqual(stream.write(b""), 0)
        self.assertIsNone(stream.writelines([b"f", b"g"]))
        self.assertEqual((stream.seek(0), stream.read()), (0, b"abcdefg"))
        for value, name in ((None, "None"), ("x", "str"), (memoryview(b"abcd")[::2], "memoryview")):
            with self.assertRaisesRegex(
                TypeError, f"write argument must be bytes-like object, not '{name}'"
            ):
                stream.write(value)
        with self.assertRaises(TypeError):
            stream.writelines([b"h", "i"])
        self.assertEqual((stream.seek(7), stream.read()), (7, b"h"))

    def test_readinto_fills_what_can_be_written(self) -> None:
        stream = Streams.open(TEXT)
        target = bytearray(5)
        self.assertEqual((stream.readinto(target), bytes(target)), (5, b"first"))
        stream.seek(-2, 2)
        self.assertEqual((stream.readinto(target), bytes(target)), (2, b"strst"))
        for value, name in ((b"x", "bytes"), (None, "None")):
            with self.assertRaisesRegex(
                TypeError, f"readinto argument must be read-write bytes-like object, not '{name}'"
            ):
                stream.readinto(value)
        target.append(0)  # the view was given back

    def test_truncation_is_at_the_position_or_the_size(self) -> None:
        stream = Streams.open(TEXT)
        stream.seek(9)
        self.assertEqual((stream.truncate(), stream.seek(0, 2)), (9, 9))
        self.assertEqual((stream.truncate(5), stream.seek(0), stream.read()), (5, 0, b"first"))
        stream.seek(2)
        self.assertEqual((stream.truncate(None), stream.seek(0, 2)), (2, 2))

    def test_seek_checks_in_a_fixed_order(self) -> None:
        stream = Streams.open(TEXT)
        with self.assertRaisesRegex(RuntimeError, "before the beginning"):
            stream.seek(-1, 1)
        for closed in (False, True):
            if closed:
                stream.close()
            for whence in (3, -1):
                with self.assertRaisesRegex(
                    ValueError, rf"invalid whence \({whence}, should be 0, 1 or 2\)"
                ):
                    stream.seek(0, whence)
            with self.assertRaisesRegex(ValueError, "negative seek value -1"):
                stream.seek(-1)
        with self.assertRaisesRegex(ValueError, "closed stream"):
            stream.seek(0)


class ClosedStreams(unittest.TestCase):
    def test_nothing_works_but_asking_and_closing_again(self) -> None:
        stream = Streams.open(TEXT)
        self.assertEqual((stream.readable(), stream.seekable(), stream.writable(),
                          stream.isatty(), stream.closed), (True, True, True, False, False))
        lines = iter(stream)
        stream.close()
        stream.close()
        self.assertTrue(stream.closed)
        for name, *arguments in (("read",), ("readall",), ("readline",), ("readlines",),
                                 ("readinto", None), ("write", None), ("writelines", []),
                                 ("tell",), ("truncate",), ("flush",), ("isatty",),
                                 ("readable",), ("seekable",), ("writable",), ("__iter__",)):
            with self.assertRaisesRegex(ValueError, "I/O operation on closed stream"):
                getattr(stream, name)(*arguments)
        with self.assertRaisesRegex(ValueError, "fileno method is not supported"):
            stream.fileno()
        with self.assertRaises(Exception) as caught:
            next(lines)  # left to the managed stream
        self.assertNotIn("I/O operation", str(caught.exception))

    def test_the_end_of_a_block_closes(self) -> None:
        with Streams.open(TEXT) as stream:
            self.assertEqual(stream.read(5), b"first")
        self.assertTrue(stream.closed)
        with self.assertRaises(ZeroDivisionError), Streams.open(TEXT) as stream:
            1 / 0
        self.assertTrue(stream.closed)

    def test_a_stream_that_fails_to_close_counts_as_closed(self) -> None:
        stream = Streams.open_slow(TEXT)
        with self.assertRaisesRegex(RuntimeError, "won't close"):
            stream.close()
        self.assertTrue(stream.closed)
        self.assertIsNone(stream.close())

    def test_the_flag_is_the_wrappers_own(self) -> None:
        holder = probe.Streams()
        holder.held = Streams.open(TEXT)
        first, second = holder.held, holder.held
        first.close()
        self.assertEqual((first.closed, second.closed, first == second), (True, False, True))
        self.assertFalse(second.readable())


class StreamArguments(unittest.TestCase):
    def test_a_wrapper_and_a_file_object_go_as_themselves(self) -> None:
        stream = Streams.open(TEXT)
        self.assertEqual(Streams.same(stream), stream)
        self.assertEqual(Streams.first_byte(stream), TEXT[0])
        self.assertEqual(stream.tell(), 1)
        memory = io.BytesIO()
        self.assertIs(Streams.same(memory), memory)
        stream.seek(0)
        self.assertEqual(Streams.copy_to(stream, memory), len(TEXT))
        self.assertEqual(memory.getvalue(), TEXT)
        with tempfile.TemporaryFile(buffering=0) as raw:
            self.assertIs(Streams.same(raw), raw)
        holder = probe.Streams()
        holder.held = memory
        self.assertIs(holder.held, memory)
        holder.held = None
        self.assertIsNone(holder.held)

    def test_what_only_looks_like_a_stream_is_refused(self) -> None:
        class Duck:
            def read(self, size: int = -1) -> bytes:
                return b""

            def write(self, data: Any) -> int:
                return 0

        for value in (Duck(), io.StringIO(), b"x", probe.Box(), probe.Pair(1.0, 2.0)):
            with self.assertRaisesRegex(TypeError, "can't build Stream from"):
                Streams.same(value)

    def test_every_kind_is_read_to_its_end_and_left_open(self) -> None:
        content = os.urandom(300_000)
        for name, source in SOURCES.items():
            with self.subTest(name), ExitStack() as stack:
                file = source(content, stack)
                self.assertEqual(probe.Echo().read_all(file), content)
                self.assertFalse(file.closed)

    def test_every_kind_takes_what_is_written_in_pieces(self) -> None:
        content = os.urandom(30_000)
        for name, target in TARGETS.items():
            with self.subTest(name), ExitStack() as stack:
                file, taken = target(stack)
                Streams.copy_to(Streams.open_slow(content), file)
                self.assertFalse(file.closed)
                self.assertEqual(taken(), content)

    def test_small_pieces_cross_in_large_blocks(self) -> None:
        class Counting(io.BytesIO):
            calls = 0

            def write(self, data: Any) -> int:
                self.calls += 1
                return super().write(data)

            def readinto(self, target: Any) -> int:
                self.calls += 1
                return super().readinto(target)

        size = 20_000_000
        file = Counting()
        Streams.pour(file, size)
        self.assertEqual(len(file.getvalue()), size)
        self.assertLess(file.calls, 400)
        file.seek(0)
        file.calls = 0
        self.assertEqual(Streams.drain(file), size)
        self.assertLess(file.calls, 400)

    def test_the_wrapper_is_a_wrapper_like_the_others(self) -> None:
        stream = Streams.open(TEXT)
        kind = type(stream)
        self.assertEqual(kind.__name__, "_StreamWrapper")
        self.assertEqual([each.__name__ for each in kind._additional_interfaces],
                         ["_IDisposableWrapper"])
        self.assertTrue(kind._is_assignable(stream))
        self.assertFalse(kind._is_assignable(probe.Box()))
        again = kind._cast_as(stream).value
        self.assertEqual((again, again.closed), (stream, False))
        self.assertIs(type(kind._reinterpret_obj(stream)), kind)
        self.assertNotIsInstance(stream, io.IOBase)
        self.assertIs(kind.__repr__, object.__repr__)
        with self.assertRaisesRegex(TypeError, "type has no available constructor"):
            kind()


class Torn(OneWay):
    """Gives three thousand bytes and fails."""

    def readinto(self, target: Any) -> int:
        if self.position >= 3000:
            raise OSError("torn")
        return super().readinto(target)


class FailingFileObjects(unittest.TestCase):
    """What fails in the middle loses nothing of what went before."""

    def test_what_was_written_before_a_failure_arrives_and_once(self) -> None:
        class Full(OneWay):
            def write(self, data: Any) -> int:
                if len(self.taken) >= 3000:
                    raise OSError("full")
                return super().write(data)

        content = os.urandom(300_000)
        memory = io.BytesIO()
        with self.assertRaisesRegex(RuntimeError, "OSError: torn"):
            Streams.copy_to(Torn(content), memory)
        self.assertEqual(memory.getvalue(), content[:3000])
        full = Full()
        with self.assertRaisesRegex(RuntimeError, "OSError: full"):
            Streams.copy_to(Streams.open_slow(content), full)
        self.assertEqual(full.taken, content[:3000])

    def test_a_stream_that_failed_once_is_not_written_again(self) -> None:
        class FullOnce(OneWay):
            is_full = True

            def write(self, data: Any) -> int:
                if self.is_full and len(self.taken) >= 3000:
                    self.is_full = False
                    raise OSError("full")
                return super().write(data)

        content = os.urandom(300_000)
        target = FullOnce()
        with self.assertRaisesRegex(RuntimeError, "OSError: full"):
            Streams.copy_to(Streams.open_slow(content), target)
        self.assertEqual(target.taken, content[:3000])

    def test_a_failure_that_was_got_over_is_not_held_against_the_next_stream(self) -> None:
        class Deaf(io.BytesIO):
            def readinto(self, target: Any) -> int:
                raise OSError("no answer")

        content = os.urandom(10_000)
        Streams.pour(io.BytesIO(), 10)  # leaves a block that the next streams share
        self.assertFalse(Streams.try_first_byte(Deaf(content)))
        memory = io.BytesIO()
        with self.assertRaisesRegex(RuntimeError, "OSError: torn"):
            Streams.copy_to(Torn(content), memory)
        self.assertEqual(memory.getvalue(), content[:3000])

    def test_a_failed_call_leaves_the_position_where_reading_stopped(self) -> None:
        class Full(OneWay):
            def write(self, data: Any) -> int:
                raise OSError("full")

        source = io.BytesIO(b"x" * 1_000_000)
        self.assertEqual((Streams.first_byte(source), source.tell()), (ord("x"), 1))
        with self.assertRaisesRegex(RuntimeError, "OSError: full"):
            Streams.copy_to(source, Full())
        # The target's block is full and one piece of the next is read; a whole block is read ahead.
        self.assertLess(source.tell(), 400_000)

    def test_a_stream_that_does_not_block_is_no_stream_at_its_end(self) -> None:
        reading, writing = os.pipe()
        for end in (reading, writing):
            os.set_blocking(end, False)
        with open(reading, "rb", buffering=0) as source, open(writing, "wb", buffering=0) as target:
            target.write(b"begun")
            with self.assertRaisesRegex(RuntimeError, "no bytes are available for reading"):
                probe.Echo().read_all(source)
            with self.assertRaisesRegex(RuntimeError, "no bytes are available for reading"):
                Streams.first_byte(source)
            content = os.urandom(1_000_000)
            with self.assertRaisesRegex(RuntimeError, "takes no more bytes"):
                probe.Echo().write_all(target, content)
            target.close()
            taken = source.readall()
            self.assertGreater(len(taken), 4000)
            self.assertTrue(content.startswith(taken))

    def test_what_a_stream_can_not_do_is_named(self) -> None:
        closed = io.BytesIO(b"x")
        closed.close()
        with open(os.devnull, "wb") as write_only, open(os.devnull, "rb") as read_only:
            for call, words in (
                (lambda: probe.Echo().read_all(closed), "closed"),
                (lambda: probe.Echo().write_all(closed, b"x"), "closed"),
                (lambda: probe.Echo().read_all(write_only), "does not support reading"),
                (lambda: probe.Echo().write_all(read_only, b"x"), "does not support writing"),
            ):
                with self.subTest(words), self.assertRaisesRegex(RuntimeError, words):
                    call()


class ManagedStreamsInPython(unittest.TestCase):
    def test_the_buffers_of_python_work_over_them(self) -> None:
        reader = io.BufferedReader(Streams.open(TEXT))
        self.assertEqual((reader.readline(), reader.peek(3)[:3], reader.read(3), reader.tell()),
                         (b"first\n", b"sec", b"sec", 9))
        self.assertEqual((reader.seek(-4, 2), reader.read(), reader.seek(0), list(reader)),
                         (len(TEXT) - 4, b"last", 0, TEXT.splitlines(keepends=True)))
        reader.close()
        self.assertTrue(reader.raw.closed)
        with io.TextIOWrapper(io.BufferedReader(Streams.open("\u20ac\r\nb".encode())), "utf-8") as text:
            self.assertEqual(text.readlines(), ["\u20ac\n", "b"])
        stream = Streams.open(TEXT)
        edited = io.BufferedRandom(stream)
        self.assertEqual((edited.read(2), edited.write(b"XX"), edited.seek(0), edited.read()),
                         (b"fi", 2, 0, b"fiXX" + TEXT[4:]))
        edited.detach()
        self.assertEqual((stream.seek(0), stream.read(4)), (0, b"fiXX"))

    def test_the_library_reads_and_writes_them_as_files(self) -> None:
        content = os.urandom(200_000)
        memory, stream = io.BytesIO(), Streams.open(b"")
        shutil.copyfileobj(Streams.open(content), memory)
        shutil.copyfileobj(io.BytesIO(content), stream)
        self.assertEqual((memory.getvalue(), stream.seek(0), stream.read()), (content, 0, content))
        packed = Streams.open(b"")
        with zipfile.ZipFile(packed, "w", zipfile.ZIP_DEFLATED) as archive:
            archive.writestr("a", content)
        packed.seek(0)
        self.assertEqual(zipfile.ZipFile(packed).read("a"), content)
        self.assertEqual(gzip.GzipFile(fileobj=Streams.open(gzip.compress(content))).read(), content)


if __name__ == "__main__":
    unittest.main()
