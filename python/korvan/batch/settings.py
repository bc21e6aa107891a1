"""What a batch is asked for: the recipe decides what results look like, the limits what a file may take."""

from __future__ import annotations

import json
from collections.abc import Mapping
from dataclasses import asdict, dataclass, field
from hashlib import blake2b
from os import PathLike
from typing import Any

MEBIBYTE = 1 << 20
ENGINES = ("processes", "slurm", "commands")


@dataclass(frozen=True)
class Recipe:
    """The format of the results, and the keyword arguments of ``korvan.tools.convert``."""

    to: str
    options: Mapping[str, Any] = field(default_factory=dict[str, Any])

    def key(self, version: str) -> str:
        """What the results of the same files under this recipe and version of the converter have in common."""
        text = json.dumps([version, self.to, self.options], sort_keys=True)
        return blake2b(text.encode("utf-8", "surrogatepass"), digest_size=16).hexdigest()


@dataclass(frozen=True)
class Limits:
    """What a file may take."""

    timeout: float = 300.0
    """Seconds for one file; 0 is no limit."""
    memory: int = 0
    """Bytes for one file; 0 is its share of what the machine has."""
    recycle: int = 2000
    """Files after which a worker process is replaced by a new one."""


@dataclass(frozen=True)
class Settings:
    """A batch: what is converted, where to, how, and by how many."""

    source: str | PathLike[str]
    out: str | PathLike[str]
    recipe: Recipe
    limits: Limits = Limits()
    patterns: tuple[str, ...] = ()
    """Names of files that are taken, such as ``*.dwg``; all drawings by default."""
    thumbnails: bool = True
    force: bool = False
    """Whether files of others that stand where results go are replaced."""
    jobs: int = 0
    """Worker processes; 0 is one a processor."""
    shard_size: int = 0
    """Files of one shard of the journal; 0 lets the engine choose."""

    def to_json(self) -> dict[str, Any]:
        """What the folder of the batch keeps, so that tasks elsewhere do the same."""
        kept = asdict(self)
        del kept["out"], kept["jobs"]
        kept["source"] = str(self.source)
        return kept

    @classmethod
    def from_json(cls, kept: Mapping[str, Any], out: str | PathLike[str], jobs: int = 0) -> Settings:
        values = dict(kept)
        values["recipe"] = Recipe(**values["recipe"])
        values["limits"] = Limits(**values["limits"])
        values["patterns"] = tuple(values["patterns"])
        return cls(out=out, jobs=jobs, **values)
