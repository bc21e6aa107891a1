"""A short run of the mutators over all readers and writers, and what longer runs have found."""

from __future__ import annotations

import sys
import tempfile
import unittest
from pathlib import Path
from subprocess import run

FUZZ = Path(__file__).with_name("fuzz.py")


class Mutants(unittest.TestCase):
    def test_mutants_raise_named_errors_within_limits(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            command = [sys.executable, str(FUZZ), "--rounds", "300", "--minutes", "5", "--folder", folder]
            done = run(command, capture_output=True, text=True, check=False)
        self.assertEqual(done.returncode, 0, done.stdout[-4000:] + done.stderr[-4000:])
        self.assertIn("300 mutants", done.stdout)


if __name__ == "__main__":
    sys.exit(unittest.main())
