"""What a managed object is in Python: identity, lifetime, comparison, casts and markers."""

from __future__ import annotations

import gc
import sys
import unittest
import weakref

from korvan import cad, probe


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

    def test_a_hash_is_the_managed_one_but_for_the_mark_of_an_error(self) -> None:
        for kind in (probe.HashedObject, probe.HashedValue):
            for managed, hashed in ((7, 7), (-2, -2), (-1, -2), (-(2**31), -(2**31))):
                with self.subTest(kind=kind, managed=managed):
                    self.assertEqual(hash(kind(managed)), hashed)

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
            probe.Failing(False).made = 2
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

    def test_repr_keeps_the_exception_that_is_handled(self) -> None:
        seen = []
        try:
            1 / 0
        except ZeroDivisionError:
            try:
                repr(probe.Failing(False))
            except RuntimeError as error:
                seen.append(type(error.__context__))
            seen.append(sys.exc_info()[0])
        self.assertEqual(seen, [ZeroDivisionError, ZeroDivisionError])

    def test_an_object_without_text_is_shown_as_python_would(self) -> None:
        for bound in (probe.Echo, probe.Pair):
            empty = bound.__new__(bound)
            self.assertEqual(repr(empty), f"<{bound.__module__}.{bound.__name__} object at {hex(id(empty))}>")
            with self.assertRaisesRegex(RuntimeError, "never constructed"):
                hash(empty)

    def test_a_dynamic_result_of_an_unbound_class_is_refused_and_given_back(self) -> None:
        handles = probe._live_handles()
        with self.assertRaisesRegex(TypeError, "^unknown wrapper type$"):
            probe.Echo().same(probe.Echo._type_of())
        self.assertEqual(probe._live_handles(), handles)


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
        self.assertEqual(probe.Box()._cast_to(echo).status, 0, "an instance asks for its class")
        self.assertEqual(echo._cast_to(echo).value, echo)
        self.assertFalse(probe.Box._cast_to(echo))
        self.assertFalse(probe.Box._cast_to("no wrapper"))
        self.assertFalse(probe.Box._cast_as(None))

    def test_a_struct_is_cast_to_a_copy(self) -> None:
        pair = probe.Pair(1.0, 2.0)
        for cast in (probe.Pair._cast_to, probe.Pair._cast_as):
            result = cast(pair)
            self.assertEqual((result.status, result.value), (1, probe.Pair(1.0, 2.0)))
            result.value.move(1.0, 1.0)
            self.assertEqual(pair, probe.Pair(1.0, 2.0))
        self.assertFalse(probe.Triple._cast_to(pair))

    def test_a_cast_result_outlives_what_it_was_made_of(self) -> None:
        echo = probe.Echo()
        echo.face = echo
        results = [probe.Echo._cast_to(echo.face) for _ in range(600)] + [probe.Box._cast_to(echo)]
        values = [result.value for result in results]
        del results
        made = [probe.Echo() for _ in range(600)]  # these take the memory of what has gone
        self.assertEqual(values, [echo] * 600 + [None])
        self.assertNotIn(echo, made)
        with self.assertRaises(AttributeError):
            probe.Echo._cast_to(echo).value = None

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


class Descriptors(unittest.TestCase):
    """What an enum's cast methods, mixed methods and static values are found by."""

    def test_a_name_with_two_forms_is_static_on_the_class_and_bound_on_an_instance(self) -> None:
        mixed = probe.Mixed()
        self.assertIs(probe.Mixed.inflate, probe.Mixed.inflate)
        self.assertIsNot(mixed.inflate, mixed.inflate)
        self.assertEqual((probe.Mixed.inflate(mixed, 2), probe.Mixed.inflate(None, 2), mixed.inflate(2)),
                         ("something 2", "nothing 2", 3))

    def test_methods_compare_by_instance_and_function_and_can_be_referred_to_weakly(self) -> None:
        first = probe.Choice.FIRST
        self.assertEqual(first.get_type, first.get_type)
        self.assertEqual(hash(first.get_type), hash(first.get_type))
        self.assertNotEqual(first.get_type, probe.Choice.SECOND.get_type)
        self.assertNotEqual(first.get_type, first._as_uni_enum)
        self.assertNotEqual(first.get_type, probe.Echo().get_type)
        with self.assertRaises(TypeError):
            first.get_type < first.get_type
        method = first.get_type
        self.assertIs(weakref.ref(method)(), method)
        self.assertIs(probe.Choice._type_of, first._type_of)

    def test_they_show_what_they_are_of(self) -> None:
        first = probe.Choice.FIRST
        address = hex(id(first))
        for shown, text, doc in (
            (first.get_type, f"<extension method get_type of Choice object at {address}>", None),
            (vars(probe.Choice)["get_type"], "<method 'get_type' of 'Choice' objects>", None),
            (vars(probe.Choice)["_type_of"], "<method '_type_of' of 'Choice' objects>", None),
            (vars(probe.Mixed)["inflate"], "<method 'inflate' of 'korvan.probe.Mixed' objects>",
             "inflate(by: int) -> int"),
            (vars(probe.Settings)["LIMIT"], "<attribute 'LIMIT' of 'korvan.probe.Settings' objects>", None),
        ):
            self.assertEqual((repr(shown), shown.__doc__), (text, doc))
        repr(probe.Choice.get_type)  # without an instance

    def test_misuse_is_refused_in_a_fixed_order(self) -> None:
        choice, first = probe.Choice, probe.Choice.FIRST
        unfit = "descriptor '{}' for '{}' objects doesn't apply to a 'int' object"
        for call, words in (
            (lambda: choice._cast_to(), "_cast_to() takes exactly one argument (0 given)"),
            (lambda: choice._cast_to(1, 2, a=1), "_cast_to() takes exactly one argument (2 given)"),
            (lambda: choice._cast_to(1, a=1), "_cast_to() takes no keyword arguments"),
            (lambda: choice._type_of(1, a=1), "_type_of() takes no arguments (1 given)"),
            (lambda: first.get_type(a=1), "get_type() takes no keyword arguments"),
            (lambda: choice.get_type(), "unbound method get_type() needs a 'self' argument"),
            (lambda: choice.get_type(1, 2, a=1), unfit.format("get_type", "Choice")),
            (lambda: choice.get_type(first, 2, a=1), "get_type() takes no arguments (1 given)"),
            (lambda: choice.get_type(first, a=1), "get_type() takes no keyword arguments"),
            (lambda: choice._cast_from(), "unbound method _cast_from() needs a 'self' argument"),
            (lambda: choice._cast_from(1), unfit.format("_cast_from", "Choice")),
            (lambda: choice._cast_from(first), "_cast_from() takes exactly one argument (0 given)"),
            (lambda: choice._cast_from(first, 1, a=1), "_cast_from() takes no keyword arguments"),
        ):
            with self.subTest(words), self.assertRaises(TypeError) as caught:
                call()
            self.assertEqual(str(caught.exception), words)
        self.assertEqual(choice.get_type(first), first.get_type())
        self.assertFalse(choice._cast_from(first, 1))

    def test_access_by_hand_checks_type_and_instance(self) -> None:
        needs = "descriptor '{}' needs a type, not '{}', as arg 2"
        for owner, name, asks_instance in ((probe.Choice, "_type_of", False), (probe.Choice, "get_type", True),
                                           (probe.Mixed, "inflate", True), (probe.Settings, "LIMIT", False)):
            get = vars(owner)[name].__get__
            rows = [((None, 5), needs.format(name, "int"))]
            if asks_instance:
                unfit = f"descriptor '{name}' for '"
                rows += [((1,), unfit), ((1, int), unfit)]
            else:
                rows += [((1,), needs.format(name, "NoneType")), ((1, 5), needs.format(name, "int"))]
            for arguments, words in rows:
                with self.subTest(name=name, arguments=arguments), self.assertRaises(TypeError) as caught:
                    get(*arguments)
                self.assertIn(words, str(caught.exception))
            self.assertTrue(get(None, owner))

    def test_a_static_value_is_read_alike_everywhere_and_never_assigned(self) -> None:
        color = cad.Color.from_argb(1, 2, 3)
        self.assertEqual(color.alice_blue, cad.Color.alice_blue)
        with self.assertRaises(AttributeError):
            color.alice_blue = color
        with self.assertRaises(TypeError):
            probe.Settings.LIMIT = 1


class Markers(unittest.TestCase):
    def test_types_carry_the_markers_of_the_family(self) -> None:
        self.assertIsNone(probe.Echo.__dict__["_korvan_clr_host"])
        self.assertIs(probe.Pair.__dict__["_korvan_clr_host"], Ellipsis)
        self.assertIsNone(probe.Pair.__dict__["_korvan_clr_castable_obj"])
        self.assertIs(probe.Choice.__dict__["_korvan_clr_castable_obj"], Ellipsis)
        self.assertEqual(probe.HiddenShape.__dict__["_additional_interfaces"],
                         {probe.IFace, probe.IShape})
        self.assertEqual(probe.HiddenShape.__dict__["_implicit_interfaces"], set())


class MostDerived(unittest.TestCase):
    def test_results_and_items_come_as_the_class_that_they_are_of(self) -> None:
        wheel = probe.Part.make(True)
        self.assertEqual((type(wheel), type(probe.Part.make(False)), wheel.spokes), (probe.Wheel, probe.Part, 8))
        part = probe.Part()
        self.assertIsNone(part.inner)
        part.inner = wheel
        self.assertEqual((type(part.inner), part.inner), (probe.Wheel, wheel))
        part.parts.extend([probe.Part(), wheel, wheel])
        for items in (list(part.parts), part.parts[:], part.parts.copy(), [part.parts[i] for i in range(3)]):
            self.assertEqual([type(item) for item in items], [probe.Part, probe.Wheel, probe.Wheel])
        self.assertIs(type(part.parts.pop()), probe.Wheel)


if __name__ == "__main__":
    unittest.main()
