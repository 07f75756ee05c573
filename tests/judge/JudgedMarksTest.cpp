// Marks by the book that an independent generator drew: a sample of what scripts/judge compares,
// for runs without it. judged-marks.txt has a line for each: symbology, flags, check, addon_gap,
// text in hexadecimal (- for none), and the elements from the first bar on, n and w in symbologies
// of two widths, else their widths in modules; "refused" where there is no such mark.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "mark/MarkTesting.h"

namespace barhatch::test {
namespace {

struct JudgedMark {
  std::int32_t symbology = 0;
  std::uint32_t flags = 0;
  std::int32_t check = 0;
  std::int32_t addonGap = 0;
  std::string text;
  std::string elements;
};

std::string BytesOfHex(const std::string& hex) {
  std::string bytes;
  for (std::size_t i = 0; i + 1 < hex.size(); i += 2) {
    bytes += static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16));
  }
  return bytes;
}

std::vector<JudgedMark> JudgedMarks() {
  std::ifstream file(BARHATCH_JUDGED_MARKS);
  std::vector<JudgedMark> marks;
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream fields(line);
    JudgedMark mark;
    std::string hex;
    fields >> mark.symbology >> mark.flags >> mark.check >> mark.addonGap >> hex >> mark.elements;
    mark.text = BytesOfHex(hex);
    marks.push_back(mark);
  }
  return marks;
}

// One letter for each element of symbologies of two widths; bars and spaces take turns.
std::string LettersOfTwoWidths(const BarhatchResult& result) {
  std::string letters;
  for (std::int32_t i = 0; i < result.columns; ++i) {
    const bool isDark = (result.modules[i] & BARHATCH_DARK) != 0;
    const char width = (result.modules[i] & BARHATCH_WIDE) != 0 ? 'w' : 'n';
    letters += isDark == (i % 2 == 0) ? width : '?';
  }
  return letters;
}

// The widths of the elements in modules, 10 as a.
std::string LettersOfModules(const BarhatchResult& result) {
  static constexpr char kWidths[] = "0123456789abcdefghijklmnopqrstuvwxyz";
  std::string letters;
  int width = 0;
  for (std::int32_t i = 0; i < result.columns; ++i) {
    width = i == 0 || result.modules[i] != result.modules[i - 1] ? 1 : width + 1;
    if (width == 1) letters += ' ';
    letters.back() = kWidths[std::min(width, 35)];
  }
  return letters;
}

bool HasTwoWidths(std::int32_t symbology) {
  return symbology == BARHATCH_CODABAR || symbology == BARHATCH_CODE_39 ||
         symbology == BARHATCH_CODE_11 || symbology == BARHATCH_INTERLEAVED_2_OF_5 ||
         symbology == BARHATCH_ITF_14 || symbology == BARHATCH_CODE_39_FULL;
}

std::string ElementsOf(const JudgedMark& judged) {
  BarhatchJob job = LongJobOf(judged.symbology, judged.text, BARHATCH_PUBLISHED);
  job.input = BARHATCH_BYTES;
  job.flags = judged.flags;
  job.check = judged.check;
  job.addon_gap = judged.addonGap;
  const Mark mark(job);
  if (!mark.IsOk()) return "refused";
  return HasTwoWidths(judged.symbology) ? LettersOfTwoWidths(mark.Result())
                                        : LettersOfModules(mark.Result());
}

TEST(JudgedMarks, EveryMarkIsWhatTheGeneratorDrew) {
  for (const JudgedMark& judged : JudgedMarks()) {
    EXPECT_EQ(ElementsOf(judged), judged.elements)
        << judged.symbology << " " << judged.check << " " << testing::PrintToString(judged.text);
  }
}

TEST(JudgedMarks, EverySymbologyHasMarksAndRefusals) {
  std::map<std::int32_t, int> drawn;
  std::map<std::int32_t, int> refused;
  for (const JudgedMark& judged : JudgedMarks()) {
    ++(judged.elements == "refused" ? refused : drawn)[judged.symbology];
  }
  for (std::int32_t symbology = 0; symbology <= BARHATCH_CODE_93_FULL; ++symbology) {
    EXPECT_GE(drawn[symbology], 8) << symbology;
    const bool takesAllBytes = symbology >= BARHATCH_CODE_128 && symbology <= BARHATCH_CODE_128_C;
    EXPECT_GE(refused[symbology], takesAllBytes ? 0 : 1) << symbology;
  }
}

}  // namespace
}  // namespace barhatch::test
