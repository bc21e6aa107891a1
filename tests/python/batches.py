"""Folders of drawings for the tests of batches, and a converter that does as file names say."""

from __future__ import annotations

import json
import os
import shutil
import subprocess
import sys
import tempfile
import textwrap
from pathlib import Path
from typing import Any

from korvan.batch.folder import BatchFolder
from korvan.batch.journal import JournalReader

DRAWINGS = Path(__file__).resolve().parents[2] / "examples" / "drawings"
SMALL = DRAWINGS / "heating_schematic.dxf"

# Stands in for the converter of worker processes: site-packages are not theirs, but the path is.
SCRIPTED = """
    import sys
    if any("korvan.tools.worker" in one for one in sys.orig_argv):
        import contextlib, os, pathlib, signal, time
        import korvan.tools
        from korvan.tools import conversion

        @contextlib.contextmanager
        def converted(source, target, request):
            name, path = os.path.basename(source), pathlib.Path(target)
            marker = os.environ["SCRIPT_MARKERS"] + "/" + name
            first = not os.path.exists(marker)
            open(marker, "a").write(f"{os.getpid()}\\n")
            path.write_text("half of ")
            if "crash" in name and (first or "always" in name):
                print("the reason of the crash", file=sys.stderr, flush=True)
                os.abort()
            if "greedy" in name:
                block = bytearray(os.urandom(1 << 20)) * 700
                time.sleep(600)
            if "slow" in name:
                signal.pthread_sigmask(signal.SIG_BLOCK, [signal.SIGALRM])
                time.sleep(600)
            if "bad" in name:
                raise korvan.tools.ToolError("cannot be read:\\nline 3")
            if "moving" in name and first:
                os.utime(source, (1, 1))
            path.write_text("the result of " + name)
            path.with_suffix(".side").write_text("beside")
            image = korvan.cad.Image.load(%r)  # for the thumbnail
            yield image, conversion.ConversionResult(path, request.to, 0.01, ["a warning"], [], [path])

        conversion.converted = converted
"""


class Batch:
    """A folder with drawings, and one for the results."""

    def __init__(self) -> None:
        self.root = Path(tempfile.mkdtemp())
        self.source = self.root / "drawings"
        self.out = self.root / "results"
        self.source.mkdir()
        self.environment = dict(os.environ)

    def script(self) -> None:
        """Workers convert by what file names say."""
        path = self.root / "scripts"
        path.mkdir()
        (path / "sitecustomize.py").write_text(textwrap.dedent(SCRIPTED) % str(SMALL))
        self.environment["PYTHONPATH"] = f"{path}:{os.environ['PYTHONPATH']}"
        self.environment["SCRIPT_MARKERS"] = str(path)

    def runs_of(self, name: str) -> int:
        """How often the script was given a file."""
        marker = self.root / "scripts" / name
        return len(marker.read_text().splitlines()) if marker.exists() else 0

    def add(self, *names: str | bytes, content: bytes | None = None) -> None:
        for name in names:
            path = os.path.join(os.fsencode(self.source), os.fsencode(name))
            os.makedirs(os.path.dirname(path), exist_ok=True)
            with open(path, "wb") as file:
                file.write(SMALL.read_bytes() if content is None else content)

    def command(self, *arguments: str) -> list[str]:
        return [sys.executable, "-m", "korvan", "batch", str(self.source), "-o", str(self.out), "--to", "pdf",
                *arguments]

    def start(self, *arguments: str) -> subprocess.Popen[str]:
        return subprocess.Popen(self.command(*arguments), env=self.environment, stdout=subprocess.PIPE,
                                stderr=subprocess.PIPE, text=True, errors="surrogateescape")

    def run(self, *arguments: str) -> subprocess.CompletedProcess[str]:
        return subprocess.run(self.command(*arguments), env=self.environment, capture_output=True, text=True,
                              errors="surrogateescape", timeout=600, check=False)

    def summary(self, *arguments: str) -> dict[str, Any]:
        """Runs the batch and gives the counts that it tells."""
        done = self.run("--json", *arguments)
        if not done.stdout:
            raise AssertionError(done.stderr)
        found: dict[str, Any] = json.loads(done.stdout)
        return found

    def rows(self) -> dict[bytes, dict[str, Any]]:
        """What the journal says of each file."""
        found: dict[bytes, dict[str, Any]] = {}
        for path in sorted(BatchFolder(self.out).shards.glob("*/journal.sqlite")):
            with JournalReader(path) as journal:
                found.update((row["path"], row) for row in journal.rows())
        return found

    def states(self) -> dict[str, str]:
        return {os.fsdecode(path): row["state"] for path, row in self.rows().items()}

    def results(self) -> list[str]:
        """The files below the folder of results that are not of the journal."""
        return sorted(str(path.relative_to(self.out)) for path in self.out.rglob("*")
                      if path.is_file() and "_batch" not in path.parts)

    def __enter__(self) -> Batch:
        return self

    def __exit__(self, *exception: object) -> None:
        shutil.rmtree(self.root, ignore_errors=True)
