"""``python -m korvan`` is the command ``korvan``."""

from __future__ import annotations

import sys

from korvan.commands import main

if __name__ == "__main__":
    sys.exit(main())
