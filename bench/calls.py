"""What a crossing costs: the same operation on a C type, on bare managed functions, and through us."""

from __future__ import annotations

from dataclasses import dataclass
from pathlib import Path

import korvan.cad
import korvan.probe as probe
from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cad.cadobjects import CadLine
from korvan.cad.imageoptions import CadRasterizationOptions, PngOptions

from report import Table, duration, ratio, verdict
from timing import Statement, measure

LIST_LENGTH = 1000
MEGABYTE = bytes(range(256)) * 4096


@dataclass(frozen=True)
class Row:
    """One operation: our statement, the baselines' statement, and what we aim at."""

    name: str
    ours: str
    baseline: str
    aim: float
    against_plain: bool = False
    count: int = 1


ROWS = (
    Row("construct and release", "Margins()", "Item()", 1.5),
    Row("read an int", "echo.signed32", "item.number", 1.2),
    Row("read a double", "echo.float64", "item.real", 1.2),
    Row("read a string", "echo.text", "item.text", 1.5),
    Row("write a double", "echo.float64 = 1.5", "item.real = 1.5", 1.5),
    Row("write an option (float)", "options.page_width = 1600.0", "item.real = 1.5", 1.5),
    Row("method with one object", "echo.is_peer(peer)", "item.can_take(other)", 2.0),
    Row("the same, that looks a class up", "image.can_save(png)", "item.can_take(other)", 2.0),
    Row("overload, second form taken", "echo.pick(1.5)", "item.pick(1.5)", 5.4, against_plain=True),
    Row("iterate managed objects, each", "for line in lines: pass", f"for one in Item.items({LIST_LENGTH}): pass",
        1.5, count=LIST_LENGTH),
    Row("1 MiB of bytes in", "echo.blob = data", "item.blob = data", 2.0, against_plain=True),
    Row("exception thrown and caught", "try: failing.value\nexcept RuntimeError: pass",
        "try: item.fail()\nexcept RuntimeError: pass", 2.0),
)


def _our_names() -> dict[str, object]:
    echo = probe.Echo()
    echo.text = "layer"
    echo.peer = probe.Echo()
    image = CadImage()
    for _ in range(LIST_LENGTH):
        image.add_entity(CadLine())
    return {
        "Margins": korvan.cad.imageoptions.Margins,
        "echo": echo,
        "peer": echo.peer,
        "failing": probe.Failing(False),
        "options": CadRasterizationOptions(),
        "image": image,
        "png": PngOptions(),
        "lines": image.entities,
        "data": MEGABYTE,
    }


def _baseline_names(item_type: type) -> dict[str, object]:
    return {"Item": item_type, "item": item_type(1), "other": item_type(1), "data": MEGABYTE}


def run(modules: Path) -> None:
    """Prints the table; the baselines' extensions are importable."""
    import floor
    import plain

    runtime = modules.parent / "package" / "korvan" / "netcore" / "netcore10.0"
    floor.bind(str(runtime / "libkorvan.embed.coreclrwrap.so"))
    ours, plain_names, floor_names = _our_names(), _baseline_names(plain.Item), _baseline_names(floor.Item)

    table = Table("Calls, best of several rounds after a warm-up",
                  ("", "ours", "C type", "managed floor", "of C", "of floor", "aim"))
    for row in ROWS:
        our_time, plain_time, floor_time = measure([
            Statement(row.ours, ours, count=row.count),
            Statement(row.baseline, plain_names, count=row.count, is_managed=False),
            Statement(row.baseline, floor_names, count=row.count),
        ])
        against = plain_time if row.against_plain else floor_time
        aim = verdict(our_time, against, row.aim) + (" (of C)" if row.against_plain else "")
        table.add(row.name, duration(our_time), duration(plain_time), duration(floor_time),
                  ratio(our_time, plain_time), ratio(our_time, floor_time), aim)
    table.print()
