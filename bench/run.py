"""Runs the measurements and prints their tables: `make bench`.

    build/python bench/run.py --modules build/release/bench [subject ...]
"""

from __future__ import annotations

import argparse
import importlib
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
SUBJECTS = ("imports", "calls", "objects", "sequences", "streams", "values", "loading", "walking", "models", "images",
            "documents", "pages_svg", "dwg_files", "commands", "batches")


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--modules", type=Path, required=True, help="folder of the baselines' extensions")
    parser.add_argument("subjects", nargs="*", help=f"what to measure: {', '.join(SUBJECTS)}; all by default")
    arguments = parser.parse_args()
    unknown = set(arguments.subjects) - set(SUBJECTS)
    if unknown:
        parser.error(f"no such subject: {', '.join(sorted(unknown))}")
    modules = arguments.modules.resolve()
    sys.path[:0] = [str(HERE), str(modules)]
    for subject in arguments.subjects or SUBJECTS:
        importlib.import_module(subject).run(modules)
    return 0


if __name__ == "__main__":
    sys.exit(main())
