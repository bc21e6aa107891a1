"""Formats that are written, by file extension."""

from __future__ import annotations

import os
from collections.abc import Callable
from functools import cache
from pathlib import Path
from typing import Any, NamedTuple

from korvan.cad import FileFormat, FileFormatCategory, imageoptions
from korvan.cad.fileformats import FileFormatFamily, FileFormatInfo, SupportedFileFormats
from korvan.cad.fileformats.cad.cadconsts import CadAcadVersion
from korvan.cad.imageoptions import (
    DicomOptions,
    DwgOptions,
    DxfOptions,
    DxfOutputVersion,
    GifOptions,
    ImageOptionsBase,
    PdfOptions,
    TiffOptions,
)
from korvan.tools.errors import ToolError, nearest, nearest_are

_RELEASES = {
    "2000": CadAcadVersion.AC1015, "2004": CadAcadVersion.AC1018, "2010": CadAcadVersion.AC1024,
    "2013": CadAcadVersion.AC1027, "2018": CadAcadVersion.AC1032,
}
_WITH_PAGES = (PdfOptions, TiffOptions, GifOptions, DicomOptions)


class Target(NamedTuple):
    """A format that is written."""

    name: str
    extensions: tuple[str, ...]
    options: Callable[[], ImageOptionsBase]
    category: FileFormatCategory
    family: FileFormatFamily

    @property
    def is_raster(self) -> bool:
        """Whether it has pixels."""
        return self.category == FileFormatCategory.BITMAP

    @property
    def has_pages(self) -> bool:
        """Whether drawings are rendered on pages of it."""
        return self.category in (FileFormatCategory.BITMAP, FileFormatCategory.VECTOR)

    @property
    def has_one_page(self) -> bool:
        """Whether a file of it holds one page only."""
        return self.has_pages and not isinstance(self.options(), _WITH_PAGES)

    def make_options(self, release: str | None = None) -> ImageOptionsBase:
        """New options of the format, of a release where it has some."""
        options = self.options()
        if release is None:
            return options
        year = release.upper().removeprefix("R")
        if isinstance(options, DxfOptions):
            versions = {name.removeprefix("R"): one for name, one in DxfOutputVersion.__members__.items()}
            if year in versions:
                options.version = versions[year]
                return options
            raise ToolError(f"DXF is not written as {release}: use one of {', '.join(versions)}")
        if isinstance(options, DwgOptions):
            if year in _RELEASES:
                options.version = _RELEASES[year]
                return options
            raise ToolError(f"DWG is not written as {release}: use one of {', '.join(_RELEASES)}")
        raise ToolError(f"{self.name} has no releases")


@cache
def _target(name: str) -> Target | None:
    """What options of that name write; ``None`` where they write nothing, or are a base of others."""
    kind: Any = getattr(imageoptions, name)
    if not (name.endswith("Options") and ImageOptionsBase in getattr(kind, "__mro__", ())):
        return None
    try:
        written: FileFormat = kind().target_format
    except TypeError:
        return None
    if not SupportedFileFormats.Output.contains(written):
        return None
    info = FileFormatInfo.get(written)
    extensions = tuple(extension.removeprefix(".") for extension in info.extensions)
    return Target(name.removesuffix("Options").upper(), extensions, kind, info.category, info.family)


@cache
def targets() -> dict[str, Target]:
    """The formats that are written, by extension without its period."""
    found = [target for name in dir(imageoptions) if (target := _target(name)) is not None]
    return {extension: target for target in found for extension in target.extensions}


@cache
def _find(extension: str) -> Target | None:
    """The format of an extension. Options that are named like it are asked first: to ask all takes time."""
    for name in dir(imageoptions):
        if name.lower() == f"{extension}options" and (target := _target(name)) is not None:
            return target
    return targets().get(extension)


def find_target(path: str | os.PathLike[str], to: str | None = None) -> Target:
    """The format to write: the one that is named, else that of the extension.

    :raises ToolError: There is none, with the extensions that come near.
    """
    extension = (to if to is not None else Path(os.fspath(path)).suffix).lower().removeprefix(".")
    found = _find(extension)
    if found is not None:
        return found
    if not extension:
        raise ToolError("the target has no extension: name the format (--to), such as pdf")
    near = nearest(extension, targets())
    known = nearest_are(near) if near else f"there are {', '.join(sorted(targets()))}"
    raise ToolError(f"{extension!r} is no format that is written; {known}")
