"""Stops a save after its N-th file system call, for every N, and lets others do their worst to it.

    interlopers.py SAVER [--short]

A stranger puts a link in the place of the file: what the link leads to stays as it is. Another copy
of the program saves a file in the same folder: both are saved, and nothing else is left. Another
computer, which sees no lock of this one, clears away what looks left: the file is saved nevertheless.
And at no moment may anyone else read a file that is its owner's alone.
"""

import itertools
import os
import signal
import subprocess
import sys
import tempfile

from saving import OLD, SAVED, SKIPPED, STARTS, Save, may_trace

PRECIOUS = b"precious"


class StoppedSave:
    """A saver that has stopped by itself after a call; leaving lets it go on to its end."""

    def __init__(self, save, call, number):
        save.start_anew()
        self.told = None
        self.tracer = subprocess.Popen(
            ["strace", "-f", "-o", "/dev/stdout", "-e", f"trace={call}",
             "-e", f"inject={call}:signal=SIGSTOP:when={number}", *save.command()],
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)

    def __enter__(self):
        for line in self.tracer.stdout:
            if "stopped by SIGSTOP" in line:
                self.saver = int(line.split()[0])
                return self
        raise RuntimeError("the saver did not stop")

    def __exit__(self, *_):
        os.kill(self.saver, signal.SIGCONT)
        self.tracer.stdout.read()
        self.told = self.tracer.wait()


def open_to_others(save):
    for path in save.folder.iterdir():
        if not path.is_symlink() and path.name != "victim" and path.stat().st_mode & 0o077:
            return f"{path.name} may be read by others"
    return None


def wrong_with_a_link(save, call, number):
    victim, twin = save.folder / "victim", save.folder / "twin of victim"
    with StoppedSave(save, call, number):
        wrong = open_to_others(save)
        save.path.unlink(missing_ok=True)
        victim.write_bytes(PRECIOUS)
        os.link(victim, twin)
        save.path.symlink_to("victim")
    content = victim.read_bytes()
    victim.unlink()
    twin.unlink()
    return "the link was followed" if content != PRECIOUS else wrong


def wrong_with_another_copy(save, call, number):
    other = save.folder / "other"
    with StoppedSave(save, call, number) as stopped:
        told_other = subprocess.run([save.saver, "game", str(other)], check=False).returncode
    if told_other != SAVED or not other.exists():
        return "the other copy did not save"
    other.unlink()
    if stopped.told != SAVED or save.content() != save.new:
        return "not saved"
    return f"{save.names_there()} left" if save.names_there() != save.names else None


def wrong_with_another_computer(save, call, number):
    with StoppedSave(save, call, number) as stopped:
        for path in save.folder.glob(".gallopade-saving-*"):
            path.unlink()
    if stopped.told != SAVED or save.content() != save.new:
        return "not saved without its temporary"
    return f"{save.names_there()} left" if save.names_there() != save.names else None


def moments(save):
    """Each call of a save, from where it has found out which file is meant, and its number."""
    made = save.calls_in_order()
    meant = len(made) - made[::-1].index("readlink")
    for place in range(meant, len(made)):
        yield made[place], made[:place + 1].count(made[place])


def main():
    saver = sys.argv[1]
    short = "--short" in sys.argv
    if not may_trace():
        print("skipped: strace is not installed, or may not trace here")
        return SKIPPED
    kinds = ("settings",) if short else OLD
    deeds = (wrong_with_a_link, wrong_with_another_copy, wrong_with_another_computer)
    starts = [start for start in STARTS if start in ("there", "twin")]
    runs, found = 0, []
    for kind, start in itertools.product(kinds, starts):
        with tempfile.TemporaryDirectory() as folder:
            save = Save(saver, folder, kind, start)
            for (call, number), deed in itertools.product(moments(save), deeds):
                runs += 1
                wrong = deed(save, call, number)
                if wrong:
                    found.append(f"{kind}, {start}: {call} {number}: {wrong}")
    print("\n".join(found + [f"{runs} stops, {len(found)} findings"]))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
