"""What a file may cost: time, memory and disk in proportion to its size, and an end at the user's word."""

from __future__ import annotations

import sys
import tempfile
import unittest
from pathlib import Path

import hostile_files as hostile
from child import run

# Loads and converts in a process of its own; prints what it took and what came of it.
CONVERT = """
import resource, sys
import korvan.cad as cad
from korvan.cad import imageoptions

def peak():
    with open("/proc/self/status") as status:
        return next(int(line.split()[1]) for line in status if line.startswith("VmHWM"))

def told(action):
    try:
        return action() or "done"
    except RuntimeError as error:
        return str(error).split(")")[0].removeprefix("Proxy error(")

images = []
result = [told(lambda: images.append(cad.Image.load(sys.argv[1])))]
for image in images:
    for name in sys.argv[3:]:
        result.append(told(lambda: image.save(sys.argv[2], getattr(imageoptions, name)())))
used = resource.getrusage(resource.RUSAGE_SELF)
print(round(used.ru_utime + used.ru_stime), peak() // 1024, *result)
"""

NOT_READ = {"LimitMemoryException"}
NOT_SAVED = {"done", "ImageSaveException"}


class Bombs(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def convert(self, name: str, data: bytes, *options: str) -> list[str]:
        (self.folder / name).write_bytes(data)
        output = run(CONVERT, str(self.folder / name), str(self.folder / "out"), *options).stdout
        seconds, megabytes, *results = output.split()
        with self.subTest(name):
            self.assertLessEqual(int(seconds), 20, "for all conversions together")
            self.assertLessEqual(int(megabytes), 300)
        return results

    def test_small_files_take_little_time_and_memory(self) -> None:
        small = hostile.png(9000, 9000)
        (self.folder / "large.png").write_bytes(small)
        pages = ("PngOptions", "PdfOptions")
        for name, data, options, expected in (
            ("image.png", small, ("PngOptions",), {"done"}),
            ("frames.gif", hostile.gif_frames(20_000), (), NOT_READ),
            ("run.bmp", hostile.bmp_of_one_run(20_000), (), NOT_READ),
            ("placed.dxf", hostile.placed_images("large.png", 20, 9000, 9000), pages, {"done"}),
            ("packed.ifczip", hostile.ifczip(300 << 20), (), NOT_READ),
            ("nested.ifcxml", hostile.nested_ifcxml(100_000), (), {"ImageLoadException"}),
            ("metadata.png", hostile.png(9, 9, hostile.xmp("<a>" * 40_000 + "</a>" * 40_000)), ("JpegOptions",), {"done"}),
            ("dashes.cgm", hostile.far_dashes(1000), ("PngOptions", "PdfOptions", "EmfOptions"), {"done"}),
            ("copies.cgm", hostile.copied_segments(1000, 2000), pages, NOT_SAVED),
            ("blocks.dxf", hostile.doubling_blocks(24), pages, NOT_SAVED),
            ("bulges.dxf", hostile.bulges(10_000), pages, {"done"}),
        ):
            results = self.convert(name, data, *options)
            with self.subTest(name):
                self.assertEqual(set(results), expected)

    def test_the_program_can_allow_more(self) -> None:
        (self.folder / "packed.ifczip").write_bytes(hostile.ifczip(300 << 20))
        output = run("""
            import korvan.cad as cad, sys
            cad.Cache.set_max_memory_for_cache(1 << 30)
            try:
                cad.Image.load(sys.argv[1])
            except RuntimeError as error:
                print(str(error).split(")")[0])
        """, str(self.folder / "packed.ifczip")).stdout
        self.assertEqual(output.strip(), "Proxy error(ImageLoadException", "it is read, and then it is no model")

    def test_a_full_disk_is_an_error(self) -> None:
        (self.folder / "large.png").write_bytes(hostile.png(9000, 9000))
        output = run("""
            import korvan.cad as cad, resource, sys
            resource.setrlimit(resource.RLIMIT_FSIZE, (1 << 20, 1 << 20))
            try:
                cad.Image.load(sys.argv[1])
            except RuntimeError as error:
                print(error)
        """, str(self.folder / "large.png")).stdout
        self.assertIn("Proxy error(LimitMemoryException): There is no room for 324000000 bytes of pixels on disk", output)


# Interrupts whatever runs after a while, by a timer and by the limit of the options.
INTERRUPT = """
import os, signal, sys, time
import korvan.cad as cad
from korvan.cad import imageoptions

def interrupt(*_):
    raise KeyboardInterrupt

signal.signal(signal.SIGALRM, interrupt)

def late(action):
    start = time.process_time()
    try:
        action()
        return "too fast to be interrupted"
    except KeyboardInterrupt:
        return "KeyboardInterrupt"
    except RuntimeError as error:
        return str(error).split(")")[0].removeprefix("Proxy error(")
    finally:
        signal.setitimer(signal.ITIMER_REAL, 0)
        # Other threads may still run, so that only the wall clock could tell more.
        if time.process_time() - start > 5:
            print("late")

def timer(seconds, action):
    signal.setitimer(signal.ITIMER_REAL, seconds)
    return late(action)
"""


class Interruptions(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def test_the_timeout_and_signals_end_every_export_and_leave_no_file(self) -> None:
        (self.folder / "in.dxf").write_bytes(hostile.drawing(
            "".join(f"0\nCIRCLE\n8\n0\n10\n{i}\n20\n{i % 7}\n40\n{i % 90}\n" for i in range(60_000))
        ))
        names = ("PngOptions", "PdfOptions", "SvgOptions", "Html5Options", "EmfOptions", "CgmOptions", "TiffOptions")
        output = run(INTERRUPT + """
image = cad.Image.load(sys.argv[1])
for name in sys.argv[3:]:
    options = getattr(imageoptions, name)()
    print(timer(0.03, lambda: image.save(sys.argv[2], options)), end=" ")
    options.timeout = 30
    print(late(lambda: image.save(sys.argv[2], options)), os.path.exists(sys.argv[2]))
""", str(self.folder / "in.dxf"), str(self.folder / "out"), *names).stdout
        expected = "KeyboardInterrupt OperationInterruptedException False\n" * len(names)
        self.assertEqual(output, expected)
        self.assertEqual([path.name for path in self.folder.iterdir()], ["in.dxf"])

    def test_signals_end_loading_and_native_codecs(self) -> None:
        (self.folder / "in.dxf").write_bytes(hostile.drawing(hostile.line() * 200_000))
        (self.folder / "in.png").write_bytes(hostile.png(20_000, 20_000))
        for name in ("in.dxf", "in.png"):
            output = run(INTERRUPT + """
print(timer(0.05, lambda: cad.Image.load(sys.argv[1])))
print(cad.Image.get_file_format(sys.argv[1]) is not None)
""", str(self.folder / name)).stdout
            with self.subTest(name):
                self.assertEqual(output, "KeyboardInterrupt\nTrue\n")


if __name__ == "__main__":
    sys.exit(unittest.main())
