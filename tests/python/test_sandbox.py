"""The page on services: its sandbox lets a conversion run, and its list of system calls is enough."""

from __future__ import annotations

import os
import re
import shlex
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from child import run
from drawings import EXAMPLES
from korvan import cad

PAGE = (Path(__file__).resolve().parents[2] / "docs" / "services.md").read_text("utf-8")
NUMBERS = Path("/usr/include/x86_64-linux-gnu/asm/unistd_64.h")
PLAN = EXAMPLES / "floor_plan.dxf"
CONVERT = """
from korvan.cad import Image
from korvan.cad.imageoptions import PdfOptions, PngOptions
import os, socket, sys
image = Image.load("plan.dxf")
image.save("plan.pdf", PdfOptions())
image.save("plan.png", PngOptions())
print(sorted(os.listdir(".")), os.path.exists("/root"), os.access("/usr", os.W_OK), socket.if_nameindex())
"""

# Allows the system calls of the given numbers; every other one ends the process.
FILTERED = """
import ctypes, struct, sys
from korvan.cad import Image
from korvan.cad.imageoptions import PdfOptions, PngOptions

numbers = [int(one) for one in sys.argv[3:]]
rows = [(0x20, 0, 0, 0)]  # load the number
rows += [(0x15, len(numbers) - i, 0, number) for i, number in enumerate(numbers)]  # jump to the end where it is equal
rows += [(0x06, 0, 0, 0x80000000), (0x06, 0, 0, 0x7FFF0000)]  # end the process; allow
program = b"".join(struct.pack("<HBBI", *row) for row in rows)
buffer = ctypes.create_string_buffer(program)
header = struct.pack("<HxxxxxxQ", len(rows), ctypes.addressof(buffer))
libc = ctypes.CDLL(None, use_errno=True)
assert libc.prctl(38, 1, 0, 0, 0) == 0  # no new privileges
SECCOMP, SET_FILTER, ALL_THREADS = 317, 1, 1
assert libc.syscall(SECCOMP, SET_FILTER, ALL_THREADS, header) == 0, ctypes.get_errno()
image = Image.load(sys.argv[1])
image.save(sys.argv[2] + ".pdf", PdfOptions())
image.save(sys.argv[2] + ".png", PngOptions())
print("done")
"""


def has_sandbox() -> bool:
    probe = ["bwrap", "--unshare-all", "--ro-bind", "/", "/", "true"]
    return shutil.which("bwrap") is not None and subprocess.run(probe, capture_output=True, check=False).returncode == 0


class Sandbox(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    @unittest.skipUnless(has_sandbox(), "bwrap is not there, or may not make namespaces")
    def test_the_command_converts_and_shows_nothing_else(self) -> None:
        shutil.copy(PLAN, self.folder / "plan.dxf")
        (self.folder / "convert.py").write_text(CONVERT, encoding="utf-8")
        command = re.search(r"```sh\n(bwrap .*?)```", PAGE, re.DOTALL)[1].replace("\\\n", " ")
        words = shlex.split(command.replace('"$job"', shlex.quote(str(self.folder))))
        package = Path(cad.__file__).parents[1]
        binds = {Path(sys.base_prefix), package, Path(os.path.realpath(package))}
        own = [word for path in sorted(binds) if not path.is_relative_to("/usr") for word in ("--ro-bind", path, path)]
        variables = ["--setenv", "PYTHONPATH", str(package)]
        done = subprocess.run([*words[:-2], *map(str, own), *variables, os.path.realpath(sys.executable), "convert.py"],
                              capture_output=True, text=True, check=False)
        self.assertEqual(done.returncode, 0, done.stderr)
        expected = "['convert.py', 'plan.dxf', 'plan.pdf', 'plan.png'] {} False [(1, 'lo')]\n"
        self.assertEqual(done.stdout, expected.format(sys.base_prefix.startswith("/root")))

    @unittest.skipUnless(NUMBERS.exists(), "the numbers of system calls are not there")
    def test_the_list_of_system_calls_is_enough(self) -> None:
        listed = re.search(r"System calls after.*?(?=A service under)", PAGE, re.DOTALL)[0]
        names = re.findall(r"`([a-z0-9_]+)`", listed)
        numbers = dict(re.findall(r"#define __NR_(\w+) (\d+)", NUMBERS.read_text("ascii")))
        output = run(FILTERED, str(PLAN), str(self.folder / "out"), *(numbers[name] for name in names)).stdout
        self.assertEqual(output, "done\n")


if __name__ == "__main__":
    sys.exit(unittest.main())
