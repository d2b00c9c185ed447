"""Keys that a player holds down for a second too long, with an X server that repeats them."""

import sys
import tempfile
import unittest
from pathlib import Path

from desktop import Desktop, copy_of_program, wait_for

PROGRAM_DIRECTORY = None
TOUR = Path(__file__).parent.parent / "data" / "beverley-1848.knight"
TITLE = "^Gallopade Nova"


def moves_of_tour():
    return [tuple(map(int, line.split())) for line in TOUR.read_text().splitlines()[1:]]


class HeldKeys(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop(x_server_options=["r"]))
        self.folder = Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.program = copy_of_program(PROGRAM_DIRECTORY, self.folder) / "GallopadeNova"

    def start(self):
        self.desktop.start_program(self.program)
        self.game = self.desktop.window(TITLE)
        self.desktop.focus(self.game)

    def caption_begins(self, text):
        wait_for(lambda: self.desktop.title(self.game).startswith(text), f"the caption {text}")

    def start_before_the_last_move(self):
        """The cursor stands on the last square of a tour that lacks only this one."""
        moves = moves_of_tour()
        game = self.folder / "63 moves.knight"
        lines = ["20"] + [f"{x} {y}" for x, y in moves[:63]] + ["-1 -1"]
        game.write_text("".join(line + "\r\n" for line in lines))
        self.desktop.start_program(self.program, game)
        self.game = self.desktop.opened_game(63)
        self.desktop.focus(self.game)
        (x, y), (last_x, last_y) = moves[62:64]
        self.desktop.press(*["Right" if last_x > x else "Left"] * abs(last_x - x),
                           *["Down" if last_y > y else "Up"] * abs(last_y - y))

    def start_in_the_middle(self):
        self.start()
        self.desktop.press("Right", "Down", "Down", "Return")
        self.caption_begins("Gallopade Nova: 2 ")

    def go_to_entry(self, menu, *way):
        before = self.windows()
        self.desktop.press(menu)
        wait_for(lambda: self.windows() > before, "the menu")
        self.desktop.press(*way)

    def windows(self, title=""):
        return len(self.desktop.run("xdotool", "search", "--onlyvisible", "--name",
                                    title).split())

    def only_opens(self, key, title):
        """Held down, the key opens the window and does nothing in it."""
        self.desktop.hold(key, until=lambda: self.desktop.window_in_front(title))
        self.desktop.window_in_front(title)

    def scores_are_untouched(self):
        self.assertFalse((self.program.parent / "Scores.dat").exists())

    def test_a_tour_is_celebrated_announced_and_submitted_one_after_the_other(self):
        for key in ("Return", "space"):
            with self.subTest(key=key):
                self.start_before_the_last_move()
                for title in ("^You Win!$", r"^Game Over\.\.\.$", "^High Scores$"):
                    self.only_opens(key, title)
                    self.scores_are_untouched()
                self.desktop.type("Ann")
                self.desktop.press("Return", "Escape")
                wait_for(lambda: not self.desktop.has_window("^High Scores$"), "the scores to close")
                self.assertIn("Ann", (self.program.parent / "Scores.dat").read_text())
                (self.program.parent / "Scores.dat").unlink()
                self.desktop.close(self.game)
                wait_for(lambda: not self.desktop.has_window(TITLE), "the program to end")

    def test_escape_closes_only_the_celebration(self):
        self.start_before_the_last_move()
        self.desktop.press("Return")
        self.desktop.window_in_front("^You Win!$")
        self.only_opens("Escape", r"^Game Over\.\.\.$")
        self.scores_are_untouched()

    def test_a_question_of_the_menu_is_not_answered_by_the_key_that_chose_it(self):
        entries = {r"^New Game\?$": (), r"^Restart\?$": ("Down", "Down", "Down"),
                   r"^Exit\?$": ("Up",)}
        for question, way in entries.items():
            for key in ("Return", "KP_Enter"):
                with self.subTest(question=question, key=key):
                    self.start_in_the_middle()
                    self.go_to_entry("alt+f", *way)
                    self.only_opens(key, question)
                    self.desktop.press("Escape")
                    wait_for(lambda: not self.desktop.has_window(question), "the question to go")
                    self.caption_begins("Gallopade Nova: 2 ")
                    self.desktop.close(self.game)
                    self.desktop.window_in_front(r"^Exit\?$")
                    self.desktop.press("alt+y")
                    wait_for(lambda: not self.desktop.has_window(TITLE), "the program to end")

    def test_a_file_dialog_is_not_left_by_the_key_that_closed_a_message(self):
        self.start()
        self.desktop.press("ctrl+o")
        self.desktop.window_in_front("^Open$")
        self.desktop.type("no such game")
        self.hold_until_there_are(2, "Return")  # the dialog, and its message above it
        self.hold_until_there_are(1, "Escape")
        self.desktop.press("Escape")
        wait_for(lambda: not self.desktop.has_window("^Open$"), "the dialog to go")

    def hold_until_there_are(self, number, key):
        self.desktop.hold(key, until=lambda: wait_for(lambda: self.windows("^Open$") == number,
                                                      f"{number} windows called Open"))
        self.assertEqual(self.windows("^Open$"), number)

    def test_a_menu_chooses_nothing_by_the_letter_that_opened_it(self):
        self.start()
        before = self.windows()
        self.desktop.hold("alt", "h", until=lambda: wait_for(lambda: self.windows() > before,
                                                             "the menu"))
        self.assertFalse(self.desktop.has_window("Help$"))


if __name__ == "__main__":
    PROGRAM_DIRECTORY = Path(sys.argv.pop(1))
    unittest.main()
