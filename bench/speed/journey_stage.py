# SPDX-License-Identifier: Apache-2.0
"""A job as a person waits for it: from lp to the first byte at the printer and to the last."""
import collections
import subprocess

from chapters import Chapter, times
from meter import BUILD, ROOT, middle

PAUSE = 5.0  # seconds after each sheet, which the printer demands
KINDS = {"jpeg": "a photo, JPEG", "pdf": "a photo, PDF", "matte": "a photo, JPEG, matte",
         "copies": "two copies of a JPEG"}

WORDS = """
From `lp` to the first byte at the printer and to the last: CUPS's own scheduler, raster filters and
`socket` backend, this filter with its true pauses, and the simulated printer on the same machine. The
first byte is the status request's; a sheet begins when its page is converted and the printer ready;
the last byte is the print-out command's, after the pause of five seconds that the printer demands for
each sheet.
"""


def read_journeys(text):
    """(kind, seconds from the beginning of lp to each moment) of each job.

    The text is what bench/speed/journey writes: lines of jobs, then the printer's timeline.
    """
    jobs, events = [], collections.defaultdict(list)
    for words in (line.split(maxsplit=3) for line in text.splitlines()):
        if words[0] in KINDS:
            jobs.append((words[0], float(words[1]), float(words[2])))
        else:
            events[int(words[1])].append((float(words[0]), int(words[2]), words[3]))
    journeys = []
    for (kind, begun, returned), number in zip(jobs, sorted(events), strict=True):
        timeline = [(moment - begun, count, event) for moment, count, event in events[number]]
        bytes_came = [moment for moment, count, _ in timeline if count > 0]
        total = timeline[-1][1]
        journeys.append((kind, {
            "lp": returned - begun,
            "first": bytes_came[0],
            "sheet": next(moment for moment, _, event in timeline if event == "job header"),
            "last": next(moment for moment, count, _ in timeline if count == total),
            "pauses": PAUSE * sum(event == "sheet" for _, _, event in timeline)}))
    return journeys


def journey(_rasters, rounds):
    said = subprocess.run([ROOT / "bench/speed/journey", BUILD, str(max(rounds // 5, 1))],
                          stdout=subprocess.PIPE, check=True, text=True)
    journeys = read_journeys(said.stdout)
    rows = []
    for kind, words in KINDS.items():
        moments = {name: middle([of_job[name] for its_kind, of_job in journeys if its_kind == kind])
                   for name in ("lp", "first", "sheet", "last", "pauses")}
        rows.append([words, *(f"{moments[name] * 1e3:.0f}" for name in ("lp", "first", "sheet")),
                     f"{moments['last']:.2f}", f"{moments['last'] - moments['pauses']:.2f}",
                     times(moments["last"], moments["pauses"])])
    return Chapter(
        title="The journey of a job",
        words=WORDS,
        head=["Job of 10 × 15 cm", "lp returns, ms", "First byte, ms", "Sheet begins, ms",
              "Last byte, s", "But for the pauses, s", "Last byte × pauses"],
        rows=rows,
        answers=[("a photo, from `lp` to its last byte", rows[0][4] + " s",
                  "the pause that the printer demands", rows[0][6])])
