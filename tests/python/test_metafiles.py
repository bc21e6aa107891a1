"""Metafiles from Python: every element a class, files of other programs, changes, conversions, damage."""

from __future__ import annotations

import gzip
import importlib
import io
import os
import re
import subprocess
import tempfile
import unittest
from pathlib import Path

from drawings import EXAMPLES, Png, needs_tools, tool
from korvan import cad
from korvan.cad.fileformats.cgm import CgmFile, CgmFileFormat, CgmImage
from korvan.cad.fileformats.cgm.classes import CgmColor, CgmPoint, StructuredDataRecord
from korvan.cad.fileformats.cgm.commands import (
    BeginMetafile,
    BeginPicture,
    BeginPictureBody,
    Command,
    EndMetafile,
    EndPicture,
    FillColour,
    InteriorStyle,
    LineColour,
    PolygonElement,
    Polyline,
    VdcExtent,
)
from korvan.cad.fileformats.cgm.elements import DelimiterElement, DelimiterElements
from korvan.cad.fileformats.cgm.enums import ClassCode, Severity
from korvan.cad.fileformats.cgm.export import DefaultBinaryWriter, DefaultClearTextWriter
from korvan.cad.imageoptions import CadRasterizationOptions, CgmOptions, PdfOptions, PngOptions, SvgOptions

READING = importlib.import_module("korvan.cad.fileformats.cgm.import")
VALVE = EXAMPLES / "gate_valve.cgm"


def plot(*arguments: str, **settings: str) -> bytes:
    """A graph that another program wrote as a metafile."""
    done = subprocess.run(
        ["graph", "-T", "cgm", *arguments], input=b"0 0\n1 3\n2 1\n3 5\n", capture_output=True, timeout=60, check=True,
        env=os.environ | settings,
    )
    return done.stdout


def body(image: CgmImage) -> int:
    """Where the first thing that is drawn belongs."""
    return next(i for i, c in enumerate(image.file.commands) if isinstance(c, BeginPictureBody)) + 1


class Metafiles(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def test_a_metafile_made_in_python_is_drawn_and_read_back(self) -> None:
        with CgmImage() as image:
            area = PolygonElement()
            area.points = [CgmPoint(0.0, 0.0), CgmPoint(500.0, 0.0), CgmPoint(500.0, 500.0), CgmPoint(0.0, 500.0)]
            color = FillColour()
            color.color = CgmColor(cad.Color.red)
            style = InteriorStyle()
            style.value = InteriorStyle.Style.SOLID
            at = body(image)
            for command in (area, color, style):
                image.file.commands.insert(at, command)
            options = PngOptions()
            raster = CadRasterizationOptions()
            (raster.page_width, raster.page_height) = (100.0, 100.0)
            options.vector_rasterization_options = raster
            drawn = io.BytesIO()
            image.save(drawn, options)
            png = Png(drawn.getvalue())
            self.assertEqual((png.pixel(25, 75)[:3], png.pixel(75, 25)[:3]), ((255, 0, 0), (255, 255, 255)))
            for encoding in CgmFileFormat:
                path = self.folder / "own.cgm"
                image.file.save(str(path), encoding)
                with cad.Image.load(str(path)) as loaded:
                    again = CgmImage._cast_to(loaded).value.file
                    self.assertEqual([type(c) for c in again.commands], [type(c) for c in image.file.commands])
                    points = next(c for c in again.commands if isinstance(c, PolygonElement)).points
                    self.assertEqual([(p.x, p.y) for p in points][2], (500.0, 500.0))

    @needs_tools("graph")
    def test_the_files_of_another_plotter_are_the_same_in_each_form(self) -> None:
        titles = ["Title", "0.0", "0.5", "1.0", "1.5", "2.0", "2.5", "3.0", "0", "1", "2", "3", "4", "5"]
        for version in "1", "3":
            pieces = set()
            for encoding in "binary", "clear_text":
                data = plot("-L", "Title", CGM_MAX_VERSION=version, CGM_ENCODING=encoding)
                zipped = io.BytesIO(gzip.compress(data))
                with cad.Image.load(io.BytesIO(data)) as image, cad.Image.load(zipped) as packed:
                    self.assertEqual((list(image.get_strings()), list(packed.get_strings())), (titles, titles))
                    options = SvgOptions()
                    out = io.BytesIO()
                    image.save(out, options)
                    self.assertTrue(options.render_result.is_render_complete, options.render_result.failures)
                    data = b"".join(re.findall(rb' d="([^"]*)"', out.getvalue()))
                    pieces.add(len(re.findall(rb"[Mm]", data)))
            self.assertEqual(len(pieces), 1, pieces)
            self.assertGreater(pieces.pop(), 50)

    @needs_tools("pdftotext", "pdfinfo")
    def test_a_page_has_the_size_and_the_texts_of_its_picture(self) -> None:
        with cad.Image.load(str(VALVE)) as image:
            self.assertEqual((image.width, image.height, image.unit_type),
                             (210, 148, cad.imageoptions.UnitType.MILLIMETER))
            image.save(str(self.folder / "valve.pdf"), PdfOptions())
            options = CgmOptions()
            options.text_as_lines = True
            image.save(str(self.folder / "lines.cgm"), options)
        self.assertIn("595.276 x 419.528", tool("pdfinfo", str(self.folder / "valve.pdf")))
        self.assertIn("Gate valve DN 50", tool("pdftotext", str(self.folder / "valve.pdf"), "-"))
        with cad.Image.load(str(self.folder / "lines.cgm")) as lines:
            self.assertEqual(len(lines.get_strings()), 0)

    def test_a_saved_metafile_keeps_its_encoding_and_what_was_changed(self) -> None:
        path = self.folder / "changed.cgm"
        path.write_bytes(VALVE.read_bytes())
        with cad.Image.load(str(path)) as image:
            commands = CgmImage._cast_to(image).value.file.commands
            extent = next(c for c in commands if isinstance(c, VdcExtent))
            extent.second_corner = CgmPoint(420.0, 148.0)
            line = next(c for c in commands if isinstance(c, LineColour))
            line.color = CgmColor(cad.Color.from_argb(1, 2, 3))
            image.save()
        text = path.read_text(encoding="latin-1").upper()
        self.assertIn("VDCEXT", text)
        again = CgmFile.load(str(path))
        self.assertEqual(again.encoding, CgmFileFormat.CLEAR_TEXT)
        self.assertEqual(next(c for c in again.commands if isinstance(c, VdcExtent)).second_corner.x, 420.0)
        self.assertEqual(next(c for c in again.commands if isinstance(c, LineColour)).color.color.b, 3)

    def test_readers_and_writers_go_command_by_command(self) -> None:
        binary = io.BytesIO()
        writer = DefaultBinaryWriter(binary)
        for command in CgmFile.load(str(VALVE)).commands:
            writer.write_command(command)
        binary.seek(0)
        reader = READING.DefaultBinaryReader(binary)
        read: list[Command] = []
        while (command := reader.read_command()) is not None:
            read.append(command)
        self.assertEqual([type(c) for c in read], [type(c) for c in CgmFile.load(str(VALVE)).commands])
        self.assertTrue(isinstance(reader.command_factory, READING.ICommandFactory))
        line = bytes.fromhex("4028 0001 0002 0003 0004")
        picture = bytes.fromhex("0022 0174") + line + bytes.fromhex("0040")
        with READING.DefaultBinaryReader(io.BytesIO(picture)) as short:
            self.assertEqual(short.read_command().identifier, "t")
            command = short.read_command()
            self.assertEqual((type(short.read_command()), short.read_command()), (EndMetafile, None))
        for kind, expected in ((DefaultBinaryWriter, line), (DefaultClearTextWriter, b"LINE (1,2) (3,4);\n")):
            stream = io.BytesIO()
            kind(stream).write_command(command)
            self.assertEqual(stream.getvalue(), expected)
        begin = DelimiterElements.create_command(DelimiterElement.BEGIN_PICTURE)
        self.assertEqual((begin.keyword, begin.element_class, begin.element_id),
                         ("BEGPIC", ClassCode.DELIMITER_ELEMENT, 3))

    def test_damage_is_told_with_its_place_or_left_out(self) -> None:
        damaged = VALVE.read_bytes().replace(b"ELLIPSE (85, 124)", b"ELLIPSE (85, nothing)")
        line = damaged[: damaged.index(b"nothing")].count(b"\n") + 1
        with self.assertRaisesRegex(RuntimeError, rf"'valve\.cgm'.*line {line}.*ELLIPSE"):
            cad.Image.load(io.BytesIO(damaged), "valve.cgm", cad.LoadOptions())
        options = cad.LoadOptions()
        options.ignore_errors = True
        with cad.Image.load(io.BytesIO(damaged), "valve.cgm", options) as image:
            messages = CgmImage._cast_to(image).value.file.messages
            self.assertEqual([(m.severity, m.position) for m in messages], [(Severity.ERROR, line)])
            self.assertEqual(len(options.errors), 1)
            self.assertEqual(len(image.get_strings()), 6)

    def test_a_number_that_its_precision_cannot_hold_is_refused_by_place(self) -> None:
        file = CgmFile()
        line = Polyline()
        line.points = [CgmPoint(40_000.0, 0.0)]
        file.commands.extend([BeginMetafile("t"), BeginPicture("p"), BeginPictureBody(), line, EndPicture(),
                              EndMetafile()])
        path = self.folder / "wide.cgm"
        with self.assertRaisesRegex(RuntimeError, r"command 3, LINE \(4, 1\): the number 40000 does not fit"):
            file.save(str(path), CgmFileFormat.BINARY)
        self.assertFalse(path.exists())

    def test_values_of_data_records_have_their_types(self) -> None:
        member = StructuredDataRecord.Member(StructuredDataRecord.StructuredDataType.TEXT, ["a", "b"])
        record = StructuredDataRecord()
        record.members.append(member)
        self.assertEqual((record.members[0].type.name, list(record.members[0].values)), ("TEXT", ["a", "b"]))

    def test_lists_of_commands_refuse_what_is_none(self) -> None:
        with CgmImage() as image:
            with self.assertRaises(TypeError):
                image.file.commands.append(CgmPoint(0.0, 0.0))
            end = next(i for i, c in enumerate(image.file.commands) if isinstance(c, EndPicture))
            image.file.commands.insert(end, Polyline())
            self.assertIsInstance(image.file.commands[end], Polyline)


if __name__ == "__main__":
    unittest.main()
