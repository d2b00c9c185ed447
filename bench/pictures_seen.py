"""How many different pictures of the board a search puts on the screen each second, seen from outside.

usage: pictures_seen.py PROGRAM   (the built executable; needs Xvfb, openbox, xdotool)
"""

import mmap
import struct
import sys
import tempfile
import time
import zlib
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "tests" / "e2e"))
from desktop import Desktop, copy_of_program  # noqa: E402

WATCHED_SECONDS = 10
LOOKS_PER_SECOND = 500
SETTINGS = "[Settings]\nShow Solve Warnings=0\nSolve Refresh=1000\n"
COLOR_BYTES = 12


class Screen:
    """The picture that the X server keeps in a file, in the format of xwd."""

    def __init__(self, folder):
        with open(Path(folder) / "Xvfb_screen0", "rb") as file:
            self.memory = mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ)
        header = struct.unpack(">25I", self.memory[:100])
        self.bytes_per_pixel = header[11] // 8
        self.bytes_per_line = header[12]
        self.pixels = header[0] + header[19] * COLOR_BYTES

    def checksum(self, x, y, width, height):
        checksum = 0
        for line in range(y, y + height):
            begin = self.pixels + line * self.bytes_per_line + x * self.bytes_per_pixel
            checksum = zlib.crc32(self.memory[begin:begin + width * self.bytes_per_pixel], checksum)
        return checksum


def start_search(desktop, program):
    """The number of the main window, beside which a search is under way."""
    desktop.start_program(program)
    game = desktop.window("^Gallopade Nova: ")
    desktop.focus(game)
    desktop.press("alt+f", "l")
    desktop.focus(desktop.window("^Solve$"))
    desktop.press("alt+s")
    return game


def changes_per_second(screen, area):
    changes = 0
    last = screen.checksum(*area)
    begun = time.monotonic()
    while time.monotonic() < begun + WATCHED_SECONDS:
        time.sleep(1 / LOOKS_PER_SECOND)
        picture = screen.checksum(*area)
        changes += picture != last
        last = picture
    return changes / (time.monotonic() - begun)


def main():
    program = Path(sys.argv[1]).resolve()
    with tempfile.TemporaryDirectory() as folder:
        copy = copy_of_program(program.parent, folder)
        (copy / "GallopadeNova.ini").write_text(SETTINGS)
        with Desktop(x_server_options=["-fbdir", folder]) as desktop:
            area = desktop.geometry(start_search(desktop, copy / program.name))
            time.sleep(1)
            print(f"{changes_per_second(Screen(folder), area):.1f} different pictures a second")


if __name__ == "__main__":
    main()
