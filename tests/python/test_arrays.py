"""Bulk access: the numbers of all entities of a kind, with NumPy where it is there and without."""

from __future__ import annotations

import unittest
from typing import Any
from unittest import mock

from korvan._entity_rows import KINDS
from korvan.cad.fileformats.cad import CadImage
from korvan.tools import ToolError, open_drawing, query
from korvan.tools.arrays import COLUMNS, arrays, polylines

from drawings import EXAMPLES, SHARED, needs_shared

try:
    import numpy
except ImportError:
    numpy = None


def rows(table: Any) -> list[list[float]]:
    return table.values.tolist() if len(table) else []


class Arrays(unittest.TestCase):
    def setUp(self) -> None:
        self.plan = open_drawing(EXAMPLES / "floor_plan.dxf", CadImage)

    def test_the_numbers_are_those_of_the_entities(self) -> None:
        lines = [[one.first_point.x, one.first_point.y, one.first_point.z, one.second_point.x, one.second_point.y,
                  one.second_point.z] for one in query(self.plan, "LINE")]
        self.assertEqual(rows(arrays(self.plan, "LINE")), lines)
        self.assertEqual(list(arrays(self.plan, "circle").column("radius")),
                         [one.radius for one in query(self.plan, "CIRCLE")])
        found = polylines(self.plan, layer="A-F*")
        by_hand = [one for one in query(self.plan, "LWPOLYLINE", layer="A-F*")]
        self.assertEqual([len(one) for one in found], [len(one.coordinates) for one in by_hand])
        for table, one in zip(found, by_hand, strict=True):
            self.assertEqual([tuple(row[:2]) for row in table.tolist()], [(at.x, at.y) for at in one.coordinates])

    def test_entities_are_found_again(self) -> None:
        table = arrays(self.plan, "LWPOLYLINE", layer=["A-FURN", "A-ROOF"])
        self.assertEqual({self.plan.entities[int(at)].layer_name for at in table.indices}, {"A-FURN", "A-ROOF"})
        closed = {int(at): bool(one) for at, one in zip(table.indices, table.closed, strict=True)}
        self.assertEqual(closed, {at: one.is_closed for at, one in enumerate(query(self.plan)) if at in closed})
        block = self.plan.block_entities.get("PLANT")
        self.assertEqual(len(arrays(block, "ARC")), sum(one.type_name_text == "ARC" for one in block.entities))

    @needs_shared
    def test_without_numpy_it_is_the_same(self) -> None:
        with open_drawing(SHARED / "dxf" / "lwg__example_2018.dxf", CadImage) as drawing:
            for kind in KINDS:
                with self.subTest(kind):
                    table = arrays(drawing, kind)
                    with mock.patch("korvan.tools.arrays._numpy", return_value=None):
                        plain = arrays(drawing, kind)
                    self.assertEqual(rows(plain), rows(table))
                    self.assertEqual(sum(len(one) for one in plain.split()), len(rows(plain)))
                    if len(table):
                        self.assertEqual(len(rows(table)[0]), len(COLUMNS[kind]))
                        self.assertEqual(list(plain.column(plain.columns[0])), list(table.column(table.columns[0])))

    @unittest.skipIf(numpy is None, "NumPy is not installed")
    def test_numpy_arrays_share_the_memory(self) -> None:
        assert numpy is not None
        table = arrays(self.plan, "LINE")
        self.assertIsInstance(table.values, numpy.ndarray)
        self.assertFalse(table.values.flags.owndata)
        self.assertTrue(numpy.shares_memory(table.values, table.column("x1")))
        self.assertEqual([self.plan.entities[at].type_name_text for at in table.indices], ["LINE"] * len(table))
        faces = arrays(self.plan, "3DFACE")
        self.assertEqual((faces.values.shape, faces.column("x1").tolist(), list(faces.split())), ((0, 12), [], []))

    def test_tables_are_compared_by_identity(self) -> None:
        table = arrays(self.plan, "LINE")
        self.assertIn(table, {table})
        self.assertNotEqual(table, arrays(self.plan, "LINE"))

    def test_what_is_not_there_is_named(self) -> None:
        for call, words in ((lambda: arrays(self.plan, "TEXT"), "no table of 'TEXT'"),
                            (lambda: arrays(self.plan, "LINE", layer="A-WAL"), "'A-WALL'"),
                            (lambda: arrays(self.plan, "LINE").column("x"), "'x1'"),
                            (lambda: arrays(self.plan.entities, "LINE", layer="A*"), "of a drawing only"),
                            (lambda: arrays(iter(self.plan.entities), "LINE"), "one by one")):
            with self.assertRaisesRegex(ToolError, words):
                call()


if __name__ == "__main__":
    unittest.main()
