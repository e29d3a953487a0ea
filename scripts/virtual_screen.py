"""The virtual screen that a command has beside scripts/in-wine: what is on it, and its keys."""
import pathlib
import subprocess
import time

from screenshot import png, read_pixels

PATIENCE = 30
# How many screenshots in a row must be the same, and how far apart.
STILL_LOOKS = 4
BETWEEN_LOOKS = 0.1
# The pointer, parked in the last corner of the screen, reaches so far from there.
POINTER = 64


def first_difference(one, other):
    """The place of the first byte in which two rows differ; None for equal rows."""
    if one == other:
        return None
    low, high = 0, len(one)
    while high - low > 1:
        middle = (low + high) // 2
        if one[low:middle] != other[low:middle]:
            high = middle
        else:
            low = middle
    return low


class Screen:
    """The screen whose picture lies in the file."""

    def __init__(self, framebuffer):
        self._file = pathlib.Path(framebuffer)
        self._empty = None

    def remember_as_empty(self):
        """What is on the screen from now on counts as nothing."""
        self.wait_until_still()
        self._empty = self._file.read_bytes()

    def move_mouse_aside(self):
        """The pointer would be in the picture, and hot what is under it."""
        width, height, _ = read_pixels(self._file.read_bytes())
        self._do("mousemove", str(width - 1), str(height - 1))

    def press(self, keys):
        self._do("key", "--delay", "60", *keys)

    @staticmethod
    def _do(*words):
        subprocess.run(["xdotool", *words], check=True)

    def wait_until_still(self):
        """Returns when what is seen has stopped changing."""
        before, looks = b"", 0
        until = time.monotonic() + PATIENCE
        while looks < STILL_LOOKS:
            if time.monotonic() > until:
                raise RuntimeError("the screen does not come to rest")
            time.sleep(BETWEEN_LOOKS)
            now = self._file.read_bytes()
            looks = looks + 1 if now == before else 0
            before = now

    def save(self, picture):
        """Saves the part of the screen on which there is anything, as a PNG."""
        width, height, row = read_pixels(self._file.read_bytes())
        _, _, empty = read_pixels(self._empty)
        rows = {}
        for y in range(height - POINTER):
            now, nothing = (line[:3 * (width - POINTER)] for line in (row(y), empty(y)))
            if now != nothing:
                rows[y] = (now, first_difference(now, nothing),
                           len(now) - 1 - first_difference(now[::-1], nothing[::-1]))
        if not rows:
            raise RuntimeError("%s: there is nothing on the screen" % picture)
        left = min(first for _, first, _ in rows.values()) // 3
        right = max(last for _, _, last in rows.values()) // 3 + 1
        seen = [row(y)[3 * left:3 * right] for y in range(min(rows), max(rows) + 1)]
        picture.write_bytes(png(right - left, seen))
