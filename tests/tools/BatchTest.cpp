// Lines, names, the bar and the sheet of a batch.
#include "Batch.h"

#include <gtest/gtest.h>

#include <sstream>

#include "Drawing.h"
#include "Messages.h"
#include "Progress.h"

namespace preview {

TEST(Batch, LinesKeepTheirNumbers) {
  std::istringstream in("\xEF\xBB\xBFone\r\n\ntwo words \nlast");
  const std::vector<BatchLine> lines = ReadBatch(in);
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[0].text, "one");
  EXPECT_EQ(lines[0].number, 1u);
  EXPECT_EQ(lines[1].text, "two words ");
  EXPECT_EQ(lines[1].number, 3u);
  EXPECT_EQ(lines[2].text, "last");
  EXPECT_EQ(lines[2].number, 4u);
}

TEST(Batch, PathsHaveNumberAndText) {
  EXPECT_EQ(PathOf("out/{n}.svg", {7, "x"}), "out/007.svg");
  EXPECT_EQ(PathOf("{n}-{n}-{text}.svg", {1234, "a/../b \xC3\xA4.Z_9"}),
            "1234-1234-a_.._b___.Z_9.svg");
  EXPECT_EQ(PathOf("{text}.svg", {1, "{n}{text}"}), "_n__text_.svg");
}

TEST(Batch, BarFillsUp) {
  EXPECT_EQ(ProgressBar(0, 4), "[..............................] 0/4");
  EXPECT_EQ(ProgressBar(2, 4), "[###############...............] 2/4");
  EXPECT_EQ(ProgressBar(4, 4), "[##############################] 4/4");
  EXPECT_EQ(ProgressBar(0, 0), "[##############################] 0/0");
}

TEST(Sheet, SymbolsStandInRowsFromTheTopAndDoNotTouch) {
  Drawing wide;
  wide.width = 100.0;
  wide.height = 10.0;
  wide.title = "wide";
  wide.marks = {{0, 0, 100, 10}};
  Drawing small = wide;
  small.width = 50.0;
  small.height = 5.0;
  small.title = "small";
  small.marks = {{0, 0, 50, 5}};

  const Drawing sheet = SheetOf({wide, small, wide}, 2);
  // Spacing is 8, a twelfth of the widest and more than of the highest.
  EXPECT_DOUBLE_EQ(sheet.width, 208.0);
  EXPECT_DOUBLE_EQ(sheet.height, 2 * 26.0 - 8.0);
  ASSERT_EQ(sheet.marks.size(), 3u);
  EXPECT_DOUBLE_EQ(sheet.marks[0].x0, 0.0);
  EXPECT_DOUBLE_EQ(sheet.marks[0].y1, 44.0);
  EXPECT_DOUBLE_EQ(sheet.marks[1].x0, 108.0);
  EXPECT_DOUBLE_EQ(sheet.marks[1].y1, 44.0);
  EXPECT_DOUBLE_EQ(sheet.marks[2].y1, 18.0);
  ASSERT_EQ(sheet.captions.size(), 3u);
  EXPECT_EQ(sheet.captions[1].text, "small");
  EXPECT_LT(sheet.captions[0].y + sheet.captions[0].size, sheet.marks[0].y0);
  EXPECT_GT(sheet.captions[0].y, sheet.marks[2].y1);
  EXPECT_GT(sheet.captions[2].y, 0.0);
}

TEST(Sheet, CaptionsBeginWhereTheMarksBegin) {
  Drawing quiet;
  quiet.width = quiet.height = 10.0;
  quiet.title = std::string(100, 'x');
  quiet.marks = {{8, 0, 2, 10}, {3, 0, 8, 10}};  // the first stroke goes to the left
  const Drawing sheet = SheetOf({quiet, quiet}, 2);
  EXPECT_DOUBLE_EQ(sheet.captions[0].x, 2.0);
  EXPECT_DOUBLE_EQ(sheet.captions[1].x, 11.5 + 2.0);
  quiet.marks = {{0, 0, 8, 10}};
  EXPECT_LT(sheet.captions[0].text.size(), SheetOf({quiet}, 2).captions[0].text.size())
      << "what the quiet zone takes is not there for the text";
}

TEST(Sheet, LongCaptionsAreCutToTheWidth) {
  Drawing drawing;
  drawing.width = drawing.height = 10.0;
  drawing.title = std::string(100, 'x');
  const Drawing sheet = SheetOf({drawing}, 4);
  const std::string& caption = sheet.captions[0].text;
  EXPECT_LT(caption.size(), 25u);
  EXPECT_EQ(caption.substr(caption.size() - 3), "\u2026");
  EXPECT_DOUBLE_EQ(sheet.width, 10.0);
}

TEST(Messages, QuotedTextFitsOneLine) {
  EXPECT_EQ(Quoted("a\nb\x7F"), "\"a\\x0Ab\\x7F\"");
  EXPECT_EQ(Quoted("abcdef", 3), "\"abc\u2026\"");
  EXPECT_EQ(Quoted("abc", 3), "\"abc\"");
  EXPECT_EQ(Quoted("ab\u00E4cd", 3), "\"ab\u00E4\u2026\"") << "characters are not cut apart";
  EXPECT_EQ(Quoted("a\xC3(\x80\xE2\x82"), "\"a\\xC3(\\x80\\xE2\\x82\"") << "stray bytes";
}

TEST(Messages, PlacesArePointedAtByCharacters) {
  EXPECT_EQ(Pointed("AbC", 1, 1), "AbC\n ^\n");
  EXPECT_EQ(Pointed("\u0141\u20ACx", 5, 1), "\u0141\u20ACx\n  ^\n") << "one column a character";
  EXPECT_EQ(Pointed("A\u20ACB", 1, 3), "A\u20ACB\n ^\n") << "one mark for the bytes of one";
  EXPECT_EQ(Pointed("A1234", 3, 2), "A1234\n   ^^\n");
  EXPECT_EQ(Pointed("\tA\nB", 2, 1), "\\x09A\\x0AB\n     ^^^^\n");
  EXPECT_EQ(Pointed("\u00E4\xFFz", 2, 1), "\u00E4\\xFFz\n ^^^^\n");
  EXPECT_EQ(Pointed("A12", 3, 0), "A12\n   ^\n") << "what is missing behind the text";
  EXPECT_EQ(Pointed("", 0, 0), "\n^\n");
}

TEST(Messages, OfALongTextThePartAroundIsShown) {
  const std::string text = std::string(100, '1') + "x" + std::string(100, '2');
  EXPECT_EQ(Pointed(text, 100, 1), "\u2026" + std::string(60, '1') + "x" + std::string(59, '2') +
                                       "\u2026\n" + std::string(61, ' ') + "^\n");
  const std::string wide = std::string(41, '1') + "\u00E4" + std::string(59, '3') + "x";
  EXPECT_EQ(Pointed(wide, 102, 1),
            "\u2026" + std::string(59, '3') + "x\n" + std::string(60, ' ') + "^\n")
      << "begins with a whole character";
}

}  // namespace preview
