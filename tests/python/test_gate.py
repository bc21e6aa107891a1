"""Every way in which an import is refused: its code, its words, its causes, and what is left."""

from __future__ import annotations

import os
import subprocess
import sys
import unittest

from child import LinkedPackage, ScriptedRuntime, run

# Lets a sibling claim another version; what it has is written over, layout and all.
PRELUDE = """
import ctypes, sys, types
from korvan import pycore, pydrawing, pygc, pyreflection

def set_version(version, text):
    numbers = (ctypes.c_int32 * 4).from_address(id(version) + object.__basicsize__)
    numbers[:] = [int(part) for part in text.split(".")]
    ctypes.pythonapi.Py_IncRef(ctypes.py_object(text))
    ctypes.py_object.from_address(id(version) + object.__basicsize__ + 16).value = text

def scripted(name, version="24.5.3.0", threshold="24.5.3.0"):
    # A sibling of the test's own, which borrows the version objects of a module nobody gates.
    module = types.ModuleType("korvan." + name)
    if version:
        set_version(pycore.VERSION, version)
        module.VERSION = pycore.VERSION
    if threshold:
        set_version(pycore._BACKWARD_COMPATIBILITY_THRESHOLD, threshold)
        module._BACKWARD_COMPATIBILITY_THRESHOLD = pycore._BACKWARD_COMPATIBILITY_THRESHOLD
    sys.modules["korvan." + name] = module
    return module
"""
CHAIN = """
def attempt():
    try:
        import korvan.cad
    except BaseException as error:
        while error is not None:
            print(type(error).__name__ + ":", error)
            assert error.__context__ is error.__cause__
            error = error.__cause__
        return
    cad = sys.modules["korvan.cad"]
    print("imported", cad.VERSION, cad.Color.alice_blue.r, cad.CodePages.THAI.get_type(),
          cad.imageoptions.PdfOptions() is not None)
"""
IMPORTED = "imported 25.3.0.0 240 Korvan.CAD.CodePages True"
LOADING = "ImportError: One or more errors occurred while loading the module 'korvan.cad' ({})"
CANNOT = "ImportError: Unable to import module dependencies. Cannot import the korvan.{0} module. "
SIBLINGS = (("pydrawing", -1009), ("pyreflection", -1009), ("pygc", -1008))


def chains(code: str, **environment: str) -> list[str]:
    """What the code prints; the process must end well."""
    done = run(PRELUDE + CHAIN + code, **environment)
    assert done.returncode == 0, done.stderr
    return done.stdout.splitlines()


class Versions(unittest.TestCase):
    def refused(self, setup: str, sibling: str, code: int, words: str) -> None:
        real = f"sys.modules['korvan.{sibling}'] = {sibling}"
        lines = chains(f"{setup}\nattempt()\n{real}\nattempt()")
        self.assertEqual(lines, [LOADING.format(code), CANNOT.format(sibling) + words, IMPORTED])

    def test_a_sibling_that_is_too_old_is_refused(self) -> None:
        for sibling, code in SIBLINGS:
            for version in ("24.5.2.9", "23.99.99.99", "24.5.3.-1"):
                with self.subTest(sibling=sibling, version=version):
                    self.refused(
                        f"scripted({sibling!r}, {version!r})", sibling, code,
                        f"The korvan.{sibling} module found has a version ('{version}') that is "
                        "lower than the referenced version of that module ('24.5.3.0').")

    def test_a_sibling_that_dropped_the_referenced_version_is_refused(self) -> None:
        for sibling, code in SIBLINGS:
            for threshold in ("24.5.3.1", "25.0.0.0"):
                with self.subTest(sibling=sibling, threshold=threshold):
                    self.refused(
                        f"scripted({sibling!r}, '26.1.0.0', {threshold!r})", sibling, code,
                        "The installed version of the module ('26.1.0.0') is not compatible with "
                        "the referenced vesion of the module ('24.5.3.0'). The installed version "
                        f"of the module is not compatible with the module versions < '{threshold}'."
                        " Update dendend module 'korvan.cad' to a latest version.")

    def test_a_sibling_without_versions_is_refused_with_no_further_cause(self) -> None:
        rows = (("version=None", "VERSION"), ("threshold=None", "BACKWARD_COMPATIBILITY_THRESHOLD"))
        for sibling, code in SIBLINGS:
            for lacking, attribute in rows:
                with self.subTest(sibling=sibling, attribute=attribute):
                    self.refused(
                        f"scripted({sibling!r}, {lacking})", sibling, code,
                        f"The korvan.{sibling} module found does not have '{attribute}' attribute "
                        "to check version compatibility.")

    def test_bounds_belong_to_what_passes(self) -> None:
        rows = (("24.5.3.0", "24.5.3.0"), ("24.6.0.0", "0.0.0.0"), ("99.0.0.0", "24.5.3.0"))
        for version, threshold in rows:
            self.assertEqual(
                chains(f"""
set_version(pygc.VERSION, {version!r})
set_version(pygc._BACKWARD_COMPATIBILITY_THRESHOLD, {threshold!r})
attempt()"""), [IMPORTED])


class Capsules(unittest.TestCase):
    def test_a_missing_capsule_is_named(self) -> None:
        rows = (
            ("pydrawing", "_C_APITV1_Color", -1009),
            ("pydrawing", "_C_APITV1_RectangleF", -1009),
            ("pyreflection", "_C_APIT_Type", -1009),
            ("pyreflection", "_C_APIT_Object", -1009),
            ("pyreflection", "_C_APIT_Enum", -1009),
            ("pygc", "_C_APIF", -1008),
        )
        for sibling, capsule, code in rows:
            with self.subTest(capsule):
                lines = chains(f"""
kept = {sibling}.{capsule}
del {sibling}.{capsule}
attempt()
{sibling}.{capsule} = 1
attempt()
{sibling}.{capsule} = kept
attempt()""")
                outer = [LOADING.format(code), f"ImportError: can't import capsule 'korvan.{sibling}.{capsule}'"]
                self.assertEqual(lines[:2], outer)
                self.assertTrue(lines[2].startswith("AttributeError"), lines)
                self.assertEqual(lines[3:5], outer)
                self.assertTrue(lines[5].startswith("AttributeError"), lines)
                self.assertEqual(lines[6:], [IMPORTED])

    def test_pydrawing_is_asked_for_before_pygc(self) -> None:
        with LinkedPackage() as package:
            package.remove("pydrawing.*.so")
            done = package.run("""
                import sys
                try:
                    import korvan.cad
                except ImportError as error:
                    print(error)
                print("korvan.pygc" in sys.modules, "korvan.pyreflection" in sys.modules)
                """)
        self.assertEqual(done.stdout.splitlines(),
                         [LOADING.format(-1009).removeprefix("ImportError: "), "False False"])

    def test_a_sibling_that_fails_itself_is_the_last_cause(self) -> None:
        lines = chains("""
import korvan, importlib
sys.modules["korvan.pygc"] = None
attempt()
sys.modules["korvan.pygc"] = pygc
attempt()""")
        self.assertEqual(lines[:2], [
            LOADING.format(-1008),
            CANNOT.format("pygc") + "The module not found or errors occurred while initializing it.",
        ])
        self.assertTrue(lines[2].startswith("ModuleNotFoundError"), lines)
        self.assertEqual(lines[3:], [IMPORTED])


class Host(unittest.TestCase):
    def test_a_managed_half_that_does_not_fit_leaves_the_interpreter_usable(self) -> None:
        with ScriptedRuntime("fail Korvan.WrpGen.Interop.ExchangeHost InitServices 5") as runtime:
            lines = chains("attempt()\nattempt()\nprint(pydrawing.Color('Tomato').r)",
                           **runtime.environment)
        self.assertEqual(len(lines), 5, lines)
        self.assertEqual(lines[0], LOADING.format(-1007))
        self.assertIn("Method 'InitServices' not found (error=5)", lines[1])
        self.assertEqual(lines[:2], lines[2:4])
        self.assertEqual(lines[4], "255")


MODULE = "ImportError: Module initialization internal error ({}) <{}>"
TYPE = "ImportError: Type initialization internal error ({}) <{}>"
ENUM = "korvan.cad.annotations.AnnotationDirection"
NOTE = "korvan.cad.annotations.AnnotationEntity"
FIRST = "korvan.cad.annotations"

# The call of CPython's that fails, the code of the import, and the causes below it.
FAULTS = [
    ("PyObject_SetAttr VERSION", -1001, []),
    ("PyObject_SetAttr _BACKWARD_COMPATIBILITY_THRESHOLD", -1019, []),
    ("PyModule_AddObjectRef _ModuleVersionType", -1004,
     [TYPE.format(-1014, "korvan.cad,korvan.cad._ModuleVersionType")]),
    ("PyModule_AddObjectRef imageoptions", -1006, [MODULE.format(-1002, "korvan.cad,imageoptions")]),
    ("PyModule_AddObjectRef _wrpgen", -1005, [MODULE.format(-1002, "korvan.cad,_wrpgen")]),
    ("PyModule_AddObjectRef _generic", -1005,
     [MODULE.format(-1002, "korvan.cad._wrpgen,_generic")]),
    ("PyModule_Create2 korvan.cad", -1006, [MODULE.format(-1003, "korvan.cad")]),
    ("PyModule_Create2 korvan.cad.imageoptions", -1006,
     [MODULE.format(-1003, "korvan.cad.imageoptions")]),
    ("PyModule_Create2 korvan.cad._wrpgen._interop", -1005,
     [MODULE.format(-1003, "korvan.cad._wrpgen._interop")]),
    ("PyDict_SetItemString _as_uni_enum", -1006,
     [TYPE.format(-1013, ENUM), TYPE.format(-1020, "AnnotationDirection,_as_uni_enum")]),
    ("PyModule_AddObjectRef Color", -1006, [TYPE.format(-1014, "korvan.cad,korvan.cad.Color")]),
    ("PyType_Ready korvan.cad.Color", -1006, [TYPE.format(-1015, "korvan.cad.Color")]),
    ("PyType_Ready korvan.cad.Image", -1006, [TYPE.format(-1015, "korvan.cad.Image")]),
    ("PyType_Ready korvan.cad._FieldDescrType", -1006,
     [TYPE.format(-1015, "korvan.cad._FieldDescrType")]),
    ("PyType_Ready korvan.cad._wrpgen._interop._StreamWrapper", -1005,
     [TYPE.format(-1015, "korvan.cad._wrpgen._interop._StreamWrapper")]),
    ("PyDict_SetItem _korvan_clr_host", -1006, [TYPE.format(-1016, NOTE)]),
    ("PyDict_SetItem _additional_interfaces", -1006, [TYPE.format(-1017, NOTE)]),
    ("PyDict_SetItem _implicit_interfaces", -1006, [TYPE.format(-1018, NOTE)]),
    ("PyDict_SetItemString alice_blue", -1006, [TYPE.format(-1020, "korvan.cad.Color,alice_blue")]),
    ("PyDict_SetItem _korvan_clr_castable_obj", -1006,
     [TYPE.format(-1013, ENUM), TYPE.format(-1021, "AnnotationDirection")]),
    ("PyModule_AddObjectRef __package__", -1006, [MODULE.format(-1022, FIRST)]),
    ("PyModule_AddObjectRef __path__", -1006, [MODULE.format(-1022, "korvan.cad.cadexceptions")]),
]


def can_script_python() -> bool:
    """Whether a preloaded library comes ahead of the interpreter's own functions."""
    loaded = subprocess.run(["ldd", sys.executable], capture_output=True, text=True, check=False)
    return "libpython" in loaded.stdout and "KORVAN_SCRIPTED_PYTHON" in os.environ


@unittest.skipUnless(can_script_python(), "this interpreter's functions can't be preloaded over")
class Building(unittest.TestCase):
    def test_each_step_of_the_build_fails_under_its_code_and_can_be_tried_again(self) -> None:
        for fault, code, causes in FAULTS:
            with self.subTest(fault):
                lines = chains("attempt()\nattempt()",
                               LD_PRELOAD=os.environ["KORVAN_SCRIPTED_PYTHON"],
                               KORVAN_PYTHON_FAULT=f"korvan.cad {fault}")
                self.assertEqual(
                    lines,
                    [LOADING.format(code), *causes, "RuntimeError: scripted", IMPORTED])


if __name__ == "__main__":
    unittest.main()
