"""What the package does to its surroundings while an extension is loaded, and what it asks of them."""

from __future__ import annotations

import os
import shutil
import tempfile
import unittest
from collections.abc import Callable
from pathlib import Path

from korvan import cad

from child import ASSEMBLY_VARIABLE, PACKAGE, RUNTIME_VARIABLE, WRAP_LIBRARY, LinkedPackage, run
from drawings import EXAMPLES

SCRIPTED_PYTHON = os.environ.get("KORVAN_SCRIPTED_PYTHON", "")
SHOW = "import korvan.cad as c; print(c.Color.from_argb(1, 2, 3).r)"
IMPORT_ERROR = """
try:
    import korvan.cad
    print("imported", korvan.cad.Color.from_argb(1, 2, 3).r)
except ImportError as error:
    print(error)
"""


def link_runtime(package: LinkedPackage, name: str, *left_out: str) -> Path:
    """A second runtime folder in a package, of links to the files of the first."""
    source = package.package / "netcore" / "netcore10.0"
    folder = source.parent / name
    folder.mkdir()
    for path in source.iterdir():
        if path.name not in left_out:
            (folder / path.name).symlink_to(path.resolve())
    return folder


def rename_runtime(package: LinkedPackage, name: str) -> None:
    (package.package / "netcore" / "netcore10.0").rename(package.package / "netcore" / name)


def replace_runtime_by_link(package: LinkedPackage) -> None:
    folder = package.package / "netcore" / "netcore10.0"
    shutil.rmtree(folder)
    folder.symlink_to(PACKAGE / "netcore" / "netcore10.0")


def damage(package: LinkedPackage, change: Callable[[bytes], bytes]) -> None:
    path = package.package / "assemblies" / "cad" / "Korvan.CAD.dll"
    data = path.read_bytes()
    path.unlink()
    path.write_bytes(change(data))


class Folders(unittest.TestCase):
    def test_the_package_checks_the_runtime_that_the_host_takes(self) -> None:
        rows: list[tuple[str, Callable[[LinkedPackage], object], str]] = [
            ("a newer one without the wrap library", lambda p: link_runtime(p, "netcore11.0", WRAP_LIBRARY),
             "imported 1"),
            ("a copy put aside", lambda p: link_runtime(p, "netcore10.0.bak", "libcoreclr.so"), "imported 1"),
            ("a file of such a name", lambda p: (p.package / "netcore" / "netcore.txt").touch(), "imported 1"),
            ("an older one that lacks a file", lambda p: link_runtime(p, "netcore9.0", "libcoreclr.so"), "imported 1"),
            ("a newer one that lacks a file", lambda p: link_runtime(p, "netcore11.0", "libcoreclr.so"),
             "lost the runtime file"),
            ("a third number", lambda p: rename_runtime(p, "netcore10.0.1"), "is missing"),
            ("a sign", lambda p: rename_runtime(p, "netcore-10.0"), "is missing"),
            ("digits that are none to the host", lambda p: rename_runtime(p, "netcore¹0.0"), "is missing"),
            ("a number too large", lambda p: link_runtime(p, "netcore99999999999.0"), "is too large"),
            ("a link", replace_runtime_by_link, "is missing"),
        ]
        for name, change, words in rows:
            with self.subTest(name), LinkedPackage() as package:
                change(package)
                done = package.run(IMPORT_ERROR)
                self.assertEqual(done.returncode, 0, done.stderr)
                self.assertIn(words, done.stdout)

    def test_a_damaged_assembly_is_named(self) -> None:
        for name, change in (
            ("cut off", lambda data: data[: len(data) // 2]),
            ("a line of text", lambda _: b"this is no assembly\n"),
            ("nothing", lambda _: b""),
            ("a header that leads nowhere", lambda data: data[:60] + b"\xff\xff\xff\x7f" + data[64:]),
        ):
            with self.subTest(name), LinkedPackage() as package:
                damage(package, change)
                done = package.run(IMPORT_ERROR)
                self.assertIn("Korvan.CAD.dll of the package is damaged", done.stdout, done.stderr)

    def test_paths_that_the_runtime_can_not_take_are_refused(self) -> None:
        with LinkedPackage() as package:
            renamed = package.root / "a:b"
            renamed.mkdir()
            shutil.move(package.package, renamed)
            done = package.run(f"import sys; sys.path.insert(0, {str(renamed)!r})" + IMPORT_ERROR)
            self.assertIn("the package's folder has to be an absolute path without a colon", done.stdout, done.stderr)
        for variable in (RUNTIME_VARIABLE, ASSEMBLY_VARIABLE):
            for value in ("netcore", "/a:/b"):
                done = run(IMPORT_ERROR, **{variable: value})
                self.assertIn(f"the variable {variable} has to be", done.stdout, done.stderr)

    def test_odd_entries_of_the_path_are_passed_over(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            Path(folder, "korvan").mkdir()
            done = run(f"""
                import os, sys
                os.chdir({folder!r})
                sys.path += [None, b"/bytes", 7, "nul\\0", ""]
                import korvan
                print(os.path.realpath("korvan") in korvan.__path__, all(map(os.path.isabs, korvan.__path__)))
                """)
            self.assertEqual(done.stdout.strip(), "True True", done.stderr)


class Variables(unittest.TestCase):
    def test_a_child_process_uses_the_package_that_it_finds(self) -> None:
        code = """
            import os, subprocess, sys, korvan.cad
            print([name for name in os.environ if name.startswith("NETCORE_WRAPPER")])
            os.environ["PYTHONPATH"] = os.environ["OTHER"]
            os.environ["COREHOST_TRACE"] = "1"
            done = subprocess.run([sys.executable, "-c", "import korvan.cad"], capture_output=True, text=True)
            print(done.returncode, f"NETCORE_DIR: '{os.environ['OTHER']}/korvan/netcore/netcore10.0'" in done.stdout)
            """
        with LinkedPackage() as package, LinkedPackage() as other:
            done = package.run(code, OTHER=str(other.root))
        self.assertEqual(done.stdout.splitlines(), ["[]", "0 True"], done.stderr)

    def test_what_the_user_set_stands(self) -> None:
        with LinkedPackage() as package:
            runtime = str(package.package / "netcore")
            for value in (runtime, ""):
                code = SHOW + f"; import os; print([os.environ[{RUNTIME_VARIABLE!r}]])"
                done = package.run(code, **{RUNTIME_VARIABLE: value})
                self.assertEqual(done.stdout.splitlines(), ["1", str([value])], done.stderr)

    def test_an_environment_that_is_cleared_later_stops_nothing(self) -> None:
        with LinkedPackage() as package:
            done = package.run("""
                import os, korvan.cad as cad
                from unittest import mock
                options = cad.imageoptions.PdfOptions()
                with mock.patch.dict(os.environ, {"PATH": ""}, clear=True):
                    print(options.get_type())
                """)
        self.assertEqual(done.stdout.strip(), "Korvan.CAD.ImageOptions.PdfOptions", done.stderr)


class Interpreter(unittest.TestCase):
    def test_to_look_for_an_extension_does_nothing_else(self) -> None:
        with LinkedPackage() as package:
            package.remove("assemblies/cad/Korvan.CAD.dll")
            done = package.run("""
                import importlib.util, os
                before = dict(os.environ)
                print(importlib.util.find_spec("korvan.cad").origin is not None, before == dict(os.environ))
                """)
        self.assertEqual(done.stdout.strip(), "True True", done.stderr)

    def test_a_package_that_is_loaded_again_has_one_finder(self) -> None:
        done = run("""
            import importlib, sys
            before = len(sys.meta_path)
            import korvan, korvan.cad
            importlib.reload(korvan)
            del sys.modules["korvan"]
            import korvan, korvan.cad.sources
            print(len(sys.meta_path) - before)
            """)
        self.assertEqual(done.stdout.strip(), "1", done.stderr)

    def test_an_interpreter_that_ends_leaves_the_others_their_namespaces(self) -> None:
        use = "from korvan.probe.inner.deep import Leaf; import korvan.probe.inner as i; print(i.deep.Leaf is Leaf)"
        done = run(f"""
            import _xxsubinterpreters as interpreters
            import korvan.probe
            other = interpreters.create(isolated=False)
            interpreters.run_string(other, {use!r})
            interpreters.destroy(other)
            {use}
            """)
        self.assertEqual(done.stdout.split(), ["True", "True"], done.stderr)

    def test_a_handler_of_traps_stays(self) -> None:
        done = run("""
            import signal
            signal.signal(signal.SIGTRAP, lambda *_: print("trapped"))
            import korvan.cad
            signal.raise_signal(signal.SIGTRAP)
            """)
        self.assertEqual((done.stdout.strip(), done.returncode), ("trapped", 0), done.stderr)


class Names(unittest.TestCase):
    """Names of files that are no UTF-8, which Python hands on with an unpaired surrogate for each byte."""

    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.name = os.fsdecode(os.fsencode(folder.name) + b"/na\xefve \xc3\xa9\xff.dxf")
        shutil.copy(EXAMPLES / "floor_plan.dxf", self.name)

    def test_they_are_loaded(self) -> None:
        expected = cad.Image.get_file_format(str(EXAMPLES / "floor_plan.dxf"))
        self.assertEqual((cad.Image.can_load(self.name), cad.Image.get_file_format(self.name)), (True, expected))
        with cad.Image.load(self.name) as image:
            self.assertGreater(image.width, 0)
        self.assertFalse(cad.Image.can_load(self.name + "x"))

    def test_they_are_shown_as_python_spells_them(self) -> None:
        with self.assertRaisesRegex(RuntimeError, r"na\\udcefve é\\udcff\.dxfx' does not exist"):
            cad.Image.load(self.name + "x")

    def test_they_are_no_targets(self) -> None:
        before = os.listdir(os.path.dirname(self.name))
        with cad.Image.load(self.name) as image, self.assertRaisesRegex(RuntimeError, r"udcff\.dxf' cannot be written"):
            image.save(self.name)
        self.assertEqual(os.listdir(os.path.dirname(self.name)), before)
        with cad.Image.load(self.name) as image, open(self.name + ".new", "wb") as file:
            image.save(file)


@unittest.skipUnless(SCRIPTED_PYTHON, "the library to preload was not named")
class Libraries(unittest.TestCase):
    @unittest.skipIf((PACKAGE / "libraries").is_dir(), "the installed package has the library")
    def test_cryptography_without_its_library_is_an_error(self) -> None:
        code = """
            import korvan.cad as cad
            try:
                cad.Image.load("{drawing}").watermark_guard_service.embed("hello", "secret1234")
            except RuntimeError as error:
                print(error)
            """
        code = code.format(drawing=EXAMPLES / "floor_plan.dxf")
        done = run(code, LD_PRELOAD=SCRIPTED_PYTHON, KORVAN_LOST_LIBRARY="libssl.so")
        self.assertIn("Proxy error(FrameworkException)", done.stdout, done.stderr)
        self.assertIn("package libssl3", done.stdout)


if __name__ == "__main__":
    unittest.main()
