// The linear half of a mark: text to bytes, bytes to a module string, the module string read back.
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

Refusal RefusedUnit(std::size_t index, char16_t unit) {
  return {Reason::kCharacter, static_cast<std::int32_t>(index), unit};
}

// One byte a unit. The device takes the low byte of each, and one that is zero ends its text.
Refusal Narrow(const char16_t* units, std::size_t count, bool isDevice, char* bytes,
               std::size_t& length, std::uint32_t& warnings) {
  for (length = 0; length < count; ++length) {
    const char16_t unit = units[length];
    if (isDevice ? unit == 0 : unit > 255) return RefusedUnit(length, unit);
    if (unit > 255) warnings |= BARHATCH_W_LOW_BYTE | BARHATCH_W_UNREADABLE;
    bytes[length] = static_cast<char>(unit & 0xFF);
    if (isDevice && bytes[length] == '\0') break;
  }
  bytes[length] = '\0';
  return {};
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
                 MarkedSymbol& symbol) {
  const auto quiet = static_cast<std::size_t>(drawn.quietLeft + drawn.quietRight);
  const std::size_t letters = drawn.length - quiet;
  symbol.reading = static_cast<char*>(symbol.memory.Allocate(letters + 1));
  symbol.values = static_cast<std::uint8_t*>(symbol.memory.Allocate(letters + 1));
  if (symbol.reading == nullptr || symbol.values == nullptr) return {Reason::kNoMemory, -1, 0};
  SymbolReading reading = {symbol.reading, 0, symbol.values, 0};
  symbol.isRead = ReadSymbol(job.symbology, CheckScheme::kOwn, drawn.letters + drawn.quietLeft,
                             letters, reading);
  symbol.readingLength = reading.textLength;
  symbol.valuesCount = reading.valuesCount;
  const bool isText = symbol.isRead && IsReadingOfLinear(text.reading, {text.room, text.length},
                                                         {symbol.reading, symbol.readingLength});
  if (!isText) symbol.warnings |= BARHATCH_W_UNREADABLE;
  return {};
}

// The device may shorten the text that it draws: it does so in a copy, and `text` stays as it was.
Refusal DrawAsTheDevice(const BarhatchJob& job, const PreparedText& text, const Memory& memory,
                        Conformance& how, LinearSymbol& drawn) {
  const Block<char> copy(memory, text.length + 1);
  if (copy.get() == nullptr) return {Reason::kNoMemory, -1, 0};
  std::memcpy(copy.get(), text.room, text.length + 1);
  const LinearJob linear = {job.symbology, copy.get(), text.length, DrawnQuietModulesOf(job)};
  return DrawLinear(linear, 0, memory, how, drawn);
}

Refusal DrawText(const BarhatchJob& job, const SymbologyRow& row, const Memory& memory,
                 Conformance& how, PreparedText& text, LinearSymbol& drawn) {
  if (job.conformance == BARHATCH_DEVICE) return DrawAsTheDevice(job, text, memory, how, drawn);
  return DrawPublished(row, LinearOptionsOf(job), DrawnQuietModulesOf(job), memory, how, text,
                       drawn);
}

// What there is to say about a symbol beside its letters.
void Describe(const BarhatchJob& job, const PreparedText& text, MarkedSymbol& symbol) {
  symbol.quiet = QuietOf(job, text.quiet);
  if (text.reading.inPairs) WarnOfDigits(text.length, symbol.warnings);
  if (symbol.quiet.left < text.quiet.left || symbol.quiet.right < text.quiet.right) {
    symbol.warnings |= SmallQuietZoneWarning(job);
  }
}

}  // namespace

Refusal MakeLinearSymbol(const BarhatchJob& job, const InputText& text, std::size_t units,
                         Conformance& how, MarkedSymbol& symbol) {
  if (units > kLongestLinearText) return {Reason::kLength, -1, FigureOf(units)};
  const Block<char16_t> given(symbol.memory, units + 1);
  const Block<char> bytes(symbol.memory, PreparationRoom(units));
  if (given.get() == nullptr || bytes.get() == nullptr) return {Reason::kNoMemory, -1, 0};
  text.CopyUnits(given.get(), units);
  std::size_t length = 0;
  const bool isDevice = job.conformance == BARHATCH_DEVICE;
  const Refusal narrowed =
      Narrow(given.get(), units, isDevice, bytes.get(), length, symbol.warnings);
  if (narrowed.IsRefused()) return narrowed;

  const SymbologyRow& row = *RowOf(job.symbology);
  PreparedText prepared = GivenText(row, bytes.get(), length);
  LinearSymbol drawn;
  const Refusal refusal = DrawText(job, row, symbol.memory, how, prepared, drawn);
  if (refusal.IsRefused()) return refusal;
  symbol.letters = drawn.letters;
  symbol.columns = static_cast<int>(drawn.length);
  symbol.drawnQuiet = {drawn.quietLeft, drawn.quietRight, 0, 0};
  Describe(job, prepared, symbol);
  return ReadBack(job, drawn, prepared, symbol);
}

}  // namespace barhatch
