"""How the runtime lives with its process: threads, children, signals, faults and the end of it all.

Each row is a program, run in a child process, with the end that it comes to.
"""

from __future__ import annotations

import signal
import unittest
from dataclasses import dataclass

from child import LinkedPackage, run


@dataclass(frozen=True)
class Case:
    name: str
    code: str
    output: str
    returncode: int | None = 0
    errors: tuple[str, ...] = ()


# An end by a signal, whichever the runtime's own handler makes of it.
BY_SIGNAL = None


def case(name: str, code: str, output: str, returncode: int | None = 0, *errors: str) -> Case:
    return Case(name, code, output, returncode, errors)


THREADS = [
    case("threads use wrappers at once", """
        import threading
        from korvan import probe
        wrong, start = [], threading.Barrier(8)

        def use(number):
            start.wait()
            for i in range(200):
                echo = probe.Echo()
                echo.text = f"{number}-{i}"
                echo.peer = probe.Echo()
                collections = probe.Collections()
                try:
                    echo.fail("System.Exception", echo.text)
                except RuntimeError as error:
                    if f"{number}-{i}" not in str(error):
                        wrong.append(str(error))
                if (echo.text, echo.sum(iter((i, 1))), list(collections.numbers)) != (
                        f"{number}-{i}", i + 1, [1, 2, 3]):
                    wrong.append(echo.text)

        before = probe._live_handles()
        threads = [threading.Thread(target=use, args=(n,)) for n in range(8)]
        for thread in threads: thread.start()
        for thread in threads: thread.join()
        print(wrong, probe._live_handles() - before)
        """, "[] 0"),
    case("threads import at once, none of them the main one", """
        import sys, threading
        def load(names):
            import korvan.cad, korvan.probe
            names.append(korvan.cad.Color.from_argb(1, 2, 3).r + korvan.probe.Echo().signed32)
        names = []
        sys.setswitchinterval(1e-5)
        threads = [threading.Thread(target=load, args=(names,)) for _ in range(4)]
        for thread in threads: thread.start()
        for thread in threads: thread.join()
        print(names)
        """, "[1, 1, 1, 1]"),
    case("a wrapper outlives the thread that made it", """
        import threading
        from korvan import probe
        made = []
        thread = threading.Thread(target=lambda: made.append(probe.Box("made elsewhere")))
        thread.start(); thread.join()
        print(made[0].label)
        dropper = threading.Thread(target=made.clear)
        dropper.start(); dropper.join()
        print(probe._live_handles())
        """, "made elsewhere\n0"),
]

CHILDREN = [
    case("a fork works on, parent and child", """
        import os
        from korvan import probe
        echo = probe.Echo()
        echo.text = "kept"
        child = os.fork()
        if child == 0:
            for i in range(300):  # enough for the collector to run
                echo.peer = probe.Echo()
                echo.peer.text = "x" * 500000
            os._exit(7 if echo.text == "kept" and probe.Box("child").label == "child" else 1)
        print(os.waitstatus_to_exitcode(os.waitpid(child, 0)[1]), probe.Box("after").label)
        """, "7 after", 0, "DeprecationWarning: This process"),
    case("a forked child that goes through all of its end is over", """
        import os
        from korvan import cad, probe
        child = os.fork()
        if child == 0:
            raise SystemExit(5 if probe.Box("child").label == "child" else 1)
        print(os.waitstatus_to_exitcode(os.waitpid(child, 0)[1]))
        """, "5", 0, "DeprecationWarning: This process"),
    case("a fork ahead of the import starts a runtime of its own", """
        import os
        child = os.fork()
        from korvan import probe
        box = probe.Box("own")
        if child == 0:
            raise SystemExit(3 if box.label == "own" else 1)
        print(os.waitstatus_to_exitcode(os.waitpid(child, 0)[1]), box.label)
        """, "3 own"),
    case("a forked child draws and loads, in threads, too, whatever threads its parent has", """
        import os, threading, workers
        stop, ready = threading.Event(), threading.Barrier(9)
        def live():
            workers.convert(0)
            ready.wait()
            stop.wait()
        for _ in range(8): threading.Thread(target=live).start()
        ready.wait()
        workers.convert(1)  # which loads in pieces, side by side
        child = os.fork()
        if child == 0:
            result = workers.convert_in_threads(20)
            grandchild = os.fork()
            if grandchild == 0:
                os._exit(3 if workers.convert_in_threads(8) == result == "same" else 1)
            os._exit(os.waitstatus_to_exitcode(os.waitpid(grandchild, 0)[1]))
        print(os.waitstatus_to_exitcode(os.waitpid(child, 0)[1]))
        stop.set()
        """, "3", 0, "DeprecationWarning: This process"),
    *(case(f"workers of multiprocessing by {method}", f"""
        import multiprocessing, workers
        from korvan import cad, probe
        probe.Echo()
        expected = [workers.convert(number) for number in range(28)]
        context = multiprocessing.get_context({method!r})
        context.set_forkserver_preload(["korvan.cad", "korvan.probe", "workers"])
        with context.Pool(2) as pool:
            print(pool.map(workers.work, range(4)), pool.map(workers.convert, range(28), chunksize=1) == expected)
        print(workers.work(9))
        """, "[(True, '0:3.0'), (True, '1:4.0'), (True, '2:5.0'), (True, '3:6.0')] True\n(True, '9:12.0')")
      for method in ("fork", "spawn", "forkserver")),
    case("subprocesses run and are waited for", """
        import asyncio, subprocess, sys
        from korvan import probe
        code = "from korvan import probe; print(probe.Box('grandchild').label)"
        print(subprocess.run([sys.executable, "-c", code], capture_output=True, text=True).stdout, end="")
        print(subprocess.run(["false"]).returncode, subprocess.getoutput("echo shell"))
        async def ask():
            process = await asyncio.create_subprocess_exec("sh", "-c", "exit 4")
            return await process.wait()
        print(asyncio.run(ask()), probe.Box("after").label)
        """, "grandchild\n1 shell\n4 after"),
]

# Another process presses Ctrl-C while this one is on the managed side.
PRESS = """
import os, signal, subprocess, time
from korvan import probe
def press(number):
    subprocess.Popen(["sh", "-c", f"sleep 0.3; kill -{number} {os.getpid()}"])
def wait():
    for _ in range(600): time.sleep(0.1)
"""
SIGNALS = [
    case("Ctrl-C in a managed call interrupts after it", PRESS + """
start = time.monotonic()
press(2)
try:
    probe.Trials.sleep(1000)
    wait()
    print("not interrupted")
except KeyboardInterrupt:
    print(time.monotonic() - start >= 0.95, probe.Box("usable").label)
""", "True usable"),
    case("Ctrl-C that nobody catches ends the process", PRESS + """
press(2)
probe.Trials.sleep(600)
wait()
""", "", -signal.SIGINT, "KeyboardInterrupt"),
    case("Ctrl-C in a callback fails the managed call with its name", PRESS + """
def numbers():
    while True:
        yield 1
        time.sleep(0.001)
press(2)
try:
    probe.Echo().sum(numbers())
except (RuntimeError, KeyboardInterrupt) as error:
    print(type(error).__name__, "KeyboardInterrupt" in str(error), probe.Box("usable").label)
""", "RuntimeError True usable"),
    case("a handler of Python's runs after the call", PRESS + """
seen = []
signal.signal(signal.SIGALRM, lambda *_: seen.append(probe.Box("in the handler").label))
signal.setitimer(signal.ITIMER_REAL, 0.1)
print(probe.Trials.sleep(400), seen)
""", "400 ['in the handler']"),
    case("termination does not wait for the managed call", PRESS + """
press(15)
probe.Trials.sleep(30000)
""", "", -signal.SIGTERM),
]

FAULTS = [
    case("faults of managed code are exceptions", """
        from korvan import probe
        for _ in range(3):
            try:
                probe.Trials.length_of(None)
            except RuntimeError as error:
                print(error)
        """, "\n".join(3 * ["Proxy error(NullReferenceException): Object reference not set to an "
                            "instance of an object."])),
    case("and stay so with a fault handler from before the import", """
        import faulthandler
        faulthandler.enable()
        from korvan import probe
        try:
            probe.Trials.length_of(None)
        except RuntimeError as error:
            print("NullReference" in str(error), faulthandler.is_enabled())
        """, "True True"),
    case("a fault of native code reaches the fault handler from before the import", """
        import faulthandler
        faulthandler.enable()
        from korvan import probe
        probe.Echo()
        faulthandler._sigsegv()
        """, "", -signal.SIGSEGV, "Fatal Python error: Segmentation fault"),
    case("and one from after the import", """
        import faulthandler
        from korvan import probe
        probe.Echo()
        faulthandler.enable()
        faulthandler._sigsegv()
        """, "", BY_SIGNAL, "Fatal Python error: Segmentation fault"),
    # It stands ahead of the runtime's, which so never sees the fault: enable it ahead of the import.
    case("a fault handler from after the import takes managed faults for native ones", """
        import faulthandler
        from korvan import probe
        faulthandler.enable()
        probe.Trials.length_of(None)
        """, "", BY_SIGNAL, "Fatal Python error: Segmentation fault"),
]

ENDS = [
    case("with live wrappers, in cycles and in exit handlers", """
        import atexit
        from korvan import probe
        class Keeper:
            def __init__(self):
                self.echo, self.cycle = probe.Echo(), self
            def __del__(self):
                self.echo.text = "late"
        kept = [Keeper() for _ in range(100)]
        last = probe.Box("at the end")
        atexit.register(lambda: print(last.label))
        """, "at the end"),
    case("with threads in the middle of managed calls", """
        import threading, time
        from korvan import probe
        def use():
            while True:
                echo = probe.Echo()
                echo.text = "busy"
                echo.sum(iter((1, 2)))
        for _ in range(4):
            threading.Thread(target=use, daemon=True).start()
        time.sleep(0.2)
        print("ending")
        """, "ending"),
    case("with the code that it asks for", """
        from korvan import probe
        kept = probe.Echo()
        raise SystemExit(5)
        """, "", 5),
    case("by an exception", """
        from korvan import probe
        kept = probe.Echo()
        kept.fail("System.Exception", "at last")
        """, "", 1, "RuntimeError: Proxy error(Exception): at last"),
    case("at once", """
        import os
        from korvan import probe
        kept = probe.Echo()
        os._exit(6)
        """, "", 6),
]


class Processes(unittest.TestCase):
    def check(self, cases: list[Case]) -> None:
        for row in cases:
            with self.subTest(row.name):
                done = run(row.code)
                self.assertEqual(done.stdout.strip(), row.output, done.stderr)
                if row.returncode is BY_SIGNAL:
                    self.assertLess(done.returncode, 0, done.stderr)
                else:
                    self.assertEqual(done.returncode, row.returncode, done.stderr)
                for words in row.errors:
                    self.assertIn(words, done.stderr)
                if not row.errors:
                    self.assertEqual(done.stderr, "")

    def test_threads(self) -> None:
        self.check(THREADS)

    def test_children(self) -> None:
        self.check(CHILDREN)

    def test_signals(self) -> None:
        self.check(SIGNALS)

    def test_faults(self) -> None:
        self.check(FAULTS)

    def test_ends(self) -> None:
        self.check(ENDS)

    def test_an_import_is_tried_again_when_the_package_is_whole_again(self) -> None:
        with LinkedPackage() as package:
            lost = package.package / "assemblies" / "cad" / "Korvan.CAD.dll"
            done = package.run(f"""
                import os
                source = os.readlink({str(lost)!r})
                os.unlink({str(lost)!r})
                for attempt in range(3):
                    try:
                        import korvan.cad
                        print(korvan.cad.Color.from_argb(1, 2, 3).r)
                    except ImportError as error:
                        print("lost the assembly" in str(error))
                    if attempt == 1:
                        os.symlink(source, {str(lost)!r})
                """)
            self.assertEqual(done.stdout.split(), ["True", "True", "1"], done.stderr)


if __name__ == "__main__":
    unittest.main()
