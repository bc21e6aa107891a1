"""The numbers of all entities of a kind, as buffers that are filled in one call."""

from __future__ import annotations

from collections.abc import Iterable
from typing import NamedTuple, cast

KINDS = (
    "LINE", "POINT", "CIRCLE", "ARC", "ELLIPSE", "INSERT", "3DFACE", "SOLID", "TRACE", "LWPOLYLINE", "POLYLINE",
    "SPLINE",
)  # fmt: skip


class EntityRows(NamedTuple):
    """A table with rows of floats. Points are in world coordinates.

    One row an entity: LINE ``x1 y1 z1 x2 y2 z2``; POINT ``x y z``; CIRCLE centre, radius, normal; ARC as CIRCLE, then
    start and end angle in degrees; ELLIPSE centre, major axis, normal, ratio of the axes, start and end parameter in
    radians; INSERT position, scale factors, rotation in degrees, normal; 3DFACE, SOLID and TRACE four corners, as they
    are in the file. One row a vertex: LWPOLYLINE and POLYLINE ``x y z bulge``; SPLINE ``x y z weight`` of its control
    points. Meshes, which files store as POLYLINE too, are left out.
    """

    values: memoryview[float]
    """The floats, row after row (format ``d``)."""
    ends: memoryview
    """For each entity the number of rows up to its last one (``q``)."""
    indices: memoryview
    """For each entity its index among the entities of the source (``q``)."""
    closed: memoryview
    """For each entity 1 if its last vertex leads to its first, else 0 (``B``)."""
    width: int
    """The number of columns."""


def entity_rows(source: object, kind: str, layers: Iterable[str] | None = None) -> EntityRows:
    """Collects the rows of the entities of one kind.

    ``source`` is a ``CadImage`` (its model space), a ``CadBlockEntity`` or a list of entities of the library;
    ``layers`` are names, of which case is ignored.
    """
    return _collect(source, kind, None if layers is None else "\n".join(layers))


def entity_bounds(drawing: object, layout: str) -> EntityRows:
    """Collects the boxes of the entities of a layout: the least X and Y, the largest X and Y.

    ``drawing`` is a ``CadImage``. Entities that take no space have no row, as lines without end. Boxes of texts are
    approximate.
    """
    return _collect(drawing, "BOUNDS", layout)


def entity_digests(source: object, digits: int) -> list[bytes]:
    """16 bytes for each entity: those of another one that has the same values, but for handles and extended data.

    ``source`` is as of `entity_rows`; ``digits`` are the decimals that numbers are rounded to. Entities with different
    bytes may still be alike where files state defaults or leave them out.
    """
    found = _collect(source, "DIGESTS", str(digits)).values.tobytes()
    return [found[at : at + 16] for at in range(0, len(found), 16)]


def _collect(source: object, kind: str, names: str | None) -> EntityRows:
    from korvan import cad

    collect = getattr(cad, "_entity_rows")  # noqa: B009: it is no part of the stubs
    values, ends, indices, closed, width = cast(
        "tuple[bytearray, bytearray, bytearray, bytearray, int]", collect(source, kind, names)
    )
    return EntityRows(
        memoryview(values).cast("d"),
        memoryview(ends).cast("q"),
        memoryview(indices).cast("q"),
        memoryview(closed),
        width,
    )
