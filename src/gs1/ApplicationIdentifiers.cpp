#include "gs1/ApplicationIdentifiers.h"

namespace barhatch {

namespace {

using Check = AiCheck;

// In the notation of the standard: N(6) is N6, six digits; X(1, 20) is X..20, one to twenty
// characters.
constexpr AiComponent Of(AiCharacters characters, int shortest, int longest, Check check) {
  return {characters, false, static_cast<std::uint8_t>(shortest),
          static_cast<std::uint8_t>(longest), check};
}
constexpr AiComponent N(int length, Check check = Check::kNone) {
  return Of(AiCharacters::kN, length, length, check);
}
constexpr AiComponent X(int length, Check check = Check::kNone) {
  return Of(AiCharacters::kX, length, length, check);
}
constexpr AiComponent N(int shortest, int longest, Check check = Check::kNone) {
  return Of(AiCharacters::kN, shortest, longest, check);
}
constexpr AiComponent X(int shortest, int longest, Check check = Check::kNone) {
  return Of(AiCharacters::kX, shortest, longest, check);
}
constexpr AiComponent Y(int shortest, int longest, Check check) {
  return Of(AiCharacters::kY, shortest, longest, check);
}
constexpr AiComponent Z(int shortest, int longest, Check check) {
  return Of(AiCharacters::kZ, shortest, longest, check);
}

// A component in brackets: missing, or there as a whole.
constexpr AiComponent Maybe(AiComponent component) {
  component.isOptional = true;
  return component;
}

constexpr AiCode CodeOf(const char* digits) {
  int code = 1;
  for (; *digits != '\0'; ++digits) code = code * 10 + (*digits - '0');
  return static_cast<AiCode>(code);
}

// Both ends have one number of digits: one template parameter for both.
template <std::size_t size, typename... Components>
constexpr AiRange Ais(const char (&first)[size], const char (&last)[size],
                      Components... components) {
  return {CodeOf(first), CodeOf(last), {components...}};
}
template <std::size_t size, typename... Components>
constexpr AiRange Ai(const char (&digits)[size], Components... components) {
  return Ais(digits, digits, components...);
}

// GS1 General Specifications, section 3: the application identifiers in ascending order. Lists of
// countries, currencies and packages, and the parts of coupons, have no check here.
// clang-format off
constexpr AiRange kAiRanges[] = {
    Ai ("00",           N(18, Check::kCheckDigit)),
    Ais("01", "03",     N(14, Check::kCheckDigit)),
    Ai ("10",           X(1, 20)),
    Ais("11", "13",     N(6, Check::kDateOrMonth)),
    Ais("15", "17",     N(6, Check::kDateOrMonth)),
    Ai ("20",           N(2)),
    Ais("21", "22",     X(1, 20)),
    Ai ("235",          X(1, 28)),
    Ais("240", "241",   X(1, 30)),
    Ai ("242",          N(1, 6)),
    Ai ("243",          X(1, 20)),
    Ais("250", "251",   X(1, 30)),
    Ai ("253",          N(13, Check::kCheckDigit), Maybe(X(1, 17))),
    Ai ("254",          X(1, 20)),
    Ai ("255",          N(13, Check::kCheckDigit), Maybe(N(1, 12))),
    Ai ("30",           N(1, 8)),
    Ais("3100", "3105", N(6)),
    Ais("3110", "3115", N(6)),
    Ais("3120", "3125", N(6)),
    Ais("3130", "3135", N(6)),
    Ais("3140", "3145", N(6)),
    Ais("3150", "3155", N(6)),
    Ais("3160", "3165", N(6)),
    Ais("3200", "3205", N(6)),
    Ais("3210", "3215", N(6)),
    Ais("3220", "3225", N(6)),
    Ais("3230", "3235", N(6)),
    Ais("3240", "3245", N(6)),
    Ais("3250", "3255", N(6)),
    Ais("3260", "3265", N(6)),
    Ais("3270", "3275", N(6)),
    Ais("3280", "3285", N(6)),
    Ais("3290", "3295", N(6)),
    Ais("3300", "3305", N(6)),
    Ais("3310", "3315", N(6)),
    Ais("3320", "3325", N(6)),
    Ais("3330", "3335", N(6)),
    Ais("3340", "3345", N(6)),
    Ais("3350", "3355", N(6)),
    Ais("3360", "3365", N(6)),
    Ais("3370", "3375", N(6)),
    Ais("3400", "3405", N(6)),
    Ais("3410", "3415", N(6)),
    Ais("3420", "3425", N(6)),
    Ais("3430", "3435", N(6)),
    Ais("3440", "3445", N(6)),
    Ais("3450", "3455", N(6)),
    Ais("3460", "3465", N(6)),
    Ais("3470", "3475", N(6)),
    Ais("3480", "3485", N(6)),
    Ais("3490", "3495", N(6)),
    Ais("3500", "3505", N(6)),
    Ais("3510", "3515", N(6)),
    Ais("3520", "3525", N(6)),
    Ais("3530", "3535", N(6)),
    Ais("3540", "3545", N(6)),
    Ais("3550", "3555", N(6)),
    Ais("3560", "3565", N(6)),
    Ais("3570", "3575", N(6)),
    Ais("3600", "3605", N(6)),
    Ais("3610", "3615", N(6)),
    Ais("3620", "3625", N(6)),
    Ais("3630", "3635", N(6)),
    Ais("3640", "3645", N(6)),
    Ais("3650", "3655", N(6)),
    Ais("3660", "3665", N(6)),
    Ais("3670", "3675", N(6)),
    Ais("3680", "3685", N(6)),
    Ais("3690", "3695", N(6)),
    Ai ("37",           N(1, 8)),
    Ais("3900", "3909", N(1, 15)),
    Ais("3910", "3919", N(3), N(1, 15)),
    Ais("3920", "3929", N(1, 15)),
    Ais("3930", "3939", N(3), N(1, 15)),
    Ais("3940", "3943", N(4)),
    Ais("3950", "3955", N(6)),
    Ai ("400",          X(1, 30)),
    Ai ("401",          X(1, 30, Check::kCompanyPrefix)),
    Ai ("402",          N(17, Check::kCheckDigit)),
    Ai ("403",          X(1, 30)),
    Ais("410", "417",   N(13, Check::kCheckDigit)),
    Ai ("420",          X(1, 20)),
    Ai ("421",          N(3), X(1, 9)),
    Ai ("422",          N(3)),
    Ai ("423",          N(3), Maybe(N(3)), Maybe(N(3)), Maybe(N(3)), Maybe(N(3))),
    Ai ("424",          N(3)),
    Ai ("425",          N(3), Maybe(N(3)), Maybe(N(3)), Maybe(N(3)), Maybe(N(3))),
    Ai ("426",          N(3)),
    Ai ("427",          X(1, 3)),
    Ais("4300", "4301", X(1, 35, Check::kPercentEscapes)),
    Ais("4302", "4306", X(1, 70, Check::kPercentEscapes)),
    Ai ("4307",         X(2)),
    Ai ("4308",         X(1, 30)),
    Ai ("4309",         N(10, Check::kLatitude), N(10, Check::kLongitude)),
    Ais("4310", "4311", X(1, 35, Check::kPercentEscapes)),
    Ais("4312", "4316", X(1, 70, Check::kPercentEscapes)),
    Ai ("4317",         X(2)),
    Ai ("4318",         X(1, 20)),
    Ai ("4319",         X(1, 30)),
    Ai ("4320",         X(1, 35, Check::kPercentEscapes)),
    Ais("4321", "4323", N(1, Check::kYesNo)),
    Ais("4324", "4325", N(6, Check::kDateOrMonth), N(4, Check::kHourMinute)),
    Ai ("4326",         N(6, Check::kDate)),
    Ais("4330", "4333", N(6), Maybe(X(1, Check::kHyphens))),
    Ai ("7001",         N(13)),
    Ai ("7002",         X(1, 30)),
    Ai ("7003",         N(6, Check::kDate), N(4, Check::kHourMinute)),
    Ai ("7004",         N(1, 4)),
    Ai ("7005",         X(1, 12)),
    Ai ("7006",         N(6, Check::kDate)),
    Ai ("7007",         N(6, Check::kDate), Maybe(N(6, Check::kDate))),
    Ai ("7008",         X(1, 3)),
    Ai ("7009",         X(1, 10)),
    Ai ("7010",         X(1, 2)),
    Ai ("7011",         N(6, Check::kDate), Maybe(N(4, Check::kHourMinute))),
    Ais("7020", "7022", X(1, 20)),
    Ai ("7023",         X(1, 30, Check::kCompanyPrefix)),
    Ais("7030", "7039", N(3), X(1, 27)),
    Ai ("7040",         N(1), X(1), X(1), X(1, Check::kImporterIndex)),
    Ai ("7041",         X(1, 4)),
    Ais("710", "717",   X(1, 20)),
    Ais("7230", "7239", X(2), X(1, 28)),
    Ai ("7240",         X(1, 20)),
    Ai ("7241",         N(2, Check::kMediaType)),
    Ai ("7242",         X(1, 25)),
    Ai ("7250",         N(8, Check::kLongDate)),
    Ai ("7251",         N(8, Check::kLongDate), N(4, Check::kHourMinute)),
    Ai ("7252",         N(1, Check::kSex)),
    Ais("7253", "7254", X(1, 40, Check::kPercentEscapes)),
    Ai ("7255",         X(1, 10)),
    Ai ("7256",         X(1, 90, Check::kPercentEscapes)),
    Ai ("7257",         X(1, 70, Check::kPercentEscapes)),
    Ai ("7258",         X(3, Check::kPositionOfTotal)),
    Ai ("7259",         X(1, 40, Check::kPercentEscapes)),
    Ai ("8001",         N(4, Check::kNotZero), N(5, Check::kNotZero), N(3, Check::kNotZero),
                        N(1, Check::kWinding), N(1)),
    Ai ("8002",         X(1, 20)),
    Ai ("8003",         N(1, Check::kZero), N(13, Check::kCheckDigit), Maybe(X(1, 16))),
    Ai ("8004",         X(1, 30, Check::kCompanyPrefix)),
    Ai ("8005",         N(6)),
    Ai ("8006",         N(14, Check::kCheckDigit), N(4, Check::kPieceOfTotal)),
    Ai ("8007",         X(1, 34, Check::kBankAccount)),
    Ai ("8008",         N(6, Check::kDate), N(2, Check::kHour), Maybe(N(2, Check::kMinute)),
                        Maybe(N(2, Check::kSecond))),
    Ai ("8009",         X(1, 50)),
    Ai ("8010",         Y(1, 30, Check::kCompanyPrefix)),
    Ai ("8011",         N(1, 12, Check::kNoZeroInFront)),
    Ai ("8012",         X(1, 20)),
    Ai ("8013",         X(1, 25, Check::kCheckPair)),
    Ai ("8014",         X(1, 25, Check::kHasNonDigit)),
    Ais("8017", "8018", N(18, Check::kCheckDigit)),
    Ai ("8019",         N(1, 10)),
    Ai ("8020",         X(1, 25)),
    Ai ("8026",         N(14, Check::kCheckDigit), N(4, Check::kPieceOfTotal)),
    Ai ("8030",         Z(1, 90, Check::kPadding)),
    Ais("8040", "8041", N(15)),
    Ai ("8042",         N(32)),
    Ai ("8043",         N(18), Maybe(N(1, 2))),
    Ai ("8110",         X(1, 70)),
    Ai ("8111",         N(4)),
    Ai ("8112",         X(1, 70)),
    Ai ("8200",         X(1, 70)),
    Ai ("90",           X(1, 30)),
    Ais("91", "99",     X(1, 90)),
};
// clang-format on
constexpr std::size_t kRanges = sizeof kAiRanges / sizeof kAiRanges[0];
static_assert(kRanges < 256, "prefixes find their ranges by a byte");

// GS1 General Specifications, figure of the predefined lengths: first two digits, characters of the
// value.
struct PredefinedLength {
  int first;
  int last;
  int digits;  // of the application identifier
  int length;
};
constexpr PredefinedLength kPredefinedLengths[] = {
    {0, 0, 2, 18},  {1, 3, 2, 14},  {4, 4, 2, 16},   {11, 19, 2, 6},
    {20, 20, 2, 2}, {31, 36, 4, 6}, {41, 41, 3, 13},
};

constexpr int FirstTwo(AiCode ai) {
  return (ai < 1000 ? ai : ai < 10000 ? ai / 10 : ai / 100) % 100;
}

// By the first two digits.
struct PrefixTable {
  AiPrefix of[100] = {};
  std::uint8_t firstRange[100] = {};  // the ranges with such identifiers
  std::uint8_t endRange[100] = {};

  constexpr PrefixTable() {
    for (std::size_t i = 0; i < kRanges; ++i) {
      const AiRange& range = kAiRanges[i];
      for (int prefix = FirstTwo(range.first); prefix <= FirstTwo(range.last); ++prefix) {
        of[prefix].digits = static_cast<std::uint8_t>(DigitsOf(range.first));
        if (endRange[prefix] == 0) firstRange[prefix] = static_cast<std::uint8_t>(i);
        endRange[prefix] = static_cast<std::uint8_t>(i + 1);
      }
    }
    for (const PredefinedLength& row : kPredefinedLengths) {
      for (int prefix = row.first; prefix <= row.last; ++prefix) {
        of[prefix] = {static_cast<std::uint8_t>(row.digits), static_cast<std::uint8_t>(row.length)};
      }
    }
  }
};
constexpr PrefixTable kPrefixes;

// The digits without the 1 in front, behind them zeros: 3100 for (31), (310) and (3100).
constexpr int FourDigits(AiCode ai) {
  return ai < 1000 ? (ai - 100) * 100 : ai < 10000 ? (ai - 1000) * 10 : ai - 10000;
}

constexpr bool AreInOrder() {
  for (std::size_t i = 0; i < kRanges; ++i) {
    if (kAiRanges[i].first > kAiRanges[i].last) return false;
    if (i > 0 && FourDigits(kAiRanges[i - 1].last) >= FourDigits(kAiRanges[i].first)) return false;
  }
  return true;
}
static_assert(AreInOrder(), "ascending, and none overlaps the next");

constexpr bool DigitsFollowFromThePrefix() {
  for (const AiRange& range : kAiRanges) {
    if (kPrefixes.of[FirstTwo(range.first)].digits != DigitsOf(range.first)) return false;
    if (kPrefixes.of[FirstTwo(range.last)].digits != DigitsOf(range.last)) return false;
  }
  return true;
}

static_assert(DigitsFollowFromThePrefix(), "two digits tell how many there are");

constexpr std::size_t Shortest(const AiRange& range) {
  std::size_t length = 0;
  for (const AiComponent& part : range.components) length += part.isOptional ? 0 : part.shortest;
  return length;
}

constexpr std::size_t Longest(const AiRange& range) {
  std::size_t length = 0;
  for (const AiComponent& part : range.components) length += part.longest;
  return length;
}

constexpr bool LengthsMakeSense() {
  for (const AiRange& range : kAiRanges) {
    if (Shortest(range) == 0 || Longest(range) > kLongestAiValue) return false;
    bool isVariable = false;  // nothing that must be there follows what may be shorter
    for (const AiComponent& part : range.components) {
      if (part.longest == 0) continue;
      if (part.shortest == 0 || part.shortest > part.longest) return false;
      if (isVariable && !part.isOptional) return false;
      isVariable = isVariable || part.isOptional || part.shortest < part.longest;
    }
  }
  return true;
}
static_assert(LengthsMakeSense(), "a value is split from the left, and none is empty");

constexpr bool PredefinedLengthsAreExact() {
  for (const AiRange& range : kAiRanges) {
    for (int prefix = FirstTwo(range.first); prefix <= FirstTwo(range.last); ++prefix) {
      const std::size_t length = kPrefixes.of[prefix].predefined;
      if (length == 0) continue;
      if (Shortest(range) != length || Longest(range) != length) return false;
    }
  }
  return true;
}
static_assert(PredefinedLengthsAreExact(), "a reader of no more than the prefixes finds the ends");

// Indices of the application identifiers that ranges begin with.
struct RangeIndices {
  std::uint16_t of[kRanges] = {};

  constexpr RangeIndices() {
    for (std::size_t i = 1; i < kRanges; ++i) {
      of[i] = static_cast<std::uint16_t>(of[i - 1] + kAiRanges[i - 1].last -
                                         kAiRanges[i - 1].first + 1);
    }
  }
};
constexpr RangeIndices kIndices;
static_assert(kIndices.of[kRanges - 1] + 9 <= kMostAis, "91 to 99 are the last");

// Sets by character, one bit each.
constexpr unsigned Bit(AiCharacters set) { return 1u << static_cast<int>(set); }

constexpr bool IsIn(char character, const char* list) {
  for (; *list != '\0'; ++list) {
    if (*list == character) return true;
  }
  return false;
}

constexpr unsigned SetsOf(char character) {
  const bool isDigit = character >= '0' && character <= '9';
  const bool isUpper = character >= 'A' && character <= 'Z';
  const bool isLower = character >= 'a' && character <= 'z';
  unsigned sets = isDigit ? Bit(AiCharacters::kN) : 0;
  if (isDigit || isUpper || isLower || IsIn(character, "!\"%&'()*+,-./:;<=>?_")) {
    sets |= Bit(AiCharacters::kX);
  }
  if (isDigit || isUpper || IsIn(character, "#-/")) sets |= Bit(AiCharacters::kY);
  if (isDigit || isUpper || isLower || IsIn(character, "-_=")) sets |= Bit(AiCharacters::kZ);
  return sets;
}

constexpr int kBytes = 256;

struct SetTable {
  std::uint8_t of[kBytes] = {};

  constexpr SetTable() {
    for (int i = 0; i < kBytes; ++i)
      of[i] = static_cast<std::uint8_t>(SetsOf(static_cast<char>(i)));
  }

  constexpr int CountOf(AiCharacters set) const {
    int count = 0;
    for (const std::uint8_t sets : of) count += (sets & Bit(set)) != 0 ? 1 : 0;
    return count;
  }
};
constexpr SetTable kSets;
static_assert(kSets.CountOf(AiCharacters::kN) == 10 && kSets.CountOf(AiCharacters::kX) == 82 &&
                  kSets.CountOf(AiCharacters::kY) == 39 && kSets.CountOf(AiCharacters::kZ) == 65,
              "the sets are called 82, 39 and 64, which has = to fill up with besides");

}  // namespace

std::size_t ShortestValueOf(const AiRange& range) { return Shortest(range); }
std::size_t LongestValueOf(const AiRange& range) { return Longest(range); }

const AiRange* FindAi(AiCode ai) {
  const int prefix = FirstTwo(ai);
  for (int i = kPrefixes.firstRange[prefix]; i < kPrefixes.endRange[prefix]; ++i) {
    if (ai >= kAiRanges[i].first && ai <= kAiRanges[i].last) return &kAiRanges[i];
  }
  return nullptr;
}

AiPrefix PrefixOf(int firstTwo) { return kPrefixes.of[firstTwo]; }

int FirstTwoOf(AiCode ai) { return FirstTwo(ai); }

std::size_t IndexOfAi(const AiRange& range, AiCode ai) {
  return kIndices.of[&range - kAiRanges] + static_cast<std::size_t>(ai - range.first);
}

bool HasAiCharacter(AiCharacters set, Token character) {
  return IsByte(character) && (kSets.of[character] & Bit(set)) != 0;
}

}  // namespace barhatch
