"""What worker processes do: they convert one file after the other.

Results are written into a folder of the worker's own and moved in place when they are whole.
"""

from __future__ import annotations

import base64
import io
import os
import stat
import time
from dataclasses import dataclass
from hashlib import blake2b
from pathlib import Path
from typing import TYPE_CHECKING, Any

from korvan.batch.errors import FULL, reason

if TYPE_CHECKING:
    from korvan.cad import Image
    from korvan.tools.conversion import Request

THUMBNAIL = (160.0, 120.0)
SLOW = 10.0  # who waited so long for a result is not to wait as long again for its thumbnail
NEARLY_FULL = 1 << 16
FOLDERS = 10_000  # that are remembered
_folders: set[str] = set()
_recipe: dict[str, Any] = {}


class Refused(Exception):
    """A file that gets no result, with the kind of the reason."""

    def __init__(self, kind: str, text: str) -> None:
        super().__init__(text)
        self.kind = kind


def _memory() -> dict[str, int]:
    """The most memory that the process took for a file, and what it takes now, in bytes."""
    names = {b"VmHWM": "memory", b"VmRSS": "resident"}
    with open("/proc/self/status", "rb", buffering=0) as file:
        lines = (line.split() for line in file.read(1 << 14).split(b"\n"))
        return {names[line[0][:-1]]: int(line[1]) * 1024 for line in lines if line and line[0][:-1] in names}


def _forget_peak() -> None:
    try:
        with open("/proc/self/clear_refs", "w", encoding="ascii") as file:
            file.write("5")
    except OSError:
        pass  # then the peak of the files before counts, too


def _is_text(path: str) -> bool:
    """Whether the library can be told of a path: names that are no UTF-8 have no characters."""
    try:
        path.encode("utf-8")
    except UnicodeEncodeError:
        return False
    return True


def _hash(path: str) -> tuple[str, os.stat_result]:
    """The hash of a file, and its status when it was read."""
    try:
        # Without waiting: what was a file when it was found may be a pipe by now.
        handle = os.open(path, os.O_RDONLY | os.O_NONBLOCK | os.O_CLOEXEC)
        with open(handle, "rb") as file:
            status = os.fstat(handle)
            if not stat.S_ISREG(status.st_mode):
                raise Refused("missing", "is no file any more")
            digest = blake2b(digest_size=16)
            while block := file.read(1 << 20):
                digest.update(block)
            return digest.hexdigest(), status
    except FileNotFoundError:
        raise Refused("missing", "is not there any more") from None
    except OSError as failure:
        raise Refused("input", reason(failure)) from failure


def _changed(path: str, before: os.stat_result) -> bool:
    try:
        now = os.stat(path)
    except OSError:
        return True
    return (now.st_mtime_ns, now.st_size) != (before.st_mtime_ns, before.st_size)


def _thumbnail(image: Image) -> bytes | None:
    from korvan.cad.imageoptions import CadRasterizationOptions, WebPOptions

    options, page = WebPOptions(), CadRasterizationOptions()
    options.lossless, options.quality = False, 50.0  # thin lines take five times the bytes as PNG
    page.page_width, page.page_height = THUMBNAIL
    options.vector_rasterization_options = page
    stream = io.BytesIO()
    try:
        image.save(stream, options)
    except (RuntimeError, ValueError, OSError):
        return None  # what has no pixels
    return stream.getvalue()


def _file_for(result: str, request: Request) -> str:
    """The file to write: with the name of each layout, where several are wanted and a file holds one."""
    from korvan.tools.conversion import PLACEHOLDER
    from korvan.tools.formats import find_target

    stem, extension = os.path.splitext(result)
    is_split = request.layouts is not None and find_target(result, request.to).has_one_page
    return f"{stem}-{PLACEHOLDER}{extension}" if is_split else result


def _call(source: str, result: str, task: dict[str, Any]) -> tuple[list[str], bytes | None]:
    """Writes the result, and gives the warnings and the thumbnail. Layouts after the first have files beside it."""
    from korvan.tools import ToolError
    from korvan.tools.conversion import Request, converted

    start = time.perf_counter()
    limit = task["timeout"] or None
    try:
        request = Request(to=task["to"], timeout=limit, force=True, **task["options"])
        with converted(source, _file_for(result, request), request) as (image, done):
            os.replace(done.output, result)
            in_time = time.perf_counter() - start < SLOW
            return done.warnings, _thumbnail(image) if task["thumbnail"] and in_time else None
    except (ToolError, RuntimeError, ValueError, OSError) as failure:
        _refuse_full(failure, task["scratch"])
        if limit and time.perf_counter() - start >= limit:
            raise Refused("timeout", f"takes longer than {limit:g} s") from failure
        raise Refused("input", str(failure) or type(failure).__name__) from failure


def _convert(source: str, result: Path, task: dict[str, Any]) -> tuple[list[str], bytes | None]:
    """As above; names that the library cannot be told are given to it as others."""
    if _is_text(source) and _is_text(str(result)) and "{" not in result.name:
        return _call(source, str(result), task)
    link = "source" + os.path.splitext(source)[1].encode("ascii", "ignore").decode()
    os.chdir(result.parent)
    try:
        os.symlink(source, link)
        warnings, thumbnail = _call(link, "result" + result.suffix, task)
        os.unlink(link)
        for name in os.listdir():
            os.rename(name, result.stem + name.removeprefix("result"))
    finally:
        os.chdir("/")
    return ["the name is no UTF-8: files that the drawing refers to were not looked for", *warnings], thumbnail


def _refuse_full(failure: BaseException, folder: str) -> None:
    """Tells a full disk from a bad drawing."""
    space = os.statvfs(folder)
    if getattr(failure, "errno", None) in FULL or space.f_bavail * space.f_frsize < NEARLY_FULL or not space.f_favail:
        raise Refused("full", "No space left on device") from failure


def _make_folder(path: str) -> None:
    """Makes sure of a folder, without asking a file server each time for one that this process has seen."""
    if path not in _folders:
        os.makedirs(path, exist_ok=True)
        if len(_folders) == FOLDERS:
            _folders.clear()
        _folders.add(path)


def _move(result: Path, target: str, *, replace: bool) -> os.stat_result:
    """Moves a result in place, after the files that belong to it."""
    folder = os.path.dirname(target)
    try:
        _make_folder(folder)
        for name in sorted(os.listdir(result.parent), key=lambda name: name == result.name):
            place = target if name == result.name else os.path.join(folder, name)
            if not replace and os.path.lexists(place):
                raise Refused("output", f"{os.path.basename(place)} exists and is not of this batch")
            os.replace(result.parent / name, place)
        return os.stat(target)
    except OSError as failure:
        _folders.discard(folder)  # the next file may make it again
        _refuse_full(failure, str(result.parent))
        raise Refused("output", f"{folder}: {reason(failure)}") from failure


def _result(task: dict[str, Any]) -> dict[str, Any]:
    source, target = task["source"], task["target"]
    digest, status = _hash(source)
    reply: dict[str, Any] = {"hash": digest, "size": status.st_size, "modified": status.st_mtime_ns}
    if digest == task["known"]:
        return {**reply, "state": "unchanged"}
    scratch = Path(task["scratch"])
    try:
        _make_folder(str(scratch))
        result = scratch / os.path.basename(target)
        reply["warnings"], image = _convert(source, result, task)
    except OSError as failure:
        _refuse_full(failure, str(scratch.parent))
        raise Refused("output", f"{scratch}: {reason(failure)}") from failure
    if _changed(source, status):
        raise Refused("changed", "was changed while it was converted")
    moved = _move(result, target, replace=task["replace"])
    reply.update(state="done", result_size=moved.st_size, result_modified=moved.st_mtime_ns)
    reply["thumbnail"] = base64.b64encode(image).decode() if image else None
    return reply


def work(task: dict[str, Any]) -> dict[str, Any]:
    """Converts a file and tells what became of it."""
    task = {**task, **_recipe}
    _forget_peak()
    start = time.perf_counter()
    reply: dict[str, Any]
    try:
        reply = _result(task)
    except Refused as failure:
        reply = {"state": "failed", "kind": failure.kind, "error": " ".join(str(failure).split())}
    except Exception as failure:  # a fault of ours costs no more than a file
        reply = {"state": "failed", "kind": "fault", "error": f"{type(failure).__name__}: {failure}"}
    if reply["state"] == "failed":
        import shutil  # it takes longer to import than a small file to convert

        _folders.discard(task["scratch"])
        shutil.rmtree(task["scratch"], ignore_errors=True)  # what was begun is not to be moved with the next result
    return {**reply, "seconds": time.perf_counter() - start, **_memory()}


@dataclass(frozen=True)
class Greeting:
    """What a worker tells of itself when it is ready."""

    version: str
    """The version of the converter."""
    extensions: list[str]
    """The file extensions of drawings that it reads."""
    wrong: str
    """What is wrong with the recipe for each of the files; empty if nothing is."""


def greet(to: str, options: dict[str, Any]) -> Greeting:
    """Makes a worker ready for the files of a recipe."""
    import korvan.cad

    _recipe.update(to=to, options=options)
    return Greeting(str(korvan.cad.BuildVersionInfo.product_version), read_extensions(), check(to, options))


def check(to: str, options: dict[str, Any]) -> str:
    """What is wrong with a recipe for each of the files; empty if nothing is."""
    from korvan.tools import ToolError
    from korvan.tools.formats import find_target
    from korvan.tools.pages import paper_size, parse_size
    from korvan.tools.settings import Settings, parse_color

    try:
        find_target(to, to).make_options(options.get("release"))
        Settings(options.get("settings"))
        if "size" in options:
            parse_size(options["size"])
        if "paper" in options:
            paper_size(options["paper"], is_wide=True)
        for color in (options.get("background"), options.get("color_mode")):
            if color is not None and color != "object":
                parse_color(color)
    except ToolError as failure:
        return str(failure)
    return ""


def read_extensions() -> list[str]:
    """The file extensions of what can be read and has no pixels."""
    from korvan.cad import FileFormatCategory
    from korvan.cad.fileformats import SupportedFileFormats

    formats = (info for info in SupportedFileFormats.Input.formats if info.category != FileFormatCategory.BITMAP)
    return sorted({extension for info in formats for extension in info.extensions})
