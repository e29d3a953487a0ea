"""The small encodings of a WinHelp file: packed numbers, names' hashes, LZ77 blocks, B+ trees."""

import struct

_WINDOW = 4096
_SHORTEST, _LONGEST = 3, 18


def u16(value):
    return struct.pack("<H", value)


def u32(value):
    return struct.pack("<I", value)


def i32(value):
    return struct.pack("<i", value)


def text(value):
    """A string of the Western code page with its end mark."""
    return value.encode("cp1252") + b"\0"


def packed_unsigned(value):
    """One byte below 128, else two; at most 32767."""
    return bytes([2 * value]) if value < 128 else u16(2 * value + 1)


def packed_signed(value):
    """One byte from -64 to 63, else two; -16384 to 16383."""
    return bytes([2 * value + 0x80]) if -64 <= value < 64 else u16(2 * value + 0x8001)


def packed_long(value):
    """The two-byte form of a packed long; -16384 to 16383."""
    if not -16384 <= value < 16384:
        raise ValueError(f"{value} is too large for a packed long")
    return u16(2 * value + 0x8000)


def context_hash(name):
    """The number under which the viewer looks up a context name made of letters and digits."""
    value = 0
    for char in name.lower():
        if char.isdigit():
            code = int(char) or 10
        elif "a" <= char <= "z":
            code = ord(char) - ord("a") + 17
        else:
            raise ValueError(f"'{char}' cannot stand in a context name")
        value = (value * 43 + code) & 0xFFFFFFFF
    return value


def lz77(data):
    """`data` packed: groups of eight items, each a byte or a copy of 3 to 18 bytes from the last 4096."""
    out, places, at = bytearray(), {}, 0
    while at < len(data):
        flags, items = 0, bytearray()
        for bit in range(8):
            if at >= len(data):
                break
            distance, length = _longest_match(data, at, places.get(data[at : at + _SHORTEST], ()))
            if length >= _SHORTEST:
                flags |= 1 << bit
                items += u16((length - _SHORTEST) << 12 | (distance - 1))
            else:
                length = 1
                items.append(data[at])
            for place in range(at, at + length):
                places.setdefault(data[place : place + _SHORTEST], []).append(place)
            at += length
        out.append(flags)
        out += items
    return bytes(out)


def _longest_match(data, at, places):
    best_distance, best_length = 0, 0
    limit = min(_LONGEST, len(data) - at)
    for place in reversed(places):
        if at - place > _WINDOW or best_length == limit:
            break
        length = 0
        while length < limit and data[place + length] == data[at + length]:
            length += 1
        if length > best_length:
            best_distance, best_length = at - place, length
    return best_distance, best_length


def btree(record_format, page_size, entries, flags=2):
    """A B+ tree of one or two levels. `entries` are (encoded key, encoded rest), in the tree's order."""
    leaves = _leaves(page_size - 8, entries)
    pages = [_leaf_page(page_size, number, len(leaves), leaf) for number, leaf in enumerate(leaves)]
    if len(leaves) > 1:
        body = b"".join(leaf[0][0] + u16(number) for number, leaf in enumerate(leaves) if number > 0)
        if len(body) > page_size - 6:
            raise ValueError("the tree needs a third level")
        page = u16(page_size - 6 - len(body)) + u16(len(leaves) - 1) + u16(0) + body
        pages.append(page.ljust(page_size, b"\0"))
    header = u16(0x293B) + u16(flags) + u16(page_size) + record_format.encode().ljust(16, b"\0")
    header += u16(0) + u16(max(0, len(leaves) - 1)) + u16(len(pages) - 1) + struct.pack("<h", -1)
    header += u16(len(pages)) + u16(2 if len(leaves) > 1 else 1) + u32(len(entries))
    return header + b"".join(pages)


def btree_leaf_starts(page_size, entries):
    """For each leaf of the same tree, the number of its first entry."""
    starts, count = [], 0
    for leaf in _leaves(page_size - 8, entries):
        starts.append(count)
        count += len(leaf)
    return starts


def _leaves(room, entries):
    leaves, used = [[]], 0
    for entry in entries:
        size = len(entry[0]) + len(entry[1])
        if leaves[-1] and used + size > room:
            leaves.append([])
            used = 0
        leaves[-1].append(entry)
        used += size
    return leaves


def _leaf_page(page_size, number, count, leaf):
    body = b"".join(key + rest for key, rest in leaf)
    before = number - 1
    after = number + 1 if number + 1 < count else -1
    page = u16(page_size - 8 - len(body)) + u16(len(leaf)) + struct.pack("<hh", before, after)
    return (page + body).ljust(page_size, b"\0")
