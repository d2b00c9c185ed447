"""Draws docs/rooms.svg from the #include lines: every room, and the rooms that it includes.

Arrows that follow from others are left out. With --check nothing is written, and a picture that is
no longer true is a failure.
"""

import re
import sys
from pathlib import Path

# Each room with its column and row in the picture.
ROOMS = {
    "app/main.cpp": (2, 0),
    "ui/windows": (2, 1),
    "ui/commands": (1, 2), "ui/help": (3, 2),
    "solver": (0, 3), "app": (1, 3), "ui/board": (2, 3),
    "ui/application": (2, 4),
    "ui/widgets": (2, 5),
    "storage": (1, 6),
    "core": (0, 7),
}
INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"', re.MULTILINE)
BOX_WIDTH, BOX_HEIGHT, GAP_ACROSS, GAP_DOWN, MARGIN = 120, 32, 28, 44, 16


def room_of(path):
    inside = [room for room in ROOMS if path == room or path.startswith(room + "/")]
    return max(inside, key=len, default=None)


def arrows(root):
    """Each room with all the rooms that it includes."""
    found = {room: set() for room in ROOMS}
    for top in sorted({room.split("/")[0] for room in ROOMS}):
        for source in sorted((root / top).rglob("*.[ch]*")):
            room = room_of(str(source.relative_to(root)))
            targets = map(room_of, INCLUDE.findall(source.read_text(encoding="utf-8")))
            found[room].update(target for target in targets if target not in (None, room))
    return found


def reachable(graph, room):
    seen, open_rooms = set(), list(graph[room])
    while open_rooms:
        other = open_rooms.pop()
        if other not in seen:
            seen.add(other)
            open_rooms.extend(graph[other])
    return seen


def reduced(graph):
    return {room: {target for target in targets
                   if not any(target in reachable(graph, other) for other in targets - {target})}
            for room, targets in graph.items()}


def middle(room):
    column, row = ROOMS[room]
    return (MARGIN + column * (BOX_WIDTH + GAP_ACROSS) + BOX_WIDTH / 2,
            MARGIN + row * (BOX_HEIGHT + GAP_DOWN) + BOX_HEIGHT / 2)


def drawn(graph):
    columns, rows = (max(numbers) for numbers in zip(*ROOMS.values()))
    width = 2 * MARGIN + (columns + 1) * (BOX_WIDTH + GAP_ACROSS) - GAP_ACROSS
    height = 2 * MARGIN + (rows + 1) * (BOX_HEIGHT + GAP_DOWN) - GAP_DOWN
    lines = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width:g} {height:g}" '
             f'width="{width:g}" font-family="sans-serif" font-size="13">',
             '<defs><marker id="tip" viewBox="0 0 8 8" refX="8" refY="4" markerWidth="8" '
             'markerHeight="8" orient="auto"><path d="M0 0L8 4L0 8z" fill="#666"/></marker></defs>',
             f'<rect width="{width:g}" height="{height:g}" fill="#fff"/>']
    for room in ROOMS:
        for target in sorted(graph[room]):
            (x1, y1), (x2, y2) = middle(room), middle(target)
            lines.append(f'<line x1="{x1:g}" y1="{y1 + BOX_HEIGHT / 2:g}" x2="{x2:g}" '
                         f'y2="{y2 - BOX_HEIGHT / 2:g}" stroke="#666" marker-end="url(#tip)"/>')
    for room in ROOMS:
        x, y = middle(room)
        lines.append(f'<rect x="{x - BOX_WIDTH / 2:g}" y="{y - BOX_HEIGHT / 2:g}" rx="4" '
                     f'width="{BOX_WIDTH}" height="{BOX_HEIGHT}" fill="#f6ecd9" stroke="#8a6d3b"/>')
        lines.append(f'<text x="{x:g}" y="{y + 4.5:g}" text-anchor="middle">{room}</text>')
    return "\n".join(lines) + "\n</svg>\n"


def main():
    docs = Path(__file__).resolve().parent
    picture = docs / "rooms.svg"
    wanted = drawn(reduced(arrows(docs.parent)))
    if "--check" not in sys.argv:
        picture.write_text(wanted, encoding="utf-8")
    elif picture.read_text(encoding="utf-8") != wanted:
        sys.exit("docs/rooms.svg is not true any more: python3 docs/rooms.py draws it")


if __name__ == "__main__":
    main()
