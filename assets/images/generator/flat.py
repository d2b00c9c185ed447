"""The squares of the looks in plain colours."""

import numpy as np

from .colours import blend, rgb
from .outlines import (KNIGHT_EYE, KNIGHT_LINES, KNIGHT_NOSTRIL, Stage, closed, horseshoe,
                       horseshoe_nails, knight_outlines, points)


def ground(colour, size):
    """A square of one colour."""
    return np.zeros((size, size, 3)) + rgb(colour)


def lay_horseshoe(picture, colour, inset):
    """Draws a flat horseshoe with nail holes in the ground colour."""
    size = picture.shape[0]
    stage = Stage((size, size), inset * size, (inset + 0.01) * size, (1 - 2 * inset) * size)
    holes = stage.stroke(44, *[[nail] for nail in horseshoe_nails()])
    return blend(picture, rgb(colour), stage.fill(horseshoe()) * (1 - holes))


def lay_knight(picture, piece, edge, details, inset=0.065):
    """Draws the flat knight."""
    size = picture.shape[0]
    stage = Stage((size, size), inset * size, (inset - 0.012) * size, (1 - 2 * inset) * size)
    outlines = knight_outlines()
    rim = stage.stroke(26, *[closed(corners) for corners in outlines])
    picture = blend(picture, rgb(piece), stage.fill(*outlines))
    picture = blend(picture, rgb(edge), rim)
    inner = np.maximum(stage.stroke(13, *[points(path) for path in KNIGHT_LINES]),
                       stage.fill(points(KNIGHT_EYE), points(KNIGHT_NOSTRIL)))
    return blend(picture, rgb(details), inner * (1 - rim))


def lay_frame(picture, start, end, colour):
    """Draws a square ring between two distances (parts of the side) from the edge."""
    size = picture.shape[0]
    axis = (np.arange(size) + 0.5) / size
    nearest = np.minimum(axis, 1 - axis)
    edge = np.minimum(nearest[:, None], nearest[None, :]) * size
    cover = np.clip(edge - start * size + 0.5, 0, 1) * np.clip(end * size - edge + 0.5, 0, 1)
    return blend(picture, rgb(colour), cover)


def lay_lozenge(picture, reach, colour):
    """Draws a lozenge in the middle; `reach` is its half diagonal as a part of the side."""
    size = picture.shape[0]
    stage = Stage((size, size))
    r = 1000 * reach
    corners = [(500, 500 - r), (500 + r, 500), (500, 500 + r), (500 - r, 500)]
    return blend(picture, rgb(colour), stage.fill(corners))


def background(look, size=512):
    """The frame around a flat board: one colour and one line."""
    picture = ground(look.background, size)
    return lay_frame(picture, 0.0085, 0.0115, look.frame_line)


def plain_squares(look, size=256):
    """The five squares of the tournament and night looks, by name."""
    frame = lay_frame(ground(look.highlight, size), 0.0, 0.125, look.highlight_edge)
    frame = lay_frame(frame, 0.025, 0.095, look.highlight_frame)
    visited = lay_frame(ground(look.visited, size), 0.0, 0.012, look.visited_edge)
    return {
        "Light": ground(look.light, size),
        "Dark": ground(look.dark, size),
        "Visited": lay_horseshoe(visited, look.visited_mark, 0.10),
        "Knight": lay_knight(ground(look.knight, size), look.piece, look.piece_edge,
                             look.piece_edge),
        "Highlight": frame,
    }


def contrast_squares(look, size=256):
    """The five squares of the high-contrast look: three tones, told apart by large shapes."""
    squares = plain_squares(look, size)
    visited = lay_frame(ground(look.visited, size), 0.0, 0.012, look.visited_edge)
    squares["Visited"] = lay_horseshoe(visited, look.visited_mark, 0.05)
    knight = lay_frame(ground(look.knight, size), 0.0, 0.055, look.piece_edge)
    squares["Knight"] = lay_knight(knight, look.piece, look.piece_edge, look.knight, 0.09)
    highlight = lay_frame(ground(look.visited, size), 0.055, 0.20, look.highlight_frame)
    squares["Highlight"] = lay_lozenge(highlight, 0.26, look.highlight_frame)
    return squares


def inlay_squares(look, size=56):
    """The five small inlays that stand in the middle of plain squares."""
    def lozenges(colour, *rings):
        picture = ground(colour, size)
        for reach, tone in rings:
            picture = lay_lozenge(picture, reach, tone)
        return picture

    return {
        "Light": lozenges(look.light, (0.40, look.dark), (0.36, look.light), (0.16, look.dark)),
        "Dark": lozenges(look.dark, (0.40, look.light), (0.36, look.dark), (0.16, look.light)),
        "Visited": lay_horseshoe(ground(look.visited, size), look.visited_mark, 0.0),
        "Knight": lay_knight(ground(look.knight, size), look.piece, look.piece_edge,
                             look.piece_edge, 0.0),
        "Highlight": lozenges(look.highlight, (0.50, look.highlight_edge),
                              (0.44, look.highlight_frame), (0.30, look.highlight_edge),
                              (0.24, look.highlight)),
    }
