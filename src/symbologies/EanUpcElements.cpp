#include "symbologies/EanUpcElements.h"

#include <cassert>
#include <cstddef>
#include <cstring>

#include "job/CharacterClasses.h"
#include "symbologies/PatternRows.h"
#include "symbologies/PatternTables.h"

namespace barhatch {

namespace {

constexpr int kDigitModules = 7;
constexpr int kParityDigits = 6;

struct DigitModules {
  char sets[3][8];  // indexed by NumberSet
};

// Number sets of EAN/UPC: ISO/IEC 15420, GS1 General Specifications. First module first, 1 = dark.
constexpr DigitModules kDigits[] = {
    //  L (A)      G (B)      R (C)
    {{"0001101", "0100111", "1110010"}},  // 0
    {{"0011001", "0110011", "1100110"}},  // 1
    {{"0010011", "0011011", "1101100"}},  // 2
    {{"0111101", "0100001", "1000010"}},  // 3
    {{"0100011", "0011101", "1011100"}},  // 4
    {{"0110001", "0111001", "1001110"}},  // 5
    {{"0101111", "0000101", "1010000"}},  // 6
    {{"0111011", "0010001", "1000100"}},  // 7
    {{"0110111", "0001001", "1001000"}},  // 8
    {{"0001011", "0010111", "1110100"}},  // 9
};

struct DigitLetters {
  char sets[3][10][kDigitModules];  // indexed by NumberSet
};

constexpr DigitLetters MakeDigitLetters() {
  DigitLetters letters{};
  for (int set = 0; set < 3; ++set) {
    for (int digit = 0; digit < 10; ++digit) {
      for (int i = 0; i < kDigitModules; ++i)
        letters.sets[set][digit][i] = ModuleLetter(kDigits[digit].sets[set][i]);
    }
  }
  return letters;
}
constexpr DigitLetters kLetters = MakeDigitLetters();

// All thirty, set by set.
constexpr LetterTable<30, kDigitModules> ListDigits() {
  LetterTable<30, kDigitModules> list{};
  for (int row = 0; row < 30; ++row) {
    for (int i = 0; i < kDigitModules; ++i)
      list.rows[row][i] = kLetters.sets[row / 10][row % 10][i];
  }
  return list;
}
constexpr ModuleRows<kDigitModules> kDrawnDigits(ListDigits());

constexpr const char* ModulesOf(int digit, NumberSet set) {
  return kDigits[digit].sets[static_cast<int>(set)];
}

constexpr int CountOf(char symbol, const char* text) {
  int count = 0;
  for (; *text != '\0'; ++text) count += *text == symbol ? 1 : 0;
  return count;
}

constexpr bool SetsAreComplementAndReverse() {
  for (int digit = 0; digit < 10; ++digit) {
    for (int i = 0; i < 7; ++i) {
      if (ModulesOf(digit, NumberSet::kL)[i] == ModulesOf(digit, NumberSet::kR)[i]) return false;
      if (ModulesOf(digit, NumberSet::kG)[i] != ModulesOf(digit, NumberSet::kR)[6 - i])
        return false;
    }
  }
  return true;
}

constexpr bool DarkModulesAreOddInLEvenInG() {
  for (int digit = 0; digit < 10; ++digit) {
    if (CountOf('1', ModulesOf(digit, NumberSet::kL)) % 2 != 1) return false;
    if (CountOf('1', ModulesOf(digit, NumberSet::kG)) % 2 != 0) return false;
  }
  return true;
}
static_assert(sizeof(kDigits) / sizeof(kDigits[0]) == 10, "one row for each digit");
static_assert(SetsAreComplementAndReverse(), "R is the complement of L and G is R reversed");
static_assert(DarkModulesAreOddInLEvenInG(), "L has odd parity and G has even parity");

struct SixParities {
  char parities[7];
};

struct SixParitiesTable {
  SixParities rows[10];
};

// Parities of UPC-E number system 0 by check digit: ISO/IEC 15420. 1 = G, 0 = L.
constexpr SixParitiesTable kUpcESystem0 = {{
    {"111000"},  // 0
    {"110100"},  // 1
    {"110010"},  // 2
    {"110001"},  // 3
    {"101100"},  // 4
    {"100110"},  // 5
    {"100011"},  // 6
    {"101010"},  // 7
    {"101001"},  // 8
    {"100101"},  // 9
}};

constexpr SixParitiesTable ComplementOf(const SixParitiesTable& table) {
  SixParitiesTable complement = table;
  for (SixParities& row : complement.rows) {
    for (int i = 0; i < 6; ++i) row.parities[i] = row.parities[i] == '1' ? '0' : '1';
  }
  return complement;
}

constexpr SixParitiesTable WithFirstRow(SixParitiesTable table, const SixParities& row) {
  table.rows[0] = row;
  return table;
}

// Number system 1 (D-EAN-3) has the complementary parities, "000111" for check digit 0; EAN-13 has
// the same rows for the first digits 1 to 9 and L alone for 0, which makes it UPC-A.
constexpr SixParitiesTable kUpcESystem1 = ComplementOf(kUpcESystem0);
constexpr SixParitiesTable kFirstDigits = WithFirstRow(kUpcESystem1, {"000000"});

struct AddonParities {
  char parities[6];
};

// Parities of a two-digit add-on by its value modulo 4, of a five-digit one by its check value:
// ISO/IEC 15420. 1 = G, 0 = L.
constexpr AddonParities kAddon2Parities[] = {{"00"}, {"01"}, {"10"}, {"11"}};
constexpr AddonParities kAddon5Parities[] = {
    {"11000"},  // 0
    {"10100"},  // 1
    {"10010"},  // 2
    {"10001"},  // 3
    {"01100"},  // 4
    {"00110"},  // 5
    {"00011"},  // 6
    {"01010"},  // 7
    {"01001"},  // 8
    {"00101"},  // 9
};

// True when each of the ten rows has so many digits from G and none of them is there twice.
template <typename Row>
constexpr bool TenDistinctRowsOf(const Row (&rows)[10], int digitsFromG) {
  for (int i = 0; i < 10; ++i) {
    if (CountOf('1', rows[i].parities) != digitsFromG) return false;
    for (int j = 0; j < i; ++j) {
      if (IsSamePattern(rows[i].parities, rows[j].parities)) return false;
    }
  }
  return true;
}
static_assert(TenDistinctRowsOf(kUpcESystem0.rows, 3), "three digits of UPC-E come from G");
static_assert(TenDistinctRowsOf(kAddon5Parities, 2), "two digits of a long add-on come from G");

constexpr std::size_t kLayoutCount = sizeof(kEanUpcLayouts) / sizeof(kEanUpcLayouts[0]);

constexpr bool RowsAreIndexedBySymbol() {
  for (std::size_t i = 0; i < kLayoutCount; ++i) {
    if (static_cast<std::size_t>(kEanUpcLayouts[i].symbol) != i) return false;
  }
  return true;
}

constexpr bool EveryLayoutFits() {
  for (const EanUpcLayout& layout : kEanUpcLayouts) {
    const int working = layout.workingDigits + layout.addonDigits;
    if (static_cast<std::size_t>(working) >= kWorkingCapacity) return false;
  }
  return true;
}

// The '0' of UPC-A and a check digit that is not carried by parity.
constexpr bool WorkingDigitsAreThoseGivenAndAdded() {
  for (const EanUpcLayout& layout : kEanUpcLayouts) {
    const int zero = layout.firstDigit == FirstDigit::kBehindZero ? 1 : 0;
    const int check = layout.firstDigit == FirstDigit::kNumberSystem ? 0 : 1;
    if (layout.workingDigits != layout.mainDigits + zero + check) return false;
  }
  return true;
}
static_assert(kCheckModulus != 0, "the check digit is a remainder");
static_assert(kLayoutCount <= kVariantSymbols, "a variant has room for the symbol");
static_assert(kLayoutCount == 12, "four symbols, each plain and with two add-ons");
static_assert(RowsAreIndexedBySymbol(), "the symbol is the index of its row");
static_assert(WorkingDigitsAreThoseGivenAndAdded(), "the encoder adds two digits at most");
static_assert(EveryLayoutFits(), "digits fit the working copy");

constexpr int ValueOf(char digit) { return digit - '0'; }

// The set that a character of a parity stands for.
constexpr NumberSet SetOf(char parity) { return parity == '1' ? NumberSet::kG : NumberSet::kL; }

char* DrawDigit(char* at, char digit, NumberSet set) {
  return CopyLetters(at, kLetters.sets[static_cast<int>(set)][ValueOf(digit)]);
}

// Beside EAN the gap of the device is by the book.
int GapOf(int variant, const EanUpcLayout& layout, Conformance& how) {
  if (!how.IsInForce(Deviation::kDEAN_1)) {
    const int asked = AddonGapOf(variant);
    return asked != 0 ? asked : kAddonGapModules;
  }
  if (layout.firstDigit != FirstDigit::kGiven) how.Meet(Deviation::kDEAN_1);
  return kDeviceAddonGapModules;
}

}  // namespace

int CheckDigit(const char* digits, int count) {
  int sum = 0;
  for (int i = 0; i < count; ++i) {
    const int weight = (count - i) % 2 == 1 ? 3 : 1;
    sum += weight * ValueOf(digits[i]);
  }
  return (kCheckModulus - sum % kCheckModulus) % kCheckModulus;
}

void InsertCheckDigit(const EanUpcLayout& layout, char* working) {
  assert(std::strlen(working) + 1 ==
         static_cast<std::size_t>(layout.workingDigits + layout.addonDigits));
  const int position = layout.workingDigits - 1;
  std::memmove(working + position + 1, working + position,
               static_cast<std::size_t>(layout.addonDigits) + 1);
  working[position] = static_cast<char>('0' + CheckDigit(working, position));
}

const char* EncodeDigit(char digit, NumberSet set) { return ModulesOf(ValueOf(digit), set); }

bool FindDigit(const char* letters, DrawnDigit& found) {
  const int row = kDrawnDigits.Find(letters);
  if (row == kNoRow) return false;
  found = {static_cast<char>('0' + row % 10), static_cast<NumberSet>(row / 10)};
  return true;
}

const char* FirstDigitParity(char firstDigit) {
  return kFirstDigits.rows[ValueOf(firstDigit)].parities;
}

const char* UpcEParity(int numberSystem, int checkDigit) {
  if (numberSystem == 0) return kUpcESystem0.rows[checkDigit].parities;
  if (numberSystem == 1) return kUpcESystem1.rows[checkDigit].parities;
  return nullptr;
}

const char* AddonParity(const char* addon, int count) {
  if (count == 2) return kAddon2Parities[(10 * ValueOf(addon[0]) + ValueOf(addon[1])) % 4].parities;
  assert(count == 5);
  int sum = 0;
  for (int i = 0; i < 5; ++i) sum += (i % 2 == 0 ? 3 : 9) * ValueOf(addon[i]);
  return kAddon5Parities[sum % 10].parities;
}

void AppendDigits(SymbolWriter& out, const char* digits, const char* parity) {
  char* at = out.Room(kDigitModules * kParityDigits);
  if (at == nullptr) return;
  for (; *parity != '\0'; ++parity) at = DrawDigit(at, *digits++, SetOf(*parity));
}

void AppendDigits(SymbolWriter& out, const char* digits, int count, NumberSet set) {
  char* at = out.Room(static_cast<std::size_t>(kDigitModules * count));
  if (at == nullptr) return;
  for (int i = 0; i < count; ++i) at = DrawDigit(at, digits[i], set);
}

void AppendAddon(SymbolWriter& out, int variant, const char* addon, Conformance& how) {
  const EanUpcLayout& layout = EanUpcLayoutOf(variant);
  if (layout.addonDigits == 0) return;
  const char* parity = AddonParity(addon, layout.addonDigits);
  out.AppendSpace(GapOf(variant, layout, how));
  out.AppendModules(kAddonStartGuard);
  for (int i = 0; i < layout.addonDigits; ++i) {
    if (i > 0) out.AppendModules(kAddonSeparator);
    if (char* at = out.Room(kDigitModules)) DrawDigit(at, addon[i], SetOf(parity[i]));
  }
}

}  // namespace barhatch
