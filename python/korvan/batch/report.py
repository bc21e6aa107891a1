"""The report of a batch: JSON and CSV of all files, and pages for people, out of the journals.

The pages need nothing else. Text that comes from files is escaped, and a policy in the page allows no script but ours.
"""

from __future__ import annotations

import base64
import csv
import json
import os
from collections.abc import Callable, Iterable, Iterator, Sequence
from contextlib import ExitStack
from hashlib import sha256
from html import escape
from importlib.resources import files
from pathlib import Path
from typing import IO, Any
from urllib.parse import quote

from korvan.batch.errors import BatchError, printable, telling
from korvan.batch.folder import BatchFolder
from korvan.batch.journal import JournalReader
from korvan.batch.settings import MEBIBYTE, Settings
from korvan.batch.summary import Summary
from korvan.tools.printing import cell

ROWS_OF_ONE_PAGE = 5000
_COLUMNS = ("path", "state", "target", "size", "result_size", "seconds", "memory", "kind", "error", "warnings", "hash",
            "crashes")
_STATES = ("done", "failed", "crashed", "pending", "gone")

Row = dict[str, Any]


def write_report(folder: BatchFolder, summary: Summary, settings: Settings, shards: Sequence[int],
                 on_step: Callable[[], None] = lambda: None) -> None:
    """Writes ``report.json``, ``report.csv`` and ``report.html``. ``on_step`` is called for each shard.

    Where the files are too many for one page, the shards have pages of their own, and the first one has what failed.
    """
    many = summary.files + summary.gone > ROWS_OF_ONE_PAGE
    chosen: list[Row] = []
    with telling(folder.root), ExitStack() as stack:
        table = stack.enter_context(_Replacing(folder.report_path("csv")))
        document = stack.enter_context(_Replacing(folder.report_path("json")))
        rows = _rows(folder, shards, settings, chosen, on_step, many=many)
        _write_rows(rows, table, document, summary, settings)
        page = stack.enter_context(_Replacing(folder.report_path("html")))
        pages = [folder.shard_report_path(shard).relative_to(folder.root) for shard in shards] if many else []
        page.write(_page(chosen, summary, settings, pages, ".."))


class _Replacing:
    """A text file that is written beside its place and moved there when it is whole."""

    def __init__(self, path: Path) -> None:
        self._path = path
        self._part = path.with_name(f".{path.name}.part")

    def __enter__(self) -> IO[str]:
        self._path.parent.mkdir(exist_ok=True)
        self._file = open(self._part, "w", encoding="utf-8", newline="")
        return self._file

    def __exit__(self, kind: type[BaseException] | None, failure: BaseException | None, trace: object) -> None:
        try:
            self._file.close()
            if kind is None:
                os.replace(self._part, self._path)
        finally:
            self._part.unlink(missing_ok=True)


def _rows(folder: BatchFolder, shards: Sequence[int], settings: Settings, chosen: list[Row],
          on_step: Callable[[], None], *, many: bool) -> Iterator[Row]:
    """The rows of all journals; on the way, the pages of the shards are written and rows for the first page chosen."""
    for shard in shards:
        on_step()
        try:
            with JournalReader(folder.journal_path(shard)) as journal:
                rows = list(journal.rows())
                own = journal.summary()
        except BatchError:
            continue  # no task has begun it
        yield from rows
        if many:
            with _Replacing(folder.shard_report_path(shard)) as page:
                page.write(_page(rows, own, settings, [], "../.."))
            room = max(0, ROWS_OF_ONE_PAGE - len(chosen))
            chosen += [row for row in rows if row["state"] != "done"][:room]
        else:
            chosen += rows


def _write_rows(rows: Iterable[Row], table: IO[str], document: IO[str], summary: Summary, settings: Settings) -> None:
    writer = csv.writer(table)
    writer.writerow(_COLUMNS)
    header = {**summary.to_json(), "source": os.fspath(settings.source), "to": settings.recipe.to,
              "options": dict(settings.recipe.options)}
    document.write(json.dumps(header, default=str)[:-1] + ', "results": [')
    separator = "\n"
    for row in rows:
        values = {**row, "path": printable(row["path"]), "target": printable(row["target"])}
        writer.writerow([cell(values[name]) for name in _COLUMNS])
        document.write(separator + json.dumps({name: values[name] for name in _COLUMNS}))
        separator = ",\n"
    document.write("\n]}\n")


def _page(rows: Sequence[Row], summary: Summary, settings: Settings, pages: Sequence[Path], to_results: str) -> str:
    style, script = (files(__package__).joinpath(name).read_text("utf-8") for name in ("report.css", "report.js"))
    digest = base64.b64encode(sha256(script.encode()).digest()).decode()
    title = f"{printable(settings.source)} to {settings.recipe.to.upper()}"
    counts = {state: getattr(summary, state) for state in _STATES}
    totals = "".join(f'<li class="{state}"><b>{count}</b>{state}</li>' for state, count in counts.items() if count)
    buttons = "".join(f'<button data-state="{state}" aria-pressed="false">{state}</button>'
                      for state, count in counts.items() if count)
    unreadable = "".join(f"<p class=failed>{escape(text)}</p>" for text in summary.unreadable)
    links = ", ".join(f'<a href="{quote(str(path))}">{number}</a>' for number, path in enumerate(pages))
    parts = f"<p>What was not done is listed here. All files by parts: {links}</p>" if pages else ""
    return f"""<!doctype html>
<html lang="en"><head><meta charset="utf-8"><title>{escape(title)}</title>
<meta name="viewport" content="width=device-width">
<meta http-equiv="Content-Security-Policy"
 content="default-src 'none'; img-src data:; style-src 'unsafe-inline'; script-src 'sha256-{digest}'">
<style>
{style}</style></head><body>
<h1>{escape(title)}</h1>
<p>{escape(str(summary))}</p>
<ul class="totals"><li><b>{summary.files}</b>files</li>{totals}</ul>
{unreadable}{parts}
<div class="tools"><button data-state="" aria-pressed="true">all</button>{buttons}
<input type="search" placeholder="Search names and errors" aria-label="Search names and errors"></div>
<table><thead><tr><th></th>{_headings()}</tr></thead>
<tbody>
{"".join(_line(row, to_results) for row in rows)}</tbody></table>
<script>{script}</script>
</body></html>
"""


def _headings() -> str:
    names = {"File": "", "State": "", "Seconds": "number", "Memory": "number", "Result": "number"}
    return "".join(f'<th class="{kind}"><button>{name}</button></th>' for name, kind in names.items())


def _line(row: Row, to_results: str) -> str:
    image = ""
    if row["thumbnail"]:
        data = base64.b64encode(row["thumbnail"]).decode()
        image = f'<img alt="" loading="lazy" src="data:image/webp;base64,{data}">'
    name = escape(printable(row["path"]))
    if row["state"] == "done":
        name = f'<a href="{to_results}/{escape(quote(row["target"]))}">{name}</a>'
    notes = "".join(f"<small>{escape('; '.join(text.splitlines()))}</small>" for text in (row["error"], row["warnings"])
                    if text and (row["state"] != "done" or text == row["warnings"]))
    return (f'<tr data-state="{"pending" if row["state"] == "running" else row["state"]}"><td>{image}</td>'
            f"<td>{name}{notes}</td><td class={row['state']}>{row['state']}</td>"
            f"{_number(row['seconds'], 1, ' s')}{_number(row['memory'], MEBIBYTE, ' MiB')}"
            f"{_number(row['result_size'], 1024, ' KiB')}</tr>\n")


def _number(value: float | None, unit: int, name: str) -> str:
    shown = "" if value is None else f"{value / unit:.2f}{name}" if unit == 1 else f"{value / unit:,.0f}{name}"
    return f'<td class="number" data-value="{value or 0}">{shown}</td>'
