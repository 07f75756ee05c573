"""The map of an image: sections with their sizes, then every function and object by address."""

FUNCTION_OR_OBJECT = (1, 2)


def symbol_map(library, elf, base, demangle=lambda names: names):
    """Text of the map. Addresses are as linked; at run time add the difference of the bases.

    demangle: turns a list of symbols into a list of readable names.
    """
    symbols = sorted({(s.address, s.size, s.name) for s in elf.symbols if s.type in FUNCTION_OR_OBJECT and s.section_index})
    names = demangle([name for _, _, name in symbols])
    lines = [f"{library}, linked at {base:08x}", "", "address       size  section"]
    lines += [f"{s.address:08x}  {s.size:8d}  {s.name}" for s in elf.loaded_sections()]
    lines += ["", "address       size  symbol"]
    lines += [f"{address:08x}  {size:8d}  {name}" for (address, size, _), name in zip(symbols, names)]
    return "\n".join(lines) + "\n"
