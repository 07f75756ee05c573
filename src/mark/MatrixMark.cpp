// The Data Matrix half of a mark: text to a grid of modules, its codewords read back.
#include "mark/MatrixMark.h"

#include <cstring>

#include "datamatrix/MatrixReading.h"
#include "mark/JobRecord.h"
#include "mark/Proof.h"
#include "mark/Reading.h"

namespace barhatch {

namespace {

// Without a size of its own a job asks for the smallest, which has to be allowed to grow.
SizeRequest SizeRequestOf(const BarhatchJob& job) {
  const bool isSmallest = job.rows == 0 && job.columns == 0;
  const bool mayGrow = isSmallest || (job.flags & BARHATCH_MAY_GROW) != 0;
  return {job.rows, job.columns, mayGrow ? 1 : 0};
}

// The device's text has no zeros: they end it.
Refusal CheckUnits(const TextUnits& text, std::uint32_t& warnings) {
  for (std::size_t i = 0; i < text.length; ++i) {
    if (text.units[i] == 0) return {Reason::kCharacter, static_cast<std::int32_t>(i), 0};
    if (text.units[i] > 255) warnings |= BARHATCH_W_ECI;
    // Half of a character above U+FFFF: the two designate what nobody meant.
    const bool isSurrogate = text.units[i] >= 0xD800 && text.units[i] < 0xE000;
    if (isSurrogate) warnings |= BARHATCH_W_UNREADABLE;
  }
  return {};
}

// What a reader finds in the grid, or would find without the proof that it does.
Refusal TakeCodewords(const BarhatchJob& job, const MatrixSymbol& matrix, const Conformance& how,
                      MarkedSymbol& symbol) {
  const int count = matrix.size.dataCodewords + matrix.size.errorCodewords;
  symbol.valuesCount = static_cast<std::size_t>(count);
  symbol.values = static_cast<std::uint8_t*>(symbol.memory.Allocate(symbol.valuesCount));
  if (symbol.values == nullptr) return {Reason::kNoMemory};
  if (WantsProof(job)) {
    return {ShowsItsCodewords(matrix, how, symbol) ? Reason::kNone : Reason::kProof};
  }
  std::memcpy(symbol.values, matrix.codewords.data(), symbol.valuesCount);
  return {};
}

Refusal MakeDeviceMatrix(const BarhatchJob& job, const InputText& text, std::size_t count,
                         Conformance& how, MarkedSymbol& symbol, BarhatchResult& result) {
  if (count > kMaxDataMatrixText) return {Reason::kLength, -1, FigureOf(count)};
  const Block<char16_t> given(symbol.memory, count + 1);
  if (given.get() == nullptr) return {Reason::kNoMemory};
  text.CopyUnits(given.get(), count);
  const TextUnits content = {given.get(), count};
  const Refusal unit = CheckUnits(content, symbol.warnings);
  if (unit.IsRefused()) return unit;

  MatrixSymbol matrix;
  const MatrixJob drawing = {content, DrawnQuietModulesOf(job), SizeRequestOf(job), HeaderOf(job)};
  Refusal refusal = EncodeDataMatrix(drawing, how, symbol.memory, matrix);
  if (refusal.IsRefused()) return refusal;
  refusal = KeepMatrix(job, matrix, how, symbol, result);
  if (refusal.IsRefused()) return refusal;
  const bool isAsGiven = symbol.isRead && IsReadingOfMatrix(content, drawing.header,
                                                            {symbol.reading, symbol.readingLength});
  return JudgeReading(job, isAsGiven, how.Met(), symbol.warnings);
}

}  // namespace

QuietSides OnAllSides(int modules) { return {modules, modules, modules, modules}; }

Refusal KeepMatrix(const BarhatchJob& job, const MatrixSymbol& matrix, const Conformance& how,
                   MarkedSymbol& symbol, BarhatchResult& result) {
  symbol.letters = matrix.letters;
  symbol.rows = matrix.rows;
  symbol.columns = matrix.columns;
  symbol.drawnQuiet = OnAllSides(matrix.quietModules);
  result.codewords = matrix.codewords.Count();
  result.capacity = matrix.size.dataCodewords;

  const Refusal refusal = TakeCodewords(job, matrix, how, symbol);
  if (refusal.IsRefused()) return refusal;
  const std::size_t room = MostBytesRead(matrix.size.dataCodewords) + 1;
  symbol.reading = static_cast<char*>(symbol.memory.Allocate(room));
  if (symbol.reading == nullptr) return {Reason::kNoMemory};
  symbol.isRead = ReadCodewords(symbol.values, matrix.size.dataCodewords, symbol.reading, room - 1,
                                symbol.readingLength);
  symbol.reading[symbol.readingLength] = '\0';
  return {};
}

Refusal MakeMatrixSymbol(const BarhatchJob& job, const InputText& text, std::size_t count,
                         Conformance& how, MarkedSymbol& symbol, BarhatchResult& result) {
  const auto make = job.conformance == BARHATCH_DEVICE ? &MakeDeviceMatrix : &MakePublishedMatrix;
  const Refusal refusal = make(job, text, count, how, symbol, result);
  if (refusal.IsRefused()) return refusal;
  symbol.quiet = OnAllSides(QuietZoneOf(QuietModulesOf(job), kStandardQuietModules));
  if (symbol.quiet.left < kStandardQuietModules) {
    symbol.warnings |= SmallQuietZoneWarning(job);
  }
  return {};
}

}  // namespace barhatch
