# SPDX-License-Identifier: Apache-2.0
"""How many instructions a program runs in user mode, a number that is the same in every run.

Counted by valgrind, which plays a processor with AVX2 at most, whatever this computer has. A string
instruction (rep movsb) counts once for every byte there, so the C library is told to move blocks by
its loops of vectors, as on a processor without fast ones.
"""
import dataclasses
import pathlib
import tempfile

from jobs import job_of
from meter import measure

NO_STRING_INSTRUCTIONS = ("glibc.cpu.x86_rep_movsb_threshold=1000000000:"
                          "glibc.cpu.x86_rep_stosb_threshold=1000000000")


def count(run):
    """Counts one run."""
    with tempfile.TemporaryDirectory() as folder:
        counts = pathlib.Path(folder) / "counts"
        measure(dataclasses.replace(
            run,
            argv=["valgrind", "--tool=callgrind", "-q", f"--callgrind-out-file={counts}",
                  *run.argv],
            environment={**run.environment, "GLIBC_TUNABLES": NO_STRING_INSTRUCTIONS}))
        with open(counts, encoding="utf-8") as lines:
            return next(int(line.split()[1]) for line in lines if line.startswith("totals: "))


def first_and_further_page(run, streams):
    """What a job of one page takes more than a job of none, and one of two more than one of one.

    `streams` are raster streams of none, one and two pages.
    """
    counts = [count(job_of(run, stream, pages)) for pages, stream in enumerate(streams)]
    return counts[1] - counts[0], counts[2] - counts[1]
