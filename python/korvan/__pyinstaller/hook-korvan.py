"""PyInstaller hook: the managed runtime, which every module of the family shares, with its libraries and fonts."""

from korvan.__pyinstaller import collect

datas, binaries = collect("netcore", "libraries", "fonts")
hiddenimports: list[str] = []
