"""The command line: ``korvan COMMAND``.

Each command is a module with ``add_parser`` and ``run``. Only the module of the command that is called is imported,
and ``korvan.cad`` only when it runs, so that help and errors of usage come at once.
"""

from __future__ import annotations

import argparse
import os
import signal
import sys
from collections.abc import Sequence
from importlib import import_module
from importlib.util import find_spec

from korvan.commands.common import HelpFormatter, Usage, fail
from korvan.tools.errors import ToolError

COMMANDS = ("convert", "info", "layers", "texts", "blocks", "properties", "diff", "audit", "view", "batch",
            "completion", "man")
_EPILOG = """examples:
  korvan convert plan.dxf -o plan.pdf             one drawing to PDF
  korvan convert *.dwg -o pdf/ --to pdf           many into a folder
  korvan info plan.dxf                            what is in a drawing
  korvan texts 'door|window' *.dxf                search the texts of drawings
  korvan COMMAND --help                           options of a command, with examples

exit codes: 0 all succeeded, 1 some failed, 2 wrong usage, 130 interrupted
"""


def installed_commands() -> list[str]:
    return [name for name in COMMANDS if find_spec(f"{__name__}.{name}") is not None]


class _Version(argparse.Action):
    """Prints the version, which only the library knows."""

    def __call__(self, parser: argparse.ArgumentParser, *_: object) -> None:
        import korvan.cad

        print(f"korvan.cad {korvan.cad.BuildVersionInfo.product_version}")
        parser.exit()


def make_parser(names: Sequence[str]) -> argparse.ArgumentParser:
    """A parser that knows the commands of those names."""
    parser = argparse.ArgumentParser(
        prog="korvan", description="Converts, inspects, searches and compares CAD drawings.", epilog=_EPILOG,
        formatter_class=HelpFormatter)
    parser.add_argument("--version", action=_Version, nargs=0, help="print the version and exit")
    subparsers = parser.add_subparsers(dest="command", metavar="COMMAND", title="commands")
    for name in names:
        import_module(f"{__name__}.{name}").add_parser(subparsers)
    return parser


def _parse(arguments: Sequence[str]) -> tuple[argparse.ArgumentParser, argparse.Namespace]:
    names = installed_commands()
    parser = make_parser(arguments[:1] if arguments and arguments[0] in names else names)
    return parser, parser.parse_args(arguments)


def _run(arguments: argparse.Namespace) -> int:
    try:
        status: int = import_module(f"{__name__}.{arguments.command}").run(arguments)
        sys.stdout.flush()
        return status
    except Usage as failure:
        print(f"korvan {arguments.command}: {failure}", file=sys.stderr)
        return 2
    except ToolError as failure:
        print(f"korvan {arguments.command}: {failure}", file=sys.stderr)
        return 1
    except BrokenPipeError:  # the reader of the output has enough, as in a pipe to head
        os.dup2(os.open(os.devnull, os.O_WRONLY), sys.stdout.fileno())
        return 1
    except OSError as failure:
        fail("output", failure)
        os.dup2(os.open(os.devnull, os.O_WRONLY), sys.stdout.fileno())
        return 1


def _is_interrupt(failure: BaseException | None) -> bool:
    """Whether Ctrl-C is the cause; while the library is imported, it ends that import."""
    while failure is not None and not isinstance(failure, KeyboardInterrupt):
        failure = failure.__cause__ or failure.__context__
    return failure is not None


def main(argv: Sequence[str] | None = None) -> int:
    """Runs a command; returns its exit code: 0 all succeeded, 1 some failed, 2 wrong usage, 130 interrupted."""
    for stream in (sys.stdout, sys.stderr):  # names of files need not be valid text
        reconfigure = getattr(stream, "reconfigure", None)
        if reconfigure is not None:
            reconfigure(errors="surrogateescape")
    try:
        parser, arguments = _parse(sys.argv[1:] if argv is None else argv)
        if arguments.command is None:
            parser.print_help()
            return 2
        return _run(arguments)
    except (KeyboardInterrupt, ImportError) as failure:
        if not _is_interrupt(failure):
            raise
        print("korvan: interrupted", file=sys.stderr)
        return 128 + signal.SIGINT
    except SystemExit as end:  # argparse ends the program
        return end.code if isinstance(end.code, int) else 2
