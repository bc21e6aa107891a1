"""What `import korvan.cad` costs a process, beside an empty process and one with the bare runtime."""

from __future__ import annotations

import os
import subprocess
import sys
import time
from pathlib import Path

from report import Table, duration, ratio, verdict

ROUNDS = 15
AIM = 1.5
# What enums and types of the whole tree may cost above the runtime.
TREE_ALLOWANCE = 0.150


def _process_seconds(code: str, environment: dict[str, str]) -> float:
    start = time.perf_counter()
    subprocess.run([sys.executable, "-c", code], env=environment, check=True, stdout=subprocess.DEVNULL)
    return time.perf_counter() - start


def run(modules: Path) -> None:
    """Prints the table; `modules` is the folder of the baselines' extensions."""
    environment = dict(os.environ)
    # Without its .pyc files Python would compile the package at each start.
    environment.pop("PYTHONDONTWRITEBYTECODE", None)
    environment["PYTHONPATH"] = f"{modules}:{environment.get('PYTHONPATH', '')}"
    runtime = modules.parent / "package" / "korvan" / "netcore" / "netcore10.0"
    floor = modules.parent / "testing" / "assemblies" / "floor"
    codes = {
        "python -c pass": "pass",
        "bare runtime and one managed call": f"import bare_runtime; bare_runtime.start({str(runtime)!r}, "
        f"{f'{runtime}:{floor}'!r})",
        "import korvan.cad": "import korvan.cad",
    }
    best = dict.fromkeys(codes, float("inf"))
    for code in codes.values():
        _process_seconds(code, environment)
    for _ in range(ROUNDS):
        for name, code in codes.items():
            best[name] = min(best[name], _process_seconds(code, environment))

    empty, bare, ours = best.values()
    table = Table(f"Import, whole process, best of {ROUNDS}", ("", "time", "of bare runtime", "aim"))
    table.add("python -c pass", duration(empty), ratio(empty, bare), "")
    table.add("bare runtime and one managed call", duration(bare), ratio(bare, bare), "")
    table.add("import korvan.cad", duration(ours), ratio(ours, bare), "")
    allowed = bare + TREE_ALLOWANCE
    table.add("  beside runtime + 150 ms for the tree", duration(allowed), ratio(ours, allowed),
              verdict(ours, allowed, AIM))
    table.print()
