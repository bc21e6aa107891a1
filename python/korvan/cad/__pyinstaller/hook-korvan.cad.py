"""PyInstaller hook: the drawing library and the modules that the extension imports by name."""

from korvan.__pyinstaller import collect

datas, binaries = collect("assemblies/cad")
hiddenimports = [
    "korvan.pydrawing",
    "korvan.pyreflection",
    "korvan.pygc",
    "korvan.pycore",
    "korvan._pickling",
    "copyreg",
    "datetime",
    "decimal",
    "enum",
    "io",
    "os.path",
    "traceback",
    "uuid",
]
