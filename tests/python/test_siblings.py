"""The sibling modules as users see them, and their capsules as other modules do."""

from __future__ import annotations

import copy
import ctypes
import io
import pickle
import sys
import unittest

import korvan.cad
from korvan import probe, pycore, pydrawing, pygc, pyreflection
from korvan.pydrawing import Color, RectangleF

from child import LinkedPackage, ScriptedRuntime, run

get_pointer = ctypes.pythonapi.PyCapsule_GetPointer
get_pointer.restype = ctypes.c_void_p
get_pointer.argtypes = (ctypes.py_object, ctypes.c_char_p)

Parser = ctypes.PYFUNCTYPE(ctypes.c_int, ctypes.py_object, ctypes.c_void_p)
Wrapper = ctypes.PYFUNCTYPE(ctypes.py_object, ctypes.c_void_p)
CastNew = ctypes.PYFUNCTYPE(ctypes.py_object, ctypes.c_int, ctypes.py_object)
CastNewEmpty = ctypes.PYFUNCTYPE(ctypes.py_object, ctypes.c_int, ctypes.c_void_p)


def slots(module: object, attribute: str, count: int) -> list[int]:
    """The function pointers of a capsule, as an importer reads them."""
    name = f"{module.__name__}.{attribute}"  # type: ignore[attr-defined]
    table = get_pointer(getattr(module, attribute), name.encode())
    return list((ctypes.c_void_p * count).from_address(table))


class Versions(unittest.TestCase):
    def test_every_module_carries_versions_of_its_own_type(self) -> None:
        seen = set()
        for module in (korvan.cad, pycore, pydrawing, pygc, pyreflection):
            self.assertEqual(str(module.VERSION), "25.3.0.0")
            self.assertEqual(repr(module.VERSION),
                             f"<{module.__name__}._ModuleVersionType: 25.3.0.0>")
            self.assertLess(module._BACKWARD_COMPATIBILITY_THRESHOLD, module.VERSION)
            seen.add(type(module.VERSION))
        self.assertEqual(len(seen), 5)
        self.assertNotEqual(pygc.VERSION, pycore.VERSION)
        self.assertEqual(hash(pygc.VERSION), hash(pycore.VERSION))


class Reflection(unittest.TestCase):
    def test_a_type_tells_of_itself(self) -> None:
        rows = [
            (probe.Cube._type_of(), "Korvan.Probe.Cube", "class", False),
            (probe.Shape._type_of(), "Korvan.Probe.Shape", "class", True),
            (probe.IShape._type_of(), "Korvan.Probe.IShape", "interface", True),
            (probe.Pair._type_of(), "Korvan.Probe.Pair", "struct", False),
            (probe.Choice._type_of(), "Korvan.Probe.Choice", "enum", False),
        ]
        for type_, full_name, kind, is_abstract in rows:
            with self.subTest(full_name):
                self.assertIs(type(type_), pyreflection.Type)
                self.assertEqual((type_.full_name, str(type_)), (full_name, full_name))
                self.assertEqual(f"{type_.namespace}.{type_.name}", full_name)
                self.assertEqual(repr(type_), f"<Type {full_name}>")
                self.assertEqual(type_.is_class, kind == "class")
                self.assertEqual(type_.is_interface, kind == "interface")
                self.assertEqual(type_.is_value_type, kind in ("struct", "enum"))
                self.assertEqual(type_.is_enum, kind == "enum")
                self.assertEqual(type_.is_abstract, is_abstract)

    def test_base_types_lead_to_the_root(self) -> None:
        names, type_ = [], probe.Cube._type_of()
        while type_ is not None:
            names.append(type_.full_name)
            type_ = type_.base_type
        self.assertEqual((names[0], names[-1]), ("Korvan.Probe.Cube", "System.Object"))
        self.assertEqual(probe.Cube._type_of().base_type.full_name, names[1])
        self.assertIsNone(probe.IShape._type_of().base_type)

    def test_types_are_equal_and_hash_by_what_they_stand_for(self) -> None:
        self.assertEqual(probe.Echo._type_of(), probe.Echo().get_type())
        self.assertEqual(len({probe.Echo._type_of(), probe.Echo().get_type()}), 1)
        self.assertNotEqual(probe.Echo._type_of(), probe.Box._type_of())
        self.assertNotEqual(probe.Echo._type_of(), "Korvan.Probe.Echo")
        self.assertEqual(korvan.cad.Image._type_of().full_name, "Korvan.CAD.Image")
        self.assertEqual(str(probe.Echo._type_of().get_type()), "System.RuntimeType")

    def test_an_enum_value_has_name_integer_and_type(self) -> None:
        for member in probe.Choice:
            value = member._as_uni_enum()
            self.assertIs(type(value), pyreflection.Enum)
            self.assertEqual((value.name.upper(), value.value, int(value)),
                             (member.name, member.value, member.value))
            self.assertEqual(str(value), value.name)
            self.assertEqual(repr(value), f"<Enum Korvan.Probe.Choice.{value.name}: {int(member)}>")
            self.assertEqual(value.get_type(), probe.Choice._type_of())
            self.assertEqual(value, member._as_uni_enum())
            self.assertEqual(hash(value), hash(member._as_uni_enum()))
        self.assertNotEqual(probe.Choice.FIRST._as_uni_enum(), probe.Choice.THIRD._as_uni_enum())

    def test_every_width_of_an_enum_gives_its_integer(self) -> None:
        enums = [bound for bound in vars(probe).values() if hasattr(bound, "_as_uni_enum")]
        self.assertGreater(len(enums), 1)
        for bound in enums:
            for member in bound:
                self.assertEqual(int(member._as_uni_enum()), member.value, member)

    def test_an_object_is_shown_compared_and_asked_for_its_type(self) -> None:
        value = probe.Triple()._cast_from(probe.Pair._type_of()).value
        self.assertIs(type(value), pyreflection.Object)
        self.assertEqual((str(value), repr(value)), ("(0, 0)", "<Object (0, 0)>"))
        self.assertEqual(value.get_type(), probe.Pair._type_of())
        self.assertEqual(value, probe.Pair(0.0, 0.0))
        self.assertEqual(probe.Pair._reinterpret_obj(value), probe.Pair(0.0, 0.0))

    def test_a_struct_is_an_object_and_seen_as_one_it_is_a_copy(self) -> None:
        pair = probe.Pair(1.0, 2.0)
        seen = probe.Pair._reinterpret_obj(pair)
        seen.x = 9.0
        self.assertEqual((pair.x, seen.y), (1.0, 2.0))
        with self.assertRaisesRegex(TypeError, "got a korvan.probe.Pair object"):
            probe.Pair._reinterpret_obj(probe.Pair.__new__(probe.Pair))

    def test_no_instance_is_without_a_handle(self) -> None:
        for kind in (pyreflection.Type, pyreflection.Object, pyreflection.Enum, pygc.CastResult):
            self.assertRaisesRegex(TypeError, "cannot create", kind)
            self.assertRaisesRegex(TypeError, "not safe|cannot create", object.__new__, kind)

    def test_a_converter_names_what_it_refuses(self) -> None:
        target = ctypes.c_void_p()
        for name in ("Type", "Object", "Enum"):
            parse, _, extract = slots(pyreflection, f"_C_APIT_{name}", 3)
            with self.assertRaisesRegex(TypeError, f"can't build {name} value from 'int'"):
                Parser(parse)(1, ctypes.byref(target))
            self.assertEqual(Parser(extract)(1, ctypes.byref(target)), 0)
            self.assertIsNone(Wrapper(slots(pyreflection, f"_C_APIT_{name}", 2)[1])(None))
        parse_type, _, extract_type = slots(pyreflection, "_C_APIT_Type", 3)
        type_ = probe.Echo._type_of()
        self.assertEqual(Parser(parse_type)(type_, ctypes.byref(target)), 1)
        self.assertEqual(Parser(extract_type)(type_, ctypes.byref(target)), 1)
        self.assertTrue(target.value)

    def test_a_managed_half_that_lacks_a_method_is_reported_on_use(self) -> None:
        host = "Korvan.WrpGen.Interop.TypeHost"
        with ScriptedRuntime(f"fail {host} get_IsClass 7") as runtime:
            done = run(
                """
                from korvan import probe
                type_ = probe.Echo._type_of()
                for use in (lambda: type_.full_name, lambda: repr(type_), lambda: type_.base_type):
                    try:
                        use()
                    except TypeError as error:
                        print(error)
                print(str(type_), probe.Choice.THIRD._as_uni_enum().name)
                """,
                **runtime.environment,
            )
        *errors, rest = done.stdout.splitlines()
        self.assertEqual(len(errors), 3, done.stderr)
        for error in errors:
            self.assertIn(f"'{host} (Assembly=WrpInterop.Korvan.PyReflection)'", error)
        self.assertEqual(rest, "Korvan.Probe.Echo Third")

    def test_an_assembly_that_is_missing_is_reported_when_a_type_is_asked_for(self) -> None:
        with LinkedPackage() as package:
            package.remove("assemblies/pyreflection/WrpInterop.Korvan.PyReflection.dll")
            done = package.run(
                """
                import korvan.cad
                for _ in range(2):
                    try:
                        korvan.cad.Color._type_of()
                    except TypeError as error:
                        print("ExchangeHost (Assembly=WrpInterop.Korvan.PyReflection)" in str(error))
                print(korvan.cad.Color.from_argb(1, 2, 3).r)
                """,
                **{"NETCORE_WRAPPER_ASSEMBLY_DIR_korvan": str(package.package / "assemblies")},
            )
        self.assertEqual(done.stdout.split(), ["True", "True", "1"], done.stderr)


class Leaks(unittest.TestCase):
    def test_repeated_use_leaves_nothing_behind(self) -> None:
        type_, value = probe.Cube._type_of(), probe.Choice.THIRD._as_uni_enum()
        bodies = (
            lambda: (type_.full_name, type_.is_enum, repr(type_), type_.base_type, hash(type_)),
            lambda: (value.name, value.value, repr(value), int(value), value == value.get_type()),
            lambda: (Color("Tomato") == Color(1, 2, 3), repr(Color(5)), Color().__reduce__()),
            lambda: (RectangleF(1, 2, 3, 4).contains(1, 2), repr(RectangleF()), hash(RectangleF())),
            lambda: pycore.BytesAsStream(b"abc").read(),
            lambda: repr(probe.Cube._cast_to(None)),
        )
        for body in bodies:
            for rounds in (100, 2000):
                before = sys.getallocatedblocks()
                for _ in range(rounds):
                    body()
                grown = sys.getallocatedblocks() - before
            self.assertLess(grown, 64)


class Casts(unittest.TestCase):
    def test_a_cast_result_is_a_pair_with_a_truth(self) -> None:
        new = CastNew(slots(pygc, "_C_APIF", 1)[0])
        for status, truth in ((1, True), (7, True), (-1, True), (0, False)):
            result = new(status, "value")
            self.assertEqual((result.status, result.value, bool(result)), (status, "value", truth))
            self.assertEqual(tuple(result), (status, "value"))
            self.assertEqual((len(result), result[-1]), (2, "value"))
            self.assertEqual(repr(result),
                             f"<korvan.pygc.CastResult: status={status}, value='value'>")
            self.assertRaises(IndexError, result.__getitem__, 2)
            with self.assertRaises(AttributeError):
                result.status = 1
        empty = CastNewEmpty(slots(pygc, "_C_APIF", 1)[0])(0, None)
        self.assertEqual(tuple(empty), (0, None))


class Colors(unittest.TestCase):
    def test_all_constructions_lead_to_the_same_value(self) -> None:
        tomato = Color(255, 99, 71)
        same = [
            Color("Tomato"), Color("TOMATO"), Color(0xFFFF6347), Color(0xFFFF6347 - 2**32),
            Color(r=255, g=99, b=71, a=255), Color.from_name("tomato"), Color.from_argb(255, 99, 71),
            Color.from_argb(255, 255, 99, 71), Color.from_argb(-40121),
            Color.from_argb(255, Color(255, 99, 71, 3)), copy.copy(tomato),
            pickle.loads(pickle.dumps(tomato)), eval(repr(tomato)),
        ]
        for color in same:
            self.assertEqual(color, tomato)
            self.assertEqual(hash(color), hash(tomato))
        self.assertEqual((tomato.a, tomato.r, tomato.g, tomato.b), (255, 255, 99, 71))
        self.assertEqual((tomato.name, tomato.to_argb()), ("Tomato", -40121))
        self.assertEqual(repr(tomato), "Color(r=255, g=99, b=71, a=255)")
        self.assertNotEqual(tomato, Color(255, 99, 71, 254))
        self.assertNotEqual(tomato, (255, 99, 71))
        self.assertEqual(Color(1, 2, 3, 4).name, "04010203")
        with self.assertRaises(AttributeError):
            tomato.r = 1

    def test_a_colour_that_was_never_set_is_not_transparent_black(self) -> None:
        empty = Color()
        self.assertTrue(empty.is_empty)
        self.assertNotEqual(empty, Color(0, 0, 0, 0))
        self.assertEqual((empty.name, empty.to_argb(), empty.is_known_color), ("0", 0, False))
        self.assertEqual(eval(repr(empty)), empty)
        self.assertEqual(pickle.loads(pickle.dumps(empty)), empty)

    def test_what_is_no_colour_is_refused(self) -> None:
        rows = [
            (ValueError, "0 to 255, not 256", lambda: Color(256, 0, 0)),
            (ValueError, "0 to 255, not -1", lambda: Color(0, 0, 0, -1)),
            (TypeError, "not 'float'", lambda: Color(1.0, 0, 0)),
            (ValueError, "32 bits", lambda: Color(2**32)),
            (ValueError, "32 bits", lambda: Color.from_argb(-(2**31) - 1)),
            (ValueError, "32 bits", lambda: Color(2**80)),
            (ValueError, "no colour is called 'Tomat'", lambda: Color("Tomat")),
            (ValueError, "no colour is called", lambda: Color("Tomato\0")),
            (TypeError, "takes a name, a number", lambda: Color(1, 2)),
            (TypeError, "takes a name, a number", lambda: Color(None)),
            (TypeError, "takes a name, a number", lambda: Color(r=1)),
            (TypeError, "a str, not 'int'", lambda: Color.from_name(1)),
            (TypeError, "can't build Color value from 'int'", lambda: Color.from_argb(1, 2)),
            (TypeError, "at least 1 argument ", lambda: Color.from_argb()),
        ]
        for kind, words, call in rows:
            with self.subTest(words), self.assertRaisesRegex(kind, words):
                call()

    def test_the_names_are_those_of_the_drawing_library(self) -> None:
        values = (getattr(korvan.cad.Color, name) for name in dir(korvan.cad.Color))
        compared = 0
        for managed in values:
            if isinstance(managed, korvan.cad.Color) and not managed.is_empty:
                color = Color(managed.name)
                self.assertEqual((color.name, color.to_argb()), (managed.name, managed.to_argb()))
                compared += 1
        self.assertGreater(compared, 130)

    def test_the_capsule_carries_the_raw_record(self) -> None:
        parse, wrap = slots(pydrawing, "_C_APITV1_Color", 2)
        raw = (ctypes.c_uint32 * 2)()
        for color in (Color("Tomato"), Color()):
            self.assertEqual(Parser(parse)(color, ctypes.byref(raw)), 1)
            self.assertEqual(list(raw), [color.to_argb() % 2**32, 0 if color.is_empty else 1])
            self.assertEqual(Wrapper(wrap)(ctypes.addressof(raw)), color)
        with self.assertRaisesRegex(TypeError, "can't build Color value from 'str'"):
            Parser(parse)("Tomato", ctypes.byref(raw))


class Rectangles(unittest.TestCase):
    def test_edges_and_area_follow_from_origin_and_size(self) -> None:
        r = RectangleF(1, 2, width=3, height=4.5)
        self.assertEqual((r.x, r.y, r.width, r.height), (1.0, 2.0, 3.0, 4.5))
        self.assertEqual((r.left, r.top, r.right, r.bottom), (1.0, 2.0, 4.0, 6.5))
        self.assertEqual([r.contains(*p) for p in ((1, 2), (3.9, 6.4), (4, 3), (2, 6.5), (0.9, 3))],
                         [True, True, False, False, False])
        self.assertFalse(r.is_empty)
        self.assertTrue(RectangleF().is_empty and RectangleF(0, 0, 5, 0).is_empty)
        self.assertTrue(RectangleF(width=-1, height=2).is_empty)
        self.assertEqual(repr(r), "RectangleF(x=1, y=2, width=3, height=4.5)")
        self.assertRaises(TypeError, RectangleF, "1")
        self.assertRaises(TypeError, r.contains, 1)

    def test_rectangles_are_values(self) -> None:
        r = RectangleF(0.1, 0, 3, 4)
        for same in (eval(repr(r)), pickle.loads(pickle.dumps(r)), RectangleF(0.1, -0.0, 3, 4)):
            self.assertEqual(same, r)
            self.assertEqual(hash(same), hash(r))
        self.assertNotEqual(r, RectangleF(0.1, 0, 3, 5))
        self.assertNotEqual(RectangleF(float("nan")), RectangleF(float("nan")))
        self.assertRaises(TypeError, lambda: r < r)
        parse, wrap = slots(pydrawing, "_C_APITV1_RectangleF", 2)
        raw = (ctypes.c_float * 4)()
        self.assertEqual(Parser(parse)(r, ctypes.byref(raw)), 1)
        self.assertEqual(Wrapper(wrap)(ctypes.addressof(raw)), r)


class BytesStreams(unittest.TestCase):
    def test_reading_is_as_of_a_bytes_io(self) -> None:
        data = bytes(range(20))
        ours, theirs = pycore.BytesAsStream(data), io.BytesIO(data)
        steps = [
            ("read", 3), ("tell",), ("seek", -2, 2), ("read",), ("read", 1), ("seek", 30),
            ("read",), ("seek", 0), ("read", -1), ("seek", 5), ("seek", 4, 1), ("read", 4),
        ]
        for name, *args in steps:
            self.assertEqual(getattr(ours, name)(*args), getattr(theirs, name)(*args), (name, args))
        ours.seek(18)
        target = bytearray(4)
        self.assertEqual((ours.readinto(target), bytes(target)), (2, b"\x12\x13\0\0"))
        self.assertEqual((ours.readable(), ours.seekable(), ours.writable()), (True, True, False))

    def test_wrong_use_is_refused(self) -> None:
        stream = pycore.BytesAsStream(b"abc")
        stream.seek(1)
        self.assertRaises(ValueError, stream.seek, -1)
        self.assertRaises(ValueError, stream.seek, 0, 3)
        self.assertRaises(OverflowError, stream.seek, 2**63 - 1, 1)
        self.assertRaises(OSError, stream.write, b"x")
        self.assertRaises(TypeError, stream.readinto, b"x")
        self.assertRaises(TypeError, pycore.BytesAsStream, "text")
        self.assertRaises(TypeError, stream.__init__, 1)
        self.assertEqual(stream.read(), b"bc", "a failed second start changes nothing")

    def test_closing_gives_the_memory_back(self) -> None:
        memory = bytearray(b"abc")
        with pycore.BytesAsStream(memory) as stream:
            self.assertRaises(BufferError, memory.append, 1)
            stream.seek(1)
            self.assertEqual(stream.readinto(memory), 2)
            self.assertEqual(memory, b"bcc", "over the memory that it reads")
        memory.append(1)
        self.assertTrue(stream.closed)
        for name, *args in (("read",), ("seek", 0), ("tell",), ("readinto", memory), ("flush",),
                            ("readable",), ("__enter__",)):
            with self.assertRaisesRegex(ValueError, "closed stream"):
                getattr(stream, name)(*args)
        self.assertTrue(pycore.BytesAsStream.__new__(pycore.BytesAsStream).closed)

    def test_a_target_that_closes_the_stream_is_survived(self) -> None:
        stream = pycore.BytesAsStream(b"abc")

        class Target:
            def __buffer__(self, flags: int) -> memoryview:
                stream.close()
                return memoryview(bytearray(3))

        self.assertRaises(ValueError, stream.readinto, Target())


if __name__ == "__main__":
    unittest.main()
