#include "support/ExpectedReading.h"

#include <algorithm>
#include <vector>

#include "support/Code128Reader.h"
#include "support/Code128Steps.h"
#include "support/Code93Reader.h"
#include "support/EanUpcReader.h"

namespace barhatch::test {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

void Touch(ExpectedReading& expected, const std::string& id) {
  expected.ids += (expected.ids.empty() ? "" : " ") + id;
}

ExpectedReading Unreadable(const std::string& id) { return {std::nullopt, "", id}; }

// The other names of start and stop are reported as A to D.
std::string WithPublishedStartStopNames(std::string text) {
  const std::string other = "TN*E";
  for (char& c : text) {
    if (other.find(c) != std::string::npos) c = "ABCD"[other.find(c)];
  }
  return text;
}

ExpectedReading OfCodabar(const std::string& given) {
  const std::string text = WithPublishedStartStopNames(given);
  const auto isStartStop = [](char c) { return c >= 'A' && c <= 'D'; };
  const bool starts = isStartStop(text.front());
  const bool stops = isStartStop(text.back());
  if (!starts && !stops) return Unreadable("D-CB-1");
  if (!starts || !stops || text.size() == 1) return Unreadable("D-CB-2");
  if (text.size() == 2)
    return {text, "", "D-CB-3"};  // the reader that gives it has no data to tell
  return {text, "", ""};
}

std::string WithPercentPairsCollapsed(const std::string& text) {
  std::string collapsed;
  for (std::size_t i = 0; i < text.size(); ++i) {
    collapsed += text[i];
    if (text[i] == '%' && i + 1 < text.size() && text[i + 1] == '%') ++i;
  }
  return collapsed;
}

ExpectedReading OfCode39(const std::string& given) {
  if (given.empty()) return Unreadable("D-39-6");
  ExpectedReading expected;
  std::string text = WithPercentPairsCollapsed(given);
  if (text != given) Touch(expected, "D-39-5");
  if (text.find('*') != std::string::npos) {
    Touch(expected, "D-39-4");
    text.resize(text.find('*'));
  }
  if (text.find('/') != std::string::npos) Touch(expected, "D-39-2");
  std::replace(text.begin(), text.end(), '/', '%');
  const bool isUnreadable =
      std::any_of(text.begin(), text.end(), [](char c) { return c >= 'E' && c <= 'Z'; });
  if (isUnreadable) Touch(expected, "D-39-3");
  if (!isUnreadable && !text.empty()) expected.text = text;
  return expected;
}

// The check characters C and K of the values, weights from the right.
std::vector<int> Code93Checks(std::vector<int> values) {
  for (const int largestWeight : {20, 15}) {
    int sum = 0;
    int weight = 1;
    for (auto value = values.rbegin(); value != values.rend(); ++value) {
      sum += *value * weight;
      weight = weight == largestWeight ? 1 : weight + 1;
    }
    values.push_back(sum % 47);
  }
  return {values.end() - 2, values.end()};
}

int Code93Value(const std::string& name) {
  const std::vector<std::string> shifts = {"($)", "(%)", "(/)", "(+)"};
  const auto shift = std::find(shifts.begin(), shifts.end(), name);
  if (shift != shifts.end()) return 43 + static_cast<int>(shift - shifts.begin());
  return static_cast<int>(
      std::string("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%").find(name.at(0)));
}

bool IsHigh(char c) { return static_cast<unsigned char>(c) > 127; }

// What stands there when each byte without a value repeats the symbol character before it. The four
// native signs are pairs (D-93-1), which a reader resolves to the same text.
std::vector<int> Code93ValuesOf(const std::string& text, bool repeats) {
  const std::string signs = "$%+/";
  std::vector<int> values;
  for (char c : text) {
    if (IsHigh(c)) {
      if (repeats && !values.empty()) values.push_back(values.back());
    } else if (signs.find(c) != std::string::npos) {
      values.push_back(45);
      values.push_back(10 + "DEKO"[signs.find(c)] - 'A');
    } else {
      for (const std::string& name : PublishedCode93Pair(c)) values.push_back(Code93Value(name));
    }
  }
  return values;
}

// A letter of 26 to each shift: ($) controls, (%) the signs that are nowhere else, (/) signs, (+)
// lower case.
std::optional<std::string> Code93TextOf(const std::vector<int>& values) {
  std::string text;
  for (std::size_t i = 0; i < values.size(); ++i) {
    int character = 0;
    if (values[i] < 43) {
      text += "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%"[values[i]];
      continue;
    }
    for (; character < 128; ++character) {
      if (i + 1 >= values.size()) return std::nullopt;
      const std::vector<int> pair = {values[i], values[i + 1]};
      std::vector<int> published;
      for (const std::string& name : PublishedCode93Pair(character))
        published.push_back(Code93Value(name));
      if (published == pair ||
          (character != 0 &&
           Code93ValuesOf(std::string(1, static_cast<char>(character)), false) == pair))
        break;
    }
    if (character == 128) return std::nullopt;
    text += static_cast<char>(character);
    ++i;
  }
  return text;
}

ExpectedReading OfCode93(const std::string& given) {
  if (given.empty()) return Unreadable("D-93-4");
  ExpectedReading expected;
  const auto isHigh = [](char c) { return IsHigh(c); };
  const auto firstLow = std::find_if_not(given.begin(), given.end(), isHigh);
  const std::string text(firstLow, given.end());
  if (given.find_first_of("$%+/") != std::string::npos) Touch(expected, "D-93-1");
  if (firstLow != given.begin()) Touch(expected, "D-93-3");
  if (text.empty()) return expected;
  expected.text = text;
  if (std::none_of(text.begin(), text.end(), isHigh)) return expected;
  Touch(expected, "D-93-2");
  const std::vector<int> standing = Code93ValuesOf(text, true);
  const bool sumsAgree = Code93Checks(standing) == Code93Checks(Code93ValuesOf(text, false));
  expected.text = sumsAgree ? Code93TextOf(standing) : std::nullopt;
  return expected;
}

// D-128-1 by the shape of the text alone: five or more characters that are all digits, an odd
// number of them; or a last character that is no digit after a run of four or more digits, which is
// even or does not begin the text.
bool HasLoneLastCharacter(const std::string& text) {
  if (text.size() < 5) return false;
  const bool endsInDigit = IsDigit(text.back());
  std::size_t runBegin = text.size() - (endsInDigit ? 0 : 1);
  const std::size_t runEnd = runBegin;
  while (runBegin > 0 && IsDigit(text[runBegin - 1])) --runBegin;
  const std::size_t run = runEnd - runBegin;
  if (endsInDigit) return runBegin == 0 && run % 2 == 1;
  return run >= 4 && (run % 2 == 0 || runBegin > 0);
}

ExpectedReading OfCode128Auto(std::string text) {
  if (!HasLoneLastCharacter(text)) return {text, "", ""};
  const int value = text.back() - 32;
  text.pop_back();
  return {text + static_cast<char>('0' + value / 10) + static_cast<char>('0' + value % 10), "",
          "D-128-1"};
}

// A 127 in front of the first character from 96 to 126 is read as control character 31.
ExpectedReading OfCode128FromA(std::string text) {
  ExpectedReading expected;
  for (char& c : text) {
    if (c >= 96 && c <= 126) break;
    if (c != 127) continue;
    c = 31;
    if (expected.ids.empty()) Touch(expected, "D-128-2");
  }
  expected.text = text;
  return expected;
}

// A text within the limit.
ExpectedReading OfWholeCode128(int type, const std::string& text) {
  if (type == 5) return OfCode128Auto(text);
  if (type == 6) return OfCode128FromA(text);
  return {text, "", ""};
}

// Where the limit may be reached the values as a clerk counts them tell what is dropped, which is
// nothing as long as pairs of digits keep them few; the published symbology tells what they mean.
ExpectedReading NearTheLimit(int type, const std::string& text) {
  std::string letters;
  for (int value : Code128StepValues(type, text)) letters += Code128Letters(value);
  const auto reading = ReadCode128(letters + Code128Letters(106) + "AA");
  if (!reading) return Unreadable("none: the values are no symbol");
  const ExpectedReading whole = OfWholeCode128(type, text);
  return whole.text == reading->text ? whole : ExpectedReading{reading->text, "", "D-128-3"};
}

ExpectedReading OfCode128(int type, const std::string& text) {
  return text.size() > (type == 6 ? 78 : 79) ? NearTheLimit(type, text)
                                             : OfWholeCode128(type, text);
}

ExpectedReading OfEanUpc(int type, const std::string& text) {
  const bool isUpcE = type == 10 || type == 19 || type == 20;
  const bool isEan8 = type == 12 || type == 17 || type == 18;
  const bool isUpcA = type == 9 || type == 13 || type == 14;
  const std::string main = text.substr(0, isUpcE || isEan8 ? 7 : isUpcA ? 11 : 12);
  const char check = MissingCheckDigit(isUpcE ? ExpandedUpcE(main) : main);
  ExpectedReading expected = {main + check, text.substr(main.size()), ""};
  const bool hasAddOn = !expected.addOn.empty();
  if (hasAddOn && (isUpcA || isUpcE)) Touch(expected, "D-EAN-1");
  if (hasAddOn && isEan8) Touch(expected, "D-EAN-2");
  if (isUpcE && text[0] == '1') Touch(expected, "D-EAN-3");
  return expected;
}

ExpectedReading OfInterleaved2of5(const std::string& text) {
  if (text.empty()) return Unreadable("D-25-2");
  return {text.size() % 2 != 0 ? "0" + text : text, "", ""};
}

// The reader of ten characters expects C and K.
ExpectedReading OfCode11(const std::string& text) {
  if (text.empty()) return Unreadable("D-11-2");
  return {text, "", text.size() == 10 ? "D-11-1" : ""};
}

}  // namespace

ExpectedReading ExpectedLinearReading(int type, const std::string& text) {
  if (type == 0) return OfCodabar(text);
  if (type == 1) return OfCode39(text);
  if (type == 2 || type == 22) return OfCode93(text);
  if (type == 4) return text.empty() ? Unreadable("D-MSI-1") : ExpectedReading{text, "", ""};
  if (type >= 5 && type <= 8) return OfCode128(type, text);
  if (type == 11) return OfCode11(text);
  if (type == 21) return OfInterleaved2of5(text);
  return OfEanUpc(type, text);
}

}  // namespace barhatch::test
