import unittest

import elf_builder  # noqa: F401  (finds ce/link)
import def_file
import import_stubs
from def_file import DefFileError, Export, Import


class DefFile(unittest.TestCase):
    def test_an_export_is_its_own_symbol_unless_another_is_named(self):
        definition = def_file.parse("LIBRARY a.dll\nEXPORTS\n F\n ?G@@YAXH@Z=_Z1Gi\n")
        self.assertEqual(definition.library, "a.dll")
        self.assertEqual(definition.exports(), [Export("F", "F"), Export("?G@@YAXH@Z", "_Z1Gi")])

    def test_an_import_is_called_by_its_own_name_unless_another_is_given(self):
        definition = def_file.parse('LIBRARY "r.dll"\nEXPORTS\n free\n _Znwj == ??2@YAPAXI@Z\n')
        self.assertEqual(definition.library, "r.dll")
        self.assertEqual(definition.imports(), [Import("free", "free"), Import("_Znwj", "??2@YAPAXI@Z")])

    def test_comments_and_empty_lines_are_skipped(self):
        definition = def_file.parse("; head\n\nLIBRARY a.dll ; file\nEXPORTS\n F ; why\n ; none\n")
        self.assertEqual(definition.exports(), [Export("F", "F")])

    def test_anything_else_is_refused(self):
        for text in ("EXPORTS\n F\n", "LIBRARY a.dll\n F\n", "LIBRARY\nEXPORTS\n", ""):
            with self.subTest(text), self.assertRaises(DefFileError):
                def_file.parse(text)
        wrong = def_file.parse("LIBRARY a.dll\nEXPORTS\n F = G\n")
        self.assertRaises(DefFileError, wrong.exports)
        self.assertRaises(DefFileError, wrong.imports)

    def test_a_name_is_exported_once(self):
        for text in ("LIBRARY a.dll\nEXPORTS\n F\n G\n F\n", "LIBRARY a.dll\nEXPORTS\n F\n F=Inner\n"):
            with self.subTest(text), self.assertRaisesRegex(DefFileError, "exported twice: F"):
                def_file.parse(text).exports()

    def test_two_names_may_stand_for_one_symbol(self):
        definition = def_file.parse("LIBRARY a.dll\nEXPORTS\n F=Inner\n G=Inner\n")
        self.assertEqual([export.name for export in definition.exports()], ["F", "G"])

    def test_the_import_library_description_has_the_public_names_in_order(self):
        definition = def_file.parse("LIBRARY a.dll\nEXPORTS\n G=Inner\n F\n")
        self.assertEqual(def_file.import_library_description(definition), "LIBRARY a.dll\nEXPORTS\n F\n G\n")


class ImportStubs(unittest.TestCase):
    def test_every_import_has_a_stub_and_a_slot_in_sections_of_their_own(self):
        text = import_stubs.assembly([Import("free", "free"), Import("_Znwj", "??2@YAPAXI@Z")])
        self.assertEqual(text.count(".section .text."), 2)
        self.assertEqual(text.count(".section .idata."), 2)
        self.assertIn("_Znwj:\n  ldr ip, 1f\n  ldr ip, [ip]\n  bx ip\n", text)
        self.assertIn('"__imp_??2@YAPAXI@Z":\n  .word 0\n', text)


if __name__ == "__main__":
    unittest.main()
