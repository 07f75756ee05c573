"""The checks of scripts/ can fail: each passes a copy of this tree and refuses a copy with one fault in it."""
import importlib.machinery
import importlib.util
import re
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent


def run(*command, **options):
    return subprocess.run([str(word) for word in command], capture_output=True, text=True, check=False, **options)


class Copy(unittest.TestCase):
    """A copy of the tree, which the copies of the scripts in it take for the project."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        for part in ("src", "include", "tests", "tools", "docs", "scripts"):
            shutil.copytree(ROOT / part, self.root / part, ignore=shutil.ignore_patterns("*.png", "*.svg", "__pycache__"))

    def change(self, name, before, after):
        path = self.root / name
        text = path.read_text(encoding="utf-8")
        self.assertIn(before, text)
        path.write_text(text.replace(before, after, 1), encoding="utf-8")

    def expect(self, script, complaint=None):
        result = run(self.root / "scripts" / script)
        if complaint is None:
            self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        else:
            self.assertEqual(result.returncode, 1, result.stderr)
            self.assertRegex(result.stdout, complaint)


class Includes(Copy):
    def refuses(self, name, before, after, complaint):
        self.change(name, before, after)
        self.expect("check-includes", complaint)

    def test_passes_the_tree(self):
        self.expect("check-includes")

    def test_forbidden_headers_in_a_source(self):
        for header in ("iostream", "locale", "cctype", "functional", "stdexcept"):
            with self.subTest(header):
                self.setUp()
                self.refuses("src/api/Hatcher.cpp", "\n\n", f"\n#include <{header}>\n\n", f"<{header}> has no place")

    def test_a_forbidden_header_through_a_header_of_ours(self):
        self.refuses("src/job/ModuleString.h", "#ifndef", "#include <locale>\n#ifndef", "ModuleString.h: <locale>")

    def test_a_forbidden_header_through_the_exported_header(self):
        self.refuses("include/barhatch.h", "#include <stdint.h>", "#include <ctype.h>", "barhatch.h: <ctype.h>")

    def test_exceptions(self):
        self.refuses("src/api/Hatcher.cpp", "if (modules == 0.0) return nullptr;", "if (modules == 0.0) throw 1;", "throw")

    def test_the_word_throw_in_a_comment_or_a_text_is_no_exception(self):
        self.change("src/api/Hatcher.cpp", "\n\n", '\n// We never throw.\n[[maybe_unused]] auto t = "throw /*";\n')
        self.expect("check-includes")

    def includes(self, name, header, complaint=None):
        path = self.root / name
        path.write_text(f'#include "{header}"\n' + path.read_text(encoding="utf-8"), encoding="utf-8")
        self.expect("check-includes", complaint and f'{name}: "{header}" {complaint}')

    def test_arrows_that_run_up_or_to_a_neighbour(self):
        for name, header in (("src/job/Job.h", "symbologies/SymbologyTable.h"), ("src/job/Memory.h", "barhatch.h"),
                             ("src/hatch/Hatch.cpp", "datamatrix/DataMatrix.h"), ("src/hatch/Hatch.cpp", "barhatch.h"),
                             ("src/hatch/Hatch.cpp", "api/Hatcher.h"),
                             ("src/hatch/HatchGrid.h", "symbologies/SymbologyTable.h"),
                             ("src/hatch/HatchGrid.h", "mark/Mark.h"), ("src/datamatrix/SymbolGrid.cpp", "hatch/Hatch.h"),
                             ("src/symbologies/CyclicWeights.h", "api/Ownership.h"),
                             ("src/symbologies/CyclicWeights.h", "barhatch.h"),
                             ("src/symbologies/Code39.cpp", "datamatrix/DataMatrix.h")):
            with self.subTest(name + " " + header):
                self.setUp()
                self.includes(name, header, "is not for " + name.rpartition("/")[0])

    def mark(self, header, complaint=None):
        (self.root / "src/mark").mkdir(exist_ok=True)
        (self.root / "src/mark/Some.cpp").write_text("", encoding="utf-8")
        self.includes("src/mark/Some.cpp", header, complaint)

    def test_mark_opens_the_doors_of_the_floor_below(self):
        for header in ("hatch/Hatch.h", "symbologies/TextRules.h", "datamatrix/DataMatrix.h", "barhatch_mark.h", "job/Job.h"):
            self.mark(header)

    def test_mark_opens_nothing_else(self):
        for header in ("hatch/HatchGrid.h", "symbologies/PatternTables.h", "datamatrix/SymbolGrid.h", "api/Ownership.h",
                       "api/BarcodeSettings.h", "barhatch.h"):
            with self.subTest(header):
                self.mark(header, "is not for src/mark")

    def test_the_exports_open_no_door_of_the_floor_below_mark(self):
        for header in ("hatch/Hatch.h", "symbologies/SymbologyTable.h", "datamatrix/DataMatrix.h", "barhatch_mark.h"):
            with self.subTest(header):
                self.setUp()
                self.includes("src/api/LinearExports.cpp", header, "is not for src/api")

    def test_the_exports_rest_on_mark_and_job(self):
        for header in ("mark/Mark.h", "job/Job.h", "barhatch.h"):
            self.includes("src/api/LinearExports.cpp", header)

    def test_a_source_that_stands_in_no_room(self):
        (self.root / "src/loose").mkdir()
        (self.root / "src/loose/Some.cpp").write_text("", encoding="utf-8")
        self.expect("check-includes", "src/loose/Some.cpp: stands in no room")

    def test_a_door_that_leads_up(self):
        self.refuses("scripts/check-includes", '"src/hatch": set()', '"src/hatch": {"mark/Mark.h"}',
                     "the door mark/Mark.h is not below src/hatch")

    def test_an_oracle_that_shares_a_table(self):
        self.includes("tests/support/MsiReader.cpp", "symbologies/PatternTables.h", "is not for tests/support")

    def test_the_settings_are_for_the_exports_alone(self):
        self.includes("tests/support/MsiReader.cpp", "api/BarcodeSettings.h", "is not for tests/support")


class Deviations(Copy):
    REGISTER = "docs/deviations.md"

    def refuses(self, complaint):
        self.expect("check-deviations", complaint)

    def test_passes_the_tree(self):
        self.expect("check-deviations")

    def test_a_row_is_missing(self):
        text = (self.root / self.REGISTER).read_text(encoding="utf-8")
        self.change(self.REGISTER, re.search(r"^\| D-DM-5 \|.*\n", text, re.MULTILINE)[0], "")
        self.refuses("D-DM-5 has no row")

    def test_a_row_twice(self):
        text = (self.root / self.REGISTER).read_text(encoding="utf-8")
        row = re.search(r"^\| D-DM-5 \|.*\n", text, re.MULTILINE)[0]
        self.change(self.REGISTER, row, row + row)
        self.refuses("D-DM-5: two rows")

    def test_a_mark_is_missing(self):
        self.unmark("D-DM-7")
        self.unmark("kDDM_7")
        self.refuses("D-DM-7: no mark")

    def unmark(self, deviation):
        for room in ("api", "datamatrix", "hatch", "symbologies"):
            for path in (self.root / "src" / room).rglob("*.*"):
                path.write_text(path.read_text(encoding="utf-8").replace(deviation, "that"), encoding="utf-8")

    def test_a_mark_as_an_enumerator(self):
        self.unmark("D-DM-7")
        self.unmark("kDDM_7")
        self.change("src/datamatrix/Encodation.cpp", "\n\n", "\n\nbool IsLeft(Conformance& how) { return how.Deviates(kDDM_7); }\n")
        self.expect("check-deviations")

    def test_an_enumerator_is_missing(self):
        self.change("src/job/Deviations.h", "  kDDM_7,\n", "")
        self.refuses("the enumeration and the rows differ in \\['D-DM-7'\\]")

    def test_enumerators_in_another_sequence(self):
        self.change("src/job/Deviations.h", "  kDDM_7,\n  kDDM_8,\n", "  kDDM_8,\n  kDDM_7,\n")
        self.refuses("the enumeration and the rows differ in the order")

    def test_a_word_of_the_page_that_is_not_in_the_table(self):
        page = (self.root / self.REGISTER).read_text(encoding="utf-8")
        self.change(self.REGISTER, "| D-39-2 | '/' is written with", "| D-39-2 | '/' is drawn with")
        self.refuses("D-39-2: the page does not say what the table says")
        self.assertEqual(run(self.root / "scripts/check-deviations", "--write").returncode, 0)
        self.assertEqual((self.root / self.REGISTER).read_text(encoding="utf-8"), page)

    def test_what_the_page_has_to_escape(self):
        self.change("src/mark/DeviationTable.cpp", "'/' is written with", "'|' or '\\\\', \\\"so\\\", is written \"\n \"with")
        self.refuses("D-39-2: the page")
        self.assertEqual(run(self.root / "scripts/check-deviations", "--write").returncode, 0)
        self.assertIn("| D-39-2 | '\\|' or '\\\\', \"so\", is written with",
                      (self.root / self.REGISTER).read_text(encoding="utf-8"))
        self.expect("check-deviations")

    def test_a_row_that_the_table_has_not(self):
        self.change("src/mark/DeviationTable.cpp", '"D-39-2"', '"D-39-9"')
        self.refuses("other ids than the rows of the page")

    def test_a_test_is_missing(self):
        self.change("tests/datamatrix/EncodationDeviationsTest.cpp", "DataMatrixDeviations, DDM5", "DataMatrixDeviations, DDM6")
        self.refuses("there is no test DataMatrixDeviations.DDM5")


class Functions(Copy):
    NAME = "src/hatch/Hatch.cpp"

    def add(self, functions):
        path = self.root / self.NAME
        path.write_text(path.read_text(encoding="utf-8") + functions, encoding="utf-8")

    def test_passes_the_tree(self):
        self.expect("check-functions")

    def test_sixty_lines_pass(self):
        self.add("int Long(int a) {\n" + "  ++a;\n" * 58 + "}\n")
        self.expect("check-functions")

    def test_sixty_one_lines(self):
        self.add("int Long(int a) {\n" + "  ++a;\n" * 59 + "}\n")
        self.expect("check-functions", self.NAME + r":\d+: 61 lines")

    def test_a_brace_in_a_text_or_a_comment_ends_nothing(self):
        self.add("int Long(int a) {\n" + "  F(\"}\");  // }\n" * 59 + "}\n")
        self.expect("check-functions", "61 lines")

    def test_a_signature_of_two_lines_counts(self):
        self.add("\nint Long(int a,\n         int b) {\n" + "  ++a;\n" * 58 + "}\n")
        self.expect("check-functions", "61 lines")

    def test_many_of_ten_lines(self):
        for path in (self.root / "src").rglob("*.cpp"):
            if path != self.root / self.NAME:
                path.unlink()
        self.add("".join(f"void F{i}(int a) {{\n" + "  ++a;\n" * 8 + "}\n" for i in range(600)))
        self.expect("check-functions", "a median of 10 lines")


class Pages(Copy):
    PAGE = "docs/mark-api.md"

    def setUp(self):
        super().setUp()
        for part in ("examples", "ce", "cmake", "fuzz"):
            shutil.copytree(ROOT / part, self.root / part, ignore=shutil.ignore_patterns("corpus", "__pycache__"))
        for path in [*ROOT.glob("*.md"), *(ROOT / "docs/images").glob("*.svg")]:
            shutil.copy(path, self.root / path.relative_to(ROOT))

    def refuses(self, before, after, complaint):
        self.change(self.PAGE, before, after)
        self.expect("check-docs", complaint)

    def test_passes_the_tree(self):
        self.expect("check-docs")

    def test_a_field_is_missing(self):
        self.refuses("| `rows` | `int32_t` | of a Data Matrix", "| rows | int32 | of a Data Matrix", "BarhatchJob: rows")

    def test_a_field_of_another_type(self):
        self.refuses("| `symbol` | `double[4]` |", "| `symbol` | `double[3]` |", "BarhatchResult: rows")

    def test_a_function_pointer_of_another_type(self):
        self.refuses("`void (*)(void* context, void* block)`", "`void (*)(void* block)`", "BarhatchJob: rows")

    def test_a_name_with_another_number(self):
        self.refuses("| `BARHATCH_SPIRAL` | 5 |", "| `BARHATCH_SPIRAL` | 4 |", "BARHATCH_SPIRAL = 5 stands in the page or in")

    def test_a_name_is_missing(self):
        self.change("include/barhatch_mark.h", "BARHATCH_SPIRAL = 5,", "BARHATCH_SPIRAL = 5, BARHATCH_STAR = 7,")
        self.expect("check-docs", "BARHATCH_STAR = 7 stands")

    def test_a_name_that_the_header_lacks(self):
        self.refuses("`BARHATCH_WANT_VALIDATION` alone", "`BARHATCH_WANT_LITTLE` alone", "there is no BARHATCH_WANT_LITTLE")

    def test_a_prototype_of_its_own(self):
        self.refuses("void BarhatchRelease(BarhatchResult* result);", "void BarhatchRelease(void* result);", "BarhatchRelease: the prototype")

    def test_a_link_that_leads_nowhere(self):
        self.refuses("(#patterns)", "(#fills)", "has no such heading")

    def test_a_page_that_nobody_finds(self):
        self.change("docs/README.md", "[mark-api.md](mark-api.md)", "mark-api.md")
        self.expect("check-docs", "does not lead to mark-api.md")


class Names(Copy):
    """tests/abi/check-names, which takes the project as its argument."""

    def refuses(self, name, before, after, complaint):
        shutil.copytree(ROOT / "examples", self.root / "examples", ignore=shutil.ignore_patterns("__pycache__"))
        self.change(name, before, after)
        result = run("python3", "-B", self.root / "tests/abi/check-names", self.root)
        self.assertEqual(result.returncode, 1)
        self.assertRegex(result.stderr, complaint)

    def test_a_number_that_is_another_in_python(self):
        self.refuses("examples/barhatch.py", "SPIRAL = 5", "SPIRAL = 4", "barhatch.py: Pattern")

    def test_a_name_that_python_lacks(self):
        self.refuses("include/barhatch_mark.h", "BARHATCH_W_GAP = 256", "BARHATCH_W_GAP = 256, BARHATCH_W_NEW = 512", "barhatch.py: Warning")

    def test_a_name_that_cxx_lacks(self):
        self.refuses("include/barhatch_values.hpp", "kSpiral = BARHATCH_SPIRAL,", "", "barhatch_values.hpp: Pattern")


class Exports(unittest.TestCase):
    """Libraries in C with a version script of their own; the list has a node and a name in each line."""
    LISTED = ("OLD_1 a", "NEW_1 b")

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def build(self, place, names, *options):
        """The library of the names in a folder of its own, which every build calls the same."""
        (self.folder / place).mkdir()
        source, library = self.folder / "library.c", self.folder / place / "library.so"
        source.write_text("".join(f"int {name}(void) {{ return 7; }}\n" for name in names), encoding="utf-8")
        built = run("cc", "-shared", "-fPIC", "-nostdlib", "-Wl,-soname,library.so", *options, source, "-o", library)
        self.assertEqual(built.returncode, 0, built.stderr)
        return library

    def check(self, nodes):
        script, names = self.folder / "script", self.folder / "names"
        script.write_text("".join(f"{node} {{ {' '.join(f'{name};' for name in of)} }};\n" for node, of in nodes.items()),
                          encoding="utf-8")
        names.write_text("".join(line + "\n" for line in self.LISTED), encoding="utf-8")
        library = self.build("checked", (name for of in nodes.values() for name in of), f"-Wl,--version-script={script}")
        return run(ROOT / "scripts/check-exports", library, names)

    def refuses(self, nodes, *complaints):
        result = self.check(nodes)
        self.assertEqual(result.returncode, 1)
        for complaint in complaints:
            self.assertIn(complaint, result.stdout)

    def test_the_listed_names_pass(self):
        self.assertEqual(self.check({"OLD_1": "a", "NEW_1": "b"}).returncode, 0)

    def test_one_name_more(self):
        self.refuses({"OLD_1": "ac", "NEW_1": "b"}, "> OLD_1 c")

    def test_one_name_less(self):
        self.refuses({"OLD_1": "a", "NEW_1": ""}, "< NEW_1 b")

    def test_a_name_in_the_wrong_node(self):
        self.refuses({"OLD_1": "ab", "NEW_1": ""}, "< NEW_1 b", "> OLD_1 b")

    def test_names_without_a_node(self):
        library, names = self.build("checked", "ab"), self.folder / "names"
        names.write_text("OLD_1 a\nOLD_1 b\n", encoding="utf-8")
        result = run(ROOT / "scripts/check-exports", library, names)
        self.assertEqual(result.returncode, 1)
        self.assertIn("> - a", result.stdout)

    def test_a_host_that_was_linked_before_there_were_nodes_is_served(self):
        names = [line.split()[1] for line in (ROOT / "tests/abi/exported-names.txt").read_text(encoding="utf-8").splitlines()]
        before = self.build("before", names)
        now = self.build("now", names, f"-Wl,--version-script={ROOT / 'src/api/barhatch.map'}")
        host = self.folder / "host"
        (self.folder / "host.c").write_text(f"int {names[0]}(void); int main(void) {{ return {names[0]}(); }}\n",
                                            encoding="utf-8")
        self.assertEqual(run("cc", self.folder / "host.c", before, "-o", host).returncode, 0)
        for library in (before, now):
            served = run(host, env={"LD_LIBRARY_PATH": str(library.parent), "LD_BIND_NOW": "1"})
            self.assertEqual((served.returncode, served.stderr), (7, ""))


@unittest.skipUnless(shutil.which("cppcheck"), "cppcheck is not installed")
class Cppcheck(unittest.TestCase):
    def check(self, statement):
        with tempfile.TemporaryDirectory() as folder:
            (Path(folder) / "source.cpp").write_text(f"int f(int i) {{ {statement} }}\n", encoding="utf-8")
            return run(ROOT / "scripts/check-cppcheck", folder)

    def test_a_clean_source_passes(self):
        self.assertEqual(self.check("return i + 1;").returncode, 0)

    def test_faults(self):
        for statement in ("int a[4] = {}; return a[i * 0 + 4];", "int u; return u + i;", "if (i == i) return 1; return 0;"):
            with self.subTest(statement):
                self.assertEqual(self.check(statement).returncode, 1)


class Coverage(unittest.TestCase):
    """The verdict alone: its input is what the tool reports for each line."""
    NAME = "src/api/FillBuffer.cpp"

    def judge(self, *counts):
        path = str(ROOT / "scripts/coverage")
        loader = importlib.machinery.SourceFileLoader("coverage_script", path)
        module = importlib.util.module_from_spec(importlib.util.spec_from_loader("coverage_script", loader))
        loader.exec_module(module)
        module.EXPLAINED = ((self.NAME, r"return nullptr;", "the reason"),)
        module.print = lambda *words: None
        source = (ROOT / self.NAME).read_text(encoding="utf-8").splitlines()
        explained = 1 + next(i for i, line in enumerate(source) if "return nullptr;" in line)
        lines = [{"line_number": number, "count": count, "branches": []}
                 for number, count in ((1, counts[0]), (explained, counts[1]))]
        return module.judge([{"file": self.NAME, "lines": lines}], False)[1]

    def test_a_line_that_did_not_run_needs_a_reason(self):
        self.assertEqual(len(self.judge(0, 0)), 1)
        self.assertEqual(self.judge(1, 0), [])

    def test_a_reason_needs_a_line_that_did_not_run(self):
        self.assertIn("explains lines that do run", self.judge(1, 1)[0])



class Mutation(Copy):
    def list_of(self):
        return run(self.root / "scripts/mutate", "--list")

    def test_passes_the_tree(self):
        self.assertEqual(self.list_of().returncode, 0)

    def found_in(self, code):
        """What is listed of a header that holds the code, without its name and lines."""
        (self.root / "src/job/New.h").write_text(code, encoding="utf-8")
        listed = run(self.root / "scripts/mutate", "--list", "--only", "New.h").stdout.splitlines()
        return [line.split(" ", 1)[1] for line in listed if "New.h" in line]

    def test_a_table_is_found_by_itself(self):
        self.assertEqual(self.found_in("""
enum class Shade { kDark, kLight };
struct Row { char name; char modules[4]; Shade shade; };
constexpr Row kRows[] = {
    // name
    {'A', "001", Shade::kDark},  // a comment, {'C'}
    {'\\0', "110", Shade::kLight},
};
"""), ["kRows row 0: A -> B", "kRows rows 0 and 1: change places", "kRows row 0: 001 -> 010", "kRows row 0: 001 -> 011",
       "kRows row 0: Shade::kDark -> Shade::kLight", r"kRows row 1: \0 -> \x01", "kRows row 1: 110 -> 101",
       "kRows row 1: 110 -> 111", "kRows row 1: Shade::kLight -> Shade::kDark"])

    def test_a_table_of_plain_numbers_and_one_of_widths(self):
        self.assertEqual(self.found_in('constexpr int kLimits[3] = {0x10, 7,\n    2.5};\n'
                                       'constexpr std::array<Row, 1> kWidths = {{\n    "212222"}};\n'),
                         ["kLimits row 0: 0x10 -> 0x11", "kLimits row 0: 0x10 -> 0xF", "kLimits rows 0 and 1: change places",
                          "kLimits row 1: 7 -> 6", "kLimits row 1: 7 -> 8", "kLimits row 2: 2.5 -> 1.25",
                          "kLimits row 2: 2.5 -> 3.5", "kWidths row 0: 212222 -> 222122", "kWidths row 0: 212222 -> 312222"])

    def test_constants_and_first_values(self):
        self.assertEqual(self.found_in('constexpr int kMost =\n    13 + sizeof(int[3]);\n'
                                       'inline constexpr char kGuard[] = "101";\n'
                                       'const Limit kLimit{8, "ab"};\n'
                                       'struct Sum { int sum = 4; bool isWhole = true; };\n'),
                         ["kMost: 13 -> 12", "kMost: 13 -> 14", "kGuard: 101 -> 001", "kGuard: 101 -> 100",
                          "kGuard: 101 -> 111", "kLimit row 0: 8 -> 7", "kLimit row 0: 8 -> 9", "kLimit rows 0 and 1: change places",
                          "kLimit row 1: ab -> aa", "kLimit row 1: ab -> ba", "sum: 4 -> 3", "sum: 4 -> 5", "isWhole: true -> false"])

    def test_texts_and_enumerators_in_functions(self):
        self.assertEqual(self.found_in('enum class Way { kUp, kDown };\nWay Of(char c) {\n'
                                       '  assert(c != 0 && "why");\n  switch (F(c, "ab")) { case Way::kUp: break; }\n'
                                       "  return c == 'x' ? Way::kUp : G(7);\n}\n"),
                         ["Of text: ab -> a", "Of text: ab -> ab!", "Of text: ab -> b", "Of character: x -> y",
                          "Of value: Way::kUp -> Way::kDown"])

    def test_a_proof_is_no_product(self):
        self.assertEqual(self.found_in('constexpr bool Holds() { return F("01"); }\nstatic_assert(Holds(), "11");\n'), [])

    def test_a_reason_may_name_the_function(self):
        self.change("src/api/ApiTrace.cpp", '"%ls"', '"%S"')
        self.assertIn("outlived its code: ApiTrace.cpp WriteWide", self.list_of().stdout)

    def test_a_reason_whose_cell_is_gone(self):
        self.change("src/datamatrix/EncodationState.cpp", "kLatchCodewords[]", "kLatches[]")
        result = self.list_of()
        self.assertEqual(result.returncode, 1, result.stderr)
        self.assertIn("outlived its code: EncodationState.cpp kLatchCodewords", result.stdout)

    def test_a_reason_whose_code_is_gone(self):
        self.change("src/hatch/HatchGrid.cpp", "value < 0.0", "value <= 0.0")
        result = self.list_of()
        self.assertEqual(result.returncode, 1, result.stderr)
        self.assertIn("outlived its code: HatchGrid.cpp value < 0.0", result.stdout)


if __name__ == "__main__":
    unittest.main()
