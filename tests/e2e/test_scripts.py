"""What ./run and ./test do where packages or a display are missing."""

import os
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from desktop import need, wait_for

PACKAGING = Path(__file__).resolve().parents[2] / "packaging"
TOOLS = ("bash", "Xvfb", "xprop")
PLAIN_TOOLS = ("bash", "sh", "sed", "grep", "cat", "mktemp", "mkfifo", "rm", "head", "tail", "base64",
               "tr", "sleep", "env", "Xvfb", "xprop", "touch")
SCRIPT = """
set -euo pipefail
source "$PACKAGING/packages.sh"
source "$PACKAGING/virtual_display.sh"
patience_seconds=300
"""
VIEWING_SERVER = "#!/bin/sh\necho PORT=5999\nexec sleep 1000\n"


class ScriptTest(unittest.TestCase):
    """An account on a machine that has what the test gives it, and little else."""

    def setUp(self):
        self.folder = Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.tools = self.folder / "tools"
        self.tools.mkdir()
        for tool in PLAIN_TOOLS:
            (self.tools / tool).symlink_to(shutil.which(tool))
        self.environment = {"PATH": str(self.tools), "PACKAGING": str(PACKAGING),
                            "TMPDIR": str(self.folder), "LANG": "C.UTF-8"}

    def tool(self, name, text):
        path = self.tools / name
        path.unlink(missing_ok=True)
        path.write_text(text)
        path.chmod(0o755)

    def start(self, script):
        process = subprocess.Popen(
            ["bash", "-c", SCRIPT + script], env=self.environment, text=True,
            stdout=subprocess.PIPE, stderr=subprocess.PIPE, start_new_session=True)
        self.addCleanup(self.end, process)
        return process

    @staticmethod
    def end(process):
        if process.poll() is None:
            os.killpg(process.pid, signal.SIGKILL)
        process.communicate()

    def run_script(self, script):
        """Exit status, output and errors."""
        process = self.start(script)
        output, errors = process.communicate()
        return process.returncode, output, errors


class MissingPackages(ScriptTest):
    def setUp(self):
        super().setUp()
        self.tool("dpkg-query", '#!/bin/sh\nfor package; do :; done\n'
                                '[ "$package" = there ] && echo installed\n')
        self.tool("id", "#!/bin/sh\necho 1000\n")

    def test_nothing_is_said_when_all_are_there(self):
        self.assertEqual(self.run_script("install_missing there there"), (0, "", ""))

    def test_an_account_without_sudo_is_told_what_root_has_to_do(self):
        status, _, errors = self.run_script("install_missing there one two")
        self.assertEqual(status, 1)
        self.assertIn("missing, and could not be installed: one two\n", errors)
        self.assertIn("apt-get install -y --no-install-recommends one two\n", errors)

    def test_the_same_is_told_where_sudo_refuses(self):
        self.tool("sudo", "#!/bin/sh\nexit 1\n")
        status, _, errors = self.run_script("install_missing one")
        self.assertEqual(status, 1)
        self.assertIn("apt-get install -y --no-install-recommends one\n", errors)

    def test_they_are_installed_where_root_can_be_had(self):
        self.tool("sudo", '#!/bin/sh\nexec "$@"\n')
        self.tool("apt-get", f'#!/bin/sh\necho "$@" >>{self.folder}/asked\n')
        self.assertEqual(self.run_script("install_missing there one")[0], 0)
        self.assertRegex((self.folder / "asked").read_text(), r"update.*\ninstall .* one\b")

    def test_no_other_system_is_asked_for_packages(self):
        (self.tools / "dpkg-query").unlink()
        self.assertEqual(self.run_script("install_missing one"), (0, "", ""))


class WhereWindowsCanBeShown(ScriptTest):
    def can_show(self, **variables):
        self.environment.update(variables)
        status, _, errors = self.run_script("can_show_windows")
        return status == 0, errors

    def wayland_socket(self):
        session = socket.socket(socket.AF_UNIX)
        session.bind(str(self.folder / "wayland-7"))
        self.addCleanup(session.close)

    def test_not_where_there_is_no_display(self):
        self.assertEqual(self.can_show(), (False, ""))

    def test_on_an_x_display(self):
        self.assertEqual(self.can_show(DISPLAY=":0"), (True, ""))

    def test_in_a_wayland_session(self):
        self.tool("dpkg-query", "#!/bin/sh\necho installed\n")
        self.wayland_socket()
        self.assertEqual(self.can_show(WAYLAND_DISPLAY="wayland-7", XDG_RUNTIME_DIR=str(self.folder)),
                         (True, ""))

    def test_not_in_a_wayland_session_that_lacks_the_package_and_that_is_said(self):
        self.tool("dpkg-query", "#!/bin/sh\nexit 1\n")
        self.tool("id", "#!/bin/sh\necho 1000\n")
        self.wayland_socket()
        can_show, errors = self.can_show(WAYLAND_DISPLAY=str(self.folder / "wayland-7"))
        self.assertFalse(can_show)
        self.assertIn("qt6-wayland", errors)

    def test_not_in_a_wayland_session_that_is_gone_and_that_is_said(self):
        can_show, errors = self.can_show(WAYLAND_DISPLAY="wayland-8",
                                         XDG_RUNTIME_DIR=str(self.folder))
        self.assertFalse(can_show)
        self.assertIn(str(self.folder / "wayland-8"), errors)


class VirtualDisplay(ScriptTest):
    def setUp(self):
        super().setUp()
        self.tool("openbox", "#!/bin/sh\nexec sleep 1000\n")
        self.tool("x11vnc", VIEWING_SERVER)

    def children(self, process):
        """The numbers of all that still runs in the session of the script."""
        numbers = []
        for entry in Path("/proc").glob("[0-9]*/stat"):
            try:
                fields = entry.read_text().rsplit(")", 1)[1].split()
            except (FileNotFoundError, ProcessLookupError):
                continue
            if int(fields[3]) == process.pid and fields[0] != "Z":
                numbers.append(int(entry.parent.name))
        return [number for number in numbers if number != process.pid]

    def left_in_folder(self):
        return [path.name for path in self.folder.iterdir() if path != self.tools]

    def test_shows_the_command_and_ends_with_it(self):
        process = self.start("(show_on_virtual_display sh -c 'xprop -root >/dev/null; exit 7')\n")
        output, errors = process.communicate()
        self.assertEqual((process.returncode, errors), (7, ""))
        self.assertIn("localhost:5999", output)
        self.assertEqual(self.children(process), [])
        self.assertEqual(self.left_in_folder(), [])

    def test_leaves_its_caller_alone(self):
        _, output, _ = self.run_script(
            "bash -c \"$(declare -f); patience_seconds=$patience_seconds; show_on_virtual_display true\"\n"
            "echo the caller goes on")
        self.assertIn("the caller goes on", output)

    def test_says_when_the_viewing_server_does_not_start(self):
        self.tool("x11vnc", "#!/bin/sh\necho out of luck >&2\nexit 1\n")
        process = self.start("show_on_virtual_display touch $TMPDIR/shown")
        _, errors = process.communicate()
        self.assertEqual(process.returncode, 1)
        self.assertEqual(errors, "x11vnc did not start:\nout of luck\n")
        self.assertEqual(self.children(process), [])
        self.assertEqual(self.left_in_folder(), [])

    def test_does_not_wait_for_ever_for_a_server_that_says_nothing(self):
        self.tool("Xvfb", "#!/bin/sh\necho 7 >&3\nexec sleep 1000\n")
        for server in ("x11vnc", "Xvfb"):
            self.tool(server, "#!/bin/sh\nexec sleep 1000\n")
            process = self.start("patience_seconds=1\nshow_on_virtual_display true")
            _, errors = process.communicate()
            self.assertEqual(errors, f"{server} did not start:\n")
            self.assertEqual(self.children(process), [])

    def test_says_when_there_is_no_x_server(self):
        (self.tools / "Xvfb").unlink()
        status, _, errors = self.run_script("show_on_virtual_display true")
        self.assertEqual(status, 1)
        self.assertIn("Xvfb did not start:", errors)

    def test_ends_the_command_first_when_it_is_told_to_end(self):
        process = self.start(
            "show_on_virtual_display sh -c 'trap \"xprop -root >$TMPDIR/last; exit\" TERM;"
            " touch $TMPDIR/shown; while :; do sleep 0.05; done'")
        wait_for((self.folder / "shown").exists, "the command to run")
        process.terminate()
        process.communicate()
        self.assertEqual(process.returncode, 143)
        self.assertTrue((self.folder / "last").read_text())
        self.assertEqual(self.children(process), [])


if __name__ == "__main__":
    need(*TOOLS)
    unittest.main(argv=sys.argv[:1])
