"""PyInstaller hook: korvan.pycore is its extension alone."""

datas: list[tuple[str, str]] = []
binaries: list[tuple[str, str]] = []
hiddenimports: list[str] = []
