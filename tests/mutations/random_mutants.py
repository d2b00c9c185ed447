#!/usr/bin/env python3
"""Breaks core, solver and storage in places drawn at random, and prints each mutant that survives.

    tests/mutations/random_mutants.py [--minutes M] [--seed S] [--only TEXT] [--in FOLDER]

An operator becomes another, a constant its neighbour, a condition its opposite, a statement nothing.
Some survivors change nothing that anybody could see: whether one does is for a reader to find out.
TEXT is part of the name of a source; a header takes longer than other sources, since all is built anew.
FOLDER keeps the copy that is broken, and its build, for the next time.
"""

import argparse
import collections
import random
import re
import tempfile
import time

from broken_copy import DOES_NOT_COMPILE, NOT_NOTICED, ROOT, BrokenCopy, require_sound

# The rooms, and whose tests see what happens in them.
ROOMS = {"core": ("core", "solver", "storage"), "solver": ("solver",), "storage": ("storage",)}
NO_CODE = re.compile(r'//[^\n]*|R?"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\'|^#[^\n]*', re.MULTILINE)

# As the formatter writes them: a binary operator stands between blanks, which no template's does.
OPERATORS = {
    "<": ("<=", ">="), "<=": ("<", ">"), ">": (">=", "<="), ">=": (">", "<"), "==": ("!=",),
    "!=": ("==",), "&&": ("||",), "||": ("&&",), "+": ("-",), "-": ("+",), "*": ("/",),
    "/": ("*",), "%": ("/",), "+=": ("-=",), "-=": ("+=",), "&": ("|",), "|": ("&",),
    "^": ("|",), "<<": (">>",), ">>": ("<<",), "&=": ("|=",), "|=": ("&=",),
}
BINARY = re.compile(r"(?<= )(?:[<>=!]=|&&|\|\||[-+&|]=|<<|>>|[-<>+*/%&|^])(?= |\n)")
STEP = re.compile(r"\+\+|--")
TRUTH = re.compile(r"\b(?:true|false)\b")
NUMBER = re.compile(r"(?<![\w.])\d+(?![\w.])")
NOT = re.compile(r"!(?=[\w(])")
CONDITION = re.compile(r"(?<=\bif )\((?=[^;{}\n]*\))")
STATEMENT = re.compile(r"(?<=[;{})])(?:\s*\n +)([^\s;{}#][^;{}]*;)(?=\n)")


def without_what_is_no_code(text):
    return NO_CODE.sub(lambda match: "_" * len(match.group()), text)


def end_of_brackets(code, begin):
    depth = 0
    for place in range(begin, len(code)):
        depth += {"(": 1, ")": -1}.get(code[place], 0)
        if depth == 0:
            return place + 1
    return len(code)


def changes(text):
    """Where a text can be changed, and what stands there then: (begin, end, instead)."""
    code = without_what_is_no_code(text)
    for match in BINARY.finditer(code):
        for other in OPERATORS[match.group()]:
            yield match.start(), match.end(), other
    for match in STEP.finditer(code):
        yield match.start(), match.end(), {"++": "--", "--": "++"}[match.group()]
    for match in TRUTH.finditer(code):
        yield match.start(), match.end(), {"true": "false", "false": "true"}[match.group()]
    for match in NUMBER.finditer(code):
        for step in (-1, 1):
            yield match.start(), match.end(), str(int(match.group()) + step)
    for match in NOT.finditer(code):
        yield match.start(), match.end(), ""
    for match in CONDITION.finditer(code):
        end = end_of_brackets(code, match.start())
        yield match.start(), end, f"(!{text[match.start():end]})"
    for match in STATEMENT.finditer(code):
        yield match.start(1), match.end(1), "{}"


def mutants():
    for room in ROOMS:
        for path in sorted((ROOT / room).glob("*.[ch]*")):
            text = path.read_text(encoding="utf-8")
            for begin, end, instead in changes(text):
                yield room, str(path.relative_to(ROOT)), begin, end, instead


def described(name, text, begin, end, instead):
    line = text.count("\n", 0, begin) + 1
    before = text[text.rfind("\n", 0, begin) + 1:begin].lstrip()
    after = text[end:text.find("\n", end)]
    return f"{name}:{line}: {before}[{text[begin:end]} -> {instead}]{after}"


def run(copy, wanted, minutes):
    counts = collections.Counter()
    end_of_run = time.monotonic() + 60 * minutes
    for room, name, begin, end, instead in wanted:
        if time.monotonic() > end_of_run:
            break
        text = copy.text(name)
        broken = text[:begin] + instead + text[end:]
        result = copy.result_when_broken(name, broken, ROOMS[room])
        counts[result] += 1
        if result == NOT_NOTICED:
            print(described(name, text, begin, end, instead), flush=True)
    return counts


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--minutes", type=float, default=60)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--only", default="")
    parser.add_argument("--in", dest="folder")
    wishes = parser.parse_args()
    wanted = [mutant for mutant in mutants() if wishes.only in mutant[1]]
    random.Random(wishes.seed).shuffle(wanted)
    with tempfile.TemporaryDirectory() as folder:
        # A warning does not count as being noticed.
        copy = BrokenCopy(wishes.folder or f"{folder}/copy", "-DGALLOPADE_WERROR=OFF")
        require_sound(copy, ROOMS)
        counts = run(copy, wanted, wishes.minutes)
    compiled = counts.total() - counts[DOES_NOT_COMPILE]
    print(f"{compiled} of {len(wanted)} mutants, {counts[NOT_NOTICED]} not noticed")


if __name__ == "__main__":
    main()
