"""Names of a package that are imported when they are first used, so that the package itself loads at once."""

from __future__ import annotations

from importlib import import_module

TYPE_CHECKING = False  # the typing module costs more to import than the package
if TYPE_CHECKING:
    from collections.abc import Callable, Mapping


def lazy_exports(
    package: dict[str, object], modules: Mapping[str, str]
) -> tuple[Callable[[str], object], Callable[[], list[str]]]:
    """``__getattr__`` and ``__dir__`` of a package.

    :param package: The ``globals()`` of the package, which keep what was imported.
    :param modules: For each name the module of the package that has it.
    """

    def get(name: str) -> object:
        if name not in modules:
            raise AttributeError(f"module {package['__name__']!r} has no attribute {name!r}")
        package[name] = getattr(import_module(f"{package['__name__']}.{modules[name]}"), name)
        return package[name]

    def names() -> list[str]:
        return sorted({*modules, *(name for name in package if name.startswith("__"))})

    return get, names
