#include "support/EanUpcReader.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace barhatch::test {

namespace {

// Widths of the four elements of the digits 0 to 9 as the standard draws set A (space, bar, space,
// bar) and set C (bar, space, bar, space); set B has the same widths from right to left.
const char* const kWidths[] = {"3211", "2221", "2122", "1411", "1132",
                               "1231", "1114", "1312", "1213", "3112"};

// Sets of the six left digits of EAN-13 by its first digit.
const char* const kLeftSets[] = {"AAAAAA", "AABABB", "AABBAB", "AABBBA", "ABAABB",
                                 "ABBAAB", "ABBBAA", "ABABAB", "ABABBA", "ABBABA"};

// Sets of the six digits of UPC-E by check digit, for the number systems 0 and 1; E is set B.
const char* const kUpcESets[2][10] = {{"EEEOOO", "EEOEOO", "EEOOEO", "EEOOOE", "EOEEOO", "EOOEEO",
                                       "EOOOEE", "EOEOEO", "EOEOOE", "EOOEOE"},
                                      {"OOOEEE", "OOEOEE", "OOEEOE", "OOEEEO", "OEOOEE", "OEEOOE",
                                       "OEEEOO", "OEOEOE", "OEOEEO", "OEEOEO"}};

// Sets of a five-digit add-on by its check value.
const char* const kAddonSets[] = {"BBAAA", "BABAA", "BAABA", "BAAAB", "ABBAA",
                                  "AABBA", "AAABB", "ABABA", "ABAAB", "AABAB"};

int Value(char digit) { return digit - '0'; }

// Widths of the elements from left to right and where in them the reader stands.
class Elements {
 public:
  explicit Elements(std::vector<int> widths) : widths_(std::move(widths)) {}

  std::size_t Remaining() const { return widths_.size() - next_; }
  int Take() { return Remaining() > 0 ? widths_[next_++] : 0; }

  std::string TakeText(std::size_t count) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) text += std::to_string(Take());
    return text;
  }

 private:
  std::vector<int> widths_;
  std::size_t next_ = 0;
};

struct Drawing {
  int leftQuiet = 0;
  int rightQuiet = 0;
  std::vector<int> widths;  // from the first bar to the last
};

std::optional<Drawing> Measure(const std::string& letters) {
  if (letters.find_first_not_of("Aa") != std::string::npos) return std::nullopt;
  const std::size_t first = letters.find('A');
  if (first == std::string::npos) return std::nullopt;
  const std::size_t last = letters.rfind('A');
  Drawing drawing;
  drawing.leftQuiet = static_cast<int>(first);
  drawing.rightQuiet = static_cast<int>(letters.size() - 1 - last);
  for (std::size_t i = first; i <= last; ++i) {
    if (i == first || letters[i] != letters[i - 1]) drawing.widths.push_back(0);
    ++drawing.widths.back();
  }
  return drawing;
}

int IndexOf(const std::string& text, const char* const (&list)[10]) {
  const auto found = std::find(std::begin(list), std::end(list), text);
  return found == std::end(list) ? -1 : static_cast<int>(found - std::begin(list));
}

// Reads digits from elements and notes the set of each; unreadable ones show as '?'.
struct DigitRun {
  std::string digits;
  std::string sets;
};

void ReadDigit(Elements& elements, DigitRun& run) {
  std::string widths = elements.TakeText(4);
  int digit = IndexOf(widths, kWidths);
  const bool mirrored = digit < 0;
  if (mirrored) {
    std::reverse(widths.begin(), widths.end());
    digit = IndexOf(widths, kWidths);
  }
  run.digits += digit < 0 ? '?' : static_cast<char>('0' + digit);
  run.sets += digit < 0 ? '?' : mirrored ? 'B' : 'A';
}

DigitRun ReadDigits(Elements& elements, int count) {
  DigitRun run;
  for (int i = 0; i < count; ++i) ReadDigit(elements, run);
  return run;
}

bool ReadTwoHalves(Elements& elements, int digitsPerHalf, DigitRun& left, DigitRun& right) {
  if (elements.TakeText(3) != "111") return false;
  left = ReadDigits(elements, digitsPerHalf);
  if (elements.TakeText(5) != "11111") return false;
  right = ReadDigits(elements, digitsPerHalf);
  // Set C begins with a bar, where its widths are those of set A.
  return elements.TakeText(3) == "111" &&
         right.sets == std::string(static_cast<std::size_t>(digitsPerHalf), 'A');
}

bool HasRightCheckDigit(const std::string& digits) {
  return digits.find('?') == std::string::npos &&
         MissingCheckDigit(digits.substr(0, digits.size() - 1)) == digits.back();
}

bool ReadEan13(Elements& elements, EanUpcReading& reading) {
  DigitRun left, right;
  if (!ReadTwoHalves(elements, 6, left, right)) return false;
  const int first = IndexOf(left.sets, kLeftSets);
  if (first < 0) return false;
  reading.symbol = "EAN-13";
  reading.digits = std::to_string(first) + left.digits + right.digits;
  return HasRightCheckDigit(reading.digits);
}

bool ReadEan8(Elements& elements, EanUpcReading& reading) {
  DigitRun left, right;
  if (!ReadTwoHalves(elements, 4, left, right) || left.sets != "AAAA") return false;
  reading.symbol = "EAN-8";
  reading.digits = left.digits + right.digits;
  return HasRightCheckDigit(reading.digits);
}

bool ReadUpcE(Elements& elements, EanUpcReading& reading) {
  if (elements.TakeText(3) != "111") return false;
  const DigitRun six = ReadDigits(elements, 6);
  if (elements.TakeText(6) != "111111" || six.digits.find('?') != std::string::npos) return false;
  std::string parities = six.sets;
  std::replace(parities.begin(), parities.end(), 'A', 'O');
  std::replace(parities.begin(), parities.end(), 'B', 'E');
  const int system = IndexOf(parities, kUpcESets[0]) >= 0 ? 0 : 1;
  const int check = IndexOf(parities, kUpcESets[system]);
  if (check < 0) return false;
  reading.symbol = "UPC-E";
  reading.digits = std::to_string(system) + six.digits + std::to_string(check);
  return MissingCheckDigit(ExpandedUpcE(std::to_string(system) + six.digits)) ==
         reading.digits.back();
}

std::string ExpectedAddonSets(const std::string& addon) {
  if (addon.size() == 2) {
    const char* const sets[] = {"AA", "AB", "BA", "BB"};
    return sets[std::stoi(addon) % 4];
  }
  const int threes = Value(addon[0]) + Value(addon[2]) + Value(addon[4]);
  const int nines = Value(addon[1]) + Value(addon[3]);
  return kAddonSets[(3 * threes + 9 * nines) % 10];
}

bool ReadAddon(Elements& elements, EanUpcReading& reading) {
  reading.gap = elements.Take();
  if (elements.TakeText(3) != "112") return false;
  // Four elements a digit and two between digits.
  const std::size_t count = (elements.Remaining() + 2) / 6;
  DigitRun run;
  for (std::size_t i = 0; i < count; ++i) {
    if (i > 0 && elements.TakeText(2) != "11") return false;
    ReadDigit(elements, run);
  }
  reading.addon = run.digits;
  return run.digits.find('?') == std::string::npos && run.sets == ExpectedAddonSets(run.digits);
}

bool ReadMain(std::size_t elementsOfMain, Elements& elements, EanUpcReading& reading) {
  switch (elementsOfMain) {
    case 3 + 6 * 4 + 5 + 6 * 4 + 3:
      return ReadEan13(elements, reading);
    case 3 + 4 * 4 + 5 + 4 * 4 + 3:
      return ReadEan8(elements, reading);
    case 3 + 6 * 4 + 6:
      return ReadUpcE(elements, reading);
    default:
      return false;
  }
}

}  // namespace

char MissingCheckDigit(const std::string& digits) {
  for (char check = '0'; check <= '9'; ++check) {
    int total = Value(check);
    bool three = true;
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, three = !three) {
      total += three ? 3 * Value(*digit) : Value(*digit);
    }
    if (total % 10 == 0) return check;
  }
  return '?';
}

std::string ExpandedUpcE(const std::string& upcE) {
  const std::string n = upcE.substr(0, 1);
  const std::string six = upcE.substr(1, 6);
  const char last = six[5];
  if (last <= '2') return n + six.substr(0, 2) + last + "0000" + six.substr(2, 3);
  if (last == '3') return n + six.substr(0, 3) + "00000" + six.substr(3, 2);
  if (last == '4') return n + six.substr(0, 4) + "00000" + six.substr(4, 1);
  return n + six.substr(0, 5) + "0000" + last;
}

std::optional<EanUpcReading> ReadEanUpc(const std::string& moduleString) {
  const auto drawing = Measure(moduleString);
  if (!drawing) return std::nullopt;
  // No two of these sums are equal: 59, 43 or 33 elements, and 14 or 32 more with an add-on.
  for (const std::size_t addon : {0u, 1u + 3u + 2u * 4u + 2u, 1u + 3u + 5u * 4u + 4u * 2u}) {
    if (drawing->widths.size() < addon) continue;
    EanUpcReading reading;
    reading.leftQuiet = drawing->leftQuiet;
    reading.rightQuiet = drawing->rightQuiet;
    Elements elements(drawing->widths);
    if (!ReadMain(drawing->widths.size() - addon, elements, reading)) continue;
    if (addon > 0 && !ReadAddon(elements, reading)) continue;
    return reading;
  }
  return std::nullopt;
}

}  // namespace barhatch::test
