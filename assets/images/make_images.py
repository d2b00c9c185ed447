#!/usr/bin/python3
"""Makes every picture of the program anew; the same files come out each time.

Needs python3-pil and python3-numpy. Run it from anywhere: ./make_images.py
"""

import sys
from pathlib import Path

sys.dont_write_bytecode = True

from generator import flat, icon, looks, scenes, tiles  # noqa: E402
from generator.gif import save_flat_gif, save_gif, shrink  # noqa: E402

IMAGES = Path(__file__).resolve().parent
ICONS = IMAGES.parent / "icons"
LOOKS = IMAGES.parent / "looks"
# The window as designed is 640 pixels wide, a square of it 76; decoding takes its time with each pixel
# at every start, and what is larger on a screen is wood, which may be soft.
BOARD_SIZE = 640
TILE_SIZE = 256


def make_wooden_board():
    """The default look and the pictures of the scores and About windows."""
    squares = {"Light": tiles.light, "Dark": tiles.dark, "Visited": tiles.visited,
               "Knight": tiles.knight, "Highlight": tiles.highlight}
    for name, draw in squares.items():
        save_gif(shrink(draw(2 * TILE_SIZE), 2), IMAGES / f"Wood {name}.gif")
    save_gif(shrink(scenes.chessboard_frame(2 * BOARD_SIZE), 2), IMAGES / "Wood Chessboard.gif")
    save_gif(scenes.scores(), IMAGES / "Scores.gif")
    save_gif(scenes.about(), IMAGES / "About.gif")


def make_flat_boards():
    """The squares and backgrounds of the looks in plain colours."""
    for look, squares in ((looks.TOURNAMENT, flat.plain_squares),
                          (looks.NIGHT, flat.plain_squares),
                          (looks.CONTRAST, flat.contrast_squares),
                          (looks.INLAY, flat.inlay_squares)):
        for name, picture in squares(look).items():
            save_flat_gif(picture, IMAGES / f"{look.prefix} {name}.gif")
        if not look.background_image:
            save_flat_gif(flat.background(look), IMAGES / f"{look.prefix} Chessboard.gif")


def make_chessboard_files():
    """The look files that the player opens."""
    for look in looks.LOOKS:
        text = looks.chessboard_text(look)
        (LOOKS / f"{look.name}.chessboard").write_bytes(text.encode("ascii"))


def make_icons():
    """The program's icon in all sizes."""
    (ICONS / "GallopadeNova.svg").write_text(icon.svg(), encoding="utf-8")
    for size in icon.SIZES:
        icon.png(size).save(ICONS / f"GallopadeNova-{size}.png", optimize=True)


def main():
    """Makes all files in their folders."""
    for folder in (ICONS, LOOKS):
        folder.mkdir(exist_ok=True)
    make_wooden_board()
    make_flat_boards()
    make_chessboard_files()
    make_icons()


if __name__ == "__main__":
    main()
