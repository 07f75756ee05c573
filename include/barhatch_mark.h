/* barhatch, the mark interface: one job in, one result out.
 *
 * A host describes a mark in a record, BarhatchJob, and gets everything about it in another, BarhatchResult: the strokes, or
 * the status, sentence and position of a refusal.
 *
 *   BarhatchJob job = {0};
 *   BarhatchResult result = {0};
 *   job.size = sizeof job;
 *   job.symbology = BARHATCH_CODE_39;
 *   job.text = "ABC-123";
 *   job.x_dimension = 0.5;
 *   job.height = 12.0;
 *   job.gap = 0.1;
 *   result.size = sizeof result;
 *   if (BarhatchMark(&job, &result) != BARHATCH_OK) puts(result.message);
 *   BarhatchRelease(&result);
 *
 * Conventions
 *  1. Zero every byte of both records, set their size, and then what matters: zero is the sensible default everywhere.
 *  2. There is no state: no settings, no locale, no globals. Every call may run in a thread of its own.
 *  3. Lengths are in the host's own unit, x to the right, y upwards. The origin is the lower-left corner of the symbol,
 *     with BARHATCH_QUIET_INSIDE that of its quiet zone.
 *  4. Text and job are read during the call only. What a result points to is the library's until BarhatchRelease.
 *  5. No memory is a status like any other; nothing is leaked then. With allocate and release the host's own functions
 *     give and take all of it.
 *  6. Messages, names and sentences are English in ASCII.
 *
 * conformance says by what rules a mark is made. BARHATCH_PUBLISHED writes what the published standard of a symbology says
 * and refuses the rest. BARHATCH_DEVICE writes what the exports of barhatch.h write, every known deviation included; the
 * result names the deviations that a mark has met. This version makes both of all 23 types
 * and Data Matrix, and ITF-14 and Code 39 full ASCII by the book.
 *
 * The records grow at their end in later versions: fields are never moved, numbers never used again. A record smaller than
 * the first version's is refused; of a larger job the bytes that this version does not know must be zero.
 *
 * The header is C90, C99, C++98 and C++17. */
#ifndef BARHATCH_MARK_H
#define BARHATCH_MARK_H

#include "barhatch.h"

#if defined(_MSC_VER) && _MSC_VER < 1600 /* as in barhatch.h */
typedef unsigned __int32 uint32_t;
typedef unsigned __int64 uint64_t;
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* job.symbology. 0 to 22 are the types of SetBarcodeType. EAN and UPC are told by the book: the device takes 12, 11, 7 and
 * 7 digits of EAN-13, UPC-A, UPC-E and EAN-8, and those of the add-on behind them. */
enum BarhatchSymbology {
  BARHATCH_CODABAR = 0,            /* start and stop in the text: "A1234B" */
  BARHATCH_CODE_39 = 1,            /* digits, A to Z, - . $ / + % and space */
  BARHATCH_CODE_93 = 2,            /* the same characters */
  BARHATCH_EAN_13 = 3,             /* 12 digits, or 13 with the check digit; behind a + the 2 or 5 of an add-on */
  BARHATCH_MSI = 4,                /* digits; one check digit, modulo 10, is added */
  BARHATCH_CODE_128 = 5,           /* bytes; the code sets are chosen, by the book as short as can be */
  BARHATCH_CODE_128_A = 6,         /* begins in set A */
  BARHATCH_CODE_128_B = 7,         /* begins in set B */
  BARHATCH_CODE_128_C = 8,         /* begins in set C */
  BARHATCH_UPC_A = 9,              /* 11 digits, or 12 with the check digit; add-on likewise */
  BARHATCH_UPC_E = 10,             /* 6 digits; 7, 8 with number system, check digit; 11, 12 of UPC-A; add-on likewise */
  BARHATCH_CODE_11 = 11,           /* digits and -; check characters are added */
  BARHATCH_EAN_8 = 12,             /* 7 digits, or 8 with the check digit */
  BARHATCH_UPC_A_ADDON_2 = 13,     /* the digits of UPC-A and the 2 of the add-on; + may stand between */
  BARHATCH_UPC_A_ADDON_5 = 14,     /* and the 5 of the add-on, likewise below */
  BARHATCH_EAN_13_ADDON_2 = 15,    /* the digits of EAN-13 and 2 */
  BARHATCH_EAN_13_ADDON_5 = 16,    /* and 5 */
  BARHATCH_EAN_8_ADDON_2 = 17,     /* the digits of EAN-8 and 2; outside the standard */
  BARHATCH_EAN_8_ADDON_5 = 18,     /* and 5; outside the standard */
  BARHATCH_UPC_E_ADDON_2 = 19,     /* the digits of UPC-E and 2; behind 6 of them the + is needed */
  BARHATCH_UPC_E_ADDON_5 = 20,     /* and 5; likewise */
  BARHATCH_INTERLEAVED_2_OF_5 = 21, /* digits; an odd number of them gets a 0 in front */
  BARHATCH_CODE_93_FULL = 22,      /* ASCII */
  BARHATCH_DATA_MATRIX = 100,      /* ECC 200 */
  BARHATCH_ITF_14 = 101,           /* 13 digits, the check digit is added, or 14 with it */
  BARHATCH_CODE_39_FULL = 102      /* ASCII, spelled out in pairs where Code 39 lacks it */
};

/* job.conformance */
enum BarhatchConformance {
  BARHATCH_PUBLISHED = 0, /* as the published standards say */
  BARHATCH_DEVICE = 1     /* as the exports of barhatch.h, deviations included */
};

/* job.input: what text is */
enum BarhatchInput {
  BARHATCH_UTF8 = 0,      /* UTF-8, length bytes of it, or up to the NUL */
  BARHATCH_BYTES = 1,     /* bytes, each one a character */
  BARHATCH_GS1 = 2,       /* UTF-8, an element string of GS1: "(01)09501101530003(10)ABC" or as a reader reports it */
  BARHATCH_ESCAPED = 3,   /* UTF-8 with escapes: ^000 to ^255 a byte, ^FNC1 to ^FNC3, ^ECI000026, ^^ the caret */
  BARHATCH_UNITS = 4,     /* 16-bit units, as barhatch.h takes them; length counts units */
  BARHATCH_CODEWORDS = 5  /* bytes, data codewords of a Data Matrix: pads, error correction and placement are added */
};

/* job.check, of marks by the book: which check characters a symbol has. Those of the usual scheme are modulo 43 of
 * Code 39, modulo 16 of Codabar, modulo 10 of Interleaved 2 of 5, ITF-14 and MSI, and of Code 11 C up to ten characters of
 * data, C and K above.
 * reading has the check character of Code 39, Codabar and Interleaved 2 of 5 behind the data, as readers report it that do
 * not know the scheme; of MSI, Code 11 and Code 39 full ASCII it has the data alone, and hri the check characters too. */
enum BarhatchCheck {
  BARHATCH_CHECK_OWN = 0,      /* the symbology's own: none of Codabar, Code 39, Interleaved 2 of 5; else the usual ones */
  BARHATCH_CHECK_NONE = 1,     /* none, where a symbology may go without */
  BARHATCH_CHECK_VERIFY = 2,   /* the text brings those of the usual scheme: a wrong one is refused */
  BARHATCH_CHECK_MOD_43 = 3,   /* Code 39: one is added */
  BARHATCH_CHECK_MOD_16 = 4,   /* Codabar: one is added in front of the stop */
  BARHATCH_CHECK_ITF_10 = 5,   /* Interleaved 2 of 5: a digit is added, weights 3 and 1 */
  BARHATCH_MSI_10 = 6,         /* MSI: one digit, modulo 10, the usual scheme */
  BARHATCH_MSI_10_10 = 7,      /* two digits, each modulo 10 */
  BARHATCH_MSI_11 = 8,         /* one digit, modulo 11 with weights 2 to 7 */
  BARHATCH_MSI_11_10 = 9,      /* that and one modulo 10 */
  BARHATCH_MSI_NCR_11 = 10,    /* one digit, modulo 11 with weights 2 to 9 */
  BARHATCH_MSI_NCR_11_10 = 11, /* that and one modulo 10 */
  BARHATCH_CODE_11_C = 12,     /* Code 11: C alone, whatever the length */
  BARHATCH_CODE_11_CK = 13     /* C and K, whatever the length */
};

/* job.envelope: the message of ISO/IEC 15434 that the text of a Data Matrix is */
enum BarhatchEnvelope {
  BARHATCH_ENVELOPE_NONE = 0, /* none */
  BARHATCH_ENVELOPE_05 = 5,   /* format 05, application identifiers, as a macro header */
  BARHATCH_ENVELOPE_06 = 6,   /* format 06, data identifiers, as a macro header */
  BARHATCH_ENVELOPE_12 = 12,  /* format 12, text element identifiers, spelled out */
  BARHATCH_ENVELOPE_DD = 100  /* format DD, spelled out */
};

/* job.shape, of a Data Matrix whose size is not asked for; device marks are square unless rows and columns say otherwise */
enum BarhatchShape {
  BARHATCH_SQUARE = 0,    /* the smallest square */
  BARHATCH_RECTANGLE = 1, /* the rectangle of the smallest area */
  BARHATCH_ANY_SHAPE = 2, /* the smallest area, then the squarer */
  BARHATCH_DMRE = 4,      /* the smallest area, then the squarer, of the rectangles of ISO/IEC 21471 as well */
  BARHATCH_DMRE_RECTANGLE = 5 /* likewise of rectangles alone */
};

/* job.flags */
enum BarhatchFlag {
  BARHATCH_QUIET_INSIDE = 1,         /* width and height include the quiet zone, and the origin is its corner */
  BARHATCH_FNC1_SECOND = 2,          /* Data Matrix: FNC1 in second position */
  BARHATCH_GS_SEPARATORS = 4,        /* Data Matrix: FNC1 that separates is written as GS */
  BARHATCH_LOOSE_END = 8,            /* Data Matrix: the last codeword without an unlatch for what the standard leaves
                                        out and readers take: a shifted character, a pair of digits */
  BARHATCH_INDUSTRY_144 = 16,        /* Data Matrix: 144 x 144 in the industry's order; device marks have it */
  BARHATCH_PERMIT = 32,              /* write what readers know and the standard leaves out: UPC-E of number system 1,
                                        add-ons beside EAN-8 */
  BARHATCH_NO_PROOF = 64,            /* do not decode the finished symbol; see BARHATCH_PROOF_FAILED */
  BARHATCH_MAY_GROW = 128,           /* a Data Matrix may be larger than rows x columns */
  BARHATCH_MASK = 256,               /* Data Matrix: text stands for many, with # for a digit, A for a capital letter, ?
                                        for any byte; a backslash in front of them and of a backslash means the
                                        character itself. The result has rows, columns, capacity, extents and, as
                                        codewords, enough for each; no modules, values, reading or strokes. A job of that
                                        size marks every one */
  BARHATCH_ADD_START_STOP = 512,     /* Codabar: A on both sides of a text that has neither start nor stop */
  BARHATCH_READER_PROGRAMMING = 1024, /* Data Matrix: the text is for the reader's settings */
  BARHATCH_BEARER_BARS = 2048        /* Interleaved 2 of 5, ITF-14: a bar of 5 modules below and one above, from end to end
                                        of the quiet zones and touching the bars. symbol and total include them, height is
                                        that of the bars between */
};

/* job.pattern: how the elements are filled */
enum BarhatchPattern {
  BARHATCH_SCAN_LINES = 0,             /* horizontal lines across the whole symbol (of a matrix, each row) */
  BARHATCH_VERTICAL_LINES = 1,         /* vertical lines upwards */
  BARHATCH_ALTERNATING_HORIZONTAL = 2, /* horizontal lines bar by bar, to and fro */
  BARHATCH_ALTERNATING_VERTICAL = 3,   /* vertical lines, up and down */
  BARHATCH_SPIRAL = 5,                 /* inwards, in each element */
  BARHATCH_POINTS = 6                  /* one point at the centre of each element */
};

/* job.order: 0, the pattern's own, is what this version has */
enum BarhatchOrder {
  BARHATCH_ORDER_OWN = 0,  /* the pattern's own */
  BARHATCH_ONE_WAY = 1,    /* not in this version */
  BARHATCH_SERPENTINE = 2, /* not in this version */
  BARHATCH_NEAREST = 3     /* not in this version */
};

/* job.want: what the result is to have. 0 gives everything; otherwise the bits add up. A job that wants no strokes needs
 * no size, gap or pattern. */
enum BarhatchWant {
  BARHATCH_WANT_VALIDATION = 1, /* status, position, message, warnings and deviations: always there */
  BARHATCH_WANT_MODULES = 2,    /* modules */
  BARHATCH_WANT_VALUES = 4,     /* values */
  BARHATCH_WANT_READING = 8, /* reading and hri */
  BARHATCH_WANT_STROKES = 16,   /* strokes and their lengths */
  BARHATCH_WANT_DEVIATIONS = 32 /* the deviations met as text */
};

/* A mark. The host owns it. */
typedef struct BarhatchJob {
  uint32_t size;           /* sizeof(BarhatchJob) */
  int32_t symbology;       /* BarhatchSymbology */
  int32_t conformance;     /* BarhatchConformance */
  int32_t input;           /* BarhatchInput */
  const void* text;        /* bytes or units; null is the empty text where length is 0 */
  size_t length;           /* of text in bytes or units; 0: up to its first zero */
  int32_t envelope;        /* BarhatchEnvelope, around the text of a Data Matrix; device marks have 0, 5 and 6 */
  int32_t check;           /* BarhatchCheck */
  int32_t eci;             /* of a Data Matrix by the book: the ECI in front of the text; 0 none, or 26 where it needs it */
  int32_t rows;            /* of a Data Matrix; 0 x 0 is the smallest */
  int32_t columns;         /* of a Data Matrix */
  int32_t shape;           /* BarhatchShape */
  uint32_t flags;          /* BarhatchFlag, added up */
  int32_t addon_gap;       /* modules in front of an add-on: 7 to 12 beside EAN, 9 to 12 beside UPC; 0: 9 */
  int32_t pattern;         /* BarhatchPattern */
  int32_t profile;         /* 0 in this version */
  int32_t want;            /* BarhatchWant, added up */
  int32_t invert;          /* not 0: fill the light elements, and with them the quiet zone */
  int32_t dots_per_module; /* 0 in this version */
  int32_t order;           /* BarhatchOrder */
  double x_dimension;      /* width of one module; set either this or width or, of a matrix, height */
  double width;            /* of the symbol */
  double height;           /* of the bars without bearer bars, or of the matrix */
  double ratio;            /* of a wide element to a narrow one, for symbologies of two widths; 0: 3.0 */
  double quiet;            /* of the quiet zone, in modules, fractions rounded up; 0 the standard's, below 0 none */
  double units_per_mm;     /* 0 in this version */
  double gap;              /* pitch of the strokes; BARHATCH_POINTS needs none */
  double beam_x;           /* 0 in this version */
  double beam_y;           /* 0 in this version */
  double growth_x;         /* 0 in this version */
  double growth_y;         /* 0 in this version */
  double dot;              /* 0 in this version */
  double mark_speed;       /* units per second; with both speeds the result has seconds */
  double jump_speed;       /* units per second */
  double stroke_delay;     /* seconds for each stroke */
  double jump_delay;       /* seconds for each jump */
  double radius;           /* 0 in this version */
  double tolerance;        /* 0 in this version */
  void* (*allocate)(void* context, size_t bytes);  /* aligned for doubles and pointers; both or neither: malloc and free */
  void (*release)(void* context, void* block);     /* of what allocate gave */
  void* context;           /* handed to both */
  void* reserved;          /* null */
  int32_t part;            /* of a message in several Data Matrix symbols: which it is, 1 to parts */
  int32_t parts;           /* how many they are, 2 to 16; 0: no structured append */
  int32_t part_id;         /* 0 to 64515, the same in all symbols of the message */
  int32_t part_reserved;   /* 0 */
} BarhatchJob;

/* result.status */
enum BarhatchStatus {
  BARHATCH_OK = 0,            /* a mark */
  BARHATCH_BAD_RECORD = 1,    /* a record that is no record of this library: null, too small, unknown bytes set */
  BARHATCH_BAD_OPTION = 2,    /* a number that names nothing, or what this symbology or version does not have */
  BARHATCH_EMPTY = 3,         /* there is no text */
  BARHATCH_BAD_CHARACTER = 4, /* position says which */
  BARHATCH_BAD_LENGTH = 5,    /* another number of characters is needed */
  BARHATCH_BAD_CHECK = 6,     /* a check digit is wrong; message has the right one */
  BARHATCH_BAD_SYNTAX = 7,    /* start or stop character missing, an escape, a GS1 element or an add-on that is none */
  BARHATCH_UNKNOWN_AI = 8,    /* a GS1 application identifier that is not assigned; see BARHATCH_PERMIT */
  BARHATCH_BAD_AI_DATA = 9,   /* the value of a GS1 application identifier is not as its format says */
  BARHATCH_TOO_LONG = 10,     /* for the symbol */
  BARHATCH_NO_SUCH_SIZE = 11, /* rows x columns is no size of a Data Matrix */
  BARHATCH_NOT_STANDARD = 12, /* see BARHATCH_PERMIT; digits that are no UPC-E */
  BARHATCH_BAD_GEOMETRY = 13, /* sizes, gap or speeds that make no sense */
  BARHATCH_NOTHING_TO_MARK = 14, /* no stroke lies in any element */
  BARHATCH_NO_MEMORY = 15,    /* nothing is leaked */
  BARHATCH_PROOF_FAILED = 16  /* the finished symbol does not decode to the text: a defect of the library */
};

/* result.warnings: bits; message has the sentence of the gravest one */
enum BarhatchWarning {
  BARHATCH_W_LEADING_ZERO = 1,    /* an odd number of digits of Interleaved 2 of 5 got a 0 in front */
  BARHATCH_W_FEW_DIGITS = 2,      /* fewer than 6 digits of Interleaved 2 of 5: readers may not accept them */
  BARHATCH_W_ECI = 4,             /* a character above 255 designates an ECI: 26, or on the device the character itself */
  BARHATCH_W_144 = 8,             /* 144 x 144 in the order of the standard: readers that know the industry's alone
                                     do not read it */
  BARHATCH_W_QUIET_ZONE = 16,     /* smaller than the standard's */
  BARHATCH_W_INVERTED = 32,       /* light elements are filled, but no quiet zone */
  BARHATCH_W_LOW_BYTE = 64,       /* of a character above 255 the low byte alone is written, as the device does */
  BARHATCH_W_UNREADABLE = 128,    /* a standard reader reads something else than the text, or nothing */
  BARHATCH_W_GAP = 256,           /* wide for the narrowest element: strokes may miss it, those of a spiral leave it */
  BARHATCH_W_PARTNERS = 512,      /* GS1: an element lacks one that it needs, or has one that it does not go with */
  BARHATCH_W_ELEMENT_ORDER = 1024 /* GS1: in another order there were one separator less */
};

/* result.kind */
enum BarhatchKind {
  BARHATCH_SEGMENTS = 0, /* four doubles each: from x, y to x, y */
  BARHATCH_DOTS = 2      /* two doubles each: x, y */
};

/* One module of result.modules, or one element of a linear symbol. */
enum BarhatchModule {
  BARHATCH_DARK = 1, /* set: dark */
  BARHATCH_WIDE = 2  /* set: ratio modules wide, in linear symbologies of two widths */
};

/* What became of a job. The host owns the record; the library owns what it points to, until BarhatchRelease. */
typedef struct BarhatchResult {
  uint32_t size;             /* sizeof(BarhatchResult), set by the host */
  int32_t status;            /* BarhatchStatus */
  uint32_t warnings;         /* BarhatchWarning, added up */
  int32_t position;          /* of the offending bytes (or units) of text, from 1; 0 where there are none */
  int32_t extent;            /* how many they are */
  int32_t kind;              /* BarhatchKind */
  int32_t rows;              /* of modules; 1 for a linear symbol */
  int32_t columns;           /* modules of a row, or elements of a linear symbol, without quiet zone */
  int32_t codewords;         /* of a Data Matrix: data codewords of the text, pads not among them */
  int32_t capacity;          /* of a Data Matrix: data codewords that the symbol holds */
  char message[160];         /* a sentence; with status 0 that of the gravest warning, or empty */
  size_t strokes_count;      /* segments or dots */
  const double* strokes;     /* in marking order */
  const uint8_t* modules;    /* rows x columns of BarhatchModule, row by row from the top */
  const uint8_t* values;     /* codewords with pads and error correction, or symbol character values */
  size_t values_count;       /* of values */
  const char* hri;           /* text to stand beside a linear symbol, with check digits; null where there is none */
  const char* reading;       /* the bytes that a standard reader reports, with a NUL behind them; null: it reads nothing */
  size_t reading_length;     /* bytes of reading without that NUL */
  const char* name;          /* of the symbology; also with a refusal, null where it is unknown */
  const char* accepts;       /* the characters that it takes, in words */
  const char* deviations_met; /* a line for each: id, what was done, what a standard reader sees */
  void* block;               /* the library's */
  double x_dimension;        /* width of one module */
  double symbol[4];          /* left, bottom, right, top without quiet zone */
  double total[4];           /* left, bottom, right, top with quiet zone */
  double mark_length;        /* of all strokes together */
  double jump_length;        /* from stroke to stroke */
  double narrowest;          /* width of the narrowest element */
  double seconds;            /* 0 without speeds */
  uint64_t deviations;       /* met: bit n is row n, from 0, of the register in docs/deviations.md */
} BarhatchResult;

/* BarhatchMark: makes the mark of a job.
 *   job     read, never written
 *   result  written, also when the mark is refused; what it pointed to before is not released
 * Returns: result->status. Fails: with BAD_RECORD for a null record (a null result is written to by nobody) */
BARHATCH_API int32_t BarhatchMark(const BarhatchJob* job, BarhatchResult* result);

/* BarhatchRelease: gives back what a result points to, and clears those fields. Null and a result that was released
 * before are allowed. The status, the message and all numbers stay. */
BARHATCH_API void BarhatchRelease(BarhatchResult* result);

/* BarhatchVersion: BARHATCH_VERSION of the library, which may be newer than that of the header. */
BARHATCH_API const char* BarhatchVersion(void);

#ifdef __cplusplus
} /* extern "C" */
#endif

#endif /* BARHATCH_MARK_H */
