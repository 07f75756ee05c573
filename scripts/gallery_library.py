"""The library as the gallery uses it: marks as the device makes them, and fills of bars that are no symbol."""
import ctypes
import sys
from ctypes import POINTER, Structure, c_char_p, c_double, c_int32, c_uint8
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "examples"))
import barhatch  # noqa: E402
from barhatch import Conformance, Flag, Pattern, Symbology, Want  # noqa: E402


class FillBufferInfo(Structure):
    _fields_ = [("FillingShapeType", c_int32), ("BufferLength", c_int32), ("FilledArray", POINTER(c_double)),
                ("FillHeight", c_double), ("FillWidth", c_double)]


# Bars of the gallery's own can be filled by the device interface alone.
DEVICE_EXPORTS = {
    "SetBarcodeSize": (None, [c_double, c_double]),
    "SetPrintRatio": (None, [c_double]),
    "SetImageInversionMode": (None, [c_uint8]),
    "SetHatchPattern": (None, [c_double, c_int32]),
    "HatchBarcodeString": (POINTER(FillBufferInfo), [c_char_p]),
    "FreeBarcodeData": (None, [POINTER(FillBufferInfo)]),
}


class Library(barhatch.Library):
    def __init__(self, path):
        super().__init__(path)
        for name, (result, arguments) in DEVICE_EXPORTS.items():
            function = getattr(self.exports, name)
            function.restype, function.argtypes = result, arguments

    def hatch(self, modules, width, height, ratio, gap, pattern, invert=False):
        """Strokes of a module string."""
        self.exports.SetBarcodeSize(width, height)
        self.exports.SetPrintRatio(ratio)
        self.exports.SetHatchPattern(gap, pattern)
        self.exports.SetImageInversionMode(invert)
        fill = self.exports.HatchBarcodeString(modules.encode("ascii"))
        size = 2 if pattern == Pattern.POINTS else 4
        strokes = list(zip(*[iter(fill.contents.FilledArray[:fill.contents.BufferLength])] * size))
        self.exports.FreeBarcodeData(fill)
        return strokes

    def linear(self, text, symbology, quiet_zone=False, **fields):
        """The mark of a linear symbol by the book, without quiet zone or, with it, inside the width."""
        around = {"flags": Flag.QUIET_INSIDE | Flag.PERMIT} if quiet_zone else {"quiet": -1}
        return self.mark(symbology=symbology, text=text, **around, **fields)

    def matrix(self, text, **fields):
        """The mark of a Data Matrix without quiet zone."""
        return self.mark(symbology=Symbology.DATA_MATRIX, conformance=Conformance.DEVICE, text=text, quiet=-1, **fields)

    def matrix_size(self, text, rows, columns):
        """Rows and columns that the text gets for a request that may grow; None where it is refused."""
        try:
            mark = self.matrix(text, rows=rows, columns=columns, flags=Flag.MAY_GROW, want=Want.VALIDATION)
        except barhatch.MarkError:
            return None
        return mark.rows, mark.columns
