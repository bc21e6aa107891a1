"""Constructors, methods, overload groups and static members of the probe."""

from __future__ import annotations

import inspect
import unittest

from korvan import probe


class Help(unittest.TestCase):
    def test_a_method_of_one_form_has_a_signature(self) -> None:
        rows = [
            (probe.Shape.scale, "(self, /, factor)", "Scales by one factor.\n\n"
             ":param factor: The factor for both directions.\n:returns: The form that was taken."),
            (probe.Echo.join, "(self, /, items, separator)", ""),
            (probe.Closable.dispose, "(self, /)", ""),
            (probe.Strict.join, "(items, separator, end)", ""),
            (probe.Strict.set_folder, "(value, /)", "Gets or sets where things are kept."),
        ]
        for method, signature, doc in rows:
            with self.subTest(method=method):
                self.assertEqual((str(inspect.signature(method)), method.__doc__ or ""), (signature, doc))

    def test_forms_are_told_in_the_order_of_tries(self) -> None:
        doc = probe.Box.scale.__doc__
        signatures = [line for line in doc.splitlines() if line.startswith("scale(")]
        self.assertEqual(signatures, ["scale(x: float, y: float) -> str", "scale(times: int) -> str",
                                      "scale(factor: float) -> str"])
        self.assertIn("    Scales by one factor.", doc)
        self.assertEqual(probe.Mixed().inflate.__doc__, "inflate(by: int) -> int")
        self.assertTrue(probe.Mixed.inflate.__doc__.startswith("inflate(target: Mixed | None, by: int)"))


class Overloads(unittest.TestCase):
    def test_the_first_form_whose_arguments_convert_is_taken(self) -> None:
        echo = probe.Echo()
        self.assertEqual(echo.pick(1), "int")
        self.assertEqual(echo.pick(1.0), "double")
        self.assertEqual(echo.pick("1"), "string")
        self.assertEqual(echo.pick(echo), "Echo")
        self.assertEqual(echo.pick(None), "string", "None fits text before it fits a class")

    def test_a_misfit_lists_what_each_form_said(self) -> None:
        with self.assertRaises(TypeError) as caught:
            probe.Echo().pick(b"x")
        self.assertEqual(
            caught.exception.args,
            (
                [
                    "integer argument expected, got 'bytes'",
                    "numeric argument expected, got 'bytes'",
                    "can't build String from 'bytes'",
                    "can't build Echo value from 'bytes'",
                ],
            ),
        )

    def test_constructors_are_a_group_too(self) -> None:
        rows = [((), "box"), (("x",), "x"), ((3,), "int 3"), ((0.5,), "double 0.5")]
        for arguments, label in rows:
            self.assertEqual(probe.Box(*arguments).label, label)
        self.assertEqual(probe.Box(other=probe.Box("x")).label, "copy of x")
        with self.assertRaises(TypeError) as caught:
            probe.Box(b"x")
        self.assertEqual(len(caught.exception.args[0]), 5)

    def test_a_group_runs_on_into_the_base_class(self) -> None:
        box = probe.Box()
        self.assertEqual(box.scale(1.0, 2.0), "Box.Scale(double, double) 1 2")
        self.assertEqual(box.scale(3), "Box.Scale(int) 3")
        self.assertEqual(box.scale(2.0), "Shape.Scale(double) 2")
        self.assertEqual(box.scale(factor=2.0), "Shape.Scale(double) 2")

    def test_a_managed_failure_ends_the_tries(self) -> None:
        with self.assertRaisesRegex(RuntimeError, "no such object"):
            probe.Failing(True)


class Arguments(unittest.TestCase):
    def test_every_parameter_can_be_named(self) -> None:
        pair = probe.Pair(y=2.0, x=1.0)
        self.assertEqual((pair.x, pair.y), (1.0, 2.0))
        pair.move(dy=1.0, dx=0.0)
        self.assertEqual(pair.y, 3.0)
        mixed = probe.Mixed()
        self.assertEqual(mixed.set_background_color_rgb427(argb_32_color=1, is_co2_content=True),
                         "1 True")

    def test_a_wrong_count_has_the_interpreters_words(self) -> None:
        pair = probe.Pair(1.0, 2.0)
        with self.assertRaisesRegex(TypeError, r"takes exactly 2 arguments \(3 given\)|at most 2"):
            pair.move(1.0, 2.0, 3.0)
        with self.assertRaisesRegex(TypeError, "missing required argument 'dy'"):
            pair.move(1.0)
        with self.assertRaisesRegex(TypeError, r"takes at most 2 keyword arguments \(3 given\)"):
            pair.move(dx=1.0, dy=1.0, z=1.0)
        with self.assertRaises(TypeError):
            pair.length(1)

    def test_sixteen_parameters_cross_in_order(self) -> None:
        values = [float(2**i) for i in range(16)]
        self.assertEqual(probe.Mixed.sum16(*values), float(2**16 - 1))
        names = {f"m{row}{column}": 1.0 for row in range(1, 5) for column in range(1, 5)}
        self.assertEqual(probe.Mixed.sum16(**names), 16.0)


class Statics(unittest.TestCase):
    def test_fields_and_properties_read_through_the_class(self) -> None:
        self.assertEqual(probe.Settings.LIMIT, 42)
        self.assertEqual(probe.Settings.GREETING, "hello")
        self.assertEqual(probe.Settings.ORIGIN, probe.Pair(0.0, 0.0))
        before = probe.Settings.count
        self.assertEqual(probe.Settings.increase(2), before + 2)
        self.assertEqual(probe.Settings.count, before + 2)

    def test_a_writable_static_property_is_set_by_its_method(self) -> None:
        probe.Settings.set_folder("/tmp/x")
        self.assertEqual(probe.Settings.folder, "/tmp/x")
        probe.Settings.set_mode(probe.Choice.THIRD)
        self.assertIs(probe.Settings.mode, probe.Choice.THIRD)
        with self.assertRaises(TypeError):
            probe.Settings.folder = "y"

    def test_one_name_serves_as_static_and_instance_method(self) -> None:
        mixed = probe.Mixed()
        self.assertEqual(mixed.inflate(1), 2)
        self.assertEqual(probe.Mixed.inflate(mixed, 1), "something 1")
        self.assertEqual(probe.Mixed.inflate(None, 1), "nothing 1")
        self.assertIs(probe.Mixed.inflate, probe.Mixed.inflate)
        self.assertEqual(mixed.inflate, mixed.inflate)

    def test_types_without_constructors_say_so(self) -> None:
        for bound in (probe.Shape, probe.Sealed, probe.Settings, probe.IShape):
            with self.subTest(bound.__name__), self.assertRaises(TypeError) as caught:
                bound()
            self.assertEqual(str(caught.exception), "type has no available constructor")

    def test_nested_types_hang_on_their_outer_type(self) -> None:
        face = probe.Cube(2).front()
        self.assertIs(type(face), probe.Cube.Face)
        self.assertEqual(face.number, 1)
        self.assertEqual(probe.Cube.Colour.GREEN, 1)

    def test_an_indexer_alone_reads_writes_and_iterates(self) -> None:
        mixed = probe.Mixed()
        self.assertEqual(list(mixed), [3, 5, 7])
        mixed[1] = 6
        self.assertEqual(mixed[1], 6)
        with self.assertRaisesRegex(IndexError, "list index out of range"):
            mixed[3]
        with self.assertRaisesRegex(ValueError, "elements removing not supported"):
            del mixed[0]
        self.assertRaises(TypeError, len, mixed)


if __name__ == "__main__":
    unittest.main()
