"""Reads metafiles of the binary encoding (ISO/IEC 8632-3) as far as drawings need it, and shows them as SVG."""

from __future__ import annotations

import base64
import struct
from collections.abc import Iterator
from html import escape

LINE, RESTRICTED_TEXT, POLYGON_SET, CELL_ARRAY = (4, 1), (4, 5), (4, 8), (4, 9)
VDC_EXTENT, LINE_WIDTH, LINE_COLOR, TEXT_COLOR, FILL_COLOR = (2, 6), (5, 3), (5, 4), (5, 14), (5, 23)
HEIGHT, ORIENTATION, CLIP_RECTANGLE, CLIP = (5, 15), (5, 16), (3, 5), (3, 6)


def elements(data: bytes) -> list[tuple[tuple[int, int], bytes]]:
    """Class, number and parameters of each element."""
    found, at = [], 0
    while at + 2 <= len(data):
        (header,) = struct.unpack_from(">H", data, at)
        at += 2
        body, length, more = b"", header & 31, False
        if length == 31:
            more = True
        while True:
            if more:
                (word,) = struct.unpack_from(">H", data, at)
                at += 2
                length, more = word & 0x7FFF, bool(word & 0x8000)
            body += data[at : at + length]
            at += length + length % 2
            if not more:
                break
        found.append(((header >> 12, header >> 5 & 127), body))
    return found


def words(body: bytes) -> tuple[int, ...]:
    return struct.unpack(f">{len(body) // 2}h", body[: len(body) // 2 * 2])


def to_svg(data: bytes) -> str:
    """The picture; a text is set to the width that it is restricted to."""
    out, height, clips = [], 0, 0
    state: dict[tuple[int, int], str | tuple[int, ...]] = {CLIP: ""}
    for kind, body in elements(data):
        if kind == VDC_EXTENT:
            _, _, width, height = words(body)
            out.append(f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width} {height}">')
        elif kind in (LINE_COLOR, TEXT_COLOR, FILL_COLOR):
            state[kind] = f"#{body.hex()}"
        elif kind in (LINE_WIDTH, HEIGHT, ORIENTATION):
            state[kind] = words(body)
        elif kind == CLIP_RECTANGLE:
            x0, y0, x1, y1 = words(body)
            clips += 1
            out.append(f'<clipPath id="c{clips}"><path d="M{x0} {height - y0}H{x1}V{height - y1}H{x0}Z"/></clipPath>')
        elif kind == CLIP:
            state[CLIP] = f' clip-path="url(#c{clips})"' if words(body)[0] else ""
        elif kind == LINE:
            numbers = words(body)
            points = " ".join(f"{x},{height - y}" for x, y in zip(numbers[::2], numbers[1::2], strict=True))
            out.append(f'<polyline points="{points}" fill="none" stroke="{state[LINE_COLOR]}" '
                       f'stroke-width="{state[LINE_WIDTH][0]}"{state[CLIP]}/>')
        elif kind == POLYGON_SET:
            numbers, path, verb = words(body), "", "M"
            for x, y, flag in zip(numbers[::3], numbers[1::3], numbers[2::3], strict=True):
                path += f"{verb}{x} {height - y}" + ("Z" if flag >= 2 else "")
                verb = "M" if flag >= 2 else "L"
            out.append(f'<path d="{path}" fill="{state[FILL_COLOR]}" fill-rule="evenodd"{state[CLIP]}/>')
        elif kind == RESTRICTED_TEXT:
            wide, _, x, y, _ = words(body[:10])
            text = body[11 : 11 + body[10]].decode("latin-1")
            ux, uy, bx, by = (n / 10_000 for n in state[ORIENTATION])
            out.append(f'<text transform="matrix({bx} {-by} {-ux} {uy} {x} {height - y})" textLength="{wide}" '
                       f'lengthAdjust="spacingAndGlyphs" font-family="Liberation Sans" '
                       f'font-size="{state[HEIGHT][0] / 0.7}" fill="{state[TEXT_COLOR]}"{state[CLIP]}>'
                       f'{escape(text)}</text>')
        elif kind == CELL_ARRAY:
            out.append(picture(body, height))
    return "\n".join(out) + "</svg>"


def runs(body: bytes, wide: int, high: int) -> Iterator[bytes]:
    """Lines of cells that are told by counts and colours; each begins at an even byte."""
    at = 0
    for _ in range(high):
        row = b""
        while len(row) < wide * 3:
            row += body[at + 2 : at + 5] * int.from_bytes(body[at : at + 2], "big")
            at += 5
        yield row
        at += at % 2


def picture(body: bytes, page: int) -> str:
    """A cell array that stands upright, as a bitmap."""
    x0, y0, x1, y1, _, _, wide, high, _, packed = words(body[:20])
    stride = wide * 3 + wide % 2
    rows = ([body[20 + y * stride : 20 + y * stride + wide * 3] for y in range(high)] if packed
            else list(runs(body[20:], wide, high)))
    pixels = b"".join(b"".join(row[i : i + 3][::-1] for i in range(0, len(row), 3)) + bytes(-wide * 3 % 4)
                      for row in reversed(rows))
    header = struct.pack("<2sIHHIIiiHHIIiiII", b"BM", 54 + len(pixels), 0, 0, 54, 40, wide, high, 1, 24, 0, len(pixels),
                         0, 0, 0, 0)
    return (f'<image x="{x0}" y="{page - y0}" width="{x1 - x0}" height="{y0 - y1}" preserveAspectRatio="none" '
            f'href="data:image/bmp;base64,{base64.b64encode(header + pixels).decode()}"/>')
