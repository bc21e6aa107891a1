"""The formats that a drawing is written in, each read by a program of others."""

from __future__ import annotations

import base64
import io
import re
import tempfile
import unittest
from pathlib import Path

import cgm
from drawings import EXAMPLES, SHARED, Png, needs_tools, tool
from korvan import cad
from korvan.cad import CustomFontFolderOptions
from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cad.cadobjects import (
    Cad2DPoint,
    Cad3DFace,
    Cad3DPoint,
    Cad3DSolid,
    CadCircle,
    CadLine,
    CadLwPolyline,
    CadText,
)
from korvan.cad.fileformats.cgm import CgmFileFormat
from korvan.cad.imageoptions import (
    CadRasterizationOptions,
    CgmOptions,
    EmfOptions,
    GlbOptions,
    GltfOptions,
    Html5Options,
    ImageOptionsBase,
    JpegOptions,
    ObjOptions,
    PdfDigitalSignatureDetailsCore,
    PdfDocumentOptions,
    PdfOptions,
    PngOptions,
    RdOptimizerSettings,
    RenderErrorCode,
    StlOptions,
    SvgOptions,
    WmfOptions,
)
from korvan.cad.imageoptions.svgoptionsparameters import FontStoreType, SvgColorMode

RECORDER = Path(__file__).resolve().parents[1] / "fixtures" / "canvas" / "record.js"
SIZE = (640, 480)


def on_page(options: ImageOptionsBase) -> ImageOptionsBase:
    """The options, on a page of a fixed shape without borders."""
    raster = CadRasterizationOptions()
    (raster.page_width, raster.page_height) = map(float, SIZE)
    options.vector_rasterization_options = raster
    return options


def tones(data: bytes, columns: int = 40, rows: int = 30) -> list[float]:
    """The mean lightness of the cells of a grid laid over a picture."""
    png = Png(data)
    cells = []
    for row in range(rows):
        for column in range(columns):
            total = count = 0
            for y in range(row * png.height // rows, (row + 1) * png.height // rows, 2):
                for x in range(column * png.width // columns, (column + 1) * png.width // columns, 2):
                    total += sum(png.pixel(x, y)[:3])
                    count += 3
            cells.append(total / count)
    return cells


def likeness(a: list[float], b: list[float]) -> float:
    """The correlation of two grids: 1 for the same picture, about 0 for pictures without relation."""
    (mean_a, mean_b) = sum(a) / len(a), sum(b) / len(b)
    product = sum((x - mean_a) * (y - mean_b) for x, y in zip(a, b, strict=True))
    return product / (sum((x - mean_a) ** 2 for x in a) * sum((y - mean_b) ** 2 for y in b)) ** 0.5


class Outputs(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def write(self, name: str, options: ImageOptionsBase, source: Path | CadImage = EXAMPLES / "site_plan.dxf") -> str:
        path = str(self.folder / name)
        image = source if isinstance(source, CadImage) else cad.Image.load(str(source))
        image.save(path, options)
        return path


class Pages(Outputs):
    expected: dict[str, list[float]] = {}

    def assert_looks_as_pixels(self, drawing: str, picture: Path, least: float) -> None:
        if drawing not in self.expected:
            path = self.write("own.png", on_page(PngOptions()), EXAMPLES / drawing)
            self.expected[drawing] = tones(Path(path).read_bytes())
        self.assertGreater(likeness(self.expected[drawing], tones(picture.read_bytes())), least)

    def rendered(self, svg: str) -> Path:
        picture = self.folder / "read.png"
        tool("rsvg-convert", "-w", str(SIZE[0]), "-h", str(SIZE[1]), "-b", "white", "-o", str(picture), svg)
        return picture

    @needs_tools("node", "rsvg-convert")
    def test_a_canvas_page_draws_what_pixels_show(self) -> None:
        for drawing, as_shapes in (("site_plan.dxf", False), ("site_plan.dxf", True), ("floor_plan.dxf", False)):
            options = Html5Options()
            options.text_as_shapes = as_shapes
            page = self.write("page.html", on_page(options), EXAMPLES / drawing)
            svg = str(self.folder / "drawn.svg")
            tool("node", str(RECORDER), page, svg)
            self.assertEqual("<text" in Path(svg).read_text(encoding="utf-8"), not as_shapes)
            self.assert_looks_as_pixels(drawing, self.rendered(svg), 0.95)
            self.assertTrue(options.render_result.is_render_complete)

    def test_a_canvas_is_named_and_can_stand_alone(self) -> None:
        options = Html5Options()
        (options.canvas_tag_id, options.full_html_page) = ("plan-1", False)
        text = Path(self.write("part.html", options)).read_text(encoding="utf-8")
        self.assertTrue(text.startswith('<canvas id="plan-1" '))
        self.assertNotIn("<body>", text)
        options.canvas_tag_id = 'x"><script>'
        with self.assertRaisesRegex(RuntimeError, "ImageSaveException.*no name for a canvas"):
            self.write("part.html", options)

    @needs_tools("emf2svg-conv", "rsvg-convert")
    def test_an_enhanced_metafile_shows_what_pixels_show(self) -> None:
        for drawing in ("site_plan.dxf", "floor_plan.dxf"):
            options = EmfOptions()
            path = self.write("page.emf", on_page(options), EXAMPLES / drawing)
            svg = str(self.folder / "page.svg")
            tool("emf2svg-conv", "-i", path, "-o", svg)
            self.assert_looks_as_pixels(drawing, self.rendered(svg), 0.93)
        self.assertIn("Kitchen", Path(svg).read_text(encoding="utf-8"))

    @needs_tools("wmf2gd")
    def test_a_metafile_of_16_bits_shows_what_pixels_show(self) -> None:
        options = WmfOptions()
        options.text_as_shapes = True  # the reader has few fonts of its own
        # The reader fits what is drawn to its picture: a painted background fills the page.
        on_page(options).vector_rasterization_options.embed_background = True
        path = self.write("page.wmf", options)
        picture = self.folder / "page.png"
        tool("wmf2gd", "-t", "png", "-o", str(picture), path)
        self.assert_looks_as_pixels("site_plan.dxf", picture, 0.85)
        self.assertEqual(options.render_result.render_code, RenderErrorCode.GRADIENT_FLATTENED)

    @needs_tools("rsvg-convert")
    def test_a_graphics_metafile_shows_what_pixels_show(self) -> None:
        for drawing in ("site_plan.dxf", "floor_plan.dxf"):
            path = Path(self.write("page.cgm", on_page(CgmOptions()), EXAMPLES / drawing))
            svg = self.folder / "page.svg"
            svg.write_text(cgm.to_svg(path.read_bytes()), encoding="utf-8")
            self.assert_looks_as_pixels(drawing, self.rendered(str(svg)), 0.93)

    def test_drawings_look_the_same_behind_a_graphics_metafile(self) -> None:
        real = ("ezdxf__3_us_main", "ezdxf__ASCII_R12", "ezdxf__mtext_complex_inline_codes", "ezdxf__uncommon",
                "lwg__example_2018")
        sources = [EXAMPLES / "floor_plan.dxf", EXAMPLES / "bearing_flange.dxf"]
        sources += [path for name in real if (path := SHARED / "dxf" / f"{name}.dxf").exists()]
        for source, encoding in zip(sources, [*CgmFileFormat] * len(sources)):
            with self.subTest(source.name, encoding=encoding):
                options = on_page(CgmOptions())
                options.encoding = encoding
                metafile = self.write("page.cgm", options, source)
                before = tones(Path(self.write("before.png", on_page(PngOptions()), source)).read_bytes())
                after = tones(Path(self.write("after.png", on_page(PngOptions()), Path(metafile))).read_bytes())
                self.assertGreater(likeness(before, after), 0.985)  # thin lines move by parts of a pixel

    @needs_tools("rsvg-convert", "emf2svg-conv", "pdftoppm")
    def test_a_graphics_metafile_becomes_pages_of_every_format(self) -> None:
        valve = EXAMPLES / "gate_valve.cgm"
        svg, picture = self.folder / "valve.svg", self.folder / "valve"
        expected = tones(Path(self.write("valve.png", on_page(PngOptions()), valve)).read_bytes())
        tool("emf2svg-conv", "-i", self.write("valve.emf", on_page(EmfOptions()), valve), "-o", str(svg))
        self.assertGreater(likeness(expected, tones(self.rendered(str(svg)).read_bytes())), 0.93)
        for as_shapes in (True, False):
            options = on_page(SvgOptions())
            options.text_as_shapes = as_shapes
            actual = tones(self.rendered(self.write("valve.svg", options, valve)).read_bytes())
            self.assertGreater(likeness(expected, actual), 0.97)
        pdf = self.write("valve.pdf", on_page(PdfOptions()), valve)
        tool("pdftoppm", "-r", "72", "-png", "-singlefile", pdf, str(picture))
        self.assertGreater(likeness(expected, tones(picture.with_suffix(".png").read_bytes())), 0.97)

    def test_both_encodings_of_a_graphics_metafile_have_the_same_elements(self) -> None:
        as_lines = CgmOptions()
        as_lines.text_as_lines = True
        for options in (CgmOptions(), as_lines):
            binary = cgm.elements(Path(self.write("page.cgm", options)).read_bytes())
            options.encoding = CgmFileFormat.CLEAR_TEXT
            text = Path(self.write("page.cgm", options)).read_text(encoding="latin-1")
            self.assertTrue(text.startswith("BEGMF 'Model';\n") and text.endswith("ENDPIC;\nENDMF;\n"))
            for kind, word in ((cgm.LINE, "LINE"), (cgm.POLYGON_SET, "POLYGONSET"), (cgm.RESTRICTED_TEXT, "RESTRTEXT")):
                count = sum(element == kind for element, _ in binary)
                self.assertEqual(len(re.findall(rf"^{word} ", text, re.M)), count)
                self.assertEqual(count > 0, kind != cgm.RESTRICTED_TEXT or not options.text_as_lines)

    def test_a_long_text_keeps_all_its_characters_as_shapes(self) -> None:
        text = CadText()
        (text.default_value, text.text_height) = ("o" * 300, 1.0)
        drawing = CadImage()
        drawing.styles.get("Standard").primary_font_name = "LiberationSans-Regular.ttf"
        drawing.add_entity(text)
        options = Html5Options()
        options.text_as_shapes = True
        page = Path(self.write("page.html", options, drawing)).read_text(encoding="utf-8")
        self.assertEqual(page.count("Z"), 600)  # each character is a ring with a hole

    @needs_tools("openssl", "pdfsig")
    def test_a_portable_document_is_signed_with_a_certificate(self) -> None:
        key, cert, pfx = (str(self.folder / name) for name in ("key.pem", "cert.pem", "office.pfx"))
        tool("openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "9", "-subj", "/CN=Office", "-keyout",
             key, "-out", cert)
        tool("openssl", "pkcs12", "-export", "-inkey", key, "-in", cert, "-passout", "pass:open", "-out", pfx)
        options = PdfOptions()
        options.core_pdf_options = PdfDocumentOptions()
        for details in (PdfDigitalSignatureDetailsCore(pfx, "open"),
                        PdfDigitalSignatureDetailsCore(Path(pfx).read_bytes(), "open")):
            options.core_pdf_options.digital_signature_details = details
            report = tool("pdfsig", "-nocert", self.write("page.pdf", options))
            self.assertIn("Signature is Valid", report)
            self.assertIn("Common Name: Office", report)

    def test_the_best_quality_is_found_for_the_room_that_a_picture_may_take(self) -> None:
        options = on_page(JpegOptions())
        sizes = []
        for most in (0.6, 1.2, 100.0):
            options.rd_opt_settings = RdOptimizerSettings()
            options.rd_opt_settings.bpp_max = most
            sizes.append(Path(self.write("page.jpg", options)).stat().st_size)
            self.assertLessEqual(sizes[-1] * 8, most * SIZE[0] * SIZE[1] + 8 * 1000)  # headers are beside the pixels
        self.assertEqual(sizes, sorted(set(sizes)))
        options.rd_opt_settings.bpp_max = 0.01
        with self.assertRaisesRegex(RuntimeError, "At min_quality, 10, the image takes"):
            self.write("page.jpg", options)

    def test_what_was_not_drawn_is_told(self) -> None:
        options = PdfOptions()
        self.assertIsNone(options.render_result)
        self.write("page.pdf", options)
        self.assertTrue(options.render_result.is_render_complete)
        self.assertGreater(options.render_result.render_duration.total_seconds(), 0)

    def test_solids_without_readable_edges_are_told_with_their_number(self) -> None:
        options = PdfOptions()
        drawing = CadImage()
        drawing.add_entity(Cad3DSolid())
        drawing.add_entity(Cad3DSolid())
        self.write("page.pdf", options, drawing)
        failures = options.render_result.failures
        self.assertEqual({one.render_code for one in failures}, {RenderErrorCode.ENTITY_NOT_DRAWN})
        self.assertRegex(failures[0].message, r"3DSOLID.*\(2\)")


def with_text(text: str, font_file: str) -> io.BytesIO:
    """A drawing of one text whose style names a font file."""
    drawing = CadImage()
    drawing.styles[0].primary_font_name = font_file
    entity = CadText()
    (entity.default_value, entity.text_height, entity.style_type) = (text, 10.0, drawing.styles[0].name)
    drawing.add_entity(entity)
    content = io.BytesIO()
    drawing.save(content)
    content.seek(0)
    return content


@needs_tools("fc-match")
class Fonts(Outputs):
    def setUp(self) -> None:
        super().setUp()
        (self.folder / "fonts" / "more").mkdir(parents=True)
        for family, name in (("DejaVu Serif", "myown.ttf"), ("DejaVu Sans Mono", "more/mono.ttf")):
            file = tool("fc-match", "-f", "%{file}", family)
            (self.folder / "fonts" / name).write_bytes(Path(file).read_bytes())

    def fonts_of(self, font_file: str, folders: list[str], how: CustomFontFolderOptions) -> str:
        options = cad.LoadOptions()
        (options.custom_font_folders, options.custom_font_folder_options) = (folders, how)
        image = cad.Image.load(with_text("Hamburg", font_file), options)
        path = str(self.folder / "page.pdf")
        image.save(path, PdfOptions())
        return tool("pdffonts", path)

    @needs_tools("pdffonts")
    def test_texts_are_drawn_with_the_fonts_of_custom_folders(self) -> None:
        fonts, how = str(self.folder / "fonts"), CustomFontFolderOptions
        rows = [  # the font of the style, the folders, how they are used, the font that is drawn with
            ("myown.ttf", [], how.NONE, "LiberationSans"),
            ("myown.ttf", [fonts], how.NONE, "DejaVuSerif"),
            ("mono.ttf", [fonts], how.NONE, "LiberationSans"),
            ("mono.ttf", [fonts], how.INCLUDE_SUBFOLDERS, "DejaVuSansMono"),
            ("arial.ttf", [fonts], how.IGNORE_SYSTEM_FONTS, "DejaVuSerif"),
        ]
        for font_file, folders, used, expected in rows:
            with self.subTest(font_file, used=used):
                self.assertIn(f"+{expected} ", self.fonts_of(font_file, folders, used))

    def test_folders_that_are_missing_or_empty_are_named(self) -> None:
        (self.folder / "empty").mkdir()
        for name, words in (("nowhere", "does not exist"), ("empty", "no fonts in the custom folders")):
            with self.assertRaisesRegex(RuntimeError, f"ImageSaveException.*{words}"):
                self.fonts_of("myown.ttf", [str(self.folder / name)], CustomFontFolderOptions.NONE)

    @needs_tools("xmllint")
    def test_a_scalable_graphic_carries_its_fonts_or_keeps_them_beside_it(self) -> None:
        options = SvgOptions()
        options.text_as_shapes = False
        (options.font_store_type, image) = (FontStoreType.EMBEDDED, cad.Image.load(with_text("Hamburg", "arial.ttf")))
        path = self.folder / "page.svg"
        image.save(str(path), options)
        tool("xmllint", "--noout", str(path))
        carried = re.search(r"@font-face\{font-family:'Arial';src:url\('data:font/ttf;base64,([^']+)'",
                            path.read_text("utf-8"))
        self.assertTrue(base64.b64decode(carried[1]).startswith(b"\0\1\0\0"))
        options.store_resources_in(str(self.folder / "res"), "res")
        image.save(str(path), options)
        stored = re.search(r"src:url\('res/([^']+)'\)", path.read_text("utf-8"))
        self.assertEqual((self.folder / "res" / stored[1]).read_bytes(), base64.b64decode(carried[1]))
        options.text_as_shapes = True
        with self.assertRaisesRegex(RuntimeError, "outlines need no fonts"):
            image.save(str(path), options)

    def test_the_colours_of_a_scalable_graphic_can_be_grey_or_black(self) -> None:
        def colors(mode: SvgColorMode) -> set[str]:
            options = SvgOptions()
            (options.color_type, options.text_as_shapes) = (mode, False)
            content = Path(self.write("page.svg", options)).read_text("utf-8")
            return set(re.findall(r"(?:stroke|fill|stop-color)=\"#([0-9a-f]{6})\"", content))

        self.assertTrue(any(len({c[:2], c[2:4], c[4:]}) > 1 for c in colors(SvgColorMode.RGB)))
        gray = colors(SvgColorMode.GRAYSCALE)
        self.assertTrue(len(gray) > 3 and all(c[:2] == c[2:4] == c[4:] for c in gray))
        self.assertLessEqual(colors(SvgColorMode.BLACK_AND_WHITE), {"000000", "ffffff"})


class Meshes(Outputs):
    def drawing(self) -> CadImage:
        """A drum of 64 sides far from the origin, a wall, a triangle, and a line without faces."""
        drawing = CadImage()
        drum = CadCircle()
        (drum.center_point, drum.radius, drum.thickness) = (Cad3DPoint(1000.0, 2000.0, 5.0), 2.0, 3.0)
        (drum.layer_name, drum.color_id) = ("Drum one", 1)
        wall = CadLwPolyline()
        wall.coordinates.append(Cad2DPoint(1010.0, 2000.0))
        wall.coordinates.append(Cad2DPoint(1012.0, 2000.0))
        wall.thickness = 4.0
        face = Cad3DFace()
        face.first_point = Cad3DPoint(1010.0, 2000.0, 0.0)
        face.second_point = Cad3DPoint(1010.0, 2003.0, 0.0)
        face.third_point = face.fourth_point = Cad3DPoint(1010.0, 2000.0, 9.0)
        for entity in (drum, wall, face, CadLine()):
            drawing.add_entity(entity)
        return drawing

    # Two lids of 62 triangles and 64 walls of 2; the wall's 2; the triangle.
    FACES = 62 + 62 + 128 + 2 + 1

    def read(self, path: str) -> dict[str, str]:
        text = tool("assimp", "info", path)
        found = re.findall(r"^([A-Z][\w ]+?):?\s{2,}(\S.*)$", text, re.M)
        return {key: value for key, value in reversed(found)}  # the first of each key

    @needs_tools("assimp")
    def test_faces_arrive_whole_and_in_place(self) -> None:
        box = [998.0, 1998.0, 0.0, 1012.0, 2003.0, 9.0]
        upright = [0.998, 0.0, -2.003, 1.012, 0.009, -1.998]  # in metres, where Y points up
        text_stl = StlOptions()
        text_stl.binary = False
        rows = [("a.stl", StlOptions(), box), ("b.stl", text_stl, box), ("c.obj", ObjOptions(), box),
                ("d.glb", GlbOptions(), upright), ("e.gltf", GltfOptions(), upright)]
        for name, options, bounds in rows:
            with self.subTest(name):
                info = self.read(self.write(name, options, self.drawing()))
                self.assertEqual(int(info["Faces"]), self.FACES)
                found = [float(n) for key in ("Minimum point", "Maximum point") for n in info[key].strip("()").split()]
                for number, expected in zip(found, bounds, strict=True):
                    self.assertAlmostEqual(number, expected, 4)

    @needs_tools("assimp")
    def test_layers_are_meshes_and_can_be_left_out(self) -> None:
        options = GlbOptions()
        self.assertEqual(self.read(self.write("a.glb", options, self.drawing()))["Meshes"], "2")
        options.merge_layers = False
        self.assertEqual(self.read(self.write("a.glb", options, self.drawing()))["Meshes"], "3")
        options.layers = ["drum ONE"]
        self.assertEqual(self.read(self.write("a.glb", options, self.drawing()))["Faces"], str(self.FACES - 3))

    def test_a_drawing_without_faces_is_refused(self) -> None:
        drawing = CadImage()
        drawing.add_entity(CadLine())
        for options in (StlOptions(), ObjOptions(), GlbOptions(), GltfOptions()):
            with self.assertRaisesRegex(RuntimeError, "ImageSaveException.*no faces that show"):
                drawing.save(io.BytesIO(), options)


if __name__ == "__main__":
    unittest.main()
