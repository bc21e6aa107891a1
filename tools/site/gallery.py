"""Images of the gallery, which the build of the documentation makes, each with the code that makes it."""

from __future__ import annotations

from pathlib import Path
from textwrap import dedent

_PLAN = """
    raster.layouts = ["Ground floor"]
    raster.page_width = 1400.0
"""
VIEWED = "floor_plan.dxf"
# Title, drawing, code between the options and the save, and what the image shows.
ENTRIES = (
    ("A layout as it is plotted", "floor_plan.dxf", _PLAN,
     "The paper of the layout with its viewports, line weights and title block."),
    ("Model space on a dark background", "site_plan.dxf", """
        raster.page_width = 1400.0
        raster.background_color = Color.from_argb(24, 26, 32)
     """, "White and black change sides with the background, as on a screen."),
    ("Some layers", "site_plan.dxf", """
        raster.page_width = 1400.0
        raster.layers = ["CONTOUR", "CONTOUR-5", "WATER", "TREE"]
     """, "Case is ignored; a name that is not there is reported."),
    ("One colour", "bearing_flange.dxf", """
        raster.page_width = 1400.0
        raster.draw_type = CadDrawTypeMode.USE_DRAW_COLOR
        raster.draw_color = Color.from_argb(20, 60, 140)
     """, "For prints on which colours mean nothing."),
    ("A schematic", "heating_schematic.dxf", """
        raster.page_width = 1400.0
     """, "Blocks with attributes, line types with text, hatches."),
    ("A metafile", "gate_valve.cgm", """
        raster.page_width = 1000.0
     """, "CGM, binary or clear text, is rendered like a drawing."),
)


def code_of(drawing: str, settings: str, image: str) -> str:
    """The program that makes an image."""
    imports = ["import korvan.cad"]
    if "Color." in settings:
        imports.append("from korvan.cad import Color")
    if "CadDrawTypeMode" in settings:
        imports.append("from korvan.cad.fileformats.cad import CadDrawTypeMode")
    imports.append("from korvan.cad.imageoptions import CadRasterizationOptions, PngOptions")
    settings = "\n".join(line.strip() for line in dedent(settings).strip().splitlines())
    return "\n".join(imports) + dedent(f"""

        raster = CadRasterizationOptions()
        {{settings}}
        options = PngOptions()
        options.vector_rasterization_options = raster
        with korvan.cad.Image.load("examples/drawings/{drawing}") as image:
            image.save("{image}", options)
        """).replace("{settings}", settings)


def write_gallery(target: Path) -> None:
    """Writes the page and its images; the working directory has to be that of the project."""
    from korvan.viewer import write_page

    folder = target / "gallery"
    folder.mkdir(parents=True, exist_ok=True)
    lines = ["# Gallery", "", "Made by the build of this documentation from the drawings in `examples/drawings`.", ""]
    for number, (title, drawing, settings, about) in enumerate(ENTRIES, 1):
        name = f"{number}-{Path(drawing).stem}.png"
        exec(compile(code_of(drawing, settings, str(folder / name)), title, "exec"), {})
        code = code_of(drawing, settings, f"build/{name}")
        lines += [f"## {title}", "", about, "", f"![{title}](gallery/{name})", "", "```python", code.strip(), "```", ""]
    write_page(Path("examples") / "drawings" / VIEWED, folder / "viewer.html")
    lines += ["## In the browser", "", "The page that `korvan view` makes of a drawing: "
              "[open it](gallery/viewer.html). It has layouts, layers, text search and measuring. "
              "See [View](viewer.md).", ""]
    (target / "gallery.md").write_text("\n".join(lines), encoding="utf-8")
