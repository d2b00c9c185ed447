"""A save that something is done to: what the programs of this folder share."""

import os
import re
import shutil
import subprocess
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
# The file is there, or is missing, or is behind a link, or has another name as well.
STARTS = ("there", "missing", "linked", "twin")
CALLS = ("openat", "open", "creat", "read", "pread64", "write", "pwrite64", "fsync", "fdatasync",
         "ftruncate", "close", "rename", "renameat", "renameat2", "unlink", "unlinkat", "fchmod",
         "chmod", "fchown", "flock", "stat", "lstat", "fstat", "newfstatat", "statx", "readlink",
         "getdents64", "flistxattr", "fgetxattr", "fsetxattr", "fremovexattr", "mmap")


def may_trace():
    return shutil.which("strace") and subprocess.run(
        ["strace", "-qq", "-o", "/dev/null", "true"], check=False).returncode == 0


class Save:
    """A file in a folder of its own, and the saver that writes it."""

    def __init__(self, saver, folder, kind, start, again=False):
        self.saver = saver
        self.again = ["again"] if again else []
        self.folder = Path(folder)
        self.path = self.folder / "file"
        self.kind = kind
        self.start = start
        self.old = OLD[kind] if start != "missing" else None
        self.start_anew()
        assert self.save() == SAVED
        self.new = self.content()
        self.names = self.names_there()
        assert self.new != self.old

    def start_anew(self):
        self.path.unlink(missing_ok=True)
        if self.start == "linked":
            (self.folder / "target").write_bytes(self.old)
            self.path.symlink_to("target")
        elif self.old is not None:
            self.path.write_bytes(self.old)
            self.path.chmod(0o600)
        if self.start == "twin":
            (self.folder / "twin").unlink(missing_ok=True)
            os.link(self.path, self.folder / "twin")

    def content(self):
        return self.path.read_bytes() if self.path.exists() else None

    def names_there(self):
        return sorted((path.name, path.is_symlink()) for path in self.folder.iterdir())

    def command(self):
        return [self.saver, self.kind, str(self.path), *self.again]

    def save(self, *tracer):
        return subprocess.run([*tracer, *self.command()], capture_output=True,
                              check=False).returncode

    def calls_in_order(self):
        """The calls that a save makes, from the start of its process."""
        self.start_anew()
        trace = subprocess.run(["strace", "-f", "-e", "trace=" + ",".join(CALLS), "-o",
                                "/dev/stdout", *self.command()],
                               capture_output=True, text=True, check=False).stdout
        return re.findall(r"^\d+ +(\w+)\(", trace, re.MULTILINE)

    def calls(self):
        """How often a save makes each call."""
        made = self.calls_in_order()
        return {call: made.count(call) for call in CALLS if call in made}

    def what_the_next_save_leaves(self):
        """What is wrong after a save that nothing is done to; None when all is well."""
        self.start_anew()
        if self.save() != SAVED or self.content() != self.new:
            return "not to be saved again"
        return f"{self.names_there()} left" if self.names_there() != self.names else None
