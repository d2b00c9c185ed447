"""The law between the rooms, read off the #include lines: arrows run downward only."""

import re
import sys
from pathlib import Path

# Each place, and the places that it may include beside itself. The longest place that a path begins
# with is the one that it lies in, so app/main.cpp is the roof and the rest of app the ground floor.
MAY_INCLUDE = {
    "core": (),
    "solver": ("core",),
    "storage": ("core",),
    "app": ("core", "storage"),
    "ui/widgets": ("core", "storage"),
    "ui/application": ("core", "storage", "ui/widgets"),
    "ui/board": ("core", "storage", "ui/application", "ui/widgets"),
    "ui/help": ("core", "storage", "ui/application", "ui/widgets"),
    "ui/commands": ("core", "solver", "storage", "app", "ui/board", "ui/application", "ui/widgets"),
    "ui/windows": ("core", "solver", "storage", "app", "ui/board", "ui/application", "ui/widgets",
                   "ui/commands", "ui/help"),
    "app/main.cpp": ("app", "ui/windows"),
}
WINDOWLESS = {"core", "solver"}
# Qt's headers for files and text; anything else of it in these places is a window's.
FILES_AND_TEXT = {
    "storage": {"QByteArray", "QByteArrayView", "QFile", "QList", "QString", "QStringDecoder",
                "QStringList", "QStringView"},
    "app": {"QCoreApplication", "QString", "QVersionNumber"},
}
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def place_of(path):
    inside = [place for place in MAY_INCLUDE if path == place or path.startswith(place + "/")]
    return max(inside, key=len, default=None)


def includes(path):
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        match = INCLUDE.match(line)
        if match:
            yield number, match.group(1), match.group(2)


def faults(path, root):
    name = str(path.relative_to(root))
    place = place_of(name)
    if place is None:
        yield f"{name}: (in no room)"
        return
    for number, bracket, header in includes(path):
        where = f"{name}:{number}: {header}"
        if bracket == '"':
            if place_of(header) not in (place, *MAY_INCLUDE[place]):
                yield f"{where} (an arrow runs upward)"
        elif header.startswith("Q") and place in WINDOWLESS:
            yield f"{where} (this room knows the standard library only)"
        elif header.startswith("Q") and header not in FILES_AND_TEXT.get(place, {header}):
            yield f"{where} (this room knows files and text only)"


def unused_headers(root):
    for place, headers in FILES_AND_TEXT.items():
        used = {header for path in (root / place).rglob("*.[ch]*")
                if place_of(str(path.relative_to(root))) == place
                for _, _, header in includes(path)}
        for header in sorted(headers - used):
            yield f"{place}: {header} is allowed and used nowhere"


def main():
    root = Path(sys.argv[1])
    found = list(unused_headers(root))
    for room in sorted({place.split("/")[0] for place in MAY_INCLUDE}):
        for path in sorted((root / room).rglob("*.[ch]*")):
            found.extend(faults(path, root))
    print("\n".join(found) or "The rooms keep their law.")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
