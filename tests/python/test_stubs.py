"""The stubs: held against the live types, and judged by a type checker with right and wrong programs."""

from __future__ import annotations

import ast
import enum
import json
import os
import shutil
import subprocess
import tempfile
import textwrap
import types
import unittest
from collections.abc import Iterable
from pathlib import Path
from typing import Any

import korvan
import korvan.cad

ROOT = Path(__file__).resolve().parents[2]
PACKAGE = Path(korvan.__file__).resolve().parent
CHECKER = ROOT / "build" / "npm" / "node_modules" / "pyright" / "index.js"

PREPARED = """
    import io
    import korvan.cad
    from korvan.cad import Color, ColorPalette, FileFormat, IColorPalette, Image, LoadOptions, Rectangle
    from korvan.cad.fileformats.cad import CadImage
    from korvan.cad.fileformats.cad.cadobjects import CadCircle, CadLine
    from korvan.cad.imageoptions import CadRasterizationOptions, PdfOptions
    image = Image.load("plan.dxf")
    drawing = CadImage._cast_to(image).value
    raster = CadRasterizationOptions()
    rect = Rectangle(0, 0, 1, 1)
    palette = ColorPalette([1])
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
    "[layer for layer in drawing.layers]": "list[CadLayerTable]",
    "drawing.block_entities.copy()": "list[CadBlockEntity]",
    "[*drawing.layouts]": "list[CadLayout]",
    "drawing.layers[0]": "CadLayerTable",
    "FileFormat.PDF.get_type()": "Type",
    "FileFormat.PDF._as_uni_enum()": "Enum",
    "FileFormat._cast_to(1).value": "FileFormat",
    "Rectangle.intersect(rect, rect)": "Rectangle",
    "rect.intersect(rect)": "None",
    "korvan.cad.VERSION.major": "int",
    "korvan.cad.get_pyinstaller_hook_dirs()": "list[str]",
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
    "drawing.layers.append(CadLine())": "reportArgumentType",
    "raster.layers = 'TREE'": "reportAttributeAccessIssue",
    "raster.layers = None": "reportAttributeAccessIssue",
    "CadLine().first_point = None": "reportAttributeAccessIssue",
    "rect.intersect(rect, rect)": "reportCallIssue",
    "wanted: IColorPalette = palette": "reportAssignmentType",
    "Image()": "reportCallIssue",  # the last: nothing behind it is reached
}
# Statements that are right, and that the strictest check has nothing to say of.
RIGHT = (
    "raster.layers = ['TREE']",
    "raster.layers = ('TREE',)",
    "raster.layouts = drawing.layouts.names",
    "PdfOptions().palette = palette",
    "print(isinstance(palette, IColorPalette))",
    "print(Rectangle.inflate(rect, 1, 2).width)",
    "larger: Rectangle = Rectangle.intersect(rect, rect)",
)


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


def defined(body: Iterable[ast.stmt]) -> dict[str, ast.stmt]:
    """What a module or class of a stub defines, by name."""
    names: dict[str, ast.stmt] = {}
    for one in body:
        match one:
            case ast.FunctionDef(name=name) | ast.ClassDef(name=name):
                names[name] = one
            case ast.Assign(targets=[ast.Name(id=name)]) | ast.AnnAssign(target=ast.Name(id=name)):
                names[name] = one
            case ast.ImportFrom():
                names |= {alias.asname or alias.name: one for alias in one.names}
    return names


def is_own(name: str) -> bool:
    """Whether a name of a stub stands for something that is there when a program runs."""
    return not (name.startswith("__") or name.startswith("_Implements") or name.endswith(("OnInstance", "OnClass")))


class Live(unittest.TestCase):
    """All types and modules against their stubs, both ways."""

    # Kept by the engine and the enum module in the dictionaries of types.
    PLUMBING = {"_korvan_clr_host", "_korvan_clr_castable_obj", "_additional_interfaces", "_implicit_interfaces"}

    def setUp(self) -> None:
        self.classes: dict[str, ast.ClassDef] = {}
        self.modules: dict[str, dict[str, ast.stmt]] = {}
        for path in PACKAGE.glob("cad/**/*.pyi"):
            folder = path.parent if path.name == "__init__.pyi" else path.with_suffix("")
            module = ".".join(("korvan", *folder.relative_to(PACKAGE).parts))
            self.modules[module] = defined(ast.parse(path.read_text(encoding="utf-8")).body)
            self.add_classes(module, self.modules[module])

    def add_classes(self, place: str, names: dict[str, ast.stmt]) -> None:
        for name, one in names.items():
            if isinstance(one, ast.ClassDef):
                self.classes[f"{place}.{name}"] = one
                self.add_classes(f"{place}.{name}", defined(one.body))

    def members(self, name: str) -> set[str]:
        """What a class of a stub has, by itself and by its bases."""
        module = next(name[:at] for at in range(len(name), 0, -1) if name[:at] in self.modules)
        found = set(defined(self.classes[name].body))
        for base in self.classes[name].bases:
            text = ast.unparse(base).partition("[")[0]
            if text == "collections.abc.Sequence":
                found |= {"index", "count"}
            for place in (text, f"{module}.{text}"):
                found |= self.members(place) if place in self.classes else set()
        return {member for member in found if is_own(member)}

    def test_every_type_has_what_its_stub_says_and_nothing_else(self) -> None:
        seen: set[str] = set()

        def look(owner: object, place: str) -> None:
            if isinstance(owner, types.ModuleType):
                # Not for users, and not to be written: the wrappers of collections, what korvan._entity_rows calls, a
                # module called as a keyword is.
                there = {name for name in vars(owner) if is_own(name)} - {"_wrpgen", "_entity_rows", "import"}
                self.assertEqual({name for name in self.modules[place] if is_own(name)}, there, place)
            for name, one in vars(owner).items():
                full = f"{place}.{name}"
                if isinstance(one, types.ModuleType) and full in self.modules:
                    look(one, full)
                elif isinstance(one, type) and full in self.classes:
                    seen.add(full)
                    self.compare(one, full)
                    look(one, full)

        look(korvan.cad, "korvan.cad")
        self.assertEqual({name for name in self.classes if is_own(name.rpartition(".")[2])} - seen,
                         {name for name in self.classes if name.startswith("korvan.cad._typing.")})

    def test_none_is_refused_by_name_where_the_stubs_do_not_take_it(self) -> None:
        names = {live: name for name in self.classes if (live := self.find(name)) is not None}
        tried: set[tuple[type, str]] = set()
        for live in names:
            if isinstance(live, enum.EnumType):
                continue
            try:
                instance = live()
            except (TypeError, RuntimeError):
                continue  # it is made by others, or of something
            for owner in live.__mro__[:-1]:
                for member in self.strict_setters(names[owner]):
                    if (owner, member) not in tried:
                        tried.add((owner, member))
                        with self.assertRaises((TypeError, RuntimeError), msg=f"{names[owner]}.{member}") as caught:
                            setattr(instance, member, None)
                        if isinstance(caught.exception, RuntimeError):
                            words = rf"\b{owner.__name__}\.{member} must not be None\.$"
                            self.assertRegex(str(caught.exception), words)
        self.assertGreater(len(tried), 1000)

    def strict_setters(self, name: str) -> list[str]:
        return [member for member, one in defined(self.classes[name].body).items()
                if isinstance(one, ast.FunctionDef) and "setter" in "".join(map(ast.unparse, one.decorator_list))
                and "None" not in ast.unparse(one.args.args[1].annotation or one)]

    def find(self, name: str) -> type | None:
        """The live type of a stub's class; None for what the stubs have for themselves."""
        found: object = korvan
        for part in name.split(".")[1:]:
            found = getattr(found, part, None)
        return found if isinstance(found, type) else None

    def compare(self, live: type, name: str) -> None:
        if isinstance(live, enum.EnumType):
            members = {key: ast.literal_eval(one.value) for key, one in defined(self.classes[name].body).items()
                       if isinstance(one, ast.Assign)}
            self.assertEqual(list(members.items()), [(key, int(one)) for key, one in live.__members__.items()], name)
            methods = {key for key, one in vars(live).items() if type(one).__name__.endswith("DescrType")}
            self.assertEqual(self.members(name), members.keys() | methods, name)
        else:
            there = {member for member in set(dir(live)) - set(dir(object)) if is_own(member)}
            self.assertEqual(self.members(name), there - self.PLUMBING, name)


@unittest.skipUnless(CHECKER.exists() and shutil.which("node"), "the type checker is not installed: `make test` does")
class Stubs(unittest.TestCase):
    def check_program(self, lines: Iterable[str], mode: str = "standard") -> dict[int, list[dict[str, Any]]]:
        """The findings in a program of those lines, by the line's number."""
        prepared = textwrap.dedent(PREPARED)
        with tempfile.TemporaryDirectory() as folder:
            program = Path(folder, "program.py")
            program.write_text(prepared + "\n".join(lines) + "\n", encoding="utf-8")
            first = prepared.count("\n")
            findings: dict[int, list[dict[str, Any]]] = {}
            for one in check(mode, program):
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

    def test_right_programs_pass(self) -> None:
        findings = self.check_program(RIGHT, "strict")
        self.assertEqual({RIGHT[at]: told(ones) for at, ones in findings.items() if at >= 0}, {})

    def test_mistakes_are_found(self) -> None:
        findings = self.check_program(list(MISTAKES))
        for at, (statement, rule) in enumerate(MISTAKES.items()):
            with self.subTest(statement):
                self.assertIn(rule, [one.get("rule") for one in findings.get(at, [])])


if __name__ == "__main__":
    unittest.main()
