"""What a worker process runs; spawned workers find it by its module's name."""

from __future__ import annotations

import io
import os
import threading
from pathlib import Path

DRAWINGS = Path(__file__).resolve().parents[2] / "examples" / "drawings"


def work(number: int) -> tuple[bool, str]:
    """Uses the runtime for a while: whether in another process than the caller's, and a result."""
    from korvan import probe

    echo = probe.Echo()
    echo.text = f"{number}"
    total = 0
    for _ in range(50):
        echo.peer = probe.Echo()
        total = echo.sum(iter((number, 1, 2)))
    try:
        echo.fail("System.Exception", "expected")
    except RuntimeError:
        return os.getppid() != 1, f"{echo.text}:{total}"
    return False, "no failure"


def convert(number: int) -> str:
    """Loads one of the example drawings and saves it in one of the formats: what came out, by its first bytes."""
    from korvan import cad
    from korvan.cad import imageoptions
    from korvan.cad.fileformats.cad import CadImage

    names = ("floor_plan.dxf", "garden_house.ifc", "gate_valve.cgm", "site_plan.dxf")
    kinds = ("Pdf", "Png", "Svg", "Emf", "Dxf", "Tiff", "Jpeg")
    name, kind = names[number % len(names)], kinds[number % len(kinds)]
    page = io.BytesIO()
    with cad.Image.load(str(DRAWINGS / name)) as image:
        if name.endswith(".ifc") or (kind == "Dxf" and CadImage._cast_to(image)):
            image.save(page)
            return page.getvalue()[:4].decode("ascii")
        options = getattr(imageoptions, f"{kind.replace('Dxf', 'Cgm')}Options")()
        options.vector_rasterization_options = imageoptions.CadRasterizationOptions()
        options.vector_rasterization_options.page_width = 400.0
        options.vector_rasterization_options.page_height = 300.0
        image.save(page, options)
    if kind in ("Png", "Jpeg"):
        page.seek(0)
        with cad.Image.load(page) as picture:
            picture.save(io.BytesIO(), imageoptions.BmpOptions())
    return page.getvalue()[:4].decode("latin-1")


def convert_in_threads(count: int) -> str:
    """Converts in a thread each, one after the other: a new thread takes what an old one left."""
    results: list[str] = []
    for number in range(count):
        thread = threading.Thread(target=lambda: results.append(convert(number)))
        thread.start()
        thread.join()
    return "same" if results == [convert(number) for number in range(count)] else "other"
