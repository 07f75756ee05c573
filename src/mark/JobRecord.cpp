#include "mark/JobRecord.h"

#include <cstring>
#include <limits>

#include "datamatrix/PublishedMatrix.h"
#include "job/Token.h"
#include "mark/Names.h"
#include "symbologies/EanUpcElements.h"
#include "symbologies/SymbologyTable.h"

namespace barhatch {

namespace {

constexpr std::uint32_t kMostRecordBytes = 65536;  // whatever comes: more is no size, but garbage
constexpr std::int32_t kMostRows = 255;            // a request has one byte for each
constexpr std::uint32_t kDeviceMatrixFlags = BARHATCH_FNC1_SECOND | BARHATCH_MAY_GROW;
constexpr std::uint32_t kMatrixFlags = kDeviceMatrixFlags | BARHATCH_GS_SEPARATORS |
                                       BARHATCH_LOOSE_END | BARHATCH_INDUSTRY_144 | BARHATCH_MASK |
                                       BARHATCH_READER_PROGRAMMING;
constexpr std::uint32_t kFlags = kMatrixFlags | BARHATCH_QUIET_INSIDE | BARHATCH_PERMIT |
                                 BARHATCH_NO_PROOF | BARHATCH_ADD_START_STOP | BARHATCH_BEARER_BARS;
constexpr std::int32_t kEveryWant = 63;
constexpr std::int32_t kMostShape = BARHATCH_RECTANGLE | BARHATCH_DMRE;
constexpr std::int32_t kNoShape = 3;
constexpr double kMostQuiet = 1000.0;
constexpr double kMostLength = 1e150;  // whose square still is a number
constexpr double kUsualRatio = 3.0;

// Numbers that have no meaning yet: whoever sets one means something that this version cannot do.
template <typename Number>
struct ComingField {
  Number BarhatchJob::*field;
  const char* name;
};

constexpr ComingField<std::int32_t> kComingIntegers[] = {
    {&BarhatchJob::profile, "profile"},
    {&BarhatchJob::dots_per_module, "dots_per_module"},
    {&BarhatchJob::order, "order"},
    {&BarhatchJob::part_reserved, "part_reserved"},
};

// What a Data Matrix by the book has and no other mark.
constexpr ComingField<std::int32_t> kPublishedMatrixIntegers[] = {
    {&BarhatchJob::eci, "eci"},         {&BarhatchJob::shape, "shape"},
    {&BarhatchJob::part, "part"},       {&BarhatchJob::parts, "parts"},
    {&BarhatchJob::part_id, "part_id"},
};

constexpr ComingField<double> kComingLengths[] = {
    {&BarhatchJob::units_per_mm, "units_per_mm"},
    {&BarhatchJob::beam_x, "beam_x"},
    {&BarhatchJob::beam_y, "beam_y"},
    {&BarhatchJob::growth_x, "growth_x"},
    {&BarhatchJob::growth_y, "growth_y"},
    {&BarhatchJob::dot, "dot"},
    {&BarhatchJob::radius, "radius"},
    {&BarhatchJob::tolerance, "tolerance"},
};

struct Length {
  double BarhatchJob::*field;
  const char* name;
};

// 0 where the host has none to give.
constexpr Length kLengths[] = {
    {&BarhatchJob::x_dimension, "x_dimension"},
    {&BarhatchJob::width, "width"},
    {&BarhatchJob::height, "height"},
    {&BarhatchJob::ratio, "ratio"},
    {&BarhatchJob::gap, "gap"},
    {&BarhatchJob::mark_speed, "mark_speed"},
    {&BarhatchJob::jump_speed, "jump_speed"},
    {&BarhatchJob::stroke_delay, "stroke_delay"},
    {&BarhatchJob::jump_delay, "jump_delay"},
};

bool IsFinite(double value) {
  constexpr double kMost = std::numeric_limits<double>::max();
  return value >= -kMost && value <= kMost;
}

bool IsZero(const std::uint8_t* bytes, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    if (bytes[i] != 0) return false;
  }
  return true;
}

bool IsPattern(std::int32_t pattern) {
  return pattern >= BARHATCH_SCAN_LINES && pattern <= BARHATCH_POINTS && pattern != 4;
}

bool IsInput(std::int32_t input) { return input >= BARHATCH_UTF8 && input <= BARHATCH_CODEWORDS; }

std::int32_t Refuse(std::int32_t status, const char* sentence, Message& message) {
  message << sentence;
  return status;
}

std::int32_t RefuseNumber(const char* name, std::int32_t number, const char* rest,
                          Message& message) {
  message << name << " " << number << rest;
  return BARHATCH_BAD_OPTION;
}

std::int32_t CheckSymbology(const BarhatchJob& job, Message& message) {
  const SymbologyName* const name = NameOf(job.symbology);
  if (name == nullptr) {
    return RefuseNumber("symbology", job.symbology, " is none: 0 to 22 and 100 to 102", message);
  }
  if (job.conformance != BARHATCH_PUBLISHED && job.conformance != BARHATCH_DEVICE) {
    return RefuseNumber("conformance", job.conformance, " is none: 0 and 1", message);
  }
  if (job.conformance == BARHATCH_DEVICE && job.symbology > BARHATCH_DATA_MATRIX) {
    message << name->name << " is no type of the device; conformance PUBLISHED writes it";
    return BARHATCH_BAD_OPTION;
  }
  return BARHATCH_OK;
}

template <typename Number, std::size_t kCount>
std::int32_t CheckComing(const BarhatchJob& job, const ComingField<Number> (&fields)[kCount],
                         Message& message) {
  for (const ComingField<Number>& field : fields) {
    if (job.*field.field == Number{}) continue;
    message << field.name << " is not in this version: it must be 0";
    return BARHATCH_BAD_OPTION;
  }
  return BARHATCH_OK;
}

std::int32_t CheckDeviceMatrix(const BarhatchJob& job, Message& message) {
  if (job.envelope != 0 && job.envelope != 5 && job.envelope != 6) {
    return RefuseNumber("envelope", job.envelope, " is none of a device mark: 0, 5 and 6", message);
  }
  if ((job.flags & kMatrixFlags & ~kDeviceMatrixFlags) == 0) return BARHATCH_OK;
  return Refuse(BARHATCH_BAD_OPTION,
                "of the flags of Data Matrix a device mark has FNC1_SECOND "
                "and MAY_GROW",
                message);
}

std::int32_t CheckParts(const BarhatchJob& job, Message& message) {
  const bool isNone = job.part == 0 && job.parts == 0 && job.part_id == 0;
  const bool isOne = job.parts >= 2 && job.parts <= kMostParts && job.part >= 1 &&
                     job.part <= job.parts && job.part_id >= 0 &&
                     job.part_id <= kLastIdentification;
  if (isNone || isOne) return BARHATCH_OK;
  return Refuse(BARHATCH_BAD_OPTION, "parts are 2 to 16, part is 1 to parts, part_id 0 to 64515",
                message);
}

bool HasMacro(const BarhatchJob& job) {
  return job.envelope == BARHATCH_ENVELOPE_05 || job.envelope == BARHATCH_ENVELOPE_06;
}

// What a symbol begins with: one of them.
std::int32_t CheckHeads(const BarhatchJob& job, Message& message) {
  const int heads = (HasMacro(job) ? 1 : 0) + (job.parts != 0 ? 1 : 0) +
                    ((job.flags & BARHATCH_READER_PROGRAMMING) != 0 ? 1 : 0);
  if (heads > 1) {
    return Refuse(BARHATCH_BAD_OPTION,
                  "a macro envelope, READER_PROGRAMMING and parts exclude each other", message);
  }
  const bool isProgramming = (job.flags & BARHATCH_READER_PROGRAMMING) != 0;
  if (!isProgramming || (job.flags & BARHATCH_FNC1_SECOND) == 0) return BARHATCH_OK;
  return Refuse(BARHATCH_BAD_OPTION, "READER_PROGRAMMING and FNC1_SECOND exclude each other",
                message);
}

std::int32_t CheckCodewords(const BarhatchJob& job, Message& message) {
  constexpr std::uint32_t kFlagsOfCodewords = BARHATCH_MAY_GROW | BARHATCH_INDUSTRY_144;
  const bool isPlain = job.envelope == 0 && job.eci == 0 && job.parts == 0 &&
                       (job.flags & kMatrixFlags & ~kFlagsOfCodewords) == 0;
  if (job.input != BARHATCH_CODEWORDS || isPlain) return BARHATCH_OK;
  return Refuse(BARHATCH_BAD_OPTION,
                "of the options of Data Matrix CODEWORDS go with sizes and INDUSTRY_144 alone",
                message);
}

std::int32_t CheckPublishedMatrix(const BarhatchJob& job, Message& message) {
  const std::int32_t envelope = job.envelope;
  const bool isEnvelope = envelope == 0 || HasMacro(job) || envelope == BARHATCH_ENVELOPE_12 ||
                          envelope == BARHATCH_ENVELOPE_DD;
  if (!isEnvelope) {
    return RefuseNumber("envelope", envelope, " is none: 0, 5, 6, 12 and 100", message);
  }
  if (job.shape < 0 || job.shape > kMostShape || job.shape == kNoShape) {
    return RefuseNumber("shape", job.shape, " is none: 0, 1, 2, 4 and 5", message);
  }
  if (job.eci < 0 || job.eci > kLastEci) {
    return RefuseNumber("eci", job.eci, " is none: 0 to 999999", message);
  }
  std::int32_t status = CheckParts(job, message);
  if (status == BARHATCH_OK) status = CheckHeads(job, message);
  return status == BARHATCH_OK ? CheckCodewords(job, message) : status;
}

std::int32_t CheckMatrixOptions(const BarhatchJob& job, Message& message) {
  const bool isInRange =
      job.rows >= 0 && job.rows <= kMostRows && job.columns >= 0 && job.columns <= kMostRows;
  if (!isInRange) return Refuse(BARHATCH_BAD_OPTION, "rows and columns are 0 to 255", message);
  const std::int32_t status = job.conformance == BARHATCH_DEVICE
                                  ? CheckDeviceMatrix(job, message)
                                  : CheckPublishedMatrix(job, message);
  if (status != BARHATCH_OK) return status;
  const bool hasFnc1 = (job.flags & BARHATCH_FNC1_SECOND) != 0;
  if (!hasFnc1 || job.envelope == 0) return BARHATCH_OK;
  return Refuse(BARHATCH_BAD_OPTION, "an envelope and FNC1_SECOND exclude each other", message);
}

std::int32_t CheckAddonGap(const BarhatchJob& job, Message& message) {
  if (job.addon_gap == 0) return BARHATCH_OK;
  const SymbologyRow* const row = RowOf(job.symbology);
  if (row == nullptr || row->reading.mainDigits == 0) {
    return Refuse(BARHATCH_BAD_OPTION, "addon_gap is for EAN and UPC", message);
  }
  if (job.conformance == BARHATCH_DEVICE) {
    return Refuse(BARHATCH_BAD_OPTION, "the device has an addon_gap of its own: it must be 0",
                  message);
  }
  const int least = LeastAddonGapOf(static_cast<EanUpcSymbol>(row->drawing.variant));
  if (job.addon_gap >= least && job.addon_gap <= kMostAddonGapModules) return BARHATCH_OK;
  message << "addon_gap " << job.addon_gap << " is none beside " << row->name.name << ": 0 and "
          << least << " to " << kMostAddonGapModules;
  return BARHATCH_BAD_OPTION;
}

std::int32_t CheckLinearOptions(const BarhatchJob& job, Message& message) {
  const bool isOfMatrix =
      job.rows != 0 || job.columns != 0 || job.envelope != 0 || (job.flags & kMatrixFlags) != 0;
  if (!isOfMatrix) return BARHATCH_OK;
  if ((job.flags & kMatrixFlags & ~kDeviceMatrixFlags) != 0) {
    return Refuse(BARHATCH_BAD_OPTION, "a flag is set that is for Data Matrix alone", message);
  }
  return Refuse(BARHATCH_BAD_OPTION,
                "rows, columns, envelope, FNC1_SECOND and MAY_GROW are for Data Matrix", message);
}

static_assert(static_cast<int>(CheckScheme::kVerify) == BARHATCH_CHECK_VERIFY &&
                  static_cast<int>(CheckScheme::kModulo43) == BARHATCH_CHECK_MOD_43 &&
                  static_cast<int>(CheckScheme::kInterleaved10) == BARHATCH_CHECK_ITF_10 &&
                  static_cast<int>(CheckScheme::kMsi10) == BARHATCH_MSI_10 &&
                  static_cast<int>(CheckScheme::kMsiNcr11And10) == BARHATCH_MSI_NCR_11_10 &&
                  static_cast<int>(CheckScheme::kCode11CAndK) == BARHATCH_CODE_11_CK,
              "the schemes have the numbers of job.check");

bool HasScheme(const BarhatchJob& job) {
  if (job.check == BARHATCH_CHECK_OWN) return true;
  const SymbologyRow* const row = RowOf(job.symbology);
  if (row == nullptr || job.conformance == BARHATCH_DEVICE) return false;
  const bool isScheme = job.check > 0 && job.check <= BARHATCH_CODE_11_CK;
  return isScheme && (row->checks & BitOf(static_cast<CheckScheme>(job.check))) != 0;
}

std::int32_t CheckSchemeOf(const BarhatchJob& job, Message& message) {
  if (!HasScheme(job)) {
    message << "check " << job.check << " is not a scheme of "
            << (job.conformance == BARHATCH_DEVICE ? "the device" : NameOf(job.symbology)->name);
    return BARHATCH_BAD_OPTION;
  }
  const bool addsEnds = (job.flags & BARHATCH_ADD_START_STOP) != 0;
  const bool hasEnds = job.symbology == BARHATCH_CODABAR && job.conformance == BARHATCH_PUBLISHED;
  if (!addsEnds || hasEnds) return BARHATCH_OK;
  return Refuse(BARHATCH_BAD_OPTION, "ADD_START_STOP is for Codabar by the book", message);
}

std::int32_t CheckBearerBars(const BarhatchJob& job, Message& message) {
  const bool isInPairs =
      job.symbology == BARHATCH_INTERLEAVED_2_OF_5 || job.symbology == BARHATCH_ITF_14;
  const bool mayHave = isInPairs && job.conformance == BARHATCH_PUBLISHED;
  if (mayHave || !HasBearerBars(job)) return BARHATCH_OK;
  return Refuse(BARHATCH_BAD_OPTION,
                "BEARER_BARS are for Interleaved 2 of 5 and ITF-14 by the book", message);
}

// What is for a Data Matrix by the book alone.
std::int32_t CheckForeign(const BarhatchJob& job, Message& message) {
  if (IsMatrix(job) && job.conformance == BARHATCH_PUBLISHED) return BARHATCH_OK;
  if (job.input == BARHATCH_CODEWORDS) {
    return Refuse(BARHATCH_BAD_OPTION, "CODEWORDS are for Data Matrix by the book", message);
  }
  for (const ComingField<std::int32_t>& field : kPublishedMatrixIntegers) {
    if (job.*field.field == 0) continue;
    message << field.name << " is for Data Matrix by the book: it must be 0";
    return BARHATCH_BAD_OPTION;
  }
  return BARHATCH_OK;
}

// FNC1 in front is the element string's own, and so are all its characters.
std::int32_t CheckElements(const BarhatchJob& job, Message& message) {
  if (job.input != BARHATCH_GS1) return BARHATCH_OK;
  const bool isCode128 = job.symbology >= BARHATCH_CODE_128 && job.symbology <= BARHATCH_CODE_128_C;
  if (job.conformance == BARHATCH_DEVICE || !(isCode128 || IsMatrix(job))) {
    return Refuse(BARHATCH_BAD_OPTION,
                  "element strings of GS1 are for Code 128 and Data Matrix by the book", message);
  }
  const bool hasOther = (job.flags & (BARHATCH_FNC1_SECOND | BARHATCH_MASK)) != 0;
  if (!hasOther && job.envelope == 0 && job.eci == 0) return BARHATCH_OK;
  return Refuse(BARHATCH_BAD_OPTION,
                "an element string of GS1 has no ECI, envelope, mask or FNC1 in second position",
                message);
}

std::int32_t CheckChoices(const BarhatchJob& job, Message& message) {
  if (!IsInput(job.input)) {
    return RefuseNumber("input", job.input, " is none: 0 to 5", message);
  }
  if ((job.flags & ~kFlags) != 0) {
    return Refuse(BARHATCH_BAD_OPTION, "a flag is set that this version does not have", message);
  }
  if (job.want < 0 || job.want > kEveryWant) {
    return RefuseNumber("want", job.want, " has bits that mean nothing", message);
  }
  if (Wants(job, BARHATCH_WANT_STROKES) && !IsPattern(job.pattern)) {
    return RefuseNumber("pattern", job.pattern, " is none: 0 to 3, 5 and 6", message);
  }
  return BARHATCH_OK;
}

std::int32_t CheckPointers(const BarhatchJob& job, Message& message) {
  if ((job.allocate == nullptr) != (job.release == nullptr)) {
    return Refuse(BARHATCH_BAD_OPTION, "allocate and release go together", message);
  }
  if (job.reserved != nullptr) {
    return Refuse(BARHATCH_BAD_OPTION, "reserved must be null", message);
  }
  if (job.text == nullptr && job.length != 0) {
    return Refuse(BARHATCH_BAD_OPTION, "text is null, but length is not 0", message);
  }
  return BARHATCH_OK;
}

// Sizes that say how wide a module is.
int SizesOfModule(const BarhatchJob& job) {
  return (job.x_dimension != 0.0 ? 1 : 0) + (job.width != 0.0 ? 1 : 0) +
         (IsMatrix(job) && job.height != 0.0 ? 1 : 0);
}

// One of them is needed: a second one could only contradict it.
std::int32_t CheckSizes(const BarhatchJob& job, Message& message) {
  if (SizesOfModule(job) != 1) {
    return Refuse(BARHATCH_BAD_GEOMETRY,
                  IsMatrix(job) ? "set one of x_dimension, width and height"
                                : "set x_dimension or width, and not both",
                  message);
  }
  if (!IsMatrix(job) && job.height == 0.0) {
    return Refuse(BARHATCH_BAD_GEOMETRY, "height must be finite and above 0", message);
  }
  return BARHATCH_OK;
}

}  // namespace

bool CopyRecord(const BarhatchJob* record, BarhatchJob& job, Message message) {
  if (record == nullptr) {
    message << "the job is null";
    return false;
  }
  if (record->size < sizeof job) {
    message << "the record is " << static_cast<std::int32_t>(record->size)
            << " bytes, this library knows " << static_cast<std::int32_t>(sizeof job);
    return false;
  }
  if (record->size > kMostRecordBytes) {
    message << "the size of the record is not set";
    return false;
  }
  std::memcpy(&job, record, sizeof job);
  const auto* const bytes = reinterpret_cast<const std::uint8_t*>(record);
  if (IsZero(bytes + sizeof job, job.size - sizeof job)) return true;
  message << "the record has bytes that this library does not know: its header is newer";
  return false;
}

std::int32_t CheckOptions(const BarhatchJob& job, Message message) {
  std::int32_t status = CheckSymbology(job, message);
  if (status == BARHATCH_OK) status = CheckChoices(job, message);
  if (status == BARHATCH_OK) {
    status = IsMatrix(job) ? CheckMatrixOptions(job, message) : CheckLinearOptions(job, message);
  }
  if (status == BARHATCH_OK) status = CheckAddonGap(job, message);
  if (status == BARHATCH_OK) status = CheckSchemeOf(job, message);
  if (status == BARHATCH_OK) status = CheckBearerBars(job, message);
  if (status == BARHATCH_OK) status = CheckForeign(job, message);
  if (status == BARHATCH_OK) status = CheckElements(job, message);
  if (status == BARHATCH_OK) status = CheckComing(job, kComingIntegers, message);
  if (status == BARHATCH_OK) status = CheckComing(job, kComingLengths, message);
  if (status == BARHATCH_OK) status = CheckPointers(job, message);
  return status;
}

std::int32_t CheckGeometry(const BarhatchJob& job, Message message) {
  for (const Length& length : kLengths) {
    const double value = job.*length.field;
    if (value >= 0.0 && value <= kMostLength) continue;
    const bool isLarge = IsFinite(value) && value > 0.0;
    message << length.name << (isLarge ? " is above 1e150" : " must be finite and not below 0");
    return BARHATCH_BAD_GEOMETRY;
  }
  if (!(IsFinite(job.quiet) && job.quiet <= kMostQuiet)) {
    return Refuse(BARHATCH_BAD_GEOMETRY, "quiet must be finite and at most 1000 modules", message);
  }
  if (Wants(job, BARHATCH_WANT_STROKES) && job.gap == 0.0 && job.pattern != BARHATCH_POINTS) {
    return Refuse(BARHATCH_BAD_GEOMETRY, "gap must be finite and above 0", message);
  }
  return Wants(job, BARHATCH_WANT_STROKES) ? CheckSizes(job, message) : BARHATCH_OK;
}

bool IsMatrix(const BarhatchJob& job) { return job.symbology == BARHATCH_DATA_MATRIX; }

bool Wants(const BarhatchJob& job, BarhatchWant what) {
  return job.want == 0 || (job.want & what) != 0;
}

bool HasSize(const BarhatchJob& job) {
  return SizesOfModule(job) == 1 && (IsMatrix(job) || job.height != 0.0);
}

DeviationSet InForce(const BarhatchJob& job) {
  if (job.conformance == BARHATCH_DEVICE) return DeviationSet::All();
  DeviationSet inForce;
  if ((job.flags & BARHATCH_INDUSTRY_144) != 0) inForce.Add(Deviation::kDDM_1);
  if ((job.flags & BARHATCH_PERMIT) != 0) {
    inForce.Add(Deviation::kDEAN_2);
    inForce.Add(Deviation::kDEAN_3);
  }
  return inForce;
}

LinearOptions LinearOptionsOf(const BarhatchJob& job) {
  LinearOptions options;
  options.check = static_cast<CheckScheme>(job.check);
  options.addsStartStop = (job.flags & BARHATCH_ADD_START_STOP) != 0;
  options.permits = (job.flags & BARHATCH_PERMIT) != 0;
  options.addonGap = job.addon_gap;
  return options;
}

std::int32_t QuietModulesOf(const BarhatchJob& job) {
  if (job.quiet < 0.0) return kNoQuietZone;
  const auto whole = static_cast<std::int32_t>(job.quiet);
  return whole < job.quiet ? whole + 1 : whole;
}

std::uint32_t SmallQuietZoneWarning(const BarhatchJob& job) {
  const bool isNone = job.quiet < 0.0;
  return job.invert != 0 && isNone ? BARHATCH_W_INVERTED : BARHATCH_W_QUIET_ZONE;
}

double RatioOf(const BarhatchJob& job) { return job.ratio != 0.0 ? job.ratio : kUsualRatio; }

bool HasBearerBars(const BarhatchJob& job) { return (job.flags & BARHATCH_BEARER_BARS) != 0; }

Header HeaderOf(const BarhatchJob& job) {
  if (job.envelope == 5) return Header::kMacro05;
  if (job.envelope == 6) return Header::kMacro06;
  return (job.flags & BARHATCH_FNC1_SECOND) != 0 ? Header::kFnc1Second : Header::kNone;
}

bool DrawsQuietZone(const BarhatchJob& job) {
  return (job.flags & BARHATCH_QUIET_INSIDE) != 0 || job.invert != 0 || HasBearerBars(job);
}

std::int32_t DrawnQuietModulesOf(const BarhatchJob& job) {
  return DrawsQuietZone(job) ? QuietModulesOf(job) : kNoQuietZone;
}

Shape ShapeOf(const BarhatchJob& job) {
  constexpr Shape kShapes[] = {Shape::kSquare, Shape::kRectangle,  Shape::kAny,
                               Shape::kSquare, Shape::kAnyAndDmre, Shape::kDmreRectangle};
  return kShapes[job.shape];
}

}  // namespace barhatch
