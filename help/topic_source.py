"""Reads the help's topics: one text file a topic, with a small header and a Markdown-like body.

The body knows headings (## ), paragraphs, lists (- and 1. ), tables (| a | b |), notes (> ), samples
between ``` lines, pictures (![what it shows](name)), and a line {contents} that stands for the list of all
topics. Inside a line there are **bold** words, `figures as the tape prints them` and [links](file-name-of-a-topic).
"""

import re
from dataclasses import dataclass, field
from pathlib import Path

PLAIN, BOLD, CODE, LINK = "plain", "bold", "code", "link"


class HelpError(Exception):
    """What is wrong with the topics, in words for the one who edits them."""


@dataclass(frozen=True)
class Span:
    """A run of text in one style; a link also names its target."""

    text: str
    style: str = PLAIN
    target: str = ""


@dataclass(frozen=True)
class Heading:
    spans: tuple


@dataclass(frozen=True)
class Paragraph:
    spans: tuple


@dataclass(frozen=True)
class Note:
    spans: tuple


@dataclass(frozen=True)
class ListBlock:
    """Items in their order; `ordered` ones are numbered from 1."""

    items: tuple
    ordered: bool


@dataclass(frozen=True)
class Table:
    """Rows of cells, a cell being a tuple of spans; the first row is the heading."""

    rows: tuple


@dataclass(frozen=True)
class Sample:
    """Lines shown as they stand, in a fixed pitch."""

    lines: tuple


@dataclass(frozen=True)
class Picture:
    """A picture of docs/pictures, and the words for who does not see it."""

    name: str
    words: str


@dataclass(frozen=True)
class ContentsList:
    """The place where the list of all topics goes."""


@dataclass
class Topic:
    """One topic: what its header says, and its blocks."""

    slug: str
    number: int
    title: str
    chapter: str
    keywords: list = field(default_factory=list)
    messages: list = field(default_factory=list)
    see: list = field(default_factory=list)
    layout: str = ""
    blocks: list = field(default_factory=list)


_INLINE = re.compile(r"`([^`]+)`|\*\*(.+?)\*\*|\[([^\]]+)\]\(([a-z0-9-]+)\)")
_PICTURE = re.compile(r"!\[([^\]]+)\]\(([a-z0-9-]+)\)")
_ORDERED = re.compile(r"\d+\. +(.*)")
_HEADER_LINE = re.compile(r"([a-z]+): *(.*)")
_HEADER_KEYS = {"number", "title", "chapter", "keywords", "message", "see", "layout"}
# Parts that stand beside each other, so that all is on one screen and on one sheet of paper.
SHEET = "sheet"


def parse_inline(text):
    """The spans of one run of text."""
    spans, at = [], 0
    for match in _INLINE.finditer(text):
        if match.start() > at:
            spans.append(Span(text[at : match.start()]))
        code, bold, link, target = match.groups()
        if code is not None:
            spans.append(Span(code, CODE))
        elif bold is not None:
            spans.append(Span(bold, BOLD))
        else:
            spans.append(Span(link, LINK, target))
        at = match.end()
    if at < len(text):
        spans.append(Span(text[at:]))
    return tuple(spans)


def parse_topic(slug, text):
    """The topic that a file's text describes."""
    lines = text.split("\n")
    if lines[0] != "---" or "---" not in lines[1:]:
        raise HelpError(f"{slug}: the file must begin with a header between two --- lines")
    end = lines.index("---", 1)
    header = _parse_header(slug, lines[1:end])
    try:
        topic = Topic(slug, int(header["number"][0]), header["title"][0], header["chapter"][0])
    except (KeyError, ValueError) as error:
        raise HelpError(f"{slug}: number, title or chapter is missing or wrong ({error})") from error
    topic.keywords = _names(header.get("keywords", []))
    topic.messages = header.get("message", [])
    topic.see = _names(header.get("see", []))
    topic.layout = " ".join(header.get("layout", []))
    if topic.layout not in ("", SHEET):
        raise HelpError(f"{slug}: unknown layout '{topic.layout}'")
    topic.blocks = _BodyParser(slug, lines[end + 1 :]).parse()
    return topic


def load_topics(folder):
    """All topics of a folder in the order of their numbers."""
    topics = [
        parse_topic(path.stem, path.read_text(encoding="utf-8"))
        for path in sorted(Path(folder).glob("*.md"))
    ]
    # A chapter stands where its first topic does, whenever its others were added.
    first = {}
    for topic in sorted(topics, key=lambda topic: topic.number):
        first.setdefault(topic.chapter, topic.number)
    return sorted(topics, key=lambda topic: (first[topic.chapter], topic.number))


def _names(values):
    return [name.strip() for value in values for name in value.split(",") if name.strip()]


def _parse_header(slug, lines):
    header, key = {}, None
    for line in lines:
        match = _HEADER_LINE.fullmatch(line)
        if match:
            key = match.group(1)
            if key not in _HEADER_KEYS:
                raise HelpError(f"{slug}: unknown header line '{line}'")
            header.setdefault(key, []).append(match.group(2))
        elif key and line.startswith(" "):
            header[key][-1] += " " + line.strip()
        else:
            raise HelpError(f"{slug}: a header line is neither 'name: text' nor indented: '{line}'")
    return header


class _BodyParser:
    """Takes the lines of a body one block at a time."""

    def __init__(self, slug, lines):
        self._slug = slug
        self._lines = lines
        self._at = 0

    def parse(self):
        blocks = []
        while self._at < len(self._lines):
            line = self._lines[self._at]
            if not line.strip():
                self._at += 1
            else:
                blocks.append(self._block(line))
        return blocks

    def _block(self, line):
        if line.startswith("```"):
            return self._sample()
        if line.startswith("## "):
            self._at += 1
            return Heading(parse_inline(line[3:]))
        if line == "{contents}":
            self._at += 1
            return ContentsList()
        if line.startswith("!"):
            return self._picture(line)
        if line.startswith("|"):
            return self._table()
        if line.startswith("- "):
            return self._list(lambda item: item[2:] if item.startswith("- ") else None, False)
        if _ORDERED.fullmatch(line):
            return self._list(_ordered_item, True)
        if line.startswith(">"):
            return Note(parse_inline(" ".join(part.lstrip("> ") for part in self._run())))
        if line.startswith("#"):
            raise HelpError(f"{self._slug}: only '## ' headings are known: '{line}'")
        return Paragraph(parse_inline(" ".join(part.strip() for part in self._run())))

    def _run(self):
        """The lines up to the next blank one."""
        start = self._at
        while self._at < len(self._lines) and self._lines[self._at].strip():
            self._at += 1
        return self._lines[start : self._at]

    def _sample(self):
        try:
            end = self._lines.index("```", self._at + 1)
        except ValueError:
            raise HelpError(f"{self._slug}: a sample has no closing ```") from None
        lines = self._lines[self._at + 1 : end]
        self._at = end + 1
        return Sample(tuple(lines))

    def _picture(self, line):
        match = _PICTURE.fullmatch(line)
        if not match:
            raise HelpError(f"{self._slug}: a picture is ![what it shows](name), not '{line}'")
        self._at += 1
        return Picture(match.group(2), match.group(1))

    def _table(self):
        rows = []
        for line in self._run():
            cells = [cell.strip() for cell in line.strip().strip("|").split("|")]
            if not all(re.fullmatch(r":?-+:?", cell) for cell in cells):
                rows.append(tuple(parse_inline(cell) for cell in cells))
        if len({len(row) for row in rows}) != 1:
            raise HelpError(f"{self._slug}: the rows of a table differ in their number of cells")
        return Table(tuple(rows))

    def _list(self, item_text, ordered):
        items = []
        for line in self._run():
            text = item_text(line)
            if text is not None:
                items.append(text)
            elif line.startswith("  "):
                items[-1] += " " + line.strip()
            else:
                raise HelpError(f"{self._slug}: a line in a list is neither an item nor indented: '{line}'")
        return ListBlock(tuple(parse_inline(item) for item in items), ordered)


def _ordered_item(line):
    match = _ORDERED.fullmatch(line)
    return match.group(1) if match else None
