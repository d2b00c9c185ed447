"""The looks that are shipped: their colours, and the chessboard file of each."""

from dataclasses import dataclass


@dataclass(frozen=True)
class Look:
    """One look; marks are drawn over the ground colour of their square."""

    name: str
    prefix: str
    light: str
    dark: str
    visited: str
    knight: str
    highlight: str
    background: str
    visited_mark: str = ""
    visited_edge: str = ""
    piece: str = ""
    piece_edge: str = ""
    highlight_frame: str = ""
    highlight_edge: str = ""
    frame_line: str = ""
    background_image: str = ""
    centred: bool = False
    borders: bool = False
    frame_twips: int = 240


WOOD = Look("Wood", "Wood", light="#e2bd84", dark="#7c4b27", visited="#2b1c13", knight="#82301c",
            highlight="#ffc94d", background="#2e150d")
TOURNAMENT = Look("Tournament", "Tournament", light="#f0e4c3", dark="#4c7f5c", visited="#1f3529",
                  knight="#8f2f24", highlight="#ffd75e", background="#2a3b31",
                  visited_mark="#e3cf97", visited_edge="#37533f", piece="#fbf5e4",
                  piece_edge="#24100c",
                  highlight_frame="#fff7d6", highlight_edge="#5d3a00", frame_line="#e3cf97")
CONTRAST = Look("High Contrast", "Contrast", light="#ffffff", dark="#2e6fb0", visited="#000000",
                knight="#ffe600", highlight="#ff8a00", background="#000000",
                visited_mark="#ffffff", visited_edge="#8c8c8c", piece="#000000",
                piece_edge="#000000",
                highlight_frame="#ffe600", highlight_edge="#000000", frame_line="#ffffff")
NIGHT = Look("Night", "Night", light="#5f7093", dark="#2b3448", visited="#0f131c",
             knight="#3f2f6b", highlight="#94661c", background="#0b0e15",
             visited_mark="#6fc3b6", visited_edge="#242c3d", piece="#e9e6f5", piece_edge="#120d22",
             highlight_frame="#ffcf6b", highlight_edge="#1c1204", frame_line="#3d4a66")
INLAY = Look("Inlay", "Inlay", light="#e6cb99", dark="#8a5630", visited="#2e1e15",
             knight="#7a2b1c", highlight="#f5bb3d", background="#2e150d",
             visited_mark="#dcb05a", piece="#f6eacd", piece_edge="#230f08",
             highlight_frame="#fff4c8", highlight_edge="#4a2503", frame_line="#c99a45",
             background_image="Wood Chessboard.gif", centred=True, borders=True, frame_twips=360)

LOOKS = (WOOD, TOURNAMENT, CONTRAST, NIGHT, INLAY)


def stored_colour(text):
    """The colour as settings files keep it: decimal, red in the low byte."""
    red, green, blue = (int(text[i:i + 2], 16) for i in (1, 3, 5))
    return str(red + green * 256 + blue * 65536)


def chessboard_text(look):
    """The chessboard file of a look."""
    background = look.background_image or f"{look.prefix} Chessboard.gif"
    chessboard = (
        ("Light Color", stored_colour(look.light)),
        ("Dark Color", stored_colour(look.dark)),
        ("Visited Color", stored_colour(look.visited)),
        ("Knight Color", stored_colour(look.knight)),
        ("Light Image", f"{look.prefix} Light.gif"),
        ("Dark Image", f"{look.prefix} Dark.gif"),
        ("Visited Image", f"{look.prefix} Visited.gif"),
        ("Knight Image", f"{look.prefix} Knight.gif"),
        ("Use Images", "1"),
        ("Image Positioning", "1" if look.centred else "0"),
        ("Use Borders", "1" if look.borders else "0"),
        ("Chessboard Background Color", stored_colour(look.background)),
        ("Chessboard Background Image", background),
        ("Corner Distance", str(look.frame_twips)),
    )
    highlight = (
        ("Highlight Color", stored_colour(look.highlight)),
        ("Highlight Image", f"{look.prefix} Highlight.gif"),
    )
    lines = ["[Chessboard]"] + [f"{key}={value}" for key, value in chessboard]
    lines += ["[Highlight]"] + [f"{key}={value}" for key, value in highlight]
    return "".join(line + "\r\n" for line in lines)
