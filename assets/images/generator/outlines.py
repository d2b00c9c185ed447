"""The drawings of the set, as curves in a box of 1000 by 1000 units, and their masks."""

import math

import numpy as np
from PIL import Image, ImageDraw

KNIGHT_BODY = (
    "M 292 838 C 288 756 330 708 390 656 C 446 608 478 566 476 514 "
    "C 446 542 410 554 372 555 C 346 556 330 568 316 590 C 302 613 284 629 258 623 "
    "C 243 619 235 607 230 595 C 204 594 176 574 170 543 C 165 513 184 490 204 462 "
    "C 236 414 258 376 280 322 C 298 270 334 228 388 198 C 382 156 388 112 406 70 "
    "C 438 98 462 128 478 164 C 488 138 504 114 528 94 C 544 122 552 150 552 182 "
    "C 636 202 702 258 730 342 L 706 336 C 762 384 794 446 794 520 L 768 506 "
    "C 806 572 806 640 778 712 L 756 692 C 758 742 748 790 744 838 Z"
)
KNIGHT_COLLAR = (
    "M 268 838 L 760 838 C 776 838 786 848 786 862 C 786 878 776 888 760 888 "
    "L 268 888 C 252 888 242 878 242 862 C 242 848 252 838 268 838 Z"
)
KNIGHT_FOOT = (
    "M 236 888 L 792 888 C 822 896 840 916 840 944 C 840 956 832 964 820 964 "
    "L 208 964 C 196 964 188 956 188 944 C 188 916 206 896 236 888 Z"
)
KNIGHT_EYE = "M 346 340 C 356 312 384 298 418 304 C 410 332 384 350 346 340 Z"
KNIGHT_NOSTRIL = "M 206 534 C 208 516 222 508 236 512 C 236 530 224 542 206 534 Z"
KNIGHT_LINES = (
    "M 230 595 C 256 590 276 582 296 566",
    "M 476 514 C 504 478 510 438 496 398",
    "M 478 164 C 486 196 500 224 520 248",
    "M 706 336 C 680 290 636 254 578 240",
    "M 768 506 C 748 424 690 352 606 322",
    "M 756 692 C 772 600 732 488 640 412",
    "M 520 248 C 590 330 640 430 640 540 C 640 640 606 700 606 806",
)


def _cubic(start, first, second, end, steps):
    t = np.linspace(0, 1, steps + 1)[1:, None]
    points = [np.array(p) for p in (start, first, second, end)]
    return ((1 - t) ** 3 * points[0] + 3 * (1 - t) ** 2 * t * points[1]
            + 3 * (1 - t) * t**2 * points[2] + t**3 * points[3])


def points(path, steps=24):
    """The corners of a path of M, L, C and Z commands with absolute coordinates."""
    words = path.split()
    result, i = [], 0
    while i < len(words):
        command = words[i]
        count = {"M": 2, "L": 2, "C": 6, "Z": 0}[command]
        numbers = [float(word) for word in words[i + 1:i + 1 + count]]
        pairs = list(zip(numbers[::2], numbers[1::2]))
        if command == "C":
            result.extend(map(tuple, _cubic(result[-1], *pairs, steps)))
        else:
            result.extend(pairs)
        i += 1 + count
    return result


def horseshoe():
    """The corners of a horseshoe that opens upward."""
    angles = np.radians(np.linspace(-58, 238, 97))

    def arc(radius, extra):
        toe = (np.sin(angles) + 1) / 2
        reach = radius + extra * toe
        return [(500 + r * math.cos(a), 500 + 1.12 * r * math.sin(a))
                for r, a in zip(reach, angles)]

    return arc(325, 25) + arc(205, -5)[::-1]


def horseshoe_nails():
    """The middle points of the nail holes of `horseshoe`."""
    return [(500 + 275 * math.cos(a), 500 + 1.12 * 275 * math.sin(a))
            for a in np.radians([-18, 12, 42, 138, 168, 198])]


class Stage:
    """Where the unit box lies in a picture of `shape` pixels, and the masks drawn there."""

    SUPERSAMPLING = 4

    def __init__(self, shape, left=0.0, top=0.0, size=None):
        self.shape = shape
        self.left, self.top = left, top
        self.scale = (size if size is not None else min(shape)) / 1000.0

    def _place(self, corners):
        n = self.SUPERSAMPLING
        return [((self.left + x * self.scale) * n - 0.5, (self.top + y * self.scale) * n - 0.5)
                for x, y in corners]

    def _canvas(self):
        height, width = self.shape
        return Image.new("L", (width * self.SUPERSAMPLING, height * self.SUPERSAMPLING), 0)

    def _mask(self, canvas):
        n, (height, width) = self.SUPERSAMPLING, self.shape
        full = np.asarray(canvas, dtype=float) / 255.0
        return full.reshape(height, n, width, n).mean(axis=(1, 3))

    def fill(self, *outlines):
        """The cover (0..1) of the given closed outlines together."""
        canvas = self._canvas()
        pen = ImageDraw.Draw(canvas)
        for outline in outlines:
            pen.polygon(self._place(outline), fill=255)
        return self._mask(canvas)

    def stroke(self, width, *lines):
        """The cover of round-ended lines `width` units wide."""
        canvas = self._canvas()
        pen = ImageDraw.Draw(canvas)
        radius = width * self.scale * self.SUPERSAMPLING / 2
        for line in lines:
            places = self._place(line)
            pen.line(places, fill=255, width=max(1, round(2 * radius)))
            for x, y in places:
                pen.ellipse([x - radius, y - radius, x + radius, y + radius], fill=255)
        return self._mask(canvas)


def knight_outlines():
    """The closed outlines that make up the piece."""
    return [points(path) for path in (KNIGHT_BODY, KNIGHT_COLLAR, KNIGHT_FOOT)]


def closed(outline):
    """An outline as a line that ends where it began."""
    return list(outline) + [outline[0]]
