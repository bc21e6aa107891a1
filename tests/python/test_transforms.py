"""Transforms of entities: their extents move as points do, in the planes of any normal."""

from __future__ import annotations

import unittest
from collections.abc import Callable
from typing import Any

from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cad.cadobjects import (
    Cad2DPoint, Cad3DPoint, CadArc, CadCircle, CadEllipse, CadInsertObject, CadLwPolyline, CadSolid, CadSpline, CadText)
from korvan.tools import ToolError, Transform, copy_entities, extents, open_drawing, query, transform
from korvan.tools.transforms import plane_axes

from drawings import EXAMPLES, SHARED, needs_shared

NORMALS = ((0.0, 0.0, 1.0), (0.0, 0.0, -1.0), (1.0, 0.0, 0.0), (0.6, 0.0, 0.8), (0.0, 1.0, 0.0))
# A transform, and what it makes of the corners of a box.
CASES: tuple[tuple[str, Transform, Callable[[Any, Any], tuple[Any, Any]]], ...] = (
    ("move", Transform.move(5, -7, 2), lambda a, b: (add(a, (5, -7, 2)), add(b, (5, -7, 2)))),
    ("rotate", Transform.rotate(90), lambda a, b: ((-b[1], a[0], a[2]), (-a[1], b[0], b[2]))),
    ("turn over", Transform.rotate(180, (10, 0)), lambda a, b: ((20 - b[0], -b[1], a[2]), (20 - a[0], -a[1], b[2]))),
    ("scale", Transform.scale(3, (1, 1)), lambda a, b: (scaled(a), scaled(b))),
    ("mirror", Transform.mirror((0, 0), (0, 1)), lambda a, b: ((-b[0], a[1], a[2]), (-a[0], b[1], b[2]))),
    ("mirror about a diagonal", Transform.mirror((0, 0), (1, 1)),
     lambda a, b: ((a[1], a[0], a[2]), (b[1], b[0], b[2]))),
)


def add(a: Any, b: Any) -> Any:
    return tuple(x + y for x, y in zip(a, b, strict=True))


def scaled(a: Any) -> Any:
    return 3 * a[0] - 2, 3 * a[1] - 2, 3 * a[2]


def point(x: float, y: float, z: float = 0.0) -> Cad3DPoint:
    return Cad3DPoint(float(x), float(y), float(z))


def with_values(entity: Any, **members: Any) -> Any:
    for name, value in members.items():
        setattr(entity, name, value)
    return entity


def outline() -> CadLwPolyline:
    found = CadLwPolyline()
    for x, y in ((0, 0), (8, 0), (8, 3)):
        found.coordinates.append(Cad2DPoint(float(x), float(y)))
    found.bulges.extend([0.4, -0.7, 0.0])
    found.elevation = 2.0
    return found


def curve() -> CadSpline:
    found = CadSpline()
    found.degree = 2
    found.control_points.extend([point(0, 0), point(5, 9, 1), point(12, 1, 4)])
    found.knot_values.extend([0.0, 0.0, 0.0, 1.0, 1.0, 1.0])
    return found


FLAT: dict[str, Callable[[], Any]] = {
    "circle": lambda: with_values(CadCircle(), center_point=point(4, 3, 2), radius=2.5),
    "arc": lambda: with_values(CadArc(), center_point=point(4, 3, 2), radius=2.5, start_angle=20.0, end_angle=140.0),
    "polyline": outline,
    "solid": lambda: with_values(CadSolid(), first_point=point(0, 0, 1), second_point=point(4, 0, 1),
                                 third_point=point(1, 2, 1), fourth_point=point(3, 2, 1)),
}
IN_SPACE: dict[str, Callable[[], Any]] = {
    "spline": curve,
    "ellipse": lambda: with_values(CadEllipse(), center_point=point(2, 1, 3), major_end_point=point(4, 3),
                                   axis_ratio=0.4, start_angle=0.3, end_angle=2.9),
}


class Transforms(unittest.TestCase):
    def check(self, entity: Any, name: str, change: Transform, moved: Callable[[Any, Any], tuple[Any, Any]]) -> None:
        drawing = CadImage()
        drawing.add_entity(entity)
        wanted = moved(*extents(drawing))
        transform([entity], change)
        for corner, expected in zip(extents(drawing), wanted, strict=True):
            for found, value in zip(corner, expected, strict=True):
                self.assertAlmostEqual(found, value, delta=1e-6, msg=f"{name}: {corner} is not {expected}")

    def test_extents_move_as_points_do_in_planes_of_any_normal(self) -> None:
        for name, change, moved in CASES:
            for kind, make in FLAT.items():
                for normal in NORMALS:
                    with self.subTest(name, kind=kind, normal=normal):
                        entity = make()
                        entity.extrusion_direction = Cad3DPoint(*normal)
                        self.check(entity, name, change, moved)
            for kind, make in IN_SPACE.items():
                with self.subTest(name, kind=kind):
                    self.check(make(), name, change, moved)

    @needs_shared
    def test_the_extents_of_every_entity_of_real_drawings(self) -> None:
        # The box of a text depends on its direction, and those of hatches and leaders are not exact.
        for path in (EXAMPLES / "bearing_flange.dxf", EXAMPLES / "site_plan.dxf",
                     SHARED / "dxf" / "lwg__example_2018.dxf", SHARED / "dxf" / "ezdxf__hatches_1.dxf"):
            source = open_drawing(path, CadImage)
            kinds = "LINE ARC CIRCLE ELLIPSE LWPOLYLINE POLYLINE SPLINE SOLID HATCH 3DFACE MESH INSERT"
            found = [one for one in query(source, kinds) if one.get_length() or one.get_area()]
            for entity in found[:60]:
                with self.subTest(path.name, kind=entity.type_name_text, handle=entity.unique_id):
                    target = CadImage()
                    (copied,) = copy_entities([entity], source, target)
                    low, high = extents(target)
                    transform([copied], Transform.rotate(90))
                    found_low, found_high = extents(target)
                    size = max(1.0, *map(abs, (*low, *high)))
                    for one, other in zip((*found_low, *found_high), (-high[1], low[0], low[2], -low[1], high[0],
                                                                      high[2]), strict=True):
                        self.assertAlmostEqual(one / size, other / size, places=6)

    def test_references_take_their_attributes_along(self) -> None:
        drawing = open_drawing(EXAMPLES / "floor_plan.dxf", CadImage)
        bubble = next(query(drawing, CadInsertObject, where=lambda one: len(one.attributes) > 0))
        (mark,) = bubble.attributes
        before = mark.first_alignment.x - bubble.insertion_point.x, mark.first_alignment.y - bubble.insertion_point.y
        transform([bubble], Transform.rotate(90, (3, 4)) @ Transform.scale(2))
        after = mark.first_alignment.x - bubble.insertion_point.x, mark.first_alignment.y - bubble.insertion_point.y
        self.assertAlmostEqual(after[0], -2 * before[1])
        self.assertAlmostEqual(after[1], 2 * before[0])
        self.assertEqual((bubble.rotation_angle, mark.text_rotation), (90.0, 90.0))

    def test_texts_scale_and_rotate(self) -> None:
        text = with_values(CadText(), default_value="x", text_height=2.5, text_rotation=30.0)
        transform([text], Transform.scale(4) @ Transform.rotate(45))
        self.assertAlmostEqual(text.text_height, 10)
        self.assertAlmostEqual(text.text_rotation, 75)

    def test_axes_of_planes_are_those_of_the_format(self) -> None:
        rows = {(0.0, 0.0, 1.0): ((1, 0, 0), (0, 1, 0)), (0.0, 0.0, -1.0): ((-1, 0, 0), (0, 1, 0)),
                (1.0, 0.0, 0.0): ((0, 1, 0), (0, 0, 1)), (0.0, 2.0, 0.0): ((-1, 0, 0), (0, 0, 1))}
        for normal, (x, y) in rows.items():
            self.assertEqual(plane_axes(normal)[:2], (x, y))

    def test_what_is_no_similarity_is_refused(self) -> None:
        for make in (lambda: Transform.scale(-1), lambda: Transform.scale(float("nan")),
                     lambda: Transform.mirror((1, 1), (1, 1))):
            with self.assertRaises(ToolError):
                make()


if __name__ == "__main__":
    unittest.main()
