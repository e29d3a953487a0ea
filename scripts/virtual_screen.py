"""The virtual screen of scripts/in-wine: its contents and its keyboard."""
import pathlib
import subprocess
import tempfile
import time

PATIENCE = 30
# How many screenshots in a row must be the same, and how far apart.
STILL_LOOKS = 4
BETWEEN_LOOKS = 0.1
# The size of the pointer, which is parked in the last corner of the screen.
POINTER = 64


def screen_size():
    """Width and height of the screen, in pixels."""
    said = subprocess.run(["xdotool", "getdisplaygeometry"], stdout=subprocess.PIPE, text=True, check=True)
    return tuple(map(int, said.stdout.split()))


class Screen:
    """The screen whose frame buffer is in the file."""

    def __init__(self, framebuffer):
        self._file = pathlib.Path(framebuffer)
        self._empty = None

    def remember_as_empty(self):
        """From now on, the present contents of the screen count as empty."""
        self.wait_until_still()
        self._empty = self._file.read_bytes()

    def move_mouse_aside(self):
        """Moves the pointer out of the picture."""
        width, height = screen_size()
        self._do("mousemove", str(width - 1), str(height - 1))

    def press(self, keys):
        self._do("key", "--delay", "60", *keys)

    @staticmethod
    def _do(*words):
        subprocess.run(["xdotool", *words], check=True)

    def wait_until_still(self):
        """Waits until the screen has stopped changing."""
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
        """Saves the part of the screen that is not empty as a PNG."""
        width, height = screen_size()
        without_pointer = ["-crop", "%dx%d+0+0" % (width - POINTER, height - POINTER), "+repage"]
        with tempfile.NamedTemporaryFile() as empty:
            empty.write(self._empty)
            empty.flush()
            changed = self._convert("xwd:" + empty.name, "-compose", "difference", "-composite",
                                    *without_pointer, "-format", "%@", "info:")
        if changed.startswith("0x0"):
            raise RuntimeError("%s: there is nothing on the screen" % picture)
        self._convert("-crop", changed, "+repage", "-depth", "8", "-strip", "PNG24:%s" % picture)

    def _convert(self, *arguments):
        return subprocess.run(["convert", "xwd:%s" % self._file, *arguments], stdout=subprocess.PIPE,
                              text=True, check=True).stdout
