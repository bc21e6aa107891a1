"""Runs in the bare root: loads a file of each format, renders, seals, and looks at what the process has loaded."""

from __future__ import annotations

import io
import re
import sys
import zlib
from pathlib import Path

from korvan import cad
from korvan.cad import imageoptions

samples = Path(sys.argv[1])
package = Path(cad.__file__).parent

for path in sorted(samples.iterdir()):
    with cad.Image.load(str(path)) as image:
        target = io.BytesIO()
        image.save(target, imageoptions.PngOptions())
        assert len(target.getvalue()) > 200, f"{path.name}: an empty image"

with cad.Image.load(str(samples / "plan.dxf")) as plan:
    target = io.BytesIO()
    plan.save(target, imageoptions.PdfOptions())
    streams = re.findall(rb"stream\r?\n(.*?)\r?\nendstream", target.getvalue(), re.DOTALL)
    unpacked = [zlib.decompressobj().decompress(stream) for stream in streams if stream[:1] == b"\x78"]
    text = b"".join([target.getvalue(), *unpacked])
    families = set(re.findall(rb"(DejaVu|Liberation)", text))
    assert families, "no carried face is in the document"
    # Sealed watermarks are encrypted.
    plan.watermark_guard_service.embed("carried", "secret1234")

carried = {re.sub(r"-[0-9a-f]{8}(?=\.so)", "", path.name) for path in package.glob("libraries/**/*") if path.is_file()}
for line in Path("/proc/self/maps").read_text().splitlines():
    file = Path(line.split()[-1])
    if ".so" in file.name and file.name in carried:
        assert file.is_relative_to(package), f"{file} is not the package's"
print(f"{len(list(samples.iterdir()))} files, faces: {sorted(family.decode() for family in families)}")
