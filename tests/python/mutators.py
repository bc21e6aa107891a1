"""Changes to files for fuzz tests."""

from __future__ import annotations

import random
import re
import struct
import zlib

from hostile_files import PNG_SIGNATURE

NUMBERS = [
    b"0", b"-1", b"1", b"65535", b"-32768", b"2147483647", b"-2147483648", b"4294967295", b"9223372036854775807",
    b"1e308", b"-1e308", b"1e-320", b"NaN", b"1e999", b"", b"abc", b"0x7f",
]
STRINGS = [
    b"]]>", b"<script>alert(1)</script>", b"\\U+0000", b"\\U+FFFE", b"\\U+D800", b"../../etc/passwd", b"/dev/zero",
    b"%n%s", b"\x1b[2J", b"a" * 5000, b"{" * 300, b"=1+1", b"%%d%%<>",
]
TEXT_NUMBER = re.compile(rb"-?\d+(?:\.\d*)?(?:[eE][-+]?\d+)?")


def mutate(data: bytes, others: list[bytes], rnd: random.Random) -> bytes:
    out = bytearray(data)
    for _ in range(rnd.choice([1, 1, 2, 4, 16])):
        rnd.choice(MUTATORS)(out, others, rnd)
        if not out:
            out = bytearray(data)
    changed = bytes(out)
    return with_checksums(changed) if changed.startswith(PNG_SIGNATURE) and rnd.random() < 0.8 else changed


def with_checksums(png: bytes) -> bytes:
    """An image whose chunks have the checksums of what they hold now, so that decoders read it."""
    out, at = bytearray(png), len(PNG_SIGNATURE)
    while at + 12 <= len(out):
        end = at + 8 + struct.unpack_from(">I", out, at)[0]
        if end + 4 > len(out):
            break
        struct.pack_into(">I", out, end, zlib.crc32(out[at + 4 : end]))
        at = end + 4
    return bytes(out)


def flip(out: bytearray, _: list[bytes], rnd: random.Random) -> None:
    out[rnd.randrange(len(out))] ^= 1 << rnd.randrange(8)


def put(out: bytearray, _: list[bytes], rnd: random.Random) -> None:
    size = rnd.choice([1, 2, 4, 8])
    value = rnd.choice([0, 1, -1, 1 << (8 * size - 1), rnd.getrandbits(8 * size)]) % (1 << 8 * size)
    at = rnd.randrange(len(out))
    out[at : at + size] = value.to_bytes(size, rnd.choice(["little", "big"]))[: len(out) - at]


def delete(out: bytearray, _: list[bytes], rnd: random.Random) -> None:
    at = rnd.randrange(len(out))
    del out[at : at + rnd.choice([1, 4, 64, 1024])]


def repeat(out: bytearray, _: list[bytes], rnd: random.Random) -> None:
    at = rnd.randrange(len(out))
    out[at:at] = bytes(out[at : at + rnd.choice([1, 16, 256])]) * rnd.choice([1, 8, 100])


def cross(out: bytearray, others: list[bytes], rnd: random.Random) -> None:
    other = rnd.choice(others)
    at = rnd.randrange(len(other))
    place = rnd.randrange(len(out))
    out[place : place + rnd.choice([0, 64])] = other[at : at + rnd.choice([4, 64, 1024])]


def number(out: bytearray, _: list[bytes], rnd: random.Random) -> None:
    at = rnd.randrange(len(out))
    found = TEXT_NUMBER.search(out, at, at + 4096)
    if found:
        out[found.start() : found.end()] = rnd.choice(NUMBERS)


def string(out: bytearray, _: list[bytes], rnd: random.Random) -> None:
    at = rnd.randrange(len(out))
    end = min((e for e in (out.find(mark, at) for mark in (b"\n", b"'", b'"', b";")) if e >= 0), default=at)
    out[at : min(end, at + 64)] = rnd.choice(STRINGS)


def swap_lines(out: bytearray, _: list[bytes], rnd: random.Random) -> None:
    lines = bytes(out).split(b"\n")
    a, b = rnd.randrange(len(lines)), rnd.randrange(len(lines))
    lines[a : a + 2], lines[b : b + 2] = lines[b : b + 2], lines[a : a + 2]
    out[:] = b"\n".join(lines)


MUTATORS = [flip, flip, put, put, delete, repeat, cross, number, number, number, string, swap_lines]
