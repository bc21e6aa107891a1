"""``korvan completion``: completion of commands, options and files for shells."""

from __future__ import annotations

import argparse
from collections.abc import Iterator
from dataclasses import dataclass
from typing import Any

from korvan.commands.common import parser_for

_EXAMPLES = """  korvan completion bash > ~/.local/share/bash-completion/completions/korvan
  korvan completion zsh > ~/.zfunc/_korvan            with fpath+=~/.zfunc before compinit
  korvan completion fish > ~/.config/fish/completions/korvan.fish
"""


def add_parser(subparsers: Any) -> None:
    parser = parser_for(subparsers, "completion", "Prints a script that completes korvan in a shell.", _EXAMPLES)
    parser.add_argument("shell", choices=("bash", "zsh", "fish"), help="the shell")


@dataclass(frozen=True)
class Option:
    """An option of a command."""

    flags: tuple[str, ...]
    help: str
    takes_value: bool
    choices: tuple[str, ...]


@dataclass(frozen=True)
class Command:
    """A command with its options and the choices of its arguments."""

    name: str
    help: str
    options: tuple[Option, ...]
    choices: tuple[str, ...]


def _choices(action: argparse.Action) -> tuple[str, ...]:
    if action.choices is not None:
        return tuple(str(one) for one in action.choices)
    if action.dest == "to":
        from korvan.tools.formats import targets

        return tuple(sorted(targets()))
    if action.dest == "paper":
        from korvan.tools.pages import PAPERS

        return tuple(PAPERS)
    return ()


def commands() -> Iterator[Command]:
    """What the parsers know."""
    from korvan.commands import installed_commands, make_parser

    parser = make_parser(installed_commands())
    found: Any = next(one for one in parser._actions if isinstance(one, argparse._SubParsersAction))  # pyright: ignore
    helps = {one.dest: one.help or "" for one in found._choices_actions}
    for name, sub in found.choices.items():
        actions: list[argparse.Action] = sub._actions
        options = tuple(Option(tuple(one.option_strings), (one.help or "").replace("%%", "%"), one.nargs != 0,
                               _choices(one)) for one in actions if one.option_strings)
        choices = [choice for one in actions if not one.option_strings for choice in _choices(one)]
        yield Command(name, helps.get(name, ""), options, tuple(choices))


def _bash(found: list[Command]) -> str:
    cases: list[str] = []
    for command in found:
        flags = " ".join(flag for option in command.options for flag in option.flags)
        values = "".join(f"\n            {'|'.join(option.flags)}) words='{' '.join(option.choices)}' files= ;;"
                         for option in command.options if option.choices)
        free = "".join(f"\n            {'|'.join(option.flags)}) ;;" for option in command.options
                       if option.takes_value and not option.choices)
        words = f"{flags} {' '.join(command.choices)}".strip()
        cases.append(f"    {command.name})\n        case $prev in{values}{free}\n"
                     f"            *) words='{words}' ;;\n        esac ;;")
    names = " ".join(command.name for command in found)
    return f"""# Completion of korvan for bash.
_korvan() {{
    local cur=${{COMP_WORDS[COMP_CWORD]}} prev=${{COMP_WORDS[COMP_CWORD-1]}} words= files=yes word
    if [ "$COMP_CWORD" -eq 1 ]; then
        mapfile -t COMPREPLY < <(compgen -W '{names} --help --version' -- "$cur")
        return
    fi
    case ${{COMP_WORDS[1]}} in
{chr(10).join(cases)}
    esac
    COMPREPLY=()
    for word in $words; do
        # Options are offered to one who began one.
        if [[ $word == "$cur"* && ( $word != -* || $cur == -* ) ]]; then COMPREPLY+=("$word"); fi
    done
    if [[ -n $files && $cur != -* ]]; then
        while IFS= read -r word; do COMPREPLY+=("$word"); done < <(compgen -f -- "$cur")
    fi
}}
complete -o filenames -F _korvan korvan
"""


def _quoted(text: str) -> str:
    return text.replace("'", "'\\''")


def _zsh(found: list[Command]) -> str:
    def spec(option: Option) -> Iterator[str]:
        text = option.help.replace("[", "(").replace("]", ")").replace(":", " -")
        value = f":value:({' '.join(option.choices)})" if option.choices else ":value:_files"
        for flag in option.flags:
            yield f"'*{flag}[{_quoted(text)}]{value if option.takes_value else ''}'"

    cases: list[str] = []
    for command in found:
        parts = [one for option in command.options for one in spec(option)]
        parts.append(f"'*:argument:({' '.join(command.choices)})'" if command.choices else "'*:file:_files'")
        cases.append(f"        {command.name}) _arguments -s " + " \\\n            ".join(parts) + " ;;")
    names = " ".join(f"'{command.name}:{_quoted(command.help)}'" for command in found)
    return f"""#compdef korvan
# Completion of korvan for zsh.
_korvan() {{
    local -a commands=({names})
    if (( CURRENT == 2 )); then
        _describe command commands
        return
    fi
    local command=$words[2]
    shift words; (( CURRENT-- ))
    case $command in
{chr(10).join(cases)}
    esac
}}
_korvan "$@"
"""


def _fish(found: list[Command]) -> str:
    lines = ["# Completion of korvan for fish."]
    for command in found:
        lines.append(f"complete -c korvan -n __fish_use_subcommand -f -a {command.name} -d '{_quoted(command.help)}'")
        used = f"complete -c korvan -n '__fish_seen_subcommand_from {command.name}'"
        for option in command.options:
            flags = "".join(f" -l {flag[2:]}" if flag.startswith("--") else f" -s {flag[1:]}"
                            for flag in option.flags)
            value = (f" -x -a '{' '.join(option.choices)}'" if option.choices else " -r") if option.takes_value else ""
            lines.append(f"{used}{flags}{value} -d '{_quoted(option.help)}'")
        if command.choices:
            lines.append(f"{used} -f -a '{' '.join(command.choices)}'")
    return "\n".join(lines) + "\n"


def script(shell: str) -> str:
    """The script for a shell."""
    return {"bash": _bash, "zsh": _zsh, "fish": _fish}[shell](list(commands()))


def run(arguments: argparse.Namespace) -> int:
    print(script(arguments.shell), end="")
    return 0
