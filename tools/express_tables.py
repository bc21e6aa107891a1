#!/usr/bin/env python3
"""Writes the facts of EXPRESS schemas (ISO 10303-11) as compact tables, one line a fact.

    tools/express_tables.py IFC2X3.exp IFC4.exp IFC4X3.exp --out managed/Korvan.CAD.Schemas/Tables

A table is plain text; declarations are sorted by name, attributes keep their order:

    schema IFC4                            the edition, named as the file is
    type <name> <form>                     a defined type
    enum <name> <item> <item> ...          an enumeration
    select <name> <member> <member> ...    a choice of types
    entity <name> [: <base>] [abstract]    followed by its own lines:
      <name> [?] <form>                    an attribute; ? means optional
      * <entity>.<name>                    an inherited attribute that is derived here
      < <entity> <attribute> <name> <form> an inverse attribute, and what it inverts

A form is a type name, or an aggregate: L, S, A or B (list, set, array, bag), its bounds in square
brackets, and the form of its elements: L[1:?]S[2:2]IfcCartesianPoint. Rules, functions, formulas of
derived attributes and uniqueness are left out: they say nothing about how a file is laid out.
"""

import argparse
import pathlib
import re
import sys

AGGREGATES = {"LIST": "L", "SET": "S", "ARRAY": "A", "BAG": "B"}
SECTION = re.compile(r"^\s*(DERIVE|INVERSE|UNIQUE|WHERE)\b", re.M)


def without_comments(text: str) -> str:
    text = re.sub(r"\(\*.*?\*\)", " ", text, flags=re.S)
    return re.sub(r"--[^\n]*", " ", text)


def form_of(text: str) -> str:
    """The notation's form of an EXPRESS type, e.g. LIST [1:?] OF UNIQUE IfcPoint."""
    text = " ".join(text.split())
    aggregate = re.match(r"(LIST|SET|ARRAY|BAG) ?\[(\S+?) ?: ?(\S+?)\] OF (?:UNIQUE )?(.*)$", text)
    if aggregate:
        kind, low, high, element = aggregate.groups()
        return f"{AGGREGATES[kind]}[{low}:{high}]{form_of(element)}"
    plain = re.sub(r"^(STRING|BINARY) ?\(\d+\)( FIXED)?$", r"\1", text)
    if not re.fullmatch(r"\w+", plain):
        raise ValueError(f"'{text}' is no type that the tables can state")
    return plain


def sections_of(body: str) -> dict[str, str]:
    marks = [(m.group(1), m.start(), m.end()) for m in SECTION.finditer(body)]
    starts = [("ATTRIBUTES", 0, 0), *marks]
    ends = [start for _, start, _ in marks] + [len(body)]
    return {name: body[behind:end] for (name, _, behind), end in zip(starts, ends)}


def declarations(text: str) -> list[tuple[str, str]]:
    """(name, type) of every `name : type;`, where names may share a type."""
    found = []
    for statement in filter(str.strip, text.split(";")):
        names, _, form = statement.partition(":")
        found += [(name.strip(), form.strip()) for name in names.split(",")]
    return found


def attribute_line(name: str, form: str) -> str:
    optional = form.startswith("OPTIONAL")
    return f"  {name}{' ?' if optional else ''} {form_of(form.removeprefix('OPTIONAL'))}"


def inverse_line(name: str, form: str) -> str:
    target, _, attribute = form.rpartition(" FOR ")
    notation = form_of(target)
    entity = re.search(r"\w+$", notation).group()
    return f"  < {entity} {attribute.strip()} {name} {notation}"


def entity_lines(name: str, head: str, body: str) -> list[str]:
    base = re.search(r"\bSUBTYPE\s+OF\s*\(\s*(\w+)\s*\)", head)
    title = f"entity {name}" + (f" : {base.group(1)}" if base else "")
    lines = [title + (" abstract" if re.search(r"\bABSTRACT\b", head) else "")]
    sections = sections_of(body)
    lines += [attribute_line(*one) for one in declarations(sections["ATTRIBUTES"])]
    redeclared = re.findall(r"SELF\\(\w+)\.(\w+)\s*:", sections.get("DERIVE", ""))
    lines += [f"  * {owner}.{attribute}" for owner, attribute in redeclared]
    lines += [inverse_line(*one) for one in declarations(sections.get("INVERSE", ""))]
    return lines


def type_line(name: str, definition: str) -> str:
    form = definition.split("WHERE")[0].strip().rstrip(";").strip()
    items = re.match(r"(ENUMERATION\s+OF|SELECT)\s*\(([^)]*)\)$", form)
    if items is None:
        return f"type {name} {form_of(form)}"
    kind = "select" if items.group(1) == "SELECT" else "enum"
    return " ".join([kind, name, *(item.strip() for item in items.group(2).split(","))])


def table_of(edition: str, text: str) -> str:
    text = without_comments(text)
    types = re.findall(r"^TYPE\s+(\w+)\s*=(.*?)END_TYPE\s*;", text, re.M | re.S)
    entities = re.findall(r"^ENTITY\s+(\w+)(.*?);(.*?)END_ENTITY\s*;", text, re.M | re.S)
    lines = [f"schema {edition}"]
    lines += sorted(type_line(name, definition) for name, definition in types)
    for name, head, body in sorted(entities):
        lines += entity_lines(name, head, body)
    return "\n".join(lines) + "\n"


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("schemas", nargs="+", type=pathlib.Path)
    parser.add_argument("--out", required=True, type=pathlib.Path)
    arguments = parser.parse_args()
    for path in arguments.schemas:
        table = table_of(path.stem.upper(), path.read_text(encoding="utf-8"))
        target = arguments.out / f"{path.stem.lower()}.table"
        target.write_text(table, encoding="utf-8")
        print(f"{target}: {table.count(chr(10))} lines, {len(table)} bytes")
    return 0


if __name__ == "__main__":
    sys.exit(main())
