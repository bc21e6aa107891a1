"""What `import korvan.cad` costs a process, in time and memory, beside the least that its parts cost.

The floor is a process that starts the bare runtime, makes the same enums by the standard library alone, and as many
static types in C as there are bound ones.
"""

from __future__ import annotations

import json
import marshal
import os
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from report import Table, duration, ratio, verdict

ROUNDS = 11
AIM = 1.2

# Tells the enums of the tree, with their kinds and members, and the number of its other types.
TELL = """
import enum, json, types, korvan.cad
enums, count, modules = [], 0, [korvan.cad]
while modules:
    for value in vars(modules.pop()).values():
        if isinstance(value, types.ModuleType) and value.__name__.startswith("korvan.cad."):
            modules.append(value)
        elif isinstance(value, enum.EnumType):
            members = [(name, int(member)) for name, member in value.__members__.items()]
            enums.append((value.__name__, issubclass(value, enum.IntFlag), members))
        elif isinstance(value, type):
            count += 1
print(json.dumps((enums, count)))
"""
ENUMS = """
import enum, marshal
with open({path!r}, "rb") as file:
    made = [(enum.IntFlag if is_flag else enum.IntEnum)(name, members)
            for name, is_flag, members in marshal.load(file)]
"""
MEMORY = """
with open("/proc/self/status", encoding="ascii") as status:
    print(next(line for line in status if line.startswith("VmRSS:")).split()[1])
"""


def _seconds(code: str, environment: dict[str, str]) -> float:
    start = time.perf_counter()
    subprocess.run([sys.executable, "-c", code], env=environment, check=True, stdout=subprocess.DEVNULL)
    return time.perf_counter() - start


def _mebibytes(code: str, environment: dict[str, str]) -> float:
    done = subprocess.run([sys.executable, "-c", code + MEMORY], env=environment, check=True, capture_output=True)
    return int(done.stdout.split()[-1]) / 1024


def _codes(modules: Path, folder: str, environment: dict[str, str]) -> dict[str, str]:
    """What each process of the comparison runs."""
    told = subprocess.run([sys.executable, "-c", TELL], env=environment, check=True, capture_output=True)
    enums, count = json.loads(told.stdout)
    path = os.path.join(folder, "enums")
    with open(path, "wb") as file:
        # In the form that costs least to read.
        marshal.dump([(name, is_flag, [tuple(member) for member in members]) for name, is_flag, members in enums], file)
    runtime = modules.parent / "package" / "korvan" / "netcore" / "netcore10.0"
    floor = modules.parent / "testing" / "assemblies" / "floor"
    bare = f"import bare_runtime; bare_runtime.start({str(runtime)!r}, {f'{runtime}:{floor}'!r})\n"
    made = ENUMS.format(path=path)
    types = f"import many_types; many_types.make({count})\n"
    return {
        "python -c pass": "pass\n",
        "bare runtime and one managed call": bare,
        f"{len(enums):,} enums by the standard library": made,
        f"{count:,} static types in C": types,
        "all three: the floor": bare + made + types,
        "import korvan.cad": "import korvan.cad\n",
    }


def run(modules: Path) -> None:
    """Prints the table; `modules` is the folder of the baselines' extensions."""
    environment = dict(os.environ)
    # Without its .pyc files Python would compile the package at each start.
    environment.pop("PYTHONDONTWRITEBYTECODE", None)
    environment["PYTHONPATH"] = f"{modules}:{environment.get('PYTHONPATH', '')}"
    with tempfile.TemporaryDirectory() as folder:
        codes = _codes(modules, folder, environment)
        best = dict.fromkeys(codes, float("inf"))
        for _ in range(ROUNDS):
            for name, code in codes.items():
                best[name] = min(best[name], _seconds(code, environment))
        memory = {name: _mebibytes(code, environment) for name, code in codes.items()}

    floor = "all three: the floor"
    table = Table(f"Import, whole process, best of {ROUNDS}", ("", "time", "of floor", "memory", "of floor", "aim"))
    for name in codes:
        aim = verdict(best[name], best[floor], AIM) if name == "import korvan.cad" else ""
        table.add(name, duration(best[name]), ratio(best[name], best[floor]), f"{memory[name]:.0f} MiB",
                  ratio(memory[name], memory[floor]), aim)
    table.print()
    _print_first_use(environment)


# In one process: the first of each kind of call, and the same once more.
FIRST = """
import time
import korvan.cad
from korvan.cad.imageoptions import CadRasterizationOptions

def measured(work):
    times = []
    for _ in range(2):
        start = time.perf_counter()
        result = work()
        times.append(time.perf_counter() - start)
    print(*times)
    return result

options = measured(CadRasterizationOptions)
measured(lambda: options.page_width)
measured(lambda: setattr(options, "zoom", 1.0))
matrix = measured(korvan.cad.Matrix)
measured(lambda: matrix.translate(1.0, 2.0))
measured(lambda: korvan.cad.Color.red)
measured(lambda: list(korvan.cad.Image.load({plan!r}).get_strings()))
"""
FIRST_USES = (
    "a class: bound and constructed", "a property read", "a property written", "a second class", "an overloaded method",
    "a static value", "a drawing loaded",
)


def _print_first_use(environment: dict[str, str]) -> None:
    plan = Path(__file__).resolve().parent.parent / "examples" / "drawings" / "site_plan.dxf"
    best = [(float("inf"), float("inf"))] * len(FIRST_USES)
    for _ in range(ROUNDS):
        done = subprocess.run([sys.executable, "-c", FIRST.format(plan=str(plan))], env=environment, check=True,
                              capture_output=True, text=True)
        for at, line in enumerate(done.stdout.splitlines()):
            first, second = map(float, line.split())
            best[at] = min(best[at][0], first), min(best[at][1], second)
    table = Table(f"First use in a process, best of {ROUNDS}", ("", "first", "second", "of second"))
    for name, (first, second) in zip(FIRST_USES, best):
        table.add(name, duration(first), duration(second), ratio(first, second))
    table.print()
