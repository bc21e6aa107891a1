"""Runs in the bare root: loads a file of each format, renders, seals, and looks at what the process has loaded."""

from __future__ import annotations

import ctypes
import io
import re
import sys
import zlib
from pathlib import Path


def loaded() -> set[Path]:
    """The shared libraries of the process."""
    lines = Path("/proc/self/maps").read_text().splitlines()
    return {Path(line.split()[-1]) for line in lines if ".so" in line}


ctypes.CDLL(None)  # what this module needs is Python's
of_python = loaded()

from korvan import cad  # noqa: E402
from korvan.cad import imageoptions  # noqa: E402

samples = Path(sys.argv[1])
package = Path(cad.__file__).parent

for path in sorted(samples.iterdir()):
    with cad.Image.load(str(path)) as image:
        options: imageoptions.ImageOptionsBase = imageoptions.PngOptions()
        if not image.can_save(options):
            options = imageoptions.IfcOptions()
        target = io.BytesIO()
        image.save(target, options)
        assert len(target.getvalue()) > 200, f"{path.name}: empty output"

with cad.Image.load(str(samples / "plan.dxf")) as plan:
    target = io.BytesIO()
    plan.save(target, imageoptions.PdfOptions())
    streams = re.findall(rb"stream\r?\n(.*?)\r?\nendstream", target.getvalue(), re.DOTALL)
    unpacked = [zlib.decompressobj().decompress(stream) for stream in streams if stream[:1] == b"\x78"]
    text = b"".join([target.getvalue(), *unpacked])
    families = set(re.findall(rb"(DejaVu|Liberation)", text))
    assert families, "no carried face is in the document"
    # Sealed watermarks are encrypted.
    guard = plan.watermark_guard_service
    assert guard is not None
    guard.embed("carried", "secret1234")

carried = {re.sub(r"-[0-9a-f]{8}(?=\.so)", "", path.name) for path in package.glob("libraries/**/*") if path.is_file()}
for file in loaded() - of_python:
    assert file.is_relative_to(package) or file.name not in carried, f"{file} is not the package's"
print(f"{len(list(samples.iterdir()))} files, faces: {sorted(family.decode() for family in families)}")
