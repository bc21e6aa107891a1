import typing
from collections.abc import Iterator

from korvan._version import _ModuleVersionType

VERSION: _ModuleVersionType
_BACKWARD_COMPATIBILITY_THRESHOLD: _ModuleVersionType

T = typing.TypeVar("T")

@typing.final
class CastResult(typing.Generic[T]):
    """The result of a cast: true when it succeeded, and unpacks to (status, value)."""
    @property
    def status(self) -> int:
        """What the managed cast answered: 0 not cast."""
    @property
    def value(self) -> T:
        """The object as the wanted type; None when the cast failed."""
    def __bool__(self) -> bool: ...
    def __len__(self) -> int: ...
    def __getitem__(self, index: int, /) -> typing.Any: ...
    def __iter__(self) -> Iterator[typing.Any]: ...
