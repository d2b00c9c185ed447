"""The program for someone who does not see it: everything is found, done and heard through AT-SPI."""

import json
import sys
import tempfile
import unittest
from pathlib import Path

from desktop import Desktop, copy_of_program, need

PROGRAM_DIRECTORY = None
DATA = Path(__file__).resolve().parents[1] / "data"
GAME = "^Gallopade Nova($|:| -)"
BY_HAND = "Advancement=1"
SLOWEST = "Advance Speed=20"
# The shortest way into a corner without a way out.
SHORT_GAME = ["B6", "C4", "D2", "B3", "D4", "C2", "A1"]
TOUR = [tuple(map(int, line.split())) for line in
        (DATA / "beverley-1848.knight").read_text().splitlines()[1:65]]
# Thousands of positions are tested and shown before the tour is found.
LONG_SEARCH = json.loads((DATA / "solver-cases.jsonl").read_text().splitlines()[2])
# The knight is on F2, free are H1, where it is stuck, and A8, which it cannot reach.
NO_TOUR = [(column, row) for column in range(8) for row in range(8)
           if (column, row) not in [(0, 0), (7, 7), (5, 6)]] + [(5, 6)]


def square_name(column, row):
    return "ABCDEFGH"[column] + str(8 - row)


class AccessibilityTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = DESKTOP
        cls.reader = READER

    def setUp(self):
        self.folder = Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.program = copy_of_program(PROGRAM_DIRECTORY, self.folder) / "GallopadeNova"
        self.process = None

    def tearDown(self):
        self.process.kill()
        self.process.wait()
        self.reader.wait_for(lambda: self.reader.application() is None, "the program to be gone")

    def start(self, *arguments):
        self.process = self.desktop.start_program(self.program, *arguments)
        self.game = self.reader.window(GAME)
        self.desktop.focus(self.desktop.window(GAME))
        self.board = self.reader.find(self.game, "table", "Chessboard")
        self.reader.waits_to_hear("focused", "^Chessboard, ")

    def set_replay(self, setting):
        """At its usual speed it may have ended before its buttons are pressed on a busy machine."""
        (self.program.parent / "GallopadeNova.ini").write_text(f"[Replay]\n{setting}\n")

    def start_with(self, squares):
        lines = ["20", *(f"{column} {row}" for column, row in squares)]
        lines += ["-1 -1"] * (65 - len(lines))
        path = self.folder / "a game.knight"
        path.write_text("".join(line + "\r\n" for line in lines), newline="")
        self.start(path)
        self.desktop.opened_game(len(squares))

    def cell(self, name):
        column, row = ord(name[0]) - ord("A"), 8 - int(name[1])
        return self.board.queryTable().getAccessibleAt(row, column)

    def choose(self, menu, entry):
        self.reader.press(self.entry(menu, entry))

    def entry(self, menu, entry):
        bar = next(node for node in self.game if node.getRoleName() == "menu bar")
        return self.reader.find(self.reader.find(bar, "menu item", menu), "menu item", entry)

    def move_to(self, name):
        self.reader.press(self.cell(name))
        self.reader.waits_to_hear("description", f"^{name}$", "^knight$")

    def play(self, moves):
        for name in moves:
            self.move_to(name)

    def press_button(self, window, caption):
        self.reader.press(self.reader.find(window, "push button", caption))

    def texts(self, window):
        return [node.name for node in self.reader.everything_in(window)
                if node.getRoleName() == "label" and node.name]


class Board(AccessibilityTest):
    def test_the_board_is_a_table_of_named_squares(self):
        self.start()
        names = [cell.name for cell in self.board]
        self.assertEqual(names, [f"{column}{row}" for row in range(8, 0, -1)
                                 for column in "ABCDEFGH"])
        self.assertEqual({cell.getRoleName() for cell in self.board}, {"table cell"})
        table = self.board.queryTable()
        self.assertEqual((table.nRows, table.nColumns), (8, 8))

    def test_every_square_tells_its_state(self):
        self.start()
        self.move_to("B6")
        told = {cell.name: cell.description for cell in self.board}
        self.assertEqual(told["A8"], "visited")
        self.assertEqual(told["B6"], "knight")
        reachable = {name for name, state in told.items() if state == "can be reached"}
        self.assertEqual(reachable, {"C8", "D7", "D5", "C4", "A4"})
        self.assertEqual(sum(state == "free" for state in told.values()), 57)

    def test_every_square_has_a_place_of_its_own(self):
        self.start()
        places = set()
        for cell in self.board:
            extents = cell.queryComponent().getExtents(0)
            self.assertGreater(min(extents.width, extents.height), 10)
            places.add((extents.x, extents.y))
        self.assertEqual(len(places), 64)

    def test_the_cursor_is_told_as_it_moves(self):
        self.start()
        self.desktop.press("Right")
        self.reader.waits_to_hear("focused", "^B8, free$")
        self.desktop.press("Down")
        self.reader.waits_to_hear("focused", "^B7, free$")
        self.assertTrue(self.reader.is_focused(self.cell("B7")))

    def test_a_move_by_keyboard_is_told(self):
        self.start()
        self.desktop.press("Right", "Down", "Down")
        self.reader.waits_to_hear("focused", "^B6, can be reached$")
        self.desktop.press("Return")
        self.reader.waits_to_hear("description", "^B6$", "^knight$")


class Menus(AccessibilityTest):
    def test_every_entry_has_a_name(self):
        self.start()
        bar = next(node for node in self.game if node.getRoleName() == "menu bar")
        entries = [node for node in self.reader.everything_in(bar)
                   if node.getRoleName() == "menu item"]
        self.assertGreater(len(entries), 25)
        self.assertTrue(all(entry.name for entry in entries))

    def test_entries_tell_whether_they_can_be_used(self):
        self.start()
        self.assertFalse(self.reader.is_enabled(self.entry("Edit", "Undo")))
        self.move_to("B6")
        self.reader.wait_for(lambda: self.reader.is_enabled(self.entry("Edit", "Undo")), "Undo")


class Game(AccessibilityTest):
    def test_a_short_game_is_played_to_its_end_and_undone(self):
        self.start()
        self.play(SHORT_GAME[:-1])
        self.reader.press(self.cell(SHORT_GAME[-1]))
        self.reader.waits_to_hear("activate", "^Game Over...$")
        end = self.reader.window("^Game Over...$")
        self.assertRegex(" ".join(self.texts(end)), "no more valid moves")

        self.press_button(end, "Undo Last Move")
        self.reader.waits_to_hear("description", "^C2$", "^knight$")
        for name in ["D4", "B3", "D2", "C4", "B6", "A8"]:
            self.choose("Edit", "Undo")
            self.reader.waits_to_hear("description", f"^{name}$", "^knight$")
            self.assertTrue(self.reader.is_focused(self.cell(name)))
        self.choose("Edit", "Redo")
        self.reader.waits_to_hear("description", "^B6$", "^knight$")

    def test_a_question_has_its_title_and_its_text(self):
        self.start()
        self.move_to("B6")
        self.choose("File", "New")
        self.reader.waits_to_hear("activate", r"^New Game\?$")
        question = self.reader.window(r"^New Game\?$")
        self.assertEqual(question.getRoleName(), "alert")
        self.assertIn("Your current game is not finished. Do you want to start a new game?",
                      self.texts(question))
        self.press_button(question, "Yes")
        self.reader.waits_to_hear("description", "^A8$", "^knight$")

    def test_a_tour_by_hand_is_told_as_won(self):
        self.start_with(TOUR[:63])
        self.reader.press(self.cell(square_name(*TOUR[63])))
        self.reader.waits_to_hear("activate", "^You Win!$")
        self.press_button(self.reader.window("^You Win!$"), "OK")
        self.reader.waits_to_hear("activate", "^Game Over...$")

    def test_a_replay_tells_each_position(self):
        self.set_replay(BY_HAND)
        self.start()
        self.play(["B6", "C4"])
        self.choose("View", "Instant Replay...")
        replay = self.reader.window("^Replay$")
        self.press_button(replay, "Finish")
        self.reader.waits_to_hear("name", "^C4$")


class Solver(AccessibilityTest):
    def solve(self):
        self.choose("File", "Solve...")
        window = self.reader.window("^Solve$")
        self.reader.heard.clear()
        self.press_button(window, "Start")

    def test_the_tour_that_was_found_is_told(self):
        self.start_with(TOUR[:50])
        self.solve()
        self.reader.waits_to_hear("activate", "^Solved Successfully$")
        result = self.reader.window("^Solved Successfully$")
        self.assertIn("The game has been solved!", self.texts(result))

    def test_a_search_does_not_tell_every_position(self):
        (self.program.parent / "GallopadeNova.ini").write_text("[Settings]\nSolve Refresh=7\n")
        self.start_with(LONG_SEARCH["moves"])
        self.solve()
        self.reader.wait_for(lambda: self.reader.has_window("^Solved Successfully$"), "the tour")
        told = [entry for entry in self.reader.heard if entry[0] == "name"]
        self.assertLess(len(told), LONG_SEARCH["redraws"] / 2)

    def test_it_is_told_that_there_is_none(self):
        self.start_with(NO_TOUR)
        self.solve()
        self.reader.waits_to_hear("activate", "^No Solution$")
        result = self.reader.window("^No Solution$")
        self.assertRegex(" ".join(self.texts(result)), "there is no solution to this game")


class Windows(AccessibilityTest):
    def names_everything(self, title):
        window = self.reader.window(title)
        self.assertEqual(self.reader.unnamed_controls(window), [])
        return window

    def leaves(self, title, question=None):
        self.desktop.focus(self.desktop.window(title))
        self.desktop.press("Escape")
        if question:
            self.press_button(self.names_everything(question), "Yes")
        self.reader.wait_for(lambda: not self.reader.has_window(title), f"{title} to close")

    def looks_at(self, menu, entry, title, question=None):
        self.choose(menu, entry)
        self.names_everything(title)
        self.leaves(title, question)

    def test_the_main_window(self):
        self.start()
        self.names_everything(GAME)

    def test_the_windows_of_a_new_game(self):
        self.start()
        self.looks_at("View", "High Scores...", "^High Scores$")
        self.looks_at("View", "Low Scores...", "^Low Scores$")
        self.looks_at("Help", "About Gallopade Nova...", "^About Gallopade Nova$")
        self.looks_at("Edit", "Preferences...", "^Preferences$")
        self.looks_at("Help", "Contents", "^Gallopade Nova Help$")

    def test_the_windows_of_a_game_in_progress(self):
        self.set_replay(BY_HAND)
        self.start_with(TOUR[:50])
        self.looks_at("View", "Instant Replay...", "^Replay$", question="^End Replay$")
        self.looks_at("View", "Move History...", "^Move History$")
        self.looks_at("Edit", "Command History...", "^Command History$")
        self.looks_at("File", "Solve...", "^Solve$")

    def test_every_value_is_read_after_its_caption(self):
        self.set_replay(SLOWEST)
        self.start_with(TOUR[:50])
        self.choose("View", "Instant Replay...")
        self.assertRegex("|".join(self.texts(self.reader.window("^Replay$"))),
                         r"^Move:\|\d+\|Position:\|[A-H][1-8]\|Speed:\|2 sec.$")
        self.leaves("^Replay$", question="^End Replay$")
        self.choose("File", "Solve...")
        self.assertRegex("|".join(self.texts(self.reader.window("^Solve$"))),
                         r"^Tested:\|\d+\|Move:\|50\|Position:\|[A-H][1-8]\|")

    def test_the_windows_of_the_end_of_a_game(self):
        self.start()
        self.play(SHORT_GAME[:-1])
        self.reader.press(self.cell(SHORT_GAME[-1]))
        end = self.names_everything("^Game Over...$")
        self.press_button(end, "Submit to Scores")
        scores = self.names_everything("^Low Scores$")
        name = next(node for node in self.reader.everything_in(scores)
                    if node.getRoleName() == "text")
        name.queryEditableText().setTextContents("Alice")
        self.press_button(scores, "Close")
        self.reader.wait_for(lambda: not self.reader.has_window("^Low Scores$"), "the scores")
        self.choose("View", "Low Scores...")
        self.assertIn("Alice", self.texts(self.reader.window("^Low Scores$")))


if __name__ == "__main__":
    need("Xvfb", "openbox", "dbus-daemon", "xdotool", "xprop")
    try:
        import pyatspi  # noqa: F401
    except ImportError:
        print("skipped, not installed: python3-pyatspi")
        sys.exit(77)
    PROGRAM_DIRECTORY = Path(sys.argv.pop(1))
    with Desktop() as DESKTOP:
        from screen_reader import ScreenReader
        READER = ScreenReader()
        RESULT = unittest.main(exit=False).result
    sys.exit(not RESULT.wasSuccessful())
