"""The wheel that is checked."""

from __future__ import annotations

from pathlib import Path

from prerequisites import ROOT, skip


def newest_wheel() -> Path:
    """The wheel that was made last."""
    found = sorted((ROOT / "build" / "dist").glob("korvan_cad-*.whl"), key=lambda path: path.stat().st_mtime)
    if not found:
        skip("there is no wheel: make wheel")
    return found[-1]
