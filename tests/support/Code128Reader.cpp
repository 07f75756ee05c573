#include "support/Code128Reader.h"

#include "support/Modules.h"

namespace barhatch::test {

namespace {

constexpr std::size_t kCharacterModules = 11;

// The published characters as modules, 11 and a blank for each value from 0 on, five a row.
const std::string kCharacters =
    "11011001100 11001101100 11001100110 10010011000 10010001100 "
    "10001001100 10011001000 10011000100 10001100100 11001001000 "
    "11001000100 11000100100 10110011100 10011011100 10011001110 "
    "10111001100 10011101100 10011100110 11001110010 11001011100 "
    "11001001110 11011100100 11001110100 11101101110 11101001100 "
    "11100101100 11100100110 11101100100 11100110100 11100110010 "
    "11011011000 11011000110 11000110110 10100011000 10001011000 "
    "10001000110 10110001000 10001101000 10001100010 11010001000 "
    "11000101000 11000100010 10110111000 10110001110 10001101110 "
    "10111011000 10111000110 10001110110 11101110110 11010001110 "
    "11000101110 11011101000 11011100010 11011101110 11101011000 "
    "11101000110 11100010110 11101101000 11101100010 11100011010 "
    "11101111010 11001000010 11110001010 10100110000 10100001100 "
    "10010110000 10010000110 10000101100 10000100110 10110010000 "
    "10110000100 10011010000 10011000010 10000110100 10000110010 "
    "11000010010 11001010000 11110111010 11000010100 10001111010 "
    "10100111100 10010111100 10010011110 10111100100 10011110100 "
    "10011110010 11110100100 11110010100 11110010010 11011011110 "
    "11011110110 11110110110 10101111000 10100011110 10001011110 "
    "10111101000 10111100010 11110101000 11110100010 10111011110 "
    "10111101110 11101011110 11110101110 11010000100 11010010000 "
    "11010011100 11000111010 ";
enum class Set { kA, kB, kC };

std::string WithoutQuietZones(const std::string& letters) {
  const std::size_t first = letters.find('A');
  if (first == std::string::npos) return "";
  return letters.substr(first, letters.rfind('A') - first + 1);
}

std::optional<int> ValueOf(const std::string& letters) {
  std::string entry;
  for (char letter : letters) entry += letter == 'A' ? '1' : '0';
  for (std::size_t value = 0; value <= 106; ++value) {
    const std::size_t at = value * (kCharacterModules + 1);
    if (kCharacters.compare(at, kCharacterModules, entry) == 0) return static_cast<int>(value);
  }
  return std::nullopt;
}

std::optional<std::vector<int>> ReadValues(const std::string& letters) {
  const std::string stopAndBar = Modules("11000111010 11");
  if (letters.size() < stopAndBar.size()) return std::nullopt;
  const std::size_t stopAt = letters.size() - stopAndBar.size();
  if (stopAt % kCharacterModules != 0 || letters.substr(stopAt) != stopAndBar) return std::nullopt;
  std::vector<int> values;
  for (std::size_t at = 0; at < stopAt; at += kCharacterModules) {
    const std::optional<int> value = ValueOf(letters.substr(at, kCharacterModules));
    if (!value) return std::nullopt;
    values.push_back(*value);
  }
  return values;
}

bool CheckIsRight(const std::vector<int>& values) {
  int remainder = values.front();
  for (std::size_t i = 1; i + 1 < values.size(); ++i)
    remainder = (remainder + values[i] * static_cast<int>(i)) % 103;
  return remainder == values.back();
}

std::optional<Set> SetAfter(Set set, int value) {
  if (value == 99 && set != Set::kC) return Set::kC;
  if (value == 100 && set != Set::kB) return Set::kB;
  if (value == 101 && set != Set::kA) return Set::kA;
  return std::nullopt;
}

std::optional<std::string> DataOf(Set set, int value) {
  if (set == Set::kC) {
    if (value > 99) return std::nullopt;
    return std::string{static_cast<char>('0' + value / 10), static_cast<char>('0' + value % 10)};
  }
  if (value > 95) return std::nullopt;
  const bool isControl = set == Set::kA && value >= 64;
  return std::string(1, static_cast<char>(isControl ? value - 64 : value + 32));
}

std::optional<int> FunctionOf(Set set, int value) {
  if (value == 102) return kCode128Fnc1;
  if (value == 97 && set != Set::kC) return kCode128Fnc2;
  if (value == 96 && set != Set::kC) return kCode128Fnc3;
  return std::nullopt;
}

// A value that stands for something else than data or a switch.
bool IsShift(Set set, int value) { return value == 98 && set != Set::kC; }
bool IsFnc4(Set set, int value) {
  return (set == Set::kA && value == 101) || (set == Set::kB && value == 100);
}

// What the set and the FNC4s before it make of one value after the other.
class TextReader {
 public:
  explicit TextReader(Set set) : set_(set) {}

  bool Take(int value) {
    if (IsFnc4(set_, value)) return TakeFnc4();
    if (IsShift(set_, value)) {
      if (isShifted_) return false;
      isShifted_ = true;
      return true;
    }
    if (const std::optional<Set> next = SetAfter(set_, value)) {
      set_ = *next;
      return IsComplete();
    }
    if (const std::optional<int> function = FunctionOf(set_, value)) {
      items_.push_back(*function);
      return IsComplete();
    }
    return TakeData(value);
  }

  // Behind a shift or an FNC4 something has to follow.
  bool IsComplete() const { return !isShifted_ && !hasFnc4_; }
  const std::vector<int>& Items() const { return items_; }

 private:
  bool TakeFnc4() {
    if (isShifted_) return false;
    if (hasFnc4_) isLatched_ = !isLatched_;
    hasFnc4_ = !hasFnc4_;
    return true;
  }

  bool TakeData(int value) {
    const Set other = set_ == Set::kA ? Set::kB : Set::kA;
    const std::optional<std::string> data = DataOf(isShifted_ ? other : set_, value);
    if (!data) return false;
    const bool isHigh = set_ != Set::kC && isLatched_ != hasFnc4_;
    for (const char c : *data) items_.push_back(isHigh ? c + 128 : c);
    isShifted_ = false;
    hasFnc4_ = false;
    return true;
  }

  Set set_;
  bool isShifted_ = false;
  bool hasFnc4_ = false;  // for the next character alone
  bool isLatched_ = false;
  std::vector<int> items_;
};

std::optional<std::vector<int>> ReadItems(const std::vector<int>& values) {
  if (values.front() < 103 || values.front() > 105) return std::nullopt;
  TextReader reader(values.front() == 103 ? Set::kA : values.front() == 104 ? Set::kB : Set::kC);
  for (std::size_t i = 1; i + 1 < values.size(); ++i) {
    if (!reader.Take(values[i])) return std::nullopt;
  }
  if (!reader.IsComplete()) return std::nullopt;
  return reader.Items();
}

}  // namespace

std::string Code128Letters(int value) {
  return Modules(kCharacters.substr(static_cast<std::size_t>(value) * (kCharacterModules + 1),
                                    kCharacterModules));
}

std::optional<Code128Message> ReadCode128Message(const std::string& moduleString) {
  if (moduleString.find_first_not_of("Aa") != std::string::npos) return std::nullopt;
  const std::optional<std::vector<int>> values = ReadValues(WithoutQuietZones(moduleString));
  if (!values || values->size() < 2 || !CheckIsRight(*values)) return std::nullopt;
  const std::optional<std::vector<int>> items = ReadItems(*values);
  if (!items) return std::nullopt;
  return Code128Message{*values, *items};
}

std::optional<Code128Reading> ReadCode128(const std::string& moduleString) {
  const std::optional<Code128Message> message = ReadCode128Message(moduleString);
  if (!message) return std::nullopt;
  std::string text;
  for (const int item : message->items) {
    if (item > 255) return std::nullopt;
    text += static_cast<char>(item);
  }
  return Code128Reading{message->values, text};
}

}  // namespace barhatch::test
