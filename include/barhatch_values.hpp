// The enumerations of barhatch.hpp, with the numbers of barhatch_mark.h, and sets of them.
#ifndef BARHATCH_VALUES_HPP
#define BARHATCH_VALUES_HPP

#include <cstdint>
#include <initializer_list>

#include "barhatch_mark.h"

namespace barhatch {

// As in barhatch.hpp.
inline namespace host {

// What is written. docs/symbologies.md has more of each.
enum class Symbology : std::int32_t {
  kCodabar = BARHATCH_CODABAR,                     // digits and - $ : / . +, letters at both ends
  kCode39 = BARHATCH_CODE_39,                      // digits, A to Z, - . $ / + % and space
  kCode93 = BARHATCH_CODE_93,                      // as Code 39
  kEan13 = BARHATCH_EAN_13,                        // 12 digits
  kMsi = BARHATCH_MSI,                             // digits
  kCode128 = BARHATCH_CODE_128,                    // the code sets are chosen
  kCode128FromA = BARHATCH_CODE_128_A,             // begins in set A
  kCode128B = BARHATCH_CODE_128_B,                 // begins in set B
  kCode128FromC = BARHATCH_CODE_128_C,             // begins in set C
  kUpcA = BARHATCH_UPC_A,                          // 11 digits
  kUpcE = BARHATCH_UPC_E,                          // 7 digits
  kCode11 = BARHATCH_CODE_11,                      // digits and -
  kEan8 = BARHATCH_EAN_8,                          // 7 digits
  kUpcAAddOn2 = BARHATCH_UPC_A_ADDON_2,            // 11 and 2 digits
  kUpcAAddOn5 = BARHATCH_UPC_A_ADDON_5,            // 11 and 5 digits
  kEan13AddOn2 = BARHATCH_EAN_13_ADDON_2,          // 12 and 2 digits
  kEan13AddOn5 = BARHATCH_EAN_13_ADDON_5,          // 12 and 5 digits
  kEan8AddOn2 = BARHATCH_EAN_8_ADDON_2,            // 7 and 2 digits
  kEan8AddOn5 = BARHATCH_EAN_8_ADDON_5,            // 7 and 5 digits
  kUpcEAddOn2 = BARHATCH_UPC_E_ADDON_2,            // 7 and 2 digits
  kUpcEAddOn5 = BARHATCH_UPC_E_ADDON_5,            // 7 and 5 digits
  kInterleaved2of5 = BARHATCH_INTERLEAVED_2_OF_5,  // digits
  kCode93FullAscii = BARHATCH_CODE_93_FULL,        // ASCII
  kDataMatrix = BARHATCH_DATA_MATRIX,              // ECC 200
  kItf14 = BARHATCH_ITF_14,                        // 13 or 14 digits
  kCode39FullAscii = BARHATCH_CODE_39_FULL         // ASCII
};

// By what rules it is written.
enum class Conformance : std::int32_t {
  kPublished = BARHATCH_PUBLISHED,  // the published standard
  kDevice = BARHATCH_DEVICE         // the exports of barhatch.h, deviations included
};

// What stands around the text of a Data Matrix.
enum class Envelope : std::int32_t {
  kNone = BARHATCH_ENVELOPE_NONE,    // nothing
  kFormat05 = BARHATCH_ENVELOPE_05,  // ISO/IEC 15434 format 05, as macro header
  kFormat06 = BARHATCH_ENVELOPE_06,  // ISO/IEC 15434 format 06, as macro header
  kFormat12 = BARHATCH_ENVELOPE_12,  // ISO/IEC 15434 format 12, spelled out
  kFormatDD = BARHATCH_ENVELOPE_DD   // ISO/IEC 15434 format DD, spelled out
};

// Which check characters are written.
enum class Check : std::int32_t {
  kOwn = BARHATCH_CHECK_OWN,             // the symbology's own
  kNone = BARHATCH_CHECK_NONE,           // none
  kVerify = BARHATCH_CHECK_VERIFY,       // those of the text, verified
  kMod43 = BARHATCH_CHECK_MOD_43,        // Code 39
  kMod16 = BARHATCH_CHECK_MOD_16,        // Codabar
  kItf10 = BARHATCH_CHECK_ITF_10,        // Interleaved 2 of 5
  kMsi10 = BARHATCH_MSI_10,              // one digit, modulo 10
  kMsi1010 = BARHATCH_MSI_10_10,         // two digits, modulo 10
  kMsi11 = BARHATCH_MSI_11,              // modulo 11, weights 2 to 7
  kMsi1110 = BARHATCH_MSI_11_10,         // modulo 11, then 10
  kMsiNcr11 = BARHATCH_MSI_NCR_11,       // modulo 11, weights 2 to 9
  kMsiNcr1110 = BARHATCH_MSI_NCR_11_10,  // modulo 11, then 10
  kCode11C = BARHATCH_CODE_11_C,         // C alone
  kCode11CK = BARHATCH_CODE_11_CK        // C and K
};

// Which sizes a Data Matrix is chosen from.
enum class Shape : std::int32_t {
  kSquare = BARHATCH_SQUARE,                // the smallest square
  kRectangle = BARHATCH_RECTANGLE,          // the rectangle of the smallest area
  kAnyShape = BARHATCH_ANY_SHAPE,           // the smallest area
  kDmre = BARHATCH_DMRE,                    // likewise, with ISO/IEC 21471
  kDmreRectangle = BARHATCH_DMRE_RECTANGLE  // rectangles alone, with ISO/IEC 21471
};

// Switches of a job.
enum class Flag : std::uint32_t {
  kQuietInside = BARHATCH_QUIET_INSIDE,              // sizes and origin include the quiet zone
  kFnc1Second = BARHATCH_FNC1_SECOND,                // Data Matrix: FNC1 in second position
  kGsSeparators = BARHATCH_GS_SEPARATORS,            // Data Matrix: FNC1 that separates as GS
  kLooseEnd = BARHATCH_LOOSE_END,                    // Data Matrix: ends as readers take them
  kIndustry144 = BARHATCH_INDUSTRY_144,              // 144 x 144 in the industry's order
  kPermit = BARHATCH_PERMIT,                         // write what readers know beside the standard
  kNoProof = BARHATCH_NO_PROOF,                      // the finished symbol is not decoded again
  kMayGrow = BARHATCH_MAY_GROW,                      // a Data Matrix beyond rows x columns
  kMask = BARHATCH_MASK,                             // Data Matrix: the size of many texts
  kAddStartStop = BARHATCH_ADD_START_STOP,           // Codabar: A on both sides where there is none
  kReaderProgramming = BARHATCH_READER_PROGRAMMING,  // Data Matrix: settings of the reader
  kBearerBars = BARHATCH_BEARER_BARS                 // Interleaved 2 of 5, ITF-14: below and above
};

// How the elements are filled.
enum class Pattern : std::int32_t {
  kScanLines = BARHATCH_SCAN_LINES,                          // horizontal lines across all bars
  kVerticalLines = BARHATCH_VERTICAL_LINES,                  // vertical lines upwards
  kAlternatingHorizontal = BARHATCH_ALTERNATING_HORIZONTAL,  // horizontal lines bar by bar
  kAlternatingVertical = BARHATCH_ALTERNATING_VERTICAL,      // vertical lines, up and down
  kSpiral = BARHATCH_SPIRAL,                                 // inwards, in each element
  kPoints = BARHATCH_POINTS                                  // one point in each element
};

// In which order the strokes come.
enum class Order : std::int32_t {
  kOwn = BARHATCH_ORDER_OWN,          // the pattern's own
  kOneWay = BARHATCH_ONE_WAY,         // not in this version
  kSerpentine = BARHATCH_SERPENTINE,  // not in this version
  kNearest = BARHATCH_NEAREST         // not in this version
};

// Parts of a result. None means all of them.
enum class Want : std::uint32_t {
  kValidation = BARHATCH_WANT_VALIDATION,  // status, warnings, sizes: always there
  kModules = BARHATCH_WANT_MODULES,        // Modules
  kValues = BARHATCH_WANT_VALUES,          // Values
  kReading = BARHATCH_WANT_READING,        // Reading and Hri
  kStrokes = BARHATCH_WANT_STROKES,        // Segments or Points; the job needs size and gap
  kDeviations = BARHATCH_WANT_DEVIATIONS   // DeviationLines
};

// What became of a job.
enum class Status : std::int32_t {
  kOk = BARHATCH_OK,                          // a mark
  kBadRecord = BARHATCH_BAD_RECORD,           // no result: it was moved from
  kBadOption = BARHATCH_BAD_OPTION,           // a value that this symbology or version lacks
  kEmpty = BARHATCH_EMPTY,                    // there is no text
  kBadCharacter = BARHATCH_BAD_CHARACTER,     // at position
  kBadLength = BARHATCH_BAD_LENGTH,           // another number of characters is needed
  kBadCheck = BARHATCH_BAD_CHECK,             // a check digit is wrong
  kBadSyntax = BARHATCH_BAD_SYNTAX,           // start or stop character missing
  kUnknownAi = BARHATCH_UNKNOWN_AI,           // a GS1 application identifier that there is none
  kBadAiData = BARHATCH_BAD_AI_DATA,          // a value that does not fit its identifier
  kTooLong = BARHATCH_TOO_LONG,               // for the symbol
  kNoSuchSize = BARHATCH_NO_SUCH_SIZE,        // rows x columns is no size of a Data Matrix
  kNotStandard = BARHATCH_NOT_STANDARD,       // Flag::kPermit allows most of it
  kBadGeometry = BARHATCH_BAD_GEOMETRY,       // sizes, gap or speeds that make no sense
  kNothingToMark = BARHATCH_NOTHING_TO_MARK,  // no stroke lies in any element
  kNoMemory = BARHATCH_NO_MEMORY,             // nothing is leaked
  kProofFailed = BARHATCH_PROOF_FAILED        // a defect of the library: it marks something else
};

// What a host should know about a mark that was made.
enum class Warning : std::uint32_t {
  kLeadingZero = BARHATCH_W_LEADING_ZERO,   // Interleaved 2 of 5 got a 0 in front
  kFewDigits = BARHATCH_W_FEW_DIGITS,       // fewer than 6 digits of Interleaved 2 of 5
  kEci = BARHATCH_W_ECI,                    // a character above 255 designates an ECI
  k144 = BARHATCH_W_144,                    // 144 x 144 in the standard's order
  kQuietZone = BARHATCH_W_QUIET_ZONE,       // smaller than the standard's
  kInverted = BARHATCH_W_INVERTED,          // light elements are marked, but no quiet zone
  kLowByte = BARHATCH_W_LOW_BYTE,           // of a character above 255 the low byte is written
  kUnreadable = BARHATCH_W_UNREADABLE,      // a standard reader reads something else, or nothing
  kGap = BARHATCH_W_GAP,                    // the gap is wide for the narrowest element
  kPartners = BARHATCH_W_PARTNERS,          // a GS1 element lacks a partner, or has a wrong one
  kElementOrder = BARHATCH_W_ELEMENT_ORDER  // GS1: in another order one separator less
};

// Several values of Flag, Want or Warning.
template <typename Bit>
class Set {
 public:
  constexpr Set() = default;
  // Of one value.
  constexpr Set(Bit bit) : bits_(static_cast<std::uint32_t>(bit)) {}
  // {Flag::kPermit, Flag::kMayGrow}
  constexpr Set(std::initializer_list<Bit> bits) {
    for (Bit bit : bits) bits_ |= static_cast<std::uint32_t>(bit);
  }
  // From the numbers of barhatch_mark.h, added up.
  static constexpr Set OfBits(std::uint32_t bits) {
    Set set;
    set.bits_ = bits;
    return set;
  }

  constexpr std::uint32_t Bits() const { return bits_; }  // as barhatch_mark.h has them
  constexpr bool empty() const { return bits_ == 0; }     // none
  // True where the value is one of them.
  constexpr bool Has(Bit bit) const { return (bits_ & static_cast<std::uint32_t>(bit)) != 0; }
  // Of the same values.
  friend constexpr bool operator==(Set a, Set b) { return a.bits_ == b.bits_; }
  // Of other values.
  friend constexpr bool operator!=(Set a, Set b) { return a.bits_ != b.bits_; }

 private:
  std::uint32_t bits_ = 0;
};

}  // namespace host
}  // namespace barhatch

#endif
