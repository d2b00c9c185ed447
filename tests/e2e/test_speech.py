"""The program as it is heard: a whole game with a real screen reader, by keyboard alone."""

import re
import sys
import tempfile
import unittest
from pathlib import Path

from desktop import Desktop, copy_of_program
from speech import Speech, need_orca

PROGRAM_DIRECTORY = None
DATA = Path(__file__).resolve().parents[1] / "data"
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
        errors = self.speech.errors()
        self.process.kill()
        self.process.wait()
        # Orca may just have asked the program something. That it has no answer is nobody's fault.
        READER.wait_for(lambda: not READER.application(), "the end of the program")
        self.speech.errors()
        self.assertFalse(errors, errors)

    def start(self, *arguments):
        self.speech.forget()
        self.process = self.desktop.start_program(self.program, *arguments)
        self.hears("Gallopade Nova", "frame", "Chessboard, [A-H][1-8], knight, .* visited")

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

    def says(self, key, *patterns):
        """The key is answered by the patterns, one after the other."""
        self.speech.forget()
        self.desktop.press(key)
        self.hears(*patterns)

    def types(self, text):
        """As people do, no faster than the letters are spoken: each key cuts off what went before."""
        for character in text:
            self.speech.forget()
            self.desktop.type(character)
            self.hears(r"\w")


class Board(SpeechTest):
    def test_a_game_is_played_by_ear(self):
        self.start()
        self.says("Left", "A8, edge of the board")
        self.says("Right", "B8, free")
        self.says("Down", "B7, free")
        self.says("Down", "B6, can be reached")
        self.says("Return", "B6, 2 visited, reaches A4, C4, C8, D5, D7")
        self.says("Return", "B6, knight, cannot be reached")
        self.says("ctrl+y", "Redo is not possible now")
        self.says("ctrl+z", "A8, 1 visited, reaches B6, C7")
        self.says("ctrl+z", "Undo is not possible now")
        self.says("ctrl+y", "B6, 2 visited, reaches A4, C4, C8, D5, D7")
        self.says("BackSpace", "A8, 1 visited, reaches B6, C7")
        self.says("BackSpace", "A8, nothing to undo")

    def test_a_press_through_at_spi_and_a_click_are_told_like_a_key(self):
        self.start()
        board = READER.find(READER.window("^Gallopade Nova"), "table", "Chessboard").queryTable()
        self.speech.forget()
        READER.press(board.getAccessibleAt(2, 1))
        self.hears("B6, 2 visited, reaches A4, C4, C8, D5, D7")
        square = board.getAccessibleAt(4, 2).queryComponent().getExtents(0)
        self.speech.forget()
        self.click(square.x + square.width // 2, square.y + square.height // 2)
        self.hears("C4, 3 visited")

    def test_the_board_is_looked_over_row_by_row(self):
        self.start_with(TOUR[:5])
        self.says("KP_Up", "File Edit View Help")
        self.says("KP_Prior", "A8, visited B8, free C8, free D8, free E8, knight F8, free")
        self.says("KP_Prior", "F7, free G7, can be reached")
        self.says("Left", "D8, free")

    def test_a_new_game_is_told_without_the_board(self):
        self.start_with(TOUR[:5])
        self.says("F2", "New Game", "Do you want to start a new game", "Yes push button")
        self.says("Return", "Gallopade Nova.*frame", "new game, A8, knight, 1 visited, reaches B6, C7")
        self.assertNotRegex(" ".join(self.speech.said()), "table|row|column")

    def test_a_restarted_game_is_told_as_new(self):
        self.start_with(TOUR[:5])
        self.says("alt+f", "File menu", "New")
        self.says("r", "Restart", "Yes push button")
        self.says("Return", "new game, A8, knight, 1 visited")

    def test_the_first_square_is_asked_for(self):
        (self.program.parent / "GallopadeNova.ini").write_text(
            "[Position]\nStarting Position=1\n")
        self.speech.forget()
        self.process = self.desktop.start_program(self.program)
        self.hears("Chessboard, choose the first square")
        self.says("Down", "A8, can be reached")
        self.says("Return", "A8, 1 visited, reaches B6, C7")

    def test_a_game_ends_and_its_last_move_is_taken_back(self):
        self.start_with(NEARLY_STUCK)
        self.go_into_the_corner()
        self.says("Tab", "Undo Last Move")
        self.says("Return", "C2, 7 visited, reaches A1, A3, B4, E1, E3")

    def test_many_steps_are_told_in_one_sentence(self):
        self.start_with(TOUR[:38])
        self.says("alt+e", "Edit menu", "Undo")
        self.says("c", "Command History", r"List with \d+ items", "No Change")
        self.says("Home", r"Undo\sC7")
        self.says("alt+d", "Gallopade Nova.*frame", "A8, 1 visited, reaches B6, C7")
        self.assertEqual(self.squares_told(), ["A8"])
        self.says("alt+e", "Edit menu", "Redo")
        self.says("c", "Command History", r"List with \d+ items")
        self.says("End", r"Redo\sH2")
        self.says("alt+d", "Gallopade Nova.*frame", "H2, 38 visited")
        self.assertEqual(self.squares_told(), ["H2"])

    def test_a_file_is_opened_by_its_whole_path(self):
        game = self.game_of(NEARLY_STUCK)
        self.start()
        self.says("ctrl+o", r"Open dialog\. File name: text")
        self.says("Tab", "Games.* combo box")
        self.says("Down", "All Files.* combo box")
        self.says("shift+Tab", "File name: text")
        self.types(str(game))
        self.says("Return", "Gallopade Nova.*frame",
                  "Chessboard, C2, knight, 7 visited, reaches A1, A3, B4, E1, E3")
        self.says("Left", "B2, free")

    def click(self, x, y):
        """As people do: readers, which fall silent at the press, learn of it before the release."""
        self.desktop.run("xdotool", "mousemove", str(x), str(y), "mousedown", "1")
        READER.waits_to_hear("1p", "")
        self.desktop.run("xdotool", "mouseup", "1")

    def squares_told(self):
        return re.findall(r"([A-H][1-8]), \d+ visited", " ".join(self.speech.said()))

    def go_into_the_corner(self):
        self.says("Left", "B2, free")
        self.says("Left", "A2, free")
        self.says("Down", "A1, can be reached")
        self.says("Return", "Game Over", "There are no more valid moves", "Submit to Scores")


class Windows(SpeechTest):
    def test_a_name_is_entered_and_the_list_is_read(self):
        (self.program.parent / "Scores.dat").write_text(
            "[Low Scores]\nName 1=Bob\nMoves 1=5\nTime 1=7\n")
        self.start_with(NEARLY_STUCK)
        for key, square in (("Left", "B2"), ("Left", "A2"), ("Down", "A1")):
            self.says(key, square)
        self.says("Return", "Game Over", "Submit to Scores")
        self.says("Return", "Low Scores dialog", "Rank 2, your name text",
                  "Enter Your Name selected")
        self.types("Ann")
        self.says("Return", "Close push button", r"2, Ann, 8 moves, 0:00:\d\d\.\d")
        self.says("Tab", r"1, Bob, 5 moves, 0:00:03\.5")
        self.says("Down", "2, Ann, 8 moves")
        self.says("Down", "2, Ann, 8 moves")
        self.says("Tab", "New Game push button")

    def test_a_replay_is_heard_to_its_end(self):
        self.start_with(TOUR[:5], "[Replay]\nAdvance Speed=1\n")
        self.says("ctrl+r", "Replay", "5, E8, end of the game")

    def test_a_replay_is_stopped_and_sought_by_ear(self):
        self.start_with(TOUR[:50], "[Replay]\nAdvance Speed=20\n")
        self.says("ctrl+r", "Replay dialog", "Pause push button")
        self.says("space", "Start push button", "paused")
        self.says("space", "Pause push button", "running")
        self.says("alt+m", "Manual", "selected radio button")
        self.says("Tab", r"Seek scroll bar, \d+, [A-H][1-8]")
        self.says("End", "50, A5, end of the game")
        self.says("Home", "1, A8")
        self.says("Home", "1, A8")

    def test_a_game_is_solved_and_gone_back_by_ear(self):
        self.start_with(TOUR[:50])
        self.says("alt+f", "File menu", "New")
        self.says("l", "Solve", "Start push button")
        self.says("shift+Tab", "Refresh scroll bar, every 1000 moves")
        self.says("Next", "every 2000 moves")
        self.assertNotIn("2000.", self.speech.said())
        self.says("alt+s", "search started", "Solved Successfully", "The game has been solved")
        self.says("Return", "Solve", "every 2000 moves")
        self.says("alt+b", "back at move 50")

    def test_a_search_says_that_it_starts_and_stops(self):
        self.start_with(TOUR[:20], "[Settings]\nShow Solve Warnings=0\n")
        self.says("alt+f", "File menu", "New")
        self.says("l", "Solve", "Start push button")
        self.says("space", "Stop push button", "search started")
        self.says("space", "Start push button", "search stopped")

    def test_the_menus_say_which_they_are(self):
        self.start_with(TOUR[:2])
        self.says("alt+e", "Edit menu", "Undo")
        self.says("Up", "Preferences")
        self.says("Up", "Chessboard", "menu")
        self.says("Right", "Chessboard menu", "Open")
        self.assertNotIn("menu.", self.speech.said())
        self.says("Escape", "Chessboard")

    def test_the_moves_are_read_in_their_list(self):
        self.start_with(TOUR[:5])
        self.says("alt+v", "View menu", "Instant Replay")
        self.says("m", "Move History dialog", "List with 5 items", r"1\.\sA8")
        self.says("Down", "C7")
        self.says("Tab", "Options push button", "has a menu")
        self.says("space", "Options menu")
        self.says("Down", "Copy Moves to Clipboard")
        self.says("Return", "Options push button", "moves copied")

    def test_the_preferences_tell_what_they_show(self):
        self.start()
        self.says("alt+e", "Edit menu", "Chessboard", "menu")
        self.says("p", "Preferences dialog", "OK push button")
        self.says("Tab", "Cancel push button")
        self.says("Tab", "Chessboard panel", "Light Image", "push button", "has a menu")
        self.says("Tab", "Light image, Wood Light.gif")
        self.says("Tab", "Dark Image", "has a menu")
        self.assertNotRegex(" ".join(self.speech.said()), "panel")
        self.says("Menu", "Image Options menu")
        self.says("Down", "Stretch Images")
        self.says("Escape", "Dark Image")
        for heard in ("Dark image, ", "Visited Image", "Visited image, ", "Knight Image",
                      "Knight image, ", "Frame Image", "Frame image, ", "Use Images check box",
                      "Highlight Image", "Highlight image, ", "Valid Moves Only"):
            self.says("Tab", heard)
        self.assertEqual(" ".join(self.speech.said()).count("Highlight"), 0)

    def test_the_little_board_says_where_it_ends(self):
        self.start()
        self.says("alt+e", "Edit menu", "Chessboard", "menu")
        self.says("p", "Preferences dialog", "OK push button")
        self.says("alt+a", "Above Position", "selected radio button")
        self.says("shift+Tab", "A8", "selected radio button")
        self.says("Left", "A8, edge of the board")
        self.says("Right", "B8", "selected radio button")

    def test_the_swatch_of_a_colour_says_the_colour(self):
        (self.program.parent / "GallopadeNova.ini").write_text("[Chessboard]\nUse Images=0\n")
        self.start()
        self.says("alt+e", "Edit menu", "Chessboard", "menu")
        self.says("p", "Preferences dialog", "OK push button")
        self.says("Tab", "Cancel push button")
        self.says("Tab", "Light Color", "has a menu")
        self.says("Tab", r"Light color, \w+")
        self.says("alt+l", "Select Color dialog", "Basic colors, red 0, green 0, blue 0")
        self.says("Left", "red 0, green 0, blue 0")
        self.says("Down", "red 0, green 0, blue 127")
        self.says("space", "red 0, green 0, blue 127, selected")
        self.says("Return", "Preferences dialog", "Light color, red 0, green 0, blue 127")
        self.assertEqual(self.colors_told(), 1)
        self.says("shift+Tab", "Light Color")
        self.says("space", "Select Color dialog", "blue 127, selected")
        self.says("Down", "red 0, green 0, blue 255")
        self.says("space", "blue 255, selected")
        self.says("Return", "Preferences dialog", "Light Color.* push button",
                  "Light color, red 0, green 0, blue 255")
        self.assertEqual(self.colors_told(), 1)

    def colors_told(self):
        return " ".join(self.speech.said()).count("Light color, ")


class Help(SpeechTest):
    def open_help(self):
        self.start()
        self.says("F1", "Gallopade Nova Help frame", "Welcome to Gallopade Nova")

    def test_a_page_is_read_by_line_and_link(self):
        self.open_help()
        self.says("Down", "There is a chess knight")
        self.says("Tab", "How to Play, link")
        self.says("Return", "How to Play")
        self.says("alt+Left", "Welcome to Gallopade Nova, If you have two minutes")
        self.says("alt+Right", "How to Play")
        self.says("Down", "Visit all 64 squares")
        self.says("Escape", "Gallopade Nova.*frame", "A8, knight")

    def test_a_page_is_read_by_word_and_by_character(self):
        self.open_help()
        self.says("ctrl+Right", r"\bto\b")
        self.says("ctrl+Right", r"\bGallopade\b")
        self.says("Right", r"\ba\b")
        self.says("ctrl+End", "Press F1")
        self.says("Down", "Press F1")

    def test_a_search_says_what_it_finds_and_opens_it(self):
        self.open_help()
        self.says("ctrl+f", "Search for words")
        self.types("knight")
        self.hears("pages, Playing without a mouse or a screen")
        self.says("shift+Tab", "Search page tab list")
        self.says("Tab", "Search for words", "knight selected")
        self.assertEqual(" ".join(self.speech.said()).count("knight"), 1)
        self.says("Return", "where the knight stands")
        self.says("Down", "such as")

    def test_the_contents_and_the_index_lead_to_pages(self):
        self.open_help()
        self.says("alt+c", "Contents tree")
        self.says("Down", "[a-z]")
        self.says("alt+i", "Look for")
        self.types("undo")
        self.hears(r"\bUndo\b")
        self.says("Return", "Undo")


if __name__ == "__main__":
    need_orca()
    PROGRAM_DIRECTORY = Path(sys.argv.pop(1))
    with Desktop() as DESKTOP:
        SPEECH = Speech(DESKTOP)
        from screen_reader import ScreenReader
        READER = ScreenReader()
        RESULT = unittest.main(exit=False).result
    sys.exit(not RESULT.wasSuccessful())
