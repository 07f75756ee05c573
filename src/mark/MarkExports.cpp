// The three functions of the mark interface. Everything is said about a job in its result: status,
// sentence, place; nothing is kept between calls.
#include <cstdlib>
#include <cstring>

#include "barhatch_mark.h"
#include "mark/Extents.h"
#include "mark/JobRecord.h"
#include "mark/MarkedSymbol.h"
#include "mark/Names.h"
#include "mark/ResultBlock.h"
#include "mark/Sentences.h"

namespace barhatch {

namespace {

Memory MemoryOf(const BarhatchJob& job) {
  if (job.allocate != nullptr) return {job.allocate, job.release, job.context};
  return {[](void*, std::size_t bytes) { return std::malloc(bytes); },
          [](void*, void* block) { std::free(block); }, nullptr};
}

void ClearResult(BarhatchResult& result) {
  const std::uint32_t size = result.size;
  result = {};
  result.size = size;
}

// A refusal has a place and names, and nothing of a symbol that was begun.
void KeepRefusal(BarhatchResult& result) {
  const BarhatchResult begun = result;
  ClearResult(result);
  result.position = begun.position;
  result.extent = begun.extent;
  result.name = begun.name;
  result.accepts = begun.accepts;
}

void SetPlace(const TextPlace& place, BarhatchResult& result) {
  result.position = FigureOf(place.begin + 1);
  result.extent = FigureOf(place.extent);
}

// Strokes a gap apart may miss an element that is narrower, and a spiral whose gap is more than
// half of it leaves it. Horizontal strokes of a linear symbol go through all bars and may miss a
// bearer bar alone.
bool IsGapWide(const BarhatchJob& job, const BarhatchResult& result) {
  const bool isHorizontal =
      job.pattern == BARHATCH_SCAN_LINES || job.pattern == BARHATCH_ALTERNATING_HORIZONTAL;
  if (job.pattern == BARHATCH_POINTS) return false;
  if (isHorizontal && !IsMatrix(job)) {
    return HasBearerBars(job) && job.gap > kBearerModules * result.x_dimension;
  }
  const double most = job.pattern == BARHATCH_SPIRAL ? result.narrowest / 2 : result.narrowest;
  return job.gap > most;
}

// Points are no bars, and elements as wide as others are not told from them.
bool LosesElements(const BarhatchJob& job, const MarkedSymbol& symbol) {
  if (IsMatrix(job)) return false;
  if (Wants(job, BARHATCH_WANT_STROKES) && job.pattern == BARHATCH_POINTS) return true;
  return RatioOf(job) <= 1.0 && HasWideElements(symbol);
}

TextPlace PlaceOf(const InputText& text, const Refusal& refusal) {
  const auto position = static_cast<std::size_t>(refusal.position);
  const TextPlace first = text.PlaceOf(position);
  if (refusal.extent == 0) return {first.begin, 0};
  const TextPlace last = text.PlaceOf(position + static_cast<std::size_t>(refusal.extent) - 1);
  return {first.begin, last.begin + last.extent - first.begin};
}

Refusal WithPlace(const InputText& text, Refusal refusal, BarhatchResult& result) {
  if (refusal.position < 0) return refusal;
  const TextPlace place = PlaceOf(text, refusal);
  if (refusal.reason == Reason::kCharacter || refusal.reason == Reason::kFunction ||
      refusal.reason == Reason::kNoSuchByte) {
    refusal.figure = static_cast<std::int32_t>(text.TokenAt(place));
  }
  SetPlace(place, result);
  return refusal;
}

Refusal MakeSymbol(const BarhatchJob& job, const InputText& text, Conformance& how,
                   MarkedSymbol& symbol, BarhatchResult& result) {
  std::size_t count = 0;
  TextPlace broken = {0, 0};
  Refusal refusal = text.Count(count, broken);
  if (refusal.IsRefused()) {
    SetPlace(broken, result);
    refusal.figure = static_cast<std::int32_t>(text.TokenAt(broken));
    return refusal;
  }
  refusal = IsMatrix(job) ? MakeMatrixSymbol(job, text, count, how, symbol, result)
                          : MakeLinearSymbol(job, text, count, how, symbol);
  return WithPlace(text, refusal, result);
}

Refusal MakeMark(const BarhatchJob& job, BarhatchResult& result) {
  const Memory memory = MemoryOf(job);
  const InputText text(job);
  Conformance how(InForce(job));
  MarkedSymbol symbol(memory);
  Refusal refusal = MakeSymbol(job, text, how, symbol, result);
  if (refusal.IsRefused()) return refusal;
  refusal = FinishResult(job, symbol, how.Met(), result);
  result.warnings = symbol.warnings;
  if (Wants(job, BARHATCH_WANT_STROKES) && IsGapWide(job, result)) {
    result.warnings |= BARHATCH_W_GAP;
  }
  if (LosesElements(job, symbol)) result.warnings |= BARHATCH_W_UNREADABLE;
  return refusal;
}

std::int32_t MarkJob(const BarhatchJob* record, BarhatchResult& result) {
  BarhatchJob job = {};
  if (!CopyRecord(record, job, Message(result.message))) return BARHATCH_BAD_RECORD;
  if (const SymbologyName* name = NameOf(job.symbology)) {
    result.name = name->name;
    result.accepts = AcceptedBy(*name, job.conformance);
  }
  std::int32_t status = CheckOptions(job, Message(result.message));
  if (status == BARHATCH_OK) status = CheckGeometry(job, Message(result.message));
  if (status != BARHATCH_OK) return status;

  const Refusal refusal = MakeMark(job, result);
  if (refusal.IsRefused()) {
    ReleaseBlock(result);
    KeepRefusal(result);
    SayRefusal(job, refusal, result.position, Message(result.message));
  } else {
    SayWarning(job, result.warnings, Message(result.message));
  }
  return StatusOf(refusal.reason);
}

}  // namespace

}  // namespace barhatch

extern "C" {

int32_t BarhatchMark(const BarhatchJob* job, BarhatchResult* result) {
  if (result == nullptr) return BARHATCH_BAD_RECORD;
  if (result->size < sizeof *result) return result->status = BARHATCH_BAD_RECORD;
  barhatch::ClearResult(*result);
  result->status = barhatch::MarkJob(job, *result);
  return result->status;
}

void BarhatchRelease(BarhatchResult* result) {
  if (result != nullptr) barhatch::ReleaseBlock(*result);
}

const char* BarhatchVersion(void) { return BARHATCH_VERSION; }

}  // extern "C"
