#!/usr/bin/env python3
"""Makes a Windows CE DLL around an ordinary ELF link.

  ce_link.py stubs --imports RUNTIME.def --output STUBS.s
      writes the import stubs, to be assembled and linked into the image
  ce_link.py image --elf IMAGE.elf --exports LIBRARY.def --imports RUNTIME.def --output LIBRARY.dll
      writes LIBRARY.dll, LIBRARY.def (description for an import library) and LIBRARY.map (symbols)
"""
import argparse
import subprocess
import sys
from pathlib import Path

import convert
import def_file
import elf_image
import import_stubs
import symbol_map

ERRORS = (convert.ConversionError, def_file.DefFileError, elf_image.ElfError)


def demangler(program):
    """A function that lets the program make C++ names readable; without a program names stay."""
    if not program:
        return lambda names: names
    return lambda names: subprocess.run([program], input="\n".join(names), text=True, check=True,
                                        capture_output=True).stdout.splitlines()


def write_stubs(arguments):
    imports = def_file.parse(arguments.imports.read_text()).imports()
    arguments.output.write_text(import_stubs.assembly(imports))


def write_image(arguments):
    elf = elf_image.ElfImage(arguments.elf.read_bytes())
    exports = def_file.parse(arguments.exports.read_text())
    runtime = def_file.parse(arguments.imports.read_text())
    image = convert.convert(elf, exports, runtime, arguments.machine)
    arguments.output.write_bytes(image.to_bytes())
    arguments.output.with_suffix(".def").write_text(def_file.import_library_description(exports))
    text = symbol_map.symbol_map(exports.library, elf, image.base, demangler(arguments.demangler))
    arguments.output.with_suffix(".map").write_text(text)


def parse_arguments(argv):
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    commands = parser.add_subparsers(required=True)
    stubs = commands.add_parser("stubs")
    stubs.set_defaults(run=write_stubs)
    image = commands.add_parser("image")
    image.set_defaults(run=write_image)
    image.add_argument("--elf", type=Path, required=True)
    image.add_argument("--exports", type=Path, required=True)
    image.add_argument("--machine", type=lambda text: int(text, 0), default=0x1C0)
    image.add_argument("--demangler", default="", help="program that makes C++ names readable (c++filt)")
    for command in (stubs, image):
        command.add_argument("--imports", type=Path, required=True)
        command.add_argument("--output", type=Path, required=True)
    return parser.parse_args(argv)


def main(argv):
    arguments = parse_arguments(argv)
    try:
        arguments.run(arguments)
    except ERRORS as error:
        print(f"ce_link: {error}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
