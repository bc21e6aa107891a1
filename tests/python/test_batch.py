"""Batches: what is converted, what is skipped, what is told of what fails."""

from __future__ import annotations

import base64
import csv
import hashlib
import json
import os
import re
import shutil
import signal
import subprocess
import time
import unittest
from pathlib import Path

from batches import SMALL, Batch

from korvan.batch.folder import BatchFolder
from korvan.batch.lease import Holder, Lease, LeaseHeld, LeaseLost, STALE_AFTER
from korvan.batch.scan import Place, Source, Wanted, read_list, scan


class Conversion(unittest.TestCase):
    """With the real converter."""

    def test_a_folder_is_mirrored_and_a_second_run_finds_nothing_to_do(self) -> None:
        with Batch() as batch:
            batch.add("plan.dxf", "sub/deep/plan.dxf", "sub/.hidden.dxf", "notes.txt")
            shutil.copy(SMALL.with_name("garden_house.ifc"), batch.source)
            first = batch.run("--jobs", "1")
            self.assertEqual(first.returncode, 1)
            self.assertEqual(first.stderr.splitlines(), [
                "korvan: garden_house.ifc: building models are not drawn yet, so there is no PDF of them; they are "
                "written as ifc, ifczip"])
            self.assertEqual(batch.results(), ["plan.pdf", "sub/deep/plan.pdf"])
            self.assertTrue((batch.out / "plan.pdf").read_bytes().startswith(b"%PDF"))
            self.assertTrue(batch.rows()[b"plan.dxf"]["thumbnail"].startswith(b"RIFF"))
            self.assertGreater(batch.rows()[b"plan.dxf"]["memory"], 10 << 20)
            written = (batch.out / "plan.pdf").stat().st_mtime_ns
            again = batch.summary()
            self.assertEqual((again["done"], again["failed"], again["converted"]), (2, 1, 0))
            self.assertEqual((batch.out / "plan.pdf").stat().st_mtime_ns, written)

    def test_names_that_are_no_text_are_converted(self) -> None:
        name = b"d\xffr/gr\xfcn\n.dxf"
        with Batch() as batch:
            batch.add(name, "r\u00e4ume.dxf")
            self.assertEqual(batch.summary()["done"], 2)
            result = os.path.join(os.fsencode(batch.out), b"d\xffr/gr\xfcn\n.pdf")
            self.assertEqual(Path(os.fsdecode(result)).read_bytes()[:4], b"%PDF")
            self.assertIn("no UTF-8", batch.rows()[name]["warnings"])
            report = BatchFolder(batch.out).report_path("html").read_text("utf-8")
            self.assertIn("d%FFr/gr%FCn%0A.pdf", report)
            self.assertIn("d\\xffr/gr\\xfcn\\n.dxf", report)

    def test_what_is_asked_for_reaches_the_converter(self) -> None:
        with Batch() as batch:
            batch.add("plan.dxf")
            self.assertEqual(batch.summary("--layer", "NONE*")["failed"], 1)
            self.assertIn("NONE*", batch.rows()[b"plan.dxf"]["error"])
            self.assertEqual(batch.summary("--to", "png", "--size", "64x48")["done"], 1)
            header = (batch.out / "plan.png").read_bytes()[16:24]
            self.assertEqual((header[:4], header[4:]), ((64).to_bytes(4), (48).to_bytes(4)))

    def test_a_full_disk_stops_the_batch_and_the_same_command_goes_on(self) -> None:
        with Batch() as batch:
            batch.add(*(f"{number}.dxf" for number in range(12)))
            batch.out.mkdir()
            command = subprocess.list2cmdline(batch.command("--jobs", "2", "--no-thumbnails"))
            script = (f"mount -t tmpfs -o size=150k tmpfs {batch.out} || exit 77\n{command}; echo code $?\n"
                      f"mount -o remount,size=9m {batch.out}\n{command}; echo code $?")
            done = subprocess.run(["unshare", "-rm", "sh", "-c", script], env=batch.environment, capture_output=True,
                                  text=True, timeout=120, check=False)
            if done.returncode == 77 or "unshare" in done.stderr:
                self.skipTest(f"no file system of its own can be mounted: {done.stderr.strip()}")
            self.assertEqual(re.findall(r"code \d+", done.stdout), ["code 1", "code 0"], done.stderr)
            self.assertRegex(done.stderr, r"\Akorvan: .*(No space left on device|disk is full).*\n\Z")
            self.assertIn("12 files: 12 done, 0 failed", done.stdout)


class Skipping(unittest.TestCase):
    """What a later run does again."""

    def test_only_what_changed_is_converted_again(self) -> None:
        with Batch() as batch:
            batch.script()
            batch.add("same.dxf", "touched.dxf", "changed.dxf", "gone.dxf", "damaged.dxf", "lost.dxf")
            self.assertEqual(batch.summary()["done"], 6)
            os.utime(batch.source / "touched.dxf", (1, 1))
            batch.add("changed.dxf", "new.dxf", content=b"another")
            (batch.source / "gone.dxf").unlink()
            (batch.out / "damaged.pdf").write_text("by another hand")
            (batch.out / "lost.pdf").unlink()
            later = batch.summary()
            self.assertEqual((later["files"], later["done"], later["gone"], later["converted"]), (6, 6, 1, 4))
            runs = {name: batch.runs_of(f"{name}.dxf") for name in ("same", "touched", "changed", "damaged", "lost")}
            self.assertEqual(runs, {"same": 1, "touched": 1, "changed": 2, "damaged": 2, "lost": 2})
            self.assertEqual((batch.out / "damaged.pdf").read_text(), "the result of damaged.dxf")

    def test_contents_are_compared_when_asked(self) -> None:
        with Batch() as batch:
            batch.script()
            batch.add("plan.dxf", "other.dxf")
            batch.summary()
            before = (batch.source / "plan.dxf").stat()
            (batch.source / "plan.dxf").write_bytes(SMALL.read_bytes().replace(b"0", b"1", 1))
            os.utime(batch.source / "plan.dxf", ns=(before.st_atime_ns, before.st_mtime_ns))
            self.assertEqual(batch.summary()["converted"], 0)
            self.assertEqual(batch.summary("--verify")["converted"], 1)

    def test_failures_stand_until_they_are_asked_for_again(self) -> None:
        with Batch() as batch:
            batch.script()
            batch.add("bad.dxf", "moving.dxf")
            self.assertEqual(batch.summary()["failed"], 2)
            self.assertEqual(batch.rows()[b"bad.dxf"]["error"], "cannot be read: line 3")
            self.assertIn("while it was converted", batch.rows()[b"moving.dxf"]["error"])
            self.assertEqual(batch.results(), [])
            second = batch.summary()  # a file that was changed meanwhile is not at fault
            self.assertEqual((second["done"], second["failed"], second["converted"]), (1, 1, 1))
            self.assertEqual(batch.summary("--retry")["converted"], 1)
            self.assertEqual(batch.summary("--set", "PdfOptions.x=1")["converted"], 2)  # another recipe

    def test_files_of_others_are_not_replaced(self) -> None:
        with Batch() as batch:
            batch.script()
            batch.add("plan.dxf")
            batch.out.mkdir()
            (batch.out / "plan.pdf").write_text("of another")
            self.assertEqual(batch.summary()["failed"], 1)
            self.assertIn("--force", batch.rows()[b"plan.dxf"]["error"])
            self.assertEqual(batch.results(), ["plan.pdf"])
            self.assertEqual(batch.summary("--force")["done"], 1)
            self.assertEqual(batch.results(), ["plan.pdf", "plan.side"])

    def test_a_damaged_journal_is_set_aside(self) -> None:
        with Batch() as batch:
            batch.script()
            batch.add("plan.dxf")
            batch.summary()
            BatchFolder(batch.out).journal_path(0).write_bytes(b"SQLite format 3\0" + bytes(5000))
            self.assertEqual(batch.summary()["converted"], 1)
            self.assertEqual(batch.states(), {"plan.dxf": "done"})
            self.assertTrue(BatchFolder(batch.out).journal_path(0).with_suffix(".damaged").exists())


class Trouble(unittest.TestCase):
    """Files and folders that make trouble take nobody with them."""

    def test_each_kind_of_failure_costs_one_file(self) -> None:
        with Batch() as batch:
            batch.script()
            batch.add("a.dxf", "b.dxf", "crash.dxf", "always_crash.dxf", "greedy.dxf", "slow.dxf", "dir/c.dxf")
            batch.out.mkdir()
            (batch.out / "dir").write_text("a file in the place of a folder")
            found = batch.summary("--jobs", "2", "--memory", "600", "--timeout", "2")
            self.assertEqual((found["done"], found["failed"], found["crashed"]), (3, 3, 1))
            rows = {path.decode(): (row["kind"], row["error"]) for path, row in batch.rows().items()
                    if row["state"] != "done"}
            self.assertEqual({name: kind for name, (kind, _) in rows.items()}, {
                "always_crash.dxf": "crash", "greedy.dxf": "memory", "slow.dxf": "timeout", "dir/c.dxf": "output"})
            self.assertIn("SIGABRT: the reason of the crash", rows["always_crash.dxf"][1])
            self.assertIn("more than 600 MiB", rows["greedy.dxf"][1])
            self.assertIn("results/dir: File exists", rows["dir/c.dxf"][1])
            self.assertEqual((batch.runs_of("crash.dxf"), batch.runs_of("always_crash.dxf")), (2, 2))
            pages = [name for name in batch.results() if name.endswith("pdf")]
            self.assertEqual(pages, ["a.pdf", "b.pdf", "crash.pdf"])
            self.assertEqual((batch.out / "crash.pdf").read_text(), "the result of crash.dxf")

    def test_what_makes_no_sense_is_refused_in_one_line(self) -> None:
        with Batch() as batch:
            batch.add("plan.dxf")
            (batch.root / "file").write_text("")
            for arguments, code, text in (
                (["--to", "nonsense"], 2, "nonsense"),
                (["--to", "a/b"], 2, "no extension"),
                (["--paper", "A99"], 2, "A99"),
                (["--jobs", "-1"], 2, "--jobs"),
                (["-o", str(batch.source)], 1, "beside or below"),
                (["-o", str(batch.root)], 1, "beside or below"),
                (["-o", str(batch.root / "file")], 1, "file: "),
                (["-o", "/proc/nothing"], 1, "/proc/nothing: No such file"),
                (["-o", str(batch.root / "new"), "--shard", "1"], 1, "no batch was begun"),
            ):
                with self.subTest(arguments):
                    done = batch.run(*arguments)
                    self.assertEqual((done.returncode, done.stderr.count("\n")), (code, 1), done.stderr)
                    self.assertIn(text, done.stderr)
            batch.summary()
            other = batch.root / "other"
            other.mkdir()
            done = subprocess.run([*batch.command()[:4], str(other), *batch.command()[5:]], env=batch.environment,
                                  capture_output=True, text=True, check=False)
            self.assertIn("has results of", done.stderr)

    def test_an_interrupted_batch_stops_at_once_and_leaves_no_half_file(self) -> None:
        with Batch() as batch:
            batch.script()
            batch.add("slow.dxf", "slower.dxf", "third.dxf")
            process = batch.start("--jobs", "2")
            while not (batch.runs_of("slow.dxf") and batch.runs_of("slower.dxf")):
                time.sleep(0.02)
            second = batch.run()
            self.assertEqual(second.returncode, 1)
            self.assertRegex(second.stderr, f"is in use by process {process.pid} on ")
            process.send_signal(signal.SIGINT)
            _, errors = process.communicate(timeout=100)
            self.assertEqual((process.returncode, errors.count("\n")), (130, 1))
            self.assertEqual(batch.results(), [])
            self.assertEqual(set(batch.states().values()), {"pending"})
            self.assertEqual({row["interruptions"] for row in batch.rows().values()}, {0})
            self.assertFalse(BatchFolder(batch.out).scratch(0).exists())
            # No worker was given the third, so what comes into its place meanwhile is not of this batch.
            self.assertEqual((batch.rows()[b"third.dxf"]["ours"], batch.runs_of("third.dxf")), (0, 0))


class Engines(unittest.TestCase):
    def test_a_list_of_commands_does_the_work_and_the_next_run_adds_up(self) -> None:
        with Batch() as batch:
            batch.script()
            batch.add(*(f"{folder}/{number}.dxf" for folder in "abc" for number in range(4)))
            first = batch.run("--engine", "commands", "--shard-size", "5")
            lines = first.stdout.splitlines()
            self.assertEqual((first.returncode, len(lines)), (0, 3), first.stderr)
            for line in lines[:2]:
                done = subprocess.run(["sh", "-c", line], env=batch.environment, capture_output=True, check=False)
                self.assertEqual(done.returncode, 0, done.stderr)
            self.assertEqual(batch.run("--engine", "commands").stdout.splitlines(), lines[2:])
            with Lease(BatchFolder(batch.out).lease_path(2)):
                held = subprocess.run(["sh", "-c", lines[2]], env=batch.environment, capture_output=True, text=True,
                                      check=False)
            self.assertEqual(held.returncode, 1)
            self.assertIn("is in use by process", held.stderr)
            subprocess.run(["sh", "-c", lines[2]], env=batch.environment, capture_output=True, check=True)
            last = batch.run("--engine", "commands")
            self.assertIn("12 files: 12 done", last.stdout)
            self.assertTrue(BatchFolder(batch.out).report_path("html").exists())

    def test_large_files_come_first(self) -> None:
        with Batch() as batch:
            batch.script()
            for size in (300, 100, 500, 200, 400):
                batch.add(f"{size}.dxf", content=bytes(size))
            batch.run("--jobs", "1")
            order = sorted((batch.out.glob("*.pdf")), key=lambda path: path.stat().st_mtime_ns)
            self.assertEqual([path.stem for path in order], ["500", "400", "300", "200", "100"])

    def test_without_slurm_that_is_said(self) -> None:
        with Batch() as batch:
            batch.add("plan.dxf")
            batch.environment["PATH"] = "/nowhere"
            done = batch.run("--engine", "slurm")
            self.assertEqual(done.returncode, 1)
            self.assertRegex(done.stderr, r"\Akorvan: s\w+ is not installed: .*\n\Z")


class Dealing(unittest.TestCase):
    """Which file belongs to which shard, and which result to which file."""

    def places(self, batch: Batch, starts: list[Place], size: int = 4) -> tuple[list[Place], list[list[bytes]]]:
        folder = BatchFolder(batch.out)
        folder.create()
        dealer, _ = scan(folder, batch.source, Wanted((), [".dxf", ".dwg"]), starts, size, lambda files: None)
        lists = [read_list(folder.list_path(shard).read_bytes()) for shard in range(len(dealer.starts))]
        return dealer.starts, [[source.path for source in sources] for sources in lists]

    def test_shards_are_ranges_that_stay(self) -> None:
        with Batch() as batch:
            batch.add(*(f"{folder}{number}.dxf" for folder in ("", "a/", "a/b/", "a-b/", "c/") for number in range(3)))
            batch.add("a-b/1.dwg")
            starts, before = self.places(batch, [])
            self.assertEqual([len(shard) for shard in before], [4, 4, 4, 4])
            whole = self.places(batch, [], 11)[1]  # files of one name stay together
            self.assertEqual([len(shard) for shard in whole], [12, 4])
            self.places(batch, [])
            batch.add("a/b/11.dxf", "A/0.dxf", "z/9.dxf", "a-b/0.dwg")
            (batch.source / "0.dxf").unlink()
            again, after = self.places(batch, starts)
            self.assertEqual(again, starts)
            for old, new in zip(before, after, strict=True):
                self.assertEqual(sorted(set(old) - {b"0.dxf"} - set(new)), [])
            self.assertEqual(sum(map(len, after)), 19)

    def test_no_two_files_have_the_same_result(self) -> None:
        names = ["a.dxf", "a.dwg", "a.dxf.dxf", "b.dxf", "b.dxf.dwg", "c.1.dxf", "c.DXF.dxf"]
        with Batch() as batch:
            batch.add(*names)
            self.places(batch, [])
            lists = BatchFolder(batch.out).shards.glob("*/files.list")
            sources = [source for path in lists for source in read_list(path.read_bytes())]
            targets = [source.target(b"pdf") for source in sources]
            self.assertEqual(len(set(targets)), len(names))
            self.assertIn(b"b.pdf", targets)
            self.assertIn(b"a.dwg.pdf", targets)

    def test_a_link_that_leads_in_a_circle_is_not_followed(self) -> None:
        with Batch() as batch:
            batch.add("sub/plan.dxf")
            (batch.source / "sub" / "up").symlink_to(batch.source)
            os.mkfifo(batch.source / "pipe.dxf")
            (batch.source / "link.dxf").symlink_to(batch.source / "sub" / "plan.dxf")
            self.assertEqual(self.places(batch, [])[1], [[b"link.dxf", b"sub/plan.dxf"]])

    def test_a_link_that_leads_nowhere_is_told_and_costs_only_itself(self) -> None:
        with Batch() as batch:
            batch.script()
            batch.add(*(f"{number}.dxf" for number in range(5)))
            for name in ("itself.dxf", "gone.dxf"):
                (batch.source / name).symlink_to(batch.source / name.replace("gone", "nowhere"))
            done = batch.run("--json")
            self.assertEqual((done.returncode, len(batch.results())), (1, 10))
            self.assertIn("itself.dxf: Too many levels of symbolic links", done.stderr)
            self.assertIn("gone.dxf: No such file or directory", done.stderr)

    def test_results_may_lie_below_the_drawings(self) -> None:
        with Batch() as batch:
            batch.script()
            batch.add("plan.dxf")
            batch.out = batch.source / "converted"
            batch.run("--to", "dxf")
            self.assertEqual(batch.results(), ["plan.dxf", "plan.side"])
            self.assertEqual(batch.summary("--to", "dxf")["files"], 1)

    def test_sources_keep_any_name(self) -> None:
        self.assertEqual(Source(b"\xff \n1/x.dxf", 1, 2, False).target(b"svg"), b"\xff \n1/x.svg")


class Leases(unittest.TestCase):
    def setUp(self) -> None:
        self.batch = self.enterContext(Batch())
        self.path = self.batch.root / "lease"

    def write(self, generation: int, age: float, **values: object) -> None:
        """A lease of a process on another machine."""
        holder = {**Holder.me().__dict__, "machine": "another", "host": "far", **values}
        path = Path(f"{self.path}.{generation}")
        path.write_text(json.dumps(holder))
        now = time.time() - age
        os.utime(path, (now, now))

    def test_one_of_two_gets_it(self) -> None:
        with Lease(self.path):
            with self.assertRaisesRegex(LeaseHeld, f"in use by process {os.getpid()}"):
                Lease(self.path).take()
        with Lease(self.path):
            self.assertTrue(Path(f"{self.path}.2").exists())
            self.assertFalse(Path(f"{self.path}.1").exists())

    def test_a_holder_far_away_is_judged_by_its_signs_of_life(self) -> None:
        self.write(1, STALE_AFTER / 2)
        with self.assertRaises(LeaseHeld) as held:
            Lease(self.path).take()
        self.assertTrue(held.exception.may_be_gone)
        self.write(1, STALE_AFTER * 2)
        Lease(self.path).take()

    def test_a_process_that_ended_holds_nothing(self) -> None:
        self.write(1, 0, machine=Holder.me().machine, start="1")  # its number is another's by now
        Lease(self.path).take()

    def test_who_lost_it_is_told(self) -> None:
        lease = Lease(self.path)
        lease.take()
        self.write(2, 0)
        with self.assertRaisesRegex(LeaseLost, "far"):
            lease.check()


class Reports(unittest.TestCase):
    def test_text_of_files_stays_text(self) -> None:
        name = "<img src=x onerror=alert(1)>.dxf"
        with Batch() as batch:
            batch.script()
            batch.add(name, "=1+1.dxf", "bad <script>.dxf")
            batch.summary()
            folder = BatchFolder(batch.out)
            page = folder.report_path("html").read_text("utf-8")
            self.assertNotIn("<img src=x", page)
            self.assertNotIn("bad <script>", page)
            script = re.findall(r"<script>(.*?)</script>", page, re.DOTALL)
            digest = base64.b64encode(hashlib.sha256(script[0].encode()).digest()).decode()
            self.assertIn(f"script-src 'sha256-{digest}'", page)
            with folder.report_path("csv").open(newline="") as file:
                cells = [row["path"] for row in csv.DictReader(file)]
            self.assertEqual(cells, [name, "'=1+1.dxf", "bad <script>.dxf"])
            kept = json.loads(folder.report_path("json").read_bytes())
            self.assertEqual([row["state"] for row in kept["results"]], ["done", "done", "failed"])


if __name__ == "__main__":
    unittest.main()
