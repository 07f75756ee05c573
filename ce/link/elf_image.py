"""The parts of a linked ELF file (32 bits, little-endian, ARM) that the conversion needs."""
import struct
from dataclasses import dataclass

MACHINE_ARM = 40

SECTION_SYMBOLS = 2  # values of Section.type
SECTION_NO_DATA = 8
SECTION_RELOCATIONS = 9

FLAG_WRITE = 1  # bits of Section.flags
FLAG_ALLOCATED = 2
FLAG_CODE = 4

BINDING_LOCAL = 0
UNDEFINED = 0  # values of Symbol.section_index
ABSOLUTE = 0xFFF1

_HEADER = struct.Struct("<16sHHIIIIIHHHHHH")
_SECTION = struct.Struct("<10I")
_SYMBOL = struct.Struct("<IIIBBH")
_RELOCATION = struct.Struct("<II")


class ElfError(ValueError):
    """The file is not what the conversion can work with."""


@dataclass(frozen=True)
class Section:
    name: str
    type: int
    flags: int
    address: int
    size: int
    link: int
    info: int
    data: bytes

    @property
    def is_loaded(self):
        return bool(self.flags & FLAG_ALLOCATED) and self.size > 0


@dataclass(frozen=True)
class Symbol:
    name: str
    address: int
    size: int
    type: int
    binding: int
    section_index: int

    @property
    def is_global(self):
        return self.binding != BINDING_LOCAL and self.section_index != UNDEFINED


@dataclass(frozen=True)
class Relocation:
    address: int
    type: int
    symbol: Symbol


def _text(table, offset):
    return table[offset:table.index(b"\0", offset)].decode()


class ElfImage:
    """Sections, symbols and kept relocations of one linked file."""

    def __init__(self, data):
        if len(data) < _HEADER.size or data[:7] != b"\x7fELF\x01\x01\x01":
            raise ElfError("not a little-endian ELF file of 32 bits")
        header = _HEADER.unpack_from(data)
        if header[2] != MACHINE_ARM:
            raise ElfError(f"machine {header[2]} is not ARM")
        self.entry = header[4]
        self.sections = self._read_sections(data, header)
        self.symbols = self._read_symbols()

    @staticmethod
    def _read_sections(data, header):
        first, entry_size, count, names_index = header[6], header[11], header[12], header[13]
        rows = [_SECTION.unpack_from(data, first + i * entry_size) for i in range(count)]
        names = data[rows[names_index][4]:][:rows[names_index][5]]
        sections = []
        for name, kind, flags, address, offset, size, link, info, _, _ in rows:
            content = b"" if kind == SECTION_NO_DATA else data[offset:offset + size]
            sections.append(Section(_text(names, name), kind, flags, address, size, link, info, content))
        return sections

    def _read_symbols(self):
        table = next((s for s in self.sections if s.type == SECTION_SYMBOLS), None)
        if table is None:
            raise ElfError("no symbols")
        names = self.sections[table.link].data
        return [Symbol(_text(names, name), value, size, info & 15, info >> 4, index)
                for name, value, size, info, _, index in _SYMBOL.iter_unpack(table.data)]

    def loaded_sections(self):
        """What takes room in the device's memory, by address."""
        return sorted((s for s in self.sections if s.is_loaded), key=lambda s: s.address)

    def global_addresses(self):
        """Address of every defined global symbol."""
        return {s.name: s.address for s in self.symbols if s.is_global}

    def relocations(self):
        """Every place of a loaded section that the linker computed from an address."""
        for table in self.sections:
            if table.type != SECTION_RELOCATIONS or not self.sections[table.info].is_loaded:
                continue
            for address, info in _RELOCATION.iter_unpack(table.data):
                yield Relocation(address, info & 0xFF, self.symbols[info >> 8])
