"""What mutation_rules.py and mutation_operators.py share: a mutant, and what of a source they look at.

Parts that are not looked at are blanked with NUL, so that every place keeps its number.
"""
import re
from dataclasses import dataclass

BODY = re.compile(r"\)(?: const)?(?: noexcept)?(?: override)? \{|\)\s+: [^;]*?[)}] \{")
NUMBER = re.compile(r"(?<![\w.'\x00])(0x[0-9A-F]+|\d+u|\d+(?:\.\d+)?)(?![\w.'\x00])")
HIDDEN = re.compile(r"//[^\n]*|/\*.*?\*/|\"(?:\\.|[^\"\\\n])*\"|'(?:\\.|[^'\\\n])'|^ *#[^\n]*(?:\\\n[^\n]*)*",
                    re.DOTALL | re.MULTILINE)
# Offsets for the compiler alone, and words that scripts/check-deviations holds to a page.
NOT_PRODUCT = {"src/api/RecordLayout.cpp", "src/mark/DeviationTable.cpp", "src/mark/RecordLayout.cpp"}


@dataclass(frozen=True)
class Mutant:
    file: str
    start: int
    end: int
    line: int
    what: str
    before: str
    after: str
    programs: tuple = ()  # instead of the test programs of the room

    def __str__(self):
        return f"{self.file}:{self.line} {self.what}: {self.change()}"

    def change(self):
        return "change places" if " rows " in self.what else f"{self.before} -> {self.after}"


def product(root):
    """(name, text) of each file of src."""
    for path in sorted(root.glob("src/**/*.cpp")) + sorted(root.glob("src/**/*.h")):
        name = path.relative_to(root).as_posix()
        if name not in NOT_PRODUCT:
            yield name, path.read_text(encoding="utf-8")


def blank(text, start, end):
    return text[:start] + re.sub(r"[^\n]", "\x00", text[start:end]) + text[end:]


def without_hidden(text):
    for found in HIDDEN.finditer(text):
        text = blank(text, *found.span())
    return text


def closing(text, start, pair="{}"):
    depth = 0
    for at in range(start, len(text)):
        depth += {pair[0]: 1, pair[1]: -1}.get(text[at], 0)
        if depth == 0 and text[at] == pair[1]:
            return at + 1
    raise LookupError("no closing " + pair[1])


def without_proofs(text):
    """Blanks static assertions and the constexpr functions that nothing else uses."""
    assertions = [(m.start(), closing(text, m.end() - 1, "()")) for m in re.finditer(r"\bstatic_assert\(", text)]
    functions = {}
    for found in re.finditer(r"^constexpr [\w:]+[&*]? (\w+)\(", text, re.MULTILINE):
        body = text.find("{", found.end())
        if body >= 0:
            functions[found[1]] = (found.start(), closing(text, body))
    proofs = list(assertions)
    grown = True
    while grown:
        grown = False
        for name, span in list(functions.items()):
            uses = [m.start() for m in re.finditer(rf"\b{name}\b", text)]
            outside = [at for at in uses if not any(a <= at < b for a, b in proofs + [span])]
            if not outside:
                proofs.append(functions.pop(name))
                grown = True
    for start, end in proofs:
        text = blank(text, start, end)
    return text


def asserted(text):
    """assert() states what holds; a weaker statement holds as well."""
    for found in list(re.finditer(r"\bassert\(", text)):
        text = blank(text, found.start(), closing(text, found.end() - 1, "()"))
    return text


def visible(text):
    return asserted(without_proofs(without_hidden(text)))


def bodies(text):
    """Where functions stand, the outermost ones."""
    end = 0
    for found in BODY.finditer(text):
        if found.end() > end:
            end = closing(text, found.end() - 1)
            yield found.start(), end


def next_numbers(number):
    if "." in number:
        return (str(float(number) + 1.0), str(float(number) / 2 if float(number) else -1.0))
    value, suffix = int(number.rstrip("u"), 0), "u" if number.endswith("u") else ""
    written = "0x%X" if number.startswith("0x") else "%d"
    return tuple(written % after + suffix for after in (value + 1, value - 1) if after >= 0)
