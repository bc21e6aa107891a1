"""The stubs, judged by a type checker: examples pass, right use has the right types, wrong use is found."""

from __future__ import annotations

import json
import os
import shutil
import subprocess
import tempfile
import textwrap
import unittest
from pathlib import Path
from typing import Any

import korvan

ROOT = Path(__file__).resolve().parents[2]
PACKAGE = Path(korvan.__file__).resolve().parent
CHECKER = ROOT / "build" / "npm" / "node_modules" / "pyright" / "index.js"

PREPARED = """
    import io
    import korvan.cad
    from korvan.cad import Color, Image, LoadOptions
    from korvan.cad.fileformats.cad import CadImage
    from korvan.cad.fileformats.cad.cadobjects import CadCircle, CadLine
    from korvan.cad.imageoptions import CadRasterizationOptions, PdfOptions
    image = Image.load("plan.dxf")
    drawing = CadImage._cast_to(image).value
    raster = CadRasterizationOptions()
"""
# An expression and the type that it has.
TYPES = {
    "image": "Image",
    "Image.load(io.BytesIO(), LoadOptions())": "Image",
    "drawing": "CadImage",
    "image.width": "int",
    "raster.page_width": "float",
    "[line.first_point.x for line in [CadLine()]]": "list[float]",
    "drawing.entities[0]": "CadEntityBase",
    "drawing.entities[0:1]": "list[CadEntityBase]",
    "Color.red": "Color",
    "Image.get_file_format('x')": "FileFormat",
    "bool(CadCircle._cast_to(image))": "bool",
}
# A statement that fails when it runs, and the rule that finds it before.
MISTAKES = {
    "Image.load(1)": "reportCallIssue",
    "Image.load('x', PdfOptions())": "reportCallIssue",
    "image.save('x', 'pdf')": "reportCallIssue",
    "raster.page_width = '1'": "reportAttributeAccessIssue",
    "image.width = 3": "reportAttributeAccessIssue",
    "image.widht": "reportAttributeAccessIssue",
    "Color.red = Color.blue": "reportAttributeAccessIssue",
    "drawing.entities.push(CadLine())": "reportAttributeAccessIssue",
    "drawing.add_entity(5)": "reportArgumentType",
    "Image()": "reportCallIssue",  # the last: nothing behind it is reached
}


def check(mode: str, *sources: Path) -> list[dict[str, Any]]:
    """What the checker says of the sources, with the built package in reach."""
    with tempfile.TemporaryDirectory() as folder:
        settings = {
            "include": [os.path.relpath(source, folder) for source in sources],
            "extraPaths": [os.path.relpath(PACKAGE.parent, folder)],
            "typeCheckingMode": mode,
            "pythonVersion": "3.12",
            "pythonPlatform": "Linux",
            "reportMissingModuleSource": "none",
        }
        Path(folder, "pyrightconfig.json").write_text(json.dumps(settings), encoding="utf-8")
        done = subprocess.run(["node", str(CHECKER), "-p", folder, "--outputjson"], capture_output=True, text=True,
                              timeout=500, check=False)
    report = json.loads(done.stdout)
    if report["summary"]["filesAnalyzed"] == 0:
        raise AssertionError(f"the checker found nothing to check: {done.stdout}")
    return report["generalDiagnostics"]


def told(findings: list[dict[str, Any]]) -> list[str]:
    return [f"{Path(one['file']).name}:{one['range']['start']['line'] + 1}: {one['message']}" for one in findings]


@unittest.skipUnless(CHECKER.exists() and shutil.which("node"), "the type checker is not installed: `make test` does")
class Stubs(unittest.TestCase):
    def check_program(self, lines: list[str]) -> dict[int, list[dict[str, Any]]]:
        """The findings in a program of those lines, by the line's number."""
        prepared = textwrap.dedent(PREPARED)
        with tempfile.TemporaryDirectory() as folder:
            program = Path(folder, "program.py")
            program.write_text(prepared + "\n".join(lines) + "\n", encoding="utf-8")
            first = prepared.count("\n")
            findings: dict[int, list[dict[str, Any]]] = {}
            for one in check("standard", program):
                findings.setdefault(one["range"]["start"]["line"] - first, []).append(one)
            return findings

    def test_the_examples_pass_the_strictest_check(self) -> None:
        self.assertEqual(told(check("strict", ROOT / "examples")), [])

    def test_the_package_itself_passes(self) -> None:
        self.assertEqual(told(check("standard", PACKAGE)), [])

    def test_expressions_have_precise_types(self) -> None:
        findings = self.check_program([f"reveal_type({expression})" for expression in TYPES])
        for at, (expression, name) in enumerate(TYPES.items()):
            with self.subTest(expression):
                self.assertEqual(findings[at][0]["message"], f'Type of "{expression}" is "{name}"')

    def test_mistakes_are_found(self) -> None:
        findings = self.check_program(list(MISTAKES))
        for at, (statement, rule) in enumerate(MISTAKES.items()):
            with self.subTest(statement):
                self.assertIn(rule, [one.get("rule") for one in findings.get(at, [])])


if __name__ == "__main__":
    unittest.main()
