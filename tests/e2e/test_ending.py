"""Ends that come from outside: the session, signals, the display. Nothing is lost, nothing is left."""

import configparser
import fcntl
import os
import signal
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from desktop import Desktop, copy_of_program, exit_status, need, wait_for

PROGRAM_DIRECTORY = None
TITLE = "^Gallopade Nova($|:| -)"
SCORES = "^Low Scores$"
HELP = "^Gallopade Nova Help$"
MANAGER_SECONDS = 10  # to end by itself when it is told nothing more
SIGNALS = (signal.SIGTERM, signal.SIGHUP, signal.SIGINT)
# One move, to A8, is left in it.
NEARLY_OVER = "20\r\n1 2\r\n3 3\r\n2 1\r\n" + "-1 -1\r\n" * 61


class EndingTest(unittest.TestCase):
    """A game that is not finished, and a setting that is yet to be written."""

    def setUp(self):
        self.desktop = self.enterContext(Desktop())
        self.prepare()

    def prepare(self):
        self.program = copy_of_program(PROGRAM_DIRECTORY,
                                       self.enterContext(tempfile.TemporaryDirectory()))
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
        self.process = self.desktop.start_program(self.program / "GallopadeNova", *arguments)
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

    def settings_are_kept(self):
        settings = configparser.ConfigParser(strict=False)
        settings.optionxform = str
        settings.read_string(self.settings.read_text())
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


class Signals(EndingTest):
    def test_are_obeyed_at_rest(self):
        for number in SIGNALS:
            with self.subTest(signal=number):
                self.prepare()
                self.start()
                self.open_help()
                self.ends_by(number)

    def test_are_obeyed_in_a_dialog(self):
        self.start()
        self.open_help()
        self.desktop.focus(self.game)
        self.desktop.press("alt+e", "p")
        self.desktop.window("^Preferences$")
        self.ends_by(signal.SIGTERM)

    def test_are_obeyed_while_a_question_waits(self):
        self.start()
        self.desktop.press("F2")
        self.desktop.window(r"^New Game\?$")
        self.ends_by(signal.SIGHUP)

    def test_are_obeyed_during_a_search(self):
        self.start()
        self.desktop.press("alt+f", "l")
        self.desktop.focus(self.desktop.window("^Solve$"))
        self.desktop.press("alt+s")
        self.ends_by(signal.SIGTERM)

    def test_are_obeyed_while_a_score_is_entered(self):
        self.enter_a_score()
        self.process.send_signal(signal.SIGTERM)
        self.assertEqual(self.process.wait(20), -signal.SIGTERM)
        self.settings_are_kept()
        self.score_is_kept("Moves 1=4")

    def test_are_obeyed_one_after_the_other(self):
        self.start()
        for number in SIGNALS:
            self.process.send_signal(number)
        self.assertIn(-exit_status(self.process), SIGNALS)
        self.settings_are_kept()

    def test_that_the_caller_ignores_stay_ignored(self):
        self.process = self.desktop.start_program(
            "sh", "-c", 'trap "" HUP; exec "$0"', self.program / "GallopadeNova")
        self.desktop.focus(self.desktop.window(TITLE))
        self.process.send_signal(signal.SIGHUP)
        self.desktop.press("F1")
        self.desktop.window(HELP)
        self.assertIsNone(self.process.poll())


class AnotherCopy(EndingTest):
    """It has the folder to itself, until the program has seen the signal and cleared up."""

    def setUp(self):
        super().setUp()
        self.lock = os.open(self.program, os.O_RDONLY)
        self.addCleanup(os.close, self.lock)

    def ends_while_it_waits(self):
        self.open_help()
        fcntl.flock(self.lock, fcntl.LOCK_EX)
        self.process.terminate()
        wait_for(lambda: not list(self.temporary.iterdir()), "the signal to be seen")
        fcntl.flock(self.lock, fcntl.LOCK_UN)
        self.assertEqual(self.process.wait(20), -signal.SIGTERM)
        self.settings_are_kept()

    def test_is_waited_for(self):
        self.start()
        self.ends_while_it_waits()
        self.nothing_is_left()

    def test_is_not_waited_for_without_end(self):
        self.start()
        fcntl.flock(self.lock, fcntl.LOCK_EX)
        self.process.terminate()
        self.assertEqual(self.process.wait(20), -signal.SIGTERM)

    def test_costs_no_score(self):
        self.enter_a_score()
        fcntl.flock(self.lock, fcntl.LOCK_EX)
        self.desktop.type("Ann")
        self.desktop.press("Return", "alt+c")
        wait_for(lambda: not self.desktop.has_window(SCORES), "the scores to go")
        self.desktop.focus(self.game)
        self.ends_while_it_waits()
        self.score_is_kept("Name 1=Ann")


class TheDisplay(EndingTest):
    def test_may_go_away(self):
        self.start()
        self.open_help()
        x_server = self.desktop.processes[0]
        x_server.kill()
        x_server.wait()
        exit_status(self.process)
        self.settings_are_kept()
        self.nothing_is_left()


class TheSession(EndingTest):
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

    def test_does_not_end_if_the_player_says_no(self):
        self.say("end")
        self.answer("alt+n")
        self.assertEqual((self.told(), self.told()), ("cancelled", "saved"))
        self.move_again()
        self.assertIsNone(self.process.poll())

    def test_ends_if_the_player_says_yes_and_he_is_asked_once(self):
        self.open_help()
        self.say("end")
        self.answer("alt+y")
        self.assertEqual(self.told(), "saved")
        self.settings_are_kept()
        self.ends_with_the_session()
        self.nothing_is_left()

    def test_asks_behind_no_dialog(self):
        self.desktop.press("alt+e", "p")
        self.desktop.window("^Preferences$")
        self.say("end")
        self.answer("alt+y")
        self.assertEqual(self.told(), "saved")
        self.ends_with_the_session()
        self.settings_are_kept()

    def test_asks_nothing_where_that_is_forbidden(self):
        self.say("end unasked")
        self.assertEqual(self.told(), "saved")
        self.settings_are_kept()

    def test_asks_nothing_when_no_game_is_in_progress(self):
        self.desktop.press("F2")
        self.desktop.focus(self.desktop.window(r"^New Game\?$"))
        self.desktop.press("alt+y")
        self.caption_has(": 1")
        self.say("end")
        self.assertEqual(self.told(), "saved")
        self.settings_are_kept()
        self.ends_with_the_session()

    def test_that_was_to_end_asks_again_after_another_move(self):
        self.say("end")
        self.answer("alt+y")
        self.assertEqual(self.told(), "saved")
        self.move_again()
        self.desktop.close(self.game)
        self.desktop.window(r"^Exit\?$")


if __name__ == "__main__":
    need("Xvfb", "openbox", "xdotool")
    PROGRAM_DIRECTORY = Path(sys.argv.pop(1))
    unittest.main()
