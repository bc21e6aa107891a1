"""What goes into the wheel, and whether it can run where the platform tag says."""

from __future__ import annotations

import importlib.metadata
import json
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import zipfile
from pathlib import Path

from child import PACKAGE
from drawings import ROOT

sys.path.insert(0, str(ROOT / "tools"))

import make_wheel  # noqa: E402
from packing import assemblies, fonts, libraries, licences  # noqa: E402
from packing.elf import Elf  # noqa: E402

MODULES = ("", "cad", "pydrawing", "pyreflection", "pygc", "pycore")
OURS = sorted(PACKAGE.glob("assemblies/*/*.dll"))
RUNTIME = PACKAGE / "netcore" / "netcore10.0"


class Files(unittest.TestCase):
    def test_the_files_of_the_package_are_installed_with_their_metadata(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            package = Path(folder, "package", "korvan")
            # The runtime takes long to pack and has no part in this.
            shutil.copytree(PACKAGE, package, ignore=shutil.ignore_patterns("netcore", "assemblies", "__pycache__"))
            contents = make_wheel.own_files(package.parent) | make_wheel.shared_files()
            wheels = [make_wheel.write(contents, Path(folder, name)) for name in ("first", "second")]
            self.assertEqual(wheels[0].read_bytes(), wheels[1].read_bytes())
            installed = Path(folder, "installed")
            zipfile.ZipFile(wheels[0]).extractall(installed)
            for name in MODULES:
                hook = f"hook-korvan{'.' if name else ''}{name}.py"
                self.assertTrue((installed / "korvan" / name / "__pyinstaller" / hook).is_file(), hook)
            for name in MODULES[2:]:
                self.assertTrue((installed / "korvan" / f"{name}.pyi").is_file(), name)
            (distribution,) = importlib.metadata.distributions(path=[str(installed)])
            self.assertEqual(distribution.version, make_wheel.project_version())
            about = distribution.metadata
            self.assertIn("License :: OSI Approved :: MIT License", about.get_all("Classifier"))
            text = str(about.get_payload())
            self.assertIn("pip install", text)
            self.assertEqual([link for link in re.findall(r"\]\(([^)]*)\)", text) if not link.startswith("#")], [])
            self.assertNotIn("make demo", text)
            (hooks,) = distribution.entry_points.select(group="pyinstaller40", name="hook-dirs")
            self.assertEqual(len(hooks.load()()), 6)
            (command,) = distribution.entry_points.select(group="console_scripts")
            self.assertEqual((command.name, command.value), ("korvan", "korvan.commands:main"))
            shared = installed / f"{make_wheel.NAME}-{distribution.version}.data" / "data" / "share"
            self.assertIn(".SS korvan convert", (shared / "man/man1/korvan.1").read_text())
            self.assertIn("--color-mode", (shared / "bash-completion/completions/korvan").read_text())
            files = {path.relative_to(installed).as_posix() for path in installed.rglob("*") if path.is_file()}
            self.assertEqual({str(file) for file in distribution.files or ()}, files)

    def test_assemblies_that_ours_lead_to_are_kept_and_others_are_not(self) -> None:
        needed = assemblies.needed(OURS, RUNTIME)
        self.assertLessEqual({"System.Private.CoreLib.dll", "System.Private.Xml.dll", "System.Linq.dll"}, needed)
        self.assertEqual({"System.Net.Http.dll", "Microsoft.VisualBasic.dll", "System.Data.Common.dll"} & needed, set())
        self.assertEqual({path.name for path in OURS} & needed, set())

    def test_every_file_of_another_project_has_its_licence(self) -> None:
        sources = [(path, name) for name, path in fonts.files().items() if not path.is_relative_to(ROOT)]
        sources += [(path, name) for name, path in libraries.closure(["libcairo.so.2"]).items()]
        components = licences.of_debian(sources) + licences.of_runtime("runtime")
        listed = json.loads(licences.listing(components))
        named = {file for entry in listed for file in entry["files"]}
        self.assertEqual(named, {"runtime", *(name for _, name in sources)})
        self.assertEqual([component.name for component in components if not component.text.is_file()], [])


@unittest.skipUnless(shutil.which("patchelf"), "not installed: patchelf")
class Libraries(unittest.TestCase):
    """All libraries that the assemblies call, as they go into the wheel."""

    @classmethod
    def setUpClass(cls) -> None:
        opened = {name for path in OURS for name in assemblies.native_libraries(path)} - {"libc"}
        cls.enterClassContext(folder := tempfile.TemporaryDirectory())
        cls.carried = libraries.carry(libraries.closure(opened | {libraries.ENCRYPTION}), Path(folder.name))
        cls.files = {library.file.name: Elf(library.file) for library in cls.carried}

    def test_what_managed_code_calls_is_there(self) -> None:
        plain = {libraries.ENCRYPTION_CARRIED, *(name.split("-")[0] for name in self.files)}
        for name in ("libcairo", "libfontconfig", "libtiff", "libturbojpeg", "libopenjp2", "libwebp", "korvanssl.3"):
            self.assertIn(name, plain)

    def test_they_need_each_other_and_the_c_library_alone(self) -> None:
        allowed = libraries.SYSTEM | set(libraries.LAST_RESORT) | self.files.keys()
        for name, elf in self.files.items():
            with self.subTest(name):
                self.assertEqual(elf.soname, name)
                self.assertEqual(elf.runpath, "$ORIGIN")
                self.assertEqual(set(elf.needed) - allowed, set())
                self.assertEqual({version.library for version in elf.versions} - set(elf.needed), set())

    def test_no_symbol_is_newer_than_the_platform_tag_allows(self) -> None:
        ours = [*PACKAGE.glob("*.so"), *(RUNTIME / name for name in make_wheel.RUNTIME_LIBRARIES)]
        for elf in [*self.files.values(), *map(Elf, ours)]:
            with self.subTest(elf.path.name):
                self.assertEqual([version.name for version in elf.versions if libraries.exceeds_policy(version)], [])

    def test_the_loader_takes_them(self) -> None:
        code = "import ctypes, sys\nfor name in sys.argv[1:]: ctypes.CDLL(name)"
        paths = [str(library.file) for library in self.carried]
        done = subprocess.run([sys.executable, "-c", code, *paths], capture_output=True, text=True, check=False)
        self.assertEqual(done.returncode, 0, done.stderr)

    def test_a_symbol_that_nothing_replaces_ends_the_build(self) -> None:
        newest = next(path for path in libraries.last_resort() if path.name == "libstdc++.so.6")
        with tempfile.TemporaryDirectory() as folder, self.assertRaisesRegex(SystemExit, "arc4random@GLIBC_2.36"):
            libraries.carry({"libstdc++.so.6": newest}, Path(folder))


if __name__ == "__main__":
    unittest.main()
