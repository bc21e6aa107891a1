"""What each layer of the native half may include, tried with the flags that its sources are compiled with."""

from __future__ import annotations

import json
import shlex
import subprocess
import sys
import unittest
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]

# A layer's folder, and the layers that it sees beside itself. What a source may include is in include/<layer>/.
ENGINE = {"contract", "host", "args", "runtime"}
BINDINGS = ENGINE | {"bindings", "generic", "module"}
LAYERS: dict[str, tuple[str, set[str]]] = {
    "contract": ("contract", set()),
    "wrap": ("native/wrap", {"contract"}),
    "host": ("native/engine/host", {"contract"}),
    "args": ("native/engine/args", set()),
    "runtime": ("native/engine/runtime", ENGINE),
    "bindings": ("native/engine/bindings", BINDINGS),
    "generic": ("native/engine/generic", BINDINGS),
    "module": ("native/engine/module", BINDINGS),
    "pycore": ("native/siblings/pycore", BINDINGS),
    "pydrawing": ("native/siblings/pydrawing", BINDINGS),
    "pygc": ("native/siblings/pygc", BINDINGS),
    "pyreflection": ("native/siblings/pyreflection", BINDINGS),
    "cad": ("native/cad", BINDINGS),
}
# What has headers for others.
INCLUDED = ("contract", "wrap", "host", "args", "runtime", "bindings", "generic", "module")
WITHOUT_VALUE = ("-c", "-MD", "-gsplit-dwarf")
WITH_VALUE = ("-o", "-MT", "-MF")


def flags_of(command: str, source: str) -> list[str]:
    """The compiler and its flags, without what it reads and writes."""
    flags = []
    words = iter(shlex.split(command))
    for word in words:
        if word in WITH_VALUE:
            next(words)
        elif word not in WITHOUT_VALUE and word != source:
            flags.append(word)
    return flags


def compilers(commands: Path) -> dict[str, tuple[list[str], Path]]:
    """For each layer that has a source in this build, its flags and the folder of the source."""
    found = {}
    for entry in json.loads(commands.read_text(encoding="utf-8")):
        source = Path(entry["file"])
        for layer, (folder, _) in LAYERS.items():
            if source.parent == ROOT / folder:
                found[layer] = (flags_of(entry["command"], entry["file"]), source.parent)
    return found


def header_of(layer: str) -> str:
    folder = ROOT / LAYERS[layer][0] / "include"
    return min(path.relative_to(folder).as_posix() for path in folder.rglob("*.h"))


def compiles(flags: list[str], folder: Path, header: str) -> subprocess.CompletedProcess[str]:
    # As from a source in that folder: what stands beside a source is found first.
    return subprocess.run(
        [*flags, "-fsyntax-only", f"-iquote{folder}", "-x", "c++", "-"],
        input=f'#include "{header}"\n', capture_output=True, text=True, check=False)


class Layers(unittest.TestCase):
    def test_a_layer_sees_itself_and_those_below_it_alone(self) -> None:
        known = compilers(COMMANDS)
        self.assertLessEqual({"wrap", "host", "args", "runtime", "bindings", "generic"}, known.keys())
        pairs = [(layer, other) for layer in known for other in INCLUDED]
        with ThreadPoolExecutor(2) as pool:
            results = pool.map(lambda pair: compiles(*known[pair[0]], header_of(pair[1])), pairs)
        for (layer, other), done in zip(pairs, results, strict=True):
            with self.subTest(layer=layer, includes=other):
                if other == layer or other in LAYERS[layer][1]:
                    self.assertEqual(done.returncode, 0, done.stderr)
                else:
                    self.assertNotEqual(done.returncode, 0, "it compiles")
                    self.assertIn("No such file or directory", done.stderr)


if __name__ == "__main__":
    COMMANDS = Path(sys.argv.pop())
    unittest.main()
