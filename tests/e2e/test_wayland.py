"""An evening under a Wayland compositor, where windows have no places and none is told it is hidden."""

import os
import sys
import tempfile
import time
import unittest
from pathlib import Path

from desktop import Desktop, copy_of_program, need, wait_for
from screen_reader import ScreenReader

PROGRAM_DIRECTORY = None
READER = None
SCREEN = (1280, 800)
PLUGINS = Path("/usr/lib")
GAME = "^Gallopade Nova($|:| -)"
HELP = "^Gallopade Nova Help$"
STORED = "[Settings]\nLeft=1234\nTop=567\nState=2\n[Replay]\nAdvancement=1\n"
SHELL = """\
[shell]
startup-animation=none
close-animation=none
animation=none
focus-animation=none
panel-position=none
background-color=0xff002040
"""
BACKGROUND = "srgb(0,32,64)"
# Of the screen, where the game hides the background.
MIDDLE = "400x400+440+200"
# Of the title bar that Qt draws for a maximised window. The compositor has no panel: it may come
# after the window, which lies below it then and not beside it.
MINIMISE_BUTTON = (SCREEN[0] - 58, 12)
# In the last of them, whatever pointer follows another one is where that is.
CORNERS = ((0, 0), (SCREEN[0] - 1, SCREEN[1] - 1))
RESTING_SECONDS = 1.6


class WaylandDesktop(Desktop):
    """The compositor has an X server for its screen, its mouse and its keyboard."""

    def __init__(self):
        super().__init__(screen="{}x{}x24".format(*SCREEN), window_manager=False)

    def _start_everything(self):
        super()._start_everything()
        width, height = SCREEN
        shell = Path(self.folder) / "weston.ini"
        shell.write_text(SHELL)
        self._start(["weston", f"--config={shell}", "--backend=x11-backend.so", "--use-pixman",
                     "--idle-time=0", f"--width={width}", f"--height={height}",
                     "--socket=wayland-test"])
        wait_for((Path(self.folder) / "wayland-test").exists, "the compositor")
        self.environment.update(WAYLAND_DISPLAY="wayland-test", QT_QPA_PLATFORM="wayland")
        os.environ.update(self.environment)
        self.point_at(*MINIMISE_BUTTON)
        wait_for(self.is_bare, "the background")

    def is_bare(self):
        """Whether the middle of the screen shows nothing but the background."""
        colours = self.run("import", "-window", "root", "-crop", MIDDLE, "-format",
                           "%k %[pixel:p{0,0}]", "info:-")
        return colours == f"1 {BACKGROUND}"


class Wayland(unittest.TestCase):
    def setUp(self):
        folder = self.enterContext(tempfile.TemporaryDirectory())
        self.program = copy_of_program(PROGRAM_DIRECTORY, folder) / "GallopadeNova"
        self.settings = self.program.parent / "GallopadeNova.ini"
        self.settings.write_text(STORED)

    def start(self):
        self.process = DESKTOP.start_program(self.program)
        self.game = READER.window(GAME)
        self.addCleanup(self.end)

    def end(self):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()
        READER.wait_for(lambda: READER.application() is None, "the program to be gone")

    def caption(self):
        return READER.window(GAME).name

    def caption_becomes(self, text):
        READER.wait_for(lambda: text in self.caption(), f"the caption {text}")

    def play(self):
        for number, square in enumerate(("B6", "C4", "D2"), 2):
            READER.press(READER.find(self.game, "table cell", square))
            self.caption_becomes(f": {number} ")

    def choose(self, entry):
        READER.press(READER.find(self.game, "menu item", entry))

    def press(self, window, button):
        READER.press(READER.find(READER.window(window), "push button", button))

    def clock_rests(self):
        before = self.caption()
        begin = time.monotonic()
        READER.wait_for(lambda: time.monotonic() - begin > RESTING_SECONDS, "time to pass")
        return self.caption() == before

    def minimise(self):
        """A click that comes too early is lost; one on the bare desktop does nothing. The compositor
        does not know in the beginning where the pointer is, and then follows its movements only."""
        def gone():
            for corner in CORNERS:
                DESKTOP.point_at(*corner)
            DESKTOP.click(*MINIMISE_BUTTON)
            return DESKTOP.is_bare()
        READER.wait_for(gone, "the window to be minimised")

    def bring_back(self):
        """By the keys for the next window, which do nothing to the only one."""
        def shown():
            DESKTOP.run("xdotool", "keydown", "super", "key", "Tab", "keyup", "super")
            return not DESKTOP.is_bare()
        READER.wait_for(shown, "the window to be shown again")

    def ended(self):
        return self.process.poll() is not None

    def exit(self):
        self.choose(next(node.name for node in READER.everything_in(self.game)
                         if node.getRoleName() == "menu item" and node.name.startswith("Exit")))
        READER.window(r"^Exit\?$")
        self.press(r"^Exit\?$", "Yes")
        wait_for(self.ended, "the program to end")
        self.assertEqual(self.process.returncode, 0)

    def has(self, role, name):
        return any(node.getRoleName() == role and node.name == name
                   for node in READER.everything_in(READER.window(GAME)))

    def test_the_clock_rests_while_the_window_is_minimised(self):
        self.start()
        self.play()
        READER.wait_for(lambda: not self.clock_rests(), "the clock to run")
        self.minimise()
        READER.wait_for(self.clock_rests, "the clock to rest")
        self.bring_back()
        READER.wait_for(lambda: not self.clock_rests(), "the clock to go on")

    def test_the_replay_is_shown_beside_the_board(self):
        self.start()
        self.play()
        self.choose("Instant Replay...")
        READER.wait_for(lambda: self.has("push button", "Finish"), "the replay in the game's window")
        self.assertEqual(len(READER.windows()), 1)
        self.press(GAME, "Finish")
        self.caption_becomes(": 4 ")
        self.press(GAME, "Close")
        READER.wait_for(lambda: not self.has("push button", "Finish"), "the replay to be gone")
        READER.press(READER.find(READER.window(GAME), "table cell", "F1"))
        self.caption_becomes(": 5 ")

    def test_the_help_stays_open_when_a_dialog_closes(self):
        self.start()
        self.choose("Contents")
        READER.window(HELP)
        self.choose("High Scores...")
        READER.window("^High Scores$")
        self.press("^High Scores$", "Close")
        READER.wait_for(lambda: not READER.has_window("^High Scores$"), "the scores to close")
        self.assertTrue(READER.has_window(HELP))

    def test_the_stored_place_is_left_for_desktops_that_have_one(self):
        for _ in range(2):
            self.start()
            self.play()
            self.exit()
            self.assertEqual(self.settings.read_text().split()[1:3], ["Left=1234", "Top=567"])
            self.end()


if __name__ == "__main__":
    PROGRAM_DIRECTORY = Path(sys.argv.pop(1))
    need("weston", "Xvfb", "xdotool", "import")
    if not list(PLUGINS.glob("*/qt6/plugins/platforms/libqwayland-*.so")):
        print("skipped, not installed: qt6-wayland")
        sys.exit(77)
    with WaylandDesktop() as DESKTOP:
        READER = ScreenReader()
        unittest.main()
