"""The five squares of the wooden board."""

import numpy as np

from . import wood
from .colours import blend, rgb
from .noise import soft_blur
from .outlines import (KNIGHT_EYE, KNIGHT_LINES, KNIGHT_NOSTRIL, Stage, closed, horseshoe,
                       horseshoe_nails, knight_outlines, points)
from .relief import bevel, rounded, shade, shadow

BEVEL_WIDTH = 0.014
BEVEL_STRENGTH = 0.42


def _ground(timber, seed, size):
    return wood.plank(timber, seed, (size, size))


def _finish(picture):
    return bevel(picture, BEVEL_WIDTH * picture.shape[0], BEVEL_STRENGTH)


def light(size):
    """An unvisited light square."""
    return _finish(_ground(wood.MAPLE, 11, size))


def dark(size):
    """An unvisited dark square."""
    return _finish(_ground(wood.WALNUT, 23, size))


def lay_horseshoe(picture, stage, tones=("#8f6420", "#d8a94b", "#ffe9ae")):
    """Lets a brass horseshoe into the wood."""
    size = stage.scale * 1000
    cover = stage.fill(horseshoe())
    picture = blend(picture, rgb("#000000"), 0.55 * soft_blur(cover, 0.012 * size))
    light_on = shade(rounded(cover, size, 1.1))
    rows = np.linspace(1, 0, picture.shape[0])[:, None] + np.zeros_like(cover)
    tone = np.clip(light_on - 0.5 + 0.12 * rows, 0, 1)[..., None]
    low, middle, high = (rgb(text) for text in tones)
    metal = np.where(tone < 0.5, low + (middle - low) * tone * 2,
                     middle + (high - middle) * (tone - 0.5) * 2)
    picture = blend(picture, metal, cover)
    nails = stage.stroke(34, *[[nail] for nail in horseshoe_nails()])
    return blend(picture, rgb("#2b1a0c"), 0.9 * nails)


def visited(size):
    """A visited square: smoked oak with a brass horseshoe."""
    picture = _ground(wood.EBONY, 37, size)
    inset = 0.10 * size
    stage = Stage((size, size), inset, inset + 0.01 * size, size - 2 * inset)
    return _finish(lay_horseshoe(picture, stage))


def lay_knight(picture, stage, ivory="#f4e6c6", outline="#24120a"):
    """Stands the carved knight on a picture."""
    size = stage.scale * 1000
    outlines = knight_outlines()
    body = stage.fill(*outlines)
    edge = stage.stroke(22, *[closed(corners) for corners in outlines])
    lines = stage.stroke(11, *[points(path) for path in KNIGHT_LINES])
    details = stage.fill(points(KNIGHT_EYE), points(KNIGHT_NOSTRIL))
    whole = np.maximum(body, edge)
    picture = blend(picture, rgb("#000000"), 0.62 * shadow(whole, size, 0.028))
    picture = blend(picture, rgb(outline), whole)
    carved = rounded(np.clip(body - edge, 0, 1) - 0.35 * lines, size, 0.55)
    light_on = np.clip(shade(carved), 0.30, 1.20)[..., None]
    warm = np.power(rgb(ivory), 1 + 0.55 * np.clip(1 - light_on, 0, 1))
    surface = np.clip(warm * (0.24 + 0.73 * light_on), 0, 1)
    picture = blend(picture, surface, np.clip(body - edge, 0, 1))
    return blend(picture, rgb("#3a2114"), np.maximum(0.80 * lines * body, details))


def knight(size):
    """The knight's square: mahogany with the ivory piece."""
    picture = _ground(wood.MAHOGANY, 41, size)
    inset = 0.065 * size
    stage = Stage((size, size), inset, inset - 0.012 * size, size - 2 * inset)
    return _finish(lay_knight(picture, stage))


def highlight(size):
    """A square that can be reached: honey wood that glows inside a bright frame."""
    picture = _ground(wood.HONEY, 53, size)
    axis = (np.arange(size) + 0.5) / size - 0.5
    x, y = np.meshgrid(axis, axis)
    distance = np.sqrt(x**2 + y**2)
    picture = blend(picture, rgb("#b85c00"), 0.75 * np.clip((distance - 0.22) / 0.40, 0, 1))
    picture = blend(picture, rgb("#fff3b8"), 0.90 * np.exp(-((distance / 0.26) ** 2)))
    edge = 0.5 - np.maximum(np.abs(x), np.abs(y))
    for start, end, colour in ((0.0, 0.106, "#3b1a02"), (0.024, 0.080, "#fff2b0")):
        softness = 1.5 / size
        band = np.clip((edge - start) / softness + 0.5, 0, 1)
        band = band * np.clip((end - edge) / softness + 0.5, 0, 1)
        picture = blend(picture, rgb(colour), band)
    return picture
