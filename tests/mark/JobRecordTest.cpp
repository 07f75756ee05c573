// Numbers of a job that name nothing, that this version does not have or that make no sense: each
// refused with its name.
#include "mark/JobRecord.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>

#include "mark/MarkTesting.h"

namespace barhatch::test {
namespace {

using Change = std::function<void(BarhatchJob&)>;

std::string Changed(BarhatchJob job, const Change& change) {
  change(job);
  const Mark mark(job);
  EXPECT_EQ(mark->position, 0);
  EXPECT_EQ(mark->extent, 0);
  return std::to_string(mark->status) + " " + mark.Message();
}

std::string Linear(const Change& change) {
  return Changed(PublishedJobOf(BARHATCH_CODE_39, "A1"), change);
}

std::string Matrix(const Change& change) {
  return Changed(JobOf(BARHATCH_DATA_MATRIX, "123456"), change);
}

struct FieldName {
  double BarhatchJob::*field;
  const char* name;
};

constexpr FieldName kLengths[] = {{&BarhatchJob::x_dimension, "x_dimension"},
                                  {&BarhatchJob::width, "width"},
                                  {&BarhatchJob::height, "height"},
                                  {&BarhatchJob::ratio, "ratio"},
                                  {&BarhatchJob::gap, "gap"},
                                  {&BarhatchJob::mark_speed, "mark_speed"},
                                  {&BarhatchJob::jump_speed, "jump_speed"},
                                  {&BarhatchJob::stroke_delay, "stroke_delay"},
                                  {&BarhatchJob::jump_delay, "jump_delay"}};

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kMost = std::numeric_limits<double>::max();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

}  // namespace

TEST(JobOptions, SymbologiesThatAreNone) {
  for (const std::int32_t symbology : {-1, 23, 99, 103, 2147483647}) {
    EXPECT_EQ(Linear([&](BarhatchJob& job) { job.symbology = symbology; }),
              "2 symbology " + std::to_string(symbology) + " is none: 0 to 22 and 100 to 102");
  }
}

TEST(JobOptions, ConformancesThatAreNone) {
  EXPECT_EQ(Linear([](BarhatchJob& job) { job.conformance = 2; }),
            "2 conformance 2 is none: 0 and 1");
  EXPECT_EQ(Linear([](BarhatchJob& job) { job.conformance = -1; }),
            "2 conformance -1 is none: 0 and 1");
}

TEST(JobOptions, InputsThatAreNone) {
  for (const std::int32_t input : {6, -1}) {
    EXPECT_EQ(Linear([&](BarhatchJob& job) { job.input = input; }),
              "2 input " + std::to_string(input) + " is none: 0 to 5");
  }
}

TEST(JobOptions, FlagsToCome) {
  for (const std::uint32_t flag : {4096u, 0x80000000u}) {
    EXPECT_EQ(Linear([&](BarhatchJob& job) { job.flags = flag; }),
              "2 a flag is set that this version does not have");
  }
}

TEST(JobOptions, FlagsThatChangeNothingHere) {
  EXPECT_EQ(Linear([](BarhatchJob& job) { job.flags = BARHATCH_NO_PROOF; }), "0 ");
  EXPECT_EQ(Linear([](BarhatchJob& job) { job.flags = BARHATCH_PERMIT; }), "0 ");
}

TEST(JobOptions, WantsThatMeanNothing) {
  EXPECT_EQ(Linear([](BarhatchJob& job) { job.want = 64; }),
            "2 want 64 has bits that mean nothing");
  EXPECT_EQ(Linear([](BarhatchJob& job) { job.want = -1; }),
            "2 want -1 has bits that mean nothing");
  EXPECT_EQ(Linear([](BarhatchJob& job) { job.want = 63; }), "0 ");
}

TEST(JobOptions, PatternsThatAreNone) {
  for (const std::int32_t pattern : {-1, 4, 7}) {
    const Change change = [&](BarhatchJob& job) { job.pattern = pattern; };
    EXPECT_EQ(Linear(change), "2 pattern " + std::to_string(pattern) + " is none: 0 to 3, 5 and 6");
  }
  EXPECT_EQ(Linear([](BarhatchJob& job) {
              job.pattern = 4;
              job.want = BARHATCH_WANT_MODULES;
            }),
            "0 ");
}

TEST(JobOptions, IntegersToCome) {
  struct Row {
    std::int32_t BarhatchJob::*field;
    const char* name;
  };
  for (const Row& row :
       {Row{&BarhatchJob::profile, "profile"},
        Row{&BarhatchJob::dots_per_module, "dots_per_module"}, Row{&BarhatchJob::order, "order"},
        Row{&BarhatchJob::part_reserved, "part_reserved"}}) {
    const std::string refusal =
        std::string("2 ") + row.name + " is not in this version: it must be 0";
    EXPECT_EQ(Linear([&](BarhatchJob& job) { job.*row.field = 1; }), refusal);
    EXPECT_EQ(Matrix([&](BarhatchJob& job) { job.*row.field = -1; }), refusal);
  }
}

TEST(JobOptions, LengthsToCome) {
  for (const FieldName& row :
       {FieldName{&BarhatchJob::units_per_mm, "units_per_mm"},
        FieldName{&BarhatchJob::beam_x, "beam_x"}, FieldName{&BarhatchJob::beam_y, "beam_y"},
        FieldName{&BarhatchJob::growth_x, "growth_x"},
        FieldName{&BarhatchJob::growth_y, "growth_y"}, FieldName{&BarhatchJob::dot, "dot"},
        FieldName{&BarhatchJob::radius, "radius"},
        FieldName{&BarhatchJob::tolerance, "tolerance"}}) {
    for (const double value : {1.0, -1.0, kNan, kInfinity}) {
      EXPECT_EQ(Linear([&](BarhatchJob& job) { job.*row.field = value; }),
                std::string("2 ") + row.name + " is not in this version: it must be 0");
    }
    EXPECT_EQ(Linear([&](BarhatchJob& job) { job.*row.field = -0.0; }), "0 ");
  }
}

// By the book: device marks and linear symbols have none of it.
TEST(JobOptions, OfADataMatrixByTheBook) {
  struct Row {
    std::int32_t BarhatchJob::*field;
    const char* name;
  };
  for (const Row& row : {Row{&BarhatchJob::eci, "eci"}, Row{&BarhatchJob::shape, "shape"},
                         Row{&BarhatchJob::part, "part"}, Row{&BarhatchJob::parts, "parts"},
                         Row{&BarhatchJob::part_id, "part_id"}}) {
    const std::string refusal =
        std::string("2 ") + row.name + " is for Data Matrix by the book: it must be 0";
    EXPECT_EQ(Linear([&](BarhatchJob& job) { job.*row.field = 1; }), refusal);
    EXPECT_EQ(Matrix([&](BarhatchJob& job) { job.*row.field = -1; }), refusal);
  }
  const Change codewords = [](BarhatchJob& job) { job.input = BARHATCH_CODEWORDS; };
  EXPECT_EQ(Linear(codewords), "2 CODEWORDS are for Data Matrix by the book");
  EXPECT_EQ(Matrix(codewords), "2 CODEWORDS are for Data Matrix by the book");
  for (const std::uint32_t flag : {4u, 8u, 16u, 256u, 1024u}) {
    const Change change = [&](BarhatchJob& job) { job.flags = flag; };
    EXPECT_EQ(Linear(change), "2 a flag is set that is for Data Matrix alone");
    EXPECT_EQ(Matrix(change),
              "2 of the flags of Data Matrix a device mark has FNC1_SECOND and MAY_GROW");
  }
}

TEST(JobOptions, OfAMatrixForALinearSymbol) {
  const std::string refusal =
      "2 rows, columns, envelope, FNC1_SECOND and MAY_GROW are for Data Matrix";
  EXPECT_EQ(Linear([](BarhatchJob& job) { job.rows = 10; }), refusal);
  EXPECT_EQ(Linear([](BarhatchJob& job) { job.columns = 10; }), refusal);
  EXPECT_EQ(Linear([](BarhatchJob& job) { job.envelope = 5; }), refusal);
  EXPECT_EQ(Linear([](BarhatchJob& job) { job.flags = BARHATCH_FNC1_SECOND; }), refusal);
  EXPECT_EQ(Linear([](BarhatchJob& job) { job.flags = BARHATCH_MAY_GROW; }), refusal);
}

TEST(JobOptions, OfAMatrix) {
  for (const std::int32_t size : {-1, 256}) {
    EXPECT_EQ(Matrix([&](BarhatchJob& job) { job.rows = size; }),
              "2 rows and columns are 0 to 255");
    EXPECT_EQ(Matrix([&](BarhatchJob& job) { job.columns = size; }),
              "2 rows and columns are 0 to 255");
  }
  EXPECT_EQ(Matrix([](BarhatchJob& job) { job.rows = job.columns = 255; }),
            "11 255x255 is no size");
  for (const std::int32_t envelope : {-1, 1, 4, 7, 12}) {
    EXPECT_EQ(Matrix([&](BarhatchJob& job) { job.envelope = envelope; }),
              "2 envelope " + std::to_string(envelope) + " is none of a device mark: 0, 5 and 6");
  }
  EXPECT_EQ(Matrix([](BarhatchJob& job) {
              job.envelope = 6;
              job.flags = BARHATCH_FNC1_SECOND;
            }),
            "2 an envelope and FNC1_SECOND exclude each other");
}

TEST(JobOptions, APublishedMatrixBeginsWithOneThing) {
  const std::string refusal = "2 a macro envelope, READER_PROGRAMMING and parts exclude each other";
  const auto begun = [](std::int32_t envelope, std::uint32_t flags, std::int32_t parts) {
    return Changed(PublishedJobOf(BARHATCH_DATA_MATRIX, "123456"), [=](BarhatchJob& job) {
      job.envelope = envelope;
      job.flags = flags;
      job.part = parts;
      job.parts = parts;
    });
  };
  for (const std::int32_t envelope : {BARHATCH_ENVELOPE_05, BARHATCH_ENVELOPE_06}) {
    EXPECT_EQ(begun(envelope, BARHATCH_READER_PROGRAMMING, 0), refusal);
    EXPECT_EQ(begun(envelope, 0, 2), refusal);
    EXPECT_EQ(begun(envelope, 0, 0), "0 ");
  }
  for (const std::int32_t envelope : {BARHATCH_ENVELOPE_12, BARHATCH_ENVELOPE_DD}) {
    EXPECT_EQ(begun(envelope, BARHATCH_READER_PROGRAMMING, 0), "0 ") << "data like others";
    EXPECT_EQ(begun(envelope, 0, 2), "0 ");
  }
  EXPECT_EQ(begun(0, BARHATCH_READER_PROGRAMMING, 2), refusal);
}

TEST(JobOptions, Pointers) {
  EXPECT_EQ(Linear([](BarhatchJob& job) { job.release = [](void*, void*) {}; }),
            "2 allocate and release go together");
  EXPECT_EQ(Linear([](BarhatchJob& job) {
              job.allocate = [](void*, std::size_t) -> void* { return nullptr; };
            }),
            "2 allocate and release go together");
  EXPECT_EQ(Linear([](BarhatchJob& job) { job.reserved = &job; }), "2 reserved must be null");
  EXPECT_EQ(Linear([](BarhatchJob& job) {
              job.text = nullptr;
              job.length = 1;
            }),
            "2 text is null, but length is not 0");
}

TEST(JobGeometry, LengthsThatAreNoneAreNamed) {
  for (const FieldName& row : kLengths) {
    for (const double value : {-1.0, -kInfinity, kInfinity, kNan}) {
      const Change change = [&](BarhatchJob& job) { job.*row.field = value; };
      const std::string refusal = std::string("13 ") + row.name + " must be finite and not below 0";
      EXPECT_EQ(Linear(change), refusal);
      EXPECT_EQ(Matrix(change), refusal);
    }
  }
}

// Positions of strokes are multiples of the gap, and lengths are made of their squares.
TEST(JobGeometry, LengthsHaveAnEnd) {
  for (const FieldName& row : kLengths) {
    EXPECT_EQ(Linear([&](BarhatchJob& job) { job.*row.field = 1.1e150; }),
              std::string("13 ") + row.name + " is above 1e150");
    EXPECT_EQ(Linear([&](BarhatchJob& job) { job.*row.field = kMost; }),
              std::string("13 ") + row.name + " is above 1e150");
  }
  EXPECT_EQ(Linear([](BarhatchJob& job) { job.gap = 1e150; }), "0 ");
}

TEST(JobGeometry, QuietZones) {
  for (const double quiet : {kNan, kInfinity, -kInfinity, 1000.5}) {
    EXPECT_EQ(Linear([&](BarhatchJob& job) { job.quiet = quiet; }),
              "13 quiet must be finite and at most 1000 modules");
  }
  EXPECT_EQ(Linear([](BarhatchJob& job) { job.quiet = 1000.0; }), "0 ");
  EXPECT_EQ(Linear([](BarhatchJob& job) { job.quiet = -kMost; }).substr(0, 2), "0 ");
  EXPECT_EQ(Matrix([](BarhatchJob& job) {
              job.quiet = 999.5;
              job.invert = 1;
              job.pattern = BARHATCH_POINTS;
              job.want = BARHATCH_WANT_VALIDATION;
            }).substr(0, 2),
            "0 ");
}

TEST(JobGeometry, GapsOfZeroAreForPointsAlone) {
  EXPECT_EQ(Linear([](BarhatchJob& job) { job.gap = 0.0; }), "13 gap must be finite and above 0");
  BarhatchJob job = PublishedJobOf(BARHATCH_CODE_39, "A1");
  job.gap = 0.0;
  job.pattern = BARHATCH_POINTS;
  EXPECT_TRUE(Mark(job).IsOk());
}

TEST(JobGeometry, OneSizeSaysHowWideAModuleIs) {
  const std::string ofLinear = "13 set x_dimension or width, and not both";
  EXPECT_EQ(Linear([](BarhatchJob& job) { job.width = 10.0; }), ofLinear);
  EXPECT_EQ(Linear([](BarhatchJob& job) { job.x_dimension = 0.0; }), ofLinear);
  const std::string ofMatrix = "13 set one of x_dimension, width and height";
  EXPECT_EQ(Matrix([](BarhatchJob& job) { job.width = 10.0; }), ofMatrix);
  EXPECT_EQ(Matrix([](BarhatchJob& job) { job.height = 10.0; }), ofMatrix);
  EXPECT_EQ(Matrix([](BarhatchJob& job) { job.x_dimension = 0.0; }), ofMatrix);
}

TEST(JobGeometry, BarsHaveAHeight) {
  EXPECT_EQ(Linear([](BarhatchJob& job) { job.height = 0.0; }),
            "13 height must be finite and above 0");
}

TEST(JobGeometry, NoSizeIsNeededWithoutStrokes) {
  EXPECT_EQ(Linear([](BarhatchJob& job) {
              job.want = BARHATCH_WANT_VALIDATION;
              job.x_dimension = job.height = job.gap = 0.0;
            }),
            "0 ");
}

TEST(JobGeometry, GapsThatAskForTooMuch) {
  EXPECT_EQ(Linear([](BarhatchJob& job) { job.gap = 1e-12; }),
            "13 the gap asks for more strokes than a mark can have");
}

}  // namespace barhatch::test
