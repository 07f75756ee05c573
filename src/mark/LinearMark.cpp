// The linear half of a mark: text to a module string, the module string read back.
#include <cstring>

#include "job/CharacterClasses.h"
#include "mark/JobRecord.h"
#include "mark/Mark.h"
#include "mark/MarkedSymbol.h"
#include "mark/Proof.h"
#include "mark/TextTokens.h"
#include "symbologies/SymbologyReaders.h"
#include "symbologies/SymbologyTable.h"

namespace barhatch {

namespace {

constexpr std::size_t kFewestDigitsOfItf = 6;
constexpr char kGs = '\x1D';
constexpr std::size_t kMostGs1Tokens = 1 + kMostGs1Characters;  // behind the first FNC1

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
  for (std::size_t at = 0; at < text.length; ++at) {
    bytes[at] = IsByte(text.tokens[at]) ? static_cast<char>(text.tokens[at]) : kNoByte;
  }
  bytes[text.length] = '\0';
}

bool IsCode128(const BarhatchJob& job) {
  return job.symbology >= BARHATCH_CODE_128 && job.symbology <= BARHATCH_CODE_128_C;
}

bool IsInCode128(Token token, std::uint16_t accepted) {
  if (!IsByte(token)) return token >= kFnc1Token && token <= kFnc3Token;
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

// What FNC1 in second position stands behind: a letter, or a pair of digits of set C, with which a
// symbol begins that may.
bool IsInFrontOfFnc1(const BarhatchJob& job, const Characters& text) {
  const char first = *text.text;
  if (text.length == 1) return IsAsciiUpper(first) || IsAsciiLower(first);
  const bool mayBeginInC =
      job.symbology == BARHATCH_CODE_128 || job.symbology == BARHATCH_CODE_128_C;
  return text.length == 2 && mayBeginInC && IsDigit(first) && IsDigit(text.text[1]);
}

// What a reader reports of the text: FNC1 as GS, but not in first or second position; the others
// not at all.
std::size_t ReadingOfCode128(const BarhatchJob& job, const TokenText& text, char* bytes) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < text.length; ++i) {
    const Token token = text.tokens[i];
    const bool isSecond = i > 0 && i == count && IsInFrontOfFnc1(job, {bytes, count});
    if (IsByte(token)) bytes[count++] = static_cast<char>(token);
    if (token == kFnc1Token && i > 0 && !isSecond) bytes[count++] = kGs;
  }
  bytes[count] = '\0';
  return count;
}

QuietSides QuietOf(const BarhatchJob& job, const QuietModules& standard) {
  const std::int32_t asked = QuietModulesOf(job);
  return {QuietZoneOf(asked, standard.left), QuietZoneOf(asked, standard.right), 0, 0};
}

void WarnOfDigits(std::size_t digits, std::uint32_t& warnings) {
  if (digits % 2 != 0) warnings |= BARHATCH_W_LEADING_ZERO;
  if (digits + digits % 2 < kFewestDigitsOfItf) warnings |= BARHATCH_W_FEW_DIGITS;
}

// The letters of the symbol alone, without the quiet zone that is drawn.
Refusal ReadBack(const BarhatchJob& job, const LinearSymbol& drawn, const PreparedText& text,
                 DeviationSet met, MarkedSymbol& symbol) {
  const auto quiet = static_cast<std::size_t>(drawn.quietLeft + drawn.quietRight);
  const std::size_t letters = drawn.length - quiet;
  symbol.reading = static_cast<char*>(symbol.memory.Allocate(letters + 1));
  symbol.values = static_cast<std::uint8_t*>(symbol.memory.Allocate(letters));
  if (symbol.reading == nullptr || symbol.values == nullptr) return {Reason::kNoMemory};
  SymbolReading reading = {symbol.reading, 0, symbol.values, 0};
  symbol.isRead = ReadSymbol(job.symbology, LinearOptionsOf(job).check,
                             drawn.letters + drawn.quietLeft, letters, reading);
  symbol.readingLength = reading.textLength;
  symbol.valuesCount = reading.valuesCount;
  return JudgeReading(job, ShowsItsText(job.symbology, text, symbol), met, symbol.warnings);
}

// What stands beside the symbol where it is not the reading.
Refusal KeepForPeople(const PreparedText& text, MarkedSymbol& symbol) {
  if (!text.isForPeople) return {};
  symbol.people = static_cast<char*>(symbol.memory.Allocate(text.length + 1));
  if (symbol.people == nullptr) return {Reason::kNoMemory};
  std::memcpy(symbol.people, text.room, text.length + 1);
  symbol.peopleLength = text.length;
  return {};
}

// The device may shorten the text that it draws: it does so in a copy, and `text` stays as it was.
Refusal DrawAsTheDevice(const BarhatchJob& job, const PreparedText& text, const Memory& memory,
                        Conformance& how, LinearSymbol& drawn) {
  const Block<char> copy(memory, text.length + 1);
  if (copy.get() == nullptr) return {Reason::kNoMemory};
  std::memcpy(copy.get(), text.room, text.length + 1);
  const LinearJob linear = {job.symbology, copy.get(), text.length, DrawnQuietModulesOf(job)};
  return DrawLinear(linear, 0, memory, how, drawn);
}

// What there is to say about a symbol beside its letters.
void Describe(const BarhatchJob& job, const PreparedText& text, MarkedSymbol& symbol) {
  symbol.quiet = QuietOf(job, text.quiet);
  if (text.reading.inPairs) WarnOfDigits(text.length, symbol.warnings);
  if (symbol.quiet.left < text.quiet.left || symbol.quiet.right < text.quiet.right) {
    symbol.warnings |= SmallQuietZoneWarning(job);
  }
}

Refusal Finish(const BarhatchJob& job, const LinearSymbol& drawn, const PreparedText& text,
               DeviationSet met, MarkedSymbol& symbol) {
  symbol.letters = drawn.letters;
  symbol.columns = static_cast<int>(drawn.length);
  symbol.drawnQuiet = {drawn.quietLeft, drawn.quietRight, 0, 0};
  Describe(job, text, symbol);
  const Refusal refusal = KeepForPeople(text, symbol);
  return refusal.IsRefused() ? refusal : ReadBack(job, drawn, text, met, symbol);
}

Refusal MakeAsTheDevice(const BarhatchJob& job, const InputText& text, std::size_t units,
                        Conformance& how, MarkedSymbol& symbol) {
  const Block<char16_t> given(symbol.memory, units + 1);
  const Block<char> bytes(symbol.memory, units + 1);
  if (given.get() == nullptr || bytes.get() == nullptr) return {Reason::kNoMemory};
  text.CopyUnits(given.get(), units);
  std::size_t length = 0;
  const Refusal narrowed = NarrowUnits(given.get(), units, bytes.get(), length, symbol.warnings);
  if (narrowed.IsRefused()) return narrowed;
  const PreparedText whole = GivenText(*RowOf(job.symbology), bytes.get(), length);
  LinearSymbol drawn;
  const Refusal refusal = DrawAsTheDevice(job, whole, symbol.memory, how, drawn);
  return refusal.IsRefused() ? refusal : Finish(job, drawn, whole, how.Met(), symbol);
}

Refusal MakeCode128(const BarhatchJob& job, const TokenText& text, char* room,
                    MarkedSymbol& symbol) {
  const SymbologyRow& row = *RowOf(job.symbology);
  const Refusal checked = CheckCode128(text, row.drawing.text.accepted);
  if (checked.IsRefused()) return checked;
  LinearSymbol drawn;
  const Refusal refusal = DrawCode128(row, DrawnQuietModulesOf(job), text, symbol.memory, drawn);
  if (refusal.IsRefused()) return refusal;
  return Finish(job, drawn, GivenText(row, room, ReadingOfCode128(job, text, room)), {}, symbol);
}

Refusal MakeOfTokens(const BarhatchJob& job, const TokenText& text, Conformance& how,
                     MarkedSymbol& symbol) {
  const Block<char> room(symbol.memory, PreparationRoom(text.length));
  if (room.get() == nullptr) return {Reason::kNoMemory};
  if (IsCode128(job)) return MakeCode128(job, text, room.get(), symbol);
  NarrowTokens(text, room.get());
  const SymbologyRow& row = *RowOf(job.symbology);
  PreparedText prepared = GivenText(row, room.get(), text.length);
  LinearSymbol drawn;
  const Refusal refusal = DrawPublished(row, LinearOptionsOf(job), DrawnQuietModulesOf(job),
                                        symbol.memory, how, prepared, drawn);
  return refusal.IsRefused() ? refusal : Finish(job, drawn, prepared, how.Met(), symbol);
}

// A function that the symbology lacks is refused as what it is.
Refusal AsGiven(Refusal refusal, const TokenText& text) {
  const bool isFunction =
      refusal.reason == Reason::kCharacter && !IsCharacter(text.tokens[refusal.position]);
  if (isFunction) refusal.reason = Reason::kFunction;
  return refusal;
}

}  // namespace

Refusal MakeLinearSymbol(const BarhatchJob& job, const InputText& text, std::size_t count,
                         Conformance& how, MarkedSymbol& symbol) {
  if (count > kLongestLinearText) return {Reason::kLength, -1, FigureOf(count)};
  if (job.conformance == BARHATCH_DEVICE) return MakeAsTheDevice(job, text, count, how, symbol);
  TextTokens tokens(symbol.memory);
  const Refusal refusal = tokens.Read(job, text, count, symbol);
  if (refusal.IsRefused()) return refusal;
  if (job.input == BARHATCH_GS1 && tokens.Get().length > kMostGs1Tokens) {
    return {Reason::kTooManyElements, -1, FigureOf(tokens.Get().length - 1)};
  }
  return AsGiven(MakeOfTokens(job, tokens.Get(), how, symbol), tokens.Get());
}

}  // namespace barhatch
