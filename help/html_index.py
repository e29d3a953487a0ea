"""The index of the help as HTML: each keyword with links to the topics that have it, under its first letter."""

from html import escape
from itertools import groupby

INDEX_ANCHOR = "index"
_SIGNS = "Signs"


def index_section(topics, link):
    """The section of the page; `link` makes the link to a topic from words and the topic's file name."""
    entries = sorted(_entries(topics).items(), key=lambda entry: (_letter(entry[0]) != _SIGNS, entry[0].lower()))
    groups = [(letter, list(group)) for letter, group in groupby(entries, lambda entry: _letter(entry[0]))]
    letters = " ".join(f'<a href="#{_anchor(letter)}">{letter}</a>' for letter, _ in groups)
    parts = [f'<section id="{INDEX_ANCHOR}" tabindex="-1">\n<h2>Index</h2>\n<p class="letters">{letters}</p>\n']
    for letter, group in groups:
        items = "".join(_item(keyword, found, link) for keyword, found in group)
        parts.append(f'<h3 id="{_anchor(letter)}">{letter}</h3>\n<ul class="index">\n{items}</ul>\n')
    parts.append(f'<p class="browse"><a href="#topic{topics[0].number}">Contents</a></p>\n</section>')
    return "".join(parts)


def _entries(topics):
    entries = {}
    for topic in topics:
        for keyword in topic.keywords:
            entries.setdefault(keyword, []).append(topic)
    return entries


def _letter(keyword):
    return keyword[0].upper() if keyword[0].isalpha() else _SIGNS


def _anchor(letter):
    return f"index-{letter.lower()}"


def _item(keyword, topics, link):
    links = ", ".join(link(topic.title, topic.slug) for topic in topics)
    return f"<li><span>{escape(keyword, quote=False)}</span>: {links}</li>\n"
