"""The program as it is made known to the desktop, by copies in folders with plain and awkward names."""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from desktop import Desktop, need, wait_for

PROGRAM_DIRECTORY = None
GAME_TYPE = "application/x-gallopade-nova-game"
AWKWARD_NAME = 'Spiele für 馬 "100%" $HOME `id` a\\b'
TITLE = "^Gallopade Nova($|:| -)"
GAME = "20\r\n0 0\r\n2 1\r\n4 0\r\n" + "-1 -1\r\n" * 61
TOOLS = ("desktop-file-validate", "update-mime-database", "update-desktop-database", "gio",
         "xdg-open", "mimetype", "Xvfb", "openbox")
PLAIN_TOOLS = ("sh", "dirname", "basename", "sed", "mkdir", "install", "cat", "rm", "rmdir", "ls",
               "iconv")


def run(*command, **options):
    return subprocess.run([str(part) for part in command], check=True, capture_output=True,
                          text=True, errors="replace", **options).stdout


class RegisteringTest(unittest.TestCase):
    """A user with a home of their own, and copies of the program."""

    @classmethod
    def setUpClass(cls):
        cls.folder = Path(cls.enterClassContext(tempfile.TemporaryDirectory()))
        cls.plain = cls.copy("plain")
        cls.awkward = cls.copy(AWKWARD_NAME)

    def setUp(self):
        self.home = Path(self.enterContext(tempfile.TemporaryDirectory(prefix="home of 騎士 ")))
        self.data = self.home / ".local" / "share"
        self.entry = self.data / "applications" / "GallopadeNova.desktop"
        self.environment = {"HOME": str(self.home), "PATH": os.environ["PATH"], "LANG": "C.UTF-8"}

    @classmethod
    def copy(cls, name):
        return Path(shutil.copytree(PROGRAM_DIRECTORY, cls.folder / name,
                                    ignore=shutil.ignore_patterns("*.ini", "Scores.dat")))

    def register(self, program, *arguments, **options):
        return run(program / "desktop" / "register", *arguments, env=self.environment, **options)

    def registered_exec(self):
        lines = self.entry.read_text().splitlines()
        return next(line for line in lines if line.startswith("Exec="))

    def type_of(self, name, contents):
        path = self.folder / name
        path.write_bytes(contents)
        output = run("gio", "info", "-a", "standard::content-type", path, env=self.environment)
        return output.split("content-type: ")[1].strip()

    def game(self, name):
        path = self.folder / name
        path.write_text(GAME, newline="")
        return path


class WhatIsClaimed(RegisteringTest):
    def setUp(self):
        super().setUp()
        self.register(self.plain)

    def test_a_game_is_known_by_its_name(self):
        for name in ("a.knight", "ein Spiel 馬.knight"):
            self.assertEqual(self.type_of(name, b"?"), GAME_TYPE)

    def test_what_the_command_line_does_not_take_stays_a_text(self):
        for name in ("a.kni", "a.KNIGHT", "a.Knight", "aknight", "game"):
            self.assertEqual(self.type_of(name, GAME.encode()), "text/plain")

    def test_a_chessboard_stays_a_text(self):
        looks = list(self.plain.glob("*.chessboard"))
        self.assertTrue(looks)
        for look in looks:
            self.assertEqual(self.type_of(look.name, look.read_bytes()), "text/plain")

    def test_games_belong_to_the_program(self):
        self.assertIn("Default application for “application/x-gallopade-nova-game”: "
                      "GallopadeNova.desktop", run("gio", "mime", GAME_TYPE, env=self.environment))

    def test_texts_do_not_belong_to_the_program(self):
        self.assertNotIn("GallopadeNova", run("gio", "mime", "text/plain", env=self.environment))


class TheEntry(RegisteringTest):
    def test_is_valid_whatever_the_name_of_the_folder(self):
        for program in (self.plain, self.awkward):
            self.register(program)
            self.assertEqual(run("desktop-file-validate", self.entry), "")

    def test_has_no_quotes_where_none_are_needed(self):
        self.register(self.plain)
        self.assertEqual(self.registered_exec(), f"Exec={self.plain}/GallopadeNova %f")

    def test_is_refused_for_names_that_no_entry_can_hold(self):
        for name in ("a=b", "two\nlines", "at the end\n", "tab\tulator", os.fsdecode(b"\xff")):
            program = self.copy(name)
            with self.subTest(name=name), self.assertRaises(subprocess.CalledProcessError) as raised:
                self.register(program)
            self.assertIn("No menu entry can name this folder", raised.exception.stderr)
            self.assertEqual(list(self.home.iterdir()), [])

    def test_names_the_right_folder_whatever_cd_is_told_to_search(self):
        decoy = self.folder / "elsewhere" / "desktop"
        decoy.mkdir(parents=True, exist_ok=True)
        self.environment["CDPATH"] = str(decoy.parent)
        run("desktop/register", env=self.environment, cwd=self.plain)
        self.assertEqual(self.registered_exec(), f"Exec={self.plain}/GallopadeNova %f")

    def test_says_what_is_missing_for_games_to_open(self):
        tools = self.folder / "tools"
        tools.mkdir()
        for tool in PLAIN_TOOLS:
            (tools / tool).symlink_to(shutil.which(tool))
        self.environment["PATH"] = str(tools)
        told = subprocess.run([self.plain / "desktop" / "register"], env=self.environment,
                              check=True, capture_output=True, text=True).stderr
        self.assertIn("desktop-file-utils", told)
        self.assertIn("shared-mime-info", told)


class DoubleClicks(RegisteringTest):
    def setUp(self):
        super().setUp()
        self.desktop = self.enterContext(Desktop())
        self.desktop.environment.update(self.environment)

    def opens(self, *command):
        self.desktop.start_program(*command)
        window = self.desktop.window("^Gallopade Nova: 3 ")
        self.desktop.close(window)
        self.desktop.window_in_front(r"^Exit\?$")
        self.desktop.press("alt+y")
        wait_for(lambda: not self.desktop.has_window(TITLE), "the program to end")

    def test_open_games_from_a_folder_with_an_awkward_name(self):
        self.register(self.awkward)
        for name in ("one more  game.knight", "größer 馬 100% $HOME.knight", "'q' \"u\".knight"):
            self.opens("gio", "open", self.game(name))

    def test_open_games_where_no_desktop_is_known(self):
        self.register(self.plain)
        self.opens("xdg-open", self.game("a game.knight"))


class Removing(RegisteringTest):
    def test_takes_everything_away(self):
        self.register(self.plain)
        self.register(self.plain, "--remove")
        self.assertEqual(list(self.home.iterdir()), [])

    def test_leaves_what_belongs_to_others(self):
        others = [self.data / "applications" / "other.desktop",
                  self.data / "mime" / "packages" / "other.xml",
                  self.data / "icons" / "hicolor" / "16x16" / "apps" / "other.png"]
        self.register(self.plain)
        for other in others:
            other.write_text("")
        others[1].write_text('<mime-info xmlns="http://www.freedesktop.org/standards/'
                             'shared-mime-info"/>')
        self.register(self.plain, "--remove")
        for other in others:
            self.assertTrue(other.exists())

    def test_leaves_another_copy_in_the_menu(self):
        self.register(self.plain)
        self.register(self.awkward)
        entry = self.entry.read_text()
        self.assertIn(str(self.awkward), self.register(self.plain, "--remove"))
        self.assertEqual(self.entry.read_text(), entry)
        self.assertEqual(self.type_of("a.knight", b"?"), GAME_TYPE)

    def test_takes_away_a_copy_that_is_no_longer_there(self):
        moved = self.copy("before")
        self.register(moved)
        self.register(moved.rename(self.folder / "after"), "--remove")
        self.assertFalse(self.entry.exists())


if __name__ == "__main__":
    need(*TOOLS)
    PROGRAM_DIRECTORY = Path(sys.argv.pop(1))
    unittest.main()
