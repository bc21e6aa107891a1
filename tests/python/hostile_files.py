"""Small files that ask for much: each maker returns the bytes of one."""

from __future__ import annotations

import io
import struct
import zipfile
import zlib

PNG_SIGNATURE = b"\x89PNG\r\n\x1a\n"


def png_chunk(kind: bytes, data: bytes) -> bytes:
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def png(width: int, height: int, *chunks: bytes) -> bytes:
    """A black image of one bit a pixel, whose rows compress to next to nothing."""
    packer = zlib.compressobj(9)
    row = bytes(1 + (width + 7) // 8)
    pixels = b"".join(packer.compress(row) for _ in range(height)) + packer.flush()
    header = struct.pack(">IIBBBBB", width, height, 1, 0, 0, 0, 0)
    return PNG_SIGNATURE + b"".join(
        (png_chunk(b"IHDR", header), *chunks, png_chunk(b"IDAT", pixels), png_chunk(b"IEND", b""))
    )


def xmp(content: str) -> bytes:
    packet = (
        '<x:xmpmeta xmlns:x="adobe:ns:meta/">'
        '<rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#">'
        f"{content}</rdf:RDF></x:xmpmeta>"
    )
    return png_chunk(b"iTXt", b"XML:com.adobe.xmp\0\0\0\0\0" + packet.encode())


def xmp_title(length: int) -> bytes:
    title = "t" * length
    return xmp(
        '<rdf:Description rdf:about="" xmlns:dc="http://purl.org/dc/elements/1.1/">'
        f"<dc:title>{title}</dc:title></rdf:Description>"
    )


def gif_frames(count: int, side: int = 4000) -> bytes:
    frame = b"," + struct.pack("<HHHHB", 0, 0, 1, 1, 0) + b"\x02\x02\x4c\x01\0"
    return b"GIF89a" + struct.pack("<HHBBB", side, side, 0x80, 0, 0) + bytes(6) + frame * count + b";"


def webp(side: int) -> bytes:
    """A lossless image of one colour: five prefix codes of one symbol (RFC 9649, section 3)."""
    fields = [(0x2F, 8), (side - 1, 14), (side - 1, 14), (0, 1), (0, 3), (0, 1), (0, 1), (0, 1)]
    fields += [(1, 1), (0, 1), (0, 1), (0, 1)] * 5
    value = length = 0
    for field, bits in fields:
        value, length = value | field << length, length + bits
    data = value.to_bytes((length + 7) // 8, "little").ljust(16, b"\0")
    return b"RIFF" + struct.pack("<I", 12 + len(data)) + b"WEBPVP8L" + struct.pack("<I", len(data)) + data


def progressive_jpeg(side: int, comments: int) -> bytes:
    """An image with one scan, of DC coefficients; comments make it as long as its size calls for."""

    def segment(marker: int, data: bytes) -> bytes:
        return bytes([0xFF, marker]) + struct.pack(">H", len(data) + 2) + data

    frame = struct.pack(">BHHB", 8, side, side, 3) + b"\1\x11\0\2\x11\0\3\x11\0"
    tables = segment(0xDB, b"\0" + b"\1" * 64) + segment(0xC4, b"\0\1" + bytes(16))
    scan = segment(0xDA, b"\3\1\0\2\0\3\0\0\0\0") + bytes(1000)
    return (b"\xff\xd8" + segment(0xFE, bytes(65_000)) * comments + tables + segment(0xC2, frame) + scan
            + b"\xff\xd9")


def jpeg2000(side: int, tile: int, block: int) -> bytes:
    """An image of empty tiles; a code block has 2 to the power of a number of samples on a side."""
    size = struct.pack(">HHIIIIIIIIH", 47, 0, side, side, 0, 0, tile, tile, 0, 0, 3) + b"\7\1\1" * 3
    style = struct.pack(">HBBHBBBBBB", 12, 0, 0, 1, 0, 5, block - 2, block - 2, 0, 1)
    steps = struct.pack(">HB", 19, 0x40) + b"\x40" * 16
    count = (-(-side // tile)) ** 2
    tiles = b"".join(b"\xff\x90" + struct.pack(">HHIBB", 10, i, 14, 0, 1) + b"\xff\x93" for i in range(count))
    return b"\xff\x4f\xff\x51" + size + b"\xff\x52" + style + b"\xff\x5c" + steps + tiles + bytes(1000) + b"\xff\xd9"


def tiff(side: int, samples: int, block: int | None = None) -> bytes:
    """An image of 8-bit samples that are zero, in one strip, or in tiles that share their data."""
    stored = block or side
    count = (-(-side // stored)) ** 2
    packer = zlib.compressobj(9)
    row = bytes(stored * samples)
    data = b"".join(packer.compress(row) for _ in range(stored)) + packer.flush()
    tags = [(256, side), (257, side), (258, 8), (259, 8), (262, 2 if samples == 3 else 1), (277, samples)]
    lists = b""
    if count > 1:
        places = 8 + len(data)
        lists = struct.pack("<I", 8) * count + struct.pack("<I", len(data)) * count
        tags += [(322, stored), (323, stored), (324, places), (325, places + 4 * count)]
    else:
        tags += ([(322, stored), (323, stored), (324, 8), (325, len(data))] if block
                 else [(273, 8), (278, side), (279, len(data))])
    entries = b"".join(
        struct.pack("<HHII", tag, 4, count if tag in (324, 325) else 1, value) for tag, value in sorted(tags)
    )
    return (b"II*\0" + struct.pack("<I", 8 + len(data) + len(lists)) + data + lists + struct.pack("<H", len(tags))
            + entries + bytes(4))


def bmp_of_one_run(side: int) -> bytes:
    header = struct.pack("<IiiHHIIiiII", 40, side, side, 1, 8, 1, 0, 0, 0, 256, 0)
    return b"BM" + struct.pack("<IHHI", 1200, 0, 0, 54 + 1024) + header + bytes(1024) + b"\0\1"


def ifczip(length: int) -> bytes:
    archive = io.BytesIO()
    with zipfile.ZipFile(archive, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as packed:
        with packed.open("a.ifc", "w") as model:
            for _ in range(length >> 20):
                model.write(b" " * (1 << 20))
    return archive.getvalue()


def nested_ifcxml(depth: int) -> bytes:
    content = "<a>" * depth + "</a>" * depth
    return (
        '<?xml version="1.0"?>\n<ex:iso_10303_28 xmlns:ex="urn:iso.org:standard:10303:part(28):version(2):xmlschema:'
        'common" version="2.0"><ifc:uos xmlns:ifc="http://www.iai-tech.org/ifcXML/IFC2x3/FINAL" id="uos_1" '
        'configuration="i-ifc2x3" schema="http://www.iai-tech.org/ifcXML/IFC2x3/FINAL">'
        f"{content}</ifc:uos></ex:iso_10303_28>"
    ).encode()


def far_dashes(count: int) -> bytes:
    lines = "LINE (6, 50) (164, 2147483647);\n" * count
    return (
        "BEGMF 'x';\nMFVERSION 1;\nVDCTYPE INTEGER;\nINTEGERPREC -2147483648 2147483647;\n"
        "BEGPIC 'p';\nVDCEXT (0, 0) (210, 210);\nBEGPICBODY;\nLINETYPE 4;\n" + lines + "ENDPIC;\nENDMF;\n"
    ).encode()


def clipped_lines(count: int, triangles: int) -> bytes:
    """Lines inside a region of many triangles."""
    return (
        "BEGMF 'x';\nMFVERSION 2;\nVDCTYPE INTEGER;\nBEGPIC 'p';\nVDCEXT (0, 0) (999, 999);\nBEGPICBODY;\n"
        "BEGPROTREGION 1;\n" + "POLYGON (0,0) (9,9) (9,0);\n" * triangles + "ENDPROTREGION;\nPROTREGION 1 2;\n"
        + "LINE (0,0) (999,999);\n" * count + "ENDPIC;\nENDMF;\n"
    ).encode()


def wide_dashes(corners: int) -> bytes:
    """A polygon with a dashed edge that is nearly as wide as the page."""
    points = " ".join(f"({i * 7919 % 1000},{i * 104729 % 1000})" for i in range(corners))
    return (
        "BEGMF 'x';\nMFVERSION 4;\nVDCTYPE INTEGER;\nBEGPIC 'p';\nVDCEXT (0, 0) (1000, 1000);\nBEGPICBODY;\n"
        f"EDGEVIS ON;\nEDGEWIDTH 900;\nEDGETYPE 3;\nPOLYGON {points};\nENDPIC;\nENDMF;\n"
    ).encode()


def giant_text(length: int) -> bytes:
    return (
        "BEGMF 'x';\nMFVERSION 1;\nVDCTYPE INTEGER;\nINTEGERPREC -2147483648 2147483647;\nBEGPIC 'p';\n"
        "VDCEXT (0, 0) (210, 210);\nBEGPICBODY;\nLINE (0, 0) (9, 9);\nCHARHEIGHT 2000000000;\n"
        "TEXT (0, 0) FINAL '" + "x" * length + "';\nENDPIC;\nENDMF;\n"
    ).encode()


def nested_records(depth: int) -> bytes:
    return (
        "BEGMF 'x';\nMFVERSION 4;\nBEGPIC 'p';\nBEGPICBODY;\nAPSATTR 'a' '" + "1 1 " * depth + "';\nENDPIC;\nENDMF;\n"
    ).encode()


def copied_segments(lines: int, copies: int) -> bytes:
    return (
        "BEGMF 'x';\nMFVERSION 2;\nVDCTYPE INTEGER;\nBEGSEG 1;\n" + "LINE (0,0) (100,100);\n" * lines
        + "ENDSEG;\nBEGPIC 'p';\nVDCEXT (0, 0) (210, 210);\nBEGPICBODY;\n"
        + "COPYSEG 1 1 0 0 1 0 0 YES;\n" * copies + "ENDPIC;\nENDMF;\n"
    ).encode()


def drawing(entities: str = "", blocks: str = "", objects: str = "", header: str = "", tables: str = "") -> bytes:
    def section(name: str, content: str) -> str:
        return f"0\nSECTION\n2\n{name}\n{content}0\nENDSEC\n"

    return (
        section("HEADER", "9\n$ACADVER\n1\nAC1015\n" + header) + section("TABLES", tables)
        + section("BLOCKS", blocks) + section("ENTITIES", entities) + section("OBJECTS", objects) + "0\nEOF\n"
    ).encode("utf-8", "surrogateescape")


def layers(*names: str) -> str:
    rows = "".join(f"0\nLAYER\n2\n{name}\n70\n0\n62\n7\n6\nCONTINUOUS\n" for name in names)
    return f"0\nTABLE\n2\nLAYER\n70\n{len(names)}\n{rows}0\nENDTAB\n"


def line(x: float = 0, y: float = 0, u: float = 100, v: float = 100, layer: str = "0") -> str:
    return f"0\nLINE\n8\n{layer}\n10\n{x}\n20\n{y}\n11\n{u}\n21\n{v}\n"


def face() -> str:
    return "0\n3DFACE\n8\n0\n10\n0\n20\n0\n11\n9\n21\n0\n12\n9\n22\n9\n13\n0\n23\n9\n"


def text(content: str, layer: str = "0", x: float = 0, y: float = 40) -> str:
    return f"0\nTEXT\n8\n{layer}\n10\n{x}\n20\n{y}\n40\n5\n1\n{content}\n"


def mtext(content: str, width: float = 100) -> str:
    pieces = [content[at : at + 250] for at in range(0, len(content), 250)]
    chunks = "".join(f"3\n{piece}\n" for piece in pieces[:-1])
    return f"0\nMTEXT\n8\n0\n10\n0\n20\n0\n40\n2.5\n41\n{width}\n71\n1\n{chunks}1\n{pieces[-1]}\n"


def square(x: float, y: float, side: float, flags: int = 2) -> str:
    corners = "".join(f"10\n{a}\n20\n{b}\n" for a, b in ((x, y), (x + side, y), (x + side, y + side), (x, y + side)))
    return f"92\n{flags}\n72\n0\n73\n1\n93\n4\n{corners}97\n0\n"


def hatch(loops: list[str], *lines: str, style: int = 0) -> str:
    pattern = f"75\n{style}\n76\n1\n52\n0\n41\n1\n77\n0\n78\n{len(lines)}\n{''.join(lines)}98\n0\n"
    return (
        "0\nHATCH\n8\n0\n10\n0\n20\n0\n30\n0\n210\n0\n220\n0\n230\n1\n2\nX\n70\n0\n71\n0\n"
        f"91\n{len(loops)}\n{''.join(loops)}{pattern}"
    )


def shaded(stops: str = "463\n0\n421\n255\n463\n1\n421\n65535\n") -> str:
    """A square that is filled with a gradient between colours."""
    plain = hatch([square(0, 0, 1000)]).replace("2\nX\n70\n0", "2\nSOLID\n70\n1")
    return f"{plain}450\n1\n451\n0\n460\n0.5\n461\n0\n452\n0\n462\n1\n453\n2\n{stops}470\nSPHERICAL\n"


def hatch_line(angle: float, offset: float, *dashes: float) -> str:
    lengths = "".join(f"49\n{dash}\n" for dash in dashes)
    return f"53\n{angle}\n43\n0\n44\n0\n45\n0\n46\n{offset}\n79\n{len(dashes)}\n{lengths}"


def spline(degree: int, points: int, knot: str) -> str:
    """A rational spline; its knots are a format of their number."""
    knots = "".join(f"40\n{knot % i}\n" for i in range(points + degree + 1))
    weights = "".join(f"41\n{1 + i % 7}\n" for i in range(points))
    places = "".join(f"10\n{i * 7919 % 1000}\n20\n{i * 104729 % 1000}\n" for i in range(points))
    return (
        f"0\nSPLINE\n8\n0\n70\n4\n71\n{degree}\n72\n{points + degree + 1}\n73\n{points}\n74\n0\n"
        f"{knots}{weights}{places}"
    )


def solid(*records: str) -> str:
    lines = ["400 10 1 0", "7 unknown 12 ACIS 7.0 NT 24 Mon Jan 01 00:00:00 2001", "1 9.9e-007 1e-010", *records]
    text = "".join(f"1\n{line[:250]}\n" + "".join(f"3\n{line[at:at + 250]}\n" for at in range(250, len(line), 250))
                   for line in lines)
    return f"0\n3DSOLID\n100\nAcDbEntity\n8\n0\n100\nAcDbModelerGeometry\n70\n1\n{text}"


def solid_of_one_loop(faces: int, coedges: int) -> str:
    """Faces of a cone that share a loop whose coedges share an edge."""
    return solid(
        "point $-1 0 0 0 #", "vertex $-1 $-1 $0 #", "ellipse-curve $-1 0 0 0 0 0 1 1 0 0 1 #",
        "edge $-1 $1 $1 $2 forward #", "cone-surface $-1 0 0 0 0 0 1 1 0 0 1 0 1 #", "loop $-1 $6 #",
        *(f"coedge $-1 ${7 + i} $3 #" for i in range(coedges)), *(["face $-1 $5 $4 #"] * faces),
    )


def solid_of_one_spline(edges: int, points: int) -> str:
    knots = " ".join(f"{i} {3 if i in (0, points - 3) else 1}" for i in range(points - 2))
    control = " ".join(f"{i} {i * 7919 % 100} 0" for i in range(points))
    curve = f"intcurve-curve $-1 -1 $-1 forward {{ exactcur nubs 3 open {points - 2} {knots} {control} }} #"
    return solid("point $-1 0 0 0 #", "vertex $-1 $-1 $0 #", curve,
                 *(["edge $-1 $1 0 $1 1 $-1 $2 forward #"] * edges))


def block(name: str, entities: str) -> str:
    return f"0\nBLOCK\n8\n0\n2\n{name}\n70\n0\n10\n0\n20\n0\n3\n{name}\n{entities}0\nENDBLK\n8\n0\n"


def insert(name: str, x: float = 0, more: str = "") -> str:
    return f"0\nINSERT\n8\n0\n2\n{name}\n10\n{x}\n20\n0\n{more}"


CLIPPED = "102\n{ACAD_XDICTIONARY\n360\nD1\n102\n}\n"


def clip(corners: int) -> str:
    """The objects of a clip whose sides cross each other."""
    places = "".join(f"10\n{i * 7919 % 1000}\n20\n{i * 104729 % 1000}\n" for i in range(corners))
    matrix = "40\n1\n40\n0\n40\n0\n40\n0\n40\n0\n40\n1\n40\n0\n40\n0\n40\n0\n40\n0\n40\n1\n40\n0\n"
    return (
        "0\nDICTIONARY\n5\nD1\n100\nAcDbDictionary\n3\nACAD_FILTER\n360\nD2\n"
        "0\nDICTIONARY\n5\nD2\n100\nAcDbDictionary\n3\nSPATIAL\n360\nD3\n"
        f"0\nSPATIAL_FILTER\n5\nD3\n100\nAcDbFilter\n100\nAcDbSpatialFilter\n70\n{corners}\n{places}"
        "210\n0\n220\n0\n230\n1\n11\n0\n21\n0\n31\n0\n71\n1\n72\n0\n73\n0\n" + matrix * 2
    )


def clipped_inserts(count: int, corners: int) -> bytes:
    """References to a block that share a clip."""
    lines = "".join(line(i * 7919 % 1000, i * 31 % 1000, i * 104729 % 1000, 1000) for i in range(200))
    return drawing(insert("A", more=CLIPPED) * count, block("A", lines), clip(corners))


def nested_clips(depth: int, corners: int) -> bytes:
    """Blocks that hold each other, each within a clip."""
    lines = "".join(line(i * 7919 % 1000, i * 31 % 1000, i * 104729 % 1000, 1000) for i in range(50))
    blocks = "".join(block(f"A{i}", lines + insert(f"A{i + 1}", more=CLIPPED)) for i in range(depth))
    return drawing(insert("A0"), blocks + block(f"A{depth}", lines), clip(corners))


def doubling_blocks(depth: int) -> bytes:
    blocks = block("B0", line()) + "".join(
        block(f"B{i}", insert(f"B{i - 1}") + insert(f"B{i - 1}", i)) for i in range(1, depth + 1)
    )
    return drawing(insert(f"B{depth}"), blocks)


def bulges(count: int) -> bytes:
    points = "".join(f"10\n{i * 7919 % 1000}\n20\n{i * 104729 % 1000}\n42\n0.9999\n" for i in range(count))
    return drawing(f"0\nLWPOLYLINE\n8\n0\n90\n{count}\n70\n1\n43\n1\n{points}")


def placed_images(name: str, count: int, width: int, height: int) -> bytes:
    """A drawing that places one image again and again, each time over the whole page."""
    image = (
        "0\nIMAGE\n8\n0\n10\n0\n20\n0\n11\n0.01\n21\n0\n12\n0\n22\n0.01\n"
        f"13\n{width}\n23\n{height}\n340\nA1\n70\n3\n280\n0\n281\n50\n282\n50\n283\n0\n"
    )
    definition = f"0\nIMAGEDEF\n5\nA1\n90\n0\n1\n{name}\n10\n{width}\n20\n{height}\n"
    return drawing(line() + image * count, objects=definition)


def _crc_of(byte: int) -> int:
    for _ in range(8):
        byte = byte >> 1 ^ 0xA001 if byte & 1 else byte >> 1
    return byte


CRC_TABLE = [_crc_of(byte) for byte in range(256)]


def _crc(seed: int, data: bytes) -> int:
    for byte in data:
        seed = seed >> 8 ^ CRC_TABLE[(seed ^ byte) & 0xFF]
    return seed


def _varying(value: int, is_signed: bool = False) -> bytes:
    last = 0x3F if is_signed else 0x7F
    found = b""
    while value > last:
        found += bytes([value & 0x7F | 0x80])
        value >>= 7
    return found + bytes([value])


def dwg_of_one_record(data: bytes, count: int) -> bytes:
    """A drawing database of release 2000 whose object map leads to one of its objects again and again."""
    file = bytearray(data)
    locators = struct.unpack_from("<I", file, 0x15)[0]
    places = {file[0x19 + 9 * i]: 0x19 + 9 * i for i in range(locators)}
    start = struct.unpack_from("<I", file, places[2] + 1)[0]
    known = bytes(file[start + 2 : start + struct.unpack_from(">H", file, start)[0]])
    offset = at = 0
    while at < len(known):
        for mask in (0x7F, 0x3F):  # a handle; then an offset, whose last byte has a sign
            value = shift = 0
            while known[at] >= 0x80:
                value |= (known[at] & 0x7F) << shift
                shift += 7
                at += 1
            value |= (known[at] & mask) << shift
            at += 1
        offset += -value if known[at - 1] & 0x40 else value
    object_map = b""
    for first in range(0, count, 900):
        body = _varying(0x10000 + first) + _varying(offset, True)
        part = struct.pack(">H", len(body) + 1800) + body + b"\1\0" * 899
        object_map += part + struct.pack(">H", _crc(0xC0C1, part))
    object_map += struct.pack(">H", 2) + struct.pack(">H", _crc(0xC0C1, struct.pack(">H", 2)))
    struct.pack_into("<II", file, places[2] + 1, len(file), len(object_map))
    end = 0x19 + 9 * locators
    masks = {3: 0xA598, 4: 0x8101, 5: 0x3CC4, 6: 0x8461}
    struct.pack_into("<H", file, end, _crc(0, bytes(file[:end])) ^ masks[locators])
    return bytes(file) + object_map
