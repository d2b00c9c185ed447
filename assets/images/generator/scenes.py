"""The larger pictures: the frame around the board, the scores and the About picture."""

import numpy as np

from . import tiles, wood
from .colours import blend, rgb
from .gif import shrink
from .noise import soft_blur
from .outlines import Stage, closed, knight_outlines
from .relief import shadow

BRASS = "#c99a45"


def _axes(shape):
    """Distances of every pixel from the left, top, right and bottom edge."""
    y = np.arange(shape[0])[:, None] + 0.5 + np.zeros(shape)
    x = np.arange(shape[1])[None, :] + 0.5 + np.zeros(shape)
    return x, y, shape[1] - x, shape[0] - y


def _band(edge, start, end):
    """The cover of the ring between two distances from the edge of a picture."""
    return np.clip(edge - start + 0.5, 0, 1) * np.clip(end - edge + 0.5, 0, 1)


def chessboard_frame(size):
    """A mitred rosewood frame with a brass line, around a calm panel."""
    left, top, right, bottom = _axes((size, size))
    edge = np.minimum(np.minimum(left, right), np.minimum(top, bottom))
    upright = wood.plank(wood.ROSEWOOD, 61, (size, size), 3.0)
    lying = wood.plank(wood.ROSEWOOD, 67, (size, size), 3.0).transpose(1, 0, 2)
    sideways = np.clip(np.minimum(top, bottom) - np.minimum(left, right) + 0.5, 0, 1)
    frame = blend(lying, upright, sideways)
    mitre = np.abs(np.minimum(top, bottom) - np.minimum(left, right))
    frame = blend(frame, rgb("#0d0503"), 0.7 * np.clip(1.6 - mitre, 0, 1))
    panel = wood.plank(wood.ROSEWOOD, 71, (size, size), 2.5) * 0.82
    inner = 0.25 * size
    picture = blend(frame, panel, np.clip(edge - inner + 0.5, 0, 1))
    picture = blend(picture, rgb("#060201"), 0.8 * np.exp(-np.abs(edge - inner) / 3.0))
    lit = np.minimum(left, top) < np.minimum(right, bottom)
    rim = np.clip(1 - edge / (0.0055 * size), 0, 1)
    picture = blend(picture, rgb("#c08a63"), 0.55 * rim * lit)
    picture = blend(picture, rgb("#000000"), 0.65 * rim * ~lit)
    for middle in (0.0098, 0.2):
        start, end = (middle - 0.0013) * size, (middle + 0.0013) * size
        picture = blend(picture, rgb("#0c0402"), 0.75 * _band(edge, start - 1.2, end + 1.2))
        picture = blend(picture, rgb(BRASS), _band(edge, start, end))
    return picture


def _chequers(square, columns, rows):
    """A board of wooden squares, dark at the top left."""
    pair = [tiles.dark(square), tiles.light(square)]
    return np.concatenate([np.concatenate([pair[(column + row) % 2] for column in range(columns)],
                                          axis=1) for row in range(rows)], axis=0)


def _place(picture, tile, column, row):
    """Puts one square's picture on a board of squares."""
    side = tile.shape[0]
    picture[row * side:(row + 1) * side, column * side:(column + 1) * side] = tile


def scores(square=65, columns=16, rows=12, factor=2):
    """A border of squares with a knight in each corner, around a calm walnut panel."""
    side = square * factor
    picture = _chequers(side, columns, rows)
    knight, visited = tiles.knight(side), tiles.visited(side)
    for column, tile in ((0, knight[:, ::-1]), (columns - 1, knight)):
        for row in (0, rows - 1):
            _place(picture, tile, column, row)
    for column, row in ((2, 0), (5, 0), (10, 0), (13, 0), (0, 3), (0, 8),
                        (15, 3), (15, 8), (2, 11), (5, 11), (10, 11), (13, 11)):
        _place(picture, visited, column, row)
    shape = picture.shape[:2]
    left, top, right, bottom = _axes(shape)
    edge = np.minimum(np.minimum(left, right), np.minimum(top, bottom))
    panel = wood.plank(wood.WALNUT, 73, shape, 1.6)
    panel = panel * 0.80 + panel.mean(axis=(0, 1)) * 0.06
    picture = blend(picture, panel, np.clip(edge - side + 0.5, 0, 1))
    picture = _emboss_knight(picture, Stage(shape, shape[1] / 2 - 4.1 * side,
                                            shape[0] / 2 - 4.2 * side, 8.4 * side))
    for start, end, colour in ((-4, 10, "#1a0c05"), (0, 6, BRASS), (22, 25, "#2a150a")):
        cover = _band(edge, side + start, side + end)
        picture = blend(picture, rgb(colour), cover)
    inside = np.clip(edge - side - 10, 0, None)
    picture = blend(picture, rgb("#0a0402"), 0.45 * np.exp(-inside / 26) * (edge > side + 10))
    return shrink(picture, factor)


def _emboss_knight(picture, stage):
    """Presses the knight's outline into the wood so faintly that text stays readable over it."""
    outlines = knight_outlines()
    body = stage.fill(*outlines)
    picture = blend(picture, rgb("#e0b27c"), 0.10 * body)
    edge = stage.stroke(7, *[closed(corners) for corners in outlines])
    return blend(picture, rgb("#f2cf9d"), 0.16 * edge)


def _homography(quad):
    """The matrix from picture coordinates to the unit square that `quad` shows in perspective."""
    rows, values = [], []
    for (x, y), (u, v) in zip(quad, ((0, 0), (1, 0), (1, 1), (0, 1))):
        rows += [[x, y, 1, 0, 0, 0, -u * x, -u * y], [0, 0, 0, x, y, 1, -v * x, -v * y]]
        values += [u, v]
    return np.append(np.linalg.solve(np.array(rows, float), np.array(values, float)), 1)


def _lay_flat(picture, board, quad):
    """The picture with `board` drawn in perspective between the four corners `quad`, and where."""
    matrix = _homography(quad).reshape(3, 3)
    height, width = picture.shape[:2]
    y, x = np.mgrid[0:height, 0:width] + 0.5
    depth = matrix[2, 0] * x + matrix[2, 1] * y + matrix[2, 2]
    u = (matrix[0, 0] * x + matrix[0, 1] * y + matrix[0, 2]) / depth
    v = (matrix[1, 0] * x + matrix[1, 1] * y + matrix[1, 2]) / depth
    side = board.shape[0]
    inside = (u >= 0) & (u < 1) & (v >= 0) & (v < 1) & (depth > 0)
    column = np.clip((u * side).astype(int), 0, side - 1)
    row = np.clip((v * side).astype(int), 0, side - 1)
    return np.where(inside[..., None], board[row, column], picture), inside


TOUR = ((0, 1), (2, 0), (4, 1), (6, 0), (7, 2), (5, 3), (3, 2), (1, 3), (0, 5), (2, 4), (4, 5))


def _tour_board(square):
    """The framed board that the knight of the About picture has crossed."""
    board = _chequers(square, 8, 8)
    for column, row in TOUR[:-1]:
        _place(board, tiles.visited(square), column, row)
    stage = Stage(board.shape[:2])
    line = [(125 * column + 62.5, 125 * row + 62.5) for column, row in TOUR]
    board = blend(board, rgb("#160a04"), 0.75 * stage.stroke(17, line))
    board = blend(board, rgb("#ffdf92"), stage.stroke(9, line))
    margin = square // 2
    framed = chessboard_frame(board.shape[0] + 2 * margin)
    framed[margin:-margin, margin:-margin] = board
    return framed


def about(width=600, height=450, factor=2):
    """The knight on the board, the line of its tour behind it."""
    shape = (height * factor, width * factor)
    left, top, _, _ = _axes(shape)
    x, y = left / shape[1], top / shape[0]
    glow = np.exp(-(((x - 0.66) / 0.42) ** 2 + ((y - 0.40) / 0.50) ** 2))
    picture = blend(np.zeros(shape + (3,)) + rgb("#120a07"), rgb("#6d3a1c"), 0.85 * glow)
    quad = [(w * shape[1], h * shape[0])
            for w, h in ((0.17, 0.50), (0.93, 0.50), (1.32, 1.16), (-0.36, 1.16))]
    picture, on_board = _lay_flat(picture, _tour_board(192), quad)
    haze = np.clip((y - 0.50) / 0.16, 0, 1)
    picture = blend(picture, rgb("#1d0f08"), on_board * (0.55 * (1 - haze) ** 1.5))
    stage = Stage(shape, 0.44 * shape[1], 0.05 * shape[0], 0.83 * shape[0])
    body = stage.fill(*knight_outlines())
    fallen = shadow(body, 0.83 * shape[0], 0.05) * on_board
    picture = blend(picture, rgb("#000000"), 0.5 * soft_blur(fallen, 8))
    picture = tiles.lay_knight(picture, stage)
    corners = np.sqrt(((x - 0.5) / 0.72) ** 2 + ((y - 0.5) / 0.72) ** 2)
    picture = blend(picture, rgb("#080403"), 0.7 * np.clip(corners - 0.55, 0, 1))
    return shrink(picture, factor)
