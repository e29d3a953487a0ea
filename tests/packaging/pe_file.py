"""Reads the headers and resources of a Windows program (a PE32+ file)."""
import pathlib
import struct

HIGH_ENTROPY_VA = 0x0020
DYNAMIC_BASE = 0x0040
NX_COMPAT = 0x0100

GROUP_ICON, VERSION, MANIFEST = 14, 16, 24

AMD64 = 0x8664
WINDOWS_GUI = 2
RELOCATIONS_STRIPPED = 0x0001
IMPORT_DIRECTORY, RESOURCE_DIRECTORY, DELAY_IMPORT_DIRECTORY = 1, 2, 13
SUBDIRECTORY = 0x80000000
FIXED_FILE_INFO = b"\xbd\x04\xef\xfe"


def readings(data):
    """The bytes of a file as text: a byte a character, and two from an even and from an odd place."""
    return [data.decode("latin-1"), data.decode("utf-16-le", "replace"),
            data[1:].decode("utf-16-le", "replace")]


class PeFile:
    """The header fields, imports and resources of a program; ValueError if it is not a program."""

    def __init__(self, data):
        self.data = data
        header = self._number("<I", 0x3C) if data[:2] == b"MZ" else 0
        if not header or data[header:header + 4] != b"PE\0\0":
            raise ValueError("this is no Windows program")
        coff = header + 4
        self.machine, sections = struct.unpack_from("<HH", data, coff)
        self.timestamp = self._number("<I", coff + 4)
        optional_size, self.characteristics = struct.unpack_from("<HH", data, coff + 16)
        optional = coff + 20
        if self._number("<H", optional) != 0x20B:
            raise ValueError("this is no 64-bit program")
        self.subsystem, self.dll_characteristics = struct.unpack_from("<HH", data, optional + 68)
        self._directories = optional + 112
        self._sections = [struct.unpack_from("<8sIIII12xI", data, optional + optional_size + 40 * i)
                          for i in range(sections)]

    @classmethod
    def read(cls, path):
        return cls(pathlib.Path(path).read_bytes())

    def flags_offset(self):
        """The offset of the DLL characteristics in the file."""
        return self._directories - 112 + 70

    def writable_code(self):
        """The names of the sections that can be both written and executed."""
        execute, write = 0x20000000, 0x80000000
        return [section[0].rstrip(b"\0").decode("ascii") for section in self._sections
                if section[5] & execute and section[5] & write]

    def imports(self):
        """{library in lower case: names of the functions}, the delayed ones included."""
        found = {}
        for address in self._descriptors(IMPORT_DIRECTORY, 20):
            names, _, _, library, addresses = struct.unpack_from("<IIIII", self.data, address)
            found[self._text(library).lower()] = self._names(names or addresses)
        for address in self._descriptors(DELAY_IMPORT_DIRECTORY, 32):
            _, library, _, _, names = struct.unpack_from("<IIIII", self.data, address)
            found[self._text(library).lower()] = self._names(names)
        return found

    def resource(self, kind, name=None):
        """The bytes of the first resource of a kind, or of that number; LookupError if none."""
        root = self._directory_offset(RESOURCE_DIRECTORY)
        names = self._resource_entries(root, self._resource_entries(root, root)[kind])
        languages = self._resource_entries(root, names[next(iter(names)) if name is None else name])
        entry = languages[next(iter(languages))]
        address, size = struct.unpack_from("<II", self.data, entry)
        start = self._offset(address)
        return self.data[start:start + size]

    def icon_sizes(self):
        """The widths of the pictures of the program's icon: the first one, which Windows shows."""
        group = self.resource(GROUP_ICON)
        count = struct.unpack_from("<H", group, 4)[0]
        return [group[6 + 14 * i] or 256 for i in range(count)]

    def version(self):
        """(file version, product version, {name: text}), the versions as four numbers."""
        block = self.resource(VERSION)
        fixed = block.index(FIXED_FILE_INFO)
        numbers = struct.unpack_from("<IIII", block, fixed + 8)
        return _version(*numbers[:2]), _version(*numbers[2:]), _strings(block)

    def _number(self, form, offset):
        return struct.unpack_from(form, self.data, offset)[0]

    def _directory_offset(self, index):
        address = self._number("<I", self._directories + 8 * index)
        if not address:
            raise LookupError("the program has no directory %d" % index)
        return self._offset(address)

    def _descriptors(self, index, size):
        if not self._number("<I", self._directories + 8 * index):
            return
        offset = self._directory_offset(index)
        while any(self.data[offset:offset + size]):
            yield offset
            offset += size

    def _offset(self, address):
        for _, virtual_size, virtual, raw_size, raw, _ in self._sections:
            if virtual <= address < virtual + max(virtual_size, raw_size):
                return raw + address - virtual
        raise ValueError("no section holds the address %#x" % address)

    def _text(self, address):
        start = self._offset(address)
        return self.data[start:self.data.index(b"\0", start)].decode("ascii")

    def _names(self, address):
        names, offset = [], self._offset(address)
        while entry := self._number("<Q", offset):
            names.append("#%d" % (entry & 0xFFFF) if entry >> 63 else self._text(entry + 2))
            offset += 8
        return names

    def _resource_entries(self, root, directory):
        """{number or name's offset: offset in the file}."""
        named, numbered = struct.unpack_from("<HH", self.data, directory + 12)
        pairs = (struct.unpack_from("<II", self.data, directory + 16 + 8 * i)
                 for i in range(named + numbered))
        return {name: root + (offset & ~SUBDIRECTORY) for name, offset in pairs}


def _version(high, low):
    return (high >> 16, high & 0xFFFF, low >> 16, low & 0xFFFF)


def _aligned(offset):
    return (offset + 3) & ~3


def _strings(block):
    """The texts of a version resource: pairs of name and value in its string tables."""
    found = {}

    def walk(start, end):
        while start + 6 <= end:
            size, value_size, is_text = struct.unpack_from("<HHH", block, start)
            if not size:
                return
            name_end = start + 6
            while block[name_end:name_end + 2] != b"\0\0":
                name_end += 2
            name = block[start + 6:name_end].decode("utf-16-le")
            value = _aligned(name_end + 2)
            if is_text and value_size:
                text = block[value:min(value + 2 * value_size, start + size)]
                found[name] = text.decode("utf-16-le").rstrip("\0")
            else:
                walk(_aligned(value + value_size), start + size)
            start = _aligned(start + size)

    walk(0, len(block))
    return found
