"""Files that appear when they are complete."""

from __future__ import annotations

import os


def write_file(path: str | os.PathLike[str], data: bytes) -> None:
    """Writes a file; one that exists is replaced only when all is written."""
    target = os.fspath(path)
    if os.path.exists(target) and not os.path.isfile(target):  # a device or a pipe
        with open(target, "wb") as file:
            file.write(data)
        return
    import tempfile  # takes longer to import than most files to write

    handle, temporary = tempfile.mkstemp(dir=os.path.dirname(os.path.abspath(target)), prefix=".korvan-")
    try:
        with open(handle, "wb") as file:
            file.write(data)
        mask = os.umask(0)
        os.umask(mask)
        os.chmod(temporary, 0o666 & ~mask)
        os.replace(temporary, target)
    except BaseException:
        os.unlink(temporary)
        raise
