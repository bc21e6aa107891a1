"""The licences of what the wheel carries, for people and for programs."""

from __future__ import annotations

import json
import re
import subprocess
from collections.abc import Iterable
from dataclasses import dataclass, field
from pathlib import Path


@dataclass
class Component:
    """A part of the wheel that others made."""

    name: str
    version: str
    licences: list[str]
    text: Path
    files: list[str] = field(default_factory=list[str])


def _package_of(path: Path) -> str:
    """The Debian package that a file is from; its folder may be merged into /usr."""
    for name in (str(path), str(path).removeprefix("/usr"), f"/usr{path}"):
        done = subprocess.run(["dpkg", "-S", name], capture_output=True, text=True, check=False)
        if done.returncode == 0:
            return done.stdout.splitlines()[0].split(":")[0]
    raise SystemExit(f"{path} is of no Debian package, so its licence is not known")


def _short_names(text: str) -> list[str]:
    """The licences that a machine-readable copyright file names."""
    names = re.findall(r"^License:[ \t]*(\S[^\n]*)$", text, re.MULTILINE)
    return list(dict.fromkeys(name.strip() for name in names))


def of_debian(files: Iterable[tuple[Path, str]]) -> list[Component]:
    """The components of files of this system, each given with its name in the wheel."""
    components: dict[str, Component] = {}
    for source, name in files:
        package = _package_of(source)
        if package not in components:
            text = Path("/usr/share/doc", package, "copyright")
            version = subprocess.run(["dpkg-query", "-W", "-f", "${source:Package} ${source:Version}", package],
                                     capture_output=True, text=True, check=True).stdout  # fmt: skip
            licences = _short_names(text.read_text(encoding="utf-8"))
            components[package] = Component(package, version, licences, text)
        components[package].files.append(name)
    return [components[package] for package in sorted(components)]


def of_runtime(folder: str) -> list[Component]:
    """The runtime, whose texts lie where the SDK is installed."""
    listed = subprocess.run(["dotnet", "--list-runtimes"], capture_output=True, text=True, check=True).stdout
    version, place = re.findall(r"^Microsoft\.NETCore\.App (10\.0\.\S+) \[(.*)\]$", listed, re.MULTILINE)[-1]
    texts = Path(place).parents[1]
    return [
        Component("dotnet-runtime", version, ["MIT"], texts / "LICENSE.txt", [folder]),
        Component("dotnet-runtime-third-party", version, [], texts / "ThirdPartyNotices.txt", [folder]),
    ]


def listing(components: Iterable[Component]) -> str:
    """components.json: what is from whom, and where its licence is."""
    entries = [
        {
            "component": component.name,
            "version": component.version,
            "licences": component.licences,
            "text": f"{component.name}.txt",
            "files": sorted(component.files),
        }
        for component in components
    ]
    return json.dumps(entries, indent=1, ensure_ascii=False) + "\n"
