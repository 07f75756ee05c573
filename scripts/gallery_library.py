"""The library as the gallery uses it: records, a barcode of each kind, and what the pages say about it in figures."""
import ctypes
from ctypes import POINTER, Structure, byref, c_char_p, c_double, c_int32, c_uint8, c_uint16

POINTS = 2  # FillingShapeType


class LinearBarcodeInfo(Structure):
    _fields_ = [("height", c_double), ("width", c_double), ("type", c_int32), ("DataString", POINTER(c_uint16)),
                ("HatchingType", c_int32), ("LineGap", c_double), ("InvertImage", c_uint8), ("PrintRatio", c_double),
                ("QuietZone", c_uint8), ("QuietZoneSize", c_int32), ("BorderWidth", c_int32)]


class DataMatrixBarcodeInfo(Structure):
    _fields_ = [("height", c_double), ("format", c_int32), ("DataString", POINTER(c_uint16)), ("HatchingType", c_int32),
                ("LineGap", c_double), ("InvertImage", c_uint8), ("MatrixSize", c_int32), ("IsExpanding", c_uint8),
                ("QuietZone", c_uint8), ("QuietZoneSize", c_int32), ("BorderWidth", c_int32)]


class FillBufferInfo(Structure):
    _fields_ = [("FillingShapeType", c_int32), ("BufferLength", c_int32), ("FilledArray", POINTER(c_double)),
                ("FillHeight", c_double), ("FillWidth", c_double)]


class Fill:
    """A fill buffer, copied: `strokes` are segments (xa, ya, xb, yb), or points (x, y)."""

    def __init__(self, record):
        values = record.FilledArray[:record.BufferLength]
        step = 2 if record.FillingShapeType == POINTS else 4
        self.is_points = record.FillingShapeType == POINTS
        self.strokes = [tuple(values[i:i + step]) for i in range(0, len(values), step)]
        self.height = record.FillHeight
        self.width = record.FillWidth


class Library:
    def __init__(self, path):
        self._c = ctypes.CDLL(str(path))
        for name in ("HatchBarcodeString", "GenerateLinearBarcode", "GenerateDataMatrixBarcode"):
            getattr(self._c, name).restype = POINTER(FillBufferInfo)
        self._c.HatchBarcodeString.argtypes = [c_char_p]
        self._c.FreeBarcodeData.argtypes = [POINTER(FillBufferInfo)]
        self._c.SetBarcodeSize.argtypes = [c_double, c_double]
        self._c.SetPrintRatio.argtypes = [c_double]
        self._c.SetHatchPattern.argtypes = [c_double, c_int32]
        self._c.SetImageInversionMode.argtypes = [c_uint8]
        self._c.InitBarcode()

    def _take(self, pointer):
        if not pointer:
            return None
        fill = Fill(pointer.contents)
        self._c.FreeBarcodeData(pointer)
        return fill

    def hatch(self, modules, width, height, ratio, gap, pattern, invert=False):
        self._c.SetBarcodeSize(width, height)
        self._c.SetPrintRatio(ratio)
        self._c.SetHatchPattern(gap, pattern)
        self._c.SetImageInversionMode(int(invert))
        return self._take(self._c.HatchBarcodeString(modules.encode("ascii")))

    def linear(self, text, **fields):
        return self._generate(self._c.GenerateLinearBarcode, LinearBarcodeInfo, text, fields)

    def matrix(self, text, **fields):
        return self._generate(self._c.GenerateDataMatrixBarcode, DataMatrixBarcodeInfo, text, fields)

    def _generate(self, function, record, text, fields):
        units = (c_uint16 * (len(text) + 1))(*map(ord, text), 0)
        info = record(**fields)
        info.DataString = ctypes.cast(units, POINTER(c_uint16))
        return self._take(function(byref(info)))

    def matrix_size(self, text, rows, columns):
        """Rows and columns that the text gets for a request that may grow; None where it is refused. The extents are those
        of the symbol less two modules, and the modules are square."""
        height = 5040.0
        fill = self.matrix(text, height=height, HatchingType=6, MatrixSize=rows * 256 + columns, IsExpanding=1)
        if fill is None:
            return None
        module = (height - fill.height) / 2
        return round(height / module), round(fill.width / module) + 2
