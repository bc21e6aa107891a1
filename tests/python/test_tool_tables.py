"""The helpers at their edges: kinds of properties, codes of the audit, copies that conflict, names that come near."""

from __future__ import annotations

import io
import tempfile
import unittest
from pathlib import Path

import korvan.batch
import korvan.tools
from korvan.cad import Image
from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cad.cadobjects import (
    Cad2DPoint, Cad3DPoint, CadBlockEntity, CadCircle, CadInsertObject, CadLine, CadLwPolyline, CadMLeader)
from korvan.cad.fileformats.ifc import IfcImage
from korvan.tools import (
    ToolError, Transform, audit, cast, convert, copy_entities, describe, open_drawing, property_sets, query, texts)
from korvan.tools.auditing import CODES
from korvan.tools.dimensioning import format_length
from korvan.tools.errors import matching, message_of, nearest
from korvan.tools.files import write_file

from drawings import EXAMPLES

PLAN = EXAMPLES / "floor_plan.dxf"
MODEL = """ISO-10303-21;
HEADER;
FILE_DESCRIPTION((''),'2;1');
FILE_NAME('m.ifc','2025-01-01T00:00:00',(''),(''),'','','');
FILE_SCHEMA(('IFC4'));
ENDSEC;
DATA;
#1=IFCWALL('2jYaKYsS0uPv2ck6LTy$aO',$,'Wall',$,$,$,$,$,$);
#2=IFCPROPERTYSINGLEVALUE('single',$,IFCLABEL('x'),$);
#3=IFCPROPERTYSINGLEVALUE('empty',$,$,$);
#4=IFCPROPERTYENUMERATEDVALUE('enumerated',$,(IFCLABEL('A'),IFCLABEL('B')),$);
#5=IFCPROPERTYLISTVALUE('list',$,(IFCINTEGER(1),IFCINTEGER(2)),$);
#6=IFCPROPERTYBOUNDEDVALUE('bounded',$,IFCREAL(9.5),IFCREAL(1.5),$,$);
#7=IFCPROPERTYTABLEVALUE('table',$,(IFCLABEL('k')),(IFCREAL(2.)),$,$,$,$);
#8=IFCCOMPLEXPROPERTY('complex',$,'u',(#2));
#9=IFCPROPERTYSET('15BMgieDvvTtUht3IfJhjs',$,'All',$,(#2,#3,#4,#5,#6,#7,#8));
#10=IFCRELDEFINESBYPROPERTIES('25BMgieDvvTtUht3IfJhjs',$,$,$,(#1),#9);
#11=IFCQUANTITYAREA('area',$,$,4.5,$);
#12=IFCELEMENTQUANTITY('35BMgieDvvTtUht3IfJhjs',$,'Base',$,$,(#11));
#13=IFCWALLTYPE('45BMgieDvvTtUht3IfJhjs',$,'Type',$,$,(#14),$,$,$,.STANDARD.);
#14=IFCPROPERTYSET('55BMgieDvvTtUht3IfJhjs',$,'All',$,(#15,#16));
#15=IFCPROPERTYSINGLEVALUE('single',$,IFCLABEL('of the type'),$);
#16=IFCPROPERTYSINGLEVALUE('inherited',$,IFCBOOLEAN(.F.),$);
#17=IFCRELDEFINESBYTYPE('65BMgieDvvTtUht3IfJhjs',$,$,$,(#1),#13);
#18=IFCRELDEFINESBYPROPERTIES('75BMgieDvvTtUht3IfJhjs',$,$,$,(#1),#12);
ENDSEC;
END-ISO-10303-21;
"""


class Properties(unittest.TestCase):
    def test_each_kind_of_property_has_its_plain_value(self) -> None:
        model = IfcImage._cast_to(Image.load(io.BytesIO(MODEL.encode()))).value
        (wall,) = model.get_entities_of_type("IfcWall")
        own = {"single": "x", "empty": None, "enumerated": ["A", "B"], "list": [1, 2], "bounded": [1.5, 9.5],
               "table": {"k": 2.0}, "complex": {"single": "x"}}
        self.assertEqual(property_sets(wall), {"All": {**own, "inherited": False}, "Base": {"area": 4.5}})
        self.assertEqual(property_sets(wall, inherited=False), {"All": own, "Base": {"area": 4.5}})
        (kind,) = model.get_entities_of_type("IfcWallType")
        self.assertEqual(property_sets(kind), {"All": {"single": "of the type", "inherited": False}})


class Audits(unittest.TestCase):
    def test_blocks_and_geometry(self) -> None:
        drawing = CadImage()
        drawing.header.ins_units = 0
        for name, inside in (("A", "B"), ("B", "A"), ("UNUSED", "")):
            block = CadBlockEntity()
            block.name = name
            drawing.block_entities.add(block)
            if inside:
                reference = CadInsertObject()
                reference.name = inside
                block.entities.append(reference)
        circle, far, flat, short = CadCircle(), CadLine(), CadInsertObject(), CadLwPolyline()
        circle.radius = 0.0
        far.second_point = Cad3DPoint(1e12, 0.0, 0.0)
        flat.name, flat.scale_x = "A", 0.0
        short.coordinates.append(Cad2DPoint(1.0, 1.0))
        for entity in (circle, far, flat, short):
            drawing.add_entity(entity)
        found = audit(drawing, defects=["line 7: left out"])
        self.assertEqual({one.code for one in found}, {101, 206, 302, 304, 305, 307, 401, 402})
        self.assertEqual(sorted(one.place for one in found if one.code == 206), ["A", "B"])
        self.assertLessEqual({one.code for one in found}, set(CODES))
        fixed = {one.code: one.is_fixed for one in audit(drawing, fix=True)}
        self.assertEqual(fixed, {206: False, 302: True, 304: True, 305: True, 307: True, 401: False, 402: False})


class Copies(unittest.TestCase):
    def test_blocks_that_differ_can_be_an_error(self) -> None:
        source, target = open_drawing(PLAN, CadImage), open_drawing(PLAN, CadImage)
        cast(source.block_entities.get("PLANT").entities[0]).color_id = 1
        plants = list(query(source, CadInsertObject, where=lambda one: one.name == "PLANT"))
        with self.assertRaisesRegex(ToolError, "'PLANT'"):
            copy_entities(plants, source, target, conflict="error")
        with self.assertRaisesRegex(ToolError, "'Ground floor'"):
            copy_entities(plants, source, target, layout="Groundfloor")

    def test_copies_within_a_drawing_and_into_a_layout(self) -> None:
        drawing = open_drawing(PLAN, CadImage)
        before = len(drawing.get_layout_entities("Ground floor")), len(drawing.block_entities)
        copies = copy_entities(query(drawing, "INSERT", layer="A-PLNT"), drawing, drawing, layout="Ground floor",
                               change=Transform.move(1, 1))
        self.assertEqual((len(drawing.get_layout_entities("Ground floor")), len(drawing.block_entities)),
                         (before[0] + len(copies), before[1]))
        self.assertEqual([one.name for one in copies], ["PLANT"] * 6)

    def test_names_that_cannot_be_given_are_made_fit(self) -> None:
        text = PLAN.read_text().replace("A-FURN", "*FURN|1")
        source = CadImage._cast_to(Image.load(io.BytesIO(text.encode()))).value
        target = CadImage()
        copies = copy_entities(query(source, "CIRCLE"), source, target)
        self.assertEqual({one.layer_name for one in copies}, {"_FURN_1"})
        self.assertIn("_FURN_1", target.layers.names)


class Names(unittest.TestCase):
    def test_names_near_and_patterns(self) -> None:
        known = ["WALL", "Wall-2", "DOOR", "window"]
        self.assertEqual(nearest("wal", known)[0], "WALL")
        self.assertEqual(matching("layer", ["w*", "door"], known), ["WALL", "Wall-2", "window", "DOOR"])
        self.assertEqual(matching("layer", ["[old]"], ["[old]", "o"]), ["[old]"])  # a name comes before a pattern
        for names, words in ((known, "nearest are 'DOOR'"), ([], "no layer 'DORR'$")):
            with self.assertRaisesRegex(ToolError, words):
                matching("layer", ["DORR"], names)

    def test_errors_are_one_line(self) -> None:
        self.assertEqual(message_of(RuntimeError("Proxy error(CadException): bad\n  file")), "bad file")
        self.assertEqual(message_of(FileNotFoundError(2, "No such file", "x")), "No such file")
        self.assertEqual(message_of(ValueError()), "ValueError")


class Others(unittest.TestCase):
    def test_lengths_are_written_as_the_style_says(self) -> None:
        style = CadImage().dimension_styles.get("Standard")
        style.dimdec, style.dimdsep, style.dimpost = 2, ord(","), "<> m"
        self.assertEqual(format_length(1234.5, style), "1234,50 m")
        style.dimzin, style.dimlfac, style.dimrnd = 8, 0.1, 0.5
        self.assertEqual(format_length(1234.5, style), "123,5 m")

    def test_texts_of_leaders_and_metafiles(self) -> None:
        leader = CadMLeader()
        leader.context_data.has_text = True
        leader.context_data.text = r"{\fArial;Valve}\PDN 50"
        drawing = CadImage()
        drawing.add_entity(leader)
        self.assertEqual([one.text for one in texts(drawing)], ["Valve\nDN 50"])
        with open_drawing(EXAMPLES / "gate_valve.cgm") as image:
            self.assertIn(("Gland", 140.0, 112.0), [(one.text, one.x, one.y) for one in texts(image)])

    def test_descriptions_of_images_and_of_what_is_not_drawn(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            page = convert(PLAN, Path(folder, "a.png"), size="300x200").output
            found = describe(page)
            self.assertEqual((found["format"], found["size"], found["pages"]), ("PNG", [300, 200], 1))
        self.assertTrue(describe(EXAMPLES / "garden_house.ifc")["not_drawn"])
        self.assertEqual(describe(EXAMPLES / "garden_house.ifc", render=False)["not_drawn"], [])

    def test_packages_list_what_they_export(self) -> None:
        for package in (korvan.tools, korvan.batch):
            names = [name for name in dir(package) if not name.startswith("__")]
            self.assertEqual(names, sorted(package.__all__))
            self.assertTrue(all(getattr(package, name) for name in names))

    def test_files_are_replaced_whole(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder, "a.bin")
            write_file(path, b"one")
            write_file(path, b"two")
            self.assertEqual(path.read_bytes(), b"two")
            with self.assertRaises(OSError):
                write_file(Path(folder, "none", "a.bin"), b"")
            self.assertEqual([one.name for one in Path(folder).iterdir()], ["a.bin"])
        write_file("/dev/null", b"x")


if __name__ == "__main__":
    unittest.main()
