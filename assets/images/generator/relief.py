"""Light on carved and inlaid things: shading, shadows and bevels."""

import numpy as np

from .colours import blend, rgb
from .noise import soft_blur

LIGHT = np.array([-0.55, -0.65, 0.85]) / np.linalg.norm([-0.55, -0.65, 0.85])


def shade(height):
    """How bright each point of a height map is under the light; 1 where it lies flat."""
    down, across = np.gradient(height)
    normal = np.stack([-across, -down, np.ones_like(height)], axis=-1)
    normal /= np.linalg.norm(normal, axis=-1, keepdims=True)
    return (normal @ LIGHT) / LIGHT[2]


def rounded(cover, size, depth=1.0):
    """A height map of a cushion-like body where `cover` is 1, for a body `size` pixels big."""
    layers = ((0.010, 0.30), (0.028, 0.42), (0.065, 0.60), (0.13, 0.75))
    return depth * sum(weight * part * size * soft_blur(cover, part * size)
                       for part, weight in layers)


def shadow(cover, size, reach=0.03):
    """The soft shadow that a thing casts down and to the right."""
    step = max(1, round(reach * size))
    moved = np.zeros_like(cover)
    moved[step:, step // 2:] = cover[:-step, :cover.shape[1] - step // 2]
    return soft_blur(moved, reach * size)


def bevel(picture, width, strength):
    """The edges of a square of wood: lit above and at the left, darker below and at the right."""
    height, across = picture.shape[:2]
    y = np.arange(height)[:, None] + 0.5
    x = np.arange(across)[None, :] + 0.5
    sides = [np.broadcast_to(np.clip(1 - distance / width, 0, 1) ** 1.5, (height, across))
             for distance in (x, y, across - x, height - y)]
    lit = np.maximum(sides[0], sides[1])
    dim = np.maximum(sides[2], sides[3])
    picture = blend(picture, rgb("#fff0cf"), 0.45 * strength * lit * (dim < lit))
    return blend(picture, rgb("#120803"), strength * dim * (dim >= lit))
