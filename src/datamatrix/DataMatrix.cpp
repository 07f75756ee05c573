#include "datamatrix/DataMatrix.h"

#include "datamatrix/Encodation.h"
#include "datamatrix/Interleaving.h"
#include "datamatrix/Placement.h"
#include "datamatrix/SymbolGrid.h"

namespace barhatch {

namespace {

constexpr int kStandardQuietModules = 1;
constexpr int kMacro05Codeword = 236;
constexpr int kMacro06Codeword = 237;

Refusal CheckJob(const MatrixJob& job) {
  if (job.quietModules > kMostQuietModules) return {Reason::kOption, -1, job.quietModules};
  if (job.text.length <= kMaxDataMatrixText) return {};
  return {Reason::kLength, -1, static_cast<std::int32_t>(job.text.length)};
}

void AppendMacroHeader(Header header, CodewordBuffer& codewords) {
  if (header == Header::kMacro05) codewords.Append(kMacro05Codeword);
  if (header == Header::kMacro06) codewords.Append(kMacro06Codeword);
}

Refusal Draw(const Memory& memory, MatrixSymbol& symbol) {
  const SymbolSize& size = symbol.size;
  const Block<char> mapping(memory,
                            static_cast<std::size_t>(size.mappingRows * size.mappingColumns));
  if (mapping.get() == nullptr) return {Reason::kNoMemory};
  PlaceCodewords(symbol.codewords.data(), size.mappingRows, size.mappingColumns, mapping.get());

  symbol.rows = size.symbolRows + 2 * symbol.quietModules;
  symbol.columns = size.symbolColumns + 2 * symbol.quietModules;
  symbol.letters = NewGrid(size, symbol.quietModules, mapping.get(), memory);
  return {symbol.letters != nullptr ? Reason::kNone : Reason::kNoMemory};
}

Refusal EncodeStages(const MatrixJob& job, Conformance& how, const Memory& memory,
                     MatrixSymbol& symbol) {
  if (const Refusal refusal = CheckJob(job); refusal.IsRefused()) return refusal;
  CodewordBuffer& codewords = symbol.codewords;
  AppendMacroHeader(job.header, codewords);
  EncodeText(job.text, job.header, job.size, how, codewords);

  const Refusal refusal = ChooseSymbolSize(codewords.Count(), job.size, symbol.size);
  if (refusal.IsRefused()) return refusal;
  codewords.PadTo(symbol.size.dataCodewords);
  AddErrorCorrection(symbol.size, how, codewords.data());

  symbol.quietModules = QuietZoneOf(job.quietModules, kStandardQuietModules);
  return Draw(memory, symbol);
}

}  // namespace

Refusal EncodeDataMatrix(const MatrixJob& job, Conformance& how, const Memory& memory,
                         MatrixSymbol& symbol) {
  const Refusal refusal = EncodeStages(job, how, memory, symbol);
  if (refusal.IsRefused()) how.ForgetMet();
  return refusal;
}

}  // namespace barhatch
