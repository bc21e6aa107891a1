import collections.abc
import typing

import typing_extensions
from korvan.pygc import CastResult
from korvan.pyreflection import Enum, Type

T = typing.TypeVar("T")
# What may be put in, where it is more than what comes out.
Given = typing_extensions.TypeVar("Given", default=T)
# The items of a collection without an element type.
Item = typing_extensions.TypeVar("Item", default=typing.Any)
OnInstance = typing.TypeVar("OnInstance", covariant=True)
OnClass = typing.TypeVar("OnClass", covariant=True)

class BoundObject:
    """What every bound type has."""

    def get_type(self) -> Type:
        """The managed type of the object."""
    @staticmethod
    def _type_of() -> Type:
        """The managed type that this type stands for."""
    @classmethod
    def _cast_to(cls, value: typing.Any, /) -> CastResult[typing.Self]:
        """Views an object, or a Python value as managed code takes it, as one of this type.

        :returns: A result that is true and has the `value` when the object is one, else false.
        """
    def _cast_from(self, type: Type, /) -> CastResult[typing.Any]:
        """Converts the object by a conversion that its type declares.

        :param type: The managed type that is wanted.
        :returns: A result that is true and has the `value` when there is such a conversion, else false.
        """
    @classmethod
    def _reinterpret_obj(cls, value: typing.Any, /) -> typing.Self:
        """Takes a managed object of any type to be one of this type.

        :param value: An `Object` of `korvan.pyreflection`.
        :raises RuntimeError: It is none.
        """
    @classmethod
    def _cast_as(cls, value: typing.Any, /) -> CastResult[typing.Self]:
        """Views a bound object as one of this type.

        :returns: A result that is true and has the `value` when the object is one, else false.
        """
    @staticmethod
    def _is_assignable(value: typing.Any, /) -> bool:
        """Whether a parameter of this type takes the object."""

class BoundEnum(BoundObject):
    """What every bound enum has beside its members."""

    def _as_uni_enum(self) -> Enum:
        """The value in a managed box, which knows its name and its type."""

class MixedMethod(typing.Generic[OnInstance, OnClass]):
    """A method that is one thing on an instance and another one on the class."""

    @typing.overload
    def __get__(self, instance: None, owner: type, /) -> OnClass: ...
    @typing.overload
    def __get__(self, instance: object, owner: type | None = ..., /) -> OnInstance: ...

class TextSequence(typing.Protocol):
    """A sequence of strings. A string itself is none: it would be taken character by character."""

    def __len__(self) -> int: ...
    def __iter__(self) -> collections.abc.Iterator[str]: ...
    def __contains__(self, value: object, /) -> bool: ...
    @typing.overload
    def __getitem__(self, index: int, /) -> str: ...
    @typing.overload
    def __getitem__(self, index: slice, /) -> collections.abc.Sequence[str]: ...

class IterableView(collections.abc.Iterable[T], typing.Generic[T, Given]):
    """A managed collection that can be walked."""

    def __iter__(self) -> collections.abc.Iterator[T]: ...

class ReadOnlyCollectionView(collections.abc.Collection[T], typing.Generic[T, Given]):
    """A managed collection with a length."""

    def __iter__(self) -> collections.abc.Iterator[T]: ...
    def __len__(self) -> int: ...
    def __contains__(self, value: object, /) -> bool: ...
    @property
    def length(self) -> int:
        """The number of items, as `len` gives it."""
    def count(self, value: Given, /) -> int:
        """How often a value occurs."""
    def contains(self, value: Given, /) -> bool:
        """Whether a value occurs, as `in` tells it."""
    def copy(self) -> list[T]:
        """A Python list of the items."""
    def __add__(self, other: collections.abc.Iterable[T], /) -> list[T]: ...
    def __mul__(self, count: int, /) -> list[T]: ...

class CollectionView(ReadOnlyCollectionView[T, Given], typing.Generic[T, Given]):
    """A managed collection that can be changed."""

    def append(self, value: Given, /) -> None:
        """Adds an item."""
    def remove(self, value: Given, /) -> None:
        """Takes an item away.

        :raises ValueError: There is none like it.
        """
    def clear(self) -> None:
        """Takes all items away."""
    def extend(self, values: collections.abc.Iterable[Given], /) -> None:
        """Adds items."""
    def __iadd__(self, other: collections.abc.Iterable[Given], /) -> typing.Self: ...
    def __imul__(self, count: int, /) -> typing.Self: ...

class ReadOnlyListView(collections.abc.Sequence[T], typing.Generic[T, Given]):
    """A managed list that can be read."""

    @typing.overload
    def __getitem__(self, index: int, /) -> T: ...
    @typing.overload
    def __getitem__(self, index: slice, /) -> list[T]: ...
    def __len__(self) -> int: ...
    @property
    def length(self) -> int:
        """The number of items, as `len` gives it."""
    def contains(self, value: Given, /) -> bool:
        """Whether a value occurs, as `in` tells it."""
    def copy(self) -> list[T]:
        """A Python list of the items."""
    def __add__(self, other: collections.abc.Iterable[T], /) -> list[T]: ...
    def __mul__(self, count: int, /) -> list[T]: ...

class ArrayView(ReadOnlyListView[T, Given], typing.Generic[T, Given]):
    """A managed array: its items can be replaced, its length stands."""

    @typing.overload
    def __setitem__(self, index: int, value: Given, /) -> None: ...
    @typing.overload
    def __setitem__(self, index: slice, value: collections.abc.Sequence[Given], /) -> None: ...
    def sort(self, key: None = None, reverse: bool = False) -> None:
        """Sorts the items in place, by the order that managed code has for them."""
    def reverse(self) -> None:
        """Turns the order of the items around, in place."""

class ListView(ArrayView[T, Given], typing.Generic[T, Given]):
    """A managed list, with the methods of a Python list."""

    def __delitem__(self, index: int | slice, /) -> None: ...
    def append(self, value: Given, /) -> None:
        """Adds an item behind the last one."""
    def insert(self, index: int, value: Given, /) -> None:
        """Puts an item before the one at a place."""
    def extend(self, values: collections.abc.Iterable[Given], /) -> None:
        """Adds items behind the last one."""
    def remove(self, value: Given, /) -> None:
        """Takes the first item like that away.

        :raises ValueError: There is none.
        """
    def pop(self, index: int | None = ..., /) -> T:
        """Takes an item away, the last one where no place is given.

        :returns: The item.
        :raises IndexError: There is none at that place.
        """
    def clear(self) -> None:
        """Takes all items away."""
    def __iadd__(self, other: collections.abc.Iterable[Given], /) -> typing.Self: ...
    def __imul__(self, count: int, /) -> typing.Self: ...
