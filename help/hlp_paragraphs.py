"""Turns a topic's blocks into the paragraphs of a WinHelp file. Lengths are half-points."""

from dataclasses import dataclass, field

from hlp_encoding import context_hash, packed_long, packed_signed, packed_unsigned, u16, u32
from tape_sample import NOTE, TAKEN_OFF, TOTAL, tape_lines
from topic_source import (
    BOLD,
    CODE,
    LINK,
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

BODY_FONT, BOLD_FONT, CODE_FONT, TITLE_FONT, HEADING_FONT, TOTAL_FONT, TAKEN_OFF_FONT, NOTE_FONT = range(8)
_FACES = ("Arial", "Courier New")
_INK, _TITLE_INK = (1, 1, 0), (31, 58, 95)  # 1, 1, 0 is the viewer's own text colour.
_TAKEN_OFF_INK, _NOTE_INK = (192, 20, 20), (112, 112, 112)
_SWISS, _MODERN = 3, 1
_BOLD_BIT = 1
# Bits, half-points, family, face, colour; in the order of the numbers above.
_DESCRIPTORS = (
    (0, 20, _SWISS, 0, _INK),
    (_BOLD_BIT, 20, _SWISS, 0, _INK),
    (0, 20, _MODERN, 1, _INK),
    (_BOLD_BIT, 32, _SWISS, 0, _TITLE_INK),
    (_BOLD_BIT, 24, _SWISS, 0, _TITLE_INK),
    (_BOLD_BIT, 20, _MODERN, 1, _INK),
    (0, 20, _MODERN, 1, _TAKEN_OFF_INK),
    (0, 20, _MODERN, 1, _NOTE_INK),
)
_SPAN_FONTS = {BOLD: BOLD_FONT, CODE: CODE_FONT}
_TAPE_FONTS = {TOTAL: TOTAL_FONT, TAKEN_OFF: TAKEN_OFF_FONT, NOTE: NOTE_FONT}
_INDENT = 36
_COLUMN_GAP = 20
_CHARACTER_WIDTHS = {BODY_FONT: 10, BOLD_FONT: 11.5, CODE_FONT: 12}


def font_file():
    """The internal file |FONT."""
    faces = b"".join(face.encode().ljust(20, b"\0") for face in _FACES)
    descriptors = b"".join(
        bytes([bits, size, family]) + u16(face) + bytes(ink) + bytes(_INK)
        for bits, size, family, face, ink in _DESCRIPTORS
    )
    return u16(len(_FACES)) + u16(len(_DESCRIPTORS)) + u16(8) + u16(8 + len(faces)) + faces + descriptors


def context_name(topic):
    """The name by which jumps find a topic."""
    return f"topic{topic.number}"


@dataclass
class HlpParagraph:
    """One paragraph: its place on the page, and the runs of text between its commands."""

    above: int = 0
    below: int = 10
    left: int = 0
    first_line: int = 0
    tabs: tuple = ()
    _strings: list = field(default_factory=lambda: [b""])
    _commands: list = field(default_factory=list)
    _font: int = -1

    def add(self, words, font=BODY_FONT):
        if font != self._font:
            self._command(b"\x80" + u16(font))
            self._font = font
        self._strings[-1] += words.encode("cp1252")

    def add_tab(self):
        self._command(b"\x83")

    def add_line_break(self):
        self._command(b"\x81")

    def add_jump(self, words, topic):
        # The font comes first: inside the hot spot the viewer would end the underline there.
        self.add("", BODY_FONT)
        self._command(b"\xe3" + u32(context_hash(context_name(topic))))
        self._strings[-1] += words.encode("cp1252")
        self._command(b"\x89")

    def encode(self):
        """The paragraph's two parts: layout with commands, and text."""
        commands = b"".join(self._commands) + b"\x82\xff"
        strings = b"\0".join(self._strings) + b"\0"
        layout = packed_long(len(strings)) + packed_unsigned(len(strings)) + b"\x00\x80\x00\x00" + self._layout()
        return layout + commands, strings

    def _command(self, code):
        # The viewer prints a string, obeys a command, prints the next string, and so on.
        self._commands.append(code)
        self._strings.append(b"")

    def _layout(self):
        bits, values = 0, b""
        for bit, value in ((0x02, self.above), (0x04, self.below), (0x10, self.left), (0x40, self.first_line)):
            if value:
                bits |= bit
                values += packed_signed(value)
        if self.tabs:
            bits |= 0x200
            values += packed_signed(len(self.tabs)) + b"".join(packed_unsigned(tab) for tab in self.tabs)
        return u16(bits) + values


class TopicRenderer:
    """The paragraphs of one topic; knows the others for its jumps."""

    def __init__(self, topics):
        self._topics = topics
        self._by_slug = {topic.slug: topic for topic in topics}

    def paragraphs(self, topic):
        title = HlpParagraph(below=14)
        title.add(topic.title, TITLE_FONT)
        result = [title]
        for message in topic.messages:
            result.append(self._flow((Span(message, BOLD),), left=_INDENT))
        for block in topic.blocks:
            result += self._block(topic, block)
        if topic.see:
            result += self._see_also(topic)
        return result

    def _block(self, topic, block):
        if isinstance(block, Heading):
            return [self._heading(block.spans)]
        if isinstance(block, Paragraph):
            return [self._flow(block.spans)]
        if isinstance(block, Note):
            return [self._flow(block.spans, left=_INDENT)]
        if isinstance(block, Sample):
            return [self._sample(block.lines)]
        if isinstance(block, Picture):
            # The viewer's own page does without: it opens beside the window that the picture shows.
            return []
        if isinstance(block, Table):
            return self._table(block.rows)
        if isinstance(block, ListBlock):
            return self._list(block)
        assert isinstance(block, ContentsList)
        return self._contents(topic)

    def _heading(self, spans):
        paragraph = HlpParagraph(above=16, below=8)
        for span in spans:
            paragraph.add(span.text, HEADING_FONT)
        return paragraph

    def _flow(self, spans, **layout):
        paragraph = HlpParagraph(**layout)
        self._add_spans(paragraph, spans)
        return paragraph

    def _add_spans(self, paragraph, spans, font=BODY_FONT):
        for span in spans:
            if span.style == LINK:
                paragraph.add_jump(span.text, self._by_slug[span.target])
            else:
                paragraph.add(span.text, _SPAN_FONTS.get(span.style, font))

    def _sample(self, lines):
        paragraph = HlpParagraph(above=4, below=14, left=_INDENT)
        for number, line in enumerate(tape_lines(lines)):
            if number > 0:
                paragraph.add_line_break()
            paragraph.add(line.text(), _TAPE_FONTS.get(line.look, CODE_FONT))
        return paragraph

    def _table(self, rows):
        tabs = self._column_starts(rows)
        paragraphs = []
        for number, row in enumerate(rows):
            # Cells of the last column may be long: what wraps stays in that column.
            last = tabs[-1] if tabs else 0
            paragraph = HlpParagraph(below=6, left=last, first_line=-last, tabs=tabs)
            for column, cell in enumerate(row):
                if column > 0:
                    paragraph.add_tab()
                self._add_spans(paragraph, cell, BOLD_FONT if number == 0 else BODY_FONT)
            paragraphs.append(paragraph)
        paragraphs[-1].below = 14
        return paragraphs

    def _column_starts(self, rows):
        starts, at = [], 0
        for column in range(len(rows[0]) - 1):
            at += max(_cell_width(row[column], number == 0) for number, row in enumerate(rows)) + _COLUMN_GAP
            starts.append(at)
        return tuple(starts)

    def _list(self, block):
        paragraphs = []
        for number, item in enumerate(block.items, 1):
            paragraph = HlpParagraph(below=6, left=_INDENT, first_line=-24, tabs=(_INDENT,))
            paragraph.add(f"{number}." if block.ordered else "\u2022")
            paragraph.add_tab()
            self._add_spans(paragraph, item)
            paragraphs.append(paragraph)
        paragraphs[-1].below = 12
        return paragraphs

    def _contents(self, contents):
        paragraphs, chapter = [], None
        for topic in self._topics:
            if topic is contents:
                continue
            if topic.chapter != chapter:
                chapter = topic.chapter
                paragraphs.append(self._heading((Span(chapter),)))
            paragraphs.append(self._flow((Span(topic.title, LINK, topic.slug),), left=_INDENT, below=4))
        return paragraphs

    def _see_also(self, topic):
        paragraphs = [HlpParagraph(above=16, below=6)]
        paragraphs[0].add("See also", BOLD_FONT)
        for slug in topic.see:
            paragraphs.append(self._flow((Span(self._by_slug[slug].title, LINK, slug),), left=_INDENT, below=4))
        return paragraphs


def _cell_width(cell, is_heading):
    plain = BOLD_FONT if is_heading else BODY_FONT
    return round(sum(len(span.text) * _CHARACTER_WIDTHS[_SPAN_FONTS.get(span.style, plain)] for span in cell))
