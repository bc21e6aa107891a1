"""The journal of a shard: one row for each file, with what became of it.

There is one writer, who holds the lease of the shard; so the database needs no locks, which network file systems do
not keep. Each change is one transaction, and its rollback journal stays in place, so that a change costs no operation
on a directory. A process that is killed leaves a true journal. It is not forced to the disk before the end, since that
costs as much as a conversion; a journal that a machine took with it when it fell is made anew.
"""

from __future__ import annotations

import os
import shutil
import sqlite3
import tempfile
from collections.abc import Iterable, Iterator, Sequence
from dataclasses import dataclass
from pathlib import Path
from typing import Any
from urllib.parse import quote

from korvan.batch.errors import BatchError, printable
from korvan.batch.scan import Source
from korvan.batch.summary import Summary

PENDING, RUNNING, DONE, FAILED, CRASHED, GONE = "pending", "running", "done", "failed", "crashed", "gone"
# Kinds of failures that have nothing to do with the content of the file: the next run tries them again.
PASSING = ("output", "changed", "missing")
INTERRUPTIONS = 5  # so many ends of the whole run while a file was converted alone are no accident

_SCHEMA = """
CREATE TABLE IF NOT EXISTS files (
    path BLOB PRIMARY KEY,
    size INTEGER NOT NULL,          -- of the source
    modified INTEGER NOT NULL,      -- of the source, in nanoseconds
    target BLOB NOT NULL,
    state TEXT NOT NULL DEFAULT 'pending',
    recipe TEXT NOT NULL,           -- key of the recipe and the version of the converter
    hash TEXT,                      -- of the content that was converted
    result_size INTEGER,
    result_modified INTEGER,
    seconds REAL,
    memory INTEGER,                 -- the most that the process took, in bytes
    kind TEXT,                      -- of the failure
    error TEXT,
    warnings TEXT,
    thumbnail BLOB,
    crashes INTEGER NOT NULL DEFAULT 0,
    interruptions INTEGER NOT NULL DEFAULT 0,
    alone INTEGER NOT NULL DEFAULT 0,
    ours INTEGER NOT NULL DEFAULT 0 -- whether a file in the place of the result is of this batch
) WITHOUT ROWID;
"""
_RENEW = """
UPDATE files SET size = ?, modified = ?, target = ?, recipe = ?, state = 'pending', crashes = 0, alone = 0,
    interruptions = CASE state WHEN 'pending' THEN interruptions ELSE 0 END,
    hash = CASE WHEN ? THEN hash END, ours = CASE WHEN ? THEN ours ELSE 0 END
WHERE path = ?
"""


@dataclass(frozen=True, slots=True)
class Work:
    """A file that is to be converted."""

    path: bytes
    target: bytes
    size: int
    modified: int
    known_hash: str | None
    """The hash of the content that the present result was made of, if that is as it was written."""
    crashes: int = 0
    alone: bool = False
    """Whether no other file is to be converted beside it."""
    ours: bool = False
    """Whether a file in the place of the result is of this batch."""


@dataclass(frozen=True, slots=True)
class Outcome:
    """What became of a file."""

    state: str
    kind: str = ""
    error: str = ""
    hash: str | None = None
    size: int = 0
    modified: int = 0
    result_size: int | None = None
    result_modified: int | None = None
    seconds: float = 0.0
    memory: int = 0
    warnings: Sequence[str] = ()
    thumbnail: bytes | None = None


def _connect(path: Path) -> sqlite3.Connection:
    # The process may stand in a folder of any name; SQLite takes names in UTF-8 only.
    address = f"file:{quote(os.fsencode(path))}?nolock=1"
    connection = sqlite3.connect(address, uri=True, isolation_level=None)
    connection.row_factory = sqlite3.Row
    return connection


class Journal:
    """A journal that is open for writing. The caller holds the lease."""

    def __init__(self, path: Path) -> None:
        self._path = path
        try:
            self._connection = self._open()
        except sqlite3.DatabaseError as failure:
            if not _is_damage(failure):
                raise BatchError(f"{printable(path)}: {failure}") from failure
            self._set_aside()
            self._connection = self._open()

    def _open(self) -> sqlite3.Connection:
        connection = _connect(self._path)
        try:
            for pragma in ("locking_mode=EXCLUSIVE", "journal_mode=PERSIST", "synchronous=OFF"):
                connection.execute(f"PRAGMA {pragma}")
            connection.executescript(_SCHEMA)
            if connection.execute("PRAGMA quick_check(1)").fetchone()[0] != "ok":
                raise sqlite3.DatabaseError("damaged")
        except BaseException:
            connection.close()
            raise
        return connection

    def _set_aside(self) -> None:
        """Keeps a damaged journal beside the new one."""
        os.replace(self._path, self._path.with_suffix(".damaged"))
        Path(f"{self._path}-journal").unlink(missing_ok=True)

    def follows_damaged(self) -> bool:
        """Whether an earlier journal of this shard was lost: results in place may then be ours."""
        return self._path.with_suffix(".damaged").exists()

    def synchronize(self, sources: Sequence[Source], extension: bytes, recipe: str, *, retry: bool) -> None:
        """Brings the rows in line with the sources: new ones, changed ones, those that are gone.

        Files that an earlier run did not finish are pending again, and so are failures that may pass; with ``retry``,
        all failures.
        """
        lost = self.follows_damaged()
        with Transaction(self._connection) as change:
            change.execute("UPDATE files SET state = 'pending', interruptions = interruptions + 1 "
                           "WHERE state = 'running'")
            change.execute("UPDATE files SET state = 'crashed', kind = 'interrupted', error = ? "
                           "WHERE state = 'pending' AND interruptions >= ?",
                           (f"the whole run ended {INTERRUPTIONS} times while it was converted", INTERRUPTIONS))
            change.execute("UPDATE files SET alone = 1 WHERE state = 'pending' AND interruptions > 1")
            known = {row["path"]: row for row in change.execute(
                "SELECT path, size, modified, target, recipe, state, kind FROM files")}
            for source in sources:
                row = known.pop(source.path, None)
                target = source.target(extension)
                if row is None:
                    change.execute("INSERT INTO files (path, size, modified, target, recipe, ours) "
                                   "VALUES (?, ?, ?, ?, ?, ?)", (source.path, source.size, source.modified, target,
                                                                 recipe, lost))
                elif not _stands(row, source, target, recipe, retry):
                    same = row["target"] == target
                    hold = same and row["recipe"] == recipe
                    change.execute(_RENEW, (source.size, source.modified, target, recipe, hold, same, source.path))
            change.executemany("UPDATE files SET state = 'gone' WHERE path = ?", [(path,) for path in known])

    def check_results(self, out: bytes, *, contents: bool) -> None:
        """Makes pending what is done, but whose result is not as it was written; with ``contents``, all."""
        missing: list[tuple[bytes]] = []
        for row in self._connection.execute(
                "SELECT path, target, result_size, result_modified FROM files WHERE state = 'done'"):
            if contents or not _is_intact(os.path.join(out, row["target"]), row):
                missing.append((row["path"],))
        with Transaction(self._connection) as change:
            change.executemany("UPDATE files SET state = 'pending' WHERE path = ?", missing)

    def waiting(self, out: bytes) -> list[Work]:
        """What is to be done, large files first, so that the run does not end with waiting for one."""
        rows = self._connection.execute(
            "SELECT path, target, size, modified, hash, result_size, result_modified, crashes, alone, ours FROM files "
            "WHERE state = 'pending' ORDER BY size DESC, path")
        return [Work(row["path"], row["target"], row["size"], row["modified"], _hash_of_result(out, row),
                     row["crashes"], bool(row["alone"]), bool(row["ours"])) for row in rows]

    def step(self, finished: Iterable[tuple[Work, Outcome]], begun: Iterable[Work]) -> None:
        """Notes in one transaction what ended and what begins."""
        with Transaction(self._connection) as change:
            for work, outcome in finished:
                _note(change, work, outcome)
            change.executemany("UPDATE files SET state = 'running', ours = 1 WHERE path = ?",
                               [(work.path,) for work in begun])

    def crash(self, work: Work, error: str) -> None:
        """Notes that the process ended at a file that is to be tried once more, alone."""
        with Transaction(self._connection) as change:
            change.execute("UPDATE files SET state = 'pending', crashes = crashes + 1, alone = 1, error = ? "
                           "WHERE path = ?", (error, work.path))

    def give_back(self, works: Iterable[Work], unsent: Iterable[Work] = ()) -> None:
        """Makes pending what was begun and is not finished, by no fault of the files; no worker was given the
        unsent."""
        with Transaction(self._connection) as change:
            change.executemany("UPDATE files SET state = 'pending' WHERE path = ?",
                               [(work.path,) for work in works])
            change.executemany("UPDATE files SET state = 'pending', ours = ? WHERE path = ?",
                               [(work.ours, work.path) for work in unsent])

    def summary(self) -> Summary:
        return _summary(self._connection)

    def close(self) -> None:
        """Forces all to the disk, once."""
        try:
            self._connection.execute("PRAGMA synchronous=FULL")
            with Transaction(self._connection) as change:
                change.execute("PRAGMA user_version = 1")
        except sqlite3.Error:
            pass  # a full disk: what is there is true
        finally:
            self._connection.close()


class Transaction:
    """All or nothing. An error of the database is told with a reason that a person can do something about."""

    def __init__(self, connection: sqlite3.Connection) -> None:
        self._connection = connection

    def __enter__(self) -> sqlite3.Connection:
        self._connection.execute("BEGIN")
        return self._connection

    def __exit__(self, kind: type[BaseException] | None, failure: BaseException | None, trace: object) -> None:
        try:
            self._connection.execute("COMMIT" if kind is None else "ROLLBACK")
        except sqlite3.Error as error:
            if self._connection.in_transaction:
                self._connection.execute("ROLLBACK")
            if kind is None:
                failure = error
        if isinstance(failure, sqlite3.Error):
            raise BatchError(f"the journal: {failure}") from failure


class JournalReader:
    """A journal as it stands, read from a copy: readers of a live one could take its changes back."""

    def __init__(self, path: Path) -> None:
        self._scratch = tempfile.TemporaryDirectory(prefix="korvan-")
        try:
            self._connection = self._copy(path)
        except BaseException:
            self._scratch.cleanup()
            raise

    def _copy(self, path: Path) -> sqlite3.Connection:
        copy = Path(self._scratch.name, "journal.sqlite")
        for _ in range(20):
            try:
                shutil.copyfile(path, copy)
                shutil.copyfile(f"{path}-journal", f"{copy}-journal")
            except FileNotFoundError:
                pass
            if not copy.exists():
                raise BatchError(f"{printable(path)}: No such file or directory")
            connection = _connect(copy)
            try:
                if connection.execute("PRAGMA quick_check(1)").fetchone()[0] == "ok":
                    return connection
            except sqlite3.DatabaseError:
                pass
            connection.close()
        raise BatchError(f"{printable(path)}: is damaged, or changes too fast to be read")

    def summary(self) -> Summary:
        return _summary(self._connection)

    def rows(self) -> Iterator[dict[str, Any]]:
        for row in self._connection.execute("SELECT * FROM files ORDER BY path"):
            yield dict(row)

    def close(self) -> None:
        self._connection.close()
        self._scratch.cleanup()

    def __enter__(self) -> JournalReader:
        return self

    def __exit__(self, *exception: object) -> None:
        self.close()


def _is_damage(failure: sqlite3.Error) -> bool:
    own = 0
    return getattr(failure, "sqlite_errorcode", own) in (sqlite3.SQLITE_CORRUPT, sqlite3.SQLITE_NOTADB, own)


def _is_intact(path: bytes, row: sqlite3.Row) -> bool:
    try:
        status = os.stat(path)
    except OSError:
        return False
    return status.st_size == row["result_size"] and status.st_mtime_ns == row["result_modified"]


def _hash_of_result(out: bytes, row: sqlite3.Row) -> str | None:
    if row["hash"] is None or row["result_size"] is None:
        return None
    return row["hash"] if _is_intact(os.path.join(out, row["target"]), row) else None


def _stands(row: sqlite3.Row, source: Source, target: bytes, recipe: str, retry: bool) -> bool:
    """Whether what the journal says of a file still holds."""
    if (row["size"], row["modified"], row["target"], row["recipe"]) != (source.size, source.modified, target, recipe):
        return False
    if row["state"] in (FAILED, CRASHED):
        return not retry and row["kind"] not in PASSING
    return row["state"] != GONE


def _note(change: sqlite3.Connection, work: Work, outcome: Outcome) -> None:
    if outcome.state == "unchanged":
        change.execute("UPDATE files SET state = 'done', size = ?, modified = ? WHERE path = ?",
                       (outcome.size, outcome.modified, work.path))
        return
    change.execute(
        "UPDATE files SET state = ?, kind = ?, error = ?, hash = ?, result_size = ?, result_modified = ?, seconds = ?, "
        "memory = ?, warnings = ?, thumbnail = ? WHERE path = ?",
        (outcome.state, outcome.kind or None, outcome.error or None, outcome.hash, outcome.result_size,
         outcome.result_modified, outcome.seconds, outcome.memory, "\n".join(outcome.warnings) or None,
         outcome.thumbnail, work.path))
    if outcome.hash:
        change.execute("UPDATE files SET size = ?, modified = ? WHERE path = ?",
                       (outcome.size, outcome.modified, work.path))


def _summary(connection: sqlite3.Connection) -> Summary:
    counts = {row[0]: row[1] for row in connection.execute("SELECT state, count(*) FROM files GROUP BY state")}
    gone = counts.pop(GONE, 0)
    return Summary(files=sum(counts.values()), done=counts.get(DONE, 0), failed=counts.get(FAILED, 0),
                   crashed=counts.get(CRASHED, 0), gone=gone, pending=counts.get(PENDING, 0) + counts.get(RUNNING, 0))
