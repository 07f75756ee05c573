#include "symbologies/EanUpcText.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "support/EanUpcReader.h"
#include "support/SeededTexts.h"
#include "symbologies/UpcE.h"

namespace barhatch {
namespace {

using test::MissingCheckDigit;
using test::SeededTexts;

const std::string kDigits = "0123456789";

const char* NameOf(EanUpcSymbol symbol) {
  static constexpr const char* kNames[] = {"EAN-13",  "EAN-13+2", "EAN-13+5", "UPC-A",
                                           "UPC-A+2", "UPC-A+5",  "EAN-8",    "EAN-8+2",
                                           "EAN-8+5", "UPC-E",    "UPC-E+2",  "UPC-E+5"};
  return kNames[static_cast<int>(symbol)];
}

const char* NameOf(Reason reason) {
  switch (reason) {
    case Reason::kEmpty:
      return "empty";
    case Reason::kCharacter:
      return "character";
    case Reason::kLength:
      return "length";
    case Reason::kNumberSystem:
      return "number system";
    case Reason::kCheck:
      return "check";
    case Reason::kCheckCount:
      return "check count";
    case Reason::kNotStandard:
      return "not standard";
    case Reason::kSecondSign:
      return "second sign";
    case Reason::kAddonDigits:
      return "add-on digits";
    case Reason::kUpcEForm:
      return "UPC-E form";
    case Reason::kNoUpcE:
      return "no UPC-E";
    default:
      return "?";
  }
}

DeviationSet Permitted() {
  DeviationSet permitted;
  permitted.Add(Deviation::kDEAN_2);
  permitted.Add(Deviation::kDEAN_3);
  return permitted;
}

// "EAN-13 950110153000", or "check at 12, 51".
std::string Read(EanUpcSymbol asked, const std::string& text, DeviationSet inForce = {},
                 CheckScheme check = CheckScheme::kOwn) {
  Conformance how(inForce);
  EanUpcDigits read = {};
  const Refusal refusal = ReadEanUpcText(asked, {text.c_str(), text.size()}, check, how, read);
  if (refusal.IsRefused()) {
    return NameOf(refusal.reason) + (" at " + std::to_string(refusal.position)) + ", " +
           std::to_string(refusal.figure);
  }
  EXPECT_EQ(read.digits[read.length], '\0');
  return NameOf(read.symbol) + (" " + std::string(read.digits, read.length));
}

constexpr EanUpcSymbol kEan13 = EanUpcSymbol::kEan13;
constexpr EanUpcSymbol kUpcA = EanUpcSymbol::kUpcA;
constexpr EanUpcSymbol kEan8 = EanUpcSymbol::kEan8;
constexpr EanUpcSymbol kUpcE = EanUpcSymbol::kUpcE;

TEST(EanUpcText, ACheckDigitMayBeGiven) {
  EXPECT_EQ(Read(kEan13, "950110153000"), "EAN-13 950110153000");
  EXPECT_EQ(Read(kEan13, "9501101530003"), "EAN-13 950110153000");
  EXPECT_EQ(Read(kUpcA, "03600029145"), "UPC-A 03600029145");
  EXPECT_EQ(Read(kUpcA, "036000291452"), "UPC-A 03600029145");
  EXPECT_EQ(Read(kEan8, "9638507"), "EAN-8 9638507");
  EXPECT_EQ(Read(kEan8, "96385074"), "EAN-8 9638507");
  EXPECT_EQ(Read(kUpcE, "0425261"), "UPC-E 0425261");
  EXPECT_EQ(Read(kUpcE, "04252614"), "UPC-E 0425261");
}

TEST(EanUpcText, AWrongCheckDigitIsRefusedWithTheRightOne) {
  EXPECT_EQ(Read(kEan13, "9501101530004"), "check at 12, 51") << "3";
  EXPECT_EQ(Read(kEan13, "9501101530004+12"), "check at 12, 51");
  EXPECT_EQ(Read(EanUpcSymbol::kEan13Addon2, "950110153000412"), "check at 12, 51");
  EXPECT_EQ(Read(kUpcA, "036000291450"), "check at 11, 50") << "2";
  EXPECT_EQ(Read(kEan8, "96385075"), "check at 7, 52") << "4";
  EXPECT_EQ(Read(kUpcE, "04252615"), "check at 7, 52");
  EXPECT_EQ(Read(kUpcE, "042100005265"), "check at 11, 52");
}

TEST(EanUpcText, ACheckDigitMustBeGivenWhereItIsToBeVerified) {
  const auto verified = [](EanUpcSymbol asked, const std::string& text) {
    return Read(asked, text, {}, CheckScheme::kVerify);
  };
  EXPECT_EQ(verified(kEan13, "9501101530003"), "EAN-13 950110153000");
  EXPECT_EQ(verified(kEan13, "9501101530004"), "check at 12, 51");
  EXPECT_EQ(verified(kEan13, "950110153000"), "check count at -1, 12");
  EXPECT_EQ(verified(kEan13, "950110153000+12"), "check count at -1, 12");
  EXPECT_EQ(verified(EanUpcSymbol::kUpcAAddon2, "0360002914512"), "check count at -1, 11");
  EXPECT_EQ(verified(kUpcA, "036000291452+12"), "UPC-A+2 0360002914512");
  EXPECT_EQ(verified(kEan8, "9638507"), "check count at -1, 7");
  for (const char* text : {"425261", "0425261", "04210000526"}) {
    EXPECT_EQ(verified(kUpcE, text).substr(0, 11), "check count");
  }
  for (const char* text : {"04252614", "042100005264"}) {
    EXPECT_EQ(verified(kUpcE, text), "UPC-E 0425261");
  }
}

TEST(EanUpcText, UpcEOfSixDigitsHasNumberSystemZero) {
  EXPECT_EQ(Read(kUpcE, "425261"), "UPC-E 0425261");
  EXPECT_EQ(Read(kUpcE, "425261+12"), "UPC-E+2 042526112");
  EXPECT_EQ(Read(EanUpcSymbol::kUpcEAddon5, "425261+52495"), "UPC-E+5 042526152495");
}

// The examples of ISO/IEC 15420 and of readers: one for each rule of suppression.
TEST(EanUpcText, UpcANumbersAreSuppressed) {
  EXPECT_EQ(Read(kUpcE, "04210000526"), "UPC-E 0425261");
  EXPECT_EQ(Read(kUpcE, "042100005264"), "UPC-E 0425261");
  EXPECT_EQ(Read(kUpcE, "01200000789"), "UPC-E 0127890");
  EXPECT_EQ(Read(kUpcE, "01220000789"), "UPC-E 0127892");
  EXPECT_EQ(Read(kUpcE, "01230000045"), "UPC-E 0123453");
  EXPECT_EQ(Read(kUpcE, "01290000099"), "UPC-E 0129993");
  EXPECT_EQ(Read(kUpcE, "01234000005"), "UPC-E 0123454");
  EXPECT_EQ(Read(kUpcE, "01234500006"), "UPC-E 0123456");
  EXPECT_EQ(Read(kUpcE, "01234500009"), "UPC-E 0123459");
}

TEST(EanUpcText, UpcANumbersWithoutTheirRunOfZerosAreRefused) {
  EXPECT_EQ(Read(kUpcE, "01234500004"), "no UPC-E at 0, 0") << "the last digit is 5 to 9";
  EXPECT_EQ(Read(kUpcE, "01234000015"), "no UPC-E at 0, 0");
  EXPECT_EQ(Read(kUpcE, "01230000145"), "no UPC-E at 0, 0");
  EXPECT_EQ(Read(kUpcE, "01220001000"), "no UPC-E at 0, 0");
  EXPECT_EQ(Read(kUpcE, "012345678905"), "no UPC-E at 0, 0");
}

TEST(EanUpcText, SixDigitsThatSuppressingDoesNotGiveAreRefusedWithTheRightOnes) {
  EXPECT_EQ(Read(kUpcE, "0122453"), "UPC-E form at 1, 120452") << "012 20000 045";
  EXPECT_EQ(Read(kUpcE, "122453"), "UPC-E form at 0, 120452");
  EXPECT_EQ(Read(kUpcE, "01224535"), "UPC-E form at 1, 120452");
  EXPECT_EQ(Read(kUpcE, "0123044"), "UPC-E form at 1, 123043") << "012 30000 004";
  EXPECT_EQ(Read(kUpcE, "0122044"), "UPC-E form at 1, 120042") << "012 20000 004";
  EXPECT_EQ(Read(kUpcE, "0123409"), "UPC-E form at 1, 123494") << "012 34000 009";
  EXPECT_EQ(Read(kUpcE, "0000009"), "UPC-E form at 1, 90") << "000 009";
  EXPECT_EQ(Read(kUpcE, "1122453", Permitted()), "UPC-E form at 1, 120452");
}

TEST(EanUpcText, NumberSystemOneOfUpcENeedsPermission) {
  for (const char* text : {"1425261", "14252611", "14210000526", "142100005261"}) {
    EXPECT_EQ(Read(kUpcE, text), "not standard at 0, 0") << text;
    EXPECT_EQ(Read(kUpcE, text, Permitted()), "UPC-E 1425261") << text;
  }
}

TEST(EanUpcText, OtherNumberSystemsOfUpcEAreNone) {
  for (const char* text : {"2425261", "24252614", "24210000526", "242100005260"}) {
    EXPECT_EQ(Read(kUpcE, text, Permitted()), "number system at 0, 50") << text;
  }
}

TEST(EanUpcText, AnAddonStandsBehindItsSign) {
  EXPECT_EQ(Read(kEan13, "9501101530003+12"), "EAN-13+2 95011015300012");
  EXPECT_EQ(Read(kEan13, "950110153000+52495"), "EAN-13+5 95011015300052495");
  EXPECT_EQ(Read(kUpcA, "03600029145+12"), "UPC-A+2 0360002914512");
  EXPECT_EQ(Read(kUpcA, "036000291452+52495"), "UPC-A+5 0360002914552495");
  EXPECT_EQ(Read(kUpcE, "0425261+12"), "UPC-E+2 042526112");
  EXPECT_EQ(Read(kUpcE, "042100005264+52495"), "UPC-E+5 042526152495");
  EXPECT_EQ(Read(EanUpcSymbol::kEan13Addon2, "9501101530003+12"), "EAN-13+2 95011015300012");
  EXPECT_EQ(Read(EanUpcSymbol::kUpcAAddon5, "03600029145+52495"), "UPC-A+5 0360002914552495");
}

TEST(EanUpcText, AnAddonBesideEan8NeedsPermission) {
  EXPECT_EQ(Read(kEan8, "9638507+12"), "not standard at 7, 0");
  EXPECT_EQ(Read(kEan8, "96385074+52495"), "not standard at 8, 0");
  EXPECT_EQ(Read(EanUpcSymbol::kEan8Addon2, "963850712"), "not standard at 7, 0");
  EXPECT_EQ(Read(EanUpcSymbol::kEan8Addon5, "9638507452495"), "not standard at 8, 0");
  EXPECT_EQ(Read(kEan8, "9638507+12", Permitted()), "EAN-8+2 963850712");
  EXPECT_EQ(Read(EanUpcSymbol::kEan8Addon5, "9638507452495", Permitted()), "EAN-8+5 963850752495");
}

TEST(EanUpcText, AnAddonHasTwoOrFiveDigits) {
  EXPECT_EQ(Read(kEan13, "950110153000+"), "add-on digits at 12, 0");
  EXPECT_EQ(Read(kEan13, "950110153000+1"), "add-on digits at 12, 1");
  EXPECT_EQ(Read(kEan13, "9501101530003+123"), "add-on digits at 13, 3");
  EXPECT_EQ(Read(kEan13, "9501101530003+1234"), "add-on digits at 13, 4");
  EXPECT_EQ(Read(kEan13, "9501101530003+123456"), "add-on digits at 13, 6");
  EXPECT_EQ(Read(EanUpcSymbol::kEan13Addon2, "9501101530003+12345"), "add-on digits at 13, 5");
  EXPECT_EQ(Read(EanUpcSymbol::kEan13Addon5, "9501101530003+12"), "add-on digits at 13, 2");
}

std::int32_t ExtentOf(EanUpcSymbol asked, const std::string& text) {
  Conformance how = Conformance::Published();
  EanUpcDigits read = {};
  return ReadEanUpcText(asked, {text.c_str(), text.size()}, CheckScheme::kOwn, how, read).extent;
}

TEST(EanUpcText, ARefusalReachesOverWhatIsWrong) {
  EXPECT_EQ(ExtentOf(kEan13, "9501101530003+123"), 4);
  EXPECT_EQ(ExtentOf(kEan8, "9638507+52495"), 6);
  EXPECT_EQ(ExtentOf(EanUpcSymbol::kEan8Addon2, "9638507412"), 2);
  EXPECT_EQ(ExtentOf(kUpcE, "012345678905"), 11);
  EXPECT_EQ(ExtentOf(kUpcE, "122453"), 6);
  EXPECT_EQ(ExtentOf(kUpcE, "04252615"), 1);
  EXPECT_EQ(ExtentOf(kUpcE, "1425261"), 1);
}

TEST(EanUpcText, OneSignIsEnough) {
  EXPECT_EQ(Read(kEan13, "950110153000+12+"), "second sign at 15, 0");
  EXPECT_EQ(Read(kEan13, "++"), "second sign at 1, 0");
  EXPECT_EQ(Read(kEan13, "9501+10153000+12"), "second sign at 13, 0");
}

TEST(EanUpcText, CharactersThatAreNoDigitsAreRefused) {
  EXPECT_EQ(Read(kEan13, "95011015300A"), "character at 11, 65");
  EXPECT_EQ(Read(kEan13, "950110153000 12"), "character at 12, 32");
  EXPECT_EQ(Read(kEan13, "950110153000+1-"), "character at 14, 45");
  EXPECT_EQ(Read(kEan13, "950110\xFF"), "character at 6, 255");
  EXPECT_EQ(Read(kEan13, "+x+"), "character at 1, 120") << "the first one";
  EXPECT_EQ(Read(kUpcE, "/"), "character at 0, 47");
  EXPECT_EQ(Read(kUpcE, ":"), "character at 0, 58");
}

TEST(EanUpcText, NoTextIsEmpty) {
  EXPECT_EQ(Read(kEan13, ""), "empty at -1, 0");
  EXPECT_EQ(Read(EanUpcSymbol::kUpcEAddon5, ""), "empty at -1, 0");
}

TEST(EanUpcText, TheDigitsInFrontOfASignAreCounted) {
  EXPECT_EQ(Read(kEan13, "+12"), "length at 0, 0");
  EXPECT_EQ(Read(kEan13, "95011015300+12"), "length at 11, 11");
  EXPECT_EQ(Read(EanUpcSymbol::kUpcAAddon2, "0360002914521+12"), "length at 13, 13");
}

// Counts of digits without a sign, from 1 on: 'x' refused, and the main digits in hexadecimal.
std::string CountsTaken(EanUpcSymbol symbol) {
  const std::size_t addon = static_cast<std::size_t>(EanUpcLayoutOf(symbol).addonDigits);
  std::string counts;
  for (std::size_t count = 1; count <= 20; ++count) {
    const std::string text(count, '0');
    const std::string read = Read(symbol, text, Permitted());
    if (read.substr(0, 6) == "length") {
      EXPECT_EQ(read, "length at -1, " + std::to_string(count));
      counts += 'x';
    } else {
      counts += "0123456789abcdef"[count - addon];
    }
  }
  return counts;
}

TEST(EanUpcText, EveryCountOfDigitsIsTakenInOneWayOrRefused) {
  EXPECT_EQ(CountsTaken(kEan13), "xxxxxxxxxxxcdxxxxxxx");
  EXPECT_EQ(CountsTaken(EanUpcSymbol::kEan13Addon2), "xxxxxxxxxxxxxcdxxxxx");
  EXPECT_EQ(CountsTaken(EanUpcSymbol::kEan13Addon5), "xxxxxxxxxxxxxxxxcdxx");
  EXPECT_EQ(CountsTaken(kUpcA), "xxxxxxxxxxbcxxxxxxxx");
  EXPECT_EQ(CountsTaken(EanUpcSymbol::kUpcAAddon2), "xxxxxxxxxxxxbcxxxxxx");
  EXPECT_EQ(CountsTaken(EanUpcSymbol::kUpcAAddon5), "xxxxxxxxxxxxxxxbcxxx");
  EXPECT_EQ(CountsTaken(kEan8), "xxxxxx78xxxxxxxxxxxx");
  EXPECT_EQ(CountsTaken(EanUpcSymbol::kEan8Addon2), "xxxxxxxx78xxxxxxxxxx");
  EXPECT_EQ(CountsTaken(EanUpcSymbol::kEan8Addon5), "xxxxxxxxxxx78xxxxxxx");
  EXPECT_EQ(CountsTaken(kUpcE), "xxxxx678xxbcxxxxxxxx");
  EXPECT_EQ(CountsTaken(EanUpcSymbol::kUpcEAddon2), "xxxxxxxx78xxbcxxxxxx");
  EXPECT_EQ(CountsTaken(EanUpcSymbol::kUpcEAddon5), "xxxxxxxxxxx78xxbcxxx");
}

TEST(EanUpcText, WhatTheStandardLeavesOutIsMetWhereItIsPermitted) {
  const auto met = [](EanUpcSymbol asked, const std::string& text) {
    Conformance how(Permitted());
    EanUpcDigits read = {};
    EXPECT_FALSE(ReadEanUpcText(asked, {text.c_str(), text.size()}, CheckScheme::kOwn, how, read)
                     .IsRefused());
    return how.Met();
  };
  EXPECT_TRUE(met(kEan8, "9638507+12").Has(Deviation::kDEAN_2));
  EXPECT_TRUE(met(kUpcE, "1425261").Has(Deviation::kDEAN_3));
  EXPECT_EQ(met(kEan8, "9638507").Bits(), 0u);
  EXPECT_EQ(met(kUpcE, "425261").Bits(), 0u);
}

// The standard's rule in words: manufacturer and item of five digits each, how the manufacturer
// ends says which items can be written.
std::string SuppressedByTheRule(const std::string& upcA) {
  const std::string maker = upcA.substr(1, 5);
  const std::string item = upcA.substr(6, 5);
  const int number = std::stoi(item);
  if (maker.substr(3) == "00" && maker[2] <= '2') {
    return number <= 999 ? maker.substr(0, 2) + item.substr(2) + maker[2] : "";
  }
  if (maker.substr(3) == "00") return number <= 99 ? maker.substr(0, 3) + item.substr(3) + '3' : "";
  if (maker[4] == '0') return number <= 9 ? maker.substr(0, 4) + item[4] + '4' : "";
  return number >= 5 && number <= 9 ? maker + item[4] : "";
}

std::string Suppressed(const std::string& upcA) {
  char upcE[7] = {};
  return SuppressUpcA(upcA.c_str(), upcE) ? std::string(upcE, 7) : "";
}

void ExpectSuppressed(const std::string& upcA) {
  const std::string six = SuppressedByTheRule(upcA);
  const std::string upcE = Suppressed(upcA);
  ASSERT_EQ(upcE, six.empty() ? "" : upcA[0] + six) << upcA;
  if (six.empty()) return;
  ASSERT_EQ(test::ExpandedUpcE(upcE), upcA);
}

TEST(EanUpcText, EveryUpcANumberIsSuppressedToDigitsThatStandForItOrRefused) {
  SeededTexts texts(1542);
  for (int i = 0; i < 20000; ++i) {
    ExpectSuppressed(texts.Next("01", 1, 1) + texts.Next(kDigits, 10, 10));
    ExpectSuppressed(texts.Next("01", 1, 1) + texts.Next("00003", 10, 10));
    ExpectSuppressed("0" + texts.Next(kDigits, 3, 3) + texts.Next("05", 1, 1) + "0" + "00" +
                     texts.Next("00001", 2, 2) + texts.Next(kDigits, 1, 1));
  }
}

// All of them: what a number is written with is right, and everything else is refused with that.
TEST(EanUpcText, OfAllSixDigitsThoseThatAreRightAreTakenAndTheOthersAreSentThere) {
  std::set<std::string> numbers;
  int taken = 0;
  for (int value = 0; value < 1000000; ++value) {
    const std::string rest = std::to_string(value);
    const std::string six = std::string(6 - rest.size(), '0') + rest;
    const std::string upcA = test::ExpandedUpcE("0" + six);
    const std::string right = SuppressedByTheRule(upcA);
    const bool isRight = right == six;
    taken += isRight ? 1 : 0;
    const std::string expected =
        isRight ? "UPC-E 0" + six : "UPC-E form at 0, " + std::to_string(std::stoi(right));
    ASSERT_EQ(Read(kUpcE, six), expected);
  }
  EXPECT_EQ(taken, 100 * 1000 * 3 + 100 * 7 * 100 + 1000 * 9 * 10 + 10000 * 9 * 5);
}

TEST(EanUpcText, EveryCheckDigitButTheRightOneIsRefused) {
  SeededTexts texts(977);
  struct Kind {
    EanUpcSymbol symbol;
    std::size_t digits;
  };
  for (const Kind& kind : {Kind{kEan13, 12}, Kind{kUpcA, 11}, Kind{kEan8, 7}}) {
    for (int i = 0; i < 500; ++i) {
      const std::string digits = texts.Next(kDigits, kind.digits, kind.digits);
      const char right = MissingCheckDigit(digits);
      for (char check = '0'; check <= '9'; ++check) {
        const std::string expected = check == right ? NameOf(kind.symbol) + (" " + digits)
                                                    : "check at " + std::to_string(kind.digits) +
                                                          ", " + std::to_string(right);
        ASSERT_EQ(Read(kind.symbol, digits + check), expected);
      }
    }
  }
}

}  // namespace
}  // namespace barhatch
