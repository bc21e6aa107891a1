"""``python -m korvan`` is the command ``korvan``."""

from __future__ import annotations

import signal
import sys

if __name__ == "__main__":
    # Ctrl-C ends the program without a word until `main` can say one.
    handler = signal.signal(signal.SIGINT, signal.SIG_DFL)
    from korvan.commands import main

    signal.signal(signal.SIGINT, handler)
    sys.exit(main())
