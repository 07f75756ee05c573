#include "mark/ElementSentences.h"

#include <gtest/gtest.h>

#include <string>

#include "gs1/ParsedElements.h"
#include "mark/Sentences.h"

namespace barhatch::test {
namespace {

// What is said of an element string that is refused, with its status.
std::string Said(const std::string& text, const ElementOptions& options = {}) {
  const Refusal refusal = Parse(text, options).refusal;
  if (!refusal.IsRefused()) return "accepted";
  char room[Message::kCapacity];
  SayRefusal(BarhatchJob{}, refusal, refusal.position + 1, Message(room));
  return std::to_string(StatusOf(refusal.reason)) + " " + room;
}

struct Row {
  const char* text;
  const char* said;
};

}  // namespace

TEST(ElementSentences, NameTheIdentifierAndWhatIsWrong) {
  const Row rows[] = {
      {"(9999)1", "8 AI (9999) is not assigned"},
      {"(04)1234567890123456", "8 AI (04) is not assigned"},
      {"(010)1", "8 AI (010) is not assigned"},
      {"(10)123456789012345678901", "9 AI (10): 21 characters, at most 20"},
      {"(10)", "9 AI (10): 0 characters, at least 1"},
      {"(01)0950110153000", "9 AI (01): 13 characters, 14 are needed"},
      {"(01)095011015300031", "9 AI (01): 15 characters, 14 are needed"},
      {"(253)1", "9 AI (253): 1 character, at least 13"},
      {"(7011)26010112", "9 AI (7011): 8 characters, and the last part of the value is incomplete"},
      {"(10)A B", "9 AI (10): character 6 (0x20) may not stand there"},
      {"(17)26A101", "9 AI (17): character 7 (0x41 'A') may not stand there"},
      {"(10)A^B", "9 AI (10): character 6 may not stand there"},
      {"(01)09501101530004", "9 AI (01): check digit 3 expected at 18"},
      {"(8013)1987654Ad4X4bL5ttr2310cXX", "9 AI (8013): check characters 2K expected at 30"},
      {"(17)261301", "9 AI (17): there is no month 13"},
      {"(17)260230", "9 AI (17): there is no day 30"},
      {"(7003)2602282400", "9 AI (7003): there is no hour 24"},
      {"(8008)260228237",
       "9 AI (8008): 9 characters, and the last part of the value is incomplete"},
      {"(8008)2602282360", "9 AI (8008): there is no minute 60"},
      {"(8008)260228235960", "9 AI (8008): there is no second 60"},
      {"(10)A(10)B", "9 AI (10) stands twice with different values"},
      {"ABC", "7 an application identifier is missing at 1: (01), or its digits alone everywhere"},
      {"(10)A(2)B",
       "7 an application identifier is missing at 6: (01), or its digits alone everywhere"},
  };
  for (const Row& row : rows) EXPECT_EQ(Said(row.text), row.said) << row.text;
}

TEST(ElementSentences, SayWhatAValueFails) {
  const Row rows[] = {
      {"(8014)1", "9 AI (8014): a company prefix begins with digits"},
      {"(401)A12", "9 AI (401): a company prefix begins with digits"},
      {"(8014)100096", "9 AI (8014): one character at least is no digit"},
      {"(8013)12", "9 AI (8013): two check characters stand behind the value"},
      {"(8003)10950110153000", "9 AI (8003): a 0 is needed"},
      {"(8001)00001234512301", "9 AI (8001): zeros alone are no value"},
      {"(8011)01", "9 AI (8011): a 0 in front is one too many"},
      {"(4321)2", "9 AI (4321): 0 and 1 are its values"},
      {"(8001)12341234512321", "9 AI (8001): 0, 1 and 9 are its values"},
      {"(7252)3", "9 AI (7252): 0, 1, 2 and 9 are its values"},
      {"(4330)123456A", "9 AI (4330): a - is its only character"},
      {"(8006)095011015300030201",
       "9 AI (8006): two digits for the piece, two for the total, at least 01 and the piece"},
      {"(7258)2/1", "9 AI (7258): a position from 1, a / and a total that is not less"},
      {"(4309)18000000010000000000", "9 AI (4309): 1800000000 is the last latitude"},
      {"(4309)18000000003600000001", "9 AI (4309): 3600000000 is the last longitude"},
      {"(4300)A%2", "9 AI (4300): % stands in front of two hexadecimal digits"},
      {"(7040)1AB!", "9 AI (7040): digits, letters, - and _ are the importer's indices"},
      {"(7241)11", "9 AI (7241): 01 to 10 and 80 to 99 are the types of media"},
      {"(8007)DE88370400440532013000",
       "9 AI (8007): a country, two check digits that are right, digits and capitals"},
      {"(8030)ab==", "9 AI (8030): = stands at the end, where it makes the length a multiple of 3"},
  };
  for (const Row& row : rows) EXPECT_EQ(Said(row.text), row.said) << row.text;
}

TEST(ElementSentences, SayLengthsOfIdentifiersThatAreNotAssigned) {
  const ElementOptions permitted = {true, kFnc1Token};
  EXPECT_EQ(Said("(55)", permitted), "9 AI (55): 0 characters, at least 1");
  EXPECT_EQ(Said("(55)" + std::string(91, 'A'), permitted), "9 AI (55): 91 characters, at most 90");
  EXPECT_EQ(Said("(04)1", permitted), "9 AI (04): 1 character, 16 are needed");
  EXPECT_EQ(Said("(010)A", permitted), "8 AI (010) is not assigned");
}

}  // namespace barhatch::test
