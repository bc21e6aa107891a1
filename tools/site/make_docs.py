"""Makes the documentation: pages of docs/, the gallery and the API, as a site that works without network."""

from __future__ import annotations

import argparse
import re
import shutil
import subprocess
import sys
from collections.abc import Sequence
from pathlib import Path

from api_pages import write_api
from gallery import write_gallery

ROOT = Path(__file__).resolve().parents[2]
DOCS = ROOT / "docs"
NAVIGATION: dict[str, Sequence[str]] = {
    "Start": ("index", "installation", "tutorial", "gallery"),
    "Tasks": ("tasks/convert", "tasks/query", "tasks/edit", "tasks/measure", "tasks/render", "tasks/ifc", "batch",
              "viewer", "command-line", "helpers"),
    "Topics": ("concepts", "values", "fonts", "services", "errors", "comparison"),
    "Formats": ("formats/index", "formats/dxf", "formats/dwg", "formats/cgm", "formats/ifc", "formats/pdf",
                "formats/svg", "formats/metafiles", "formats/raster", "formats/meshes"),
}
_TABLE = re.compile(r"<!-- formats: .*?-->\n(.*?)<!-- end of formats -->", re.DOTALL)
_LINK = re.compile(r"(?<!!)\[([^\]]+)\]\(((?:\.\.?/)*[\w./-]+)(?:#[\w-]*)?\)")


def title_of(text: str) -> str:
    return next(line for line in text.splitlines() if line.startswith("# "))[2:].strip()


def copy_pages(target: Path) -> None:
    """Copies the pages. Files elsewhere in the repository are named and not linked: the site has not got them."""
    shutil.copytree(DOCS, target, ignore=shutil.ignore_patterns("mkdocs.yml"))
    for page in target.rglob("*.md"):

        def named(match: re.Match[str], folder: Path = page.parent) -> str:
            path = (folder / match[2]).resolve()
            is_inside = path.is_relative_to(target.resolve())
            return match[0] if is_inside else f"{match[1]} (`{match[2].lstrip('./')}`)"

        page.write_text(_LINK.sub(named, page.read_text(encoding="utf-8")), encoding="utf-8")


def write_formats(target: Path) -> None:
    """The table of the formats, which the tests keep in the README."""
    match = _TABLE.search((ROOT / "README.md").read_text(encoding="utf-8"))
    assert match is not None
    page = target / "formats" / "index.md"
    page.write_text(page.read_text(encoding="utf-8").replace("<!-- table -->", match[1]), encoding="utf-8")


def write_configuration(target: Path, modules: Sequence[str]) -> Path:
    """The configuration of the site: that of docs/, with the navigation over the pages that are there."""
    lines = [(DOCS / "mkdocs.yml").read_text(encoding="utf-8"), "nav:"]
    for section, pages in NAVIGATION.items():
        lines.append(f"  - {section}:")
        lines += [f"      - {page}.md" for page in pages if (target / f"{page}.md").exists()]
    lines.append("  - API:")
    lines.append("      - api/index.md")
    lines += [f"      - {name}: api/{name}.md" for name in modules]
    path = target.parent / "mkdocs.yml"
    path.write_text("\n".join(lines) + "\n", encoding="utf-8")
    return path


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--package", type=Path, default=ROOT / "build" / "release" / "package" / "korvan")
    parser.add_argument("--out", type=Path, default=ROOT / "build" / "docs")
    parser.add_argument("--pages-only", action="store_true", help="write the pages and make no site of them")
    arguments = parser.parse_args()
    source = arguments.out / "source"
    shutil.rmtree(source, ignore_errors=True)
    copy_pages(source)
    write_formats(source)
    write_gallery(source)
    pages = {f"../{path.relative_to(source)}": (title_of(text), text) for path in sorted(source.rglob("*.md"))
             if (text := path.read_text(encoding="utf-8"))}
    modules = write_api(arguments.package, source / "api", pages)
    configuration = write_configuration(source, modules)
    if arguments.pages_only:
        return 0
    site = arguments.out / "site"
    done = subprocess.run(["mkdocs", "build", "--strict", "--quiet", "-f", configuration, "-d", site], check=False)
    if done.returncode == 0:
        print(f"{site / 'index.html'}")
    return done.returncode


if __name__ == "__main__":
    sys.exit(main())
