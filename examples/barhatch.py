"""barhatch for hosts in Python: the records and exports of barhatch.h through ctypes.

    library = Library("libbarhatch.so")
    fill = library.data_matrix("PART 4711-0815", height=8.0, line_gap=0.1)

The library has one block of settings for the whole process; do not call it from several threads at once.
"""
import ctypes
from ctypes import POINTER, Structure, c_char_p, c_double, c_int32, c_uint8, c_uint16, c_void_p


class LinearBarcodeInfo(Structure):
    _fields_ = [("height", c_double), ("width", c_double), ("type", c_int32), ("DataString", POINTER(c_uint16)),
                ("HatchingType", c_int32), ("LineGap", c_double), ("InvertImage", c_uint8), ("PrintRatio", c_double),
                ("QuietZone", c_uint8), ("QuietZoneSize", c_int32), ("BorderWidth", c_int32)]


class DataMatrixBarcodeInfo(Structure):
    _fields_ = [("height", c_double), ("format", c_int32), ("DataString", POINTER(c_uint16)), ("HatchingType", c_int32),
                ("LineGap", c_double), ("InvertImage", c_uint8), ("MatrixSize", c_int32), ("IsExpanding", c_uint8),
                ("QuietZone", c_uint8), ("QuietZoneSize", c_int32), ("BorderWidth", c_int32)]


class TwoDStringResult(Structure):
    _fields_ = [("numrows", c_int32), ("numcols", c_int32), ("data", c_void_p)]


class FillBufferInfo(Structure):
    _fields_ = [("FillingShapeType", c_int32), ("BufferLength", c_int32), ("FilledArray", POINTER(c_double)),
                ("FillHeight", c_double), ("FillWidth", c_double)]


# Every export of barhatch.h: its result and its arguments. SetMatrixsize has a C++ name, which differs between platforms.
EXPORTS = {
    "InitBarcode": (None, []),
    "SetBarcodeType": (None, [c_int32]),
    "SetDataString": (None, [POINTER(c_uint16)]),
    "SetModuleWidth": (None, [c_double]),
    "SetPrintRatio": (None, [c_double]),
    "SetImageInversionMode": (None, [c_uint8]),
    "SetHatchPattern": (None, [c_double, c_int32]),
    "SetBarcodeSize": (None, [c_double, c_double]),
    "SetBarcodeHeight": (None, [c_int32]),
    "SetCodeFormat": (None, [c_int32]),
    "GenerateBarcodeString": (c_void_p, []),
    "HatchBarcodeString": (POINTER(FillBufferInfo), [c_char_p]),
    "GenerateVectorizedBarcode": (POINTER(FillBufferInfo), []),
    "GenerateLinearBarcode": (POINTER(FillBufferInfo), [POINTER(LinearBarcodeInfo)]),
    "GenerateDataMatrixBarcode": (POINTER(FillBufferInfo), [POINTER(DataMatrixBarcodeInfo)]),
    "FreeBarcodeData": (None, [POINTER(FillBufferInfo)]),
    "Free2DBarcodeStringResult": (None, [POINTER(TwoDStringResult)]),
    "FreePdf417BarcodeStringResult": (None, [POINTER(TwoDStringResult)]),
    "TestStruct": (POINTER(FillBufferInfo), []),
}


def units(text):
    """The text as the library takes it: 16-bit units and a NUL."""
    if "\0" in text:
        raise ValueError("the text ends at a NUL; the rest would not be marked")
    encoded = text.encode("utf-16-le") + b"\0\0"
    return (c_uint16 * (len(encoded) // 2)).from_buffer_copy(encoded)


class Fill:
    """A fill, copied: strokes are (xa, ya, xb, yb) or, for hatching type 6, points (x, y), in marking order."""

    def __init__(self, info):
        size = 2 if info.FillingShapeType == 2 else 4
        numbers = info.FilledArray[:info.BufferLength]
        self.strokes = list(zip(*[iter(numbers)] * size))
        self.height = info.FillHeight
        self.width = info.FillWidth


class Library:
    def __init__(self, path="libbarhatch.so"):
        self.exports = ctypes.CDLL(path)
        for name, (result, arguments) in EXPORTS.items():
            function = getattr(self.exports, name)
            function.restype, function.argtypes = result, arguments
        self.exports.InitBarcode()

    def linear(self, barcode_type, text, *, width, height, line_gap, hatching_type=0, print_ratio=3.0, invert=False,
               quiet_zone=False):
        """The fill of a linear barcode, None where the library refuses it."""
        data = units(text)
        info = LinearBarcodeInfo(height=height, width=width, type=barcode_type, DataString=data,
                                 HatchingType=hatching_type, LineGap=line_gap, InvertImage=invert,
                                 PrintRatio=print_ratio, QuietZone=quiet_zone)
        return self._take(self.exports.GenerateLinearBarcode(info))

    def data_matrix(self, text, *, height, line_gap, hatching_type=0, rows=0, columns=0, may_expand=True, code_format=0,
                    invert=False, quiet_zone=False):
        """The fill of a Data Matrix, None where the library refuses it."""
        data = units(text)
        info = DataMatrixBarcodeInfo(height=height, format=code_format, DataString=data, HatchingType=hatching_type,
                                     LineGap=line_gap, InvertImage=invert, MatrixSize=256 * rows + columns,
                                     IsExpanding=may_expand, QuietZone=quiet_zone)
        return self._take(self.exports.GenerateDataMatrixBarcode(info))

    def _take(self, pointer):
        if not pointer:
            return None
        fill = Fill(pointer.contents)
        self.exports.FreeBarcodeData(pointer)
        return fill
