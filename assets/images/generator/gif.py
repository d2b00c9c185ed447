"""Pictures into files: fewer pixels, fewer colours, no banding."""

import numpy as np
from PIL import Image


def shrink(picture, factor):
    """The picture with `factor` by `factor` pixels averaged into one."""
    height, width = picture.shape[0] // factor, picture.shape[1] // factor
    return picture.reshape(height, factor, width, factor, 3).mean(axis=(1, 3))


def image(picture):
    """The picture with 8 bits a channel."""
    return Image.fromarray(np.round(np.clip(picture, 0, 1) * 255).astype(np.uint8))


def save_gif(picture, path, colours=256, dithered=True):
    """Writes a GIF whose palette is fitted to the picture."""
    full = image(picture)
    palette = full.quantize(colours, method=Image.Quantize.MEDIANCUT, kmeans=3)
    dither = Image.Dither.FLOYDSTEINBERG if dithered else Image.Dither.NONE
    full.quantize(palette=palette, dither=dither).save(path, optimize=True)
