"""Display in notebooks, by IPython's own formatter where it is installed."""

from __future__ import annotations

import base64
import json
import re
import subprocess
import sys
import unittest
import xml.dom.minidom
from pathlib import Path

from korvan.notebook import Table, show
from korvan.tools import ToolError, open_drawing, query
from korvan.cad.fileformats.cad import CadImage

from drawings import EXAMPLES, Png

DEBIAN = Path("/usr/lib/python3/dist-packages")
PLAN = EXAMPLES / "floor_plan.dxf"
# Debian's IPython is pure Python; its path comes last, so that nothing else of it is taken.
FORMAT = f"""
import base64, json, sys
sys.path.append({str(DEBIAN)!r})
from IPython.core.interactiveshell import InteractiveShell
from korvan.notebook import show
from korvan.tools import open_drawing
shell = InteractiveShell.instance()
before, _ = shell.display_formatter.format(open_drawing(sys.argv[1]))
shell.extension_manager.load_extension("korvan.notebook")
found = {{"before": sorted(before)}}
for path in sys.argv[1:]:
    data, _ = shell.display_formatter.format(open_drawing(path))
    found[path] = {{name: base64.b64encode(one).decode() if isinstance(one, bytes) else one
                   for name, one in data.items()}}
shell.extension_manager.unload_extension("korvan.notebook")
found["after"] = sorted(shell.display_formatter.format(open_drawing(sys.argv[1]))[0])
print(json.dumps(found))
"""


class Views(unittest.TestCase):
    def test_a_view_is_svg_png_and_html_of_the_same_width(self) -> None:
        view = show(PLAN, width=500, layers=["A-*"])
        svg = view.svg()
        assert svg is not None
        self.assertEqual(xml.dom.minidom.parseString(svg).documentElement.tagName, "svg")
        png = view.png()
        assert png is not None
        self.assertEqual(Png(png).width, 500)
        match = re.search(r'src="data:image/svg\+xml;base64,([^"]+)"', view.html())
        assert match is not None
        self.assertEqual(base64.b64decode(match[1]).decode(), svg)
        self.assertIn("20920", repr(view))
        for options in ({"layout": "Ground"}, {"layers": ["X"]}):
            with self.assertRaisesRegex(ToolError, "nearest|there are"):
                show(PLAN, **options)

    def test_entities_are_a_table_of_what_differs(self) -> None:
        with open_drawing(PLAN, CadImage) as drawing:
            table = Table(query(drawing, "CIRCLE"))
        self.assertEqual(table.columns, ["layer_name", "center_point", "radius"])
        self.assertIn("<td>120.0</td>", table._repr_html_())

    @unittest.skipUnless((DEBIAN / "IPython").is_dir(), "python3-ipython is not installed")
    def test_open_files_show_themselves_in_ipython(self) -> None:
        paths = [str(EXAMPLES / name) for name in ("floor_plan.dxf", "gate_valve.cgm", "garden_house.ifc")]
        done = subprocess.run([sys.executable, "-c", FORMAT, *paths], capture_output=True, text=True, timeout=120,
                              check=False)
        self.assertEqual(done.returncode, 0, done.stderr)
        found = json.loads(done.stdout.splitlines()[-1])
        self.assertEqual(found["before"], ["text/plain"])
        self.assertEqual(found["after"], ["text/plain"])
        for path in paths[:2]:
            self.assertEqual(set(found[path]), {"text/plain", "text/html", "image/svg+xml", "image/png"})
            Png(base64.b64decode(found[path]["image/png"]))
        self.assertEqual(set(found[paths[2]]), {"text/plain", "text/html"})
        self.assertIn("<td>IfcWall</td><td>6</td>", found[paths[2]]["text/html"])


if __name__ == "__main__":
    unittest.main()
