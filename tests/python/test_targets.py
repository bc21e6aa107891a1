"""Where output goes: files, devices, pipes, sockets, streams, and what happens when they fail."""

from __future__ import annotations

import io
import os
import signal
import socket
import subprocess
import sys
import tempfile
import textwrap
import time
import unittest
from pathlib import Path

from drawings import EXAMPLES
from korvan import cad
from korvan.cad.imageoptions import (
    BmpOptions,
    CadRasterizationOptions,
    ImageOptionsBase,
    PdfOptions,
    PngOptions,
    SvgOptions,
)

PLAN = str(EXAMPLES / "floor_plan.dxf")
CONTENT = Path(PLAN).read_bytes()
FAULT = "disk on fire"
MODEL = str(EXAMPLES / "garden_house.ifc")


def drawn(options: ImageOptionsBase) -> ImageOptionsBase:
    if options.vector_rasterization_options is None:
        options.vector_rasterization_options = CadRasterizationOptions()
    return options


class Files(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.image = cad.Image.load(PLAN)

    def test_what_is_no_file_is_written_into_and_stays_what_it_was(self) -> None:
        fifo = self.folder / "fifo"
        os.mkfifo(fifo)
        with subprocess.Popen(["cat", str(fifo)], stdout=subprocess.PIPE) as reader:
            self.image.save(str(fifo), PdfOptions())
            self.assertEqual(reader.communicate(timeout=60)[0][:5], b"%PDF-")
        self.assertTrue(fifo.is_fifo())

        place, received = self.folder / "socket", bytearray()
        with socket.socket(socket.AF_UNIX) as server:
            server.bind(str(place))
            server.listen()
            # The connection is taken and its buffer read when the save is over: a small output fits into it.
            page = drawn(PngOptions())
            page.vector_rasterization_options.page_width = page.vector_rasterization_options.page_height = 20.0
            self.image.save(str(place), page)
            connection, _ = server.accept()
            with connection:
                received += connection.recv(1 << 16)
        self.assertEqual(received[:4], b"\x89PNG")
        self.assertTrue(place.is_socket())

    def test_nobody_waits_for_a_reader_longer_than_the_time_allows(self) -> None:
        fifo = self.folder / "fifo"
        os.mkfifo(fifo)
        options = drawn(PngOptions())
        options.timeout = 300
        start = time.monotonic()
        with self.assertRaisesRegex(RuntimeError, "300 milliseconds"):
            self.image.save(str(fifo), options)
        self.assertLess(time.monotonic() - start, 10)

        # A pipe that nobody empties is full after 64 KiB.
        reader = os.open(fifo, os.O_RDONLY | os.O_NONBLOCK)
        self.addCleanup(os.close, reader)
        bitmap = drawn(BmpOptions())
        bitmap.timeout = 2000
        with self.assertRaisesRegex(RuntimeError, "2000 milliseconds"):
            self.image.save(str(fifo), bitmap)

    @unittest.skipUnless(os.geteuid() == 0, "only root makes devices")
    def test_devices_are_not_replaced(self) -> None:
        for name, minor in (("null", 3), ("full", 7)):
            with self.subTest(name):
                device = self.folder / name
                try:
                    os.mknod(device, 0o20666, os.makedev(1, minor))
                    device.write_bytes(b"")
                except OSError as refusal:
                    self.skipTest(f"no devices here: {refusal}")
                if name == "null":
                    self.image.save(str(device), SvgOptions())
                else:
                    with self.assertRaises(RuntimeError) as caught:
                        self.image.save(str(device), SvgOptions())
                    self.assertEqual(str(caught.exception).count("No space left on device"), 1)
                self.assertTrue(device.is_char_device())

    def test_the_standard_output_gets_the_output_at_its_place(self) -> None:
        code = f"""
            import os
            from korvan import cad
            from korvan.cad.imageoptions import PdfOptions
            os.write(1, b"before ")
            cad.Image.load({PLAN!r}).save("/dev/stdout", PdfOptions())
            os.write(1, b" behind")
        """
        piped = subprocess.run([sys.executable, "-c", textwrap.dedent(code)],
                               capture_output=True, timeout=120, check=True)
        target = self.folder / "out"
        with target.open("wb") as file:
            subprocess.run([sys.executable, "-c", textwrap.dedent(code)], stdout=file, timeout=120, check=True)
        for output in (piped.stdout, target.read_bytes()):
            self.assertEqual((output[:12], output[-7:]), (b"before %PDF-", b" behind"))

    def test_an_ended_process_leaves_nothing_beside_the_target(self) -> None:
        code = f"""
            import io, os, signal
            from korvan import cad
            from korvan.cad.imageoptions import PngOptions, CadRasterizationOptions
            image = cad.Image.load({PLAN!r})
            options = PngOptions()
            options.vector_rasterization_options = page = CadRasterizationOptions()
            page.page_width = page.page_height = 9000.0
            print("saving", flush=True)
            image.save({str(self.folder / "big.png")!r}, options)
        """
        with subprocess.Popen([sys.executable, "-c", textwrap.dedent(code)], stdout=subprocess.PIPE) as process:
            process.stdout.readline()
            opened = f"{self.folder}/"
            for _ in range(600):  # until the file is open
                links = Path(f"/proc/{process.pid}/fd").iterdir()
                if any(opened in os.readlink(link) for link in links if link.is_symlink()):
                    break
                time.sleep(0.05)
            process.send_signal(signal.SIGTERM)
            process.wait(60)
        self.assertEqual(process.returncode, -signal.SIGTERM)
        self.assertEqual(os.listdir(self.folder), [])

    def test_links_and_modes_stay(self) -> None:
        target, link = self.folder / "a.svg", self.folder / "link"
        target.write_text("before")
        target.chmod(0o640)
        link.symlink_to("a.svg")
        self.image.save(str(link), SvgOptions())
        self.assertTrue(link.is_symlink())
        self.assertEqual(target.stat().st_mode & 0o777, 0o640)
        self.assertIn(b"<svg", target.read_bytes())
        dangling = self.folder / "dangling"
        dangling.symlink_to("later.svg")
        self.image.save(str(dangling), SvgOptions())
        self.assertTrue(dangling.is_symlink() and (self.folder / "later.svg").is_file())

    def test_a_name_of_another_format_is_refused_without_options(self) -> None:
        for name, advice in (("plan.pdf", "PdfOptions"), ("plan.PNG", "PngOptions"), ("plan.stp", "cannot be written")):
            with self.subTest(name), self.assertRaisesRegex(RuntimeError, advice):
                self.image.save(str(self.folder / name))
        self.assertEqual(os.listdir(self.folder), [])
        for name in ("plan.DXF", "plan", "plan.backup"):
            self.image.save(str(self.folder / name))
        model = cad.Image.load(MODEL)
        for name, start in (("a.ifc", b"ISO-"), ("a.ifczip", b"PK\x03\x04")):
            model.save(str(self.folder / name))
            self.assertEqual((self.folder / name).read_bytes()[:4], start)


class FailingStreams(unittest.TestCase):
    def formats(self, image: cad.Image) -> list[ImageOptionsBase]:
        kinds = [kind for name, kind in vars(cad.imageoptions).items()
                 if name.endswith("Options") and isinstance(kind, type)]
        options = [kind() for kind in kinds if issubclass(kind, ImageOptionsBase) and kind is not ImageOptionsBase]
        return [one for one in options if image.can_save(one)]

    def test_a_failure_is_told_once_in_every_format(self) -> None:
        class Burning(io.BytesIO):
            def write(self, _: object) -> int:
                raise OSError(FAULT)

        square = ((0, 0), (9, 0), (9, 5), (0, 5))
        corners = "".join(f"1{i}\n{x}\n2{i}\n{y}\n3{i}\n0\n" for i, (x, y) in enumerate(square))
        face = f"0\nSECTION\n2\nENTITIES\n0\n3DFACE\n8\n0\n{corners}0\nENDSEC\n0\nEOF\n"
        image = cad.Image.load(io.BytesIO(face.encode()))
        formats = self.formats(image)
        self.assertGreater(len(formats), 15)
        for options in formats:
            with self.subTest(type(options).__name__), self.assertRaises(RuntimeError) as caught:
                image.save(Burning(), options)
            self.assertTrue(str(caught.exception).startswith("Proxy error(PythonException): "), caught.exception)
            self.assertEqual(str(caught.exception).count(FAULT), 1)
        with self.assertRaisesRegex(RuntimeError, FAULT):
            image.save(Burning())

    def test_the_text_does_not_grow_with_the_depth_of_nested_saves(self) -> None:
        image = cad.Image.load(PLAN)

        class Nested(io.BytesIO):
            def __init__(self, depth: int) -> None:
                super().__init__()
                self.depth = depth

            def write(self, _: object) -> int:
                if self.depth == 0:
                    raise OSError(FAULT)
                image.save(Nested(self.depth - 1), drawn(SvgOptions()))
                return 0

        for depth in range(4):
            with self.assertRaises(RuntimeError) as caught:
                image.save(Nested(depth), drawn(SvgOptions()))
            self.assertEqual(str(caught.exception).count(FAULT), 1)

    def test_closed_and_read_only_streams_are_told_as_such(self) -> None:
        image = cad.Image.load(PLAN)
        closed = io.BytesIO(CONTENT)
        closed.close()
        with self.assertRaisesRegex(RuntimeError, "closed or was not opened for reading"):
            cad.Image.load(closed)
        with open(PLAN, "rb") as read_only:
            for target in (closed, read_only):
                with self.assertRaisesRegex(RuntimeError, "closed or was not opened for writing"):
                    image.save(target, PdfOptions())

    def test_an_interrupt_in_a_stream_keeps_its_name(self) -> None:
        class Interrupted(io.RawIOBase):
            def readable(self) -> bool:
                return True

            def readinto(self, _: object) -> int:
                raise KeyboardInterrupt

        with self.assertRaisesRegex(RuntimeError, r"(?s)Proxy error\(PythonException\): .*KeyboardInterrupt"):
            cad.Image.load(Interrupted())


class Sources(unittest.TestCase):
    def test_an_image_holds_the_stream_it_was_read_from(self) -> None:
        stream = io.BytesIO(b"kept" + CONTENT + b"")
        stream.seek(4)
        image = cad.Image.load(stream)
        container = image.data_stream_container
        self.assertTrue(container.can_read and container.can_write and container.can_seek)
        self.assertEqual(container.length, len(CONTENT) + 4)
        image.save()
        saved = stream.getvalue()
        self.assertEqual(saved[:4], b"kept")
        plain = io.BytesIO()
        image.save(plain)
        self.assertEqual(saved[4:], plain.getvalue())
        image.dispose() if hasattr(image, "dispose") else image.__exit__(None, None, None)
        self.assertFalse(stream.closed)

    def test_disposing_closes_the_stream_where_that_was_asked_for(self) -> None:
        options = cad.LoadOptions()
        options.unload_on_dispose = True
        stream = io.BytesIO(CONTENT)
        with cad.Image.load(stream, options):
            self.assertFalse(stream.closed)
        self.assertTrue(stream.closed)

    def test_what_cannot_be_written_back_says_so(self) -> None:
        with open(PLAN, "rb") as file:
            image = cad.Image.load(file)
            with self.assertRaisesRegex(RuntimeError, r"cannot be written or cannot seek; use save\(file_path\)"):
                image.save()
        with self.assertRaisesRegex(RuntimeError, "closed"):
            image.save()

    def test_a_refused_stream_is_let_go(self) -> None:
        stream = io.BytesIO(b"junk" * 4000)
        before = sys.getrefcount(stream)
        for _ in range(20):
            with self.assertRaisesRegex(RuntimeError, "no known format"):
                cad.Image.load(stream)
            stream.seek(0)
        self.assertEqual(sys.getrefcount(stream), before)

    def test_a_stream_is_not_read_on_where_its_beginning_or_length_tells(self) -> None:
        class Counted(io.BytesIO):
            taken = 0

            def readinto(self, buffer: object) -> int:
                count = super().readinto(buffer)
                self.taken += count
                return count

        junk = Counted(b"junk" * (1 << 20))
        with self.assertRaisesRegex(RuntimeError, "no known format"):
            cad.Image.load(junk)
        self.assertLess(junk.taken, 1 << 20)
        with tempfile.TemporaryFile() as file:
            file.truncate(3 << 30)
            with self.assertRaisesRegex(RuntimeError, rf"{3 << 30} bytes; at most \d+ can be read"):
                cad.Image.load(file)
            self.assertEqual(file.tell(), 0)
        stream = io.BytesIO(CONTENT)
        stream.read()
        with self.assertRaisesRegex(RuntimeError, f"nothing after its position, {len(CONTENT)} bytes from the start"):
            cad.Image.load(stream)


if __name__ == "__main__":
    unittest.main()
