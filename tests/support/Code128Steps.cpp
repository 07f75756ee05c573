#include "support/Code128Steps.h"

namespace barhatch::test {

namespace {

using Values = std::vector<int>;

constexpr std::size_t kFull = 80;

bool DigitAt(const std::string& text, std::size_t n) {
  return n < text.size() && text[n] >= '0' && text[n] <= '9';
}

bool DigitsAt(const std::string& text, std::size_t n, std::size_t count) {
  for (std::size_t i = n; i < n + count; ++i) {
    if (!DigitAt(text, i)) return false;
  }
  return true;
}

int CharacterAt(const std::string& text, std::size_t n) { return text[n] - 32; }

int PairAt(const std::string& text, std::size_t n) { return std::stoi(text.substr(n, 2)); }

bool IsLowerRangeAt(const std::string& text, std::size_t n) {
  return n < text.size() && text[n] >= 96 && text[n] <= 126;
}

Values Type5Short(const std::string& text) {
  bool inB = !(text.size() == 2 && DigitsAt(text, 0, 2));
  Values values{inB ? 104 : 105};
  std::size_t n = 0;
  while (n < text.size()) {
    const bool beganInB = inB;
    if (inB) {
      values.push_back(CharacterAt(text, n));
      n += 1;
    } else if (DigitsAt(text, n, 2)) {
      values.push_back(PairAt(text, n));
      n += 2;
    }
    if (beganInB && DigitsAt(text, n, 2)) {
      values.push_back(99);
      inB = false;
    }
  }
  return values;
}

bool EntersSetCAt(const std::string& text, std::size_t n) {
  const std::size_t remaining = text.size() - n;
  if (remaining >= 4 && DigitsAt(text, n, 4)) {
    std::size_t end = n;
    while (DigitAt(text, end)) end += 1;
    return (end - n) % 2 == 0;
  }
  return remaining == 2 && DigitsAt(text, n, 2);
}

Values Type5Long(const std::string& text) {
  const std::size_t length = text.size();
  bool inB = !DigitsAt(text, 0, 4);
  Values values{inB ? 104 : 105};
  std::size_t n = 0;
  while (n < length && values.size() < kFull) {
    const bool beganInB = inB;
    if (beganInB) {
      values.push_back(CharacterAt(text, n));
      n += 1;
    } else if (DigitsAt(text, n, 2)) {
      values.push_back(PairAt(text, n));
      n += 2;
    } else if (n < length - 1) {
      values.push_back(100);
      values.push_back(CharacterAt(text, n));
      n += 1;
      inB = true;
      continue;
    } else {
      values.push_back(CharacterAt(text, n));
      n += 1;
    }
    if (beganInB && EntersSetCAt(text, n)) {
      values.push_back(99);
      inB = false;
    }
    if (!inB && n < length - 1 && !DigitAt(text, n)) {
      values.push_back(100);
      inB = true;
    }
  }
  return values;
}

Values Type6(const std::string& text) {
  bool inA = !IsLowerRangeAt(text, 0);
  Values values{inA ? 103 : 104};
  for (std::size_t n = 0; n < text.size() && values.size() < kFull; ++n) {
    values.push_back(CharacterAt(text, n));
    if (inA && IsLowerRangeAt(text, n + 1)) {
      values.push_back(100);
      inA = false;
    }
  }
  return values;
}

Values Type7(const std::string& text) {
  Values values{104};
  for (std::size_t n = 0; n < text.size() && values.size() < kFull; ++n)
    values.push_back(CharacterAt(text, n));
  return values;
}

Values Type8(const std::string& text) {
  bool inC = DigitsAt(text, 0, 2);
  Values values{inC ? 105 : 104};
  std::size_t n = 0;
  while (n < text.size() && values.size() < kFull) {
    if (inC && DigitsAt(text, n, 2)) {
      values.push_back(PairAt(text, n));
      n += 2;
    } else if (inC) {
      values.push_back(100);
      values.push_back(CharacterAt(text, n));
      n += 1;
      inC = false;
    } else {
      values.push_back(CharacterAt(text, n));
      n += 1;
    }
  }
  return values;
}

Values WithoutCheck(int type, const std::string& text) {
  switch (type) {
    case 5:
      return text.size() < 4 ? Type5Short(text) : Type5Long(text);
    case 6:
      return Type6(text);
    case 7:
      return Type7(text);
    default:
      return Type8(text);
  }
}

}  // namespace

std::vector<int> Code128StepValues(int type, const std::string& text) {
  Values values = WithoutCheck(type, text);
  int sum = values[0];
  for (std::size_t i = 1; i < values.size(); ++i) sum += values[i] * static_cast<int>(i);
  values.push_back(sum % 103);
  return values;
}

}  // namespace barhatch::test
