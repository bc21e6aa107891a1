"""What being a wrapper costs: compared, hashed, shown, cast, and a million of them alive."""

from __future__ import annotations

import subprocess
import sys
from dataclasses import dataclass
from pathlib import Path

import korvan.probe as probe

from report import Table, duration, ratio
from timing import Statement, measure

MILLION = 1_000_000


@dataclass(frozen=True)
class Row:
    """One operation: our statement and that of a C type which holds one pointer."""

    name: str
    ours: str
    baseline: str


ROWS = (
    Row("wrapper made and released", "echo.peer", "Pointer()"),
    Row("== of two wrappers of one object", "one == other", "left == right"),
    Row("hash", "hash(one)", "hash(left)"),
    Row("repr", "repr(one)", "repr(left)"),
    Row("_cast_to, a fit", "Echo._cast_to(one)", "Pointer.cast_to(left)"),
    Row("_cast_to, no fit", "Box._cast_to(one)", "Pointer.cast_to(None)"),
)


# In a process of its own: memory that an earlier row left free would hide what these take.
ALIVE = """
import gc, time
{prepare}

def resident():
    with open("/proc/self/status", encoding="ascii") as status:
        return int(next(line for line in status if line.startswith("VmRSS:")).split()[1]) * 1024

for _ in range(100_000):  # the compiled code is its last version then
    {make}
gc.collect()
memory, start = resident(), time.perf_counter()
objects = [None] * {count}
for at in range({count}):
    objects[at] = {make}
made, taken = time.perf_counter(), resident() - memory
objects.clear()
released = time.perf_counter()
print((made - start) / {count}, taken / {count}, (released - made) / {count}, {left_behind})
"""


def _alive(prepare: str, make: str, left_behind: str) -> tuple[float, ...]:
    """Seconds to make one, bytes that it takes, seconds to release one, out of a million alive at once; handles
    that are left."""
    code = ALIVE.format(prepare=prepare, make=make, count=MILLION, left_behind=left_behind)
    done = subprocess.run([sys.executable, "-c", code], check=True, capture_output=True, text=True)
    return tuple(map(float, done.stdout.split()))


def run(modules: Path) -> None:
    """Prints the tables; the baseline's extension is importable."""
    import plain

    echo = probe.Echo()
    echo.peer = probe.Echo()
    ours_names = {"echo": echo, "Echo": probe.Echo, "Box": probe.Box, "one": echo.peer, "other": echo.peer}
    plain_names = {"Pointer": plain.Pointer, "left": plain.Pointer(), "right": plain.Pointer()}
    table = Table("Wrappers, best of several rounds after a warm-up", ("", "ours", "C type", "of C"))
    for row in ROWS:
        ours, baseline = measure([Statement(row.ours, ours_names), Statement(row.baseline, plain_names,
                                                                             is_managed=False)])
        table.add(row.name, duration(ours), duration(baseline), ratio(ours, baseline))
    table.print()

    ours_made, ours_size, ours_released, left_behind = _alive(
        "from korvan import probe; echo = probe.Echo(); echo.peer = probe.Echo(); before = probe._live_handles()",
        "echo.peer", "probe._live_handles() - before")
    plain_made, plain_size, plain_released, _ = _alive(
        f"import sys; sys.path.append({str(modules)!r}); from plain import Pointer", "Pointer()", "0")
    table = Table("A million alive at once, for each", ("", "ours", "C type", "of C"))
    table.add("made", duration(ours_made), duration(plain_made), ratio(ours_made, plain_made))
    table.add("memory", f"{ours_size:.0f} B", f"{plain_size:.0f} B", ratio(ours_size, plain_size))
    table.add("released", duration(ours_released), duration(plain_released), ratio(ours_released, plain_released))
    table.add("handles left behind", f"{left_behind:.0f}", "", "")
    table.print()
