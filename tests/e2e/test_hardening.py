"""The built program as an attacker finds it: what the file itself says of its hardening."""

import json
import platform
import re
import subprocess
import sys
import unittest
from pathlib import Path

from desktop import need

PROGRAM = None
BUILD_DIRECTORY = None
PROJECT = Path(__file__).resolve().parents[2]
ROOMS = ("app", "core", "solver", "storage", "ui")
# The first instruction of a function that an indirect branch may reach.
LANDING = {"x86_64": "endbr64", "aarch64": "(paciasp|bti)"}


def output(*command):
    return subprocess.run([str(part) for part in command], check=True, capture_output=True,
                          text=True).stdout


class Hardening(unittest.TestCase):
    def test_lies_at_another_address_each_time(self):
        self.assertRegex(output("readelf", "-hW", PROGRAM), r"Type: +DYN")
        self.assertRegex(output("readelf", "-dW", PROGRAM), r"FLAGS_1.*\bPIE\b")

    def test_nothing_that_it_jumps_through_can_be_written(self):
        self.assertRegex(output("readelf", "-lW", PROGRAM), r"\bGNU_RELRO\b")
        self.assertRegex(output("readelf", "-dW", PROGRAM), r"FLAGS_1.*\bNOW\b")

    def test_nothing_that_can_be_written_is_run(self):
        segments = output("readelf", "-lW", PROGRAM)
        self.assertRegex(segments, r"GNU_STACK .* RW +0x")
        self.assertNotRegex(segments, r"LOAD .* RWE +0x")

    def test_stacks_are_guarded(self):
        self.assertIn("__stack_chk_fail", output("nm", "-D", PROGRAM))

    def test_the_bounds_of_containers_are_checked(self):
        self.assertIn("__glibcxx_assert_fail", output("nm", "-D", PROGRAM))

    def test_indirect_branches_land_where_they_may(self):
        if platform.machine() not in LANDING:
            self.skipTest("this processor has no such protection")
        main = output("objdump", "-d", "--disassemble=main", PROGRAM)
        self.assertRegex(main, rf"<main>:\n.*\t{LANDING[platform.machine()]}")

    def test_every_source_is_compiled_with_checked_functions(self):
        # The file itself shows it only where the compiler could not see that a call is safe.
        for command in json.loads((BUILD_DIRECTORY / "compile_commands.json").read_text()):
            source = Path(command["file"])
            if PROJECT in source.parents \
                    and source.relative_to(PROJECT).parts[0] in ROOMS:
                self.assertTrue(re.search(r" -D_FORTIFY_SOURCE=[23] ", command["command"]), source)


if __name__ == "__main__":
    need("readelf", "objdump", "nm")
    PROGRAM = Path(sys.argv.pop(1)) / "GallopadeNova"
    BUILD_DIRECTORY = PROGRAM.parents[1]
    unittest.main()
