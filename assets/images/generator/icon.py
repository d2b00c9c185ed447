"""The program's icon: the ivory knight on mahogany with a brass rim, as SVG and as PNG."""

import numpy as np
from PIL import Image

from .colours import blend, ramp, rgb
from .gif import image
from .outlines import (KNIGHT_BODY, KNIGHT_COLLAR, KNIGHT_EYE, KNIGHT_FOOT, KNIGHT_LINES,
                       KNIGHT_NOSTRIL, Stage, closed, knight_outlines, points)

GROUND = ("#a8452c", "#5c1a10")
RIM, RIM_EDGE = "#e0b45a", "#3b1208"
IVORY, INK = "#f8edd2", "#24120a"
SIZES = (16, 24, 32, 48, 64, 128, 256)
CORNER = 190


def svg():
    """The icon as a drawing."""
    body = f"{KNIGHT_BODY} {KNIGHT_COLLAR} {KNIGHT_FOOT}"
    lines = "\n".join(f'      <path d="{path}"/>' for path in KNIGHT_LINES)
    return f"""<?xml version="1.0" encoding="UTF-8"?>
<svg xmlns="http://www.w3.org/2000/svg" width="256" height="256" viewBox="0 0 1000 1000">
  <title>Gallopade Nova</title>
  <defs>
    <linearGradient id="ground" x1="0" y1="0" x2="0" y2="1">
      <stop offset="0" stop-color="{GROUND[0]}"/>
      <stop offset="1" stop-color="{GROUND[1]}"/>
    </linearGradient>
  </defs>
  <rect width="1000" height="1000" rx="{CORNER}" fill="{RIM_EDGE}"/>
  <rect x="14" y="14" width="972" height="972" rx="{CORNER - 14}" fill="{RIM}"/>
  <rect x="54" y="54" width="892" height="892" rx="{CORNER - 54}" fill="url(#ground)"/>
  <g transform="translate(110 95) scale(0.78)" stroke-linejoin="round" stroke-linecap="round">
    <path d="{body}" fill="{IVORY}" stroke="{INK}" stroke-width="40" paint-order="stroke"/>
    <path d="{KNIGHT_EYE} {KNIGHT_NOSTRIL}" fill="{INK}"/>
    <g fill="none" stroke="{INK}" stroke-width="15">
{lines}
    </g>
  </g>
</svg>
"""


def _rounded_square(start, corner):
    """The outline of the box without its outermost `start` units."""
    angles = np.radians(np.arange(0, 91, 3))
    near, far = start + corner, 1000 - start - corner
    return [(x + corner * np.cos(turn + a), y + corner * np.sin(turn + a))
            for x, y, turn in ((far, far, 0), (near, far, np.pi / 2), (near, near, np.pi),
                               (far, near, 3 * np.pi / 2)) for a in angles]


def png(size):
    """The icon in one size; the small ones show a larger knight with less detail."""
    small = size <= 32
    n = 1024 // size
    shape = (size * n, size * n)
    full = Stage(shape)
    cover = full.fill(_rounded_square(0, CORNER))
    picture = np.zeros(shape + (3,)) + rgb(RIM_EDGE)
    start, rim_end = (0, 1000 / size if size > 16 else 0) if small else (14, 54)
    picture = blend(picture, rgb(RIM), full.fill(_rounded_square(start, CORNER - start)))
    rows = np.linspace(0, 1, shape[0])[:, None] + np.zeros(shape)
    inside = full.fill(_rounded_square(rim_end, CORNER - rim_end))
    picture = blend(picture, ramp(GROUND, rows), inside)
    stage = _piece_stage(size, n)
    outlines = knight_outlines()
    body = stage.fill(*outlines)
    if size > 16:
        rim = stage.stroke(50 if small else 40, *[closed(corners) for corners in outlines])
        picture = blend(picture, rgb(INK), rim)
    picture = blend(picture, rgb(IVORY), body)
    if not small:
        picture = blend(picture, rgb(INK), stage.stroke(15, *[points(p) for p in KNIGHT_LINES]))
    if size >= 24:
        details = stage.fill(points(KNIGHT_EYE), points(KNIGHT_NOSTRIL))
        picture = blend(picture, rgb(INK), details)
    return _with_cover(picture, cover, size, n)


def _piece_stage(size, n):
    """Where the knight stands; in small icons its foot ends on a whole pixel."""
    side = size * n
    if size > 32:
        return Stage((side, side), 0.11 * side, 0.095 * side, 0.78 * side)
    reach = 0.98 if size == 16 else 0.90
    foot = (size - 1 if size == 16 else size - 2) * n
    return Stage((side, side), (0.5 - 0.5 * reach) * side, foot - 0.964 * reach * side,
                 reach * side)


def _with_cover(picture, cover, size, n):
    """Averages down to `size` pixels, with the cover as transparency."""
    weight = cover.reshape(size, n, size, n).mean(axis=(1, 3))
    weighted = (picture * cover[..., None]).reshape(size, n, size, n, 3).mean(axis=(1, 3))
    colour = weighted / np.maximum(weight, 1e-6)[..., None]
    result = image(colour).convert("RGBA")
    result.putalpha(Image.fromarray(np.round(weight * 255).astype(np.uint8)))
    return result
