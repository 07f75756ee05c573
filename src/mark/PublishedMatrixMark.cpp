// The Data Matrix half of a mark by the book: text to tokens, tokens to a grid of modules, its
// codewords read back.
#include <cstring>

#include "datamatrix/PublishedMatrix.h"
#include "datamatrix/TextProof.h"
#include "mark/JobRecord.h"
#include "mark/MatrixMark.h"
#include "mark/MatrixTokens.h"
#include "mark/Proof.h"
#include "mark/TextTokens.h"

namespace barhatch {

namespace {

constexpr Refusal kNoMemory = {Reason::kNoMemory};

SizeWish SizeWishOf(const BarhatchJob& job) {
  return {job.rows, job.columns, ShapeOf(job), (job.flags & BARHATCH_MAY_GROW) != 0};
}

StructuredAppend AppendOf(const BarhatchJob& job) { return {job.part, job.parts, job.part_id}; }

PublishedText TextOf(const BarhatchJob& job, const TokenText& tokens) {
  return {tokens, MatrixHeadOf(job), AppendOf(job), (job.flags & BARHATCH_LOOSE_END) != 0};
}

// A size, and nothing in it.
Refusal MakeMask(const BarhatchJob& job, const TokenText& tokens, MarkedSymbol& symbol,
                 BarhatchResult& result) {
  SymbolSize size;
  int codewords = 0;
  const Refusal refusal =
      SizeOfMask(TextOf(job, tokens), SizeWishOf(job), symbol.memory, size, codewords);
  if (refusal.IsRefused()) return refusal;
  const int quiet = QuietZoneOf(DrawnQuietModulesOf(job), kStandardQuietModules);
  symbol.rows = size.symbolRows + 2 * quiet;
  symbol.columns = size.symbolColumns + 2 * quiet;
  symbol.drawnQuiet = OnAllSides(quiet);
  result.codewords = codewords;
  result.capacity = size.dataCodewords;
  return {};
}

Refusal MakeText(const BarhatchJob& job, const TokenText& tokens, Conformance& how,
                 MarkedSymbol& symbol, BarhatchResult& result) {
  const PublishedText text = TextOf(job, tokens);
  MatrixSymbol matrix;
  Refusal refusal = EncodePublishedMatrix(text, SizeWishOf(job), DrawnQuietModulesOf(job), how,
                                          symbol.memory, matrix);
  if (refusal.IsRefused()) return refusal;
  refusal = KeepMatrix(job, matrix, how, symbol, result);
  if (refusal.IsRefused()) return refusal;
  const bool isAsGiven = SaysText(symbol.values, matrix.size.dataCodewords, text);
  return JudgeReading(job, isAsGiven, how.Met(), symbol.warnings);
}

Refusal MakeCodewords(const BarhatchJob& job, const TokenText& tokens, Conformance& how,
                      MarkedSymbol& symbol, BarhatchResult& result) {
  const Block<std::uint8_t> codewords(symbol.memory, tokens.length);
  if (codewords.get() == nullptr) return kNoMemory;
  for (std::size_t i = 0; i < tokens.length; ++i)
    codewords.get()[i] = static_cast<std::uint8_t>(tokens.tokens[i]);
  MatrixSymbol matrix;
  const Refusal refusal = DrawCodewords(codewords.get(), tokens.length, SizeWishOf(job),
                                        DrawnQuietModulesOf(job), how, symbol.memory, matrix);
  if (refusal.IsRefused()) return refusal;
  const Refusal kept = KeepMatrix(job, matrix, how, symbol, result);
  if (kept.IsRefused()) return kept;
  if (!symbol.isRead) symbol.warnings |= BARHATCH_W_UNREADABLE;
  const bool isAsGiven = std::memcmp(symbol.values, codewords.get(), tokens.length) == 0;
  return {isAsGiven || !WantsProof(job) ? Reason::kNone : Reason::kProof};
}

bool IsInOrderOfStandard(const BarhatchJob& job, const MarkedSymbol& symbol) {
  constexpr int kLargest = 144;
  const int rows = symbol.rows - symbol.drawnQuiet.above - symbol.drawnQuiet.below;
  return rows == kLargest && (job.flags & BARHATCH_INDUSTRY_144) == 0;
}

}  // namespace

Refusal MakePublishedMatrix(const BarhatchJob& job, const InputText& text, std::size_t count,
                            Conformance& how, MarkedSymbol& symbol, BarhatchResult& result) {
  if (count > kMostCharactersOfMatrix) return {Reason::kLength, -1, FigureOf(count)};
  TextTokens given(symbol.memory);
  Refusal refusal = given.Read(job, text, count, symbol);
  if (refusal.IsRefused()) return refusal;
  const Block<Token> room(symbol.memory, MostTokensOf(given.Get().length));
  if (room.get() == nullptr) return kNoMemory;
  TokenText tokens = {room.get(), 0};
  refusal = TokensOfMatrix(job, given.Get(), room.get(), tokens.length, symbol.warnings);
  if (refusal.IsRefused()) return refusal;

  const bool isMask = (job.flags & BARHATCH_MASK) != 0;
  refusal = isMask                            ? MakeMask(job, tokens, symbol, result)
            : job.input == BARHATCH_CODEWORDS ? MakeCodewords(job, tokens, how, symbol, result)
                                              : MakeText(job, tokens, how, symbol, result);
  if (refusal.IsRefused()) return refusal;
  if (IsInOrderOfStandard(job, symbol)) symbol.warnings |= BARHATCH_W_144;
  return {};
}

}  // namespace barhatch
