#include "gs1/ElementChecks.h"

namespace barhatch {

namespace {

// Modulus and alphabet : two check characters of five bits each.
constexpr std::uint32_t kPairModulus = 1021;
constexpr char kPairAlphabet[] = "23456789ABCDEFGHJKLMNPQRSTUVWXYZ";
static_assert(sizeof kPairAlphabet == 32 + 1, "five bits");

// Weights from the right: the primes.
constexpr std::uint8_t kPairWeights[] = {2,  3,  5,  7,  11, 13, 17, 19, 23, 29, 31, 37,
                                         41, 43, 47, 53, 59, 61, 67, 71, 73, 79, 83};
constexpr std::size_t kMostPairCharacters = sizeof kPairWeights;  // before the pair

constexpr std::size_t kFewestPrefixDigits = 2;

constexpr std::uint64_t kMostLatitude = 1800000000;  // 180 degrees from the pole
constexpr std::uint64_t kMostLongitude = 3600000000;

int DigitOf(Token token) { return static_cast<int>(token - '0'); }

// The number of a few digits.
std::uint64_t NumberOf(const TokenText& part) {
  std::uint64_t number = 0;
  for (std::size_t i = 0; i < part.length; ++i)
    number = number * 10 + static_cast<std::uint64_t>(DigitOf(part.tokens[i]));
  return number;
}

int PairAt(const TokenText& part, std::size_t at) {
  return DigitOf(part.tokens[at]) * 10 + DigitOf(part.tokens[at + 1]);
}

// The value of a component is not what it should be.
ValueFault WrongPart(const TokenText& part, AiCheck check) {
  return {Reason::kAiValue, 0, part.length, static_cast<std::size_t>(check)};
}

ValueFault WrongPartIf(bool isWrong, const TokenText& part, AiCheck check) {
  return isWrong ? WrongPart(part, check) : ValueFault{};
}

// ---- Check digits ----

ValueFault CheckDigit(const TokenText& part) {
  int sum = 0;
  const std::size_t last = part.length - 1;
  for (std::size_t i = 0; i < last; ++i)
    sum += DigitOf(part.tokens[i]) * ((last - i) % 2 == 1 ? 3 : 1);
  const int right = (10 - sum % 10) % 10;
  if (DigitOf(part.tokens[last]) == right) return {};
  return {Reason::kAiCheckDigit, last, 1, static_cast<std::size_t>(right)};
}

// The value of a character in set 82: its place among them.
std::uint32_t ValueInSet82(Token character) {
  std::uint32_t value = 0;
  for (Token before = 0; before < character; ++before)
    value += HasAiCharacter(AiCharacters::kX, before) ? 1u : 0u;
  return value;
}

// A company prefix is of digits. How many it has, a list of all of them would know.
ValueFault CheckCompanyPrefix(const TokenText& part) {
  const bool isPrefix = part.length >= kFewestPrefixDigits && IsDigitToken(part.tokens[0]) &&
                        IsDigitToken(part.tokens[1]);
  return WrongPartIf(!isPrefix, part, AiCheck::kCompanyPrefix);
}

ValueFault CheckPair(const TokenText& part) {
  const ValueFault prefix = CheckCompanyPrefix(part);
  if (prefix.reason != Reason::kNone) return prefix;
  if (part.length < 3) return WrongPart(part, AiCheck::kCheckPair);
  const std::size_t count = part.length - 2;
  std::uint32_t sum = 0;
  for (std::size_t i = 0; i < count && i < kMostPairCharacters; ++i)
    sum += ValueInSet82(part.tokens[count - 1 - i]) * kPairWeights[i];
  sum %= kPairModulus;
  const Token first = static_cast<Token>(kPairAlphabet[sum / 32]);
  const Token second = static_cast<Token>(kPairAlphabet[sum % 32]);
  if (part.tokens[count] == first && part.tokens[count + 1] == second) return {};
  return {Reason::kAiCheckPair, count, 2, first * 256 + second};
}

ValueFault CheckPairAndNonDigit(const TokenText& part) {
  const ValueFault pair = CheckPair(part);
  if (pair.reason != Reason::kNone) return pair;
  std::size_t digits = 0;
  while (digits < part.length && IsDigitToken(part.tokens[digits])) ++digits;
  return WrongPartIf(digits == part.length, part, AiCheck::kHasNonDigit);
}

// ---- Dates and times ----

ValueFault WrongDate(DatePart part, std::size_t position, int number) {
  return {Reason::kAiDate, position, 2, DateDetail(part, number)};
}

bool IsLeapYear(int year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

int DaysOf(int year, int month) {
  constexpr std::uint8_t kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return kDays[month - 1] + (month == 2 && IsLeapYear(year) ? 1 : 0);
}

// Month and day stand at a position.
ValueFault CheckMonthAndDay(const TokenText& part, std::size_t at, int year, int firstDay) {
  const int month = PairAt(part, at);
  if (month < 1 || month > 12) return WrongDate(DatePart::kMonth, at, month);
  const int day = PairAt(part, at + 2);
  if (day < firstDay || day > DaysOf(year, month)) return WrongDate(DatePart::kDay, at + 2, day);
  return {};
}

// Two digits of a year are 49 years back to 50 ahead: 00 is 2000.
ValueFault CheckDate(const TokenText& part, int firstDay) {
  return CheckMonthAndDay(part, 2, 2000 + PairAt(part, 0), firstDay);
}

ValueFault CheckLongDate(const TokenText& part) {
  return CheckMonthAndDay(part, 4, PairAt(part, 0) * 100 + PairAt(part, 2), 1);
}

ValueFault CheckTime(const TokenText& part, std::size_t at, DatePart kind) {
  const int number = PairAt(part, at);
  const int most = kind == DatePart::kHour ? 23 : 59;
  return number > most ? WrongDate(kind, at, number) : ValueFault{};
}

ValueFault CheckHourMinute(const TokenText& part) {
  const ValueFault hour = CheckTime(part, 0, DatePart::kHour);
  return hour.reason != Reason::kNone ? hour : CheckTime(part, 2, DatePart::kMinute);
}

// ---- What else is asked ----

bool IsZero(const TokenText& part) {
  for (std::size_t i = 0; i < part.length; ++i) {
    if (part.tokens[i] != '0') return false;
  }
  return true;
}

bool IsOneOfDigits(const TokenText& part, const char* digits) {
  for (; *digits != '\0'; ++digits) {
    if (part.tokens[0] == static_cast<Token>(*digits)) return true;
  }
  return false;
}

bool AreHyphens(const TokenText& part) {
  for (std::size_t i = 0; i < part.length; ++i) {
    if (part.tokens[i] != '-') return false;
  }
  return true;
}

bool IsPieceOfTotal(std::uint64_t piece, std::uint64_t total) {
  return piece >= 1 && piece <= total;
}

bool IsPositionOfTotal(const TokenText& part) {
  const Token* const tokens = part.tokens;
  if (!IsDigitToken(tokens[0]) || tokens[1] != '/' || !IsDigitToken(tokens[2])) return false;
  return IsPieceOfTotal(tokens[0] - '0', tokens[2] - '0');
}

bool IsHexadecimal(Token token) {
  return IsDigitToken(token) || (token >= 'A' && token <= 'F') || (token >= 'a' && token <= 'f');
}

ValueFault CheckPercentEscapes(const TokenText& part) {
  for (std::size_t i = 0; i < part.length; ++i) {
    if (part.tokens[i] != '%') continue;
    const std::size_t left = part.length - i - 1;
    if (left < 2 || !IsHexadecimal(part.tokens[i + 1]) || !IsHexadecimal(part.tokens[i + 2])) {
      const std::size_t extent = left < 2 ? left + 1 : 3;
      return {Reason::kAiValue, i, extent, static_cast<std::size_t>(AiCheck::kPercentEscapes)};
    }
    i += 2;
  }
  return {};
}

bool IsImporterIndex(Token token) {
  return token == '-' || token == '_' || (HasAiCharacter(AiCharacters::kZ, token) && token != '=');
}

bool IsMediaType(std::uint64_t type) { return (type >= 1 && type <= 10) || type >= 80; }

// The signs of equality fill the value up to groups of three characters.
bool IsPadded(const TokenText& part) {
  std::size_t data = part.length;
  while (data > 0 && part.tokens[data - 1] == '=') --data;
  for (std::size_t i = 0; i < data; ++i) {
    if (part.tokens[i] == '=') return false;
  }
  const std::size_t padding = part.length - data;
  const bool fillsUp = data > 0 && padding < 3 && part.length % 3 == 0;
  return padding == 0 || fillsUp;
}

bool IsUpper(Token token) { return token >= 'A' && token <= 'Z'; }

// The first four characters are moved behind the others and letters become numbers from 10 on: the
// whole leaves 1, modulo 97.
bool IsBankAccount(const TokenText& part) {
  if (part.length < 5 || !IsUpper(part.tokens[0]) || !IsUpper(part.tokens[1])) return false;
  std::uint32_t rest = 0;
  for (std::size_t i = 0; i < part.length; ++i) {
    const Token token = part.tokens[(i + 4) % part.length];
    if (!IsDigitToken(token) && !IsUpper(token)) return false;
    rest = IsUpper(token) ? rest * 100 + (token - 'A') + 10 : rest * 10 + (token - '0');
    rest %= 97;
  }
  return rest == 1;
}

ValueFault CheckRest(const TokenText& part, AiCheck check) {
  switch (check) {
    case AiCheck::kZero:
      return WrongPartIf(!IsZero(part), part, check);
    case AiCheck::kNotZero:
      return WrongPartIf(IsZero(part), part, check);
    case AiCheck::kNoZeroInFront:
      return WrongPartIf(part.length > 1 && part.tokens[0] == '0', part, check);
    case AiCheck::kYesNo:
      return WrongPartIf(!IsOneOfDigits(part, "01"), part, check);
    case AiCheck::kWinding:
      return WrongPartIf(!IsOneOfDigits(part, "019"), part, check);
    case AiCheck::kSex:
      return WrongPartIf(!IsOneOfDigits(part, "0129"), part, check);
    case AiCheck::kHyphens:
      return WrongPartIf(!AreHyphens(part), part, check);
    case AiCheck::kPieceOfTotal:
      return WrongPartIf(
          !IsPieceOfTotal(NumberOf({part.tokens, 2}), NumberOf({part.tokens + 2, 2})), part, check);
    case AiCheck::kPositionOfTotal:
      return WrongPartIf(!IsPositionOfTotal(part), part, check);
    case AiCheck::kLatitude:
      return WrongPartIf(NumberOf(part) > kMostLatitude, part, check);
    case AiCheck::kLongitude:
      return WrongPartIf(NumberOf(part) > kMostLongitude, part, check);
    case AiCheck::kImporterIndex:
      return WrongPartIf(!IsImporterIndex(part.tokens[0]), part, check);
    case AiCheck::kMediaType:
      return WrongPartIf(!IsMediaType(NumberOf(part)), part, check);
    case AiCheck::kBankAccount:
      return WrongPartIf(!IsBankAccount(part), part, check);
    case AiCheck::kPadding:
      return WrongPartIf(!IsPadded(part), part, check);
    default:
      return {};
  }
}

ValueFault CheckPart(const TokenText& part, AiCheck check) {
  switch (check) {
    case AiCheck::kCheckDigit:
      return CheckDigit(part);
    case AiCheck::kCheckPair:
      return CheckPair(part);
    case AiCheck::kHasNonDigit:
      return CheckPairAndNonDigit(part);
    case AiCheck::kCompanyPrefix:
      return CheckCompanyPrefix(part);
    case AiCheck::kDate:
      return CheckDate(part, 1);
    case AiCheck::kDateOrMonth:
      return CheckDate(part, 0);
    case AiCheck::kLongDate:
      return CheckLongDate(part);
    case AiCheck::kHourMinute:
      return CheckHourMinute(part);
    case AiCheck::kHour:
      return CheckTime(part, 0, DatePart::kHour);
    case AiCheck::kMinute:
      return CheckTime(part, 0, DatePart::kMinute);
    case AiCheck::kSecond:
      return CheckTime(part, 0, DatePart::kSecond);
    case AiCheck::kPercentEscapes:
      return CheckPercentEscapes(part);
    default:
      return CheckRest(part, check);
  }
}

// ---- Lengths and characters ----

ValueFault CheckCharacters(const TokenText& part, AiCharacters set) {
  for (std::size_t i = 0; i < part.length; ++i) {
    if (!HasAiCharacter(set, part.tokens[i])) return {Reason::kAiCharacter, i, 1, part.tokens[i]};
  }
  return {};
}

ValueFault CheckLength(std::size_t length, std::size_t shortest, std::size_t longest) {
  if (length > longest) return {Reason::kAiTooLong, longest, length - longest, length};
  return length < shortest ? ValueFault{Reason::kAiTooShort, 0, 0, length} : ValueFault{};
}

ValueFault CheckComponent(const TokenText& part, const AiComponent& component) {
  if (part.length < component.shortest) return {Reason::kAiTooShort, 0, 0, 0};
  const ValueFault character = CheckCharacters(part, component.characters);
  return character.reason != Reason::kNone ? character : CheckPart(part, component.check);
}

}  // namespace

ValueFault CheckValue(const AiRange& range, const TokenText& value) {
  ValueFault fault = CheckLength(value.length, ShortestValueOf(range), LongestValueOf(range));
  std::size_t at = 0;
  for (const AiComponent& component : range.components) {
    if (fault.reason != Reason::kNone || at == value.length) return fault;
    const std::size_t left = value.length - at;
    const std::size_t taken = left < component.longest ? left : component.longest;
    fault = CheckComponent({value.tokens + at, taken}, component);
    if (fault.reason == Reason::kAiTooShort) fault.detail = value.length;
    fault.position += at;
    at += taken;
  }
  return fault;
}

ValueFault CheckUnknownValue(const AiPrefix& prefix, const TokenText& value) {
  const std::size_t longest = prefix.predefined > 0 ? prefix.predefined : kLongestAiValue;
  const ValueFault fault =
      CheckLength(value.length, prefix.predefined > 0 ? prefix.predefined : 1, longest);
  return fault.reason != Reason::kNone ? fault : CheckCharacters(value, AiCharacters::kX);
}

}  // namespace barhatch
