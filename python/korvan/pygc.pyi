import typing
from collections.abc import Iterator

from korvan._version import _ModuleVersionType

VERSION: _ModuleVersionType
_BACKWARD_COMPATIBILITY_THRESHOLD: _ModuleVersionType

@typing.final
class CastResult:
    """The result of a cast: true when it succeeded, and unpacks to (status, value)."""
    @property
    def status(self) -> int:
        """What the managed cast answered: 0 not cast."""
    @property
    def value(self) -> typing.Any:
        """The object as the wanted type, or None."""
    def __bool__(self) -> bool: ...
    def __len__(self) -> int: ...
    def __getitem__(self, index: int, /) -> typing.Any: ...
    def __iter__(self) -> Iterator[typing.Any]: ...
