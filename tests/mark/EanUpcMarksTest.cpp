// Marks of EAN and UPC by the book: what their texts may be, what readers report of them, and the
// gap and the quiet zone of an add-on.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "mark/MarkTesting.h"
#include "support/EanUpcReader.h"
#include "support/SeededTexts.h"

namespace barhatch::test {
namespace {

const std::string kDigits = "0123456789";

// The text outlives it.
BarhatchJob EanUpcJob(std::int32_t symbology, const std::string& text) {
  BarhatchJob job = PublishedJobOf(symbology, text.c_str());
  job.flags = BARHATCH_PERMIT;
  return job;
}

std::string LettersOf(const Mark& mark) {
  std::string letters;
  for (std::int32_t i = 0; i < mark->columns; ++i) letters += mark->modules[i] != 0 ? 'A' : 'a';
  return letters;
}

// What readers report; every reading has to be without a warning and the same beside the symbol.
std::string Reading(std::int32_t symbology, const std::string& text) {
  const Mark mark(EanUpcJob(symbology, text));
  EXPECT_EQ(mark.Message(), "");
  EXPECT_EQ(mark->warnings, 0u);
  if (!mark.IsOk()) return "";
  EXPECT_STREQ(mark->hri, mark->reading);
  return mark.Reading();
}

TEST(EanUpcMarks, ReadersReportTheCheckDigitAndTheAddonBehindASpace) {
  for (const char* text : {"950110153000", "9501101530003"}) {
    EXPECT_EQ(Reading(3, text), "9501101530003");
    EXPECT_EQ(Reading(3, text + std::string("+12")), "9501101530003 12");
    EXPECT_EQ(Reading(15, text + std::string("12")), "9501101530003 12");
    EXPECT_EQ(Reading(15, text + std::string("+12")), "9501101530003 12");
    EXPECT_EQ(Reading(16, text + std::string("52495")), "9501101530003 52495");
    EXPECT_EQ(Reading(3, text + std::string("+52495")), "9501101530003 52495");
  }
  for (const char* text : {"03600029145", "036000291452"}) {
    EXPECT_EQ(Reading(9, text), "036000291452");
    EXPECT_EQ(Reading(9, text + std::string("+12")), "036000291452 12");
    EXPECT_EQ(Reading(13, text + std::string("12")), "036000291452 12");
    EXPECT_EQ(Reading(14, text + std::string("+52495")), "036000291452 52495");
  }
  for (const char* text : {"9638507", "96385074"}) {
    EXPECT_EQ(Reading(12, text), "96385074");
    EXPECT_EQ(Reading(12, text + std::string("+12")), "96385074 12");
    EXPECT_EQ(Reading(18, text + std::string("52495")), "96385074 52495");
  }
  for (const char* text : {"425261", "0425261", "04252614", "04210000526", "042100005264"}) {
    EXPECT_EQ(Reading(10, text), "04252614");
    EXPECT_EQ(Reading(10, text + std::string("+12")), "04252614 12");
    EXPECT_EQ(Reading(20, text + std::string("+52495")), "04252614 52495");
  }
  EXPECT_EQ(Reading(10, "142100005261"), "14252611");
}

// The digits of a symbol of the type without add-on, in a form of its own.
std::string RandomMain(SeededTexts& texts, std::int32_t plain) {
  static const std::string kForms[] = {"425261", "0127892", "01234000005", "07800000012"};
  const std::string check = texts.Next("01", 1, 1);
  std::string main;
  if (plain == BARHATCH_UPC_E) {
    main = texts.Next("0123", 1, 1) == "0"
               ? kForms[texts.Next(kDigits, 1, 1)[0] % 4]
               : "0" + texts.Next(kDigits, 5, 5) + texts.Next("012", 1, 1);
  } else {
    const std::size_t digits = plain == BARHATCH_EAN_13 ? 12 : plain == BARHATCH_UPC_A ? 11 : 7;
    main = texts.Next(kDigits, digits, digits);
  }
  if (check == "0" || main.size() == 6) return main;
  const bool isShort = plain == BARHATCH_UPC_E && main.size() == 7;
  return main + MissingCheckDigit(isShort ? ExpandedUpcE(main) : main);
}

// The plain reader knows nothing of the library's.
TEST(EanUpcMarks, EveryTextIsReadBack) {
  SeededTexts texts(13);
  for (int round = 0; round < 4000; ++round) {
    for (const std::int32_t plain : {3, 9, 10, 12}) {
      const std::string main = RandomMain(texts, plain);
      const std::size_t addonDigits = static_cast<std::size_t>(round % 3 == 0   ? 0
                                                               : round % 3 == 1 ? 2
                                                                                : 5);
      const std::string addon = texts.Next(kDigits, addonDigits, addonDigits);
      const std::string text = main + (addon.empty() ? "" : "+" + addon);
      BarhatchJob job = EanUpcJob(plain, text);
      job.addon_gap = round % 4 == 0 ? 0 : 9 + round % 4;
      const Mark mark(job);
      ASSERT_TRUE(mark.IsOk()) << text << ": " << mark.Message();
      ASSERT_EQ(mark->warnings, 0u) << text;
      const auto read = ReadEanUpc(LettersOf(mark));
      ASSERT_TRUE(read) << text;
      ASSERT_EQ(read->addon, addon);
      ASSERT_EQ(read->gap, addon.empty() ? 0 : round % 4 == 0 ? 9 : job.addon_gap);
      const std::string zero = plain == BARHATCH_UPC_A ? "0" : "";
      ASSERT_EQ(read->digits + (addon.empty() ? "" : " " + addon), zero + mark.Reading());
      const std::size_t given = mark.Reading().find(main);
      const bool isWritten = main.size() < 11 || plain != BARHATCH_UPC_E;
      ASSERT_EQ(given, !isWritten ? std::string::npos : main.size() == 6 ? 1u : 0u) << text;
    }
  }
}

// Texts that ask for the symbol of a reading, with its add-on or without.
std::vector<std::string> FormsOf(const std::string& reading, bool isUpcE) {
  const std::string main = reading.substr(0, reading.find(' '));
  std::vector<std::string> forms = {main, main.substr(0, main.size() - 1)};
  if (isUpcE) {
    const std::string upcA = ExpandedUpcE(main.substr(0, 7));
    forms.insert(forms.end(), {upcA, upcA + main[7]});
    if (main[0] == '0') forms.push_back(main.substr(1, 6));
  }
  if (main.size() == reading.size()) return forms;
  const std::string addon = reading.substr(main.size() + 1);
  std::vector<std::string> withAddon;
  for (const std::string& form : forms) {
    withAddon.push_back(form + "+" + addon);
    withAddon.push_back(form + addon);
  }
  return withAddon;
}

bool IsAmong(const std::string& text, const std::vector<std::string>& texts) {
  return std::find(texts.begin(), texts.end(), text) != texts.end();
}

// Whatever is asked for: refused with a sentence, or read as a symbol that the text stands for.
TEST(EanUpcMarks, RandomTextsAreReadAsWhatTheyStandForOrRefused) {
  constexpr std::int32_t kSymbologies[] = {3, 9, 10, 12, 13, 14, 15, 16, 17, 18, 19, 20};
  SeededTexts texts(20);
  int marked = 0;
  for (int round = 0; round < 60000; ++round) {
    const std::int32_t symbology = kSymbologies[round % 12];
    std::string text = texts.Next(round % 5 == 0 ? "0000001234" : "0123456789", 5, 19);
    if (round % 3 == 0) text[text.size() - (round % 2 == 0 ? 3 : 6) % text.size()] = '+';
    const Mark mark(EanUpcJob(symbology, text));
    ASSERT_NE(mark.IsOk(), mark.Message() != "") << text;
    if (!mark.IsOk()) continue;
    ++marked;
    const bool isUpcE = symbology == 10 || symbology >= 19;
    ASSERT_TRUE(IsAmong(text, FormsOf(mark.Reading(), isUpcE)))
        << mark->name << " " << text << " reads " << mark.Reading();
  }
  EXPECT_GT(marked, 3000);
}

std::string GapRefusal(std::int32_t symbology, std::int32_t gap,
                       std::int32_t conformance = BARHATCH_PUBLISHED) {
  BarhatchJob job = JobOf(symbology, PlainTextOf(symbology), conformance);
  job.flags = BARHATCH_PERMIT;
  job.addon_gap = gap;
  const Mark mark(job);
  return std::to_string(mark->status) + " " + mark.Message();
}

TEST(EanUpcMarks, TheGapIsOneThatTheStandardHas) {
  for (const std::int32_t symbology : {3, 12, 15, 16, 17, 18}) {
    for (std::int32_t gap = 7; gap <= 12; ++gap) EXPECT_EQ(GapRefusal(symbology, gap), "0 ");
  }
  for (const std::int32_t symbology : {9, 10, 13, 14, 19, 20}) {
    for (std::int32_t gap = 9; gap <= 12; ++gap) EXPECT_EQ(GapRefusal(symbology, gap), "0 ");
  }
  EXPECT_EQ(GapRefusal(3, 6), "2 addon_gap 6 is none beside EAN-13: 0 and 7 to 12");
  EXPECT_EQ(GapRefusal(15, 13),
            "2 addon_gap 13 is none beside EAN-13 with 2-digit add-on: 0 and 7 to 12");
  EXPECT_EQ(GapRefusal(9, 8), "2 addon_gap 8 is none beside UPC-A: 0 and 9 to 12");
  EXPECT_EQ(GapRefusal(20, 13),
            "2 addon_gap 13 is none beside UPC-E with 5-digit add-on: 0 and 9 to 12");
  EXPECT_EQ(GapRefusal(12, -1), "2 addon_gap -1 is none beside EAN-8: 0 and 7 to 12");
}

TEST(EanUpcMarks, TheGapIsForAddonsByTheBook) {
  EXPECT_EQ(GapRefusal(5, 9), "2 addon_gap is for EAN and UPC");
  EXPECT_EQ(GapRefusal(100, 9, BARHATCH_DEVICE), "2 addon_gap is for EAN and UPC");
  EXPECT_EQ(GapRefusal(15, 9, BARHATCH_DEVICE),
            "2 the device has an addon_gap of its own: it must be 0");
}

TEST(EanUpcMarks, TheCheckDigitMayBeDemanded) {
  const auto verified = [](const char* text) {
    BarhatchJob job = PublishedJobOf(3, text);
    job.check = BARHATCH_CHECK_VERIFY;
    const Mark mark(job);
    return std::to_string(mark->status) + " " + mark.Message();
  };
  EXPECT_EQ(verified("9501101530003+12"), "0 ");
  EXPECT_EQ(verified("950110153000+12"),
            "5 12 characters are none with check characters of EAN-13");
}

// Modules left and right of the symbol.
std::string Quiet(std::int32_t symbology, const std::string& text,
                  std::int32_t conformance = BARHATCH_PUBLISHED) {
  BarhatchJob job = JobOf(symbology, text.c_str(), conformance);
  if (conformance == BARHATCH_PUBLISHED) job.flags = BARHATCH_PERMIT;
  const Mark mark(job);
  return std::to_string(static_cast<int>(mark->symbol[0] - mark->total[0])) + ", " +
         std::to_string(static_cast<int>(mark->total[2] - mark->symbol[2]));
}

TEST(EanUpcMarks, BehindAnAddonTheQuietZoneIsFiveModules) {
  EXPECT_EQ(Quiet(3, "950110153000"), "11, 7");
  EXPECT_EQ(Quiet(3, "950110153000+12"), "11, 5");
  EXPECT_EQ(Quiet(15, "95011015300012"), "11, 5");
  EXPECT_EQ(Quiet(9, "03600029145"), "9, 9");
  EXPECT_EQ(Quiet(9, "03600029145+52495"), "9, 5");
  EXPECT_EQ(Quiet(14, "0360002914552495"), "9, 5");
  EXPECT_EQ(Quiet(12, "9638507"), "7, 7");
  EXPECT_EQ(Quiet(17, "963850712"), "7, 5");
  EXPECT_EQ(Quiet(10, "425261"), "9, 7");
  EXPECT_EQ(Quiet(19, "042526112"), "9, 5");
}

TEST(EanUpcMarks, TheQuietZoneOfTheDeviceIsTheSameWithAnAddon) {
  EXPECT_EQ(Quiet(15, "95011015300012", BARHATCH_DEVICE), "11, 7");
  EXPECT_EQ(Quiet(14, "0360002914552495", BARHATCH_DEVICE), "9, 9");
}

TEST(EanUpcMarks, AQuietZoneOfFiveModulesIsEnoughBehindAnAddon) {
  const std::string text = "950110153000+12";
  BarhatchJob job = EanUpcJob(3, text);
  job.flags = BARHATCH_QUIET_INSIDE;
  job.quiet = 11.0;
  EXPECT_EQ(Mark(job)->warnings, 0u);
  job.quiet = 7.0;
  EXPECT_EQ(Mark(job)->warnings, std::uint32_t{BARHATCH_W_QUIET_ZONE}) << "on the left";
}

TEST(EanUpcMarks, WhatIsPermittedIsNamedAmongTheDeviations) {
  const auto met = [](std::int32_t symbology, const std::string& text) {
    return std::string(Mark(EanUpcJob(symbology, text))->deviations_met).substr(0, 7);
  };
  EXPECT_EQ(met(12, "9638507+12"), "D-EAN-2");
  EXPECT_EQ(met(10, "14210000526"), "D-EAN-3");
  EXPECT_EQ(met(10, "04210000526"), "");
}

}  // namespace
}  // namespace barhatch::test
