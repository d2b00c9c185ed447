"""The law between the rooms, read off the #include lines: arrows run downward only."""

import re
import sys
from pathlib import Path

# Which rooms, and which of the toolkit's modules, each room may include.
MAY_INCLUDE = {
    "core": {"core"},
    "solver": {"core", "solver"},
    "storage": {"core", "storage"},
    "ui": {"core", "solver", "storage", "ui"},
    "app": {"core", "solver", "storage", "ui", "app"},
}
UI_MAY_ALSO_INCLUDE = {"app/Globals.h"}
WINDOWLESS = {"core", "solver"}
# The toolkit's headers for files and text; anything else of it in storage is a window's.
STORAGE_TOOLKIT = {
    "QByteArray", "QByteArrayView", "QDir", "QFile", "QFileDevice", "QFileInfo", "QFlags",
    "QIODevice", "QList", "QLockFile", "QSaveFile", "QString", "QStringDecoder", "QStringList",
    "QStringView", "QTemporaryFile", "QTextStream", "QtGlobal", "QChar", "QLatin1StringView",
}
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def includes(path):
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        match = INCLUDE.match(line)
        if match:
            yield number, match.group(1), match.group(2)


def faults(room, path, root):
    for number, bracket, header in includes(path):
        where = f"{path.relative_to(root)}:{number}: {header}"
        if bracket == '"':
            target = header.split("/")[0]
            allowed = target in MAY_INCLUDE[room]
            allowed |= room == "ui" and header in UI_MAY_ALSO_INCLUDE
            if not allowed:
                yield f"{where} (an arrow runs upward)"
        elif header.startswith("Q") and room in WINDOWLESS:
            yield f"{where} (this room knows the standard library only)"
        elif header.startswith("Q") and room == "storage" and header not in STORAGE_TOOLKIT:
            yield f"{where} (storage knows files and text only)"


def main():
    root = Path(sys.argv[1])
    found = []
    for room in MAY_INCLUDE:
        for path in sorted((root / room).rglob("*")):
            if path.suffix in {".h", ".cpp"}:
                found.extend(faults(room, path, root))
    print("\n".join(found) or "The rooms keep their law.")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
