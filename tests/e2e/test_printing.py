"""The list of moves on paper, by a real print server."""

import sys
import unittest
from pathlib import Path

from desktop import need, wait_for
from move_lists import MoveListTest
from print_server import TOOLS, PrintServer, SilentServer


class Printing(MoveListTest):
    def test_the_page_shows_the_game_in_two_columns(self):
        server = self.enterContext(PrintServer())
        server.add_default_printer()
        self.desktop.environment["CUPS_SERVER"] = server.address
        self.open_move_history()
        self.choose("alt+o", "p")
        wait_for(server.printed.exists, "the printed page")
        self.shows_the_game(server.printed)

    def test_the_list_arrives_although_the_window_is_closed_at_once(self):
        server = self.enterContext(PrintServer())
        server.add_default_printer()
        self.desktop.environment["CUPS_SERVER"] = server.address
        self.open_move_history()
        self.choose("alt+o", "p")
        self.desktop.press("Escape")
        wait_for(server.printed.exists, "the printed page")
        wait_for(lambda: not self.desktop.has_window("^Move History$"), "the history to close")

    def test_a_queue_that_refuses_is_reported(self):
        server = self.enterContext(PrintServer())
        server.add_default_printer()
        server.reject_jobs()
        self.desktop.environment["CUPS_SERVER"] = server.address
        self.open_move_history()
        self.choose("alt+o", "p")
        self.says_sorry()

    def test_a_missing_printer_is_reported(self):
        server = self.enterContext(PrintServer())
        self.desktop.environment["CUPS_SERVER"] = server.address
        self.open_move_history()
        self.choose("alt+o", "p")
        self.says_sorry()

    def test_a_server_that_never_answers_is_reported(self):
        server = self.enterContext(SilentServer())
        self.desktop.environment["CUPS_SERVER"] = server.address
        self.open_move_history()
        self.choose("alt+o", "p")
        self.says_sorry()


if __name__ == "__main__":
    need(*TOOLS, "pdftotext")
    MoveListTest.program_directory = Path(sys.argv.pop(1))
    unittest.main()
