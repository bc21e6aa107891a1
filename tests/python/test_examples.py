"""The example programs and the tutorial's code run as they stand."""

from __future__ import annotations

import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import korvan.cad
from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cgm import CgmFile, CgmFileFormat

ROOT = Path(__file__).resolve().parent.parent.parent
EXAMPLES = ROOT / "examples"
DRAWINGS = EXAMPLES / "drawings"


def run(*arguments: str, cwd: Path) -> subprocess.CompletedProcess[str]:
    """Runs this interpreter."""
    return subprocess.run(
        [sys.executable, *arguments], cwd=cwd, capture_output=True, text=True, timeout=120, check=False
    )


def circles(path: Path) -> int:
    """How many circles lie in model space."""
    with korvan.cad.Image.load(str(path)) as image:
        entities = CadImage._cast_to(image).value.entities
        return sum(1 for entity in entities if entity.type_name_text == "CIRCLE")


class Examples(unittest.TestCase):
    def setUp(self) -> None:
        self._folder = tempfile.TemporaryDirectory()
        self.addCleanup(self._folder.cleanup)
        self.out = Path(self._folder.name)

    def test_the_converter_writes_every_drawing_in_every_format(self) -> None:
        done = run(str(EXAMPLES / "convert.py"), "--out", str(self.out), cwd=self.out)
        self.assertEqual(done.returncode, 0, done.stderr)
        wanted = {path.stem + suffix for path in DRAWINGS.glob("*.dxf") for suffix in (".pdf", ".svg", ".png")}
        self.assertEqual({path.name for path in self.out.iterdir()}, wanted)
        self.assertEqual([line for line in done.stdout.splitlines() if "failed" in line], [])

    def test_the_converter_goes_on_after_a_bad_file_and_says_so(self) -> None:
        bad = self.out / "bad.dxf"
        bad.write_text("no drawing")
        good = DRAWINGS / "heating_schematic.dxf"
        done = run(str(EXAMPLES / "convert.py"), "--out", str(self.out / "o"), str(bad), str(good), cwd=self.out)
        self.assertEqual(done.returncode, 1)
        self.assertIn("bad.dxf", done.stderr)
        self.assertTrue((self.out / "o" / "heating_schematic.pdf").exists())

    def test_the_walk_saves_its_change(self) -> None:
        done = run(str(EXAMPLES / "walk_entities.py"), str(DRAWINGS / "site_plan.dxf"), str(self.out), cwd=self.out)
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual(circles(self.out / "site_plan_changed.dxf"), circles(DRAWINGS / "site_plan.dxf") + 1)
        self.assertTrue((self.out / "site_plan_changed.pdf").exists())

    def test_the_walk_through_a_building_model_adds_what_is_missing(self) -> None:
        changed = self.out / "changed.ifc"
        source = DRAWINGS / "garden_house.ifc"
        done = run(str(EXAMPLES / "walk_ifc.py"), str(source), str(changed), cwd=self.out)
        self.assertEqual(done.returncode, 0, done.stderr)
        for line in ("Loft, elevation 2600.0", "  IfcWall Wall south W1", "FireRating = REI 30", "GrossVolume = 0.9"):
            self.assertIn(line, done.stdout)
        self.assertEqual(changed.read_text().count("IFCLABEL('not stated')"), 4)

    def run_snippets(self, page: str) -> str:
        """Runs the Python of a page, one block after the other; gives what it prints.

        A comment before a block, as test_docs.py explains it, tells why it cannot run.
        """
        (self.out / "examples").symlink_to(EXAMPLES)
        (self.out / "build").mkdir()
        text = (ROOT / page).read_text(encoding="utf-8")
        done = run("-c", "\n".join(re.findall(r"(?<!-->\n)```python\n(.*?)```", text, re.DOTALL)), cwd=self.out)
        self.assertEqual(done.returncode, 0, done.stderr)
        return done.stdout

    def test_the_readme_runs(self) -> None:
        printed = self.run_snippets("README.md")
        for line in ("OLD off", "Gable west W6 Qto_WallBaseQuantities", "Gate valve DN 50 Helvetica-Bold (126.0, 12.0)",
                     "7 changes of the fill colour"):
            self.assertIn(line, printed)
        self.assertEqual(circles(self.out / "build" / "changed.dxf"), circles(DRAWINGS / "site_plan.dxf") + 1)
        before = CgmFile.load(str(DRAWINGS / "gate_valve.cgm"))
        after = CgmFile.load(str(self.out / "build" / "gate_valve.cgm"))
        self.assertEqual((after.encoding, len(after.commands)), (CgmFileFormat.BINARY, len(before.commands) + 1))

    def test_the_readme_names_the_packages_that_the_build_installs(self) -> None:
        lines = (ROOT / "README.md").read_text(encoding="utf-8").replace("\\\n", " ").splitlines()
        named = [set(line.split()[4:]) for line in lines if line.startswith("sudo apt-get install ")]
        listed = [line.split() for line in (ROOT / "tools" / "debian-packages.txt").read_text().splitlines() if line]
        self.assertEqual(named, [{row[1] for row in listed if row[0] == group} for group in ("build", "run")])

    def test_the_tutorial_runs(self) -> None:
        printed = self.run_snippets("docs/tutorial.md")
        self.assertIn("['Model', 'Site 1:500', 'Plot 1']", printed)
        self.assertTrue((self.out / "build" / "sheets.pdf").exists())

    def test_the_page_on_helpers_runs(self) -> None:
        printed = self.run_snippets("docs/helpers.md")
        for line in ("floor_plan.pdf", "Wall south W1 REI 30 3.0", "examples/drawings/site_plan.dxf done 2018",
                     "examples/drawings/none.dxf failed No such file or directory"):
            self.assertIn(line, printed)
        self.assertTrue((self.out / "build" / "merged.dxf").exists())

    def test_the_page_on_services_runs(self) -> None:
        self.run_snippets("docs/services.md")
        self.assertTrue((self.out / "build" / "site_plan.pdf").exists())


if __name__ == "__main__":
    unittest.main()
