# SPDX-License-Identifier: Apache-2.0
"""Runs a program as a filter and says what it used: processor time and peak memory. Linux only.

The program runs on one processor; what feeds it and answers for the printer runs on another one.
The library measured.so is preloaded: pauses are not made, and the peak of memory is noted.
"""
import dataclasses
import os
import pathlib
import signal
import socket
import statistics
import tempfile
import threading

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ.get("TQR7_BUILD", ROOT / "build/release"))
LONGEST_RUN = 3600  # seconds
RASTER_MARK = 4  # bytes at the beginning of a raster stream, before its pages
BACK_CHANNEL, SIDE_CHANNEL = 3, 4  # where a filter finds them

# No descriptor of this process may have one of the numbers that a filter's channels get.
while os.open(os.devnull, os.O_RDONLY) < SIDE_CHANNEL:
    pass


@dataclasses.dataclass(frozen=True)
class Run:
    """One run of a program."""
    argv: list
    environment: dict = dataclasses.field(default_factory=dict)  # besides the few that all get
    input: str = os.devnull
    times: int = 1  # how often the pages of the input are fed; from twice on through a pipe
    output: str = os.devnull
    printer: bool = False  # whether there is a printer that is good and ready
    pinned: bool = True
    status: int = 0  # the exit status that the run must have
    least_bytes: int = 0  # that the program must write, on all its descriptors


@dataclasses.dataclass(frozen=True)
class Usage:
    """What one run used."""
    cpu: float  # seconds, user and system
    peak: float  # MB of resident memory


class VoidRun(Exception):
    """A run that did not do what is measured."""


def processors_for(run):
    """Those for the program, and those for the rest."""
    allowed = sorted(os.sched_getaffinity(0))
    return ({allowed[-1]}, {allowed[0]}) if run.pinned else (allowed, allowed)


def thread_on(processors, work, *arguments):
    """Starts a thread that stays on these processors."""
    def stay_and_work():
        os.sched_setaffinity(0, processors)
        work(*arguments)
    threading.Thread(target=stay_and_work, daemon=True).start()


def feed(path, times, pipe):
    """Writes the mark of the stream, and its pages so often, to a program while it reads."""
    with open(path, "rb") as stream, open(pipe, "wb", buffering=0) as sink:
        size = os.fstat(stream.fileno()).st_size
        start = 0
        try:
            for _ in range(times):
                while start < size:
                    start += os.sendfile(sink.fileno(), stream.fileno(), start, size - start)
                start = RASTER_MARK
        except BrokenPipeError:
            pass


def answer_for_printer(side_channel, back_channel):
    """The backend and a printer that is good and ready, as far as the filter asks them.

    The filter drains its output before it reads an answer and at no other time, so the answer goes
    into the back channel then. Zeros are a good status, and a printer that is ready.
    """
    drain_output, done, answer = 2, 1, bytes(16)
    with side_channel, open(back_channel, "wb", buffering=0) as answers:
        try:
            while len(head := side_channel.recv(4, socket.MSG_WAITALL)) == 4:
                data = b"" if head[0] == drain_output else b"\x01"
                if head[0] == drain_output:
                    answers.write(answer)
                side_channel.send(bytes([head[0], done, 0, len(data)]) + data)
        except (BrokenPipeError, ConnectionResetError):
            pass


def open_channels(processors, actions, ours):
    """Adds a printer's descriptors to the program's, and those to be closed here to `ours`."""
    back_read, back_write = os.pipe()
    our_end, side = socket.socketpair()
    ours += [back_read, side.detach()]
    actions += [(os.POSIX_SPAWN_DUP2, back_read, BACK_CHANNEL),
                (os.POSIX_SPAWN_DUP2, ours[-1], SIDE_CHANNEL)]
    thread_on(processors, answer_for_printer, our_end, back_write)


def start(run, status_file):
    """Starts the program on its processor; returns the number of its process."""
    processors, others = processors_for(run)
    actions = [(os.POSIX_SPAWN_OPEN, 1, run.output, os.O_WRONLY | os.O_CREAT, 0o600),
               (os.POSIX_SPAWN_OPEN, 2, os.devnull, os.O_WRONLY, 0)]
    ours = []
    if run.times == 1:
        actions.append((os.POSIX_SPAWN_OPEN, 0, run.input, os.O_RDONLY, 0))
    else:
        pipe_read, pipe_write = os.pipe()
        ours.append(pipe_read)
        actions.append((os.POSIX_SPAWN_DUP2, pipe_read, 0))
        thread_on(others, feed, run.input, run.times, pipe_write)
    if run.printer:
        open_channels(others, actions, ours)
    environment = {"PATH": os.environ["PATH"], "LC_ALL": "C", "CUPS_SERVER": "/nowhere/cups.sock",
                   "LD_PRELOAD": str(BUILD / "bench/measured.so"), "TQR7_STATUS": status_file,
                   **run.environment}
    here = os.sched_getaffinity(0)
    try:
        os.sched_setaffinity(0, processors)
        return os.posix_spawnp(run.argv[0], [str(word) for word in run.argv], environment,
                               file_actions=actions)
    finally:
        os.sched_setaffinity(0, here)
        for descriptor in ours:
            os.close(descriptor)


def written_by(process):
    """Bytes that a process which has ended wrote to all its descriptors."""
    counts = pathlib.Path(f"/proc/{process}/io").read_text(encoding="ascii")
    return int(counts.split("wchar: ")[1].split()[0])


def peak_in(status):
    """MB that a process had at most, by what it left; 0 when it was ended by a signal."""
    return int(status.split("VmHWM:")[1].split()[0]) / 1024 if status else 0.0


def measure(run):
    """Runs the program to its end. Raises VoidRun for another status, or too few bytes."""
    with tempfile.NamedTemporaryFile("r", encoding="utf-8") as status_file:
        process = start(run, status_file.name)
        killer = threading.Timer(LONGEST_RUN, os.kill, (process, signal.SIGKILL))
        killer.start()
        os.waitid(os.P_PID, process, os.WEXITED | os.WNOWAIT)
        killer.cancel()
        left = status_file.read()
        written = written_by(process) - len(left)
        _, status, used = os.wait4(process, 0)
        status = os.waitstatus_to_exitcode(status)
    if status != run.status:
        raise VoidRun(f"{run.argv[0]}: status {status}, and not {run.status}")
    if written < run.least_bytes:
        raise VoidRun(f"{run.argv[0]}: {written} bytes written, and not {run.least_bytes}")
    return Usage(used.ru_utime + used.ru_stime, peak_in(left))


def in_turn(runs, rounds, warm_up=True):
    """Runs all of them in turn, round after round; returns a list of usages for each.

    What slows the machine slows all alike. A first round that warms up is not counted.
    """
    usages = [[] for _ in runs]
    for number in range(rounds + warm_up):
        for run, of_run in zip(runs, usages):
            used = measure(run)
            if number >= warm_up:
                of_run.append(used)
    return usages


def middle(values):
    """The median."""
    return statistics.median(values)
