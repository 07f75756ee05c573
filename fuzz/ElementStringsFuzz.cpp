// Any bytes as an element string of GS1, in a Data Matrix and in a Code 128. What is accepted is
// taken apart by plain readers: the text as it was given, the symbol as a scanner reports it, and
// the text for people have the same elements. A refusal has a sentence, and its place lies within
// the text.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "CallWatch.h"
#include "FuzzInput.h"
#include "barhatch_mark.h"
#include "support/DataMatrixReader.h"

namespace {

using barhatch::fuzz::CallWatch;
using barhatch::fuzz::Demand;
using barhatch::fuzz::FuzzInput;
namespace test = barhatch::test;

constexpr std::size_t kMostBytes = std::size_t{4} << 20;
constexpr char kSeparator = '\x1D';
constexpr std::size_t kMostOfGs1128 = 48;

struct Element {
  std::string identifier;
  std::string value;
};
using Elements = std::vector<Element>;

bool operator==(const Element& a, const Element& b) {
  return a.identifier == b.identifier && a.value == b.value;
}

// ---- What scanners know of an identifier by its first two digits ----

int FirstTwoOf(const std::string& text, std::size_t at) {
  const auto isDigit = [&](std::size_t place) {
    return place < text.size() && text[place] >= '0' && text[place] <= '9';
  };
  if (!isDigit(at) || !isDigit(at + 1)) return -1;
  return (text[at] - '0') * 10 + text[at + 1] - '0';
}

// GS1 General Specifications, figure 7.8.5-1: identifiers of a predefined length, without theirs.
std::size_t PredefinedLength(int firstTwo) {
  if (firstTwo == 0) return 18;
  if (firstTwo >= 1 && firstTwo <= 3) return 14;
  if (firstTwo == 4) return 16;
  if (firstTwo >= 11 && firstTwo <= 19) return 6;
  if (firstTwo == 20) return 2;
  if (firstTwo >= 31 && firstTwo <= 36) return 6;
  return firstTwo == 41 ? 13 : 0;
}

// Digits of an identifier; 0 where it is not known.
std::size_t DigitsOf(int firstTwo) {
  const auto isBetween = [firstTwo](int first, int last) {
    return firstTwo >= first && firstTwo <= last;
  };
  if (isBetween(0, 4) || isBetween(10, 22) || firstTwo == 30 || firstTwo == 37 || isBetween(90, 99))
    return 2;
  if (isBetween(23, 25) || isBetween(40, 42) || firstTwo == 71) return 3;
  const bool isFour = isBetween(31, 36) || firstTwo == 39 || firstTwo == 43 || firstTwo == 70 ||
                      firstTwo == 72 || isBetween(80, 82);
  return isFour ? 4 : 0;
}

// ---- Plain readers ----

// As a scanner reports it: a separator behind a value whose length is not predefined. Nothing for a
// text that ends within an identifier, or has one that nobody knows.
std::optional<Elements> TakeApart(const std::string& text) {
  Elements elements;
  for (std::size_t at = 0; at < text.size();) {
    const int firstTwo = FirstTwoOf(text, at);
    const std::size_t digits = firstTwo >= 0 ? DigitsOf(firstTwo) : 0;
    if (digits == 0 || text.size() - at < digits) return std::nullopt;
    const std::size_t valueAt = at + digits;
    const std::size_t predefined = PredefinedLength(firstTwo);
    std::size_t end = std::min(text.find(kSeparator, valueAt), text.size());
    if (predefined != 0) end = std::min(end, valueAt + predefined);
    elements.push_back({text.substr(at, digits), text.substr(valueAt, end - valueAt)});
    at = end < text.size() && text[end] == kSeparator ? end + 1 : end;
  }
  return elements;
}

// "(01)...(10)...", an opening bracket of a value behind a backslash.
Elements TakeBracketsApart(const std::string& text) {
  Elements elements;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t close = std::min(text.find(')', at), text.size());
    Element element = {text.substr(at + 1, close - at - 1), ""};
    at = std::min(close + 1, text.size());
    for (; at < text.size() && text[at] != '('; ++at) {
      if (text[at] == '\\' && at + 1 < text.size() && text[at + 1] == '(') ++at;
      element.value += text[at];
    }
    elements.push_back(element);
  }
  return elements;
}

// As the host gave it.
std::optional<Elements> GivenElements(const std::string& text) {
  return text.front() == '(' ? std::optional<Elements>(TakeBracketsApart(text)) : TakeApart(text);
}

std::string ForPeople(const Elements& elements) {
  std::string text;
  for (const Element& element : elements) text += "(" + element.identifier + ")" + element.value;
  return text;
}

// ---- Symbols ----

// Behind FNC1 in front, with GS for every other one, as readers report it.
std::string ReportOfMatrix(const BarhatchResult& result) {
  const std::vector<int> codewords(result.values, result.values + result.capacity);
  const test::Reading reading = test::ReadDataCodewords(codewords);
  Demand(reading.isSound && !reading.items.empty(), "codewords of the standard");
  Demand(reading.items.front() == test::kReadFnc1, "FNC1 in front says that it is GS1");
  std::string report;
  for (std::size_t i = 1; i < reading.items.size(); ++i) {
    const int item = reading.items[i];
    Demand(item < 128 || item == test::kReadFnc1, "characters and separators alone");
    report += item == test::kReadFnc1 ? kSeparator : static_cast<char>(item);
  }
  return report;
}

std::string ReadingOf(const BarhatchResult& result) {
  Demand(result.reading != nullptr, "a reading");
  return {result.reading, result.reading_length};
}

// No separator at the end and none behind a predefined length: those mean nothing.
void DemandNoNeedlessSeparators(const std::string& report) {
  const auto elements = TakeApart(report);
  if (!elements.has_value()) return;
  std::string expected;
  for (const Element& element : *elements) {
    expected += element.identifier + element.value;
    const bool isPredefined = PredefinedLength(FirstTwoOf(element.identifier, 0)) != 0;
    if (&element != &elements->back() && !isPredefined) expected += kSeparator;
  }
  Demand(report == expected, "separators where they are needed");
}

// GTIN and SSCC: modulo 10, weights 3 and 1 from the right.
void DemandCheckDigit(const Element& element) {
  if (element.identifier.size() != 2 || element.identifier > "03") return;
  int sum = 0;
  for (std::size_t i = 0; i < element.value.size(); ++i) {
    const int digit = element.value[element.value.size() - 1 - i] - '0';
    Demand(digit >= 0 && digit <= 9, "digits");
    sum += digit * (i % 2 == 0 ? 1 : 3);
  }
  Demand(element.value.size() == PredefinedLength(FirstTwoOf(element.identifier, 0)), "a length");
  Demand(sum % 10 == 0, "a check digit that is right");
}

bool AreKnown(const Elements& elements) {
  return std::all_of(elements.begin(), elements.end(), [](const Element& element) {
    return DigitsOf(FirstTwoOf(element.identifier, 0)) == element.identifier.size();
  });
}

void DemandElements(const std::string& given, const std::string& report, const char* hri) {
  const std::optional<Elements> elements = GivenElements(given);
  Demand(elements.has_value() && !elements->empty(), "an element string is accepted alone");
  for (const Element& element : *elements) {
    Demand(!element.value.empty(), "a value");
    DemandCheckDigit(element);
  }
  Demand(hri == nullptr || ForPeople(*elements) == hri, "the text for people");
  if (!AreKnown(*elements)) return;  // a scanner cannot tell where the identifier ends
  Demand(TakeApart(report) == elements, "a scanner gets the elements");
  DemandNoNeedlessSeparators(report);
}

void DemandRefusal(const BarhatchResult& result, const std::string& text) {
  Demand(*result.message != '\0', "a refusal has a sentence");
  Demand(result.status != BARHATCH_PROOF_FAILED && result.status != BARHATCH_NO_MEMORY, "a cause");
  Demand(result.position >= 0 && result.extent >= 0 &&
             static_cast<std::size_t>(result.position + result.extent) <= text.size() + 1,
         "the place lies within the text");
}

// The status.
std::int32_t MarkOne(std::int32_t symbology, std::uint32_t flags, const std::string& text) {
  BarhatchJob job = {};
  job.size = sizeof job;
  job.symbology = symbology;
  job.input = BARHATCH_GS1;
  job.flags = flags;
  job.want = BARHATCH_WANT_VALUES | BARHATCH_WANT_READING;
  job.text = text.data();
  job.length = text.size();
  BarhatchResult result = {};
  result.size = sizeof result;
  const CallWatch watch;
  BarhatchMark(&job, &result);
  watch.DemandWithin(kMostBytes);
  if (result.status != BARHATCH_OK) {
    DemandRefusal(result, text);
  } else if (symbology == BARHATCH_DATA_MATRIX) {
    DemandElements(text, ReportOfMatrix(result), result.hri);
  } else {
    DemandElements(text, ReadingOf(result), result.hri);
  }
  BarhatchRelease(&result);
  return result.status;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  const std::uint32_t flags = input.Byte() % 2 == 0 ? 0 : std::uint32_t{BARHATCH_PERMIT};
  std::string text;
  while (!input.IsEmpty()) text += static_cast<char>(input.Byte());
  if (text.empty()) return 0;
  const std::int32_t ofMatrix = MarkOne(BARHATCH_DATA_MATRIX, flags, text);
  const std::int32_t ofCode128 = MarkOne(BARHATCH_CODE_128, flags, text);
  const bool isShort = text.size() < kMostOfGs1128;
  Demand(!isShort || ofMatrix == ofCode128, "both judge an element string alike");
  return 0;
}
