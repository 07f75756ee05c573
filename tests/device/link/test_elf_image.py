import unittest

from elf_builder import ABS32, BASE, CALL, small_image
from elf_image import ElfError, ElfImage


class Elf(unittest.TestCase):
    def setUp(self):
        self.elf = ElfImage(small_image().build())

    def test_loaded_sections_come_by_address_and_leave_the_tables_out(self):
        loaded = [(s.name, s.address, s.size) for s in self.elf.loaded_sections()]
        self.assertEqual(loaded, [(".text", BASE + 0x1000, 8), (".rdata", BASE + 0x2000, 8), (".idata", BASE + 0x3000, 8),
                                  (".bss", BASE + 0x4000, 24)])

    def test_a_section_without_data_has_a_size_and_no_bytes(self):
        self.assertEqual(self.elf.loaded_sections()[-1].data, b"")

    def test_global_symbols_have_addresses_and_local_ones_are_left_out(self):
        self.assertEqual(self.elf.global_addresses(), {"__ImageBase": BASE, "Function": BASE + 0x1004,
                                                       "__imp_memset": BASE + 0x3000})

    def test_relocations_carry_their_symbol(self):
        found = [(r.address, r.type, r.symbol.name) for r in self.elf.relocations()]
        self.assertEqual(found, [(BASE + 0x2000, ABS32, "Function"), (BASE + 0x1000, CALL, "Function")])

    def test_files_of_another_kind_are_refused(self):
        good = small_image().build()
        for name, data in {"empty": b"", "no ELF": b"MZ" + good[2:], "64 bits": good[:4] + b"\x02" + good[5:],
                           "big-endian": good[:5] + b"\x02" + good[6:], "x86": small_image().build(machine=3)}.items():
            with self.subTest(name), self.assertRaises(ElfError):
                ElfImage(data)


if __name__ == "__main__":
    unittest.main()
