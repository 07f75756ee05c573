"""Writes a PE file for Windows CE: sections, export table, import table, base relocations, headers.

All addresses here are relative to the image's base, as in the file's own tables. Nothing depends on time, path or
environment: the same sections give the same bytes.
"""
import struct
from dataclasses import dataclass, field

PAGE = 0x1000
FILE_ALIGNMENT = 0x200

CODE = 0x60000020  # section characteristics: content, and what the memory may be used for
CONSTANTS = 0x40000040
WRITABLE = 0xC0000040
ZEROED = 0xC0000080
DISCARDABLE = 0x02000000

DIRECTORY_EXPORTS = 0
DIRECTORY_IMPORTS = 1
DIRECTORY_RELOCATIONS = 5
DIRECTORY_IMPORT_ADDRESSES = 12

FILE_CHARACTERISTICS = 0x210E  # DLL, 32 bits, executable image, no line numbers, no local symbols
SUBSYSTEM_CE = 9
SUBSYSTEM_VERSION = (4, 20)

_HEADERS_START = 0x80
_OPTIONAL_HEADER_SIZE = 224
_RELOCATION_WORD = 3 << 12  # the whole 32-bit word moves with the image


def align(value, unit):
    """The next multiple of the unit, a power of two."""
    return (value + unit - 1) & -unit


def words(values):
    return b"".join(struct.pack("<I", value) for value in values)


@dataclass
class Section:
    name: str
    address: int
    size: int
    data: bytes
    characteristics: int


@dataclass
class PeImage:
    """The image under construction. Sections are added in the order of their addresses."""
    base: int
    entry: int
    machine: int
    sections: list = field(default_factory=list)
    directories: dict = field(default_factory=dict)

    @property
    def end(self):
        """The first free page behind the last section."""
        return max((align(s.address + s.size, PAGE) for s in self.sections), default=PAGE)

    def append(self, name, data, characteristics, directory):
        """Adds a table as a section of its own and enters it in the directory."""
        self.directories[directory] = (self.end, len(data))
        self.sections.append(Section(name, self.end, len(data), data, characteristics))

    def section_at(self, address):
        return next(s for s in self.sections if s.address == address)

    def add_exports(self, library, addresses):
        """Exports the names of the dictionary; the loader searches them, so they are sorted."""
        self.append(".edata", export_table(self.end, library, addresses), CONSTANTS, DIRECTORY_EXPORTS)

    def add_imports(self, library, names, slots):
        """Imports the names into the words that begin at the address `slots`, one each, and a null."""
        table, lookups = import_table(self.end, library, names, slots)
        self.append(".imports", table, CONSTANTS, DIRECTORY_IMPORTS)
        self.directories[DIRECTORY_IMPORT_ADDRESSES] = (slots, len(lookups))
        self.section_at(slots).data = lookups

    def add_relocations(self, places):
        self.append(".reloc", relocation_table(places), CONSTANTS | DISCARDABLE, DIRECTORY_RELOCATIONS)

    def to_bytes(self):
        headers_size = align(_HEADERS_START + 24 + _OPTIONAL_HEADER_SIZE + 40 * len(self.sections), FILE_ALIGNMENT)
        section_headers, body = self._sections_in_file(headers_size)
        headers = _dos_header() + self._file_header() + self._optional_header(headers_size) + section_headers
        return headers.ljust(headers_size, b"\0") + body

    def _sections_in_file(self, position):
        headers, body = b"", b""
        for s in self.sections:
            size = align(len(s.data), FILE_ALIGNMENT)
            headers += struct.pack("<8sIIIIIIHHI", s.name.encode()[:8], s.size, s.address, size,
                                   position if size else 0, 0, 0, 0, 0, s.characteristics)
            body += s.data.ljust(size, b"\0")
            position += size
        return headers, body

    def _file_header(self):
        return b"PE\0\0" + struct.pack("<HHIIIHH", self.machine, len(self.sections), 0, 0, 0, _OPTIONAL_HEADER_SIZE,
                                       FILE_CHARACTERISTICS)

    def _optional_header(self, headers_size):
        major, minor = SUBSYSTEM_VERSION
        header = struct.pack("<HBBIIIII", 0x10B, 1, 0, self._total(0x20), self._total(0x40), self._total(0x80), self.entry,
                             self.sections[0].address)
        header += struct.pack("<IIII", 0, self.base, PAGE, FILE_ALIGNMENT)
        header += struct.pack("<HHHHHHI", major, minor, 0, 0, major, minor, 0)
        header += struct.pack("<IIIHH", self.end, headers_size, 0, SUBSYSTEM_CE, 0)
        header += struct.pack("<IIIIII", 0x10000, 0x1000, 0x100000, 0x1000, 0, 16)  # stack, heap, number of directories
        return header + b"".join(struct.pack("<II", *self.directories.get(i, (0, 0))) for i in range(16))

    def _total(self, content):
        return sum(align(s.size, FILE_ALIGNMENT) for s in self.sections if s.characteristics & content)


def _dos_header():
    fields = [0x90, 3, 0, 4, 0, 0xFFFF, 0, 0xB8, 0, 0, 0, 0x40] + [0] * 17
    return struct.pack("<2s29HI", b"MZ", *fields, _HEADERS_START).ljust(_HEADERS_START, b"\0")


def export_table(at, library, addresses):
    """The export directory at address `at`: header, addresses, name pointers, ordinals, names."""
    names = sorted(addresses, key=str.encode)
    count = len(names)
    function_table, name_table, ordinal_table = at + 40, at + 40 + 4 * count, at + 40 + 8 * count
    library_name = at + 40 + 10 * count
    strings, pointers = library.encode() + b"\0", []
    for name in names:
        pointers.append(library_name + len(strings))
        strings += name.encode() + b"\0"
    header = struct.pack("<IIHHIIIIIII", 0, 0, 0, 0, library_name, 1, count, count, function_table, name_table,
                         ordinal_table)
    ordinals = b"".join(struct.pack("<H", i) for i in range(count))
    return header + words(addresses[name] for name in names) + words(pointers) + ordinals + strings


def import_table(at, library, names, slots):
    """The import directory at address `at`, and the content of the slots before the loader fills them."""
    lookup_table = at + 40  # one descriptor and the empty one that ends the list
    hints_at = lookup_table + 4 * (len(names) + 1)
    hints, pointers = b"", []
    for name in names:
        pointers.append(hints_at + len(hints))
        entry = struct.pack("<H", 0) + name.encode() + b"\0"
        hints += entry.ljust(align(len(entry), 2), b"\0")
    lookups = words(pointers + [0])
    descriptor = struct.pack("<5I", lookup_table, 0, 0, hints_at + len(hints), slots)
    return descriptor + bytes(20) + lookups + hints + library.encode() + b"\0", lookups


def relocation_table(places):
    """Base relocations: one block for each page with words that hold addresses of the image."""
    table, places = b"", sorted(places)
    for page in sorted({place & -PAGE for place in places}):
        entries = [_RELOCATION_WORD | place % PAGE for place in places if place & -PAGE == page]
        entries += [0] * (len(entries) % 2)
        table += struct.pack(f"<II{len(entries)}H", page, 8 + 2 * len(entries), *entries)
    return table or struct.pack("<II", 0, 8)
