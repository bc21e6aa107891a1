"""What pickles of bound values name, so that they are found again."""

from __future__ import annotations

import pkgutil
from enum import IntEnum


def enum_member(type_name: str, value: int) -> IntEnum:
    """The member of an enum, which is named by its module and its place in there."""
    found: IntEnum = pkgutil.resolve_name(type_name)(value)
    return found
