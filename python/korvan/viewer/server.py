"""Serves one page on this machine."""

from __future__ import annotations

import gzip
import secrets
from http import HTTPStatus
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer
from threading import Thread
from types import TracebackType
from typing import Self

_HOST = "127.0.0.1"


class PageServer:
    """Serves a page on 127.0.0.1, at an address that other users of the machine cannot guess.

    ::

        with PageServer(page) as server:
            webbrowser.open(server.url)
            server.wait()
    """

    def __init__(self, page: str | bytes, port: int = 0) -> None:
        """
        :param page: The page, as ``build_page`` gives it.
        :param port: The port; 0 for a free one.
        """
        path = f"/{secrets.token_urlsafe(24)}/"
        content = page.encode() if isinstance(page, str) else page
        self._server = ThreadingHTTPServer((_HOST, port), _handler(path, content))
        self._server.daemon_threads = True
        self.url = f"http://{_HOST}:{self._server.server_port}{path}"
        self._thread = Thread(target=self._server.serve_forever, daemon=True)

    def __enter__(self) -> Self:
        self._thread.start()
        return self

    def __exit__(
        self, kind: type[BaseException] | None, error: BaseException | None, traceback: TracebackType | None
    ) -> None:
        self._server.shutdown()
        self._server.server_close()

    def wait(self) -> None:
        """Serves until the process is interrupted."""
        while self._thread.is_alive():
            self._thread.join(0.5)


def _handler(path: str, page: bytes) -> type[BaseHTTPRequestHandler]:
    compressed = gzip.compress(page, 1, mtime=0)

    class Handler(BaseHTTPRequestHandler):
        def do_GET(self) -> None:
            self._answer(send_body=True)

        def do_HEAD(self) -> None:
            self._answer(send_body=False)

        def _answer(self, *, send_body: bool) -> None:
            # A page elsewhere that gives its name this address must not read the drawing.
            host = self.headers.get("Host", "").rpartition(":")[0]
            if host not in (_HOST, "localhost") or not secrets.compare_digest(self.path.encode(), path.encode()):
                self.send_error(HTTPStatus.NOT_FOUND)
                return
            takes_gzip = "gzip" in self.headers.get("Accept-Encoding", "")
            body = compressed if takes_gzip else page
            self.send_response(HTTPStatus.OK)
            self.send_header("Content-Type", "text/html; charset=utf-8")
            self.send_header("Content-Length", str(len(body)))
            if takes_gzip:
                self.send_header("Content-Encoding", "gzip")
            self.send_header("Cache-Control", "no-store")
            self.send_header("Referrer-Policy", "no-referrer")
            self.send_header("X-Content-Type-Options", "nosniff")
            self.end_headers()
            if send_body:
                self.wfile.write(body)

        def log_message(self, format: str, *args: object) -> None:
            """Stays silent: the terminal belongs to the command."""

    return Handler
