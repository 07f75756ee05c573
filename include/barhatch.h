/* barhatch: turns text into barcodes and barcodes into the strokes of a marking head.
 *
 * The host sets the parameters of the next barcode with the setters (or hands over one record) and asks for the barcode
 * as a module string, one letter per bar or space, or as a fill buffer, the strokes that fill its dark elements.
 *
 * Conventions
 *  1. Call InitBarcode once after loading the library and before anything else; until then every setting is zero.
 *  2. Lengths (width, height, line gap, coordinates) are in the host's own unit; the library never converts them.
 *     x grows to the right, y grows upwards, the origin is the lower-left corner of the symbol.
 *  3. A null result is the only sign of failure: there are no error codes, messages or exceptions. A call that fails has
 *     allocated nothing that the host would have to release.
 *  4. Setters check nothing (but for the length of a text); a value that makes no sense shows in the next generating
 *     call, as a null result or as a symbol that makes no sense. Check sizes, gap and ratio yourself: finite and > 0.
 *  5. Text is NUL-terminated and made of 16-bit units on every platform (BarhatchChar), at most 3119 of them.
 *     Longer text is refused, never cut. (Code 128 has a limit of its own, see GenerateBarcodeString.)
 *  6. A boolean is one byte; every value but 0 means true.
 *  7. A returned object belongs to the host until it is handed back: fill buffers to FreeBarcodeData, module strings to
 *     the runtime's array delete.
 *  8. The settings are shared by the whole process and not locked: the host serialises calls from several threads.
 *
 * FilledArray, by FillingShapeType
 *
 *        0: line segments, in drawing order             2: points (hatching type 6), in drawing order
 *        +----+----+----+----+----+----+--              +----+----+----+----+--
 *        | xa | ya | xb | yb | xa | ya | ..             | x  | y  | x  | y  | ..
 *        +----+----+----+----+----+----+--              +----+----+----+----+--
 *        |<- first segment ->|<- second ..              |<-first->|<-second->|
 *
 * BufferLength counts the doubles: 4 for each segment, 2 for each point. Bars are filled from left to right, one by one
 * (hatching type 0: all together, line by line from the bottom); a matrix is filled row by row from the bottom.
 *
 * The header is C99 and C++17, and also C90 and C++98 for the compilers of Windows CE. */
#ifndef BARHATCH_H
#define BARHATCH_H

#include <stddef.h>
#if defined(_MSC_VER) && _MSC_VER < 1600 /* these have no <stdint.h> */
typedef __int32 int32_t;
typedef unsigned __int8 uint8_t;
typedef unsigned __int16 uint16_t;
#else
#include <stdint.h>
#endif

/* The version of this header, major.minor.patch. */
#define BARHATCH_VERSION "0.1.0"

#if defined(_WIN32)
#define BARHATCH_API
#else
#define BARHATCH_API __attribute__((visibility("default")))
#endif

/* One 16-bit unit of text: wchar_t where the platform's wide characters have 16 bits (L"text"), else char16_t in C++
 * (u"text") and uint16_t in C and C++98. */
#if defined(_WIN32) || (defined(WCHAR_MAX) && WCHAR_MAX <= 0xFFFF)
typedef wchar_t BarhatchChar;
#elif defined(__cplusplus) && __cplusplus >= 201103L
typedef char16_t BarhatchChar;
#else
typedef uint16_t BarhatchChar;
#endif

/* LinearBarcodeInfo: everything about one linear barcode, input of GenerateLinearBarcode. The host owns it. */
typedef struct LinearBarcodeInfo {
  double height;                  /* bar height */
  double width;                   /* width of the whole symbol, quiet zones included */
  int32_t type;                   /* 0..22, see SetBarcodeType */
  const BarhatchChar* DataString; /* NUL-terminated */
  int32_t HatchingType;           /* 0..6, see SetHatchPattern */
  double LineGap;                 /* pitch of the strokes */
  uint8_t InvertImage;            /* fill the light elements instead of the dark ones */
  double PrintRatio;              /* width of a wide element, in modules */
  uint8_t QuietZone;              /* add the light modules at both ends that the symbology asks for */
  int32_t QuietZoneSize;          /* stored, has no effect */
  int32_t BorderWidth;            /* stored, has no effect */
} LinearBarcodeInfo;

/* DataMatrixBarcodeInfo: everything about one Data Matrix. The host owns it. */
typedef struct DataMatrixBarcodeInfo {
  double height;                  /* height of the whole symbol, quiet zone included; modules are square */
  int32_t format;                 /* 0 plain, 1 FNC1 in second position, 2 and 3 macro headers 05 and 06 */
  const BarhatchChar* DataString; /* NUL-terminated, at most 3116 units */
  int32_t HatchingType;           /* 0..6, see SetHatchPattern */
  double LineGap;                 /* pitch of the strokes */
  uint8_t InvertImage;            /* fill the light modules instead of the dark ones */
  int32_t MatrixSize;             /* rows x 256 + columns; 0 asks for the smallest square (needs IsExpanding) */
  uint8_t IsExpanding;            /* the symbol may grow beyond MatrixSize */
  uint8_t QuietZone;              /* add one light module on every side */
  int32_t QuietZoneSize;          /* stored, has no effect */
  int32_t BorderWidth;            /* stored, has no effect */
} DataMatrixBarcodeInfo;

/* TwoDStringResult: a grid of modules, row by row from the top: 'A' dark, 'a' light, then a NUL. */
typedef struct TwoDStringResult {
  int32_t numrows; /* rows of modules */
  int32_t numcols; /* modules of a row */
  char* data;      /* numrows x numcols letters */
} TwoDStringResult;

/* FillBufferInfo: what the head has to trace, result of every vector generator. Released by FreeBarcodeData. */
typedef struct FillBufferInfo {
  int32_t FillingShapeType; /* 0 line segments, 2 points */
  int32_t BufferLength;     /* number of doubles in FilledArray */
  double* FilledArray;      /* see the diagram above */
  double FillHeight;        /* height of a linear symbol; of a matrix less two modules */
  double FillWidth;         /* width less 20 modules for a linear symbol, less two modules for a matrix; both are
                               subtracted whether or not the symbol has a quiet zone, and may come out negative */
} FillBufferInfo;

#ifdef __cplusplus
extern "C" {
#endif

/* InitBarcode: puts every setting to its default: type 0 (Codabar), text "123", width 1.0, height 0.5, print ratio 3.0,
 * not inverted, hatching type 0, line gap 0.0001, no quiet zone, matrix size 12 x 12, code format 0.
 * Reads: -   Writes: every setting   Returns: -   Fails: never   Frees: - */
BARHATCH_API void InitBarcode(void);

/* SetBarcodeType: chooses the linear symbology.
 *   type  0 Codabar, 1 Code 39, 2 Code 93, 3 EAN-13, 4 MSI, 5 Code 128 (sets B and C by digit runs), 6 Code 128 from
 *         set A, 7 Code 128 set B, 8 Code 128 from set C, 9 UPC-A, 10 UPC-E, 11 Code 11, 12 EAN-8, 13/14 UPC-A with
 *         2/5-digit add-on, 15/16 EAN-13 with add-on, 17/18 EAN-8 with add-on, 19/20 UPC-E with add-on,
 *         21 Interleaved 2 of 5, 22 Code 93 from full ASCII; any other value makes the generators return null
 * Reads: -   Writes: type   Returns: -   Fails: never   Frees: - */
BARHATCH_API void SetBarcodeType(int32_t type);

/* SetDataString: copies the text of the next barcode.
 *   text  NUL-terminated, at most 3119 units; null or longer text is refused: nothing of it is kept, and every linear
 *         generator returns null until an acceptable text is set
 * Linear symbologies keep the low byte of each unit; a unit whose low byte is zero ends their text.
 * Reads: -   Writes: DataString   Returns: -   Fails: never   Frees: - */
BARHATCH_API void SetDataString(const BarhatchChar* text);

/* SetModuleWidth: stores a module width. It has no effect: the module size follows from the width of the symbol.
 * Reads: -   Writes: ModuleWidth   Returns: -   Fails: never   Frees: - */
BARHATCH_API void SetModuleWidth(double moduleWidth);

/* SetPrintRatio: width of a wide element in modules (usually 2.0 to 3.0), for the two-width symbologies.
 * Reads: -   Writes: PrintRatio   Returns: -   Fails: never   Frees: - */
BARHATCH_API void SetPrintRatio(double ratio);

/* SetImageInversionMode: chooses what is filled: 0 the dark elements, any other value the light ones.
 * Reads: -   Writes: InvertImage   Returns: -   Fails: never   Frees: - */
BARHATCH_API void SetImageInversionMode(uint8_t invert);

/* SetHatchPattern: chooses the fill pattern and the pitch of its lines.
 *   lineGap       pitch in the host's length unit, > 0 (hatching type 6 does not use it)
 *   hatchingType  0 horizontal lines across the whole symbol, 1 vertical lines upwards, 2 horizontal lines bar by bar
 *                 in alternating direction, 3 vertical lines in alternating direction, 5 inward spiral in each bar,
 *                 6 one point at the centre of each bar; 4 and all others fill nothing
 * Reads: -   Writes: LineGap, HatchingType   Returns: -   Fails: never   Frees: - */
BARHATCH_API void SetHatchPattern(double lineGap, int32_t hatchingType);

/* SetBarcodeSize: size of the whole symbol, quiet zones included, in the host's length unit.
 * Reads: -   Writes: width, height   Returns: -   Fails: never   Frees: - */
BARHATCH_API void SetBarcodeSize(double width, double height);

/* SetBarcodeHeight: height alone, as a whole number of the host's length units.
 * Reads: -   Writes: height   Returns: -   Fails: never   Frees: - */
BARHATCH_API void SetBarcodeHeight(int32_t height);

/* SetCodeFormat: code format of the next Data Matrix: 0 plain, 1 FNC1 in second position, 2 and 3 macro headers.
 * Reads: -   Writes: format   Returns: -   Fails: never   Frees: - */
BARHATCH_API void SetCodeFormat(int32_t format);

/* GenerateBarcodeString: the module string of the current type and text.
 * One letter per element, left to right: 'A' narrow bar, 'B' wide bar, 'a' narrow space, 'b' wide space; NUL-terminated.
 * Code 128 drops, without a sign of it, the text beyond its limit of 79 values (characters, pairs of digits, switches).
 * The documentation lists this and all other deviations from the published symbologies.
 * Reads: type, DataString, QuietZone   Writes: -
 * Returns: a string that the host releases with the runtime's array delete (delete[] in C++)
 * Fails: null for a type outside 0..22, text that the symbology cannot encode or that was refused, no memory */
BARHATCH_API char* GenerateBarcodeString(void);

/* HatchBarcodeString: fills the bars of a module string, one made by GenerateBarcodeString or written by the host.
 *   moduleString  NUL-terminated; letters other than A, B, a, b are skipped; stays the caller's
 * The whole string, quiet zones included, is scaled to the width setting.
 * Reads: width, height, PrintRatio, InvertImage, HatchingType, LineGap   Writes: FillHeight, FillWidth
 * Returns: a fill buffer, released by FreeBarcodeData
 * Fails: null for a null string, elements that are none or whose widths add up to 0, no element of the shade that is
 *        filled, a pattern that fills nothing, for types 0 to 5 a line gap that is zero, negative, infinite, no number or
 *        so small that the strokes cannot be counted in 32 bits, sizes between which no stroke lies, no memory */
BARHATCH_API FillBufferInfo* HatchBarcodeString(const char* moduleString);

/* GenerateVectorizedBarcode: GenerateBarcodeString and HatchBarcodeString in one call, for the current settings.
 * Reads: as both   Writes: FillHeight, FillWidth   Returns: a fill buffer, released by FreeBarcodeData
 * Fails: null when either of the two fails */
BARHATCH_API FillBufferInfo* GenerateVectorizedBarcode(void);

/* GenerateLinearBarcode: copies a record into the settings, where its values stay in force, and generates the barcode.
 * Reads: the record   Writes: the settings named like its fields, FillHeight, FillWidth
 * Returns: a fill buffer, released by FreeBarcodeData
 * Fails: null as GenerateVectorizedBarcode; for a null record, null text or text of 3120 units or more the settings
 *        stay as they were */
BARHATCH_API FillBufferInfo* GenerateLinearBarcode(const LinearBarcodeInfo* info);

/* FreeBarcodeData: releases a fill buffer and its array. Null is allowed.
 * Reads: -   Writes: -   Returns: -   Fails: never   Frees: the record and FilledArray */
BARHATCH_API void FreeBarcodeData(FillBufferInfo* fill);

/* TestStruct: a record with FillingShapeType 0, BufferLength 12345 and FilledArray null, for checking the host's view
 * of the layout; the extents have no meaning.
 * Reads: -   Writes: -   Returns: a fill buffer, released by FreeBarcodeData   Fails: null when there is no memory */
BARHATCH_API FillBufferInfo* TestStruct(void);

/* GenerateDataMatrixBarcode: copies a record into the settings, where its values stay in force, and generates an ECC 200
 * Data Matrix. Its size follows from the height alone; width, type and PrintRatio play no part and keep their values.
 * Units above 255 in the text are ECI designators.
 * Reads: the record   Writes: the settings named like its fields, FillHeight, FillWidth
 * Returns: a fill buffer, released by FreeBarcodeData
 * Fails: null for a null record, null text or more than 3116 units (the settings stay as they were); for text or a size
 *        that makes no symbol, a fill without strokes, no memory (the settings are in force) */
BARHATCH_API FillBufferInfo* GenerateDataMatrixBarcode(const DataMatrixBarcodeInfo* info);

/* Free2DBarcodeStringResult: releases a grid and its data. Null is allowed.
 * Reads: -   Writes: -   Returns: -   Fails: never   Frees: the record (new) and data (new[]) */
BARHATCH_API void Free2DBarcodeStringResult(TwoDStringResult* grid);

/* FreePdf417BarcodeStringResult: the same under another name, which its trace tells; no PDF417 is ever produced.
 * Reads: -   Writes: -   Returns: -   Fails: never   Frees: the record (new) and data (new[]) */
BARHATCH_API void FreePdf417BarcodeStringResult(TwoDStringResult* grid);

#ifdef __cplusplus
} /* extern "C" */

/* Size of a Data Matrix, rows x 256 + columns. Every 32-bit value may be asked for; see the documentation for what
 * becomes of sizes that do not exist. */
#if __cplusplus >= 201103L || defined(_MSVC_LANG)
enum _matrixSize : int32_t { /* NOLINT(bugprone-reserved-identifier,cert-*): the name is part of the export */
#else
enum _matrixSize { /* an int with the compilers of the device */
#endif
  kMatrixSizeSmallestSquare = 0, /* needs permission to expand */
  kMatrixSize10x10 = 0x0A0A,     /* 10 rows, 10 columns */
  kMatrixSize12x12 = 0x0C0C,     /* 12 rows, 12 columns */
  kMatrixSize144x144 = 0x9090    /* 144 rows, 144 columns */
};

/* SetMatrixsize: size of the next Data Matrix. The one function that is exported under its C++ name, for the hosts that
 * have always bound it so; hosts in C set MatrixSize in the record instead.
 * Reads: -   Writes: MatrixSize   Returns: -   Fails: never   Frees: - */
BARHATCH_API void SetMatrixsize(enum _matrixSize size);
#endif

#endif /* BARHATCH_H */
