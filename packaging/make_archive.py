"""Makes an archive whose bytes depend on nothing but what is in it.

usage: make_archive.py ARCHIVE.zip NAME=FILE...
"""
import pathlib
import sys
import zipfile

# The oldest date that the format knows: that of the files would differ from build to build.
DATE = (1980, 1, 1, 0, 0, 0)
MADE_ON_WINDOWS = 0


def make_archive(target, files):
    """Writes `files`, pairs of a name in the archive and a path, into the archive `target`."""
    with zipfile.ZipFile(target, "w") as archive:
        for name, path in files:
            entry = zipfile.ZipInfo(name, DATE)
            entry.create_system = MADE_ON_WINDOWS
            entry.compress_type = zipfile.ZIP_DEFLATED
            archive.writestr(entry, pathlib.Path(path).read_bytes(), compresslevel=9)


def main(arguments):
    if len(arguments) < 2:
        print(__doc__.strip(), file=sys.stderr)
        return 2
    make_archive(arguments[0], [argument.split("=", 1) for argument in arguments[1:]])
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
