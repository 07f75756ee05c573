import struct
import unittest

import elf_builder  # noqa: F401  (finds ce/link)
import pe_image
from pe_image import PeImage, Section


def relocations(table):
    """The places of a relocation table, read block by block as a loader does."""
    places, position = [], 0
    while position < len(table):
        page, size = struct.unpack_from("<II", table, position)
        for offset in range(position + 8, position + size, 2):
            entry, = struct.unpack_from("<H", table, offset)
            if entry >> 12 == 3:
                places.append(page + (entry & 0xFFF))
            elif entry:
                raise AssertionError(f"entry {entry:#x}")
        position += size
    return places


def text(data, start, offset):
    offset -= start
    return data[offset:data.index(b"\0", offset)].decode()


class Tables(unittest.TestCase):
    def test_relocations_survive_the_way_through_pages_and_padding(self):
        for places in ([0x1000], [0x1FFC, 0x2000, 0x1004, 0x7008], [0x3000 + 4 * i for i in range(9)]):
            with self.subTest(places):
                table = pe_image.relocation_table(places)
                self.assertEqual(relocations(table), sorted(places))
                self.assertEqual(len(table) % 4, 0)

    def test_without_relocations_the_table_is_one_empty_block(self):
        self.assertEqual(pe_image.relocation_table([]), struct.pack("<II", 0, 8))

    def test_exports_are_sorted_by_byte_value_and_lead_to_their_addresses(self):
        table = pe_image.export_table(0x5000, "a.dll", {"b": 2, "Z": 3, "?a@@YAXXZ": 1})
        fields = struct.unpack_from("<IIHHIIIIIII", table)
        library, first_ordinal, functions, names = fields[4], fields[5], fields[6], fields[7]
        self.assertEqual((first_ordinal, functions, names), (1, 3, 3))
        self.assertEqual(text(table, 0x5000, library), "a.dll")
        addresses = struct.unpack_from("<3I", table, fields[8] - 0x5000)
        pointers = struct.unpack_from("<3I", table, fields[9] - 0x5000)
        ordinals = struct.unpack_from("<3H", table, fields[10] - 0x5000)
        found = [(text(table, 0x5000, p), addresses[i]) for p, i in zip(pointers, ordinals)]
        self.assertEqual(found, [("?a@@YAXXZ", 1), ("Z", 3), ("b", 2)])

    def test_imports_name_the_library_and_every_function(self):
        table, lookups = pe_image.import_table(0x6000, "r.dll", ["free", "memset"], 0x3000)
        names_at, _, _, library, slots = struct.unpack_from("<5I", table)
        self.assertEqual(slots, 0x3000)
        self.assertEqual(text(table, 0x6000, library), "r.dll")
        self.assertEqual(table[20:40], bytes(20))
        pointers = struct.unpack_from("<3I", table, names_at - 0x6000)
        self.assertEqual(struct.unpack("<3I", lookups), pointers)
        self.assertEqual([text(table, 0x6000, p + 2) for p in pointers[:2]], ["free", "memset"])
        self.assertEqual(pointers[2], 0)
        self.assertTrue(all(p % 2 == 0 for p in pointers))


class File(unittest.TestCase):
    def setUp(self):
        self.image = PeImage(0x10000000, 0x1000, 0x1C2)
        self.image.sections = [Section(".text", 0x1000, 5, b"\1\2\3\4\5", pe_image.CODE),
                               Section(".bss", 0x2000, 0x1001, b"", pe_image.ZEROED)]

    def test_tables_follow_on_the_next_free_page(self):
        self.assertEqual(self.image.end, 0x4000)
        self.image.add_relocations([0x1000])
        self.assertEqual(self.image.sections[-1].address, 0x4000)
        self.assertEqual(self.image.directories[5], (0x4000, 12))

    def test_headers_say_what_the_image_is(self):
        data = self.image.to_bytes()
        at, = struct.unpack_from("<I", data, 0x3C)
        self.assertEqual((data[:2], data[at:at + 4]), (b"MZ", b"PE\0\0"))
        machine, sections, time = struct.unpack_from("<HHI", data, at + 4)
        self.assertEqual((machine, sections, time), (0x1C2, 2, 0))
        entry, = struct.unpack_from("<I", data, at + 24 + 16)
        base, page, unit = struct.unpack_from("<III", data, at + 24 + 28)
        self.assertEqual((entry, base, page, unit), (0x1000, 0x10000000, 0x1000, 0x200))
        major, minor = struct.unpack_from("<HH", data, at + 24 + 48)
        size, headers, checksum, subsystem = struct.unpack_from("<IIIH", data, at + 24 + 56)
        self.assertEqual((major, minor, size, headers, subsystem), (4, 20, 0x4000, 0x200, 9))

    def test_content_lies_where_the_section_headers_say(self):
        data = self.image.to_bytes()
        first = 0x80 + 24 + 224
        name, size, address, file_size, position = struct.unpack_from("<8sIIII", data, first)
        self.assertEqual((name, size, address, file_size), (b".text\0\0\0", 5, 0x1000, 0x200))
        self.assertEqual(data[position:position + 6], b"\1\2\3\4\5\0")
        self.assertEqual(struct.unpack_from("<8sIIII", data, first + 40), (b".bss\0\0\0\0", 0x1001, 0x2000, 0, 0))
        self.assertEqual(len(data), 0x400)

    def test_the_same_sections_give_the_same_bytes(self):
        self.assertEqual(self.image.to_bytes(), self.image.to_bytes())


if __name__ == "__main__":
    unittest.main()
