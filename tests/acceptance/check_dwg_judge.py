"""Has drawing databases read by another program: real drawings, saved in each release, have as many entities of each
class, layers and blocks as they had before."""

from __future__ import annotations

import json
import subprocess
import sys
import tempfile
from pathlib import Path

from prerequisites import ROOT, require, skip

HERE = Path(__file__).resolve().parent
MODULES = ROOT / "build" / "npm" / "node_modules"
PACKAGE = "@mlightcad/libredwg-web"
VERSION = "0.7.14"
DRAWINGS = ROOT.parent / "shared" / "drawings" / "dwg"
NAMES = (
    "acs__BLOCKLINEARPARAMETER",
    "lc__constructionline_2013",
    "lwg__2000_TS1",
    "lwg__2000_entities-2d",
    "lwg__2004_HatchG",
    "lwg__2007_Multiline",
    "lwg__2010_Spline",
    "lwg__2013_Ellipse",
    "lwg__2018_Text",
    "lwg__2004_Underlay",
    "tika__testDWG2010",
    "tika__testDWGmech2008",
)
RELEASES = ("AC1015", "AC1018", "AC1024", "AC1027", "AC1032")


def save(source: Path, folder: Path) -> list[Path]:
    """Writes a drawing in each release."""
    from korvan.cad import Image
    from korvan.cad.fileformats.cad.cadconsts import CadAcadVersion
    from korvan.cad.imageoptions import DwgOptions

    written = []
    for release in RELEASES:
        options = DwgOptions()
        options.version = getattr(CadAcadVersion, release)
        path = folder / f"{source.stem}.{release}.dwg"
        with Image.load(str(source)) as image:
            image.save(str(path), options)
        written.append(path)
    return written


def read(paths: list[Path]) -> list[dict[str, object]]:
    """What the other program finds in files."""
    command = ["node", HERE / "read_dwg.mjs", MODULES, *paths]
    done = subprocess.run(command, check=True, capture_output=True, text=True, errors="replace", timeout=900)
    lines = [line.removeprefix("counts ") for line in done.stdout.splitlines() if line.startswith("counts ")]
    return [json.loads(line) for line in lines]


def difference(found: dict[str, object], expected: dict[str, object]) -> str:
    kinds = sorted(kind for kind in {*found, *expected} if found.get(kind) != expected.get(kind))
    return ", ".join(f"{kind}: {found.get(kind, 0)} instead of {expected.get(kind, 0)}" for kind in kinds)


def main() -> int:
    require("node")
    sources = [DRAWINGS / f"{name}.dwg" for name in NAMES]
    if not all(source.is_file() for source in sources):
        skip("the real drawings are not here")
    if subprocess.run([ROOT / "tools" / "ensure-npm-package.sh", PACKAGE, VERSION], check=False).returncode != 0:
        skip("the reader cannot be installed")
    faults = 0
    for source in sources:
        with tempfile.TemporaryDirectory() as folder:
            expected, *results = read([source, *save(source, Path(folder))])
        for release, found in zip(RELEASES, results, strict=True):
            wrong = difference(found, expected)
            faults += bool(wrong)
            print(f"{source.stem} as {release}: {wrong or 'the same'}", flush=True)
    print(f"{len(sources) * len(RELEASES) - faults} of {len(sources) * len(RELEASES)} files have the same counts")
    return int(faults > 0)


if __name__ == "__main__":
    sys.exit(main())
