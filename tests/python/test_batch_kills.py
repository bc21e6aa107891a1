"""Batches and workers that are killed at any moment: the journal is true, no file is lost, none is half-written."""

from __future__ import annotations

import os
import random
import signal
import subprocess
import time
import unittest
from pathlib import Path

from batches import Batch

from korvan.batch.folder import BatchFolder
from korvan.batch.scan import read_list

FILES = 60
KILLS = 12


def children(process: int) -> list[int]:
    """The processes that a process started, and that live."""
    try:
        return [int(number) for number in Path(f"/proc/{process}/task/{process}/children").read_text().split()]
    except FileNotFoundError:
        return []


def wait_for_end(processes: list[int]) -> None:
    end = time.monotonic() + 100
    while any(os.path.exists(f"/proc/{process}") for process in processes):
        if time.monotonic() > end:
            raise AssertionError("workers outlive the batch")
        time.sleep(0.01)


class Kills(unittest.TestCase):
    def setUp(self) -> None:
        self.random = random.Random(7)
        self.batch = self.enterContext(Batch())
        self.batch.add(*(f"{number % 7}/{number}.dxf" for number in range(FILES)))

    def check(self) -> int:
        """The journal and the folder of results agree; gives the number of files that are done."""
        folder = BatchFolder(self.batch.out)
        listed = {source.path for path in folder.shards.glob("*/files.list") for source in read_list(path.read_bytes())}
        rows = self.batch.rows()
        if rows:
            self.assertEqual(set(rows), listed)
        for name in self.batch.results():
            self.assertEqual((self.batch.out / name).read_bytes()[-6:].strip(), b"%%EOF", name)
        done = {path: row for path, row in rows.items() if row["state"] == "done"}
        for path, row in done.items():
            self.assertEqual((self.batch.out / os.fsdecode(row["target"])).stat().st_size, row["result_size"], path)
        return len(done)

    def finish(self) -> None:
        """Runs what is left, and makes sure that nothing is."""
        self.assertEqual(self.batch.summary()["done"], FILES)
        self.assertEqual(self.check(), FILES)
        self.assertEqual(len(self.batch.results()), FILES)
        self.assertEqual(list(self.batch.out.rglob("*.part")), [])
        self.assertFalse(BatchFolder(self.batch.out).scratch(0).exists())

    def wait_for(self, process: subprocess.Popen[str], results: int) -> None:
        """Waits until there are so many results, and a moment more."""
        end = time.monotonic() + 300
        while process.poll() is None and len(self.batch.results()) < results:
            self.assertLess(time.monotonic(), end, "the batch makes no progress")
            time.sleep(0.002)
        time.sleep(self.random.uniform(0, 0.03))

    def test_the_whole_batch_is_killed_again_and_again(self) -> None:
        done = [0]
        for _ in range(KILLS):
            process = self.batch.start("--jobs", "2", "--no-thumbnails")
            self.wait_for(process, len(self.batch.results()) + self.random.randint(0, 5))
            workers = children(process.pid)
            process.kill()
            process.communicate()
            wait_for_end(workers)
            done.append(self.check())
            self.assertGreaterEqual(done[-1], done[-2])
        self.finish()

    def test_a_worker_at_work_ends_with_the_batch(self) -> None:
        with Batch() as batch:
            batch.script()
            batch.add("slow.dxf")
            process = batch.start()
            while not batch.runs_of("slow.dxf"):
                time.sleep(0.01)
            workers = children(process.pid)
            self.assertEqual(batch.states(), {"slow.dxf": "running"})  # a journal that is written can be read
            process.kill()
            process.communicate()
            wait_for_end(workers)
            self.assertEqual(batch.states(), {"slow.dxf": "running"})

    def test_the_last_worker_dies_while_the_last_file_waits_for_it(self) -> None:
        with Batch() as batch:
            batch.script()
            batch.add("1 crash.dxf", "2.dxf")
            self.assertEqual(batch.summary("--jobs", "1")["done"], 2)
            self.assertEqual(batch.runs_of("1 crash.dxf"), 2)

    def test_workers_are_killed_again_and_again(self) -> None:
        process = self.batch.start("--jobs", "2", "--no-thumbnails")
        for kill in range(KILLS):
            self.wait_for(process, 4 * kill)
            workers = children(process.pid)
            if workers:
                os.kill(self.random.choice(workers), signal.SIGKILL)
        output, errors = process.communicate(timeout=600)
        # A file at which a worker was killed twice is told as crashed, and nothing else is.
        rows = self.batch.rows()
        self.assertLessEqual({row["state"] for row in rows.values()}, {"done", "crashed"}, output + errors)
        for row in rows.values():
            self.assertIn(row["kind"], (None, "crash"))
        self.check()
        self.batch.run("--retry")
        self.finish()


if __name__ == "__main__":
    unittest.main()
