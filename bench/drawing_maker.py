"""Makes drawings of any number of entities, the same at each run."""

from __future__ import annotations

import random
from pathlib import Path
from typing import Callable, Iterator

LAYERS = ("walls", "doors", "grid", "notes", "pipes")
SEED = 20250301
FIRST_HANDLE = 0x100

Tag = tuple[int, object]
Maker = Callable[[random.Random], list[Tag]]


def _point(code: int, rng: random.Random) -> list[Tag]:
    return [(code, f"{rng.uniform(0, 10000):.4f}"), (code + 10, f"{rng.uniform(0, 10000):.4f}"), (code + 20, "0.0")]


def _line(rng: random.Random) -> list[Tag]:
    return [(0, "LINE"), (100, "AcDbLine"), *_point(10, rng), *_point(11, rng)]


def _circle(rng: random.Random) -> list[Tag]:
    return [(0, "CIRCLE"), (100, "AcDbCircle"), *_point(10, rng), (40, f"{rng.uniform(1, 50):.4f}")]


def _arc(rng: random.Random) -> list[Tag]:
    angle = rng.uniform(0, 360)
    return [(0, "ARC"), *_circle(rng)[1:], (100, "AcDbArc"), (50, f"{angle:.4f}"), (51, f"{angle + 90:.4f}")]


def _text(rng: random.Random) -> list[Tag]:
    return [(0, "TEXT"), (100, "AcDbText"), *_point(10, rng), (40, "2.5"), (1, f"room {rng.randrange(1000)}"),
            (100, "AcDbText")]


def _polyline(rng: random.Random) -> list[Tag]:
    count = rng.randrange(3, 9)
    tags: list[Tag] = [(0, "LWPOLYLINE"), (100, "AcDbPolyline"), (90, count), (70, 1)]
    for at in range(count):
        tags += _point(10, rng)[:2]
        if at % 2:
            tags.append((42, "0.5"))
    return tags


def _hatch(rng: random.Random) -> list[Tag]:
    x, y, side = rng.uniform(0, 10000), rng.uniform(0, 10000), rng.uniform(5, 60)
    corners = ((x, y), (x + side, y), (x + side, y + side), (x, y + side))
    tags: list[Tag] = [(0, "HATCH"), (100, "AcDbHatch"), (10, "0.0"), (20, "0.0"), (30, "0.0"), (210, "0.0"),
                       (220, "0.0"), (230, "1.0"), (2, "ANSI31"), (70, 0), (71, 0), (91, 1), (92, 2), (72, 0), (73, 1),
                       (93, 4)]
    for corner in corners:
        tags += [(10, f"{corner[0]:.4f}"), (20, f"{corner[1]:.4f}")]
    return [*tags, (97, 0), (75, 1), (76, 1), (52, "0.0"), (41, "1.0"), (77, 0), (78, 1), (53, "45.0"), (43, "0.0"),
            (44, "0.0"), (45, "-2.2451"), (46, "2.2451"), (79, 0), (98, 0)]


def _insert(rng: random.Random) -> list[Tag]:
    return [(0, "INSERT"), (100, "AcDbBlockReference"), (2, BLOCK), *_point(10, rng),
            (50, f"{rng.uniform(0, 360):.4f}")]


BLOCK = "VALVE"
MAKERS: tuple[Maker, ...] = (_line, _line, _line, _circle, _arc, _text, _polyline)
TEXT_HEAVY: tuple[Maker, ...] = (_text, _line, _circle)
HATCH_HEAVY: tuple[Maker, ...] = (_hatch, _line)
BLOCK_HEAVY: tuple[Maker, ...] = (_insert,)


def _table(name: str, records: list[list[Tag]]) -> Iterator[Tag]:
    yield from ((0, "TABLE"), (2, name), (100, "AcDbSymbolTable"), (70, len(records)))
    for record in records:
        yield from record
    yield (0, "ENDTAB")


def _head() -> Iterator[Tag]:
    yield from ((0, "SECTION"), (2, "HEADER"), (9, "$ACADVER"), (1, "AC1015"), (9, "$HANDSEED"), (5, "FFFFFF"),
                (0, "ENDSEC"), (0, "SECTION"), (2, "TABLES"))
    layers: list[list[Tag]] = [
        [(0, "LAYER"), (5, f"{0x20 + at:X}"), (100, "AcDbSymbolTableRecord"), (100, "AcDbLayerTableRecord"),
         (2, name), (70, 0), (62, at + 1), (6, "CONTINUOUS")]
        for at, name in enumerate(("0", *LAYERS))
    ]
    yield from _table("LAYER", layers)
    yield (0, "ENDSEC")


def _block() -> Iterator[Tag]:
    """A block of twelve entities."""
    yield from ((0, "SECTION"), (2, "BLOCKS"), (0, "BLOCK"), (5, "40"), (100, "AcDbEntity"), (8, "0"),
                (100, "AcDbBlockBegin"), (2, BLOCK), (70, 0), (10, "0.0"), (20, "0.0"), (30, "0.0"), (3, BLOCK))
    for at in range(12):
        yield from ((0, "LINE"), (5, f"{0x50 + at:X}"), (100, "AcDbEntity"), (8, "0"), (100, "AcDbLine"),
                    (10, f"{at}.0"), (20, "0.0"), (30, "0.0"), (11, f"{12 - at}.0"), (21, "8.0"), (31, "0.0"))
    yield from ((0, "ENDBLK"), (5, "41"), (100, "AcDbEntity"), (8, "0"), (100, "AcDbBlockEnd"), (0, "ENDSEC"))


def _tags(count: int, makers: tuple[Maker, ...]) -> Iterator[Tag]:
    rng = random.Random(SEED)
    yield from _head()
    yield from _block() if _insert in makers else ()
    yield from ((0, "SECTION"), (2, "ENTITIES"))
    for at in range(count):
        kind, *data = makers[at % len(makers)](rng)
        yield kind
        yield from ((5, f"{FIRST_HANDLE + at:X}"), (100, "AcDbEntity"), (8, LAYERS[at % len(LAYERS)]))
        yield from data
    yield from ((0, "ENDSEC"), (0, "EOF"))


def make_drawing(path: Path, count: int, makers: tuple[Maker, ...] = MAKERS) -> None:
    """Writes a drawing of that many entities on five layers, in ASCII of release 2000; the makers take turns."""
    with path.open("w", encoding="ascii", newline="\n") as file:
        file.writelines(f"{code:3}\n{value}\n" for code, value in _tags(count, makers))
