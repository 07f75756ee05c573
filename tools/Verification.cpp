#include "Verification.h"

#include <fmt/core.h>

#include "Departures.h"
#include "Messages.h"

namespace preview {

namespace {

struct EanUpcText {
  std::int32_t type;
  std::size_t mainDigits;  // the add-on is behind them
};
constexpr EanUpcText kEanUpcTexts[] = {{3, 12},  {9, 11},  {10, 7}, {12, 7}, {13, 11}, {14, 11},
                                       {15, 12}, {16, 12}, {17, 7}, {18, 7}, {19, 7},  {20, 7}};

constexpr char kFnc1AsRead = '\x1D';

std::size_t MainDigitsOf(std::int32_t type) {
  for (const EanUpcText& row : kEanUpcTexts) {
    if (row.type == type) return row.mainDigits;
  }
  return 0;
}

bool IsUpcE(std::int32_t type) { return type == 10 || type == 19 || type == 20; }

char CheckDigitOf(const std::string& digits) {
  int sum = 0;
  int weight = 3;
  for (std::size_t i = digits.size(); i-- > 0; weight = 4 - weight) {
    sum += weight * (digits[i] - '0');
  }
  return static_cast<char>('0' + (10 - sum % 10) % 10);
}

// The UPC-A number that a number system and six digits stand for.
std::string Expanded(const std::string& upcE) {
  const std::string six = upcE.substr(1);
  const char last = six[5];
  if (last <= '2') return upcE.substr(0, 3) + last + "0000" + six.substr(2, 3);
  if (last == '3') return upcE.substr(0, 4) + "00000" + six.substr(3, 2);
  if (last == '4') return upcE.substr(0, 5) + "00000" + six[4];
  return upcE.substr(0, 6) + "0000" + last;
}

std::string EanUpcReading(std::int32_t type, const std::string& text) {
  const std::string main = text.substr(0, MainDigitsOf(type));
  const std::string addon = text.substr(main.size());
  const char check = CheckDigitOf(IsUpcE(type) ? Expanded(main) : main);
  return main + check + (addon.empty() ? "" : " " + addon);
}

std::string MatrixReading(const BarcodeText& text) {
  std::string bytes;
  for (const char16_t unit : text.units) {
    if (unit < 256) bytes += static_cast<char>(unit);
  }
  if (text.format != 2 && text.format != 3) return bytes;
  return std::string("[)>\x1E") + (text.format == 2 ? "05" : "06") + '\x1D' + bytes + "\x1E\x04";
}

std::string WithoutFnc1(std::string text) {
  const std::size_t at = text.find(kFnc1AsRead);
  if (at != std::string::npos) text.erase(at, 1);
  return text;
}

std::string Utf8Of(const std::string& latin1) {
  std::string utf8;
  for (const char c : latin1) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 128) {
      utf8 += static_cast<char>(0xC0 | byte >> 6);
      utf8 += static_cast<char>(0x80 | (byte & 0x3F));
    } else {
      utf8 += c;
    }
  }
  return utf8;
}

// EAN-13 with a 0 in front is UPC-A, and readers may tell it without the 0.
bool IsToldAsUpcA(const BarcodeText& text, const std::string& expected) {
  return text.kind == Kind::kLinear && MainDigitsOf(text.type) == 12 && expected[0] == '0';
}

bool IsAsExpected(const BarcodeText& text, const Reading& reading) {
  const std::string expected = ExpectedReading(text);
  if (reading.bytes == expected || reading.text == Utf8Of(expected)) return true;
  if (IsToldAsUpcA(text, expected) && reading.text == expected.substr(1)) return true;
  const bool hasFnc1 = text.kind == Kind::kDataMatrix && text.format == 1;
  return hasFnc1 && WithoutFnc1(reading.bytes) == WithoutFnc1(expected);
}

// ": D-39-2, ..." of the departures that let a reader report another text.
std::string Causes(const BarcodeText& text) {
  std::string causes;
  for (const Departure* departure : DeparturesTouching(text)) {
    if (departure->effect == Effect::kReadsAlike) continue;
    causes += fmt::format("{} {}, {}", causes.empty() ? ":" : ";", departure->id, departure->does);
  }
  return causes;
}

bool IsKnownToReaders(const BarcodeText& text) {
  return text.kind == Kind::kDataMatrix || (text.type != 4 && text.type != 11);
}

}  // namespace

std::string ExpectedReading(const BarcodeText& text) {
  if (text.kind == Kind::kDataMatrix) return MatrixReading(text);
  std::string narrow = NarrowText(text.units);
  if (MainDigitsOf(text.type) > 0) return EanUpcReading(text.type, narrow);
  if (text.type == 21 && narrow.size() % 2 != 0) return '0' + narrow;
  if (text.type == 0 && narrow.size() > 2) return narrow.substr(1, narrow.size() - 2);
  return narrow;
}

Verdict Judge(const BarcodeText& text, const std::optional<Reading>& reading) {
  if (!reading && !IsKnownToReaders(text)) {
    return {false, false, "cannot verify, the reader does not know this symbology"};
  }
  if (!reading) {
    return {false, true, "the reader finds no symbol in the picture" + Causes(text)};
  }
  const std::string found =
      fmt::format("{} reads {} {}", reading->reader, reading->format, Quoted(reading->text, 4000));
  if (IsAsExpected(text, *reading)) return {true, false, found};
  return {false, false,
          fmt::format("{} instead of {}{}", found, Quoted(Utf8Of(ExpectedReading(text)), 4000),
                      Causes(text))};
}

}  // namespace preview
