"""Converts a file to the format of the target's extension."""

from __future__ import annotations

import io
import os
import re
import signal
import stat
import time
from collections.abc import Generator, Mapping, Sequence
from contextlib import ExitStack, contextmanager
from pathlib import Path
from types import FrameType
from typing import NamedTuple

from korvan.cad import Image, RasterImage
from korvan.cad.fileformats.cad import CadDrawTypeMode, CadImage
from korvan.cad.fileformats.ifc import IfcImage
from korvan.cad.imageoptions import CadRasterizationOptions, ImageOptionsBase
from korvan.tools.errors import ToolError, matching, message_of, without_name
from korvan.tools.files import write_file
from korvan.tools.formats import Target, find_target, targets
from korvan.tools.layouts import layout_names, used_layouts
from korvan.tools.opening import describe_kind, load, load_options
from korvan.tools.pages import set_page
from korvan.tools.settings import Settings, parse_color

PLACEHOLDER = "{layout}"
_OF_DRAWINGS = ("layouts", "layers", "size", "paper", "background", "color_mode")
_NOT_IN_NAMES = re.compile(r'[\x00-\x1f/\\<>:"|?*]')


class ConversionResult(NamedTuple):
    """What a conversion wrote."""

    output: Path
    """The file that was written; the first one, where each layout has a file."""
    format: str
    """Its format, such as PDF."""
    seconds: float
    """How long loading and saving took."""
    warnings: list[str]
    """What was left out or approximated, one line each."""
    fonts: list[str]
    """Fonts that were not available, with what replaced them."""
    outputs: list[Path]
    """All files that were written."""


class Request(NamedTuple):
    """The options of a conversion, as :func:`convert` explains them."""

    to: str | None = None
    layouts: Sequence[str] | None = None
    layers: Sequence[str] | None = None
    size: str | None = None
    paper: str | None = None
    dpi: float | None = None
    background: str | None = None
    color_mode: str | None = None
    fonts: Sequence[str | os.PathLike[str]] = ()
    release: str | None = None
    settings: Mapping[str, str] | None = None
    force: bool = False
    tolerant: bool = False
    timeout: float | None = None

    def concerns_page(self, settings: Settings) -> bool:
        given = (self.layouts, self.layers, self.size, self.paper, self.background, self.color_mode)
        return any(one is not None for one in given) or settings.concerns_page


@contextmanager
def _deadline(seconds: float | None) -> Generator[None]:
    """Ends what runs inside by ``TimeoutError``, where signals can do so: in the main thread."""
    if seconds is None or signal.getsignal(signal.SIGALRM) not in (signal.SIG_DFL, signal.SIG_IGN):
        yield  # no limit, or the program has a timer of its own
        return

    def late(_number: int, _frame: FrameType | None) -> None:
        raise TimeoutError(f"takes longer than {seconds:g} s")

    try:
        before = signal.signal(signal.SIGALRM, late)
    except ValueError:  # not the main thread
        yield
        return
    signal.setitimer(signal.ITIMER_REAL, seconds)
    try:
        yield
    finally:
        signal.setitimer(signal.ITIMER_REAL, 0)
        signal.signal(signal.SIGALRM, before)


def output_path(source: str | os.PathLike[str], target: str | os.PathLike[str], to: str | None) -> Path:
    """The file to write: the target, or in a folder the name of the source with the extension of the format."""
    path = Path(os.fspath(target))
    if not (path.is_dir() or os.fspath(target).endswith("/")):
        return path
    if to is None:
        raise ToolError(f"{path} is a folder: name the format (--to), such as pdf")
    extension = to.lower().removeprefix(".")
    find_target(path, extension)
    return path / f"{Path(os.fspath(source)).stem}.{extension}"


def _check_output(path: Path, force: bool) -> None:
    try:
        mode = path.stat().st_mode
    except FileNotFoundError:
        if not path.parent.is_dir():
            raise ToolError(f"the folder {path.parent} does not exist") from None
        if not os.access(path.parent, os.W_OK | os.X_OK):
            raise ToolError(f"the folder {path.parent} may not be written") from None
        return
    except OSError as failure:
        raise ToolError(f"{path}: {message_of(failure)}") from failure
    if stat.S_ISREG(mode) and not force:
        raise ToolError(f"{path} exists; --force (force=True) replaces it")


def _color_options(raster: CadRasterizationOptions, request: Request, target: Target) -> None:
    if request.background is not None:
        raster.background_color = parse_color(request.background)
        raster.embed_background = not target.is_raster
    if request.color_mode is not None and request.color_mode != "object":
        raster.draw_type = CadDrawTypeMode.USE_DRAW_COLOR
        raster.draw_color = parse_color(request.color_mode)


def _page_options(image: Image, request: Request, target: Target, settings: Settings, options: ImageOptionsBase
                  ) -> None:
    """Sets how the content is rendered, as far as anything of that was asked for."""
    raster = CadRasterizationOptions()
    if request.layouts is not None:
        raster.layouts = list(request.layouts)
    if request.layers is not None:
        known = list(image.layers.names) if isinstance(image, CadImage) else []
        raster.layers = matching("layer", request.layers, known)
    set_page(options, raster, size=request.size, paper=request.paper, dpi=request.dpi, is_raster=target.is_raster,
             is_wide=request.paper is not None and image.width >= image.height)
    _color_options(raster, request, target)
    files = [os.path.abspath(path) for path in request.fonts if not os.path.isdir(path)]
    if files:
        raster.shx_fonts = files
    is_rendered = target.has_pages and not isinstance(image, RasterImage)
    settings.apply(options, raster)
    if request.concerns_page(settings) or files or (is_rendered and request.dpi is not None):
        options.vector_rasterization_options = raster


def _save(image: Image, path: Path, options: ImageOptionsBase) -> None:
    name = os.fspath(path)
    try:
        name.encode()
    except UnicodeEncodeError:  # a name of bytes that are no UTF-8
        page = io.BytesIO()
        image.save(page, options)
        write_file(path, page.getvalue())
    else:
        image.save(name, options)


def _warnings(options: ImageOptionsBase, defects: Sequence[str]) -> tuple[list[str], list[str]]:
    """What was not loaded or rendered faithfully, and fonts that were replaced."""
    result = options.render_result
    if result is None:
        return list(defects), []
    return [*defects, *(one.message for one in result.failures)], list(result.font_substitutions)


def _file_names(path: Path, layouts: Sequence[str]) -> list[Path]:
    """A file for each layout: the placeholder is replaced by its name, as far as a file can have that."""
    found: list[Path] = []
    for layout in layouts:
        name = _NOT_IN_NAMES.sub("_", layout)
        one, number = path.with_name(path.name.replace(PLACEHOLDER, name)), 1
        while one in found:  # pictures of a metafile may have one name
            number += 1
            one = path.with_name(path.name.replace(PLACEHOLDER, f"{name}-{number}"))
        found.append(one)
    return found


def _outputs(image: Image, path: Path, target: Target, request: Request, dst: str
             ) -> list[tuple[Path, Sequence[str] | None]]:
    """The files to write, and the layouts of each."""
    layouts = None if request.layouts is None else matching("layout", request.layouts, layout_names(image))
    in_folder = path != Path(dst)
    is_split = PLACEHOLDER in path.name and not in_folder
    if layouts is not None and len(layouts) > 1 and target.has_one_page and not is_split:
        split = f"{path.stem}-{PLACEHOLDER}{path.suffix}"
        if not in_folder:
            raise ToolError(f"a {target.name} file holds one layout, not {len(layouts)}: write {split} for a file each")
        path, is_split = path.with_name(split), True
    if not is_split:
        return [(path, layouts)]
    if layouts is None:
        layouts = used_layouts(image) if isinstance(image, CadImage) else layout_names(image)
    if not layouts:
        raise ToolError(f"{path.name}: there are no layouts to name files after")
    return [(one, [layout]) for one, layout in zip(_file_names(path, layouts), layouts, strict=True)]


def _check_content(image: Image, target: Target, request: Request) -> None:
    """Refuses what content of this kind is not written as, and names what it is written as."""
    if image.can_save(target.options()):
        given = [name for name in _OF_DRAWINGS if getattr(request, name) is not None]
        if isinstance(image, RasterImage) and given:
            raise ToolError(f"{', '.join(given)}: a raster image has no page, layouts or layers; RasterImage.resize "
                            "changes its size")
        return
    known = ", ".join(sorted(extension for extension, one in targets().items() if image.can_save(one.options())))
    if isinstance(image, IfcImage):
        raise ToolError(f"building models are not drawn yet, so there is no {target.name} of them; they are written as "
                        f"{known}")
    raise ToolError(f"{describe_kind(type(image))} is not written as {target.name}; it is written as {known}")


@contextmanager
def converted(src: str | os.PathLike[str], dst: str | os.PathLike[str], request: Request
              ) -> Generator[tuple[Image, ConversionResult]]:
    """Converts a file as :func:`convert` does, and leaves what was loaded open for the body of the statement."""
    start = time.perf_counter()
    path = output_path(src, dst, request.to)
    target = find_target(path, request.to)
    settings = Settings(request.settings)
    if request.timeout is not None and request.timeout <= 0:
        raise ToolError(f"a timeout is more than 0 seconds, not {request.timeout:g}")
    target.make_options(request.release)
    if PLACEHOLDER not in path.name:
        _check_output(path, request.force)
    for font in request.fonts:
        if not os.path.exists(font):
            raise ToolError(f"fonts {font}: there is no such file or folder")
    given = load_options(request.fonts, request.tolerant)
    settings.apply_to_load(given)
    with ExitStack() as opened:
        warnings: list[str] = []
        fonts: list[str] = []
        try:
            with _deadline(request.timeout):
                image = opened.enter_context(load(src, given))
                _check_content(image, target, request)
                outputs = _outputs(image, path, target, request, os.fspath(dst))
                for one, _ in outputs:
                    _check_output(one, request.force)
                for one, layouts in outputs:
                    options = target.make_options(request.release)
                    _page_options(image, request._replace(layouts=layouts), target, settings, options)
                    if request.timeout is not None:
                        left = request.timeout - (time.perf_counter() - start)
                        options.timeout = max(1, int(left * 1000))
                    _save(image, one, options)
                    defects = [without_name(text, os.fspath(src)) for text in given.errors]
                    found, replaced = _warnings(options, () if warnings else defects)
                    warnings += [text for text in found if text not in warnings]
                    fonts += [font for font in replaced if font not in fonts]
        except TimeoutError as failure:
            raise ToolError(str(failure)) from None
        except (OSError, RuntimeError) as failure:
            raise ToolError(message_of(failure)) from failure
        files = [one for one, _ in outputs]
        yield image, ConversionResult(files[0], target.name, time.perf_counter() - start, warnings, fonts, files)


def convert(
    src: str | os.PathLike[str], dst: str | os.PathLike[str], *, to: str | None = None,
    layouts: Sequence[str] | None = None, layers: Sequence[str] | None = None, size: str | None = None,
    paper: str | None = None, dpi: float | None = None, background: str | None = None,
    color_mode: str | None = None, fonts: Sequence[str | os.PathLike[str]] = (), release: str | None = None,
    settings: Mapping[str, str] | None = None, force: bool = False, tolerant: bool = False,
    timeout: float | None = None
) -> ConversionResult:
    """Converts a file to the format of the target's extension.

    :param src: The file to convert; its format is detected from the content.
    :param dst: The file to write. In a folder, it gets the name of the source, and ``to`` states its format. With
        ``{layout}`` in its name, each layout gets a file of its own, and so it does in a folder where a format holds
        one page: ``plan-Layout1.png``.
    :param to: The format as an extension, such as ``pdf``; by default that of ``dst``.
    :param layouts: The layouts to render, as names or patterns such as ``Sheet*``; model space by default, and
        with ``{layout}`` in the name of the file those that have content.
    :param layers: The layers to render, as names or patterns; all by default.
    :param size: The size of the page: ``1600x1200`` or ``1600x``, in pixels for images and in points of 1/72 inch
        for pages, or ``420x297mm``.
    :param paper: The paper instead, such as ``A3``, ``A3-portrait`` or ``letter``.
    :param dpi: The resolution in pixels per inch; 150 for images on paper.
    :param background: The colour of the background, such as ``black`` or ``#202428``.
    :param color_mode: ``object`` for the colours of the drawing, or one colour for all, such as ``black``.
    :param fonts: Folders with fonts, and shape font files.
    :param release: The release of a drawing that is written, such as ``R2000`` or ``2018``.
    :param settings: Any option by class and member: ``{"PngOptions.compression_level": "9"}``.
    :param force: Whether a file that exists is replaced.
    :param tolerant: Whether damaged objects are left out instead of raising an error.
    :param timeout: How many seconds it may take.
    :raises ToolError: A file, a name or an option is wrong; the message says which, and what would be right.
    """
    request = Request(to, layouts, layers, size, paper, dpi, background, color_mode, fonts, release, settings, force,
                      tolerant, timeout)
    with converted(src, dst, request) as (_, result):
        return result
