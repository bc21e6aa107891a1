"""Small files of every format that is read, from which fuzz tests start: small ones cost little and miss little."""

from __future__ import annotations

import io
import zipfile
from collections.abc import Iterator
from pathlib import Path

import hostile_files as hostile
from korvan import cad
from korvan.cad import imageoptions
from korvan.cad.fileformats import bmp, jpeg, jpeg2000, png, psd, tiff
from korvan.cad.fileformats.cad.cadconsts import CadAcadVersion
from korvan.cad.fileformats.cgm import CgmFileFormat

ROOT = Path(__file__).resolve().parents[2]
EXAMPLES = ROOT / "examples" / "drawings"
MAX_ENTITY = 6_000  # characters
SIDE = 24.0  # pixels
RELEASES = (CadAcadVersion.AC1015, CadAcadVersion.AC1018, CadAcadVersion.AC1024, CadAcadVersion.AC1032)

# Values of the options that lead to another way through a decoder.
VARIANTS: dict[str, list[dict[str, object]]] = {
    "png": [{"color_type": kind} for kind in (
        png.PngColorType.GRAYSCALE, png.PngColorType.INDEXED_COLOR, png.PngColorType.TRUECOLOR_WITH_ALPHA)],
    "jpg": [{}, {"compression_type": jpeg.JpegCompressionMode.PROGRESSIVE},
            {"color_type": jpeg.JpegCompressionColorMode.YCCK},
            {"color_type": jpeg.JpegCompressionColorMode.GRAYSCALE}],
    "tif": [{"compression": kind} for kind in (
        tiff.enums.TiffCompressions.NONE, tiff.enums.TiffCompressions.LZW, tiff.enums.TiffCompressions.JPEG)] + [
            {"photometric": tiff.enums.TiffPhotometrics.MIN_IS_WHITE, "bits_per_sample": [1],
             "compression": tiff.enums.TiffCompressions.CCITT_FAX4}],
    "bmp": [{}, {"bits_per_pixel": 8, "compression": bmp.BitmapCompression.RLE8}, {"bits_per_pixel": 1}],
    "gif": [{}, {"interlaced": True}],
    "webp": [{"lossless": True}, {"lossless": False}],
    "jp2": [{}, {"irreversible": True}, {"codec": jpeg2000.Jpeg2000Codec.J2K}],
    "psd": [{}, {"compression_method": psd.CompressionMethod.RAW}],

    "dcm": [{}],
    "cgm": [{"encoding": CgmFileFormat.BINARY}, {"encoding": CgmFileFormat.CLEAR_TEXT}],
}
OPTIONS = {"jpg": "Jpeg", "tif": "Tiff", "webp": "WebP", "jp2": "Jpeg2000", "dcm": "Dicom"}


def objects_of(drawing: str) -> Iterator[tuple[str, str, str]]:
    """Section, name and text of the objects of a drawing, with what belongs to them."""
    lines = [line.strip() for line in drawing.splitlines()]
    section, name, text = "", "", ""
    for code, value in zip(lines[::2], lines[1::2], strict=False):
        if code == "2" and name == "SECTION":
            section = value
        if code == "0" and not (value in ("VERTEX", "SEQEND", "ATTRIB") or (name == "BLOCK" and value != "BLOCK")):
            yield section, name, text
            name, text = value, ""
        if code == "0" and name == "BLOCK" and value == "ENDBLK":
            yield section, name, text + "0\nENDBLK\n"
            name, text = "", ""
            continue
        text += f"{code}\n{value}\n"
    yield section, name, text


def small_drawings(drawing: str) -> dict[str, bytes]:
    """A drawing for each kind of entity, with the blocks that it refers to."""
    objects = list(objects_of(drawing))
    blocks = {text.split("\n2\n", 1)[1].split("\n", 1)[0]: text for _, name, text in objects
              if name == "BLOCK" and "\n2\n" in text and len(text) < MAX_ENTITY}
    tables = "".join(text for section, name, text in objects if section == "TABLES" and name != "SECTION")
    tables = tables.removesuffix("0\nENDSEC\n") if len(tables) < MAX_ENTITY else ""
    made: dict[str, bytes] = {}
    for section, name, text in sorted(objects, key=lambda one: -len(one[2])):
        if section == "ENTITIES" and name not in ("SECTION", "ENDSEC") and len(text) < MAX_ENTITY:
            own = "".join(block for key, block in blocks.items() if f"\n2\n{key}\n" in text)
            made[name] = hostile.drawing(text, own, tables=tables)
    return made


def own_drawings() -> dict[str, bytes]:
    """Kinds of entities that need more than their numbers to be drawn."""
    return {
        "own_hatch": hostile.drawing(hostile.hatch([hostile.square(0, 0, 9)], hostile.hatch_line(30, 2, 1, -1))),
        "own_mtext": hostile.drawing(hostile.mtext("\\fArial|b1;a\\S1/2;\\P{\\C1;b}\\pi1,l2,t4;c%%c^I")),
        "own_spline": hostile.drawing(hostile.spline(3, 6, "%d")),
        "own_bulge": hostile.bulges(3),
        "own_image": hostile.placed_images("a.png", 1, 8, 8),
        "own_block": hostile.drawing(hostile.insert("A", more="70\n2\n71\n2\n44\n9\n45\n9\n"),
                                     hostile.block("A", hostile.line() + hostile.text("a"))),
    }


def page(options: imageoptions.ImageOptionsBase, side: float = SIDE) -> imageoptions.ImageOptionsBase:
    """The options, with pages of few pixels."""
    options.vector_rasterization_options = imageoptions.CadRasterizationOptions()
    options.vector_rasterization_options.page_width = options.vector_rasterization_options.page_height = side
    return options


def write_images(image: cad.Image, folder: Path) -> None:
    for extension, variants in VARIANTS.items():
        for index, variant in enumerate(variants):
            options = getattr(imageoptions, OPTIONS.get(extension, extension.capitalize()) + "Options")()
            for name, value in variant.items():
                setattr(options, name, value)
            image.save(str(folder / f"seed{index}.{extension}"), page(options))


def write(folder: Path, more: Path | None) -> None:
    """Writes the files into a folder; those of another folder are taken apart likewise."""
    sources = [*EXAMPLES.glob("*.dxf"), *(more.rglob("*.dxf") if more else ())]
    made = own_drawings()
    for source in sources:
        text = source.read_bytes().decode("latin-1")
        made |= {f"{name}_{len(data) // 400}": data for name, data in small_drawings(text).items()}
    load_options = cad.LoadOptions()
    load_options.ignore_errors = True
    for name, data in made.items():
        (folder / f"{name}.dxf").write_bytes(data)
        image = cad.Image.load(io.BytesIO(data), load_options)
        for version in RELEASES[len(data) % 4 :: 4] if name in own_drawings() else (RELEASES[len(data) % 4],):
            options = imageoptions.DwgOptions()
            options.version = version
            image.save(str(folder / f"{name}_{version.name}.dwg"), options)
    write_images(cad.Image.load(str(EXAMPLES / "heating_schematic.dxf")), folder)
    for model in EXAMPLES.glob("*.ifc"):
        with zipfile.ZipFile(folder / f"{model.stem}.ifczip", "w") as archive:
            archive.write(model, model.name)
