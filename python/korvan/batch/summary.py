"""Counts of a batch, of a shard or of both added up."""

from __future__ import annotations

from dataclasses import dataclass, field
from typing import Any

from korvan.batch.errors import BatchError


@dataclass
class Summary:
    """What became of the files of a batch."""

    files: int = 0
    done: int = 0
    failed: int = 0
    """Files that the converter did not take, or that took too long or too much."""
    crashed: int = 0
    """Files at which the process ended twice, the second time with no other beside it."""
    gone: int = 0
    """Files of the journal that are not among the sources any more."""
    pending: int = 0
    converted: int = 0
    """Files that this run converted, or tried to; the others were done before."""
    seconds: float = 0.0
    """The time of this run, or of all tasks together."""
    unreadable: list[str] = field(default_factory=list[str])
    """Folders and files that could not be looked at."""

    @property
    def is_complete(self) -> bool:
        """Whether no file is left to be tried."""
        return self.pending == 0

    @property
    def is_success(self) -> bool:
        """Whether each file has its result."""
        return self.done == self.files and not self.unreadable

    def add(self, other: Summary) -> None:
        self.files += other.files
        self.done += other.done
        self.failed += other.failed
        self.crashed += other.crashed
        self.gone += other.gone
        self.pending += other.pending
        self.converted += other.converted
        self.seconds += other.seconds

    def to_json(self) -> dict[str, Any]:
        return {**self.__dict__, "complete": self.is_complete, "success": self.is_success}

    @classmethod
    def from_json(cls, kept: dict[str, Any]) -> Summary:
        try:
            return cls(**{name: value for name, value in kept.items() if name in cls.__dataclass_fields__})
        except TypeError as failure:
            raise BatchError(f"a summary of another version: {failure}") from failure

    def __str__(self) -> str:
        parts = [f"{self.done} done", f"{self.failed} failed", f"{self.crashed} crashed", f"{self.pending} left",
                 f"{self.gone} gone"]
        shown = [part for number, part in enumerate(parts) if number < 2 or not part.startswith("0 ")]
        rate = f", {self.converted / self.seconds:.1f} files/s" if self.converted and self.seconds else ""
        return f"{self.files} files: {', '.join(shown)}; {self.converted} converted in {self.seconds:.1f} s{rate}"
