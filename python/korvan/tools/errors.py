"""What helpers raise, and the text of an error in one line."""

from __future__ import annotations

import os
import re
from collections.abc import Iterable, Sequence
from fnmatch import fnmatchcase


class ToolError(Exception):
    """Something that a person can correct: a name that is not there, an output that exists, a file that is damaged."""


def message_of(failure: BaseException) -> str:
    """The text of an error in one line, without the technical frame of errors of the library."""
    if isinstance(failure, KeyboardInterrupt):
        return "interrupted"
    if isinstance(failure, OSError) and failure.strerror:
        return failure.strerror
    text = " ".join(str(failure).split()) or type(failure).__name__
    return re.sub(r"^Proxy error\(\w+\): ", "", text)


def without_name(text: str, path: str) -> str:
    """A message of the library about a file without the name of the file, which it begins with."""
    escaped = "".join(one if one >= " " else f"\\x{ord(one):02x}" for one in path)
    for name in (escaped, os.path.basename(escaped)):
        for lead in (f"'{name}' ", f"'{name}', ", f"'{name}': "):
            if text.startswith(lead):
                return text.removeprefix(lead)
    return text


def nearest_are(names: Sequence[str]) -> str:
    """The end of a message about a name that is not there."""
    return f"the nearest {'is' if len(names) == 1 else 'are'} {', '.join(names)}"


def nearest(name: str, known: Iterable[str], count: int = 3) -> list[str]:
    """The names most similar to one; case is ignored."""
    import difflib  # only where something is wrong

    by_key: dict[str, str] = {}
    for one in known:
        by_key.setdefault(one.casefold(), one)
    found = difflib.get_close_matches(name.casefold(), by_key, count, 0.4)
    return [by_key[key] for key in found]


def unknown(kind: str, name: str, known: Sequence[str]) -> ToolError:
    """An error about a name that is not there, with the names that come near."""
    near = nearest(name, known)
    if near:
        return ToolError(f"there is no {kind} {name!r}; {nearest_are(list(map(repr, near)))}")
    listed = ", ".join(map(repr, known[:8])) + (", …" if len(known) > 8 else "")
    there = f"; there {'is' if len(known) == 1 else 'are'} {listed}" if known else ""
    return ToolError(f"there is no {kind} {name!r}{there}")


def matching(kind: str, patterns: Iterable[str], known: Sequence[str]) -> list[str]:
    """The known names that patterns such as ``WALL*`` name, in the order of the patterns; case is ignored.

    :raises ToolError: A pattern matches no name.
    """
    found: dict[str, None] = {}
    for pattern in patterns:
        exact = [name for name in known if name.casefold() == pattern.casefold()]
        names = exact or [name for name in known if fnmatchcase(name.casefold(), pattern.casefold())]
        if not names:
            raise unknown(kind, pattern, known)
        found.update(dict.fromkeys(names))
    return list(found)
