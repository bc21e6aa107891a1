"""What the stubs say that a member takes, so that most calls get past the first look at their arguments."""

from __future__ import annotations

import ast
import enum
import io
from collections.abc import Callable
from pathlib import Path
from random import Random
from typing import Any

import korvan
from hostile_values import Values
from korvan import probe

# Where the stubs lie: those of the probe are not laid out as a package.
STUBS = (Path(korvan.__file__).resolve().parents[1],
         Path(probe.__file__).resolve().parents[2] / "generated" / "probe" / "stubs")

Forms = dict[str, list[list[ast.expr | None]]]


def forms_of(node: ast.ClassDef) -> Forms:
    """For each member, the types of the parameters of each of its forms."""
    forms: Forms = {}
    for part in node.body:
        if isinstance(part, ast.FunctionDef):
            parameters = [*part.args.posonlyargs, *part.args.args]
            is_static = any(isinstance(d, ast.Name) and d.id == "staticmethod" for d in part.decorator_list)
            if not part.args.kwonlyargs:
                forms.setdefault(part.name, []).append([p.annotation for p in parameters[not is_static:]])
    return forms


class Signatures:
    """Makes arguments that fit, of what is there or can be made."""

    def __init__(self, random: Random, types: list[type], values: Values, live: Callable[[], list[Any]]) -> None:
        self._random = random
        self._live = live
        self._modules: dict[str, dict[str, Forms]] = {}
        self._types: dict[str, list[type]] = {}
        for type_ in types:
            self._types.setdefault(type_.__name__, []).append(type_)
        self._plain: dict[str, Callable[[], Any]] = {
            "int": lambda: random.choice((0, 1, 2, 3, 7, 40, 255, 2**31 - 1, -1)),
            "float": lambda: random.choice((0.0, 1.0, 0.5, 90.0, -1.0, 1e9, float("nan"))),
            "str": lambda: random.choice(("x", "0", "out.pdf", "out.dxf", "gate_valve.cgm", "IfcWall", "Model", "")),
            "bool": lambda: random.random() < 0.5,
            "bytes": lambda: b"\x89PNG" * random.randrange(4),
            "BinaryIO": lambda: io.BytesIO(b"  0\nEOF\n"),
            "None": lambda: None,
            "Any": values.value,
            "object": values.value,
            **{name: lambda name=name: values.claiming(name) for name in values.CLAIMED},
        }

    def arguments(self, type_: type, member: str) -> list[Any] | None:
        """Arguments of one of the member's forms; None where nothing is known of it."""
        forms = [form for base in type_.__mro__ for form in self._forms(base).get(member, ())]
        if not forms:
            return None
        return [self.value(parameter) for parameter in self._random.choice(forms)]

    def value(self, annotation: ast.expr | None, depth: int = 0) -> Any:
        match annotation:
            case ast.BinOp(left, ast.BitOr(), right):
                return self.value(self._random.choice((left, left, right)), depth)
            case ast.Subscript(_, item):
                item = item.elts[0] if isinstance(item, ast.Tuple) else item
                return [self.value(item, depth + 1) for _ in range(self._random.randrange(4))]
            case ast.Constant(None):
                return None
            case ast.Name(name) | ast.Attribute(_, name):
                return self._plain[name]() if name in self._plain else self._object(name, depth)
        return self._random.choice((1, "x", None))

    def _object(self, name: str, depth: int) -> Any:
        types = self._types.get(name)
        if types is None:
            return None
        type_ = self._random.choice(types)
        if issubclass(type_, enum.Enum):
            return self._random.choice(list(type_)) if len(type_) else None
        live = [value for value in self._live() if issubclass(type(value), type_)]
        if live and self._random.random() < 0.7:
            return self._random.choice(live)
        if depth > 2:
            return None
        kinds = [kind for kind in (type_, *type_.__subclasses__()) if "__init__" in self._forms(kind)] or [type_]
        kind = self._random.choice(kinds)
        form = self._random.choice(self._forms(kind).get("__init__", [[]]))
        try:
            return kind(*(self.value(parameter, depth + 1) for parameter in form))
        except Exception:  # noqa: BLE001: it has no such object then
            return None

    def _forms(self, type_: type) -> Forms:
        module = type_.__module__
        if not module.startswith("korvan."):
            return {}
        if module not in self._modules:
            folders = [root.joinpath(*module.split(".")) for root in STUBS]
            paths = [path for folder in folders for path in (folder / "__init__.pyi", folder.with_suffix(".pyi"))]
            stub = next((path for path in paths if path.exists()), None)
            body = ast.parse(stub.read_text(encoding="utf-8")).body if stub else []
            self._modules[module] = {node.name: forms_of(node) for node in body if isinstance(node, ast.ClassDef)}
        return self._modules[module].get(type_.__qualname__, {})
