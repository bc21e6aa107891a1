"""Python objects that lie, raise, or change what is being read: each is refused or read, and none ends the process."""

from __future__ import annotations

import unittest
from textwrap import dedent

import child

PRELUDE = """
import datetime, decimal, gc, io, sys, threading, uuid
from unittest import mock
from korvan import probe
echo = probe.Echo()

def told(call):
    try:
        result = call()
        print(result if result is None or isinstance(result, (str, int, list)) else type(result).__name__)
    except Exception as error:
        print(type(error).__name__, str(error).strip().splitlines()[-1])

def put(name, value):
    return lambda: setattr(echo, name, value)

def calls_itself(type_, **members):
    return type("Fake", (), {"__class__": property(lambda self: type_), **members})()
"""

# What runs, and the lines that it prints.
CASES: dict[str, tuple[str, str]] = {
    "a UUID without the bytes of one": ("""
        class Short(uuid.UUID):
            bytes_le = property(lambda self: b"short")
        class Failing(uuid.UUID):
            bytes_le = property(lambda self: {}["no"])
        for value in Short(int=1), Failing(int=1), calls_itself(uuid.UUID), mock.Mock(spec=uuid.UUID):
            told(put("ident", value))
        told(put("anything", Short(int=1)))
        told(lambda: echo.join([calls_itself(uuid.UUID)], ","))
        told(lambda: setattr(probe.Collections(), "idents", [calls_itself(uuid.UUID)]))
        """, """
        TypeError can't build Guid from 'Short'
        KeyError 'no'
        AttributeError 'Fake' object has no attribute 'bytes_le'
        TypeError can't build Guid from 'Mock'
        RuntimeError Proxy error(PythonException): TypeError: can't build Guid from 'Short'
        RuntimeError Proxy error(PythonException): AttributeError: 'Fake' object has no attribute 'bytes_le'
        RuntimeError Proxy error(PythonException): AttributeError: 'Fake' object has no attribute 'bytes_le'
        """),
    "a decimal whose parts are none": ("""
        class Plain(decimal.Decimal):
            as_tuple = lambda self: (0, (1,), 0)
        told(lambda: echo.same(Plain("1")))
        for parts in ((0, None, 0), (None, (1,), 0), (0, (1, "a"), 0), ("x", (1,), 0), (0, (0,), -(2**63))):
            told(lambda: echo.same(decimal.DecimalTuple(*parts)))
        told(lambda: echo.same(calls_itself(decimal.DecimalTuple)))
        told(lambda: echo.same(calls_itself(decimal.DecimalTuple, exponent=0, sign=0)))
        told(put("anything", decimal.DecimalTuple(0, ("a",), 0)))
        told(lambda: echo.anything)
        """, """
        RuntimeError Proxy error(PythonException): AttributeError: 'tuple' object has no attribute 'exponent'
        RuntimeError Proxy error(PythonException): TypeError: object of type 'NoneType' has no len()
        RuntimeError Proxy error(PythonException): TypeError: 'NoneType' object cannot be interpreted as an integer
        RuntimeError Proxy error(PythonException): TypeError: 'str' object cannot be interpreted as an integer
        RuntimeError Proxy error(PythonException): TypeError: 'str' object cannot be interpreted as an integer
        Decimal
        RuntimeError Proxy error(PythonException): AttributeError: 'Fake' object has no attribute 'exponent'
        RuntimeError Proxy error(PythonException): AttributeError: 'Fake' object has no attribute 'digits'
        RuntimeError Proxy error(PythonException): TypeError: 'str' object cannot be interpreted as an integer
        None
        """),
    "an offset from UTC beyond all moments": ("""
        class Far(datetime.datetime):
            utcoffset = lambda self: datetime.timedelta(days=-10675199)
        told(put("moment", Far(9999, 12, 31, tzinfo=datetime.timezone.utc)))
        """, "OverflowError value too large or too small for .Net DateTime"),
    "errors without a text among those of several forms": ("""
        from korvan.cad import Image
        class Wordless(Exception):
            def __str__(self):
                raise ValueError
        class Raising:
            @property
            def __class__(self):
                raise Wordless
        try:
            Image.load(Raising())
        except TypeError as error:
            print(error.args[0][0], error.args[0][-1])
        """, "can't build String from 'Raising' <unprintable Wordless object>"),
    "items that leave their list while they are read": ("""
        class Zone(datetime.tzinfo):
            def utcoffset(self, when):
                items.clear()
                return datetime.timedelta(hours=1)
        class Leaving:
            @property
            def __class__(self):
                items.clear()
                return Leaving
        class Lying(decimal.Decimal):
            def as_tuple(self):
                items.clear()
                return decimal.Decimal("1.5").as_tuple()
        for item in datetime.time(9, 1, tzinfo=Zone()), Leaving(), Lying():
            items = [item]
            del item
            told(lambda: echo.join(items, ","))
        """, """
        01/01/0001 09:01:00 +01:00
        RuntimeError Proxy error(PythonException): TypeError: unknown variant type
        1.5
        """),
    "objects made anew while their arguments are read": ("""
        class Stream(io.BytesIO):
            @property
            def __class__(self):
                streams.__init__()
                others.append(probe.Streams())
                return io.BytesIO
        streams, others = probe.Streams(), []
        streams.held = stream = Stream()
        print(streams.held is stream, len(others) > 0, any(other.held for other in others))
        from korvan.cad import ColorPalette
        class Pair(tuple):
            def __getitem__(self, index):
                if again:
                    again.clear()
                    palette.__init__([7])
                return 5
        palette, again = ColorPalette([1]), [1]
        palette.__init__(Pair((1, 2)))
        other = ColorPalette([42, 43])
        print(list(palette.argb_32_entries), list(other.argb_32_entries))
        """, """
        True True False
        [5, 5] [42, 43]
        """),
    "a class of Python's with the marker of a wrapper": ("""
        class Marked:
            __slots__ = ("first",)
            _korvan_clr_host = None
        class MarkedStruct:
            __slots__ = ("first",)
            _korvan_clr_host = ...
        for type_ in Marked, MarkedStruct:
            value = type_()
            value.first = "text"
            print(probe.Pair(1.0, 2.0) == value, bool(probe.Echo._cast_to(value)), probe.Echo._is_assignable(value))
            told(put("peer", value))
            told(put("anything", value))
            told(put("face", value))
        """, """
        False False False
        TypeError can't build Echo value from 'Marked'
        TypeError unknown variant type
        TypeError can't build IFace value from 'Marked'
        False False False
        TypeError can't build Echo value from 'MarkedStruct'
        TypeError unknown variant type
        TypeError can't build IFace value from 'MarkedStruct'
        """),
    "modules that can't be imported": ("""
        ident = uuid.uuid4()
        for name in "uuid", "datetime":
            sys.modules[name] = None
        def named(call):
            try:
                call()
            except ImportError as error:
                print("ImportError", str(error).split(" The module")[0])
        named(put("ident", ident))
        named(put("anything", b"x"))
        named(put("anything", "x"))
        """, """
        ImportError Unable to import the specified module uuid.
        ImportError Unable to import the specified module uuid.
        ImportError PyCapsule_Import could not import module "datetime"
        """),
    "conversions at the interpreter's end": ("""
        class Late:
            def __init__(self):
                self.echo, self.values = echo, ["x", echo, uuid.uuid4(), b"x", 1.5, (1, "x"), ["x"]]
            def __del__(self):
                for value in self.values:
                    for name in "anything", "ident", "moment", "text":
                        try:
                            setattr(self.echo, name, value)
                        except Exception:
                            pass
                    try:
                        self.echo.join([value], ",")
                    except Exception:
                        pass
        late = Late()
        print("over")
        """, "over"),
    "calls within calls on a small stack": ("""
        class Nested:
            def __len__(self):
                return 1
            def __getitem__(self, index):
                return echo.join(self, ",")
        def run():
            try:
                echo.join(Nested(), ",")
            except RuntimeError:
                print("refused")
        def shallow():
            print(echo.join([1, "x"], ","))
        sys.setrecursionlimit(100000)
        sys.stderr.close()
        for size, target in (256, run), (128, shallow):
            threading.stack_size(size * 1024)
            thread = threading.Thread(target=target)
            thread.start()
            thread.join()
        """, "refused\n1,x"),
}


class HostileObjects(unittest.TestCase):
    def test_none_of_them_ends_the_process(self) -> None:
        for name, (code, expected) in CASES.items():
            with self.subTest(name):
                done = child.run(dedent(PRELUDE) + dedent(code), PYTHONMALLOC="debug")
                self.assertEqual(done.returncode, 0, done.stderr[-2000:])
                self.assertEqual(done.stdout.strip(), dedent(expected).strip())

    def test_no_two_objects_share_a_struct(self) -> None:
        from korvan import probe

        echo, dot = probe.Echo(), probe.Dot("first")
        echo.face = dot
        dot.name = "later"
        views = [probe.IFace._cast_to(dot).value, probe.IFace._cast_as(dot).value, echo.face]
        for view in views:
            view.name = "of the view"
        self.assertEqual([dot.name, echo.face.name], ["later", "first"])


if __name__ == "__main__":
    unittest.main()
