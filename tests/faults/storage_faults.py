"""Fails the N-th file system call of a save, for every N, with every error that a disk has.

    storage_faults.py SAVER [--short]

Whatever fails: the file is the old one or the new one, it is the new one if the saver says so, and
after the next save nothing else lies in the folder. The file is there, or is missing, or is behind
a link; the short form has it there.
"""

import itertools
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

SKIPPED = 77
SAVED, NOT_SAVED = 0, 1
OLD = {
    "chessboard": b"[Chessboard]\r\nLight Color=1\r\n",
    "game": b"7\r\n" + b"-1 -1\r\n" * 64,
    "moves": b"old moves\r\n",
    "scores": b"[High Scores]\r\nName 1=Old\r\nMoves 1=50\r\nTime 1=10\r\n",
    "settings": b"; mine\r\n[Settings]\r\nState=0\r\nMine=kept\r\n",
}
CALLS = ("openat", "open", "creat", "read", "pread64", "write", "pwrite64", "fsync", "fdatasync",
         "ftruncate", "close", "rename", "renameat", "renameat2", "unlink", "unlinkat", "fchmod",
         "chmod", "flock", "stat", "lstat", "fstat", "newfstatat", "statx", "access", "faccessat2",
         "readlink", "getdents64", "mmap")
SHORT_CALLS = ("openat", "read", "write", "fsync", "rename", "fchmod", "flock", "getdents64",
               "access", "newfstatat", "statx")
STARTS = ("there", "missing", "linked")
ERRORS = ("ENOSPC", "EIO", "EACCES", "EINTR")


class Fault:
    def __init__(self, saver, folder, kind, start):
        self.saver = saver
        self.path = folder / "file"
        self.kind = kind
        self.old = OLD[kind] if start != "missing" else None
        if start == "linked":
            (folder / "target").touch()
            self.path.symlink_to("target")
        self.start_anew()
        self.save()
        self.new = self.path.read_bytes()
        self.names = self.names_there()
        assert self.new != self.old

    def start_anew(self):
        if self.old is None:
            self.path.unlink(missing_ok=True)
        else:
            self.path.write_bytes(self.old)

    def names_there(self):
        return sorted((path.name, path.is_symlink()) for path in self.path.parent.iterdir())

    def save(self, *tracer):
        return subprocess.run([*tracer, self.saver, self.kind, str(self.path)],
                              capture_output=True, check=False).returncode

    def calls(self):
        """How often a save makes each call, from its start."""
        trace = subprocess.run(["strace", "-f", "-e", "trace=" + ",".join(CALLS), "-o",
                                "/dev/stdout", self.saver, self.kind, str(self.path)],
                               capture_output=True, text=True, check=False).stdout
        made = re.findall(r"^\d+ +(\w+)\(", trace, re.MULTILINE)
        return {call: made.count(call) for call in CALLS if call in made}

    def fails(self, call, error, number):
        """What is wrong after the call has failed; None when all is well."""
        self.start_anew()
        told = self.save("strace", "-f", "-qq", "-o", "/dev/null", "-e", f"trace={call}",
                         "-e", f"inject={call}:error={error}:when={number}")
        content = self.path.read_bytes() if self.path.exists() else None
        if content not in (self.old, self.new):
            return "damaged"
        if told == SAVED and content != self.new:
            return "told saved"
        if told == NOT_SAVED and content == self.new:
            return "told not saved"
        self.start_anew()
        if self.save() != SAVED or self.path.read_bytes() != self.new:
            return "not to be saved again"
        return f"{self.names_there()} left" if self.names_there() != self.names else None


def may_trace():
    return shutil.which("strace") and subprocess.run(
        ["strace", "-qq", "-o", "/dev/null", "true"], check=False).returncode == 0


def main():
    saver = sys.argv[1]
    short = "--short" in sys.argv
    if not may_trace():
        print("skipped: strace is not installed, or may not trace here")
        return SKIPPED
    runs, found = 0, []
    for kind, start in itertools.product(OLD, STARTS[:1] if short else STARTS):
        with tempfile.TemporaryDirectory() as folder:
            fault = Fault(saver, Path(folder), kind, start)
            calls = {call: count for call, count in fault.calls().items()
                     if not short or call in SHORT_CALLS}
            for (call, count), error in itertools.product(calls.items(), ERRORS):
                # The start of the process comes first; the save is in the last calls.
                first = max(1, count - 3) if short else 1
                if short and error not in ("ENOSPC", "EINTR"):
                    continue
                for number in range(first, count + 1):
                    runs += 1
                    wrong = fault.fails(call, error, number)
                    if wrong:
                        found.append(f"{kind}, {start}: {call} {number} of {count}, {error}: {wrong}")
    print("\n".join(found + [f"{runs} failing calls, {len(found)} findings"]))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
