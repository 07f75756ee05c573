#!/usr/bin/env python3
"""Usage: mark_datamatrix.py LIBRARY TEXT. Draws the modules of a Data Matrix with letters, or says why there is none."""
import sys

from barhatch import Conformance, Library, MarkError, Module, Symbology, Want


def main(library_path, text):
    library = Library(library_path)
    try:
        mark = library.mark(symbology=Symbology.DATA_MATRIX, conformance=Conformance.DEVICE, text=text,
                            want=Want.MODULES)
    except MarkError as refused:
        print(f"{refused.status.name} at {refused.position}: {refused}", file=sys.stderr)
        return 1
    for row in range(mark.rows):
        print("".join("##" if mark.is_dark(row, column) else "  " for column in range(mark.columns)))
    print(f"{mark.rows} rows, {sum(module & Module.DARK for module in mark.modules)} dark modules")
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]) if len(sys.argv) == 3 else __doc__)
