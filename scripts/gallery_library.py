"""The library as the gallery uses it: fills by the fields of a record, and what the pages say about them in figures."""
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "examples"))
import barhatch  # noqa: E402


class Library(barhatch.Library):
    def hatch(self, modules, width, height, ratio, gap, pattern, invert=False):
        self.exports.SetBarcodeSize(width, height)
        self.exports.SetPrintRatio(ratio)
        self.exports.SetHatchPattern(gap, pattern)
        self.exports.SetImageInversionMode(invert)
        return self._take(self.exports.HatchBarcodeString(modules.encode("ascii")))

    def linear(self, text, **fields):
        return self._generate(self.exports.GenerateLinearBarcode, barhatch.LinearBarcodeInfo(**fields), text)

    def matrix(self, text, **fields):
        return self._generate(self.exports.GenerateDataMatrixBarcode, barhatch.DataMatrixBarcodeInfo(**fields), text)

    def _generate(self, function, info, text):
        info.DataString = barhatch.units(text)
        return self._take(function(info))

    def matrix_size(self, text, rows, columns):
        """Rows and columns that the text gets for a request that may grow; None where it is refused. The extents are those
        of the symbol less two modules, and the modules are square."""
        height = 5040.0
        fill = self.matrix(text, height=height, HatchingType=6, MatrixSize=rows * 256 + columns, IsExpanding=1)
        if fill is None:
            return None
        module = (height - fill.height) / 2
        return round(height / module), round(fill.width / module) + 2
