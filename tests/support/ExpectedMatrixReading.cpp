#include "support/ExpectedMatrixReading.h"

#include <algorithm>
#include <vector>

namespace barhatch::test {

ExpectedMatrixReading ExpectedReadingOfMatrix(const std::u16string& text, int codeFormat,
                                              const ReferenceRequest& request) {
  const ReferenceEncodation reference = EncodeByReference(text, codeFormat, request);
  ExpectedMatrixReading expected;
  if (reference.capacity == 0) return expected;
  expected.size = ReferenceChoice(static_cast<int>(reference.codewords.size()), request.rows,
                                  request.columns, request.isExpanding);
  expected.reading = ReadDataCodewords(Padded(reference.codewords, reference.capacity));
  const bool isAsFarAsPredicted =
      expected.reading.items.size() >= reference.reading.size() &&
      std::equal(reference.reading.begin(), reference.reading.end(),
                 expected.reading.items.begin()) &&
      (reference.isAstray ||
       (expected.reading.isSound && expected.reading.items.size() == reference.reading.size()));
  if (!isAsFarAsPredicted) expected.reading = {{-1}, true};  // no reader says so: fails
  std::vector<int> given;
  for (const char16_t unit : text) given.push_back(unit);
  if (reference.isAstray) {
    expected.ids = "D-DM-6 D-DM-7 D-DM-9 D-DM-10";
  } else if (codeFormat == 0 && reference.reading != given) {
    expected.ids = "D-DM-3 D-DM-4 D-DM-9";
  }
  return expected;
}

}  // namespace barhatch::test
