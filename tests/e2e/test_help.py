"""The help window beside the game and beside a dialog that blocks the game."""

import sys
import tempfile
import unittest
from pathlib import Path

from desktop import Desktop, copy_of_program, wait_for

PROGRAM_DIRECTORY = None
GAME = "^Gallopade Nova($|:| -)"
HELP = "^Gallopade Nova Help$"
SCORES = "^High Scores$"


class Help(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop())
        folder = self.enterContext(tempfile.TemporaryDirectory())
        program = copy_of_program(PROGRAM_DIRECTORY, folder) / "GallopadeNova"
        self.process = self.desktop.start_program(program)
        self.game = self.desktop.window(GAME)
        self.desktop.focus(self.game)

    def is_active(self, window):
        return self.desktop.run("xdotool", "getactivewindow").strip() == window

    def open_help(self):
        self.desktop.press("F1")
        window = self.desktop.window(HELP)
        wait_for(lambda: self.is_active(window), "the help in front")
        return window

    def closes_by_escape(self, window):
        """The game may take the keyboard meanwhile, since the dialog above it has closed."""
        self.desktop.focus(window)
        self.desktop.press("Escape")
        return self.help_is_gone()

    def help_is_gone(self):
        return not self.desktop.has_window(HELP)

    def test_the_game_goes_on_beside_the_help(self):
        self.open_help()
        self.desktop.focus(self.game)
        self.desktop.press("Right", "Right", "Down", "Return")
        wait_for(lambda: ": 2 " in self.desktop.title(self.game), "the move")
        self.assertTrue(self.desktop.has_window(HELP))

    def test_the_help_can_be_used_while_a_dialog_is_open(self):
        self.desktop.press("alt+v", "h")
        scores = self.desktop.window(SCORES)
        self.desktop.focus(scores)
        self.open_help()
        self.desktop.press("Escape")
        wait_for(self.help_is_gone, "the help to close")
        self.assertTrue(self.desktop.has_window(SCORES))

    def test_a_help_that_was_open_before_the_dialog_can_be_used_too(self):
        window = self.open_help()
        self.desktop.focus(self.game)
        self.desktop.press("alt+v", "h")
        self.desktop.window(SCORES)
        self.desktop.focus(window)
        self.desktop.press("Escape")
        wait_for(self.help_is_gone, "the help to close")
        self.assertTrue(self.desktop.has_window(SCORES))

    def test_the_help_outlives_the_dialog_that_it_was_opened_from(self):
        self.desktop.press("alt+v", "h")
        self.desktop.focus(self.desktop.window(SCORES))
        window = self.open_help()
        self.desktop.close(self.desktop.window(SCORES))
        wait_for(lambda: not self.desktop.has_window(SCORES), "the scores to close")
        wait_for(lambda: self.closes_by_escape(window), "the help to close")
        self.assertIsNone(self.process.poll())

    def test_the_program_ends_with_the_game_though_the_help_is_open(self):
        self.open_help()
        self.desktop.close(self.game)
        wait_for(lambda: self.process.poll() is not None, "the program to end")
        self.assertEqual(self.process.returncode, 0)


if __name__ == "__main__":
    PROGRAM_DIRECTORY = Path(sys.argv.pop(1))
    unittest.main()
