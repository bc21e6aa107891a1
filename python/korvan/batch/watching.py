"""What a batch tells while it runs."""

from __future__ import annotations

from korvan.batch.journal import Outcome, Work


class Watcher:
    """Hears what happens, and says nothing; commands show it."""

    def found(self, files: int) -> None:
        """The walk over the sources has found so many."""

    def begin(self, files: int) -> None:
        """So many files are in the batch."""

    def outcome(self, work: Work, outcome: Outcome) -> None:
        """A file is done, or failed."""

    def count(self, files: int) -> None:
        """Tasks elsewhere have finished so many in all."""

    def message(self, text: str) -> None:
        """Something that is worth a line."""
