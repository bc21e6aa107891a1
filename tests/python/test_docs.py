"""The documentation: its code runs, its links lead somewhere, and the pages of the API come out of the stubs."""

from __future__ import annotations

import ast
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
DOCS = ROOT / "docs"
sys.path.insert(0, str(ROOT / "tools" / "site"))

import api_pages  # noqa: E402
import gallery  # noqa: E402
import make_docs  # noqa: E402

# Pages whose code needs files that only their readers have, and those that run with the examples (test_examples.py).
NOT_RUN = {"concepts.md", "fonts.md", "helpers.md", "services.md", "tutorial.md"}
LINK = re.compile(r"\]\((?!https?:)([^)#\s]*)(?:#([\w-]+))?\)")
STUB = '''
class Base: ...
class Options(Base):
    """Options that `Options.width` is of, and `nothing` else.

    More.
    """
    def __init__(self) -> None:
        """Creates options."""
    @property
    def width(self) -> float:
        """Gets or sets the width | in `Kind.A`."""
    @width.setter
    def width(self, value: float) -> None: ...
    @property
    def items(self) -> korvan.cad._typing.ListView[korvan.cad.Base]:
        """Gets the items."""
    def save(self, path: str, kind: korvan.cad.Kind) -> Base | None:
        """Saves it.

        :param path: The path,
            or another one.
        :raises RuntimeError: Late.
        """
class Kind(enum.IntEnum):
    """A kind."""
    A = 1
    """The `first`."""
class _Hidden: ...
'''


def pages() -> list[Path]:
    return sorted(path for path in DOCS.rglob("*.md") if path.relative_to(DOCS).parts[0] != "issues")


def code_of(text: str) -> str:
    """The code of a page. What cannot run has a comment before it that tells why: ``<!-- not run: a server -->``."""
    return "\n".join(re.findall(r"(?<!-->\n)```python\n(.*?)```", text, re.DOTALL))


def slug(heading: str) -> str:
    """The anchor of a heading, as the site makes it."""
    text = re.sub(r"\{#.*\}$", "", heading).replace("`", "").strip().lower()
    return re.sub(r"[\s-]+", "-", re.sub(r"[^\w\s-]", "", text)).strip("-")


class Pages(unittest.TestCase):
    def test_the_code_runs(self) -> None:
        for page in pages():
            code = code_of(page.read_text(encoding="utf-8"))
            if not code or page.name in NOT_RUN:
                continue
            with self.subTest(page=str(page.relative_to(DOCS))), tempfile.TemporaryDirectory() as folder:
                (Path(folder) / "examples").symlink_to(ROOT / "examples")
                (Path(folder) / "build").mkdir()
                done = subprocess.run([sys.executable, "-c", code], cwd=folder, capture_output=True, text=True,
                                      timeout=240, check=False)
                self.assertEqual(done.returncode, 0, done.stderr)

    def test_links_lead_to_pages_and_headings(self) -> None:
        broken: list[str] = []
        for page in pages():
            for target, anchor in LINK.findall(page.read_text(encoding="utf-8")):
                found = (page.parent / target).resolve() if target else page
                # Pages of the API and the gallery are made with the site, which checks their links itself.
                if found.is_relative_to(DOCS / "api") or found == DOCS / "gallery.md":
                    continue
                headings = (re.findall(r"^#+ (.*)$", found.read_text(encoding="utf-8"), re.MULTILINE)
                            if found.suffix == ".md" and found.exists() else [])
                if not found.exists() or (anchor and anchor not in map(slug, headings)):
                    broken.append(f"{page.relative_to(DOCS)}: {target}#{anchor}")
        self.assertEqual(broken, [])

    def test_every_page_is_in_the_navigation(self) -> None:
        listed = {f"{name}.md" for names in make_docs.NAVIGATION.values() for name in names}
        self.assertEqual({str(page.relative_to(DOCS)) for page in pages()} - listed, set())


class Api(unittest.TestCase):
    def test_a_module_becomes_a_page(self) -> None:
        modules = {"korvan.cad": ast.parse(STUB)}
        classes = api_pages.find_classes(modules)
        self.assertEqual([one.name for one in classes], ["Base", "Options", "Kind"])
        example = "```python\noptions = Options()\n```"
        api_pages.find_examples(classes, {"../render.md": ("Render", example), "../edit.md": ("Edit", "Options")})
        links = api_pages.Links(classes)
        [(name, page)] = api_pages.module_pages("korvan.cad", modules["korvan.cad"], classes, links)
        self.assertEqual(name, "korvan.cad.md")
        base = "[Base](korvan.cad.md#Base)"
        for part in (
            "## Options {#Options}", f"Is a {base}.", "Examples: [Render](../render.md)\n",
            "[`Options.width`](korvan.cad.md#Options) is of, and `nothing` else.",
            "| `width` | float | Gets or sets the width \\| in [`Kind.A`](korvan.cad.md#Kind). |",
            f"| `items` | ListView\\[{base}] (read-only) | Gets the items. |",
            f"**`save`**(path: str, kind: [Kind](korvan.cad.md#Kind)) → {base} \\| None",
            "- `path`: The path, or another one.", "- *RuntimeError*: Late.", "| `A` | 1 | The `first`. |",
        ):
            self.assertIn(part, page)
        self.assertNotIn("_Hidden", page)

    def test_large_modules_have_a_page_for_each_letter(self) -> None:
        names = [f"IfcWall{i}" for i in range(20)] + [f"IfcDoor{i}" for i in range(20)]
        tree = ast.parse("\n".join(f"class {name}: ..." for name in names))
        classes = api_pages.find_classes({"m": tree})
        written = dict(api_pages.module_pages("m", tree, classes, api_pages.Links(classes)))
        self.assertEqual(set(written), {"m.md", "m-d.md", "m-w.md"})
        self.assertIn("[IfcDoor7](m-d.md#IfcDoor7)", written["m.md"])
        self.assertIn("## IfcDoor7 {#IfcDoor7}", written["m-d.md"])


class Gallery(unittest.TestCase):
    def test_the_code_that_is_shown_is_a_program(self) -> None:
        for title, drawing, settings, _ in gallery.ENTRIES:
            with self.subTest(title):
                self.assertTrue((ROOT / "examples" / "drawings" / drawing).exists())
                ast.parse(gallery.code_of(drawing, settings, "build/image.png"))


if __name__ == "__main__":
    unittest.main()
