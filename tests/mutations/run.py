#!/usr/bin/env python3
"""Breaks conditions that matter, one after the other, and sees that a test notices each.

    tests/mutations/run.py [--only TEXT] [--in FOLDER]

Works on a copy of what is committed; takes an hour or so. TEXT is part of the name of a source or of a
check. FOLDER keeps the copy, and its build, for the next time.
"""

import argparse
import sys
import tempfile

from broken_copy import NOTICED, BrokenCopy, require_sound
from fixed_mutants import MUTANTS


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--only", default="")
    parser.add_argument("--in", dest="folder")
    wishes = parser.parse_args()
    mutants = [mutant for mutant in MUTANTS if wishes.only in mutant[0] + " " + mutant[3]]
    missed = 0
    with tempfile.TemporaryDirectory() as folder:
        copy = BrokenCopy(wishes.folder or f"{folder}/copy")
        require_sound(copy, sorted({check for *_, check in mutants}))
        for name, before, after, check in mutants:
            text = copy.text(name)
            assert text.count(before) == 1, f"{name} has {before!r} {text.count(before)} times"
            result = copy.result_when_broken(name, text.replace(before, after), [check])
            missed += result != NOTICED
            print(f"{name}: {before!r}: {result}", flush=True)
    print(f"{len(mutants) - missed} of {len(mutants)} noticed")
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main())
