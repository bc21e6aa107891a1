"""One drawing as one HTML page, which shows it in a browser without network: ``korvan view``.

``build_page`` gives the page as a string, ``write_page`` writes it to a file, ``PageServer`` serves it
on this machine:

    >>> from korvan.viewer import write_page
    >>> write_page("plan.dxf", "plan.html")
"""

from __future__ import annotations

from korvan.viewer.contents import Contents, Layout, Viewport, ViewerError, read_contents
from korvan.viewer.page import build_page, render_page, write_page
from korvan.viewer.server import PageServer

__all__ = [
    "Contents",
    "Layout",
    "PageServer",
    "ViewerError",
    "Viewport",
    "build_page",
    "read_contents",
    "render_page",
    "write_page",
]
