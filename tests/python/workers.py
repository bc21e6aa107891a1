"""What a worker process runs; spawned workers find it by its module's name."""

from __future__ import annotations

import os


def work(number: int) -> tuple[bool, str]:
    """Uses the runtime for a while: whether in another process than the caller's, and a result."""
    from korvan import probe

    echo = probe.Echo()
    echo.text = f"{number}"
    total = 0
    for _ in range(50):
        echo.peer = probe.Echo()
        total = echo.sum(iter((number, 1, 2)))
    try:
        echo.fail("System.Exception", "expected")
    except RuntimeError:
        return os.getppid() != 1, f"{echo.text}:{total}"
    return False, "no failure"
