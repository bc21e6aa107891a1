"""Tables of numbers of many entities."""

from __future__ import annotations

import io
import unittest

from korvan import cad
from korvan._entity_rows import KINDS, entity_bounds, entity_rows
from korvan.cad.fileformats.cad import CadImage

HEADER = "0\nSECTION\n2\nENTITIES\n"
END = "0\nENDSEC\n0\nEOF\n"
ENTITIES = """0\nLINE\n8\nWALLS\n10\n1\n20\n2\n30\n3\n11\n4\n21\n5\n31\n6
0\nCIRCLE\n8\n0\n10\n2\n20\n0\n30\n7\n40\n1.5\n210\n0\n220\n0\n230\n-1
0\nLINE\n8\nDOORS\n10\n0\n20\n0\n30\n0\n11\n1\n21\n0\n31\n0
0\nARC\n8\n0\n10\n0\n20\n0\n30\n0\n40\n2\n50\n30\n51\n60
0\nLWPOLYLINE\n8\nWALLS\n90\n3\n70\n1\n38\n5\n10\n0\n20\n0\n42\n0.5\n10\n4\n20\n0\n10\n4\n20\n3
0\nPOLYLINE\n8\nWALLS\n66\n1\n70\n8\n10\n0\n20\n0\n30\n0
0\nVERTEX\n8\nWALLS\n10\n1\n20\n1\n30\n1\n70\n32
0\nVERTEX\n8\nWALLS\n10\n2\n20\n2\n30\n2\n70\n32
0\nSEQEND\n8\nWALLS
0\nPOLYLINE\n8\nWALLS\n66\n1\n70\n64\n10\n0\n20\n0\n30\n0\n71\n1\n72\n0
0\nVERTEX\n8\nWALLS\n10\n9\n20\n9\n30\n9\n70\n192
0\nSEQEND\n8\nWALLS
0\nPOINT\n8\n0\n10\n7\n20\n8\n30\n9
"""


class Rows(unittest.TestCase):
    def setUp(self) -> None:
        self.drawing = CadImage._cast_to(cad.Image.load(io.BytesIO((HEADER + ENTITIES + END).encode()))).value

    def rows(self, kind: str) -> list[float]:
        return list(entity_rows(self.drawing, kind).values)

    def test_each_kind_has_its_columns_in_world_coordinates(self) -> None:
        self.assertEqual(self.rows("LINE"), [1, 2, 3, 4, 5, 6, 0, 0, 0, 1, 0, 0])
        self.assertEqual(self.rows("CIRCLE"), [-2, 0, -7, 1.5, 0, 0, -1])
        self.assertEqual(self.rows("ARC"), [0, 0, 0, 2, 0, 0, 1, 30, 60])
        self.assertEqual(self.rows("POINT"), [7, 8, 9])
        self.assertEqual(self.rows("LWPOLYLINE"), [0, 0, 5, 0.5, 4, 0, 5, 0, 4, 3, 5, 0])
        self.assertEqual(self.rows("POLYLINE"), [1, 1, 1, 0, 2, 2, 2, 0])

    def test_entities_are_found_again_by_their_index(self) -> None:
        table = entity_rows(self.drawing, "LINE")
        self.assertEqual((list(table.indices), list(table.ends)), ([0, 2], [1, 2]))
        self.assertEqual((list(table.closed), table.width), ([0, 0], 6))
        self.assertEqual([self.drawing.entities[i].layer_name for i in table.indices], ["WALLS", "DOORS"])
        polylines = entity_rows(self.drawing, "LWPOLYLINE")
        self.assertEqual((list(polylines.ends), list(polylines.closed)), ([3], [1]))

    def test_layers_select_without_regard_to_case(self) -> None:
        for layers, count in ((None, 2), (["walls"], 1), (["WALLS", "Doors"], 2), (["WALL"], 0), ([], 0)):
            with self.subTest(layers):
                table = entity_rows(self.drawing, "LINE", layers)
                self.assertEqual((len(table.ends), len(table.values)), (count, 6 * count))

    def test_sources_are_drawings_blocks_and_lists(self) -> None:
        self.assertEqual(list(entity_rows(self.drawing.entities, "POINT").values), [7, 8, 9])
        block = next(iter(self.drawing.block_entities.values))
        points = sum(entity.type_name.name == "POINT" for entity in block.entities)
        self.assertEqual(len(entity_rows(block, "POINT").ends), points)
        for source in (None, 3, "drawing", object()):
            with self.subTest(source), self.assertRaises(TypeError):
                entity_rows(source, "POINT")
        with self.assertRaisesRegex(RuntimeError, "has to be a drawing, a block or a list"):
            entity_rows(cad.Color.red, "POINT")

    def test_boxes_are_those_of_what_entities_show(self) -> None:
        block = ("0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n2\nB\n70\n0\n10\n0\n20\n0\n30\n0\n"
                 "0\nLINE\n8\n0\n10\n0\n20\n0\n11\n4\n21\n2\n0\nENDBLK\n0\nENDSEC\n")
        entities = ("0\nINSERT\n8\n0\n2\nB\n10\n10\n20\n5\n50\n90\n"
                    "0\nXLINE\n8\n0\n10\n0\n20\n0\n30\n0\n11\n1\n21\n0\n31\n0\n"
                    "0\nCIRCLE\n8\n0\n10\n-3\n20\n1\n40\n2\n")
        text = block + HEADER + entities + END
        drawing = CadImage._cast_to(cad.Image.load(io.BytesIO(text.encode()))).value
        table = entity_bounds(drawing, "Model")
        self.assertEqual((list(table.indices), table.width, list(table.ends)), ([0, 2], 4, [1, 2]))
        self.assertEqual([round(value, 9) for value in table.values], [8, 5, 10, 9, -5, -1, -1, 3])
        with self.assertRaisesRegex(RuntimeError, "Nowhere"):
            entity_bounds(drawing, "Nowhere")

    def test_a_kind_without_a_table_is_named_with_those_that_have_one(self) -> None:
        with self.assertRaisesRegex(RuntimeError, "'TEXT' have no table of numbers.*LINE.*SPLINE"):
            entity_rows(self.drawing, "TEXT")
        for kind in KINDS:
            entity_rows(self.drawing, kind)


if __name__ == "__main__":
    unittest.main()
