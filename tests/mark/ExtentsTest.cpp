// How large a mark is and where it lies: by hand, in modules of the standard's own numbers.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "mark/MarkTesting.h"

namespace barhatch::test {
namespace {

std::string Of(const double (&extents)[4]) {
  std::string text;
  for (const double extent : extents) {
    std::string number = std::to_string(extent);
    number.erase(number.find_last_not_of('0') + 1);
    if (number.back() == '.') number.pop_back();
    text += (text.empty() ? "" : " ") + number;
  }
  return text;
}

// "symbol; total": left, bottom, right, top.
std::string ExtentsOf(const BarhatchJob& job) {
  const Mark mark(job);
  EXPECT_TRUE(mark.IsOk()) << mark.Message();
  return Of(mark->symbol) + "; " + Of(mark->total);
}

struct Box {
  double left = 1e9;
  double bottom = 1e9;
  double right = -1e9;
  double top = -1e9;
};

Box BoxOf(const BarhatchJob& job) {
  const Mark mark(job);
  Box box;
  for (std::size_t i = 0; i + 1 < mark.Doubles(); i += 2) {
    const double x = mark->strokes[i];
    const double y = mark->strokes[i + 1];
    if (x < box.left) box.left = x;
    if (x > box.right) box.right = x;
    if (y < box.bottom) box.bottom = y;
    if (y > box.top) box.top = y;
  }
  return box;
}

// EAN-8 has 67 modules and 7 light ones on each side.
BarhatchJob Ean8() { return PublishedJobOf(BARHATCH_EAN_8, "9638507"); }

// 10 x 10 modules and 1 light one on each side.
BarhatchJob Matrix10() {
  BarhatchJob job = JobOf(BARHATCH_DATA_MATRIX, "123456");
  job.gap = 0.25;
  return job;
}

BarhatchJob Sized(BarhatchJob job, double x, double width, double height) {
  job.x_dimension = x;
  job.width = width;
  job.height = height;
  return job;
}

BarhatchJob Inside(BarhatchJob job) {
  job.flags |= BARHATCH_QUIET_INSIDE;
  return job;
}

BarhatchJob Inverted(BarhatchJob job) {
  job.invert = 1;
  return job;
}

}  // namespace

TEST(Extents, OfALinearSymbolWithItsQuietZoneAround) {
  EXPECT_EQ(ExtentsOf(Ean8()), "0 0 67 8; -7 0 74 8");
  EXPECT_EQ(ExtentsOf(Sized(Ean8(), 0.0, 134.0, 20.0)), "0 0 134 20; -14 0 148 20");
}

TEST(Extents, OfALinearSymbolWithItsQuietZoneInside) {
  EXPECT_EQ(ExtentsOf(Inside(Ean8())), "7 0 74 8; 0 0 81 8");
  EXPECT_EQ(ExtentsOf(Inside(Sized(Ean8(), 0.0, 162.0, 20.0))), "14 0 148 20; 0 0 162 20");
}

TEST(Extents, OfASymbolWithSidesOfItsOwn) {
  const BarhatchJob ean13 = PublishedJobOf(BARHATCH_EAN_13, "950110153100");
  EXPECT_EQ(ExtentsOf(ean13), "0 0 95 8; -11 0 102 8");
  EXPECT_EQ(ExtentsOf(Inside(ean13)), "11 0 106 8; 0 0 113 8");
}

TEST(Extents, OfAMatrix) {
  EXPECT_EQ(ExtentsOf(Matrix10()), "0 0 10 10; -1 -1 11 11");
  EXPECT_EQ(ExtentsOf(Inside(Matrix10())), "1 1 11 11; 0 0 12 12");
  EXPECT_EQ(ExtentsOf(Sized(Matrix10(), 0.0, 0.0, 20.0)), "0 0 20 20; -2 -2 22 22");
  EXPECT_EQ(ExtentsOf(Inside(Sized(Matrix10(), 0.0, 0.0, 24.0))), "2 2 22 22; 0 0 24 24");
  EXPECT_EQ(ExtentsOf(Sized(Matrix10(), 0.0, 20.0, 0.0)), "0 0 20 20; -2 -2 22 22");
}

TEST(Extents, OfARectangleByEitherSide) {
  BarhatchJob job = Matrix10();
  job.rows = 8;
  job.columns = 18;
  EXPECT_EQ(ExtentsOf(Sized(job, 0.0, 36.0, 0.0)), "0 0 36 16; -2 -2 38 18");
  EXPECT_EQ(ExtentsOf(Sized(job, 0.0, 0.0, 16.0)), "0 0 36 16; -2 -2 38 18");
  EXPECT_EQ(ExtentsOf(Inside(Sized(job, 0.0, 40.0, 0.0))), "2 2 38 18; 0 0 40 20");
}

TEST(Extents, OfAQuietZoneOfOnesOwn) {
  BarhatchJob job = Ean8();
  job.quiet = 9.25;
  EXPECT_EQ(ExtentsOf(job), "0 0 67 8; -10 0 77 8") << "fractions are rounded up";
  job.quiet = -1.0;
  EXPECT_EQ(ExtentsOf(job), "0 0 67 8; 0 0 67 8");
  BarhatchJob matrix = Matrix10();
  matrix.quiet = 3.0;
  EXPECT_EQ(ExtentsOf(matrix), "0 0 10 10; -3 -3 13 13");
}

// Codabar "A1B": two wide elements in 1, three in A and B, 21 elements and two gaps.
TEST(Extents, OfWideElements) {
  BarhatchJob job = PublishedJobOf(BARHATCH_CODABAR, "A1B");
  EXPECT_EQ(ExtentsOf(job), "0 0 39 8; -10 0 49 8");
  job.ratio = 2.5;
  EXPECT_EQ(ExtentsOf(job), "0 0 35 8; -10 0 45 8");
}

TEST(Extents, ModuleIsGivenOrFollows) {
  EXPECT_EQ(Mark(Ean8())->x_dimension, 1.0);
  EXPECT_EQ(Mark(Sized(Ean8(), 0.0, 134.0, 20.0))->x_dimension, 2.0);
  EXPECT_EQ(Mark(Inside(Sized(Ean8(), 0.0, 162.0, 20.0)))->x_dimension, 2.0);
  EXPECT_EQ(Mark(Inside(Sized(Matrix10(), 0.0, 0.0, 24.0)))->x_dimension, 2.0);
}

TEST(Extents, NarrowestElementIsAModuleOrAWideOne) {
  BarhatchJob job = Sized(PublishedJobOf(BARHATCH_CODE_39, "A1"), 2.0, 0.0, 8.0);
  EXPECT_EQ(Mark(job)->narrowest, 2.0);
  job.ratio = 0.5;
  EXPECT_EQ(Mark(job)->narrowest, 1.0);
  BarhatchJob ean = Ean8();
  ean.ratio = 0.5;
  EXPECT_EQ(Mark(ean)->narrowest, 1.0) << "it has no wide elements";
}

TEST(Extents, StrokesReachToTheSidesOfTheSymbol) {
  const Box around = BoxOf(Ean8());
  EXPECT_EQ(around.left, 0.0);
  EXPECT_EQ(around.right, 67.0);
  const Box inside = BoxOf(Inside(Ean8()));
  EXPECT_EQ(inside.left, 7.0);
  EXPECT_EQ(inside.right, 74.0);
  const Box matrix = BoxOf(Inside(Matrix10()));
  EXPECT_EQ(matrix.left, 1.0);
  EXPECT_EQ(matrix.bottom, 1.0);
  EXPECT_EQ(matrix.right, 11.0);
}

TEST(Extents, InvertedMarksHaveTheirQuietZoneMarked) {
  const Box around = BoxOf(Inverted(Ean8()));
  EXPECT_EQ(around.left, -7.0);
  EXPECT_EQ(around.right, 74.0);
  EXPECT_EQ(ExtentsOf(Inverted(Ean8())), ExtentsOf(Ean8()));
  const Box inside = BoxOf(Inside(Inverted(Ean8())));
  EXPECT_EQ(inside.left, 0.0);
  EXPECT_EQ(inside.right, 81.0);
  const Box matrix = BoxOf(Inverted(Matrix10()));
  EXPECT_EQ(matrix.left, -1.0);
  EXPECT_EQ(matrix.bottom, -1.0);
  EXPECT_EQ(matrix.right, 11.0);
  EXPECT_EQ(matrix.top, 10.75);
}

// Nothing is moved and moved back, which would round twice.
TEST(Extents, QuietZonesThatAreNotMarkedLeaveTheStrokesAlone) {
  for (const std::int32_t symbology : kMarkSymbologies) {
    BarhatchJob job = PlainJobOf(symbology);
    job.x_dimension = 0.1;
    job.gap = 0.03;
    const Mark standard(job);
    job.quiet = -1.0;
    const Mark none(job);
    ASSERT_EQ(standard.Doubles(), none.Doubles());
    EXPECT_EQ(std::memcmp(standard->strokes, none->strokes, sizeof(double) * none.Doubles()), 0)
        << symbology;
  }
}

TEST(Extents, InvertedMarksWithoutAQuietZoneStayWithinTheSymbol) {
  BarhatchJob job = Inverted(Ean8());
  job.quiet = -1.0;
  const Box box = BoxOf(job);
  EXPECT_EQ(box.left, 3.0 - 2.0) << "the first space of 101";
  EXPECT_EQ(box.right, 66.0);
}

// The same strokes, moved: a quiet zone around an inverted mark is that of one inside.
TEST(Extents, QuietZonesAroundAreThoseInsideMovedToTheOrigin) {
  for (const std::int32_t symbology : kMarkSymbologies) {
    BarhatchJob around = Inverted(PlainJobOf(symbology));
    around.x_dimension = 2.0;
    const Mark inside(Inside(around));
    const Mark moved(around);
    ASSERT_EQ(inside.Doubles(), moved.Doubles());
    for (std::size_t i = 0; i < moved.Doubles(); ++i) {
      const double shift = i % 2 == 0 ? inside->symbol[0] : inside->symbol[1];
      ASSERT_EQ(moved->strokes[i], inside->strokes[i] - shift) << symbology;
    }
  }
}

TEST(Extents, WithoutStrokesAreThereWhereASizeIs) {
  BarhatchJob job = Ean8();
  job.want = BARHATCH_WANT_VALIDATION;
  job.gap = 0.0;
  EXPECT_EQ(ExtentsOf(job), "0 0 67 8; -7 0 74 8");
  for (const BarhatchJob& without : {Sized(job, 0.0, 0.0, 0.0), Sized(job, 1.0, 0.0, 0.0),
                                     Sized(job, 0.0, 0.0, 8.0), Sized(job, 1.0, 1.0, 8.0)}) {
    EXPECT_EQ(ExtentsOf(without), "0 0 0 0; 0 0 0 0");
  }
}

TEST(Extents, BeyondTheNumbersAreNoGeometry) {
  const char* const sentence = "the symbol is too large or too small to be marked";
  const BarhatchJob jobs[] = {Sized(Ean8(), 1e150, 0.0, 8.0), Sized(Ean8(), 1e149, 0.0, 8.0),
                              Sized(Ean8(), 0.0, 1e-322, 8.0), Sized(Matrix10(), 1e150, 0.0, 0.0),
                              Sized(Matrix10(), 0.0, 0.0, 5e-324)};
  for (BarhatchJob job : jobs) {
    for (const std::int32_t want : {0, 1}) {
      job.pattern = BARHATCH_POINTS;
      job.want = want;
      const Mark mark(job);
      EXPECT_EQ(mark->status, BARHATCH_BAD_GEOMETRY);
      EXPECT_EQ(mark.Message(), sentence);
    }
  }
}

TEST(Extents, OfWideElementsWithoutAnyWidthAreNoGeometry) {
  BarhatchJob job = Sized(PublishedJobOf(BARHATCH_CODE_39, "A1"), 1e-150, 0.0, 8.0);
  job.ratio = 1e-200;
  job.pattern = BARHATCH_POINTS;
  EXPECT_EQ(Mark(job)->status, BARHATCH_BAD_GEOMETRY);
  job.ratio = 1e-100;
  EXPECT_EQ(Mark(job)->status, BARHATCH_OK);
}

TEST(Extents, UpToTheirLimitAreMarkable) {
  BarhatchJob job = Sized(Ean8(), 1.0, 0.0, 1e150);
  job.pattern = BARHATCH_POINTS;
  EXPECT_EQ(Mark(job)->status, BARHATCH_OK);
  EXPECT_EQ(Mark(job)->total[3], 1e150);
}

TEST(Extents, FarOutButMarkable) {
  for (BarhatchJob job : {Sized(Ean8(), 1e148, 0.0, 8.0), Sized(Ean8(), 1e-300, 0.0, 1e-300)}) {
    job.pattern = BARHATCH_POINTS;
    const Mark mark(job);
    EXPECT_TRUE(mark.IsOk()) << mark.Message();
    EXPECT_LT(mark->jump_length, 1e160);
  }
}

}  // namespace barhatch::test
