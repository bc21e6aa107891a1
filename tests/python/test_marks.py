"""What is put into drawings beside their entities: watermarks and annotations; and sequences for letters."""

from __future__ import annotations

import io
import itertools
import unittest

from korvan import cad
from korvan.cad import CodePages, MifCodePages
from korvan.cad.annotations import AnnotationDirection, AnnotationEntityBuilder
from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cad.cadobjects import CadCircle, CadText
from korvan.cad.primitives import Point3D
from korvan.cad.timeprovision import TimeProvisionType
from korvan.cad.watermarkguard import WatermarkingStatus

FOUND, VALID, DIFFERS, WRONG, DAMAGED = (
    getattr(WatermarkingStatus, name) for name in ("FOUND", "VALID", "TEXT_DIFFERS", "WRONG_PASSWORD", "DAMAGED"))


def reloaded(drawing: CadImage) -> CadImage:
    content = io.BytesIO()
    drawing.save(content)
    content.seek(0)
    return CadImage._cast_to(cad.Image.load(content)).value


class Watermarks(unittest.TestCase):
    def marked(self, text: str = "mine", password: str = "secret") -> CadImage:
        drawing = CadImage()
        drawing.watermark_guard_service.embed(text, password)
        return drawing

    @staticmethod
    def copies(drawing: CadImage) -> list[object]:
        hosts = (drawing.layers[0], drawing.styles[0], next(iter(drawing.line_types)))
        return [host.xdata_container.find("KORVAN_WATERMARK").data for host in hosts]

    def test_a_changed_digit_anywhere_in_a_copy_is_noticed(self) -> None:
        length = sum(len(tag.value) for tag in self.copies(self.marked())[0])
        for place in range(0, length, 7):
            drawing = self.marked()
            tag, at = self.tag_at(self.copies(drawing)[place % 3], place)
            tag.value = tag.value[:at] + ("0" if tag.value[at] != "0" else "1") + tag.value[at + 1 :]
            again = reloaded(drawing).watermark_guard_service
            self.assertEqual(again.validate("mine", "secret"), FOUND | DAMAGED | VALID, place)

    @staticmethod
    def tag_at(tags: object, place: int) -> tuple[object, int]:
        for tag in tags:
            if place < len(tag.value):
                return tag, place
            place -= len(tag.value)
        raise AssertionError("beyond the copy")

    def test_copies_of_which_all_are_changed_open_to_no_password(self) -> None:
        drawing = self.marked()
        for tags in self.copies(drawing):
            tag, at = self.tag_at(tags, sum(len(one.value) for one in tags) - 1)
            tag.value = tag.value[:at] + ("0" if tag.value[at] != "0" else "1")
        guard = drawing.watermark_guard_service
        self.assertEqual(guard.validate("mine", "secret"), FOUND | WRONG)
        self.assertIsNone(guard.get_text("secret"))

    def test_copies_that_are_lost_cut_or_no_digits_leave_the_others(self) -> None:
        def lose(tags: object) -> None:
            tags.clear()

        def cut(tags: object) -> None:
            tags[0].value = tags[0].value[:10]

        def spoil(tags: object) -> None:
            tags[0].value = "xyz"

        for damage, count in itertools.product((lose, cut, spoil), (1, 2)):
            drawing = self.marked()
            for tags in self.copies(drawing)[:count]:
                damage(tags)
            self.assertEqual(drawing.watermark_guard_service.validate("mine", "secret"), FOUND | DAMAGED | VALID,
                             damage)

    def test_texts_of_all_lengths_come_back_and_tell_nothing(self) -> None:
        for text in ("", "x", "ü" * 500, "x" * 1000, "😀 \0 \n"):
            try:
                drawing = reloaded(self.marked(text))
            except RuntimeError as error:
                self.assertRegex(str(error), "1 to 1000 bytes")
                self.assertEqual(text, "")
                continue
            guard = drawing.watermark_guard_service
            self.assertEqual((guard.get_text("secret"), guard.get_time("secret")), (text, None))
            digits = "".join(tag.value for tag in self.copies(drawing)[0])
            self.assertNotIn(text.encode().hex().upper(), digits if len(text) > 3 else "")
            self.assertEqual(guard.validate(text + "x", "secret"), FOUND | DIFFERS)

    def test_two_marks_of_one_text_are_not_alike_and_the_later_one_counts(self) -> None:
        one, other = self.marked(), self.marked()
        self.assertNotEqual(*([tag.value for tag in self.copies(drawing)[0]] for drawing in (one, other)))
        one.watermark_guard_service.embed("second", "key", TimeProvisionType.UTC)
        again = reloaded(one)
        guard = again.watermark_guard_service
        self.assertEqual(guard.validate("mine", "secret"), FOUND | WRONG)
        self.assertEqual((guard.validate("second", "key"), guard.get_text("key")), (FOUND | VALID, "second"))
        self.assertIsNotNone(guard.get_time("key"))
        self.assertTrue(guard.remove())
        self.assertFalse(guard.remove())
        self.assertEqual(reloaded(again).watermark_guard_service.status, WatermarkingStatus.NONE)


class Annotations(unittest.TestCase):
    def test_all_that_a_builder_sets_comes_back(self) -> None:
        d = AnnotationDirection
        for direction in (d.DEFAULT, d.LEFT, d.RIGHT | d.ABOVE, d.LEFT | d.BELOW, d.ABOVE):
            for text in ("one", "two\nlines", "\\P {b} %%d", "Ж 😀", " spaces "):
                drawing = CadImage()
                note = (AnnotationEntityBuilder(text).set_point(Point3D(3.0, -4.0, 5.0)).set_direction(direction)
                        .set_text_height(2.5).set_distance(7.0).set_color_id(3).build())
                drawing.annotation_service.add(note)
                found, = reloaded(drawing).annotation_service.get_annotations()
                self.assertEqual((found.text, found.point, found.direction, found.unique_id),
                                 (text, Point3D(3.0, -4.0, 5.0), direction, note.unique_id))
                self.assertAlmostEqual(found.text_point.x, note.text_point.x)
                self.assertAlmostEqual(found.text_point.y, note.text_point.y)
                right, above = found.text_point.x > 3.0, found.text_point.y > -4.0
                self.assertFalse(right and d.LEFT in direction or above and d.BELOW in direction)

    def test_many_are_counted_removed_and_cleared_without_other_entities(self) -> None:
        drawing = CadImage()
        drawing.add_entity(CadCircle())
        notes = [AnnotationEntityBuilder(f"n{i}").set_point(Point3D(float(i), 0.0, 0.0)).build() for i in range(5)]
        for note in notes:
            drawing.annotation_service.add(note)
        self.assertEqual(drawing.annotation_service.count, 5)
        self.assertTrue(drawing.annotation_service.remove(notes[2]))
        self.assertFalse(drawing.annotation_service.remove(notes[2]))
        again = reloaded(drawing)
        self.assertEqual([one.text for one in again.annotation_service.get_annotations()], ["n0", "n1", "n3", "n4"])
        again.annotation_service.clear()
        self.assertEqual((again.annotation_service.count, len(reloaded(again).entities)), (0, 1))

    def test_sizes_that_are_none_are_refused(self) -> None:
        for wrong in (0.0, -1.0, float("nan"), float("inf")):
            with self.assertRaises(RuntimeError):
                AnnotationEntityBuilder("x").set_text_height(wrong)
            if wrong != 0.0:
                with self.assertRaises(RuntimeError):
                    AnnotationEntityBuilder("x").set_distance(wrong)


class Sequences(unittest.TestCase):
    PAGES = (("cp932", "JAPANESE", 1), ("cp950", "TRAD_CHINESE", 2), ("cp949", "KOREAN", 3),
             ("cp936", "SIMP_CHINESE", 5))

    def test_letters_of_double_byte_pages_are_those_of_another_decoder(self) -> None:
        for codec, name, digit in self.PAGES:
            known = 0
            for first, second in itertools.product(range(0x81, 0xFF, 5), range(0x40, 0xFF, 11)):
                pair = bytes([first, second])
                try:
                    letter = pair.decode(codec)
                except UnicodeDecodeError:
                    continue
                if len(letter) != 1 or "\ue000" <= letter <= "\uf8ff" or (codec == "cp950" and 0xC6 <= first <= 0xC8):
                    continue  # what makers map each in their own way
                written = f"\\M+{digit}{pair.hex().upper()}"
                for decoder in (cad.MifCodePageDecoder(), cad.MifCodePageDecoder(getattr(MifCodePages, name))):
                    self.assertEqual(decoder.decode(f"a{written}b"), f"a{letter}b", written)
                    known += 1
            self.assertGreater(known, 250, name)

    def test_what_is_no_whole_sequence_stays(self) -> None:
        for text in ("\\M+", "\\M+1", "\\M+182A", "\\M+982A0", "\\M+18GA0", "\\m+182A0", "M+182A0", ""):
            self.assertEqual(cad.MifCodePageDecoder().decode(text), text)

    def test_single_byte_pages_are_those_of_another_encoder(self) -> None:
        helper = cad.CodePagesConvertHelper
        pages = {"GREEK": "cp1253", "CYRILLIC": "cp1251", "TURKISH": "cp1254", "HEBREW": "cp1255", "BALTIC": "cp1257",
                 "ENGLISH": "cp1252"}
        for name, codec in pages.items():
            page = getattr(CodePages, name)
            for code in range(0xA0, 0x100):
                try:
                    letter = bytes([code]).decode(codec)
                except UnicodeDecodeError:
                    continue
                self.assertEqual((bytes(helper.encode(letter, page)), helper.decode(bytes([code]), page)),
                                 (bytes([code]), letter), name)
            self.assertEqual(bytes(helper.encode("漢", page)), b"\\U+6F22")
            self.assertEqual(helper.decode(b"x\\U+6F22\\U+D83D\\U+DE00y", page), "x漢😀y")
        self.assertEqual(helper.decode(b"\\U+6F2 \\U+ \\U+GGGG", CodePages.ENGLISH), "\\U+6F2 \\U+ \\U+GGGG")

    def test_texts_of_all_letters_survive_files_of_any_code_page(self) -> None:
        for text in ("Ж Ω 漢 😀 é", "100%%d", "tab\tend", "^J ^I ^ "):
            drawing = CadImage()
            entity = CadText()
            (entity.default_value, entity.text_height) = (text, 1.0)
            drawing.add_entity(entity)
            found = CadText._cast_to(reloaded(drawing).entities[0]).value.default_value
            self.assertEqual(found, text)


if __name__ == "__main__":
    unittest.main()
