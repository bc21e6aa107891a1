"""PDF documents: layers, archives, bytes that do not depend on the run, and sizes of pages."""

from __future__ import annotations

import io
import json
import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from drawings import EXAMPLES, needs_tools, tool
from korvan import cad
from korvan.cad.fileformats.cad import CadImage
from korvan.cad.imageoptions import (
    CadRasterizationOptions,
    PdfCompliance,
    PdfDocumentOptions,
    PdfOptions,
    RenderErrorCode,
    UnitType,
)

PLAN = EXAMPLES / "floor_plan.dxf"
SAVE = f"""
import hashlib, io
from korvan import cad
from korvan.cad.imageoptions import PdfOptions
page = io.BytesIO()
cad.Image.load({str(PLAN)!r}).save(page, PdfOptions())
print(hashlib.sha256(page.getvalue()).hexdigest())
"""


@needs_tools("qpdf", "pdfinfo", "pdftotext")
class Documents(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.path = str(Path(folder.name) / "plan.pdf")

    def save(self, options: PdfOptions, drawing: Path = PLAN) -> dict[str, object]:
        """The values of the objects in the document, by number."""
        cad.Image.load(str(drawing)).save(self.path, options)
        tool("qpdf", "--check", self.path)
        objects = json.loads(tool("qpdf", "--json", "--json-key=qpdf", self.path))["qpdf"][1]
        return {name: entry.get("value", entry.get("stream", {}).get("dict")) for name, entry in objects.items()}

    def test_layers_of_the_drawing_are_layers_of_the_document(self) -> None:
        objects = self.save(PdfOptions()).values()
        names = {one["/Name"].removeprefix("u:") for one in objects
                 if isinstance(one, dict) and one.get("/Type") == "/OCG"}
        drawing = CadImage._cast_to(cad.Image.load(str(PLAN))).value
        self.assertLessEqual(names, {layer.name for layer in drawing.layers})
        self.assertGreater(len(names), 5)

    def test_archives_keep_text_and_note_what_was_transparent(self) -> None:
        options = PdfOptions()
        options.core_pdf_options = PdfDocumentOptions()
        for level in (PdfCompliance.PDF_A1B, PdfCompliance.PDF_A1A):
            options.core_pdf_options.compliance = level
            with self.subTest(level.name):
                self.save(options)
                self.assertIn("PDF version:     1.4", tool("pdfinfo", self.path))
                self.assertIn("General notes", tool("pdftotext", self.path, "-"))
                codes = {failure.render_code for failure in options.render_result.failures}
                self.assertLessEqual(codes, {RenderErrorCode.TRANSPARENCY_BLENDED})

    def test_each_process_writes_the_same_bytes(self) -> None:
        runs = [subprocess.run([sys.executable, "-c", SAVE], check=True, capture_output=True).stdout for _ in range(2)]
        self.assertEqual(runs[0], runs[1])

    @unittest.skipIf("KORVAN_PACKAGE" in os.environ, "of the wheel, each assembly is compiled by itself")
    def test_the_first_save_compiles_few_methods(self) -> None:
        methods = Path(self.path).with_name("methods.txt")
        compiled = os.environ | {"DOTNET_JitStdOutFile": str(methods), "DOTNET_JitDisasmSummary": "1"}
        subprocess.run([sys.executable, "-c", SAVE], check=True, capture_output=True, env=compiled)
        names = [line.split("compiled ")[1] for line in methods.read_text().splitlines() if " compiled " in line]
        self.assertGreater(len(names), 0)
        collections = re.compile(r"Generic\.(List`1|Dictionary`2)\[[^:]*Korvan[^:]*:(Add|TryInsert|FindValue)\(")
        self.assertEqual([name for name in names if collections.search(name)], [])
        self.assertLess(len(names), 220)

    def test_pages_are_as_large_as_they_are_asked_to_be(self) -> None:
        options = PdfOptions()
        raster = CadRasterizationOptions()
        raster.page_width, raster.page_height, raster.unit_type = 90.0, 60.0, UnitType.METER
        options.vector_rasterization_options = raster
        page = next(one for one in self.save(options).values()
                    if isinstance(one, dict) and one.get("/Type") == "/Page")
        size = [side * page["/UserUnit"] for side in page["/MediaBox"][2:]]
        for side, metres in zip(size, (90, 60)):
            self.assertAlmostEqual(side, metres / 0.0254 * 72, delta=side * 1e-5)
        raster.page_width = 90_000.0
        with self.assertRaisesRegex(RuntimeError, "too large"):
            cad.Image.load(str(PLAN)).save(io.BytesIO(), options)


if __name__ == "__main__":
    unittest.main()
