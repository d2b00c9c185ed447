"""A real screen reader with a voice that writes down what it says."""

import importlib.util
import json
import os
import re
import signal
import sys
from pathlib import Path

from desktop import SKIPPED, need, wait_for

HERE = Path(__file__).resolve().parent
PATIENCE_SECONDS = 60
# More than anybody speaks; what is cut off within a moment is cut off all the same.
WORDS_A_SECOND = 12
CONFIGURATION = """\
AudioOutputMethod "libao"
DefaultModule voice
DefaultLanguage "en"
AddModule "voice" "{voice}" ""
"""


def need_orca():
    """Ends the test program as skipped on a machine without Orca."""
    need("Xvfb", "openbox", "dbus-daemon", "xdotool", "xprop", "orca", "speech-dispatcher")
    if importlib.util.find_spec("orca") is None:
        print("skipped, not installed: orca for", sys.executable)
        sys.exit(SKIPPED)


class Speech:
    """Orca with its defaults on a desktop, and all that it says there."""

    def __init__(self, desktop):
        self.desktop = desktop
        self.folder = Path(desktop.folder)
        self.voice_file = self.folder / "said"
        self.errors_file = self.folder / "orca errors"
        self.idle_file = self.folder / "orca idle"
        self.forgotten = 0
        self.voice_file.touch()
        desktop.environment.update(
            VOICE_FILE=str(self.voice_file), VOICE_SPEED=str(WORDS_A_SECOND),
            SPEECHD_ADDRESS=f"unix_socket:{self.folder / 'speechd.sock'}",
            GSETTINGS_BACKEND="memory", PYTHONUNBUFFERED="1")
        self._start_dispatcher()
        self._start_orca()

    def _start_dispatcher(self):
        configuration = self.folder / "speech-dispatcher"
        configuration.mkdir()
        (configuration / "speechd.conf").write_text(
            CONFIGURATION.format(voice=HERE / "voice.py"))
        self.desktop._start(["speech-dispatcher", "-s", "-c", "unix_socket", "-t", "0",
                             "-S", str(self.folder / "speechd.sock"), "-C", str(configuration),
                             "-L", str(self.folder), "-P", str(self.folder / "speechd.pid")])

    def _start_orca(self):
        self.orca = self.desktop._start([sys.executable, str(HERE / "orca_reader.py"),
                                         str(self.errors_file), str(self.idle_file)])
        self.waits_to_hear("Screen reader on")

    def _entries(self):
        """The last line may still be being written."""
        return self.voice_file.read_text(encoding="utf-8").split("\n")[:-1]

    def said(self):
        """What was said since it was last forgotten; what was cut off at once is left out."""
        said = []
        for line in self._entries()[self.forgotten:]:
            entry = json.loads(line)
            if entry["kind"] == "begins":
                said.append(entry["text"].strip())
            elif entry["kind"] == "is cut off" and said:
                said.pop()
        return said

    def forget(self):
        self.forgotten = len(self._entries())

    def waits_to_hear(self, *patterns):
        """The patterns one after the other in what is said since it was last forgotten."""
        pattern = ".*".join(patterns)
        try:
            wait_for(lambda: re.search(pattern, " ".join(self.said())), f"{pattern!r}",
                     PATIENCE_SECONDS)
        except AssertionError as error:
            raise AssertionError(f"{error}; heard {self.said()}") from None

    def errors(self):
        """What Orca could not deal with of all that it was told since this was last asked."""
        self.orca.send_signal(signal.SIGUSR1)
        wait_for(self.idle_file.exists, "Orca with nothing to do", PATIENCE_SECONDS)
        self.idle_file.unlink()
        if not self.errors_file.exists():
            return ""
        errors = self.errors_file.read_text(encoding="utf-8")
        self.errors_file.unlink()
        return errors
