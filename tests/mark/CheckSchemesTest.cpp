// Check characters by the book: added, left out or verified, as a job asks for them.
#include <gtest/gtest.h>

#include <string>

#include "mark/MarkTesting.h"

namespace barhatch::test {
namespace {

struct Scheme {
  std::int32_t symbology;
  std::int32_t check;
  const char* text;
  std::uint32_t flags = 0;
};

BarhatchJob JobOf(const Scheme& scheme) {
  BarhatchJob job = PublishedJobOf(scheme.symbology, scheme.text);
  job.check = scheme.check;
  job.flags = scheme.flags;
  return job;
}

// "4 at 3+1 sentence"
std::string RefusalOf(const Scheme& scheme) {
  const Mark mark(JobOf(scheme));
  return PlaceOf(mark) + " " + mark.Message();
}

struct Example {
  Scheme scheme;
  const char* reading;
  const char* hri;
};

void ExpectReadings(const Example& example) {
  const Mark mark(JobOf(example.scheme));
  EXPECT_EQ(mark.Message(), "") << example.scheme.text;
  EXPECT_EQ(mark->warnings, 0u) << example.scheme.text;
  EXPECT_EQ(mark.Reading(), example.reading) << example.scheme.text;
  EXPECT_STREQ(mark->hri, example.hri) << example.scheme.text;
}

constexpr std::int32_t kItf = BARHATCH_INTERLEAVED_2_OF_5;

}  // namespace

// The worked examples of the public descriptions.
TEST(CheckSchemes, PublishedExamplesHaveTheirCheckCharacters) {
  const Example examples[] = {
      {{BARHATCH_CODE_39, BARHATCH_CHECK_MOD_43, "ABC-123"}, "ABC-123W", "ABC-123W"},
      {{BARHATCH_CODE_39_FULL, BARHATCH_CHECK_MOD_43, "ABC-123"}, "ABC-123", "ABC-123W"},
      {{BARHATCH_CODABAR, BARHATCH_CHECK_MOD_16, "A1234B"}, "12345", "12345"},
      {{kItf, BARHATCH_CHECK_ITF_10, "12345"}, "123457", "123457"},
      {{BARHATCH_MSI, BARHATCH_MSI_10, "1234567"}, "1234567", "12345674"},
      {{BARHATCH_MSI, BARHATCH_MSI_10_10, "1234567"}, "1234567", "123456741"},
      {{BARHATCH_MSI, BARHATCH_MSI_11, "1234567"}, "1234567", "12345674"},
      {{BARHATCH_MSI, BARHATCH_MSI_11_10, "1234567"}, "1234567", "123456741"},
      {{BARHATCH_MSI, BARHATCH_MSI_NCR_11, "1234567"}, "1234567", "12345679"},
      {{BARHATCH_MSI, BARHATCH_MSI_NCR_11_10, "1234567"}, "1234567", "123456790"},
      {{BARHATCH_CODE_11, BARHATCH_CODE_11_C, "123-45"}, "123-45", "123-455"},
      {{BARHATCH_CODE_11, BARHATCH_CODE_11_CK, "12345678901"}, "12345678901", "123456789014-"},
      {{BARHATCH_ITF_14, BARHATCH_CHECK_OWN, "1540014128876"}, "15400141288763", "15400141288763"},
  };
  for (const Example& example : examples) ExpectReadings(example);
}

TEST(CheckSchemes, OwnOnesAreTheUsualOnes) {
  const Example examples[] = {
      {{BARHATCH_CODE_39, BARHATCH_CHECK_OWN, "ABC-123"}, "ABC-123", "ABC-123"},
      {{BARHATCH_CODE_39_FULL, BARHATCH_CHECK_OWN, "abc"}, "abc", "abc"},
      {{BARHATCH_CODABAR, BARHATCH_CHECK_OWN, "A1234B"}, "1234", "1234"},
      {{kItf, BARHATCH_CHECK_OWN, "123456"}, "123456", "123456"},
      {{BARHATCH_MSI, BARHATCH_CHECK_OWN, "1234567"}, "1234567", "12345674"},
      {{BARHATCH_CODE_11, BARHATCH_CHECK_OWN, "123-45"}, "123-45", "123-455"},
      {{BARHATCH_CODE_11, BARHATCH_CHECK_OWN, "1234567890"}, "1234567890", "12345678901"},
      {{BARHATCH_CODE_11, BARHATCH_CHECK_OWN, "12345678901"}, "12345678901", "123456789014-"},
  };
  for (const Example& example : examples) ExpectReadings(example);
}

TEST(CheckSchemes, NoneLeavesThemOut) {
  const Example examples[] = {
      {{BARHATCH_CODE_39, BARHATCH_CHECK_NONE, "ABC-123"}, "ABC-123", "ABC-123"},
      {{BARHATCH_CODE_39_FULL, BARHATCH_CHECK_NONE, "a+b"}, "a+b", "a+b"},
      {{BARHATCH_CODABAR, BARHATCH_CHECK_NONE, "A1234B"}, "1234", "1234"},
      {{kItf, BARHATCH_CHECK_NONE, "123456"}, "123456", "123456"},
      {{BARHATCH_MSI, BARHATCH_CHECK_NONE, "1234567"}, "1234567", "1234567"},
      {{BARHATCH_CODE_11, BARHATCH_CHECK_NONE, "123-45"}, "123-45", "123-45"},
  };
  for (const Example& example : examples) ExpectReadings(example);
}

TEST(CheckSchemes, VerifiedOnesAreThoseOfTheText) {
  const Example examples[] = {
      {{BARHATCH_CODE_39, BARHATCH_CHECK_VERIFY, "ABC-123W"}, "ABC-123W", "ABC-123W"},
      {{BARHATCH_CODE_39_FULL, BARHATCH_CHECK_VERIFY, "ABC-123W"}, "ABC-123", "ABC-123W"},
      {{BARHATCH_CODABAR, BARHATCH_CHECK_VERIFY, "A12345B"}, "12345", "12345"},
      {{kItf, BARHATCH_CHECK_VERIFY, "123457"}, "123457", "123457"},
      {{BARHATCH_MSI, BARHATCH_CHECK_VERIFY, "12345674"}, "1234567", "12345674"},
      {{BARHATCH_CODE_11, BARHATCH_CHECK_VERIFY, "123-455"}, "123-45", "123-455"},
      {{BARHATCH_CODE_11, BARHATCH_CHECK_VERIFY, "123456789014-"}, "12345678901", "123456789014-"},
      {{BARHATCH_ITF_14, BARHATCH_CHECK_VERIFY, "15400141288763"},
       "15400141288763",
       "15400141288763"},
      {{BARHATCH_ITF_14, BARHATCH_CHECK_OWN, "15400141288763"}, "15400141288763", "15400141288763"},
  };
  for (const Example& example : examples) ExpectReadings(example);
}

TEST(CheckSchemes, AWrongOneIsRefusedWithTheRightOne) {
  EXPECT_EQ(RefusalOf({BARHATCH_CODE_39, BARHATCH_CHECK_VERIFY, "ABC-123X"}),
            "6 at 8+1 check character X at 8 should be W");
  EXPECT_EQ(RefusalOf({BARHATCH_CODE_39, BARHATCH_CHECK_VERIFY, "AS0"}),
            "6 at 3+1 check character 0 at 3 should be 0x20");  // 10 + 28 = 38
  EXPECT_EQ(RefusalOf({BARHATCH_CODE_39_FULL, BARHATCH_CHECK_VERIFY, "ABC-123\x01"}),
            "6 at 8+1 check character 0x01 at 8 should be W");
  EXPECT_EQ(RefusalOf({BARHATCH_CODABAR, BARHATCH_CHECK_VERIFY, "A12346B"}),
            "6 at 6+1 check digit 6 at 6 should be 5");
  EXPECT_EQ(RefusalOf({kItf, BARHATCH_CHECK_VERIFY, "123458"}),
            "6 at 6+1 check digit 8 at 6 should be 7");
  EXPECT_EQ(RefusalOf({BARHATCH_MSI, BARHATCH_CHECK_VERIFY, "12345675"}),
            "6 at 8+1 check digit 5 at 8 should be 4");
  EXPECT_EQ(RefusalOf({BARHATCH_CODE_11, BARHATCH_CHECK_VERIFY, "123-456"}),
            "6 at 7+1 check digit 6 at 7 should be 5");
  EXPECT_EQ(RefusalOf({BARHATCH_CODE_11, BARHATCH_CHECK_VERIFY, "123456789015-"}),
            "6 at 12+1 check digit 5 at 12 should be 4");
  EXPECT_EQ(RefusalOf({BARHATCH_CODE_11, BARHATCH_CHECK_VERIFY, "1234567890140"}),
            "6 at 13+1 check character 0 at 13 should be -");
  EXPECT_EQ(RefusalOf({BARHATCH_ITF_14, BARHATCH_CHECK_OWN, "15400141288766"}),
            "6 at 14+1 check digit 6 at 14 should be 3");
}

TEST(CheckSchemes, ACheckOfTenIsRefused) {
  for (const std::int32_t check :
       {BARHATCH_MSI_11, BARHATCH_MSI_11_10, BARHATCH_MSI_NCR_11, BARHATCH_MSI_NCR_11_10}) {
    EXPECT_EQ(RefusalOf({BARHATCH_MSI, check, "6"}),
              "6 at 0+0 the check digit modulo 11 of this text would be 10: it has none");
  }
}

TEST(CheckSchemes, ACheckCharacterAloneIsNoText) {
  EXPECT_EQ(RefusalOf({BARHATCH_MSI, BARHATCH_CHECK_VERIFY, "0"}),
            "5 at 0+0 MSI needs a character in front of the check character");
  EXPECT_EQ(RefusalOf({BARHATCH_CODE_39, BARHATCH_CHECK_VERIFY, "0"}).substr(0, 16),
            "5 at 0+0 Code 39");
  EXPECT_EQ(RefusalOf({BARHATCH_CODE_39_FULL, BARHATCH_CHECK_VERIFY, "0"}).substr(0, 16),
            "5 at 0+0 Code 39");
  EXPECT_EQ(RefusalOf({BARHATCH_CODE_11, BARHATCH_CHECK_VERIFY, "0"}).substr(0, 16),
            "5 at 0+0 Code 11");
  EXPECT_EQ(RefusalOf({kItf, BARHATCH_CHECK_VERIFY, "0"}).substr(0, 20), "5 at 0+0 Interleaved");
  EXPECT_EQ(RefusalOf({BARHATCH_CODABAR, BARHATCH_CHECK_VERIFY, "A0A"}).substr(0, 16),
            "5 at 0+0 Codabar");
}

TEST(CheckSchemes, NumbersOfCharactersThatNoCheckFits) {
  EXPECT_EQ(RefusalOf({BARHATCH_CODE_11, BARHATCH_CHECK_VERIFY, "123456789022"}),
            "5 at 0+0 12 characters are none with check characters of Code 11");
  EXPECT_EQ(RefusalOf({BARHATCH_ITF_14, BARHATCH_CHECK_VERIFY, "1540014128876"}),
            "5 at 0+0 13 characters are none with check characters of ITF-14");
  EXPECT_EQ(RefusalOf({BARHATCH_ITF_14, BARHATCH_CHECK_OWN, "154001412887"}),
            "5 at 0+0 ITF-14 takes 13 or 14 digits, 12 given");
  EXPECT_EQ(RefusalOf({BARHATCH_ITF_14, BARHATCH_CHECK_OWN, "154001412887633"}),
            "5 at 0+0 ITF-14 takes 13 or 14 digits, 15 given");
}

// What is not in the symbology is refused at its place, whatever the scheme.
TEST(CheckSchemes, CharactersAreRefusedAtTheirPlace) {
  const Scheme schemes[] = {
      {BARHATCH_CODE_39, BARHATCH_CHECK_MOD_43, "AB*C"},
      {BARHATCH_CODE_39, BARHATCH_CHECK_VERIFY, "AB*C"},
      {BARHATCH_CODE_39_FULL, BARHATCH_CHECK_MOD_43, "ab\xC3\xA9"},
      {BARHATCH_CODABAR, BARHATCH_CHECK_MOD_16, "A1x2A"},
      {BARHATCH_CODABAR, BARHATCH_CHECK_MOD_16, "12x3", BARHATCH_ADD_START_STOP},
      {BARHATCH_CODABAR, BARHATCH_CHECK_OWN, "12B3", BARHATCH_ADD_START_STOP},
      {kItf, BARHATCH_CHECK_ITF_10, "12x"},
      {BARHATCH_ITF_14, BARHATCH_CHECK_OWN, "12-3456789012"},
      {BARHATCH_MSI, BARHATCH_MSI_11_10, "12x4"},
      {BARHATCH_MSI, BARHATCH_CHECK_NONE, "12x4"},
      {BARHATCH_CODE_11, BARHATCH_CODE_11_CK, "1-x"},
  };
  for (const Scheme& scheme : schemes) {
    EXPECT_EQ(RefusalOf(scheme).substr(0, 7), "4 at 3+") << scheme.text;
  }
}

TEST(CheckSchemes, TheEmptyTextIsRefused) {
  constexpr std::int32_t kSymbologies[] = {BARHATCH_CODE_39, BARHATCH_CODE_39_FULL,
                                           BARHATCH_CODABAR, BARHATCH_MSI,
                                           BARHATCH_CODE_11, kItf,
                                           BARHATCH_ITF_14};
  for (const std::int32_t symbology : kSymbologies) {
    EXPECT_EQ(RefusalOf({symbology, BARHATCH_CHECK_OWN, ""}).substr(0, 8), "3 at 0+0") << symbology;
    EXPECT_EQ(RefusalOf({symbology, BARHATCH_CHECK_VERIFY, ""}).substr(0, 8), "3 at 0+0")
        << symbology;
  }
}

// Every symbology with the schemes that it has; all other numbers are none.
TEST(CheckSchemes, OfAnotherSymbologyAreRefused) {
  struct Row {
    std::int32_t symbology;
    const char* text;
    std::string checks;
  };
  const Row rows[] = {
      {BARHATCH_CODABAR, "A12A", "0 1 4 "},
      {BARHATCH_CODE_39, "12", "0 1 3 "},
      {BARHATCH_CODE_93, "12", "0 "},
      {BARHATCH_MSI, "12", "0 1 6 7 8 9 10 11 "},
      {BARHATCH_CODE_128, "12", "0 "},
      {BARHATCH_CODE_11, "12", "0 1 12 13 "},
      {kItf, "12", "0 1 5 "},
      {BARHATCH_CODE_93_FULL, "12", "0 "},
      {BARHATCH_ITF_14, "1540014128876", "0 "},
      {BARHATCH_CODE_39_FULL, "12", "0 1 3 "},
  };
  for (const Row& row : rows) {
    std::string taken;
    for (std::int32_t check = -2; check < 40; ++check) {
      if (check == BARHATCH_CHECK_VERIFY) continue;  // of a text with check characters
      const Mark mark(JobOf({row.symbology, check, row.text}));
      if (mark.IsOk()) {
        taken += std::to_string(check) + " ";
        continue;
      }
      EXPECT_EQ(mark->status, BARHATCH_BAD_OPTION);
      EXPECT_EQ(mark.Message(), "check " + std::to_string(check) + " is not a scheme of " +
                                    std::string(mark->name));
    }
    EXPECT_EQ(taken, row.checks) << row.symbology;
  }
}

TEST(CheckSchemes, OfTheDeviceAreItsOwn) {
  for (const std::int32_t symbology : {0, 1, 4, 11, 21, 100}) {
    BarhatchJob job = PlainJobOf(symbology);
    job.check = BARHATCH_CHECK_NONE;
    const Mark mark(job);
    EXPECT_EQ(mark->status, BARHATCH_BAD_OPTION);
    EXPECT_EQ(mark.Message(), "check 1 is not a scheme of the device");
  }
}

TEST(CheckSchemes, ItIsNoTypeOfTheDevice) {
  BarhatchJob job = PublishedJobOf(BARHATCH_ITF_14, "1540014128876");
  job.conformance = BARHATCH_DEVICE;
  EXPECT_EQ(Mark(job).Message(),
            "ITF-14 is no type of the device; conformance PUBLISHED writes it");
  job.symbology = BARHATCH_CODE_39_FULL;
  EXPECT_EQ(Mark(job)->status, BARHATCH_BAD_OPTION);
}

TEST(CheckSchemes, StartAndStopAreAddedToCodabarThatHasNone) {
  constexpr std::uint32_t kAdd = BARHATCH_ADD_START_STOP;
  const Example examples[] = {
      {{BARHATCH_CODABAR, BARHATCH_CHECK_OWN, "1234", kAdd}, "1234", "1234"},
      {{BARHATCH_CODABAR, BARHATCH_CHECK_OWN, "7", kAdd}, "7", "7"},
      {{BARHATCH_CODABAR, BARHATCH_CHECK_OWN, "C1234D", kAdd}, "1234", "1234"},
      {{BARHATCH_CODABAR, BARHATCH_CHECK_MOD_16, "1234", kAdd}, "12346", "12346"},
      {{BARHATCH_CODABAR, BARHATCH_CHECK_VERIFY, "12346", kAdd}, "12346", "12346"},
  };
  for (const Example& example : examples) ExpectReadings(example);
  const Mark added(JobOf({BARHATCH_CODABAR, BARHATCH_CHECK_OWN, "7", kAdd}));
  EXPECT_EQ(std::string(added->values, added->values + added->values_count), "\x10\x07\x10");
}

TEST(CheckSchemes, StartAndStopAreAddedTogetherOrNotAtAll) {
  constexpr std::uint32_t kAdd = BARHATCH_ADD_START_STOP;
  EXPECT_EQ(RefusalOf({BARHATCH_CODABAR, BARHATCH_CHECK_OWN, "A1234", kAdd}),
            "7 at 5+1 stop character missing at 5");
  EXPECT_EQ(RefusalOf({BARHATCH_CODABAR, BARHATCH_CHECK_OWN, "1234A", kAdd}),
            "7 at 1+1 start character missing at 1");
  EXPECT_EQ(RefusalOf({BARHATCH_CODABAR, BARHATCH_CHECK_OWN, "12A34", kAdd}),
            "4 at 3+1 character 3 (0x41 'A') starts or stops Codabar: not inside");
  EXPECT_EQ(RefusalOf({BARHATCH_CODABAR, BARHATCH_CHECK_VERIFY, "12345", kAdd}),
            "6 at 5+1 check digit 5 at 5 should be 6");
  EXPECT_EQ(RefusalOf({BARHATCH_CODE_39, BARHATCH_CHECK_OWN, "A", kAdd}),
            "2 at 0+0 ADD_START_STOP is for Codabar by the book");
}

TEST(CheckSchemes, TheCheckDigitCountsAmongThePairs) {
  const Mark even(JobOf({kItf, BARHATCH_CHECK_ITF_10, "1234567"}));
  EXPECT_EQ(even->warnings, 0u);
  const Mark odd(JobOf({kItf, BARHATCH_CHECK_ITF_10, "123456"}));
  EXPECT_EQ(odd->warnings, static_cast<std::uint32_t>(BARHATCH_W_LEADING_ZERO));
  EXPECT_EQ(odd.Reading(), "01234565");  // 6x3 + 5 + 4x3 + 3 + 2x3 + 1 = 45
}

TEST(CheckSchemes, ReadingIsNothingThatTheJobDoesNotWant) {
  BarhatchJob job = JobOf({BARHATCH_MSI, BARHATCH_MSI_10_10, "1234567"});
  job.want = BARHATCH_WANT_VALUES;
  const Mark mark(job);
  EXPECT_EQ(mark->hri, nullptr);
  EXPECT_EQ(mark->reading, nullptr);
  EXPECT_EQ(mark->values_count, 9u);
}

TEST(CheckSchemes, TheLongestTextGetsItsCheckCharacters) {
  const std::string digits(3119, '9');
  BarhatchJob job = PublishedJobOf(BARHATCH_MSI, digits.c_str());
  job.check = BARHATCH_MSI_10_10;
  job.want = BARHATCH_WANT_READING;
  const Mark msi(job);
  EXPECT_EQ(msi.Reading(), digits);
  EXPECT_EQ(std::string(msi->hri).size(), 3121u);
  const std::string text(3114, '\x7F');  // each a pair
  job = PublishedJobOf(BARHATCH_CODE_39_FULL, text.c_str());
  job.check = BARHATCH_CHECK_MOD_43;
  job.want = BARHATCH_WANT_READING;
  EXPECT_EQ(Mark(job).Reading(), text);
}

}  // namespace barhatch::test
