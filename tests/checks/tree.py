"""The files of the source tree, for the checks beside this file."""
import pathlib

ROOT = pathlib.Path(__file__).resolve().parents[2]
NOT_SOURCES = {".git", "__pycache__"}


def files(*suffixes, below=""):
    """The tree's files, sorted: all, or those with one of the suffixes; without what builds leave."""
    found = []
    for path in sorted((ROOT / below).rglob("*")):
        relative = path.relative_to(ROOT)
        built = relative.parts[0] == "build"
        if not built and NOT_SOURCES.isdisjoint(relative.parts) and path.is_file():
            if not suffixes or path.suffix in suffixes:
                found.append(path)
    return found


def name(path):
    """How a complaint calls a file: relative to the root, with forward slashes."""
    return path.relative_to(ROOT).as_posix()


def lines(path):
    return path.read_text(encoding="utf-8").splitlines()
