// The encodation as tests call it: text in, codewords in decimal out, as the standard prints them.
#ifndef BARHATCH_TESTS_DATAMATRIX_ENCODEDTEXT_H
#define BARHATCH_TESTS_DATAMATRIX_ENCODEDTEXT_H

#include <memory>
#include <string>
#include <vector>

#include "datamatrix/Encodation.h"
#include "datamatrix/EncodationState.h"
#include "datamatrix/SymbolSizes.h"
#include "support/TextClasses.h"

namespace barhatch::test {

constexpr SizeRequest kSmallestSquare = {0, 0, 1};

inline std::vector<int> CodewordsOf(const CodewordBuffer& buffer) {
  std::vector<int> codewords;
  for (int i = 0; i < buffer.Count() && i < kMaxDataCodewords; ++i) codewords.push_back(buffer[i]);
  return codewords;
}

inline std::string InDecimal(const std::vector<int>& codewords) {
  std::string text;
  for (const int codeword : codewords) {
    text += (text.empty() ? "" : " ") + std::to_string(codeword);
  }
  return text;
}

struct DeviceConformance {
  Conformance deviceHow = Conformance::Device();
};

// The state of one mode's encoder, all deviations in force.
struct DeviceState : DeviceConformance, EncodationState {
  DeviceState(const TextUnits& itsText, const SizeRequest& itsRequest, CodewordBuffer& itsCodewords)
      : EncodationState(itsText, itsRequest, deviceHow, itsCodewords) {}
};

inline Header HeaderOf(int codeFormat) {
  return codeFormat == 1   ? Header::kFnc1Second
         : codeFormat == 2 ? Header::kMacro05
         : codeFormat == 3 ? Header::kMacro06
                           : Header::kNone;
}

// The buffer starts with the macro header where the code format asks for one.
inline std::unique_ptr<CodewordBuffer> EncodedBuffer(const std::u16string& text, int codeFormat,
                                                     const SizeRequest& request, Conformance& how) {
  auto buffer = std::make_unique<CodewordBuffer>();
  if (codeFormat == 2 || codeFormat == 3) buffer->Append(codeFormat == 2 ? 236 : 237);
  EncodeText({text.data(), text.size()}, HeaderOf(codeFormat), request, how, *buffer);
  return buffer;
}

inline std::unique_ptr<CodewordBuffer> EncodedBuffer(const std::u16string& text, int codeFormat = 0,
                                                     const SizeRequest& request = kSmallestSquare) {
  Conformance how = Conformance::Device();
  return EncodedBuffer(text, codeFormat, request, how);
}

// "overflow" for a text of too many codewords.
inline std::string Encoded(const std::u16string& text, int codeFormat = 0,
                           const SizeRequest& request = kSmallestSquare) {
  const auto buffer = EncodedBuffer(text, codeFormat, request);
  return buffer->HasOverflowed() ? "overflow" : InDecimal(CodewordsOf(*buffer));
}

inline std::string Encoded(const std::string& bytes, int codeFormat = 0,
                           const SizeRequest& request = kSmallestSquare) {
  return Encoded(Wide(bytes), codeFormat, request);
}

}  // namespace barhatch::test

#endif
