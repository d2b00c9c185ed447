"""The program as it is installed and packed."""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from desktop import Desktop, need

PROGRAM_DIRECTORY = None
BUILD_DIRECTORY = None
PROJECT = Path(__file__).resolve().parents[2]
AWKWARD_NAME = 'Spiele für 馬 "100%" $HOME `id` a\\b'
HELP = "^Gallopade Nova Help$"
GAME = "20\r\n0 0\r\n2 1\r\n4 0\r\n" + "-1 -1\r\n" * 61
TOOLS = ("cmake", "cpack", "tar", "objdump", "dpkg", "desktop-file-validate", "appstreamcli",
         "xmllint", "Xvfb", "openbox")


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
        desktop.focus(desktop.opened_game(3))
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
        readmes = [(PROJECT / "README.md").read_text(), (self.unpacked / "README").read_text()]
        for library in toolkit:
            package = run("dpkg", "-S", library).split(":")[0]
            for readme in readmes:
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


if __name__ == "__main__":
    need(*TOOLS)
    PROGRAM_DIRECTORY = Path(sys.argv.pop(1))
    BUILD_DIRECTORY = PROGRAM_DIRECTORY.parent
    unittest.main()
