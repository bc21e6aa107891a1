"""Walks a building model: its storeys, the walls on them, their properties and quantities.

    build/python examples/walk_ifc.py [MODEL [CHANGED_MODEL]]

Prints what it finds. With a second path, every wall that states no fire rating gets a property that
says so, and the changed model is saved there; all else in the file stays as it is.
"""

from __future__ import annotations

import sys
from collections.abc import Iterable, Iterator
from pathlib import Path
from typing import Any

import korvan.cad
from korvan.cad.fileformats.ifc import IfcImage

ROOT = Path(__file__).resolve().parent.parent
MODEL = ROOT / "examples" / "drawings" / "garden_house.ifc"


def instances(model: IfcImage, entity: str) -> Iterable[Any]:
    """All of an entity. They come as their own class, IfcWall2X3 or IfcWall4; here, what all editions share is used."""
    return model.get_entities_of_type(entity)


def definitions(element: Any) -> Iterator[Any]:
    """The property sets and quantities of an element."""
    for relation in element.is_defined_by:
        if relation.is_a("IfcRelDefinesByProperties"):
            definition = relation.relating_property_definition
            # Since IFC4 it is one of several types; the value is what was chosen.
            yield getattr(definition, "value", definition)


def values(definition: Any) -> Iterator[tuple[str, object]]:
    """Names and values of a set of properties or quantities."""
    if definition.is_a("IfcPropertySet"):
        for item in definition.has_properties:
            if item.is_a("IfcPropertySingleValue") and item.nominal_value is not None:
                yield item.name, item.nominal_value.value
    elif definition.is_a("IfcElementQuantity"):
        for item in definition.quantities:
            # Length, area, volume, count and weight have their value behind name, description and unit.
            yield item.name, item.get_attribute(3)


def report(model: IfcImage) -> None:
    """Prints storeys, walls, properties and quantities."""
    print(f"{model.header.file_name.name}: {model.version.name}, {len(model.entities)} instances")
    for storey in instances(model, "IfcBuildingStorey"):
        print(f"{storey.name}, elevation {storey.elevation}")
        for relation in storey.contains_elements:
            for element in relation.related_elements:
                print(f"  {element.entity_name} {element.name}")
                for definition in definitions(element):
                    facts = ", ".join(f"{name} = {value}" for name, value in values(definition))
                    print(f"    {definition.name}: {facts}")


def add_missing_ratings(model: IfcImage) -> int:
    """Gives each wall without a fire rating the property with a text that says so."""
    from korvan.cad.fileformats.ifc.ifc4 import entities, types

    count = 0
    for wall in instances(model, "IfcWall"):
        for common in definitions(wall):
            if common.name != "Pset_WallCommon" or "FireRating" in dict(values(common)):
                continue
            rating = entities.IfcPropertySingleValue4()
            rating.name = "FireRating"
            rating.nominal_value = types.IfcValue4(types.IfcLabel4("not stated"))
            common.has_properties.append(rating)
            count += 1
    return count


def main() -> int:
    source = Path(sys.argv[1]) if len(sys.argv) > 1 else MODEL
    with korvan.cad.Image.load(str(source)) as image:
        model = IfcImage._cast_to(image).value
        report(model)
        if len(sys.argv) > 2:
            count = add_missing_ratings(model)
            model.save(sys.argv[2])
            print(f"{count} walls got a rating, saved to {sys.argv[2]}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
