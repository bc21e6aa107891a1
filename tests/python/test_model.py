"""Drawings as objects: what is refused where it is set, what is found by name, what objects say of themselves."""

from __future__ import annotations

import io
import unittest

from drawings import EXAMPLES
from korvan import cad
from korvan.cad import DataStreamSupporter, FileFormat, InterpolationMode, Point, PointF, Size, SizeF
from korvan.cad.cadexceptions import FrameworkException
from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cad.cadobjects import CadInsertObject, CadLine, CadLwPolyline
from korvan.cad.fileformats.cgm import CgmImage
from korvan.cad.fileformats.ifc import IfcImage
from korvan.cad.imageoptions import CadRasterizationOptions, PdfOptions, PngOptions, RenderErrorCode

PLAN = str(EXAMPLES / "site_plan.dxf")


class Model(unittest.TestCase):
    def setUp(self) -> None:
        self.image = cad.Image.load(PLAN)
        self.drawing = CadImage._cast_to(self.image).value

    def test_lists_refuse_what_a_drawing_cannot_hold(self) -> None:
        entities = self.drawing.entities
        count = len(entities)
        for what, refused, words in (
            ("None", lambda: entities.append(None), "an item of entities must not be None"),
            ("an object", lambda: self.drawing.objects.insert(0, None), "an item of objects must not be None"),
            ("a vertex", lambda: CadLwPolyline().coordinates.append(None), "an item of coordinates must not be None"),
            ("twice", lambda: self.drawing.add_entity(entities[0]), r"in this list already; add a clone\(\)"),
            ("in slices", lambda: entities.extend(entities[:2]), "in this list already"),
            ("elsewhere", lambda: CadImage().add_entity(entities[0]), r"belongs to BLOCK \*Model_Space.*clone\(\)"),
        ):
            with self.subTest(what), self.assertRaisesRegex(RuntimeError, words):
                refused()
        self.assertEqual(len(entities), count)
        entities.reverse()
        entities[0], entities[1] = entities[1], entities[0]
        other = CadImage()
        for entity in entities:
            other.add_entity(entity.clone())
        saved = io.BytesIO()
        other.save(saved)
        again = CadImage._cast_to(cad.Image.load(io.BytesIO(saved.getvalue()))).value
        self.assertEqual([repr(entity) for entity in again.entities], [repr(entity) for entity in entities])
        self.assertEqual(again.entities[0].clone().unique_id, "")

    def test_colours_and_layer_names_are_refused_where_they_are_set(self) -> None:
        entity, layer = self.drawing.entities[0], self.drawing.layers[0]
        with self.assertRaisesRegex(RuntimeError, r"\): color_id cannot be 999\. It has to be 0 to 256\.$"):
            entity.color_id = 999
        with self.assertRaisesRegex(RuntimeError, "color_id cannot be 0"):
            layer.color_id = 0
        for name in ("a<b", "a\nb", "a*"):
            with self.assertRaisesRegex(RuntimeError, "cannot name a layer"):
                entity.layer_name = name
            with self.assertRaisesRegex(RuntimeError, "cannot name a layer"):
                layer.name = name

    def test_objects_are_found_by_name(self) -> None:
        drawing = self.drawing
        for table, name in ((drawing.layers, drawing.layers.names[-1]), (drawing.block_entities, "*Model_Space"),
                            (drawing.layouts, "Model"), (drawing.line_types, drawing.line_types.names[0])):
            with self.subTest(type(table).__name__):
                self.assertIn(name, table)
                self.assertIn(name.lower(), table)
                self.assertIn(table.get(name), table)
                self.assertEqual(table.find(name), table.get(name))
                self.assertNotIn("no such name", table)
                self.assertIsNone(table.find("no such name"))
                with self.assertRaisesRegex(RuntimeError, "called 'no such name'"):
                    table.get("no such name")

    def test_objects_say_what_they_are(self) -> None:
        line = CadLine()
        line.layer_name = "TREE"
        line.second_point.x, line.second_point.y = 10.0, 5.0
        self.assertEqual(repr(line), "LINE on TREE from (0, 0, 0) to (10, 5, 0)")
        self.assertEqual(str(self.drawing.layouts.get("model")), "LAYOUT Model")
        self.assertRegex(repr(self.image),
                         rf"^DxfImage of release AC\d+, {len(self.drawing.entities)} in model space from '{PLAN}'$")
        insert = next(CadInsertObject._cast_to(one).value for one in self.drawing.entities
                      if CadInsertObject._is_assignable(one))
        self.assertRegex(repr(insert), rf"^INSERT on {insert.layer_name} of {insert.name} at ")

    def test_a_disposed_image_refuses_its_parts_as_well(self) -> None:
        self.image.__exit__(None, None, None)
        for part in ("entities", "layers", "layouts", "header", "min_point", "objects", "width"):
            with self.subTest(part), self.assertRaisesRegex(RuntimeError, "DxfImage has been disposed"):
                getattr(self.drawing, part)

        for name, kind, parts in (("gate_valve.cgm", CgmImage, ("file", "width")),
                                  ("garden_house.ifc", IfcImage, ("header", "entities"))):
            image = cad.Image.load(str(EXAMPLES / name))
            image.__exit__(None, None, None)
            for part in parts:
                with self.subTest(name, part=part), self.assertRaisesRegex(RuntimeError, "has been disposed"):
                    getattr(kind._cast_to(image).value, part)

    def test_layers_that_are_not_there_are_told(self) -> None:
        known = self.drawing.layers.names[-1]
        options = PngOptions()
        options.vector_rasterization_options = raster = CadRasterizationOptions()
        raster.layers = [known + "S"]
        with self.assertRaisesRegex(RuntimeError, f'no layer "{known}S"; the nearest .*"{known}"'):
            self.image.save(io.BytesIO(), options)
        raster.layers = [known, "nowhere"]
        self.image.save(io.BytesIO(), options)
        failures = [(one.render_code, one.message) for one in options.render_result.failures]
        missing = [text for code, text in failures if code == RenderErrorCode.LAYER_NOT_FOUND and '"nowhere"' in text]
        self.assertEqual(len(missing), 1)
        raster.layers = [known.lower()]
        self.image.save(io.BytesIO(), options)
        self.assertNotIn(RenderErrorCode.LAYER_NOT_FOUND, [one.render_code for one in options.render_result.failures])

    def test_messages_speak_of_python_names(self) -> None:
        with self.assertRaisesRegex(RuntimeError, r"\): timeout cannot be -5\. It has to be 0 or more\.$"):
            PdfOptions().timeout = -5
        options = PdfOptions()
        options.vector_rasterization_options = raster = CadRasterizationOptions()
        raster.pdf_product_location = "a"
        words = r"PdfOptions\.vector_rasterization_options\.pdf_product_location cannot be honoured"
        with self.assertRaisesRegex(RuntimeError, words):
            self.image.save(io.BytesIO(), options)


class Surface(unittest.TestCase):
    def test_values_convert_to_their_neighbours(self) -> None:
        for value, kind, expected in (
            (Point(1, 2), PointF, PointF(1.0, 2.0)),
            (Point(1, 2), Size, Size(1, 2)),
            (Size(3, 4), SizeF, SizeF(3.0, 4.0)),
            (SizeF(3.5, 4.0), PointF, PointF(3.5, 4.0)),
        ):
            with self.subTest(kind.__name__):
                result = value._cast_from(kind._type_of())
                self.assertEqual((result.status, result.value), (1, expected))
        self.assertEqual(Point(1, 2)._cast_from(FileFormat._type_of()).status, 0)
        with self.assertRaisesRegex(TypeError, r"_cast_from\(\) expects a .Net Type argument, got a int object"):
            Point(1, 2)._cast_from(5)

    def test_forms_and_numbers_that_others_rely_on(self) -> None:
        self.assertEqual(Size(Point(3, 4)), Size(3, 4))
        with self.assertRaises(TypeError) as caught:
            Size(None)
        self.assertEqual(len(caught.exception.args[0]), 2)
        self.assertEqual(InterpolationMode.INVALID, -1)
        self.assertEqual(str(FileFormat(2**63)._as_uni_enum()), str(2**63))
        with self.assertRaises(OverflowError):
            FileFormat(2**64)._as_uni_enum()
        self.assertEqual(FrameworkException("what").message, "what")
        stream = io.BytesIO((EXAMPLES / "site_plan.dxf").read_bytes())
        image = cad.Image.load(stream)
        CadImage._cast_to(image).value.entities.clear()
        DataStreamSupporter._cast_to(image).value.save()
        self.assertEqual(len(CadImage._cast_to(cad.Image.load(io.BytesIO(stream.getvalue()))).value.entities), 0)


if __name__ == "__main__":
    unittest.main()
