"""Building models: the classes of the three editions, a walk through real models, changes, and damage."""

from __future__ import annotations

import enum
import io
import tempfile
import unittest
import zipfile
from pathlib import Path
from xml.etree import ElementTree

from drawings import SHARED, needs_shared
from korvan import cad
from korvan.cad.fileformats.ifc import IfcImage, IfcVersion, ifc2x3, ifc4, ifc4x3
from korvan.cad.fileformats.ifc.ifc4.entities import (
    IfcBuildingStorey4,
    IfcCartesianPoint4,
    IfcPropertySet4,
    IfcPropertySingleValue4,
    IfcRelDefinesByProperties4,
    IfcWall4,
)
from korvan.cad.fileformats.ifc.ifc4.types import (
    IfcActorSelect4,
    IfcLabel4,
    IfcLogical4,
    IfcReal4,
    IfcValue4,
    IfcWallTypeEnum4,
)
from korvan.cad.imageoptions import IfcOptions, PdfOptions

CATALOGUE = SHARED.parent / "catalogue.tsv"
MODELS = SHARED / "ifc"
EDITIONS = {"ifc2x3": ifc2x3, "ifc4": ifc4, "ifc4x3": ifc4x3}

HEAD = """ISO-10303-21;
HEADER;
FILE_DESCRIPTION((''),'2;1');
FILE_NAME('small.ifc','2025-01-01T00:00:00',(''),(''),'','','');
FILE_SCHEMA(('{schema}'));
ENDSEC;
DATA;
"""
TAIL = "ENDSEC;\nEND-ISO-10303-21;\n"
SMALL = """#1=IFCBUILDINGSTOREY('0000000000000000000001',$,'Ground',$,$,$,$,$,.ELEMENT.,-1.5);
#2=IFCWALL('0000000000000000000002',$,'W\\X2\\00E4\\X0\\nd',$,$,$,$,$,.SOLIDWALL.);
#3=IFCRELCONTAINEDINSPATIALSTRUCTURE('0000000000000000000003',$,$,$,(#2),#1);
#4=IFCPROPERTYSINGLEVALUE('Fire',$,IFCBOOLEAN(.T.),$);
#5=IFCPROPERTYSET('0000000000000000000005',$,'Pset_WallCommon',$,(#4));
#6=IFCRELDEFINESBYPROPERTIES('0000000000000000000006',$,$,$,(#2),#5);
"""


def load(data: str, options: cad.LoadOptions | None = None, schema: str = "IFC4") -> IfcImage:
    stream = io.BytesIO((HEAD.format(schema=schema) + data + TAIL).encode())
    return narrow(cad.Image.load(stream, "small.ifc", options or cad.LoadOptions()))


def narrow(image: cad.Image) -> IfcImage:
    return IfcImage._cast_to(image).value


def saved(model: IfcImage) -> str:
    target = io.BytesIO()
    model.save(target)
    return target.getvalue().decode()


@unittest.skipUnless(CATALOGUE.is_file(), f"{CATALOGUE} is not there")
class Catalogue(unittest.TestCase):
    def test_the_six_modules_hold_the_types_of_the_editions_and_no_others(self) -> None:
        rows = [line.split("\t") for line in CATALOGUE.read_text().splitlines()[1:]]
        for edition, package in EDITIONS.items():
            for part in ("entities", "types"):
                module = getattr(package, part)
                expected = {row[2]: row[1] for row in rows if row[0] == module.__name__}
                found = {
                    name: "enum" if isinstance(value, enum.EnumType) else "class"
                    for name, value in vars(module).items()
                    if isinstance(value, type)
                }
                with self.subTest(f"{edition}.{part}"):
                    self.assertGreater(len(expected), 300)
                    self.assertEqual(found, expected)

    def test_every_concrete_class_is_made_and_knows_its_name(self) -> None:
        for edition, package in EDITIONS.items():
            for name, entity in vars(package.entities).items():
                if not isinstance(entity, type):
                    continue
                try:
                    made = entity()
                except (TypeError, RuntimeError):
                    continue  # abstract
                self.assertEqual(made.entity_name + edition[3:].upper(), name)
                self.assertTrue(all(made.get_attribute(i) is None for i in range(len(made.attribute_names))))


class Values(unittest.TestCase):
    def test_attributes_are_properties_of_their_type(self) -> None:
        wall = IfcWall4()
        wall.name = "W1"
        wall.predefined_type = IfcWallTypeEnum4.PARTITIONING
        self.assertEqual((wall.name, wall.get_attribute("Name"), wall.get_attribute(2)), ("W1", "W1", "W1"))
        self.assertIs(wall.predefined_type, IfcWallTypeEnum4.PARTITIONING)
        self.assertEqual(wall.get_attribute("predefinedtype"), "PARTITIONING")
        wall.set_attribute("PredefinedType", "shear")
        self.assertIs(wall.predefined_type, IfcWallTypeEnum4.SHEAR)
        wall.predefined_type = None
        self.assertIsNone(wall.predefined_type)

    def test_lists_are_live_and_admit_their_elements_alone(self) -> None:
        point = IfcCartesianPoint4()
        point.coordinates = [1.0, 2]
        point.coordinates.append(3.5)
        self.assertEqual(list(point.coordinates), [1.0, 2.0, 3.5])
        with self.assertRaisesRegex(RuntimeError, "Coordinates.*IfcLengthMeasure was expected"):
            point.coordinates.append("x")
        with self.assertRaisesRegex(RuntimeError, "Coordinates"):
            point.set_attribute("Coordinates", 5.0)

    def test_select_values_say_which_type_was_chosen(self) -> None:
        value = IfcPropertySingleValue4()
        value.nominal_value = IfcValue4(IfcLabel4("x"))
        self.assertEqual((value.nominal_value.type_name, value.nominal_value.value), ("IfcLabel", "x"))
        value.nominal_value = IfcValue4(IfcLogical4(None))
        self.assertIsNone(value.nominal_value.value)
        with self.assertRaisesRegex(RuntimeError, "IfcActorSelect does not admit IfcReal"):
            IfcActorSelect4(IfcReal4(1.0))

    def test_what_the_schema_does_not_have_is_refused_by_name(self) -> None:
        wall = IfcWall4()
        with self.assertRaisesRegex(RuntimeError, "IfcWall has no attribute 'Colour'"):
            wall.get_attribute("Colour")
        with self.assertRaisesRegex(RuntimeError, "no attribute 99"):
            wall.get_attribute(99)
        with self.assertRaisesRegex(RuntimeError, "'ROUND' is none of"):
            wall.set_attribute("PredefinedType", "ROUND")


class Walking(unittest.TestCase):
    def test_objects_arrive_as_their_own_class_and_once(self) -> None:
        model = load(SMALL)
        wall = model.get_entity(2)
        self.assertIs(type(wall), IfcWall4)
        self.assertEqual(wall.name, "Wänd")
        storey = wall.contained_in_structure[0].relating_structure
        self.assertIs(type(storey), IfcBuildingStorey4)
        self.assertEqual((storey.elevation, storey.instance_id), (-1.5, 1))
        self.assertEqual(model.get_entity_by_global_id("0000000000000000000001"), storey)
        self.assertEqual([one.entity_name for one in wall.referrers],
                         ["IfcRelContainedInSpatialStructure", "IfcRelDefinesByProperties"])
        self.assertIsNone(model.get_entity(99))
        self.assertIsNone(model.get_entity_by_global_id("nobody"))

    def test_properties_are_reached_through_inverse_attributes(self) -> None:
        wall = load(SMALL).get_entity(2)
        found = {}
        for relation in wall.is_defined_by:
            self.assertIs(type(relation), IfcRelDefinesByProperties4)
            properties = relation.relating_property_definition.value
            self.assertIs(type(properties), IfcPropertySet4)
            found |= {one.name: one.nominal_value.value for one in properties.has_properties}
        self.assertEqual(found, {"Fire": True})

    def test_instances_by_class_with_and_without_derived_ones(self) -> None:
        model = load(SMALL)
        self.assertEqual([one.instance_id for one in model.get_entities_of_type("IfcRoot")], [1, 2, 3, 5, 6])
        self.assertEqual(len(model.get_entities_of_type("IfcBuildingElement", True)), 0)
        self.assertEqual([one.instance_id for one in model.get_entities_of_type("IFCWALL4", True)], [2])
        with self.assertRaisesRegex(RuntimeError, "IFC4 has no entity 'IfcAlien'"):
            model.get_entities_of_type("IfcAlien")

    @needs_shared
    def test_the_real_models_are_read_whole(self) -> None:
        expected = {
            "castle__simple_house.ifc": (IfcVersion.IFC4, 3, 2),
            "whale__LargeBuilding.ifc": (IfcVersion.IFC2X3, 2, 18),
            "xbime__SampleHouse4.ifc": (IfcVersion.IFC4, 2, 5),
        }
        for name, (version, storeys, walls) in expected.items():
            with self.subTest(name):
                model = narrow(cad.Image.load(str(MODELS / name)))
                self.assertEqual(model.version, version)
                counts = [len(model.get_entities_of_type(one)) for one in ("IfcBuildingStorey", "IfcWall")]
                self.assertEqual(counts, [storeys, walls])
                for entity in model.entities:
                    for index in range(len(entity.attribute_names)):
                        entity.get_attribute(index)


    @needs_shared
    def test_a_model_in_xml_is_what_another_reader_finds_in_it(self) -> None:
        path = MODELS / "xbime__4walls1floorSite.ifcxml"
        model = narrow(cad.Image.load(str(path)))
        (uos,) = (one for one in ElementTree.parse(path).getroot() if one.tag.endswith("uos"))
        instances = [one for one in uos.iter() if one.get("id") and one is not uos]
        self.assertEqual(len(model.entities), len(instances))
        for element in instances:
            entity = model.get_entity(int(element.get("id")[1:]))
            self.assertEqual(entity.entity_name, element.tag.split("}")[1])
            for child in element:
                value = entity.get_attribute(child.tag.split("}")[1])
                if len(child) == 0 and isinstance(value, str):
                    self.assertIn(value, (child.text or "", (child.text or "").upper()))
                elif len(child) == 1 and hasattr(value, "instance_id"):
                    self.assertEqual(value.instance_id, int((child[0].get("ref") or child[0].get("id"))[1:]))
                elif isinstance(value, float):
                    self.assertEqual(value, float(child.text))


class Editing(unittest.TestCase):
    def test_a_change_rewrites_its_attribute_alone(self) -> None:
        model = load(SMALL)
        model.get_entity(2).name = "it's \\ ü"
        model.get_entity(1).elevation = 1e-7
        expected = (HEAD.format(schema="IFC4") + SMALL + TAIL).replace(
            "W\\X2\\00E4\\X0\\nd", "it''s \\\\ \\X2\\00FC\\X0\\").replace("-1.5", "1.E-07")
        self.assertEqual(saved(model), expected)
        self.assertEqual(load(saved(model).split("DATA;\n")[1].split("ENDSEC")[0]).get_entity(2).name, "it's \\ ü")

    def test_added_instances_are_found_and_saved(self) -> None:
        model = load(SMALL)
        wall = model.get_entity(2)
        value = IfcPropertySingleValue4()
        value.name = "Load"
        value.nominal_value = IfcValue4(IfcReal4(2.0))
        properties = IfcPropertySet4()
        properties.global_id = "0000000000000000000007"
        properties.has_properties = [value]
        relation = IfcRelDefinesByProperties4()
        relation.global_id = "0000000000000000000008"
        relation.related_objects = [wall]
        model.add_entity(relation)
        from korvan.cad.fileformats.ifc.ifc4.types import IfcPropertySetDefinitionSelect4

        relation.relating_property_definition = IfcPropertySetDefinitionSelect4(properties)
        self.assertEqual(len(wall.is_defined_by), 2)
        self.assertEqual(value.instance_id, 9)
        text = saved(model)
        self.assertIn("#9=IFCPROPERTYSINGLEVALUE('Load',$,IFCREAL(2.),$);\n", text)
        again = load(text.split("DATA;\n")[1].split("ENDSEC")[0])
        self.assertEqual(len(again.get_entity(2).is_defined_by), 2)

    def test_removal_wants_that_nothing_refers(self) -> None:
        model = load(SMALL)
        with self.assertRaisesRegex(RuntimeError, "#3=IfcRelContainedInSpatialStructure"):
            model.remove_entity(model.get_entity(2))
        model.remove_entity(model.get_entity(3))
        self.assertEqual(len(model.get_entity(2).contained_in_structure), 0)
        self.assertEqual(len(model.entities), 5)
        self.assertNotIn("#3=", saved(model))

    def test_an_incomplete_instance_is_not_saved(self) -> None:
        model = load(SMALL)
        model.add_entity(IfcWall4())
        with self.assertRaisesRegex(RuntimeError, "GlobalId.*mandatory"):
            saved(model)

    def test_packed_models(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder) / "model.ifczip"
            options = IfcOptions()
            options.is_packed = True
            load(SMALL).save(str(path), options)
            with zipfile.ZipFile(path) as archive:
                self.assertEqual(archive.read(archive.namelist()[0]).decode(),
                                 HEAD.format(schema="IFC4") + SMALL + TAIL)
            self.assertEqual(len(narrow(cad.Image.load(str(path))).entities), 6)


class Refusals(unittest.TestCase):
    CASES = {
        "cut within a record": ("#1=IFCWALL('x',", "the file ends within a record|is missing"),
        "dangling reference": ("#1=IFCSHAPEREPRESENTATION(#77,$,$,());\n", "line 8, #1: it refers to #77"),
        "wrong arity": ("#1=IFCWALL('x');\n", "line 8, #1: IFCWALL has 9 attributes, 1 are given"),
        "unknown entity": ("#1=IFCALIEN();\n", "line 8, #1: the schema has no entity IFCALIEN"),
        "abstract entity": ("#1=IFCROOT('x',$,$,$);\n", "#1: IFCROOT is abstract"),
        "number used twice": ("#1=IFCORGANIZATION($,'a',$,$,$);\n" * 2, "#1: its number is used again in line 9"),
        "absurd number": ("#99999999999999999999=IFCWALL();\n", "out of range"),
        "absurd nesting": ("#1=IFCWALL(" + "(" * 100000 + ");\n", "nested deeper than"),
        "no end of a text": ("#1=IFCWALL('x,$);\n", "a string has no end"),
        "no value": ("#1=IFCORGANIZATION(?,'a',$,$,$);\n", "no value can begin with '\\?'"),
    }

    def test_damage_is_named_with_line_and_instance(self) -> None:
        for what, (data, message) in self.CASES.items():
            with self.subTest(what), self.assertRaisesRegex(RuntimeError, message):
                load(data)

    def test_damage_can_be_left_out(self) -> None:
        for what, (data, message) in self.CASES.items():
            with self.subTest(what):
                options = cad.LoadOptions()
                options.ignore_errors = True
                model = load(SMALL + data.replace("#1", "#10"), options)
                self.assertGreater(len(options.errors), 0)
                self.assertTrue(all(str(one).startswith(f"#{one.instance_id}=") for one in model.entities))
                self.assertEqual(model.get_entity(2).name, "Wänd")

    def test_unknown_schemas_and_uses_are_named(self) -> None:
        with self.assertRaisesRegex(RuntimeError, "schema IFC5 is not supported; those that are: IFC2X3"):
            load("", schema="IFC5")
        with self.assertRaisesRegex(RuntimeError, "IfcImage cannot be saved with PdfOptions.*pass IfcOptions"):
            load(SMALL).save(io.BytesIO(), PdfOptions())
        with self.assertRaisesRegex(RuntimeError, "geometry of a building model is not evaluated"):
            load(SMALL).width  # noqa: B018

    def test_values_of_the_wrong_type_are_named_when_they_are_read(self) -> None:
        wall = load("#1=IFCWALL(5.,#1,$,$,$,$,$,$,.ROUND.);\n").get_entity(1)
        for attribute, message in (
            ("global_id", "line 8, #1=IFCWALL: attribute GlobalId of type IfcGloballyUniqueId: .*the value is 5"),
            ("owner_history", "IfcOwnerHistory was expected, but the value is an IfcWall"),
            ("predefined_type", "IfcWallTypeEnum was expected, but the value is .ROUND."),
        ):
            with self.subTest(attribute), self.assertRaisesRegex(RuntimeError, message):
                getattr(wall, attribute)

    def test_cycles_are_walked_step_by_step(self) -> None:
        model = load("#1=IFCLOCALPLACEMENT(#2,#3);\n#2=IFCLOCALPLACEMENT(#1,#3);\n"
                     "#3=IFCAXIS2PLACEMENT3D(#4,$,$);\n#4=IFCCARTESIANPOINT((0.,0.,0.));\n")
        first = model.get_entity(1)
        self.assertEqual(first.placement_rel_to.placement_rel_to, first)
        self.assertEqual(len(first.referenced_by_placements), 1)

    @needs_shared
    def test_files_cut_anywhere_are_refused(self) -> None:
        data = (MODELS / "gherkin__pass-brp002-inner-bounds.ifc").read_bytes()
        for length in range(0, len(data.rstrip()) - 20, 97):
            with self.subTest(length), self.assertRaises(RuntimeError):
                cad.Image.load(io.BytesIO(data[:length]))


if __name__ == "__main__":
    unittest.main()
