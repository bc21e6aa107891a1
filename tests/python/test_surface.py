"""The types that are there: that they are those of the list, and what each of them does."""

from __future__ import annotations

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
CATALOGUE = ROOT.parent / "shared" / "catalogue.tsv"


def compare(table: Path) -> tuple[int, str]:
    done = subprocess.run(
        [sys.executable, str(ROOT / "tools" / "catalogue.py"), str(table), "--module", "korvan.cad"],
        capture_output=True, text=True, check=False)
    return done.returncode, done.stdout + done.stderr


class Catalogue(unittest.TestCase):
    @unittest.skipUnless(CATALOGUE.exists(), "there is no shared/catalogue.tsv beside the checkout")
    def test_no_type_is_beyond_the_list_or_of_another_kind(self) -> None:
        code, output = compare(CATALOGUE)
        self.assertEqual(code, 0, output)

    def test_what_is_extra_missing_or_wrong_is_named(self) -> None:
        rows = ["module\tkind\tname\tenum_kind", "korvan.cad\tclass\tImage\t", "korvan.cad\tstruct\tLoadOptions\t",
                "korvan.cad\tenum\tInterpolationMode\tIntFlag", "korvan.cad.nowhere\tclass\tNothing\t"]
        with tempfile.TemporaryDirectory() as folder:
            table = Path(folder, "list.tsv")
            table.write_text("\n".join(rows) + "\n", encoding="utf-8")
            code, output = compare(table)
        self.assertEqual(code, 1)
        for line in ("wrong: LoadOptions (class, not struct)", "wrong: InterpolationMode (IntEnum, not IntFlag)",
                     "extra: Color\n", "     1        1"):
            self.assertIn(line, output)


if __name__ == "__main__":
    unittest.main()
