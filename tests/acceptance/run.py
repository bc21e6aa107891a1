"""Checks of what is shipped, each in surroundings that a test of the build can't have: `make acceptance`.

Runs every ``check_*.py`` of this folder, or those that are named: ``run.py wheel viewer``. A check ends with 0 if it
passed and with 77 if the machine lacks what it needs; its last line is the reason then.
"""

from __future__ import annotations

import subprocess
import sys
import time
from collections.abc import Sequence
from pathlib import Path

from prerequisites import ROOT, SKIPPED

HERE = Path(__file__).resolve().parent


def install() -> None:
    """Installs what the checks need. What can't be had is not fatal: the checks that need it are skipped."""
    done = subprocess.run([ROOT / "tools" / "ensure-packages.sh", "acceptance"], stdin=subprocess.DEVNULL, check=False)
    if done.returncode != 0:
        print("acceptance: not all packages can be installed; checks that need them are skipped")


def run(check: Path) -> tuple[str, str]:
    """Runs one check; its result and the last line that it printed."""
    command = [sys.executable, str(check)]
    last = ""
    with subprocess.Popen(command, stdout=subprocess.PIPE, text=True, cwd=ROOT, stdin=subprocess.DEVNULL) as child:
        assert child.stdout is not None
        for line in child.stdout:
            print(f"    {line}", end="", flush=True)
            last = line.strip() or last
    results = {0: "passed", SKIPPED: "skipped"}
    return results.get(child.returncode, "failed"), last


def main(names: Sequence[str]) -> int:
    checks = [HERE / f"check_{name}.py" for name in names] or sorted(HERE.glob("check_*.py"))
    unknown = [check.name for check in checks if not check.is_file()]
    if unknown:
        print(f"acceptance: there is no {', '.join(unknown)}", file=sys.stderr)
        return 2
    install()
    summary: list[tuple[str, str]] = []
    for check in checks:
        name = check.stem.removeprefix("check_")
        print(f"{name}:", flush=True)
        start = time.monotonic()
        result, last = run(check)
        reason = "" if result == "passed" else f": {last}"
        summary.append((result, f"{name}: {result} after {time.monotonic() - start:.0f} s{reason}"))
    print("\n".join(line for _, line in summary))
    return int(any(result == "failed" for result, _ in summary))


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
