#include "symbologies/Code128Patterns.h"

#include <cassert>

#include "symbologies/LetterTables.h"
#include "symbologies/PatternRows.h"
#include "symbologies/PatternTables.h"

namespace barhatch {

namespace {

struct Code128Character {
  std::uint8_t value;
  char widths[7];
};

// Code 128 symbol characters: ISO/IEC 15417, symbol character encodation. Element widths in
// modules, left to right.
// clang-format off
constexpr Code128Character kCode128Characters[] = {
    //   BSBSBS
    {0, "212222"},
    {1, "222122"},
    {2, "222221"},
    {3, "121223"},
    {4, "121322"},
    {5, "131222"},
    {6, "122213"},
    {7, "122312"},
    {8, "132212"},
    {9, "221213"},
    {10, "221312"},
    {11, "231212"},
    {12, "112232"},
    {13, "122132"},
    {14, "122231"},
    {15, "113222"},
    {16, "123122"},
    {17, "123221"},
    {18, "223211"},
    {19, "221132"},
    {20, "221231"},
    {21, "213212"},
    {22, "223112"},
    {23, "312131"},
    {24, "311222"},
    {25, "321122"},
    {26, "321221"},
    {27, "312212"},
    {28, "322112"},
    {29, "322211"},
    {30, "212123"},
    {31, "212321"},
    {32, "232121"},
    {33, "111323"},
    {34, "131123"},
    {35, "131321"},
    {36, "112313"},
    {37, "132113"},
    {38, "132311"},
    {39, "211313"},
    {40, "231113"},
    {41, "231311"},
    {42, "112133"},
    {43, "112331"},
    {44, "132131"},
    {45, "113123"},
    {46, "113321"},
    {47, "133121"},
    {48, "313121"},
    {49, "211331"},
    {50, "231131"},
    {51, "213113"},
    {52, "213311"},
    {53, "213131"},
    {54, "311123"},
    {55, "311321"},
    {56, "331121"},
    {57, "312113"},
    {58, "312311"},
    {59, "332111"},
    {60, "314111"},
    {61, "221411"},
    {62, "431111"},
    {63, "111224"},
    {64, "111422"},
    {65, "121124"},
    {66, "121421"},
    {67, "141122"},
    {68, "141221"},
    {69, "112214"},
    {70, "112412"},
    {71, "122114"},
    {72, "122411"},
    {73, "142112"},
    {74, "142211"},
    {75, "241211"},
    {76, "221114"},
    {77, "413111"},
    {78, "241112"},
    {79, "134111"},
    {80, "111242"},
    {81, "121142"},
    {82, "121241"},
    {83, "114212"},
    {84, "124112"},
    {85, "124211"},
    {86, "411212"},
    {87, "421112"},
    {88, "421211"},
    {89, "212141"},
    {90, "214121"},
    {91, "412121"},
    {92, "111143"},
    {93, "111341"},
    {94, "131141"},
    {95, "114113"},
    {96, "114311"},
    {97, "411113"},
    {98, "411311"},
    {99, "113141"},  // switch to C
    {100, "114131"},  // switch to B
    {101, "311141"},
    {102, "411131"},
    {103, "211412"},  // start A
    {104, "211214"},  // start B
    {105, "211232"},  // start C
    {106, "233111"},  // stop, without the termination bar
};
// clang-format on
constexpr int kCode128CharacterCount = sizeof(kCode128Characters) / sizeof(kCode128Characters[0]);

constexpr int WidthAt(const Code128Character& row, int element) {
  return row.widths[element] - '0';
}

constexpr int BarModules(const Code128Character& row) {
  return WidthAt(row, 0) + WidthAt(row, 2) + WidthAt(row, 4);
}

constexpr int SpaceModules(const Code128Character& row) {
  return WidthAt(row, 1) + WidthAt(row, 3) + WidthAt(row, 5);
}

constexpr bool WidthsAreOneToFour(const Code128Character& row) {
  for (int i = 0; i < 6; ++i) {
    if (WidthAt(row, i) < 1 || WidthAt(row, i) > 4) return false;
  }
  return row.widths[6] == '\0';
}

constexpr bool RowsAreInValueOrder() {
  for (int i = 0; i < kCode128CharacterCount; ++i) {
    if (kCode128Characters[i].value != i) return false;
  }
  return true;
}

constexpr bool RowsHaveElevenModulesAndEvenBars() {
  for (const Code128Character& row : kCode128Characters) {
    if (!WidthsAreOneToFour(row) || BarModules(row) % 2 != 0) return false;
    if (BarModules(row) + SpaceModules(row) != kCode128CharacterModules) return false;
  }
  return true;
}

static_assert(kCode128CharacterCount == kCode128Stop + 1, "values 0 to 106");
static_assert(RowsAreInValueOrder(), "the value is the index of its row");
static_assert(RowsHaveElevenModulesAndEvenBars(), "11 modules, an even number of them dark");
static_assert(AllDistinct(kCode128Characters, &Code128Character::widths), "107 patterns");

constexpr LetterTable<kCode128CharacterCount, kCode128CharacterModules> ExpandWidths() {
  LetterTable<kCode128CharacterCount, kCode128CharacterModules> letters{};
  for (int value = 0; value < kCode128CharacterCount; ++value) {
    int module = 0;
    for (int i = 0; i < 6; ++i) {
      const int end = module + WidthAt(kCode128Characters[value], i);
      while (module < end) letters.rows[value][module++] = ModuleLetter(i % 2 == 0 ? '1' : '0');
    }
  }
  return letters;
}
constexpr auto kLetters = ExpandWidths();
constexpr ModuleRows<kCode128CharacterModules> kValues(kLetters);

constexpr int kCheckModulus = 103;

}  // namespace

const char* Code128Widths(int value) {
  return value >= 0 && value < kCode128CharacterCount ? kCode128Characters[value].widths : nullptr;
}

int Code128Value(const char* letters) { return kValues.Find(letters); }

void AppendCode128Characters(SymbolWriter& out, const std::uint8_t* values, int count) {
  char* at = out.Room(static_cast<std::size_t>(count * kCode128CharacterModules));
  if (at == nullptr) return;
  for (int i = 0; i < count; ++i) {
    assert(values[i] < kCode128CharacterCount);
    at = CopyLetters(at, kLetters.rows[values[i]]);
  }
}

void AppendCode128Stop(SymbolWriter& out) {
  out.AppendLetters(kLetters.rows[kCode128Stop]);
  out.AppendModules(kCode128TerminationBar);
}

std::uint8_t Code128CheckValue(const std::uint8_t* values, int count) {
  assert(count > 0);
  int sum = values[0];
  for (int position = 1; position < count; ++position) sum += values[position] * position;
  return static_cast<std::uint8_t>(sum % kCheckModulus);
}

}  // namespace barhatch
