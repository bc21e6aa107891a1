"""The korvan family of extension modules: managed CAD libraries for Python.

``import korvan.cad`` starts the managed runtime inside this process. Where the runtime and its
assemblies lie is told by two environment variables; unless they are set, they are set here to the
folders of this package.
"""

from __future__ import annotations

import os
import sys
from importlib.machinery import ExtensionFileLoader, ModuleSpec, PathFinder
from types import ModuleType

TYPE_CHECKING = False  # the typing module costs more to import than this package
if TYPE_CHECKING:
    from collections.abc import Callable, Iterator, Sequence
    from importlib.abc import Loader as _Loader
else:
    _Loader = object

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
_LAST_RESORT = ("libgcc_s.so.1", "libstdc++.so.6")
_LARGEST_VERSION = 2**31 - 1


def _family_folders() -> Iterator[str]:
    """Folders of this package elsewhere on the path, as absolute ones: the working directory may change."""
    for entry in sys.path:
        if not isinstance(entry, str):  # Python passes over these, too
            continue
        try:
            yield os.path.join(os.path.abspath(entry), __name__)
        except FileNotFoundError:  # the working directory is gone
            continue


# Modules of the family that are installed elsewhere belong to this package, too.
__path__ += [folder for folder in dict.fromkeys(_family_folders()) if folder not in __path__ and os.path.isdir(folder)]


def _runtime_version(entry: os.DirEntry[str]) -> tuple[int, int] | None:
    """The version of a folder of a runtime, by the host's rule: ``netcore<digits>.<digits>``, and no link."""
    parts = entry.name.removeprefix("netcore").split(".")
    if not entry.name.startswith("netcore") or len(parts) != 2 or not entry.is_dir(follow_symlinks=False):
        return None
    if not all(part.isascii() and part.isdigit() for part in parts):
        return None
    version = int(parts[0]), int(parts[1])
    if max(version) > _LARGEST_VERSION:
        raise ImportError(f"korvan: the version of the runtime folder {entry.path} is too large")
    return version


def _check_own_runtime(folder: str) -> None:
    """Makes sure of the files of the runtime that the host takes: the newest one with a wrap library."""
    versions: dict[tuple[int, int], str] = {}
    if os.path.isdir(folder):
        with os.scandir(folder) as entries:
            versions = {version: entry.path for entry in entries if (version := _runtime_version(entry)) is not None}
    if not versions:
        raise ImportError(f"korvan: the runtime folder {folder}/netcore<major>.<minor> is missing")
    newest_first = [versions[version] for version in sorted(versions, reverse=True)]
    taken = next((path for path in newest_first if os.path.isfile(os.path.join(path, _WRAP_LIBRARY))), newest_first[0])
    for name in _RUNTIME_FILES:
        path = os.path.join(taken, name)
        if not os.path.isfile(path):
            raise ImportError(f"korvan: the package lost the runtime file {path}")


def _is_whole_assembly(path: str) -> bool:
    """Whether a file has the head of an assembly and the length that the head tells."""
    with open(path, "rb") as file:
        head = file.read(4096)
        length = os.fstat(file.fileno()).st_size
    signature = int.from_bytes(head[60:64], "little")
    if head[:2] != b"MZ" or head[signature : signature + 4] != b"PE\0\0":
        return False
    count = int.from_bytes(head[signature + 6 : signature + 8], "little")
    first = signature + 24 + int.from_bytes(head[signature + 20 : signature + 22], "little")
    ends = [
        int.from_bytes(head[at + 16 : at + 20], "little") + int.from_bytes(head[at + 20 : at + 24], "little")
        for at in range(first, first + 40 * count, 40)
    ]
    return max(ends, default=0) <= length


def _check_own_assemblies(folder: str) -> None:
    for product, names in _ASSEMBLIES.items():
        for name in names:
            path = os.path.join(folder, product, name)
            if not os.path.isfile(path):
                raise ImportError(f"korvan: the package lost the assembly {path}")
            if not _is_whole_assembly(path):
                raise ImportError(f"korvan: the assembly {path} of the package is damaged")


class _Environment:
    """Points extensions at this package's runtime and assemblies while they are loaded.

    A host that can't start ends the process, so whatever can be said in Python is said here. A
    variable that the user set is the user's: what it names is not judged, but that the host can take
    it. Ours are taken back afterwards, so that a child process with another package finds its own.
    """

    def __init__(self) -> None:
        self._users = 0  # imports that are under way: one imports others, and threads import at once
        self._before: dict[str, str | None] = {}  # what stood in place of ours

    def __enter__(self) -> None:
        self._users += 1
        try:
            self._prepare(_RUNTIME_VARIABLE, "netcore", _check_own_runtime)
            self._prepare(_ASSEMBLY_VARIABLE, "assemblies", _check_own_assemblies)
        except BaseException:
            self.__exit__()
            raise

    def __exit__(self, *exception: object) -> None:
        self._users -= 1
        if self._users > 0:
            return
        for variable, before in self._before.items():
            if before is None:
                os.environ.pop(variable, None)
            else:
                os.environ[variable] = before
        self._before.clear()

    def _prepare(self, variable: str, name: str, check: Callable[[str], None]) -> None:
        users = os.environ.get(variable)
        value = users or os.path.join(_HERE, name)
        # The runtime takes lists of folders that are separated by colons.
        if ":" in value or not os.path.isabs(value):
            origin = f"the variable {variable}" if users else "the package's folder"
            raise ImportError(f"korvan: {origin} has to be an absolute path without a colon, not {value!r}")
        if not users:
            check(value)
            self._before[variable] = users
            os.environ[variable] = value


_environment = _Environment()


def _load_last_resort() -> None:
    """Loads the compiler's libraries that the package has for systems without them.

    Where the system has some, all of the process have to use these: they may be newer.
    """
    import ctypes

    for name in _LAST_RESORT:
        ctypes.CDLL(os.path.join(_HERE, "libraries", "last-resort", name))


class _ExtensionLoader(ExtensionFileLoader):
    """Loads an extension of the family, which starts the runtime."""

    def create_module(self, spec: ModuleSpec) -> ModuleType:
        with _environment:
            try:
                return super().create_module(spec)
            except ImportError as error:
                if not str(error).startswith(_LAST_RESORT) or not os.path.isdir(os.path.join(_HERE, "libraries")):
                    raise
                _load_last_resort()
                return super().create_module(spec)


class _NamespaceFinder:
    """Lets ``import korvan.cad.imageoptions`` find the namespaces inside the extension.

    They are modules without files, built whole when the extension is imported, and hang on their
    parents as attributes. The same finder gives the extensions the loader that prepares their start.
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
                if getattr(sys, "frozen", False):
                    return None  # a folder of data alone: another finder has the module
                # A folder of stubs or hooks alone: its extension is not there.
                raise ModuleNotFoundError(f"No module named {name!r}", name=name)
            if spec is not None and spec.origin is not None and spec.origin.endswith(".so"):
                spec.loader = _ExtensionLoader(spec.name, spec.origin)
            return spec
        parent = sys.modules.get(".".join(parts[:-1]))
        module = getattr(parent, parts[-1], None)
        if not isinstance(module, ModuleType):
            return None
        return ModuleSpec(name, _NamespaceLoader(module), is_package=hasattr(module, "__path__"))


class _NamespaceLoader(_Loader):
    """Hands over a module that exists already, as one of this interpreter's own.

    There is one tree of namespaces for all interpreters of a process, and an interpreter that ends
    empties the modules that it imported.
    """

    def __init__(self, module: ModuleType) -> None:
        self._module = module

    def create_module(self, spec: ModuleSpec) -> ModuleType:
        module = ModuleType(spec.name)
        vars(module).update(vars(self._module))
        return module

    def exec_module(self, module: ModuleType) -> None:
        return None


# A package that is imported anew replaces its finder.
sys.meta_path[:] = [finder for finder in sys.meta_path if getattr(finder, "__module__", None) != __name__]
sys.meta_path.insert(0, _NamespaceFinder)
