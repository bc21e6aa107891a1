"""Walks the entities of a drawing, changes some of it, and saves the change.

    build/python examples/walk_entities.py [DRAWING [OUT_FOLDER]]

Counts the entities by type and layer, adds up the lengths of the lines, paints one layer red, adds a
circle around the drawing's first text, and saves the result as a drawing and as a PDF.
"""

from __future__ import annotations

import math
import sys
from collections import Counter
from collections.abc import Iterable
from pathlib import Path

import korvan.cad
from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cad.cadobjects import Cad3DPoint, CadCircle, CadEntityBase, CadLine, CadText
from korvan.cad.imageoptions import CadRasterizationOptions, PdfOptions

ROOT = Path(__file__).resolve().parent.parent
RED = 1


def length_of(line: CadLine) -> float:
    """How long a line is, in drawing units."""
    start, end = line.first_point, line.second_point
    return math.dist((start.x, start.y, start.z), (end.x, end.y, end.z))


def report(drawing: CadImage) -> None:
    """Prints what the drawing is made of."""
    by_type: Counter[str] = Counter()
    by_layer: Counter[str] = Counter()
    total = 0.0
    for entity in drawing.entities:
        by_type[entity.type_name_text] += 1
        by_layer[entity.layer_name] += 1
        # An entity comes as its base class; the cast gives the class that knows its data.
        if line := CadLine._cast_to(entity):
            total += length_of(line.value)
    for title, counts in (("type", by_type), ("layer", by_layer)):
        print(f"{title:<16}entities")
        for name, count in counts.most_common(8):
            print(f"  {name:<14}{count:8}")
    print(f"the lines are {total:.1f} units long together")


def first_text(entities: Iterable[CadEntityBase]) -> CadText | None:
    """The first single-line text, if there is one."""
    for entity in entities:
        if text := CadText._cast_to(entity):
            return text.value
    return None


def change(drawing: CadImage, layer_name: str) -> None:
    """Paints a layer red and circles the first text."""
    layer = drawing.layers.find(layer_name)
    if layer is not None:
        layer.color_id = RED
        layer.color_value = -1
    text = first_text(drawing.entities)
    if text is not None:
        circle = CadCircle()
        circle.center_point = Cad3DPoint(text.first_alignment.x, text.first_alignment.y, 0.0)
        circle.radius = text.text_height * 3.0
        circle.color_id = RED
        drawing.add_entity(circle)


def main() -> int:
    arguments = sys.argv[1:]
    source = Path(arguments[0]) if arguments else ROOT / "examples" / "drawings" / "site_plan.dxf"
    out = Path(arguments[1]) if len(arguments) > 1 else ROOT / "build" / "demo"
    out.mkdir(parents=True, exist_ok=True)

    with korvan.cad.Image.load(str(source)) as image:
        drawing = CadImage._cast_to(image).value
        report(drawing)
        busiest = Counter(entity.layer_name for entity in drawing.entities).most_common(1)
        if busiest:
            change(drawing, busiest[0][0])

        changed = out / f"{source.stem}_changed.dxf"
        image.save(str(changed))
        pdf = PdfOptions()
        pdf.vector_rasterization_options = CadRasterizationOptions()
        image.save(str(changed.with_suffix(".pdf")), pdf)
        print(f"wrote {changed} and {changed.with_suffix('.pdf')}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
