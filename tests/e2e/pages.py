"""Reading a page of moves back."""

import re
import subprocess
from collections import defaultdict
from pathlib import Path

WORD = re.compile(r'<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="[\d.]+" yMax="[\d.]+">(.*)</word>')
ROWS = 32


def squares_of(game_file):
    """The names of the squares in a saved game."""
    lines = Path(game_file).read_text(encoding="ascii").splitlines()[1:]
    moves = [line.split() for line in lines if not line.startswith("-1")]
    return ["ABCDEFGH"[int(x)] + str(8 - int(y)) for x, y in moves]


def pages(pdf):
    """The words of each page: (text, left edge, top edge)."""
    html = subprocess.run(["pdftotext", "-bbox", str(pdf), "-"], check=True, capture_output=True,
                          text=True).stdout
    return [[(text, float(x), float(y)) for x, y, text in WORD.findall(page)]
            for page in html.split("<page ")[1:]]


def columns_of(words):
    """Numbers and squares of a page by the left edge that they share: {edge: [text, ...]}."""
    columns = defaultdict(list)
    for text, x, _ in sorted(words, key=lambda word: word[2]):
        if re.fullmatch(r"\d+\.|[A-H][1-8]", text):
            columns[round(x)].append(text)
    return [columns[edge] for edge in sorted(columns)]


def expected_columns(squares):
    """Moves 1 to 32 on the left, the rest on the right."""
    numbers = [f"{number}." for number in range(1, len(squares) + 1)]
    return [numbers[:ROWS], squares[:ROWS], numbers[ROWS:], squares[ROWS:]]
