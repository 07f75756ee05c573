"""An ELF image, linked at its base with its relocations kept, becomes a PE image."""
import elf_image
import pe_image
from import_stubs import SLOT_PREFIX

BASE_SYMBOL = "__ImageBase"
IMPORT_SECTION = ".idata"

# Relocation types of the ARM ABI.
HOLDS_AN_ADDRESS = {2: "ABS32", 38: "TARGET1"}
MOVES_WITH_THE_CODE = {0: "NONE", 1: "PC24", 3: "REL32", 28: "CALL", 29: "JUMP24", 40: "V4BX", 42: "PREL31"}


class ConversionError(ValueError):
    """The image holds something that the loader of the device could not put right."""


def convert(elf, exports, runtime, machine):
    """The PE image of an ELF image.

    exports: definition of the exported names; runtime: definition of the library imported from.
    """
    base = elf.global_addresses()[BASE_SYMBOL]
    refuse_veneers(elf)
    image = pe_image.PeImage(base, elf.entry - base, machine)
    image.sections = [loaded_section(section, base) for section in elf.loaded_sections()]
    image.add_exports(exports.library, export_addresses(elf, exports.exports(), base))
    add_imports(image, elf, runtime.library)
    image.add_relocations(places_to_relocate(elf, base))
    return image


def refuse_veneers(elf):
    """Bridges between instruction sets hold addresses that the linker leaves no relocation for."""
    for symbol in elf.symbols:
        if symbol.name.endswith(("_veneer", "_from_arm", "_from_thumb")):
            raise ConversionError(f"mixed instruction sets: {symbol.name}")


def loaded_section(section, base):
    if section.address % pe_image.PAGE:
        raise ConversionError(f"{section.name} does not begin on a page")
    return pe_image.Section(section.name, section.address - base, section.size, section.data, characteristics(section))


def characteristics(section):
    if section.type == elf_image.SECTION_NO_DATA:
        return pe_image.ZEROED
    if section.flags & elf_image.FLAG_CODE:
        return pe_image.CODE
    return pe_image.WRITABLE if section.flags & elf_image.FLAG_WRITE else pe_image.CONSTANTS


def export_addresses(elf, exports, base):
    """Address of every exported name; all of them have to be there."""
    symbols = elf.global_addresses()
    missing = [export.symbol for export in exports if export.symbol not in symbols]
    if missing:
        raise ConversionError(f"exported but not defined: {' '.join(missing)}")
    return {export.name: symbols[export.symbol] - base for export in exports}


def add_imports(image, elf, library):
    """The ELF section of slots becomes the import address table, its symbols give the names."""
    section = next((s for s in elf.loaded_sections() if s.name == IMPORT_SECTION), None)
    if section is None:
        return
    inside = range(section.address, section.address + section.size)
    slots = sorted((address, name[len(SLOT_PREFIX):]) for name, address in elf.global_addresses().items()
                   if name.startswith(SLOT_PREFIX) and address in inside)
    expected = [section.address + 4 * i for i in range(len(slots))]
    if [address for address, _ in slots] != expected or section.size != 4 * len(slots) + 4:
        raise ConversionError("the import slots are not one table with a null at its end")
    image.add_imports(library, [name for _, name in slots], section.address - image.base)


def places_to_relocate(elf, base):
    """Words that hold an address inside the image, relative to the base."""
    places = set()
    for relocation in elf.relocations():
        if relocation.type in MOVES_WITH_THE_CODE:
            continue
        if relocation.type not in HOLDS_AN_ADDRESS:
            raise ConversionError(f"relocation type {relocation.type} at {relocation.address:#x} is not supported")
        # An undefined weak symbol is null and an absolute one a number: neither moves with the image.
        if relocation.symbol.section_index not in (elf_image.UNDEFINED, elf_image.ABSOLUTE):
            places.add(relocation.address - base)
    return places
