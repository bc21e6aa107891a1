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


def text(content: str, layer: str = "0") -> str:
    return f"0\nTEXT\n8\n{layer}\n10\n0\n20\n40\n40\n5\n1\n{content}\n"


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


def block(name: str, entities: str) -> str:
    return f"0\nBLOCK\n8\n0\n2\n{name}\n70\n0\n10\n0\n20\n0\n3\n{name}\n{entities}0\nENDBLK\n8\n0\n"


def insert(name: str, x: float = 0, more: str = "") -> str:
    return f"0\nINSERT\n8\n0\n2\n{name}\n10\n{x}\n20\n0\n{more}"


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
