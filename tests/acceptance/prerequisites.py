"""What a check needs of the machine, and how it says that the machine has not got it."""

from __future__ import annotations

import os
import shutil
import sys
from pathlib import Path
from typing import NoReturn

ROOT = Path(__file__).resolve().parents[2]
SKIPPED = 77
"""The exit code of a check that could not run; its last line of output is the reason."""


def skip(reason: str) -> NoReturn:
    """Ends a check that can't run here."""
    print(reason)
    sys.exit(SKIPPED)


def require(*programs: str, root: bool = False) -> None:
    """Makes sure of programs, which Debian may have in folders for administrators only, and of the user's rights."""
    path = os.environ.get("PATH", os.defpath) + ":/usr/local/sbin:/usr/sbin:/sbin"
    missing = [program for program in programs if shutil.which(program, path=path) is None]
    if missing:
        skip(f"not installed: {', '.join(missing)}")
    if root and os.geteuid() != 0:
        skip("needs root")
