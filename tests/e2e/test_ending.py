"""Ends that come from outside: the session, signals, the display. Nothing is lost, nothing is left."""

import fcntl
import os
import signal
import sys
import tempfile
import time
import unittest
from pathlib import Path

from desktop import Desktop, exit_status, need, wait_for
from ending import HELP, SCORES, TITLE, EndingTest, SessionTest

SIGNALS = (signal.SIGTERM, signal.SIGHUP, signal.SIGINT)
REPEAT_SECONDS = (0, 0.0005, 0.002, 0.01)  # from the first signal to the second


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

    def test_are_obeyed_once_though_they_come_twice(self):
        for number in SIGNALS:
            for delay in REPEAT_SECONDS:
                with self.subTest(signal=number, delay=delay):
                    self.prepare()
                    self.start()
                    self.process.send_signal(number)
                    time.sleep(delay)
                    self.ends_by(number)

    def test_are_obeyed_once_by_a_process_and_its_group(self):
        self.start()
        self.open_help()
        self.process.send_signal(signal.SIGTERM)
        os.killpg(self.process.pid, signal.SIGTERM)
        self.ends_by(signal.SIGTERM)

    def test_that_the_caller_ignores_stay_ignored(self):
        self.process = self.desktop.start_program(
            "sh", "-c", 'trap "" HUP; exec "$0"', self.program / "GallopadeNova")
        self.desktop.focus(self.desktop.window(TITLE))
        self.process.send_signal(signal.SIGHUP)
        self.desktop.press("F1")
        self.desktop.window(HELP)
        self.assertIsNone(self.process.poll())


class ALimitToFiles(EndingTest):
    """Whoever has reached it is told by a signal, which ends a program that does not know it."""

    def start_under(self, limit):
        self.start_with_command("prlimit", f"--fsize={limit}", self.program / "GallopadeNova")
        self.hide_time(": 1")

    def test_that_allows_nothing_ends_nothing(self):
        before = self.settings.read_text()
        self.start_under(0)
        self.open_help()
        self.process.terminate()
        self.assertEqual(exit_status(self.process), -signal.SIGTERM)
        self.assertEqual(self.settings.read_text(), before)
        self.nothing_is_left()

    def test_that_the_help_exceeds_ends_nothing(self):
        self.start_under(10240)
        self.open_help()
        self.ends_by(signal.SIGTERM)


class WindowsBesideTheBoard(EndingTest):
    """The main window moves aside for them on a narrow screen."""

    def setUp(self):
        self.desktop = self.enterContext(Desktop("800x900x24"))
        self.prepare()
        self.start()
        self.home = self.desktop.geometry(self.game)[0]

    def open_beside(self, title, *keys):
        self.desktop.press(*keys)
        self.desktop.focus(self.desktop.window(title))
        wait_for(lambda: self.desktop.geometry(self.game)[0] != self.home, "the window to move")

    def is_at_home_again(self):
        self.start_with()
        wait_for(lambda: self.desktop.geometry(self.game)[0] == self.home, "the window at home")

    def test_are_not_what_the_place_of_the_window_is_kept_for(self):
        self.open_beside("^Solve$", "alt+f", "l")
        self.ends_by(signal.SIGTERM)
        self.is_at_home_again()

    def test_keep_the_speed_and_the_way_of_a_replay(self):
        self.open_beside("^Replay$", "ctrl+r")
        self.desktop.press("alt+m")
        self.ends_by(signal.SIGHUP)
        self.assertEqual(self.kept_settings()["Replay"]["Advancement"], "1")
        self.is_at_home_again()


class AFolderWithANameThatIsNoText(EndingTest):
    def prepare(self):
        super().prepare(os.fsdecode(b"caf\xe9"))

    def test_keeps_the_settings(self):
        self.start()
        self.ends_by(signal.SIGTERM)


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


class TheSession(SessionTest):
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


class TheEndOfAProgramThatPrints(SessionTest):
    """Its windows are closed, and the print command does not get any further."""

    def prepare(self):
        super().prepare()
        commands = Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.paper = commands / "paper"
        os.mkfifo(self.paper)
        for name, script in (("lp", f"exec cat - '{self.paper}'"), ("lpstat", ""), ("lpoptions", "")):
            (commands / name).write_text(f"#!/bin/sh\n{script}\n")
            (commands / name).chmod(0o755)
        self.desktop.environment["PATH"] = f"{commands}:{os.environ['PATH']}"
        self.addCleanup(self.paper_comes)

    def paper_comes(self):
        """True when the print command was waiting for it."""
        try:
            os.close(os.open(self.paper, os.O_WRONLY | os.O_NONBLOCK))
            return True
        except OSError:
            return False

    def setUp(self):
        super().setUp()
        self.desktop.press("alt+v", "m")
        self.desktop.focus(self.desktop.window("^Move History$"))
        self.desktop.press("alt+o", "p")
        self.desktop.press("Escape")
        wait_for(lambda: not self.desktop.has_window("^Move History$"), "the history to close")
        self.desktop.focus(self.game)
        self.open_help()
        self.desktop.close(self.game)
        self.answer("alt+y")
        wait_for(lambda: not self.desktop.has_window("Gallopade Nova"), "the windows to close")
        self.another_copy = "[Settings]\nShow Time=1\nSolve Refresh=7\n"
        self.settings.write_text(self.another_copy)

    def test_comes_when_it_has_printed(self):
        self.assertIsNone(self.process.poll())
        wait_for(self.paper_comes, "the print command to wait for paper")
        self.assertEqual(exit_status(self.process), 0)
        self.nothing_is_left()

    def test_by_a_signal_leaves_the_settings_alone(self):
        self.process.terminate()
        self.assertEqual(exit_status(self.process), -signal.SIGTERM)
        self.assertEqual(self.settings.read_text(), self.another_copy)
        self.nothing_is_left()

    def test_with_the_session_asks_nothing(self):
        self.say("end")
        self.assertEqual(self.told(), "saved")
        self.assertEqual(self.settings.read_text(), self.another_copy)


if __name__ == "__main__":
    need("Xvfb", "openbox", "xdotool")
    EndingTest.program_directory = Path(sys.argv.pop(1))
    unittest.main()
