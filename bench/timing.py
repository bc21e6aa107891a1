"""Smallest time of a statement, fairly beside others: warm first, then in turns."""

from __future__ import annotations

import time
import timeit
from dataclasses import dataclass

WARM_SECONDS = 2.0
ROUNDS = 9
ROUND_SECONDS = 0.05


@dataclass(frozen=True)
class Statement:
    """Something to measure: its text, what it sees, and how many things one run of it does."""

    text: str
    names: dict[str, object]
    setup: str = "pass"
    count: int = 1
    is_managed: bool = True


def _number_for(timer: timeit.Timer) -> int:
    """How many runs fill a round."""
    number = 1
    while (seconds := timer.timeit(number)) < ROUND_SECONDS / 4:
        number *= 2
    return max(1, int(number * ROUND_SECONDS / seconds))


def _warm(timer: timeit.Timer, number: int) -> None:
    """Runs until the runtime has compiled its last version of what is called."""
    end = time.perf_counter() + WARM_SECONDS
    while time.perf_counter() < end:
        timer.timeit(number)


def measure(statements: list[Statement]) -> list[float]:
    """Seconds of each statement, the smallest of several rounds taken in turns."""
    timers = [timeit.Timer(one.text, one.setup, globals=one.names) for one in statements]
    numbers = [_number_for(timer) for timer in timers]
    for one, timer, number in zip(statements, timers, numbers):
        if one.is_managed:
            _warm(timer, number)
    # The speed that a statement reached decides how many fill a round now.
    numbers = [_number_for(timer) for timer in timers]
    best = [float("inf")] * len(timers)
    for _ in range(ROUNDS):
        for at, (timer, number) in enumerate(zip(timers, numbers)):
            best[at] = min(best[at], timer.timeit(number) / number / statements[at].count)
    return best
