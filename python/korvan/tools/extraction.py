"""The texts of files, as people read them, with their places."""

from __future__ import annotations

import re
from collections.abc import Iterator
from dataclasses import dataclass
from typing import Any

from korvan.cad import Image
from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cad.cadobjects import CadEntityBase, CadInsertObject, CadMLeader, CadMText, CadText
from korvan.cad.fileformats.cad.cadobjects.attentities import CadAttDef, CadAttrib
from korvan.cad.fileformats.cgm import CgmImage
from korvan.cad.fileformats.ifc import IfcImage
from korvan.tools.opening import cast
from korvan.tools.queries import spaces

_TYPES = {"TEXT", "MTEXT", "ATTDEF", "ATTRIB", "INSERT", "MULTILEADER", "MLEADER"}
_CODES = re.compile(r"""
    \\U\+([0-9A-Fa-f]{4})             # a character by its number
  | \\S([^;]*);?                      # stacked text
  | \\([PX])                          # a new paragraph
  | \\~                               # a space that does not break
  | \\([\\{}])                        # an escaped character
  | \\[ACcFfHQTW][^;]*;              # codes with a value
  | \\[LlOoKkN]                       # codes without one
  | \\p[^;]*;                         # properties of paragraphs
  | \^([IJM])                         # a control character
  | [{}]                              # groups
""", re.VERBOSE)
_SIGNS = {"c": "Ø", "d": "°", "p": "±", "%": "%", "o": "", "u": "", "k": ""}


@dataclass(frozen=True)
class FoundText:
    """A text of a file."""

    text: str
    """The text without formatting codes, in one line for each paragraph."""
    kind: str
    """The type of its entity, such as MTEXT."""
    place: str = ""
    """The layout, block or picture that it is in."""
    layer: str = ""
    handle: str = ""
    x: float | None = None
    y: float | None = None
    tag: str = ""
    """The tag of an attribute."""


def _replace(match: re.Match[str]) -> str:
    if match[1]:
        return chr(int(match[1], 16))
    if match[2] is not None:
        return re.sub(r"\s*[/#^]\s*", "/", match[2]).strip("/ ")
    if match[3] or match[5]:
        return "\t" if match[5] == "I" else "\n"
    return match[4] or (" " if match[0] == "\\~" else "")


def plain_text(text: str) -> str:
    """A multiline text without its formatting codes; a new line for each paragraph."""
    return plain_line(_CODES.sub(_replace, text))


def plain_line(text: str) -> str:
    """A text of one line with its ``%%`` codes as characters."""
    text = re.sub(r"%%(\d{3})", lambda match: chr(int(match[1])), text)
    text = re.sub(r"%%([cdpouk%])", lambda match: _SIGNS[match[1].lower()], text, flags=re.IGNORECASE)
    return re.sub(r"\\U\+([0-9A-Fa-f]{4})", lambda match: chr(int(match[1], 16)), text)


def _of_entity(entity: Any, place: str) -> Iterator[FoundText]:
    """The texts of an entity and of its attributes."""
    def found(text: str, point: Any, tag: str = "", of: CadEntityBase = entity) -> FoundText:
        return FoundText(text, of.type_name_text, place, of.layer_name, of.unique_id, point.x, point.y, tag)

    if isinstance(entity, CadMText):
        yield found(plain_text(entity.text), entity.insertion_point)
    elif isinstance(entity, CadText):
        tag = entity.definition_tag_string if isinstance(entity, (CadAttDef, CadAttrib)) else ""
        yield found(plain_line(entity.default_value), entity.first_alignment, tag)
    elif isinstance(entity, CadMLeader) and entity.context_data.has_text:
        yield found(plain_text(entity.context_data.text), entity.context_data.text_location)
    if isinstance(entity, CadInsertObject):
        for attribute in entity.attributes:
            yield found(plain_line(attribute.default_value), attribute.first_alignment,
                        attribute.definition_tag_string, attribute)


def _of_drawing(drawing: CadImage) -> Iterator[FoundText]:
    for place, found in spaces(drawing, "*", "*"):
        for entity in found:
            if entity.type_name_text in _TYPES:
                yield from _of_entity(cast(entity), place)


def texts(image: Image) -> Iterator[FoundText]:
    """The texts of a file: of drawings in layouts and blocks, of metafiles, and the names of building elements.

    The texts of dimensions and tables are those of the blocks that show them.
    """
    if isinstance(image, CadImage):
        yield from _of_drawing(image)
    elif isinstance(image, CgmImage):
        for text in image.get_texts():
            yield FoundText(text.text, "Text", x=text.position.x, y=text.position.y)
    elif isinstance(image, IfcImage):
        for entity in image.get_entities_of_type("IfcRoot"):
            for attribute in ("Name", "Description"):
                value = entity.get_attribute(attribute)
                if value:
                    yield FoundText(str(value), entity.entity_name, attribute, handle=f"#{entity.instance_id}")
    else:
        for text in image.get_strings():
            yield FoundText(text, "Text")
