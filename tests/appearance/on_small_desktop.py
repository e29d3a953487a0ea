"""Runs a test program on a desktop of Wine's that is as small as the screen of a small laptop:

    on_small_desktop.py WINE PROGRAM [ARGUMENT...]

Wine's explorer, which opens that desktop, passes on neither the output of the program nor its exit code. So the output
takes the way through a file; whether all passed is to be read from it.
"""
import pathlib
import subprocess
import sys

# Wine makes a desktop only of a size that the screen of scripts/in-wine can have.
DESKTOP = "/desktop=small,1280x720"


def main(wine, program, *arguments):
    path = pathlib.Path(program)
    log = path.with_suffix(".log")
    log.unlink(missing_ok=True)
    line = " ".join([path.name, *arguments, ">", log.name, "2>&1"])
    subprocess.run([wine, "explorer", DESKTOP, "cmd", "/c", line], cwd=path.parent, check=False)
    print(log.read_text(encoding="utf-8", errors="replace") if log.exists() else "The program did not start")


if __name__ == "__main__":
    main(*sys.argv[1:])
