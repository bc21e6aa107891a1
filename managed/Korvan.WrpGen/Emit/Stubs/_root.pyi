from korvan._version import _ModuleVersionType as _ModuleVersionType

VERSION: _ModuleVersionType
"""The version of this module."""
_BACKWARD_COMPATIBILITY_THRESHOLD: _ModuleVersionType
"""The oldest version that code was built for which this module still serves."""

@typing.final
class _FieldDescrType:
    """Gives a static value of a class at each access."""

@typing.final
class _MixMethodDescrType:
    """Gives a method that is one thing on an instance and another one on the class."""

def get_pyinstaller_hook_dirs() -> list[str]:
    """The folders with the hooks that PyInstaller needs for this package."""

