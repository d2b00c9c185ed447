"""Tests of ends from outside: what is kept then, and what is left behind."""

import configparser
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from desktop import Desktop, copy_of_program, exit_status, wait_for

TITLE = "^Gallopade Nova($|:| -)"
SCORES = "^Low Scores$"
HELP = "^Gallopade Nova Help$"
# One move, to A8, is left in it.
NEARLY_OVER = "20\r\n1 2\r\n3 3\r\n2 1\r\n" + "-1 -1\r\n" * 61
MANAGER_SECONDS = 10  # to end by itself when it is told nothing more


class EndingTest(unittest.TestCase):
    """A game that is not finished, and a setting that is yet to be written."""

    program_directory = None  # set by the test program

    def setUp(self):
        self.desktop = self.enterContext(Desktop())
        self.prepare()

    def prepare(self, folder=""):
        place = Path(self.enterContext(tempfile.TemporaryDirectory()), folder)
        self.program = copy_of_program(self.program_directory, place)
        self.settings = self.program / "GallopadeNova.ini"
        self.settings.write_text("[Settings]\nShow Solve Warnings=0\nSolve Refresh=1000\n"
                                 "Show Time=1\n")
        self.temporary = Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.desktop.environment["TMPDIR"] = str(self.temporary)
        self.files = self.names_beside_the_program()

    def names_beside_the_program(self):
        return sorted(path.name for path in self.program.iterdir())

    def start(self):
        self.start_with()
        self.desktop.press("Right", "Down", "Down", "Return")
        self.caption_has(": 2 - ")
        self.hide_time(": 2")

    def start_with(self, *arguments):
        self.start_with_command(self.program / "GallopadeNova", *arguments)

    def start_with_command(self, *command):
        self.process = self.desktop.start_program(*command)
        self.addCleanup(self.end)
        self.game = self.desktop.window(TITLE)
        self.desktop.focus(self.game)

    def hide_time(self, rest):
        self.desktop.press("alt+v", "t")
        wait_for(lambda: self.desktop.title(self.game).endswith(rest), "the time to be hidden")

    def end(self):
        self.process.kill()
        self.process.wait()

    def caption_has(self, text):
        wait_for(lambda: text in self.desktop.title(self.game), f"the caption with {text}")

    def open_help(self):
        self.desktop.press("F1")
        self.desktop.window(HELP)
        self.assertTrue(list(self.temporary.iterdir()))

    def enter_a_score(self):
        with tempfile.NamedTemporaryFile("w", suffix=".knight", newline="") as game:
            game.write(NEARLY_OVER)
            game.flush()
            self.start_with(game.name)
            self.caption_has(": 3 - ")
        self.hide_time(": 3")
        self.desktop.press("Left", "Left", "Up", "Return")
        self.desktop.focus(self.desktop.window(r"^Game Over\.\.\.$"))
        self.desktop.press("Return")
        self.desktop.focus(self.desktop.window(SCORES))

    def score_is_kept(self, line):
        self.assertIn(line, (self.program / "Scores.dat").read_text().splitlines())

    def kept_settings(self):
        settings = configparser.ConfigParser(strict=False)
        settings.optionxform = str
        settings.read_string(self.settings.read_text())
        return settings

    def settings_are_kept(self):
        settings = self.kept_settings()
        self.assertEqual(settings["Settings"]["Show Time"], "0")
        self.assertIn("Left", settings["Settings"])

    def nothing_is_left(self):
        self.assertEqual(list(self.temporary.iterdir()), [])
        self.assertEqual(self.names_beside_the_program(), self.files)

    def ends_by(self, number):
        self.process.send_signal(number)
        self.assertEqual(exit_status(self.process), -number)
        self.settings_are_kept()
        self.nothing_is_left()


class SessionTest(EndingTest):
    def setUp(self):
        super().setUp()
        self.manager = subprocess.Popen(
            [sys.executable, Path(__file__).with_name("session_manager.py")],
            env=self.desktop.environment, text=True, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL)
        self.addCleanup(self.end_manager)
        self.desktop.environment["SESSION_MANAGER"] = self.told()
        self.start()
        self.assertEqual(self.told(), "registered")

    def end_manager(self):
        try:
            self.manager.communicate(timeout=MANAGER_SECONDS)
        except subprocess.TimeoutExpired:
            self.manager.kill()
            self.manager.communicate()

    def told(self):
        return self.manager.stdout.readline().strip()

    def say(self, command):
        self.manager.stdin.write(command + "\n")
        self.manager.stdin.flush()

    def ends_with_the_session(self):
        self.say("die")
        self.assertEqual(exit_status(self.process), 0)

    def answer(self, key):
        question = self.desktop.window(r"^Exit\?$")
        self.desktop.focus(question)
        self.desktop.press(key)
        wait_for(lambda: not self.desktop.has_window(r"^Exit\?$"), "the question to go")

    def move_again(self):
        self.desktop.focus(self.game)
        self.desktop.press("Right", "Down", "Down", "Return")
        self.caption_has(": 3")
