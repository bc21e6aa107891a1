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

def memory(name):
    with open("/proc/self/status") as status:
        return next(int(line.split()[1]) for line in status if line.startswith(name))

def told(action):
    try:
        return action() or "done"
    except RuntimeError as error:
        return str(error).split(")")[0].removeprefix("Proxy error(")

before = memory("VmRSS")
images = []
result = [told(lambda: images.append(cad.Image.load(sys.argv[1])))]
for image in images:
    for name in sys.argv[3:]:
        result.append(told(lambda: image.save(sys.argv[2], getattr(imageoptions, name)())))
used = resource.getrusage(resource.RUSAGE_SELF)
print(round(used.ru_utime + used.ru_stime), (memory("VmHWM") - before) // 1024, *result)
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
            ("codes.webp", hostile.webp(16_383), (), NOT_READ),
            ("scan.jpg", hostile.progressive_jpeg(20_000, 13), (), NOT_READ),
            ("strip.tif", hostile.tiff(10_000, 3), ("PngOptions",), {"done"}),
            ("alpha.png", hostile.png(7000, 7000, hostile.png_chunk(b"tRNS", b"\0\0")),
             ("JpegOptions", "TiffOptions"), {"done"}),
            ("tiles.j2k", hostile.jpeg2000(1000, 4, 6), (), NOT_READ),
            ("blocks.j2k", hostile.jpeg2000(3000, 3000, 2), (), NOT_READ),
            ("tile.tif", hostile.tiff(1, 1, 20_000), (), NOT_READ),
            ("tiles.tif", hostile.tiff(20_000, 1, 4096), ("PngOptions",), {"done"}),
            ("run.bmp", hostile.bmp_of_one_run(20_000), (), NOT_READ),
            ("placed.dxf", hostile.placed_images("large.png", 20, 9000, 9000), pages, {"done"}),
            ("often.dxf", hostile.placed_images("large.png", 1000, 9000, 9000), ("PngOptions",), NOT_SAVED),
            ("records.dxf", hostile.placed_images("large.png", 20, 9000, 9000), ("EmfOptions",), {"done"}),
            ("packed.ifczip", hostile.ifczip(300 << 20), (), NOT_READ),
            ("nested.ifcxml", hostile.nested_ifcxml(100_000), (), {"ImageLoadException"}),
            ("metadata.png", hostile.png(9, 9, hostile.xmp("<a>" * 40_000 + "</a>" * 40_000)), ("JpegOptions",),
             {"done"}),
            ("dashes.cgm", hostile.far_dashes(1000), ("PngOptions", "PdfOptions", "EmfOptions"), {"done"}),
            ("edges.cgm", hostile.wide_dashes(9000), ("PngOptions",), NOT_SAVED),
            ("clip.cgm", hostile.clipped_lines(9000, 9000), ("PngOptions",), {"done"}),
            ("clip.dxf", hostile.clipped_inserts(2000, 5000), ("PngOptions",), NOT_SAVED),
            ("nested.dxf", hostile.nested_clips(40, 400), ("PngOptions", "JpegOptions") * 4, NOT_SAVED),
            ("crossings.dxf", hostile.clipped_inserts(50, 5000), ("PngOptions",), {"done"}),
            ("text.cgm", hostile.giant_text(30_000), pages, {"done"}),
            ("records.cgm", hostile.nested_records(100_000), (), {"ImageLoadException"}),
            ("copies.cgm", hostile.copied_segments(1000, 2000), pages, NOT_SAVED),
            ("blocks.dxf", hostile.doubling_blocks(24), pages, NOT_SAVED),
            ("gradients.dxf", hostile.drawing(hostile.shaded() * 3000), ("PngOptions",), NOT_SAVED),
            ("faces.dxf", hostile.drawing(
                hostile.insert("A", more="70\n900\n71\n900\n44\n10\n45\n10\n"), hostile.block("A", hostile.face())
            ), ("GlbOptions",), NOT_SAVED),
            ("names.dxf", hostile.drawing("".join(hostile.line(layer=f"L{i}") for i in range(120_000))),
             ("DxfOptions", "DwgOptions"), {"done"}),
            ("bulges.dxf", hostile.bulges(10_000), pages, {"done"}),
            ("spaces.dxf", hostile.drawing(hostile.mtext(" " * 200_000 + "a " * 100_000, 0)), pages, {"done"}),
            ("formats.dxf", hostile.drawing(hostile.mtext("\\La\\la" * 80_000)), pages, {"done"}),
            ("unended.dxf", hostile.drawing(hostile.mtext("\\f\\S\\;" * 100_000)), pages, {"done"}),
            ("recursive.dxf", hostile.drawing(hostile.mtext("\\p" + "x" * 900_000 + ";a")), pages, {"done"}),
            ("paragraphs.dxf", hostile.drawing(
                hostile.insert("A", more="70\n700\n71\n700\n44\n10\n45\n10\n"),
                hostile.block("A", hostile.mtext("some {\\fArial|b1;words}\\P that wrap " * 10, 30))
            ), ("PngOptions",), NOT_SAVED),
            ("words.dxf", hostile.drawing(
                hostile.insert("A") * 10_000, hostile.block("A", hostile.text("Room 12 " * 4000))
            ), ("PngOptions", "EmfOptions"), {"done", "ImageSaveException"}),
            ("marks.dxf", hostile.drawing(hostile.mtext("a\\U+0301" * 60_000)), ("EmfOptions", "WmfOptions"), {"done"}),
            ("gaps.dxf", hostile.drawing(hostile.hatch(
                [hostile.square(0, 0, 1e4)], *(hostile.hatch_line(angle, 20, -0.02) for angle in range(40))
            )), pages, {"done"}),
            ("boxes.dxf", hostile.drawing(hostile.hatch(
                [hostile.square(i % 100, i // 100, 1, 18 if i % 2 else 2) for i in range(10_000)],
                hostile.hatch_line(0, 1),
            )), pages, {"done"}),
            ("far.dxf", hostile.drawing(hostile.hatch(
                [hostile.square(1e18, 1e18, 1e5)], hostile.hatch_line(0, 300, 31, -32)
            )), pages, {"done"}),
            ("loop.dxf", hostile.drawing(hostile.solid_of_one_loop(20_000, 4_000)), pages, {"done"}),
            ("curve.dxf", hostile.drawing(hostile.solid_of_one_spline(20_000, 20_000)), pages, NOT_SAVED),
            ("knots.dxf", hostile.drawing(hostile.spline(25, 10_000, "%de-320")), pages, {"done"}),
        ):
            results = self.convert(name, data, *options)
            with self.subTest(name):
                self.assertEqual(set(results), expected)

    def test_a_small_database_may_not_unpack_to_everything(self) -> None:
        path = str(self.folder / "in.dxf")
        points = "10\n1\n20\n2\n" * 2_000_000
        for name, entities in (
            ("AC1018", f"0\nLWPOLYLINE\n8\n0\n90\n2000000\n70\n1\n{points}"),
            ("AC1015", hostile.line()),
        ):
            Path(path).write_bytes(hostile.drawing(entities))
            run("""
                import sys
                import korvan.cad as cad
                from korvan.cad.fileformats.cad.cadconsts import CadAcadVersion
                from korvan.cad.imageoptions import DwgOptions
                options = DwgOptions()
                options.version = getattr(CadAcadVersion, sys.argv[2])
                cad.Image.load(sys.argv[1]).save(sys.argv[1] + ".dwg", options)
            """, path, name)
            data = Path(path + ".dwg").read_bytes()
            if name == "AC1015":
                results = self.convert("records.dwg", hostile.dwg_of_one_record(data, 500_000))
                self.assertEqual(set(results), {"ImageLoadException"})
            else:
                self.assertLess(len(data), 20_000)
                self.assertLessEqual(set(self.convert("packed.dwg", data, "PngOptions", "PdfOptions")), NOT_SAVED)

    def test_many_texts_are_drawn_at_each_size(self) -> None:
        texts = (hostile.text(f"Room {i}, of {i * i}", "0", i % 300 * 60, i // 300 * 10) for i in range(60_000))
        (self.folder / "texts.dxf").write_bytes(hostile.drawing("".join(texts)))
        output = run("""
            import korvan.cad as cad, sys
            from korvan.cad import imageoptions
            options = imageoptions.PngOptions()
            page = imageoptions.CadRasterizationOptions()
            options.vector_rasterization_options = page
            image = cad.Image.load(sys.argv[1])
            for pixels in (4000.0, 6500.0):
                page.page_width = page.page_height = pixels
                image.save(sys.argv[2], options)
                print(cad.Image.load(sys.argv[2]).width)
        """, str(self.folder / "texts.dxf"), str(self.folder / "out.png")).stdout
        self.assertEqual(output.split(), ["4000", "6500"])

    def test_large_pages_as_bitmaps_take_no_more_than_others(self) -> None:
        (self.folder / "plan.dxf").write_bytes(hostile.drawing(hostile.line()))
        output = run("""
            import korvan.cad as cad, sys
            from korvan.cad import imageoptions
            image = cad.Image.load(sys.argv[1])
            for name in ("PdfOptions", "SvgOptions", "EmfOptions", "WmfOptions", "CgmOptions", "Html5Options"):
                options = getattr(imageoptions, name)()
                page = imageoptions.CadRasterizationOptions()
                page.page_width, page.page_height, page.content_as_bitmap = 2400.0, 1700.0, True
                options.vector_rasterization_options = page
                image.save(sys.argv[2], options)
                print(name)
        """, str(self.folder / "plan.dxf"), str(self.folder / "out")).stdout
        self.assertEqual(len(output.split()), 6)

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
        self.assertIn("Proxy error(LimitMemoryException): There is no room for 324000000 bytes of pixels on disk",
                      output)


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
        (self.folder / "in.png").write_bytes(hostile.png(9000, 9000))
        pixels = ("PngOptions", "TiffOptions", "PsdOptions")
        for source, names in (
            ("in.dxf", ("PdfOptions", "SvgOptions", "Html5Options", "EmfOptions", "CgmOptions", "DxfOptions", *pixels)),
            ("in.png", ("WebPOptions", "Jpeg2000Options", "GifOptions", *pixels)),
        ):
            output = run(INTERRUPT + """
image = cad.Image.load(sys.argv[1])
for name in sys.argv[3:]:
    options = getattr(imageoptions, name)()
    print(timer(0.03, lambda: image.save(sys.argv[2], options)), end=" ")
    options.timeout = 30
    print(late(lambda: image.save(sys.argv[2], options)), os.path.exists(sys.argv[2]))
""", str(self.folder / source), str(self.folder / "out"), *names).stdout
            with self.subTest(source):
                self.assertEqual(output, "KeyboardInterrupt OperationInterruptedException False\n" * len(names))
        self.assertEqual(sorted(path.name for path in self.folder.iterdir()), ["in.dxf", "in.png"])

    def test_the_timeout_ends_long_work_on_one_entity(self) -> None:
        vertices = "".join(f"10\n{i * 7919 % 1000}\n20\n{i * 104729 % 1000}\n" for i in range(60_000))
        lines = [hostile.hatch_line(angle / 7, 20, 300, -200) for angle in range(200)]
        boxes = [hostile.square(i % 100, i // 100, 1, 18 if i % 2 else 2) for i in range(20_000)]
        for name, entities, options in (
            ("text", hostile.mtext(" ".join(f"{i:x}" for i in range(300_000)), 100), "PdfOptions"),
            ("formats", hostile.mtext("".join(f"\\H{i}.5;a" for i in range(200_000))), "PngOptions"),
            ("hatch", hostile.hatch([hostile.square(0, 0, 5000)], *lines) * 20, "SvgOptions"),
            ("loops", hostile.hatch(boxes, hostile.hatch_line(0, 0.1)), "PdfOptions"),
            ("outer", hostile.hatch([f"92\n2\n72\n0\n73\n1\n93\n60000\n{vertices}97\n0\n"] * 2,
                                    hostile.hatch_line(0, 50), style=1), "PngOptions"),
            ("spline", hostile.spline(25, 40_000, "%d"), "PngOptions"),
            ("wide", f"0\nLWPOLYLINE\n8\n0\n90\n60000\n70\n1\n43\n5\n{vertices}", "PdfOptions"),
        ):
            (self.folder / "in.dxf").write_bytes(hostile.drawing(entities))
            output = run(INTERRUPT + """
image = cad.Image.load(sys.argv[1])
options = getattr(imageoptions, sys.argv[3])()
for options.timeout in (3, 10):
    print(late(lambda: image.save(sys.argv[2], options)), os.path.exists(sys.argv[2]))
""", str(self.folder / "in.dxf"), str(self.folder / "out"), options).stdout
            with self.subTest(name):
                self.assertEqual(output, "OperationInterruptedException False\n" * 2)

    def test_signals_end_loading_and_native_codecs(self) -> None:
        points = "".join(f"#{i}=IFCCARTESIANPOINT((0.,0.));\n" for i in range(1, 600_000))
        (self.folder / "in.ifc").write_text(
            "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\nFILE_NAME('','',(''),(''),'','','');\n"
            f"FILE_SCHEMA(('IFC4'));\nENDSEC;\nDATA;\n{points}ENDSEC;\nEND-ISO-10303-21;\n", encoding="ascii")
        (self.folder / "in.cgm").write_bytes(hostile.far_dashes(500_000))
        (self.folder / "in.dxf").write_bytes(hostile.drawing(hostile.line() * 200_000))
        (self.folder / "in.png").write_bytes(hostile.png(20_000, 20_000))
        run("""
            import sys, korvan.cad as cad
            from korvan.cad.imageoptions import DwgOptions
            cad.Image.load(sys.argv[1]).save(sys.argv[2], DwgOptions())
        """, str(self.folder / "in.dxf"), str(self.folder / "in.dwg"))
        for name in ("in.dxf", "in.png", "in.ifc", "in.cgm", "in.dwg"):
            output = run(INTERRUPT + """
print(timer(0.05, lambda: cad.Image.load(sys.argv[1])))
print(cad.Image.get_file_format(sys.argv[1]) is not None)
""", str(self.folder / name)).stdout
            with self.subTest(name):
                self.assertEqual(output, "KeyboardInterrupt\nTrue\n")


if __name__ == "__main__":
    sys.exit(unittest.main())
