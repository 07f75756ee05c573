"""What scripts/mutate changes: the cells of every table, every named constant, the values of enumerators and of members, and
in functions the texts, characters, enumerators and answers. Found by themselves in every file of src/; the numbers in
functions are those of mutation_operators.py.

A table is a constant between braces. What stands between its commas is a row, and the literals and enumerators of a row are
its cells. A cell of zeros and ones is a pattern of modules or elements, one of the digits 1 to 4 the widths of elements.
"""
import re

from mutation_sources import HIDDEN, NUMBER, Mutant, bodies, next_numbers, product, visible

CONSTANT = re.compile(r"\b(?:constexpr|const) (?:[\w:<>, ]+?[*&]? )(\w+)(?:\[[^\]]*\])*(?: =\s+|(?=\{))")
VALUE = re.compile(r"\b(\w+) = (?=-?\d|true\b|false\b)[^;,}\s\x00]+(?=[;,\s}])")
ENUMERATION = re.compile(r"\benum (?:class )?(\w+)[^{;()]*\{([^}]*)\}")
NEIGHBOURS = re.compile(r"(?=(?<![\w.])(\d+)(, +)(\d+)(?![\w.]))")
LETTER = re.compile(r"^constexpr char (k\w+) = '", re.MULTILINE)
SIZEOF = re.compile(r"\bsizeof\([^)]*\)")
CELL = re.compile(rf"(?P<text>\"(?:\\.|[^\"\\])*\")|(?P<character>'(?:\\.[^']*|[^'\\])')|(?P<number>{NUMBER.pattern})|"
                  r"(?P<enumerator>(?<!case )\b(?:\w+::)?k[A-Z]\w*)(?![\w(])|(?P<answer>(?<!return )\b(?:true|false)\b)")
UNIT = re.compile(r"\\x[0-9A-Fa-f]{2}|\\.|.", re.DOTALL)  # of a text, escapes whole
SHORT = 12  # a longer text is prose

# Mutants that no test can tell from the original: file, what, change, the reason. Patterns of the whole; a change may be
# followed by the line it is made in, as "0 -> 1 in int a = 0;".
EQUIVALENT = (
    ("Code93Characters.cpp", r"kCode93Characters row (39|40|41|42|47)", r". -> .",
     "the names of $ / + % and start/stop are read by people alone: the signs are always written as pairs (D-93-1)"),
    ("Code93Characters.cpp", r"kCode93Characters row 4[3-6]", r"\((.)\) -> \(\1[^)]",
     "of the name of a shift character the sign alone is read"),
    ("EanUpcText.cpp", r"kMainForms rows \d and \d", "change places", "a row is found by its symbol and its digits"),
    ("EncodationState.cpp", "kLatchCodewords row 0", "0 -> 1", "no mode has the number 0"),
    ("ApiTrace.cpp", "traceEnded", "false -> true", "it is read where there is a stream, and attaching one sets it"),
    ("LookAhead.cpp", "ChooseMode value", "false -> true", "it is read where a mode costs no more than ASCII, which writes it"),
    ("LookAhead.cpp", "IsSettled value", "Mode::kAscii -> Mode::kBase256",
     "a shortcut less: the choices behind it are tried one by one and agree"),
    ("LookAhead.h", "work_", "0 -> 1", "a count for the tests, which look at its upper bound"),
    ("LookAhead.h", "ascii_", "0 -> 1", "written before it is read"),
    ("Placement.cpp", "kUntouched", r"\\0 -> \\x01", "any letter that is no module does"),
    ("ReedSolomon.cpp", "kMaxDegree", "68 -> 69", "an array longer than needed"),
    ("ReedSolomon.h", "kMaxDegree", "68 -> 69", "as many words of four"),
    ("ThirdsSum.h", "kPassCount", "1 -> 2", "an array longer than needed"),
    ("ThirdsSum.h", "kLongestText", r"4800 -> \d+", "nothing but assertions reads it, about texts that are never so long"),
    ("HatchGrid.cpp", "kErrorPerAddition", ".*", "a margin: half of it is enough, and twice of it is room that stays empty"),
    ("ThirdsSum.cpp", "kWeights row [0135-9]", "0 -> 1", "no character has so many thirds"),
    ("LookAhead.h", "digitsEnd_", "0 -> 1", "it is read where a digit stands at the beginning, which ends at 1 or later"),
    ("ApiTrace.cpp", "WriteWide text", "%ls -> .*", "runs where wchar_t has 16 bits alone"),
)


# Changes of a text between its quotes, by the number of its row: the new text, None where there is nothing to change.

def next_character(unit):
    if unit.startswith("\\x"):
        return f"\\x{int(unit[2:], 16) + 1:02X}"
    return {"\\0": "\\x01", "~": "}", "&": "(", "[": "]"}.get(unit, chr(ord(unit[-1]) + 1))


def with_unit(units, at, after):
    return "".join(units[:at] + [after] + units[at + 1:])


def next_in_row(units, row):
    """Another unit at one place, from those that the text consists of or would."""
    at = row % len(units)
    if set(units) <= {"0", "1"}:
        return with_unit(units, at, "0" if units[at] == "1" else "1")
    if len(units) > SHORT:  # a letter that no format needs
        at = next((place for place in range(1, len(units)) if units[place].isalpha() and units[place - 1].isalpha()), at)
    others = [unit for unit in units[at:] + units[:at] if unit != units[at]]
    return with_unit(units, at, next_character(units[at]) if len(units) > SHORT or not others else others[0])


def exchange(units, row, distance=1):
    """Two unequal neighbours change places: what the compiler counts stays the same."""
    for step in range(len(units) - distance):
        at = (row + step) % (len(units) - distance)
        if units[at] != units[at + distance]:
            return with_unit(list(with_unit(units, at, units[at + distance])), at + distance, units[at])
    return None


def widen(units, row):
    at = row % len(units)
    return with_unit(units, at, str(int(units[at]) % 4 + 1))


def changes_of_cell(units, row):
    if len(units) > SHORT or not units:
        return (next_in_row(units, row),) if units else ()
    if set(units) <= set("1234") and not set(units) <= {"1"}:  # bars and spaces by turns: both sums stay the same
        return widen(units, row), exchange(units, row, 2)
    return next_in_row(units, row), exchange(units, row)


def changes_of_constant(units, column):
    if set(units) <= {"0", "1"}:
        return tuple(next_in_row(units, at) for at in range(len(units)))
    return changes_of_text(units, column)


def changes_of_text(units, _):
    """Each character left out and one more at the end."""
    if len(units) > SHORT:
        return (next_in_row(units, 0),)
    return (*(with_unit(units, at, "") for at in range(len(units))),
            "".join(units) + next(chr(c) for c in range(ord("!"), 127) if chr(c) not in units))


# Where they stand. `text` has its comments, directives and proofs blanked, `bare` its texts and characters too.

def with_texts(source, bare):
    text = list(bare)
    for found in HIDDEN.finditer(source):
        if found[0][0] in "\"'" and bare[found.start() - 1] != "\x00":
            text[found.start():found.end()] = found[0]
    return "".join(text)


def elements(bare, begin, end):
    """What stands between the commas of a brace at `begin`, as places without the space around it."""
    depth, first, places = 0, begin + 1, []
    for at in range(begin, end):
        depth += {"{": 1, "(": 1, "}": -1, ")": -1}.get(bare[at], 0)
        if depth == 0 or depth == 1 and bare[at] == ",":
            places.append((first, at))
            first = at + 1
            if depth == 0:
                break
    return places


def trimmed(text, place):
    inside = text[slice(*place)]
    return (place[0] + len(inside) - len(inside.lstrip("\x00 \n")), place[1] - len(inside) + len(inside.rstrip("\x00 \n")))


def rows_of(text, bare, begin, end):
    while bare[begin] == "{":
        places = [trimmed(text, place) for place in elements(bare, begin, end)]
        places = [place for place in places if place[0] < place[1]]
        if len(places) != 1 or bare[places[0][0]] != "{":
            return places
        begin, end = places[0]
    return []


def swapped(text, bare, upper, lower):
    """Two rows change places; where the first cell is followed by others, it stays."""
    behind = []
    for begin, end in (upper, lower):
        parts = elements(bare, begin, end) if bare[begin] == "{" else []
        behind.append((trimmed(text, parts[1])[0], end - 1) if len(parts) > 1 and parts[1][0] < parts[1][1] else (begin, end))
    (a, b), (c, d) = behind
    if text[a:b] != text[c:d] and (bare[upper[0]] == "{") == (bare[lower[0]] == "{"):
        yield a, d, text[c:d] + text[b:c] + text[a:b]


def shifted(text, begin, end, row):
    """Of two neighbouring integers one is more and one less: their sum stays the same."""
    pairs = [pair for pair in NEIGHBOURS.finditer(text, begin, end) if pair[3] != "0"]
    if pairs:
        pair = pairs[row % len(pairs)]
        yield pair.start(1), pair.end(3), f"{int(pair[1]) + 1}{pair[2]}{int(pair[3]) - 1}"


def cells(text, begin, end, enumerations, of_text):
    """(begin, end, after) of each change between the places; of_text gets the units of a text and the number of its cell."""
    skipped = [found.span() for found in SIZEOF.finditer(text, begin, end)]
    for column, found in enumerate(CELL.finditer(text, begin, end)):
        first, last = found.span()
        if any(a <= first < b for a, b in skipped):
            continue
        if found.lastgroup in ("text", "character"):
            first, last = first + 1, last - 1
        units = UNIT.findall(text[first:last])
        whole = text[first:last]
        after = {"text": lambda: of_text(units, column), "character": lambda: (next_character(whole),),
                 "number": lambda: next_numbers(whole), "enumerator": lambda: next_enumerator(whole, enumerations),
                 "answer": lambda: ("false" if whole == "true" else "true",)}[found.lastgroup]()
        for change in after:
            if change is not None and change != whole:
                yield first, last, change


def next_enumerator(written, enumerations):
    scope, name = re.fullmatch(r"(\w+::)?(\w+)", written).groups(default="")
    members = enumerations.get(scope, [])
    if name not in members or len(members) < 2:
        return ()
    return (scope + members[(members.index(name) + 1) % len(members)],)


def function_name(bare, parameters_end):
    depth, at = 1, parameters_end
    while depth:
        at -= 1
        depth += {")": 1, "(": -1}.get(bare[at], 0)
    return re.search(r"\w*$", bare[max(0, at - 80):at])[0]


def mutants_of(source, enumerations):
    """(begin, end, what, after)."""
    bare = visible(source)
    text = with_texts(source, bare)
    inside = list(bodies(bare))
    seen = []
    for found in CONSTANT.finditer(bare):
        begin, end, name = found.end(), bare.find(";", found.end()), found[1]
        if not re.match(r"k[A-Z]", name):
            continue
        seen.append((begin, end))
        rows = rows_of(text, bare, begin, end)
        for row, place in enumerate(rows):
            for change in cells(text, *place, enumerations,
                                lambda units, column, row=row: changes_of_cell(units, row + column)):
                yield (*change[:2], f"{name} row {row}", change[2])
            for change in shifted(text, *place, row):
                yield (*change[:2], f"{name} row {row}", change[2])
            if row % 2 == 1:
                for change in swapped(text, bare, rows[row - 1], place):
                    yield (*change[:2], f"{name} rows {row - 1} and {row}", change[2])
        if bare[begin] != "{":
            for change in cells(text, begin, end, enumerations, changes_of_constant):
                yield (*change[:2], name, change[2])
    for found in VALUE.finditer(bare):
        if not any(begin <= found.start() < end for begin, end in inside + seen):
            for change in cells(text, found.end(1), found.end(), enumerations, changes_of_constant):
                yield (*change[:2], found[1], change[2])
    for begin, end in inside:
        for change in cells(text, begin, end, enumerations, changes_of_text):
            if not NUMBER.match(text, change[0]) and not any(a <= change[0] < b for a, b in seen):
                what = {'"': "text", "'": "character"}.get(text[change[0] - 1], "value")
                yield (*change[:2], f"{function_name(bare, begin)} {what}", change[2])


def programs_for(what):
    """What a module string is allocated with shows in the bytes that a short symbol takes."""
    return ("allocation_test",) if "UsualCapacity" in what else ()


def all_mutants(root):
    sources = list(product(root))
    enumerations = {"": []}  # by what stands in front of a member; letters are constants that stand for each other
    for _, source in sources:
        enumerations[""] += LETTER.findall(source) if len(LETTER.findall(source)) > 1 else []
        for name, members in ENUMERATION.findall(visible(source)):
            enumerations[name + "::"] = re.findall(r"\b(k\w+)\b(?=\s*(?:=|,|\x00|$))", members)
    found = []
    for name, source in sources:
        for begin, end, what, after in sorted(set(mutants_of(source, enumerations))):
            line = source.count("\n", 0, begin) + 1
            found.append(Mutant(name, begin, end, line, what, source[begin:end], after, programs_for(what)))
    return found


def equivalent_row(mutant, text):
    line = text[text.rfind("\n", 0, mutant.start) + 1:text.find("\n", mutant.end)].strip()
    for row in EQUIVALENT:
        file, what, change, _ = row
        if mutant.file.endswith(file) and re.fullmatch(what, mutant.what) and (
                re.fullmatch(change, mutant.change()) or re.fullmatch(change, f"{mutant.change()} in {line}")):
            return row
    return None


def reason_it_is_equivalent(mutant, text):
    row = equivalent_row(mutant, text)
    return row and row[-1]


def rows_without_mutant(root):
    """Reasons that have outlived their code."""
    texts = dict(product(root))
    return sorted(set(EQUIVALENT) - {equivalent_row(mutant, texts[mutant.file]) for mutant in all_mutants(root)})
