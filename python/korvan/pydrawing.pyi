import typing

from korvan._version import _ModuleVersionType

VERSION: _ModuleVersionType
_BACKWARD_COMPATIBILITY_THRESHOLD: _ModuleVersionType

@typing.final
class Color:
    """A colour of four parts, each 0 to 255. Without arguments, one that was never set."""
    @typing.overload
    def __new__(cls) -> typing.Self: ...
    @typing.overload
    def __new__(cls, name_or_argb: str | int, /) -> typing.Self: ...
    @typing.overload
    def __new__(cls, r: int, g: int, b: int, a: int = 255) -> typing.Self: ...
    @typing.overload
    @staticmethod
    def from_argb(argb: int, /) -> Color: ...
    @typing.overload
    @staticmethod
    def from_argb(a: int, base: Color, /) -> Color: ...
    @typing.overload
    @staticmethod
    def from_argb(r: int, g: int, b: int, /) -> Color: ...
    @typing.overload
    @staticmethod
    def from_argb(a: int, r: int, g: int, b: int, /) -> Color: ...
    @staticmethod
    def from_name(name: str, /) -> Color:
        """The colour of a name, in upper or lower case."""
    @property
    def a(self) -> int:
        """Opacity, 0 to 255."""
    @property
    def r(self) -> int:
        """Red, 0 to 255."""
    @property
    def g(self) -> int:
        """Green, 0 to 255."""
    @property
    def b(self) -> int:
        """Blue, 0 to 255."""
    @property
    def name(self) -> str:
        """The known name, or the value as aarrggbb."""
    @property
    def is_empty(self) -> bool:
        """Whether the colour was never set."""
    @property
    def is_known_color(self) -> bool:
        """Whether the colour has a name."""
    def to_argb(self) -> int:
        """The colour as a signed number of 32 bits."""
    def __eq__(self, other: object, /) -> bool: ...
    def __ne__(self, other: object, /) -> bool: ...
    def __hash__(self) -> int: ...

@typing.final
class RectangleF:
    """A rectangle in single precision."""
    def __new__(
        cls, x: float = 0, y: float = 0, width: float = 0, height: float = 0
    ) -> typing.Self: ...
    @property
    def x(self) -> float:
        """Left edge."""
    @property
    def y(self) -> float:
        """Top edge."""
    @property
    def width(self) -> float: ...
    @property
    def height(self) -> float: ...
    @property
    def left(self) -> float:
        """Left edge."""
    @property
    def top(self) -> float:
        """Top edge."""
    @property
    def right(self) -> float:
        """Right edge."""
    @property
    def bottom(self) -> float:
        """Bottom edge."""
    @property
    def is_empty(self) -> bool:
        """Whether there is no area."""
    def contains(self, x: float, y: float, /) -> bool:
        """Whether the point x, y lies inside."""
    def __eq__(self, other: object, /) -> bool: ...
    def __ne__(self, other: object, /) -> bool: ...
    def __hash__(self) -> int: ...
