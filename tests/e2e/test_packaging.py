"""The program as it is installed, packed, and made known to the desktop."""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from desktop import Desktop, need, wait_for

PROGRAM_DIRECTORY = None
BUILD_DIRECTORY = None
PROJECT = Path(__file__).resolve().parents[2]
GAME_TYPE = "application/x-gallopade-nova-game"
CHESSBOARD_TYPE = "application/x-gallopade-nova-chessboard"
AWKWARD_NAME = 'Spiele für 馬 "100%" $HOME `id` a\\b'
TITLE = "^Gallopade Nova($|:| -)"
HELP = "^Gallopade Nova Help$"
GAME = "20\r\n0 0\r\n2 1\r\n4 0\r\n" + "-1 -1\r\n" * 61
TOOLS = ("cmake", "cpack", "tar", "objdump", "dpkg", "desktop-file-validate", "appstreamcli",
         "xmllint", "update-mime-database", "update-desktop-database", "gio", "Xvfb", "openbox")


def run(*command, **options):
    return subprocess.run([str(part) for part in command], check=True, capture_output=True,
                          text=True, **options).stdout


def files_of(folder):
    return {str(path.relative_to(folder)) for path in Path(folder).rglob("*") if path.is_file()}


def without_what_players_write(names):
    return {name for name in names if not name.endswith((".ini", ".dat"))}


class PackagingTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = Path(cls.enterClassContext(tempfile.TemporaryDirectory()))
        cls.installed = cls.folder / "Meine Spiele 馬" / "Gallopade Nova"
        run("cmake", "--install", BUILD_DIRECTORY, "--prefix", cls.installed)

    def runs(self, program_directory):
        """Started from another folder, with nothing but a desktop around it, it shows everything."""
        game = self.folder / "a game.knight"
        game.write_text(GAME, newline="")
        desktop = self.enterContext(Desktop())
        desktop.environment = {name: desktop.environment[name] for name in
                               ("DISPLAY", "PATH", "DBUS_SESSION_BUS_ADDRESS")}
        desktop.start_program(program_directory / "GallopadeNova", game)
        desktop.focus(desktop.window("^Gallopade Nova: 3 "))
        desktop.press("F1")
        desktop.window(HELP)


class Folder(PackagingTest):
    def test_the_installed_folder_is_complete(self):
        self.assertEqual(files_of(self.installed),
                         without_what_players_write(files_of(PROGRAM_DIRECTORY)))
        for program in ("GallopadeNova", "desktop/register"):
            self.assertTrue(os.access(self.installed / program, os.X_OK))

    def test_the_installed_program_runs(self):
        self.runs(self.installed)

    def test_a_moved_folder_runs(self):
        moved = self.folder / AWKWARD_NAME
        shutil.copytree(self.installed, moved)
        self.runs(moved)


class Archive(PackagingTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        packed = cls.folder / "packed"
        run("cpack", "--config", BUILD_DIRECTORY / "CPackConfig.cmake", "-G", "TGZ", "-B", packed)
        run("tar", "-xzf", next(packed.glob("*.tar.gz")), "-C", cls.folder)
        cls.unpacked = next(path.parent for path in cls.folder.glob("*/GallopadeNova"))

    def test_the_archive_holds_the_whole_folder(self):
        self.assertEqual(files_of(self.unpacked), files_of(self.installed))

    def test_the_unpacked_program_runs(self):
        self.runs(self.unpacked)

    def test_the_program_does_not_look_for_libraries_where_it_was_built(self):
        self.assertNotRegex(run("objdump", "-p", self.unpacked / "GallopadeNova"), "R(UN)?PATH")

    def test_the_packages_of_its_libraries_are_listed(self):
        headers = run("objdump", "-p", self.unpacked / "GallopadeNova")
        toolkit = set(re.findall(r"NEEDED +(libQt\S+)", headers))
        self.assertTrue(toolkit)
        readme = (PROJECT / "README.md").read_text()
        for library in toolkit:
            package = run("dpkg", "-S", library).split(":")[0]
            self.assertRegex(readme, rf"(?m)^[^#]*\b{package}\b")


class Descriptions(unittest.TestCase):
    def setUp(self):
        self.files = PROJECT / "packaging" / "desktop"

    def test_the_desktop_entry_is_valid(self):
        self.assertEqual(run("desktop-file-validate", self.files / "GallopadeNova.desktop"), "")

    def test_the_description_for_software_centres_is_valid(self):
        run("appstreamcli", "validate", "--no-net", next(self.files.glob("*.metainfo.xml")))

    def test_the_xml_is_well_formed(self):
        run("xmllint", "--noout", *self.files.glob("*.xml"),
            *(PROJECT / "assets" / "icons").glob("*.svg"))


class Registered(PackagingTest):
    """A copy in a folder with an awkward name, registered for a user with a home of their own."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.program = cls.folder / AWKWARD_NAME
        shutil.copytree(cls.installed, cls.program)
        cls.home = cls.folder / "home of 騎士"
        cls.data = cls.home / ".local" / "share"
        cls.data.mkdir(parents=True)
        cls.environment = {"HOME": str(cls.home), "PATH": os.environ["PATH"], "LANG": "C.UTF-8"}
        cls.register()

    @classmethod
    def register(cls, *arguments):
        run(cls.program / "desktop" / "register", *arguments, env=cls.environment)

    def type_of(self, name, contents):
        path = self.folder / name
        path.write_bytes(contents)
        output = run("gio", "info", "-a", "standard::content-type", path, env=self.environment)
        return output.split("content-type: ")[1].strip()

    def test_the_written_entry_is_valid(self):
        self.assertEqual(
            run("desktop-file-validate", self.data / "applications" / "GallopadeNova.desktop"), "")

    def test_a_game_is_known_by_its_name(self):
        for name in ("a.knight", "ein Spiel 馬.kni"):
            self.assertEqual(self.type_of(name, b"?"), GAME_TYPE)

    def test_a_game_is_known_by_its_content(self):
        for first_line in ("0", "20-", "2147483647-"):
            game = f"{first_line}\r\n7 7\r\n5 6\r\n" + "-1 -1\r\n" * 62
            self.assertEqual(self.type_of("game", game.encode()), GAME_TYPE)

    def test_a_chessboard_is_known_by_its_name_and_by_its_content(self):
        looks = list(self.installed.glob("*.chessboard"))
        self.assertTrue(looks)
        for look in looks:
            self.assertEqual(self.type_of("look", look.read_bytes()), CHESSBOARD_TYPE)
        for name in ("a.chessboard", "a.che"):
            self.assertEqual(self.type_of(name, b"?"), CHESSBOARD_TYPE)

    def test_other_texts_stay_texts(self):
        for text in (b"20\r\n8 0\r\n", b"Dear knight,\r\n0 0\r\n", b"[Settings]\r\nLight Color=1\r\n"):
            self.assertEqual(self.type_of("other", text), "text/plain")

    def test_games_belong_to_the_program(self):
        self.assertIn("Default application for “application/x-gallopade-nova-game”: "
                      "GallopadeNova.desktop", run("gio", "mime", GAME_TYPE, env=self.environment))

    def test_a_double_click_opens_a_game(self):
        desktop = self.enterContext(Desktop())
        desktop.environment["HOME"] = str(self.home)
        for name in ("one more  game.knight", "größer 馬 100% $HOME.knight", "'q' \"u\".knight"):
            path = self.folder / name
            path.write_text(GAME, newline="")
            desktop.start_program("gio", "open", path)
            window = desktop.window("^Gallopade Nova: 3 ")
            desktop.close(window)
            desktop.window(r"^Exit\?$")
            desktop.press("alt+y")
            wait_for(lambda: not desktop.has_window(TITLE), "the program to end")

    def test_all_of_it_is_taken_away_again(self):
        self.register("--remove")
        self.addCleanup(self.register)
        left = [path for path in self.data.rglob("*") if path.is_file()
                and (b"gallopade" in path.name.lower().encode()
                     or b"gallopade" in path.read_bytes().lower())]
        self.assertEqual(left, [])

    def test_what_belongs_to_others_stays(self):
        other = self.data / "applications" / "other.desktop"
        other.write_text("[Desktop Entry]\nType=Application\nName=Other\nExec=true\n")
        self.register("--remove")
        self.addCleanup(self.register)
        self.assertTrue(other.exists())


if __name__ == "__main__":
    need(*TOOLS)
    PROGRAM_DIRECTORY = Path(sys.argv.pop(1))
    BUILD_DIRECTORY = PROGRAM_DIRECTORY.parent
    unittest.main()
