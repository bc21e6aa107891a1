"""Conversion of whole folders of drawings, in as many processes as there are, with a journal that survives kills.

A batch lives in its folder of results: the results in the order of the sources, and in ``_batch`` the journal and the
report. The same command goes on where it stood.

    from korvan.batch import Recipe, Settings, run_batch

    summary = run_batch(Settings("drawings", "pdfs", Recipe("pdf")))
    print(summary.done, summary.failed)
"""

from __future__ import annotations

from korvan._exports import lazy_exports

TYPE_CHECKING = False  # the typing module costs more to import than this package
if TYPE_CHECKING:
    from korvan.batch.engines import run_batch as run_batch
    from korvan.batch.engines import run_shards as run_shards
    from korvan.batch.errors import BatchError as BatchError
    from korvan.batch.errors import Interrupted as Interrupted
    from korvan.batch.report import write_report as write_report
    from korvan.batch.settings import Limits as Limits
    from korvan.batch.settings import Recipe as Recipe
    from korvan.batch.settings import Settings as Settings
    from korvan.batch.summary import Summary as Summary

_MODULES = {
    "BatchError": "errors",
    "Interrupted": "errors",
    "Limits": "settings",
    "Recipe": "settings",
    "Settings": "settings",
    "Summary": "summary",
    "run_batch": "engines",
    "run_shards": "engines",
    "write_report": "report",
}

__all__ = ["BatchError", "Interrupted", "Limits", "Recipe", "Settings", "Summary", "run_batch", "run_shards",
           "write_report"]

__getattr__, __dir__ = lazy_exports(globals(), _MODULES)
