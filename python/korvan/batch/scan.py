"""Finds the drawings of a folder, and deals them out to shards by their place in it.

The order is that of a walk: the files of a folder by name, then its folders. A shard is a range of that order, so it
covers few folders, and a file that comes later belongs to exactly one shard.
"""

from __future__ import annotations

import os
import stat
from bisect import bisect_right
from collections.abc import Callable, Iterator, Sequence
from dataclasses import dataclass
from fnmatch import fnmatchcase

from korvan.batch.errors import BatchError, printable, reason
from korvan.batch.folder import NAME, BatchFolder, replace_file

# File extensions that a name without its own may still end in: such names are kept whole, in any version.
DRAWINGS = frozenset((b".dxf .dxb .dwg .dwt .dwf .dwfx .dgn .cgm .plt .hpgl .hpg .cf2 .ifc .ifcxml .ifczip .stp .step"
                      b" .stpz .igs .iges .stl .obj .fbx .3ds .3mf .dae .gltf .glb .u3d .x3d").split())

STEP = 1000  # entries of a folder between two looks at whether to stop
Place = tuple[tuple[bytes, ...], bytes]
"""Where a file stands in the order of a walk: the folders that lead to it, and its name without the extension."""


@dataclass(frozen=True, slots=True)
class Source:
    """A drawing, by its path below the folder of the batch."""

    path: bytes
    size: int
    modified: int
    """In nanoseconds."""
    whole_name: bool
    """Whether its result keeps the extension in the name, since others have the same name without it."""

    def target(self, extension: bytes) -> bytes:
        """The path of the result below the folder of results.

        No two sources have the same: whole names end in the extension of a drawing, others never do.
        """
        stem = self.path if self.whole_name else os.path.splitext(self.path)[0]
        return stem + b"." + extension

    def place(self) -> Place:
        *folders, name = self.path.split(b"/")
        return tuple(folders), os.path.splitext(name)[0]


class Wanted:
    """Which names are taken: those that match a pattern, or else those with an extension that can be read."""

    def __init__(self, patterns: Sequence[str], extensions: Sequence[str]) -> None:
        self._patterns = [os.fsencode(pattern).lower() for pattern in patterns]
        self._extensions = frozenset(extension.encode().lower() for extension in extensions)

    def has(self, name: bytes) -> bool:
        if self._patterns:
            return any(fnmatchcase(name.lower(), pattern) for pattern in self._patterns)
        return os.path.splitext(name)[1].lower() in self._extensions and not name.startswith(b".")


class Scanner:
    """One walk over a folder. What cannot be read is kept, so that it is told and not lost."""

    def __init__(self, root: bytes, wanted: Wanted, leave_out: bytes, on_step: Callable[[], None]) -> None:
        self.unreadable: list[str] = []
        self._root = root
        self._wanted = wanted
        self._leave_out = os.path.realpath(leave_out)
        self._on_step = on_step

    def walk(self) -> Iterator[list[Source]]:
        """The sources of one folder after the other, in the order of places."""
        waiting = [b""]
        while waiting:
            folder = waiting.pop()
            self._on_step()
            files, folders = self._list(folder)
            if files:
                yield files
            waiting.extend(sorted(folders, key=lambda path: path[:-1], reverse=True))  # by name, as places are

    def _list(self, folder: bytes) -> tuple[list[Source], list[bytes]]:
        files: list[tuple[bytes, os.stat_result]] = []
        folders: list[bytes] = []
        full = os.path.join(self._root, folder) if folder else self._root
        try:
            with os.scandir(full) as entries:
                for number, entry in enumerate(entries, 1):
                    if number % STEP == 0:
                        self._on_step()
                    if entry.is_dir(follow_symlinks=False):
                        if entry.name != NAME.encode() and not self._is_left_out(entry.path):
                            folders.append(folder + entry.name + b"/")
                    elif self._wanted.has(entry.name) and (status := self._status(entry)) is not None:
                        files.append((entry.name, status))
        except OSError as failure:
            self.unreadable.append(f"{printable(full)}: {reason(failure)}")
        return list(_name(folder, files)), folders

    def _status(self, entry: os.DirEntry[bytes]) -> os.stat_result | None:
        """The attributes of a file; a link that leads nowhere costs only itself."""
        try:
            status = entry.stat()
        except OSError as failure:
            if entry.is_symlink():  # else it was removed meanwhile
                self.unreadable.append(f"{printable(entry.path)}: {reason(failure)}")
            return None
        return status if stat.S_ISREG(status.st_mode) else None

    def _is_left_out(self, path: bytes) -> bool:
        return os.path.basename(path) == os.path.basename(self._leave_out) \
            and os.path.realpath(path) == self._leave_out


def _name(folder: bytes, files: list[tuple[bytes, os.stat_result]]) -> Iterator[Source]:
    """The sources of a folder, by name; those that differ only in the extension keep it in their results."""
    counts: dict[bytes, int] = {}
    for name, _ in files:
        stem = os.path.splitext(name)[0]
        counts[stem] = counts.get(stem, 0) + 1
    known = DRAWINGS.union(os.path.splitext(name)[1].lower() for name, _ in files)
    for name, status in sorted(files, key=lambda file: (os.path.splitext(file[0])[0], file[0])):
        stem = os.path.splitext(name)[0]
        whole = counts[stem] > 1 or os.path.splitext(stem)[1].lower() in known - {b""}
        yield Source(folder + name, status.st_size, status.st_mtime_ns, whole)


def write_list(sources: Sequence[Source]) -> bytes:
    """A list of sources, in which names may have any bytes that file names have."""
    return b"".join(b"%d %d %d %s\0" % (one.size, one.modified, one.whole_name, one.path) for one in sources)


def read_list(content: bytes) -> list[Source]:
    sources: list[Source] = []
    for record in content.split(b"\0")[:-1]:
        size, modified, whole, path = record.split(b" ", 3)
        sources.append(Source(path, int(size), int(modified), whole == b"1"))
    return sources


class Dealer:
    """Writes the lists of shards while the walk goes on: memory holds one shard at a time."""

    def __init__(self, folder: BatchFolder, starts: Sequence[Place], size: int) -> None:
        self.starts = list(starts)
        self.files = 0
        self._known = len(starts)  # a folder that was dealt out before keeps its ranges, whatever their size
        self._folder = folder
        self._size = size
        self._shard = -1
        self._waiting: list[Source] = []

    def deal(self, sources: Sequence[Source]) -> None:
        for source in sources:
            place = source.place()
            self._begin_shard_if_due(place)
            self._waiting.append(source)
            self.files += 1

    def finish(self) -> None:
        self._write()
        for shard in range(self._shard + 1, self._known):
            self._shard = shard
            self._write()

    def _begin_shard_if_due(self, place: Place) -> None:
        if self._known:
            shard = max(0, bisect_right(self.starts, place) - 1)
        elif self._shard < 0 or len(self._waiting) >= self._size and self._waiting[-1].place() != place:
            shard = self._shard + 1
            self.starts.append(place)
        else:
            return
        while self._shard < shard:  # a range that has lost all its files has an empty list
            self._write()
            self._shard += 1

    def _write(self) -> None:
        if self._shard >= 0:
            path = self._folder.list_path(self._shard)
            content = write_list(self._waiting)
            path.parent.mkdir(parents=True, exist_ok=True)
            if not path.exists() or path.read_bytes() != content:
                replace_file(path, content)
        self._waiting = []


def places_to_json(starts: Sequence[Place]) -> list[list[str]]:
    return [[*map(os.fsdecode, folders), os.fsdecode(stem)] for folders, stem in starts]


def places_from_json(kept: Sequence[Sequence[str]]) -> list[Place]:
    return [(tuple(map(os.fsencode, folders)), os.fsencode(stem)) for *folders, stem in kept]


def check_folders(source: str | os.PathLike[str], out: str | os.PathLike[str]) -> None:
    """Results must not lie among the sources that the next run would find, nor over them.

    :raises BatchError: They would.
    """
    real_source, real_out = os.path.realpath(source), os.path.realpath(out)
    if not os.path.isdir(real_source):
        raise BatchError(f"{printable(source)}: is no folder" if os.path.exists(real_source)
                         else f"{printable(source)}: No such file or directory")
    if real_source == real_out or real_source.startswith(os.path.join(real_out, "")):
        raise BatchError(f"{printable(out)}: has the drawings of {printable(source)} in it; results go to a folder "
                         "beside or below them")


def count_files(folder: str | os.PathLike[str], most: int) -> int:
    """How many files there are in a folder and below, of any kind; the search ends at ``most``."""
    count = 0
    for _, _, names in os.walk(os.fsencode(folder)):
        count += len(names)
        if count >= most:
            return most
    return count


def scan(folder: BatchFolder, source: str | os.PathLike[str], wanted: Wanted, starts: Sequence[Place], size: int,
         on_step: Callable[[int], None]) -> tuple[Dealer, list[str]]:
    """Walks over the sources and writes the lists of shards; gives their places, and what could not be read."""
    dealer = Dealer(folder, starts, size)
    scanner = Scanner(os.fsencode(source), wanted, os.fsencode(folder.out), lambda: on_step(dealer.files))
    for sources in scanner.walk():
        dealer.deal(sources)
    dealer.finish()
    return dealer, scanner.unreadable
