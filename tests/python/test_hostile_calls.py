"""A minute of calls with values that nothing was made for: `make fuzz-calls` does the same for longer."""

from __future__ import annotations

import unittest
from concurrent.futures import ThreadPoolExecutor

from hostile_calls import run_process

SEEDS = (1, 2, 3, 4)
ROUNDS = 20_000


class HostileCalls(unittest.TestCase):
    maxDiff = None

    def test_no_call_ends_the_process_or_hangs(self) -> None:
        with ThreadPoolExecutor(2) as processes:
            problems = list(processes.map(lambda seed: run_process(seed, ROUNDS, 250), SEEDS))
        self.assertEqual([problem for problem in problems if problem is not None], [])


if __name__ == "__main__":
    unittest.main()
