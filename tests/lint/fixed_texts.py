"""Every text that players, their files or their printers see stands in one table, to the letter.

A text that is changed, added or lost in the sources shows here; fixed_texts.txt has one a line, as
the sources write it, with parts of a literal joined.
"""

import re
import sys
from pathlib import Path

ROOMS = ("core", "solver", "storage", "ui", "app")
TABLE = Path(__file__).with_suffix(".txt")
TOKEN = re.compile(r"""//[^\n]*|/\*.*?\*/|\#include[^\n]*|'(?:\\.|[^'\\])+'|"((?:\\.|[^"\\])*)\"""",
                   re.DOTALL)
NAME_IN_THE_CODE = re.compile(r"[a-z][A-Za-z0-9_]*(\(?%?\d?\)?)?|frm|frm\w+")


def literals(source):
    """The string literals of a source, those side by side joined as the compiler does."""
    parts, end = [], 0
    for token in TOKEN.finditer(source):
        if token.group(1) is None:
            continue
        if parts and source[end:token.start()].strip():
            yield "".join(parts)
            parts = []
        parts.append(token.group(1))
        end = token.end()
    if parts:
        yield "".join(parts)


def is_text(literal):
    return re.search("[A-Za-z]{2}", literal) and not NAME_IN_THE_CODE.fullmatch(literal)


def main():
    root = Path(sys.argv[1])
    found = {}
    for path in sorted(path for room in ROOMS for path in (root / room).rglob("*.[ch]*")):
        for literal in filter(is_text, literals(path.read_text(encoding="utf-8"))):
            found.setdefault(literal, path.relative_to(root))
    table = TABLE.read_text(encoding="utf-8").splitlines()
    for text in sorted(found.keys() - set(table)):
        print(f"not in the table: {text!r} of {found[text]}")
    for text in sorted(set(table) - found.keys()):
        print(f"nowhere in the sources: {text!r}")
    return 1 if set(table) != found.keys() else 0


if __name__ == "__main__":
    sys.exit(main())
