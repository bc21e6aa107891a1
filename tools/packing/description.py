"""The description of the package in the metadata of the wheel: the README, less what concerns a clone of the source."""

from __future__ import annotations

import re

_OF_A_CLONE = {"Try it", "Further"}
_IMAGE = re.compile(r"^!\[[^\]]*\]\([^)]*\)\n\n", re.MULTILINE)
_LOCAL_LINK = re.compile(r"\[([^\]]+)\]\((?!https?:|#)[^)]+\)")
_COMMENT = re.compile(r"^<!--.*?-->\n", re.MULTILINE)


def description(readme: str) -> str:
    """The text for an index of packages, which has neither the files nor the folders of the source."""
    sections = re.split(r"^(?=## )", readme, flags=re.MULTILINE)
    kept = [section for section in sections if section.split("\n", 1)[0].removeprefix("## ") not in _OF_A_CLONE]
    text = "".join(section.split("\n`build/python` uses", 1)[0].rstrip() + "\n\n" for section in kept)
    text = _COMMENT.sub("", _IMAGE.sub("", text))
    return _LOCAL_LINK.sub(r"\1", text).rstrip() + "\n"
