"""What a player and the desktop do to a search and to autoplay in real windows, at bad moments."""

import itertools
import sys
import tempfile
import unittest
from pathlib import Path

from desktop import Desktop, copy_of_program, exit_status, wait_for

PROGRAM_DIRECTORY = None
TITLE = "^Gallopade Nova"
BEFORE = "Gallopade Nova: 3 "
# The refresh bar in the Solve window, in parts of its width and height.
BAR_HEIGHT, BAR_LEFT, BAR_RIGHT = 0.46, 0.23, 0.6
TIMES = 15


class BadMoments(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop())
        folder = self.enterContext(tempfile.TemporaryDirectory())
        self.program = copy_of_program(PROGRAM_DIRECTORY, folder)
        self.settings = self.program / "GallopadeNova.ini"
        self.settings.write_text("[Settings]\nShow Solve Warnings=0\nSolve Refresh=1000\n")
        self.start()
        for move in (("Right", "Down", "Down"), ("Right", "Down", "Down")):
            self.desktop.press(*move, "Return")
        self.caption_begins(BEFORE)

    def start(self):
        self.process = self.desktop.start_program(self.program / "GallopadeNova")
        self.game = self.desktop.window(TITLE)
        self.desktop.focus(self.game)

    def caption_begins(self, text):
        wait_for(lambda: self.desktop.title(self.game).startswith(text), f"the caption {text}")

    def search(self):
        self.desktop.focus(self.game)
        self.desktop.press("alt+f", "l")
        solve = self.desktop.window("^Solve$")
        self.desktop.focus(solve)
        self.desktop.press("alt+s")
        return solve

    def has_no_dialog(self):
        wait_for(lambda: not self.desktop.has_window("^Solve$"), "the Solve window to go")

    def plays_on(self):
        """The game is as it was before, and takes moves."""
        self.has_no_dialog()
        self.desktop.focus(self.game)
        self.caption_begins(BEFORE)
        self.desktop.press("BackSpace")
        self.caption_begins("Gallopade Nova: 2 ")
        self.desktop.press("ctrl+y")
        self.caption_begins(BEFORE)
        self.assertIsNone(self.process.poll())

    def closes(self):
        self.desktop.close(self.game)
        self.desktop.window_in_front(r"^Exit\?$")
        self.desktop.press("alt+y")
        self.assertEqual(exit_status(self.process), 0)

    def test_the_window_manager_closes_the_solve_window_during_a_search(self):
        for _ in range(TIMES):
            self.desktop.close(self.search())
            self.plays_on()
        self.closes()

    def test_the_main_window_does_not_close_during_a_search(self):
        solve = self.search()
        for _ in range(TIMES):
            self.desktop.close(self.game)
        self.assertTrue(self.desktop.has_window("^Solve$"))
        self.desktop.focus(solve)
        self.desktop.press("alt+s", "Escape")
        self.plays_on()
        self.closes()

    def test_start_and_stop_in_quick_succession(self):
        solve = self.search()
        self.desktop.press(*["alt+s"] * 101)
        self.desktop.close(solve)
        self.plays_on()
        self.closes()

    def test_the_refresh_bar_is_dragged_throughout_a_search(self):
        solve = self.search()
        _, _, width, height = self.desktop.geometry(solve)
        places = [("mousemove", "--window", solve, str(int(part * width)),
                   str(int(BAR_HEIGHT * height)), "sleep", "0.01")
                  for part in (BAR_LEFT, BAR_RIGHT)] * TIMES
        drag = itertools.chain(*places)
        self.desktop.run("xdotool", *places[0], "mousedown", "1", *drag, "mouseup", "1")
        self.desktop.press("Escape")
        self.plays_on()
        self.closes()
        self.assertNotIn("Solve Refresh=1000", self.settings.read_text().splitlines())

    def test_keys_and_close_requests_rain_on_autoplay(self):
        rain = ["Left", "Return", "F2", "BackSpace", "ctrl+o", "ctrl+r", "Escape", "ctrl+z"] * 3
        for _ in range(TIMES):
            self.desktop.run("xdotool", "key", "--delay", "0", "alt+f", "a", *rain)
            self.desktop.close(self.game)
            wait_for(self.has_left, "the program to end")
            self.assertEqual(self.process.returncode, 0)
            self.start()

    def has_left(self):
        """Asks whatever is open to go, until the program has ended."""
        self.desktop.press("Escape")
        self.desktop.close(self.game)
        if self.desktop.has_window(r"^Exit\?$"):
            self.desktop.press("alt+y")
        return self.process.poll() is not None


if __name__ == "__main__":
    PROGRAM_DIRECTORY = Path(sys.argv.pop(1))
    unittest.main()
