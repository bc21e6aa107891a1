"""The layouts of drawings and the pictures of metafiles, by name."""

from __future__ import annotations

from korvan.cad import Image
from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cgm import CgmImage

MODEL = "Model"


def layout_names(image: Image) -> list[str]:
    """The names of the pages of a drawing."""
    if isinstance(image, CadImage):
        return list(image.layouts.names)
    if isinstance(image, CgmImage):
        return list(image.picture_names)
    return []


def used_layouts(drawing: CadImage) -> list[str]:
    """The layouts that have content: model space, and those with more than the viewport of their paper."""
    return [name for name in drawing.layouts.names
            if any(entity.type_name_text != "VIEWPORT" for entity in drawing.get_layout_entities(name))
            or (name != MODEL and len(drawing.get_layout_entities(name)) > 1)]
