"""Mutated files for all readers and writers: nothing may crash, hang, raise without a name, or take too much.

Starts from the example drawings and from files of every format that is written. A mutant that leads to a message that
was not met before joins the corpus, so that the next ones begin behind it. What fails is kept with its reason; its
smallest form belongs into the tests.
"""

from __future__ import annotations

import argparse
import json
import random
import re
import select
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
WORKER = Path(__file__).with_name("fuzz_worker.py")
EXAMPLES = ROOT / "examples" / "drawings"
MAX_SEED = 300_000
MAX_CORPUS = 4_000
SLOW = 10.0
HANG = 60.0
LIMITS = ("LimitMemoryException",)
MAX_MEGABYTES = 250  # more than the process had before
NUMBERS = [
    b"0", b"-1", b"1", b"65535", b"-32768", b"2147483647", b"-2147483648", b"4294967295", b"9223372036854775807",
    b"1e308", b"-1e308", b"1e-320", b"NaN", b"1e999", b"", b"abc", b"0x7f",
]
STRINGS = [
    b"]]>", b"<script>alert(1)</script>", b"\\U+0000", b"\\U+FFFE", b"\\U+D800", b"../../etc/passwd", b"/dev/zero",
    b"%n%s", b"\x1b[2J", b"a" * 5000, b"{" * 300,
]
TEXT_NUMBER = re.compile(rb"-?\d+(?:\.\d*)?(?:[eE][-+]?\d+)?")


def mutate(data: bytes, others: list[bytes], rnd: random.Random) -> bytes:
    out = bytearray(data)
    for _ in range(rnd.choice([1, 1, 2, 4, 16])):
        rnd.choice(MUTATORS)(out, others, rnd)
        if not out:
            out = bytearray(data)
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


def word(out: bytearray, _: list[bytes], rnd: random.Random) -> None:
    at = rnd.randrange(len(out))
    end = min((e for e in (out.find(mark, at) for mark in (b"\n", b"'", b'"', b";")) if e >= 0), default=at)
    out[at : min(end, at + 64)] = rnd.choice(STRINGS)


def swap_lines(out: bytearray, _: list[bytes], rnd: random.Random) -> None:
    lines = bytes(out).split(b"\n")
    a, b = rnd.randrange(len(lines)), rnd.randrange(len(lines))
    lines[a : a + 2], lines[b : b + 2] = lines[b : b + 2], lines[a : a + 2]
    out[:] = b"\n".join(lines)


MUTATORS = [flip, flip, put, put, delete, repeat, cross, number, number, number, word, swap_lines]


class Worker:
    """A process that converts files, one at a time."""

    def __init__(self) -> None:
        self.process = subprocess.Popen(
            [sys.executable, str(WORKER)], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True
        )

    def convert(self, path: Path, seed: int) -> dict | None:
        """What came of it; None where the process ended or hangs."""
        self.process.stdin.write(json.dumps({"path": str(path), "seed": seed}) + "\n")
        self.process.stdin.flush()
        ready, _, _ = select.select([self.process.stdout], [], [], HANG)
        reply = self.process.stdout.readline() if ready else ""
        return json.loads(reply) if reply else None

    def end(self) -> int:
        self.process.kill()
        return self.process.wait()


def seeds(folder: Path) -> dict[str, list[bytes]]:
    """Files by their extension: examples, and what the library writes of one of them."""
    made = folder / "seeds"
    made.mkdir(parents=True, exist_ok=True)
    if not any(made.iterdir()):
        plan = EXAMPLES / "floor_plan.dxf"
        subprocess.run([sys.executable, str(WORKER), "--seeds", str(plan), str(made)], check=True)
    found: dict[str, list[bytes]] = {}
    for place in (EXAMPLES, made, folder / "corpus"):
        for path in sorted(place.glob("*.*")):
            if path.stat().st_size <= MAX_SEED:
                found.setdefault(path.suffix, []).append(path.read_bytes())
    return found


def reason(reply: dict | None, length: int) -> str | None:
    """What is wrong with a reply; None for a good one."""
    if reply is None:
        return "ended"
    if reply["seconds"] > SLOW:
        return f"slow-{reply['stage']}"
    if reply["megabytes"] > max(MAX_MEGABYTES, 50 * length >> 20):
        return f"memory-{reply['stage']}"
    # What was loaded is written, and what was written is loaded without being told to ignore errors.
    for stage in ("own format", "again"):
        failed = [error for error in reply["errors"] if error["stage"] == stage and error["type"] not in LIMITS]
        if failed:
            return f"{stage.replace(' ', '-')}-{failed[0]['type']}"
    nameless = [error for error in reply["errors"] if not error["is_named"]]
    return f"nameless-{nameless[0]['stage']}-{nameless[0]['type']}" if nameless else None


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--minutes", type=float, default=5)
    parser.add_argument("--rounds", type=int, default=sys.maxsize)
    parser.add_argument("--folder", type=Path, default=ROOT / "build" / "fuzz")
    arguments = parser.parse_args()
    folder, rnd = arguments.folder, random.Random(arguments.seed)
    (folder / "corpus").mkdir(parents=True, exist_ok=True)
    (folder / "finds").mkdir(exist_ok=True)
    corpus, met, worker = seeds(folder), set(), Worker()
    end, rounds, finds = time.monotonic() + 60 * arguments.minutes, 0, 0
    while time.monotonic() < end and rounds < arguments.rounds:
        rounds += 1
        kind = rnd.choice(sorted(corpus))
        data = mutate(rnd.choice(corpus[kind]), corpus[rnd.choice(sorted(corpus))], rnd)
        path = folder / f"mutant{arguments.seed}{kind}"
        path.write_bytes(data)
        reply = worker.convert(path, rounds)
        why = reason(reply, len(data))
        if why is not None:
            finds += 1
            (folder / "finds" / f"{why}-{arguments.seed}-{rounds}{kind}").write_bytes(data)
            worst = [error for error in (reply or {"errors": []})["errors"] if error["stage"].replace(" ", "-") in why]
            print(f"{why}: {path.name}, round {rounds}", json.dumps(worst or reply)[:400], flush=True)
        if reply is None:
            worker.end()
            worker = Worker()
            continue
        places = {(kind, error["stage"], error["type"], error["place"]) for error in reply["errors"]}
        if places - met and len(corpus[kind]) < MAX_CORPUS and len(data) <= MAX_SEED:
            met |= places
            corpus[kind].append(data)
            (folder / "corpus" / f"{arguments.seed}-{rounds}{kind}").write_bytes(data)
        if rounds % 1000 == 0:
            print(f"{rounds} mutants, {len(met)} places of errors, {finds} finds", flush=True)
    worker.end()
    print(f"{rounds} mutants, {len(met)} places of errors, {finds} finds", flush=True)
    return 1 if finds else 0


if __name__ == "__main__":
    sys.exit(main())
