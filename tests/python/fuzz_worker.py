"""Converts the files that a fuzz test names, and tells of each what it took and what came of it."""

from __future__ import annotations

import io
import json
import os
import random
import re
import resource
import sys
from pathlib import Path

from korvan import cad
from korvan.cad import imageoptions
from korvan.cad.fileformats.cad.cadconsts import CadAcadVersion

NAMED = re.compile(r"Proxy error\((\w+)\): (.*)", re.DOTALL)

# Errors of the library; those of the platform state neither the file nor what to do.
OWN = re.compile(r"(Image|Load|Save|Cad|Cgm|Ifc|Iges|Limit|Png|Jpeg|Jpeg2000|Gif|Tiff|Bmp|Psd|Dicom|WebP|Xmp|Framework|"
                 r"Step|Dxf|Dwg|Operation)\w*Exception")
PAGES = ["PngOptions", "PdfOptions", "SvgOptions", "Html5Options", "EmfOptions", "WmfOptions", "CgmOptions"]
IMAGES = ["PngOptions", "JpegOptions", "TiffOptions", "BmpOptions", "GifOptions", "WebPOptions", "Jpeg2000Options",
          "PsdOptions", "DicomOptions"]
MESHES = ["GltfOptions", "GlbOptions", "ObjOptions", "StlOptions"]
DRAWINGS = ["DxfOptions", "DwgOptions"]
EXTENSIONS = {"Png": "png", "Jpeg": "jpg", "Tiff": "tif", "Bmp": "bmp", "Gif": "gif", "WebP": "webp",
              "Jpeg2000": "jp2", "Psd": "psd", "Dicom": "dcm", "Cgm": "cgm"}


def small(options: imageoptions.ImageOptionsBase) -> imageoptions.ImageOptionsBase:
    page = imageoptions.CadRasterizationOptions()
    page.page_width = page.page_height = 200.0
    options.vector_rasterization_options = page
    return options


def make(name: str) -> imageoptions.ImageOptionsBase:
    return getattr(imageoptions, name)()


def place(message: str) -> str:
    """A message without what differs from file to file."""
    return re.sub(r"'[^']*'|\"[^\"]*\"|#?[-+]?\d[\w.+-]*", "~", message)[:120]


def memory(name: str) -> int:
    """A size in kibibytes that the system states of this process."""
    status = Path("/proc/self/status").read_text(encoding="ascii")
    return int(re.search(rf"{name}:\s*(\d+)", status).group(1))


def convert(path: str, seed: int) -> dict:
    rnd, errors, stage = random.Random(seed), [], "load"
    before = memory("VmRSS")
    Path("/proc/self/clear_refs").write_text("5", encoding="ascii")
    start = resource.getrusage(resource.RUSAGE_SELF)

    def attempt(name: str, action: object) -> object:
        nonlocal stage
        stage = name
        try:
            return action()
        except RuntimeError as error:
            kind, message = NAMED.match(str(error)).groups() if NAMED.match(str(error)) else ("", str(error))
            errors.append({"stage": name, "type": kind, "place": place(message),
                           "is_named": bool(OWN.fullmatch(kind)), "message": ascii(message)[:300]})
        return None

    options = cad.LoadOptions()
    options.ignore_errors = rnd.random() < 0.5
    image = attempt("load", lambda: cad.Image.load(path, options))
    if image is not None:
        names = rnd.sample(PAGES, 2) + rnd.sample(IMAGES, 1) + rnd.sample(MESHES, 1) + rnd.sample(DRAWINGS, 1)
        for name in names:
            one = make(name)
            if image.can_save(one):
                attempt(name, lambda: image.save(io.BytesIO(), one))
        saved = io.BytesIO()
        attempt("own format", lambda: image.save(saved))
        if not any(error["stage"] == "own format" for error in errors):
            attempt("again", lambda: cad.Image.load(io.BytesIO(saved.getvalue())))
        attempt("close", lambda: image.__exit__(None, None, None))
    used = resource.getrusage(resource.RUSAGE_SELF)
    seconds = used.ru_utime + used.ru_stime - start.ru_utime - start.ru_stime
    megabytes = (memory("VmHWM") - before) >> 10
    return {"errors": errors, "seconds": seconds, "megabytes": megabytes, "stage": stage}


def write_seeds(source: str, folder: Path) -> None:
    """Writes a drawing in every format that is read, and in every release of drawings."""
    image = cad.Image.load(source)
    for version in (CadAcadVersion.AC1015, CadAcadVersion.AC1018, CadAcadVersion.AC1024, CadAcadVersion.AC1032):
        options = imageoptions.DwgOptions()
        options.version = version
        image.save(str(folder / f"seed{version.name}.dwg"), options)
    for version in (imageoptions.DxfOutputVersion.R12, imageoptions.DxfOutputVersion.R2007):
        options = imageoptions.DxfOptions()
        options.version = version
        image.save(str(folder / f"seed{version.name}.dxf"), options)
    for name, extension in EXTENSIONS.items():
        image.save(str(folder / f"seed.{extension}"), small(make(f"{name}Options")))


def main() -> None:
    if sys.argv[1:2] == ["--seeds"]:
        write_seeds(sys.argv[2], Path(sys.argv[3]))
        return
    replies = os.fdopen(os.dup(1), "w")
    os.dup2(2, 1)
    for job in sys.stdin:
        request = json.loads(job)
        print(json.dumps(convert(request["path"], request["seed"])), file=replies, flush=True)


if __name__ == "__main__":
    main()
