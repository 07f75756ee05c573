// The linear half of a mark: text to a module string, the module string read back.
#include <cstring>

#include "mark/JobRecord.h"
#include "mark/Mark.h"
#include "mark/MarkedSymbol.h"
#include "mark/Reading.h"
#include "symbologies/SymbologyReaders.h"
#include "symbologies/SymbologyTable.h"

namespace barhatch {

namespace {

constexpr std::size_t kFewestDigitsOfItf = 6;
constexpr char kGs = '\x1D';

// What stands for a character that no byte is, until the check of the text refuses it: outside of
// Code 128 no symbology takes it.
constexpr char kNoByte = '\xFF';

// The device takes the low byte of each unit, and one that is zero ends its text.
Refusal NarrowUnits(const char16_t* units, std::size_t count, char* bytes, std::size_t& length,
                    std::uint32_t& warnings) {
  for (length = 0; length < count; ++length) {
    const char16_t unit = units[length];
    if (unit == 0) return {Reason::kCharacter, static_cast<std::int32_t>(length), 0};
    if (unit > 255) warnings |= BARHATCH_W_LOW_BYTE | BARHATCH_W_UNREADABLE;
    bytes[length] = static_cast<char>(unit & 0xFF);
    if (bytes[length] == '\0') break;
  }
  bytes[length] = '\0';
  return {};
}

void NarrowTokens(const TokenText& text, char* bytes) {
  for (std::size_t i = 0; i < text.length; ++i) {
    bytes[i] = IsByte(text.tokens[i]) ? static_cast<char>(text.tokens[i]) : kNoByte;
  }
  bytes[text.length] = '\0';
}

bool IsCode128(std::int32_t symbology) {
  return symbology >= BARHATCH_CODE_128 && symbology <= BARHATCH_CODE_128_C;
}

bool IsFunctionOfCode128(Token token) { return token >= kFnc1Token && token <= kFnc3Token; }

bool IsInCode128(Token token, std::uint16_t accepted) {
  if (!IsByte(token)) return IsFunctionOfCode128(token);
  return (ClassesOf(static_cast<char>(token)) & accepted) != 0;
}

Refusal CheckCode128(const TokenText& text, std::uint16_t accepted) {
  if (text.length == 0) return {Reason::kEmpty};
  for (std::size_t i = 0; i < text.length; ++i) {
    if (!IsInCode128(text.tokens[i], accepted)) {
      return {Reason::kCharacter, static_cast<std::int32_t>(i)};
    }
  }
  return {};
}

// What a reader reports of the text: FNC1 as GS, but not in first position; the others not at all.
std::size_t ReadingOfCode128(const TokenText& text, char* bytes) {
  std::size_t length = 0;
  for (std::size_t i = 0; i < text.length; ++i) {
    const Token token = text.tokens[i];
    if (IsByte(token)) bytes[length++] = static_cast<char>(token);
    if (token == kFnc1Token && i > 0) bytes[length++] = kGs;
  }
  bytes[length] = '\0';
  return length;
}

QuietSides StandardQuiet(const BarhatchJob& job) {
  const SymbologyRow& row = kSymbologies[job.symbology];
  return {row.quietLeft, row.quietRight, 0, 0};
}

QuietSides QuietOf(const BarhatchJob& job) {
  const std::int32_t asked = QuietModulesOf(job);
  const QuietSides standard = StandardQuiet(job);
  return {QuietZoneOf(asked, standard.left), QuietZoneOf(asked, standard.right), 0, 0};
}

void WarnOfDigits(std::size_t digits, std::uint32_t& warnings) {
  if (digits % 2 != 0) warnings |= BARHATCH_W_LEADING_ZERO;
  if (digits + digits % 2 < kFewestDigitsOfItf) warnings |= BARHATCH_W_FEW_DIGITS;
}

// The letters of the symbol alone, without the quiet zone that is drawn.
Refusal ReadBack(const BarhatchJob& job, const LinearSymbol& drawn, const Characters& text,
                 MarkedSymbol& symbol) {
  const auto quiet = static_cast<std::size_t>(drawn.quietLeft + drawn.quietRight);
  const std::size_t letters = drawn.length - quiet;
  symbol.reading = static_cast<char*>(symbol.memory.Allocate(letters + 1));
  symbol.values = static_cast<std::uint8_t*>(symbol.memory.Allocate(letters + 1));
  if (symbol.reading == nullptr || symbol.values == nullptr) return {Reason::kNoMemory, -1, 0};
  SymbolReading reading = {symbol.reading, 0, symbol.values, 0};
  symbol.isRead = ReadSymbol(job.symbology, drawn.letters + drawn.quietLeft, letters, reading);
  symbol.readingLength = reading.textLength;
  symbol.valuesCount = reading.valuesCount;
  const bool isAsGiven = symbol.isRead && IsReadingOfLinear(job.symbology, text,
                                                            {symbol.reading, symbol.readingLength});
  if (!isAsGiven) symbol.warnings |= BARHATCH_W_UNREADABLE;
  return {};
}

// A symbol that was drawn, and the text that a reader is to report.
Refusal Finish(const BarhatchJob& job, const LinearSymbol& drawn, const Characters& text,
               MarkedSymbol& symbol) {
  symbol.letters = drawn.letters;
  symbol.columns = static_cast<int>(drawn.length);
  symbol.drawnQuiet = {drawn.quietLeft, drawn.quietRight, 0, 0};
  symbol.quiet = QuietOf(job);
  if (job.symbology == BARHATCH_INTERLEAVED_2_OF_5) WarnOfDigits(text.length, symbol.warnings);
  const QuietSides standard = StandardQuiet(job);
  if (symbol.quiet.left < standard.left || symbol.quiet.right < standard.right) {
    symbol.warnings |= SmallQuietZoneWarning(job);
  }
  return ReadBack(job, drawn, text, symbol);
}

std::int32_t DrawnQuietModules(const BarhatchJob& job) {
  return DrawsQuietZone(job) ? QuietModulesOf(job) : kNoQuietZone;
}

Refusal MakeOfBytes(const BarhatchJob& job, const Characters& text, Conformance& how,
                    MarkedSymbol& symbol) {
  const Block<char> checked(symbol.memory, text.length + 1);  // a check may shorten the text
  if (checked.get() == nullptr) return {Reason::kNoMemory};
  std::memcpy(checked.get(), text.text, text.length + 1);
  LinearSymbol drawn;
  const LinearJob linear = {job.symbology, checked.get(), text.length, DrawnQuietModules(job)};
  const Refusal refusal = DrawLinear(linear, 0, symbol.memory, how, drawn);
  return refusal.IsRefused() ? refusal : Finish(job, drawn, text, symbol);
}

Refusal MakeOfUnits(const BarhatchJob& job, const InputText& text, std::size_t units,
                    Conformance& how, MarkedSymbol& symbol) {
  const Block<char16_t> given(symbol.memory, units + 1);
  const Block<char> bytes(symbol.memory, units + 1);
  if (given.get() == nullptr || bytes.get() == nullptr) return {Reason::kNoMemory};
  text.CopyUnits(given.get(), units);
  std::size_t length = 0;
  const Refusal narrowed = NarrowUnits(given.get(), units, bytes.get(), length, symbol.warnings);
  return narrowed.IsRefused() ? narrowed : MakeOfBytes(job, {bytes.get(), length}, how, symbol);
}

Refusal MakeCode128(const BarhatchJob& job, const TokenText& text, MarkedSymbol& symbol) {
  const Refusal checked = CheckCode128(text, kSymbologies[job.symbology].text.accepted);
  if (checked.IsRefused()) return checked;
  const Block<char> expected(symbol.memory, text.length + 1);
  if (expected.get() == nullptr) return {Reason::kNoMemory};
  const std::size_t length = ReadingOfCode128(text, expected.get());
  LinearSymbol drawn;
  const LinearJob linear = {job.symbology, nullptr, 0, DrawnQuietModules(job)};
  const Refusal refusal = DrawCode128(linear, text, symbol.memory, drawn);
  return refusal.IsRefused() ? refusal : Finish(job, drawn, {expected.get(), length}, symbol);
}

Refusal MakeOfTokens(const BarhatchJob& job, const TokenText& text, Conformance& how,
                     MarkedSymbol& symbol) {
  if (IsCode128(job.symbology)) return MakeCode128(job, text, symbol);
  const Block<char> bytes(symbol.memory, text.length + 1);
  if (bytes.get() == nullptr) return {Reason::kNoMemory};
  NarrowTokens(text, bytes.get());
  return MakeOfBytes(job, {bytes.get(), text.length}, how, symbol);
}

// A character that is none is refused as what the host gave.
Refusal AsGiven(Refusal refusal, const TokenText& text) {
  if (refusal.reason != Reason::kCharacter) return refusal;
  const Token token = text.tokens[refusal.position];
  if (!IsCharacter(token)) refusal.reason = Reason::kFunction;
  return refusal;
}

}  // namespace

Refusal MakeLinearSymbol(const BarhatchJob& job, const InputText& text, std::size_t count,
                         Conformance& how, MarkedSymbol& symbol) {
  if (count > kLongestLinearText) return {Reason::kLength, -1, FigureOf(count)};
  if (job.conformance == BARHATCH_DEVICE) return MakeOfUnits(job, text, count, how, symbol);
  const Block<Token> tokens(symbol.memory, count + 1);
  if (tokens.get() == nullptr) return {Reason::kNoMemory};
  text.CopyTokens(tokens.get(), count);
  const TokenText given = {tokens.get(), count};
  return AsGiven(MakeOfTokens(job, given, how, symbol), given);
}

}  // namespace barhatch
