"""Metafiles as lists of commands."""

from __future__ import annotations

import gzip
import importlib
import io
import unittest

from korvan.cad.fileformats.cgm import CgmFile, CgmFileFormat
from korvan.cad.fileformats.cgm.classes import CgmColor, CgmPoint
from korvan.cad.fileformats.cgm.commands import (
    BeginMetafile,
    BeginPicture,
    BeginPictureBody,
    Command,
    EndMetafile,
    EndPicture,
    LineColour,
    Polyline,
)
from korvan.cad.fileformats.cgm.enums import ClassCode, Severity
from korvan.cad.fileformats.cgm.export import DefaultBinaryWriter, DefaultClearTextWriter

DefaultBinaryReader = importlib.import_module("korvan.cad.fileformats.cgm.import").DefaultBinaryReader

LINE = bytes.fromhex("4028 0001 0002 0003 0004")
BEGIN, END = bytes.fromhex("0022 0174"), bytes.fromhex("0040")


def line(*points: tuple[float, float]) -> Polyline:
    made = Polyline()
    made.points = [CgmPoint(x, y) for x, y in points]
    return made


def metafile(*commands: Command) -> CgmFile:
    made = CgmFile()
    made.commands.extend([BeginMetafile("t"), BeginPicture("p"), BeginPictureBody(), *commands, EndPicture(), EndMetafile()])
    return made


def saved(file: CgmFile, encoding: CgmFileFormat) -> bytes:
    stream = io.BytesIO()
    file.save(stream, encoding)
    return stream.getvalue()


class MetafileTests(unittest.TestCase):
    def test_commands_come_back_as_their_own_types_from_both_encodings_packed_or_not(self) -> None:
        written = metafile(LineColour(CgmColor(3)), line((1.0, 2.0), (3.0, 4.0)))
        for encoding in (CgmFileFormat.BINARY, CgmFileFormat.CLEAR_TEXT):
            data = saved(written, encoding)
            for content in (data, gzip.compress(data)):
                with self.subTest(encoding, packed=content is not data):
                    read = CgmFile.load(io.BytesIO(content))
                    self.assertEqual((read.encoding, read.name, list(read.picture_names)), (encoding, "t", ["p"]))
                    self.assertEqual([type(one) for one in read.commands], [type(one) for one in written.commands])
                    self.assertEqual(read.commands[3].color.index, 3)
                    self.assertEqual([(at.x, at.y) for at in read.commands[4].points], [(1.0, 2.0), (3.0, 4.0)])

    def test_single_commands_are_read_and_written(self) -> None:
        with DefaultBinaryReader(io.BytesIO(BEGIN + LINE + END)) as reader:
            self.assertEqual(reader.read_command().identifier, "t")
            read = reader.read_command()
            self.assertEqual((read.keyword, read.element_class), ("LINE", ClassCode.GRAPHICAL_PRIMITIVE_ELEMENT))
            self.assertIsInstance(reader.read_command(), EndMetafile)
            self.assertIsNone(reader.read_command())
        for writer, expected in ((DefaultBinaryWriter, LINE), (DefaultClearTextWriter, b"LINE (1,2) (3,4);\n")):
            stream = io.BytesIO()
            writer(stream).write_command(read)
            self.assertEqual(stream.getvalue(), expected)

    def test_damage_and_what_cannot_be_written_are_told_by_element_and_place(self) -> None:
        damaged = BEGIN + bytes.fromhex("4026 0001 0002 0003") + LINE + END
        with self.assertRaisesRegex(RuntimeError, r"byte 4, LINE \(4, 1\)"):
            CgmFile.load(io.BytesIO(damaged))
        file = CgmFile.load(io.BytesIO(damaged), True)
        self.assertEqual([(one.severity, one.position) for one in file.messages], [(Severity.ERROR, 4)])
        self.assertEqual(len(file.commands), 3)
        with self.assertRaisesRegex(RuntimeError, r"command 3, LINE \(4, 1\): the number 40000 does not fit"):
            saved(metafile(line((40_000.0, 0.0))), CgmFileFormat.BINARY)


if __name__ == "__main__":
    unittest.main()
