import types
import typing
from collections.abc import Buffer

from korvan._version import _ModuleVersionType

VERSION: _ModuleVersionType
_BACKWARD_COMPATIBILITY_THRESHOLD: _ModuleVersionType

@typing.final
class BytesAsStream:
    """A read-only stream over a bytes-like object."""
    def __init__(self, buffer: Buffer) -> None: ...
    @property
    def closed(self) -> bool: ...
    def read(self, size: int | None = -1, /) -> bytes:
        """At most size bytes from here on, as bytes."""
    def readinto(self, target: Buffer, /) -> int:
        """Fills a writable buffer and returns the count."""
    def seek(self, offset: int, whence: int = 0, /) -> int:
        """Moves to an offset from start, position or end."""
    def tell(self) -> int:
        """The position."""
    def write(self, data: Buffer, /) -> typing.NoReturn:
        """Always an error: the stream is read-only."""
    def truncate(self, size: int | None = None, /) -> typing.NoReturn:
        """Always an error: the stream is read-only."""
    def readable(self) -> bool: ...
    def seekable(self) -> bool: ...
    def writable(self) -> bool: ...
    def flush(self) -> None: ...
    def close(self) -> None:
        """Gives the bytes back to their owner."""
    def __enter__(self) -> typing.Self: ...
    def __exit__(
        self,
        kind: type[BaseException] | None,
        value: BaseException | None,
        traceback: types.TracebackType | None,
        /,
    ) -> None: ...
