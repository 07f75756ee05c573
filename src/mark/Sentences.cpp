#include "mark/Sentences.h"

#include "datamatrix/DataMatrix.h"
#include "datamatrix/PublishedSizes.h"
#include "job/Token.h"
#include "mark/EanUpcSentences.h"
#include "mark/ElementSentences.h"
#include "mark/InputText.h"
#include "mark/JobRecord.h"
#include "mark/Names.h"
#include "mark/TextTokens.h"
#include "symbologies/Code128Shortest.h"
#include "symbologies/SymbologyTable.h"

namespace barhatch {

namespace {

struct ReasonStatus {
  Reason reason;
  std::int32_t status;
};

constexpr ReasonStatus kStatuses[] = {
    {Reason::kNone, BARHATCH_OK},
    {Reason::kOption, BARHATCH_BAD_OPTION},
    {Reason::kEmpty, BARHATCH_EMPTY},
    {Reason::kNoUtf8, BARHATCH_BAD_CHARACTER},
    {Reason::kNoEscape, BARHATCH_BAD_SYNTAX},
    {Reason::kFunction, BARHATCH_BAD_CHARACTER},
    {Reason::kCharacter, BARHATCH_BAD_CHARACTER},
    {Reason::kLength, BARHATCH_BAD_LENGTH},
    {Reason::kEndInside, BARHATCH_BAD_CHARACTER},
    {Reason::kNumberSystem, BARHATCH_BAD_CHARACTER},
    {Reason::kCheck, BARHATCH_BAD_CHECK},
    {Reason::kNoCheck, BARHATCH_BAD_CHECK},
    {Reason::kOnlyCheck, BARHATCH_BAD_LENGTH},
    {Reason::kCheckCount, BARHATCH_BAD_LENGTH},
    {Reason::kNoStart, BARHATCH_BAD_SYNTAX},
    {Reason::kNoStop, BARHATCH_BAD_SYNTAX},
    {Reason::kNotStandard, BARHATCH_NOT_STANDARD},
    {Reason::kSecondSign, BARHATCH_BAD_SYNTAX},
    {Reason::kAddonDigits, BARHATCH_BAD_SYNTAX},
    {Reason::kUpcEForm, BARHATCH_NOT_STANDARD},
    {Reason::kNoUpcE, BARHATCH_NOT_STANDARD},
    {Reason::kTooManyValues, BARHATCH_TOO_LONG},
    {Reason::kTooManyCodewords, BARHATCH_TOO_LONG},
    {Reason::kSizeTooSmall, BARHATCH_TOO_LONG},
    {Reason::kNoSuchSize, BARHATCH_NO_SUCH_SIZE},
    {Reason::kNoPermissionToGrow, BARHATCH_TOO_LONG},
    {Reason::kGeometry, BARHATCH_BAD_GEOMETRY},
    {Reason::kNothingToMark, BARHATCH_NOTHING_TO_MARK},
    {Reason::kTooManyStrokes, BARHATCH_BAD_GEOMETRY},
    {Reason::kProof, BARHATCH_PROOF_FAILED},
    {Reason::kUnknownAi, BARHATCH_UNKNOWN_AI},
    {Reason::kAiTooLong, BARHATCH_BAD_AI_DATA},
    {Reason::kAiTooShort, BARHATCH_BAD_AI_DATA},
    {Reason::kAiCharacter, BARHATCH_BAD_AI_DATA},
    {Reason::kAiCheckDigit, BARHATCH_BAD_AI_DATA},
    {Reason::kAiCheckPair, BARHATCH_BAD_AI_DATA},
    {Reason::kAiDate, BARHATCH_BAD_AI_DATA},
    {Reason::kAiValue, BARHATCH_BAD_AI_DATA},
    {Reason::kAiRepeated, BARHATCH_BAD_AI_DATA},
    {Reason::kGs1Syntax, BARHATCH_BAD_SYNTAX},
    {Reason::kTooManyElements, BARHATCH_TOO_LONG},
    {Reason::kFnc1Place, BARHATCH_BAD_SYNTAX},
    {Reason::kMaskEscape, BARHATCH_BAD_SYNTAX},
    {Reason::kNoSuchByte, BARHATCH_BAD_CHARACTER},
    {Reason::kNoMemory, BARHATCH_NO_MEMORY},
};

constexpr bool RowsAreInTheOrderOfReasons() {
  int reason = 0;
  for (const ReasonStatus& row : kStatuses) {
    if (static_cast<int>(row.reason) != reason++) return false;
  }
  return reason == static_cast<int>(Reason::kNoMemory) + 1;
}
static_assert(RowsAreInTheOrderOfReasons(), "the reason is the index of its row");

struct WarningSentence {
  std::uint32_t bit;
  const char* sentence;
};

// The gravest first.
constexpr WarningSentence kWarnings[] = {
    {BARHATCH_W_LOW_BYTE,
     "of a character above 255 the device writes the low byte alone; one that is 0 ends the text"},
    {BARHATCH_W_UNREADABLE, "a standard reader reads something else than the text, or nothing"},
    {BARHATCH_W_INVERTED, "the light elements are marked, but no quiet zone around them"},
    {BARHATCH_W_GAP,
     "the gap is wide for the narrowest element: strokes may miss it or lie beside it"},
    {BARHATCH_W_QUIET_ZONE, "the quiet zone is smaller than the standard's"},
    {BARHATCH_W_PARTNERS,
     "an application identifier lacks one that it needs, or has one that it does not go with"},
    {BARHATCH_W_ECI, "a character above 255 designates ECI 26, UTF-8: not every reader heeds it"},
    {BARHATCH_W_144,
     "144x144 in the order of ISO/IEC 16022: some readers know the industry's alone, INDUSTRY_144"},
    {BARHATCH_W_FEW_DIGITS,
     "fewer than 6 digits of Interleaved 2 of 5: readers may not accept them"},
    {BARHATCH_W_ELEMENT_ORDER, "an element of variable length at the end saves a separator"},
    {BARHATCH_W_LEADING_ZERO, "a 0 was added in front: Interleaved 2 of 5 writes pairs of digits"},
};

constexpr char kDeviceEci[] = "a character above 255 is no data here: it designates an ECI";

template <typename Wanted>
const SymbolSize* FirstSize(const Wanted& isWanted) {
  for (const SymbolSize& size : kSquareSizes) {
    if (isWanted(size)) return &size;
  }
  for (const SymbolSize& size : kRectangularSizes) {
    if (isWanted(size)) return &size;
  }
  return nullptr;
}

const SymbolSize* SizeOf(const BarhatchJob& job) {
  return FirstSize([&](const SymbolSize& size) {
    return size.symbolRows == job.rows && size.symbolColumns == job.columns;
  });
}

// Of the same family: a square behind a square, a rectangle behind a rectangle.
const SymbolSize* NextSize(const BarhatchJob& job) {
  const bool isSquare = job.rows == job.columns;
  return FirstSize([&](const SymbolSize& size) {
    return (size.symbolRows == size.symbolColumns) == isSquare && size.symbolRows >= job.rows &&
           size.symbolColumns >= job.columns;
  });
}

void SayLength(const BarhatchJob& job, const SymbologyName& name, std::int32_t given,
               std::int32_t place, Message& message) {
  const std::int32_t longest = job.symbology == BARHATCH_DATA_MATRIX
                                   ? static_cast<std::int32_t>(kMaxDataMatrixText)
                                   : RowOf(job.symbology)->drawing.text.longest;
  message << name.name << " takes ";
  if (given > longest && longest > 17) {
    message << "at most " << longest << " characters, " << given << " given";
  } else {
    message << AcceptedBy(name, job.conformance) << ", " << given << " given";
  }
  if (place > 0) message << " in front of + at " << place;
}

Message& SayCharacterCode(std::int32_t code, Message& message) {
  if (code <= ' ' || code > '~') return message.Code(code);
  const char text[] = {static_cast<char>(code), '\0'};
  return message << text;
}

void SayCheck(const BarhatchJob& job, std::int32_t right, std::int32_t place, Message& message) {
  const Token given = InputText(job).TokenAt({static_cast<std::size_t>(place - 1), 1});
  const bool isDigit = right >= '0' && right <= '9';
  message << (isDigit ? "check digit " : "check character ");
  SayCharacterCode(static_cast<std::int32_t>(given), message) << " at " << place << " should be ";
  SayCharacterCode(right, message);
}

bool WouldGrow(const BarhatchJob& job, std::int32_t codewords) {
  SymbolSize size;
  return !ChooseSymbolSize(codewords, {job.rows, job.columns, 1}, size).IsRefused();
}

Message& SaySize(int rows, int columns, Message& message) {
  return message << rows << "x" << columns;
}

void SayTooSmall(const BarhatchJob& job, const Refusal& refusal, Message& message) {
  const SymbolSize* const size = SizeOf(job);
  message << refusal.figure << (refusal.figure == 1 ? " codeword, " : " codewords, ");
  if (size == nullptr) {
    SaySize(job.rows, job.columns, message) << " is no size";
  } else if (size->dataCodewords < refusal.figure) {
    SaySize(job.rows, job.columns, message) << " holds " << size->dataCodewords;
  } else {
    message << "the first rectangle that holds them does not lie within ";
    SaySize(job.rows, job.columns, message);
  }
  const bool mayNot = refusal.reason == Reason::kNoPermissionToGrow;
  if (mayNot && WouldGrow(job, refusal.figure)) message << "; MAY_GROW allows a larger one";
}

// By the book: what the size holds, three at least, and one that would do.
void SayHeld(const BarhatchJob& job, const Refusal& refusal, Message& message) {
  message << refusal.figure << " codewords, ";
  SaySize(job.rows, job.columns, message)
      << " holds " << FindSize(job.rows, job.columns)->dataCodewords;
  const SymbolSize* const grown = GrownSize(refusal.figure, job.rows, job.columns);
  const SymbolSize* const other = SmallestOf(Shape::kAnyAndDmre, refusal.figure);
  const SymbolSize* const next = grown != nullptr ? grown : other;
  if (next == nullptr) return;
  message << "; ";
  SaySize(next->symbolRows, next->symbolColumns, message)
      << (grown != nullptr ? " is the next of its kind that does" : " does");
}

void SayTooManyCodewords(const BarhatchJob& job, const Refusal& refusal, Message& message) {
  if (job.conformance == BARHATCH_DEVICE) {
    message << "the text takes more than the " << kMaxDataCodewords
            << " codewords of the largest size";
    return;
  }
  const SymbolSize& largest = LargestOf(ShapeOf(job));
  message << refusal.figure << " codewords, the largest size of the shape, ";
  SaySize(largest.symbolRows, largest.symbolColumns, message)
      << ", holds " << largest.dataCodewords;
}

void SayNoSuchSize(const BarhatchJob& job, Message& message) {
  SaySize(job.rows, job.columns, message) << " is no size";
  const SymbolSize* const next =
      job.conformance == BARHATCH_DEVICE ? NextSize(job) : NextPublishedSize(job.rows, job.columns);
  if (next == nullptr) return;
  message << "; ";
  SaySize(next->symbolRows, next->symbolColumns, message) << " is the next";
}

void SayCharacter(const BarhatchJob& job, const SymbologyName& name, const Refusal& refusal,
                  std::int32_t place, Message& message) {
  if (refusal.figure == 0 && job.conformance == BARHATCH_DEVICE) {
    message << "character " << place << " is 0, which ends a text of the device";
    return;
  }
  message << "character " << place << " (";
  message.Code(refusal.figure) << ") is not in " << name.name << ": "
                               << AcceptedBy(name, job.conformance);
}

void SayNoCharacter(const BarhatchJob& job, std::int32_t place, Message& message) {
  if (job.input == BARHATCH_UNITS) {
    message << "unit " << place << " is half of a surrogate pair";
  } else {
    message << "byte " << place << " is not UTF-8";
  }
}

void SayFunction(const BarhatchJob& job, const SymbologyName& name, std::int32_t figure,
                 std::int32_t place, Message& message) {
  const auto token = static_cast<Token>(figure);
  if (IsEci(token)) {
    message << "ECI " << EciNumber(token);
  } else {
    message << "FNC" << static_cast<std::int32_t>(token - kFnc1Token) + 1;
  }
  message << " at " << place << ": there is none in " << name.name;
  if (job.conformance == BARHATCH_DEVICE) message << " of the device";
}

void SayCheckRefusal(const BarhatchJob& job, const Refusal& refusal, std::int32_t place,
                     Message& message) {
  const SymbologyName& name = *NameOf(job.symbology);
  switch (refusal.reason) {
    case Reason::kNoCheck:
      message << "the check digit modulo 11 of this text would be 10: it has none";
      break;
    case Reason::kOnlyCheck:
      message << name.name << " needs a character in front of the check character";
      break;
    case Reason::kCheckCount:
      message << refusal.figure << " characters are none with check characters of " << name.name;
      break;
    default:
      SayCheck(job, refusal.figure, place, message);
      break;
  }
}

bool IsOfElements(Reason reason) {
  return reason >= Reason::kUnknownAi && reason <= Reason::kGs1Syntax;
}

void SayTextRefusal(const BarhatchJob& job, const Refusal& refusal, std::int32_t place,
                    Message& message) {
  const SymbologyName& name = *NameOf(job.symbology);
  switch (refusal.reason) {
    case Reason::kEmpty:
      message << name.name << " needs at least one character";
      break;
    case Reason::kNoUtf8:
      SayNoCharacter(job, place, message);
      break;
    case Reason::kNoEscape:
      message << "no escape at " << place << ": ^000 to ^255, ^FNC1 to ^FNC3, ^ECI000000, ^^";
      break;
    case Reason::kFunction:
      SayFunction(job, name, refusal.figure, place, message);
      break;
    case Reason::kCharacter:
      SayCharacter(job, name, refusal, place, message);
      break;
    case Reason::kLength:
      SayLength(job, name, refusal.figure, place, message);
      break;
    case Reason::kEndInside:
      message << "character " << place << " (";
      message.Code(refusal.figure) << ") starts or stops " << name.name << ": not inside";
      break;
    case Reason::kCheck:
    case Reason::kNoCheck:
    case Reason::kOnlyCheck:
    case Reason::kCheckCount:
      SayCheckRefusal(job, refusal, place, message);
      break;
    case Reason::kNoStart:
      message << "start character missing at " << place;
      break;
    case Reason::kNoStop:
      message << "stop character missing at " << place;
      break;
    default:
      SayEanUpcRefusal(job, refusal, place, message);
      break;
  }
}

}  // namespace

std::int32_t StatusOf(Reason reason) { return kStatuses[static_cast<int>(reason)].status; }

void SayRefusal(const BarhatchJob& job, const Refusal& refusal, std::int32_t place,
                Message message) {
  if (IsOfElements(refusal.reason)) return SayElementRefusal(refusal, place, message);
  switch (refusal.reason) {
    case Reason::kTooManyValues:
      message << refusal.figure << " symbol characters, at most " << kMostShortestValues;
      break;
    case Reason::kTooManyElements:
      message << refusal.figure << " data characters and separators, GS1-128 has at most "
              << kMostGs1Characters;
      break;
    case Reason::kTooManyCodewords:
      SayTooManyCodewords(job, refusal, message);
      break;
    case Reason::kSizeTooSmall:
    case Reason::kNoPermissionToGrow:
      if (job.conformance == BARHATCH_DEVICE) {
        SayTooSmall(job, refusal, message);
      } else {
        SayHeld(job, refusal, message);
      }
      break;
    case Reason::kFnc1Place:
      message << "FNC1 in second position stands behind a letter or two digits";
      break;
    case Reason::kMaskEscape:
      message << "character " << place << ": a backslash of a mask stands in front of # A ? or \\";
      break;
    case Reason::kNoSuchByte:
      message << "character " << place << " (";
      message.Code(refusal.figure)
          << ") has no byte under ECI " << job.eci << "; BYTES takes those of the host";
      break;
    case Reason::kNoSuchSize:
      SayNoSuchSize(job, message);
      break;
    case Reason::kGeometry:
      message << "the symbol is too large or too small to be marked";
      break;
    case Reason::kNothingToMark:
      message << "no stroke lies in any element at this size and gap";
      break;
    case Reason::kTooManyStrokes:
      message << "the gap asks for more strokes than a mark can have";
      break;
    case Reason::kProof:
      message << "the symbol does not decode to the text: a defect of the library";
      break;
    case Reason::kNoMemory:
      message << "no memory";
      break;
    default:
      SayTextRefusal(job, refusal, place, message);
      break;
  }
}

void SayWarning(const BarhatchJob& job, std::uint32_t warnings, Message message) {
  for (const WarningSentence& row : kWarnings) {
    if ((warnings & row.bit) == 0) continue;
    const bool isOfDevice = row.bit == BARHATCH_W_ECI && job.conformance == BARHATCH_DEVICE;
    message << (isOfDevice ? kDeviceEci : row.sentence);
    return;
  }
}

}  // namespace barhatch
