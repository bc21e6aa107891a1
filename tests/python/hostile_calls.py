"""Calls any member of any bound type with values that it was not made for, in processes of its own.

    build/python tests/python/hostile_calls.py --minutes 60 [--seed 1]     (make fuzz-calls)
    build/python tests/python/hostile_calls.py --seed 17 --rounds 20000    one process again, as it was

A call may be refused by any error. It must not end the process, hang, or raise the SystemError that tells of a
result with an error pending, or of neither. The process that does is reported with its seed and its last call.
"""

from __future__ import annotations

import argparse
import enum
import faulthandler
import gc
import inspect
import os
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path
from random import Random
from types import ModuleType
from typing import Any

FAULT = 70
MOST_SECONDS_FOR_A_CALL = 60
LOG_SIZE = 400
ROOT = Path(__file__).resolve().parents[2]
DRAWINGS = ("floor_plan.dxf", "site_plan.dxf", "garden_house.ifc", "gate_valve.cgm")

# These do what they are told for as long as they are told.
ENDLESS = {"sleep", "pour", "drain"}
SLOTS = {
    "len": len, "bool": bool, "hash": hash, "repr": repr, "str": str, "dir": dir,
    "walk": lambda it: [next(it) for _ in range(4)], "iter": lambda it: [item for item, _ in zip(it, range(9))],
    "reversed": lambda it: next(reversed(it)), "enter": lambda it: it.__enter__(), "slice": lambda it: it[::-2],
    "twice": lambda it: it * 2, "slice away": lambda it: it.__delitem__(slice(1, None, 2)),
}
PAIR_SLOTS = {
    "==": lambda it, value: it == value, "!=": lambda it, value: it != value, "<": lambda it, value: it < value,
    "in": lambda it, value: value in it, "[]": lambda it, value: it[value], "+": lambda it, value: it + value,
    "del []": lambda it, value: it.__delitem__(value), "+=": lambda it, value: it.__iadd__(value),
    "[] =": lambda it, value: it.__setitem__(value, value),
    "[:] =": lambda it, value: it.__setitem__(slice(0, 2), value),
}


def bound_types(module: ModuleType, seen: set[int]) -> list[type]:
    """The types of a module, and of all below it."""
    if id(module) in seen:
        return []
    seen.add(id(module))
    types: list[type] = []
    waiting: list[Any] = [module]
    while waiting:
        owner = waiting.pop()
        for value in list(vars(owner).values()):
            if isinstance(value, ModuleType) and value.__name__.startswith("korvan."):
                types += bound_types(value, seen)
            elif isinstance(value, type) and value.__module__.startswith("korvan.") and id(value) not in seen:
                seen.add(id(value))
                types.append(value)
                if not issubclass(value, enum.Enum):
                    waiting.append(value)
    return types


def is_bound(value: Any) -> bool:
    # By the real type: what a hostile object says of itself is another matter.
    return type(value).__module__.startswith("korvan.")


class Caller:
    """Calls by chance; the same seed makes the same calls."""

    def __init__(self, seed: int, log: int) -> None:
        from hostile_signatures import Signatures
        from hostile_values import Values

        self.random = Random(seed)
        self.log = log
        self.types = self.find_types()
        self.roots = self.open_drawings()
        self.pool: list[Any] = []
        self.values = Values(self.random, self.types, self.pool)
        self.signatures = Signatures(self.random, self.types, self.values, lambda: [*self.pool, *self.roots])
        self.probes = [type_ for type_ in self.types if type_.__module__.startswith("korvan.probe")]

    def arguments(self, type_: type, member: str) -> list[Any]:
        """Now arguments of any kind, now fitting ones of which some are of any kind."""
        fitting = self.signatures.arguments(type_, member) if self.random.random() < 0.9 else None
        if fitting is None:
            return self.values.arguments()
        return [self.values.value() if self.random.random() < 0.2 else value for value in fitting]

    @staticmethod
    def find_types() -> list[type]:
        import korvan.cad
        import korvan.pycore
        import korvan.pydrawing
        import korvan.pygc
        import korvan.pyreflection
        from korvan import probe

        seen: set[int] = set()
        modules = (korvan.cad, probe, korvan.pycore, korvan.pydrawing, korvan.pygc, korvan.pyreflection)
        types = [type_ for module in modules for type_ in bound_types(module, seen)]
        return sorted(types, key=lambda type_: (type_.__module__, type_.__qualname__))

    @staticmethod
    def open_drawings() -> list[Any]:
        import korvan.cad as cad
        from korvan import probe
        from korvan.cad.fileformats.cad import CadImage
        from korvan.cad.fileformats.cgm import CgmImage
        from korvan.cad.fileformats.ifc import IfcImage
        from korvan.cad.imageoptions import CadRasterizationOptions, PngOptions

        # Copies: a drawing may be saved where it came from.
        for name in DRAWINGS:
            shutil.copy(ROOT / "examples" / "drawings" / name, name)
        images = [cad.Image.load(name) for name in DRAWINGS]
        options = PngOptions()
        options.vector_rasterization_options = CadRasterizationOptions()
        options.vector_rasterization_options.page_width = 40.0
        options.vector_rasterization_options.page_height = 30.0
        images[0].save("out.png", options)
        images.append(cad.Image.load("out.png"))
        views = [cast.value for image in images for type_ in (CadImage, CgmImage, IfcImage)
                 if (cast := type_._cast_to(image))]
        return [*images, *views, options, probe.Echo(), probe.Shelf(), probe.Collections(), probe.Streams.open(b"abc"),
                probe.LooseList(), probe.Pair(1.0, 2.0), probe.Triple()]

    def run(self, rounds: int) -> None:
        for at in range(rounds):
            if at % 200 == 0:
                faulthandler.dump_traceback_later(MOST_SECONDS_FOR_A_CALL, exit=True)
            if at % 2000 == 0:
                gc.collect()
            target = self.target()
            try:
                result = self.call(target)
            except Exception as error:  # noqa: BLE001: to be refused is right, in whatever words
                if isinstance(error, SystemError) and "exception" in str(error):
                    print(f"{error!r} caused by {error.__cause__!r}", file=sys.stderr)
                    raise SystemExit(FAULT) from None
                continue
            if is_bound(result):
                self.remember(result)
        faulthandler.cancel_dump_traceback_later()

    def target(self) -> Any:
        chance = self.random.random()
        if chance < 0.35 or not self.pool:
            return self.random.choice(self.probes if chance < 0.15 else self.types)
        return self.random.choice(self.roots if chance < 0.6 else self.pool)

    def remember(self, value: Any) -> None:
        if len(self.pool) < 300:
            self.pool.append(value)
        else:
            self.pool[self.random.randrange(len(self.pool))] = value

    def call(self, target: Any) -> Any:
        if isinstance(target, type) and self.random.random() < 0.5:
            arguments = self.arguments(target, "__init__")
            self.note(target, "()", *arguments)
            return target(*arguments)
        if self.random.random() < 0.3:
            return self.slot(target)
        owner = target if isinstance(target, type) else type(target)
        names = [name for name in dir(owner) if name not in ENDLESS and not name.startswith("__")]
        name = self.random.choice([*names, "__init__", "__exit__"])
        member = inspect.getattr_static(owner, name, None)
        if hasattr(type(member), "__set__") and self.random.random() < 0.6:
            value = (self.arguments(owner, name) or [self.values.value()])[0]
            self.note(target, f".{name} =", value)
            return setattr(target, name, value)
        self.note(target, f".{name}")
        found = getattr(target, name)
        if not callable(found):
            return found
        arguments = self.arguments(owner, name)
        keywords = {self.random.choice(("value", "options", "name")): self.values.value()} \
            if self.random.random() < 0.1 else {}
        self.note(target, f".{name}()", *arguments, *keywords.values())
        return found(*arguments, **keywords)

    def slot(self, target: Any) -> Any:
        if self.random.random() < 0.4:
            name = self.random.choice(list(SLOTS))
            self.note(target, name)
            return SLOTS[name](target)
        name = self.random.choice(list(PAIR_SLOTS))
        value = self.values.value()
        self.note(target, name, value)
        return PAIR_SLOTS[name](target, value)

    def note(self, target: Any, what: str, *arguments: Any) -> None:
        owner = target if type(target) is type else type(target)
        text = f"{owner.__module__}.{owner.__qualname__}{what} <- {', '.join(type(a).__name__ for a in arguments)}"
        os.pwrite(self.log, text.encode("utf-8", "replace").ljust(LOG_SIZE)[:LOG_SIZE], 0)


def run_process(seed: int, rounds: int, most_seconds: float) -> str | None:
    """What went wrong in a process of its own, or None."""
    with tempfile.TemporaryDirectory() as folder:
        log = Path(folder, "last-call")
        command = [sys.executable, __file__, "--seed", str(seed), "--rounds", str(rounds), "--log", str(log)]
        work = Path(folder, "work")
        work.mkdir()
        # A size that was taken from a number is refused, not looked for in the machine's memory.
        environment = {
            **os.environ, "PYTHONHASHSEED": "0", "PYTHONMALLOC": "debug", "DOTNET_GCHeapHardLimit": "0x50000000"}
        try:
            done = subprocess.run(command, cwd=work, env=environment, stdin=subprocess.DEVNULL, capture_output=True,
                                  text=True, errors="replace", timeout=most_seconds, check=False)
        except subprocess.TimeoutExpired:
            return f"seed {seed}, {rounds} rounds: not over after {most_seconds} s, last call: {last_call(log)}"
        if done.returncode == 0:
            return None
        return (f"seed {seed}, {rounds} rounds: exit status {done.returncode}, last call: {last_call(log)}\n"
                f"{done.stderr[-3000:]}")


def last_call(log: Path) -> str:
    return log.read_text(errors="replace").strip() if log.exists() else "none"


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--rounds", type=int, default=20_000, help="calls a process")
    parser.add_argument("--minutes", type=float, help="go on with one seed after the other for so long")
    parser.add_argument("--log", type=Path, help="where a process notes its last call")
    options = parser.parse_args()
    if options.log is not None:
        Caller(options.seed, os.open(options.log, os.O_WRONLY | os.O_CREAT, 0o600)).run(options.rounds)
        return 0
    seed, wrong = options.seed, 0
    end = time.monotonic() + 60 * (options.minutes or 0)
    while True:
        problem = run_process(seed, options.rounds, 3600)
        wrong += problem is not None
        print(problem or f"seed {seed}, {options.rounds} rounds: right", flush=True)
        seed += 1
        if time.monotonic() >= end:
            return 1 if wrong else 0


if __name__ == "__main__":
    raise SystemExit(main())
