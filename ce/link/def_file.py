"""Module definition files: the names a DLL exports and the names it may import."""
from dataclasses import dataclass, field


class DefFileError(ValueError):
    """A line that is none of the forms below, or a name that is exported twice."""


@dataclass(frozen=True)
class Export:
    """One exported name and the symbol of the image that stands behind it."""
    name: str
    symbol: str


@dataclass(frozen=True)
class Import:
    """One function of the runtime under the name the image's code calls it by."""
    symbol: str
    name: str


@dataclass
class DefFile:
    """The library's file name and its entries, each a list of words."""
    library: str = ""
    entries: list = field(default_factory=list)

    def exports(self):
        """Entries of the form "name" or "name=symbol", no name twice."""
        exports = [self._export(words) for words in self.entries]
        names = [export.name for export in exports]
        for name in names:
            if names.count(name) > 1:
                raise DefFileError(f"exported twice: {name}")
        return exports

    def imports(self):
        """Entries of the form "name" or "symbol == name"."""
        return [self._import(words) for words in self.entries]

    @staticmethod
    def _export(words):
        if len(words) != 1:
            raise DefFileError(f"not an export: {' '.join(words)}")
        name, _, symbol = words[0].partition("=")
        return Export(name, symbol or name)

    @staticmethod
    def _import(words):
        if len(words) == 1:
            return Import(words[0], words[0])
        if len(words) == 3 and words[1] == "==":
            return Import(words[0], words[2])
        raise DefFileError(f"not an import: {' '.join(words)}")


def parse(text):
    """Reads "LIBRARY file", "EXPORTS" and the entries below it; a semicolon begins a comment."""
    definition, in_exports = DefFile(), False
    for line in text.splitlines():
        words = line.split(";")[0].split()
        if not words:
            continue
        if words[0] == "LIBRARY" and len(words) == 2:
            definition.library = words[1].strip('"')
        elif words == ["EXPORTS"]:
            in_exports = True
        elif in_exports:
            definition.entries.append(words)
        else:
            raise DefFileError(f"outside of EXPORTS: {line.strip()}")
    if not definition.library:
        raise DefFileError("no LIBRARY line")
    return definition


def import_library_description(definition):
    """The text from which a host's tools make an import library: the public names alone."""
    names = sorted(export.name for export in definition.exports())
    return "".join([f"LIBRARY {definition.library}\n", "EXPORTS\n"] + [f" {name}\n" for name in names])
