"""Writes the help file that the Windows help viewer opens."""

from hlp_encoding import btree, btree_leaf_starts, context_hash, i32, text, u16, u32
from hlp_paragraphs import TopicRenderer, context_name, font_file
from hlp_topic_file import TopicFile

_MAGIC = 0x00035F3F
_SYSTEM_MAGIC, _VERSION_3_1, _PACKED = 0x036C, 21, 4
_TITLE_RECORD, _CONTENTS_RECORD, _MACRO_RECORD, _WINDOW_RECORD = 1, 3, 4, 6
# Left, top, width, height: the viewer divides the screen into 1024 parts either way, Wine's takes pixels.
_WINDOW_PLACE = (60, 40, 560, 800)
_DIRECTORY_PAGE, _PAGE = 0x400, 0x800


def write_hlp(title, topics):
    """The bytes of the help file; `topics` in their order, the contents first."""
    renderer = TopicRenderer(topics)
    topic_file = TopicFile(
        [(topic.title, [paragraph.encode() for paragraph in renderer.paragraphs(topic)]) for topic in topics]
    )
    offsets = dict(zip((topic.slug for topic in topics), topic_file.offsets()))
    files = {
        "|SYSTEM": _system_file(title, offsets[topics[0].slug]),
        "|FONT": font_file(),
        "|TOPIC": topic_file.encode(),
        "|CONTEXT": _context_file(topics, offsets),
        "|CTXOMAP": _map_file(topics, offsets),
        "|TTLBTREE": _title_file(topics, offsets),
        **_keyword_files(topics, offsets),
    }
    return _container(files)


def _system_file(title, contents_offset):
    records = (
        (_TITLE_RECORD, text(title)),
        (_CONTENTS_RECORD, u32(contents_offset)),
        (_MACRO_RECORD, text("BrowseButtons()")),
        (_WINDOW_RECORD, _window_record(title)),
    )
    # No date: the same topics give the same file.
    header = u16(_SYSTEM_MAGIC) + u16(_VERSION_3_1) + u16(1) + u32(0) + u16(_PACKED)
    return header + b"".join(u16(kind) + u16(len(data)) + data for kind, data in records)


def _window_record(title):
    """The caption and the place of the main window."""
    given = 0x01 | 0x02 | 0x04 | 0x08 | 0x10 | 0x20 | 0x40
    names = b"primary".ljust(10, b"\0") + b"main".ljust(9, b"\0") + text(title).ljust(51, b"\0")
    place = b"".join(u16(value) for value in _WINDOW_PLACE) + u16(0)
    white = bytes([255, 255, 255, 0])
    return u16(given) + names + place + white + white


def _context_file(topics, offsets):
    hashes = {context_hash(context_name(topic)): offsets[topic.slug] for topic in topics}
    # The viewer compares these as signed numbers.
    ordered = sorted(hashes, key=lambda value: value - (1 << 32) if value >> 31 else value)
    return btree("L4", _PAGE, [(u32(value), u32(hashes[value])) for value in ordered])


def _map_file(topics, offsets):
    return u16(len(topics)) + b"".join(u32(topic.number) + u32(offsets[topic.slug]) for topic in topics)


def _title_file(topics, offsets):
    return btree("Lz", _PAGE, [(u32(offsets[topic.slug]), text(topic.title)) for topic in topics])


def _keyword_files(topics, offsets):
    """The index: each keyword with the topics that bear it, and the first keyword of each page."""
    places = {}
    for topic in topics:
        for keyword in topic.keywords:
            places.setdefault(keyword, []).append(offsets[topic.slug])
    entries, data = [], b""
    for keyword in sorted(places, key=lambda word: (word.lower(), word)):
        entries.append((text(keyword), u16(len(places[keyword])) + u32(len(data))))
        data += b"".join(u32(offset) for offset in places[keyword])
    starts = btree_leaf_starts(_PAGE, entries)
    pages = u16(len(starts)) + b"".join(u32(first) + u16(page) for page, first in enumerate(starts))
    return {"|KWBTREE": btree("F24", _PAGE, entries), "|KWDATA": data, "|KWMAP": pages}


def _container(files):
    """The internal files one behind the other, and a directory that says where each begins."""
    body, places = b"", {}
    for name, data in files.items():
        places[name] = 16 + len(body)
        body += _internal_file(data, 0)
    entries = [(text(name), u32(places[name])) for name in sorted(places)]
    directory = _internal_file(btree("z4", _DIRECTORY_PAGE, entries, flags=0x0402), 4)
    size = 16 + len(body) + len(directory)
    return u32(_MAGIC) + u32(16 + len(body)) + i32(-1) + u32(size) + body + directory


def _internal_file(data, flag):
    return u32(len(data) + 9) + u32(len(data)) + bytes([flag]) + data
