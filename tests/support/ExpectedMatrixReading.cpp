#include "support/ExpectedMatrixReading.h"

#include <algorithm>
#include <vector>

namespace barhatch::test {

namespace {

// What a symbol without deviations says.
std::vector<int> ReadingByTheStandard(const std::u16string& text, int codeFormat,
                                      const std::vector<int>& items) {
  std::vector<int> reading;
  if (codeFormat == 2) reading.push_back(kReadMacro05);
  if (codeFormat == 3) reading.push_back(kReadMacro06);
  for (const char16_t unit : text) reading.push_back(unit > 255 ? ReadEci(unit) : unit);
  // The first codeword, which FNC1 stands behind, is a character or a pair of digits.
  const std::ptrdiff_t first = items.size() > 2 && items[2] == kReadFnc1 ? 2 : 1;
  if (codeFormat == 1) reading.insert(reading.begin() + first, kReadFnc1);
  return reading;
}

}  // namespace

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
  // Rows are named where the standard has another reading, and there alone.
  const bool isByTheStandard =
      expected.reading.isSound &&
      expected.reading.items == ReadingByTheStandard(text, codeFormat, expected.reading.items);
  if (!isAsFarAsPredicted || isByTheStandard != reference.ids.empty())
    expected.reading = {{-1}, true};  // no reader says so: fails
  for (const std::string& id : reference.ids) expected.ids += expected.ids.empty() ? id : " " + id;
  return expected;
}

}  // namespace barhatch::test
