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

from html_writer import anchor, write_blocks  # noqa: E402
from topic_source import Heading, load_topics  # noqa: E402

PLACEHOLDER_ADDRESS = "https://example.com/tallyrex"
START, TOUR, KEYBOARD = "five-minutes", "desk-calculator", "keyboard"
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
    """{slug: (address in the help, HTML)} of the help's topics that the page shows or leads to."""
    loaded = load_topics(ROOT / "help" / "topics")
    return {topic.slug: (HELP + "#" + anchor(topic), write_blocks(loaded, without_introduction(topic), HELP))
            for topic in loaded if topic.slug in (START, TOUR, KEYBOARD)}


def without_introduction(topic):
    """The keyboard without what it says of the page that it is on in the help."""
    if topic.slug != KEYBOARD:
        return topic
    first = next(place for place, block in enumerate(topic.blocks) if isinstance(block, Heading))
    return dataclasses.replace(topic, blocks=topic.blocks[first:])


def page(address):
    """The whole page as text."""
    shown = topics()
    number = version()
    folder = "%s/releases/download/v%s" % (address.rstrip("/"), number)
    return text_of("docs/page.html.in").format(
        style=text_of("help/base.css") + text_of("docs/page.css"), introduction=introduction(), features=features(),
        version=number, setup="%s/Tallyrex-%s-setup.exe" % (folder, number),
        archive="%s/Tallyrex-%s-portable.zip" % (folder, number), sums=folder + "/SHA256SUMS", address=address,
        main_window=picture("main-window", "The main window: keys and entry box on the left, the tape on the right"),
        loan=picture("annuity-loan", "The financial calculator with a loan"), help=HELP, start=shown[START][0],
        tour=shown[TOUR][1], keyboard_address=shown[KEYBOARD][0], keyboard=shown[KEYBOARD][1], changes=changes())


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("--address", default=PLACEHOLDER_ADDRESS)
    parser.add_argument("--output", type=pathlib.Path, default=ROOT / "docs" / "index.html")
    options = parser.parse_args()
    options.output.write_text(page(options.address), encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
