"""What scripts/mutate --operators changes: every comparison, condition and arithmetic operator of src/, and every
statement that can be left out; and --numbers: every number in a function, by one up and down, and every condition, taken
for true and for false. Found by the spaces that the formatter puts around binary operators, outside of comments, texts,
and what the compiler alone evaluates (static_assert and the functions that only stand for one).
"""
import re

from mutation_sources import NUMBER, Mutant, bodies, closing, next_numbers, product, visible

BINARY = {
    "<": ("<=",), "<=": ("<",), ">": (">=",), ">=": (">",), "==": ("!=",), "!=": ("==",),
    "&&": ("||",), "||": ("&&",), "+": ("-",), "-": ("+",), "*": ("/",), "/": ("*",), "%": ("/",),
    "<<": (">>",), ">>": ("<<",), "&": ("|",), "|": ("&",), "^": ("|",),
    "+=": ("-=",), "-=": ("+=",), "*=": ("/=",), "/=": ("*=",), "|=": ("&=",), "^=": ("|=",), "<<=": (">>=",),
}
OPERATOR = re.compile(r"(?<= )(" + "|".join(sorted(map(re.escape, BINARY), key=len, reverse=True)) + r")(?=[ \n])")
STEP = re.compile(r"\+\+|--")
NEGATION = re.compile(r"(?<![\w)])!(?=[\w(])")
CONDITION = re.compile(r"\b(?:if|while) \(")
LOOP = re.compile(r"\bfor \([^;:()]*;([^;]*);")
CHOICE = re.compile(r"\s\?\s")
BEFORE_CONDITION = re.compile(r"(?:\breturn|[^=!<>]=|[,;?]|[^:]:)\s$|[({\[]$")
ANSWER = re.compile(r"\breturn (true|false);")
# A call whose result nobody wants, or an assignment: one line that no type begins.
STATEMENT = re.compile(r"^ +((?!(?:return|case|using|delete|default)\b)[\w.:\[\]>*()-]+(?:<\w+>)?"
                       r"(?:\(.*\)| [-+*/|&^]?= .*));$", re.MULTILINE)


def changes(text):
    for found in OPERATOR.finditer(text):
        for after in BINARY[found[1]]:
            yield found.start(1), found.end(1), "operator", after
    for found in STEP.finditer(text):
        yield found.start(), found.end(), "step", "--" if found[0] == "++" else "++"
    for found in NEGATION.finditer(text):
        yield found.start(), found.end(), "negation", ""
    for found in CONDITION.finditer(text):
        end = closing(text, found.end() - 1, "()")
        if re.search(r"[^=!<>]=[^=]", text[found.end():end]) is None:  # declares nothing
            yield found.end() - 1, end, "condition", "(!" + text[found.end() - 1:end] + ")"
    for found in ANSWER.finditer(text):
        yield found.start(1), found.end(1), "answer", "false" if found[1] == "true" else "true"


def condition_before(text, end):
    """The condition whose question mark stands at the end."""
    begin, depth = end, 0
    while depth or not BEFORE_CONDITION.search(text, begin - 8, begin):
        begin -= 1
        depth += {")": 1, "]": 1, "(": -1, "[": -1}.get(text[begin], 0)
    return begin + len(text[begin:end]) - len(text[begin:end].lstrip()), begin + len(text[begin:end].rstrip())


def numbers(text):
    for begin, end in bodies(text):
        for found in NUMBER.finditer(text, begin, end):
            for after in next_numbers(found[1]):
                yield found.start(1), found.end(1), "number", after
    for found in CONDITION.finditer(text):
        end = closing(text, found.end() - 1, "()")
        if re.search(r"[^=!<>]=[^=]", text[found.end():end]) is None:
            for after in ("(true)", "(false)"):
                yield found.end() - 1, end, "condition", after
    ends = [found.span(1) for found in LOOP.finditer(text) if found[1].strip()]
    choices = [condition_before(text, found.start()) for found in CHOICE.finditer(text)]
    for begin, end in ends + choices:
        for after in (" true", " false"):
            yield begin, end, "condition", after


def left_out(text):
    for found in STATEMENT.finditer(text):
        yield found.start(1), found.end(1), "statement", ""


# Mutants that no test can tell from the original: file, what the line says, what it says then, the reason.
EQUIVALENT = (
    ("ApplicationIdentifiers.cpp", "ai < 1000 ?", "ai <= 1000 ?", "one zero less of zeros alone leaves zeros"),
    ("ElementChecks.cpp", "2000 + PairAt(part, 0)", "2000 - PairAt(part, 0)", "a leap year as far behind 2000 as before it"),
    ("ElementChecks.cpp", "* 100 + PairAt(part, 2)", "* 100 - PairAt(part, 2)", "a leap year as far behind the century as before it"),
    ("ApplicationIdentifiers.cpp", "(i + 1);", "(i + 2);", "one range more does not have the identifier"),
    ("ElementChecks.cpp", "left < component.longest", "left <= component.longest", "the smaller of two that are equal is either"),
    ("EanUpcElements.cpp", "(count - i) % 2", "(count + i) % 2", "a sum and a difference are odd together"),
    ("Interleaved2of5.cpp", "digits.length - 1 - i", "digits.length - 1 + i", "a sum and a difference are odd together"),
    ("Interleaved2of5.cpp", "digits.length - 1 - i", "digits.length + 1 - i", "two apart are odd together"),
    ("Code128Reader.cpp", "value > kCode128SwitchToC", "value >= kCode128SwitchToC", "that switch is taken one line above"),
    ("Code128Reader.cpp", "length < kStopModules", "length <= kStopModules", "a stop alone has too few values"),
    *(("Code93Characters.cpp", f"{name} < kCode93CheckModulus", f"{name} <= kCode93CheckModulus",
       "one row more is that of start/stop, which nobody looks up by name") for name in ("value", "shift")),
    ("Msi.cpp", "digit - 10 + 1", "digit + 10 + 1", "two tens more change no check digit"),
    ("SymbolWriter.cpp", "needed > usual", "needed >= usual", "of two equal numbers either is the larger"),
    ("AsciiEncodation.cpp", "(number - 127) % 254", "(number + 127) % 254", "254 apart"),
    ("AsciiEncodation.cpp", "(number - 16383) % 254", "(number + 16383) % 254", "129 x 254 apart"),
    ("LookAhead.cpp", "(mode != static_cast<int>(candidate) && counts.counts[mode] <= counts[candidate])",
     "(!(mode != static_cast<int>(candidate) && counts.counts[mode] <= counts[candidate]))",
     "a shortcut less: the choices behind it are tried one by one and agree"),
    ("LookAhead.cpp", "  return true;", "  return false;",
     "a shortcut less: the choices behind it are tried one by one and agree"),
    ("LookAhead.cpp", "kAscii || IsBelowAllOthers", "kAscii && IsBelowAllOthers",
     "a shortcut less: the choices behind it are tried one by one and agree"),
    ("LookAhead.cpp", "mode)) return true;", "mode)) return false;",
     "a shortcut less: the choices behind it are tried one by one and agree"),
    ("C40Sets.h", "          return false;", "          return true;", "a statement for the compiler alone"),
    *(("C40Sets.h", before, after, "a statement for the compiler alone")
      for before, after in (("i = 0; i < kSetBytes", "i = 1; i < kSetBytes"), (" i < kSetBytes;", " false;"),
                            ("k = 0; k < i", "k = 1; k < i"), (" k < i;", " false;"),
                            ("(rows[i].count == rows[k].count && rows[i].values[0] == rows[k].values[0] &&\n"
                             "            rows[i].values[1] == rows[k].values[1] && rows[i].count != 0)", "(false)"))),
    ("ReedSolomon.h", "/ ", "* ", "an array longer than needed"),
    ("ThirdsSum.h", "kLastPower - kFirstPower", "kLastPower + kFirstPower", "an array longer than needed"),
    ("ThirdsSum.cpp", "    ++work_;", "    --work_;", "a count for the tests, which look at its upper bound"),
    ("ThirdsSum.cpp", "pass.end < before.end", "pass.end <= before.end", "two passes with one end are the same from there on"),
    ("ThirdsSum.cpp", "+ 2 >= to.end", "+ 2 > to.end", "of two characters none is left for the multiplication"),
    ("ThirdsSum.cpp", "+ 2 >= to.end", "- 2 >= to.end",
     "of one character, at the end of the text, the one before is subtracted and added again; from 8 on that is exact"),
    ("LookAhead.cpp", "++work_;", "--work_;", "a count for the tests, which look at its upper bound"),
    ("LookAhead.cpp", "(digitsEnd_ - position_) % 2", "(digitsEnd_ + position_) % 2", "a sum and a difference are odd together"),
    ("LookAhead.cpp", "position > length_", "position >= length_", "at the end the mode in force costs least"),
    ("Placement.cpp", "row >= 0 && column < columns_", "row >= 0 || column < columns_",
     "steps outside of the matrix place nothing, and the way back is the same diagonal"),
    ("Placement.cpp", "row >= 0 && column < columns_", "row >= 0 && column <= columns_", "a step outside places nothing"),
    ("Placement.cpp", "row < rows_ && column >= 0", "row <= rows_ && column >= 0", "a step outside places nothing"),
    ("Placement.cpp", "row < rows_ && column >= 0", "row < rows_ && column > 0", "on the way down columns are odd"),
    ("Placement.cpp", "row < rows_ || column < columns_", "row <= rows_ || column < columns_", "a turn outside places nothing"),
    ("Placement.cpp", "row < rows_ || column < columns_", "row < rows_ || column <= columns_", "a turn outside places nothing"),
    ("Placement.cpp", "column >= columns_)", "column > columns_)", "columns are odd on the way down, and no size is"),
    ("Placement.cpp", "row >= 2 && column", "row > 2 && column", "both ways write the same modules"),
    ("Placement.cpp", "column >= 2)", "column > 2)", "both ways write the same modules"),
    ("Placement.cpp", "(rows_ + 4) % 8", "(rows_ - 4) % 8", "8 apart"),
    ("Placement.cpp", "(columns_ + 4) % 8", "(columns_ - 4) % 8", "8 apart"),
    ("SymbolSizes.cpp", "dataCodewords >= codewords ?", "dataCodewords > codewords ?",
     "what holds no more than needed is the smallest, which was looked at before"),
    ("LookAhead.cpp", "digitsEnd_ < position_", "digitsEnd_ <= position_", "assigns what is there already"),
    ("HatchGrid.cpp", "value < 0.0", "value <= 0.0", "-0.0 and 0.0 are equally far from everything"),
    ("HatchGrid.cpp", "> Magnitude(end)", ">= Magnitude(end)", "of two equal numbers either is the larger"),
    ("Code128Patterns.cpp", "i < 6", "i <= 6", "the NUL behind the six widths is no width"),
    ("DeviationText.cpp", "i < kDeviationCount", "i <= kDeviationCount", "no mark meets what stands behind the last deviation"),
    ("Extents.cpp", "wideSize < module", "wideSize <= module", "of two equal numbers either is the smaller"),
    ("JobRecord.cpp", "value > 0.0;", "value >= 0.0;", "0 was let through above"),
    ("JobRecord.cpp", "isNone = job.quiet < 0.0", "isNone = job.quiet <= 0.0", "0 asks for the standard's, which is never too small"),
    *(("LinearMark.cpp", "(letters + 1)", f"(letters {other})", "a character has many letters, and a NUL takes one byte")
      for other in ("- 1", "+ 0", "+ 2")),
    ("MatrixMark.cpp", "dataCodewords) + 1", "dataCodewords) - 1", "a macro takes a codeword itself, which gives no two digits then"),
    *(("MatrixMark.cpp", before, after, "no codewords are read as more bytes than MostBytesRead says")
      for before, after in (("room - 1", "room + 1"), ("room - 1", "room - 0"), ("dataCodewords) + 1", "dataCodewords) + 2"))),
    *(("ResultBlock.cpp", before, after, "a machine of 32 bits alone has less room than the strokes of a mark may take")
      for before, after in (("PTRDIFF_MAX) - bytes", "PTRDIFF_MAX) + bytes"), ("doubles > most", "doubles >= most"),
                            ("most / sizeof", "most * sizeof"), ("return false;", "return true;"),
                            ("(doubles > most / sizeof(double))", "(false)"))),
    ("Sentences.cpp", "given > longest &&", "given >= longest &&", "a text as long as the longest is not refused for its length"),
    ("Sentences.cpp", "dataCodewords < refusal", "dataCodewords <= refusal", "what holds exactly so many is the smallest, and taken"),
    ("ElementSentences.cpp", "length > lengths.longest", "length >= lengths.longest", "a value of all its parts is complete"),
    ("ElementSentences.cpp", "length < lengths.shortest", "length <= lengths.shortest", "a value that is as short as it may be is complete"),
    ("LinearMark.cpp", "bytes[count] = '\\0'", "", "the reading is compared by its length"),
    ("LinearMark.cpp", "at < text.length", "at <= text.length", "the NUL is written over what stands behind the text"),
    ("Hatcher.cpp", "mostDoubles <= 0", "mostDoubles < 0", "a list of nothing makes no fill either"),
    ("LinePatterns.cpp", "strokes > kMostDoubles", "strokes >= kMostDoubles", "so many are refused with their coordinates"),
    ("SpiralPattern.cpp", "lower = lowEdge", "", "every bound is 0.0 from the start"),
    ("GrowableArray.h", "if (capacity_ - count_ < items", "if (capacity_ - count_ <= items",
     "behind it the same is tested again"),
    ("GrowableArray.h", "capacity > static_cast", "capacity >= static_cast", "nobody has so much memory"),
    *(("ApiTrace.cpp", "value = 0.0", f"value = {other}", "written before it is read")
      for other in ("-1.0", "1.0")),
    ("ApiTrace.cpp", "(stream_ != nullptr)", "(true)", "without a stream of its own it writes out the others"),
    ("ApiTrace.cpp", "text != nullptr ?", " true ?", "this runtime prints the same for null"),
    ("ApiTrace.cpp", "(!AreWanted())", "(false)", "each piece asks again"),
    ("DataMatrixExports.cpp", "(matrix->data != nullptr)", "(true)", "the hatcher refuses a matrix without modules as well"),
    *(("AsciiEncodation.cpp", before, after, "a number is at most 65,535: the first quotient is 0, the second at most 193")
      for before, after in (("16383) / 64516", "16382) / 64516"), ("16383) / 64516", "16384) / 64516"),
                            ("64516", "64515"), ("64516", "64517"),
                            ("/ 254 % 254", "/ 254 % 253"), ("/ 254 % 254", "/ 254 % 255"))),
    ("TripleWriter.cpp", "(queued_ == 2)", "(true)",
     "none waits, or two: a pad without them completes no codewords"),
    *((file, f"({buffer}.HasOverflowed())", "(false)", "refused all the same, as no size holds so many")
      for file, buffer in (("C40TextX12Encodation.cpp", "state.codewords"), ("EdifactEncodation.cpp", "state.codewords"))),
    *(("LookAhead.cpp", before, after, "a shortcut less: the choices behind it are tried one by one and agree")
      for before, after in (("mode = 1;", "mode = 0;"),
                            ("(mode != static_cast<int>(candidate) && counts.counts[mode] <= counts[candidate])",
                             "(true)"),
                            ("(mode == Mode::kAscii || IsBelowAllOthers(behind, mode))", "(false)"),
                            ("(ChooseMode(raisedCounts) != mode)", "(true)"),
                            ("(IsSettled(counts, whole, mode))", "(false)"))),
    ("LookAhead.cpp", "mode = 2;", "mode = 1;", "ASCII is taken also where its count is shared"),
    ("Placement.cpp", "column >= 0; row += 2", "column >= 1; row += 2", "on the way down columns are odd"),
    ("Placement.cpp", "(row >= 2 && column >= 2)", "(false)", "both ways write the same modules"),
    ("Placement.cpp", "row >= 2 && column", "row >= 3 && column", "both ways write the same modules"),
    ("Placement.cpp", "column >= 2)", "column >= 3)", "both ways write the same modules"),
    *(("Placement.cpp", "At(rows_ - 1, columns_ - 1) !=", other, "the four modules of the corner are left together")
      for other in ("At(rows_ - 2, columns_ - 1) !=", "At(rows_ - 1, columns_ - 2) !=")),
    ("ReedSolomon.cpp", "sum = 0", "sum = 1", "an array longer than needed"),
    ("ReedSolomon.cpp", "value >= 256", "value >= 255", "what was doubled is even"),
    *(("ReedSolomon.cpp", before, after, "the leading coefficient is 1, and log[0] is the logarithm of 1 as well")
      for before, after in (("power = degree + 1", "power = degree + 0"),
                            ("+ degree + 1] : 0", "+ degree + 1] : 1"), ("{1}", "{0}"))),
    ("ReedSolomon.cpp", "(factor != lowestBit)", "(false)", "the same products one by one"),
    ("ReedSolomon.cpp", "kMaxWords + 1", "kMaxWords + 2", "an array longer than needed"),
    ("SymbolGrid.cpp", "column = 0; column < size_.symbolColumns", "column = 1; column < size_.symbolColumns",
     "the number of columns is even"),
    ("ThirdsSum.cpp", "(times == 0)", "(false)", "nothing is added"),
    ("ThirdsSum.cpp", "(1 << power)", "(2 << power)", "from 16 on instead of 8; below it one by one"),
    ("ThirdsSum.cpp", "(from.end + 2 >= to.end)", "(false)", "as with - 2"),
    *(("ThirdsSum.cpp", "+ 2 >= to.end", f"+ {few} >= to.end", "so few characters may go either way") for few in (1, 3)),
    ("ThirdsSum.cpp", "kFirstPower + 1;", "kFirstPower + 0;", "the first stretch once more, which adds nothing"),
    ("ThirdsSum.cpp", "(3 * start", "(4 * start", "a start is below three, and the division drops the rest"),
    ("Code11.cpp", "{c, 0}", "{c, 1}", "of one check character the second is not read"),
    ("Code128Patterns.cpp", "i < 6", "i < 5", "the last element is light, as what nobody writes is"),
    ("Code128Patterns.cpp", "i < 6", "i < 7", "the NUL behind the six widths is no width"),
    ("Code128Patterns.cpp", "position = 1", "position = 0", "the start once more, times nothing"),
    ("Code93Characters.cpp", "symbol[1] == '\\0'", "symbol[2] == '\\0'", "no name has two characters"),
    ("Code93Characters.cpp", "shift = 0;", "shift = 1;", "row 0 is no shift"),
    ("Code93Characters.cpp", " shift < kCode93CheckModulus", " true", "each sign that is looked for has its row"),
    ("Ean13UpcA.cpp", "strlen(working) + 1", "strlen(working) + 2", "a byte more, behind the NUL"),
    *(("EanUpcElements.cpp", "addonDigits) + 1", f"addonDigits) + {more}", "digits are read by their count, not up to a NUL")
      for more in (0, 2)),
    ("SymbolWriter.cpp", "(overflowed_)", "(false)",
     "behind an assertion of the same; without it MoreLettersThanAnnouncedAreNoString fails"),
    *(("UpcE.cpp", f"char {name}[kUpcADigits + 1]", f"char {name}[kUpcADigits + 2]", "an array longer than needed")
      for name in ("upcA", "number")),
    ("HatchGrid.cpp", "whole = 0", "whole = 1", "written before it is read"),
    ("HatchGrid.cpp", "+ 4.0)", "+ 2.0)", "a margin: two are enough"),
    ("HatchGrid.cpp", "+ 4.0)", "+ 5.0)", "a margin: two are enough"),
    ("Hatcher.cpp", "(mostDoubles <= 0)", "(false)",
     "a list of nothing makes no fill, one of all memory gets none"),
    ("Hatcher.cpp", "mostDoubles <= 0", "mostDoubles <= 1", "no pattern makes a single double"),
    ("LinePatterns.cpp", "(rects.Count() == 0) return;", "(false) return;", "lines across nothing"),
    *((file, before, before.replace("0.0", after, 1), "an x that nobody reads, or a y")
      for file, before in (("ElementRows.cpp", "left, 0.0"), ("ElementRows.cpp", "raised(0.0, 0.0, 0.0"),
                           ("ElementRows.cpp", "0.0, grid_.cellSize)"), ("ElementRows.cpp", "Offset(0.0"))
      for after in ("-1.0", "1.0")),
    ("SpiralPattern.cpp", "low = 0", "low = 1", "written before it is read"),
    ("SpiralPattern.cpp", "high = 0", "high = 1", "written before it is read"),
    ("SpiralPattern.cpp", "horizontal > 0", "horizontal > 1", "one less than one is none"),
    ("SpiralPattern.cpp", "vertical > 0", "vertical > 1", "one less than one is none"),
    ("ApiTrace.cpp", "std::memcpy(&value, &bits, sizeof value)", "", "a double of a low word alone prints as 0.000000"),
    ("ApiTrace.cpp", 'std::fprintf(stream_, "%ls", static_cast<const wchar_t*>(static_cast<const void*>(text)))', "",
     "runs where wchar_t has 16 bits alone"),
    ("ApiTrace.cpp", "  std::fflush(traceStream);", "  ;", "closing writes out as well"),
)


def equivalent_row(mutant, text):
    first, last = text.rfind("\n", 0, mutant.start) + 1, text.find("\n", mutant.end)
    line, changed = text[first:last], text[first:mutant.start] + mutant.after + text[mutant.end:last]
    for row in EQUIVALENT:
        file, before, after, _ = row
        if mutant.file.endswith(file) and before in line and line.replace(before, after, 1) == changed:
            return row
    return None


def reason_it_is_equivalent(mutant, text):
    row = equivalent_row(mutant, text)
    return row and row[-1]


def mutants_by(rules, root):
    for name, text in product(root):
        seen = visible(text)
        found = [change for rule in rules if rule != left_out or name.endswith(".cpp") for change in rule(seen)]
        for start, end, what, after in sorted(found):
            if "\x00" in after:
                after = "(!" + text[start:end] + ")"
            yield Mutant(name, start, end, text.count("\n", 0, start) + 1, what, text[start:end], after)


def all_mutants(root):
    return mutants_by((changes, left_out), root)  # in a header, what looks like a statement is a declaration


def all_numbers(root):
    return mutants_by((numbers,), root)


def rows_without_mutant(root):
    """Reasons that have outlived their code."""
    texts = {}
    rows = set(EQUIVALENT)
    for mutant in (*all_mutants(root), *all_numbers(root)):
        text = texts.setdefault(mutant.file, (root / mutant.file).read_text(encoding="utf-8"))
        rows.discard(equivalent_row(mutant, text))
    return sorted(rows)
