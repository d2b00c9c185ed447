"""What the system tells of processes, for whoever has to understand a failure from a log."""

from pathlib import Path


def told_of(path):
    try:
        return path.read_text().strip()
    except OSError:
        return "?"


def numbers_in_session(leader):
    """The processes that were started with the leader and after it."""
    for entry in Path("/proc").glob("[0-9]*"):
        fields = told_of(entry / "stat").rpartition(")")[2].split()
        if len(fields) > 3 and int(fields[3]) == leader:
            yield int(entry.name)


def threads_of(number):
    """A line for each thread: its name, its state, and what it waits for in the kernel."""
    for task in sorted(Path(f"/proc/{number}/task").glob("*")):
        state = told_of(task / "stat").rpartition(")")[2].split()[:1]
        yield " ".join([f"  {task.name}", told_of(task / "comm"), *state,
                        told_of(task / "wchan"), "in call", told_of(task / "syscall")])


def state_of(process):
    """Of a process that was started here and leads a session, and of all that it has started."""
    ended = process.poll()
    head = "runs" if ended is None else f"has ended with {ended}"
    lines = [line for number in sorted(numbers_in_session(process.pid))
             for line in threads_of(number)]
    return "\n".join([f"{process.args[0]} ({process.pid}) {head}", *lines])
