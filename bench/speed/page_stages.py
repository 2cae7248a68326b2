# SPDX-License-Identifier: Apache-2.0
"""What a page, a start and memory take, beside programs that only move the same bytes."""
from chapters import Chapter, megabytes, milliseconds, times
from instructions import count, first_and_further_page
from jobs import ALL_OFF, ALL_ON, HEIGHT, WIDTH, floor, job_of, our_filter, widening_filter
from meter import in_turn, measure, middle

LENGTHS = (0, 1, 2, 12)  # pages of jobs
LONG_JOB = LENGTHS[-1]
FLOOR = "floor-copy"
WIDENING = "filter, library that only widens"
OURS = "filter, our library, colours and sharpening"
PROGRAMS = {
    FLOOR: floor("floor-copy"),
    WIDENING: widening_filter(ALL_OFF),
    "filter, our library, all off": our_filter(ALL_OFF),
    OURS: our_filter(ALL_ON),
}

PAGE_WORDS = f"""
`floor-copy` does what the printer's and the scheduler's contracts leave no way around: it reads
each line, copies it into a page buffer, widens each byte into a band of 48 bits a pixel that was
first set to 0xFF, and gathers the band into writes of 196,608 bytes. The first page is what a job of
one page takes more than a job of none; a further one is a tenth of what a job of {LONG_JOB} takes
more than a job of two. The instructions are those of a further page, counted by valgrind:
`tests/cost` holds them.
"""

START_WORDS = """
A job without pages: the filter starts, asks for the printer's status, finds no page and ends.
`floor-load` is a C program that loads libcups, opens the same PPD, marks its defaults and the job's
options, and ends.
"""

MEMORY_WORDS = f"""
Peak of resident memory in a job of {LONG_JOB} pages, beside `floor-copy` on the same pages. The matte
plane and the sheet on which two pages are joined are added to the floor where the job needs them.
"""

MATTE_PLANE = WIDTH * (HEIGHT + 12) / 2**20  # MB
SHEET = WIDTH * HEIGHT * 6 / 2**20
MEMORY_JOBS = {  # paper, finish, and what the floor does not have, in MB
    "gloss": ("RQ_10x15", "Gloss", 0),
    "matte": ("RQ_10x15", "Matte", MATTE_PLANE),
    "two pages joined": ("RQ_5x15x2_2", "Gloss", SHEET),
    "two pages joined, matte": ("RQ_5x15x2_2", "Matte", SHEET + MATTE_PLANE),
}


def added(less, more):
    """The time that runs take more than others in the same rounds: the middle of them."""
    return middle([b.cpu - a.cpu for a, b in zip(less, more)])


def page(rasters, rounds):
    streams = [rasters.photo(pages) for pages in LENGTHS]
    usages = in_turn([job_of(run, stream, pages) for run in PROGRAMS.values()
                      for pages, stream in zip(LENGTHS, streams)], rounds)
    first, further, counted = {}, {}, {}
    for name, run in PROGRAMS.items():
        none, one, two, many = (usages.pop(0) for _ in LENGTHS)
        first[name] = added(none, one)
        further[name] = added(two, many) / (LONG_JOB - 2)
        counted[name] = first_and_further_page(run, streams[:3])[1]
    return Chapter(
        title="A page",
        words=PAGE_WORDS,
        head=["Program", "First page, ms", "× floor", "Further page, ms", "× floor",
              "Instructions, million", "× floor"],
        rows=[[name,
               milliseconds(first[name]), times(first[name], first[FLOOR]),
               milliseconds(further[name]), times(further[name], further[FLOOR]),
               f"{counted[name] / 1e6:.1f}", times(counted[name], counted[FLOOR])]
              for name in PROGRAMS],
        answers=[("a further page, but for its conversion", milliseconds(further[WIDENING]) + " ms",
                  "a program that only moves the same bytes",
                  times(further[WIDENING], further[FLOOR])),
                 ("a further page with colours and sharpening", milliseconds(further[OURS]) + " ms",
                  "the same", times(further[OURS], further[FLOOR]))])


def start(rasters, rounds):
    options = "PageSize=RQ_10x15"
    runs = [job_of(run, rasters.photo(0), 0)
            for run in (floor("floor-load", "7", "anna", "Beach", "1", options),
                        our_filter(options))]
    taken = [middle([used.cpu for used in of_run]) for of_run in in_turn(runs, 10 * rounds)]
    counted = [count(run) for run in runs]
    return Chapter(
        title="A start",
        words=START_WORDS,
        head=["Program", "CPU, ms", "× floor", "Instructions, million", "× floor"],
        rows=[[name, milliseconds(taken[i]), times(taken[i], taken[0]),
               f"{counted[i] / 1e6:.1f}", times(counted[i], counted[0])]
              for i, name in enumerate(["floor-load", "filter"])],
        answers=[("a start", milliseconds(taken[1]) + " ms",
                  "a program that only loads libcups and reads the PPD",
                  times(taken[1], taken[0]))])


def memory(rasters, _rounds):
    rows = []
    for name, (paper, finish, besides) in MEMORY_JOBS.items():
        stream = rasters.photo(LONG_JOB, paper)
        options = f"PageSize={paper} RQPrintFinish={finish}"
        plain = measure(job_of(PROGRAMS[FLOOR], stream, 0)).peak + besides
        ours = measure(job_of(our_filter(options), stream, 1)).peak
        rows.append([name, megabytes(plain), megabytes(ours), times(ours, plain)])
    return Chapter(
        title="Memory",
        words=MEMORY_WORDS,
        head=["Job", "floor-copy and planes, MB", "Filter, MB", "× floor"],
        rows=rows,
        answers=[("memory of a job", rows[0][2] + " MB",
                  "what the floor of a page takes", rows[0][3])])
