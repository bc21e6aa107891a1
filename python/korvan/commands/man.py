"""``korvan man``: the manual page."""

from __future__ import annotations

import argparse
from typing import Any

from korvan.commands.common import parser_for

_EXAMPLES = """  korvan man | man -l -
  korvan man > ~/.local/share/man/man1/korvan.1
"""
_HEAD = r""".TH KORVAN 1 "" "korvan.cad {version}" "User Commands"
.SH NAME
korvan \- convert, inspect, search and compare CAD drawings
.SH SYNOPSIS
.B korvan
.I COMMAND
.RI [ OPTION ]...
.I FILE...
.SH DESCRIPTION
Reads and writes DXF and DWG drawings, building models (IFC) and computer graphics metafiles (CGM), and renders them to
PDF, SVG, images and meshes. The format of a file is detected from its content; the format that is written follows from
the extension of the target.
.PP
Errors are printed on standard error, one line a file; the other files go on.
With
.BR \-\-json ,
results are JSON documents, one a line and one line a file.
"""
_TAIL = r""".SH EXIT STATUS
.TP
.B 0
All succeeded.
.TP
.B 1
Some failed; or there are differences or defects, with
.BR \-\-exit\-code .
.TP
.B 2
Wrong usage.
.TP
.B 130
Interrupted. No half file is left.
.SH ENVIRONMENT
.TP
.B COREHOST_TRACE
1 prints how the runtime is started.
"""


def add_parser(subparsers: Any) -> None:
    parser_for(subparsers, "man", "Prints the manual page of korvan.", _EXAMPLES)


def _escaped(text: str) -> str:
    text = text.replace("%%", "%").replace("\\", r"\e").replace("-", r"\-")
    return r"\&" + text if text.startswith((".", "'")) else text


def _option(action: argparse.Action) -> str:
    name = f" \\fI{_escaped(str(action.metavar or action.dest.upper()))}\\fR" if action.nargs != 0 else ""
    flags = ", ".join(f"\\fB{_escaped(flag)}\\fR" for flag in action.option_strings)
    return f".TP\n{flags}{name}\n{_escaped(action.help or '')}\n"


def page() -> str:
    """The manual page in the language of man."""
    import korvan.cad
    from korvan.commands import installed_commands, make_parser

    parser = make_parser(installed_commands())
    found: Any = next(one for one in parser._actions if isinstance(one, argparse._SubParsersAction))  # pyright: ignore
    text = _HEAD.replace("{version}", korvan.cad.BuildVersionInfo.product_version) + ".SH COMMANDS\n"
    for name, sub in found.choices.items():
        arguments = [one for one in sub._actions if not one.option_strings]
        metavars = " ".join(_escaped(str(one.metavar or one.dest)) for one in arguments)
        text += f".SS korvan {name} [OPTION]... {metavars}\n{_escaped(sub.description)}\n"
        text += "".join(_option(one) for one in sub._actions if one.option_strings and one.dest != "help")
        examples = "\n".join(_escaped(line) for line in sub.epilog.splitlines()[1:])
        text += f".PP\nExamples:\n.PP\n.nf\n{examples}\n.fi\n"
    return text + _TAIL


def run(arguments: argparse.Namespace) -> int:
    print(page(), end="")
    return 0
