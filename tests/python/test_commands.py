"""The command line, as a user types it: results, errors in one line, exit codes."""

from __future__ import annotations

import contextlib
import csv
import io
import json
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path
from unittest import mock

from korvan.commands import installed_commands, main
from korvan.commands.common import Progress

import hostile_files as hostile
from drawings import EXAMPLES, SHARED, Png, needs_shared, needs_tools

PLAN = str(EXAMPLES / "floor_plan.dxf")
HOUSE = str(EXAMPLES / "garden_house.ifc")
DRAWINGS = sorted(str(path) for path in EXAMPLES.glob("*.dxf"))


class Commands(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.out = Path(folder.name)

    def korvan(self, *arguments: object) -> tuple[int, str, str]:
        """Exit code, output and errors of a command."""
        out, err = io.StringIO(), io.StringIO()
        with contextlib.redirect_stdout(out), contextlib.redirect_stderr(err):
            status = main([str(one) for one in arguments])
        return status, out.getvalue(), err.getvalue()

    def good(self, *arguments: object) -> str:
        status, out, err = self.korvan(*arguments)
        self.assertEqual((status, err), (0, ""))
        return out

    def child(self, *arguments: object, **options: object) -> subprocess.Popen[str]:
        return subprocess.Popen([sys.executable, "-m", "korvan", *map(str, arguments)], stdout=subprocess.PIPE,
                                stderr=subprocess.PIPE, text=True, errors="surrogateescape", **options)


class Converting(Commands):
    def test_one_file_and_many(self) -> None:
        self.good("convert", PLAN, "-o", self.out / "a.pdf", "--paper", "A3", "--layout", "*")
        self.assertTrue((self.out / "a.pdf").read_bytes().startswith(b"%PDF"))
        for jobs in (1, 2):
            rows = [json.loads(line) for line in self.good(
                "convert", *DRAWINGS, "-o", f"{self.out}/{jobs}/", "--to", "png", "--size", "200x", "--json", "-j",
                jobs).splitlines()]
            self.assertEqual(sorted(row["source"] for row in rows), DRAWINGS)
            for row in rows:
                self.assertEqual((row["format"], Png(Path(row["output"]).read_bytes()).width), ("PNG", 200))

    def test_a_file_that_fails_leaves_the_others_alone(self) -> None:
        bad = self.out / "bad.dxf"
        bad.write_text("no drawing")
        for jobs in ("1", "2"):
            status, out, err = self.korvan("convert", bad, PLAN, "/no/such.dxf", "-o", f"{self.out}/o{jobs}/", "--to",
                                           "svg", "-j", jobs)
            self.assertEqual(status, 1)
            self.assertIn("floor_plan.svg", out)
            self.assertEqual(len(err.splitlines()), 2, err)
            self.assertRegex(err, rf"korvan: {bad}: is of no known format")
            self.assertRegex(err, "korvan: /no/such.dxf: No such file")

    def test_wrong_usage_is_said_before_anything_is_read(self) -> None:
        rows = (
            (["convert", PLAN, HOUSE, "-o", "one.pdf"], "one.pdf is not a folder"),
            (["convert", PLAN, "-o", "plan"], "no extension"),
            (["convert", PLAN, "-o", "plan.pfd"], "nearest are .*pdf"),
            (["convert", PLAN, "-o", "-"], "by --to"),
            (["convert", PLAN, "-o", "a.pdf", "--set", "zoom=1"], "CLASS.MEMBER=VALUE"),
            (["convert", PLAN, "-o", "a.pdf", "--set", "pfd.zoom=1"], "no options 'pfd'"),
            (["convert", PLAN, "-o", "a.pdf", "--paper", "A99"], "no paper"),
            (["convert", PLAN, "-o", "a.pdf", "--release", "R2000"], "no releases"),
            (["convert", PLAN, "-o", "a.dwg", "--release", "2007"], "not written as 2007: use one of 2000, 2004, 2010"),
            (["convert", PLAN, "-o", "a.png", "--size", "0x0"], "'0x0' is no size"),
            (["convert", PLAN, "-o", "a.pdf", "--timeout", "-1"], "--timeout"),
            (["convert", PLAN, "-o", "a.pdf", "-j", "-1"], "--jobs"),
            (["convert", PLAN, "-o", "a.pdf", "--memory", "0"], "--memory"),
            (["convert", PLAN, PLAN, "-o", "/tmp/", "--to", "pdf"], "would both become"),
            (["texts", "(", PLAN], "no regular expression"),
            (["audit", "--fix", PLAN], "-o OUT"),
            (["convrt", PLAN], "invalid choice"),
            (["convert", PLAN], "required"),
        )
        for arguments, words in rows:
            with self.subTest(arguments):
                status, out, err = self.korvan(*arguments)
                self.assertEqual((status, out), (2, ""))
                self.assertRegex(err, words)

    def test_names_that_no_file_has_are_misspelt(self) -> None:
        image = self.out / "a.png"
        self.good("convert", PLAN, "-o", image, "--size", "100x")
        rows = (
            (["layers", PLAN, "--match", "A-WAL"], "no layer 'A-WAL'; the nearest are 'A-WALL'"),
            (["texts", "--layer", "A-NOTES", "", PLAN], "no layer 'A-NOTES'; the nearest are 'A-NOTE'"),
            (["texts", "--kind", "MTXT", "", PLAN], "the nearest are 'MTEXT'"),
            (["properties", HOUSE, "--set", "Pset_WalCommon"], "'Pset_WallCommon'"),
            (["properties", HOUSE, "--type", "IfcWal"], "'IfcWall'"),
            (["info", self.out], "no such files"),
            (["view", self.out, "-o", self.out / "a.html"], "is a folder"),
            (["convert", image, "-o", self.out / "b.jpg", "--size", "50x"], "size: a raster image has no page"),
            (["diff", PLAN, image], "a drawing .* and a raster image .* are not compared"),
            (["diff", PLAN, HOUSE, "--overlay", image], "exists; --force"),
        )
        for arguments, words in rows:
            with self.subTest(arguments):
                status, out, err = self.korvan(*arguments)
                self.assertEqual((status, out, len(err.splitlines())), (1, "", 1), err)
                self.assertRegex(err, words)
        self.assertEqual(self.korvan("diff", PLAN, PLAN, "--overlay", "o.pdf")[0], 2)

    def test_what_exists_is_kept_without_force(self) -> None:
        kept = self.out / "a.svg"
        kept.write_text("mine")
        status, _, err = self.korvan("convert", PLAN, "-o", kept)
        self.assertEqual((status, kept.read_text(), len(err.splitlines())), (1, "mine", 1))
        self.good("convert", PLAN, "-o", kept, "--force", "-q")
        self.assertGreater(kept.stat().st_size, 1000)

    def test_pipes_and_devices(self) -> None:
        with self.child("convert", PLAN, "-o", "-", "--to", "svg") as done:
            out, err = done.communicate(timeout=300)
        self.assertTrue(out.startswith("<?xml") and out.rstrip().endswith("</svg>"), err)
        with self.child("convert", PLAN, "-o", "-", "--to", "pdf") as done:
            done.stdout.close()  # a reader that has enough, as head has
            self.assertEqual((done.stderr.read(), done.wait(300)), ("", 1))
        status, _, err = self.korvan("convert", PLAN, "-o", "/dev/full", "--to", "pdf")
        self.assertEqual(status, 1)
        self.assertRegex(err, "No space left on device")
        pipe = self.out / "pipe"
        os.mkfifo(pipe)
        with subprocess.Popen(["cp", PLAN, str(pipe)]):
            self.assertIn("DXF 2010", self.good("info", "--quick", pipe))

    def test_a_full_disk_leaves_no_file(self) -> None:
        with self.child("convert", PLAN, "-o", self.out / "a.pdf", preexec_fn=limit_files) as done:
            _, err = done.communicate(timeout=300)
        self.assertEqual(done.returncode, 1)
        self.assertEqual(len(err.splitlines()), 1, err)
        self.assertEqual(list(self.out.iterdir()), [])

    def test_a_file_that_takes_too_much_memory_fails_alone(self) -> None:
        status, out, err = self.korvan("convert", PLAN, "-o", self.out / "a.png", "--size", "12000x", "--memory", "150")
        self.assertEqual((status, out), (1, ""))
        self.assertRegex(err, rf"\Akorvan: {PLAN}: takes more than 150 MiB of memory \(\d+ MiB when it was ended\)\n\Z")
        self.assertEqual(list(self.out.iterdir()), [])

    def test_names_with_line_breaks_take_one_line(self) -> None:
        source = self.out / "a\nb.dxf"
        source.write_bytes(Path(PLAN).read_bytes()[:5000])
        status, _, err = self.korvan("convert", source, "-o", self.out / "a.pdf")
        self.assertEqual((status, err.count("\n"), err.count("b.dxf")), (1, 1, 1), err)
        shutil.copy(PLAN, source)
        self.assertEqual(self.good("convert", source, "-o", f"{self.out}/", "--to", "svg").count("\n"), 1)

    def test_names_that_are_no_text(self) -> None:
        source = os.fsdecode(os.fsencode(self.out / "a") + b"\xff.dxf")
        shutil.copy(PLAN, source)
        with self.child("convert", source, "-o", f"{self.out}/o/", "--to", "pdf") as done:
            out, err = done.communicate(timeout=300)
        self.assertEqual((done.returncode, err), (0, ""))
        self.assertIn("\udcff.pdf", out)
        for command in (("view", source, "-o", self.out / "v.html"), ("info", source), ("layers", source),
                        ("texts", "", source), ("blocks", source), ("audit", source), ("diff", source, source)):
            self.good(*command)
        self.assertIn("<title>a\ufffd.dxf", (self.out / "v.html").read_text("utf-8"))

    @needs_shared
    def test_ctrl_c_ends_it_and_leaves_no_half_file(self) -> None:
        drawing = SHARED / "dxf" / "lwg__example_2000.dxf"
        files = [self.out / f"copy{number}.dxf" for number in range(100)]  # half a minute of work: none is ever done
        for file in files:
            file.symlink_to(drawing)
        for jobs, moment in (("1", "the library is loaded"), ("1", "a file is written"), ("2", "a file is written")):
            with self.subTest(moment=moment, jobs=jobs):
                target = self.out / f"{jobs}{moment}"
                running = self.child("convert", *files, "-o", f"{target}/", "--to", "png", "--size", "5000x", "-j",
                                     jobs, start_new_session=True)
                while running.poll() is None and not (
                        any(target.glob("*.png")) if "written" in moment
                        else b"/cad.cpython" in Path(f"/proc/{running.pid}/maps").read_bytes()):
                    time.sleep(0.01)
                os.killpg(running.pid, signal.SIGINT)
                _, err = running.communicate(timeout=300)
                self.assertIn(running.returncode, (130, -signal.SIGINT))
                self.assertIn(err, ("", "korvan: interrupted\n"))
                for path in target.glob("*"):
                    self.assertEqual(path.read_bytes()[-8:], b"IEND\xaeB`\x82")  # a whole file ends so


class Inspecting(Commands):
    def test_info(self) -> None:
        found = json.loads(self.good("info", PLAN, "--json"))
        self.assertEqual((found["format"], found["release"], found["units"]), ("DXF", "2010", "millimeter"))
        self.assertEqual([one["name"] for one in found["layouts"]], ["Model", "Ground floor"])
        self.assertEqual(found["extents"]["max"], [18000.0, 11720.0, 0.0])
        self.assertEqual(found["entities"]["DIMENSION"], 23)
        self.assertIn({"name": "DejaVuSans.ttf", "replaced_by": None}, found["fonts"])
        flange = json.loads(self.good("info", "--json", EXAMPLES / "bearing_flange.dxf"))
        self.assertIn("isocp.shx", [one["name"] for one in flange["fonts"] if one["replaced_by"]])
        text = self.good("info", PLAN, HOUSE, EXAMPLES / "gate_valve.cgm")
        for words in ("DXF 2010", "  IFC4, ", "IfcWall 6", "CGM", "Gate valve", "A-WALL"):
            self.assertIn(words, text)

    @needs_shared
    def test_info_of_all_real_drawings(self) -> None:
        status, out, _ = self.korvan("info", "--quick", "--json", SHARED / "dxf", SHARED / "dwg", SHARED / "ifc")
        self.assertIn(status, (0, 1))
        self.assertGreater(len(out.splitlines()), 150)

    def test_layers_and_blocks(self) -> None:
        text = self.good("layers", PLAN)
        self.assertRegex(text, r"(?m)^A-DIMS +92  on +1  CONTINUOUS +0.18 mm  yes$")
        self.assertEqual([one["name"] for one in json.loads(self.good("layers", "--empty", "--json", PLAN))["layers"]],
                         ["A-WALL"])
        status, _, err = self.korvan("layers", PLAN, "--match", "A-WAL")
        self.assertEqual(status, 1)
        self.assertIn("'A-WALL'", err)
        self.assertRegex(self.good("blocks", PLAN), r"(?m)^GRID-BUBBLE +7 +2  MARK")
        rows = list(csv.DictReader(io.StringIO(self.good("blocks", PLAN, "--attributes", "GRID*"))))
        self.assertEqual("".join(row["MARK"] for row in rows), "ABCD123")

    def test_texts(self) -> None:
        out = self.good("texts", "garden|TERRACE", EXAMPLES)
        self.assertIn(f"{PLAN}: Terrace | 13.0 m2 | brick on sand  (Model, A-NOTE, MTEXT 2EE)", out)
        self.assertIn("Garden door  (Name, IfcDoor #148)", out)
        self.assertEqual(self.good("texts", "-s", "TERRACE", PLAN), "")
        self.assertEqual(self.good("texts", "-c", "-F", "m2", "--layer", "A-NOTE", PLAN).split()[-1], "7")
        self.assertEqual(self.good("texts", "-l", "terrace", *DRAWINGS), PLAN + "\n")

    def test_properties(self) -> None:
        rows = list(csv.DictReader(io.StringIO(self.good("properties", HOUSE))))
        self.assertIn({"file": HOUSE, "entity": "IfcWall", "name": "Wall south W1", "global_id": rows[0]["global_id"],
                       "set": "Pset_WallCommon", "property": "FireRating", "value": "REI 30"}, rows)
        wide = list(csv.DictReader(io.StringIO(
            self.good("properties", HOUSE, "--type", "IfcWall", "--wide", "--set", "qto*"))))
        self.assertEqual(len(wide), 6)
        self.assertEqual(wide[0]["Qto_WallBaseQuantities.GrossVolume"], "3.0")

    def test_text_of_strangers_controls_neither_terminals_nor_tables(self) -> None:
        hidden = "\x1b]0;x\x07\x1b[2J\u009b1m\u202e=A"
        names = ('=cmd|"/c calc"!A1', "@SUM(A1)", "-2+3", "-2.5", "+")
        attributes = "".join(f"0\nATTRIB\n8\n0\n10\n0\n20\n0\n40\n1\n2\n{tag}{i}\n1\n{value}\n"
                             for i, (tag, value) in enumerate(zip("TU=VW", names, strict=True)))
        path = self.out / "a.dxf"
        path.write_bytes(hostile.drawing(
            hostile.text(hidden, hidden) + hostile.insert("B", more="66\n1\n") + attributes + "0\nSEQEND\n",
            hostile.block("B", hostile.line()), tables=hostile.layers("0", hidden),
        ).replace(b"AC1015", b"AC1021"))
        for command in (("texts", "", path), ("layers", path), ("info", path), ("diff", path, PLAN),
                        ("audit", path), ("texts", "", path, "--json"), ("layers", path, "--json")):
            status, out, err = self.korvan(*command)
            with self.subTest(command):
                self.assertEqual(status, 0, err)
                self.assertNotRegex(out + err, "[\x00-\x08\x0b-\x1f\x7f-\x9f\u202e]")
                if "--json" in command:
                    self.assertIn(repr(hidden), str(json.loads(out)))
        header, row = csv.reader(io.StringIO(self.good("blocks", path, "--attributes", "B")))
        cells = dict(zip(header, row, strict=True))
        self.assertEqual([cells[name] for name in ("T0", "U1", "'=2", "V3", "W4")],
                         [f"'{names[0]}", f"'{names[1]}", f"'{names[2]}", names[3], "'+"])

    def test_diff(self) -> None:
        changed = self.out / "b.dxf"
        changed.write_text(Path(PLAN).read_text().replace("Bedroom 2", "Study"))
        self.assertEqual(self.good("diff", PLAN, PLAN), "no differences\n")
        out = self.good("diff", PLAN, changed, "--overlay", self.out / "o.png")
        self.assertRegex(out, r"~ MTEXT \w+  \(Model, A-NOTE\)\n    text: .*Bedroom 2.* -> .*Study")
        self.assertTrue(out.endswith("0 added, 0 removed, 1 changed\n"))
        self.assertEqual(Png((self.out / "o.png").read_bytes()).width, 1600)
        self.assertEqual(self.korvan("diff", PLAN, changed, "--exit-code")[0], 1)
        status, _, err = self.korvan("diff", PLAN, "/no/such.dxf")
        self.assertEqual((status, err), (1, "korvan: /no/such.dxf: No such file or directory\n"))

    @needs_shared
    def test_audit(self) -> None:
        source, target = SHARED / "dxf" / "ezdxf__recover01.dxf", self.out / "sound.dxf"
        out = self.good("audit", source, "--summary")
        for code in ("203: 63", "301: 18", "306: 22"):
            self.assertIn(code, out)
        self.assertIn(f"; written to {target}", self.good("audit", source, "--fix", "-o", target))
        left = json.loads(self.good("audit", target, "--json"))["findings"]
        self.assertEqual([one["code"] for one in left], [401])
        self.assertEqual(self.korvan("audit", target, "--exit-code")[0], 1)
        self.assertIn("301  a line has no length", self.good("audit", "--codes"))


class Surroundings(Commands):
    def test_every_command_teaches_by_example(self) -> None:
        top = self.good("--help")
        for name in installed_commands():
            text = self.good(name, "--help")
            self.assertIn(f"  korvan {name} ", text)
            self.assertRegex(top, rf"(?m)^    {name}\b")
            examples = re.findall(r"(?m)^  korvan (\w+) (.*)$", text)
            self.assertTrue(examples and all(one == name for one, _ in examples))

    def test_help_does_not_load_the_library(self) -> None:
        code = ("import sys\nfrom korvan.commands import main\nfor one in [['--help'], ['convert', '--help'], ['x']]:"
                "\n    main(one)\nsys.exit('korvan.cad' in sys.modules)")
        done = subprocess.run([sys.executable, "-c", code], capture_output=True, timeout=300, check=False)
        self.assertEqual(done.returncode, 0)

    def test_completion(self) -> None:
        script = self.out / "korvan.bash"
        script.write_text(self.good("completion", "bash"))
        self.assertIn("complete -c korvan", self.good("completion", "fish"))
        self.assertTrue(self.good("completion", "zsh").startswith("#compdef korvan\n"))
        (self.out / "a b.dxf").touch()
        asked = (("co", "convert completion"), ("convert --pap", "--paper"), ("convert --paper A4", "A4"),
                 ("convert --to sv", "svg"), ("completion z", "zsh"), ("convert a", "a b.dxf"))
        for line, answer in asked:
            with self.subTest(line):
                code = (f'source "{script}"; COMP_WORDS=(korvan {line}); COMP_CWORD={len(line.split())}; _korvan;'
                        'echo "${COMPREPLY[*]}"')
                done = subprocess.run(["bash", "-c", code], cwd=self.out, capture_output=True, text=True, timeout=300,
                                      check=True)
                self.assertEqual(done.stdout.strip(), answer)

    @needs_tools("groff")
    def test_the_manual_page_is_sound(self) -> None:
        page = self.good("man")
        done = subprocess.run(["groff", "-man", "-ww", "-Tutf8"], input=page, capture_output=True, text=True,
                              timeout=300, check=False)
        self.assertEqual(done.stderr, "")
        self.assertIn("korvan convert [OPTION]... IN", page)

    def test_progress_is_for_terminals_only(self) -> None:
        with mock.patch("sys.stderr", io.StringIO()) as err:
            Progress(3).step("a.dxf")
            self.assertEqual(err.getvalue(), "")
            err.isatty = lambda: True  # type: ignore[method-assign]
            progress = Progress(2)
            progress.step("a.dxf")
            self.assertIn("1/2", err.getvalue())
            progress.clear()
            self.assertTrue(err.getvalue().endswith("\r\x1b[K"))

    def test_a_reader_who_has_enough_is_no_error(self) -> None:
        with self.child("info", "--quick", *DRAWINGS * 20) as running:
            assert running.stdout is not None and running.stderr is not None
            running.stdout.readline()
            running.stdout.close()
            self.assertEqual(running.stderr.read(), "")


def limit_files() -> None:
    """Lets a child write nothing that is larger than a few blocks, as on a disk that is nearly full."""
    import resource

    signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
    resource.setrlimit(resource.RLIMIT_FSIZE, (8192, 8192))


if __name__ == "__main__":
    unittest.main()
