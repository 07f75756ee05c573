// Element strings of GS1 from the job to the readers: a GS1-128 and a GS1 DataMatrix say that they
// are GS1, and their data is that of the elements with GS between those of variable length.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "ReadTally.h"
#include "ResultPicture.h"
#include "barhatch_mark.h"
#include "support/Raster.h"
#include "support/ReaderOracle.h"
#include "support/SeededTexts.h"

namespace barhatch::test {
namespace {

constexpr double kGap = 0.1;
constexpr double kHeight = 12.0;
constexpr std::size_t kMostCharacters = 48;  // of a GS1-128

const std::string kDigits = "0123456789";
const std::string kAnything =
    "!\"%&'()*+,-./:;<=>?_0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

// A message as a host writes it, as people read it and as readers report it.
struct Message {
  std::string given;
  std::string people;
  std::string data;
};

// GS1 General Specifications: modulo 10, weights 3 and 1 from the right.
std::string WithCheckDigit(const std::string& digits) {
  int sum = 0;
  for (std::size_t i = 0; i < digits.size(); ++i)
    sum += (digits[digits.size() - 1 - i] - '0') * (i % 2 == 0 ? 3 : 1);
  return digits + static_cast<char>('0' + (10 - sum % 10) % 10);
}

std::string Escaped(const std::string& value) {
  std::string escaped;
  for (const char character : value)
    escaped += (character == '(' ? "\\" : "") + std::string(1, character);
  return escaped;
}

class Messages {
 public:
  explicit Messages(std::uint32_t seed) : texts_(seed) {}

  Message Next() {
    Message message;
    bool isOpen = false;
    for (char kind : texts_.Next("0123456", 1, 4)) {
      const Element element = ElementOf(kind);
      if (message.given.find("(" + element.ai + ")") != std::string::npos) continue;
      message.given += "(" + element.ai + ")" + Escaped(element.value);
      message.people += "(" + element.ai + ")" + element.value;
      message.data += (isOpen ? "\x1D" : "") + element.ai + element.value;
      isOpen = element.isOpen;
    }
    return message;
  }

 private:
  struct Element {
    std::string ai;
    std::string value;
    bool isOpen;  // a separator stands behind it
  };

  Element ElementOf(char kind) {
    switch (kind) {
      case '0':
        return {"01", WithCheckDigit(texts_.Next(kDigits, 13, 13)), false};
      case '1':
        return {"17", texts_.Next(kDigits, 2, 2) + "0" + texts_.Next("123456789", 1, 1) + "00",
                false};
      case '2':
        return {"3103", texts_.Next(kDigits, 6, 6), false};
      case '3':
        return {"410", WithCheckDigit(texts_.Next(kDigits, 12, 12)), false};
      case '4':
        return {"21", texts_.Next(kAnything, 1, 20), true};
      case '5':
        return {"402", WithCheckDigit(texts_.Next(kDigits, 16, 16)), true};
      default:
        return {"10", texts_.Next(kAnything, 1, 20), true};
    }
  }

  SeededTexts texts_;
};

BarhatchJob JobOf(std::int32_t symbology, const std::string& text) {
  BarhatchJob job = {};
  job.size = sizeof job;
  job.symbology = symbology;
  job.input = BARHATCH_GS1;
  job.text = text.c_str();
  job.flags = BARHATCH_QUIET_INSIDE;
  job.x_dimension = 1.0;
  if (symbology != BARHATCH_DATA_MATRIX) job.height = kHeight;
  job.gap = kGap;
  return job;
}

void ExpectRead(std::int32_t symbology, const Message& message, ReadTally& tally) {
  const BarhatchJob job = JobOf(symbology, message.given);
  BarhatchResult result = {};
  result.size = sizeof result;
  ASSERT_EQ(BarhatchMark(&job, &result), BARHATCH_OK) << message.given << ": " << result.message;
  EXPECT_EQ(std::string(result.reading, result.reading_length), message.data) << message.given;
  EXPECT_STREQ(result.hri, message.people.c_str());
  const bool isMatrix = symbology == BARHATCH_DATA_MATRIX;
  const auto read = Read(Reader::kZxing, PictureOf(result, kGap),
                         isMatrix ? Format::kDataMatrix : Format::kCode128);
  BarhatchRelease(&result);
  ASSERT_TRUE(read) << message.given;
  EXPECT_EQ(read->text, message.data) << message.given;
  EXPECT_EQ(read->identifier, isMatrix ? "]d2" : "]C1") << message.given;
  tally.Count(isMatrix ? "read_as_d2" : "read_as_C1");
}

}  // namespace

TEST(ElementReadBack, Gs1128SaysWhatItIsAndHasTheElements) {
  if (!HasReader(Reader::kZxing)) GTEST_SKIP() << "built without the reader";
  Messages messages(128);
  ReadTally tally;
  int refused = 0;
  for (int i = 0; i < 400; ++i) {
    const Message message = messages.Next();
    if (message.data.size() <= kMostCharacters) {
      ExpectRead(BARHATCH_CODE_128, message, tally);
      continue;
    }
    const BarhatchJob job = JobOf(BARHATCH_CODE_128, message.given);
    BarhatchResult result = {};
    result.size = sizeof result;
    EXPECT_EQ(BarhatchMark(&job, &result), BARHATCH_TOO_LONG) << message.given;
    ++refused;
  }
  EXPECT_GT(refused, 20);
}

TEST(ElementReadBack, Gs1DataMatrixSaysWhatItIsAndHasTheElements) {
  if (!HasReader(Reader::kZxing)) GTEST_SKIP() << "built without the reader";
  Messages messages(16022);
  ReadTally tally;
  for (int i = 0; i < 400; ++i) ExpectRead(BARHATCH_DATA_MATRIX, messages.Next(), tally);
}

}  // namespace barhatch::test
