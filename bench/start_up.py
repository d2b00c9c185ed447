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
from desktop import Desktop, copy_of_program, wait_for  # noqa: E402

RUNS = 11
IDLE_SECONDS = 20
TICKS_PER_SECOND = os.sysconf("SC_CLK_TCK")


def clients(desktop):
    return desktop.run("xprop", "-root", "_NET_CLIENT_LIST").count("0x")


def start(desktop, program):
    """The process, and the seconds until its window was mapped."""
    begun = time.monotonic()
    process = desktop.start_program(program)
    wait_for(lambda: clients(desktop) > 0, "a mapped window")
    return process, time.monotonic() - begun


def stop(desktop, process):
    process.kill()
    process.wait()
    desktop.processes.remove(process)
    wait_for(lambda: clients(desktop) == 0, "the window to go")


def resident_megabytes(process):
    for line in Path(f"/proc/{process.pid}/status").read_text().splitlines():
        if line.startswith("VmRSS"):
            return int(line.split()[1]) / 1024
    raise ValueError("no resident size")


def cpu_ticks(process):
    fields = Path(f"/proc/{process.pid}/stat").read_text().rsplit(")", 1)[1].split()
    return int(fields[11]) + int(fields[12])


def measure(desktop, program):
    seconds, megabytes = [], []
    for _ in range(RUNS):
        process, mapped_after = start(desktop, program)
        time.sleep(0.5)
        seconds.append(mapped_after)
        megabytes.append(resident_megabytes(process))
        stop(desktop, process)
    return statistics.median(seconds), statistics.median(megabytes)


def idle_ticks(desktop, program):
    process, _ = start(desktop, program)
    time.sleep(2)
    before = cpu_ticks(process)
    time.sleep(IDLE_SECONDS)
    ticks = cpu_ticks(process) - before
    stop(desktop, process)
    return ticks


def main():
    program, empty_window = map(Path, sys.argv[1:3])
    with Desktop() as desktop, tempfile.TemporaryDirectory() as folder:
        desktop.environment.pop("QT_LINUX_ACCESSIBILITY_ALWAYS_ON")
        copy = copy_of_program(program.parent, folder) / program.name
        floor_seconds, floor_megabytes = measure(desktop, empty_window)
        seconds, megabytes = measure(desktop, copy)
        ticks = idle_ticks(desktop, copy)
    print(f"mapped after   {seconds * 1000:6.1f} ms   empty window {floor_seconds * 1000:6.1f} ms"
          f"   ratio {seconds / floor_seconds:.2f}")
    print(f"resident       {megabytes:6.1f} MB   empty window {floor_megabytes:6.1f} MB"
          f"   ratio {megabytes / floor_megabytes:.2f}")
    print(f"CPU ticks (1/{TICKS_PER_SECOND} s) in {IDLE_SECONDS} idle seconds: {ticks}")


if __name__ == "__main__":
    main()
