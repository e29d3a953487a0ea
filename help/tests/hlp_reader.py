"""Reads a WinHelp file back, knowing nothing of the writer, as the help viewer would."""

import struct
from dataclasses import dataclass, field

FONT, LINE_BREAK, PARAGRAPH_END, TAB, JUMP, JUMP_END = 0x80, 0x81, 0x82, 0x83, 0xE3, 0x89


@dataclass
class ReadTopic:
    title: str
    offset: int
    back: int
    forward: int
    number: int
    lines: list = field(default_factory=list)
    jumps: list = field(default_factory=list)
    fonts: set = field(default_factory=set)

    def words(self):
        return "\n".join(self.lines)


class HlpFile:
    """The internal files of a help file, and what they say."""

    def __init__(self, data):
        magic, directory, _, size = struct.unpack_from("<IIiI", data, 0)
        if magic != 0x00035F3F or size != len(data):
            raise ValueError("not a help file, or cut off")
        self._data = data
        self.files = {
            key.decode("cp1252"): self._internal(struct.unpack("<I", rest)[0])
            for key, rest in read_btree(self._internal(directory), _string_key, lambda _, at: at + 4)
        }
        self.topics = _TopicReader(self.files["|TOPIC"]).read()

    def _internal(self, offset):
        reserved, used, _ = struct.unpack_from("<IIB", self._data, offset)
        if reserved < used + 9 or offset + 9 + used > len(self._data):
            raise ValueError("an internal file runs over")
        return self._data[offset + 9 : offset + 9 + used]

    def system(self):
        """The records of |SYSTEM as (type, bytes), and its flags."""
        data = self.files["|SYSTEM"]
        magic, _, _, _, flags = struct.unpack_from("<HHHIH", data, 0)
        if magic != 0x036C:
            raise ValueError("not a |SYSTEM file")
        records, at = [], 12
        while at < len(data):
            kind, size = struct.unpack_from("<HH", data, at)
            records.append((kind, data[at + 4 : at + 4 + size]))
            at += 4 + size
        return flags, records

    def map_numbers(self):
        """Topic numbers with their topic offsets, as the program's requests find them."""
        data = self.files["|CTXOMAP"]
        count = struct.unpack_from("<H", data, 0)[0]
        return [struct.unpack_from("<II", data, 2 + 8 * place) for place in range(count)]

    def contexts(self):
        """Hashes of context names with their topic offsets, in the order of the file."""
        entries = read_btree(self.files["|CONTEXT"], lambda _, at: at + 4, lambda _, at: at + 4)
        return [(struct.unpack("<i", key)[0], struct.unpack("<I", rest)[0]) for key, rest in entries]

    def titles(self):
        entries = read_btree(self.files["|TTLBTREE"], lambda _, at: at + 4, _string_key)
        return {struct.unpack("<I", key)[0]: rest[:-1].decode("cp1252") for key, rest in entries}

    def keywords(self):
        """Each keyword with its topic offsets."""
        found = {}
        for key, rest in read_btree(self.files["|KWBTREE"], _string_key, lambda _, at: at + 6):
            count, at = struct.unpack("<HI", rest)
            found[key.decode("cp1252")] = struct.unpack_from(f"<{count}I", self.files["|KWDATA"], at)
        return found


def _string_key(page, at):
    return page.index(b"\0", at) + 1


def read_btree(data, end_of_key, end_of_rest):
    """All (key, rest) of a B+ tree, read leaf by leaf from the leftmost; strings without their end mark."""
    magic, _, page_size, _, _, splits, root, minus_one, pages, levels, count = struct.unpack_from(
        "<HHH16sHHHhHHI", data, 0
    )
    if magic != 0x293B or minus_one != -1 or len(data) != 38 + pages * page_size or splits != pages - levels:
        raise ValueError("a tree's header does not fit its pages")
    page_bytes = [data[38 + number * page_size :][:page_size] for number in range(pages)]
    number = root
    for _ in range(levels - 1):
        number = struct.unpack_from("<h", page_bytes[number], 4)[0]
    entries = []
    while number != -1:
        page = page_bytes[number]
        free, in_page, _, following = struct.unpack_from("<HHhh", page, 0)
        at = 8
        for _ in range(in_page):
            key_end = end_of_key(page, at)
            rest_end = end_of_rest(page, key_end)
            key = page[at:key_end]
            entries.append((key[:-1] if end_of_key is _string_key else key, page[key_end:rest_end]))
            at = rest_end
        if page_size - at != free:
            raise ValueError("a leaf's free bytes are wrong")
        number = following
    if len(entries) != count:
        raise ValueError("a tree's number of entries is wrong")
    return entries


def read_btree_by_key(data, wanted):
    """The leaf number to which the index page of a tree of strings leads for `wanted`."""
    _, _, page_size, _, _, _, root, _, _, levels, _ = struct.unpack_from("<HHH16sHHHhHHI", data, 0)
    page = data[38 + root * page_size :][:page_size]
    if levels == 1:
        return root
    count, leaf = struct.unpack_from("<Hh", page, 2)
    at = 6
    for _ in range(count):
        end = page.index(b"\0", at)
        if page[at:end].lower() > wanted.lower():
            break
        leaf = struct.unpack_from("<H", page, end + 1)[0]
        at = end + 3
    return leaf


def unpack_lz77(data):
    """The bytes of a packed block; the padding behind the last item reads as literal zeros."""
    out, at = bytearray(), 0
    while at < len(data):
        flags = data[at]
        at += 1
        for bit in range(8):
            if at >= len(data):
                break
            if flags >> bit & 1:
                item = struct.unpack_from("<H", data, at)[0]
                at += 2
                for _ in range((item >> 12) + 3):
                    out.append(out[-((item & 0xFFF) + 1)])
            else:
                out.append(data[at])
                at += 1
    return bytes(out)


class _TopicReader:
    """Follows the chain of links through the blocks of |TOPIC."""

    def __init__(self, data):
        if len(data) % 4096:
            raise ValueError("|TOPIC is not made of whole blocks")
        self._headers = [struct.unpack_from("<iII", data, at) for at in range(0, len(data), 4096)]
        self._blocks = [unpack_lz77(data[at + 12 : at + 4096]) for at in range(0, len(data), 4096)]

    def read(self):
        topics, shown, block = [], 0, 0
        previous, position = -1, self._headers[0][1]
        while True:
            if position // 16384 != block:
                block, shown = position // 16384, 0
                if self._headers[block][:2] != (previous, position):
                    raise ValueError("a block's header does not name its first link")
            kind, data, words, before, following = self._link(position)
            if before != previous:
                raise ValueError("a link does not name the one before it")
            if kind == 2 and following == 0:
                self._check_last_headers(position)
                return topics
            if kind == 2:
                topics.append(self._topic(data, words, block * 32768 + shown, position))
            elif kind == 0x20:
                _read_paragraph(topics[-1], data, words)
                shown += len(words)
            else:
                raise ValueError(f"a link of unknown type {kind}")
            previous, position = position, following

    def _link(self, position):
        block, at = self._blocks[position // 16384], position % 16384 - 12
        size, text_size, before, following, data_end, kind = struct.unpack_from("<IIiiIB", block, at)
        if size != data_end + text_size or at + size > len(block):
            raise ValueError("a link's sizes do not fit")
        return kind, block[at + 21 : at + data_end], block[at + data_end : at + size], before, following

    def _topic(self, data, words, offset, position):
        size, back, forward, number, _, first, following = struct.unpack("<IiiIiIi", data)
        if self._size_between(position, following) != size or self._link(position)[4] != first:
            raise ValueError("a topic's header does not fit its links")
        return ReadTopic(words[:-1].decode("cp1252"), offset, back, forward, number)

    def _size_between(self, position, end):
        size = 0
        while position != end:
            block, at = self._blocks[position // 16384], position % 16384 - 12
            size += struct.unpack_from("<I", block, at)[0]
            position = struct.unpack_from("<i", block, at + 12)[0]
        return size

    def _check_last_headers(self, end):
        if self._headers[-1][2] != end:
            raise ValueError("the last block does not name the last topic header")


def _packed_unsigned(data, at):
    if data[at] & 1:
        return struct.unpack_from("<H", data, at)[0] >> 1, at + 2
    return data[at] >> 1, at + 1


def _packed_signed(data, at):
    if data[at] & 1:
        return (struct.unpack_from("<H", data, at)[0] >> 1) - 0x4000, at + 2
    return (data[at] >> 1) - 0x40, at + 1


def _skip_layout(data, at):
    if data[at : at + 4] != b"\x00\x80\x00\x00":
        raise ValueError("a paragraph's fixed bytes are wrong")
    bits = struct.unpack_from("<H", data, at + 4)[0]
    at += 6
    if bits & ~0x256:
        raise ValueError("a paragraph has layout that nobody wrote")
    for bit in (0x02, 0x04, 0x10, 0x40):
        if bits & bit:
            _, at = _packed_signed(data, at)
    if bits & 0x200:
        count, at = _packed_signed(data, at)
        for _ in range(count):
            _, at = _packed_unsigned(data, at)
    return at


def _read_paragraph(topic, data, words):
    """Prints a string, obeys a command, prints the next string, and so on."""
    if struct.unpack_from("<H", data, 0)[0] // 2 - 0x4000 != len(words):
        raise ValueError("a paragraph's text length is wrong")
    length, at = _packed_unsigned(data, 2)
    if length != len(words):
        raise ValueError("a paragraph's text length is wrong")
    at = _skip_layout(data, at)
    line, jump_start = "", None
    for string in words.decode("cp1252").split("\0"):
        line += string
        command = data[at]
        at += 1
        if command == FONT:
            topic.fonts.add(struct.unpack_from("<H", data, at)[0])
            at += 2
        elif command == TAB:
            line += "\t"
        elif command in (LINE_BREAK, PARAGRAPH_END):
            topic.lines.append(line)
            line = ""
        elif command == JUMP:
            jump_start = (struct.unpack_from("<i", data, at)[0], len(line))
            at += 4
        elif command == JUMP_END:
            topic.jumps.append((jump_start[0], line[jump_start[1] :]))
        elif command != 0xFF:
            raise ValueError(f"unknown command {command:#x}")
    if command != 0xFF or at != len(data) or line:
        raise ValueError("a paragraph's commands and strings do not match")
