// Any job of the mark interface: sensible numbers with some that are not, or any bytes at all for a
// record, and any bytes for a text. Whatever comes, the result is sound, and the host's memory,
// which is short, comes back whole.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <vector>

#include "CallWatch.h"
#include "FuzzInput.h"
#include "barhatch_mark.h"
#include "support/SymbolSizeReference.h"

namespace {

using barhatch::fuzz::CallWatch;
using barhatch::fuzz::Demand;
using barhatch::fuzz::FuzzInput;

constexpr std::size_t kMostBytes = std::size_t{4} << 20;  // of a host, for one mark
constexpr std::size_t kMostRecordBytes = 65536;
constexpr std::size_t kOwnBytes = 4096;  // of this program while a call runs
constexpr std::uint64_t kDeviations = (std::uint64_t{1} << 36) - 1;

// A host with little memory, which may run out at any allocation. A block knows its size.
class ShortMemory {
 public:
  explicit ShortMemory(std::size_t failAt) : failAt_(failAt) {}

  void Serve(BarhatchJob& job) {
    job.allocate = [](void* context, std::size_t bytes) {
      return static_cast<ShortMemory*>(context)->Allocate(bytes);
    };
    job.release = [](void* context, void* block) {
      static_cast<ShortMemory*>(context)->Release(block);
    };
    job.context = this;
  }

  std::size_t Live() const { return live_; }

 private:
  static constexpr std::size_t kHead = 16;

  void* Allocate(std::size_t bytes) {
    if (++allocations_ == failAt_ || bytes > kMostBytes - live_) return nullptr;
    auto* const block = static_cast<char*>(std::malloc(kHead + bytes));
    if (block == nullptr) return nullptr;
    std::memcpy(block, &bytes, sizeof bytes);
    live_ += bytes;
    return block + kHead;
  }

  void Release(void* block) {
    Demand(block != nullptr, "null is not given back");
    char* const begin = static_cast<char*>(block) - kHead;
    std::size_t bytes = 0;
    std::memcpy(&bytes, begin, sizeof bytes);
    live_ -= bytes;
    std::free(begin);
  }

  const std::size_t failAt_;
  std::size_t allocations_ = 0;
  std::size_t live_ = 0;
};

std::int32_t SymbologyOf(FuzzInput& input) {
  const std::uint8_t choice = input.Byte();
  if (choice < 23) return choice;
  return choice < 128 ? std::int32_t{BARHATCH_DATA_MATRIX} : input.Integer();
}

std::uint32_t FlagsOf(FuzzInput& input) {
  constexpr std::uint32_t kFlags[] = {BARHATCH_QUIET_INSIDE, BARHATCH_FNC1_SECOND,
                                      BARHATCH_MAY_GROW, BARHATCH_PERMIT, BARHATCH_NO_PROOF};
  const std::uint8_t choice = input.Byte();
  if (choice >= 128) return input.Bits<std::uint32_t>();
  std::uint32_t flags = 0;
  for (int bit = 0; bit < 5; ++bit) flags |= (choice >> bit & 1) != 0 ? kFlags[bit] : 0;
  return flags;
}

void ReadSize(FuzzInput& input, BarhatchJob& job) {
  const std::vector<barhatch::test::ReferenceSize> sizes = barhatch::test::ReferenceSizes();
  const std::uint8_t choice = input.Byte();
  if (choice < sizes.size()) {
    job.rows = sizes[choice].rows;
    job.columns = sizes[choice].columns;
  } else if (choice >= 128) {
    job.rows = input.Byte();
    job.columns = input.Byte();
  }
}

// A number for each bit that is set.
void ReadLengths(FuzzInput& input, BarhatchJob& job) {
  constexpr double BarhatchJob::*kLengths[] = {
      &BarhatchJob::x_dimension, &BarhatchJob::width,      &BarhatchJob::height,
      &BarhatchJob::gap,         &BarhatchJob::ratio,      &BarhatchJob::quiet,
      &BarhatchJob::mark_speed,  &BarhatchJob::jump_speed, &BarhatchJob::stroke_delay,
      &BarhatchJob::jump_delay,  &BarhatchJob::beam_x,     &BarhatchJob::radius};
  const auto set = input.Bits<std::uint16_t>();
  int bit = 0;
  for (double BarhatchJob::*const length : kLengths) {
    if ((set >> bit++ & 1) != 0) job.*length = input.Double();
  }
}

BarhatchJob SensibleJob(FuzzInput& input) {
  BarhatchJob job = {};
  job.size = sizeof job;
  job.symbology = SymbologyOf(input);
  job.conformance = input.Byte() % 4 % 3;
  job.input = "\0\1\4\0\1\4\2\7"[input.Byte() % 8];
  job.envelope = "\0\0\5\6\0\0\5\14"[input.Byte() % 8];
  job.flags = FlagsOf(input);
  job.pattern = input.Byte() % 8;
  job.want = input.Byte() % 2 == 0 ? 0 : input.Byte() % 65;
  job.invert = input.Byte() % 2;
  ReadSize(input, job);
  ReadLengths(input, job);
  return job;
}

// Whatever the bytes say; pointers are set by the caller.
BarhatchJob AnyJob(FuzzInput& input) {
  auto job = input.Bits<BarhatchJob>();
  if (input.Byte() % 4 != 0) job.size = sizeof job;
  if (input.Byte() % 4 != 0) job.reserved = nullptr;
  return job;
}

// The record as a host of its size has it: zeros behind it, or something where the bytes say so.
std::vector<unsigned char> RecordOf(const BarhatchJob& job, std::uint8_t behind) {
  std::vector<unsigned char> record(sizeof job, 0);
  if (job.size > sizeof job && job.size <= kMostRecordBytes) record.resize(job.size, 0);
  if (record.size() > sizeof job) record.back() = behind;
  std::memcpy(record.data(), &job, sizeof job);
  return record;
}

// The text without a byte more than it has. Where it ends at its zero, there is one.
std::vector<unsigned char> TextOf(FuzzInput& input, BarhatchJob& job) {
  const bool hasLength = input.Byte() % 2 == 0;
  std::vector<unsigned char> text;
  while (!input.IsEmpty()) text.push_back(input.Byte());
  const std::size_t unit = job.input == BARHATCH_UNITS ? 2 : 1;
  text.resize(text.size() / unit * unit);
  job.length = hasLength ? text.size() / unit : 0;
  if (job.length == 0) text.resize(text.size() + unit, 0);
  return text;
}

bool IsFinite(double value) {
  constexpr double kMost = std::numeric_limits<double>::max();
  return value >= -kMost && value <= kMost;
}

void DemandSoundMessage(const BarhatchResult& result) {
  const void* const end = std::memchr(result.message, '\0', sizeof result.message);
  Demand(end != nullptr, "a message ends");
  for (const char* c = result.message; *c != '\0'; ++c) {
    Demand(*c >= ' ' && *c <= '~', "a message is plain ASCII");
  }
  const bool hasCause = result.status != BARHATCH_OK || result.warnings != 0;
  Demand((*result.message != '\0') == hasCause, "a message has a cause, and a cause a message");
}

void DemandSoundPlace(const BarhatchResult& result, std::size_t textLength) {
  if (result.position == 0) {
    Demand(result.extent == 0, "no place has no extent");
    return;
  }
  Demand(result.status != BARHATCH_OK && result.position > 0 && result.extent > 0, "a place");
  Demand(static_cast<std::size_t>(result.position - 1 + result.extent) <= textLength,
         "a place lies within the text");
}

void DemandNoBlock(const BarhatchResult& result) {
  Demand(result.block == nullptr && result.strokes == nullptr && result.modules == nullptr &&
             result.values == nullptr && result.reading == nullptr && result.hri == nullptr &&
             result.deviations_met == nullptr && result.strokes_count == 0,
         "a refusal has nothing to be released");
}

void DemandSoundStrokes(const BarhatchResult& result) {
  Demand(result.kind == BARHATCH_SEGMENTS || result.kind == BARHATCH_DOTS, "segments or dots");
  Demand((result.strokes != nullptr) == (result.strokes_count != 0), "strokes and their count");
  const std::size_t doubles = result.strokes_count * (result.kind == BARHATCH_DOTS ? 2 : 4);
  for (std::size_t i = 0; i < doubles; ++i) {
    Demand(IsFinite(result.strokes[i]), "strokes are numbers");
  }
  Demand(IsFinite(result.mark_length) && result.mark_length >= 0.0, "the length of the strokes");
  Demand(IsFinite(result.jump_length) && result.jump_length >= 0.0, "the length of the jumps");
  Demand(result.seconds >= 0.0, "the time");
}

void DemandSoundSymbol(const BarhatchResult& result) {
  Demand(result.rows > 0 && result.columns > 0, "a symbol has modules");
  const auto modules =
      static_cast<std::size_t>(result.rows) * static_cast<std::size_t>(result.columns);
  for (std::size_t i = 0; result.modules != nullptr && i < modules; ++i) {
    Demand(result.modules[i] <= (BARHATCH_DARK | BARHATCH_WIDE), "dark and wide");
  }
  volatile std::uint8_t last = 0;
  if (result.values_count != 0) last = result.values[result.values_count - 1];
  (void)last;
  if (result.reading != nullptr) {
    Demand(result.reading[result.reading_length] == '\0', "a NUL behind the reading");
  }
  Demand(result.codewords >= 0 && result.codewords <= result.capacity, "codewords in a symbol");
  Demand((result.deviations & ~kDeviations) == 0, "rows of the register");
  Demand(result.name != nullptr && result.accepts != nullptr, "the names");
}

void DemandSoundExtents(const BarhatchResult& result) {
  for (int i = 0; i < 4; ++i) {
    Demand(IsFinite(result.symbol[i]) && IsFinite(result.total[i]), "extents are numbers");
    const double outwards = i < 2 ? 1.0 : -1.0;
    Demand(outwards * result.total[i] <= outwards * result.symbol[i], "total holds the symbol");
  }
  Demand(result.narrowest >= 0.0 && result.narrowest <= result.x_dimension, "the narrowest");
}

void DemandSound(const BarhatchResult& result, std::size_t textLength) {
  Demand(result.status >= BARHATCH_OK && result.status <= BARHATCH_PROOF_FAILED, "a status");
  DemandSoundMessage(result);
  DemandSoundPlace(result, textLength);
  if (result.status != BARHATCH_OK) {
    DemandNoBlock(result);
    return;
  }
  DemandSoundSymbol(result);
  DemandSoundExtents(result);
  DemandSoundStrokes(result);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  BarhatchJob job = input.Byte() % 4 == 3 ? AnyJob(input) : SensibleJob(input);
  ShortMemory memory(input.Byte());
  memory.Serve(job);
  const std::uint8_t behind = input.Byte();
  const std::vector<unsigned char> text = TextOf(input, job);
  job.text = text.data();
  const std::vector<unsigned char> record = RecordOf(job, behind);

  BarhatchResult result;
  std::memset(&result, 0x5A, sizeof result);
  result.size = sizeof result;
  const CallWatch watch;
  const std::int32_t status = BarhatchMark(
      static_cast<const BarhatchJob*>(static_cast<const void*>(record.data())), &result);
  watch.DemandWithin(kMostBytes + kOwnBytes);
  Demand(status == result.status, "the status is returned");
  Demand((memory.Live() != 0) == (status == BARHATCH_OK), "a mark keeps a block, a refusal none");
  DemandSound(result, text.size());
  BarhatchRelease(&result);
  Demand(memory.Live() == 0, "all memory comes back");
  BarhatchRelease(&result);
  return 0;
}
