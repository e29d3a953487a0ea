#!/usr/bin/env python3
"""Builds docs/index.html, the page for users, from the README, the help, the change log and the pictures.

    docs/build_page.py [--address https://github.com/OWNER/tallyrex] [--output FILE]

The page is one file that loads nothing from elsewhere. The address is that of the project, below which the
packages are published.
"""
import argparse
import base64
import dataclasses
import html
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "help"))
sys.dont_write_bytecode = True

from html_writer import write_blocks  # noqa: E402
from topic_source import Picture, load_topics  # noqa: E402

PLACEHOLDER_ADDRESS = "https://example.com/tallyrex"
TOUR, KEYBOARD = "five-minutes", "keyboard"
HELP = "help/Tallyrex.html"


def text_of(path):
    return (ROOT / path).read_text(encoding="utf-8")


def version():
    return re.search(r"project\(Tallyrex VERSION (\S+)", text_of("CMakeLists.txt"))[1]


def inline(text):
    """A line of Markdown as HTML: code, bold words, and links, of which only the words stay."""
    text = html.escape(text, quote=False)
    text = re.sub(r"`([^`]+)`", r"<code>\1</code>", text)
    text = re.sub(r"\*\*([^*]+)\*\*", r"<b>\1</b>", text)
    # What the README points at is in the sources, not beside the page.
    text = re.sub(r" For how exact .*?\[[^\]]+\]\([^)]+\)\.", "", text)
    return re.sub(r"\[([^\]]+)\]\([^)]+\)", r"\1", text)


def items(markdown):
    """The items of the lists in a Markdown text, each on one line."""
    found = []
    for line in markdown.splitlines():
        if line.startswith("- "):
            found.append(line[2:])
        elif line.startswith("  ") and found:
            found[-1] += " " + line.strip()
    return found


def as_list(markdown):
    return "<ul>\n%s</ul>\n" % "".join("<li>%s</li>\n" % inline(item) for item in items(markdown))


def introduction():
    """The first paragraph of the README."""
    return inline(" ".join(text_of("README.md").split("\n\n")[1].split("\n")))


def features():
    return as_list(text_of("README.md").partition("What it does:\n")[2].partition("\n## ")[0])


def changes():
    """The section of this version in the change log; what is not released yet is not in it."""
    return as_list(re.split(r"^## ", text_of("CHANGELOG.md").partition("\n## %s\n" % version())[2], flags=re.M)[0])


def picture(name, words):
    data = base64.b64encode((ROOT / "docs" / "pictures" / (name + ".png")).read_bytes()).decode("ascii")
    return '<img alt="%s" src="data:image/png;base64,%s">' % (html.escape(words), data)


def topics():
    """{slug: HTML} of the help's topics that the page shows; links to other topics lead into the help."""
    loaded = load_topics(ROOT / "help" / "topics")
    shown = {topic.slug: topic for topic in loaded if topic.slug in (TOUR, KEYBOARD)}
    # The page has the picture already, at its top.
    tour = [block for block in shown[TOUR].blocks if not isinstance(block, Picture)]
    shown[TOUR] = dataclasses.replace(shown[TOUR], blocks=tour)
    return {slug: write_blocks(loaded, topic, HELP) for slug, topic in shown.items()}


def page(address):
    """The whole page as text."""
    shown = topics()
    number = version()
    folder = "%s/releases/download/v%s" % (address.rstrip("/"), number)
    return text_of("docs/page.html.in").format(
        style=text_of("help/base.css") + text_of("docs/page.css"), introduction=introduction(), features=features(), version=number,
        setup="%s/Tallyrex-%s-setup.exe" % (folder, number), archive="%s/Tallyrex-%s-portable.zip" % (folder, number),
        sums=folder + "/SHA256SUMS", address=address,
        main_window=picture("main-window", "The main window: keys and entry box on the left, the tape on the right"),
        loan=picture("annuity-loan", "The financial calculator with a loan"),
        tour=shown[TOUR], keyboard=shown[KEYBOARD], changes=changes())


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("--address", default=PLACEHOLDER_ADDRESS)
    parser.add_argument("--output", type=pathlib.Path, default=ROOT / "docs" / "index.html")
    options = parser.parse_args()
    options.output.write_text(page(options.address), encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
