"""The faces that go into the wheel, a folder a family, and the configuration for systems that have none."""

from __future__ import annotations

from pathlib import Path

HERE = Path(__file__).resolve().parent
TRUETYPE = Path("/usr/share/fonts/truetype")
CONFIGURATION = Path("/usr/share/fontconfig/conf.avail")

FAMILIES = {
    "DejaVu Sans": ("dejavu", "DejaVuSans", ("", "-Bold")),
    "DejaVu Sans Mono": ("dejavu", "DejaVuSansMono", ("", "-Bold")),
    "DejaVu Serif": ("dejavu", "DejaVuSerif", ("", "-Bold")),
    "Liberation Mono": ("liberation", "LiberationMono", ("-Regular", "-Bold", "-Italic", "-BoldItalic")),
    "Liberation Sans": ("liberation", "LiberationSans", ("-Regular", "-Bold", "-Italic", "-BoldItalic")),
    "Liberation Sans Narrow": ("liberation", "LiberationSansNarrow", ("-Regular", "-Bold", "-Italic", "-BoldItalic")),
    "Liberation Serif": ("liberation", "LiberationSerif", ("-Regular", "-Bold", "-Italic", "-BoldItalic")),
}
RULES = (
    "10-hinting-slight", "10-scale-bitmap-fonts", "11-lcdfilter-default", "20-unhint-small-vera", "30-metric-aliases",
    "40-nonlatin", "45-generic", "45-latin", "48-spacing", "49-sansserif", "60-generic", "60-latin", "65-nonlatin",
    "69-unifont", "80-delicious", "90-synthetic",
)  # fmt: skip
"""Rules of the default configuration: which families replace others."""


def files() -> dict[str, Path]:
    """The files, by their names below the package."""
    found = {"fonts/fonts.conf": HERE / "fonts" / "fonts.conf"}
    for family, (folder, stem, styles) in FAMILIES.items():
        for style in styles:
            name = f"{stem}{style}.ttf"
            found[f"fonts/{family}/{name}"] = TRUETYPE / folder / name
    for rule in RULES:
        name = f"{rule}.conf"
        found[f"fonts/conf.d/{name}"] = CONFIGURATION / name
    missing = [str(path) for path in found.values() if not path.is_file()]
    if missing:
        raise SystemExit(f"not installed, see tools/ensure-packages.sh run: {', '.join(missing)}")
    return found
