#!/usr/bin/python3
"""Prints how far the five squares of each look stand apart, as the README tells it."""

import itertools
import sys
from pathlib import Path

sys.dont_write_bytecode = True

import numpy as np  # noqa: E402
from PIL import Image  # noqa: E402

from generator.colours import contrast, luminance  # noqa: E402

IMAGES = Path(__file__).resolve().parent
STATES = ("Light", "Dark", "Visited", "Knight", "Highlight")
SQUARE_SIZES = (40, 76, 150)


def lights(prefix, state, size):
    """The luminances of a square as it is seen `size` pixels wide."""
    picture = Image.open(IMAGES / f"{prefix} {state}.gif").convert("RGB")
    return luminance(np.asarray(picture.resize((size, size), Image.Resampling.BOX)) / 255.0)


def mark_contrast(visited):
    """The contrast of the visited mark's toe to the ground at the square's side."""
    size = len(visited)
    toe = visited[int(0.70 * size):int(0.76 * size), int(0.46 * size):int(0.54 * size)]
    ground = visited[int(0.2 * size):int(0.8 * size), int(0.04 * size):int(0.09 * size)]
    return float(contrast(np.median(toe), np.median(ground)))


def main():
    """Measures each look that stretches its pictures over the square."""
    for prefix, size in itertools.product(("Wood", "Tournament", "Contrast", "Night"),
                                          SQUARE_SIZES):
        seen = {state: lights(prefix, state, size) for state in STATES}
        print(f"{prefix}, {size} pixels: visited mark {mark_contrast(seen['Visited']):.1f}:1")
        for one, other in itertools.combinations(STATES, 2):
            share = np.mean(contrast(seen[one], seen[other]) >= 3)
            print(f"  {one} and {other}: {share:.0%} of the square at 3:1 or more")


if __name__ == "__main__":
    main()
