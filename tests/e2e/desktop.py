"""A private desktop for the program: an X server, a window manager, a session bus and AT-SPI."""

import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from processes import state_of

PATIENCE_SECONDS = 20
HOLDING_SECONDS = 1
SKIPPED = 77
LAST_WORDS = 2000
ANSWER_SECONDS = 5
# Windows that a frame is made of, and others that nobody sees.
OF_NO_INTEREST = re.compile(r" 1x1\+|\(has no name\)|\d child(ren)?:$")
QUESTIONS = (("xwininfo", "-root", "-tree"), ("xdotool", "getwindowfocus", "getwindowname"))

desktops = []  # those that are entered


def need(*tools):
    """Ends the test program as skipped when the machine lacks one of the tools."""
    missing = [tool for tool in tools if shutil.which(tool) is None]
    if missing:
        print("skipped, not installed:", ", ".join(missing))
        sys.exit(SKIPPED)


def wait_for(condition, what, seconds=PATIENCE_SECONDS):
    """The first true value of condition(); an AssertionError when it does not come in time.

    The error tells what there was instead on every desktop. A machine that stands still, or is so
    busy that a look takes long, costs no more than a second of the patience at each look.
    """
    looked = time.monotonic()
    while True:
        value = condition()
        if value:
            return value
        now = time.monotonic()
        seconds -= min(now - looked, 1)
        looked = now
        if seconds < 0:
            there_was = "".join(desktop.what_there_is() for desktop in desktops)
            raise AssertionError(f"waited in vain for {what}{there_was}")
        time.sleep(0.02)


def exit_status(process):
    """Of a process that is about to end."""
    wait_for(lambda: process.poll() is not None, "the end of the program")
    return process.returncode


class Desktop:
    """Entered as a context; everything that it started ends with it.

    Keys repeat only with the option "r" of the X server: on a busy machine a key that is merely
    pressed can stay down for longer than anybody would hold it.
    """

    def __init__(self, screen="1280x800x24", window_manager=True, x_server_options=()):
        self.screen = screen
        self.x_server_options = x_server_options
        self.window_manager = window_manager
        self.processes = []
        self.errors = {}
        self.folder = None
        self.environment = None

    def __enter__(self):
        self.folder = tempfile.mkdtemp(prefix="desktop-")
        desktops.append(self)
        try:
            self._start_everything()
        except BaseException:
            self.__exit__()
            raise
        return self

    def _start_everything(self):
        display = self._start_x_server()
        self.environment = {
            "PATH": os.environ["PATH"],
            "HOME": self.folder,
            "XDG_RUNTIME_DIR": self.folder,
            "DISPLAY": display,
            "LANG": "C.UTF-8",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "QT_QPA_PLATFORM": "xcb",
        }
        self._start_session_bus()
        os.environ.update(self.environment)
        if self.window_manager:
            self._start_window_manager()

    def __exit__(self, *_):
        desktops.remove(self)
        for process in reversed(self.processes):
            if process.returncode is None:  # otherwise its number may be another process's by now
                os.killpg(process.pid, signal.SIGKILL)
            process.wait()
            if process.stdout:
                process.stdout.close()
        for errors in self.errors.values():
            errors.close()
        shutil.rmtree(self.folder, ignore_errors=True)

    def _start(self, command, **options):
        options.setdefault("stdout", subprocess.DEVNULL)
        errors = tempfile.TemporaryFile()
        process = subprocess.Popen(
            command, env=self.environment, stderr=errors, start_new_session=True, **options)
        self.processes.append(process)
        self.errors[process] = errors
        return process

    def _start_x_server(self):
        read_end, write_end = os.pipe()
        self._start(["Xvfb", "-displayfd", str(write_end), "-screen", "0", self.screen,
                     "-nolisten", "tcp", "-noreset", "-r", *self.x_server_options],
                    pass_fds=[write_end])
        os.close(write_end)
        with os.fdopen(read_end) as number:
            return ":" + number.readline().strip()

    def _start_session_bus(self):
        bus = self._start(["dbus-daemon", "--session", "--nofork", "--print-address=1"],
                          stdout=subprocess.PIPE, text=True)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()

    def _start_window_manager(self):
        self._start(["openbox"])
        # It says early that it is there; what is shown before it keeps a list of windows is lost to it.
        wait_for(lambda: "(WINDOW)" in self.run("xprop", "-root", "_NET_CLIENT_LIST"),
                 "the window manager")

    def what_there_is(self):
        """For whoever reads of a failure: what runs and what it said, and what is shown."""
        lines = [f"\n-- Desktop {self.environment}"]
        for process in self.processes:
            lines += [state_of(process), self.last_words_of(process)]
        lines += [self.answer_to(*question) for question in QUESTIONS]
        return "\n".join(filter(None, lines))

    def last_words_of(self, process):
        errors = self.errors[process].fileno()
        begin = max(0, os.fstat(errors).st_size - LAST_WORDS)
        return os.pread(errors, LAST_WORDS, begin).decode(errors="replace")

    def answer_to(self, *question):
        """Also where there is no answer."""
        try:
            answer = subprocess.run(question, env=self.environment, check=False, text=True,
                                    stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                    timeout=ANSWER_SECONDS).stdout
        except (OSError, subprocess.TimeoutExpired) as error:
            answer = str(error)
        lines = [line for line in answer.splitlines() if not OF_NO_INTEREST.search(line)]
        return " ".join(question) + ":\n" + "\n".join(filter(None, lines))

    def run(self, *command):
        """The output of a command that runs on this desktop."""
        return subprocess.run(command, env=self.environment, check=False, capture_output=True,
                              text=True).stdout

    def watch(self, *command):
        """A command that goes on telling what happens on this desktop."""
        return self._start(command, stdout=subprocess.PIPE, text=True)

    def start_program(self, program, *arguments):
        """Arguments are paths, texts or the bytes of a name."""
        # What is started in the background of a script would not be told of Ctrl+C.
        return self._start(["env", "--default-signal", program, *arguments], cwd=self.folder)

    def window(self, title):
        """The number of the visible window whose title matches the regular expression."""
        return wait_for(
            lambda: self.run("xdotool", "search", "--onlyvisible", "--name", title).split(),
            f"a window called {title}")[0]

    def window_in_front(self, title):
        """The window, when it has the keyboard: a key that is pressed before goes to another."""
        window = self.window(title)
        wait_for(lambda: self.focused() == window, f"the keyboard in {title}")
        return window

    def opened_game(self, moves):
        """The window of a game that was opened with as many moves. While the knight walks them it
        takes no keys and clicks; when it has arrived the clock runs on."""
        window = self.window(f"^Gallopade Nova: {moves} - ")
        arrival = self.title(window)
        wait_for(lambda: self.title(window) != arrival, "the clock to run")
        return window

    def has_window(self, title):
        return bool(self.run("xdotool", "search", "--onlyvisible", "--name", title).split())

    def title(self, window):
        return self.run("xdotool", "getwindowname", window).strip()

    def geometry(self, window):
        lines = self.run("xdotool", "getwindowgeometry", "--shell", window).splitlines()
        values = dict(line.split("=") for line in lines)
        return tuple(int(values[key]) for key in ("X", "Y", "WIDTH", "HEIGHT"))

    def focus(self, window):
        self.run("xdotool", "windowfocus", "--sync", window)

    def focused(self):
        """The number of the window that has the keyboard."""
        return self.run("xdotool", "getwindowfocus").strip()

    def press(self, *keys):
        self.run("xdotool", "key", *keys)

    def hold(self, *keys, until=lambda: True):
        """Holds keys down until the condition is true, and then while the X server repeats the last
        of them many times. Returns the value of the condition."""
        self.run("xdotool", *[step for key in keys for step in ("keydown", key)])
        try:
            value = until()
            self.run("xdotool", "sleep", str(HOLDING_SECONDS))
            return value
        finally:
            self.run("xdotool", *[step for key in reversed(keys) for step in ("keyup", key)])

    def type(self, text):
        self.run("xdotool", "type", text)

    def point_at(self, x, y):
        self.run("xdotool", "mousemove", str(x), str(y))

    def click(self, x, y):
        self.run("xdotool", "mousemove", str(x), str(y), "click", "1")

    def close(self, window):
        """As the close box of the window manager does."""
        self.run("wmctrl", "-i", "-c", window)

    def screenshot(self, path):
        self.run("import", "-window", "root", str(path))


def copy_of_program(program_directory, folder):
    """A program directory of the test's own, so that it begins without settings."""
    copy = Path(folder) / "GallopadeNova"
    shutil.copytree(program_directory, copy,
                    ignore=shutil.ignore_patterns("*.ini", "Scores.dat"))
    return copy
