# SPDX-License-Identifier: Apache-2.0
"""Runs the stages of bench/run and prints their chapters; all of them make docs/performance.md."""
import argparse
import os
import pathlib
import platform
import subprocess
import tempfile

from chapters import table
from growth_stages import growth_with_pages, growth_with_queues
from jobs import Rasters
from journey_stage import journey
from kernel_stage import kernels
from meter import BUILD, ROOT
from page_stages import memory, page, start
from peer_stage import peers

STAGES = {"page": page, "start": start, "memory": memory, "peers": peers,
          "pages": growth_with_pages, "queues": growth_with_queues, "kernels": kernels,
          "journey": journey}

HEAD = """<!-- SPDX-License-Identifier: Apache-2.0 -->
# Speed, measured

How fast is it, and against what? Written by `bench/run`, which measures all of it anew:
"""

METHOD = """## Machine and method

Times are processor time, user and system, of a process from its start to its end, as the kernel says
it (`wait4`); but for the journey's, which are the clock's. What is measured runs on one processor,
what feeds it and answers for the printer on another one. Programs that are compared run in turn,
round after round, and the median counts: what slows the machine slows all alike, so the ratios say
more than the times. Pauses are not made, but for the journey's; the printer is good and ready, and
answers at once. A page is the sample photo on 1852 × 1232 dots, uncompressed, from a file; what is
written goes to `/dev/null`. A run that ends with another status than it should, or writes too few
bytes, ends the measurement.

"""


def first_match(path, beginning):
    """What stands after "beginning...:" or "=" in a file."""
    for line in pathlib.Path(path).read_text(encoding="utf-8").splitlines():
        if line.startswith(beginning):
            return line.replace("=", ":").split(":")[-1].strip()
    return "unknown"


def machine(rounds, load):
    compiler = first_match(BUILD / "CMakeCache.txt", "CMAKE_CXX_COMPILER:")
    said = [subprocess.run(command, stdout=subprocess.PIPE, text=True, check=True).stdout
            for command in ([compiler, "--version"], ["cups-config", "--version"])]
    return table(["Processor", "System", "Compiler", "CUPS", "Load before", "Rounds"],
                 [[f"{os.cpu_count()} × {first_match('/proc/cpuinfo', 'model name')}",
                   f"{platform.system()} {platform.release()}, {' '.join(platform.libc_ver())}",
                   said[0].splitlines()[0], said[1].strip(), f"{load:.2f}", rounds]])


def arguments():
    parser = argparse.ArgumentParser(
        prog="bench/run", description="Measures the filter's speed and memory; all stages together "
        "write docs/performance.md. Wants a machine with nothing else to do.")
    parser.add_argument("--rounds", type=int, default=11, help="how often each program runs")
    parser.add_argument("stages", nargs="*", metavar="STAGE", help=", ".join(STAGES))
    chosen = parser.parse_args()
    if chosen.rounds < 1 or not set(chosen.stages) <= set(STAGES):
        parser.error(f"a number of rounds from 1, and stages among {', '.join(STAGES)}")
    return chosen


def main():
    chosen = arguments()
    load = os.getloadavg()[0]
    chapters = []
    memory_folder = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
    with tempfile.TemporaryDirectory(dir=memory_folder) as folder:
        rasters = Rasters(folder)
        for name in chosen.stages or STAGES:
            chapters.append(STAGES[name](rasters, chosen.rounds))
            print(chapters[-1].text(), flush=True)
    answers = table(["What", "Takes", "Beside", "Ratio"],
                    [answer for chapter in chapters for answer in chapter.answers])
    print(answers)
    if not chosen.stages:
        parts = [HEAD, answers, METHOD + machine(chosen.rounds, load),
                 *(chapter.text() for chapter in chapters)]
        (ROOT / "docs/performance.md").write_text("\n".join(parts), encoding="utf-8")
        print("Written: docs/performance.md")


if __name__ == "__main__":
    main()
