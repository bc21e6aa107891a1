"""Text out of files where programs would act on it: control sequences in terminals, formulas in tables."""

from __future__ import annotations

import re

# Controls but tabs and line breaks, and what changes the direction of the text around it.
_CONTROLS = {
    code: f"\\u{code:04x}"
    for codes in (range(9), range(11, 32), range(127, 160), range(0x2028, 0x202F), range(0x2066, 0x206A))
    for code in codes
}
_FORMULA = ("=", "+", "-", "@", "\t", "\r")
_NUMBER = re.compile(r"[-+]?(\d+\.?\d*|\.\d+)([eE][-+]?\d+)?")


def shown(text: str) -> str:
    """A text with its controls as escapes, which neither move the cursor of a terminal nor hide what follows."""
    return text.translate(_CONTROLS)


def one_line(text: object) -> str:
    """A name as one line: line breaks and tabs are escapes, too."""
    return shown(str(text)).replace("\n", "\\n").replace("\t", "\\t")


def cell(value: object) -> object:
    """A value as programs for tables take it: what begins as a formula does has an apostrophe before it.

    Numbers stay numbers.
    """
    if not isinstance(value, str) or not value.startswith(_FORMULA) or _NUMBER.fullmatch(value):
        return value
    return f"'{value}"
