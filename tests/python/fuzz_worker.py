"""Mutates files, converts each mutant, and reports those that are wrong. One process makes thousands of them."""

from __future__ import annotations

import io
import json
import mmap
import os
import random
import re
import resource
import sys
import time
from collections import Counter
from pathlib import Path

import fuzz_seeds
from korvan import cad
from korvan.cad import imageoptions
from mutators import mutate

NAMED = re.compile(r"Proxy error\((\w+)\): (.*)", re.DOTALL)

# Errors of the library; those of the platform state neither the file nor what to do.
OWN = re.compile(r"(Image|Load|Save|Cad|Cgm|Ifc|Iges|Limit|Png|Jpeg|Jpeg2000|Gif|Tiff|Bmp|Psd|Dicom|WebP|Xmp|Framework|"
                 r"Step|Dxf|Dwg|Operation)\w*Exception")
PAGES = ["PngOptions", "PdfOptions", "SvgOptions", "Html5Options", "EmfOptions", "WmfOptions", "CgmOptions"]
IMAGES = ["PngOptions", "JpegOptions", "TiffOptions", "BmpOptions", "GifOptions", "WebPOptions", "Jpeg2000Options",
          "PsdOptions", "DicomOptions"]
OTHERS = ["GltfOptions", "GlbOptions", "ObjOptions", "StlOptions", "DxfOptions", "DwgOptions"]
LIMITS = ("LimitMemoryException",)
SLOW = 10.0  # seconds of the processor
MAX_MEGABYTES = 250  # more than the process had before
MAX_SEED = 300_000
MAX_CORPUS = 4_000
SETTLE = 200  # rounds after which memory is measured from what the process has then


def place(message: str) -> str:
    """A message without what differs from file to file."""
    return re.sub(r"'[^']*'|\"[^\"]*\"|#?[-+]?\d[\w.+-]*", "~", message)[:120]


class Conversion:
    """One file, loaded and written by some of the writers."""

    def __init__(self, path: str, rnd: random.Random) -> None:
        self.errors: list[dict[str, object]] = []
        self.stage = "load"
        start = time.process_time()
        options = cad.LoadOptions()
        options.ignore_errors = rnd.random() < 0.7
        image = self.attempt("load", lambda: cad.Image.load(path, options))
        if image is not None:
            self.write(image, rnd)
            self.attempt("close", lambda: image.__exit__(None, None, None))
        self.seconds = time.process_time() - start

    def attempt(self, stage: str, action: object) -> object:
        self.stage = stage
        try:
            return action()
        except RuntimeError as error:
            kind, message = NAMED.match(str(error)).groups() if NAMED.match(str(error)) else ("", str(error))
            self.errors.append({"stage": stage, "type": kind, "place": place(message), "message": ascii(message)[:300]})
        return None

    def write(self, image: cad.Image, rnd: random.Random) -> None:
        whole = rnd.random() < 0.05
        for name in (rnd.choice(PAGES), rnd.choice(IMAGES), rnd.choice(OTHERS)):
            options = getattr(imageoptions, name)()
            if not whole and name not in ("DxfOptions", "DwgOptions") and cad.RasterImage._cast_to(image) is None:
                options = fuzz_seeds.page(options, 60.0)
            if image.can_save(options):
                self.attempt(name, lambda options=options: image.save(io.BytesIO(), options))
        if rnd.random() < 0.5:
            saved = io.BytesIO()
            self.attempt("own format", lambda: image.save(saved))
            if not any(error["stage"] == "own format" for error in self.errors):
                self.attempt("again", lambda: cad.Image.load(io.BytesIO(saved.getvalue())))

    def fault(self) -> tuple[str, object] | None:
        """What is wrong, and the error; None if nothing is."""
        if self.seconds > SLOW:
            return f"slow-{self.stage}", self.seconds
        for error in self.errors:
            # What was loaded is written, and what was written is loaded without being told to ignore errors.
            if error["stage"] in ("own format", "again") and error["type"] not in LIMITS:
                return f"{error['stage']}-{error['type']}".replace(" ", "-"), error
            if not OWN.fullmatch(str(error["type"])):
                return f"nameless-{error['stage']}-{error['type']}".replace(" ", "-"), error
        return None


class Memory:
    """The most memory that the process has had, over what it had when this was last settled."""

    def __init__(self) -> None:
        self.settle()

    def settle(self) -> None:
        Path("/proc/self/clear_refs").write_text("5", encoding="ascii")
        self.base = resource.getrusage(resource.RUSAGE_SELF).ru_maxrss

    def megabytes(self) -> int:
        return (resource.getrusage(resource.RUSAGE_SELF).ru_maxrss - self.base) >> 10


class Run:
    """Rounds of one seed: each makes a mutant, which lies in the folder while it is converted."""

    def __init__(self, folder: Path, seed: int, kinds: set[str]) -> None:
        self.folder, self.seed = folder, seed
        self.corpus: dict[str, list[bytes]] = {}
        for source in (fuzz_seeds.EXAMPLES, folder / "seeds", folder / "corpus"):
            for path in sorted(source.glob("*.*")):
                if path.stat().st_size <= MAX_SEED and (not kinds or path.suffix[1:] in kinds):
                    self.corpus.setdefault(path.suffix, []).append(path.read_bytes())
        self.kinds = sorted(self.corpus)
        self.met: set[tuple[object, ...]] = set()
        self.counts: Counter[str] = Counter()
        self.memory = Memory()

    def pick(self, kind: str, rnd: random.Random) -> bytes:
        """A file of a kind: the smallest of some, since small ones are fast."""
        return min(rnd.choices(self.corpus[kind], k=3), key=len)

    def round(self, number: int) -> None:
        rnd = random.Random(f"{self.seed}-{number}")
        kind = rnd.choice(self.kinds)
        data = mutate(self.pick(kind, rnd), self.corpus[rnd.choice(self.kinds)], rnd)
        path = self.folder / f"mutant{self.seed}{kind}"
        path.write_bytes(data)
        self.counts[kind] += 1
        conversion = Conversion(str(path), random.Random(number))
        fault = conversion.fault() or self.excess(str(path), number, len(data))
        if fault is not None:
            name = f"{fault[0]}-{self.seed}-{number}{kind}"
            (self.folder / "finds" / name).write_bytes(data)
            print(json.dumps({"find": name, "error": fault[1]}), flush=True)
        places = {(kind, error["stage"], error["type"], error["place"]) for error in conversion.errors} - self.met
        if places and len(self.corpus[kind]) < MAX_CORPUS and len(data) <= MAX_SEED:
            self.met |= places
            self.corpus[kind].append(data)
            (self.folder / "corpus" / f"{self.seed}-{number}{kind}").write_bytes(data)

    def excess(self, path: str, number: int, length: int) -> tuple[str, object] | None:
        """Memory beyond what a file of the length may take, measured by itself if it seems to be too much."""
        limit = max(MAX_MEGABYTES, 50 * length >> 20)
        if number % SETTLE == 0:
            self.memory.settle()
        if self.memory.megabytes() <= limit:
            return None
        self.memory.settle()
        conversion = Conversion(path, random.Random(number))
        megabytes = self.memory.megabytes()
        self.memory.settle()
        return (f"memory-{conversion.stage}", megabytes) if megabytes > limit else None


def main() -> None:
    folder, seed, first, last = Path(sys.argv[1]), int(sys.argv[2]), int(sys.argv[3]), int(sys.argv[4])
    replies = os.fdopen(os.dup(1), "w")
    os.dup2(2, 1)
    sys.stdout = replies
    run = Run(folder, seed, set(sys.argv[5].split(",")) - {""})
    with open(folder / f"state{seed}", "r+b") as file:
        state = mmap.mmap(file.fileno(), 8)
    for number in range(first, last):
        state[:8] = number.to_bytes(8, "little")
        run.round(number)
        if number % 500 == 0 or number == last - 1:
            print(json.dumps({"counts": run.counts, "places": len(run.met)}), flush=True)
            run.counts.clear()


if __name__ == "__main__":
    if sys.argv[1:2] == ["--seeds"]:
        fuzz_seeds.write(Path(sys.argv[2]), Path(sys.argv[3]) if sys.argv[3:] else None)
    else:
        main()
