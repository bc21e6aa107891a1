"""What a stranger's file may reach, name and break: nothing but itself."""

from __future__ import annotations

import html.parser
import io
import json
import os
import struct
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
import zlib
from pathlib import Path

import hostile_files as hostile
from drawings import Png, needs_tools, tool
from korvan import cad
from korvan.cad.imageoptions import (
    CadRasterizationOptions,
    CgmOptions,
    EmfOptions,
    GltfOptions,
    Html5Options,
    ImageOptionsBase,
    JpegOptions,
    ObjOptions,
    PdfOptions,
    PngOptions,
    SvgOptions,
    WmfOptions,
)

RED = (255, 0, 0)


def red_image() -> bytes:
    header = struct.pack(">IIBBBBB", 8, 8, 8, 2, 0, 0, 0)
    pixels = zlib.compress(b"".join(b"\0" + bytes(RED) * 8 for _ in range(8)))
    return hostile.PNG_SIGNATURE + b"".join(
        hostile.png_chunk(kind, data) for kind, data in ((b"IHDR", header), (b"IDAT", pixels), (b"IEND", b""))
    )


class Folder(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name) / "drawing"
        self.folder.mkdir()
        self.outside = Path(folder.name)

    def load(self, data: bytes, **options: bool) -> cad.Image:
        load_options = cad.LoadOptions()
        for name, value in options.items():
            setattr(load_options, name, value)
        return cad.Image.load(io.BytesIO(data), load_options)


class References(Folder):
    def shows(self, name: str) -> bool:
        path = self.folder / "in.dxf"
        path.write_bytes(hostile.placed_images(name, 1, 8, 8).replace(b"\n11\n0.01\n", b"\n11\n10\n").replace(
            b"\n22\n0.01\n", b"\n22\n10\n"))
        options = PngOptions()
        options.vector_rasterization_options = CadRasterizationOptions()
        options.vector_rasterization_options.page_width = options.vector_rasterization_options.page_height = 60.0
        output = io.BytesIO()
        cad.Image.load(str(path)).save(output, options)
        page = Png(output.getvalue())
        return any(page.pixel(x, y) == RED for x in range(0, 60, 3) for y in range(0, 60, 3))

    def test_only_regular_files_of_the_drawings_folder_are_opened(self) -> None:
        (self.outside / "secret.png").write_bytes(red_image())
        (self.folder / "sub").mkdir()
        for own in ("own.png", "sub/own.png"):
            (self.folder / own).write_bytes(red_image())
        for link, target in (
            ("link.png", "../secret.png"), ("absolute.png", self.outside / "secret.png"), ("up", ".."),
            ("zero.png", "/dev/zero"), ("process.png", "/proc/self/environ"), ("loop.png", "loop.png"),
            ("inner.png", "sub/own.png"),
        ):
            os.symlink(target, self.folder / link)
        os.mkfifo(self.folder / "fifo.png")
        for name in ("own.png", "sub/own.png", "sub\\own.png", "C:\\plans\\own.png", "inner.png"):
            self.assertTrue(self.shows(name), name)
        for name in (
            "link.png", "absolute.png", "up/secret.png", "../secret.png", str(self.outside / "secret.png"), "zero.png",
            "process.png", "loop.png", "fifo.png", "/proc/self/environ", "file:///secret.png", "own.png\\U+0000", "..",
        ):
            self.assertFalse(self.shows(name), name)

    def test_sources_without_an_end_are_refused_at_once(self) -> None:
        os.mkfifo(self.folder / "fifo")
        for path in (self.folder / "fifo", "/dev/zero", "/dev/null", "/proc/self/environ"):
            with self.subTest(path), self.assertRaisesRegex(RuntimeError, "not a regular file"):
                cad.Image.load(str(path))

    def test_names_that_are_not_unicode_are_told_apart(self) -> None:
        data = hostile.drawing(hostile.line())
        for raw in (b"a\xe4.dxf", b"a\xe5.dxf"):
            path = os.fsdecode(os.fsencode(self.folder) + b"/" + raw)
            with open(path, "wb") as file:
                file.write(data)
            image = cad.Image.load(path)
            with self.assertRaisesRegex(RuntimeError, r"a\\udce[45]\.png"):
                image.save(path.replace(".dxf", ".png"), PngOptions())
        with self.assertRaisesRegex(RuntimeError, r"missing\\udcff"):
            cad.Image.load(str(self.folder / "missing\udcff"))
        self.assertEqual(len(list(self.folder.iterdir())), 2)


class Messages(Folder):
    def test_messages_carry_nothing_that_acts(self) -> None:
        name = "\x1b[2J\n<script>alert(1)</script>"
        for data in (
            hostile.drawing(hostile.line().replace("\n10\n0\n", f"\n10\nA{name[:4]}\x07\n")),
            hostile.ifczip(1 << 20).replace(b"a.ifc", b"\x1b\n<ifc"),
        ):
            with self.assertRaises(RuntimeError) as caught:
                self.load(data)
            self.assertNotRegex(str(caught.exception), "[\x00-\x1f\x7f]|<[a-z/!]")


class Writing(Folder):
    def setUp(self) -> None:
        super().setUp()
        self.image = self.load(hostile.drawing(hostile.line()))

    def test_names_may_be_as_long_as_the_file_system_allows(self) -> None:
        for name in ("a" * 255, "ü" * 127, "b" * 220 + ".pdf"):
            for _ in range(2):
                self.image.save(str(self.folder / name), PdfOptions())
        self.assertEqual(len(list(self.folder.iterdir())), 3)

    def test_every_failure_names_the_target(self) -> None:
        os.symlink("loop", self.folder / "loop")
        for name in ("a" * 256, "no/folder", "nul\0", "loop"):
            path = str(self.folder / name)
            shown = path.replace("\0", r"\\x00")
            with self.subTest(name), self.assertRaisesRegex(RuntimeError, f"'{shown}' could not be written"):
                self.image.save(path, PdfOptions())

    @unittest.skipUnless(os.geteuid() == 0, "only root gives files away")
    def test_owner_and_permissions_stay_without_the_rights_of_the_owner(self) -> None:
        path = self.folder / "a.pdf"
        path.write_bytes(b"")
        os.chown(path, 1000, 1001)
        path.chmod(0o6750)
        self.image.save(str(path), PdfOptions())
        status = path.stat()
        self.assertEqual((status.st_uid, status.st_gid, status.st_mode & 0o7777), (1000, 1001, 0o750))


class Texts(Folder):
    STRINGS = (
        "]]>", "</script><script>alert(1)</script>", "\"'><img src=x>", "&amp;&#0;", "${alert(1)}`", "\\U+0000",
        "\\U+0001\\U+001B", "\\U+FFFE\\U+FFFF", "\\U+D800", "\\U+DC00\\U+D800", "\\U+0085\\U+2028", "-->", "*/", "\\",
    )

    def outputs(self, options: ImageOptionsBase) -> list[bytes]:
        written = []
        for string in self.STRINGS:
            tables = hostile.layers("0", string)
            content = hostile.text(string) + hostile.line(layer=string) + hostile.insert(string)
            face = f"0\n3DFACE\n8\n{string}\n10\n0\n20\n0\n11\n9\n21\n0\n12\n9\n22\n9\n13\n0\n23\n9\n"
            data = hostile.drawing(content + face, hostile.block(string, hostile.text(string)), tables=tables)
            output = io.BytesIO()
            self.load(data).save(output, options)
            written.append(output.getvalue())
        return written

    def test_svg_is_well_formed(self) -> None:
        for as_shapes in (False, True):
            options = SvgOptions()
            options.text_as_shapes = as_shapes
            for data in self.outputs(options):
                ElementTree.fromstring(data)
                self.assertNotIn(b"<script", data)

    def test_html_has_no_script_but_its_own(self) -> None:
        class Tags(html.parser.HTMLParser):
            def __init__(self) -> None:
                super().__init__()
                self.count = 0

            def handle_starttag(self, tag: str, _: object) -> None:
                self.count += tag in ("script", "img")

        plain = io.BytesIO()
        self.load(hostile.drawing(hostile.text("a"))).save(plain, Html5Options())
        expected = Tags()
        expected.feed(plain.getvalue().decode())
        for data in self.outputs(Html5Options()):
            tags = Tags()
            tags.feed(data.decode())
            self.assertEqual(tags.count, expected.count)

    @needs_tools("qpdf")
    def test_pdf_is_sound(self) -> None:
        path = self.folder / "a.pdf"
        for data in self.outputs(PdfOptions()):
            path.write_bytes(data)
            tool("qpdf", "--check", str(path))

    def test_meshes_are_sound(self) -> None:
        for data in self.outputs(GltfOptions()):
            json.loads(data)
        for data in self.outputs(ObjOptions()):
            for line in data.decode().splitlines():
                self.assertRegex(line, r"^(#|v |vn |vt |f |g |o |usemtl |mtllib |s |$)")

    def test_metafiles_and_drawings_are_read_again(self) -> None:
        for data in self.outputs(CgmOptions()):
            self.load(data)
        for options in (EmfOptions(), WmfOptions(), PngOptions()):
            self.assertTrue(all(self.outputs(options)))
        for string in self.STRINGS:
            saved = io.BytesIO()
            self.load(hostile.drawing(hostile.text(string), tables=hostile.layers("0", string))).save(saved)
            self.assertNotIn(b"\0", saved.getvalue())
            self.load(saved.getvalue())

    def test_long_metadata_comes_along(self) -> None:
        image = self.load(hostile.png(9, 9, hostile.xmp_title(200_000)))
        output = io.BytesIO()
        image.save(output, JpegOptions())
        again = cad.RasterImage._cast_to(self.load(output.getvalue())).value
        title = again.xmp_data.get_value("http://purl.org/dc/elements/1.1/", "title")
        self.assertEqual(title, "t" * 200_000)
        self.assertEqual(list(again.xmp_data.property_names), ["{http://purl.org/dc/elements/1.1/}title"])


class BadObjects(Folder):
    def test_a_model_that_was_loaded_with_defects_is_written_without_them(self) -> None:
        sound = "#1=IFCCARTESIANPOINT((0.,0.));\n#2=IFCDIRECTION((1.,0.));\n"
        broken = "#3=IFCAXIS2PLACEMENT2D(#1,#9);\n#1=IFCCARTESIANPOINT((1.,1.));\n"
        data = (
            "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\nFILE_NAME('','',(''),(''),'','','');\n"
            f"FILE_SCHEMA(('IFC4'));\nENDSEC;\nDATA;\n{sound}{broken}ENDSEC;\nEND-ISO-10303-21;\n"
        ).encode()
        with self.assertRaises(RuntimeError):
            self.load(data)
        saved = io.BytesIO()
        self.load(data, ignore_errors=True).save(saved)
        self.load(saved.getvalue())
        self.assertIn(b"#3=IFCAXIS2PLACEMENT2D(#1,$);", saved.getvalue())
        self.assertEqual(saved.getvalue().count(b"#1=IFCCARTESIANPOINT"), 1)

    def test_a_bad_object_costs_itself(self) -> None:
        deep = "".join(hostile.block(f"D{i}", hostile.insert(f"D{i - 1}")) for i in range(1, 100))
        for reason, data in (
            ("in itself", hostile.drawing(
                hostile.line() + hostile.insert("A"), hostile.block("A", hostile.line() + hostile.insert("A")))),
            ("more than 1000000 times", hostile.drawing(
                hostile.line() + hostile.insert("A", more="70\n32767\n71\n32767\n"),
                hostile.block("A", hostile.line()))),
            ("nested more than", hostile.drawing(
                hostile.line() + hostile.insert("D99"), hostile.block("D0", hostile.line()) + deep)),
            (r"\$LTSCALE", hostile.drawing(hostile.line(), header="9\n$LTSCALE\n40\n\n")),
        ):
            for options in (PdfOptions(), GltfOptions()):
                output = io.BytesIO()
                image = self.load(data, ignore_errors=True)
                with self.subTest(reason, options=type(options).__name__):
                    try:
                        image.save(output, options)
                    except RuntimeError as error:
                        self.assertRegex(str(error), "no faces|nothing", "lines have no faces")
                        continue
                    if isinstance(options, PdfOptions):
                        notes = " ".join(str(one.message) for one in options.render_result.failures)
                        self.assertRegex(notes, reason)


if __name__ == "__main__":
    sys.exit(unittest.main())
