"""The main window under a window manager: its first place, its shape, and what it stores at the end."""

import sys
import tempfile
import unittest
from pathlib import Path

from desktop import Desktop, copy_of_program, wait_for

PROGRAM_DIRECTORY = None
TITLE = "^Gallopade Nova($|:| -)"
SCREEN = (1280, 800)
MENU_AT_MOST = 40
SMALLEST_HEIGHT = 187  # 2800 twips


class Window(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop(screen="{}x{}x24".format(*SCREEN)))
        folder = self.enterContext(tempfile.TemporaryDirectory())
        self.program = copy_of_program(PROGRAM_DIRECTORY, folder) / "GallopadeNova"
        self.settings = self.program.parent / "GallopadeNova.ini"

    def start(self, settings=""):
        if settings:
            self.settings.write_text(settings)
        self.process = self.desktop.start_program(self.program)
        self.game = self.desktop.window(TITLE)

    def start_and_settle(self):
        """The program puts itself into the middle as soon as it knows its frame; what is asked of the
        window in that moment is overruled."""
        self.start()
        wait_for(self.is_centred, "the window in the middle")

    def hide_time(self):
        """When it obeys this, it has also asked to be in front, and does not come back for that."""
        self.desktop.focus(self.game)
        self.desktop.press("alt+v", "t")
        wait_for(lambda: self.desktop.title(self.game).endswith(": 1"), "the time to be hidden")

    def close(self):
        self.desktop.close(self.game)
        wait_for(lambda: self.process.poll() is not None, "the program to end")

    def stored(self):
        lines = self.settings.read_text().splitlines()
        return dict(line.split("=", 1) for line in lines if "=" in line)

    def frame(self):
        """Left, top, right and bottom of the window with its frame."""
        lines = self.desktop.run("xwininfo", "-id", self.game).splitlines()
        values = dict(line.strip().split(": ", 1) for line in lines if ": " in line)
        left, top, width, height = (int(values[key]) for key in (
            "Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
        extents = self.desktop.run("xprop", "-id", self.game, "_NET_FRAME_EXTENTS")
        west, east, north, south = map(int, extents.split("=")[1].split(","))
        return left - west, top - north, left + width + east, top + height + south

    def is_centred(self):
        left, top, right, bottom = self.frame()
        return (abs(left - (SCREEN[0] - right)) <= 1 and abs(top - (SCREEN[1] - bottom)) <= 1)

    def test_a_first_start_is_centred_with_its_frame(self):
        self.start_and_settle()

    def test_stored_bounds_larger_than_the_screen_come_up_inside_it(self):
        self.start("[Settings]\nLeft=3000\nTop=3000\nHeight=30000\nWidth=30000\n")

        def is_inside():
            left, top, right, bottom = self.frame()
            _, _, width, height = self.desktop.geometry(self.game)
            return (left >= 0 and top >= 0 and right <= SCREEN[0] and bottom <= SCREEN[1]
                    and 0 < height - width < MENU_AT_MOST)
        wait_for(is_inside, "the window inside the screen")

    def test_a_title_bar_above_the_screen_is_brought_back(self):
        self.start("[Settings]\nLeft=-45\nTop=-450\nHeight=7500\nWidth=7500\n")
        wait_for(lambda: self.frame()[1] >= 0, "the title bar")

    def test_too_low_a_window_snaps_to_its_smallest_height(self):
        self.start_and_settle()
        self.desktop.run("xdotool", "windowsize", self.game, "400", "100")
        wait_for(lambda: self.desktop.geometry(self.game)[3] == SMALLEST_HEIGHT, "the height")

    def test_the_inside_is_square_after_a_resize(self):
        self.start_and_settle()
        before = self.desktop.geometry(self.game)
        menu = before[3] - before[2]
        self.desktop.run("xdotool", "windowsize", self.game, "500", "400")
        wait_for(lambda: self.desktop.geometry(self.game)[2:] == (400 - menu, 400), "the square")

    def test_exiting_while_minimised_stores_the_bounds_but_not_the_state(self):
        self.start("[Settings]\nState=7\nLeft=3000\nTop=1500\nHeight=7500\nWidth=7200\n")
        self.hide_time()
        self.desktop.run("xdotool", "windowminimize", self.game)
        wait_for(lambda: "Iconic" in self.desktop.run("xprop", "-id", self.game, "WM_STATE"),
                 "the window to be minimised")
        self.close()
        stored = self.stored()
        self.assertEqual(stored["State"], "7")
        self.assertEqual([stored["Left"], stored["Top"], stored["Height"]],
                         ["3000", "1500", "7500"])


if __name__ == "__main__":
    PROGRAM_DIRECTORY = Path(sys.argv.pop(1))
    unittest.main()
