"""Pictures from Python: loading, pixels, changes, metadata, and drawings saved as pictures."""

from __future__ import annotations

import io
import math
import subprocess
import tempfile
import unittest
from pathlib import Path
from typing import BinaryIO

from drawings import EXAMPLES
from korvan import cad
from korvan.cad.exif import JpegExifData
from korvan.cad.exif.enums import ExifOrientation
from korvan.cad.fileformats.bitmap import BitmapImage
from korvan.cad.fileformats.bmp import BitmapCompression
from korvan.cad.fileformats.jpeg import JpegCompressionMode
from korvan.cad.fileformats.tiff import TiffRational
from korvan.cad.fileformats.tiff.enums import TiffCompressions, TiffExpectedFormat
from korvan.cad.imageoptions import (
    BmpOptions,
    CadRasterizationOptions,
    DicomOptions,
    GifOptions,
    ImageOptionsBase,
    Jpeg2000Options,
    JpegOptions,
    MultiPageOptions,
    PngOptions,
    PsdOptions,
    TiffOptions,
    TiffOptionsError,
    WebPOptions,
)

PLAN = str(EXAMPLES / "floor_plan.dxf")
DC = "http://purl.org/dc/elements/1.1/"


def page(options: ImageOptionsBase, width: float = 300.0) -> ImageOptionsBase:
    raster = CadRasterizationOptions()
    raster.page_width = width
    options.vector_rasterization_options = raster
    return options


def drawn(options: ImageOptionsBase, width: float = 300.0) -> io.BytesIO:
    target = io.BytesIO()
    with cad.Image.load(PLAN) as plan:
        plan.save(target, page(options, width))
    target.seek(0)
    return target


def load(source: BinaryIO) -> cad.RasterImage:
    return cad.RasterImage._cast_to(cad.Image.load(source)).value


class Drawings(unittest.TestCase):
    def test_every_format_of_pictures_takes_a_drawing(self) -> None:
        reference = list(load(drawn(PngOptions())).load_argb_32_pixels(cad.Rectangle(0, 0, 300, 100)))
        exact = {BmpOptions, Jpeg2000Options, WebPOptions, PsdOptions, TiffOptions, DicomOptions}
        for options in exact | {JpegOptions, GifOptions}:
            with self.subTest(options.__name__):
                image = load(drawn(options()))
                self.assertEqual(image.file_format, options().target_format)
                pixels = list(image.load_argb_32_pixels(cad.Rectangle(0, 0, 300, 100)))
                if options in exact:
                    self.assertEqual(pixels, reference)
                else:
                    apart = [abs((p & 255) - (q & 255)) for p, q in zip(pixels, reference, strict=True)]
                    self.assertLess(sum(apart) / len(apart), 3)

    def test_pages_of_a_tiff_are_layouts(self) -> None:
        options = TiffOptions(TiffExpectedFormat.TIFF_CCITT_FAX4)
        options.multi_page_options = MultiPageOptions()
        options.multi_page_options.page_titles = ["Model"]
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder, "plan.tif")
            path.write_bytes(drawn(options).getvalue())
            info = subprocess.run(["tiffinfo", path], capture_output=True, text=True, check=True).stdout
        self.assertIn("CCITT Group 4", info)
        self.assertIn("PageName: Model", info)
        options.compression = TiffCompressions.JPEG
        self.assertEqual(options.validate(), TiffOptionsError.COMPRESSION_NEEDS_FULL_SAMPLES)
        with self.assertRaisesRegex(RuntimeError, "COMPRESSION_NEEDS_FULL_SAMPLES"):
            drawn(options)

    def test_options_say_how_a_format_stores(self) -> None:
        small, large = JpegOptions(), JpegOptions()
        small.quality = 20
        small.compression_type = JpegCompressionMode.PROGRESSIVE
        self.assertLess(len(drawn(small).getvalue()) * 2, len(drawn(large).getvalue()))
        with self.assertRaisesRegex(RuntimeError, "ArgumentOutOfRangeException"):
            small.quality = 101
        bitmap = BmpOptions()
        bitmap.bits_per_pixel = 8
        bitmap.compression = BitmapCompression.RLE8
        source = drawn(bitmap)
        image = cad.Image.load(source)
        self.assertTrue(BitmapImage._is_assignable(image))
        self.assertEqual(BitmapCompression.DXT1, 0x31545844)
        self.assertLessEqual(image.palette.entries_count, 256)


class Pixels(unittest.TestCase):
    def setUp(self) -> None:
        self.image = load(drawn(PngOptions()))

    def test_a_picture_is_no_drawing_and_cannot_be_constructed(self) -> None:
        with self.assertRaisesRegex(TypeError, "type has no available constructor"):
            BitmapImage()
        image = cad.Image.load(drawn(JpegOptions()))
        self.assertTrue(cad.RasterCachedImage._is_assignable(image))
        self.assertFalse(cad.fileformats.cad.CadImage._is_assignable(image))

    def test_blocks_cross_as_lists_and_bytes(self) -> None:
        block = cad.Rectangle(10, 10, 4, 2)
        self.image.save_argb_32_pixels(block, [-1, -16777216] * 4)
        self.assertEqual(list(self.image.load_argb_32_pixels(block)), [-1, -16777216] * 4)
        settings = cad.RawDataSettings(cad.PixelDataFormat.rgb_24_bpp, 4)
        self.assertEqual(bytes(self.image.load_raw_data(block, settings)), b"\xff\xff\xff\0\0\0" * 4)
        self.image.save_raw_data(bytes(24), block, settings)
        self.assertEqual(self.image.get_pixel(10, 10), cad.Color.black)
        self.image.set_pixel(0, 0, cad.Color.tomato)
        self.assertEqual(self.image.get_argb_32_pixel(0, 0) & 0xFFFFFFFF, 0xFFFF6347)
        with self.assertRaisesRegex(RuntimeError, "does not lie in an image of 300"):
            self.image.get_pixel(300, 0)

    def test_changes_of_size_and_colour(self) -> None:
        height = self.image.height
        self.image.rotate_flip(cad.RotateFlipType.ROTATE_90_FLIP_NONE)
        self.assertEqual((self.image.width, self.image.height), (height, 300))
        self.image.resize(50, 60, cad.ResizeType.LANCZOS)
        self.image.crop(5, 5, 10, 10)
        self.assertEqual((self.image.width, self.image.height), (40, 40))
        self.image.dither(cad.DitheringMethod.FLOYD_STEINBERG, 1)
        everything = list(self.image.load_argb_32_pixels(self.image.bounds))
        self.assertLessEqual(set(everything), {-1, -16777216})
        palette = cad.ColorPaletteHelper.get_close_image_palette(self.image, 16)
        self.assertEqual(palette.entries_count, len(set(everything)))

    def test_processors_of_the_library_change_a_picture(self) -> None:
        key = cad.TransparencySupporter()
        key.transparent_color = cad.Color.white
        self.assertFalse(self.image.has_alpha)
        self.image.apply_processor(key)
        self.assertTrue(self.image.has_alpha)
        cad.AdaptiveBinarizer(9, 0.1).process(self.image)
        self.assertFalse(self.image.has_alpha)


class Settings(unittest.TestCase):
    def tearDown(self) -> None:
        cad.Cache.set_defaults()

    def test_the_cache_is_set_by_its_setters(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            cad.Cache.set_cache_folder(folder)
            cad.Cache.set_cache_type(cad.CacheType.CACHE_ON_DISK_ONLY)
            self.assertEqual(cad.Cache.cache_folder, folder)
            before = cad.Cache.allocated_disk_bytes_count
            image = load(drawn(PngOptions()))
            self.assertEqual(cad.Cache.allocated_disk_bytes_count - before, 300 * image.height * 4)
            pixels = drawn(PngOptions())
            cad.Cache.set_max_disk_space_for_cache(1)
            with self.assertRaisesRegex(RuntimeError, "LimitMemoryException"):
                load(pixels)
            with self.assertRaisesRegex(RuntimeError, "ImageSaveException.*MaxDiskSpaceForCache"):
                drawn(PngOptions())
        with self.assertRaises(TypeError):
            cad.Cache.set_cache_type(1)
        with self.assertRaisesRegex(TypeError, "type has no available constructor"):
            cad.Cache()


class Surface(unittest.TestCase):
    """What Python sees: types of results, enums, wrong arguments and streams."""

    def setUp(self) -> None:
        self.image = load(drawn(PngOptions(), 60.0))

    def test_results_have_the_types_of_their_declarations(self) -> None:
        image = self.image
        expected = (
            (image.width, int), (image.horizontal_resolution, float), (image.has_alpha, bool), (image.page_count, int),
            (image.page_title, str), (image.file_format, cad.FileFormat), (image.bounds, cad.Rectangle),
            (image.get_pixel(0, 0), cad.Color), (image.get_argb_32_pixel(0, 0), int),
            (image.raw_data_settings, cad.RawDataSettings),
        )
        for value, kind in expected:
            self.assertIsInstance(value, kind)
        self.assertIsNone(image.exif_data)
        self.assertIsNone(image.xmp_data)
        self.assertEqual([type(pixel) for pixel in image.load_pixels(cad.Rectangle(0, 0, 2, 1))], [cad.Color] * 2)
        self.assertEqual(image.raw_data_settings.pixel_data_format, cad.PixelDataFormat.rgb_32_bpp)
        self.assertEqual(list(cad.PixelDataFormat.rgb_16_bpp565.channel_bits), [5, 6, 5])

    def test_wrong_arguments_change_nothing(self) -> None:
        image, block = self.image, cad.Rectangle(0, 0, 2, 2)
        before = list(image.load_argb_32_pixels(image.bounds))
        wrong_types = (
            lambda: image.get_pixel("0", 0), lambda: image.get_pixel(0), lambda: image.get_pixel(0.5, 0),
            lambda: image.set_pixel(0, 0, "red"), lambda: image.rotate_flip("up"),
            lambda: image.load_raw_data(block, None, 1), lambda: image.resize(5, 5, "lanczos"),
            lambda: image.filter(3, None),
        )
        for number, call in enumerate(wrong_types):
            with self.subTest(number), self.assertRaises(TypeError):
                call()
        wrong_values = (
            (lambda: image.save_argb_32_pixels(block, [0] * 3), "4|2 × 2"),
            (lambda: image.get_pixel(-1, 0), "does not lie"),
            (lambda: image.resize(0, 5), "no area"), (lambda: image.crop(cad.Rectangle(50, 0, 20, 1)), "does not lie"),
            (lambda: image.get_page(1), "1 pages"), (lambda: image.set_resolution(0.0, 1.0), "ArgumentOutOfRange"),
            (lambda: image.adjust_gamma(-1.0), "above 0"), (lambda: image.filter(cad.ImageFilterType.BOX, 4), "odd"),
            (lambda: image.save_raw_data(b"123", block, cad.RawDataSettings(cad.PixelDataFormat.rgb_24_bpp, 2)),
             "need 12"),
            (lambda: image.save_argb_32_pixels(block, ["a"] * 4), "TypeError: integer argument expected"),
            (lambda: image.dither(cad.DitheringMethod.ORDERED, 9), "1 to 8"),
        )
        for number, (call, why) in enumerate(wrong_values):
            with self.subTest(number), self.assertRaisesRegex(RuntimeError, why):
                call()
        with self.assertRaises((OverflowError, TypeError)):
            image.get_pixel(1 << 40, 0)
        self.assertEqual(list(image.load_argb_32_pixels(image.bounds)), before)

    def test_turns_are_permutations_whose_names_agree(self) -> None:
        kind = cad.RotateFlipType
        self.assertEqual(kind.ROTATE_180_FLIP_X, kind.ROTATE_NONE_FLIP_Y)
        self.image.resize(4, 3, cad.ResizeType.NEAREST_NEIGHBOUR)
        self.image.save_argb_32_pixels(self.image.bounds, list(range(12)))
        order = ((kind.ROTATE_90_FLIP_NONE, [8, 4, 0, 9, 5, 1, 10, 6, 2, 11, 7, 3]),
                 (kind.ROTATE_90_FLIP_NONE, list(range(11, -1, -1))),
                 (kind.ROTATE_NONE_FLIP_X, [8, 9, 10, 11, 4, 5, 6, 7, 0, 1, 2, 3]),
                 (kind.ROTATE_NONE_FLIP_Y, list(range(12))))
        for turn, expected in order:
            self.image.rotate_flip(turn)
            self.assertEqual(list(self.image.load_argb_32_pixels(self.image.bounds)), expected)

    def test_pictures_go_through_streams_of_python(self) -> None:
        expected = list(self.image.load_argb_32_pixels(self.image.bounds))
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder, "picture.any")
            for options in (PngOptions(), TiffOptions(), BmpOptions(), WebPOptions(), PsdOptions(), DicomOptions()):
                with self.subTest(type(options).__name__):
                    with path.open("wb") as file:
                        self.image.save(file, options)
                    with path.open("rb") as file:
                        self.assertEqual(list(load(file).load_argb_32_pixels(self.image.bounds)), expected)
                    self.assertEqual(cad.Image.get_file_format(str(path)), options.target_format)
                    self.assertTrue(cad.Image.can_load(str(path)))
            path.write_bytes(b"BM" + bytes(60))
            with self.assertRaisesRegex(RuntimeError, r"BmpImageException.*picture\.any"):
                cad.Image.load(str(path))
        with self.assertRaises(TypeError):
            cad.Image.load(io.StringIO("BM"))

    def test_pixels_of_a_closed_picture_are_gone(self) -> None:
        with self.image as image:
            image.grayscale()
        for call in (lambda: image.get_pixel(0, 0), image.grayscale,
                     lambda: image.load_pixels(cad.Rectangle(0, 0, 1, 1))):
            with self.assertRaisesRegex(RuntimeError, "ObjectDisposedException"):
                call()

    def test_fields_of_a_camera_hold_values_of_python(self) -> None:
        exif = JpegExifData()
        self.assertIsNone(exif.exposure_time)
        self.assertTrue(math.isnan(exif.gps_latitude))
        exif.exposure_time = TiffRational(1, 4_000_000_000)
        exif.gps_latitude = -89.9999999999
        exif.thumbnail_data = b"\xff\xd8\xff\xd9"
        exif.orientation = ExifOrientation.LEFT_BOTTOM
        back = JpegExifData(bytes(exif.serialize_data()))
        self.assertEqual((back.exposure_time.numerator, back.exposure_time.denominator), (1, 4_000_000_000))
        self.assertAlmostEqual(back.gps_latitude, -90, 6)
        self.assertEqual((bytes(back.thumbnail_data), back.orientation),
                         (b"\xff\xd8\xff\xd9", ExifOrientation.LEFT_BOTTOM))
        with self.assertRaisesRegex(RuntimeError, "JpegException"):
            exif.thumbnail_data = b"none"
        with self.assertRaises(TypeError):
            exif.make = 5
        with self.assertRaisesRegex(RuntimeError, "TiffImageException"):
            JpegExifData(b"II*")


class Metadata(unittest.TestCase):
    def test_exif_and_xmp_go_with_a_jpeg(self) -> None:
        options = JpegOptions()
        options.exif_data = JpegExifData()
        options.exif_data.make = "Korvan"
        options.exif_data.gps_longitude = 13.4
        options.xmp_data = cad.XmpPacketWrapper()
        options.xmp_data.set_localized_text(DC, "title", "Grundriß")
        image = load(drawn(options))
        self.assertEqual(image.xmp_data.get_value(DC, "title"), "Grundriß")
        self.assertIsNone(image.xmp_data.get_value(DC, "subject"))
        exif = image.exif_data
        self.assertEqual((exif.make, round(exif.gps_longitude, 6)), ("Korvan", 13.4))
        with self.assertRaisesRegex(RuntimeError, "XmpException"):
            cad.XmpPacketWrapper("<unfinished")

    def test_damage_is_an_error_with_its_cause(self) -> None:
        for options, error in ((JpegOptions(), "JpegException"), (PngOptions(), "PngImageException"),
                               (TiffOptions(), "TiffImageException"), (GifOptions(), "GifImageException")):
            data = drawn(options).getvalue()
            with self.subTest(error), self.assertRaisesRegex(RuntimeError, rf"Proxy error\({error}\)"):
                cad.Image.load(io.BytesIO(data[: len(data) // 2]))


if __name__ == "__main__":
    unittest.main()
