"""The pool of processes: a task that goes wrong costs only itself."""

from __future__ import annotations

import os
import pickle
import select
import signal
import socket
import subprocess
import sys
import tempfile
import threading
import time
import unittest
from pathlib import Path

from korvan.tools import Pool, ToolError
from korvan.tools.worker import pack

from pool_tasks import work

SCRIPT = """
from korvan.tools import Pool
from pool_tasks import work
print([outcome.value for outcome in Pool(2).map(work, ["a", "b"])])
"""


def kill_a_child() -> None:
    """Kills the first worker that this process has, long before it is ready."""
    while True:
        for path in Path("/proc/self/task").glob("*/children"):
            for pid in path.read_text().split():
                if b"korvan.tools.worker" in Path(f"/proc/{pid}/cmdline").read_bytes():
                    os.kill(int(pid), signal.SIGKILL)
                    return
        time.sleep(0.001)


class Pools(unittest.TestCase):
    def test_tasks_that_go_wrong_cost_only_themselves(self) -> None:
        wanted = {"killed": "died", "exits": "died", "hangs": "timeout", "raises": "failed", "takes memory": "memory",
                  "cannot be sent": "failed"}
        good = [f"good {number}" for number in range(20)]
        tasks = [task for pair in zip(wanted, good, strict=False) for task in pair] + good[len(wanted):]
        with Pool(2, memory=300 << 20, deadline=12) as pool:
            found = {outcome.task: outcome for outcome in pool.map(work, tasks)}
        self.assertEqual(set(found), set(tasks))
        self.assertEqual({task: found[task].status for task in wanted}, wanted)
        self.assertEqual([found[task].value for task in good], [task.upper() for task in good])
        for task, words in (("killed", "SIGKILL"), ("exits", "exit code 3"), ("hangs", "longer than 12 s"),
                            ("takes memory", "300 MiB"), ("raises", "out of range"), ("cannot be sent", "be sent")):
            self.assertIn(words, found[task].error)

    def test_workers_are_kept_replaced_and_not_left_behind(self) -> None:
        with Pool(1, recycle=3, imports=()) as pool:
            first = [outcome.value for outcome in pool.map(work, ["pid"] * 6)]
            self.assertEqual([first.count(one) for one in dict.fromkeys(first)], [3, 3])
            last = next(iter(pool.map(work, ["pid"]))).value
            os.kill(int(str(last)), signal.SIGKILL)  # while it has nothing to do
            os.waitid(os.P_PID, int(str(last)), os.WEXITED | os.WNOWAIT)
            self.assertEqual([one.value for one in pool.map(work, ["a"])], ["A"])
            (pid,) = [one.value for one in pool.map(work, ["pid"])]
        self.assertFalse(Path(f"/proc/{pid}").exists())

    def test_workers_that_are_killed_while_they_start_are_replaced(self) -> None:
        with Pool(2) as pool:
            outcomes = pool.map(work, ["a", "b", "c"])
            thread = threading.Thread(target=kill_a_child, daemon=True)
            thread.start()
            found = sorted((outcome.task, outcome.status) for outcome in outcomes)
            thread.join(60)
        self.assertEqual(found, [("a", "done"), ("b", "done"), ("c", "done")])

    def test_a_worker_whose_last_answer_nobody_reads_ends_quietly(self) -> None:
        ours, theirs = socket.socketpair()
        run = f"from korvan.tools.worker import main; main({theirs.fileno()}, 0)"
        here = {**os.environ, "PYTHONPATH": os.pathsep.join(sys.path)}
        with subprocess.Popen([sys.executable, "-c", run], pass_fds=[theirs.fileno()], stderr=subprocess.PIPE,
                              env=here) as process:
            theirs.close()
            ours.sendall(pack((None, pickle.dumps(os.getpid))))
            self.assertTrue(select.select([ours], [], [], 60)[0])
            ours.close()
            self.assertEqual((process.communicate(timeout=60)[1], process.returncode), (b"", 0))

    def test_leaving_the_loop_ends_what_runs(self) -> None:
        with Pool(2, imports=()) as pool:
            for outcome in pool.map(work, ["a", "hangs", "hangs"]):
                self.assertEqual(outcome.value, "A")
                break
            self.assertEqual([one.value for one in pool.map(work, ["b"])], ["B"])

    def test_a_program_that_starts_itself_again_is_told_so(self) -> None:
        with self.assertRaises(ToolError):
            Pool(0)
        with tempfile.TemporaryDirectory() as folder:
            script = Path(folder, "script.py")
            script.write_text(SCRIPT)
            here = {**os.environ, "PYTHONPATH": os.pathsep.join([*sys.path, str(Path(__file__).parent)])}
            done = subprocess.run([sys.executable, str(script)], capture_output=True, text=True, timeout=120, env=here,
                                  check=False)
        self.assertEqual(done.returncode, 1)
        self.assertIn("if __name__ == '__main__'", done.stderr)


if __name__ == "__main__":
    unittest.main()
