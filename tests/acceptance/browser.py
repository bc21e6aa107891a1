"""Drives a headless Chromium through the WebDriver protocol."""

from __future__ import annotations

import base64
import json
import socket
import subprocess
import tempfile
import time
import urllib.error
import urllib.request
from collections.abc import Callable, Sequence
from pathlib import Path
from types import TracebackType
from typing import Any, Self

_FLAGS = (
    "--headless",
    "--no-sandbox",
    "--disable-gpu",
    "--disable-quic",
    "--no-first-run",
    "--disable-background-networking",
    "--disable-component-update",
    "--disable-sync",
    "--hide-scrollbars",
)
_ELEMENT = "element-6066-11e4-a52e-4f735466cecf"
_TIMEOUT = 60.0


def free_port() -> int:
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        port: int = probe.getsockname()[1]
        return port


class Browser:
    """A browser with an empty profile, as a context."""

    def __init__(self, width: int = 1400, height: int = 900, flags: Sequence[str] = ()) -> None:
        self._profile = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        self._flags = [*_FLAGS, *flags, f"--window-size={width},{height}", f"--user-data-dir={self._profile.name}"]
        self._port = free_port()
        self._driver: subprocess.Popen[bytes] | None = None
        self._session = ""

    def __enter__(self) -> Self:
        self._driver = subprocess.Popen(
            ["chromedriver", f"--port={self._port}"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL
        )
        self.wait_for(self._is_ready, "the driver")
        options = {"args": self._flags, "binary": "/usr/bin/chromium"}
        wanted = {"goog:chromeOptions": options, "goog:loggingPrefs": {"browser": "ALL", "performance": "ALL"}}
        created = self._send("POST", "/session", {"capabilities": {"alwaysMatch": wanted}})
        self._session = f"/session/{created['sessionId']}"
        return self

    def __exit__(
        self, kind: type[BaseException] | None, error: BaseException | None, traceback: TracebackType | None
    ) -> None:
        try:
            if self._session:
                self._send("DELETE", self._session)
        finally:
            if self._driver is not None:
                self._driver.terminate()
                self._driver.wait()
            self._profile.cleanup()

    def open(self, url: str) -> None:
        self._send("POST", f"{self._session}/url", {"url": url})

    def run(self, script: str, *arguments: object) -> Any:
        """Runs a function body in the page; what it returns may be a promise."""
        return self._send("POST", f"{self._session}/execute/sync", {"script": script, "args": list(arguments)})

    def wait_for(self, condition: Callable[[], Any] | str, what: str, timeout: float = _TIMEOUT) -> Any:
        """Waits until a condition, or an expression in the page, is true."""
        until = time.monotonic() + timeout
        ask = condition if callable(condition) else lambda: self.run(f"return {condition}")
        while not (found := ask()):
            if time.monotonic() > until:
                raise TimeoutError(f"{what} did not come within {timeout:.0f} s")
            time.sleep(0.02)
        return found

    def click(self, selector: str) -> None:
        element = self._send("POST", f"{self._session}/element", {"using": "css selector", "value": selector})
        self._send("POST", f"{self._session}/element/{element[_ELEMENT]}/click", {})

    def move(self, x: float, y: float, *, click: bool = False) -> None:
        """Moves the mouse to a point of the window, and clicks there."""
        actions = [{"type": "pointerMove", "duration": 0, "x": round(x), "y": round(y)}]
        if click:
            actions += [{"type": "pointerDown", "button": 0}, {"type": "pointerUp", "button": 0}]
        self._perform({"type": "pointer", "id": "mouse", "parameters": {"pointerType": "mouse"}, "actions": actions})

    def drag(self, x: float, y: float, to_x: float, to_y: float, milliseconds: int) -> None:
        """Drags with the mouse."""
        start = {"type": "pointerMove", "duration": 0, "x": round(x), "y": round(y)}
        end = {"type": "pointerMove", "duration": milliseconds, "x": round(to_x), "y": round(to_y)}
        actions = [start, {"type": "pointerDown", "button": 0}, end, {"type": "pointerUp", "button": 0}]
        self._perform({"type": "pointer", "id": "mouse", "parameters": {"pointerType": "mouse"}, "actions": actions})

    def wheel(self, x: float, y: float, delta: int) -> None:
        actions = [{"type": "scroll", "x": round(x), "y": round(y), "deltaX": 0, "deltaY": delta, "duration": 0}]
        self._perform({"type": "wheel", "id": "wheel", "actions": actions})

    def press(self, *keys: str) -> None:
        actions = [{"type": kind, "value": key} for key in keys for kind in ("keyDown", "keyUp")]
        self._perform({"type": "key", "id": "keys", "actions": actions})

    def screenshot(self, path: Path) -> bytes:
        data = base64.b64decode(self._send("GET", f"{self._session}/screenshot"))
        path.write_bytes(data)
        return data

    def console(self) -> list[str]:
        """Warnings and errors of the page since the last call."""
        entries = self._send("POST", f"{self._session}/se/log", {"type": "browser"})
        return [entry["message"] for entry in entries if entry["level"] in ("SEVERE", "WARNING")]

    def requests(self) -> list[str]:
        """Addresses that were asked for since the last call."""
        entries = self._send("POST", f"{self._session}/se/log", {"type": "performance"})
        events = [json.loads(entry["message"])["message"] for entry in entries]
        return [event["params"]["request"]["url"] for event in events if event["method"] == "Network.requestWillBeSent"]

    def _is_ready(self) -> bool:
        try:
            return bool(self._send("GET", "/status")["ready"])
        except OSError:
            return False

    def _perform(self, source: dict[str, object]) -> None:
        self._send("POST", f"{self._session}/actions", {"actions": [source]})

    def _send(self, method: str, path: str, body: dict[str, object] | None = None) -> Any:
        data = None if body is None else json.dumps(body).encode()
        request = urllib.request.Request(f"http://127.0.0.1:{self._port}{path}", data, method=method)
        request.add_header("Content-Type", "application/json")
        try:
            with urllib.request.urlopen(request, timeout=_TIMEOUT) as answer:
                return json.load(answer)["value"]
        except urllib.error.HTTPError as error:
            failure = json.load(error)["value"]
            raise RuntimeError(f"{failure['error']}: {failure['message'].splitlines()[0]}") from None
