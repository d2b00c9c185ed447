"""The list of moves on paper, by a real print server."""

import sys
import unittest
from pathlib import Path

from desktop import need, wait_for
from move_lists import MoveListTest
from print_server import TOOLS, PrintServer, SilentServer, SlowServer

REQUEST_SECONDS = 0.3
SERVER_PATIENCE_SECONDS = 30


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

    def test_a_slow_server_is_waited_for(self):
        server = self.enterContext(PrintServer())
        server.add_default_printer()
        slow = self.enterContext(SlowServer(server, REQUEST_SECONDS))
        self.desktop.environment["CUPS_SERVER"] = slow.address
        self.open_move_history()
        self.choose("alt+o", "p")
        wait_for(server.printed.exists, "the printed page")
        self.shows_the_game(server.printed)
        wait_for(lambda: not server.jobs(), "the queue to be empty")
        self.assertFalse(self.desktop.has_window(r"^Sorry\.\.\.$"))

    def test_the_page_arrives_although_the_program_is_closed_at_once(self):
        server = self.enterContext(PrintServer())
        server.add_default_printer()
        slow = self.enterContext(SlowServer(server, REQUEST_SECONDS))
        self.desktop.environment["CUPS_SERVER"] = slow.address
        program = self.open_move_history()
        self.choose("alt+o", "p")
        self.desktop.press("Escape")
        wait_for(lambda: not self.desktop.has_window("^Move History$"), "the history to close")
        self.desktop.close(self.desktop.window("^Gallopade Nova: 40 "))
        self.desktop.window_in_front(r"^Exit\?$")
        self.desktop.press("alt+y")
        wait_for(lambda: not self.desktop.has_window("^Gallopade Nova"), "the game to close")
        wait_for(server.printed.exists, "the printed page")
        wait_for(lambda: program.poll() is not None, "the program to end")

    def test_the_page_has_the_paper_of_the_printer(self):
        server = self.enterContext(PrintServer())
        server.add_default_printer()
        server.take_legal_paper()
        self.desktop.environment["CUPS_SERVER"] = server.address
        self.desktop.environment["CUPS_SERVERROOT"] = str(server.folder)  # as a local server's is
        self.open_move_history()
        self.choose("alt+o", "p")
        wait_for(server.printed.exists, "the printed page")
        self.assertIn(b"/MediaBox [0 0 612.000000 1008.000000]", server.printed.read_bytes())

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
        self.says_sorry(SERVER_PATIENCE_SECONDS)


if __name__ == "__main__":
    need(*TOOLS, "pdftotext")
    MoveListTest.program_directory = Path(sys.argv.pop(1))
    unittest.main()
