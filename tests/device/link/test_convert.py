import struct
import tempfile
import unittest
from pathlib import Path

from elf_builder import ABS32, ALLOCATED, BASE, MOVW, WRITE, small_image
import ce_link
import convert
import def_file
import symbol_map
from elf_image import ElfImage

EXPORTS = def_file.parse("LIBRARY a.dll\nEXPORTS\n ?Function@@YAXXZ=Function\n")
RUNTIME = def_file.parse("LIBRARY r.dll\nEXPORTS\n memset\n")


def converted(builder, exports=EXPORTS):
    return convert.convert(ElfImage(builder.build()), exports, RUNTIME, 0x1C0)


class Convert(unittest.TestCase):
    def test_sections_keep_address_and_get_the_protection_of_their_kind(self):
        found = [(s.name, s.address, s.characteristics) for s in converted(small_image()).sections]
        self.assertEqual(found, [
            (".text", 0x1000, 0x60000020), (".rdata", 0x2000, 0x40000040), (".idata", 0x3000, 0xC0000040),
            (".bss", 0x4000, 0xC0000080), (".edata", 0x5000, 0x40000040), (".imports", 0x6000, 0x40000040),
            (".reloc", 0x7000, 0x42000040)])

    def test_words_with_addresses_are_relocated_and_branches_are_not(self):
        image = converted(small_image())
        self.assertEqual(image.section_at(0x7000).data, struct.pack("<IIHH", 0x2000, 12, 0x3000, 0))

    def test_absolute_and_missing_weak_symbols_do_not_move(self):
        builder = small_image()
        builder.relocation(2, BASE + 0x2004, ABS32, builder.symbol("limit", 7, 0xFFF1))
        builder.relocation(2, BASE + 0x2004, ABS32, builder.symbol("weak", 0, 0, binding=2))
        self.assertEqual(converted(builder).section_at(0x7000).data, struct.pack("<IIHH", 0x2000, 12, 0x3000, 0))

    def test_the_import_slots_hold_the_names_until_the_loader_fills_them(self):
        image = converted(small_image())
        name, end = struct.unpack("<II", image.section_at(0x3000).data)
        table = image.section_at(0x6000)
        self.assertEqual(table.data[name - table.address + 2:][:7], b"memset\0")
        self.assertEqual(end, 0)
        self.assertEqual(image.directories[12], (0x3000, 8))

    def assert_refused(self, builder, message, exports=EXPORTS):
        with self.assertRaisesRegex(convert.ConversionError, message):
            converted(builder, exports)

    def test_an_unknown_relocation_is_refused(self):
        builder = small_image()
        builder.relocation(1, BASE + 0x1000, MOVW, 2)
        self.assert_refused(builder, "relocation type 43 at 0x10001000")

    def test_a_bridge_between_instruction_sets_is_refused(self):
        builder = small_image()
        builder.symbol("__Function_from_thumb", BASE + 0x1000, 1)
        self.assert_refused(builder, "__Function_from_thumb")

    def test_an_export_that_is_not_there_is_refused(self):
        exports = def_file.parse("LIBRARY a.dll\nEXPORTS\n Function\n Absent\n")
        self.assert_refused(small_image(), "not defined: Absent", exports)

    def test_a_section_off_the_page_is_refused(self):
        builder = small_image()
        builder.section(".data", ALLOCATED | WRITE, BASE + 0x5010, b"\1")
        self.assert_refused(builder, ".data does not begin on a page")

    def test_a_slot_without_a_name_is_refused(self):
        builder = small_image()
        builder.sections[2] = (".idata", 1, ALLOCATED | WRITE, BASE + 0x3000, 12, 0, 0, bytes(12))
        self.assert_refused(builder, "import slots")


class Map(unittest.TestCase):
    def test_sections_and_symbols_are_listed_by_address_under_readable_names(self):
        elf = ElfImage(small_image().build())
        text = symbol_map.symbol_map("a.dll", elf, BASE, lambda names: [name + "()" for name in names])
        self.assertIn("10001000         8  .text\n", text)
        self.assertLess(text.index("10001004         4  Function()\n"), text.index("10004000        24  counter()\n"))


class CommandLine(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.path("a.elf").write_bytes(small_image().build())
        self.path("exports.def").write_text("LIBRARY a.dll\nEXPORTS\n Function\n")
        self.path("runtime.def").write_text("LIBRARY r.dll\nEXPORTS\n memset\n")

    def path(self, name):
        return self.folder / name

    def run_image(self, exports="exports.def"):
        return ce_link.main(["image", "--elf", str(self.path("a.elf")), "--exports", str(self.path(exports)), "--imports",
                             str(self.path("runtime.def")), "--output", str(self.path("a.dll"))])

    def test_image_writes_the_dll_its_description_and_its_map(self):
        self.assertEqual(self.run_image(), 0)
        self.assertEqual(self.path("a.dll").read_bytes()[:2], b"MZ")
        self.assertEqual(self.path("a.def").read_text(), "LIBRARY a.dll\nEXPORTS\n Function\n")
        self.assertIn("Function", self.path("a.map").read_text())

    def test_stubs_writes_assembly(self):
        code = ce_link.main(["stubs", "--imports", str(self.path("runtime.def")), "--output", str(self.path("a.s"))])
        self.assertEqual(code, 0)
        self.assertIn("memset:", self.path("a.s").read_text())

    def test_a_refused_image_is_an_error_and_leaves_no_dll(self):
        self.path("wrong.def").write_text("LIBRARY a.dll\nEXPORTS\n Absent\n")
        self.assertEqual(self.run_image("wrong.def"), 1)
        self.assertFalse(self.path("a.dll").exists())


if __name__ == "__main__":
    unittest.main()
