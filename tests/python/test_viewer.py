"""The pages of the viewer, as far as no browser is needed: what is in them, and how they are served."""

from __future__ import annotations

import base64
import contextlib
import gzip
import hashlib
import html.parser
import http.client
import io
import itertools
import json
import re
import tempfile
import unittest
from pathlib import Path
from typing import Any
from urllib.parse import urlsplit

from korvan.cad import Image
from korvan.cad.fileformats.cad import CadImage
from korvan.cad.fileformats.cad.cadobjects import Cad3DPoint, CadCircle, CadLine
from korvan.cad.imageoptions import CadRasterizationOptions, TiffOptions
from korvan.commands import main
from korvan.viewer.entities import entity_table
from korvan.viewer import Contents, Layout, PageServer, ViewerError, build_page, read_contents, render_page

DRAWINGS = Path(__file__).resolve().parents[2] / "examples" / "drawings"
SITE = DRAWINGS / "site_plan.dxf"
MARKUP = "</script><script>alert(1)</script>"


class Page(html.parser.HTMLParser):
    """The elements of a page with their text."""

    def __init__(self, text: str) -> None:
        super().__init__()
        self.elements: list[tuple[str, dict[str, str | None], list[str]]] = []
        self.feed(text)

    def handle_starttag(self, tag: str, attrs: list[tuple[str, str | None]]) -> None:
        self.elements.append((tag, dict(attrs), []))

    def handle_data(self, data: str) -> None:
        if self.elements:
            self.elements[-1][2].append(data)

    def text(self, tag: str, **attributes: str) -> str:
        found = [text for name, attrs, text in self.elements if name == tag and attributes.items() <= attrs.items()]
        return "".join(found[-1])

    def block(self, name: str) -> bytes:
        return base64.b64decode(self.text("script", id=name).strip(), validate=True)

    def contents(self) -> Any:
        return json.loads(gzip.decompress(self.block("contents")))


class Pages(unittest.TestCase):
    def test_a_page_holds_each_layout_with_what_the_scripts_need(self) -> None:
        page = Page(build_page(SITE))
        contents = page.contents()
        self.assertEqual([layout["name"] for layout in contents["layouts"]], ["Model", "Site 1:500", "Plot 1"])
        self.assertEqual([layout["isSheet"] for layout in contents["layouts"]], [False, True, True])
        self.assertEqual((contents["layouts"][0]["unit"], contents["first"]), ("m", 0))
        scales = [[port["scale"] for port in layout["viewports"]] for layout in contents["layouts"]]
        self.assertEqual([len(ports) for ports in scales], [0, 1, 1])
        for ports, scale in zip(scales[1:], (0.5, 0.25), strict=True):  # millimetres of paper, metres of the model
            self.assertAlmostEqual(ports[0], scale)
        documents = [gzip.decompress(page.block(f"layout-{i}")).decode() for i in range(3)]
        found = [[part in text for part in ('data-name="WATER"', ">Mill Pond<", "data-from-drawing=")]
                 for text in documents]
        self.assertEqual(found, [[True, True, True], [True, True, True], [False, False, True]])

    def test_the_matrix_of_a_layout_leads_from_drawing_units_to_its_page(self) -> None:
        document = gzip.decompress(read_contents(SITE, ["Model"]).layouts[0].data).decode()
        a, b, c, d, e, f = map(float, re.findall(r"-?[\d.]+", document.split('data-from-drawing="')[1].split('"')[0]))
        width = float(document.split('viewBox="0 0 ')[1].split()[0])
        self.assertEqual((b, c, d), (0, 0, -a))
        with Image.load(str(SITE)) as image:
            drawing = CadImage._cast_to(image).value
            self.assertAlmostEqual(a * drawing.max_point.x + e, width, delta=width / 100)
            self.assertAlmostEqual(d * drawing.max_point.y + f, 0, delta=width / 20)

    def test_drawings_that_are_much_higher_than_wide_are_shown(self) -> None:
        drawing = CadImage()
        line = CadLine()
        line.second_point = Cad3DPoint(1.0, 100.0, 0.0)
        drawing.add_entity(line)
        with tempfile.TemporaryDirectory() as folder:
            drawing.save(f"{folder}/high.dxf")
            self.assertEqual([one.message for one in read_contents(f"{folder}/high.dxf").layouts][0], "")

    def test_entities_can_be_found_by_their_boxes(self) -> None:
        table = json.loads(gzip.decompress(Page(build_page(SITE)).block("entities-0")))
        with Image.load(str(SITE)) as image:
            drawing = CadImage._cast_to(image).value
            known = {int(one.object_handle, 16): one for one in drawing.entities}
            handles = list(itertools.accumulate(table["handle"]))
            self.assertEqual(set(handles) - set(known), set())
            columns = (itertools.accumulate(table["x"]), itertools.accumulate(table["y"]), table["width"],
                       table["height"], table["kind"], table["layer"])
            for handle, x, y, width, height, kind, layer in zip(handles, *columns, strict=True):
                one, (left, bottom), step = known[handle], table["origin"], table["step"]
                self.assertEqual(table["kinds"][kind][0], one.type_name_text)
                self.assertEqual(table["layers"][layer], one.layer_name)
                if circle := CadCircle._cast_to(one):
                    at, radius = circle.value.center_point, circle.value.radius
                    self.assertAlmostEqual(left + x * step, at.x - radius, delta=step)
                    self.assertAlmostEqual(bottom + (y + height) * step, at.y + radius, delta=step)
                    self.assertAlmostEqual(width * step, 2 * radius, delta=2 * step)
        self.assertIn("TREE", {block for kind, block, _ in table["kinds"] if kind == "INSERT"})
        with Image.load(str(SITE)) as image:
            self.assertEqual(entity_table(CadImage._cast_to(image).value, "Plot 1", 0)[:2], b"\x1f\x8b")

    def test_layers_start_as_stored_and_are_all_there(self) -> None:
        contents = read_contents(SITE)
        self.assertEqual([layer.name for layer in contents.layers if not layer.visible], ["OLD"])
        self.assertTrue(b'data-name="OLD"' in gzip.decompress(contents.layouts[0].data))

    def test_nothing_is_loaded_and_only_the_own_script_may_run(self) -> None:
        text = build_page(SITE)
        page = Page(text)
        self.assertEqual([attrs for _, attrs, _ in page.elements if "src" in attrs or "href" in attrs], [])
        policy = next(attrs["content"] for _, attrs, _ in page.elements if "http-equiv" in attrs) or ""
        self.assertIn("default-src 'none'", policy)
        for directive, tag in (("script-src", "script"), ("style-src", "style")):
            own = re.findall(rf"<{tag}>(.*?)</{tag}>", text, re.DOTALL)
            self.assertEqual(len(own), 1)
            digest = base64.b64encode(hashlib.sha256(own[0].encode()).digest()).decode()
            self.assertIn(f"{directive} 'sha256-{digest}';", policy)
        self.assertNotRegex(policy, "unsafe|connect-src|https?:")

    def test_names_are_not_markup(self) -> None:
        layout = Layout(MARKUP, gzip.compress(MARKUP.encode()), message=MARKUP)
        page = render_page(Contents(MARKUP, [layout], notes=[MARKUP]))
        self.assertNotIn(MARKUP, page)
        contents = Page(page).contents()
        self.assertEqual([contents["title"], contents["layouts"][0]["name"], contents["notes"][0]], [MARKUP] * 3)
        self.assertIn(f"<title>{html.escape(MARKUP)}</title>", page)

    def test_pages_of_an_image_are_layouts(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder) / "sheets.tif"
            options = TiffOptions()
            raster = CadRasterizationOptions()
            raster.page_width = 300.0
            raster.layouts = ["Model", "Plot 1"]
            options.vector_rasterization_options = raster
            with Image.load(str(SITE)) as image:
                image.save(str(path), options)
            layouts = read_contents(path).layouts
        self.assertEqual([layout.name for layout in layouts], ["Page 1", "Page 2"])
        self.assertTrue(all(layout.is_image and layout.data.startswith(b"\x89PNG") for layout in layouts))
        self.assertNotEqual(layouts[0].data, layouts[1].data)

    def test_what_cannot_be_shown_is_named(self) -> None:
        for path, layouts, message in (
            (DRAWINGS / "garden_house.ifc", None, "solids are not drawn yet; korvan info"),
            (SITE, ["Plan"], "no layout 'Plan'; it has 'Model', 'Site 1:500', 'Plot 1'"),
            (DRAWINGS / "gate_valve.cgm", ["Model"], "only drawings have layouts"),
            (DRAWINGS / "nothing.dxf", None, "no such file"),
        ):
            with self.subTest(path=path.name), self.assertRaisesRegex(ViewerError, re.escape(message)):
                build_page(path, layouts=layouts)
        self.assertEqual([layout.name for layout in read_contents(SITE, ["plot 1"]).layouts], ["Plot 1"])


class Server(unittest.TestCase):
    def answer(self, url: str, path: str, **headers: str) -> tuple[http.client.HTTPResponse, bytes]:
        connection = http.client.HTTPConnection(urlsplit(url).netloc, timeout=100)
        self.addCleanup(connection.close)
        connection.request("GET", path, headers=headers)
        response = connection.getresponse()
        return response, response.read()

    def test_the_page_has_an_address_of_its_own(self) -> None:
        with PageServer("<p>site 7</p>") as one, PageServer("<p>other</p>") as other:
            self.assertNotEqual(urlsplit(one.url).path, urlsplit(other.url).path)
            path = urlsplit(one.url).path
            response, body = self.answer(one.url, path)
            self.assertEqual((response.status, body), (200, b"<p>site 7</p>"))
            response, body = self.answer(one.url, path, **{"Accept-Encoding": "gzip"})
            self.assertEqual(gzip.decompress(body), b"<p>site 7</p>")
            for wrong, headers in (("/", {}), (path[:-2] + "/", {}), (path, {"Host": "drawings.example:80"})):
                with self.subTest(path=wrong, headers=headers):
                    response, body = self.answer(one.url, wrong, **headers)
                    self.assertEqual(response.status, 404)
                    self.assertNotIn(b"site 7", body)


class Command(unittest.TestCase):
    def run_command(self, *arguments: str) -> tuple[int, str, str]:
        with contextlib.redirect_stdout(io.StringIO()) as out, contextlib.redirect_stderr(io.StringIO()) as err:
            code = main(["view", *arguments])
        return code, out.getvalue(), err.getvalue()

    def test_a_page_is_written(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            page = Path(folder) / "plan.html"
            arguments = ("-o", str(page), "--layout", "Plot 1", "--title", "Plot", "--json")
            code, out, err = self.run_command(str(SITE), *arguments)
            self.assertEqual((code, err), (0, ""))
            self.assertEqual((json.loads(out)["page"], json.loads(out)["bytes"]), (str(page), page.stat().st_size))
            contents = Page(page.read_text(encoding="utf-8")).contents()
            self.assertEqual((contents["title"], contents["layouts"][0]["name"]), ("Plot", "Plot 1"))

    def test_a_failure_is_one_line(self) -> None:
        for named, *arguments in (("garden_house.ifc", str(DRAWINGS / "garden_house.ifc")),
                                  ("/nowhere/page.html", str(SITE), "-o", "/nowhere/page.html")):
            with self.subTest(named):
                code, out, err = self.run_command(*arguments)
                self.assertEqual((code, out, err.count("\n")), (1, "", 1))
                self.assertIn(named, err)


if __name__ == "__main__":
    unittest.main()
