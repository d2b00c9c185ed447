"""Start-up time, memory and idleness of the program against those of an empty window.

usage: start_up.py PROGRAM EMPTY_WINDOW   (the built executables; needs Xvfb, openbox, xprop)
"""

import os
import statistics
import sys
import tempfile
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "tests" / "e2e"))
from desktop import Desktop, copy_of_program  # noqa: E402

RUNS = 21
IDLE_SECONDS = 20
TICKS_PER_SECOND = os.sysconf("SC_CLK_TCK")


class Starts:
    """Programs that are started on a desktop, one at a time, as its window manager tells of them."""

    def __init__(self, desktop):
        self.desktop = desktop
        self.news = desktop.watch("xprop", "-spy", "-root", "_NET_CLIENT_LIST").stdout
        self.news.readline()

    def wait_for_windows(self, wanted):
        while ("0x" in self.news.readline()) != wanted:
            pass

    def start(self, program):
        """The process, and the seconds until its window was mapped."""
        begun = time.monotonic()
        process = self.desktop.start_program(program)
        self.wait_for_windows(True)
        return process, time.monotonic() - begun

    def stop(self, process):
        process.kill()
        process.wait()
        self.desktop.processes.remove(process)
        self.wait_for_windows(False)


def resident_megabytes(process):
    for line in Path(f"/proc/{process.pid}/status").read_text().splitlines():
        if line.startswith("VmRSS"):
            return int(line.split()[1]) / 1024
    raise ValueError("no resident size")


def processor_milliseconds(process):
    return int(Path(f"/proc/{process.pid}/schedstat").read_text().split()[0]) / 1e6


def cpu_ticks(process):
    fields = Path(f"/proc/{process.pid}/stat").read_text().rsplit(")", 1)[1].split()
    return int(fields[11]) + int(fields[12])


def measure(starts, *programs):
    """For each program the medians of its seconds, processor's milliseconds and megabytes.

    The programs take turns, so that what else the machine does weighs on all of them.
    """
    results = [([], [], []) for _ in programs]
    for _ in range(RUNS):
        for program, (seconds, milliseconds, megabytes) in zip(programs, results):
            process, mapped_after = starts.start(program)
            time.sleep(0.5)
            seconds.append(mapped_after)
            milliseconds.append(processor_milliseconds(process))
            megabytes.append(resident_megabytes(process))
            starts.stop(process)
    return [tuple(map(statistics.median, result)) for result in results]


def idle_ticks(starts, program):
    process, _ = starts.start(program)
    time.sleep(2)
    before = cpu_ticks(process)
    time.sleep(IDLE_SECONDS)
    ticks = cpu_ticks(process) - before
    starts.stop(process)
    return ticks


def main():
    program, empty_window = (Path(name).resolve() for name in sys.argv[1:3])
    with Desktop() as desktop, tempfile.TemporaryDirectory() as folder:
        desktop.environment.pop("QT_LINUX_ACCESSIBILITY_ALWAYS_ON")
        copy = copy_of_program(program.parent, folder) / program.name
        starts = Starts(desktop)
        floor, game = measure(starts, empty_window, copy)
        ticks = idle_ticks(starts, copy)
    for what, factor, unit, at_floor, at_game in zip(
            ("mapped after", "processor", "resident"), (1000, 1, 1), ("ms", "ms", "MB"), floor, game):
        print(f"{what:13} {at_game * factor:6.1f} {unit}   empty window {at_floor * factor:6.1f} {unit}"
              f"   ratio {at_game / at_floor:.2f}")
    print(f"CPU ticks (1/{TICKS_PER_SECOND} s) in {IDLE_SECONDS} idle seconds: {ticks}")


if __name__ == "__main__":
    main()
