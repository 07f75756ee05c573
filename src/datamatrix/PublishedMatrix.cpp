#include "datamatrix/PublishedMatrix.h"

#include "datamatrix/Interleaving.h"
#include "datamatrix/Placement.h"
#include "datamatrix/ShortestEncodation.h"
#include "datamatrix/SymbolGrid.h"

namespace barhatch {

namespace {

constexpr int kStandardQuietModules = 1;
constexpr int kStructuredAppendCodeword = 233;
constexpr int kReaderProgrammingCodeword = 234;
constexpr int kMacro05Codeword = 236;
constexpr int kMacro06Codeword = 237;

constexpr Refusal kNoMemory = {Reason::kNoMemory, -1, 0};

static_assert(kMaxDataMatrixText <= kMostTokens, "the pass takes every text that a symbol holds");

void AppendStructure(const StructuredAppend& append, CodewordBuffer& codewords) {
  codewords.Append(kStructuredAppendCodeword);
  codewords.Append((append.part - 1) * 16 + (17 - append.parts));
  codewords.Append(append.identification / 254 + 1);
  codewords.Append(append.identification % 254 + 1);
}

void AppendHead(const PublishedText& text, CodewordBuffer& codewords) {
  switch (text.head) {
    case MatrixHead::kNone:
      return;
    case MatrixHead::kMacro05:
      return codewords.Append(kMacro05Codeword);
    case MatrixHead::kMacro06:
      return codewords.Append(kMacro06Codeword);
    case MatrixHead::kReaderProgramming:
      return codewords.Append(kReaderProgrammingCodeword);
    case MatrixHead::kStructuredAppend:
      return AppendStructure(text.append, codewords);
  }
}

constexpr int CodewordsOfHead(MatrixHead head) {
  return head == MatrixHead::kNone ? 0 : head == MatrixHead::kStructuredAppend ? 4 : 1;
}

// Where FNC1 is the first codeword, or the second.
bool MayBeginWithFnc1(MatrixHead head) {
  return head == MatrixHead::kNone || head == MatrixHead::kStructuredAppend;
}

bool IsFnc1At(const TokenText& text, std::size_t place) {
  return place < text.length && text.tokens[place] == kFnc1Token;
}

// True where readers would take FNC1 for one in second position, and it is none.
bool HasFnc1InVain(const TokenText& text, MatrixHead head) {
  if (!MayBeginWithFnc1(head)) return IsFnc1At(text, 0);
  return IsFnc1At(text, 1) && LeadOf(text, head) < 2 && AsciiCodewordsOf(text.tokens[0]) == 1;
}

Refusal CheckText(const PublishedText& given, std::int32_t quiet) {
  if (quiet > kMostQuietModules) return {Reason::kOption, -1, quiet};
  if (given.text.length > kMaxDataMatrixText) {
    return {Reason::kLength, -1, FigureOf(given.text.length)};
  }
  if (!HasFnc1InVain(given.text, given.head)) return {};
  return {Reason::kFnc1Place, MayBeginWithFnc1(given.head) ? 1 : 0, 0};
}

Refusal Draw(const Memory& memory, MatrixSymbol& symbol) {
  const SymbolSize& size = symbol.size;
  const Block<char> mapping(memory,
                            static_cast<std::size_t>(size.mappingRows * size.mappingColumns));
  if (mapping.get() == nullptr) return kNoMemory;
  const auto place = IsDmre(size) ? &PlaceDmreCodewords : &PlaceCodewords;
  place(symbol.codewords.data(), size.mappingRows, size.mappingColumns, mapping.get());

  symbol.rows = size.symbolRows + 2 * symbol.quietModules;
  symbol.columns = size.symbolColumns + 2 * symbol.quietModules;
  symbol.letters = NewGrid(size, symbol.quietModules, mapping.get(), memory);
  return symbol.letters != nullptr ? Refusal{} : kNoMemory;
}

Refusal Finish(std::int32_t quiet, Conformance& how, const Memory& memory, MatrixSymbol& symbol) {
  symbol.codewords.PadTo(symbol.size.dataCodewords);
  AddErrorCorrection(symbol.size, how, symbol.codewords.data());
  symbol.quietModules = QuietZoneOf(quiet, kStandardQuietModules);
  return Draw(memory, symbol);
}

}  // namespace

std::size_t LeadOf(const TokenText& text, MatrixHead head) {
  if (!MayBeginWithFnc1(head)) return 0;
  if (IsFnc1At(text, 0)) return 1;
  if (IsFnc1At(text, 1) && IsLetterToken(text.tokens[0])) return 2;
  const bool isBehindPair =
      IsFnc1At(text, 2) && IsDigitToken(text.tokens[0]) && IsDigitToken(text.tokens[1]);
  return isBehindPair ? 3 : 0;
}

Refusal EncodePublishedMatrix(const PublishedText& text, const SizeWish& wish, std::int32_t quiet,
                              Conformance& how, const Memory& memory, MatrixSymbol& symbol) {
  Refusal refusal = CheckText(text, quiet);
  if (refusal.IsRefused()) return refusal;
  const Block<Place> places(memory, text.text.length + 1);
  if (places.get() == nullptr) return kNoMemory;
  ShortestEncodation encodation(text.text, LeadOf(text.text, text.head), CodewordsOfHead(text.head),
                                text.hasLooseEnd, places.get());
  refusal = ChoosePublishedSize(encodation.LeastCodewords(), wish, symbol.size);
  if (refusal.IsRefused()) return refusal;
  AppendHead(text, symbol.codewords);
  encodation.Write(symbol.size.dataCodewords, symbol.codewords);
  return Finish(quiet, how, memory, symbol);
}

Refusal SizeOfMask(const PublishedText& mask, const SizeWish& wish, const Memory& memory,
                   SymbolSize& size, int& codewords) {
  const Refusal refusal = CheckText(mask, 0);
  if (refusal.IsRefused()) return refusal;
  const Block<Place> places(memory, mask.text.length + 1);
  if (places.get() == nullptr) return kNoMemory;
  const ShortestEncodation encodation(mask.text, LeadOf(mask.text, mask.head),
                                      CodewordsOfHead(mask.head), mask.hasLooseEnd, places.get());
  codewords = encodation.LeastCodewords();
  return ChoosePublishedSize(codewords, wish, size);
}

Refusal DrawCodewords(const std::uint8_t* codewords, std::size_t count, const SizeWish& wish,
                      std::int32_t quiet, Conformance& how, const Memory& memory,
                      MatrixSymbol& symbol) {
  if (quiet > kMostQuietModules) return {Reason::kOption, -1, quiet};
  if (count > static_cast<std::size_t>(kMaxDataCodewords)) {
    return {Reason::kTooManyCodewords, -1, FigureOf(count)};
  }
  const Refusal refusal = ChoosePublishedSize(static_cast<int>(count), wish, symbol.size);
  if (refusal.IsRefused()) return refusal;
  for (std::size_t i = 0; i < count; ++i) symbol.codewords.Append(codewords[i]);
  return Finish(quiet, how, memory, symbol);
}

}  // namespace barhatch
