"""Colours as numpy triples between 0 and 1."""

import numpy as np


def rgb(text):
    """The colour of a text such as "#d3a566"."""
    return np.array([int(text[i:i + 2], 16) for i in (1, 3, 5)]) / 255.0


def ramp(tones, value):
    """The colours of `value` (0..1) along a row of evenly spaced tones."""
    stops = np.linspace(0, 1, len(tones))
    channels = np.array([rgb(tone) for tone in tones])
    return np.stack([np.interp(value, stops, channels[:, k]) for k in range(3)], axis=-1)


def blend(below, above, cover):
    """`above` laid over `below` where `cover` (0..1) says so; either may be one colour."""
    return below + (above - below) * cover[..., None]


def luminance(colour):
    """Relative luminance of sRGB colours, as contrast ratios use it."""
    linear = np.where(colour <= 0.04045, colour / 12.92, ((colour + 0.055) / 1.055) ** 2.4)
    return linear @ np.array([0.2126, 0.7152, 0.0722])


def contrast(one, other):
    """The contrast ratios (1..21) of two lots of luminances, place by place."""
    return (np.maximum(one, other) + 0.05) / (np.minimum(one, other) + 0.05)
