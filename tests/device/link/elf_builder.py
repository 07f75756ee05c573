"""Small ELF files for the tests of ce/link, written down field by field."""
import struct
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[3] / "ce" / "link"))

BASE = 0x10000000
WRITE, ALLOCATED, CODE = 1, 2, 4
ABS32, CALL, MOVW = 2, 28, 43


class ElfBuilder:
    """Collects sections, symbols and relocations; build() gives the bytes of the file."""

    def __init__(self, entry=BASE + 0x1000):
        self.entry = entry
        self.sections = []  # name, type, flags, address, size, link, info, data
        self.symbols = [("", 0, 0, 0, 0, 0), ("__ImageBase", BASE, 0, 0, 1, 0xFFF1)]
        self.relocations = {}

    def section(self, name, flags, address, data, kind=1, size=None):
        """Returns the index that symbols of the section carry."""
        self.sections.append((name, kind, flags, address, len(data) if size is None else size, 0, 0, data))
        return len(self.sections)

    def symbol(self, name, address, section, binding=1, kind=2, size=4):
        """Returns the symbol's index for relocations."""
        self.symbols.append((name, address, size, kind, binding, section))
        return len(self.symbols) - 1

    def relocation(self, section, address, kind, symbol):
        self.relocations.setdefault(section, []).append((address, kind, symbol))

    def build(self, machine=40):
        sections = [("", 0, 0, 0, 0, 0, 0, b"")] + list(self.sections)
        strings_index = len(sections) + 1 + len(self.relocations)
        symbols_index = strings_index - 1
        for section, rows in self.relocations.items():
            data = b"".join(struct.pack("<II", address, symbol << 8 | kind) for address, kind, symbol in rows)
            sections.append((".rel", 9, 0, 0, len(data), symbols_index, section, data))
        strings, table = b"\0", b""
        for name, address, size, kind, binding, section in self.symbols:
            table += struct.pack("<IIIBBH", len(strings), address, size, binding << 4 | kind, 0, section)
            strings += name.encode() + b"\0"
        sections.append((".symtab", 2, 0, 0, len(table), strings_index, 0, table))
        sections.append((".strtab", 3, 0, 0, len(strings), 0, 0, strings))
        return self._file(sections, machine)

    def _file(self, sections, machine):
        names = b""
        offsets = []
        for row in sections + [(".shstrtab",)]:
            offsets.append(len(names))
            names += row[0].encode() + b"\0"
        sections = sections + [(".shstrtab", 3, 0, 0, len(names), 0, 0, names)]
        body, rows, position = b"", b"", 52
        for (_, kind, flags, address, size, link, info, data), name in zip(sections, offsets):
            rows += struct.pack("<10I", name, kind, flags, address, position, size, link, info, 4, 0)
            body += data
            position += len(data)
        header = struct.pack("<16sHHIIIIIHHHHHH", b"\x7fELF\x01\x01\x01", 2, machine, 1, self.entry, 0, position, 0, 52, 0,
                             0, 40, len(sections), len(sections) - 1)
        return header + body + rows


def small_image():
    """Code with one function, a constant that points to it, one import slot and a zeroed section."""
    elf = ElfBuilder()
    text = elf.section(".text", ALLOCATED | CODE, BASE + 0x1000, b"\x1e\xff\x2f\xe1" * 2)
    rdata = elf.section(".rdata", ALLOCATED, BASE + 0x2000, struct.pack("<II", BASE + 0x1004, 7))
    idata = elf.section(".idata", ALLOCATED | WRITE, BASE + 0x3000, bytes(8))
    bss = elf.section(".bss", ALLOCATED | WRITE, BASE + 0x4000, b"", kind=8, size=24)
    function = elf.symbol("Function", BASE + 0x1004, text)
    elf.symbol("__imp_memset", BASE + 0x3000, idata)
    elf.symbol("counter", BASE + 0x4000, bss, binding=0, kind=1, size=24)
    elf.relocation(rdata, BASE + 0x2000, ABS32, function)
    elf.relocation(text, BASE + 0x1000, CALL, function)
    return elf
