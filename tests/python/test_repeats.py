"""Every test that runs in one process, some times over: memory blocks and managed handles stay where they were."""

from __future__ import annotations

import array
import gc
import importlib
import sys
import unittest
from collections.abc import Iterator

from korvan import probe

MODULES = (
    "test_calls", "test_collections", "test_dates_decimals", "test_drawings", "test_failures", "test_image",
    "test_metafiles", "test_objects", "test_siblings", "test_streams", "test_values",
)
# Blocks a run may take: the parts of new paths are interned, and interned text is immortal in 3.12.
ALLOWED = {"test_drawings": 40, "test_image": 16, "test_metafiles": 4, "test_siblings": 12}
WARM_UP = 2
RUNS = 3
echo = probe.Echo()

# What grows by contract, or by others' doing.
KEPT_VIEW = "a stream may keep the view that it was given"
KEPT_ZONE = "a time zone keeps what it was made of"
GROWING = {
    "test_a_stream_that_lies_about_its_counts_is_found_out": KEPT_VIEW,
    "test_a_stream_that_raises_comes_back_with_its_text": KEPT_VIEW,
    "test_what_a_stream_can_not_do_is_named": KEPT_VIEW,
    "test_streams_are_read_and_written_whole": KEPT_VIEW,
    "test_every_kind_is_read_to_its_end_and_left_open": KEPT_VIEW,
    "test_every_kind_takes_what_is_written_in_pieces": KEPT_VIEW,
    "test_small_pieces_cross_in_large_blocks": KEPT_VIEW,
    "test_what_was_written_before_a_failure_arrives_and_once": KEPT_VIEW,
    "test_a_failed_call_leaves_the_position_where_reading_stopped": KEPT_VIEW,
    "test_a_stream_that_failed_once_is_not_written_again": KEPT_VIEW,
    "test_a_failure_that_was_got_over_is_not_held_against_the_next_stream": KEPT_VIEW,
    "test_a_stream_that_does_not_block_is_no_stream_at_its_end": KEPT_VIEW,
    "test_every_kind_of_file_object_is_loaded": KEPT_VIEW,
    "test_a_stream_gets_the_same_bytes_as_a_file_in_every_format": KEPT_VIEW,
    "test_what_only_looks_like_a_stream_is_refused": KEPT_VIEW,
    "test_damage_is_told_with_its_place_or_left_out": KEPT_VIEW,
    "test_readers_and_writers_go_command_by_command": KEPT_VIEW,
    "test_the_files_of_another_plotter_are_the_same_in_each_form": KEPT_VIEW,
    "test_aware_values_cross_as_utc": KEPT_ZONE,
    "test_each_kind_has_its_managed_type": KEPT_ZONE,
    "test_values_that_can_not_fit_are_refused": "the digits of a refused decimal stay",
    "test_a_converter_names_what_it_refuses": "ctypes keeps the types of arrays and functions that it makes",
}


def tests_of(module: str) -> Iterator[unittest.TestCase]:
    suites = [unittest.defaultTestLoader.loadTestsFromModule(importlib.import_module(module))]
    while suites:
        for part in suites.pop():
            if isinstance(part, unittest.TestSuite):
                suites.append(part)
            else:
                yield part


def run_once(test: unittest.TestCase, grown: array.array[int], at: int, is_thorough: bool) -> None:
    """Notes how many blocks and handles one more run left behind, without taking a block for the note."""
    gc.collect()
    sys._clear_type_cache()
    # The numbers themselves are objects: they lie in the array, not in variables.
    grown[2 * at + 1] = probe._live_handles()
    grown[2 * at] = sys.getallocatedblocks()
    result = unittest.TestResult()
    unittest.TestSuite([type(test)(test._testMethodName)]).run(result)
    if not result.wasSuccessful():
        raise AssertionError(f"{test.id()} fails when it is repeated: {result.failures or result.errors}")
    del result
    if is_thorough:
        # What managed objects kept of Python comes back when they are found dead.
        echo.live()
        probe.Echo()  # the end of a handle takes them in
    gc.collect()
    sys._clear_type_cache()
    grown[2 * at] = sys.getallocatedblocks() - grown[2 * at]
    grown[2 * at + 1] = probe._live_handles() - grown[2 * at + 1]


def growth(test: unittest.TestCase, warm_up: int, is_thorough: bool) -> tuple[int, int]:
    """The least that one of some runs left behind. A cache that fills up stands still in one; a leak never does."""
    grown = array.array("q", bytes(16 * (warm_up + RUNS)))
    for at in range(warm_up + RUNS):
        run_once(test, grown, at, is_thorough)
    measured = grown[2 * warm_up:]
    return min(measured[::2]), min(measured[1::2])


class Repeats(unittest.TestCase):
    def test_what_is_repeated_leaves_nothing_behind(self) -> None:
        for module in MODULES:
            for test in tests_of(module):
                if test._testMethodName in GROWING:
                    continue
                with self.subTest(test.id()):
                    if max(growth(test, WARM_UP, is_thorough=False)) > 0:
                        blocks, handles = growth(test, 0, is_thorough=True)
                        self.assertLessEqual(blocks, ALLOWED.get(module, 0), "memory blocks a run")
                        self.assertLessEqual(handles, 0, "managed handles a run")


if __name__ == "__main__":
    unittest.main()
