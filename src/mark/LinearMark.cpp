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
  symbol.values = static_cast<std::uint8_t*>(symbol.memory.Allocate(letters));
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

}  // namespace

Refusal MakeLinearSymbol(const BarhatchJob& job, const InputText& text, std::size_t units,
                         Conformance& how, MarkedSymbol& symbol) {
  if (units > kLongestLinearText) return {Reason::kLength, -1, FigureOf(units)};
  const Block<char16_t> given(symbol.memory, units + 1);
  const Block<char> bytes(symbol.memory, units + 1);
  const Block<char> checked(symbol.memory, units + 1);  // a check may shorten the text
  if (given.get() == nullptr || bytes.get() == nullptr || checked.get() == nullptr) {
    return {Reason::kNoMemory, -1, 0};
  }
  text.CopyUnits(given.get(), units);
  std::size_t length = 0;
  const bool isDevice = job.conformance == BARHATCH_DEVICE;
  const Refusal narrowed =
      Narrow(given.get(), units, isDevice, bytes.get(), length, symbol.warnings);
  if (narrowed.IsRefused()) return narrowed;
  std::memcpy(checked.get(), bytes.get(), length + 1);

  LinearSymbol drawn;
  const LinearJob linear = {job.symbology, checked.get(), length,
                            DrawsQuietZone(job) ? QuietModulesOf(job) : kNoQuietZone};
  const Refusal refusal = DrawLinear(linear, 0, symbol.memory, how, drawn);
  if (refusal.IsRefused()) return refusal;
  symbol.letters = drawn.letters;
  symbol.columns = static_cast<int>(drawn.length);
  symbol.drawnQuiet = {drawn.quietLeft, drawn.quietRight, 0, 0};
  symbol.quiet = QuietOf(job);
  if (job.symbology == BARHATCH_INTERLEAVED_2_OF_5) WarnOfDigits(length, symbol.warnings);
  const QuietSides standard = StandardQuiet(job);
  if (symbol.quiet.left < standard.left || symbol.quiet.right < standard.right) {
    symbol.warnings |= SmallQuietZoneWarning(job);
  }
  return ReadBack(job, drawn, {bytes.get(), length}, symbol);
}

}  // namespace barhatch
