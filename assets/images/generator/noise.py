"""Seamless noise and blur on numpy arrays; every pattern repeats at the edges of its picture."""

import numpy as np


def _spline_taps(length, cells):
    """Cell numbers and weights of the cubic B-spline that spreads `cells` values over `length`."""
    position = (np.arange(length) + 0.5) * cells / length
    whole = np.floor(position).astype(int)
    t = position - whole
    weights = [(1 - t) ** 3, 3 * t**3 - 6 * t**2 + 4, -3 * t**3 + 3 * t**2 + 3 * t + 1, t**3]
    return [((whole + k - 1) % cells, weights[k] / 6) for k in range(4)]


def smooth_noise(rng, shape, cells):
    """Noise of mean 0 and deviation 1, `cells` (down, across) waves to the picture."""
    grid = rng.random(cells)
    rows = sum(grid[index] * weight[:, None] for index, weight in _spline_taps(shape[0], cells[0]))
    full = sum(rows[:, index] * weight for index, weight in _spline_taps(shape[1], cells[1]))
    return (full - full.mean()) / full.std()


def box_blur(image, radius):
    """The mean over a square of `radius` pixels each way, edges repeated."""
    for axis in (0, 1):
        pad = [(0, 0)] * image.ndim
        pad[axis] = (radius + 1, radius)
        total = np.cumsum(np.pad(image, pad, mode="edge"), axis=axis)
        size = 2 * radius + 1
        upper = np.take(total, range(size, total.shape[axis]), axis=axis)
        lower = np.take(total, range(0, total.shape[axis] - size), axis=axis)
        image = (upper - lower) / size
    return image


def soft_blur(image, sigma):
    """A blur close to a Gaussian of the given deviation in pixels."""
    radius = max(1, int(round(sigma)))
    for _ in range(3):
        image = box_blur(image, radius)
    return image
