"""The board is made one's own in real windows: by keys, by the right mouse button, for good."""

import sys
import tempfile
import unittest
from pathlib import Path

from desktop import Desktop, copy_of_program, wait_for

PROGRAM_DIRECTORY = None
GAME = "^Gallopade Nova($|:| -)"
PREFERENCES = "^Preferences$"
ABOUT = "^About Gallopade Nova$"


class Appearance(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop())
        self.folder = Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.program = copy_of_program(PROGRAM_DIRECTORY, self.folder) / "GallopadeNova"
        self.settings = self.program.parent / "GallopadeNova.ini"
        self.process = self.desktop.start_program(self.program)
        self.game = self.desktop.window(GAME)
        self.desktop.focus(self.game)

    def open_preferences(self):
        self.desktop.press("alt+e", "p")
        return self.desktop.window_in_front(PREFERENCES)

    def press_first_chooser(self, key):
        """The window opens on OK; Cancel follows, then the first of the buttons that choose."""
        self.desktop.press("Tab", "Tab", key)

    def agree(self):
        """From an option, where Return is OK; on a button it presses that."""
        self.desktop.press("alt+m", "Return")
        self.wait_for_closing()

    def wait_for_closing(self):
        wait_for(lambda: not self.desktop.has_window(PREFERENCES), "the preferences to close")

    def stored(self, key):
        lines = self.settings.read_text().splitlines() if self.settings.exists() else []
        return dict(line.split("=", 1) for line in lines if "=" in line).get(key)

    def test_keys_alone_change_the_look_and_the_start(self):
        self.open_preferences()
        self.press_first_chooser("Menu")
        self.desktop.press("b")  # borders
        self.desktop.press("alt+p")  # the options of the highlight; the little board comes next
        self.desktop.press("Tab", "Right", "Right", "Down", "Return")
        wait_for(lambda: self.stored("Starting X") == "2", "the starting column")
        self.assertEqual(self.stored("Starting Y"), "1")
        self.assertEqual(self.stored("Highlighting Method"), "1")
        self.assertEqual(self.stored("Use Borders"), "1")

    def test_shift_alone_with_a_key_opens_the_menu_but_shift_does_not(self):
        self.open_preferences()
        self.press_first_chooser("Shift_L")
        self.desktop.run("xdotool", "keydown", "Shift_L", "key", "F10", "keyup", "Shift_L")
        self.desktop.press("b")
        self.agree()
        wait_for(lambda: self.stored("Use Borders") == "1", "the borders")

    def test_the_right_button_opens_the_menu_below_the_button(self):
        window = self.open_preferences()
        self.desktop.run("xdotool", "mousemove", "--window", window, "60", "62", "click", "3")
        self.desktop.press("e")  # centred images
        self.agree()
        wait_for(lambda: self.stored("Image Positioning") == "1", "the centred images")

    def test_escape_stores_nothing(self):
        self.open_preferences()
        self.press_first_chooser("Menu")
        self.desktop.press("b")
        self.desktop.press("Escape")
        self.wait_for_closing()
        self.assertFalse(self.settings.exists())

    def test_the_hidden_animation_ends_with_its_window(self):
        self.desktop.press("alt+h", "a")
        window = self.desktop.window(ABOUT)
        self.desktop.run("xdotool", "mousemove", "--window", window, "100", "100",
                         "click", "--repeat", "2", "1")
        before = self.colours_of(window)
        wait_for(lambda: self.colours_of(window) > before, "the animation")
        self.desktop.press("Return")
        wait_for(lambda: not self.desktop.has_window(ABOUT), "the window to close")
        self.assertIsNone(self.process.poll())

    def colours_of(self, window):
        return int(self.desktop.run("identify", "-format", "%k", self.picture_of(window)))

    def picture_of(self, window):
        picture = str(self.folder / "seen.png")
        self.desktop.run("import", "-window", window, picture)
        return picture


if __name__ == "__main__":
    PROGRAM_DIRECTORY = Path(sys.argv.pop(1))
    unittest.main(verbosity=2)
