"""The program as it is heard: a whole game with a real screen reader, by keyboard alone."""

import sys
import tempfile
import unittest
from pathlib import Path

from desktop import Desktop, copy_of_program
from speech import Speech, need_orca

PROGRAM_DIRECTORY = None
DATA = Path(__file__).resolve().parents[1] / "data"
GAME = "^Gallopade Nova($|:| -)"
TOUR = [tuple(map(int, line.split())) for line in
        (DATA / "beverley-1848.knight").read_text().splitlines()[1:65]]
# The knight stands on C2, a move away from a corner without a way out.
NEARLY_STUCK = [(0, 0), (1, 2), (2, 4), (3, 6), (1, 5), (3, 4), (2, 6)]


class SpeechTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = DESKTOP
        cls.speech = SPEECH

    def setUp(self):
        self.folder = Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.program = copy_of_program(PROGRAM_DIRECTORY, self.folder) / "GallopadeNova"
        self.process = None

    def tearDown(self):
        self.process.kill()
        self.process.wait()

    def start(self, *arguments):
        self.speech.forget()
        self.process = self.desktop.start_program(self.program, *arguments)
        self.hears("Gallopade Nova", "Chessboard", r"[A-H][1-8]\.", "knight, .* visited")

    def start_with(self, squares, settings=None):
        if settings:
            (self.program.parent / "GallopadeNova.ini").write_text(settings)
        self.start(self.game_of(squares))

    def game_of(self, squares):
        lines = ["20", *(f"{column} {row}" for column, row in squares)]
        lines += ["-1 -1"] * (65 - len(lines))
        path = self.folder / "agame.knight"
        path.write_text("".join(line + "\r\n" for line in lines), newline="")
        return path

    def hears(self, *patterns):
        self.speech.waits_to_hear(*patterns)

    def press(self, *keys):
        self.speech.forget()
        self.desktop.press(*keys)


class Board(SpeechTest):
    def test_a_game_is_played_by_ear(self):
        self.start()
        self.press("Left")
        self.hears(r"A8\.", r"edge of the board\.$")
        self.press("Right")
        self.hears(r"^B8\.", r"free\.$")
        self.press("Down")
        self.hears(r"^B7\.", r"free\.$")
        self.press("Down")
        self.hears(r"^B6\.", r"can be reached\.$")
        self.press("Return")
        self.hears(r"B6\.", r"2 visited, reaches A4, C4, C8, D5, D7\.$")
        self.press("Return")
        self.hears(r"B6\.", r"knight, cannot be reached\.$")
        self.press("BackSpace")
        self.hears(r"A8\.", r"1 visited, reaches B6, C7\.$")
        self.press("ctrl+y")
        self.hears(r"B6\.", r"2 visited, reaches A4, C4, C8, D5, D7\.$")
        self.press("F2")
        self.hears("New Game", "Do you want to start a new game", "Yes")
        self.press("Return")
        self.hears("Chessboard", r"A8\.", r"new game, knight, 1 visited, reaches B6, C7\.$")
        self.assertEqual(self.speech.errors(), "")

    def test_the_first_square_is_asked_for(self):
        (self.program.parent / "GallopadeNova.ini").write_text(
            "[Position]\nStarting Position=1\n")
        self.speech.forget()
        self.process = self.desktop.start_program(self.program)
        self.hears("Chessboard", "choose the first square")
        self.press("Down")
        self.hears(r"^A8\.", r"can be reached\.$")

    def test_a_game_ends_and_its_last_move_is_taken_back(self):
        self.start_with(NEARLY_STUCK)
        for square in ("B2", "A2", "A1"):
            self.press("Down" if square == "A1" else "Left")
            self.hears(rf"^{square}\.")
        self.press("Return")
        self.hears("Game Over", "There are no more valid moves", "Submit to Scores")
        self.press("Tab")
        self.hears("Undo Last Move")
        self.press("Return")
        self.hears("Chessboard", r"C2\.", r"7 visited, reaches A1, A3, B4, E1, E3\.$")


class Windows(SpeechTest):
    def test_a_replay_is_heard_to_its_end(self):
        self.start_with(TOUR[:5], "[Replay]\nAdvance Speed=1\n")
        self.press("ctrl+r")
        self.hears("Replay", "5, E8, end of the game")

    def test_the_bars_are_read_in_words(self):
        self.start_with(TOUR[:50], "[Replay]\nAdvancement=1\n")
        self.press("alt+f")
        self.hears("New")
        self.press("l")
        self.hears("Solve", "Start push button")
        self.press("shift+Tab")
        self.hears("Refresh", "every 1000 moves")
        self.press("Next")
        self.hears("every 2000 moves")
        self.press("alt+s")
        self.hears("search started", "Solved Successfully", "The game has been solved")


if __name__ == "__main__":
    need_orca()
    PROGRAM_DIRECTORY = Path(sys.argv.pop(1))
    with Desktop() as DESKTOP:
        SPEECH = Speech(DESKTOP)
        RESULT = unittest.main(exit=False).result
    sys.exit(not RESULT.wasSuccessful())
