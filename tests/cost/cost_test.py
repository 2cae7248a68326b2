# SPDX-License-Identifier: Apache-2.0
"""What a page costs, in instructions: no clock and no busy machine comes into it.

The counts are for the processor that valgrind plays (bench/speed/instructions.py), so loops for
AVX-512 are not among what is counted.
"""
import pathlib
import tempfile
import unittest

from instructions import count, first_and_further_page
from jobs import (ALL_OFF, ALL_ON, HEIGHT, WIDTH, Rasters, floor, job_of, our_filter,
                  widening_filter)

PIXELS = WIDTH * HEIGHT


def white_page(photo, path):
    """The page of a raster stream with all its bytes white."""
    stream = photo.read_bytes()
    head = len(stream) - 3 * PIXELS
    path.write_bytes(stream[:head] + b"\xFF" * (3 * PIXELS))
    return path


class Cost(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        rasters = Rasters(cls.folder.name)
        cls.streams = [rasters.photo(pages) for pages in range(3)]
        cls.floor = first_and_further_page(floor("floor-copy"), cls.streams)
        cls.filter = first_and_further_page(widening_filter(ALL_OFF), cls.streams)

    # A floor that did more than that would let the filter do more, too.
    def test_of_the_floor_is_that_of_moving_bytes(self):
        self.assertLessEqual(self.floor[1], 6 * PIXELS)

    def test_of_the_first_page_is_at_most_a_fifth_above_moving_its_bytes(self):
        self.assertLessEqual(self.filter[0], 1.2 * self.floor[0])

    def test_of_a_further_page_is_at_most_a_fifth_above_moving_its_bytes(self):
        self.assertLessEqual(self.filter[1], 1.2 * self.floor[1])

    def test_of_a_photo_is_that_of_a_white_page(self):
        white = white_page(self.streams[1], pathlib.Path(self.folder.name) / "white")
        counts = [count(job_of(widening_filter(ALL_OFF), stream, 1))
                  for stream in (white, self.streams[1])]
        self.assertAlmostEqual(counts[0], counts[1], delta=0.01 * self.filter[0])

    # Most of it is the loader's work with the C++ library: what loads more libraries is found.
    def test_of_starting_is_at_most_two_fifths_above_loading_libcups_and_the_ppd(self):
        options = "PageSize=RQ_10x15"
        plain = job_of(floor("floor-load", "7", "anna", "Beach", "1", options), self.streams[0], 0)
        self.assertLessEqual(count(job_of(our_filter(options), self.streams[0], 0)),
                             1.4 * count(plain))


# The limits are half as much again as the loops took when they were written: they are there for a
# loop that has become twice as long, or that the compiler no longer makes of vectors.
@unittest.skipUnless(" avx2 " in pathlib.Path("/proc/cpuinfo").read_text(encoding="utf-8"),
                     "the limits are those of loops for AVX2")
class ConversionCost(unittest.TestCase):
    def further_page(self, options):
        with tempfile.TemporaryDirectory() as folder:
            streams = [Rasters(folder).photo(pages) for pages in range(3)]
            return first_and_further_page(our_filter(options), streams)[1]

    def test_of_a_page_with_all_settings_off_has_not_doubled(self):
        self.assertLessEqual(self.further_page(ALL_OFF), 7.8 * PIXELS)

    def test_of_a_page_with_colours_sharpening_and_matte_has_not_doubled(self):
        self.assertLessEqual(self.further_page(ALL_ON + " RQPrintFinish=Matte"), 54 * PIXELS)


if __name__ == "__main__":
    unittest.main()
