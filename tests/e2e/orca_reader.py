#!/usr/bin/env python3
"""Starts Orca with its defaults, as its own start script does, but beside any other copy of it.

orca_reader.py ERRORS IDLE: every error that Orca meets while it deals with an event goes to the first
file. After SIGUSR1 the second one is made, once Orca has dealt with all that it was told.
"""

import signal
import sys
import traceback
from pathlib import Path

import gi

gi.require_version("Gdk", "3.0")

from gi.repository import GLib  # noqa: E402
from orca import debug  # noqa: E402

ERRORS, IDLE = map(Path, sys.argv[1:])
# There is no braille display. And of what a key has closed, Orca may still ask what the key before it
# has changed there: by then it is gone.
NOT_OURS = ("brlapi", "no such object path")


def write_error(_level):
    error = traceback.format_exc()
    if not any(cause in error.lower() for cause in NOT_OURS):
        with ERRORS.open("a", encoding="utf-8") as file:
            file.write(error)


def tell_idle():
    IDLE.touch()
    return GLib.SOURCE_CONTINUE


debug.printException = write_error
# After the queue of what Orca is told, which it deals with when nothing else is to be done.
GLib.unix_signal_add(GLib.PRIORITY_LOW, signal.SIGUSR1, tell_idle)

from orca import orca  # noqa: E402

orca.getSettingsManager().activate(None, {})
sys.exit(orca.main())
