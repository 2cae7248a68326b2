# SPDX-License-Identifier: Apache-2.0
"""The peak of the filter's memory in longer and longer jobs: many_pages.py PAGES.

Growth ends in status 1.
"""
import sys
import tempfile

from jobs import Rasters, job_of, our_filter
from meter import measure

SETTLED = 100  # pages of the shortest job that the longest one is held against
NOISE = 1  # MB: a page of the allocator's here or there
JOBS = {"gloss": "RQ_5x15", "matte": "RQ_5x15 RQPrintFinish=Matte",
        "matte, joined": "RQ_5x15x2_2 RQPrintFinish=Matte"}


def peak_of(rasters, options, pages):
    stream = rasters.photo(2, options.split()[0])
    return measure(job_of(our_filter("PageSize=" + options), stream, 1, times=pages // 2)).peak


def main():
    pages = int(sys.argv[1])
    grown = False
    print("| Job | Pages | Peak of memory, MB |\n|---|---:|---:|")
    with tempfile.TemporaryDirectory() as folder:
        rasters = Rasters(folder)
        for name, options in JOBS.items():
            peaks = {}
            for length in (10, SETTLED, 1000, pages):
                peaks[length] = peak_of(rasters, options, length)
                print(f"| {name} | {length:,} | {peaks[length]:.2f} |", flush=True)
            grown = grown or peaks[pages] > peaks[SETTLED] + NOISE
    print("Growth: " + ("more than the allocator's noise" if grown else "none"))
    return 1 if grown else 0


if __name__ == "__main__":
    sys.exit(main())
