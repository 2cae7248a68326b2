# SPDX-License-Identifier: Apache-2.0
"""The inner loops beside floors that only move as many bytes: what Google Benchmark says."""
import json
import pathlib
import subprocess

from chapters import Chapter, times
from meter import BUILD

OURS = "conversion: colours"
PEER = "Little CMS: colours by a 33-point table"

WORDS = """
Each by itself over a whole page of a photo, in one thread, by Google Benchmark: what it takes a
pixel, beside a floor that moves as many bytes with the C library's memcpy, memset and memchr. Those
of the conversion are whole pages with one thing on; Little CMS does what "colours" does.
"""


def nanoseconds_a_pixel(report):
    """The medians of the repetitions in Google Benchmark's JSON, by the loop's name."""
    medians = [run for run in json.loads(report)["benchmarks"]
               if run.get("aggregate_name") == "median"]
    medians.sort(key=lambda run: run["per_family_instance_index"])  # they ran in a mixed order
    return {run["label"]: 1e9 / run["items_per_second"] for run in medians}


def kernels(rasters, rounds):
    report = pathlib.Path(rasters.folder) / "kernels.json"
    subprocess.run([BUILD / "bench/kernels", f"--benchmark_repetitions={max(rounds, 3)}",
                    "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.02",
                    f"--benchmark_out={report}", "--benchmark_out_format=json"],
                   check=True, stdout=subprocess.DEVNULL)
    taken = nanoseconds_a_pixel(report.read_text(encoding="utf-8"))
    rows = [[name, f"{taken[name]:.3f}", f"{taken['floor of ' + name]:.3f}",
             times(taken[name], taken["floor of " + name])]
            for name in taken if not name.startswith("floor of ")]
    return Chapter(
        title="Inner loops",
        words=WORDS,
        head=["Loop", "ns a pixel", "Floor, ns a pixel", "× floor"],
        rows=rows,
        answers=[("the colours of a page", f"{taken[OURS]:.2f} ns a pixel",
                  "Little CMS with a table of 33 points", times(taken[OURS], taken[PEER]))])
