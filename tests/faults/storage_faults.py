"""Fails the N-th file system call of a save, for every N, with every error that a disk has, and kills
the saver at it.

    storage_faults.py SAVER [--short]

Whatever fails: the file is the old one or the new one, it is the new one if the saver says so, and
after the next save nothing else lies in the folder. Nothing counts as saved that was not brought
onto the disk, content and name. What the program keeps is saved at the second try, and only once; a
disk that never takes it is the case of "on". The short form has the file there and fails the last
calls only.
"""

import itertools
import sys
import tempfile

from saving import NOT_SAVED, OLD, SAVED, SKIPPED, STARTS, Save, may_trace

# What the program keeps when it could not be saved.
KEPT = ("scores", "settings")
# That a file is written over, and no new one put in its place, is no failure of a kill's.
WRITTEN_OVER = ("twin",)
SHORT_CALLS = ("openat", "read", "write", "fsync", "renameat", "fchmod", "flock", "getdents64",
               "newfstatat", "fgetxattr", "pwrite64", "ftruncate")
ERRORS = ("ENOSPC", "EIO", "EACCES", "EINTR")


def wrong_order(save):
    """A pulled plug leaves the old file or the new one only if the content is on the disk before the
    name is, and the save has happened only when the name is there as well."""
    made = [call for call in save.calls_in_order() if call in
            ("write", "pwrite64", "ftruncate", "fsync", "rename", "renameat", "renameat2")]
    steps = [call for call, _ in itertools.groupby(made)]
    wanted = ["write", "fsync", "renameat", "fsync"]
    if save.start in WRITTEN_OVER:
        wanted = ["write", "fsync", "pwrite64", "ftruncate", "fsync"]
    return None if steps == wanted else f"goes {' '.join(steps)}"


def tamper(save, call, tampering, number):
    save.start_anew()
    return save.save("strace", "-f", "-qq", "-o", "/dev/null", "-e", f"trace={call}",
                     "-e", f"inject={call}:{tampering}:when={number}")


def wrong_after_error(save, call, error, number):
    """number: of the call that fails; with a "+", all from there on."""
    told = tamper(save, call, f"error={error}", number)
    content = save.content()
    if content not in (save.old, save.new):
        return "damaged"
    if told == SAVED and content != save.new:
        return "told saved"
    is_synced = error == "EINTR" or (save.again and number.isdigit())
    if told == SAVED and call == "fsync" and not is_synced:
        return "told saved, but it may not be on the disk"
    # The name of the new file is there then, but may not be so for ever.
    if told == NOT_SAVED and content == save.new and call != "fsync":
        return "told not saved"
    return save.what_the_next_save_leaves()


def wrong_after_kill(save, call, number):
    tamper(save, call, "signal=SIGKILL", number)
    if save.content() not in (save.old, save.new) and save.start not in WRITTEN_OVER:
        return "damaged"
    return save.what_the_next_save_leaves()


def findings(save, short):
    """One text or None for each call that something was done to."""
    yield wrong_order(save)
    for call, count in save.calls().items():
        if short and call not in SHORT_CALLS:
            continue
        # The start of the process comes first; the save is in the last calls.
        for number in range(max(1, count - 3) if short else 1, count + 1):
            where = f"{call} {number} of {count}"
            for error in ("ENOSPC", "EINTR") if short else ERRORS:
                wrong = wrong_after_error(save, call, error, str(number))
                yield wrong and f"{where}, {error}: {wrong}"
            if call == "fsync":
                wrong = wrong_after_error(save, call, "EIO", f"{number}+")
                yield wrong and f"{where} and on, EIO: {wrong}"
            if not short or call in ("write", "renameat", "pwrite64"):
                wrong = wrong_after_kill(save, call, number)
                yield wrong and f"{where}, killed: {wrong}"


def main():
    saver = sys.argv[1]
    short = "--short" in sys.argv
    if not may_trace():
        print("skipped: strace is not installed, or may not trace here")
        return SKIPPED
    cases = list(itertools.product(OLD, STARTS[:1] if short else STARTS))
    if short:
        cases.append(("settings", "twin"))
    runs, found = 0, []
    for kind, start in cases:
        with tempfile.TemporaryDirectory() as folder:
            for wrong in findings(Save(saver, folder, kind, start, kind in KEPT), short):
                runs += 1
                if wrong:
                    found.append(f"{kind}, {start}: {wrong}")
    print("\n".join(found + [f"{runs} tamperings, {len(found)} findings"]))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
