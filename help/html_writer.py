"""Writes the same topics as one HTML page that needs no other file, with an index and a search box."""

import struct
from base64 import b64encode
from html import escape
from pathlib import Path

from html_index import INDEX_ANCHOR, index_section
from tape_sample import tape_lines
from topic_checks import PICTURES
from topic_source import (
    BOLD,
    CODE,
    LINK,
    SHEET,
    ContentsList,
    Heading,
    ListBlock,
    Note,
    Paragraph,
    Picture,
    Sample,
    Span,
    Table,
)

_STYLE_FILES = ("base.css", "style.css")
_SCRIPT_FILES = ("search.js", "search_box.js")
# Whatever is written into a topic, the page loads nothing.
_POLICY = "default-src 'none'; style-src 'unsafe-inline'; script-src 'unsafe-inline'; img-src data:"
_TAGS = {BOLD: "b", CODE: "code"}


def anchor(topic):
    """The name after the # by which a topic is opened."""
    return f"topic{topic.number}"


def write_html(title, topics):
    """The text of the page; `topics` in their order, the contents first."""
    return _PageWriter(title, topics).page()


def write_redirect(page_name, topic):
    """A page that leads on to one topic: Windows drops what follows the # when it opens a local page."""
    target = f"{page_name}#{anchor(topic)}"
    return (
        '<!DOCTYPE html>\n<html lang="en">\n<meta charset="utf-8">\n'
        f'<meta http-equiv="refresh" content="0; url={target}">\n'
        f"<title>{escape(topic.title)}</title>\n"
        f'<p><a href="{target}">{escape(topic.title)}</a></p>\n</html>\n'
    )


def write_blocks(topics, topic, page_name):
    """What `topic` says, for another page; its links lead into the page of the help."""
    writer = _PageWriter("", topics, page_name)
    return writer._body(topic)


def _texts_of(names):
    return "".join(Path(__file__).with_name(name).read_text(encoding="utf-8") for name in names)


def _tape(lines):
    """A sample of the tape; each line has a class for its look."""
    set_lines = (
        f'<span class="{line.look}">{line.blanks}<span>{escape(line.amount, quote=False)}</span>{line.mark}</span>'
        for line in tape_lines(lines)
    )
    return '<pre class="tape">\n' + "\n".join(set_lines) + "\n</pre>\n"


class _PageWriter:
    def __init__(self, title, topics, page_name=""):
        self._page_name = page_name
        self._title = title
        self._topics = topics
        self._by_slug = {topic.slug: topic for topic in topics}

    def page(self):
        sections = "\n".join(self._section(place) for place in range(len(self._topics)))
        return (
            '<!DOCTYPE html>\n<html lang="en">\n<head>\n<meta charset="utf-8">\n'
            '<meta name="viewport" content="width=device-width, initial-scale=1">\n'
            '<meta name="color-scheme" content="light dark">\n'
            f'<meta http-equiv="Content-Security-Policy" content="{_POLICY}">\n'
            f"<title>{escape(self._title)}</title>\n<style>\n{_texts_of(_STYLE_FILES)}</style>\n</head>\n<body>\n"
            f"{self._side()}<main>\n{sections}\n{index_section(self._topics, self._link)}\n</main>\n"
            f"<script>\n{_texts_of(_SCRIPT_FILES)}</script>\n</body>\n</html>\n"
        )

    def _side(self):
        """The search box, which is shown by the script that answers it, above the contents."""
        return (
            f'<aside class="side">\n<p class="title"><a href="#{anchor(self._topics[0])}">{escape(self._title)}</a> '
            f'<a href="#{INDEX_ANCHOR}">Index</a></p>\n'
            '<form role="search" hidden><label class="hidden" for="search">Search the help</label>'
            '<input type="search" id="search" placeholder="Search ( / )" autocomplete="off" spellcheck="false"></form>\n'
            '<p class="hidden" role="status"></p>\n<div class="found"></div>\n'
            f'<nav aria-label="Contents">\n{self._contents(self._topics[0])}</nav>\n</aside>\n'
        )

    def _section(self, place):
        topic = self._topics[place]
        level = 1 if place == 0 else 2
        # A link gives the keys to the section that it leads to: the next Tab or Page Down is one in it.
        parts = [f'<section class="topic" id="{anchor(topic)}" tabindex="-1">\n']
        if place > 0:
            parts.append(f'<p class="chapter">{escape(topic.chapter)}</p>\n')
        parts.append(f"<h{level}>{escape(topic.title)}</h{level}>\n")
        parts += [f'<blockquote class="message">{escape(message)}</blockquote>\n' for message in topic.messages]
        parts.append(self._body(topic))
        if topic.see:
            links = ", ".join(self._link(self._by_slug[slug].title, slug) for slug in topic.see)
            parts.append(f'<p class="see">See also: {links}</p>\n')
        parts.append(self._browse(place))
        parts.append("</section>")
        return "".join(parts)

    def _browse(self, place):
        links = []
        if place > 0:
            links.append(f'<a href="#{anchor(self._topics[place - 1])}" title="Topic before">&lsaquo;&lsaquo;</a>')
            links.append(f'<a href="#{anchor(self._topics[0])}">Contents</a>')
        links.append(f'<a href="#{INDEX_ANCHOR}">Index</a>')
        if place + 1 < len(self._topics):
            links.append(f'<a href="#{anchor(self._topics[place + 1])}" title="Next topic">&rsaquo;&rsaquo;</a>')
        return f'<p class="browse">{" ".join(links)}</p>\n'

    def _body(self, topic):
        if topic.layout != SHEET:
            return "".join(self._block(topic, block) for block in topic.blocks)
        parts = [[]]
        for block in topic.blocks:
            if isinstance(block, Heading):
                parts.append([])
            parts[-1].append(self._block(topic, block))
        introduction, *columns = ("".join(part) for part in parts)
        columns = "".join(f'<div class="part">\n{column}</div>\n' for column in columns)
        return f'{introduction}<div class="sheet">\n{columns}</div>\n'

    def _block(self, topic, block):
        if isinstance(block, Heading):
            return f"<h3>{self._inline(block.spans)}</h3>\n"
        if isinstance(block, Paragraph):
            return f"<p>{self._inline(block.spans)}</p>\n"
        if isinstance(block, Note):
            return f'<p class="note">{self._inline(block.spans)}</p>\n'
        if isinstance(block, Sample):
            return _tape(block.lines)
        if isinstance(block, Picture):
            return self._picture(block)
        if isinstance(block, Table):
            return self._table(block.rows)
        if isinstance(block, ListBlock):
            tag = "ol" if block.ordered else "ul"
            items = "".join(f"<li>{self._inline(item)}</li>\n" for item in block.items)
            return f"<{tag}>\n{items}</{tag}>\n"
        assert isinstance(block, ContentsList)
        return f'<div class="contents">\n{self._contents(topic)}</div>\n'

    @staticmethod
    def _picture(picture):
        data = (PICTURES / f"{picture.name}.png").read_bytes()
        # A PNG begins with its signature and the head of its first part; then come the two sizes.
        width, height = struct.unpack(">II", data[16:24])
        return (
            f'<p><img alt="{escape(picture.words)}" width="{width}" height="{height}" '
            f'src="data:image/png;base64,{b64encode(data).decode("ascii")}"></p>\n'
        )

    def _table(self, rows):
        head = "".join(f"<th>{self._inline(cell)}</th>" for cell in rows[0])
        body = "".join(
            "<tr>" + "".join(f"<td>{self._inline(cell)}</td>" for cell in row) + "</tr>\n" for row in rows[1:]
        )
        return f'<div class="table"><table>\n<tr>{head}</tr>\n{body}</table></div>\n'

    def _contents(self, contents):
        parts, chapter = [], None
        for topic in self._topics:
            if topic is contents:
                continue
            if topic.chapter != chapter:
                parts.append("</ul>\n" if chapter else "")
                chapter = topic.chapter
                parts.append(f"<h3>{escape(chapter)}</h3>\n<ul>\n")
            parts.append(f"<li>{self._link(topic.title, topic.slug)}</li>\n")
        return "".join(parts) + "</ul>\n"

    def _inline(self, spans):
        return "".join(self._span(span) for span in spans)

    def _span(self, span: Span):
        if span.style == LINK:
            return self._link(span.text, span.target)
        words = escape(span.text, quote=False)
        tag = _TAGS.get(span.style)
        return f"<{tag}>{words}</{tag}>" if tag else words

    def _link(self, words, slug):
        target = f"{self._page_name}#{anchor(self._by_slug[slug])}"
        return f'<a href="{target}">{escape(words, quote=False)}</a>'
