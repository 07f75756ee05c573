#include "mark/JobRecord.h"

#include <cstring>
#include <limits>

#include "mark/Names.h"
#include "symbologies/EanUpcElements.h"
#include "symbologies/SymbologyTable.h"

namespace barhatch {

namespace {

constexpr std::uint32_t kMostRecordBytes = 65536;  // whatever comes: more is no size, but garbage
constexpr std::int32_t kMostRows = 255;            // a request has one byte for each
constexpr std::uint32_t kMatrixFlags = BARHATCH_FNC1_SECOND | BARHATCH_MAY_GROW;
constexpr std::uint32_t kFlags = kMatrixFlags | BARHATCH_QUIET_INSIDE | BARHATCH_PERMIT |
                                 BARHATCH_NO_PROOF | BARHATCH_ADD_START_STOP;
constexpr std::int32_t kEveryWant = 63;
constexpr double kMostQuietModules = 1000.0;
constexpr double kMostLength = 1e150;  // whose square still is a number
constexpr double kUsualRatio = 3.0;

// Numbers that have no meaning yet: whoever sets one means something that this version cannot do.
template <typename Number>
struct ComingField {
  Number BarhatchJob::*field;
  const char* name;
};

constexpr ComingField<std::int32_t> kComingIntegers[] = {
    {&BarhatchJob::eci, "eci"},         {&BarhatchJob::shape, "shape"},
    {&BarhatchJob::profile, "profile"}, {&BarhatchJob::dots_per_module, "dots_per_module"},
    {&BarhatchJob::order, "order"},
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

bool IsInput(std::int32_t input) {
  return input == BARHATCH_UTF8 || input == BARHATCH_BYTES || input == BARHATCH_ESCAPED ||
         input == BARHATCH_UNITS;
}

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
  if (job.conformance == BARHATCH_PUBLISHED && IsMatrix(job)) {
    message
        << name->name
        << " by the book is not in this version; conformance DEVICE writes it as the device does";
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

std::int32_t CheckMatrixOptions(const BarhatchJob& job, Message& message) {
  const bool isInRange =
      job.rows >= 0 && job.rows <= kMostRows && job.columns >= 0 && job.columns <= kMostRows;
  if (!isInRange) return Refuse(BARHATCH_BAD_OPTION, "rows and columns are 0 to 255", message);
  if (job.envelope != 0 && job.envelope != 5 && job.envelope != 6) {
    return RefuseNumber("envelope", job.envelope, " is not in this version: 0, 5 and 6", message);
  }
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

std::int32_t CheckChoices(const BarhatchJob& job, Message& message) {
  if (!IsInput(job.input)) {
    return RefuseNumber("input", job.input, " is not in this version: 0, 1, 3 and 4", message);
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
  if (!(IsFinite(job.quiet) && job.quiet <= kMostQuietModules)) {
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

Header HeaderOf(const BarhatchJob& job) {
  if (job.envelope == 5) return Header::kMacro05;
  if (job.envelope == 6) return Header::kMacro06;
  return (job.flags & BARHATCH_FNC1_SECOND) != 0 ? Header::kFnc1Second : Header::kNone;
}

bool DrawsQuietZone(const BarhatchJob& job) {
  return (job.flags & BARHATCH_QUIET_INSIDE) != 0 || job.invert != 0;
}

std::int32_t DrawnQuietModulesOf(const BarhatchJob& job) {
  return DrawsQuietZone(job) ? QuietModulesOf(job) : kNoQuietZone;
}

}  // namespace barhatch
