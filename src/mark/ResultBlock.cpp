#include "mark/ResultBlock.h"

#include <cstdint>
#include <cstring>

#include "job/ModuleString.h"
#include "mark/DeviationText.h"
#include "mark/JobRecord.h"
#include "mark/MarkStrokes.h"

namespace barhatch {

namespace {

// Stands at the beginning of a block.
struct BlockHead {
  void (*release)(void* context, void* block);
  void* context;
};
constexpr std::size_t kHeadBytes = 16;
static_assert(sizeof(BlockHead) <= kHeadBytes && kHeadBytes % alignof(double) == 0, "");

// Bytes of each part, of the strokes doubles; 0 for what the job does not want.
struct BlockParts {
  std::size_t doubles = 0;
  std::size_t modules = 0;
  std::size_t values = 0;
  std::size_t reading = 0;
  std::size_t people = 0;
  std::size_t deviations = 0;

  // False where a machine has no such block.
  bool Sum(std::size_t& bytes) const {
    bytes = kHeadBytes + modules + values + reading + people + deviations;
    const std::size_t most = static_cast<std::size_t>(PTRDIFF_MAX) - bytes;
    if (doubles > most / sizeof(double)) return false;
    bytes += doubles * sizeof(double);
    return true;
  }
};

std::size_t ModulesOf(const MarkedSymbol& symbol) {
  const QuietSides& quiet = symbol.drawnQuiet;
  return static_cast<std::size_t>(symbol.rows - quiet.below - quiet.above) *
         static_cast<std::size_t>(symbol.columns - quiet.left - quiet.right);
}

BlockParts PartsOf(const BarhatchJob& job, const MarkedSymbol& symbol, DeviationSet met) {
  BlockParts parts;
  const bool isDrawn = symbol.letters != nullptr;  // a mask is not
  if (isDrawn && Wants(job, BARHATCH_WANT_MODULES)) parts.modules = ModulesOf(symbol);
  if (Wants(job, BARHATCH_WANT_VALUES)) parts.values = symbol.valuesCount;
  if (Wants(job, BARHATCH_WANT_READING) && symbol.isRead) parts.reading = symbol.readingLength + 1;
  if (parts.reading != 0 && symbol.people != nullptr) parts.people = symbol.peopleLength + 1;
  if (Wants(job, BARHATCH_WANT_DEVIATIONS)) parts.deviations = DeviationTextLength(met) + 1;
  return parts;
}

constexpr std::uint8_t ModuleOf(char letter) {
  const bool isDark = letter == kNarrowBar || letter == kWideBar;
  const bool isWide = letter == kWideBar || letter == kWideSpace;
  return static_cast<std::uint8_t>((isDark ? BARHATCH_DARK : 0) | (isWide ? BARHATCH_WIDE : 0));
}

// One load a module: as comparisons they were a fifth of a mark that wants no strokes.
struct ModuleTable {
  std::uint8_t of[256] = {};
  constexpr ModuleTable() {
    for (int byte = 0; byte < 256; ++byte) of[byte] = ModuleOf(static_cast<char>(byte));
  }
};
constexpr ModuleTable kModules;

void WriteModules(const MarkedSymbol& symbol, std::uint8_t* modules) {
  const QuietSides quiet = symbol.drawnQuiet;
  const int columns = symbol.columns - quiet.left - quiet.right;
  for (int row = quiet.above; row < symbol.rows - quiet.below; ++row) {
    const char* const letters = symbol.letters + row * symbol.columns + quiet.left;
    for (int column = 0; column < columns; ++column)
      *modules++ = kModules.of[static_cast<unsigned char>(letters[column])];
  }
}

// Hands out the parts of a block one behind the other.
class BlockWriter {
 public:
  BlockWriter(void* block, std::size_t offset) : next_(static_cast<char*>(block) + offset) {}

  template <typename T>
  T* Take(std::size_t count) {
    void* const part = next_;
    next_ += count * sizeof(T);
    return static_cast<T*>(part);
  }

 private:
  char* next_;
};

void WriteParts(const BlockParts& parts, const BarhatchJob& job, const MarkedSymbol& symbol,
                DeviationSet met, BlockWriter block, BarhatchResult& result) {
  if (parts.modules != 0) {
    auto* const modules = block.Take<std::uint8_t>(parts.modules);
    WriteModules(symbol, modules);
    result.modules = modules;
  }
  if (parts.values != 0) {
    auto* const values = block.Take<std::uint8_t>(parts.values);
    std::memcpy(values, symbol.values, parts.values);
    result.values = values;
    result.values_count = parts.values;
  }
  if (parts.reading != 0) {
    char* const reading = block.Take<char>(parts.reading);
    std::memcpy(reading, symbol.reading, parts.reading);
    result.reading = reading;
    result.reading_length = symbol.readingLength;
    if (!IsMatrix(job)) result.hri = reading;
  }
  if (parts.people != 0) {
    char* const people = block.Take<char>(parts.people);
    std::memcpy(people, symbol.people, parts.people);
    result.hri = people;
  }
  if (parts.deviations != 0) {
    char* const text = block.Take<char>(parts.deviations);
    WriteDeviationText(met, text);
    result.deviations_met = text;
  }
}

Refusal FinishBlock(const BarhatchJob& job, const MarkedSymbol& symbol, DeviationSet met,
                    MarkStrokes* strokes, BarhatchResult& result) {
  BlockParts parts = PartsOf(job, symbol, met);
  if (strokes != nullptr) {
    const Refusal refusal = strokes->Count(parts.doubles);
    if (refusal.IsRefused()) return refusal;
  }
  std::size_t bytes = 0;
  void* const block = parts.Sum(bytes) ? symbol.memory.Allocate(bytes) : nullptr;
  if (block == nullptr) return {Reason::kNoMemory};
  const BlockHead head = {symbol.memory.release, symbol.memory.context};
  std::memcpy(block, &head, sizeof head);
  result.block = block;

  BlockWriter writer(block, kHeadBytes);
  auto* const room = writer.Take<double>(parts.doubles);
  WriteParts(parts, job, symbol, met, writer, result);
  return strokes != nullptr ? strokes->Write(room, parts.doubles, result) : Refusal{};
}

}  // namespace

Refusal FinishResult(const BarhatchJob& job, const MarkedSymbol& symbol, DeviationSet met,
                     BarhatchResult& result) {
  const QuietSides& quiet = symbol.drawnQuiet;
  result.rows = symbol.rows - quiet.below - quiet.above;
  result.columns = symbol.columns - quiet.left - quiet.right;
  result.deviations = met.Bits();
  if (!HasSize(job)) return FinishBlock(job, symbol, met, nullptr, result);

  const Extents extents = ExtentsOf(job, symbol);
  DescribeExtents(job, symbol, extents, result);
  if (!IsMarkable(result)) return {Reason::kGeometry};
  const bool hasStrokes = symbol.letters != nullptr && Wants(job, BARHATCH_WANT_STROKES);
  if (!hasStrokes) return FinishBlock(job, symbol, met, nullptr, result);
  MarkStrokes strokes(job, symbol, extents);
  return FinishBlock(job, symbol, met, &strokes, result);
}

void ReleaseBlock(BarhatchResult& result) {
  if (result.block != nullptr) {
    BlockHead head;
    std::memcpy(&head, result.block, sizeof head);
    head.release(head.context, result.block);
  }
  result.block = nullptr;
  result.strokes = nullptr;
  result.strokes_count = 0;
  result.modules = nullptr;
  result.values = nullptr;
  result.values_count = 0;
  result.hri = nullptr;
  result.reading = nullptr;
  result.reading_length = 0;
  result.deviations_met = nullptr;
}

}  // namespace barhatch
