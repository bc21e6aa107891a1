"""Failures that cross: managed exceptions in Python, Python exceptions through managed code."""

from __future__ import annotations

import io
import unittest
from collections.abc import Iterator

from korvan import probe


class ManagedFailures(unittest.TestCase):
    def test_type_and_message_come_back(self) -> None:
        rows = [
            ("System.InvalidOperationException", "plain"),
            ("System.ArgumentException", "\u00fc \U0001f600"),
            ("System.IO.IOException", ""),
        ]
        for name, message in rows:
            with self.subTest(name), self.assertRaises(RuntimeError) as caught:
                probe.Echo().fail(name, message)
            self.assertEqual(str(caught.exception), f"Proxy error({name.split('.')[-1]}): {message}")

    def test_inner_exceptions_are_told(self) -> None:
        with self.assertRaises(RuntimeError) as caught:
            probe.Failing(False).nested()
        for word in ("InvalidOperationException", "outer", "inner", "innermost"):
            self.assertIn(word, str(caught.exception))
        with self.assertRaisesRegex(RuntimeError, "the root cause"):
            probe.Echo().fail_deep(200, "the root cause")

    def test_arguments_are_told_by_their_python_names(self) -> None:
        refuse = probe.Strict.refuse
        rows = [
            (lambda: refuse(0, None), "wanted_width must not be None."),
            (lambda: refuse(1, 3), "wanted_width: It has to be even."),
            (lambda: refuse(2, 3), "The wanted_width has to be even."),
            (lambda: refuse(3, 3), "No name."),
            (lambda: refuse(4, 3), "outer ---> ArgumentException: wanted_width: inner"),
            (lambda: setattr(strict(), "page_width", -1), "page_width ('-1') must be a non-negative value."),
            (lambda: setattr(probe.Failing(False), "value", 1), "value: can't be written"),
            (lambda: refuse(9, "caf\udce9\U0001f600\ud83d"), "'caf\\udce9\U0001f600\\ud83d' is not there."),
        ]
        for call, message in rows:
            with self.subTest(message), self.assertRaises(RuntimeError) as caught:
                call()
            self.assertEqual(str(caught.exception).partition("): ")[2], message)

    def test_getters_and_setters_fail_alike(self) -> None:
        failing = probe.Failing(False)
        with self.assertRaisesRegex(RuntimeError, r"InvalidDataException\): can't be read"):
            failing.value
        with self.assertRaisesRegex(RuntimeError, r"ArgumentException\): value: can't be written"):
            failing.value = 1

    def test_the_next_call_is_clean(self) -> None:
        echo = probe.Echo()
        for _ in range(100):
            with self.assertRaises(RuntimeError):
                echo.fail("System.Exception", "x")
            echo.text = "fine"
            self.assertEqual(echo.text, "fine")


class BrokenStream(io.RawIOBase):
    """A stream that answers and then raises."""

    def readable(self) -> bool:
        return True

    def writable(self) -> bool:
        return True

    def seekable(self) -> bool:
        return False

    def readinto(self, buffer: object) -> int:
        raise ValueError("the tape is torn")

    def write(self, data: object) -> int:
        raise ValueError("the disk is full")


class PythonFailures(unittest.TestCase):
    def test_a_stream_that_raises_comes_back_with_its_text(self) -> None:
        with self.assertRaisesRegex(RuntimeError, "(?s)Proxy error.*ValueError: the tape is torn"):
            probe.Echo().read_all(BrokenStream())
        with self.assertRaisesRegex(RuntimeError, "(?s)Proxy error.*ValueError: the disk is full"):
            probe.Echo().write_all(BrokenStream(), b"data")

    def test_a_stream_that_lies_about_its_counts_is_found_out(self) -> None:
        class Lying(BrokenStream):
            def __init__(self, answer: object) -> None:
                super().__init__()
                self.answer = answer

            def readinto(self, buffer: object) -> object:  # type: ignore[override]
                return self.answer

            def write(self, data: object) -> object:  # type: ignore[override]
                return self.answer

        for answer in (2**31 - 1, 10_000_000, -5, 2**40, "many", 1.5):
            with self.subTest(answer=answer):
                with self.assertRaisesRegex(RuntimeError, "Proxy error"):
                    probe.Echo().read_all(Lying(answer))
                with self.assertRaisesRegex(RuntimeError, "Proxy error"):
                    probe.Echo().write_all(Lying(answer), b"data")
        self.assertEqual(probe.Echo().read_all(Lying(0)), b"")

    def test_collections_that_change_while_they_are_walked_end(self) -> None:
        class Shrinking(list):  # type: ignore[type-arg]
            def __getitem__(self, index: object) -> object:
                self.pop()
                return super().__getitem__(0)

        items = [1, 2, 3, 4, 5, 6]

        def shrinking() -> Iterator[int]:
            for item in items:
                items.pop()
                yield item

        self.assertEqual(probe.Echo().sum(shrinking()), 6.0)
        try:
            probe.Echo().join(Shrinking("abcdef"), "-")
        except RuntimeError as error:
            self.assertIn("Proxy error", str(error))
        endless = iter(int, 1)
        taken = 0

        def bounded() -> Iterator[int]:
            nonlocal taken
            for item in endless:
                taken += 1
                if taken > 100_000:
                    raise StopAsyncIteration("enough")
                yield item

        with self.assertRaisesRegex(RuntimeError, "enough"):
            probe.Echo().sum(bounded())

    def test_streams_are_read_and_written_whole(self) -> None:
        data = bytes(range(256)) * 1000
        self.assertEqual(probe.Echo().read_all(io.BytesIO(data)), data)
        target = io.BytesIO()
        probe.Echo().write_all(target, data)
        self.assertEqual(target.getvalue(), data)
        with self.assertRaisesRegex(TypeError, "can't build Stream from 'str'"):
            probe.Echo().read_all("text")


def strict() -> probe.Strict:
    return probe.Strict("title", probe.Box())


class RequiredValues(unittest.TestCase):
    def test_none_is_refused_where_it_is_given(self) -> None:
        one = strict()
        values = ("text", "box", "blob", "face", "anything", "stream", "release", "row", "boxes", "numbers", "walked",
                  "loose", "answer")
        rows = [(lambda name=name: setattr(one, name, None), f"Strict.{name}") for name in values]
        rows += [
            (lambda: probe.Strict(None, probe.Box()), "Strict: title"),
            (lambda: probe.Strict("title", box=None), "Strict: box"),
            (lambda: probe.Strict.join(None, "-", None), "Strict.join: items"),
            (lambda: probe.Strict.join([1], None, None), "Strict.join: separator"),
            (lambda: probe.Strict.set_folder(None), "Strict.folder"),
        ]
        before = [getattr(one, name) for name in values[:3]]
        for call, place in rows:
            with self.subTest(place), self.assertRaises(RuntimeError) as caught:
                call()
            self.assertEqual(str(caught.exception), f"Proxy error(ArgumentNullException): {place} must not be None.")
        self.assertEqual([getattr(one, name) for name in values[:3]], before)

    def test_none_is_taken_where_it_is_declared(self) -> None:
        one = strict()
        one.name = None
        self.assertEqual((one.name, one.answer), ("unnamed", None))
        self.assertEqual(probe.Strict.join([1, 2], "-", None), "1-2")


if __name__ == "__main__":
    unittest.main()
