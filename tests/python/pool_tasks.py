"""What the workers of a pool do in tests."""

from __future__ import annotations

import os
import signal
import time
from collections.abc import Callable


def work(task: str) -> object:
    """Does what the task is named after."""
    actions: dict[str, Callable[[], object]] = {
        "killed": lambda: os.kill(os.getpid(), signal.SIGKILL), "exits": lambda: os._exit(3),
        "hangs": lambda: time.sleep(600), "raises": lambda: [][1], "cannot be sent": lambda: lambda: None,
        "takes memory": lambda: time.sleep(600 * len(bytearray(1 << 29))), "pid": os.getpid,
    }
    return actions.get(task, lambda: task.upper())()
