#include "barhatch.hpp"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "support/AllocationProbe.h"
#include "support/Modules.h"

namespace {

using barhatch::DataMatrix;
using barhatch::Fill;
using barhatch::LinearBarcode;
using barhatch::Pattern;
using barhatch::Segment;
using barhatch::Type;

class Wrapper : public testing::Test {
 protected:
  Wrapper() { barhatch::Initialise(); }
  ~Wrapper() override { barhatch::Initialise(); }

  static LinearBarcode Code39() {
    LinearBarcode barcode;
    barcode.type = Type::kCode39;
    barcode.text = u"ABC-123";
    barcode.width = 60.0;
    barcode.height = 12.0;
    barcode.lineGap = 0.5;
    return barcode;
  }

  static DataMatrix Matrix(Pattern pattern) {
    DataMatrix matrix;
    matrix.text = u"123456";
    matrix.height = 10.0;
    matrix.lineGap = 0.5;
    matrix.pattern = pattern;
    return matrix;
  }
};

TEST_F(Wrapper, AFillHasTheStrokesOfTheCInterface) {
  const auto fill = barhatch::Generate(Code39());
  ASSERT_TRUE(fill);
  const FillBufferInfo& info = fill->Info();
  ASSERT_EQ(4 * fill->Segments().size(), static_cast<std::size_t>(info.BufferLength));
  EXPECT_FALSE(fill->Segments().empty());
  const double* c = info.FilledArray;
  for (const Segment& s : fill->Segments()) {
    EXPECT_EQ((std::vector<double>{s.xa, s.ya, s.xb, s.yb}), std::vector<double>(c, c + 4));
    c += 4;
  }
  EXPECT_EQ(fill->Segments()[1].xa, info.FilledArray[4]);
  EXPECT_EQ(fill->Height(), 12.0);
  EXPECT_EQ(fill->Width(), info.FillWidth);
  EXPECT_TRUE(fill->Points().empty());
}

TEST_F(Wrapper, PointsHaveNoSegments) {
  LinearBarcode barcode = Code39();
  barcode.pattern = Pattern::kPoints;
  const auto fill = barhatch::Generate(barcode);
  ASSERT_TRUE(fill);
  EXPECT_TRUE(fill->IsPoints());
  EXPECT_EQ(fill->Points().size(), 45u);  // nine characters of five bars
  EXPECT_TRUE(fill->Segments().empty());
  for (const barhatch::Point& point : fill->Points()) EXPECT_EQ(point.y, 6.0);
}

TEST_F(Wrapper, RefusalsAreEmpty) {
  LinearBarcode barcode = Code39();
  barcode.text = u"abc";
  EXPECT_FALSE(barhatch::Generate(barcode));
  EXPECT_FALSE(barhatch::GenerateModules(Type::kEan13, u"1"));
  EXPECT_FALSE(barhatch::Hatch("", Code39()));
  DataMatrix matrix = Matrix(Pattern::kPoints);
  matrix.mayExpand = false;  // the smallest square needs permission
  EXPECT_FALSE(barhatch::Generate(matrix));
}

TEST_F(Wrapper, ATextWithANulInsideIsRefusedWhole) {
  using namespace std::string_literals;
  LinearBarcode barcode = Code39();
  barcode.text = u"AB\0C"s;
  EXPECT_FALSE(barhatch::Generate(barcode));
  DataMatrix matrix = Matrix(Pattern::kPoints);
  matrix.text =
      u"12\0"
      u"34"s;
  EXPECT_FALSE(barhatch::Generate(matrix));
  EXPECT_FALSE(barhatch::GenerateModules(Type::kCode39, u"A\0"s));
}

TEST_F(Wrapper, ADataMatrixIsTheSmallestSquareUnlessAskedOtherwise) {
  const auto darkModules = [](const DataMatrix& matrix) {
    const auto dark = barhatch::Generate(matrix);
    return dark ? dark->Points().size() : 0;
  };
  DataMatrix matrix = Matrix(Pattern::kPoints);
  DataMatrix light = matrix;
  light.invert = true;
  EXPECT_EQ(darkModules(matrix) + darkModules(light), 100u);  // 10 x 10
  matrix.rows = light.rows = 8;
  matrix.columns = light.columns = 18;
  EXPECT_EQ(darkModules(matrix) + darkModules(light), 144u);
  matrix.quietZone = light.quietZone = true;
  EXPECT_EQ(darkModules(matrix) + darkModules(light), 200u);
}

TEST_F(Wrapper, CodeFormatsReachTheLibrary) {
  const auto points = [](barhatch::CodeFormat format) {
    DataMatrix matrix = Matrix(Pattern::kPoints);
    matrix.format = format;
    std::vector<double> all;
    const auto fill = barhatch::Generate(matrix);
    for (const barhatch::Point& p : fill->Points()) all.insert(all.end(), {p.x, p.y});
    return all;
  };
  EXPECT_NE(points(barhatch::CodeFormat::kPlain), points(barhatch::CodeFormat::kFnc1));
  EXPECT_NE(points(barhatch::CodeFormat::kMacro05), points(barhatch::CodeFormat::kMacro06));
}

TEST_F(Wrapper, ModuleStringsCanBeHatched) {
  const auto modules = barhatch::GenerateModules(Type::kCode39, u"ABC-123");
  ASSERT_TRUE(modules);
  EXPECT_EQ(modules->View().front(), 'A');
  EXPECT_EQ(modules->View().size(), 9u * 10 - 1);
  const auto hatched = barhatch::Hatch(modules->c_str(), Code39());
  const auto generated = barhatch::Generate(Code39());
  ASSERT_TRUE(hatched && generated);
  ASSERT_EQ(hatched->Segments().size(), generated->Segments().size());
  for (std::size_t i = 0; i < hatched->Segments().size(); ++i) {
    EXPECT_EQ(hatched->Segments()[i].xb, generated->Segments()[i].xb);
  }
}

TEST_F(Wrapper, EveryRecordFieldReachesTheLibrary) {
  LinearBarcode barcode = Code39();
  barcode.printRatio = 2.0;
  const auto narrower = barhatch::Generate(barcode);
  barcode.quietZone = true;
  const auto quiet = barhatch::Generate(barcode);
  barcode.invert = true;
  const auto light = barhatch::Generate(barcode);
  const auto usual = barhatch::Generate(Code39());
  ASSERT_TRUE(narrower && quiet && light && usual);
  EXPECT_NE(narrower->Segments()[0].xb, usual->Segments()[0].xb);
  EXPECT_GT(quiet->Segments()[0].xa, 0.0);
  EXPECT_EQ(light->Segments()[0].xa, 0.0);
}

TEST_F(Wrapper, ResultsAreReleasedWithTheirOwnerOnceAndCanMove) {
  static_assert(std::is_nothrow_move_constructible_v<Fill> && !std::is_copy_constructible_v<Fill>);
  const barhatch::test::AllocationProbe probe;
  {
    auto fill = barhatch::Generate(Matrix(Pattern::kSpiral));
    ASSERT_TRUE(fill);
    const Fill moved = std::move(*fill);
    EXPECT_GT(moved.Segments().size(), 0u);
    const auto modules = barhatch::GenerateModules(Type::kEan13, u"950110153100");
    EXPECT_GT(probe.LiveBlocks(), 2u);
  }
  EXPECT_EQ(probe.LiveBlocks(), 0u);
}

// How many letters the text of a type gives; 0 where it is refused.
std::size_t LettersOf(Type type, const barhatch::Text& text) {
  const auto modules = barhatch::GenerateModules(type, text);
  return modules ? modules->View().size() : 0;
}

// The first modules of a Code 128 symbol of one digit pair.
std::string StartOf(Type type) {
  const auto modules = barhatch::GenerateModules(type, u"12");
  return modules ? std::string(modules->View().substr(0, 11)) : "";
}

TEST_F(Wrapper, RetailTypesAreThoseOfTheirNames) {
  const barhatch::Text digits = u"0123456789012345678";
  const auto letters = [&](Type type, std::size_t count) {
    EXPECT_EQ(LettersOf(type, digits.substr(0, count + 1)), 0u);
    EXPECT_EQ(LettersOf(type, digits.substr(0, count - 1)), 0u);
    return LettersOf(type, digits.substr(0, count));
  };
  const std::size_t ean13 = letters(Type::kEan13, 12);
  const std::size_t upcA = letters(Type::kUpcA, 11);
  const std::size_t ean8 = letters(Type::kEan8, 7);
  const std::size_t upcE = letters(Type::kUpcE, 7);
  EXPECT_EQ((std::vector<std::size_t>{ean13, upcA, ean8, upcE}),
            (std::vector<std::size_t>{95, 95, 67, 51}));
  // An add-on has 4 modules, 7 for each digit and 2 between digits.
  const std::size_t gap = letters(Type::kEan13AddOn2, 14) - ean13 - 20;
  EXPECT_EQ(letters(Type::kEan13AddOn5, 17) - ean13, gap + 47);
  EXPECT_EQ(letters(Type::kUpcAAddOn2, 13) - upcA, gap + 20);
  EXPECT_EQ(letters(Type::kUpcAAddOn5, 16) - upcA, gap + 47);
  EXPECT_EQ(letters(Type::kEan8AddOn2, 9) - ean8, gap + 20);
  EXPECT_EQ(letters(Type::kEan8AddOn5, 12) - ean8, gap + 47);
  EXPECT_EQ(letters(Type::kUpcEAddOn2, 9) - upcE, gap + 20);
  EXPECT_EQ(letters(Type::kUpcEAddOn5, 12) - upcE, gap + 47);
}

TEST_F(Wrapper, OtherTypesAreThoseOfTheirNames) {
  using barhatch::test::Modules;
  EXPECT_EQ(LettersOf(Type::kCodabar, u"A1B"), 3u * 8 - 1);
  EXPECT_EQ(LettersOf(Type::kCode39, u"1"), 3u * 10 - 1);  // start, 1, stop
  EXPECT_EQ(LettersOf(Type::kCode93, u"1"), 5u * 9 + 1);   // start, 1, C, K, stop
  EXPECT_EQ(LettersOf(Type::kCode93, u"a"), 0u);
  EXPECT_EQ(LettersOf(Type::kCode93FullAscii, u"a"), 6u * 9 + 1);  // a takes two characters
  EXPECT_EQ(LettersOf(Type::kInterleaved2of5, u"12"), 4u + 10 + 3);
  EXPECT_EQ(LettersOf(Type::kMsi, u"12"), 3u + 3 * 12 + 4);  // two digits and the check digit
  EXPECT_EQ(LettersOf(Type::kMsi, u"-"), 0u);
  EXPECT_GT(LettersOf(Type::kCode11, u"-"), 0u);
  EXPECT_EQ(LettersOf(Type::kCode11, u"A"), 0u);
  EXPECT_EQ(StartOf(Type::kCode128FromA), Modules("11010000100"));
  EXPECT_EQ(StartOf(Type::kCode128B), Modules("11010010000"));
  EXPECT_EQ(StartOf(Type::kCode128FromC), Modules("11010011100"));
  EXPECT_EQ(LettersOf(Type::kCode128, u"ab"), LettersOf(Type::kCode128B, u"ab"));
  EXPECT_LT(LettersOf(Type::kCode128, u"123456"), LettersOf(Type::kCode128B, u"123456"));
}

}  // namespace
