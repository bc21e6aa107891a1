"""The road of an image: load, look, set options, save, and what goes wrong on the way."""

from __future__ import annotations

import io
import os
import tempfile
import unittest
from collections.abc import Iterator
from contextlib import ExitStack
from pathlib import Path

from drawings import EXAMPLES, Png
from file_objects import SOURCES, TARGETS
from korvan import cad
from korvan.cad.fileformats.cad import CadImage, DxfImage
from korvan.cad.fileformats.cad.cadobjects import CadLine
from korvan.cad.imageoptions import (
    CadRasterizationOptions,
    ImageOptionsBase,
    PdfOptions,
    PngOptions,
)

PLAN = str(EXAMPLES / "floor_plan.dxf")


def rasterization(width: float = 400.0, height: float = 300.0) -> CadRasterizationOptions:
    options = CadRasterizationOptions()
    options.page_width = width
    options.page_height = height
    return options


def stroke_and_face() -> cad.Image:
    """A drawing with something for each format: some hold strokes, some hold faces alone."""
    corners = ((0, 0, 0), (10, 0, 0), (10, 5, 3), (0, 5, 3))
    values = {10 * axis + number: corner[axis - 1] for number, corner in enumerate(corners) for axis in (1, 2, 3)}
    face = "\n".join(f"{code}\n{value}" for code, value in values.items())
    text = f"0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n10\n0\n20\n0\n11\n9\n21\n5\n0\n3DFACE\n8\n0\n{face}\n"
    return cad.Image.load(io.BytesIO(f"{text}0\nENDSEC\n0\nEOF\n".encode()))


class Loading(unittest.TestCase):
    def test_a_drawing_is_an_image_and_is_narrowed_by_a_cast(self) -> None:
        image = cad.Image.load(PLAN)
        self.assertIs(type(image), cad.Image)
        self.assertNotIsInstance(image, CadImage)
        self.assertTrue(CadImage._is_assignable(image))
        for narrowed in (CadImage._cast_to(image), DxfImage._cast_to(image)):
            self.assertEqual(narrowed.status, 1)
            self.assertEqual(narrowed.value, image)
        self.assertFalse(cad.RasterImage._cast_to(image) if hasattr(cad, "RasterImage") else False)
        self.assertGreater(image.width, 0)
        self.assertGreater(image.height, 0)

    def test_streams_and_keywords_reach_their_forms(self) -> None:
        with open(PLAN, "rb") as file:
            by_file = cad.Image.load(file)
        content = io.BytesIO(Path(PLAN).read_bytes())
        by_name = cad.Image.load(stream=content, file_name="a.dxf", load_options=cad.LoadOptions())
        self.assertEqual((by_file.width, by_file.height), (by_name.width, by_name.height))
        self.assertEqual(cad.Image.get_file_format(PLAN), cad.Image.get_file_format(io.BytesIO(
            Path(PLAN).read_bytes())))
        self.assertTrue(cad.Image.can_load(PLAN))
        self.assertFalse(cad.Image.can_load(__file__))

    def test_every_kind_of_file_object_is_loaded(self) -> None:
        content = Path(PLAN).read_bytes()
        expected = cad.Image.load(PLAN)
        for name, source in SOURCES.items():
            with self.subTest(name), ExitStack() as stack:
                image = cad.Image.load(source(content, stack))
                self.assertEqual((image.width, image.height), (expected.width, expected.height))

    def test_misuse_is_refused_before_anything_crosses(self) -> None:
        with self.assertRaises(TypeError) as caught:
            cad.Image.load("x", 1)
        self.assertEqual(len(caught.exception.args[0]), 5)
        self.assertEqual(caught.exception.args[0][0], "can't build LoadOptions value from 'int'")
        with self.assertRaisesRegex(TypeError, "type has no available constructor"):
            cad.Image()
        with self.assertRaisesRegex(TypeError, "numeric argument expected, got 'int'"):
            CadRasterizationOptions().page_width = 1600
        with self.assertRaises(TypeError) as caught:
            cad.Image.load(PLAN).save(1, 2)
        self.assertEqual(len(caught.exception.args[0]), 6)

    def test_a_disposed_image_says_so(self) -> None:
        with cad.Image.load(PLAN) as image:
            self.assertFalse(image.disposed)
        self.assertTrue(image.disposed)
        with self.assertRaisesRegex(RuntimeError, r"Proxy error\(ObjectDisposedException\)"):
            image.save(io.BytesIO(), PdfOptions())


class BadInput(unittest.TestCase):
    """Each bad file gives one clear error, soon and without much memory."""

    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.plan = Path(PLAN).read_text()

    def entity(self, *pairs: object) -> str:
        body = "\n".join(str(pair) for pair in pairs)
        return f"0\nSECTION\n2\nENTITIES\n{body}\n0\nENDSEC\n0\nEOF\n"

    def rows(self) -> list[tuple[str, str | bytes, str]]:
        hatch = self.entity(0, "HATCH", 8, 0, 2, "SOLID", 70, 1, 91, 2_000_000_000, 92, 2, 93, 4)
        spline = self.entity(0, "SPLINE", 8, 0, 70, 8, 71, 3, 72, 2_000_000_000, 73, 4, 40, 0.0)
        return [
            ("empty", "", "empty"),
            ("no drawing", "hello\nworld\n" * 20, "no known format"),
            ("binary", bytes(range(256)) * 8, "no known format"),
            ("IGES", "\n".join(f"{'':72}S{number:7}" for number in range(1, 9)), "IgesImageException"),
            ("cut", self.plan[: len(self.plan) // 2], "line"),
            ("code", self.plan.replace("\n  0\nENDSEC", "\nxx\nENDSEC", 1), "'xx'"),
            ("no end", "0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n10\n1.0\n", "ENTITIES"),
            ("2 billion paths", hatch, "2000000000"),
            ("2 billion knots", spline, "2000000000"),
        ]

    def test_each_is_named_with_its_place_and_cause(self) -> None:
        for name, content, cause in self.rows():
            path = self.folder / f"{name}.dxf"
            path.write_bytes(content if isinstance(content, bytes) else content.encode())
            with self.subTest(name), self.assertRaises(RuntimeError) as caught:
                cad.Image.load(str(path))
            text = str(caught.exception)
            self.assertTrue(text.startswith("Proxy error("), text)
            self.assertIn(path.name, text)
            self.assertIn(cause, text)

    def test_missing_files_and_folders_are_told_apart(self) -> None:
        with self.assertRaisesRegex(RuntimeError, r"Proxy error\(.*'nothing.dxf' does not exist"):
            cad.Image.load("nothing.dxf")
        with self.assertRaisesRegex(RuntimeError, "is a folder"):
            cad.Image.load(str(self.folder))

    def check_export_fails(self, text: str, cause: str) -> None:
        path, output = self.folder / "bad.dxf", self.folder / "bad.pdf"
        path.write_text(text)
        with self.assertRaises(RuntimeError) as caught:
            cad.Image.load(str(path)).save(str(output), PdfOptions())
        self.assertIn(cause, str(caught.exception))
        self.assertEqual(os.listdir(self.folder), ["bad.dxf"], "no half-written output stays")

    def test_a_block_in_itself_is_left_out_by_name(self) -> None:
        path, options = self.folder / "loop.dxf", PdfOptions()
        path.write_text(
            "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n8\n0\n2\nLOOP\n10\n0\n20\n0\n0\nINSERT\n8\n0\n2\nLOOP\n"
            "10\n0\n20\n0\n0\nENDBLK\n8\n0\n0\nENDSEC\n"
            + self.entity(0, "INSERT", 8, 0, 2, "LOOP", 10, 0, 20, 0)
        )
        cad.Image.load(str(path)).save(str(self.folder / "loop.pdf"), options)
        self.assertIn("LOOP", " ".join(failure.message for failure in options.render_result.failures))

    def test_infinite_extents_do_not_render(self) -> None:
        self.check_export_fails(
            self.entity(0, "LINE", 8, 0, 10, "1e308", 20, "-1e308", 11, "-1e308", 21, "1e308"),
            "extents",
        )


class Saving(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def test_an_output_is_whole_or_absent(self) -> None:
        image = cad.Image.load(PLAN)
        with self.assertRaisesRegex(RuntimeError, "Proxy error.*does not exist"):
            image.save(str(self.folder / "missing" / "x.pdf"), PdfOptions())
        target = self.folder / "x.png"
        target.write_text("before")
        huge = PngOptions()
        huge.vector_rasterization_options = rasterization(10_000_000.0, 10_000_000.0)
        with self.assertRaises(RuntimeError):
            image.save(str(target), huge)
        self.assertEqual(target.read_text(), "before")
        self.assertEqual(os.listdir(self.folder), ["x.png"])

    def formats(self, image: cad.Image) -> Iterator[tuple[str, ImageOptionsBase]]:
        """Whatever the image can be saved as."""
        for name, kind in vars(cad.imageoptions).items():
            if isinstance(kind, type) and issubclass(kind, ImageOptionsBase) and name.endswith("Options"):
                options = kind()
                if image.can_save(options):
                    if name.removesuffix("Options") not in ("Dwg", "Dxf", "Glb", "Gltf", "Obj", "Stl"):  # no pages
                        options.vector_rasterization_options = rasterization()
                    yield name, options

    def test_a_stream_gets_the_same_bytes_as_a_file_in_every_format(self) -> None:
        image, names = stroke_and_face(), []
        for name, options in self.formats(image):
            names.append(name)
            by_path = self.folder / name
            for target in ("io.BytesIO", "gzip", "forward only, short writes"):
                with self.subTest(name, target=target), ExitStack() as stack:
                    image.save(str(by_path), options)
                    expected = by_path.read_bytes()
                    file, taken = TARGETS[target](stack)
                    image.save(file, options)
                    content = taken()
                    image.save(str(by_path), options)
                    is_stable = by_path.read_bytes() == expected  # some carry their time
                    self.assertEqual(len(content), len(expected))
                    self.assertTrue(content == expected or not is_stable)
            if cad.Image.can_load(io.BytesIO(expected)):
                with self.subTest(name, again=True):
                    again = cad.Image.load(io.BytesIO(expected))
                    by_name = cad.Image.load(str(by_path))
                    self.assertEqual((again.width, again.height), (by_name.width, by_name.height))
        self.assertLessEqual({"DxfOptions", "PdfOptions", "PngOptions", "SvgOptions"}, set(names))

    def test_options_change_the_picture(self) -> None:
        image = cad.Image.load(PLAN)

        def png(options: CadRasterizationOptions) -> Png:
            wrapped = PngOptions()
            wrapped.vector_rasterization_options = options
            stream = io.BytesIO()
            image.save(stream, wrapped)
            return Png(stream.getvalue())

        plain = png(rasterization())
        self.assertEqual((plain.width, plain.height), (400, 300))
        self.assertGreater(plain.coverage(), 0.01)
        dark = rasterization()
        dark.background_color = cad.Color.from_argb(10, 20, 30)
        self.assertEqual(png(dark).pixel(0, 0), (10, 20, 30))
        bordered = rasterization()
        bordered.border_x = bordered.border_y = 100.0
        self.assertLess(png(bordered).coverage(), plain.coverage())

    def test_a_changed_entity_is_drawn_and_saved_changed(self) -> None:
        image = cad.Image.load(PLAN)
        drawing = CadImage._cast_to(image).value
        line = next(e for e in drawing.entities if CadLine._is_assignable(e))
        line = CadLine._cast_to(line).value
        line.first_point.x = 1234.5
        count = len(drawing.entities)
        saved = self.folder / "changed.dxf"
        image.save(str(saved))
        again = CadImage._cast_to(cad.Image.load(str(saved))).value
        self.assertEqual(len(again.entities), count)
        starts = [CadLine._cast_to(e).value.first_point.x
                  for e in again.entities if CadLine._is_assignable(e)]
        self.assertIn(1234.5, starts)

    def test_every_options_class_says_whether_it_can_save(self) -> None:
        image = cad.Image.load(PLAN)
        for name in ("PdfOptions", "SvgOptions", "PngOptions", "DxfOptions"):
            options: ImageOptionsBase = getattr(cad.imageoptions, name)()
            self.assertTrue(image.can_save(options), name)


if __name__ == "__main__":
    unittest.main()
