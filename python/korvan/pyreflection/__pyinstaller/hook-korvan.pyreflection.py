"""PyInstaller hook: the managed half of korvan.pyreflection."""

from korvan.__pyinstaller import collect

datas, binaries = collect("assemblies/pyreflection")
hiddenimports = ["traceback"]
