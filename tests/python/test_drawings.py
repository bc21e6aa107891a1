"""Every real drawing becomes a PDF, an SVG and a PNG that other programs accept."""

from __future__ import annotations

import tempfile
import unittest
from pathlib import Path

from drawings import EXAMPLES, SHARED, Png, needs_shared, needs_tools, tool
from korvan import cad
from korvan.cad.fileformats.cad import CadImage
from korvan.cad.imageoptions import CadRasterizationOptions, PdfOptions, PngOptions, SvgOptions

# Solids alone, which are kept and saved but not drawn, and a drawing without entities.
NOTHING_TO_DRAW = {"ezdxf__3dsolids.dxf", "ezdxf__dxf_unicode.dxf"}


def options_for(kind: type, width: float = 420.0, height: float = 297.0) -> object:
    options = kind()
    raster = CadRasterizationOptions()
    raster.page_width, raster.page_height = width, height
    options.vector_rasterization_options = raster
    return options


@needs_tools("pdfinfo", "pdftotext", "xmllint", "rsvg-convert")
class Outputs(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def convert(self, path: Path) -> None:
        image = cad.Image.load(str(path))
        outputs = {}
        for kind, ending in ((PdfOptions, "pdf"), (SvgOptions, "svg"), (PngOptions, "png")):
            outputs[ending] = self.folder / f"{path.stem}.{ending}"
            image.save(str(outputs[ending]), options_for(kind))
        facts = dict(line.split(":", 1) for line in tool("pdfinfo", str(outputs["pdf"])).splitlines())
        self.assertEqual(facts["Pages"].strip(), "1")
        tool("xmllint", "--noout", str(outputs["svg"]))
        tool("rsvg-convert", "-o", str(self.folder / "svg.png"), str(outputs["svg"]))
        png = Png(outputs["png"].read_bytes())
        self.assertEqual((png.width, png.height), (420, 297))
        if path.name not in NOTHING_TO_DRAW:
            self.assertGreater(png.coverage(), 0.0, "something was drawn")

    def test_the_examples_convert(self) -> None:
        paths = sorted(EXAMPLES.glob("*.dxf"))
        self.assertGreaterEqual(len(paths), 3)
        for path in paths:
            with self.subTest(path.name):
                self.convert(path)

    @needs_shared
    def test_the_real_drawings_convert(self) -> None:
        paths = sorted((SHARED / "dxf").glob("*.dxf"))
        self.assertGreater(len(paths), 15)
        for path in paths:
            with self.subTest(path.name):
                self.convert(path)

    def test_text_is_text_and_fonts_are_embedded(self) -> None:
        output = self.folder / "plan.pdf"
        cad.Image.load(str(EXAMPLES / "bearing_flange.dxf")).save(str(output), options_for(PdfOptions))
        text = tool("pdftotext", str(output), "-")
        for word in ("Bearing flange", "ISO 2768", "M-0417"):
            self.assertIn(word, text)
        fonts = tool("pdffonts", str(output)).splitlines()[2:]
        self.assertTrue(fonts)
        for line in fonts:
            embedded = line.split()[-5]
            self.assertEqual(embedded, "yes", line)

    def test_each_chosen_layout_is_a_page(self) -> None:
        image = cad.Image.load(str(EXAMPLES / "floor_plan.dxf"))
        names = [layout.layout_name for layout in CadImage._cast_to(image).value.layouts]
        self.assertGreaterEqual(len(names), 2)
        raster = CadRasterizationOptions()
        raster.page_width, raster.page_height = 420.0, 297.0
        raster.layouts = names[:2]
        options = PdfOptions()
        options.vector_rasterization_options = raster
        output = self.folder / "layouts.pdf"
        image.save(str(output), options)
        self.assertIn("Pages:           2", tool("pdfinfo", str(output)))


if __name__ == "__main__":
    unittest.main()
