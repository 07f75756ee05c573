#include "datamatrix/DataMatrixEncoder.h"

#include <cstddef>
#include <memory>
#include <new>

#include "api/BarcodeSettings.h"
#include "datamatrix/Encodation.h"
#include "datamatrix/Interleaving.h"
#include "datamatrix/Placement.h"
#include "datamatrix/SymbolGrid.h"

namespace barhatch {

namespace {

constexpr std::int32_t kMacro05Format = 2;
constexpr std::int32_t kMacro06Format = 3;
constexpr int kMacro05Codeword = 236;
constexpr int kMacro06Codeword = 237;

struct Order {
  const char16_t* text;
  std::size_t length;
  bool isTextRefused;
  std::int32_t codeFormat;
  SizeRequest request;
  QuietBorder border;
};

std::size_t TextLength(const char16_t* text) {
  std::size_t length = 0;
  while (text[length] != u'\0') ++length;
  return length;
}

Order OrderOf(const BarcodeSettings& settings) {
  const std::size_t length = TextLength(settings.DataString);
  return {settings.DataString,
          length,
          settings.DataStringRefused || length > kMaxDataMatrixText,
          settings.format,
          RequestFromMatrixSize(settings.MatrixSize, settings.IsExpanding),
          settings.QuietZone != 0 ? QuietBorder::kOneModule : QuietBorder::kNone};
}

void AppendMacroHeader(std::int32_t codeFormat, CodewordBuffer& codewords) {
  if (codeFormat == kMacro05Format) codewords.Append(kMacro05Codeword);
  if (codeFormat == kMacro06Format) codewords.Append(kMacro06Codeword);
}

std::unique_ptr<char[]> NewMappingMatrix(const SymbolSize& size) {
  const std::size_t modules = static_cast<std::size_t>(size.mappingRows * size.mappingColumns);
  return std::unique_ptr<char[]>(new (std::nothrow) char[modules]);
}

}  // namespace

TwoDStringResult* DataMatrixEncoder::EncodeDataMatrix() {
  const Order order = OrderOf(CurrentSettings());
  AppendMacroHeader(order.codeFormat, codewords_);
  if (order.isTextRefused) return NewRefusedGrid();
  EncodeText(order.text, order.length, order.codeFormat, order.request, codewords_);
  if (codewords_.HasOverflowed()) return NewRefusedGrid();

  SymbolSize size;
  if (!ChooseSymbolSize(codewords_.Count(), order.request, size)) return NewRefusedGrid();
  codewords_.PadTo(size.dataCodewords);
  AddErrorCorrection(size, codewords_.data());

  const std::unique_ptr<char[]> mapping = NewMappingMatrix(size);
  if (mapping == nullptr) return nullptr;
  PlaceCodewords(codewords_.data(), size.mappingRows, size.mappingColumns, mapping.get());
  return NewGrid(size, order.border, mapping.get());
}

}  // namespace barhatch
