"""The helpers: opening, converting, querying, comparing, editing, measuring; over the drawings of the examples."""

from __future__ import annotations

import math
import os
import tempfile
import unittest
from collections import Counter
from pathlib import Path

from korvan.cad import CodePages, Color, LoadOptions, RasterImage
from korvan.cad.fileformats.cad import CadImage, DxfImage
from korvan.cad.fileformats.cad.cadobjects import (
    Cad2DPoint, Cad3DPoint, CadArc, CadCircle, CadInsertObject, CadLine, CadLwPolyline, CadPdfUnderlay, CadRasterImage,
    CadRasterImageDef, CadText, CadViewport)
from korvan.cad.fileformats.cad.cadobjects.underlaydefinition import CadPdfDefinition
from korvan.cad.fileformats.cad.cadtables import CadLayerTable
from korvan.cad.fileformats.cgm import CgmImage
from korvan.cad.fileformats.ifc import IfcImage
from korvan.cad.imageoptions import CadRasterizationOptions, TiffOptions
from korvan.tools import (
    ToolError, Transform, add_diameter_dimension, add_linear_dimension, add_radius_dimension, audit, blocks, cast,
    convert, copy_entities, differences, entities, extents, measure, measure_layers, merge, open_drawing, overlay,
    plain_text, property_sets, query, rename_layer, texts, transform, values)
from korvan.tools.formats import find_target, targets
from korvan.tools.pages import paper_size, parse_size
from korvan.tools.properties import elements
from korvan.tools.settings import Settings

from drawings import EXAMPLES, SHARED, Png, needs_shared

PLAN = EXAMPLES / "floor_plan.dxf"
FLANGE = EXAMPLES / "bearing_flange.dxf"
HOUSE = EXAMPLES / "garden_house.ifc"
VALVE = EXAMPLES / "gate_valve.cgm"


class InFolder(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.out = Path(folder.name)

    def saved(self, drawing: CadImage) -> CadImage:
        """The drawing as it is read from its file."""
        path = self.out / f"{len(list(self.out.iterdir()))}.dxf"
        drawing.save(str(path))
        return open_drawing(path, CadImage)


class Opening(InFolder):
    def test_a_file_comes_as_the_class_of_its_format(self) -> None:
        convert(PLAN, self.out / "plan.png")
        for path, kind in ((PLAN, DxfImage), (VALVE, CgmImage), (HOUSE, IfcImage),
                           (self.out / "plan.png", RasterImage)):
            with self.subTest(path.name), open_drawing(path) as image:
                self.assertIsInstance(image, kind)

    def test_what_cannot_be_opened_says_why(self) -> None:
        (self.out / "bad.dxf").write_text("no drawing")
        for path, words in ((self.out / "none.dxf", "No such file"), (self.out, "is a folder"),
                            (self.out / "bad.dxf", "no known format")):
            with self.subTest(path.name), self.assertRaisesRegex(ToolError, words):
                open_drawing(path)
        with self.assertRaisesRegex(ToolError, r"is a drawing \(DxfImage\), not a building model \(IfcImage\)"):
            open_drawing(PLAN, IfcImage)

    @needs_shared
    def test_every_entity_has_its_own_class(self) -> None:
        with open_drawing(SHARED / "dxf" / "lwg__example_2018.dxf", CadImage) as drawing:
            kinds = {one.type_name_text: type(one).__name__ for one in entities(drawing, "*", "*")}
        self.assertLessEqual({"LINE": "CadLine", "MTEXT": "CadMText", "3DSOLID": "Cad3DSolid", "HATCH": "CadHatch",
                              "ACAD_TABLE": "CadTableEntity", "ATTDEF": "CadAttDef"}.items(), kinds.items())
        self.assertNotIn("CadEntityBase", kinds.values())


class Converting(InFolder):
    def test_the_extension_chooses_the_format(self) -> None:
        for name, start in (("a.pdf", b"%PDF"), ("a.PNG", b"\x89PNG"), ("a.svg", b"<?xml"), ("a.dxf", b"0"),
                            ("a.dwg", b"AC10"), ("a.jpg", b"\xff\xd8"), ("a.cgm", b"\0")):
            with self.subTest(name):
                done = convert(PLAN, self.out / name)
                self.assertTrue(done.output.read_bytes().lstrip(b" ").startswith(start))
        self.assertEqual(convert(str(PLAN), str(self.out), to="svg").output, self.out / "floor_plan.svg")

    def test_every_written_format_has_its_options(self) -> None:
        found = targets()
        self.assertLessEqual({"pdf", "svg", "png", "jpg", "tif", "dxf", "dwg", "ifc", "cgm", "stl", "glb"}, set(found))
        for extension, target in found.items():
            self.assertIn(extension, target.extensions)
        with self.assertRaisesRegex(ToolError, "nearest are .*pdf"):
            find_target("plan.pfd")

    def test_page_sizes(self) -> None:
        self.assertEqual(paper_size("a3", is_wide=True), (420, 297))
        self.assertEqual(paper_size("A3-portrait", is_wide=True), (297, 420))
        self.assertEqual(parse_size("1600x")[:2], (1600, 0))
        self.assertEqual(parse_size("x900")[:2], (0, 900))
        for size, options in (((300, 200), {"size": "300x200"}), ((842, 595), {"paper": "A4", "dpi": 72})):
            done = convert(PLAN, self.out / "page.png", force=True, **options)
            page = Png(done.output.read_bytes())
            self.assertAlmostEqual(page.width, size[0], delta=1)
            self.assertAlmostEqual(page.height, size[1], delta=1)

    def test_layers_colours_and_backgrounds_are_drawn_as_said(self) -> None:
        whole = Png(convert(PLAN, self.out / "a.png", size="400x").output.read_bytes())
        some = Png(convert(PLAN, self.out / "b.png", size="400x", layers=["a-dims", "A-GRID*"], background="#102030",
                           color_mode="white").output.read_bytes())
        self.assertEqual(some.pixel(0, 0), (16, 32, 48))
        self.assertLess(some.coverage(), whole.coverage())

    def test_each_layout_has_a_file_where_the_name_or_the_format_says_so(self) -> None:
        whole = convert(PLAN, self.out / "{layout}.png", size="200x")
        self.assertEqual([path.name for path in whole.outputs], ["Model.png", "Ground floor.png"])
        single = convert(PLAN, self.out / "single.png", size="200x", layouts=["ground*"])
        self.assertEqual(single.output.read_bytes(), whole.outputs[1].read_bytes())
        self.assertNotEqual(single.output.read_bytes(), whole.outputs[0].read_bytes())
        there = self.out / "many"
        there.mkdir()
        for to, names in (("svg", {"floor_plan-Model.svg", "floor_plan-Ground floor.svg"}),
                          ("pdf", {"floor_plan.pdf"})):
            found = convert(PLAN, there, to=to, layouts=["*"])
            self.assertEqual({path.name for path in found.outputs}, names)
            self.assertEqual({path for path in there.glob(f"*.{to}")}, set(found.outputs))
        with self.assertRaisesRegex(ToolError, "Model.png exists"):
            convert(PLAN, self.out / "{layout}.png")

    def test_what_is_wrong_is_said_with_what_would_be_right(self) -> None:
        kept = self.out / "kept.pdf"
        kept.write_text("mine")
        rows = (
            ({}, kept, "exists"),
            ({"layers": ["A-DOR"]}, "a.pdf", "'A-DOOR'"),
            ({"layouts": ["Groundfloor"]}, "a.pdf", "'Ground floor'"),
            ({"settings": {"PngOptions.compresion": "9"}}, "a.png", "'compression_level'"),
            ({"settings": {"png.compression_level": "99"}}, "a.png", "0 to 9"),
            ({"settings": {"PdfOptions.timeout": "1"}}, "a.png", "no part"),
            ({"settings": {"DwgOptions.version": "AC99"}}, "a.dwg", "AC1015"),
            ({"release": "1999"}, "a.dxf", "R2000|2000"),
            ({"layouts": ["*"]}, "a.png", r"write a-\{layout\}.png"),
            ({"size": "wide"}, "a.png", "no size"),
            ({"size": "10x10", "paper": "A4"}, "a.png", "either"),
            ({"paper": "A33"}, "a.png", "A3"),
            ({"background": "nocolour"}, "a.png", "not a colour"),
            ({"fonts": ["/no/such/folder"]}, "a.png", "/no/such/folder"),
            ({}, "none/a.pdf", "does not exist"),
            ({"timeout": 0.001}, "a.png", "longer than"),
        )
        for options, name, words in rows:
            with self.subTest(words), self.assertRaisesRegex(ToolError, words):
                convert(PLAN, self.out / name, **options)
        with self.assertRaisesRegex(ToolError, "no PDF of them; they are written as .*ifc"):
            convert(HOUSE, self.out / "a.pdf")
        self.assertEqual([path.name for path in self.out.iterdir()], ["kept.pdf"])
        self.assertEqual(kept.read_text(), "mine")
        self.assertGreater(convert(PLAN, kept, force=True).output.stat().st_size, 1000)

    def test_settings_reach_options_within_options(self) -> None:
        done = convert(PLAN, self.out / "a.pdf", settings={
            "PdfDocumentOptions.compliance": "PDF_A1B", "PdfDocumentInfo.title": "Plan 7", "margins.left": "20",
            "page.zoom": "0.5", "quality.text": "high", "LoadOptions.ignore_errors": "true"})
        text = done.output.read_bytes()
        self.assertIn(b"pdfaid:part", text)
        self.assertIn(b"Plan 7", text)
        drawing = convert(PLAN, self.out / "a.dxf", release="R2000").output
        with open_drawing(drawing, CadImage) as found:
            self.assertEqual(found.version.name, "AC1015")

    def test_settings_are_parsed_by_what_a_member_takes(self) -> None:
        options, page, load = TiffOptions(), CadRasterizationOptions(), LoadOptions()
        settings = Settings({
            "tiff.bits_per_sample": "8, 8, 8", "tiff.compression": "lzw", "MultiPageOptions.pages": "0,2",
            "TiffOptions.userWatermarkText": "draft", "tiff.user_watermark_color": "#102030", "tiff.timeout": "5",
            "page.relative_position": "0.5,0.25", "page.shx_code_pages": "GREEK,THAI", "page.layers": "A, B",
            "ObserverPoint.rotation_angle_x": "30", "page.no_scaling": "yes", "ResolutionSetting.vertical_resolution":
            "200", "load.specified_encoding": "cyrillic", "VectorizationOptions.threshold": "99"})
        settings.apply_to_load(load)
        settings.apply(options, page)
        self.assertEqual((list(options.bits_per_sample), options.user_watermark_text, options.timeout),
                         ([8, 8, 8], "draft", 5))
        self.assertEqual(options.user_watermark_color, Color.from_argb(16, 32, 48))
        self.assertEqual(list(options.multi_page_options.pages), [0, 2])
        self.assertEqual(options.resolution_settings.vertical_resolution, 200)
        self.assertEqual((page.relative_position.x, page.no_scaling, list(page.layers)), (0.5, True, ["A", "B"]))
        self.assertEqual(list(page.shx_code_pages), [CodePages.GREEK, CodePages.THAI])
        self.assertEqual(page.observer_point.rotation_angle_x, 30)
        self.assertEqual(load.specified_encoding, CodePages.CYRILLIC)
        self.assertEqual(load.vectorization_options.threshold, 99)
        for key, value in (("page.zoom", "x"), ("page.zoom", "-1"), ("page.page_size", "1"), ("page.no_scaling", "2"),
                           ("tiff.render_result", "x"), ("page.margins", "5")):
            with self.subTest(key), self.assertRaises(ToolError):
                Settings({key: value}).apply(options, page)

    def test_names_that_are_no_text_are_names(self) -> None:
        source = os.fsdecode(os.fsencode(self.out / "a") + b"\xff.dxf")
        Path(source).write_bytes(PLAN.read_bytes())
        done = convert(source, os.fsdecode(os.fsencode(self.out / "b") + b"\xff.svg"))
        self.assertGreater(done.output.stat().st_size, 1000)


class Querying(unittest.TestCase):
    def setUp(self) -> None:
        self.drawing = open_drawing(PLAN, CadImage)

    def test_a_query_is_what_filtering_by_hand_finds(self) -> None:
        hand = [one for one in self.drawing.entities if one.type_name_text in ("LINE", "CIRCLE")
                and one.layer_name.startswith("A-F")]
        self.assertEqual(list(query(self.drawing, "LINE circle", layer="a-f*")), hand)
        self.assertEqual(len(list(query(self.drawing, "*"))), len(self.drawing.entities))
        self.assertTrue(all(isinstance(one, CadCircle) for one in query(self.drawing, CadCircle)))
        self.assertEqual([one.radius for one in query(self.drawing, CadCircle, where=lambda one: one.radius > 100)],
                         [120.0, 120.0])
        inside = list(query(self.drawing, "ATTDEF", layout=None, block="TITLE"))
        self.assertEqual(len(inside), 9)
        self.assertNotIn("*D1", [block.name for block in blocks(self.drawing)])

    def test_names_that_are_not_there_are_refused(self) -> None:
        with self.assertRaisesRegex(ToolError, "'Model'"):
            list(query(self.drawing, layout="Modell"))
        with self.assertRaisesRegex(ToolError, "'DOOR-900'"):
            list(query(self.drawing, layout=None, block="DOOR"))

    def test_texts_are_those_that_people_read(self) -> None:
        found = list(texts(self.drawing))
        self.assertIn("Terrace\n13.0 m2\nbrick on sand", [one.text for one in found])
        mark = next(one for one in found if one.tag == "MARK")
        self.assertEqual((mark.text, mark.kind, mark.place, mark.layer), ("A", "ATTRIB", "Model", "0"))
        rows = {r"{\fArial|b1;Bold} \H2.5x;and\Pnext": "Bold and\nnext", r"\A1;1\S1/2; \U+00B1 %%c20": "11/2 ± Ø20",
                r"a\~b \\ \{c\}^Id": "a b \\ {c}\td", r"\pxi-3,l4;1.^Jtext": "1.\ntext"}
        for coded, plain in rows.items():
            self.assertEqual(plain_text(coded), plain)

    @needs_shared
    def test_texts_agree_with_those_of_the_library(self) -> None:
        with open_drawing(SHARED / "dxf" / "ezdxf__mtext_complex_inline_codes.dxf", CadImage) as drawing:
            def words(found: list[str]) -> set[str]:
                return {" ".join(text.split()) for text in found}
            self.assertEqual(words([one.text for one in texts(drawing)]), words(list(drawing.get_strings())))

    def test_property_sets_are_dictionaries(self) -> None:
        with open_drawing(HOUSE, IfcImage) as model:
            walls = {wall.name: property_sets(wall) for wall in elements(model, "IfcWall")}
            with self.assertRaisesRegex(ToolError, "IfcWall"):
                list(elements(model, "IfcWal"))
        self.assertEqual(walls["Wall south W1"], {
            "Pset_WallCommon": {"IsExternal": True, "LoadBearing": True, "FireRating": "REI 30"},
            "Qto_WallBaseQuantities": {"Length": 6000.0, "GrossSideArea": 15.0, "GrossVolume": 3.0}})

    @needs_shared
    def test_elements_have_the_properties_of_their_types(self) -> None:
        for name in ("xbime__SampleHouse4.ifc", "whale__LargeBuilding.ifc"):  # IFC4 and IFC2X3
            with self.subTest(name), open_drawing(SHARED / "ifc" / name, IfcImage) as model:
                wall = next(iter(elements(model, "IfcWall")))
                self.assertIn("Width", property_sets(wall)["Construction"])
                self.assertNotIn("Width", property_sets(wall, inherited=False).get("Construction", {}))


class Comparing(InFolder):
    def test_changes_are_listed_and_nothing_else(self) -> None:
        old, new = open_drawing(PLAN, CadImage), open_drawing(PLAN, CadImage)
        self.assertEqual(differences(old, new), [])
        self.assertEqual(differences(old, self.saved(open_drawing(PLAN, CadImage)))[1:], [])  # a layer that is added
        circle, line = next(query(new, CadCircle)), next(query(new, CadLine))
        circle.radius = 91.5
        new.remove_entity(line)
        added = CadLine()
        added.second_point = Cad3DPoint(5.0, 5.0, 0.0)
        new.add_entity(added)
        new.layers.get("A-WALL").color_id = 3
        found = {(one.change, one.kind): one for one in differences(old, new)}
        self.assertEqual(set(found), {("changed", "layer"), ("changed", "CIRCLE"), ("removed", "LINE"),
                                      ("added", "LINE")})
        self.assertEqual(found["changed", "CIRCLE"].values, {"radius": (90.0, 91.5)})
        self.assertEqual(found["removed", "LINE"].name, line.unique_id)
        self.assertEqual(found["changed", "layer"].values, {"color_id": (7, 3)})

    def test_entities_without_handles_are_counted_one_by_one(self) -> None:
        old, new = CadImage(), CadImage()
        for at in range(3):
            line = CadLine()
            line.first_point = Cad3DPoint(float(at), 0.0, 0.0)
            new.add_entity(line)
        self.assertEqual([one.change for one in differences(old, new)], ["added"] * 3)

    def test_entities_without_a_class_differ_by_their_data(self) -> None:
        path = self.out / "odd.dxf"

        def odd(*texts: str) -> CadImage:
            entities = [f"0\nODD\n5\n{at:X}\n8\n0\n1\n{text}\n" for at, text in enumerate(texts, 256)]
            path.write_text("0\nSECTION\n2\nENTITIES\n" + "".join(entities) + "0\nENDSEC\n0\nEOF\n")
            return open_drawing(path, CadImage)

        self.assertEqual([one.name for one in differences(odd("first", "second"), odd("first", "third"))], ["101"])
        for texts, codes in ((("first", "second"), [401]), (("first", "first"), [401, 306])):
            self.assertEqual([one.code for one in audit(odd(*texts))], codes, "a fix removes what is there twice")

    def test_models_differ_by_elements_and_properties(self) -> None:
        changed = self.out / "changed.ifc"
        changed.write_text(HOUSE.read_text().replace("REI 30", "REI 90").replace("'Wall north W2'", "'Wall N'"))
        with open_drawing(HOUSE) as old, open_drawing(changed) as new:
            found = differences(old, new)
        self.assertEqual({one.change for one in found}, {"changed"})
        self.assertIn({"Name": ("Wall north W2", "Wall N"), "Pset_WallCommon.FireRating": ("REI 30", "REI 90")},
                      [one.values for one in found])
        with self.assertRaisesRegex(ToolError, "not compared"):
            differences(open_drawing(PLAN), open_drawing(HOUSE))

    def test_an_overlay_has_a_colour_for_each_drawing(self) -> None:
        for name, x in (("a", 0.0), ("b", 40.0)):
            drawing = CadImage()
            for at in (x, 100.0):
                face = CadLwPolyline()
                face.constant_width = 10.0
                for y in (0.0, 100.0):
                    face.coordinates.append(Cad2DPoint(at, y))
                drawing.add_entity(face)
            drawing.save(str(self.out / f"{name}.dxf"))
        page = Png(overlay(self.out / "a.dxf", self.out / "b.dxf", width=120))
        middle = page.height // 2
        colors = {page.pixel(x, middle) for x in range(page.width)}
        self.assertLessEqual({(255, 0, 0), (0, 0, 255), (0, 0, 0), (255, 255, 255)}, colors)

    def test_an_audit_finds_and_corrects(self) -> None:
        drawing = CadImage()
        drawing.header.ins_units = 4

        def add(entity: CadLine | CadInsertObject | CadText, **members: object) -> None:
            for name, value in members.items():
                setattr(entity, name, value)
            drawing.add_entity(entity)

        add(CadLine())
        for _ in range(2):
            add(CadLine(), second_point=Cad3DPoint(1.0, 1.0, 0.0), layer_name="NEW", line_type_name="DOTTY")
        add(CadInsertObject(), name="NONE")
        add(CadText(), default_value="  ")
        add(CadText(), default_value="x", style_type="NOSTYLE")
        codes = Counter(one.code for one in audit(drawing))
        self.assertEqual(set(codes), {201, 202, 203, 205, 301, 303, 306})
        audit(drawing, fix=True)
        self.assertEqual({one.code for one in audit(drawing)}, {205})  # which block was meant, nobody knows
        self.assertEqual(len(drawing.entities), 3)


class Editing(InFolder):
    @needs_shared
    def test_the_spaces_of_old_releases_are_no_unused_blocks(self) -> None:
        found = audit(open_drawing(SHARED / "dxf" / "lwg__example_r12.dxf", CadImage))
        self.assertEqual([one.place for one in found if one.code == 402 and "SPACE" in one.place], [])

    def test_a_transform_keeps_lengths_and_areas_and_can_be_undone(self) -> None:
        for path in (PLAN, FLANGE, EXAMPLES / "site_plan.dxf"):
            with self.subTest(path.name):
                drawing = open_drawing(path, CadImage)
                found = list(query(drawing))
                before = [(one.get_length() or 0, one.get_area() or 0) for one in found]
                there = Transform.move(10, 20, 3) @ Transform.scale(2.5, (3, 4)) @ Transform.rotate(30, (100, 50)) @ \
                    Transform.mirror((0, 0), (1, 2))
                self.assertEqual(transform(found, there), len(found))
                for one, (length, area) in zip(found, before, strict=True):
                    if one.type_name_text != "DIMENSION":
                        self.assertAlmostEqual((one.get_length() or 0) / 2.5, length, delta=1e-6 * max(1, length))
                        self.assertAlmostEqual((one.get_area() or 0) / 6.25, area, delta=1e-6 * max(1, area))
                back = Transform.mirror((0, 0), (1, 2)) @ Transform.rotate(-30, (100, 50)) @ \
                    Transform.scale(1 / 2.5, (3, 4)) @ Transform.move(-10, -20, -3)
                transform(found, back)
                left = [one for one in differences(open_drawing(path, CadImage), drawing, digits=4)
                        if any(not is_same(old, new) for old, new in one.values.values())]
                self.assertEqual(left, [])

    def test_arcs_keep_their_sense_when_they_are_mirrored(self) -> None:
        arc = CadArc()
        arc.radius, arc.start_angle, arc.end_angle = 10.0, 0.0, 90.0
        drawing = CadImage()
        drawing.add_entity(arc)
        transform([arc], Transform.mirror((0, 0), (0, 1)))
        low, high = extents(drawing)
        self.assertAlmostEqual(low[0], -10)
        self.assertAlmostEqual(high[0], 0)
        self.assertAlmostEqual(high[1], 10)

    @needs_shared
    def test_what_cannot_be_transformed_changes_nothing(self) -> None:
        drawing = open_drawing(SHARED / "dxf" / "lwg__example_2018.dxf", CadImage)
        before = [values(one) for one in drawing.entities]
        with self.assertRaisesRegex(ToolError, "3DSOLID"):
            transform(drawing.entities, Transform.move(1, 1))
        self.assertEqual([values(one) for one in drawing.entities], before)
        with self.assertRaises(ToolError):
            Transform.scale(0)

    def test_a_merged_drawing_has_all_that_its_entities_refer_to(self) -> None:
        target, source = CadImage(), open_drawing(PLAN, CadImage)
        target.header.ins_units = 4
        count = merge(target, source)
        found = self.saved(target)
        self.assertEqual(count, len(source.entities))
        self.assertEqual([values(one) for one in found.entities], [values(one) for one in source.entities])
        style = found.dimension_styles.get("PLAN")
        self.assertIn(style.dimtxsty, [one.object_handle for one in found.styles if one.name == "NOTE"])
        self.assertIn(style.dimblk, [one.object_handle for one in found.block_records if one.name == "_ARCHTICK"])
        self.assertEqual(audit(found), [])

    def test_images_underlays_and_viewports_come_with_what_they_refer_to(self) -> None:
        source = CadImage()
        definition, pdf, handles = CadRasterImageDef(), CadPdfDefinition(), ("F01", "F02")
        definition.file_name, pdf.file_name = "photos\\site.png", "sheet.pdf"
        for one, handle in zip((definition, pdf), handles, strict=True):
            one.object_handle = handle
            source.objects.append(one)
        layer = CadLayerTable()
        layer.name, layer.object_handle = "HIDDEN", "F03"
        source.layers.add(layer)
        image, again, sheet, view = CadRasterImage(), CadRasterImage(), CadPdfUnderlay(), CadViewport()
        image.image_def_reference = again.image_def_reference = "F01"
        again.insertion_point = Cad3DPoint(9.0, 9.0, 0.0)
        sheet.underlay_definition, sheet.insertion_point = "F02", Cad3DPoint(1.0, 2.0, 0.0)
        view.frozen_layers.append("F03")
        view.width = view.height = 10.0
        target = open_drawing(PLAN, CadImage)
        copy_entities([image, again, sheet], source, target, change=Transform.rotate(90) @ Transform.scale(2))
        copy_entities([view], source, target, layout="Ground floor")
        found = self.saved(target)
        files = {one.object_handle: cast(one).file_name for one in found.objects
                 if one.type_name_text in ("IMAGEDEF", "PDFDEFINITION")}
        self.assertEqual(sorted(files.values()), ["photos\\site.png", "sheet.pdf"])
        self.assertEqual({files[one.image_def_reference] for one in query(found, "IMAGE")}, {"photos\\site.png"})
        (underlay,) = query(found, "PDFUNDERLAY")
        self.assertEqual(files[underlay.underlay_definition], "sheet.pdf")
        self.assertEqual((underlay.rotation_angle, underlay.scale_x), (90, 2))
        self.assertAlmostEqual(math.hypot(underlay.insertion_point.x + 4, underlay.insertion_point.y - 2), 0)
        views = list(query(found, "VIEWPORT", layout="Ground floor"))
        self.assertEqual(len({one.viewport_id for one in views}), len(views))
        (frozen,) = views[-1].frozen_layers
        self.assertEqual([one.name for one in found.layers if one.object_handle == frozen], ["HIDDEN"])
        self.assertEqual([one for one in audit(found) if one.code < 400], [])

    @needs_shared
    def test_a_table_comes_as_the_block_that_shows_it(self) -> None:
        source, target = open_drawing(SHARED / "dxf" / "lwg__example_2007.dxf", CadImage), CadImage()
        table, multiline = (next(iter(query(source, kind))) for kind in ("ACAD_TABLE", "MLINE"))
        shown, lines = copy_entities([table, multiline], source, target,
                                     change=Transform.move(5, 0) @ Transform.rotate(90))
        self.assertEqual((shown.type_name_text, shown.rotation_angle), ("INSERT", 90))
        self.assertAlmostEqual(shown.insertion_point.x, 5 - table.insertion_point.y)
        self.assertGreater(len(self.saved(target).block_entities.get(shown.name).entities), 10)
        self.assertAlmostEqual(lines.vertices[1].location.y, multiline.vertices[1].location.x)
        with self.assertRaisesRegex(ToolError, "MLINE .is moved and rotated only"):
            transform([multiline], Transform.scale(2))

    def test_blocks_of_one_name_are_told_apart_when_asked(self) -> None:
        for conflict, names in (("keep", {"PLANT"}), ("rename", {"PLANT", "PLANT_1"})):
            with self.subTest(conflict):
                source, target = open_drawing(PLAN, CadImage), open_drawing(PLAN, CadImage)
                cast(source.block_entities.get("PLANT").entities[0]).color_id = 1
                plants = query(source, "INSERT", where=lambda one: one.name == "PLANT")
                copies = copy_entities(plants, source, target, change=Transform.move(100, 0), conflict=conflict)
                self.assertEqual({one.name for one in query(self.saved(target), "INSERT") if "PLANT" in one.name},
                                 names)
                self.assertEqual(len(copies), 6)

    def test_a_layer_is_renamed_with_all_that_refers_to_it(self) -> None:
        drawing = open_drawing(PLAN, CadImage)
        before = Counter(one.layer_name for one in query(drawing, layout="*", block="*"))
        rename_layer(drawing, "A-WIND", "WINDOWS")
        rename_layer(drawing, "a-door", "WINDOWS")
        found = self.saved(drawing)
        after = Counter(one.layer_name for one in query(found, layout="*", block="*"))
        self.assertEqual(after["WINDOWS"], before["A-WIND"] + before["A-DOOR"])
        self.assertNotIn("A-WIND", [*after, *found.layers.names])
        self.assertNotIn("A-DOOR", [*after, *found.layers.names])
        for name, words in (("A-WALLS", "'A-WALL'"), ("0", "every drawing")):
            with self.assertRaisesRegex(ToolError, words):
                rename_layer(drawing, name, "X")

    def test_dimensions_have_the_block_that_shows_them(self) -> None:
        drawing = CadImage()
        add_linear_dimension(drawing, (0, 0), (30, 40), (-10, 0))
        add_linear_dimension(drawing, (0, 0), (30, 40), (0, 60), angle=0, text="<> m")
        add_radius_dimension(drawing, (0, 0), (0, 25))
        add_diameter_dimension(drawing, (0, 0), (0, 25))
        found = self.saved(drawing)
        dimensions = list(query(found, "DIMENSION"))
        self.assertEqual([round(one.actual_measurement, 6) for one in dimensions], [50, 30, 25, 50])
        shown = [next(one.text for one in texts(found) if one.place == dimension.block_name and one.kind == "MTEXT")
                 for dimension in dimensions]
        self.assertEqual(shown, ["50.0000", "30.0000 m", "R25.0000", "Ø50.0000"])
        self.assertEqual(audit(found), [one for one in audit(found) if one.code == 401])
        plan = open_drawing(PLAN, CadImage)
        names = list(plan.dimension_styles.names)
        for current, used in ((names[-1], names[-1]), ("GONE", names[0])):
            plan.header.current_dim_style = current
            self.assertEqual(add_linear_dimension(plan, (0, 0), (3, 4), (0, 6)).style_name, used)

    def test_measures(self) -> None:
        drawing = CadImage()
        circle = CadCircle()
        circle.radius = 2.0
        circle.layer_name = "ROUND"
        drawing.add_entity(circle)
        line = CadLine()
        line.second_point = Cad3DPoint(3.0, 4.0, 0.0)
        drawing.add_entity(line)
        total = measure(drawing.entities)
        self.assertEqual(total.count, 2)
        self.assertAlmostEqual(total.length, 5 + 4 * math.pi)
        self.assertAlmostEqual(measure_layers(drawing.entities)["ROUND"].area, 4 * math.pi)
        self.assertEqual(extents(drawing), ((-2.0, -2.0, 0.0), (3.0, 4.0, 0.0)))


def is_same(old: object, new: object) -> bool:
    """Whether values are alike but for rounding and whole turns of angles."""
    if isinstance(old, dict) and isinstance(new, dict):
        return old.keys() == new.keys() and all(is_same(old[key], new[key]) for key in old)
    if isinstance(old, tuple) and isinstance(new, tuple):
        return len(old) == len(new) and all(map(is_same, old, new))
    if isinstance(old, float) and isinstance(new, float):
        return abs(old - new) < 1e-3 or abs(abs(old - new) - 360) < 1e-3
    return old == new or "*" in (old, new)  # a dimension whose block is made anew


if __name__ == "__main__":
    unittest.main()
