"""The manual page and the completion scripts, which an installation puts below `share` of its prefix."""

from __future__ import annotations

PLACES = {
    "bash": "share/bash-completion/completions/korvan",
    "zsh": "share/zsh/site-functions/_korvan",
    "fish": "share/fish/vendor_completions.d/korvan.fish",
}
MANUAL = "share/man/man1/korvan.1"


def files() -> dict[str, bytes]:
    """The files by their place below the prefix, as the commands of the built package print them."""
    from korvan.commands import completion, man

    found = {place: completion.script(shell).encode() for shell, place in PLACES.items()}
    return {MANUAL: man.page().encode(), **found}
