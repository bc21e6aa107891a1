"""What a managed object is in Python: identity, lifetime, comparison, casts and markers."""

from __future__ import annotations

import gc
import unittest
import weakref

from korvan import probe


class Wrappers(unittest.TestCase):
    def test_each_crossing_makes_a_new_wrapper_of_the_same_object(self) -> None:
        echo, peer = probe.Echo(), probe.Echo()
        echo.peer = peer
        self.assertIsNot(echo.peer, echo.peer)
        self.assertEqual(echo.peer, peer)
        self.assertEqual(hash(echo.peer), hash(peer))
        self.assertNotEqual(echo, peer)
        self.assertFalse(echo == 1)
        self.assertTrue(echo != None)  # noqa: E711: None is asked of the managed side
        self.assertRaises(TypeError, lambda: echo < peer)

    def test_a_dropped_wrapper_gives_its_handle_back(self) -> None:
        echo = probe.Echo()
        gc.collect()
        before = echo.live()
        kept = [probe.Echo() for _ in range(100)]
        self.assertEqual(echo.live(), before + 100)
        del kept
        gc.collect()
        self.assertLessEqual(echo.live(), before + 2)

    def test_a_wrapper_takes_no_attributes_subclasses_or_weak_references(self) -> None:
        echo = probe.Echo()
        with self.assertRaises(AttributeError):
            echo.unknown = 1
        self.assertRaises(TypeError, weakref.ref, echo)
        with self.assertRaises(TypeError):
            type("Sub", (probe.Echo,), {})

    def test_a_read_only_property_can_not_be_assigned_nor_any_deleted(self) -> None:
        with self.assertRaises(AttributeError):
            probe.Cube(1).side = 2
        with self.assertRaises(AttributeError):
            del probe.Echo().text

    def test_a_derived_result_is_wrapped_as_declared(self) -> None:
        collections = probe.Collections()
        self.assertIs(type(collections.boxes[0]), probe.Box)

    def test_disposal_happens_at_the_end_of_the_block(self) -> None:
        closable = probe.Closable()
        with closable as entered:
            self.assertIs(entered, closable)
            self.assertEqual(closable.closed, 0)
        self.assertEqual(closable.closed, 1)

    def test_repr_is_the_managed_text_and_keeps_a_pending_exception(self) -> None:
        self.assertEqual(repr(probe.Pair(1.5, 2.0)), "(1.5, 2)")
        failing = probe.Failing(False)
        with self.assertRaisesRegex(RuntimeError, "no text"):
            repr(failing)
        with self.assertRaisesRegex(RuntimeError, "no hash"):
            hash(failing)
        with self.assertRaisesRegex(RuntimeError, "no equality"):
            failing == probe.Failing(False)
        self.assertEqual(failing, failing, "the same wrapper is equal without asking")


class Interfaces(unittest.TestCase):
    def test_a_result_is_wrapped_as_its_class_only_if_that_shows_the_interface(self) -> None:
        self.assertIs(type(probe.Shapes.open()), probe.OpenShape)
        self.assertIs(type(probe.Shapes.hidden()), probe.IShape)
        self.assertIs(type(probe.Shapes.private()), probe.IShape)
        self.assertIsNone(probe.Shapes.none())
        hidden = probe.Shapes.hidden()
        self.assertEqual((hidden.area, hidden.describe(2), hidden.name),
                         (3.0, "hidden:2", "hidden"))

    def test_a_parameter_takes_implementers_and_views(self) -> None:
        self.assertEqual(probe.Shapes.name_of(probe.OpenShape()), "open")
        self.assertEqual(probe.Shapes.name_of(probe.HiddenShape()), "hidden")
        self.assertEqual(probe.Shapes.name_of(probe.Shapes.private()), "private")
        self.assertEqual(probe.Shapes.name_of(probe.Dot("dot")), "dot")
        self.assertIsNone(probe.Shapes.name_of(None))
        with self.assertRaisesRegex(TypeError, "can't build IFace value from 'Pair'|korvan.probe.Pair"):
            probe.Shapes.name_of(probe.Pair(1.0, 2.0))
        self.assertNotIsInstance(probe.OpenShape(), probe.IShape)


class Casts(unittest.TestCase):
    def test_a_cast_tells_its_status_and_value(self) -> None:
        echo = probe.Echo()
        echo.face = echo
        result = probe.Echo._cast_to(echo.face)
        self.assertTrue(result)
        status, value = result
        self.assertEqual(status, 1)
        self.assertIs(type(value), probe.Echo)
        self.assertEqual(value, echo)
        self.assertFalse(probe.Box._cast_to(echo))
        self.assertFalse(probe.Box._cast_to("no wrapper"))
        self.assertFalse(probe.Box._cast_as(None))

    def test_assignability_is_asked_of_the_managed_side(self) -> None:
        cube = probe.Cube(1)
        self.assertTrue(probe.Shape._is_assignable(cube))
        self.assertFalse(probe.Cube._is_assignable(probe.Box()))
        self.assertFalse(probe.Pair._is_assignable(1))
        self.assertFalse(probe.Settings._is_assignable(cube))

    def test_managed_types_are_objects_of_the_reflection_module(self) -> None:
        self.assertEqual(str(probe.Echo._type_of()), "Korvan.Probe.Echo")
        self.assertEqual(probe.Echo._type_of(), probe.Echo().get_type())
        self.assertEqual(str(probe.Pair(1.0, 2.0).get_type()), "Korvan.Probe.Pair")
        self.assertEqual(str(probe.Choice.FIRST.get_type()), "Korvan.Probe.Choice")
        self.assertEqual(str(probe.Choice.THIRD._as_uni_enum()), "Third")
        self.assertEqual([m.name for m in probe.Choice], ["FIRST", "SECOND", "THIRD"])

    def test_an_explicit_conversion_is_reached_by_cast_from(self) -> None:
        converted = probe.Triple()._cast_from(probe.Pair._type_of())
        self.assertTrue(converted)
        self.assertEqual(str(converted.value), "(0, 0)")
        self.assertFalse(probe.Echo()._cast_from(probe.Pair._type_of()))
        with self.assertRaisesRegex(TypeError, r"_cast_from\(\) expects a .Net Type argument"):
            probe.Triple()._cast_from(1)

    def test_an_interface_can_not_be_reinterpreted(self) -> None:
        with self.assertRaisesRegex(TypeError, "cannot convert from  'int' to 'korvan.probe.IShape'"):
            probe.IShape._reinterpret_obj(1)
        with self.assertRaisesRegex(TypeError, "got a int object"):
            probe.Echo._reinterpret_obj(1)
        self.assertEqual(probe.Echo._reinterpret_obj(probe.Echo()).signed32, 0)


class Markers(unittest.TestCase):
    def test_types_carry_the_markers_of_the_family(self) -> None:
        self.assertIsNone(probe.Echo.__dict__["_korvan_clr_host"])
        self.assertIs(probe.Pair.__dict__["_korvan_clr_host"], Ellipsis)
        self.assertIsNone(probe.Pair.__dict__["_korvan_clr_castable_obj"])
        self.assertIs(probe.Choice.__dict__["_korvan_clr_castable_obj"], Ellipsis)
        self.assertEqual(probe.HiddenShape.__dict__["_additional_interfaces"],
                         {probe.IFace, probe.IShape})
        self.assertEqual(probe.HiddenShape.__dict__["_implicit_interfaces"], set())


if __name__ == "__main__":
    unittest.main()
