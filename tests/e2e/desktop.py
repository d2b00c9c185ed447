"""A private desktop for the program: an X server, a window manager, a session bus and AT-SPI."""

import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

PATIENCE_SECONDS = 20
HOLDING_SECONDS = 1
SKIPPED = 77


def need(*tools):
    """Ends the test program as skipped when the machine lacks one of the tools."""
    missing = [tool for tool in tools if shutil.which(tool) is None]
    if missing:
        print("skipped, not installed:", ", ".join(missing))
        sys.exit(SKIPPED)


def wait_for(condition, what, seconds=PATIENCE_SECONDS):
    """The first true value of condition(); an AssertionError when it does not come in time."""
    deadline = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise AssertionError(f"waited in vain for {what}")
        time.sleep(0.02)


class Desktop:
    """Entered as a context; everything that it started ends with it."""

    def __init__(self, screen="1280x800x24", window_manager=True, x_server_options=()):
        self.screen = screen
        self.x_server_options = x_server_options
        self.window_manager = window_manager
        self.processes = []
        self.folder = None
        self.environment = None

    def __enter__(self):
        self.folder = tempfile.mkdtemp(prefix="desktop-")
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
        return self

    def __exit__(self, *_):
        for process in reversed(self.processes):
            if process.returncode is None:  # otherwise its number may be another process's by now
                os.killpg(process.pid, signal.SIGKILL)
            process.wait()
            if process.stdout:
                process.stdout.close()
        shutil.rmtree(self.folder, ignore_errors=True)

    def _start(self, command, **options):
        options.setdefault("stdout", subprocess.DEVNULL)
        process = subprocess.Popen(
            command, env=self.environment, stderr=subprocess.DEVNULL, start_new_session=True,
            **options)
        self.processes.append(process)
        return process

    def _start_x_server(self):
        read_end, write_end = os.pipe()
        self._start(["Xvfb", "-displayfd", str(write_end), "-screen", "0", self.screen,
                     "-nolisten", "tcp", "-noreset", *self.x_server_options],
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
        wait_for(lambda: self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK").count("window id"),
                 "the window manager")

    def run(self, *command):
        """The output of a command that runs on this desktop."""
        return subprocess.run(command, env=self.environment, check=False, capture_output=True,
                              text=True).stdout

    def watch(self, *command):
        """A command that goes on telling what happens on this desktop."""
        return self._start(command, stdout=subprocess.PIPE, text=True)

    def start_program(self, program, *arguments):
        """Arguments are paths, texts or the bytes of a name."""
        return self._start([program, *arguments], cwd=self.folder)

    def window(self, title):
        """The number of the visible window whose title matches the regular expression."""
        return wait_for(
            lambda: self.run("xdotool", "search", "--onlyvisible", "--name", title).split(),
            f"a window called {title}")[0]

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

    def hold(self, key, *modifiers):
        """Holds a key down for so long that the X server repeats it many times."""
        steps = [step for name in (*modifiers, key) for step in ("keydown", name)]
        steps += ["sleep", str(HOLDING_SECONDS)]
        steps += [step for name in (key, *modifiers) for step in ("keyup", name)]
        self.run("xdotool", *steps)

    def type(self, text):
        self.run("xdotool", "type", text)

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
