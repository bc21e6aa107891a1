"""Adds dimensions with the block that shows them, so that every program draws them alike."""

from __future__ import annotations

import math
from typing import Any

from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cad.cadconsts import CadAttachmentPoint
from korvan.cad.fileformats.cad.cadobjects import (
    Cad3DPoint, CadAlignedDimension, CadBlockEntity, CadDiametricDimension, CadDimensionBase, CadInsertObject, CadLine,
    CadMText, CadRadialDimension, CadRotatedDimension, CadSolid)
from korvan.cad.fileformats.cad.cadtables import CadDimensionStyleTable
from korvan.tools.errors import unknown

Point = tuple[float, float]
_BY_BLOCK = 0
_OWN_BLOCK = 32
_TRAILING_ZEROS = 8


def _point(p: Point) -> Cad3DPoint:
    return Cad3DPoint(float(p[0]), float(p[1]), 0.0)


def _along(p: Point, direction: Point, distance: float) -> Point:
    return p[0] + direction[0] * distance, p[1] + direction[1] * distance


def _polar(degrees: float) -> Point:
    return math.cos(math.radians(degrees)), math.sin(math.radians(degrees))


def format_length(value: float, style: CadDimensionStyleTable) -> str:
    """A length as a style shows it: rounded, with its separator, between the texts around it."""
    value *= style.dimlfac or 1.0
    if style.dimrnd:
        value = round(value / style.dimrnd) * style.dimrnd
    text = f"{value:.{max(0, style.dimdec)}f}"
    if style.dimzin & _TRAILING_ZEROS and "." in text:
        text = text.rstrip("0").rstrip(".")
    text = text.replace(".", chr(style.dimdsep) if style.dimdsep else ".")
    post = style.dimpost
    return post.replace("<>", text) if "<>" in post else text + post


class _Figure:
    """The block of a dimension that is being drawn."""

    def __init__(self, drawing: CadImage, style: CadDimensionStyleTable) -> None:
        self.drawing, self.style = drawing, style
        self.scale = style.dimscale or 1.0
        self.block = CadBlockEntity()
        number = 1
        while drawing.block_entities.find(f"*D{number}") is not None:
            number += 1
        self.block.name = self.block.name_again = f"*D{number}"
        self.block.flags = 1

    def _add(self, entity: Any, color: int) -> None:
        entity.layer_name = "0"
        entity.color_id = color
        self.block.entities.append(entity)

    def line(self, a: Point, b: Point, color: int) -> None:
        line = CadLine()
        line.first_point, line.second_point = _point(a), _point(b)
        self._add(line, color)

    def arrow(self, tip: Point, outwards: Point) -> None:
        """The end of a dimension line: the block of the style, a tick, or a filled arrowhead."""
        style = self.style
        size, color = style.dimasz * self.scale, style.dimclrd
        record = next((one for one in self.drawing.block_records
                       if style.dimblk and one.object_handle == style.dimblk), None)
        if record is not None and style.dimtsz == 0 and self.drawing.block_entities.find(record.name) is not None:
            end = CadInsertObject()
            end.name, end.insertion_point = record.name, _point(tip)
            end.scale_x = end.scale_y = end.scale_z = size
            end.rotation_angle = math.degrees(math.atan2(outwards[1], outwards[0]))
            self._add(end, color)
        elif style.dimtsz > 0:
            slant = _polar(math.degrees(math.atan2(outwards[1], outwards[0])) + 45)
            reach = style.dimtsz * self.scale
            self.line(_along(tip, slant, -reach), _along(tip, slant, reach), color)
        else:
            foot = _along(tip, outwards, -size)
            side = -outwards[1], outwards[0]
            head = CadSolid()
            head.first_point, head.second_point = (_point(_along(foot, side, one)) for one in (size / 6, -size / 6))
            head.third_point = head.fourth_point = _point(tip)
            self._add(head, color)

    def text(self, text: str, middle: Point, degrees: float) -> None:
        shown = CadMText()
        shown.text = text
        shown.insertion_point = _point(middle)
        shown.initial_text_height = self.style.dimtxt * self.scale
        shown.attachment_point = CadAttachmentPoint.MIDDLE_CENTER
        shown.text_rotation = float(degrees)
        style = next((one.name for one in self.drawing.styles if one.object_handle == self.style.dimtxsty
                      and one.object_handle), "Standard")
        shown.text_style_name = style
        self._add(shown, self.style.dimclrt)

    def text_over(self, text: str, middle: Point, degrees: float) -> Point:
        """A text along a line and above it, readable from below or from the right; returns its middle."""
        degrees = (degrees + 90) % 180 - 90
        if degrees <= -90 + 1e-9:
            degrees += 180
        up = _polar(degrees + 90)
        lift = (self.style.dimtxt / 2 + self.style.dimgap) * self.scale
        place = _along(middle, up, lift)
        self.text(text, place, degrees)
        return place


def _style(drawing: CadImage, name: str | None) -> CadDimensionStyleTable:
    """The style of a name; without one the current style, or the first one."""
    known = list(drawing.dimension_styles.names)
    if name is None:
        name = drawing.header.current_dim_style
        name = name if drawing.dimension_styles.find(name) is not None else next(iter(known), "Standard")
    found = drawing.dimension_styles.find(name)
    if found is None:
        raise unknown("dimension style", name, known)
    return found


def _finish(drawing: CadImage, dimension: CadDimensionBase, figure: _Figure, middle: Point, *, text: str,
            measured: float, layer: str) -> None:
    dimension.middle_of_text_point = _point(middle)
    dimension.style_name = figure.style.name
    dimension.layer_name = layer
    dimension.text = text
    dimension.actual_measurement = measured
    dimension.type_of_dimension |= _OWN_BLOCK
    drawing.block_entities.add(figure.block)
    dimension.block_name = figure.block.name
    drawing.add_entity(dimension)


def add_linear_dimension(
    drawing: CadImage, start: Point, end: Point, through: Point, *, angle: float | None = None,
    style: str | None = None, text: str = "", layer: str = "0"
) -> CadAlignedDimension:
    """Adds a dimension of the distance of two points to model space.

    :param start: The first point.
    :param end: The second point.
    :param through: A point of the dimension line.
    :param angle: The direction of the dimension line in degrees, 0 for horizontal; by default that of the points.
    :param style: The name of the dimension style; by default the current one of the drawing.
    :param text: A text instead of the measurement; ``<>`` in it is replaced by the measurement.
    :param layer: The name of the layer.
    :raises ToolError: There is no such style.
    """
    values = _style(drawing, style)
    dimension = CadAlignedDimension() if angle is None else CadRotatedDimension()
    degrees = math.degrees(math.atan2(end[1] - start[1], end[0] - start[0])) if angle is None else angle
    along = _polar(degrees)
    across = -along[1], along[0]

    def foot(p: Point) -> Point:
        return _along(p, across, (through[0] - p[0]) * across[0] + (through[1] - p[1]) * across[1])

    a, b = foot(start), foot(end)
    measured = math.dist(a, b)
    direction = ((b[0] - a[0]) / measured, (b[1] - a[1]) / measured) if measured else along
    figure = _Figure(drawing, values)
    for p, q in ((start, a), (end, b)):
        length = math.dist(p, q)
        if length > values.dimexo * figure.scale:
            way = (q[0] - p[0]) / length, (q[1] - p[1]) / length
            figure.line(_along(p, way, values.dimexo * figure.scale), _along(q, way, values.dimexe * figure.scale),
                        values.dimclre)
    figure.line(a, b, values.dimclrd)
    figure.arrow(a, (-direction[0], -direction[1]))
    figure.arrow(b, direction)
    shown = format_length(measured, values)
    middle = figure.text_over(text.replace("<>", shown) if text else shown,
                              ((a[0] + b[0]) / 2, (a[1] + b[1]) / 2), degrees)
    dimension.first_extension_point, dimension.second_extension_point = _point(start), _point(end)
    dimension.definition_point = _point(b)
    if angle is not None:
        dimension.rotation_angle = float(angle)
    _finish(drawing, dimension, figure, middle, text=text, measured=measured, layer=layer)
    return dimension


def add_radius_dimension(
    drawing: CadImage, centre: Point, point: Point, *, style: str | None = None, text: str = "", layer: str = "0"
) -> CadRadialDimension:
    """Adds a dimension of a radius to model space.

    :param centre: The centre of the circle or arc.
    :param point: The point of the circle that the arrowhead is at.
    """
    values = _style(drawing, style)
    dimension = CadRadialDimension()
    dimension.definition_point, dimension.chord_point = _point(centre), _point(point)
    figure, middle, measured = _radial(drawing, values, centre, point, "R", text)
    figure.arrow(point, _polar(math.degrees(math.atan2(point[1] - centre[1], point[0] - centre[0]))))
    _finish(drawing, dimension, figure, middle, text=text, measured=measured, layer=layer)
    return dimension


def add_diameter_dimension(
    drawing: CadImage, centre: Point, point: Point, *, style: str | None = None, text: str = "", layer: str = "0"
) -> CadDiametricDimension:
    """Adds a dimension of a diameter to model space.

    :param centre: The centre of the circle.
    :param point: A point of the circle, where the dimension line ends.
    """
    values = _style(drawing, style)
    far = 2 * centre[0] - point[0], 2 * centre[1] - point[1]
    dimension = CadDiametricDimension()
    dimension.definition_point, dimension.far_chord_point = _point(point), _point(far)
    figure, middle, measured = _radial(drawing, values, far, point, "Ø", text)
    direction = _polar(math.degrees(math.atan2(point[1] - far[1], point[0] - far[0])))
    figure.arrow(point, direction)
    figure.arrow(far, (-direction[0], -direction[1]))
    _finish(drawing, dimension, figure, middle, text=text, measured=measured, layer=layer)
    return dimension


def _radial(drawing: CadImage, style: CadDimensionStyleTable, start: Point, end: Point, sign: str, text: str
            ) -> tuple[_Figure, Point, float]:
    """The line and the text of a radius or diameter."""
    figure = _Figure(drawing, style)
    figure.line(start, end, style.dimclrd)
    measured = math.dist(start, end)
    shown = sign + format_length(measured, style)
    degrees = math.degrees(math.atan2(end[1] - start[1], end[0] - start[0]))
    middle = figure.text_over(text.replace("<>", shown) if text else shown,
                              ((start[0] + end[0]) / 2, (start[1] + end[1]) / 2), degrees)
    return figure, middle, measured
