"""PyInstaller hook: the managed runtime, which every module of the family shares."""

from korvan.__pyinstaller import collect

datas, binaries = collect("netcore")
hiddenimports: list[str] = []
