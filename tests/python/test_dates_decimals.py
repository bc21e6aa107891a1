"""Dates, durations, decimals, uuids, versions, variants and by-reference parameters."""

from __future__ import annotations

import datetime as dt
import decimal
import enum
import unittest
import uuid
from collections.abc import Iterator

from korvan import probe

UTC = dt.timezone.utc
HOUR = dt.timezone(dt.timedelta(hours=1))
D = decimal.Decimal


class OddZone(dt.tzinfo):
    """A zone whose offset is whatever it was made with."""

    def __init__(self, answer: object) -> None:
        self._answer = answer

    def utcoffset(self, when: dt.datetime | None) -> dt.timedelta | None:
        if isinstance(self._answer, Exception):
            raise self._answer
        return self._answer  # type: ignore[return-value]


class Dates(unittest.TestCase):
    def test_naive_values_come_back_as_they_are(self) -> None:
        echo = probe.Echo()
        for value in (
            dt.datetime.min,
            dt.datetime.max,
            dt.datetime(2000, 2, 29, 23, 59, 59, 999999),
            dt.datetime(1582, 10, 4, 12, 0, 0, 1, fold=1),
        ):
            echo.moment = value
            self.assertEqual(echo.moment, value)
            self.assertIsNone(echo.moment.tzinfo)
        echo.moment = dt.date(2024, 2, 29)
        self.assertEqual(echo.moment, dt.datetime(2024, 2, 29))
        echo.moment = dt.time(1, 2, 3)
        self.assertEqual(echo.moment, dt.datetime(1, 1, 1, 1, 2, 3))

    def test_aware_values_cross_as_utc(self) -> None:
        echo = probe.Echo()
        echo.moment = dt.datetime(2024, 1, 1, 0, 30, tzinfo=HOUR)
        self.assertEqual(echo.moment, dt.datetime(2023, 12, 31, 23, 30, tzinfo=UTC))
        self.assertIs(echo.moment.tzinfo, UTC)
        echo.moment = dt.time(0, 30, tzinfo=HOUR)
        self.assertEqual(echo.moment, dt.datetime(1, 1, 1, 23, 30, tzinfo=UTC), "wraps in its day")
        echo.moment = dt.datetime(2024, 1, 1, tzinfo=OddZone(None))
        self.assertIsNone(echo.moment.tzinfo, "a zone without offset counts as none")

    def test_what_is_no_managed_moment_is_refused(self) -> None:
        out_of_range = "value too large or too small for .Net DateTime"
        rows = [
            (dt.datetime(1, 1, 1, tzinfo=HOUR), OverflowError, out_of_range),
            (dt.datetime.max.replace(tzinfo=dt.timezone(-dt.timedelta(hours=1))), OverflowError,
             out_of_range),
            (dt.datetime(2024, 1, 1, tzinfo=OddZone(ValueError("lost"))), ValueError, "lost"),
            (5, TypeError, "can't build DateTime from 'int'"),
            (None, TypeError, "can't build DateTime from 'NoneType'"),
        ]
        for value, error, words in rows:
            with self.subTest(repr(value)), self.assertRaises(error) as caught:
                probe.Echo().moment = value
            self.assertEqual(str(caught.exception), words)
        echo = probe.Echo()
        echo.maybe_moment = dt.datetime(2024, 1, 1)
        echo.maybe_moment = None
        self.assertIsNone(echo.maybe_moment)

    def test_durations_come_back_and_stop_at_64_bits(self) -> None:
        echo = probe.Echo()
        longest = dt.timedelta(seconds=922337203685, microseconds=477580)
        for value in (dt.timedelta(0), dt.timedelta(days=-1, seconds=1), longest, -longest):
            echo.span = value
            self.assertEqual(echo.span, value)
        for value in (longest + dt.timedelta.resolution, dt.timedelta.max, dt.timedelta.min):
            with self.assertRaisesRegex(OverflowError, "too small for .Net TimeSpan"):
                echo.span = value


class Decimals(unittest.TestCase):
    def check(self, value: D, expected: D) -> None:
        echo = probe.Echo()
        echo.anything = value
        self.assertEqual(echo.anything_kind(), "System.Decimal")
        self.assertEqual(echo.anything.as_tuple(), expected.as_tuple(), value)

    def test_values_that_fit_keep_their_scale(self) -> None:
        for text in ("0", "1.10", "-5", "79228162514264337593543950335", "1E-28", "-0.1"):
            self.check(D(text), D(text))
        self.check(D("1E+3"), D("1000"))
        self.check(D("-0.00"), D("0"))
        self.check(D("0E+100"), D("0"))

    def test_too_many_digits_are_rounded_once_half_to_even(self) -> None:
        rows = [
            ("7.9228162514264337593543950336", "7.922816251426433759354395034"),
            ("5E-29", "0"),
            ("15E-29", "2E-28"),
            ("9E-29", "1E-28"),
            ("1E-40", "0"),
            ("0." + "3" * 40, "0." + "3" * 28),
        ]
        for value, expected in rows:
            self.check(D(value), D(expected))

    def test_values_that_can_not_fit_are_refused(self) -> None:
        rows = [
            ("79228162514264337593543950336", "value too large for .Net decimal"),
            ("1E+100", "value too large for .Net decimal"),
            ("12E+40", "value too large for .Net decimal"),
            ("NaN", "value is not a number"),
            ("sNaN", "value is not a number"),
            ("-Infinity", "value too large for .Net 'Decimal'"),
        ]
        for text, words in rows:
            echo = probe.Echo()
            with self.subTest(text), self.assertRaises(Exception) as caught:
                echo.anything = D(text)
                echo.anything_kind()
            self.assertIn(words, str(caught.exception))


class SmallValues(unittest.TestCase):
    def test_uuids_and_versions_come_back(self) -> None:
        echo = probe.Echo()
        value = uuid.UUID("00112233-4455-6677-8899-aabbccddeeff")
        echo.ident = value
        self.assertEqual(echo.ident, value)
        for version in ((1, 2), (1, 2, 3), (1, 2, 3, 2**31 - 1), None):
            echo.release = version
            self.assertEqual(echo.release, version)
        rows = [
            ("ident", str(value), TypeError, "can't build Guid from 'str'"),
            ("release", [1, 2], TypeError, "a tuple or None is required, not 'list'"),
            ("release", (1,), ValueError, "a version number tuple must contains at least 2 and at "
             "most 4 elements (1 given)"),
            ("release", (1, 2.0), ValueError,
             "an element of a version number tuple must be integer, not float"),
            ("release", (1, -2), ValueError,
             "an element of a version number tuple must be greater or equal zero, not -2"),
        ]
        for name, bad, error, words in rows:
            with self.subTest(words), self.assertRaises(error) as caught:
                setattr(echo, name, bad)
            self.assertEqual(str(caught.exception), words)

    def test_ref_and_out_parameters_are_lists(self) -> None:
        echo = probe.Echo()
        value = [21, "kept"]
        self.assertIsNone(echo.twice(value))
        self.assertEqual(value, [42, "kept"])
        empty: list[object] = []
        echo.twice(empty)
        self.assertEqual(empty, [0])
        found: list[object] = [None]
        self.assertTrue(echo.try_get("a", found))
        self.assertEqual(found, ["alpha"])
        self.assertFalse(echo.try_get("b", found))
        self.assertEqual(found, [None])
        with self.assertRaisesRegex(TypeError, "argument should be empty list or list contains "
                                    "default value, not 'tuple'"):
            echo.twice((3,))
        with self.assertRaisesRegex(TypeError, "integer argument expected, got 'str'"):
            echo.twice(["3"])
        with self.assertRaisesRegex(RuntimeError, "OverflowException"):
            echo.twice([2**31 - 1])


class Weird(int, enum.Enum):
    ONE = 1


class Variants(unittest.TestCase):
    def test_each_kind_has_its_managed_type(self) -> None:
        rows = [
            (None, "null"),
            (True, "System.Boolean"),
            (2**31 - 1, "System.Int32"),
            (-(2**63), "System.Int64"),
            (2**64 - 1, "System.UInt64"),
            (1.5, "System.Double"),
            ("s", "System.String"),
            (b"b", "System.Byte[]"),
            (bytearray(b"b"), "System.Byte[]"),
            (memoryview(b"b"), "System.Byte[]"),
            (D("1.5"), "System.Decimal"),
            (D("1.5").as_tuple(), "System.Decimal"),
            (dt.datetime(2024, 1, 1), "System.DateTime"),
            (dt.datetime(2024, 1, 1, tzinfo=HOUR), "System.DateTimeOffset"),
            (dt.date(2024, 1, 1), "System.DateTime"),
            (dt.timedelta(1), "System.TimeSpan"),
            (uuid.UUID(int=5), "System.Guid"),
            (probe.Pair(1.0, 2.0), "Korvan.Probe.Pair"),
            (probe.Box("x"), "Korvan.Probe.Box"),
        ]
        echo = probe.Echo()
        for value, kind in rows:
            with self.subTest(kind):
                echo.anything = value
                self.assertEqual(echo.anything_kind(), kind)
                echo.same(value)
        for value in (0, -1, 1.25, "\U0001f600", True, None, dt.timedelta(1), uuid.UUID(int=7)):
            self.assertEqual(echo.same(value), value)

    def test_what_has_no_managed_form_is_refused(self) -> None:
        import array

        for value in ({}, set(), iter(()), Weird.ONE, probe.Choice.FIRST, array.array("i"), object()):
            with self.subTest(repr(value)), self.assertRaisesRegex(TypeError, "unknown variant type"):
                probe.Echo().anything = value

    def test_python_collections_are_walked_by_managed_code(self) -> None:
        echo = probe.Echo()
        self.assertEqual(echo.join([1, "b", 2.5], "+"), "1+b+2.5")
        self.assertEqual(echo.join(("a", "b"), ","), "a,b")
        self.assertEqual(echo.sum(n for n in range(5)), 10.0)
        self.assertEqual(echo.count([1, 2, 3]), 3)

        def torn() -> Iterator[int]:
            yield 1
            raise ValueError("the thread is torn")

        with self.assertRaisesRegex(RuntimeError, "(?s)Proxy error.*ValueError: the thread is torn"):
            echo.sum(torn())
        with self.assertRaisesRegex(RuntimeError, "unknown variant type"):
            echo.sum([1, {}])


if __name__ == "__main__":
    unittest.main()
