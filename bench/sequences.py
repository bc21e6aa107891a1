"""What managed lists cost in Python, and Python lists in managed code: 100,000 elements of each kind."""

from __future__ import annotations

from dataclasses import dataclass
from pathlib import Path

import korvan.probe as probe

from report import Table, duration, ratio, verdict
from timing import Statement, measure

COUNT = 100_000
NUMBERS = 4.0
OBJECTS = 8.0
WALK = "for item in items: pass"


@dataclass(frozen=True)
class Row:
    """One operation on a list of one kind; what it may cost of a Python list's."""

    name: str
    kind: str
    statement: str
    count: int = COUNT
    aim: float | None = None


ROWS = (
    Row("walk integers, each", "numbers", WALK, aim=NUMBERS),
    Row("walk doubles, each", "weights", WALK, aim=NUMBERS),
    Row("walk text, each", "words", WALK),
    Row("walk objects, each", "echoes", WALK, aim=OBJECTS),
    Row("one integer by index", "numbers", "items[50_000]", 1),
    Row("a slice of 1,000 integers, each", "numbers", "items[1_000:2_000]", 1_000),
    Row("a copy of the integers, each", "numbers", "items.copy()"),
    Row("a copy of the objects, each", "echoes", "items.copy()"),
)


def _lists() -> dict[str, tuple[object, object, list[object]]]:
    """For each kind: the managed list, the C sequence, the Python list."""
    from sequence_c import Sequence

    shelf = probe.Shelf()
    made: dict[str, list[object]] = {
        "numbers": [number % 10_000 + 300 for number in range(COUNT)],  # beyond the cached ones, and the sum fits
        "weights": [number + 0.5 for number in range(COUNT)],
        "words": ["layer" + str(number % 10) for number in range(COUNT)],
        "echoes": [probe.Echo()] * COUNT,
    }
    lists = {}
    for kind, (name, items) in enumerate(made.items()):
        setattr(shelf, name, items)
        lists[name] = (getattr(shelf, name), Sequence(kind, COUNT), items)
    return lists


def run(modules: Path) -> None:
    """Prints the tables; the baseline's extension is importable."""
    import sequence_c

    lists = _lists()
    columns = ("", "ours", "C sequence", "Python list", "of C", "of list", "aim")
    table = Table(f"Lists of {COUNT:,}, best of several rounds after a warm-up", columns)
    for row in ROWS:
        managed, in_c_items, in_python_items = lists[row.kind]
        in_c_statement = row.statement
        if "[1_000" in row.statement:  # the C sequence has no slices; a copy of as many stands for one
            in_c_items, in_c_statement = sequence_c.Sequence(0, row.count), "items.copy()"
        ours, in_c, in_python = measure([
            Statement(row.statement, {"items": managed}, count=row.count),
            Statement(in_c_statement, {"items": in_c_items}, count=row.count, is_managed=False),
            Statement(row.statement, {"items": in_python_items}, count=row.count, is_managed=False),
        ])
        table.add(row.name, duration(ours), duration(in_c), duration(in_python), ratio(ours, in_c),
                  ratio(ours, in_python), verdict(ours, in_python, row.aim) if row.aim else "")
    table.print()

    numbers = lists["numbers"][2]
    names = {"shelf": probe.Shelf(), "numbers": numbers, "sequence_c": sequence_c}
    ours, in_c, in_python = measure([
        Statement("shelf.sum_numbers(numbers)", names, count=COUNT),
        Statement("sequence_c.sum(numbers)", names, count=COUNT, is_managed=False),
        Statement("sum(numbers)", names, count=COUNT, is_managed=False),
    ])
    table = Table(f"A Python list of {COUNT:,} in managed code, each",
                  ("", "ours", "C", "Python", "of C", "of Python"))
    table.add("copied into a managed list and summed", duration(ours), duration(in_c), duration(in_python),
              ratio(ours, in_c), ratio(ours, in_python))
    table.print()
