"""Runs Python code in a child process, where an end of the process can be watched."""

from __future__ import annotations

import os
import shutil
import subprocess
import sys
import tempfile
import textwrap
from pathlib import Path

import korvan

PACKAGE = Path(korvan.__file__).resolve().parent
RUNTIME_VARIABLE = "NETCORE_WRAPPER_NETCORE_DIR_korvan"
ASSEMBLY_VARIABLE = "NETCORE_WRAPPER_ASSEMBLY_DIR_korvan"
WRAP_LIBRARY = "libkorvan.embed.coreclrwrap.so"


def run(code: str, *arguments: str, **environment: str | None) -> subprocess.CompletedProcess[str]:
    """Runs the code with arguments; a variable given as None is unset for it."""
    env = dict(os.environ)
    for name, value in environment.items():
        env.pop(name, None)
        if value is not None:
            env[name] = value
    return subprocess.run(
        [sys.executable, "-c", textwrap.dedent(code), *arguments],
        env=env,
        capture_output=True,
        text=True,
        timeout=120,
        check=False,
    )


class LinkedPackage:
    """A package of links to the built one, from which a test takes parts away."""

    def __init__(self) -> None:
        self._folder = tempfile.TemporaryDirectory()
        self.root = Path(self._folder.name)
        self.package = self.root / "korvan"
        for source in PACKAGE.rglob("*"):
            target = self.package / source.relative_to(PACKAGE)
            if source.is_dir():
                target.mkdir(parents=True, exist_ok=True)
            elif source.suffix == ".so" and source.parent == PACKAGE or source.suffix == ".py":
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(source, target)
            elif "__pycache__" not in source.parts:
                target.parent.mkdir(parents=True, exist_ok=True)
                target.symlink_to(source)

    def run(self, code: str, **environment: str | None) -> subprocess.CompletedProcess[str]:
        settings: dict[str, str | None] = {
            "PYTHONPATH": str(self.root),
            RUNTIME_VARIABLE: None,
            ASSEMBLY_VARIABLE: None,
        }
        return run(code, **{**settings, **environment})

    def remove(self, name: str) -> None:
        for path in self.package.glob(name):
            path.unlink()

    def close(self) -> None:
        self._folder.cleanup()

    def __enter__(self) -> LinkedPackage:
        return self

    def __exit__(self, *exception: object) -> None:
        self.close()


class ScriptedRuntime:
    """A runtime folder whose wrap library forwards to the real one, but for what a script says."""

    def __init__(self, *script: str) -> None:
        self._folder = tempfile.TemporaryDirectory()
        root = Path(self._folder.name)
        source = PACKAGE / "netcore" / "netcore10.0"
        folder = root / "netcore10.0"
        folder.mkdir()
        for path in source.iterdir():
            if path.name != WRAP_LIBRARY:
                (folder / path.name).symlink_to(path)
        shutil.copy(os.environ["KORVAN_SCRIPTED_WRAP"], folder / WRAP_LIBRARY)
        script_path = root / "script"
        script_path.write_text("\n".join([f"forward {source / WRAP_LIBRARY}", *script]) + "\n")
        self.environment = {RUNTIME_VARIABLE: str(root), "KORVAN_WRAP_SCRIPT": str(script_path)}

    def __enter__(self) -> ScriptedRuntime:
        return self

    def __exit__(self, *exception: object) -> None:
        self._folder.cleanup()
