"""The list of moves in a word processor."""

import subprocess
import sys
import unittest
from pathlib import Path

from desktop import need, wait_for
from move_lists import MoveListTest


class RichText(MoveListTest):
    def test_a_word_processor_shows_the_game_in_two_columns(self):
        document = self.folder / "tour.rtf"
        self.open_move_history()
        self.choose("alt+o", "s")
        self.desktop.window_in_front("^Save As$")
        self.desktop.type(str(document))
        self.desktop.press("Return")
        wait_for(document.exists, "the document")
        subprocess.run(
            ["soffice", f"-env:UserInstallation=file://{self.folder}/profile", "--headless",
             "--convert-to", "pdf", "--outdir", str(self.folder), str(document)],
            check=True, capture_output=True)
        self.shows_the_game(self.folder / "tour.pdf")


if __name__ == "__main__":
    need("soffice", "pdftotext")
    MoveListTest.program_directory = Path(sys.argv.pop(1))
    unittest.main()
