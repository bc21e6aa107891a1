"""Opens files as the class of their format, and casts objects to their own class."""

from __future__ import annotations

import enum
import io
import os
import stat
import sys
from collections.abc import Iterable
from typing import Any, TypeVar, overload

import korvan.cad
from korvan.cad import CustomFontFolderOptions, Image, LoadOptions, RasterImage
from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cgm import CgmImage
from korvan.cad.fileformats.ifc import IfcImage
from korvan.tools.errors import ToolError, message_of, without_name

Opened = CadImage | CgmImage | IfcImage | RasterImage
AnyImage = TypeVar("AnyImage", bound=Image)
_ROOT = "Korvan.CAD"
_classes: dict[str, type[Any]] = {}


def enum_name(member: enum.Enum) -> str:
    """The name of a member of an enumeration of the library; of a flag without one, its number."""
    name: str | None = member.name
    return name or str(member.value)


def _find_class(managed: Any) -> type[Any]:
    """The public class of a managed type, or of the nearest of its bases that is public."""
    while managed is not None:
        namespace, _, name = managed.full_name.rpartition(".")
        if namespace == _ROOT or namespace.startswith(_ROOT + "."):
            module = sys.modules.get(korvan.cad.__name__ + namespace.removeprefix(_ROOT).lower())
            owner: object = module
            if module is None:
                owner = korvan.cad
                for part in namespace.removeprefix(_ROOT).lower().split(".")[1:]:
                    owner = getattr(owner, part, None)
            found = getattr(owner, name, None)
            if isinstance(found, type):
                return found
        managed = managed.base_type
    return object


def cast(value: Any) -> Any:
    """The object as its own class: a line in a list of entities as ``CadLine``, not ``CadEntityBase``.

    What has no class of its own, such as an entity of an unknown type, comes as the nearest class that it has.
    """
    managed = value.get_type()
    name = managed.full_name
    own = _classes.get(name)
    if own is None:
        own = _classes[name] = _find_class(managed)
    if own is object or type(value) is own:
        return value
    result = own._cast_to(value)
    return result.value if result else value


def load_options(fonts: Iterable[str | os.PathLike[str]] = (), tolerant: bool = False) -> LoadOptions:
    """Options for loading: folders with fonts, and whether loading goes on after a defect."""
    options = LoadOptions()
    folders = [os.path.abspath(path) for path in fonts if os.path.isdir(path)]
    if folders:
        options.custom_font_folders = folders
        options.custom_font_folder_options = CustomFontFolderOptions.INCLUDE_SUBFOLDERS
    options.ignore_errors = tolerant
    return options


def load(source: str | os.PathLike[str], options: LoadOptions | None = None) -> Image:
    """Loads a file as the class of its format.

    :raises ToolError: The file does not exist, is of no known format, or is damaged.
    """
    path = os.fspath(source)
    given = options or LoadOptions()
    try:
        mode = os.stat(path).st_mode
        if stat.S_ISDIR(mode):
            raise ToolError("is a folder, not a drawing")
        with open(path, "rb") as file:  # says better than the library what is wrong with a path
            if stat.S_ISREG(mode):
                image = Image.load(path, given)
            else:  # a pipe can be read only once
                image = Image.load(io.BytesIO(file.read()), given)
    except (OSError, RuntimeError) as failure:
        raise ToolError(without_name(message_of(failure), path)) from failure
    return cast(image)


def describe_kind(kind: type[Image]) -> str:
    """A class of images as messages name it."""
    names = ((CadImage, "a drawing"), (CgmImage, "a metafile"), (IfcImage, "a building model"),
             (RasterImage, "a raster image"))
    name = next((name for base, name in names if issubclass(kind, base)), "a file")
    return f"{name} ({kind.__name__})"


@overload
def open_drawing(
    source: str | os.PathLike[str], kind: type[AnyImage], *, fonts: Iterable[str | os.PathLike[str]] = (),
    tolerant: bool = False
) -> AnyImage: ...
@overload
def open_drawing(
    source: str | os.PathLike[str], kind: None = None, *, fonts: Iterable[str | os.PathLike[str]] = (),
    tolerant: bool = False
) -> Opened: ...
def open_drawing(
    source: str | os.PathLike[str], kind: type[Image] | None = None, *,
    fonts: Iterable[str | os.PathLike[str]] = (), tolerant: bool = False
) -> Image:
    """Opens a file and returns the class of its format: ``DxfImage``, ``IfcImage``, ``CgmImage``, ``RasterImage``.

    Use it in a ``with`` statement, which releases the drawing at the end.

    :param source: The path of the file.
    :param kind: The class that is expected, such as ``CadImage``; another one raises an error. A type checker then
        knows the result as that class.
    :param fonts: Folders with fonts that the drawing uses.
    :param tolerant: Whether damaged objects are left out instead of raising an error.
    :raises ToolError: The file cannot be opened, or is of another kind.
    """
    image = load(source, load_options(fonts, tolerant))
    if kind is not None and not isinstance(image, kind):
        found = type(image)
        image.dispose()
        raise ToolError(f"is {describe_kind(found)}, not {describe_kind(kind)}")
    return image
