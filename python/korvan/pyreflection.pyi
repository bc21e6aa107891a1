import typing

from korvan._version import _ModuleVersionType

VERSION: _ModuleVersionType
_BACKWARD_COMPATIBILITY_THRESHOLD: _ModuleVersionType

# Instances come out of managed calls alone.

@typing.final
class Type:
    """A managed type."""
    @property
    def full_name(self) -> str:
        """Namespace and name."""
    @property
    def name(self) -> str:
        """The name alone."""
    @property
    def namespace(self) -> str | None:
        """The namespace, or None."""
    @property
    def is_enum(self) -> bool: ...
    @property
    def is_class(self) -> bool: ...
    @property
    def is_interface(self) -> bool: ...
    @property
    def is_value_type(self) -> bool: ...
    @property
    def is_abstract(self) -> bool: ...
    @property
    def base_type(self) -> Type | None:
        """The type it derives from, or None."""
    def get_type(self) -> Type:
        """The managed type of this object."""
    def __eq__(self, other: object, /) -> bool: ...
    def __ne__(self, other: object, /) -> bool: ...
    def __hash__(self) -> int: ...

@typing.final
class Object:
    """Any managed object."""
    def get_type(self) -> Type:
        """The managed type of this object."""
    def __eq__(self, other: object, /) -> bool: ...
    def __ne__(self, other: object, /) -> bool: ...
    def __hash__(self) -> int: ...

@typing.final
class Enum:
    """A value of a managed enum, boxed."""
    @property
    def name(self) -> str | None:
        """The declared name, or None."""
    @property
    def value(self) -> int:
        """The integer."""
    def get_type(self) -> Type:
        """The managed type of this object."""
    def __int__(self) -> int: ...
    def __eq__(self, other: object, /) -> bool: ...
    def __ne__(self, other: object, /) -> bool: ...
    def __hash__(self) -> int: ...
