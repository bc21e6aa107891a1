"""The numbers of all entities of a kind in one call: as NumPy arrays where NumPy is there, else as memory views.

A loop over entities makes a Python object for each entity and each point. Here one call crosses into the library and
returns the floats of all of them, without a copy on the way to NumPy.
"""

from __future__ import annotations

from collections.abc import Iterable, Iterator
from dataclasses import dataclass
from importlib import import_module
from typing import TYPE_CHECKING, Any, TypeAlias

from korvan._entity_rows import KINDS, entity_rows
from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cad.cadobjects import CadBlockEntity
from korvan.tools.errors import ToolError, matching, unknown

if TYPE_CHECKING:
    from korvan.cad._typing import ListView
    from korvan.cad.fileformats.cad.cadobjects import CadEntityBase

Source: TypeAlias = "CadImage | CadBlockEntity | ListView[CadEntityBase]"
Names = str | Iterable[str]
_CIRCLE = ("x", "y", "z", "radius", "normal_x", "normal_y", "normal_z")
_CORNERS = tuple(f"{axis}{number}" for number in (1, 2, 3, 4) for axis in "xyz")
COLUMNS: dict[str, tuple[str, ...]] = {
    "LINE": ("x1", "y1", "z1", "x2", "y2", "z2"),
    "POINT": ("x", "y", "z"),
    "CIRCLE": _CIRCLE,
    "ARC": (*_CIRCLE, "start_angle", "end_angle"),
    "ELLIPSE": ("x", "y", "z", "major_x", "major_y", "major_z", "normal_x", "normal_y", "normal_z", "ratio",
                "start_parameter", "end_parameter"),
    "INSERT": ("x", "y", "z", "scale_x", "scale_y", "scale_z", "rotation", "normal_x", "normal_y", "normal_z"),
    "3DFACE": _CORNERS, "SOLID": _CORNERS, "TRACE": _CORNERS,
    "LWPOLYLINE": ("x", "y", "z", "bulge"), "POLYLINE": ("x", "y", "z", "bulge"),
    "SPLINE": ("x", "y", "z", "weight"),
}


def _numpy() -> Any:
    try:
        return import_module("numpy")
    except ImportError:
        return None


@dataclass(frozen=True, eq=False)
class Rows:
    """A table of numbers: a row an entity, or for polylines and splines a row a vertex."""

    kind: str
    columns: tuple[str, ...]
    """The names of the columns. Points are in world coordinates, angles in degrees, parameters in radians."""
    values: Any
    """The rows: a NumPy array of two dimensions, or a memory view of two dimensions without NumPy."""
    ends: Any
    """For each entity, how many rows there are up to its last one."""
    indices: Any
    """For each entity, its index among the entities of the source."""
    closed: Any
    """For each entity, 1 if its last vertex leads to its first."""

    def __len__(self) -> int:
        """The number of entities."""
        return len(self.ends)

    def column(self, name: str) -> Any:
        """A column by its name: a NumPy array that shares the memory, or a list without NumPy."""
        if name not in self.columns:
            raise unknown(f"column of {self.kind}", name, self.columns)
        at = self.columns.index(name)
        return self.values[:, at] if hasattr(self.values, "dtype") else [row[at] for row in self.values.tolist()]

    def split(self) -> Iterator[Any]:
        """The rows of each entity: the vertices of each polyline."""
        start = 0
        for end in self.ends.tolist():
            yield self.values[start:end]
            start = end


def _layer_names(source: Source, layer: Names | None) -> list[str] | None:
    if layer is None:
        return None
    names = [layer] if isinstance(layer, str) else list(layer)
    if isinstance(source, CadImage):
        return matching("layer", names, list(source.layers.names))
    for name in names:
        if any(sign in name for sign in "*?["):
            raise ToolError(f"the layers of a pattern such as {name!r} are known of a drawing only")
    return names


def arrays(source: Source, kind: str, *, layer: Names | None = None) -> Rows:
    """The numbers of all entities of a kind.

    :param source: A drawing, whose model space is meant, a block, or the ``entities`` of either or of a layout. Other
        sequences are not taken; ``layer`` selects.
    :param kind: The type of the entities as in files: one of ``COLUMNS``.
    :param layer: Names or patterns of layers; all by default.
    :raises ToolError: The kind has no table, there is no such layer, or the source is of another type.
    """
    if isinstance(source, (list, tuple, set, frozenset, Iterator)):
        raise ToolError("the source is a drawing, a block or its entities; "
                        f"of a {type(source).__name__} of entities, read the numbers one by one")
    keyword = kind.upper()
    if keyword not in COLUMNS:
        raise unknown("table of", kind, KINDS)
    found = entity_rows(source, keyword, _layer_names(source, layer))
    numpy = _numpy()
    count = len(found.values) // found.width
    if numpy is None:
        values: Any = found.values.cast("B").cast("d", (count, found.width)) if count else found.values
        return Rows(keyword, COLUMNS[keyword], values, found.ends, found.indices, found.closed)
    table = numpy.frombuffer(found.values, dtype=float).reshape(count, found.width)
    ends, indices = (numpy.frombuffer(one, dtype=numpy.int64) for one in (found.ends, found.indices))
    return Rows(keyword, COLUMNS[keyword], table, ends, indices, numpy.frombuffer(found.closed, dtype=numpy.uint8))


def polylines(source: Source, *, layer: Names | None = None) -> list[Any]:
    """The vertices of all polylines, each as rows of x, y, z and bulge: those of type LWPOLYLINE, then POLYLINE."""
    return [one for kind in ("LWPOLYLINE", "POLYLINE") for one in arrays(source, kind, layer=layer).split()]
