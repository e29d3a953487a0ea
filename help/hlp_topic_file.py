"""Lays out the internal file |TOPIC: a chain of links in packed blocks of 4096 bytes.

A position names a place in the unpacked blocks, 16384 a block; a topic offset counts the characters shown,
32768 a block. Topics and jumps are found by their offsets, links by their positions.
"""

from dataclasses import dataclass

from hlp_encoding import i32, lz77, text, u32

_BLOCK = 4096
_BLOCK_HEADER = 12
_UNPACKED = 16384
_MOST_UNPACKED = 9216
_LINK_HEADER = 21
_TOPIC_HEADER_SIZE = 28
_TOPIC_HEADER, _DISPLAY = 2, 0x20
_NONE = -1


@dataclass
class _Link:
    kind: int
    data: bytes
    text: bytes
    topic: int
    order: int
    block: int = 0
    place: int = 0

    def size(self):
        return _LINK_HEADER + len(self.data) + len(self.text)

    def position(self):
        return self.block * _UNPACKED + _BLOCK_HEADER + self.place


class TopicFile:
    """`topics` are (title, paragraphs) in browse order; each paragraph is (layout and commands, text)."""

    def __init__(self, topics):
        self._count = len(topics)
        self._links = []
        for number, (title, paragraphs) in enumerate(topics):
            self._add(_TOPIC_HEADER, bytes(_TOPIC_HEADER_SIZE), text(title), number)
            for data, words in paragraphs:
                self._add(_DISPLAY, data, words, number)
        self._add(_TOPIC_HEADER, bytes(_TOPIC_HEADER_SIZE), b"", self._count)
        # What a block packs to is known only when the positions inside its links are.
        room = _MOST_UNPACKED
        while not self._lay_out(room):
            room -= 256

    def offsets(self):
        """The topic offset of each topic, in order."""
        return list(self._offsets)

    def encode(self):
        """The bytes of |TOPIC."""
        return b"".join(self._block_bytes(number) for number in range(len(self._blocks)))

    def _add(self, kind, data, words, topic):
        self._links.append(_Link(kind, data, words, topic, len(self._links)))

    def _lay_out(self, room):
        self._place_links(room)
        self._set_offsets()
        self._fill_topic_headers()
        self._packed = []
        for links in self._blocks:
            self._packed.append(lz77(b"".join(self._link_bytes(link) for link in links)))
            if len(self._packed[-1]) > _BLOCK - _BLOCK_HEADER:
                return False
        return True

    def _place_links(self, room):
        self._blocks, used = [[]], 0
        for link in self._links:
            if link.size() > room:
                raise ValueError(f"a paragraph of {link.size()} bytes does not fit into a block")
            if used + link.size() > room:
                self._blocks.append([])
                used = 0
            link.block, link.place = len(self._blocks) - 1, used
            self._blocks[-1].append(link)
            used += link.size()

    def _set_offsets(self):
        self._offsets = []
        for links in self._blocks:
            shown = 0
            for link in links:
                if link.kind == _DISPLAY:
                    shown += len(link.text)
                elif link.topic < self._count:
                    self._offsets.append(link.block * 2 * _UNPACKED + shown)

    def _fill_topic_headers(self):
        headers = [link for link in self._links if link.kind == _TOPIC_HEADER]
        for number, header in enumerate(headers[:-1]):
            own = self._links[header.order : headers[number + 1].order]
            before = self._offsets[number - 1] if number > 0 else _NONE
            after = self._offsets[number + 1] if number + 1 < self._count else _NONE
            header.data = u32(sum(link.size() for link in own)) + i32(before) + i32(after) + u32(number)
            header.data += i32(_NONE) + u32(own[1].position()) + i32(headers[number + 1].position())

    def _link_bytes(self, link):
        before = self._links[link.order - 1].position() if link.order > 0 else _NONE
        after = self._links[link.order + 1].position() if link.order + 1 < len(self._links) else 0
        header = u32(link.size()) + u32(len(link.text)) + i32(before) + i32(after)
        return header + u32(_LINK_HEADER + len(link.data)) + bytes([link.kind]) + link.data + link.text

    def _block_bytes(self, number):
        links = self._blocks[number]
        last_before = self._links[links[0].order - 1].position() if number > 0 else _NONE
        headers = [link for link in self._links[: links[-1].order + 1] if link.kind == _TOPIC_HEADER]
        block = i32(last_before) + u32(links[0].position()) + u32(headers[-1].position())
        return (block + self._packed[number]).ljust(_BLOCK, b"\0")
