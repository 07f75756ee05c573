#!/usr/bin/env python3
"""Usage: mark_datamatrix.py LIBRARY TEXT. Draws the modules of a Data Matrix with letters, from its centre points."""
import sys

from barhatch import Library


def main(library_path, text):
    library = Library(library_path)
    size = 100.0
    dark = library.data_matrix(text, height=size, line_gap=1.0, hatching_type=6)
    light = library.data_matrix(text, height=size, line_gap=1.0, hatching_type=6, invert=True)
    if dark is None or light is None:
        print("the library refused the text", file=sys.stderr)
        return 1
    modules = {point: "##" for point in dark.strokes} | {point: "  " for point in light.strokes}
    rows = sorted({y for _, y in modules}, reverse=True)
    for row in rows:
        print("".join(modules[point] for point in sorted(modules) if point[1] == row))
    print(f"{len(rows)} rows, {len(dark.strokes)} dark modules")
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]) if len(sys.argv) == 3 else __doc__)
