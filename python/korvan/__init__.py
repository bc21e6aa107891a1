"""The korvan family of extension modules: managed CAD libraries for Python.

``import korvan.cad`` starts the managed runtime inside this process. Where the runtime and its
assemblies lie is told by two environment variables; unless they are set, they are set here to the
folders of this package.
"""

from __future__ import annotations

import os
import sys
from importlib.machinery import ModuleSpec, PathFinder
from types import ModuleType

TYPE_CHECKING = False  # the typing module costs more to import than this package
if TYPE_CHECKING:
    from collections.abc import Sequence
    from importlib.abc import Loader as _Loader
else:
    _Loader = object

# Modules of the family that are installed elsewhere belong to this package, too.
__path__ += [
    folder
    for folder in (os.path.join(entry, __name__) for entry in sys.path)
    if folder not in __path__ and os.path.isdir(folder)
]

_HERE = os.path.dirname(os.path.realpath(__file__))
_RUNTIME_VARIABLE = "NETCORE_WRAPPER_NETCORE_DIR_korvan"
_ASSEMBLY_VARIABLE = "NETCORE_WRAPPER_ASSEMBLY_DIR_korvan"
_WRAP_LIBRARY = "libkorvan.embed.coreclrwrap.so"
_RUNTIME_FILES = (
    _WRAP_LIBRARY,
    "libcoreclr.so",
    "libclrjit.so",
    "libSystem.Native.so",
    "System.Private.CoreLib.dll",
    "System.Runtime.dll",
    "System.Runtime.InteropServices.dll",
    "System.Collections.dll",
)
_ASSEMBLIES = {
    "cad": ("WrpInterop.Korvan.CAD.dll", "Korvan.CAD.dll", "Korvan.CAD.Schemas.dll"),
    "pyreflection": ("WrpInterop.Korvan.PyReflection.dll",),
}


def _check_own_runtime(folder: str) -> None:
    names = os.listdir(folder) if os.path.isdir(folder) else []
    versions = sorted(name for name in names if name.startswith("netcore") and "." in name)
    if not versions:
        raise ImportError(f"korvan: the runtime folder {folder}/netcore<major>.<minor> is missing")
    for version in versions:
        for name in _RUNTIME_FILES:
            path = os.path.join(folder, version, name)
            if not os.path.isfile(path):
                raise ImportError(f"korvan: the package lost the runtime file {path}")


def _check_own_assemblies(folder: str) -> None:
    for product, names in _ASSEMBLIES.items():
        for name in names:
            path = os.path.join(folder, product, name)
            if not os.path.isfile(path):
                raise ImportError(f"korvan: the package lost the assembly {path}")


def _prepare_environment() -> None:
    """Points the extension at this package's runtime and assemblies, and makes sure of them first.

    A host that can't start ends the process, so whatever can be said in Python is said here. A
    variable that the user set is the user's: what it names is not judged.
    """
    if not os.environ.get(_RUNTIME_VARIABLE):
        runtime = os.path.join(_HERE, "netcore")
        _check_own_runtime(runtime)
        os.environ[_RUNTIME_VARIABLE] = runtime
    if not os.environ.get(_ASSEMBLY_VARIABLE):
        assemblies = os.path.join(_HERE, "assemblies")
        _check_own_assemblies(assemblies)
        os.environ[_ASSEMBLY_VARIABLE] = assemblies


class _NamespaceFinder:
    """Lets ``import korvan.cad.imageoptions`` find the namespaces inside the extension.

    They are modules without files, built whole when the extension is imported, and hang on their
    parents as attributes. The same finder prepares the environment before an extension is loaded.
    """

    @classmethod
    def find_spec(
        cls, name: str, path: Sequence[str] | None = None, target: ModuleType | None = None
    ) -> ModuleSpec | None:
        parts = name.split(".")
        if parts[0] != __name__ or len(parts) < 2:
            return None
        if len(parts) == 2:
            spec = PathFinder.find_spec(name, path)
            if spec is not None and spec.origin is None:
                # A folder of stubs or hooks alone: its extension is not there.
                raise ModuleNotFoundError(f"No module named {name!r}", name=name)
            if spec is not None and spec.origin is not None and spec.origin.endswith(".so"):
                _prepare_environment()
            return spec
        parent = sys.modules.get(".".join(parts[:-1]))
        module = getattr(parent, parts[-1], None)
        if not isinstance(module, ModuleType):
            return None
        return ModuleSpec(name, _NamespaceLoader(module), is_package=hasattr(module, "__path__"))


class _NamespaceLoader(_Loader):
    """Hands over a module that exists already."""

    def __init__(self, module: ModuleType) -> None:
        self._module = module

    def create_module(self, spec: ModuleSpec) -> ModuleType:
        return self._module

    def exec_module(self, module: ModuleType) -> None:
        return None


sys.meta_path.insert(0, _NamespaceFinder)
