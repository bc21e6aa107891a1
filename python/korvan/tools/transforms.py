"""Moves, rotates, scales and mirrors entities.

A transform keeps angles: it may move, rotate about Z, scale alike in all directions and mirror. An entity in the
coordinates of its plane stays exact: its plane is transformed with it.
"""

from __future__ import annotations

import math
from collections.abc import Callable, Iterable
from dataclasses import dataclass
from typing import Any

from korvan.cad.fileformats.cad.cadobjects import Cad3DPoint, CadEntityBase
from korvan.tools.errors import ToolError
from korvan.tools.opening import cast

Vector = tuple[float, float, float]
Rows = tuple[Vector, Vector, Vector]
_ONE: Rows = ((1.0, 0.0, 0.0), (0.0, 1.0, 0.0), (0.0, 0.0, 1.0))
# Normals nearer to Z than this have the world's Y axis for reference, by the arbitrary axis algorithm of DXF.
_ARBITRARY = 1 / 64


def _cross(a: Vector, b: Vector) -> Vector:
    return a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]


def _dot(a: Vector, b: Vector) -> float:
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]


def _unit(a: Vector) -> Vector:
    length = math.sqrt(_dot(a, a))
    return (a[0] / length, a[1] / length, a[2] / length) if length else (0.0, 0.0, 1.0)


def plane_axes(normal: Vector) -> Rows:
    """The axes of the plane of a normal, in world coordinates, by the arbitrary axis algorithm of DXF."""
    z = _unit(normal)
    reference: Vector = (0.0, 1.0, 0.0) if abs(z[0]) < _ARBITRARY and abs(z[1]) < _ARBITRARY else (0.0, 0.0, 1.0)
    x = _unit(_cross(reference, z))
    return x, _unit(_cross(z, x)), z


@dataclass(frozen=True)
class Transform:
    """A similarity of space: ``linear`` times a point, then ``offset``. Combine by ``@``: ``second @ first``."""

    linear: Rows = _ONE
    offset: Vector = (0.0, 0.0, 0.0)

    @staticmethod
    def move(x: float, y: float, z: float = 0.0) -> Transform:
        return Transform(offset=(float(x), float(y), float(z)))

    @staticmethod
    def rotate(degrees: float, about: tuple[float, float] = (0.0, 0.0)) -> Transform:
        """A rotation about Z, counterclockwise."""
        quarter, rest = divmod(degrees, 90)
        if rest == 0:  # exact where it can be
            cos, sin = ((1.0, 0.0), (0.0, 1.0), (-1.0, 0.0), (0.0, -1.0))[int(quarter) % 4]
        else:
            cos, sin = math.cos(math.radians(degrees)), math.sin(math.radians(degrees))
        return Transform(((cos, -sin, 0.0), (sin, cos, 0.0), (0.0, 0.0, 1.0)))._about(about)

    @staticmethod
    def scale(factor: float, about: tuple[float, float] = (0.0, 0.0)) -> Transform:
        """A scale by a factor above 0, alike in all directions."""
        if not factor > 0:
            raise ToolError(f"a scale has a factor above 0, not {factor:g}")
        return Transform(((factor, 0.0, 0.0), (0.0, factor, 0.0), (0.0, 0.0, factor)))._about(about)

    @staticmethod
    def mirror(start: tuple[float, float], end: tuple[float, float]) -> Transform:
        """A reflection about a line, given by two points. Texts are mirrored as well."""
        across, up = end[0] - start[0], end[1] - start[1]
        length = across * across + up * up
        if not length:
            raise ToolError("a line to mirror about needs two different points")
        cos, sin = (across * across - up * up) / length, 2 * across * up / length
        return Transform(((cos, sin, 0.0), (sin, -cos, 0.0), (0.0, 0.0, 1.0)))._about(start)

    def _about(self, centre: tuple[float, float]) -> Transform:
        x, y = float(centre[0]), float(centre[1])
        return Transform.move(x, y) @ self @ Transform.move(-x, -y)

    def __matmul__(self, first: Transform) -> Transform:
        columns = list(zip(*first.linear, strict=True))
        rows = [tuple(_dot(row, column) for column in columns) for row in self.linear]
        return Transform((rows[0], rows[1], rows[2]), self.point(first.offset))  # type: ignore[arg-type]

    def vector(self, v: Vector) -> Vector:
        return _dot(self.linear[0], v), _dot(self.linear[1], v), _dot(self.linear[2], v)

    def point(self, p: Vector) -> Vector:
        x, y, z = self.vector(p)
        return x + self.offset[0], y + self.offset[1], z + self.offset[2]

    @property
    def factor(self) -> float:
        """How much longer lengths become."""
        return math.sqrt(_dot(self.linear[0], self.linear[0]))

    @property
    def is_mirror(self) -> bool:
        return _dot(_cross(self.linear[0], self.linear[1]), self.linear[2]) < 0


class _Plane:
    """What a transform does within the plane of an entity: a rotation, a scale and an offset."""

    def __init__(self, transform: Transform, normal: Vector) -> None:
        self.before = plane_axes(normal)
        rotated = _unit(transform.vector(self.before[2]))
        # The other side of the plane undoes the reflection: arcs and texts keep their sense in it.
        self.normal: Vector = (-rotated[0], -rotated[1], -rotated[2]) if transform.is_mirror else rotated
        self.after = plane_axes(self.normal)
        self.transform = transform
        along = transform.vector(self.before[0])
        self.turn = math.atan2(_dot(along, self.after[1]), _dot(along, self.after[0]))

    def point(self, p: Vector) -> Vector:
        x, y, z = self.before
        world = (x[0] * p[0] + y[0] * p[1] + z[0] * p[2], x[1] * p[0] + y[1] * p[1] + z[1] * p[2],
                 x[2] * p[0] + y[2] * p[1] + z[2] * p[2])
        moved = self.transform.point(world)
        return _dot(self.after[0], moved), _dot(self.after[1], moved), _dot(self.after[2], moved)

    def degrees(self, angle: float) -> float:
        return (angle + math.degrees(self.turn)) % 360

    def vector2(self, x: float, y: float) -> tuple[float, float]:
        cos, sin = math.cos(self.turn) * self.transform.factor, math.sin(self.turn) * self.transform.factor
        return x * cos - y * sin, x * sin + y * cos


def _vector(p: Cad3DPoint) -> Vector:
    return p.x, p.y, p.z


@dataclass(frozen=True)
class _Shape:
    """The members of a type of entity that a transform changes."""

    points: tuple[str, ...] = ()
    """Points in world coordinates."""
    vectors: tuple[str, ...] = ()
    """Differences of points in world coordinates."""
    directions: tuple[str, ...] = ()
    """Unit vectors in world coordinates."""
    plane: tuple[str, ...] = ()
    """Points in coordinates of the plane."""
    degrees: tuple[str, ...] = ()
    lengths: tuple[str, ...] = ()
    lists: tuple[str, ...] = ()
    """Lists of points in world coordinates."""
    more: Callable[[Any, Transform, _Plane], None] | None = None


def _lightweight(own: Any, transform: Transform, plane: _Plane) -> None:
    for vertex in own.coordinates:
        vertex.x, vertex.y, _ = plane.point((vertex.x, vertex.y, own.elevation))
    _, _, own.elevation = plane.point((0.0, 0.0, own.elevation))
    for widths in (own.start_widths, own.end_widths):
        widths[:] = [width * transform.factor for width in widths]


def _polyline(own: Any, transform: Transform, plane: _Plane) -> None:
    is_flat = own.type_name_text == "POLYLINE" and type(own).__name__ == "CadPolyline"
    height = own.elevation.z
    for vertex in own.vertices:
        one = cast(vertex)
        point = _vector(one.location_point)
        if is_flat:
            x, y, _ = plane.point((point[0], point[1], height))
            one.location_point = Cad3DPoint(x, y, 0.0)
        else:
            one.location_point = Cad3DPoint(*transform.point(point))
        for name in ("start_width", "end_width"):
            if hasattr(one, name):
                setattr(one, name, getattr(one, name) * transform.factor)
    if is_flat:
        own.elevation = Cad3DPoint(0.0, 0.0, plane.point((0.0, 0.0, height))[2])


def _reference(own: Any, transform: Transform, _plane: _Plane) -> None:
    for name in ("scale_x", "scale_y", "scale_z", "column_spacing", "row_spacing"):
        setattr(own, name, getattr(own, name) * transform.factor)
    for attribute in own.attributes:
        _apply(cast(attribute), transform)


def _edge(edge: Any, transform: Transform, point: Callable[[Any], None], plane: _Plane) -> None:
    """An edge of the boundary of a hatch."""
    for name in ("center_point", "first_point", "second_point"):
        if hasattr(edge, name):
            point(getattr(edge, name))
    for name in ("control_points", "fit_points"):
        for one in getattr(edge, name, ()):
            point(one)
    for name in ("major_end_point", "start_tangent", "end_tangent"):
        if hasattr(edge, name):
            one = getattr(edge, name)
            one.x, one.y = plane.vector2(one.x, one.y)
            setattr(edge, name, one)
    if hasattr(edge, "radius"):
        edge.radius *= transform.factor
        # Angles of clockwise edges run the other way.
        turn = math.degrees(plane.turn) * (1 if edge.counter_clockwise else -1)
        edge.start_angle, edge.end_angle = edge.start_angle + turn, edge.end_angle + turn


def _hatch(own: Any, transform: Transform, plane: _Plane) -> None:
    height = own.elevation_point.z

    def point(one: Any) -> None:
        one.x, one.y, _ = plane.point((one.x, one.y, height))

    for container in own.boundary_paths:
        path = cast(container.boundary_path)
        for vertex in getattr(path, "vertices", ()):
            point(vertex)
        for edge in getattr(path, "edges", ()):
            _edge(cast(edge), transform, point, plane)
    for seed in own.seed_points:
        point(seed)
    for line in own.pattern_definitions:
        point(line.line_base_point)
        line.line_offset.x, line.line_offset.y = plane.vector2(line.line_offset.x, line.line_offset.y)
        line.line_angle += math.degrees(plane.turn)
        line.dash_lengths[:] = [length * transform.factor for length in line.dash_lengths]
    own.pattern_angle += math.degrees(plane.turn)
    own.pattern_scale *= transform.factor
    own.elevation_point = Cad3DPoint(0.0, 0.0, plane.point((0.0, 0.0, height))[2])


def _dimension(own: Any, transform: Transform, plane: _Plane) -> None:
    measured = own.actual_measurement
    for name in ("middle_of_text_point", "insertion_point"):
        setattr(own, name, Cad3DPoint(*plane.point(_vector(getattr(own, name)))))
    for name in ("first_extension_point", "second_extension_point", "chord_point", "far_chord_point", "first_point",
                 "second_point", "third_point", "arc_point", "feature_point", "leader_end_point", "arc_center",
                 "jog_point", "override_center", "leader_start", "leader_end"):
        if hasattr(own, name):
            setattr(own, name, Cad3DPoint(*transform.point(_vector(getattr(own, name)))))
    if hasattr(own, "rotation_angle"):
        own.rotation_angle = plane.degrees(own.rotation_angle)
    # A measurement that the file states stays as it was; others follow from the points.
    if own.actual_measurement == measured and "Angular" not in type(own).__name__:
        own.actual_measurement = measured * transform.factor
    own.block_name = ""  # the graphics of the old place; without them they are made anew


def _leader(own: Any, transform: Transform, _plane: _Plane) -> None:
    context = own.context_data
    for name in ("content_base_point", "text_location", "plane_origin"):
        setattr(context, name, Cad3DPoint(*transform.point(_vector(getattr(context, name)))))
    for name in ("text_direction", "plane_x_axis", "plane_y_axis"):
        setattr(context, name, Cad3DPoint(*_unit(transform.vector(_vector(getattr(context, name))))))
    for name in ("text_height", "arrowhead_size", "landing_gap", "text_width", "defined_height", "scale"):
        setattr(context, name, getattr(context, name) * transform.factor)
    for node in context.leader_nodes:
        node.last_leader_line_point = Cad3DPoint(*transform.point(_vector(node.last_leader_line_point)))
        node.dogleg_vector = Cad3DPoint(*_unit(transform.vector(_vector(node.dogleg_vector))))
        node.dogleg_length *= transform.factor
        for line in node.leader_lines:
            for point in line.vertices:
                point.x, point.y, point.z = transform.point(_vector(point))


def _underlay(own: Any, transform: Transform, plane: _Plane) -> None:
    for name in ("scale_x", "scale_y", "scale_z"):
        setattr(own, name, getattr(own, name) * transform.factor)
    own.normal = Cad3DPoint(*plane.normal)


def _helix(own: Any, transform: Transform, _plane: _Plane) -> None:
    own.handedness = own.handedness != transform.is_mirror


def _multiline(own: Any, transform: Transform, _plane: _Plane) -> None:
    for vertex in own.vertices:
        vertex.location = Cad3DPoint(*transform.point(_vector(vertex.location)))
        for name in ("direction", "miter"):
            setattr(vertex, name, Cad3DPoint(*_unit(transform.vector(_vector(getattr(vertex, name))))))


_TEXT = _Shape(plane=("first_alignment", "second_alignment"), degrees=("text_rotation",),
               lengths=("text_height", "thickness"))
_FLAT4 = _Shape(plane=("first_point", "second_point", "third_point", "fourth_point"), lengths=("thickness",))
_DIMENSION = _Shape(points=("definition_point",), more=_dimension)
_IMAGE = _Shape(points=("insertion_point",), vectors=("vector_u", "vector_v"))
_UNDERLAY = _Shape(plane=("insertion_point",), degrees=("rotation_angle",), more=_underlay)
_SHAPES: dict[str, _Shape] = {
    "LINE": _Shape(points=("first_point", "second_point"), lengths=("thickness",)),
    "POINT": _Shape(points=("center_point",), lengths=("thickness",)),
    "CIRCLE": _Shape(plane=("center_point",), lengths=("radius", "thickness")),
    "ARC": _Shape(plane=("center_point",), degrees=("start_angle", "end_angle"), lengths=("radius", "thickness")),
    "ELLIPSE": _Shape(points=("center_point",), vectors=("major_end_point",)),
    "SPLINE": _Shape(vectors=("start_tangent", "end_tangent"), lists=("control_points", "fit_points")),
    "XLINE": _Shape(points=("first_point",), directions=("unit_direction",)),
    "RAY": _Shape(points=("first_point",), directions=("unit_direction",)),
    "3DFACE": _Shape(points=("first_point", "second_point", "third_point", "fourth_point")),
    "SOLID": _FLAT4, "TRACE": _FLAT4,
    "TEXT": _TEXT, "ATTRIB": _TEXT, "ATTDEF": _TEXT,
    "MTEXT": _Shape(points=("insertion_point",), vectors=("text_direction",), degrees=("text_rotation",),
                    lengths=("initial_text_height", "reference_rectangle_width", "reference_rectangle_height")),
    "INSERT": _Shape(plane=("insertion_point",), degrees=("rotation_angle",), more=_reference),
    "LWPOLYLINE": _Shape(lengths=("constant_width", "thickness"), more=_lightweight),
    "POLYLINE": _Shape(more=_polyline),
    "HATCH": _Shape(more=_hatch),
    "DIMENSION": _DIMENSION, "ARC_DIMENSION": _DIMENSION, "LARGE_RADIAL_DIMENSION": _DIMENSION,
    "LEADER": _Shape(lists=("coordinates",), directions=("horizontal_direction",),
                     vectors=("last_vertex_offset_from_block", "last_vertex_offset_from_annotation"),
                     lengths=("text_height", "text_width")),
    "MULTILEADER": _Shape(more=_leader), "MLEADER": _Shape(more=_leader),
    "IMAGE": _IMAGE, "WIPEOUT": _IMAGE,
    "PDFUNDERLAY": _UNDERLAY, "DWFUNDERLAY": _UNDERLAY, "DGNUNDERLAY": _UNDERLAY,
    "SHAPE": _Shape(plane=("insertion_point",), degrees=("rotation_angle",), lengths=("size", "thickness")),
    "HELIX": _Shape(points=("axis_base_point", "start_point"), directions=("axis_vector",),
                    vectors=("start_tangent", "end_tangent"), lists=("control_points", "fit_points"),
                    lengths=("radius", "turn_height"), more=_helix),
    "LIGHT": _Shape(points=("position", "target")),
    "MLINE": _Shape(points=("start_point",), more=_multiline),
    "ACAD_TABLE": _Shape(points=("insertion_point",), directions=("horizontal_direction",)),
    "MESH": _Shape(lists=("vertices",)),
    "TOLERANCE": _Shape(points=("insertion_point",), directions=("direction_vector",)),
    "VIEWPORT": _Shape(points=("center_point",), lengths=("width", "height")),
}
_UNABLE = {
    "3DSOLID": "is a solid in ACIS data", "BODY": "is a solid in ACIS data", "REGION": "is a solid in ACIS data",
    "OLE2FRAME": "is a document of another program",
    "ACAD_PROXY_ENTITY": "is known to its own program alone",
}
# Types with sizes that nothing tells, such as the offsets of the lines of a multiline: they are moved and rotated.
_RIGID = {"MLINE", "ACAD_TABLE"}


def _apply(own: Any, transform: Transform) -> None:
    shape = _SHAPES[own.type_name_text]
    normal = getattr(own, "extrusion_direction", getattr(own, "normal", None))
    plane = _Plane(transform, _vector(normal) if normal is not None else (0.0, 0.0, 1.0))
    for name in shape.directions:
        direction = _vector(getattr(own, name))
        if any(direction):
            setattr(own, name, Cad3DPoint(*_unit(transform.vector(direction))))
    for name in shape.points:
        setattr(own, name, Cad3DPoint(*transform.point(_vector(getattr(own, name)))))
    for name in shape.vectors:
        setattr(own, name, Cad3DPoint(*transform.vector(_vector(getattr(own, name)))))
    for name in shape.plane:
        setattr(own, name, Cad3DPoint(*plane.point(_vector(getattr(own, name)))))
    for name in shape.degrees:
        setattr(own, name, plane.degrees(getattr(own, name)))
    for name in shape.lengths:
        setattr(own, name, getattr(own, name) * transform.factor)
    for name in shape.lists:
        for point in getattr(own, name):
            point.x, point.y, point.z = transform.point(_vector(point))
    if shape.more is not None:
        shape.more(own, transform, plane)
    if normal is not None and hasattr(own, "extrusion_direction") and any(_vector(normal)):
        own.extrusion_direction = Cad3DPoint(*plane.normal)


def _reason(kind: str) -> str:
    return "is a surface in ACIS data" if kind.endswith("SURFACE") else _UNABLE.get(kind, "is of an unknown type")


def transform(entities: Iterable[CadEntityBase], change: Transform) -> int:
    """Transforms entities in place; returns how many there were.

    Solids, regions and surfaces of ACIS data, OLE objects and proxies are refused, multilines and tables where the
    change is more than a movement and a rotation. Dimensions lose the block with their graphics, which is made anew
    from their points when they are drawn.

    :raises ToolError: One is of a type that cannot be transformed; nothing is changed then.
    """
    found = [cast(entity) for entity in entities]
    kinds = sorted({one.type_name_text for one in found})
    unable = [f"{kind} ({_reason(kind)})" for kind in kinds if kind not in _SHAPES]
    if change.is_mirror or not math.isclose(change.factor, 1):
        unable += [f"{kind} (is moved and rotated only)" for kind in kinds if kind in _RIGID]
    if unable:
        raise ToolError(f"{', '.join(unable)} cannot be transformed so; leave these entities out of the query")
    for own in found:
        _apply(own, change)
    return len(found)

