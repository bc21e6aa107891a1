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

    def run_for(self, seconds: float) -> subprocess.Popen[str]:
        process = self.batch.start("--jobs", "2", "--no-thumbnails")
        try:
            process.wait(seconds)
        except subprocess.TimeoutExpired:
            pass
        return process

    def test_the_whole_batch_is_killed_again_and_again(self) -> None:
        done = [0]
        for _ in range(KILLS):
            process = self.run_for(self.random.uniform(0.2, 2.5))
            workers = children(process.pid)
            process.kill()
            process.communicate()
            end = time.monotonic() + 10
            while any(os.path.exists(f"/proc/{worker}") for worker in workers):
                self.assertLess(time.monotonic(), end, "workers outlive the batch")
                time.sleep(0.01)
            done.append(self.check())
            self.assertGreaterEqual(done[-1], done[-2])
        self.finish()

    def test_workers_are_killed_again_and_again(self) -> None:
        process = self.batch.start("--jobs", "2", "--no-thumbnails")
        for _ in range(KILLS):
            time.sleep(self.random.uniform(0.05, 0.6))
            workers = children(process.pid)
            if workers:
                os.kill(self.random.choice(workers), signal.SIGKILL)
        output, errors = process.communicate(timeout=120)
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
