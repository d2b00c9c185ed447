#!/usr/bin/env python3
"""Starts Orca with its defaults, as its own start script does, but beside any other copy of it.

orca_reader.py FILE: every error that Orca meets while it deals with an event goes to the file.
"""

import sys
import traceback

import gi

gi.require_version("Gdk", "3.0")

from orca import debug  # noqa: E402

ERRORS = sys.argv[1]
# There is no braille display. And of what a key has closed, Orca may still ask what the key before it
# has changed there: by then it is gone.
NOT_OURS = ("brlapi", "no such object path", "the application no longer exists")


def write_error(_level):
    error = traceback.format_exc()
    if not any(cause in error.lower() for cause in NOT_OURS):
        with open(ERRORS, "a", encoding="utf-8") as file:
            file.write(error)


debug.printException = write_error

from orca import orca  # noqa: E402

orca.getSettingsManager().activate(None, {})
sys.exit(orca.main())
