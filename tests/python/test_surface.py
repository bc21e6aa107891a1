"""The types that are there: that they are those of the list, and what each of them does."""

from __future__ import annotations

import io
import math
import struct
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from drawings import EXAMPLES
from korvan import cad
from korvan.cad import CodePages, FileFormat, MatrixOrder, MifCodePages, VectorizationMethod
from korvan.cad.annotations import AnnotationDirection, AnnotationEntityBuilder, IAnnotateable
from korvan.cad.fileformats import FileFormatFamily, FileFormatInfo, SupportedFileFormats
from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cad.cadobjects import Cad2DPoint, Cad3DPoint, CadCircle, CadLwPolyline, CadText
from korvan.cad.fileformats.cad.cadtables import CadLayerTable
from korvan.cad.fileformats.cad.cadobjects.hatch import CadHatch
from korvan.cad.imageoptions import DwfOptions, UnitType
from korvan.cad.measurement import IMeasurableEntity
from korvan.cad.primitives import Point2D, Point3D
from korvan.cad.timeprovision import TimeProvisionType
from korvan.cad.watermarkguard import WatermarkingStatus

ROOT = Path(__file__).resolve().parents[2]
CATALOGUE = ROOT.parent / "shared" / "catalogue.tsv"


def compare(table: Path) -> tuple[int, str]:
    done = subprocess.run(
        [sys.executable, str(ROOT / "tools" / "catalogue.py"), str(table), "--module", "korvan.cad"],
        capture_output=True, text=True, check=False)
    return done.returncode, done.stdout + done.stderr


class Catalogue(unittest.TestCase):
    @unittest.skipUnless(CATALOGUE.exists(), "there is no shared/catalogue.tsv beside the checkout")
    def test_no_type_is_beyond_the_list_or_of_another_kind(self) -> None:
        code, output = compare(CATALOGUE)
        self.assertEqual(code, 0, output)

    def test_what_is_extra_missing_or_wrong_is_named(self) -> None:
        rows = ["module\tkind\tname\tenum_kind", "korvan.cad\tclass\tImage\t", "korvan.cad\tstruct\tLoadOptions\t",
                "korvan.cad\tenum\tInterpolationMode\tIntFlag", "korvan.cad.nowhere\tclass\tNothing\t"]
        with tempfile.TemporaryDirectory() as folder:
            table = Path(folder, "list.tsv")
            table.write_text("\n".join(rows) + "\n", encoding="utf-8")
            code, output = compare(table)
        self.assertEqual(code, 1)
        for line in ("wrong: LoadOptions (class, not struct)", "wrong: InterpolationMode (IntEnum, not IntFlag)",
                     "extra: Color\n", "     1        1"):
            self.assertIn(line, output)


def reloaded(drawing: CadImage) -> CadImage:
    """The drawing after a save and a load."""
    content = io.BytesIO()
    drawing.save(content)
    content.seek(0)
    return CadImage._cast_to(cad.Image.load(content)).value


class Geometry(unittest.TestCase):
    def test_a_matrix_puts_maps_before_or_after_another(self) -> None:
        rows = [  # each takes (1, 1) to the place on the right
            (lambda m: (m.scale(2.0, 3.0), m.translate(10.0, 0.0)), (22.0, 3.0)),
            (lambda m: (m.scale(2.0, 3.0), m.translate(10.0, 0.0, MatrixOrder.APPEND)), (12.0, 3.0)),
            (lambda m: m.rotate_at(90.0, cad.PointF(1.0, 0.0)), (0.0, 0.0)),
            (lambda m: m.shear(0.5, 0.0), (1.5, 1.0)),
        ]
        for change, expected in rows:
            matrix = cad.Matrix()
            change(matrix)
            place = matrix.transform_points([cad.PointF(1.0, 1.0)])[0]
            self.assertAlmostEqual(place.x, expected[0], 5)
            self.assertAlmostEqual(place.y, expected[1], 5)
            matrix.invert()
            back = matrix.transform_points([place])[0]
            self.assertAlmostEqual(back.x, 1.0, 5)

    def test_a_matrix_is_made_of_numbers_or_of_corners(self) -> None:
        corners = [cad.PointF(1.0, 1.0), cad.PointF(3.0, 1.0), cad.PointF(1.0, 4.0)]
        matrix = cad.Matrix(cad.RectangleF(0.0, 0.0, 2.0, 3.0), corners)
        self.assertEqual(list(matrix.elements), [1.0, 0.0, 0.0, 1.0, 1.0, 1.0])
        self.assertEqual(cad.Matrix(1.0, 0.0, 0.0, 1.0, 1.0, 1.0), matrix)
        whole = cad.Matrix(cad.Rectangle(0, 0, 2, 2), [cad.Point(0, 0), cad.Point(4, 0), cad.Point(0, 2)])
        self.assertEqual(list(whole.get_elements()), [2.0, 0.0, 0.0, 1.0, 0.0, 0.0])
        with self.assertRaisesRegex(RuntimeError, "DataMissmatchError.*three corners"):
            cad.Matrix(cad.RectangleF(0.0, 0.0, 2.0, 3.0), corners[:2])
        with self.assertRaisesRegex(RuntimeError, "no inverse"):
            cad.Matrix(1.0, 2.0, 2.0, 4.0, 0.0, 0.0).invert()

    def test_rectangles_grow_and_meet_as_values_and_in_place(self) -> None:
        for kind, one in ((cad.Rectangle, int), (cad.RectangleF, float)):
            rect = kind(*map(one, (10, 10, 4, 6)))
            larger = kind.inflate(rect, one(1), one(2))
            self.assertEqual((rect.x, larger.x, larger.height), (10, 9, 10))
            rect.inflate(one(1), one(2))
            self.assertEqual(rect, larger)
            shared = kind.intersect(rect, kind(*map(one, (0, 0, 10, 10))))
            self.assertEqual((shared.width, shared.height), (1, 2))
            rect.intersect(kind(*map(one, (100, 100, 1, 1))))
            self.assertTrue(rect.is_empty)

    def test_vectors_have_parts_by_place(self) -> None:
        self.assertEqual(list(cad.Vector3F(1.0, 2.0, 3.0)), [1.0, 2.0, 3.0])
        self.assertEqual(cad.Vector4F(1.0, 2.0, 3.0, 4.0)[3], 4.0)
        for vector, outside in ((cad.Vector3F(0.0, 0.0, 0.0), 3), (cad.Vector4F(0.0, 0.0, 0.0, 0.0), 4)):
            with self.assertRaises(IndexError):
                vector[outside]
        x, y = cad.Vector3F(1.0, 0.0, 0.0), cad.Vector3F(0.0, 1.0, 0.0)
        self.assertEqual(cad.Vector3F.cross(x, y), cad.Vector3F(0.0, 0.0, 1.0))
        self.assertEqual(cad.Vector4F(2.0, 4.0, 6.0, 2.0).to_vector_3f(), cad.Vector3F(1.0, 2.0, 3.0))

    def test_points_measure_from_the_type_and_from_one_of_them(self) -> None:
        a, b = Point3D(0.0, 0.0, 0.0), Point3D(2.0, 3.0, 6.0)
        self.assertEqual((Point3D.distance(a, b), b.distance(a)), (7.0, 7.0))
        self.assertEqual(Point2D(0.0, 0.0).distance(Point2D(3.0, 4.0)), 5.0)
        self.assertEqual(a.between(b, 0.5), Point3D(1.0, 1.5, 3.0))
        flat = Point2D(3.0, 4.0)
        self.assertEqual((b.distance(Point2D(2.0, 0.0)), Point3D.distance(flat, Point2D(0.0, 0.0))), (3.0, 5.0))
        self.assertNotEqual(Point3D(3.0, 4.0, 0.0), flat)
        self.assertNotEqual(flat, Point3D(3.0, 4.0, 0.0))

    def test_ranges_hold_both_ends(self) -> None:
        pages = cad.IntRange(3, 5)
        self.assertEqual((pages.count, list(pages.to_array())), (3, [3, 4, 5]))
        self.assertEqual(pages.intersect(cad.IntRange(5, 9)), cad.IntRange(5))
        self.assertIsNone(pages.intersect(cad.IntRange(6, 9)))
        with self.assertRaisesRegex(RuntimeError, "cannot end with"):
            cad.IntRange(2, 1)


class Collections(unittest.TestCase):
    def test_a_table_is_a_list_that_is_also_asked_by_name(self) -> None:
        drawing = CadImage()
        layer = CadLayerTable()
        layer.name = "Walls"
        drawing.layers.append(layer)
        self.assertEqual([one.name for one in drawing.layers], ["0", "Walls"])
        self.assertEqual((len(drawing.layers), drawing.layers[1], drawing.layers[-1].name), (2, layer, "Walls"))
        self.assertEqual(drawing.layers.find("walls"), layer)
        self.assertTrue(cad.NonGenericList._is_assignable(drawing.layers))
        with self.assertRaisesRegex(RuntimeError, "takes objects of type CadLayerTable, not CadCircle"):
            drawing.layers.append(CadCircle())
        drawing.layers.remove(layer)
        self.assertIsNone(drawing.layers.find("Walls"))

    def test_a_dictionary_is_asked_by_key_and_walked_by_value(self) -> None:
        drawing = CadImage()
        self.assertEqual([one.layout_name for one in drawing.layouts], list(drawing.layouts.names))
        self.assertEqual(len(drawing.layouts), len(drawing.layouts.keys))
        found: list[object] = []
        self.assertTrue(drawing.layouts.try_get_value("model", found))
        self.assertEqual(found[0].layout_name, "Model")
        self.assertFalse(drawing.layouts.try_get_value("nothing", found))
        with self.assertRaisesRegex(RuntimeError, "rename it first"):
            drawing.layouts.set("Other", drawing.layouts.find("Model"))

    def test_plain_ones_hold_anything(self) -> None:
        items = cad.NonGenericList()
        items.extend([1, "two", 3.5])
        self.assertEqual((list(items), items.index("two")), ([1, "two", 3.5], 1))
        entries = cad.NonGenericDictionary()
        entries.set("b", 2)
        entries.set("a", cad.Point(1, 2))
        self.assertEqual((list(entries.keys), list(entries)), (["b", "a"], [2, cad.Point(1, 2)]))
        self.assertTrue(entries.remove_key("b"))
        self.assertFalse(entries.contains_key("b"))


class Texts(unittest.TestCase):
    def test_characters_outside_of_a_code_page_are_sequences(self) -> None:
        helper = cad.CodePagesConvertHelper
        for text, page, written in (("é", CodePages.ENGLISH, b"\xe9"), ("Ж", CodePages.ENGLISH, b"\\U+0416"),
                                    ("😀", CodePages.GREEK, b"\\U+D83D\\U+DE00"),
                                    ("Ж", CodePages.CYRILLIC, b"\xc6")):
            self.assertEqual(bytes(helper.encode(text, page)), written)
            self.assertEqual(helper.decode(written, page), text)
        self.assertEqual(helper.from_name("ansi_932"), CodePages.JAPANESE)
        self.assertEqual(helper.to_name(CodePages.JAPANESE), "ANSI_932")
        buffer = cad.CifReplacingEncoderFallback().create_fallback_buffer()
        self.assertTrue(buffer.fallback("Ж", 0))
        self.assertEqual("".join(buffer.get_next_char() for _ in range(buffer.remaining)), "\\U+0416")

    def test_double_bytes_are_read_in_their_code_page(self) -> None:
        self.assertEqual(cad.MifCodePageDecoder().decode("a\\M+182A0\\M+9XYZW"), "aあ\\M+9XYZW")
        self.assertEqual(cad.MifCodePageDecoder(MifCodePages.TRAD_CHINESE).decode("\\M+1A440"), "一")

    def test_a_drawing_is_read_with_the_page_and_the_repairs_asked_for(self) -> None:
        def text_of(value: str, **settings: object) -> str:
            tags = ["0", "SECTION", "2", "ENTITIES", "0", "TEXT", "8", "0", "10", "0", "20", "0", "40", "1",
                    "1", value, "0", "ENDSEC", "0", "EOF"]
            options = cad.LoadOptions()
            for name, setting in settings.items():
                setattr(options, name, setting)
            content = io.BytesIO("\n".join(tags).encode("ascii"))
            drawing = CadImage._cast_to(cad.Image.load(content, options)).value
            return CadText._cast_to(drawing.entities[0]).value.default_value

        rows = [  # as it stands, as it is repaired
            ("\\u+0416", "\\u+0416", "Ж"),
            ("\\\\U+0416x", "\\Жx", "Жx"),
            ("\\U+E9 x", "\\U+E9 x", "é x"),
            ("\\M+82A0", "\\M+82A0", "あ"),
        ]
        for value, kept, repaired in rows:
            with self.subTest(value):
                self.assertEqual(text_of(value), kept)
                self.assertEqual(text_of(value, recover_malformed_cif_mif=True,
                                         specified_mif_encoding=MifCodePages.JAPANESE), repaired)
        self.assertEqual(text_of("\\M+1A440", specified_mif_encoding=MifCodePages.TRAD_CHINESE), "一")


class Formats(unittest.TestCase):
    def test_what_is_supported_is_what_readers_and_writers_do(self) -> None:
        self.assertFalse(hasattr(cad.fileformats, "Input"))
        self.assertTrue(SupportedFileFormats.Input.contains(FileFormat.DXF_CAD_R2000))
        self.assertFalse(SupportedFileFormats.Input.contains(FileFormat.DRACO))
        self.assertIn(".pdf", SupportedFileFormats.Output.extensions)
        self.assertIn(".dwg", SupportedFileFormats.Output.extensions)
        self.assertNotIn(".dwf", SupportedFileFormats.Output.extensions)
        for info in SupportedFileFormats.Output.formats:
            self.assertTrue(info.can_save, info)

    def test_a_format_tells_names_and_family(self) -> None:
        info = FileFormatInfo.get(FileFormat.PDF)
        self.assertEqual((info.family, list(info.extensions)), (FileFormatFamily.PAGE, [".pdf"]))
        self.assertIn(FileFormat.IFC4, [one.format for one in FileFormatInfo.find_by_extension("IFC")])
        with self.assertRaisesRegex(RuntimeError, "It has to be a format of files"):
            FileFormatInfo.get(FileFormat.UNDEFINED)

    def test_a_format_without_writer_is_refused_by_name(self) -> None:
        drawing = CadImage()
        self.assertFalse(drawing.can_save(DwfOptions()))
        with self.assertRaisesRegex(RuntimeError, "DwfOptions: it is not written as DWF.*PdfOptions"):
            drawing.save(io.BytesIO(), DwfOptions())

    def test_the_build_tells_its_version(self) -> None:
        self.assertRegex(cad.BuildVersionInfo.product_version, r"^\d+\.\d+\.\d+$")
        self.assertTrue(cad.BuildVersionInfo.assembly_version.startswith(cad.BuildVersionInfo.product_version))
        self.assertIn(".NET", cad.BuildVersionInfo.runtime)


class Entities(unittest.TestCase):
    def test_lengths_and_areas_are_those_of_geometry(self) -> None:
        circle = CadCircle()
        circle.radius = 2.0
        ring = CadLwPolyline()  # a square of side 2 whose last side is a half circle outwards
        for x, y in ((0.0, 0.0), (2.0, 0.0), (2.0, 2.0), (0.0, 2.0)):
            ring.coordinates.append(Cad2DPoint(x, y))
        ring.bulges.extend([0.0, 0.0, 0.0, 1.0])
        ring.flag = type(ring.flag).CLOSED
        for entity, length, area in ((circle, 4 * math.pi, 4 * math.pi), (ring, 6 + math.pi, 4 + math.pi / 2)):
            measured = IMeasurableEntity._cast_to(entity).value
            self.assertAlmostEqual(measured.get_length(), length)
            self.assertAlmostEqual(measured.get_area(), area)
        ring.flag = type(ring.flag).NONE
        self.assertIsNone(ring.get_area())

    def test_what_is_thick_has_faces(self) -> None:
        drawing = CadImage()
        circle = CadCircle()
        (circle.radius, circle.thickness, circle.color_id) = (2.0, 3.0, 1)
        drawing.add_entity(circle)
        flat = CadCircle()
        flat.radius = 1.0
        drawing.add_entity(flat)
        drum, = drawing.get_entities_3d()
        self.assertEqual((drum.type_name_text, drum.color.r, drum.size_z), ("CIRCLE", 255, 3.0))
        self.assertAlmostEqual(drum.get_area() / (2 * math.pi * 4 + 4 * math.pi * 3), 1, 2)
        self.assertTrue(drum.contains_point(drum.center))
        self.assertFalse(drum.contains_point(Point3D(9.0, 0.0, 0.0)))
        self.assertLess(max(drum.triangles), len(drum.vertices))

    def test_annotations_are_drawn_saved_and_found_again(self) -> None:
        drawing = CadImage()
        circle = CadCircle()
        (circle.center_point, circle.radius) = (Cad3DPoint(10.0, 20.0, 0.0), 2.0)
        drawing.add_entity(circle)
        drawing = reloaded(drawing)  # now the circle has a handle
        target = IAnnotateable._cast_to(drawing.entities[0]).value
        note = (AnnotationEntityBuilder("Ø 4 {checked}\nby hand").set_target(target).set_text_height(1.5)
                .set_direction(AnnotationDirection.LEFT | AnnotationDirection.BELOW).build())
        drawing.annotation_service.add(note)
        self.assertEqual(len(drawing.entities), 3)
        with self.assertRaisesRegex(RuntimeError, "already belongs to a drawing"):
            drawing.annotation_service.add(note)
        again = reloaded(drawing)
        found, = again.annotation_service.get_annotations()
        self.assertEqual((found.text, found.unique_id, found.target_id),
                         ("Ø 4 {checked}\nby hand", note.unique_id, target.unique_id))
        self.assertEqual((found.point, found.direction), (Point3D(10.0, 20.0, 0.0), note.direction))
        self.assertTrue(found.text_point.x < 10 and found.text_point.y < 20)
        self.assertEqual(len(again.annotation_service.get_annotations_of(again.entities[0])), 1)
        self.assertTrue(again.annotation_service.remove(found))
        self.assertEqual((again.annotation_service.count, len(again.entities)), (0, 1))
        with self.assertRaisesRegex(RuntimeError, "has no target and no point"):
            AnnotationEntityBuilder("x").build()


def picture(rows: list[str]) -> io.BytesIO:
    """A bitmap of 254 pixels an inch, so that a pixel is 0.1 mm; # is black."""
    stride = (len(rows[0]) * 3 + 3) // 4 * 4
    lines = [b"".join(b"\0\0\0" if cell == "#" else b"\xff\xff\xff" for cell in row).ljust(stride, b"\0")
             for row in reversed(rows)]
    header = struct.pack("<2sIHHIIiiHHIIiiII", b"BM", 54 + stride * len(rows), 0, 0, 54,
                         40, len(rows[0]), len(rows), 1, 24, 0, stride * len(rows), 10_000, 10_000, 0, 0)
    return io.BytesIO(header + b"".join(lines))


class Tracing(unittest.TestCase):
    def trace(self, rows: list[str], method: VectorizationMethod, **settings: object) -> CadImage:
        options = cad.LoadOptions()
        options.vectorization_options = cad.VectorizationOptions()
        options.vectorization_options.method = method
        for name, value in settings.items():
            part, _, setting = name.partition("__")
            setattr(getattr(options.vectorization_options, part), setting, value)
        return CadImage._cast_to(cad.Image.load(picture(rows), options)).value

    def test_outlines_run_around_what_is_dark_and_around_its_holes(self) -> None:
        ring = ["........", ".######.", ".#....#.", ".#....#.", ".######.", "......#.", "........"]
        drawing = self.trace(ring, VectorizationMethod.CONTOUR, contour_options__tolerance=0.0,
                             contour_options__fill=True)
        outer, hole, hatch = drawing.entities
        measured = [IMeasurableEntity._cast_to(one).value.get_area() for one in (outer, hole)]
        self.assertAlmostEqual(measured[0], 0.25)  # 24 pixels of the ring and its hole, and the one below
        self.assertAlmostEqual(measured[1], 0.08)
        self.assertEqual(len(CadHatch._cast_to(hatch).value.boundary_paths), 2)
        corners = [(round(p.x, 6), round(p.y, 6)) for p in CadLwPolyline._cast_to(hole).value.coordinates]
        self.assertEqual(set(corners), {(0.2, 0.3), (0.2, 0.5), (0.6, 0.3), (0.6, 0.5)})
        self.assertEqual(drawing.unit_type, UnitType.MILLIMETER)

    def test_specks_are_left_out_and_corners_join(self) -> None:
        steps = ["#....", ".#...", "..#..", "....#"]
        for area, count in ((0, 2), (2, 1)):
            drawing = self.trace(steps, VectorizationMethod.CONTOUR, contour_options__minimum_area=area)
            self.assertEqual(len(drawing.entities), count)

    def test_strokes_become_lines_with_their_weight(self) -> None:
        bar = ["." * 60] * 5 + ["....." + "#" * 50 + "....."] * 5 + ["." * 60] * 5
        line, = self.trace(bar, VectorizationMethod.PAPER_TO_CAD).entities
        length = IMeasurableEntity._cast_to(line).value.get_length()
        self.assertAlmostEqual(length, 5.0, delta=0.7)  # thinning takes from the ends
        self.assertEqual(line.line_weight, 50)
        self.assertEqual({round(p.y, 2) for p in CadLwPolyline._cast_to(line).value.coordinates}, {0.75})

    def test_a_drawing_stays_a_drawing_and_a_picture_without_a_method_a_picture(self) -> None:
        options = cad.LoadOptions()
        options.vectorization_options = cad.VectorizationOptions()
        self.assertTrue(CadImage._is_assignable(cad.Image.load(str(EXAMPLES / "site_plan.dxf"), options)))
        options.vectorization_options.method = VectorizationMethod.NONE
        self.assertTrue(cad.RasterImage._is_assignable(cad.Image.load(picture(["#."]), options)))
        with self.assertRaisesRegex(RuntimeError, "1 to 255"):
            options.vectorization_options.threshold = 0


class Watermarks(unittest.TestCase):
    def test_a_mark_survives_saving_and_opens_to_its_password_alone(self) -> None:
        drawing = CadImage()
        guard = drawing.watermark_guard_service
        self.assertEqual(guard.validate("Müller & Co", "secret"), WatermarkingStatus.NONE)
        guard.embed("Müller & Co", "secret", TimeProvisionType.UTC)
        guard = reloaded(drawing).watermark_guard_service
        found = WatermarkingStatus.FOUND
        self.assertEqual(guard.status, found)
        self.assertEqual(guard.validate("Müller & Co", "secret"), found | WatermarkingStatus.VALID)
        self.assertEqual(guard.validate("Meier", "secret"), found | WatermarkingStatus.TEXT_DIFFERS)
        self.assertEqual(guard.validate("Müller & Co", "guess"), found | WatermarkingStatus.WRONG_PASSWORD)
        self.assertEqual((guard.get_text("secret"), guard.get_text("guess")), ("Müller & Co", None))
        self.assertGreater(guard.get_time("secret").year, 2024)
        self.assertTrue(guard.remove())
        self.assertEqual(guard.status, WatermarkingStatus.NONE)

    def test_a_copy_that_was_changed_is_noticed_and_not_needed(self) -> None:
        drawing = CadImage()
        drawing.watermark_guard_service.embed("mine", "secret")
        data = drawing.layers[0].xdata_container.find("KORVAN_WATERMARK").data
        data[0].value = "00" + data[0].value[2:]
        status = drawing.watermark_guard_service.validate("mine", "secret")
        self.assertEqual(status, WatermarkingStatus.FOUND | WatermarkingStatus.DAMAGED | WatermarkingStatus.VALID)
        self.assertIsNone(drawing.watermark_guard_service.get_time("secret"))
        with self.assertRaisesRegex(RuntimeError, "1 to 1000 bytes"):
            drawing.watermark_guard_service.embed("x" * 1001, "secret")


if __name__ == "__main__":
    unittest.main()
