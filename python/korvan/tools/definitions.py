"""Copies the objects that entities refer to by handle: definitions of images and of underlays."""

from __future__ import annotations

import os
from collections.abc import Callable
from typing import Any

from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cad.cadobjects import CadRasterImageDef
from korvan.cad.fileformats.cad.cadobjects.dictionary import CadDictionary
from korvan.cad.fileformats.cad.cadobjects.underlaydefinition import (
    CadDgnDefinition, CadDwfDefinition, CadPdfDefinition)
from korvan.tools.opening import cast
from korvan.tools.plain_values import copy_values, fingerprint, values

# By the type of the entity: its member with the handle, the class of the definition, and the dictionary that other
# programs look for it in.
REFERENCES: dict[str, tuple[str, Callable[[], Any], str]] = {
    "IMAGE": ("image_def_reference", CadRasterImageDef, "ACAD_IMAGE_DICT"),
    "PDFUNDERLAY": ("underlay_definition", CadPdfDefinition, "ACAD_PDFDEFINITIONS"),
    "DWFUNDERLAY": ("underlay_definition", CadDwfDefinition, "ACAD_DWFDEFINITIONS"),
    "DGNUNDERLAY": ("underlay_definition", CadDgnDefinition, "ACAD_DGNDEFINITIONS"),
}
_ROOT = "ACAD_GROUP"  # an entry that the dictionary of dictionaries has in each drawing


def new_handle(drawing: CadImage) -> str:
    """A handle that no object of the drawing has."""
    seed = drawing.header.hand_seed or "100"
    drawing.header.hand_seed = f"{int(seed, 16) + 1:X}"
    return seed


def _object(drawing: CadImage, handle: str) -> Any:
    return next((cast(one) for one in drawing.objects if one.object_handle == handle), None)


def _add(drawing: CadImage, new: Any, owner: str) -> str:
    new.object_handle, new.soft_owner = new_handle(drawing), owner
    drawing.objects.append(new)
    return str(new.object_handle)


def _dictionary(drawing: CadImage, name: str) -> Any:
    """The dictionary of definitions of a kind, which is made where there is none yet."""
    known = (cast(one) for one in drawing.objects if one.type_name_text == "DICTIONARY")
    root = next((one for one in known if one.get_handle(_ROOT)), None)
    if root is None:
        return None
    found = _object(drawing, root.get_handle(name)) if root.get_handle(name) else None
    if found is None:
        found = CadDictionary()
        root.set(name, _add(drawing, found, root.object_handle))
    return found


def copy_definition(source: CadImage, target: CadImage, own: Any) -> None:
    """Lets the copy of an image or underlay refer to a definition of the target, as the original does in the source.

    A definition of the target that is alike is taken; else one is added.
    """
    member, kind, place = REFERENCES[own.type_name_text]
    found = _object(source, getattr(own, member))
    if found is None:  # the definition is missing in the source, too
        setattr(own, member, "")
        return
    key = fingerprint(values(found))
    for one in target.objects:
        if one.type_name_text == found.type_name_text and fingerprint(values(cast(one))) == key:
            setattr(own, member, one.object_handle)
            return
    new = kind()
    copy_values(found, new)
    dictionary = _dictionary(target, place)
    setattr(own, member, _add(target, new, dictionary.object_handle if dictionary is not None else ""))
    if dictionary is not None:
        stem = name = os.path.splitext(os.path.basename(new.file_name.replace("\\", "/")))[0] or "definition"
        number = 1
        while dictionary.get_handle(name):
            number += 1
            name = f"{stem}_{number}"
        dictionary.set(name, new.object_handle)
