"""Tables on the terminal: aligned columns, one title, no decoration."""

from __future__ import annotations

from dataclasses import dataclass, field


@dataclass
class Table:
    """Rows of text under a heading; the first column is a name, the others are figures."""

    title: str
    columns: tuple[str, ...]
    rows: list[tuple[str, ...]] = field(default_factory=list)

    def add(self, *cells: str) -> None:
        """Adds a row; it has one cell a column."""
        if len(cells) != len(self.columns):
            raise ValueError(f"{len(cells)} cells for {len(self.columns)} columns")
        self.rows.append(cells)

    def print(self) -> None:
        """Writes the table to the standard output."""
        widths = [max(map(len, column)) for column in zip(self.columns, *self.rows)]
        print(f"\n{self.title}")
        for cells in (self.columns, *self.rows):
            name, *figures = (
                cell.ljust(width) if at == 0 else cell.rjust(width)
                for at, (cell, width) in enumerate(zip(cells, widths))
            )
            print("  " + "  ".join([name, *figures]).rstrip(), flush=True)


def duration(seconds: float) -> str:
    """A time in the unit that suits it."""
    for unit, factor in (("s", 1.0), ("ms", 1e3), ("us", 1e6)):
        if seconds * factor >= 1.0:
            return f"{seconds * factor:.3g} {unit}" if seconds * factor < 1000 else f"{seconds * factor:.0f} {unit}"
    return f"{seconds * 1e9:.0f} ns"


def ratio(ours: float, baseline: float) -> str:
    """How many times the baseline."""
    return f"{ours / baseline:.2f} x"


def verdict(ours: float, baseline: float, aim: float) -> str:
    """The ratio that is aimed at and whether it is held."""
    return f"{aim:g} x " + ("held" if ours <= baseline * aim else "MISSED")
