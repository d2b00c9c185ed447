"""A player's evening in a real window: play, save, close, reopen, and find everything again."""

import os
import sys
import tempfile
import unittest
from pathlib import Path

from desktop import Desktop, copy_of_program, wait_for

PROGRAM_DIRECTORY = None
GAME = Path(__file__).parent.parent / "data" / "beverley-first-40.knight"
TITLE = "^Gallopade Nova"
FRAME_PIXELS = 16
MOVES = [(2, 1), (4, 0), (6, 1), (7, 3), (5, 2)]


class Play(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop())
        self.folder = self.enterContext(tempfile.TemporaryDirectory())
        self.program = copy_of_program(PROGRAM_DIRECTORY, self.folder) / "GallopadeNova"

    def start(self, *arguments):
        self.process = self.desktop.start_program(self.program, *arguments)
        self.game = self.desktop.window(TITLE)
        self.desktop.focus(self.game)

    def caption_begins(self, text):
        wait_for(lambda: self.desktop.title(self.game).startswith(text), f"the caption {text}")

    def click_square(self, x, y):
        left, top, width, height = self.desktop.geometry(self.game)
        inner = width  # the inner area is square
        side = (inner - 2 * FRAME_PIXELS) / 8
        self.desktop.click(int(left + FRAME_PIXELS + (x + 0.5) * side),
                           int(top + height - inner + FRAME_PIXELS + (y + 0.5) * side))

    def play(self):
        for number, (x, y) in enumerate(MOVES, 2):
            self.click_square(x, y)
            self.caption_begins(f"Gallopade Nova: {number} ")

    def save_as(self, path):
        self.desktop.press("ctrl+s")
        self.desktop.window_in_front("^Save As$")
        self.desktop.type(str(path))
        self.desktop.press("Return")
        wait_for(path.exists, "the saved game")

    def close_with(self, answer):
        self.desktop.close(self.game)
        self.desktop.window_in_front(r"^Exit\?$")
        self.desktop.press(answer)

    def ended(self):
        return self.process.poll() is not None

    def test_a_saved_game_is_found_again(self):
        saved = Path(self.folder) / "a game.knight"
        self.start()
        self.play()
        self.save_as(saved)
        self.close_with("alt+y")
        wait_for(self.ended, "the program to end")
        self.assertEqual(self.process.returncode, 0)

        lines = saved.read_bytes().split(b"\r\n")
        self.assertEqual(len(lines), 66)
        self.assertEqual(lines[1:7], [b"0 0"] + [b"%d %d" % move for move in MOVES])
        self.assertEqual(set(lines[7:65]), {b"-1 -1"})

        self.start(saved)
        self.desktop.opened_game(6)
        self.click_square(7, 0)  # not a knight's move away: nothing happens
        self.click_square(7, 1)
        self.caption_begins("Gallopade Nova: 7 ")

    def test_the_window_stays_where_it_was(self):
        settings = self.program.parent / "GallopadeNova.ini"
        settings.write_text("[Settings]\nLeft=3000\nTop=1500\n")  # else it centres itself at first
        self.start()
        before = wait_for(self.settled_geometry, "the window")
        self.desktop.run("xdotool", "windowmove", "--sync", self.game, "137", "93")
        wait_for(lambda: self.desktop.geometry(self.game) != before, "the window to move")
        place = wait_for(self.settled_geometry, "the moved window")
        for _ in range(10):
            self.desktop.close(self.game)
            wait_for(self.ended, "the program to end")
            self.start()
            self.assertEqual(wait_for(self.settled_geometry, "the window"), place)

    def test_a_window_whose_stored_size_is_not_square_keeps_its_corner(self):
        settings = self.program.parent / "GallopadeNova.ini"
        settings.write_text("[Settings]\nLeft=3000\nTop=1500\nHeight=7500\nWidth=9000\n")
        self.start()
        wait_for(self.settled_geometry, "the window")
        self.desktop.close(self.game)
        wait_for(self.ended, "the program to end")
        lines = settings.read_text().split()
        self.assertIn("Left=3000", lines)
        self.assertIn("Top=1500", lines)
        self.assertIn("Height=7500", lines)

    def test_the_arguments_are_the_name_of_a_game_and_nothing_else(self):
        for name in ("-style Fusion.knight", "-platform offscreen -geometry 1.knight"):
            (Path(self.desktop.folder) / name).write_bytes(GAME.read_bytes())
            self.start(*name.split())
            self.caption_begins("Gallopade Nova: 40 ")
            self.process.kill()
            wait_for(self.ended, "the program to end")

    def test_a8_is_at_the_top_left_also_where_people_write_from_right_to_left(self):
        self.desktop.environment.update(LANG="ar_EG.UTF-8", LANGUAGE="ar")
        self.start()
        self.play()

    def test_a_game_is_opened_by_the_bytes_of_its_name(self):
        name = os.fsencode(self.folder) + b"/caf\xe9 \xf0\x9f.knight"
        with open(name, "wb") as file:
            file.write(GAME.read_bytes())
        self.start(name)
        self.caption_begins("Gallopade Nova: 40 ")

    def test_a_window_that_would_fill_the_memory_is_made_smaller(self):
        settings = self.program.parent / "GallopadeNova.ini"
        settings.write_text("[Settings]\nHeight=480000\n")
        self.start()
        self.assertLess(self.desktop.geometry(self.game)[3], 2000)
        self.desktop.close(self.game)
        wait_for(self.ended, "the program to end")

    def settled_geometry(self):
        first = self.desktop.geometry(self.game)
        return first if first == self.desktop.geometry(self.game) else None

    def test_the_keyboard_comes_back_when_two_dialogs_close_at_once(self):
        self.start()
        self.play()
        for _ in range(10):
            self.desktop.press("ctrl+r")
            self.desktop.focus(self.desktop.window("^Replay$"))
            self.desktop.press("alt+c")
            self.desktop.window_in_front("^End Replay$")
            self.desktop.press("alt+y")
            wait_for(lambda: self.desktop.focused() == self.game, "the keyboard in the game")

    def test_no_at_the_exit_question_keeps_the_game(self):
        self.start()
        self.play()
        self.close_with("alt+n")
        wait_for(lambda: not self.desktop.has_window(r"^Exit\?$"), "the question to go")
        self.assertFalse(self.ended())
        self.click_square(7, 0)
        self.click_square(7, 1)
        self.caption_begins("Gallopade Nova: 7 ")


class WithoutAWindowManager(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(Desktop(window_manager=False))
        folder = self.enterContext(tempfile.TemporaryDirectory())
        self.desktop.start_program(copy_of_program(PROGRAM_DIRECTORY, folder) / "GallopadeNova")
        self.game = self.desktop.window(TITLE)

    def caption_begins(self, text):
        wait_for(lambda: self.desktop.title(self.game).startswith(text), f"the caption {text}")

    def test_the_game_and_its_questions_have_the_keyboard_in_turn(self):
        wait_for(lambda: self.desktop.focused() == self.game, "the keyboard in the game")
        for _ in range(3):
            self.desktop.press("Right", "Down", "Down", "Return")
            self.caption_begins("Gallopade Nova: 2 ")
            self.desktop.press("F2")
            question = self.desktop.window(r"^New Game\?$")
            wait_for(lambda: self.desktop.focused() == question, "the keyboard in the question")
            self.desktop.press("Return")
            self.caption_begins("Gallopade Nova: 1 ")
            wait_for(lambda: self.desktop.focused() == self.game, "the keyboard in the game")


if __name__ == "__main__":
    PROGRAM_DIRECTORY = Path(sys.argv.pop(1))
    unittest.main()
