"""What an application that is frozen takes along.

The hooks are run as PyInstaller documents that it runs them: each by its file, for the module that
the file is named after, for its lists `datas`, `binaries` and `hiddenimports`.
"""

from __future__ import annotations

import importlib.metadata
import importlib.util
import shutil
import tempfile
import unittest
import zipfile
from pathlib import Path
from types import ModuleType

import korvan.cad

from child import ASSEMBLY_VARIABLE, PACKAGE, RUNTIME_VARIABLE, WRAP_LIBRARY, run

ROOT = Path(__file__).resolve().parent.parent.parent
MODULES = ("cad", "pydrawing", "pyreflection", "pygc", "pycore")


def load(path: Path) -> ModuleType:
    """A Python file as a module of no package, as a hook or a tool is run."""
    spec = importlib.util.spec_from_file_location(path.stem.replace(".", "_"), path)
    assert spec is not None and spec.loader is not None
    module = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(module)
    return module


def hooks() -> dict[str, ModuleType]:
    """The hooks in the folders that the extension names, by the module that each is for."""
    found = {}
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
        self.assertEqual(set(found), {"korvan", *(f"korvan.{name}" for name in MODULES)})
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

    def test_what_the_hooks_collect_is_enough_to_run(self) -> None:
        found = hooks()
        with tempfile.TemporaryDirectory() as folder:
            root = Path(folder)
            (root / "korvan").mkdir()
            shutil.copy(PACKAGE / "__init__.py", root / "korvan")
            # What an analysis would find by itself: the extension that the application names.
            modules = {"korvan.cad", *found["korvan.cad"].hiddenimports}
            for name in (name for name in modules if name.startswith("korvan.")):
                for path in PACKAGE.glob(name.removeprefix("korvan.") + ".*.so"):
                    shutil.copy(path, root / "korvan")
            for hook in found.values():
                for source, target in hook.datas + hook.binaries:
                    (root / target).mkdir(parents=True, exist_ok=True)
                    (root / target / Path(source).name).symlink_to(source)
            done = run(
                """
                import io, korvan.cad as cad
                from korvan import pycore
                from korvan.cad.imageoptions import PdfOptions
                print(cad.__file__, cad.Image._type_of(), PdfOptions().get_type().name)
                """,
                **{"PYTHONPATH": folder, RUNTIME_VARIABLE: None, ASSEMBLY_VARIABLE: None},
            )
            self.assertEqual(done.returncode, 0, done.stderr)
            file, *rest = done.stdout.split()
            self.assertEqual(Path(file).parent, root / "korvan")
            self.assertEqual(rest, ["Korvan.CAD.Image", "PdfOptions"])


class Wheel(unittest.TestCase):
    def test_a_wheel_holds_the_hooks_and_names_them_to_pyinstaller(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            package = Path(folder, "package", "korvan")
            # The runtime takes long to pack and has no part in this.
            shutil.copytree(PACKAGE, package,
                            ignore=shutil.ignore_patterns("netcore", "assemblies", "__pycache__"))
            wheel = load(ROOT / "tools" / "make_wheel.py").make(package.parent, Path(folder, "dist"))
            installed = Path(folder, "installed")
            zipfile.ZipFile(wheel).extractall(installed)
            for name in ("", *MODULES):
                hook = f"hook-korvan{'.' if name else ''}{name}.py"
                self.assertTrue((installed / "korvan" / name / "__pyinstaller" / hook).is_file())
            for name in MODULES[1:]:
                self.assertTrue((installed / "korvan" / f"{name}.pyi").is_file())
            (distribution,) = importlib.metadata.distributions(path=[str(installed)])
            (entry,) = distribution.entry_points.select(group="pyinstaller40", name="hook-dirs")
            self.assertEqual(len(entry.load()()), 6)


if __name__ == "__main__":
    unittest.main()
