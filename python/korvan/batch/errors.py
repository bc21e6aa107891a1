"""What a batch raises."""

from __future__ import annotations

import errno
import os
from collections.abc import Generator
from contextlib import contextmanager

FULL = (errno.ENOSPC, errno.EDQUOT)


class BatchError(Exception):
    """The batch cannot begin or go on: the folder is in use, unwritable or of another batch, or the disk is full."""


class BadRecipe(BatchError):
    """What is asked for makes no sense, whatever the file."""


class Interrupted(BatchError):
    """The batch was stopped by a signal; the journal is true, and the same command goes on."""


def printable(path: str | bytes | os.PathLike[str]) -> str:
    """A path as a person can read it in one line; bytes that are no UTF-8 and control characters are escaped."""
    text = os.fsencode(path).decode("utf-8", "backslashreplace")
    return "".join(one if one.isprintable() else one.encode("unicode_escape").decode() for one in text)


def reason(failure: OSError) -> str:
    """The message of the system for an error, without number and path."""
    return failure.strerror or str(failure)


@contextmanager
def telling(path: str | os.PathLike[str]) -> Generator[None]:
    """Turns an error of the file system about a path into one line."""
    try:
        yield
    except OSError as failure:
        raise BatchError(f"{printable(path)}: {reason(failure)}") from failure
