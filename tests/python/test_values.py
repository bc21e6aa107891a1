"""Values of every kind, set and read back through properties of the probe."""

from __future__ import annotations

import copy
import pickle
import random
import unittest

from korvan import probe, pydrawing


def set_attribute(target: object, name: str, value: object) -> None:
    setattr(target, name, value)


class IntegerValues(unittest.TestCase):
    WIDTHS = {
        "signed8": (-(2**7), 2**7 - 1),
        "unsigned8": (0, 2**8 - 1),
        "signed16": (-(2**15), 2**15 - 1),
        "unsigned16": (0, 2**16 - 1),
        "signed32": (-(2**31), 2**31 - 1),
        "unsigned32": (0, 2**32 - 1),
        "signed64": (-(2**63), 2**63 - 1),
        "unsigned64": (0, 2**64 - 1),
    }

    def test_both_ends_of_each_width_come_back(self) -> None:
        echo = probe.Echo()
        for name, (low, high) in self.WIDTHS.items():
            for value in (low, 0, high):
                with self.subTest(name=name, value=value):
                    setattr(echo, name, value)
                    self.assertEqual(getattr(echo, name), value)
                    self.assertIs(type(getattr(echo, name)), int)

    def test_one_beyond_each_end_is_refused_and_changes_nothing(self) -> None:
        echo = probe.Echo()
        for name, (low, high) in self.WIDTHS.items():
            for value in (low - 1, high + 1, 2**70):
                with self.subTest(name=name, value=value):
                    self.assertRaises(OverflowError, set_attribute, echo, name, value)
                    self.assertEqual(getattr(echo, name), 0)

    def test_range_errors_have_the_words_of_their_width(self) -> None:
        rows = [
            ("signed8", 128, "value '128' is out of the INT8 range"),
            ("unsigned8", 256, "value '256' is out of the UINT8 range"),
            ("signed16", -32769, "value '-32769' is out of the INT16 range"),
            ("signed32", 2**31, "value '2147483648' is out of the INT32 range"),
            ("unsigned32", 2**64 - 1, f"value '{2**64 - 1}' is out of the UINT32 range"),
        ]
        for name, value, words in rows:
            with self.subTest(name=name), self.assertRaises(OverflowError) as caught:
                setattr(probe.Echo(), name, value)
            self.assertEqual(str(caught.exception), words)


class StrictTypes(unittest.TestCase):
    def test_nothing_is_coerced(self) -> None:
        class Number(int):
            pass

        integer = "integer argument expected, got '{}'"
        numeric = "numeric argument expected, got '{}'"
        rows = [
            ("signed32", True, integer.format("bool"), "a bool is no integer"),
            ("signed32", 1.0, integer.format("float"), "not even a whole float"),
            ("signed32", Number(1), integer.format("Number"), "nor a subclass of int"),
            ("signed32", probe.Choice.SECOND, integer.format("Choice"), "nor an enum member"),
            ("signed32", None, integer.format("NoneType"), "nor None"),
            ("float64", 1, numeric.format("int"), "an int is no float"),
            ("float32", "1", numeric.format("str"), "nor is text"),
            ("flag", 1, "can't build bool from 'int'", "truth is not tested"),
            ("text", b"x", "can't build String from 'bytes'", "bytes are no text"),
            ("text", 5, "can't build String from 'int'", "str() is not called"),
            ("choice", 1, "can't build Choice value from 'int'", "a plain int is no member"),
            ("pair", None, "can't build Pair value from 'NoneType'", "a struct is never null"),
            ("peer", "x", "can't build Echo value from 'str'", "no wrapper"),
            ("blob", "x", "can't build byte[] from 'str'", "text is no buffer"),
        ]
        for name, value, words, why in rows:
            with self.subTest(why), self.assertRaises(TypeError) as caught:
                setattr(probe.Echo(), name, value)
            self.assertEqual(str(caught.exception), words)

    def test_floats_cross_bit_for_bit(self) -> None:
        echo = probe.Echo()
        for value in (0.0, -0.0, 0.1, 5e-324, 1.7976931348623157e308, float("inf")):
            echo.float64 = value
            self.assertEqual(echo.float64.hex(), value.hex())
        echo.float64 = float("nan")
        self.assertNotEqual(echo.float64, echo.float64)
        echo.float32 = 1e300
        self.assertEqual(echo.float32, float("inf"), "what is too large for single is infinite")


class TextValues(unittest.TestCase):
    def test_text_of_every_storage_width_comes_back(self) -> None:
        echo = probe.Echo()
        rows = ["", "plain", "\u00e9t\u00e9", "\u20ac \u6f22", "\U0001f600 x", "a\0b", "x" * 100_000]
        for text in rows + [None]:
            echo.text = text
            self.assertEqual(echo.text, text)

    def test_short_text_is_never_taken_for_another(self) -> None:
        # Short strings are kept for the next time: alike at both ends, they differ in the middle or in length.
        echo = probe.Echo()
        alike = ["aaaaaaaa" + "x" * n + "aaaaaaaa"[: 8 - n] for n in range(9)]
        rows = alike + ["\u20ac" * n for n in range(1, 18)] + ["a", "a\0", "a\0\0", "\0", "\0a", "x" * 16, "x" * 17]
        random.seed(7)
        rows += ["".join(random.choices("ab\u20ac\U0001f600", k=random.randrange(1, 17))) for _ in range(2000)]
        for text in rows * 2:
            echo.text = text
            self.assertEqual(echo.text, text)

    def test_a_lone_surrogate_crosses_in_and_fails_on_the_way_back(self) -> None:
        echo = probe.Echo()
        echo.text = "\ud800"
        self.assertRaises(LookupError, lambda: echo.text)

    def test_huge_text_and_buffers_come_back_whole(self) -> None:
        echo = probe.Echo()
        text = "\u20ac0123456789" * (100_000_000 // 11)
        echo.text = text
        self.assertEqual(echo.text, text)
        blob = bytes(100_000_000)
        echo.blob = blob
        self.assertEqual(len(echo.blob), len(blob))
        released = memoryview(b"abc")
        released.release()
        with self.assertRaises(BufferError):
            echo.blob = released
        self.assertEqual(len(echo.blob), len(blob), "a refused value changes nothing")

    def test_bytes_come_back_as_a_new_bytearray(self) -> None:
        echo = probe.Echo()
        for blob in (b"", b"abc", bytearray(b"abc"), memoryview(b"abc"), bytes(1 << 20)):
            echo.blob = blob
            self.assertEqual(echo.blob, bytes(blob))
            self.assertIs(type(echo.blob), bytearray)
        echo.blob = None
        self.assertIsNone(echo.blob)
        with self.assertRaises(BufferError):
            echo.blob = memoryview(b"abcdef")[::2]
        source = bytearray(b"abc")
        echo.blob = source
        source.extend(b"d")  # the buffer was released again
        echo.anything = source
        source.extend(b"e")  # and so is that of a value of any kind
        self.assertEqual((echo.anything, echo.join([source], "")), (b"abcd", "System.Byte[]"))
        source.extend(b"f")


class NullableValues(unittest.TestCase):
    def test_none_and_values_come_back(self) -> None:
        echo = probe.Echo()
        for name, value in (("maybe_int", -5), ("maybe_float", 0.5), ("maybe_flag", True)):
            self.assertIsNone(getattr(echo, name))
            setattr(echo, name, value)
            self.assertEqual(getattr(echo, name), value)
            setattr(echo, name, None)
            self.assertIsNone(getattr(echo, name))
        with self.assertRaisesRegex(TypeError, "integer argument expected, got 'float'"):
            echo.maybe_int = 3.0


class EnumValues(unittest.TestCase):
    def test_members_are_of_the_enum_family(self) -> None:
        import enum

        self.assertTrue(issubclass(probe.Choice, enum.IntEnum))
        self.assertTrue(issubclass(probe.Options, enum.IntFlag))
        self.assertEqual([(m.name, int(m)) for m in probe.Choice],
                         [("FIRST", 0), ("SECOND", 1), ("THIRD", 7)])
        echo = probe.Echo()
        echo.choice = probe.Choice.THIRD
        self.assertIs(echo.choice, probe.Choice.THIRD)
        echo.options = probe.Options.A | probe.Options.C
        self.assertEqual(echo.options, probe.Options.A | probe.Options.C)

    def test_every_storage_keeps_its_extremes(self) -> None:
        rows = [
            (probe.TinyUnsigned.HIGH, 255),
            (probe.TinySigned.LOW, -128),
            (probe.ShortSigned.LOW, -(2**15)),
            (probe.ShortUnsigned.HIGH, 2**16 - 1),
            (probe.WordUnsigned.TOP, 2**31),
            (probe.LongSigned.WIDE, 2**40),
            (probe.LongUnsigned.TOP, 2**63),
        ]
        for member, value in rows:
            self.assertEqual(int(member), value)
        self.assertEqual(probe.ShortSigned.ROTATE_90_FLIP_NONE, 5)
        self.assertEqual(probe.ShortUnsigned.S_RGB, 0)
        self.assertEqual(probe.LongUnsigned.RLE8, 8)

    def test_values_beyond_the_storage_fail_in_the_words_of_its_width(self) -> None:
        words = "Python int too large to convert to C"
        signed, unsigned = f"{words} long", f"{words} unsigned long"
        rows = [
            (probe.Options(2**63), signed), (probe.WordUnsigned(2**64), unsigned),
            (probe.LongSigned(2**63), "int too big to convert"), (probe.LongUnsigned(2**64), "int too big to convert"),
        ]
        for value, message in rows:
            for call in (value.get_type, value._as_uni_enum):
                with self.subTest(value), self.assertRaisesRegex(OverflowError, f"^{message}$"):
                    call()
        self.assertEqual(int(probe.LongUnsigned(2**63 + 8)._as_uni_enum()), 2**63 + 8)

    def test_members_pass_through_pickles_and_copies(self) -> None:
        members = [*probe.Choice, probe.Options.A | probe.Options.C, probe.LongUnsigned.TOP, probe.Cube.Colour.GREEN,
                   probe.TinySigned.LOW]
        for protocol in range(pickle.HIGHEST_PROTOCOL + 1):
            found = pickle.loads(pickle.dumps(members, protocol))
            self.assertEqual([(type(one), one) for one in found], [(type(one), one) for one in members])
        for member in probe.Choice:
            self.assertIs(pickle.loads(pickle.dumps(member)), member)
            self.assertIs(copy.deepcopy(copy.copy(member)), member)


class StructValues(unittest.TestCase):
    def test_a_property_gives_a_copy_and_a_wrapper_keeps_its_own(self) -> None:
        echo = probe.Echo()
        pair = probe.Pair(1.0, 2.0)
        echo.pair = pair
        pair.x = 9.0
        self.assertEqual(echo.pair.x, 1.0)
        read = echo.pair
        read.x = 5.0
        self.assertEqual((read.x, echo.pair.x), (5.0, 1.0))
        pair.move(1.0, 1.0)
        self.assertEqual((pair.x, pair.y), (10.0, 3.0))

    def test_equal_fields_make_equal_values(self) -> None:
        one, other = probe.Pair(1.0, 2.0), probe.Pair(1.0, 2.0)
        self.assertEqual(one, other)
        self.assertIsNot(one, other)
        self.assertEqual(hash(one), hash(other))
        self.assertNotEqual(one, probe.Pair(1.0, 3.0))
        self.assertEqual(repr(one), "(1, 2)")


class DrawingValues(unittest.TestCase):
    def test_a_colour_of_the_sibling_crosses_both_ways(self) -> None:
        drawn = probe.Drawn()
        self.assertEqual(drawn.ink, pydrawing.Color.from_argb(1, 2, 3, 4))
        self.assertIs(type(drawn.ink), pydrawing.Color)
        drawn.ink = pydrawing.Color.from_argb(0xFF, 0, 0, 0x80)
        self.assertEqual(probe.Drawn.tell(drawn.ink), "FF000080")
        self.assertEqual(probe.Drawn.tell(pydrawing.Color()), "none")
        for value in (5, None, "red", (1, 2, 3)):
            with self.assertRaisesRegex(TypeError, "can't build Color value from"):
                drawn.ink = value
        self.assertIsNone(drawn.paper)
        drawn.paper = pydrawing.Color.from_argb(9, 9, 9)
        self.assertEqual(drawn.paper, pydrawing.Color.from_argb(9, 9, 9))
        drawn.paper = None
        self.assertIsNone(drawn.paper)

    def test_a_rectangle_of_the_sibling_only_comes_out(self) -> None:
        drawn = probe.Drawn()
        self.assertEqual(drawn.frame, pydrawing.RectangleF(1.0, 2.0, 3.5, 4.0))
        with self.assertRaises(AttributeError):
            drawn.moved = drawn.frame
        self.assertFalse(hasattr(drawn, "area"))


if __name__ == "__main__":
    unittest.main()
