"""Sources stay readable in one sitting."""

import sys
from pathlib import Path

MAXIMUM_LINES = 350
ROOMS = ("core", "solver", "storage", "ui", "app", "tests", "bench")


def main():
    root = Path(sys.argv[1])
    found = []
    for room in ROOMS:
        for path in sorted((root / room).rglob("*")):
            if path.suffix not in {".h", ".cpp", ".py"}:
                continue
            lines = len(path.read_text(encoding="utf-8").splitlines())
            if lines > MAXIMUM_LINES:
                found.append(f"{path.relative_to(root)}: {lines} lines")
    print("\n".join(found) or f"No source has more than {MAXIMUM_LINES} lines.")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
