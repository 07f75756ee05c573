"""What scripts/mutate changes: the cells of every table, found by the table's first line and a pattern for one cell, and
the constants of every algorithm, written down with what they become.

A new table is one Table, a new constant one line. A rule that finds nothing is an error, so rules cannot rot unseen.
"""
import re
from dataclasses import dataclass


@dataclass(frozen=True)
class Mutant:
    file: str
    start: int
    end: int
    line: int
    what: str
    before: str
    after: str
    programs: tuple  # instead of the test programs of the room

    def __str__(self):
        change = "change places" if self.what.startswith("rows") else f"{self.before} -> {self.after}"
        return f"{self.file}:{self.line} {self.what}: {change}"


# Changes of a cell: (text of the cell, number of its row) -> new text, None where there is nothing to change.

def flip(cell, row):
    at = row % len(cell)
    return cell[:at] + ("0" if cell[at] == "1" else "1") + cell[at + 1:]


def exchange(cell, row):
    """Two unequal neighbours change places: what the compiler counts stays the same. Flips where all are equal."""
    for step in range(len(cell) - 1):
        at = (row + step) % (len(cell) - 1)
        if cell[at] != cell[at + 1]:
            return cell[:at] + cell[at + 1] + cell[at] + cell[at + 2:]
    return flip(cell, row)


def exchange_same_shade(cell, row):
    """Two unequal bars, or two unequal spaces, change places: the sums of both stay the same."""
    for step in range(len(cell) - 2):
        at = (row + step) % (len(cell) - 2)
        if cell[at] != cell[at + 2]:
            return cell[:at] + cell[at + 2] + cell[at + 1] + cell[at] + cell[at + 3:]
    return None


def widen(cell, row):
    at = row % len(cell)
    return cell[:at] + str(int(cell[at]) % 4 + 1) + cell[at + 1:]


def more(cell, row):
    return str(int(cell, 0) + 1)


def less(cell, row):
    return str(int(cell, 0) - 1)


def twice(cell, row):
    return str(2 * int(cell))


def next_character(cell, row):
    if cell.startswith("\\x"):
        return f"\\x{int(cell[2:], 16) + 1:02X}"
    return {"\\0": "\\x01", "~": "}", "&": "(", "[": "]"}.get(cell, chr(ord(cell[-1]) + 1))


def next_in_row(cell, row):
    """Another letter at one place of the row, from the letters the row consists of or would."""
    at = row % len(cell)
    return cell[:at] + {"N": "a", "0": "a", "f": "e"}.get(cell[at], chr(ord(cell[at]) + 1)) + cell[at + 1:]


def to(text):
    return lambda cell, row: text if cell != text else None


SWAP = "swap"  # with the cell of the row below; rows 0 and 1, 2 and 3, ...


@dataclass(frozen=True)
class Table:
    file: str
    first: str  # begins the table, up to the next line that closes a brace at the left margin or before ;
    cell: str  # its group is one cell
    changes: tuple
    programs: tuple = ()

    def mutants(self, text):
        opened = re.search(self.first, text)
        if opened is None:
            raise LookupError(f"{self.file}: no {self.first}")
        closed = re.compile(r"\}+\)?;|^\}", re.MULTILINE).search(text, opened.end())
        cells = list(re.finditer(self.cell, text[:closed.end()][opened.end():]))
        if len(cells) < 2:
            raise LookupError(f"{self.file}: no rows of {self.first}")
        for row, found in enumerate(cells):
            start, end = (opened.end() + place for place in found.span(1))
            for change in self.changes:
                if change is SWAP:
                    if row % 2 == 0 and row + 1 < len(cells):
                        last = opened.end() + cells[row + 1].end(1)
                        below = cells[row + 1].group(1)
                        between = text[end:opened.end() + cells[row + 1].start(1)]
                        yield start, last, f"rows {row} and {row + 1}", below + between + found.group(1)
                else:
                    after = change(found.group(1), row)
                    if after is not None:
                        yield start, end, f"row {row}", after


@dataclass(frozen=True)
class Constant:
    file: str
    before: str  # occurs so often in the file; each occurrence is a mutant
    after: str
    times: int = 1
    programs: tuple = ()

    def mutants(self, text):
        found = [place.start() for place in re.finditer(re.escape(self.before), text)]
        if len(found) != self.times:
            raise LookupError(f"{self.file}: {self.before} is there {len(found)} times, not {self.times}")
        for start in found:
            yield start, start + len(self.before), "constant", self.after


def constants(file, *changes, programs=()):
    """(before, after, after, ...), or (before, times, after, ...) where the text is there more than once."""
    for before, *afters in changes:
        times = afters.pop(0) if isinstance(afters[0], int) else 1
        for after in afters:
            yield Constant(file, before, after, times, programs)


def usual_capacity(file, capacity):
    """What a module string is allocated with, judged by the bytes that a short symbol takes."""
    return constants(file, (str(capacity), str(capacity - 1), str(capacity + 1)), programs=("allocation_test",))


SYM = "src/symbologies/"
DM = "src/datamatrix/"
HATCH = "src/hatch/"
API = "src/api/"
BITS = r'"([01]+)"'
NUMBER = r"\d+, *"  # and what parts it from the next

RULES = [
    # --- Codabar
    Table(SYM + "CodabarSymbology.cpp", r"kCodabarCharacters\[\] = \{", BITS, (flip, exchange, SWAP)),
    Table(SYM + "CodabarSymbology.cpp", r"kCodabarCharacters\[\] = \{", r"\{'(.)'", (next_character,)),
    Table(SYM + "CodabarSymbology.cpp", r"kCodabarCharacters\[\] = \{", r", '(\\0|.)'", (next_character,)),
    *constants(SYM + "CodabarSymbology.cpp",
               ('"0000000"', '"0000001"'), ("3116", "3115", "3117"), ("length - 1;", "length - 2;", "length;"),
               ('"ABCDENT*"', '"BCDENT*"', '"ACDENT*"', '"ABDENT*"', '"ABCENT*"', '"ABCDNT*"', '"ABCDET*"', '"ABCDEN*"',
                '"ABCDENT"', '"ABCDENT*F"'),
               ('"-$+:/."', '"$+:/."', '"-+:/."', '"-$:/."', '"-$+/."', '"-$+:."', '"-$+:/"', '"-$+:/.*"'),
               ("AppendSpace(1)", "AppendSpace(2)", "AppendSpace(0)"), ("i > 0", "i > 1"),
               ("8 * length - 1", "8 * length - 2", "8 * length"), ("2 * static_cast", "1 * static_cast")),
    *usual_capacity(SYM + "CodabarSymbology.cpp", 24936),
    # --- Code 11
    Table(SYM + "Code11Symbology.cpp", r"kCode11Characters\[\] = \{", BITS, (flip, exchange, SWAP)),
    *constants(SYM + "Code11Symbology.cpp",
               ("kDash = 10", "kDash = 9", "kDash = 11"), ("kStartStop = 11", "kStartStop = 10"),
               ("kModulus = 11", "kModulus = 10", "kModulus = 12"),
               ("kTextLengthWithK = 10", "kTextLengthWithK = 9", "kTextLengthWithK = 11"),
               ("weightedForC(1, 10)", "weightedForC(1, 9)", "weightedForC(1, 11)", "weightedForC(2, 10)"),
               ("weightedForK(1, 9)", "weightedForK(1, 8)", "weightedForK(1, 10)", "weightedForK(2, 9)"),
               ("weightedForK.Add(c);", ";"), ("AppendSpace(1)", "AppendSpace(2)", "AppendSpace(0)"),
               ("6 * (length", "5 * (length", "7 * (length"), ("length + 4) - 1", "length + 3) - 1", "length + 4) - 2"),
               ("2 * static_cast", "1 * static_cast")),
    *usual_capacity(SYM + "Code11Symbology.cpp", 24936),
    # --- Code 128
    Table(SYM + "Code128Patterns.cpp", r"kCode128Characters\[\] = \{", r'"(\d+)"', (widen, exchange_same_shade, SWAP)),
    *constants(SYM + "Code128Patterns.cpp",
               ('] = "11"', '] = "10"', '] = "01"'),
               ("kCheckModulus = 103", "kCheckModulus = 102", "kCheckModulus = 104"),
               ("int position = 1;", "int position = 2;"), ("values[position] * position", "values[position]")),
    *constants(SYM + "Code128Patterns.h",
               ("SwitchToC = 99", "SwitchToC = 98"), ("SwitchToB = 100", "SwitchToB = 101"),
               ("StartA = 103", "StartA = 102"),
               ("StartB = 104", "StartB = 103"), ("StartC = 105", "StartC = 104"), ("Stop = 106", "Stop = 105"),
               ("CharacterModules = 11", "CharacterModules = 10", "CharacterModules = 12"),
               ("TerminationBarModules = 2", "TerminationBarModules = 1", "TerminationBarModules = 3")),
    *constants(SYM + "Code128Symbologies.h",
               ("kCode128FullSymbol = 80", "kCode128FullSymbol = 79", "kCode128FullSymbol = 81"),
               ("kMaxCode128Values = 82", "kMaxCode128Values = 81", "kMaxCode128Values = 83")),
    *constants(SYM + "Code128Symbologies.cpp",
               ("kMaxCode128Values + 1", "kMaxCode128Values"), ("2 * kQuietZoneModules", "kQuietZoneModules"),
               ("kFirstCharacter = ' '", "kFirstCharacter = '!'", "kFirstCharacter = '\\x1F'"),
               ("kShortestRunForSetC = 4", "kShortestRunForSetC = 3", "kShortestRunForSetC = 5",
                "kShortestRunForSetC = 6"),
               ("run == 2", 2, "run == 1", "run == 3"), ("run % 2 == 0", "run % 2 == 1", "run % 1 == 0"),
               ("* 10", "* 9"),
               (">= 96", ">= 95", ">= 97"), ("<= 126", "<= 125", "<= 127"),
               ("run >= kShortestRunForSetC", 2, "run > kShortestRunForSetC"),
               ("text + std::strlen(text) - 1", "text + std::strlen(text) - 2", "text + std::strlen(text)"),
               ("text += 2", 2, "text += 1"), ("text < last", "text <= last"), ("text[1])) {", "text[0])) {"),
               ("? CodeSet::kB : CodeSet::kA", "? CodeSet::kA : CodeSet::kB"),
               ("? CodeSet::kC : CodeSet::kB;", 2, "? CodeSet::kB : CodeSet::kC;")),
    *usual_capacity(SYM + "Code128Symbologies.cpp", 40521),
    # --- Code 39
    Table(SYM + "Code39Symbology.cpp", r"kCode39Characters\[\] = \{", BITS, (flip, exchange, SWAP)),
    Table(SYM + "Code39Symbology.cpp", r"kCode39Characters\[\] = \{", r"\{'(.)'", (next_character,)),
    *constants(SYM + "Code39Symbology.cpp",
               *(('"011111111"', '"' + flip("011111111", at) + '"') for at in range(9)),
               ("kStartStop = '*'", "kStartStop = '+'"), ("3116", "3115", "3117"),
               ('"*-$% ./+"', '"-$% ./+"', '"*$% ./+"', '"*-% ./+"', '"*-$ ./+"', '"*-$%./+"', '"*-$% /+"', '"*-$% .+"',
                '"*-$% ./"', '"*-$% ./+,"'),
               ("index = 36", "index = 35", "index = 37"), ("<= 'D'", "<= 'C'", "<= 'E'"),
               ("'A' + 10", "'A' + 9", "'A' + 11"),
               ("text[0] == '%' &&", "text[0] == '$' &&"), ("text[1] == '%'", "text[1] == '$'"),
               ("AppendSpace(1)", "AppendSpace(2)", "AppendSpace(0)"), ("i > 0", "i > 1"),
               ("10 * length - 1", "10 * length - 2", "10 * length"), ("2 * static_cast", "1 * static_cast")),
    *usual_capacity(SYM + "Code39Symbology.cpp", 31170),
    # --- Code 93
    Table(SYM + "Code93Characters.cpp", r"kCode93Characters\[\] = \{", BITS + r"\}", (flip, exchange, SWAP)),
    Table(SYM + "Code93Characters.cpp", r"kCode93Characters\[\] = \{", r'\{"\(?(.)\)?"', (next_character,)),
    Table(SYM + "Code93Characters.cpp", r"kShiftRanges\[\] = \{", r"\n    \{'(\\x..|.)'", (next_character,)),
    Table(SYM + "Code93Characters.cpp", r"kShiftRanges\[\] = \{", r"\n    \{'[^']+', '(\\x..|.)'", (next_character,)),
    Table(SYM + "Code93Characters.cpp", r"kShiftRanges\[\] = \{", r"\n    \{'[^']+', '[^']+', '(.)'",
          tuple(to(sign) for sign in "$%/+")),
    Table(SYM + "Code93Characters.cpp", r"kShiftRanges\[\] = \{", r"'(.)'\}", (next_character,)),
    *constants(SYM + "Code93Characters.h",
               ("kCode93CheckModulus = 47", "kCode93CheckModulus = 46", "kCode93CheckModulus = 48"),
               ("kCode93StartStop = 47", "kCode93StartStop = 46"), ("kCode93NoValue = -1", "kCode93NoValue = 0")),
    *constants(SYM + "Code93Symbology.cpp",
               ('"-. $/+%"', '". $/+%"', '"- $/+%"', '"-.$/+%"', '"-. /+%"', '"-. $+%"', '"-. $/%"', '"-. $/+"',
                '"-. $/+%*"'),
               ("weightedForC(1, 20)", "weightedForC(1, 19)", "weightedForC(1, 21)", "weightedForC(2, 20)"),
               ("weightedForK(1, 15)", "weightedForK(1, 14)", "weightedForK(1, 16)", "weightedForK(2, 15)"),
               ("weightedForK.Add(0);", ";"), ("+ sums.c)", ")"),
               ('kTerminationBar[] = "1"', 'kTerminationBar[] = "0"'),
               ("9 * (sums", "8 * (sums", "10 * (sums"), ("+ 4) + 1", "+ 3) + 1", "+ 5) + 1", "+ 4) + 0"),
               ("2 * static_cast", "1 * static_cast")),
    *usual_capacity(SYM + "Code93Symbology.cpp", 31170),
    *constants(SYM + "CyclicWeights.h", ("weight_ + 1", "weight_ + 2"), ("sum_ = 0", "sum_ = 1")),
    # --- EAN/UPC
    Table(SYM + "EanUpcElements.cpp", r"kDigits\[\] = \{", BITS, (flip,)),
    Table(SYM + "EanUpcElements.cpp", r"kDigits\[\] = \{", r'\{\{(.*)\}\}', (SWAP,)),
    Table(SYM + "EanUpcElements.cpp", r"kUpcESystem0 = \{\{", BITS, (flip, exchange, SWAP)),
    Table(SYM + "EanUpcElements.cpp", r"kAddon2Parities\[\] = ", BITS, (flip, SWAP)),
    Table(SYM + "EanUpcElements.cpp", r"kAddon5Parities\[\] = ", BITS, (flip, exchange, SWAP)),
    *constants(SYM + "EanUpcElements.cpp",
               *(('"000000"', '"' + flip("000000", at) + '"') for at in range(6)),
               ('*text, "01"', '*text, "0"', '*text, "1"', '*text, "012"'),
               ("% 2 == 1 ? 3 : 1", "% 2 == 1 ? 1 : 3", "% 2 == 1 ? 9 : 1"),
               ("% 2 == 0 ? 3 : 9", "% 2 == 0 ? 9 : 3", "% 2 == 0 ? 3 : 7"), ("(10 * ValueOf", "(9 * ValueOf"),
               ("ValueOf(addon[1])) % 4", "ValueOf(addon[1])) % 3"), ("sum % 10", "sum % 9"), ("i < 5", "i < 4"),
               ("workingDigits - 1;", "workingDigits - 2;"), ("if (i > 0) builder", "if (i > 1) builder")),
    *(Table(SYM + "EanUpcElements.h", r"kEanUpcLayouts\[\] = \{", r"\{EanUpcSymbol::\w+, *" + NUMBER * column + r"(\d+)",
            (more,)) for column in range(3)),
    *(Table(SYM + "EanUpcElements.h", r"kEanUpcLayouts\[\] = \{", r"FirstDigit::\w+, *" + NUMBER * column + r"(\d+)",
            (change,), programs)
      for column, change, programs in (
          (0, more, ()), (1, more, ()), (2, less, ()), (3, less, ("allocation_test",)))),
    *constants(SYM + "EanUpcElements.h",
               ('kNormalGuard[] = "101"', 'kNormalGuard[] = "111"'), ('"01010"', '"01110"', '"01011"'),
               ('"1011"', '"1001"', '"1010"'),
               ('kAddonSeparator[] = "01"', 'kAddonSeparator[] = "11"', 'kAddonSeparator[] = "00"'),
               ("kAddonGapModules = 8", "kAddonGapModules = 7", "kAddonGapModules = 9"),
               ("kCheckModulus = 10", "kCheckModulus = 9", "kCheckModulus = 11"),
               ("13 + 5 + 1", "13 + 4 + 1", "13 + 5 + 0"),
               ("+ 4 + 7", "+ 3 + 7", "+ 5 + 7"), ("2 * (digits - 1)", "2 * digits", "(digits - 1)")),
    *constants(SYM + "Ean13UpcASymbologies.cpp",
               ("working[0] = '0'", "working[0] = '1'"),
               ("working + 7, 6", "working + 6, 6", "working + 7, 5", "working + 7, 7"),
               ("AppendDigits(builder, working + 1", "AppendDigits(builder, working"),
               ("NumberSet::kR", "NumberSet::kL")),
    *constants(SYM + "Ean8Symbologies.cpp",
               ("working, 4, NumberSet::kL", "working, 3, NumberSet::kL", "working, 4, NumberSet::kG"),
               ("working + 4, 4, NumberSet::kR", "working + 3, 4, NumberSet::kR", "working + 4, 3, NumberSet::kR",
                "working + 4, 4, NumberSet::kL")),
    Table(SYM + "UpcESymbologies.cpp", r"kExpansions\[10\]\[kUpcADigits \+ 1\] = \{", r'"(.*)"', (next_in_row,
          exchange)),
    *constants(SYM + "UpcESymbologies.cpp",
               ('"010101"', '"010111"', '"000101"', '"110101"'), ("upcE[6]", "upcE[5]"), ("upcE[1 +", "upcE[0 +"),
               ("upcE[0]", "upcE[1]"),
               ("text + 1, parity", "text, parity")),
    # --- Interleaved 2 of 5
    Table(SYM + "Interleaved2of5Symbology.cpp", r"kDigitElements\[10\]\[6\] = \{", BITS, (flip, exchange, SWAP)),
    *constants(SYM + "Interleaved2of5Symbology.cpp",
               ('"0000"', '"0001"', '"1000"'), ('"100"', '"000"', '"110"', '"001"'),
               ("{1, 2, 4, 7, 0}", "{1, 2, 4, 8, 0}"),
               ("4 + 3;", "4 + 2;", "4 + 4;"), ("weight = 3;", "weight = 1;"),
               ("weight == 3 ? 1 : 3", "weight == 3 ? 2 : 3"),
               ("(10 - sum % 10) % 10", "(10 - sum % 10) % 9", "(10 - sum % 9) % 10"),
               ("length++] = '0'", "length++] = '1'"),
               ("2 * static_cast", "1 * static_cast")),
    *usual_capacity(SYM + "Interleaved2of5Symbology.cpp", 24936),
    # --- MSI
    *constants(SYM + "MsiSymbology.cpp",
               ('kStart[] = "110"', 'kStart[] = "100"'), ('kStop[] = "1001"', 'kStop[] = "1101"', 'kStop[] = "1011"'),
               ('kZeroBit[] = "100"', 'kZeroBit[] = "110"', 'kZeroBit[] = "101"'),
               ('kOneBit[] = "110"', 'kOneBit[] = "100"', 'kOneBit[] = "111"'),
               ("digit < 5", "digit < 4", "digit < 6"), ("- 10 + 1", "- 10", "- 9 + 1"),
               ("bit = 8", "bit = 4", "bit = 16"),
               ("doubled = true", "doubled = false"),
               ("(10 - sum % 10) % 10", "(10 - sum % 10) % 9", "(10 - sum % 9) % 10"),
               ("sum(2, 7)", "sum(1, 7)", "sum(2, 6)", "sum(2, 8)"),
               ("sum.Modulo(11)) % 11", "sum.Modulo(10)) % 11", "sum.Modulo(11)) % 10"),
               ("12 * (", "11 * (", "13 * ("), ("+ 1) + 3 + 4", "+ 0) + 3 + 4", "+ 1) + 2 + 4", "+ 1) + 3 + 5"),
               ("2 * static_cast", "1 * static_cast")),
    *usual_capacity(SYM + "MsiSymbology.cpp", 37424),
    # --- every linear symbology
    *constants(SYM + "ModuleString.h", ("'A'", "'B'"), ("'B'", "'C'"), ("'a'", "'b'"), ("'b'", "'c'")),
    *constants(SYM + "ModuleStringBuilder.h", ("kQuietZoneModules = 10", "kQuietZoneModules = 9",
               "kQuietZoneModules = 11")),
    *constants(SYM + "ModuleStringBuilder.cpp", ("lettersNeeded + 1 :", "lettersNeeded :", "lettersNeeded + 2 :")),
    *constants(SYM + "Symbology.h", ("kNarrowTextCapacity = 3120", "kNarrowTextCapacity = 3119",
               "kNarrowTextCapacity = 3121")),
    *constants(SYM + "Symbology.cpp", ("& 0xFF", "& 0x7F")),
    Table(SYM + "SymbologyFactory.cpp", r"kSymbologies\[\] = \{", r"\{(\d+), E", (more,)),
    Table(SYM + "SymbologyFactory.cpp", r"kSymbologies\[\] = \{", r"EncoderClass::(\w+)", (SWAP, lambda cell,
          row: "kMsi" if cell != "kMsi" else "kCode11")),
    Table(SYM + "SymbologyFactory.cpp", r"kSymbologies\[\] = \{", r"(true|false)", (lambda cell,
          row: "true" if cell == "false" else "false",)),
    # --- Data Matrix
    *(Table(DM + "SymbolSizes.cpp", table, r"\n    \{ *" + NUMBER * column + r"(\d+)", (change,))
      for table in (r"kSquareSizes\[kSquareSizeCount\] = \{", r"kRectangularSizes\[kRectangularSizeCount\] = \{")
      for column, change in (*((column, more) for column in range(8)), (8, twice))),
    *(Table(DM + "SymbolSizes.cpp", table, r"(\d+, +\d+), +\d+\}",
            (lambda cell, row: re.sub(r"(\d+)(, +)(\d+)", lambda m: f"{int(m[1]) + 1}{m[2]}{int(m[3]) - 1}", cell),))
      for table in (r"kSquareSizes\[kSquareSizeCount\] = \{", r"kRectangularSizes\[kRectangularSizeCount\] = \{")),
    *constants(DM + "SymbolSizes.h", ("= 1558", "= 1557", "= 1559"), ("= 2178", "= 2177", "= 2179"),
               ("SquareSizeCount = 24", "SquareSizeCount = 23"),
               ("RectangularSizeCount = 6", "RectangularSizeCount = 5")),
    *constants(DM + "SymbolSizes.cpp",
               ("isExpanding == 1", "isExpanding == 0", "isExpanding != 0"),
               ("isExpanding == 0", 2, "isExpanding != 1"),
               ("bits >> 8", "bits >> 7"), ("& 0xFF)", 2, "& 0x7F)"),
               ("codewords + 1)", "codewords)", "codewords + 2)"),
               ("codewords > kMaxRectangularDataCodewords", "codewords >= kMaxRectangularDataCodewords"),
               ("codewords > kMaxDataCodewords", "codewords >= kMaxDataCodewords")),
    *constants(DM + "CodewordBuffer.cpp",
               ("kPad = 129", "kPad = 128", "kPad = 130"), ("149 *", "148 *", "150 *"), ("% 253", "% 252", "% 254"),
               ("253 + 1", "253 + 0", "253 + 2"), ("<= 254", "<= 253", "<= 255"),
               ("value - 254", "value - 253", "value - 255"),
               ("RandomisedPad(index + 1)", "RandomisedPad(index)"), ("index = count_ + 1", "index = count_ + 2")),
    *constants(DM + "ReedSolomon.cpp",
               ("0x12D", "0x11D", "0x187"), ("kOrder = 255", "kOrder = 254"), ("kMaxDegree = 68", "kMaxDegree = 67"),
               ("+ degree + 1]", "+ degree]", "+ degree + 2]"), ("value *= 2", "value *= 3"),
               ("24 - 8 *", "16 - 8 *", "24 - 7 *"), ("coefficient % 4", "coefficient % 3"),
               ("errorCodewords + 3) / 4", "errorCodewords + 2) / 4", "errorCodewords) / 4"),
               ("lowMultiples_, 1)", "lowMultiples_, 2)"), ("highMultiples_, 16)", "highMultiples_, 8)"),
               ("leading & 0xF", "leading & 0x7"), ("leading >> 4", "leading >> 5"),
               ("remainder[w] << 8", "remainder[w] << 7"),
               (">> 24", 2, ">> 23"), ("words[i / 4]", "words[i / 5]")),
    Table(DM + "ReedSolomon.cpp", r"kDegrees\[\] = \{", r"(\d+)", (more,)),
    *constants(DM + "Interleaving.cpp", ("- block + size.blocks - 1", "- block + size.blocks", "+ size.blocks - 1",
               "- block")),
    Table(DM + "Placement.cpp", r"kUtah = \{", r"\{ ?(-?\d),", (more,)),
    Table(DM + "Placement.cpp", r"kUtah = \{", r"\{ ?-?\d, +(-?\d)\}", (less,)),
    Table(DM + "Placement.cpp", r"kCorners\[\] = \{", r"\{ ?(-?\d),", (more,)),
    Table(DM + "Placement.cpp", r"kCorners\[\] = \{", r"\{ ?-?\d, +(-?\d)\}", (less,)),
    *constants(DM + "Placement.cpp",
               ("row = 4", "row = 5", "row = 2"), ("column = 0;", "column = 1;"), ("row -= 2", "row -= 1"),
               ("column += 2", "column += 1"),
               ("row += 1;", "row += 2;"), ("column += 3", "column += 2"), ("row += 3", "row += 2"),
               ("column += 1;", "column += 2;"),
               ("row == rows_)", "row == rows_ - 1)"), ("columns_ % 4 != 0", "columns_ % 8 != 0", "columns_ % 2 != 0"),
               ("columns_ % 8 == 4", "columns_ % 8 == 2"), ("row == rows_ - 2", 2, "row == rows_ - 3"),
               ("row == rows_ + 4", "row == rows_ + 3"), ("columns_ % 8 == 0", "columns_ % 8 == 4"),
               ("column == 2", "column == 3"),
               ("4 - (rows_ + 4) % 8", "4 - (rows_ + 3) % 8", "3 - (rows_ + 4) % 8"),
               ("4 - (columns_ + 4) % 8", "4 - (columns_ + 3) % 8", "3 - (columns_ + 4) % 8"), ("& 0x80", "& 0x40"),
               ("columns_ - 2) = kNarrowBar", "columns_ - 2) = kNarrowSpace"),
               ("columns_ - 1) = kNarrowSpace", "columns_ - 1) = kNarrowBar"),
               ("columns_ - 2) = kNarrowSpace", "columns_ - 2) = kNarrowBar"),
               ("columns_ - 1) = kNarrowBar", "columns_ - 1) = kNarrowSpace"),
               ("row >= 2 && column", "row >= 1 && column", "row >= 3 && column"),
               ("column >= 2)", "column >= 1)", "column >= 3)")),
    *constants(DM + "SymbolGrid.cpp",
               ("? 1 : 0", "? 2 : 0", "? 1 : 1"), ("? 2 : 0", "? 1 : 0", "? 2 : 1"), ("line = 1", "line = 2"),
               ("linesOfRegion - 1", "linesOfRegion - 2", "linesOfRegion"),
               ("line % 2 == 0", "line % 2 == 1"), ("column += 2", "column += 1"),
               ("Write(kNarrowBar, 1)", 2, "Write(kNarrowSpace, 1)"),
               ("Write(kNarrowSpace, 1)", "Write(kNarrowBar, 1)"), ("Write(rightSide, 1)", "Write(kNarrowBar, 1)")),
    *constants(DM + "DataMatrixEncoder.h",
               ("kMaxDataMatrixText = 3116", "kMaxDataMatrixText = 3115", "kMaxDataMatrixText = 3117")),
    *constants(DM + "DataMatrixEncoder.cpp",
               ("kMacro05Format = 2", "kMacro05Format = 1", "kMacro05Format = 4"),
               ("kMacro06Format = 3", "kMacro06Format = 4"), ("kMacro05Codeword = 236", "kMacro05Codeword = 235"),
               ("kMacro06Codeword = 237", "kMacro06Codeword = 238")),
    *constants(DM + "BinaryText.cpp", ("value << 1", "value << 2"), ("? 1u : 0u", "? 0u : 1u")),
    # --- Data Matrix, text to codewords
    *(Table(DM + "C40Sets.h", f"k{table}Ranges\\[\\] = \\{{", cell, (change,))
      for table in ("C40", "Text", "X12")
      for cell, change in ((r"\n    \{ *'(\\?[^']+)'", next_character),
                           (r"\n    \{ *'[^']+', +'(\\?[^']+)'", next_character),
                           (r"', +(\d),", more), (r"', +\d, +(\d+)\}", more))),
    *constants(DM + "C40Sets.h", ("kPadValue = 0", "kPadValue = 1"), ("kShift2Value = 1", "kShift2Value = 2"),
               ("kUpperShift = 30", "kUpperShift = 29", "kUpperShift = 31"), ("- kSetBytes]", "- kSetBytes + 1]")),
    Table(DM + "LookAheadWeights.h", r"kLookAheadWeights\[kCharacterClassCount\] = \{", r"AsciiRule::(\w+)",
          (to("kHalf"), to("kRoundUp"), to("kTruncate"))),
    *(Table(DM + "LookAheadWeights.h", r"kLookAheadWeights\[kCharacterClassCount\] = \{",
            r"\{ +" + NUMBER * column + r"(\d+)",
            (more, lambda cell, row: {"2": "4", "4": "10", "10": "2"}[cell])) for column in range(3)),
    Table(DM + "LookAheadWeights.h", r"kLookAheadWeights\[kCharacterClassCount\] = \{", r"\}, +(\d+)\}",
          (more, lambda cell, row: {"3": "13", "13": "3"}[cell])),
    *constants(DM + "AsciiEncodation.cpp",
               ("kFirstDigitPair = 130", "kFirstDigitPair = 129", "kFirstDigitPair = 131"),
               ("kUpperShift = 235", "kUpperShift = 234"),
               ("kEci = 241", "kEci = 240"), ("* 10", "* 9"), ("byte + 1", "byte + 2"), ("byte - 128", "byte - 127"),
               ("byte != 128)", "byte != 129)"), ("byte <= 127)", "byte <= 126)", "byte <= 128)"),
               ("byte <= 127 ?", "byte <= 126 ?", "byte <= 128 ?"),
               ("byte != 128 ? 2 : 0", "byte != 128 ? 1 : 0", "byte != 129 ? 2 : 0"),
               ("number < 127", "number < 126", "number < 128"), ("number < 16383", "number < 16382", "number < 16384"),
               ("(number - 127)", 2, "(number - 128)"),
               ("(number - 16383) / 64516", "(number - 16382) / 64516", "(number - 16383) / 64515"),
               ("(number - 16383) / 254", "(number - 16382) / 254"),
               ("(number - 16383) % 254", "(number - 16382) % 254"),
               ("+ 192", "+ 191"), ("/ 254 + 128", "/ 254 + 127", "/ 253 + 128"), ("% 254 + 1", 3, "% 254 + 2"),
               ("127) % 254", "127) % 255"), ("16383) % 254", "16383) % 255"),
               ("/ 254 % 254", "/ 254 % 255", "/ 254 % 192")),
    *constants(DM + "C40TextX12Encodation.cpp",
               ("kGroup = 3", "kGroup = 2", "kGroup = 4"), ("1600 *", "1599 *"), ("40 *", "39 *"),
               ("queue_[2] + 1", "queue_[2]", "queue_[2] + 2"),
               ("/ 256", "/ 255"), ("% 256", "% 255"), ("queued_ == 2", "queued_ == 1"),
               ("queued_ < 3", "queued_ < 2"), (".count) % 3", ".count) % 2"),
               ("values_ != 1", "values_ != 2")),
    *constants(DM + "EdifactEncodation.cpp", ("kGroup = 4", "kGroup = 3"), ("<< 6", "<< 5"), ("0x3F", "0x1F"),
               ("bits >> 16", "bits >> 15"),
               ("bits >> 8 & 0xFF", "bits >> 7 & 0xFF")),
    Table(DM + "Encodation.cpp", r"kLatchCodewords\[\] = \{", r"(\d+),", (more,)),
    *constants(DM + "Encodation.cpp", ("kFnc1Format = 1", "kFnc1Format = 2"),
               ("kFnc1Codeword = 232", "kFnc1Codeword = 231"),
               ("kTripleUnlatch = 254", "kTripleUnlatch = 253"),
               ("kEdifactUnlatch = 124", "kEdifactUnlatch = 120", "kEdifactUnlatch = 125"),
               ("codewords.Count() == 1", "codewords.Count() == 0", "codewords.Count() == 2"),
               ("capacity - count <= 2", "capacity - count <= 1", "capacity - count <= 3"),
               ("position == 1 && rest == 1", "position == 2 && rest == 1", "position == 1 && rest == 2"),
               ("capacity == count + 1", "capacity == count + 2"),
               ("return count + 1 ==", "return count + 2 ==")),
    *constants(DM + "LookAhead.cpp",
               ("return current == Mode::kAscii ? 1 : 2", "return current == Mode::kAscii ? 2 : 2",
                "return current == Mode::kAscii ? 1 : 1", "return current == Mode::kAscii ? 1 : 3"),
               ("edifactQuarters_, 4", "edifactQuarters_, 3", "edifactQuarters_, 5"),
               ("thirds_[column], 3", "thirds_[column], 2"),
               ("/ 2 * 2 + 2", "/ 2 * 2 + 1", "/ 2 * 2 + 3"), ("thirds_[column] % 3", "thirds_[column] % 2"),
               ("difference <= 0", "difference < 0"),
               ("difference < 0)", "difference <= 0)")),
    # --- fills
    *constants(HATCH + "Hatcher.cpp", ("= 20.0", "= 19.0", "= 21.0"), ("= 2.0", "= 1.0", "= 3.0")),
    *constants(HATCH + "FillBuffer.cpp", ("kLineSegments = 0", "kLineSegments = 1"), ("kPoints = 2", "kPoints = 1"),
               ("OfPoints = 6", "OfPoints = 5", "OfPoints = 7")),
    Table(HATCH + "HatchPatterns.cpp", r"enum HatchingType : std::int32_t \{", r"= (\d)", (lambda cell,
          row: "4" if cell != "6" else "7", lambda cell, row: "9")),
    *constants(HATCH + "HatchPatterns.cpp", ("lineGap > 0.0", "lineGap >= 0.0", "lineGap > 0.001")),
    *constants(HATCH + "HatchGrid.h", ("kUncountable = -1", "kUncountable = 0"),
               ("2147483647", "2147483646", "2147483648")),
    *constants(HATCH + "HatchGrid.cpp",
               ("-2147483649.0", "-2147483648.0", "-2147483650.0"), ("2147483648.0)", "2147483647.0)"),
               ("gap + 0.5", "gap + 0.4", "gap + 0.6"), ("4294967296.0", "2147483648.0"),
               ("1.0 / 4503599627370496.0", "0.0"),
               ("shortfall) + 1", "shortfall) + 0", "shortfall) + 2")),
    *constants(HATCH + "GrowableArray.h", ("kInitialCapacity = 16", "kInitialCapacity = 15", "kInitialCapacity = 17"),
               ("2 * capacity_", "3 * capacity_", "capacity_ + 1"), ("RoomFor(1)", "RoomFor(2)")),
    *constants(HATCH + "HatchLists.h", ("RoomFor(4)", "RoomFor(5)"),
               ("room[2] = xb", "room[2] = xa")),
    *constants(HATCH + "LinePatterns.cpp",
               ("kDoublesPerSegment = 4", "kDoublesPerSegment = 3", "kDoublesPerSegment = 5"),
               ("kDoublesPerPoint = 2", "kDoublesPerPoint = 1", "kDoublesPerPoint = 3"), ("* 0.5", 2, "* 0.4"),
               ("forward = true", "forward = false"), ("room[3] = y", "room[3] = from")),
    *constants(HATCH + "SpiralPattern.cpp",
               ("kDoublesPerSegment = 4", "kDoublesPerSegment = 3", "kDoublesPerSegment = 5"),
               ("kFirstSegments = 3", "kFirstSegments = 2", "kFirstSegments = 4"),
               ("highGaps + 0.5", "highGaps + 0.4", "highGaps + 0.6"),
               ("lowGaps + 0.5", "lowGaps + 0.4", "lowGaps + 0.6"),
               ("(low) + 1.0", "(low) + 0.0", "(low) + 2.0"), ("low.x / gap", "low.x * gapsPerUnit"),
               ("low.y * gapsPerUnit", "low.y / gap"),
               ("high.x * gapsPerUnit", "high.x / gap"), ("high.y * gapsPerUnit", "high.y / gap"),
               ("horizontal - 1", "horizontal"), ("vertical - 1", "vertical"),
               ("2 * verticalLegs + 1", "2 * verticalLegs", "2 * verticalLegs + 2"),
               ("2 * horizontalLegs :", "2 * horizontalLegs - 1 :", "2 * horizontalLegs + 1 :")),
    *constants(HATCH + "BuildRects.cpp", ("modules += 1.0", "modules += 2.0"), ("x = 0.0", "x = 1.0")),
    *constants(HATCH + "HatchGeometry.h", ("lowerLeft.x += dx", "lowerLeft.x += dy"),
               ("lowerLeft.y += dy", "lowerLeft.y += dx"),
               ("upperRight.x += dx", "upperRight.x += dy"), ("upperRight.y += dy", "upperRight.y += dx")),
    # --- settings
    Table(API + "BarcodeSettings.cpp", r"void ResetSettings\(BarcodeSettings& settings\) \{", r"= (-?[0-9.]+);",
          (lambda cell, row: "7.0" if "." in cell else str(int(cell) + 7),)),
    Table(API + "BarcodeSettings.cpp", r"void ResetSettings\(BarcodeSettings& settings\) \{", r"u'(\d)'", (more,)),
    *constants(API + "BarcodeSettings.cpp", ("0x0C0C", "0x0C0D", "0x0D0C"), ("Refused = false", "Refused = true")),
    *constants(API + "BarcodeSettings.h", ("kDataStringCapacity = 3120", "kDataStringCapacity = 3119",
               "kDataStringCapacity = 3121")),
    *constants(API + "LinearExports.cpp", ("12345", "12344", "12346")),
    *constants(API + "ApiTrace.cpp", ("0xFFFD", "0xFFFC")),
]

# Mutants that no test can tell from the original, each with the reason.
EQUIVALENT = (
    (r"Code11Symbology.cpp:\d+ constant: (6 \* \(length|length \+ 4\) - 1|2 \* static_cast)",
     "the longest text makes 18,757 letters: the usual 24,936 bytes hold every string, whatever is computed here"),
    (r"Interleaved2of5Symbology.cpp:\d+ constant: (4 \+ 3;|2 \* static_cast)",
     "the longest text makes 15,627 letters: the usual 24,936 bytes hold every string"),
    (r"Code93Characters.cpp:\d+ row (39|40|41|42|47): . -> .$",
     "the names of $ / + % and start/stop are read by people alone: the signs are always written as pairs (D-93-1)"),
    (r"Placement.cpp:\d+ constant: (row >= 2 && column -> row >= 3|column >= 2\) -> column >= 3)",
     "the places for which the faster of two ways is taken; one more place goes the other way, to the same modules"),
    (r"AsciiEncodation.cpp:\d+ constant: .*(/ 64516|/ 64515|/ 254 % 255)$",
     "three codewords: an ECI number is at most 65,535, so the first quotient is always 0 and the second at most 193"),
    (r"Encodation.cpp:\d+ row 0: 0 -> 1", "no mode has the number 0"),
    (r"SymbologyFactory.cpp:\d+ row (?!2:|22:)\d+: (true|false) -> (true|false)",
     "the column is read for Code 93 alone"),
)


def reason_it_is_equivalent(mutant):
    for pattern, reason in EQUIVALENT:
        if re.search(pattern, str(mutant)):
            return reason
    return None


def all_mutants(root):
    mutants = []
    for rule in RULES:
        text = (root / rule.file).read_text(encoding="utf-8")
        for start, end, what, after in rule.mutants(text):
            before = text[start:end]
            if before == after:
                continue
            mutants.append(Mutant(rule.file, start, end, text.count("\n", 0, start) + 1, what, before, after,
                       rule.programs))
    return list(dict.fromkeys(mutants))
