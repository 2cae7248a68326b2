# SPDX-License-Identifier: Apache-2.0
"""What becomes of a page's cost with more pages in a job, and with several queues at once."""
import concurrent.futures
import dataclasses
import time

from chapters import Chapter, megabytes, milliseconds, times
from jobs import ALL_ON, floor, job_of, our_filter
from meter import in_turn, measure, middle

LENGTHS = (1, 10, 100, 1000)
LONG, LONGEST = LENGTHS[-2:]  # from the first of them on a single round has to do
QUEUES = (1, 2, 4, 8)
PAGES_OF_A_QUEUE = 12
FLOOR, FILTER = floor("floor-copy"), our_filter(ALL_ON)

PAGES_WORDS = """
The sample photo, through a pipe as between the filters of a chain, start and end shared out among the
pages: `floor-copy`, and the filter with colours and sharpening.
"""

QUEUES_WORDS = f"""
Jobs of {PAGES_OF_A_QUEUE} photos at the same time, each in a queue of its own, on all processors of
this machine. What a page takes is not to grow; what the floor grows by, too, is the machine's.
"""


def growth_with_pages(rasters, rounds):
    rows, peaks = [], {}
    for pages in LENGTHS:
        jobs = [job_of(run, rasters.photo(1), 1, times=pages) for run in (FLOOR, FILTER)]
        plain, ours = in_turn(jobs, rounds if pages < LONG else 1, warm_up=pages < LONG)
        of_floor = middle([used.cpu for used in plain]) / pages
        of_filter = middle([used.cpu for used in ours]) / pages
        peaks[pages] = max(used.peak for used in ours)
        rows.append([f"{pages:,}", milliseconds(of_floor), milliseconds(of_filter),
                     times(of_filter, of_floor), megabytes(peaks[pages])])
    return Chapter(
        title="Growth with pages",
        words=PAGES_WORDS,
        head=["Pages", "floor-copy, ms a page", "Filter, ms a page", "× floor", "Peak memory, MB"],
        rows=rows,
        answers=[(f"memory of a job of {LONGEST:,} pages", megabytes(peaks[LONGEST]) + " MB",
                  f"a job of {LONG}", times(peaks[LONGEST], peaks[LONG]))])


def together(run, queues):
    """The processor time of a page, and the pages a second that all queues print together."""
    begun = time.monotonic()
    with concurrent.futures.ThreadPoolExecutor(queues) as pool:
        usages = list(pool.map(measure, [run] * queues))
    pages = queues * PAGES_OF_A_QUEUE
    return sum(used.cpu for used in usages) / pages, pages / (time.monotonic() - begun)


def growth_with_queues(rasters, rounds):
    stream = rasters.photo(PAGES_OF_A_QUEUE)
    plain_run, our_run = (
        dataclasses.replace(job_of(run, stream, PAGES_OF_A_QUEUE), pinned=False)
        for run in (FLOOR, FILTER))
    plain, ours, rates = {}, {}, {}
    for queues in QUEUES:
        measured = [(together(plain_run, queues), together(our_run, queues))
                    for _ in range(rounds)]
        plain[queues] = middle([of_floor for (of_floor, _), _ in measured])
        ours[queues] = middle([of_filter for _, (of_filter, _) in measured])
        rates[queues] = middle([rate for _, (_, rate) in measured])
    one, most = QUEUES[0], QUEUES[-1]
    return Chapter(
        title="Growth with queues",
        words=QUEUES_WORDS,
        head=["Queues", "floor-copy, ms a page", "× one queue", "Filter, ms a page", "× one queue",
              "Filter, pages a second"],
        rows=[[queues, milliseconds(plain[queues]), times(plain[queues], plain[one]),
               milliseconds(ours[queues]), times(ours[queues], ours[one]), f"{rates[queues]:.0f}"]
              for queues in QUEUES],
        answers=[(f"a page in each of {most} queues at once", milliseconds(ours[most]) + " ms",
                  "a page in one queue", times(ours[most], ours[one]))])
