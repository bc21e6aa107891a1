"""Runs the Python tests over the installed wheel: what was left out of the runtime is not missed."""

from __future__ import annotations

import os
import shutil
import subprocess
import sys
import zipfile

from prerequisites import ROOT, require
from wheels import newest_wheel

# Tests of what the wheel is made of, and of files that are checked elsewhere.
OTHER = "python\\.(wheel|packaging|stubs|express_tables|viewer|batch.*)$"


def main() -> int:
    require("ctest", "patchelf")
    build = ROOT / "build" / "release"
    place = ROOT / "build" / "acceptance"
    package, testing = place / "installed", place / "testing"
    for folder in (package, testing):
        shutil.rmtree(folder, ignore_errors=True)
    with zipfile.ZipFile(newest_wheel()) as wheel:
        wheel.extractall(package)
    # The probe's assemblies lie beside copies of the library's; all of them are taken as they were trimmed.
    shutil.copytree(build / "testing", testing)
    for path in testing.glob("assemblies/*/*.dll"):
        trimmed = build / "wheel-runtime" / path.name
        if trimmed.is_file():
            shutil.copy(trimmed, path)
    # This interpreter was started with the folders of the build.
    inherited = {name: value for name, value in os.environ.items() if name != "PYTHONPATH" and "NETCORE" not in name}
    environment = {**inherited, "KORVAN_PACKAGE": str(package), "KORVAN_TESTING": str(testing)}
    command = ["ctest", "--preset", "release", "-R", "^python\\.", "-E", OTHER, "--output-on-failure"]
    return subprocess.run(command, cwd=ROOT, env=environment, check=False).returncode


if __name__ == "__main__":
    sys.exit(main())
