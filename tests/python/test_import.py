"""How the modules come up, how they fail to, and how they live with their process."""

from __future__ import annotations

import os
import signal
import unittest

from child import LinkedPackage, ScriptedRuntime, run

EXCHANGE = "Korvan.WrpGen.Interop.ExchangeHost"
PRINT_CHAIN = """
try:
    import korvan.{module}
except BaseException as error:
    while error is not None:
        print(type(error).__name__ + ":", error)
        error = error.__cause__
"""

ANSWERS = """
from korvan import probe
WRAPPERS = [kind for name, kind in vars(probe._wrpgen._interop).items() if name.endswith("Wrapper")]
for call in ({lines},):
    try:
        print(call())
    except TypeError as error:
        print(error, '|', error.__cause__)
"""


class Start(unittest.TestCase):
    def test_the_trace_shows_the_start_step_by_step(self) -> None:
        done = run("import korvan.cad", COREHOST_TRACE="1")
        self.assertEqual(done.returncode, 0, done.stderr)
        steps = [
            "CLR host tracing enabled",
            "Initializing .NET Core host...",
            "NETCORE_DIR: '",
            "PRODUCT_ASSEMBLY_DIR: '",
            "Loading: '",
            "Try get module...",
            "No existed module...",
            "wrap dll loaded",
            "Loading2: '",
            ".NET Core host ready.",
            "Creating default AppDomain...",
            "APP_PATH: '",
            "APP_NI_PATHS: '",
            "NATIVE_DLL_SEARCH_DIRECTORIES: '",
            "HOST_EXE_PATH: '",
            "Default AppDomain ready.",
            "Shutdowning .NET Core host...",
            ".NET Core host is down: 0",
        ]
        lines = done.stdout.splitlines()
        self.assertEqual(len(lines), len(steps), done.stdout)
        for line, step in zip(lines, steps):
            self.assertTrue(line.startswith(step), f"{line!r} instead of {step!r}")

    def test_the_module_carries_its_versions_and_namespaces(self) -> None:
        done = run(
            """
            import korvan.cad.imageoptions
            from korvan.cad.fileformats.cad import CadImage
            import korvan.cad as cad
            print(cad.VERSION, repr(cad.VERSION), cad.VERSION > cad._BACKWARD_COMPATIBILITY_THRESHOLD)
            print(cad.__package__, cad.sources.__package__, cad.fileformats.__path__)
            print(cad.imageoptions is korvan.cad.imageoptions, len(cad.get_pyinstaller_hook_dirs()))
            """
        )
        self.assertEqual(
            done.stdout.splitlines(),
            [
                "25.3.0.0 <korvan.cad._ModuleVersionType: 25.3.0.0> True",
                "korvan.cad korvan.cad []",
                "True 6",
            ],
            done.stderr,
        )

    def test_namespaces_are_packages_and_leaves_one_named_by_a_keyword(self) -> None:
        done = run("""
            import importlib, sys
            import korvan.probe.inner.deep as deep
            from korvan.probe.inner import Holder
            keyword = importlib.import_module("korvan.probe.inner.import")
            from korvan.probe import inner
            print(keyword is getattr(inner, "import"), sys.modules["korvan.probe.inner.import"] is keyword)
            print(inner.__package__, inner.__path__, keyword.__package__, hasattr(keyword, "__path__"))
            print(isinstance(keyword.Reader().read(), deep.Leaf), Holder.__name__)
            try:
                importlib.import_module("korvan.probe.inner.nothing")
            except ModuleNotFoundError as error:
                print(error.name)
            """)
        self.assertEqual(done.stdout.splitlines(), [
            "True True", "korvan.probe.inner [] korvan.probe.inner False", "True Holder", "korvan.probe.inner.nothing",
        ], done.stderr)

    def test_the_types_are_no_burden_on_the_collector(self) -> None:
        done = run(
            """
            import gc
            before = len(gc.get_objects())
            import korvan.cad
            types = sum(isinstance(value, type) for value in vars(korvan.cad).values())
            grown = len(gc.get_objects()) - before
            print(types > 50, grown < 10_000 or grown)
            """
        )
        self.assertEqual(done.stdout.split(), ["True", "True"], done.stderr)

    def test_two_modules_share_one_runtime(self) -> None:
        done = run(
            """
            import korvan.probe, korvan.cad
            echo = korvan.probe.Echo()
            color = korvan.cad.Color.from_argb(1, 2, 3)
            echo.text = repr(color.r)
            print(echo.text)
            """,
            COREHOST_TRACE="1",
        )
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertIn("Using existed module...", done.stdout)
        self.assertEqual(done.stdout.count("Creating default AppDomain..."), 1)


class FailedStart(unittest.TestCase):
    def chain(self, module: str, *script: str) -> list[str]:
        with ScriptedRuntime(*script) as runtime:
            done = run(PRINT_CHAIN.format(module=module), **runtime.environment)
        self.assertEqual(done.returncode, 0, done.stderr)
        return done.stdout.splitlines()

    def test_a_missing_managed_method_is_named_under_its_code(self) -> None:
        for module, assembly in (("cad", "WrpInterop.Korvan.CAD"), ("probe", "WrpInterop.Korvan.Probe")):
            self.assertEqual(
                self.chain(module, f"fail {EXCHANGE} InitServices -2146233069"),
                [
                    "ImportError: One or more errors occurred while loading the module "
                    f"'korvan.{module}' (-1007)",
                    f"TypeError: While initializing the host for the '{EXCHANGE} "
                    f"(Assembly={assembly})' type, an error occurred - "
                    "Method 'InitServices' not found (error=-2146233069)",
                ],
            )
        chain = self.chain("cad", "fail Korvan.WrpGen.Interop.ObjectHost Dispose 5")
        self.assertIn("ObjectHost (Assembly=WrpInterop.Korvan.CAD)", chain[1])

    def test_a_type_that_lacks_a_method_fails_on_use_and_so_do_its_children(self) -> None:
        code = """
        import korvan.probe as probe
        for bound in (probe.Box, probe.Cube):
            try:
                bound(1)
            except TypeError as error:
                print(error, '|', error.__cause__)
        print(probe.Echo().signed32, probe.Box.__name__)
        """
        box = "WrpNs_Korvan.WrpNs_Probe.WrpCs_Box_" + type_hash("Korvan.Probe.Box")
        with ScriptedRuntime(f"fail {box} call_001_Scale 7") as runtime:
            done = run(code, **runtime.environment)
        own, derived, rest = done.stdout.splitlines()
        words = (
            f"While initializing the host for the '{box} (Assembly=WrpInterop.Korvan.Probe)' type, "
            "an error occurred - Method 'call_001_Scale' not found (error=7)"
        )
        self.assertEqual(own, f"{words} | None")
        self.assertEqual(derived, f"one or more refereced type is not initialized | {words}")
        self.assertEqual(rest, "0 Box")

    def failing(self, code: str, host: str, method: str) -> list[list[str]]:
        """Each line of the code with what becomes of it: a value, 'own' or 'reference'."""
        with ScriptedRuntime(f"fail {host} {method} 7") as runtime:
            done = run(ANSWERS.format(lines=code), **runtime.environment)
        self.assertEqual(done.returncode, 0, done.stderr)
        words = (f"While initializing the host for the '{host} (Assembly=WrpInterop.Korvan.Probe)' type, "
                 f"an error occurred - Method '{method}' not found (error=7)")
        chained = f"one or more refereced type is not initialized | {words}"
        outcomes = {f"{words} | None": "own", chained: "reference"}
        return [outcomes.get(line, line) for line in done.stdout.splitlines()]

    def test_a_wrapper_of_the_framework_fails_with_those_that_it_builds_on(self) -> None:
        code = "*[lambda kind=kind: str(kind._type_of()) and 'fine' for kind in WRAPPERS]"
        names = ["IDisposable", "Iter", "Iterable", "ICol", "IList", "RoColBase", "ColBase", "Array", "ArrList",
                 "Stream"]
        for host, method, own, dependent in (
            ("SiApiEnumerable", "GetEnumerator", "Iterable",
             ("ICol", "IList", "RoColBase", "ColBase", "Array", "ArrList")),
            ("SiApiCntCollection", "SqLength", "ICol", ("IList", "RoColBase", "ColBase")),
            ("SiApiCntList", "Clear", "IList", ("ColBase",)),
            ("SiApiArray", "Sort", "Array", ()),
            ("SiApiStream", "Write", "Stream", ()),
            ("SiApiDisposable", "btp_CastAs", "IDisposable", ()),
        ):
            with self.subTest(host):
                outcomes = self.failing(code, f"Korvan.WrpGen.Interop.{host}", method)
                expected = {name: "fine" for name in names} | {name: "reference" for name in dependent} | {own: "own"}
                self.assertEqual(outcomes, [expected[name] for name in names])

    def test_what_is_made_of_several_hosts_fails_as_a_whole(self) -> None:
        collections = """
            lambda: list(probe.Collections().numbers), lambda: list(probe.Collections().editable),
            lambda: len(probe.Collections().editable), lambda: probe.NumberList().append(1),
            lambda: list(probe.Collections().counts), lambda: list(probe.Collections().bag),
            lambda: probe.Collections.sum_iterable([1, 2]), probe._live_handles"""
        shapes = """
            lambda: probe.Shapes.hidden().name, lambda: probe.Shapes.hidden().area, lambda: probe.Shapes.open().name,
            lambda: probe.Shapes.name_of(probe.OpenShape()), probe._live_handles"""
        number = type_hash("System.Int32")
        face = "WrpNs_Korvan.WrpNs_Probe.WrpCs_IFace_" + type_hash("Korvan.Probe.IFace")
        own, reference = "own", "reference"
        for code, host, method, expected in (
            (collections, f"Korvan.WrpGen.Generic.SiApiEnumerable_{number}", "GetEnumerator",
             [reference, reference, reference, reference, reference, reference, "3", "0"]),
            (collections, f"Korvan.WrpGen.Generic.SiApiCntCollection_{number}", "SqLength",
             ["[1, 2, 3]", reference, reference, reference, "[]", "[4, 5]", "3", "0"]),
            (collections, f"Korvan.WrpGen.Generic.SiApiCntList_{number}", "SqGetItem",
             ["[1, 2, 3]", own, own, reference, "[]", "[4, 5]", "3", "0"]),
            (collections, f"Korvan.WrpGen.Generic.SiApiEnumerator_{number}", "MoveNext",
             [own, own, "2", "None", own, own, "3", "0"]),
            (shapes, face, "get_Name", [reference, reference, "open", "open", "0"]),
        ):
            with self.subTest(host):
                self.assertEqual(self.failing(code, host, method), expected)

    def test_a_package_that_lost_a_part_names_it(self) -> None:
        rows = [
            ("netcore/netcore10.0/libcoreclr.so", "libcoreclr.so"),
            ("netcore/netcore10.0/libkorvan.embed.coreclrwrap.so", "coreclrwrap.so"),
            ("assemblies/cad/Korvan.CAD.dll", "Korvan.CAD.dll"),
            ("assemblies/cad/WrpInterop.Korvan.CAD.dll", "WrpInterop.Korvan.CAD.dll"),
        ]
        for lost, named in rows:
            with self.subTest(lost), LinkedPackage() as package:
                self.assertIn("25.3", package.run("import korvan.cad as c; print(c.VERSION)").stdout)
                package.remove(lost)
                done = package.run("import korvan.cad")
                self.assertEqual(done.returncode, 1, done.stdout + done.stderr)
                last = done.stderr.splitlines()[-1]
                self.assertTrue(last.startswith("ImportError: korvan: the package lost"), last)
                self.assertIn(named, last)

    def test_a_missing_sibling_stops_the_import(self) -> None:
        for sibling, code in (("pydrawing", -1009), ("pyreflection", -1009), ("pygc", -1008)):
            with self.subTest(sibling), LinkedPackage() as package:
                package.remove(f"{sibling}.*.so")
                done = package.run(PRINT_CHAIN.format(module="cad") + "print('alive')")
                lines = done.stdout.splitlines()
                self.assertEqual(
                    lines[:2],
                    [
                        "ImportError: One or more errors occurred while loading the module "
                        f"'korvan.cad' ({code})",
                        "ImportError: Unable to import module dependencies. Cannot import the "
                        f"korvan.{sibling} module. The module not found or errors occurred while "
                        "initializing it.",
                    ],
                )
                self.assertTrue(lines[2].startswith("ModuleNotFoundError"), lines)
                self.assertEqual(lines[-1], "alive")


def type_hash(name: str) -> str:
    value = 0x811C9DC5
    for byte in name.encode("utf-16-le"):
        value = ((value ^ byte) * 0x01000193) & 0xFFFFFFFF
    return value.to_bytes(4, "little").hex().upper()


class Process(unittest.TestCase):
    def test_signals_stay_pythons(self) -> None:
        done = run(
            """
            import signal
            before = [signal.getsignal(n) for n in (signal.SIGINT, signal.SIGTERM, signal.SIGPIPE)]
            import korvan.cad
            korvan.cad.Color.from_argb(1, 2, 3)
            print(before == [signal.getsignal(n) for n in
                             (signal.SIGINT, signal.SIGTERM, signal.SIGPIPE)])
            try:
                signal.raise_signal(signal.SIGINT)
            except KeyboardInterrupt:
                print("interrupted", flush=True)
            signal.raise_signal(signal.SIGTERM)
            """
        )
        self.assertEqual(done.stdout.split(), ["True", "interrupted"], done.stderr)
        self.assertEqual(done.returncode, -signal.SIGTERM)

    def test_the_start_leaves_no_variables_to_children(self) -> None:
        done = run(
            """
            import korvan.cad, subprocess
            print(subprocess.run(["env"], capture_output=True, text=True).stdout)
            """,
            DOTNET_EnableDiagnostics=None,
            DOTNET_EnableWriteXorExecute=None,
        )
        self.assertNotIn("DOTNET_EnableDiagnostics", done.stdout)
        self.assertNotIn("DOTNET_EnableWriteXorExecute", done.stdout)

    def test_a_forked_child_works_and_its_end_is_its_own(self) -> None:
        done = run(
            """
            import os, signal, time
            from korvan import probe
            echo = probe.Echo()
            echo.text = "parent"
            children = []
            for ending in ("exit", "term"):
                child = os.fork()
                if child == 0:
                    other = probe.Box("child")
                    assert other.scale(1.0, 2.0) and echo.text == "parent"
                    if ending == "term":
                        os.kill(os.getpid(), signal.SIGTERM)
                        time.sleep(30)
                    raise SystemExit(7)
                children.append(os.waitpid(child, 0)[1])
            print([os.waitstatus_to_exitcode(status) for status in children], echo.text,
                  probe.Box("after").label)
            """
        )
        self.assertEqual(done.stdout.strip(), "[7, -15] parent after", done.stderr)
        self.assertEqual(done.returncode, 0)

    def test_the_interpreter_ends_cleanly_with_live_wrappers(self) -> None:
        done = run("from korvan import probe; kept = [probe.Echo() for _ in range(1000)]")
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "", ""))

    def test_a_host_that_can_not_start_ends_the_process_with_its_reason(self) -> None:
        done = run("import korvan.cad", NETCORE_WRAPPER_NETCORE_DIR_korvan=os.devnull)
        self.assertEqual(done.returncode, -signal.SIGABRT)
        self.assertIn("DynamicLibrary::load", done.stderr)


if __name__ == "__main__":
    unittest.main()
