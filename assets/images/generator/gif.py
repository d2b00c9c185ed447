"""Pictures into files: fewer pixels, fewer colours, no banding."""

import numpy as np
from PIL import Image

GROUND_SHARE = 0.02


def shrink(picture, factor):
    """The picture with `factor` by `factor` pixels averaged into one."""
    height, width = picture.shape[0] // factor, picture.shape[1] // factor
    return picture.reshape(height, factor, width, factor, 3).mean(axis=(1, 3))


def image(picture):
    """The picture with 8 bits a channel."""
    return Image.fromarray(np.round(np.clip(picture, 0, 1) * 255).astype(np.uint8))


def save_gif(picture, path, colours=256):
    """Writes a GIF whose palette is fitted to the picture, dithered against banding."""
    full = image(picture)
    palette = full.quantize(colours, method=Image.Quantize.MEDIANCUT, kmeans=3)
    full.quantize(palette=palette, dither=Image.Dither.FLOYDSTEINBERG).save(path, optimize=True)


def save_flat_gif(picture, path, colours=48):
    """Writes a GIF of plain surfaces, each of which keeps its colour exactly."""
    full = image(picture)
    fitted = full.quantize(colours, method=Image.Quantize.MEDIANCUT, kmeans=3)
    palette = np.array(fitted.getpalette()).reshape(-1, 3)
    pixels = full.size[0] * full.size[1]
    for count, colour in full.getcolors(pixels):
        if count > GROUND_SHARE * pixels:
            nearest = np.argmin(((palette - np.array(colour)) ** 2).sum(axis=1))
            palette[nearest] = colour
    fitted.putpalette(palette.flatten().tolist())
    full.quantize(palette=fitted, dither=Image.Dither.NONE).save(path, optimize=True)
