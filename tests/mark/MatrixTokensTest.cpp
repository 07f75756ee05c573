// A text on its way to a Data Matrix by the book: separators, bytes under an ECI, functions.
// Codewords by hand, in ASCII encodation: 232 is FNC1, 30 GS, 241 an ECI.
#include "mark/MatrixTokens.h"

#include <gtest/gtest.h>

#include <string>

#include "mark/MarkTesting.h"

namespace barhatch::test {
namespace {

BarhatchJob MatrixJob(std::int32_t input, const std::string& text, std::uint32_t flags = 0) {
  BarhatchJob job = LongJobOf(BARHATCH_DATA_MATRIX, text, BARHATCH_PUBLISHED);
  job.input = input;
  job.flags = flags;
  return job;
}

std::string CodewordsOf(const Mark& mark) {
  if (!mark.IsOk()) return PlaceOf(mark) + ": " + mark.Message();
  EXPECT_EQ(mark->warnings & BARHATCH_W_UNREADABLE, 0u);
  std::string text;
  for (int i = 0; i < mark->codewords; ++i)
    text += (i > 0 ? " " : "") + std::to_string(mark->values[i]);
  return text;
}

std::string Escaped(const std::string& text, std::uint32_t flags = 0) {
  return CodewordsOf(Mark(MatrixJob(BARHATCH_ESCAPED, text, flags)));
}

std::string ReadEscaped(const std::string& text) {
  return Mark(MatrixJob(BARHATCH_ESCAPED, text)).Reading();
}

}  // namespace

TEST(MatrixTokens, SeparatorsOfElementsMayBeGs) {
  const std::string text = "(10)ABC(21)1";
  const Mark fnc1(MatrixJob(BARHATCH_GS1, text));
  const Mark gs(MatrixJob(BARHATCH_GS1, text, BARHATCH_GS_SEPARATORS));
  EXPECT_EQ(CodewordsOf(fnc1), "232 140 66 67 68 232 151 50");
  EXPECT_EQ(CodewordsOf(gs), "232 140 66 67 68 30 151 50");
  EXPECT_EQ(fnc1.Reading(),
            "10ABC\x1D"
            "211");
  EXPECT_EQ(gs.Reading(), fnc1.Reading());
}

TEST(MatrixTokens, Fnc1ThatDoesNotSeparateStays) {
  const std::uint32_t asGs = BARHATCH_GS_SEPARATORS;
  EXPECT_EQ(Escaped("^FNC110A^FNC1B", asGs), "232 140 66 30 67");
  EXPECT_EQ(Escaped("A^FNC1B^FNC1C", asGs), "66 232 67 30 68") << "second, behind a letter";
  EXPECT_EQ(Escaped("12^FNC1B^FNC1C", asGs), "142 232 67 30 68") << "second, behind two digits";
  EXPECT_EQ(Escaped("AB^FNC1C", asGs), "66 67 30 68");
  EXPECT_EQ(Escaped("AB^FNC1C"), "66 67 232 68");
}

TEST(MatrixTokens, EscapedEcisSayWhatBytesFollow) {
  EXPECT_EQ(Escaped("^ECI000026a"), "241 27 98");
  EXPECT_EQ(ReadEscaped("^ECI000026\xC3\xA9"), "\xC3\xA9");
  EXPECT_EQ(ReadEscaped("\xC3\xA9^ECI000026\xC3\xA9"), "\xE9\xC3\xA9");
  EXPECT_EQ(ReadEscaped("^ECI000026\xC3\xA9^ECI000003\xC3\xA9"), "\xC3\xA9\xE9");
  EXPECT_EQ(ReadEscaped("^ECI000020\xC3\xBF"), "\xFF") << "the byte of this number";
  EXPECT_EQ(Escaped("\xC5\x81^ECI000026").substr(0, 9), "4 at 1+2:");
}

TEST(MatrixTokens, FunctionsThatAMatrixLacksAreRefused) {
  EXPECT_EQ(Escaped("A^FNC2").substr(0, 9), "4 at 2+5:");
  EXPECT_EQ(Escaped("^FNC3A").substr(0, 9), "4 at 1+5:");
}

// One that readers would take for the second, but that does not mean what stands in front of it.
TEST(MatrixTokens, Fnc1InVainIsRefused) {
  const std::string sentence = "FNC1 in second position stands behind a letter or two digits";
  EXPECT_EQ(Escaped("-^FNC1A"), "7 at 2+5: " + sentence);
  EXPECT_EQ(Escaped("1^FNC1A"), "7 at 2+5: " + sentence);
  const std::string text = "^FNC1A";
  BarhatchJob job = MatrixJob(BARHATCH_ESCAPED, text);
  EXPECT_EQ(CodewordsOf(Mark(job)), "232 66");
  job.envelope = BARHATCH_ENVELOPE_05;
  EXPECT_EQ(CodewordsOf(Mark(job)), "7 at 1+5: " + sentence);
}

TEST(MatrixTokens, CharactersUpTo127HaveAByteUnderEveryEci) {
  const auto under20 = [](const std::string& text) {
    BarhatchJob job = MatrixJob(BARHATCH_UTF8, text);
    job.eci = 20;
    return CodewordsOf(Mark(job));
  };
  EXPECT_EQ(under20("a\x7F"), "241 21 98 128");
  EXPECT_EQ(under20("a\xC2\x80").substr(0, 9), "4 at 2+2:");
}

TEST(MatrixTokens, CharactersOfEveryLengthOfUtf8) {
  const std::string text = "\xC4\x80\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80";
  EXPECT_EQ(Mark(MatrixJob(BARHATCH_UTF8, text)).Reading(), text);
}

}  // namespace barhatch::test
