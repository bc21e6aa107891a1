"""The folder of a batch: where everything is, and how files in it are replaced."""

from __future__ import annotations

import json
import os
import shutil
from pathlib import Path
from typing import Any

from korvan.batch.errors import BatchError, printable, reason, telling

NAME = "_batch"


def replace_file(path: Path, content: bytes) -> None:
    """Writes a file so that others see the old or the new content, never a part. The caller is the only writer."""
    part = path.with_name(f".{path.name}.part")
    try:
        part.write_bytes(content)
        os.replace(part, path)
    except BaseException:
        part.unlink(missing_ok=True)
        raise


class BatchFolder:
    """The paths of a batch. Names of shards have six digits, so that they sort as their numbers."""

    def __init__(self, out: str | os.PathLike[str]) -> None:
        self.out = Path(os.path.abspath(out))
        self.root = self.out / NAME
        self.plan_path = self.root / "batch.json"
        self.lease = self.root / "batch.lease"
        self.shards = self.root / "shards"
        self.slurm = self.root / "slurm"

    def create(self) -> None:
        """Makes sure that the folder is there."""
        with telling(self.out):
            self.shards.mkdir(parents=True, exist_ok=True)

    def shard(self, shard: int) -> Path:
        """The folder of a shard: one each, so that tasks on many machines do not list and change a common one."""
        return self.shards / f"{shard:06d}"

    def list_path(self, shard: int) -> Path:
        """The files of a shard, as they were found."""
        return self.shard(shard) / "files.list"

    def journal_path(self, shard: int) -> Path:
        return self.shard(shard) / "journal.sqlite"

    def summary_path(self, shard: int) -> Path:
        """What stands in the journal of a shard, in a few numbers."""
        return self.shard(shard) / "summary.json"

    def lease_path(self, shard: int) -> Path:
        return self.shard(shard) / "lease"

    def scratch(self, shard: int) -> Path:
        """Where results of a shard are written before they are moved in place."""
        return self.shard(shard) / "scratch"

    def clear_scratch(self, shard: int) -> None:
        """Takes away what a batch that was killed left half-written."""
        shutil.rmtree(self.scratch(shard), ignore_errors=True)

    def report_path(self, suffix: str) -> Path:
        return self.root / f"report.{suffix}"

    def shard_report_path(self, shard: int) -> Path:
        return self.root / "reports" / f"{shard:06d}.html"

    def read_plan(self) -> dict[str, Any] | None:
        """What the batch was asked for, and where its shards begin; ``None`` for a new folder."""
        try:
            return read_json(self.plan_path)
        except FileNotFoundError:
            return None

    def write_plan(self, plan: dict[str, Any]) -> None:
        with telling(self.plan_path):
            replace_file(self.plan_path, json.dumps(plan, indent=1).encode())


def read_json(path: Path) -> dict[str, Any]:
    """The content of a file that ``replace_file`` wrote."""
    try:
        content: dict[str, Any] = json.loads(path.read_bytes())
        return content
    except FileNotFoundError:
        raise
    except OSError as failure:
        raise BatchError(f"{printable(path)}: {reason(failure)}") from failure
    except ValueError as failure:
        raise BatchError(f"{printable(path)}: is damaged ({failure})") from failure
