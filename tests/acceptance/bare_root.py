"""A Debian 12 with the C library and this interpreter, and nothing else that programs link to."""

from __future__ import annotations

import re
import shutil
import subprocess
import sys
from collections.abc import Sequence
from pathlib import Path

from prerequisites import ROOT, skip

FOLDERS = ("usr/lib/x86_64-linux-gnu", "lib/x86_64-linux-gnu")
C_LIBRARY = re.compile(
    r"(ld-linux-x86-64|libc|libdl|libm|libmvec|libnss_\w+|libpthread|libresolv|librt|libutil|libcrypt)\.so\.\d+"
)


def _linked(paths: Sequence[Path]) -> set[Path]:
    """The libraries of this system that files are linked to, but those of the C library."""
    done = subprocess.run(["ldd", *paths], capture_output=True, text=True, check=False)
    found = {Path(path) for path in re.findall(r"=> (/\S+)", done.stdout)}
    return {path for path in found if not C_LIBRARY.fullmatch(path.name)}


def _namespaces() -> list[str]:
    """The command for a session with mounts of its own and without network."""
    command = ["unshare", "--mount", "--net"]
    # Where the root of this process is no mount, as in a changed root, its propagation can't be set.
    done = subprocess.run([*command, "true"], capture_output=True, check=False)
    return command if done.returncode == 0 else [*command, "--propagation", "unchanged"]


class BareRoot:
    """The root, below the build folder; made anew of an unpacked minimal Debian."""

    def __init__(self) -> None:
        self.path = ROOT / "build" / "acceptance" / "root"
        pristine = ROOT / "build" / "acceptance" / "minbase"
        if not (pristine / "usr" / "bin" / "env").exists():
            shutil.rmtree(pristine, ignore_errors=True)
            pristine.parent.mkdir(parents=True, exist_ok=True)
            done = subprocess.run(["debootstrap", "--variant=minbase", "bookworm", pristine],
                                  capture_output=True, text=True, check=False)  # fmt: skip
            if done.returncode != 0:
                shutil.rmtree(pristine, ignore_errors=True)
                skip(f"debootstrap made no root: {done.stdout.splitlines()[-1:]}")
        shutil.rmtree(self.path, ignore_errors=True)
        subprocess.run(["cp", "-a", "--reflink=auto", pristine, self.path], check=True)
        self._remove_libraries()
        self._add_interpreter()

    def _remove_libraries(self) -> None:
        """Leaves of the libraries what the programs of the session need themselves."""
        programs = [self.path / "usr" / "bin" / name for name in ("env", "sh")]
        kept = {path.name for path in _linked(programs)}
        for folder in FOLDERS:
            for path in (self.path / folder).glob("*.so*"):
                if not C_LIBRARY.fullmatch(path.name) and path.name not in kept:
                    path.unlink()

    def _add_interpreter(self) -> None:
        prefix = Path(sys.base_prefix)
        target = self.path / prefix.relative_to("/")
        ignored = shutil.ignore_patterns("__pycache__", "test", "tests", "site-packages", "*.a", "include", "share")
        shutil.copytree(prefix, target, symlinks=True, ignore=ignored)
        modules = [*prefix.glob("lib/python3.12/lib-dynload/*.so"), *prefix.glob("lib/libpython*.so.1.0")]
        for path in _linked(modules):
            if not path.is_relative_to(prefix) and path.name not in ("libstdc++.so.6", "libgcc_s.so.1"):
                shutil.copy(path, self.path / FOLDERS[0])

    def run(self, *command: str) -> subprocess.CompletedProcess[str]:
        """Runs a program in the root, without network and without this session's variables."""
        environment = ["HOME=/root", "PATH=/usr/bin:/bin", "LC_ALL=C.UTF-8"]
        # A user of mount namespaces sees /proc of this machine alone: the session reads its own maps there.
        script = 'mount -t proc proc "$0/proc" && exec chroot "$0" "$@"'
        return subprocess.run(
            [*_namespaces(), "sh", "-c", script, self.path, "env", "-i", *environment, *command],
            capture_output=True, text=True, timeout=300, check=False,
        )  # fmt: skip

    def add(self, source: Path, target: str) -> None:
        """Copies a file or folder into the root."""
        place = self.path / target.removeprefix("/")
        place.parent.mkdir(parents=True, exist_ok=True)
        if source.is_dir():
            shutil.copytree(source, place)
        else:
            shutil.copy(source, place)
