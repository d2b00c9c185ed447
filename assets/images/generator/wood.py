"""Planks of wood: a colour ramp driven by year rings, fibres, pores and a slow shimmer."""

from dataclasses import dataclass

import numpy as np

from .colours import ramp
from .noise import smooth_noise


@dataclass(frozen=True)
class Timber:
    """One kind of wood; `tones` runs from its darkest to its lightest colour."""

    tones: tuple
    rings: int = 9
    ring_depth: float = 0.16
    wander: float = 0.9
    fibre: float = 0.06
    pores: float = 0.10
    shimmer: float = 0.05


MAPLE = Timber(("#b98548", "#d3a566", "#e2bd84", "#efd3a2"), rings=7, ring_depth=0.20, wander=1.0,
               fibre=0.075, pores=0.05, shimmer=0.05)
WALNUT = Timber(("#40220f", "#653a1d", "#85522b", "#a06a3c"), rings=9, ring_depth=0.20, wander=0.9,
                fibre=0.09, pores=0.16, shimmer=0.045)
EBONY = Timber(("#150d08", "#23160e", "#322117", "#432e20"), rings=9, ring_depth=0.20, wander=0.8,
               fibre=0.10, pores=0.12, shimmer=0.06)
MAHOGANY = Timber(("#3f0f08", "#641d10", "#82301c", "#9c442a"), rings=7, ring_depth=0.20,
                  wander=1.0, fibre=0.08, pores=0.14, shimmer=0.08)
ROSEWOOD = Timber(("#1f0d08", "#371910", "#4f281a", "#673925"), rings=11, ring_depth=0.26,
                  wander=1.4, fibre=0.09, pores=0.14, shimmer=0.06)
HONEY = Timber(("#c97a12", "#e79a1e", "#f8b83a", "#ffd567"), rings=7, ring_depth=0.16, wander=1.0,
               fibre=0.06, pores=0.04, shimmer=0.06)


def plank(timber, seed, shape, scale=1.0):
    """A picture (height, width, 3; values 0..1) of wood with its grain upright.

    `scale` is how many squares' worth of grain the shorter side shows.
    """
    rng = np.random.default_rng(seed)
    short = min(shape)

    def noise(down, across):
        cells = (max(1, round(down * scale * shape[0] / short)),
                 max(1, round(across * scale * shape[1] / short)))
        return smooth_noise(rng, shape, cells)

    across = np.arange(shape[1])[None, :] / shape[1]
    rings = max(1, round(timber.rings * scale * shape[1] / short))
    drift = 0.28 * noise(1, 6) + timber.wander * (0.10 * noise(2, 2) + 0.015 * noise(6, 9))
    year = (rings * across + drift) % 1.0
    late_wood = np.where(year < 0.86, (year / 0.86) ** 2.2, (1 - year) / 0.14)
    value = 0.62 + timber.ring_depth * (0.33 - late_wood)
    value = value + timber.fibre * (0.5 * noise(2, 50) + 0.5 * noise(6, 150) + 0.3 * noise(24, 330))
    value = value + timber.shimmer * (0.7 * noise(5, 3) + 0.5 * noise(2, 4))
    pores = noise(18, 240) * (0.6 + 0.4 * late_wood)
    value = value - timber.pores * np.clip(pores - 1.0, 0, 2)
    return ramp(timber.tones, value)
