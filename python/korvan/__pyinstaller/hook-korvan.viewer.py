"""PyInstaller hook: the parts of the page."""

from korvan.__pyinstaller import collect

datas, binaries = collect("viewer")
hiddenimports: list[str] = []
