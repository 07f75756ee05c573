"""barhatch for hosts in Python: the mark interface of barhatch_mark.h through ctypes.

    library = Library("libbarhatch.so")
    mark = library.mark(symbology=Symbology.CODE_39, text="ABC-123", x_dimension=0.5, height=12.0, gap=0.1)
    for x_from, y_from, x_to, y_to in mark.strokes:
        ...

A refused job raises MarkError, which knows status, position and sentence. What a job leaves out is zero, the sensible
default everywhere. Results are copies of their own; any number of threads may mark at once.
"""
import ctypes
from array import array
from ctypes import POINTER, Structure, byref, c_char, c_char_p, c_double, c_int32, c_size_t, c_uint32, c_uint64, c_void_p
from dataclasses import dataclass, replace
from enum import IntEnum, IntFlag
from functools import cached_property
from typing import NamedTuple, Optional, Union


class Symbology(IntEnum):
    CODABAR = 0
    CODE_39 = 1
    CODE_93 = 2
    EAN_13 = 3
    MSI = 4
    CODE_128 = 5
    CODE_128_A = 6
    CODE_128_B = 7
    CODE_128_C = 8
    UPC_A = 9
    UPC_E = 10
    CODE_11 = 11
    EAN_8 = 12
    UPC_A_ADDON_2 = 13
    UPC_A_ADDON_5 = 14
    EAN_13_ADDON_2 = 15
    EAN_13_ADDON_5 = 16
    EAN_8_ADDON_2 = 17
    EAN_8_ADDON_5 = 18
    UPC_E_ADDON_2 = 19
    UPC_E_ADDON_5 = 20
    INTERLEAVED_2_OF_5 = 21
    CODE_93_FULL = 22
    DATA_MATRIX = 100
    ITF_14 = 101
    CODE_39_FULL = 102


class Conformance(IntEnum):
    PUBLISHED = 0
    DEVICE = 1


class Input(IntEnum):
    UTF8 = 0
    BYTES = 1
    GS1 = 2
    ESCAPED = 3
    UNITS = 4
    CODEWORDS = 5


class Envelope(IntEnum):
    NONE = 0
    ENVELOPE_05 = 5
    ENVELOPE_06 = 6
    ENVELOPE_12 = 12
    DD = 100


class Check(IntEnum):
    OWN = 0
    NONE = 1
    VERIFY = 2
    MOD_43 = 3
    MOD_16 = 4
    ITF_10 = 5
    MSI_10 = 6
    MSI_10_10 = 7
    MSI_11 = 8
    MSI_11_10 = 9
    MSI_NCR_11 = 10
    MSI_NCR_11_10 = 11
    CODE_11_C = 12
    CODE_11_CK = 13


class Shape(IntEnum):
    SQUARE = 0
    RECTANGLE = 1
    ANY_SHAPE = 2
    DMRE = 4
    DMRE_RECTANGLE = 5


class Flag(IntFlag):
    QUIET_INSIDE = 1
    FNC1_SECOND = 2
    GS_SEPARATORS = 4
    LOOSE_END = 8
    INDUSTRY_144 = 16
    PERMIT = 32
    NO_PROOF = 64
    MAY_GROW = 128
    MASK = 256
    ADD_START_STOP = 512
    READER_PROGRAMMING = 1024
    BEARER_BARS = 2048


class Pattern(IntEnum):
    SCAN_LINES = 0
    VERTICAL_LINES = 1
    ALTERNATING_HORIZONTAL = 2
    ALTERNATING_VERTICAL = 3
    SPIRAL = 5
    POINTS = 6


class Order(IntEnum):
    OWN = 0
    ONE_WAY = 1
    SERPENTINE = 2
    NEAREST = 3


class Want(IntFlag):
    VALIDATION = 1
    MODULES = 2
    VALUES = 4
    READING = 8
    STROKES = 16
    DEVIATIONS = 32


class Status(IntEnum):
    OK = 0
    BAD_RECORD = 1
    BAD_OPTION = 2
    EMPTY = 3
    BAD_CHARACTER = 4
    BAD_LENGTH = 5
    BAD_CHECK = 6
    BAD_SYNTAX = 7
    UNKNOWN_AI = 8
    BAD_AI_DATA = 9
    TOO_LONG = 10
    NO_SUCH_SIZE = 11
    NOT_STANDARD = 12
    BAD_GEOMETRY = 13
    NOTHING_TO_MARK = 14
    NO_MEMORY = 15
    PROOF_FAILED = 16


class MarkWarning(IntFlag):
    LEADING_ZERO = 1
    FEW_DIGITS = 2
    ECI = 4
    W_144 = 8
    QUIET_ZONE = 16
    INVERTED = 32
    LOW_BYTE = 64
    UNREADABLE = 128
    GAP = 256
    PARTNERS = 512
    ELEMENT_ORDER = 1024


class Kind(IntEnum):
    SEGMENTS = 0
    DOTS = 2


class Module(IntFlag):
    DARK = 1
    WIDE = 2


class BarhatchJob(Structure):
    _fields_ = [("size", c_uint32), ("symbology", c_int32), ("conformance", c_int32), ("input", c_int32), ("text", c_char_p),
                ("length", c_size_t), ("envelope", c_int32), ("check", c_int32), ("eci", c_int32), ("rows", c_int32),
                ("columns", c_int32), ("shape", c_int32), ("flags", c_uint32), ("addon_gap", c_int32), ("pattern", c_int32),
                ("profile", c_int32), ("want", c_int32), ("invert", c_int32), ("dots_per_module", c_int32), ("order", c_int32),
                ("x_dimension", c_double), ("width", c_double), ("height", c_double), ("ratio", c_double), ("quiet", c_double),
                ("units_per_mm", c_double), ("gap", c_double), ("beam_x", c_double), ("beam_y", c_double),
                ("growth_x", c_double), ("growth_y", c_double), ("dot", c_double), ("mark_speed", c_double),
                ("jump_speed", c_double), ("stroke_delay", c_double), ("jump_delay", c_double), ("radius", c_double),
                ("tolerance", c_double), ("allocate", c_void_p), ("release", c_void_p), ("context", c_void_p),
                ("reserved", c_void_p), ("part", c_int32), ("parts", c_int32), ("part_id", c_int32),
                ("part_reserved", c_int32)]


class BarhatchResult(Structure):
    _fields_ = [("size", c_uint32), ("status", c_int32), ("warnings", c_uint32), ("position", c_int32), ("extent", c_int32),
                ("kind", c_int32), ("rows", c_int32), ("columns", c_int32), ("codewords", c_int32), ("capacity", c_int32),
                ("message", c_char * 160), ("strokes_count", c_size_t), ("strokes", c_void_p), ("modules", c_void_p),
                ("values", c_void_p), ("values_count", c_size_t), ("hri", c_char_p), ("reading", c_void_p),
                ("reading_length", c_size_t), ("name", c_char_p), ("accepts", c_char_p), ("deviations_met", c_char_p),
                ("block", c_void_p), ("x_dimension", c_double), ("symbol", c_double * 4), ("total", c_double * 4),
                ("mark_length", c_double), ("jump_length", c_double), ("narrowest", c_double), ("seconds", c_double),
                ("deviations", c_uint64)]


# Every export of barhatch_mark.h: its result and its arguments.
EXPORTS = {
    "BarhatchMark": (c_int32, [POINTER(BarhatchJob), POINTER(BarhatchResult)]),
    "BarhatchRelease": (None, [POINTER(BarhatchResult)]),
    "BarhatchVersion": (c_char_p, []),
}


class MarkError(ValueError):
    """A refused job. position counts the characters of a text, from 1, and the bytes of a text of bytes; 0 is no place."""

    def __init__(self, status, message, position, extent):
        super().__init__(message)
        self.status, self.message, self.position, self.extent = status, message, position, extent


@dataclass(frozen=True)
class Job:
    """A mark to be made. Of x_dimension, width and, for a Data Matrix, height set one; a linear symbol needs height
    beside it, and every pattern but POINTS a gap."""
    symbology: Symbology = Symbology.CODABAR
    text: Union[str, bytes] = ""  # bytes: each one is a character
    input: Optional[Input] = None  # GS1, ESCAPED, CODEWORDS; None: as the type of text says
    conformance: Conformance = Conformance.PUBLISHED
    envelope: Envelope = Envelope.NONE  # ISO/IEC 15434 around a Data Matrix
    check: Check = Check.OWN
    eci: int = 0
    rows: int = 0                 # of a Data Matrix; 0 x 0 is the smallest
    columns: int = 0
    shape: Shape = Shape.SQUARE
    flags: Flag = Flag(0)
    addon_gap: int = 0
    pattern: Pattern = Pattern.SCAN_LINES
    profile: int = 0
    want: Want = Want(0)          # everything
    invert: bool = False
    dots_per_module: int = 0
    order: Order = Order.OWN
    x_dimension: float = 0.0      # lengths in a unit of the host
    width: float = 0.0
    height: float = 0.0
    ratio: float = 0.0            # of wide to narrow elements; 0: 3.0
    quiet: float = 0.0            # in modules; 0 the standard's, below 0 none
    units_per_mm: float = 0.0
    gap: float = 0.0
    beam_x: float = 0.0
    beam_y: float = 0.0
    growth_x: float = 0.0
    growth_y: float = 0.0
    dot: float = 0.0
    mark_speed: float = 0.0       # units a second; delays in seconds
    jump_speed: float = 0.0
    stroke_delay: float = 0.0
    jump_delay: float = 0.0
    radius: float = 0.0
    tolerance: float = 0.0
    part: int = 0                 # which of several Data Matrix symbols, 1 to parts
    parts: int = 0                # 2 to 16; 0: one symbol alone
    part_id: int = 0              # the same in all of them

    def record(self):
        fields = {name: getattr(self, name) for name in self.__dataclass_fields__ if name not in ("text", "input")}
        text = self.text if isinstance(self.text, bytes) else self.text.encode()
        kind = Input.BYTES if isinstance(self.text, bytes) else Input.UTF8
        kind = kind if self.input is None else self.input
        return BarhatchJob(size=ctypes.sizeof(BarhatchJob), text=text, length=len(text), input=kind, **fields)

    def characters(self, count):
        """How many characters of the text the first bytes are."""
        return count if isinstance(self.text, bytes) else len(self.text.encode()[:count].decode(errors="replace"))


class Rect(NamedTuple):
    left: float
    bottom: float
    right: float
    top: float


@dataclass(frozen=True)
class Result:
    """A mark, with everything of BarhatchResult that its job wanted."""
    warnings: MarkWarning
    message: str              # of the gravest warning, or empty
    kind: Kind
    rows: int                 # of modules; 1 for a linear symbol
    columns: int              # modules of a row, or elements of a linear symbol
    codewords: int            # of a Data Matrix, without pads
    capacity: int             # of its size, in codewords
    coordinates: array        # of doubles, flat, as the head takes them: four a segment, two a dot
    modules: bytes            # row by row from the top, each a sum of Module
    values: bytes             # codewords, or symbol character values
    hri: Optional[str]        # text for people
    reading: Optional[bytes]  # what a standard reader reports; None: it reads nothing
    name: str                 # of the symbology
    accepts: str              # the characters that it takes, in words
    deviations: int           # met: bit n is row n of the register
    deviations_met: list      # a line for each
    x_dimension: float
    symbol: Rect              # without quiet zone
    total: Rect               # with it
    mark_length: float
    jump_length: float
    narrowest: float
    seconds: float            # 0 without speeds

    @cached_property
    def strokes(self):
        """In marking order: (x_from, y_from, x_to, y_to), or (x, y) where the pattern is POINTS."""
        return list(zip(*[iter(self.coordinates)] * (2 if self.kind == Kind.DOTS else 4)))

    def is_dark(self, row, column):
        return bool(self.modules[row * self.columns + column] & Module.DARK)


def copied(address, count):
    return ctypes.string_at(address, count) if address else b""


def result_of(record):
    doubles = record.strokes_count * (2 if record.kind == Kind.DOTS else 4)
    return Result(
        warnings=MarkWarning(record.warnings), message=record.message.decode("ascii"), kind=Kind(record.kind),
        rows=record.rows, columns=record.columns, codewords=record.codewords, capacity=record.capacity,
        coordinates=array("d", copied(record.strokes, doubles * ctypes.sizeof(c_double))),
        modules=copied(record.modules, record.rows * record.columns), values=copied(record.values, record.values_count),
        hri=record.hri.decode("latin-1") if record.hri is not None else None,
        reading=copied(record.reading, record.reading_length) if record.reading else None,
        name=record.name.decode("ascii"), accepts=record.accepts.decode("ascii"), deviations=record.deviations,
        deviations_met=(record.deviations_met or b"").decode("ascii").splitlines(), x_dimension=record.x_dimension,
        symbol=Rect(*record.symbol), total=Rect(*record.total), mark_length=record.mark_length,
        jump_length=record.jump_length, narrowest=record.narrowest, seconds=record.seconds)


class Library:
    def __init__(self, path="libbarhatch.so.0"):
        self.exports = ctypes.CDLL(path)
        for name, (result, arguments) in EXPORTS.items():
            function = getattr(self.exports, name)
            function.restype, function.argtypes = result, arguments

    @property
    def version(self):
        return self.exports.BarhatchVersion().decode("ascii")

    def mark(self, job=Job(), **fields):
        """The mark of a job, with fields of it replaced: mark(symbology=..., text=...) needs no other job."""
        job = replace(job, **fields)
        record = BarhatchResult(size=ctypes.sizeof(BarhatchResult))
        status = self.exports.BarhatchMark(byref(job.record()), byref(record))
        try:
            if status != Status.OK:
                raise self._refusal(job, record)
            return result_of(record)
        finally:
            self.exports.BarhatchRelease(byref(record))

    @staticmethod
    def _refusal(job, record):
        before, behind = max(record.position - 1, 0), record.position - 1 + record.extent
        position = job.characters(before) + 1 if record.position else 0
        extent = job.characters(behind) - job.characters(before) if record.position else 0
        return MarkError(Status(record.status), record.message.decode("ascii"), position, extent)
