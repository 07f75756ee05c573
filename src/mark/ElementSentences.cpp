#include "mark/ElementSentences.h"

#include "gs1/ApplicationIdentifiers.h"

namespace barhatch {

namespace {

struct CheckSentence {
  AiCheck check;
  const char* sentence;
};

constexpr CheckSentence kCheckSentences[] = {
    {AiCheck::kCheckPair, "two check characters stand behind the value"},
    {AiCheck::kHasNonDigit, "one character at least is no digit"},
    {AiCheck::kCompanyPrefix, "a company prefix begins with digits"},
    {AiCheck::kZero, "a 0 is needed"},
    {AiCheck::kNotZero, "zeros alone are no value"},
    {AiCheck::kNoZeroInFront, "a 0 in front is one too many"},
    {AiCheck::kYesNo, "0 and 1 are its values"},
    {AiCheck::kWinding, "0, 1 and 9 are its values"},
    {AiCheck::kSex, "0, 1, 2 and 9 are its values"},
    {AiCheck::kHyphens, "a - is its only character"},
    {AiCheck::kPieceOfTotal,
     "two digits for the piece, two for the total, at least 01 and the piece"},
    {AiCheck::kPositionOfTotal, "a position from 1, a / and a total that is not less"},
    {AiCheck::kLatitude, "1800000000 is the last latitude"},
    {AiCheck::kLongitude, "3600000000 is the last longitude"},
    {AiCheck::kPercentEscapes, "% stands in front of two hexadecimal digits"},
    {AiCheck::kImporterIndex, "digits, letters, - and _ are the importer's indices"},
    {AiCheck::kMediaType, "01 to 10 and 80 to 99 are the types of media"},
    {AiCheck::kBankAccount, "a country, two check digits that are right, digits and capitals"},
    {AiCheck::kPadding, "= stands at the end, where it makes the length a multiple of 3"},
};

const char* SentenceOf(AiCheck check) {
  for (const CheckSentence& row : kCheckSentences) {
    if (row.check == check) return row.sentence;
  }
  return "";
}

constexpr const char* kDateParts[] = {"month", "day", "hour", "minute", "second"};

void SayAi(AiCode ai, Message& message) {
  char digits[kMostAiDigits + 1] = {};
  std::uint32_t rest = ai;
  for (std::size_t i = DigitsOf(ai); i > 0; --i) {
    digits[i - 1] = static_cast<char>('0' + rest % 10);
    rest /= 10;
  }
  message << "AI (" << digits << ")";
}

struct Lengths {
  std::int32_t shortest;
  std::int32_t longest;
};

Lengths LengthsOf(AiCode ai) {
  if (const AiRange* const range = FindAi(ai)) {
    return {FigureOf(ShortestValueOf(*range)), FigureOf(LongestValueOf(*range))};
  }
  const std::int32_t predefined = PrefixOf(FirstTwoOf(ai)).predefined;
  return {predefined > 0 ? predefined : 1, predefined > 0 ? predefined : FigureOf(kLongestAiValue)};
}

void SayLength(AiCode ai, std::int32_t length, Message& message) {
  const Lengths lengths = LengthsOf(ai);
  message << ": " << length << (length == 1 ? " character, " : " characters, ");
  if (lengths.shortest == lengths.longest) {
    message << lengths.longest << " are needed";
  } else if (length > lengths.longest) {
    message << "at most " << lengths.longest;
  } else if (length < lengths.shortest) {
    message << "at least " << lengths.shortest;
  } else {
    message << "and the last part of the value is incomplete";
  }
}

void SayCharacter(std::int32_t code, std::int32_t place, Message& message) {
  message << ": character " << place;
  if (code < kMostAiDetail) {
    message << " (";
    message.Code(code) << ")";
  }
  message << " may not stand there";
}

void SayCheckPair(std::int32_t codes, std::int32_t place, Message& message) {
  const char pair[] = {static_cast<char>(codes / 256), static_cast<char>(codes % 256), '\0'};
  message << ": check characters " << pair << " expected at " << place;
}

}  // namespace

void SayElementRefusal(const Refusal& refusal, std::int32_t place, Message& message) {
  if (refusal.reason == Reason::kGs1Syntax) {
    message << "an application identifier is missing at " << place
            << ": (01), or its digits alone everywhere";
    return;
  }
  const AiCode ai = AiOfFigure(refusal.figure);
  const std::int32_t detail = DetailOfFigure(refusal.figure);
  SayAi(ai, message);
  switch (refusal.reason) {
    case Reason::kUnknownAi:
      message << " is not assigned";
      break;
    case Reason::kAiCharacter:
      SayCharacter(detail, place, message);
      break;
    case Reason::kAiCheckDigit:
      message << ": check digit " << detail << " expected at " << place;
      break;
    case Reason::kAiCheckPair:
      SayCheckPair(detail, place, message);
      break;
    case Reason::kAiDate:
      message << ": there is no " << kDateParts[detail / 100] << " " << detail % 100;
      break;
    case Reason::kAiValue:
      message << ": " << SentenceOf(static_cast<AiCheck>(detail));
      break;
    case Reason::kAiRepeated:
      message << " stands twice with different values";
      break;
    default:
      SayLength(ai, detail, message);
      break;
  }
}

}  // namespace barhatch
