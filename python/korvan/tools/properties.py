"""Property sets and quantities of building elements as dictionaries, alike in all versions of the schema."""

from __future__ import annotations

from collections.abc import Callable, Iterator
from typing import Any

from korvan.cad.fileformats.ifc import IfcImage
from korvan.tools.errors import unknown

Sets = dict[str, dict[str, Any]]


def _plain(value: Any) -> Any:
    """The plain value of a typed value of the schema."""
    while hasattr(value, "value") and not isinstance(value, (str, int, float, bool)):
        value = value.value
    if hasattr(value, "__len__") and not isinstance(value, (str, bytes, bytearray)):
        items: Any = value
        return [_plain(item) for item in items]
    return value


def _table(item: Any) -> dict[Any, Any]:
    keys: Any = _plain(item.get_attribute("DefiningValues"))
    values: Any = _plain(item.get_attribute("DefinedValues"))
    return dict(zip(keys or (), values or (), strict=False))


# What the kinds of properties have for a value.
_VALUES: dict[str, Callable[[Any], Any]] = {
    "IfcPropertySingleValue": lambda item: _plain(item.get_attribute("NominalValue")),
    "IfcPropertyEnumeratedValue": lambda item: _plain(item.get_attribute("EnumerationValues")),
    "IfcPropertyListValue": lambda item: _plain(item.get_attribute("ListValues")),
    "IfcPropertyBoundedValue": lambda item: [_plain(item.get_attribute("LowerBoundValue")),
                                             _plain(item.get_attribute("UpperBoundValue"))],
    "IfcPropertyTableValue": _table,
    "IfcComplexProperty": lambda item: _members(item.get_attribute("HasProperties")),
    "IfcPhysicalComplexQuantity": lambda item: _members(item.get_attribute("HasQuantities")),
    "IfcPropertyReferenceValue": lambda item: str(item.get_attribute("PropertyReference")),
}


def _members(items: Any) -> dict[str, Any]:
    """Names and values of properties or quantities."""
    found: dict[str, Any] = {}
    for item in items or ():
        value_of = _VALUES.get(item.entity_name)
        if value_of is not None:
            found[str(item.get_attribute("Name"))] = value_of(item)
        elif item.is_a("IfcPhysicalSimpleQuantity"):  # name, description, unit, then the value
            found[str(item.get_attribute("Name"))] = _plain(item.get_attribute(3))
    return found


def _definition(definition: Any) -> tuple[str, dict[str, Any]]:
    """Name and members of a property set, of quantities, or of a set with fixed attributes, as doors have."""
    name = str(definition.get_attribute("Name") or definition.entity_name)
    if definition.is_a("IfcPropertySet"):
        return name, _members(definition.get_attribute("HasProperties"))
    if definition.is_a("IfcElementQuantity"):
        return name, _members(definition.get_attribute("Quantities"))
    own = [one for one in definition.attribute_names if one not in ("GlobalId", "OwnerHistory", "Name", "Description")]
    values = {one: _plain(definition.get_attribute(one)) for one in own}
    return name, {one: value for one, value in values.items() if isinstance(value, (str, int, float, bool, list))}


def _inverse(element: Any, *names: str) -> Iterator[Any]:
    known = list(element.inverse_names)
    for name in names:
        if name in known:
            yield from element.get_inverse(name)


def _definitions(element: Any, inherited: bool) -> Iterator[Any]:
    """The definitions of the element's type, then its own, which take precedence."""
    relations = list(_inverse(element, "IsTypedBy", "IsDefinedBy"))
    if inherited:
        for relation in relations:
            kind = relation.get_attribute("RelatingType") if relation.is_a("IfcRelDefinesByType") else None
            if kind is not None:
                yield from kind.get_attribute("HasPropertySets") or ()
    for relation in relations:
        if relation.is_a("IfcRelDefinesByProperties"):
            definition = relation.get_attribute("RelatingPropertyDefinition")
            definition = getattr(definition, "value", definition)
            yield from definition if isinstance(definition, list) else [definition]
    if "HasPropertySets" in list(element.attribute_names):
        yield from element.get_attribute("HasPropertySets") or ()


def property_sets(element: Any, *, inherited: bool = True) -> Sets:
    """The property sets and quantities of a building element: names and plain values by the name of the set.

    :param element: An element of a building model, such as a wall, or a type of elements.
    :param inherited: Whether those of its type are included; its own take precedence.
    """
    found: Sets = {}
    for definition in _definitions(element, inherited):
        if definition is not None:
            name, members = _definition(definition)
            found.setdefault(name, {}).update(members)
    return found


def elements(model: IfcImage, kind: str = "IfcObject") -> Iterator[Any]:
    """The elements of an entity of the schema and of those derived from it, such as ``IfcWall``.

    :raises ToolError: The schema has no such entity.
    """
    try:
        found = model.get_entities_of_type(kind)
    except RuntimeError as failure:
        raise unknown("entity", kind, sorted({one.entity_name for one in model.entities})) from failure
    yield from found
