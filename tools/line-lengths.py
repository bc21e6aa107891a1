#!/usr/bin/env python3
"""Fails where a line of a source is longer than 120 columns."""

from __future__ import annotations

import subprocess
import sys
from pathlib import Path

MAX_COLUMNS = 120
PATTERNS = ["*.cs", "*.cpp", "*.h", "*.py", "*.js", "*.mjs", "*.css", "*.sh"]


def main() -> int:
    listed = subprocess.run(["git", "ls-files", "-z", "--", *PATTERNS], capture_output=True, text=True, check=True)
    failed = False
    for name in filter(None, listed.stdout.split("\0")):
        path = Path(name)
        if not path.exists():
            continue
        for number, line in enumerate(path.read_text("utf-8").splitlines(), 1):
            if len(line) > MAX_COLUMNS:
                print(f"{name}:{number}: {len(line)} columns, at most {MAX_COLUMNS}", file=sys.stderr)
                failed = True
    return failed


if __name__ == "__main__":
    sys.exit(main())
