"""Writes the pages of the API from the stubs of the package: one a module, or one a letter for large modules."""

from __future__ import annotations

import ast
import re
from collections.abc import Iterator, Mapping, Sequence
from dataclasses import dataclass, field
from pathlib import Path

LARGEST = 30  # classes on one page
_PREFIXES = re.compile(r"^(Ifc|Cad|Cgm|Dwg)(?=[A-Z0-9])")
_NAME = re.compile(r"[A-Za-z_][\w.]*")
_FIELD = re.compile(r"^:(param (?P<name>\w+)|returns|raises (?P<error>\w+)):\s*(?P<text>.*)$")
_QUOTED = re.compile(r"`([A-Za-z_]\w*)((?:\.\w+)*)`")


@dataclass
class Class:
    """A class of a stub, and where its page is."""

    module: str
    node: ast.ClassDef
    page: str
    examples: list[tuple[str, str]] = field(default_factory=list[tuple[str, str]])
    """Titles and addresses of pages whose code uses it."""

    @property
    def name(self) -> str:
        return self.node.name


class Links:
    """Addresses of classes by their names, with and without their modules."""

    def __init__(self, classes: Sequence[Class]) -> None:
        self._full = {f"{one.module}.{one.name}": one for one in classes}
        self._short: dict[str, Class] = {}
        for one in classes:
            # A name of several modules is that of the one nearest to the root.
            other = self._short.get(one.name)
            if other is None or len(one.module) < len(other.module):
                self._short[one.name] = one

    def find(self, name: str, module: str) -> Class | None:
        return self._full.get(name) or self._full.get(f"{module}.{name}") or self._short.get(name)

    def of_type(self, expression: str, module: str) -> str:
        """A type as markdown, in which classes are links."""

        def link(match: re.Match[str]) -> str:
            name = match[0]
            found = self._full.get(name) or self._full.get(f"{module}.{name}")
            short = name.rsplit(".", 1)[-1]
            return f"[{short}]({found.page}#{found.name})" if found else short

        return _NAME.sub(link, expression.replace("[", "\\[").replace("|", "\\|"))

    def in_text(self, text: str, module: str) -> str:
        """Markdown in which quoted names of classes, and of their members, are links."""

        def link(match: re.Match[str]) -> str:
            found = self.find(match[1], module)
            return f"[`{match[1]}{match[2]}`]({found.page}#{found.name})" if found else match[0]

        return _QUOTED.sub(link, text)


def page_name(module: str, name: str, is_large: bool) -> str:
    if not is_large:
        return f"{module}.md"
    return f"{module}-{_PREFIXES.sub('', name)[0].lower()}.md"


def is_public(name: str) -> bool:
    return not name.startswith("_")


def read_modules(root: Path) -> dict[str, ast.Module]:
    """The stubs of a package below its folder, by module."""
    modules: dict[str, ast.Module] = {}
    for path in sorted(root.rglob("__init__.pyi")):
        name = ".".join((root.name, *path.parent.relative_to(root).parts))
        if all(is_public(part) for part in name.split(".")):
            modules[name] = ast.parse(path.read_text(encoding="utf-8"))
    return modules


def find_classes(modules: Mapping[str, ast.Module]) -> list[Class]:
    found: list[Class] = []
    for module, tree in modules.items():
        nodes = [node for node in tree.body if isinstance(node, ast.ClassDef) and is_public(node.name)]
        found += [Class(module, node, page_name(module, node.name, len(nodes) > LARGEST)) for node in nodes]
    return found


def paragraphs(docstring: str) -> tuple[str, list[tuple[str, str]]]:
    """The text of a docstring, and its fields: parameters, result and errors."""
    text: list[str] = []
    fields: list[tuple[str, str]] = []
    for line in docstring.splitlines():
        stripped = line.strip()
        if match := _FIELD.match(stripped):
            label = f"`{match['name']}`" if match["name"] else f"*{match['error']}*" if match["error"] else "*returns*"
            fields.append((label, match["text"]))
        elif fields and stripped:
            label, before = fields[-1]
            fields[-1] = (label, f"{before} {stripped}")
        else:
            text.append(stripped)
    return "\n".join(text).strip(), fields


def _cell(text: str) -> str:
    return " ".join(text.split()).replace("|", "\\|") if "\\|" not in text else " ".join(text.split())


def _is(node: ast.FunctionDef, decorator: str) -> bool:
    return any(ast.unparse(one).split(".")[-1] == decorator for one in node.decorator_list)


class ClassPage:
    """Writes one class."""

    def __init__(self, owner: Class, links: Links) -> None:
        self._class = owner
        self._links = links
        self._functions = [node for node in owner.node.body if isinstance(node, ast.FunctionDef)]

    def lines(self) -> Iterator[str]:
        owner = self._class
        yield f"## {owner.name} {{#{owner.name}}}"
        yield ""
        bases = [ast.unparse(base) for base in owner.node.bases]
        shown = [self._type(base) for base in bases if "_Implements" not in base and "BoundObject" not in base
                 and "BoundEnum" not in base]
        if shown:
            yield "Is a " + ", ".join(shown) + ".\n"
        yield self._text(ast.get_docstring(owner.node) or "")
        yield ""
        if owner.examples:
            yield "Examples: " + ", ".join(f"[{title}]({address})" for title, address in owner.examples) + "\n"
        yield from self._members()
        yield from self._properties()
        yield from self._methods()

    def _type(self, expression: str) -> str:
        return self._links.of_type(expression, self._class.module)

    def _text(self, docstring: str) -> str:
        text, fields = paragraphs(docstring)
        lines = [self._links.in_text(text, self._class.module)]
        if fields:
            lines += [""] + [f"- {label}: {self._links.in_text(about, self._class.module)}" for label, about in fields]
        return "\n".join(lines)

    def _members(self) -> Iterator[str]:
        """Members of an enumeration: assignments, each with a docstring after it."""
        body = self._class.node.body
        rows: list[str] = []
        for i, node in enumerate(body):
            if isinstance(node, ast.Assign) and isinstance(node.targets[0], ast.Name):
                after = body[i + 1] if i + 1 < len(body) else None
                is_docstring = isinstance(after, ast.Expr) and isinstance(after.value, ast.Constant)
                about = after.value.value if is_docstring else ""
                text = self._links.in_text(str(about), self._class.module)
                rows.append(f"| `{node.targets[0].id}` | {ast.unparse(node.value)} | {_cell(text)} |")
        if rows:
            yield from ("| Member | Value | |", "|---|---|---|", *rows, "")

    def _properties(self) -> Iterator[str]:
        setters = {node.name: node for node in self._functions if _is(node, "setter")}
        rows: list[str] = []
        for node in self._functions:
            if not _is(node, "property") or not is_public(node.name):
                continue
            kind = self._type(ast.unparse(node.returns) if node.returns else "")
            setter = setters.get(node.name)
            if setter is None:
                kind += " (read-only)"
            elif setter.args.args[1].annotation is not None:
                taken = self._type(ast.unparse(setter.args.args[1].annotation))
                kind += f"; takes {taken}" if taken != kind else ""
            text, fields = paragraphs(ast.get_docstring(node) or "")
            about = " ".join([text, *(f"{label}: {what}" for label, what in fields)])
            rows.append(f"| `{node.name}` | {kind} | {_cell(self._links.in_text(about, self._class.module))} |")
        if rows:
            yield from ("| Property | Type | |", "|---|---|---|", *rows, "")

    def _methods(self) -> Iterator[str]:
        for node in self._functions:
            is_method = not _is(node, "property") and not _is(node, "setter")
            if not is_method or not (is_public(node.name) or node.name == "__init__"):
                continue
            arguments = [one for one in node.args.args if one.arg not in ("self", "cls")]
            if any(one.arg == "no_constructor" for one in node.args.kwonlyargs):
                continue
            shown = ", ".join(f"{one.arg}: {self._type(ast.unparse(one.annotation)) if one.annotation else 'object'}"
                              for one in arguments)
            name = self._class.name if node.name == "__init__" else node.name
            result = "" if node.name == "__init__" or node.returns is None else (
                f" → {self._type(ast.unparse(node.returns))}")
            yield f"**`{name}`**({shown}){result}\n{{: .signature }}"
            yield ""
            yield self._text(ast.get_docstring(node) or "")
            yield ""


def _summary(docstring: str | None) -> str:
    return _cell((docstring or "").split("\n\n")[0])


def module_pages(module: str, tree: ast.Module, classes: Sequence[Class], links: Links) -> Iterator[tuple[str, str]]:
    """The names and texts of the pages of a module."""
    start = [f"# {module}", "", ast.get_docstring(tree) or "", ""]
    pages: dict[str, list[str]] = {f"{module}.md": start}
    if classes:
        start += ["| Class | |", "|---|---|"]
        start += [f"| [{one.name}]({one.page}#{one.name}) | "
                  f"{links.in_text(_summary(ast.get_docstring(one.node)), module)} |" for one in classes]
        start.append("")
    for one in classes:
        heading = [f"# {module}: {one.page.rsplit('-', 1)[-1][0].upper()}", "", f"In [{module}]({module}.md).", ""]
        pages.setdefault(one.page, heading).extend(ClassPage(one, links).lines())
    for name, lines in pages.items():
        yield name, "\n".join(lines) + "\n"


def find_examples(classes: Sequence[Class], pages: Mapping[str, tuple[str, str]]) -> None:
    """Gives classes the pages whose code uses them: titles and texts by address."""
    code = {address: (title, set(re.findall(r"\w+", "".join(re.findall(r"```python\n(.*?)```", text, re.DOTALL)))))
            for address, (title, text) in pages.items()}
    for one in classes:
        one.examples += [(title, address) for address, (title, words) in code.items() if one.name in words][:6]


def write_api(package: Path, target: Path, pages: Mapping[str, tuple[str, str]]) -> list[str]:
    """Writes the pages of the API, and returns the modules.

    :param package: The folder of the package, with its stubs.
    :param target: The folder of the pages.
    :param pages: Other pages, whose code is linked as examples: titles and texts by their address from a page here.
    """
    modules = read_modules(package)
    classes = find_classes(modules)
    find_examples(classes, pages)
    links = Links(classes)
    target.mkdir(parents=True, exist_ok=True)
    names = [name for name in modules if any(one.module == name for one in classes)]
    for name in names:
        own = sorted((one for one in classes if one.module == name), key=lambda one: one.name)
        for page, text in module_pages(name, modules[name], own, links):
            (target / page).write_text(text, encoding="utf-8")
    index = ["# API", "", "Generated from the stubs of the package.", "", "| Module | |", "|---|---|"]
    index += [f"| [{name}]({name}.md) | {_summary(ast.get_docstring(modules[name]))} |" for name in names]
    (target / "index.md").write_text("\n".join(index) + "\n", encoding="utf-8")
    return names
