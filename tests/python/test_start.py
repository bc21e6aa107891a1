"""What happens while a program starts: enum types are made, and the first conversion is prepared on another thread."""

from __future__ import annotations

import enum
import types
import unittest
from collections.abc import Iterator
from typing import Any

import korvan.cad
from child import run
from drawings import EXAMPLES
from korvan import probe

DRAWING = """
    import io, os, sys, time
    import korvan.cad as cad
    from korvan.cad.imageoptions import CadRasterizationOptions, PdfOptions

    def convert():
        with cad.Image.load(sys.argv[1]) as image:
            options, output = PdfOptions(), io.BytesIO()
            options.vector_rasterization_options = CadRasterizationOptions()
            image.save(output, options)
            return output.getvalue()

    def threads():
        names = []
        for task in os.listdir("/proc/self/task"):
            with open(f"/proc/self/task/{task}/comm") as file:
                names.append(file.read().strip())
        return names

    def wait():
        while ".NET Warm-up" in threads():
            time.sleep(0.01)
"""
PLAN = str(EXAMPLES / "floor_plan.dxf")

BRIDGE = ("_type_of", "_cast_to", "_cast_from", "_reinterpret_obj", "_as_uni_enum", "_cast_as", "_is_assignable",
          "get_type", "_korvan_clr_castable_obj")


def enums_of(module: types.ModuleType, seen: set[int]) -> Iterator[type[enum.Enum]]:
    for value in vars(module).values():
        if id(value) in seen:
            continue
        seen.add(id(value))
        if isinstance(value, types.ModuleType) and value.__name__.startswith(module.__name__):
            yield from enums_of(value, seen)
        elif isinstance(value, enum.EnumType):
            yield value
        elif isinstance(value, type) and value.__module__.startswith(module.__name__):
            yield from (nested for nested in vars(value).values() if isinstance(nested, enum.EnumType))


def plain(value: Any, owner: type[enum.Enum]) -> object:
    """A value of a type's dictionary in a form that is equal for equal types."""
    if isinstance(value, owner):
        return value._name_, {k: v is owner if k == "__objclass__" else v for k, v in vars(value).items()}
    if isinstance(value, dict):
        # What a program asked for stays in the map by values, and is no part of the type.
        return {key: plain(member, owner) for key, member in value.items()
                if key == getattr(member, "_value_", None) in owner.__members__.values() or isinstance(key, str)}
    return value.__func__ if isinstance(value, (types.MethodType, staticmethod)) else value


class EnumTypes(unittest.TestCase):
    def test_types_are_those_that_the_enum_module_makes(self) -> None:
        made = [*enums_of(korvan.cad, set()), *enums_of(probe, set())]
        self.assertGreater(len(made), 700)
        for type_ in made:
            family = enum.IntFlag if issubclass(type_, enum.Flag) else enum.IntEnum
            members = [(name, member._value_) for name, member in type_._member_map_.items()]
            reference = family(type_.__name__, members, module=type_.__module__)
            own = {k: plain(v, type_) for k, v in vars(type_).items() if k not in BRIDGE}
            with self.subTest(type_.__name__):
                self.assertEqual(own, {k: plain(v, reference) for k, v in vars(reference).items()})
                self.assertEqual([repr(member) for member in type_], [repr(member) for member in reference])
                self.assertEqual(list(type_.__members__), list(reference.__members__))

    def test_flags_of_such_types_are_combined_and_taken_apart(self) -> None:
        options = probe.Options.A | probe.Options.C
        self.assertEqual((options in probe.Options, list(options), ~options & probe.Options.A),
                         (True, [probe.Options.A, probe.Options.C], probe.Options(0)))


class WarmUp(unittest.TestCase):
    def test_first_conversion_is_the_same_during_it_after_it_and_without_it(self) -> None:
        code = DRAWING + """
    if sys.argv[2] == "wait":
        wait()
    import hashlib
    print(hashlib.sha256(convert()).hexdigest())
    """
        runs = [run(code, PLAN, ""), run(code, PLAN, "wait"), run(code, PLAN, "", KORVAN_WARM_UP="0")]
        self.assertEqual([r.returncode for r in runs], [0, 0, 0], runs)
        self.assertEqual(len({r.stdout for r in runs}), 1, runs)

    def test_it_is_switched_off_by_the_environment(self) -> None:
        code = DRAWING + """
    print(".NET Warm-up" in threads())
    """
        self.assertEqual(run(code, KORVAN_WARM_UP="0").stdout, "False\n")

    def test_it_calls_no_library_that_reads_the_environment(self) -> None:
        code = DRAWING + """
    wait()
    maps = open("/proc/self/maps").read()
    print([name for name in ("fontconfig", "pango", "cairo", "glib", "harfbuzz") if name in maps])
    """
        self.assertEqual(run(code).stdout, "[]\n")

    def test_forks_and_ends_of_the_process_wait_for_it(self) -> None:
        fork = DRAWING + """
    import warnings
    warnings.simplefilter("ignore")
    child = os.fork()
    if child == 0:
        print(len(convert()) > 1000, ".NET Warm-up" in threads(), flush=True)
        os._exit(3)
    print(os.waitstatus_to_exitcode(os.waitpid(child, 0)[1]))
    """
        for code, output in [("import korvan.cad", ""), (fork, "True False\n3\n")] * 5:
            ended = run(code, PLAN)
            self.assertEqual((ended.returncode, ended.stdout, ended.stderr), (0, output, ""))


if __name__ == "__main__":
    unittest.main()
