"""Compares the types that `korvan.cad` has with a list of those it shall have: `make catalogue`.

The list is a table, separated by tabs, of module, kind, name and, for an enum, its Python base.
Exits with 1 where the package has a type that is not on the list, or one of another kind.
"""

from __future__ import annotations

import argparse
import csv
import enum
import sys
from collections import Counter
from collections.abc import Iterator
from dataclasses import dataclass, field
from pathlib import Path
from types import ModuleType

import korvan.cad

Kinds = dict[tuple[str, str], str]


@dataclass
class Count:
    """What stands of one module."""

    stands: int = 0
    missing: list[str] = field(default_factory=list)
    extra: list[str] = field(default_factory=list)
    wrong: list[str] = field(default_factory=list)


def wanted(path: Path) -> Kinds:
    """Kind by module and name; an enum's kind is its base."""
    with path.open(newline="", encoding="utf-8") as file:
        rows = list(csv.DictReader(file, delimiter="\t"))
    return {(row["module"], row["name"]): row["enum_kind"] or row["kind"] for row in rows}


def kind_of(type_: type) -> str:
    """How a bound type would be listed."""
    for base in (enum.IntFlag, enum.IntEnum):
        if issubclass(type_, base):
            return base.__name__
    managed = type_._type_of()
    if managed.is_interface:
        return "interface"
    return "struct" if managed.is_value_type else "class"


def types_in(owner: ModuleType | type, prefix: str = "") -> Iterator[tuple[str, type]]:
    """The bound types of a module, nested ones with the names of their outer types before theirs."""
    for name, value in vars(owner).items():
        # A property whose type is of the same name is a descriptor here, not a type.
        if isinstance(value, type) and not name.startswith("_") and value is not owner:
            yield prefix + name, value
            if not issubclass(value, enum.Enum):
                yield from types_in(value, f"{prefix}{name}.")


def modules(module: ModuleType, name: str) -> Iterator[tuple[str, ModuleType]]:
    """A module and all below it; what is internal starts with a line."""
    yield name, module
    for child, value in vars(module).items():
        if isinstance(value, ModuleType) and not child.startswith("_"):
            if value.__name__ == f"{name}.{child}":
                yield from modules(value, value.__name__)


def found() -> Kinds:
    """Kind by module and name, of what is there."""
    return {
        (name, short): kind_of(type_)
        for name, module in modules(korvan.cad, "korvan.cad")
        for short, type_ in types_in(module)
    }


def compare(want: Kinds, have: Kinds) -> dict[str, Count]:
    """What stands, module by module."""
    counts: dict[str, Count] = {}
    for module, name in sorted(want.keys() | have.keys()):
        count = counts.setdefault(module, Count())
        kinds = want.get((module, name)), have.get((module, name))
        match kinds:
            case None, _:
                count.extra.append(name)
            case _, None:
                count.missing.append(name)
            case expected, kind if expected != kind:
                count.wrong.append(f"{name} ({kind}, not {expected})")
            case _:
                count.stands += 1
    return counts


def report(counts: dict[str, Count], show_missing: bool) -> None:
    """One line a module, and below it what is extra or wrong."""
    print(f"{'stand':>6}{'missing':>9}{'extra':>7}{'wrong':>7}  module")
    total: Counter[str] = Counter()
    for module, count in counts.items():
        numbers = count.stands, len(count.missing), len(count.extra), len(count.wrong)
        print("{:6}{:9}{:7}{:7}  {}".format(*numbers, module))
        for title, names in (("extra", count.extra), ("wrong", count.wrong)):
            for name in names:
                print(f"{'':31}{title}: {name}")
        if show_missing and count.missing:
            print(f"{'':31}missing: {' '.join(count.missing)}")
        total.update(dict(zip(("stand", "missing", "extra", "wrong"), numbers, strict=True)))
    print("{stand:6}{missing:9}{extra:7}{wrong:7}  all".format_map(total))


def main() -> int:
    parser = argparse.ArgumentParser(description=(__doc__ or "").splitlines()[0])
    parser.add_argument("list", type=Path, help="table of module, kind, name and enum kind")
    parser.add_argument("--missing", action="store_true", help="name what is missing")
    parser.add_argument("--module", default="", help="only modules whose names start so")
    arguments = parser.parse_args()
    counts = compare(wanted(arguments.list), found())
    chosen = {name: count for name, count in counts.items() if name.startswith(arguments.module)}
    report(chosen, arguments.missing)
    return 1 if any(count.extra or count.wrong for count in chosen.values()) else 0


if __name__ == "__main__":
    sys.exit(main())
