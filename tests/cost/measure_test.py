# SPDX-License-Identifier: Apache-2.0
"""What speed and memory are measured with: meter, floors, and the reading of reports."""
import dataclasses
import os
import pathlib
import sys
import tempfile
import time
import unittest

from chapters import table
from jobs import ALL_OFF, IMAGE_BYTES, Rasters, floor, job_of, widening_filter
from journey_stage import read_journeys
from kernel_stage import nanoseconds_a_pixel
from meter import Run, VoidRun, in_turn, measure


def python(program, **fields):
    return Run([sys.executable, "-c", program], **fields)


class Meter(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.path = pathlib.Path(folder.name)

    def output_of(self, run):
        measure(dataclasses.replace(run, output=str(self.path / "output")))
        return (self.path / "output").read_bytes()

    def test_says_the_processor_time_that_the_program_has_by_its_own_clock(self):
        busy = "import time\nwhile time.process_time() < 0.2: pass"
        used = measure(python(busy))
        self.assertGreaterEqual(used.cpu, 0.199)  # the clocks round
        self.assertLess(used.cpu, 0.3)

    def test_says_the_memory_of_the_program_alone(self):
        of_this_process = b"x" * (64 << 20)
        small = measure(Run(["true"])).peak
        self.assertGreater(small, 0.5)
        self.assertLess(small, 4)
        large = measure(python("b'x' * (64 << 20)")).peak
        self.assertGreater(large, 64)
        self.assertLess(large, 64 + 16)
        self.assertEqual(len(of_this_process), 64 << 20)

    def test_makes_no_pauses(self):
        begun = time.monotonic()
        measure(python("import ctypes; ctypes.CDLL(None).sleep(7)"))
        self.assertLess(time.monotonic() - begun, 5)

    def test_keeps_the_program_on_one_processor_unless_asked_otherwise(self):
        self.assertEqual(self.output_of(Run(["nproc"])), b"1\n")
        here = len(os.sched_getaffinity(0))
        self.assertEqual(self.output_of(Run(["nproc"], pinned=False)), b"%d\n" % here)

    def test_feeds_what_follows_the_mark_of_a_stream_as_often_as_asked(self):
        (self.path / "stream").write_bytes(b"RaS3page,")
        run = Run(["cat"], input=str(self.path / "stream"), times=3)
        self.assertEqual(self.output_of(run), b"RaS3page,page,page,")

    def test_holds_a_run_with_another_status_for_void(self):
        with self.assertRaises(VoidRun):
            measure(Run(["false"]))
        measure(Run(["false"], status=1))
        with self.assertRaises(VoidRun):
            measure(Run(["sh", "-c", "kill -TERM $$"]))

    def test_holds_a_run_with_too_few_bytes_for_void(self):
        measure(Run(["echo", "twelve", "bytes"], least_bytes=13))
        with self.assertRaises(VoidRun):
            measure(Run(["echo", "twelve", "bytes"], least_bytes=14))

    def test_runs_in_turn_and_does_not_count_the_first_round(self):
        log = self.path / "log"
        runs = [Run(["sh", "-c", f"printf {letter} >>{log}"]) for letter in "ab"]
        self.assertEqual([len(of_run) for of_run in in_turn(runs, 2)], [2, 2])
        self.assertEqual(log.read_text(encoding="ascii"), "ababab")

    def test_holds_the_filter_against_a_floor_that_moves_the_same_pixels(self):
        rasters = Rasters(self.path)
        for pages in (1, 2):
            image = self.output_of(job_of(floor("floor-copy"), rasters.photo(pages), pages))
            stream = self.output_of(job_of(widening_filter(ALL_OFF), rasters.photo(pages), pages))
            self.assertEqual(len(image), pages * IMAGE_BYTES)
            self.assertIn(image[:IMAGE_BYTES], stream)
            self.assertLess(len(stream), len(image) + 4096)  # headers and questions


class Reports(unittest.TestCase):
    def test_a_journey_is_told_from_the_beginning_of_lp(self):
        (kind, moments), = read_journeys("jpeg 100.0 100.25\n"
                                         "100.5 1 0 opened\n"
                                         "100.75 1 8 status request\n"
                                         "101.0 1 1040 job header\n"
                                         "106.5 1 5000 sheet\n"
                                         "107.0 1 5006 print-out\n"
                                         "108.0 1 5006 closed\n")
        self.assertEqual(kind, "jpeg")
        self.assertEqual(moments, {"lp": 0.25, "first": 0.75, "sheet": 1.0, "last": 7.0,
                                   "pauses": 5.0})

    def test_a_loops_time_is_the_median_of_its_repetitions(self):
        report = """{"benchmarks": [
          {"label": "a loop", "run_type": "iteration", "items_per_second": 1e9},
          {"label": "a loop", "aggregate_name": "mean", "items_per_second": 2e9},
          {"label": "a loop", "aggregate_name": "median", "per_family_instance_index": 0,
           "items_per_second": 4e9}]}"""
        self.assertEqual(nanoseconds_a_pixel(report), {"a loop": 0.25})

    def test_a_table_is_markdown_with_figures_set_right(self):
        self.assertEqual(table(["what", "ms"], [["a page", 5]]),
                         "| what | ms |\n| --- | ---: |\n| a page | 5 |\n")


if __name__ == "__main__":
    unittest.main()
