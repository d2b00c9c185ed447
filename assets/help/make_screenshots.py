#!/usr/bin/env python3
"""Makes the pictures of the help from the running program.

    assets/help/make_screenshots.py [program directory] [name ...]

The program directory is build/release/GallopadeNova unless another one is given; with names, only
those pictures are made. The program runs on a display and with settings of its own. Needs Xvfb,
openbox, xdotool, x11-utils and imagemagick. The build does not run this; look at the result and
commit it.
"""

import sys
import tempfile
import time
from pathlib import Path

HELP = Path(__file__).resolve().parent
ROOT = HELP.parent.parent
sys.path.insert(0, str(ROOT / "tests" / "e2e"))

from desktop import Desktop, copy_of_program, wait_for  # noqa: E402

IMAGES = HELP / "images"
LOOKS = ("Wood", "Tournament", "High Contrast", "Night", "Inlay")
BEVERLEY = """
A8 C7 B5 D6 E8 G7 H5 F6 E4 G3 H1 F2 D1 B2 C4 A3 C2 A1 B3 D4 E2 G1 H3 F4 E6 G5 H7 F8 D7 B8 A6 C5
A4 C3 B1 D2 F1 H2 G4 E3 F5 H6 G8 E7 D5 B6 C8 A7 C6 A5 B7 D8 F7 H8 G6 E5 F3 H4 G2 E1 D3 B4 A2 C1
""".split()
MAIN_WINDOW = "^Gallopade Nova($|:| -)"


def game_file(folder, moves):
    """A game that has come as far as the first squares of Beverley's tour."""
    squares = [f"{ord(name[0]) - ord('A')} {8 - int(name[1])}" for name in BEVERLEY[:moves]]
    lines = ["415"] + squares + ["-1 -1"] * (64 - moves)
    path = Path(folder) / f"{moves}.knight"
    path.write_bytes("".join(line + "\r\n" for line in lines).encode())
    return path


class Session:
    """The program, fresh from its box, with a game of some moves on the board."""

    def __init__(self, desktop, program, moves, settings=None):
        self.desktop = desktop
        self.folder = tempfile.TemporaryDirectory()
        copy = copy_of_program(program, self.folder.name)
        if settings:
            (copy / "GallopadeNova.ini").write_bytes(Path(settings).read_bytes())
        game = game_file(self.folder.name, moves)
        self.process = desktop.start_program(copy / "GallopadeNova", game)
        self.main = desktop.window(MAIN_WINDOW)
        wait_for(lambda: f": {moves}" in desktop.title(self.main), "the game")
        desktop.focus(self.main)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.kill()
        self.process.wait()
        wait_for(lambda: not self.desktop.has_window(MAIN_WINDOW), "the end of the program")
        self.folder.cleanup()

    def choose(self, menu, entry, title):
        """Opens a window through the menu, by the underlined letters."""
        self.desktop.press(f"alt+{menu}")
        self.desktop.press(entry)
        return self.focused_window(title)

    def focused_window(self, title):
        window = self.desktop.window(title)
        self.desktop.focus(window)
        return window

    def picture(self, window, name, moving=False, width=None):
        path = IMAGES / f"{name}.png"
        if moving:
            time.sleep(1)
        else:
            self.wait_until_still(window)
        size = ["-resize", f"{width}x"] if width else []
        self.desktop.run("import", "-window", window, "-strip", *size, "-colors", "256",
                         f"PNG8:{path}")
        print(path.relative_to(ROOT))

    def wait_until_still(self, window):
        capture = Path(self.folder.name) / "capture.ppm"
        seen = []

        def still():
            time.sleep(0.2)
            self.desktop.run("import", "-window", window, str(capture))
            seen.append(capture.read_bytes())
            return len(seen) > 1 and seen[-1] == seen[-2]

        wait_for(still, "a window that does not move")


def dialog(menu, entry, title, moves=40):
    def shoot(desktop, program, name):
        with Session(desktop, program, moves) as session:
            session.picture(session.choose(menu, entry, title), name)
    return shoot


def board(look, width):
    """A knight on E2, and F4, where it can go, highlighted."""
    def shoot(desktop, program, name):
        with Session(desktop, program, 21, program / f"{look}.chessboard") as session:
            desktop.press("Up", "Up", "Right")
            session.picture(session.main, name, width=width)
    return shoot


def end_of_game(desktop, program, name):
    """The last move of the tour, the firework, the message and the score list."""
    with Session(desktop, program, 63) as session:
        desktop.press("Right", "Right", "Down", "Return")
        for title, picture, keys in (("^You Win!$", "you-win", ["Return"]),
                                     ("^Game Over...$", "game-over", ["alt+s"])):
            session.picture(session.focused_window(title), picture, moving=picture == "you-win")
            desktop.press(*keys)
        scores = session.focused_window("^High Scores$")
        desktop.press("ctrl+a")
        desktop.type("William Beverley")
        desktop.press("Return")
        session.picture(scores, name)


def command_history(desktop, program, name):
    with Session(desktop, program, 24) as session:
        desktop.press("ctrl+z", "ctrl+z", "ctrl+z")
        session.picture(session.choose("e", "c", "^Command History$"), name)


PICTURES = {
    "board": board("Wood", 400),
    **{f"look-{look.lower().replace(' ', '-')}": board(look, 260) for look in LOOKS},
    "solve": dialog("f", "l", "^Solve$"),
    "replay": dialog("v", "i", "^Replay$"),
    "move-history": dialog("v", "m", "^Move History$"),
    "command-history": command_history,
    "preferences": dialog("e", "p", "^Preferences$"),
    "about": dialog("h", "a", "^About Gallopade Nova$"),
    "scores": end_of_game,
}


def main():
    arguments = sys.argv[1:]
    program = ROOT / "build" / "release" / "GallopadeNova"
    if arguments and Path(arguments[0]).is_dir():
        program = Path(arguments.pop(0)).resolve()
    IMAGES.mkdir(exist_ok=True)
    with Desktop() as desktop:
        for name, shoot in PICTURES.items():
            if not arguments or name in arguments:
                shoot(desktop, program, name)


if __name__ == "__main__":
    main()
