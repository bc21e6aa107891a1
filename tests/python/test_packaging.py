"""What an application that is frozen takes along.

The hooks are run as PyInstaller documents that it runs them: each by its file, for the module that
the file is named after, for its lists `datas`, `binaries` and `hiddenimports`.
"""

from __future__ import annotations

import importlib.util
import os
import shutil
import subprocess
import sysconfig
import tempfile
import unittest
import zipfile
from pathlib import Path
from types import ModuleType

import korvan.cad

from child import PACKAGE, WRAP_LIBRARY
from drawings import EXAMPLES

ROOT = Path(__file__).resolve().parent.parent.parent
FROZEN_START = os.environ.get("KORVAN_FROZEN_START")
MODULES = ("cad", "pydrawing", "pyreflection", "pygc", "pycore")


def load(path: Path) -> ModuleType:
    """A Python file as a module of no package, as a hook or a tool is run."""
    spec = importlib.util.spec_from_file_location(path.stem.replace(".", "_"), path)
    assert spec is not None and spec.loader is not None
    module = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(module)
    return module


# Finds pure modules in an archive and gives them the names that they would have in the application's folder.
FROZEN_PROGRAM = """
import os, sys, zipimport
from importlib.machinery import ModuleSpec

ROOT = os.path.dirname(os.path.abspath(__file__))
sys.frozen, sys._MEIPASS = True, ROOT


class Archive:
    def __init__(self):
        self.archive = zipimport.zipimporter(os.path.join(ROOT, "pure.zip"))

    def find_spec(self, name, path=None, target=None):
        found = zipimport.zipimporter(os.path.join(ROOT, "pure.zip", *name.split(".")[:-1])).find_spec(name)
        if found is None or found.loader is None:
            return None
        spec = ModuleSpec(name, self, origin=found.origin, is_package=found.submodule_search_locations is not None)
        spec.origin = found.origin.replace("pure.zip" + os.sep, "")
        spec.has_location, spec.loader_state = True, found.loader
        if spec.submodule_search_locations is not None:
            spec.submodule_search_locations.append(os.path.dirname(spec.origin))
        return spec

    def create_module(self, spec):
        return None

    def exec_module(self, module):
        exec(module.__spec__.loader_state.get_code(module.__name__), vars(module))


sys.meta_path.insert(-1, Archive())  # before the finder of folders
import io, korvan.cad as cad
from korvan import pycore, _pickling
from korvan.cad.imageoptions import PdfOptions

print(cad.__file__, cad.Image._type_of(), PdfOptions().get_type().name, sep="\\n")
target = io.BytesIO()
cad.Image.load(os.path.join(ROOT, "drawing.dxf")).save(target, PdfOptions())
print(len(target.getvalue()))
modules = [getattr(module, "__file__", None) for module in list(sys.modules.values())]
print([file for file in modules if file and not file.startswith(ROOT)])
"""


def freeze(root: Path) -> None:
    """Lays out an application that imports korvan.cad: what the hooks collect, and what an analysis finds by itself."""
    found = hooks()
    for hook in found.values():
        for source, target in hook.datas + hook.binaries:
            (root / target).mkdir(parents=True, exist_ok=True)
            shutil.copy(source, root / target)
    modules = {"korvan.cad", *(name for hook in found.values() for name in hook.hiddenimports)}
    with zipfile.ZipFile(root / "pure.zip", "w") as archive:
        for name in ("korvan", *sorted(modules)):
            source = importlib.util.find_spec(name)
            assert source is not None
            if name == "korvan" or source.origin is not None and source.origin.startswith(str(PACKAGE)):
                path = Path(str(source.origin))
                if path.suffix == ".so":
                    shutil.copy(path, root / "korvan")
                else:
                    archive.write(path, path.relative_to(PACKAGE.parent))
    library = Path(sysconfig.get_path("stdlib"))
    shutil.copytree(library / "lib-dynload", root / "lib-dynload")
    with zipfile.ZipFile(root / "base_library.zip", "w") as archive:
        for path in library.rglob("*.py"):
            if not {"test", "tests", "site-packages", "idlelib", "lib2to3"} & set(path.parts):
                archive.write(path, path.relative_to(library))
    shutil.copy(EXAMPLES / "floor_plan.dxf", root / "drawing.dxf")


def hooks() -> dict[str, ModuleType]:
    """The hooks in the folders that the extension names, by the module that each is for."""
    found: dict[str, ModuleType] = {}
    for folder in korvan.cad.get_pyinstaller_hook_dirs():
        for path in Path(folder).glob("hook-*.py"):
            found[path.stem.removeprefix("hook-")] = load(path)
    return found


class Hooks(unittest.TestCase):
    def test_the_six_folders_exist_and_stand_where_they_are_named(self) -> None:
        folders = [Path(folder) for folder in korvan.cad.get_pyinstaller_hook_dirs()]
        self.assertEqual(folders, [PACKAGE / "__pyinstaller",
                                   *(PACKAGE / name / "__pyinstaller" for name in MODULES)])
        for folder in folders:
            self.assertTrue(list(folder.glob("hook-*.py")), folder)
        self.assertRaises(TypeError, korvan.cad.get_pyinstaller_hook_dirs, 1)
        first = korvan.cad.get_pyinstaller_hook_dirs()
        self.assertIsNot(first, korvan.cad.get_pyinstaller_hook_dirs())

    def test_every_module_has_its_hook_and_every_entry_its_file(self) -> None:
        found = hooks()
        self.assertEqual(set(found), {"korvan", "korvan.viewer", *(f"korvan.{name}" for name in MODULES)})
        for name, hook in found.items():
            with self.subTest(name):
                for source, target in hook.datas + hook.binaries:
                    self.assertTrue(Path(source).is_file(), source)
                    self.assertEqual(PACKAGE.parent / target, Path(source).parent)
                for module in hook.hiddenimports:
                    self.assertIsNotNone(importlib.util.find_spec(module), module)

    def test_libraries_are_binaries_and_the_rest_is_data(self) -> None:
        found = hooks()
        libraries = {Path(source).name for source, _ in found["korvan"].binaries}
        self.assertLessEqual({WRAP_LIBRARY, "libcoreclr.so", "libclrjit.so"}, libraries)
        data = [Path(source) for hook in found.values() for source, _ in hook.datas]
        names = {path.name for path in data}
        self.assertLessEqual({"System.Private.CoreLib.dll", "Korvan.CAD.dll",
                              "WrpInterop.Korvan.CAD.dll",
                              "WrpInterop.Korvan.PyReflection.dll"}, names)
        self.assertEqual({path.suffix for path in data} & {".so", ".pdb", ".xml"}, set())
        self.assertEqual(len(names), len(data))

    @unittest.skipUnless(FROZEN_START, "CPython has no shared library")
    def test_what_the_hooks_collect_is_enough_to_run(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            root = Path(folder, "application")
            root.mkdir()
            freeze(root)
            (root / "main.py").write_text(FROZEN_PROGRAM)
            done = subprocess.run([str(FROZEN_START), str(root)], cwd=folder, env={"HOME": folder}, timeout=120,
                                  capture_output=True, text=True, check=False)
            self.assertEqual(done.returncode, 0, done.stderr)
            file, assembly, name, size, outside = done.stdout.splitlines()
            self.assertEqual(Path(file).parent, root / "korvan")
            self.assertEqual((assembly, name), ("Korvan.CAD.Image", "PdfOptions"))
            self.assertGreater(int(size), 1000)
            self.assertEqual(outside, "[]")


if __name__ == "__main__":
    unittest.main()
