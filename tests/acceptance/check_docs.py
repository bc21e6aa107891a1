"""Makes the documentation and uses it in a headless Chromium: no page is missing, the search finds, nothing is loaded
from elsewhere."""

from __future__ import annotations

import functools
import http.server
import subprocess
import sys
import threading
from pathlib import Path

from browser import Browser
from prerequisites import ROOT, require

SITE = ROOT / "build" / "docs" / "site"
RESULTS = ROOT / "build" / "acceptance"
SEARCH = """
const input = document.querySelector(".md-search__input");
input.focus();
input.value = arguments[0];
input.dispatchEvent(new Event("input", { bubbles: true }));
input.dispatchEvent(new KeyboardEvent("keyup", { bubbles: true }));
"""
FOUND = "[...document.querySelectorAll('.md-search-result__title, .md-search-result h1')].map((one) => one.textContent)"


class Handler(http.server.SimpleHTTPRequestHandler):
    def log_message(self, format: str, *args: object) -> None:
        """Stays silent."""


def check(browser: Browser, address: str) -> None:
    browser.open("about:blank")
    browser.requests()
    for page in ("index.html", "gallery.html", "formats/dxf.html", "api/korvan.cad.imageoptions.html"):
        browser.open(address + page)
        missing = browser.run("return [...document.images].filter((image) => !image.naturalWidth).length")
        assert missing == 0, f"{page}: {missing} images are missing"
    browser.screenshot(RESULTS / "docs-api.png")
    browser.open(address + "index.html")
    browser.run(SEARCH, "page_width")
    browser.wait_for(f"{FOUND}.some((title) => title.includes('Render'))", "the page on rendering among the results")
    browser.screenshot(RESULTS / "docs-search.png")
    others = [url for url in browser.requests() if not url.startswith((address, "data:", "about:", "chrome"))]
    assert not others, f"connections: {others}"
    assert browser.console() == [], "messages on the console"


def main() -> int:
    require("chromium", "chromedriver", "mkdocs")
    RESULTS.mkdir(parents=True, exist_ok=True)
    made = subprocess.run([sys.executable, ROOT / "tools" / "site" / "make_docs.py"], cwd=ROOT, check=False)
    if made.returncode != 0:
        return 1
    handler = functools.partial(Handler, directory=str(SITE))
    with http.server.ThreadingHTTPServer(("127.0.0.1", 0), handler) as server, Browser(1300, 1000) as browser:
        threading.Thread(target=server.serve_forever, daemon=True).start()
        check(browser, f"http://127.0.0.1:{server.server_port}/")
        server.shutdown()
    pages = sum(1 for _ in Path(SITE).rglob("*.html"))
    print(f"{pages} pages: right")
    return 0


if __name__ == "__main__":
    sys.exit(main())
