"""What values cost on their way: text, bytes, numbers walked by managed code, failures."""

from __future__ import annotations

from dataclasses import dataclass
from pathlib import Path

import korvan.probe as probe

from report import Table, duration, ratio
from timing import Statement, measure

MEGABYTE = bytes(range(256)) * 4096
NUMBERS = list(range(100_000))


@dataclass(frozen=True)
class Row:
    """One operation: our statement and the C extension's."""

    name: str
    ours: str
    baseline: str
    prepare: str = ""


def _rows() -> list[Row]:
    rows = [Row("the least crossing: a bool read", "echo.flag", "c.nothing()")]
    for length in (10, 1_000, 1_000_000):
        rows.append(Row(f"text of {length:,} in", f"echo.text = text[{length}]",
                        f"c.take_text(text[{length}])"))
        rows.append(Row(f"text of {length:,} out", "echo.text", "c.give_text()",
                        f"echo.text = text[{length}]; c.take_text(text[{length}])"))
    rows += [
        Row("1 MiB of bytes in", "echo.blob = data", "c.take_bytes(data)"),
        Row("1 MiB of bytes out", "echo.blob", "c.give_bytes()", "echo.blob = data; c.take_bytes(data)"),
        Row("100,000 ints walked", "echo.sum(numbers)", "c.sum(numbers)"),
        Row("exception thrown and caught", "try: echo.fail('System.Exception', 'x')\nexcept RuntimeError: pass",
            "try: c.fail('x')\nexcept RuntimeError: pass"),
    ]
    return rows


def run(modules: Path) -> None:
    """Prints the table; the baseline's extension is importable."""
    import values_c

    names: dict[str, object] = {
        "echo": probe.Echo(),
        "c": values_c,
        "text": {length: "layer_0\u00e9x"[:5] * (length // 5) for length in (10, 1_000, 1_000_000)},
        "data": MEGABYTE,
        "numbers": NUMBERS,
    }
    table = Table("Values, best of several rounds after a warm-up", ("", "ours", "C extension", "of C", "crossings"))
    least = 0.0
    for row in _rows():
        exec(row.prepare, dict(names))  # noqa: S102: the rows stand above
        ours, baseline = measure([Statement(row.ours, names), Statement(row.baseline, names, is_managed=False)])
        least = least or ours
        table.add(row.name, duration(ours), duration(baseline), ratio(ours, baseline), f"{ours / least:.1f}")
    table.print()
