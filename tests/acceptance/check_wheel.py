"""Installs the wheel on a Debian 12 with nothing but the C library, without network, and uses and uninstalls it."""

from __future__ import annotations

import subprocess
import sys
import tempfile
from pathlib import Path

from bare_root import BareRoot
from prerequisites import ROOT, require
from samples import write_samples
from wheels import newest_wheel

LARGEST_WHEEL = 45e6
LARGEST_INSTALLED = 110e6


def checked(done: subprocess.CompletedProcess[str], step: str) -> str:
    if done.returncode != 0:
        print(done.stdout + done.stderr)
        sys.exit(f"{step}: ended with {done.returncode}")
    if done.stderr.strip():
        print(done.stderr)
    print(f"{step}: {(done.stdout.strip().splitlines() or ['done'])[-1]}", flush=True)
    return done.stdout


def main() -> int:
    require("debootstrap", "unshare", "chroot", root=True)
    archive = newest_wheel()
    if archive.stat().st_size > LARGEST_WHEEL:
        sys.exit(f"the wheel has {archive.stat().st_size / 1e6:.1f} MB")
    root = BareRoot()
    with tempfile.TemporaryDirectory() as folder:
        write_samples(Path(folder))
        root.add(Path(folder), "/samples")
    root.add(archive, f"/wheels/{archive.name}")
    root.add(ROOT / "tests" / "acceptance" / "bare_session.py", "/bare_session.py")
    python = f"{sys.base_prefix}/bin/python3.12"
    checked(root.run(python, "-m", "venv", "/venv"), "a clean environment")
    checked(root.run("/venv/bin/pip", "install", "--no-index", "--no-compile", f"/wheels/{archive.name}"), "install")
    packages = root.path / "venv/lib/python3.12/site-packages"
    installed = sum(path.stat().st_size for path in packages.glob("korvan*/**/*") if path.is_file())
    print(f"{archive.stat().st_size / 1e6:.1f} MB packed, {installed / 1e6:.1f} MB installed")
    if installed > LARGEST_INSTALLED:
        sys.exit(f"the package takes {installed / 1e6:.1f} MB")
    checked(root.run("/venv/bin/python", "/bare_session.py", "/samples"), "use")
    checked(root.run("/venv/bin/python", "-c", "import korvan.cad; print(korvan.cad.VERSION)"), "import")
    if (root.path / "venv/lib/python3.12/site-packages/korvan/commands").is_dir():
        for shared in ("man/man1/korvan.1", "bash-completion/completions/korvan"):
            if not (root.path / "venv/share" / shared).is_file():
                sys.exit(f"not installed: share/{shared}")
        checked(root.run("/venv/bin/korvan", "convert", "/samples/plan.dxf", "-o", "/plan.pdf"), "the command")
    checked(root.run("/venv/bin/pip", "uninstall", "--yes", "korvan.cad"), "uninstall")
    left = [str(path.relative_to(packages)) for path in packages.glob("korvan*/**/*") if path.is_file()]
    left += [str(path) for path in (root.path / "venv/share").rglob("*korvan*") if path.is_file()]
    if left:
        sys.exit(f"left after the uninstall: {', '.join(left[:10])}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
