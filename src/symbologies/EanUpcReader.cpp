#include <cstring>

#include "symbologies/EanUpcElements.h"
#include "symbologies/FamilyReaders.h"
#include "symbologies/PatternRows.h"
#include "symbologies/UpcE.h"

namespace barhatch {

namespace {

constexpr int kMostDigits = 13;
constexpr std::size_t kDigitModules = 7;
constexpr char kParityOfSet[] = "01R";  // by NumberSet: L, G and R
constexpr char kAllL[] = "000000";
constexpr char kAllR[] = "RRRRRR";

// Digits of a symbol as they come, and the parity of each.
struct Digits {
  char digits[kMostDigits + 1];
  char parity[kMostDigits + 1];
};

// Takes a symbol from left to right. REQUIRES: letters for all that is asked for.
class EanUpcLetters {
 public:
  explicit EanUpcLetters(const char* letters) : next_(letters) {}

  template <std::size_t kSize>
  bool HasGuard(const char (&guard)[kSize]) {
    const char* const letters = next_;
    next_ += kSize - 1;
    return AreModules(letters, guard);
  }

  bool HasSpace(std::size_t modules) {
    for (; modules > 0; --modules) {
      if (*next_++ != kNarrowSpace) return false;
    }
    return true;
  }

  // Fills places from first on.
  bool HasDigits(Digits& digits, int first, int count) {
    for (int i = first; i < first + count; ++i, next_ += kDigitModules) {
      DrawnDigit found;
      if (!FindDigit(next_, found)) return false;
      digits.digits[i] = found.digit;
      digits.parity[i] = kParityOfSet[static_cast<int>(found.set)];
    }
    return true;
  }

 private:
  const char* next_;
};

bool HaveParity(const Digits& digits, int first, int count, const char* parity) {
  return std::memcmp(digits.parity + first, parity, static_cast<std::size_t>(count)) == 0;
}

void Report(SymbolReading& reading, const char* digits, int count) {
  for (int i = 0; i < count; ++i) AddDigit(reading, digits[i] - '0');
}

bool HasCheckDigit(const char* digits, int count) {
  return digits[count - 1] == '0' + CheckDigit(digits, count - 1);
}

// The digit 0..9 whose row of parities the left half of EAN-13 has, 10 for none.
int FirstDigitOf(const Digits& digits) {
  int first = 0;
  while (first < 10 &&
         !HaveParity(digits, 1, 6, FirstDigitParity(static_cast<char>('0' + first)))) {
    ++first;
  }
  return first;
}

// Number system and check digit as the parities of UPC-E say.
bool FindUpcEEnds(Digits& digits) {
  for (int system = 0; system < 2; ++system) {
    for (int check = 0; check < 10; ++check) {
      if (!HaveParity(digits, 1, 6, UpcEParity(system, check))) continue;
      digits.digits[0] = static_cast<char>('0' + system);
      digits.digits[7] = static_cast<char>('0' + check);
      return UpcECheckDigit(digits.digits) == check;
    }
  }
  return false;
}

bool ReadAddon(EanUpcLetters letters, int count, SymbolReading& reading) {
  Digits addon{};
  if (!letters.HasGuard(kAddonStartGuard) || !letters.HasDigits(addon, 0, 1)) return false;
  for (int i = 1; i < count; ++i) {
    if (!letters.HasGuard(kAddonSeparator) || !letters.HasDigits(addon, i, 1)) return false;
  }
  if (!HaveParity(addon, 0, count, AddonParity(addon.digits, count))) return false;
  AddText(reading, ' ');
  Report(reading, addon.digits, count);
  return true;
}

// The gap and an add-on of so many digits to the last letter.
bool ReadGapAndAddon(int digits, const char* letters, std::size_t length, SymbolReading& reading) {
  const std::size_t addon = static_cast<std::size_t>(AddonModules(digits));
  if (length < addon + kLeastAddonGapModules || length > addon + kMostAddonGapModules) return false;
  EanUpcLetters next(letters);
  return next.HasSpace(length - addon) && ReadAddon(next, digits, reading);
}

// What stands behind the main symbol: the add-on of the layout; of one without, any add-on or
// nothing.
bool ReadRest(const EanUpcLayout& layout, const char* letters, std::size_t length,
              SymbolReading& reading) {
  const int digits = layout.addonDigits;
  if (digits != 0) return ReadGapAndAddon(digits, letters, length, reading);
  return length == 0 || ReadGapAndAddon(2, letters, length, reading) ||
         ReadGapAndAddon(5, letters, length, reading);
}

bool HasRoom(const EanUpcLayout& layout, std::size_t length) {
  return length >= static_cast<std::size_t>(layout.mainModules);
}

bool ReadRestOf(const EanUpcLayout& layout, const char* letters, std::size_t length,
                SymbolReading& reading) {
  const std::size_t main = static_cast<std::size_t>(layout.mainModules);
  return ReadRest(layout, letters + main, length - main, reading);
}

}  // namespace

bool ReadEan13UpcA(const char* letters, std::size_t length, ReaderSetting setting,
                   SymbolReading& reading) {
  const EanUpcLayout& layout = kEanUpcLayouts[setting.variant];
  if (!HasRoom(layout, length)) return false;
  EanUpcLetters main(letters);
  Digits digits{};
  if (!main.HasGuard(kNormalGuard) || !main.HasDigits(digits, 1, 6) ||
      !main.HasGuard(kCentreGuard) || !main.HasDigits(digits, 7, 6) ||
      !main.HasGuard(kNormalGuard) || !HaveParity(digits, 7, 6, kAllR)) {
    return false;
  }
  const int first = FirstDigitOf(digits);
  const bool isUpcA = layout.firstDigit == FirstDigit::kBehindZero;
  if (first > (isUpcA ? 0 : 9)) return false;
  digits.digits[0] = static_cast<char>('0' + first);
  const int left = isUpcA ? 1 : 0;
  Report(reading, digits.digits + left, 13 - left);
  return HasCheckDigit(digits.digits, 13) && ReadRestOf(layout, letters, length, reading);
}

bool ReadEan8(const char* letters, std::size_t length, ReaderSetting setting,
              SymbolReading& reading) {
  const EanUpcLayout& layout = kEanUpcLayouts[setting.variant];
  if (!HasRoom(layout, length)) return false;
  EanUpcLetters main(letters);
  Digits digits{};
  if (!main.HasGuard(kNormalGuard) || !main.HasDigits(digits, 0, 4) ||
      !main.HasGuard(kCentreGuard) || !main.HasDigits(digits, 4, 4) ||
      !main.HasGuard(kNormalGuard) || !HaveParity(digits, 0, 4, kAllL) ||
      !HaveParity(digits, 4, 4, kAllR)) {
    return false;
  }
  Report(reading, digits.digits, 8);
  return HasCheckDigit(digits.digits, 8) && ReadRestOf(layout, letters, length, reading);
}

bool ReadUpcE(const char* letters, std::size_t length, ReaderSetting setting,
              SymbolReading& reading) {
  const EanUpcLayout& layout = kEanUpcLayouts[setting.variant];
  if (!HasRoom(layout, length)) return false;
  EanUpcLetters main(letters);
  Digits digits{};
  if (!main.HasGuard(kNormalGuard) || !main.HasDigits(digits, 1, 6) ||
      !main.HasGuard(kUpcEEndGuard) || !FindUpcEEnds(digits)) {
    return false;
  }
  Report(reading, digits.digits, 8);
  return ReadRestOf(layout, letters, length, reading);
}

}  // namespace barhatch
