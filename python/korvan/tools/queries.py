"""Walks the entities of a drawing as their own classes, and finds those that a query names."""

from __future__ import annotations

from collections.abc import Callable, Iterable, Iterator
from fnmatch import fnmatchcase
from typing import Any, TypeVar, overload

from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cad.cadobjects import CadBlockEntity, CadEntityBase
from korvan.tools.errors import matching
from korvan.tools.opening import cast

Entity = TypeVar("Entity", bound=CadEntityBase)
Names = str | Iterable[str]
MODEL = "Model"


def _patterns(names: Names) -> list[str]:
    return [names.casefold()] if isinstance(names, str) else [name.casefold() for name in names]


class _Matcher:
    """Whether names match patterns; each name is judged once."""

    def __init__(self, names: Names) -> None:
        self._patterns = _patterns(names)
        self._known: dict[str, bool] = {}

    def __call__(self, name: str) -> bool:
        found = self._known.get(name)
        if found is None:
            key = name.casefold()
            found = self._known[name] = any(fnmatchcase(key, pattern) for pattern in self._patterns)
        return found


def spaces(drawing: CadImage, layout: Names | None = MODEL, block: Names | None = None
           ) -> Iterator[tuple[str, Iterable[CadEntityBase]]]:
    """Layouts and blocks by name, with their entities.

    :param layout: Names or patterns of layouts; ``None`` for none.
    :param block: Names or patterns of blocks, ``*`` for all; ``None`` for none.
    :raises ToolError: A name matches no layout or block.
    """
    if layout is not None:
        names = [layout] if isinstance(layout, str) else list(layout)
        for name in matching("layout", names, list(drawing.layouts.names)):
            yield name, drawing.get_layout_entities(name)
    if block is not None:
        patterns = [block] if isinstance(block, str) else list(block)
        known = [name for name in drawing.block_entities.names if not is_space(name)]
        for name in matching("block", patterns, known) if known or patterns != ["*"] else []:
            yield name, drawing.block_entities.get(name).entities


def is_space(block_name: str) -> bool:
    """Whether a block is the content of a layout."""
    return block_name.casefold().startswith(("*model_space", "*paper_space"))


def entities(drawing: CadImage, layout: Names | None = MODEL, block: Names | None = None) -> Iterator[Any]:
    """The entities of layouts and blocks in drawing order, each as its own class."""
    for _, found in spaces(drawing, layout, block):
        for entity in found:
            yield cast(entity)


@overload
def query(
    drawing: CadImage, kind: type[Entity], *, layer: Names | None = None, layout: Names | None = MODEL,
    block: Names | None = None, color: int | None = None, where: Callable[[Entity], bool] | None = None
) -> Iterator[Entity]: ...
@overload
def query(
    drawing: CadImage, kind: str = "*", *, layer: Names | None = None, layout: Names | None = MODEL,
    block: Names | None = None, color: int | None = None, where: Callable[[Any], bool] | None = None
) -> Iterator[Any]: ...
def query(
    drawing: CadImage, kind: type[CadEntityBase] | str = "*", *, layer: Names | None = None,
    layout: Names | None = MODEL, block: Names | None = None, color: int | None = None,
    where: Callable[[Any], bool] | None = None
) -> Iterator[Any]:
    """Finds entities, each as its own class, in drawing order.

    :param drawing: The drawing.
    :param kind: Type names as in files, separated by spaces, with wildcards: ``LINE``, ``LINE ARC``, ``*TEXT``; or a
        class such as ``CadLine``, which the result then has for a type checker.
    :param layer: Names or patterns of layers, such as ``WALL*``; case is ignored.
    :param layout: Names or patterns of layouts, ``*`` for all; ``None`` for none.
    :param block: Names or patterns of blocks to search as well, ``*`` for all.
    :param color: The index of the colour; 256 by layer, 0 by block.
    :param where: Which of those that match otherwise are returned.
    :raises ToolError: A layout or block is not there.
    """
    is_kind = _Matcher(kind.split()) if isinstance(kind, str) and kind != "*" else None
    on_layer = _Matcher(layer) if layer is not None else None
    for _, found in spaces(drawing, layout, block):
        for entity in found:
            if on_layer is not None and not on_layer(entity.layer_name):
                continue
            if is_kind is not None and not is_kind(entity.type_name_text):
                continue
            if color is not None and entity.color_id != color:
                continue
            own = cast(entity)
            if not isinstance(kind, str) and not isinstance(own, kind):
                continue
            if where is None or where(own):
                yield own


def blocks(drawing: CadImage) -> Iterator[CadBlockEntity]:
    """The blocks that people named: no layouts, and none that programs made for dimensions and the like."""
    for block in drawing.block_entities:
        if not block.name.startswith("*"):
            yield block
