#include "symbologies/Code93Characters.h"

#include "job/CharacterClasses.h"
#include "symbologies/LetterTables.h"
#include "symbologies/PatternRows.h"
#include "symbologies/PatternTables.h"

namespace barhatch {

namespace {

struct Code93Character {
  char symbol[4];
  char modules[10];
};

// Code 93 characters in the order of their values: AIM USS Code 93, character set. ($), (%), (/)
// and (+) are the shift characters, * is start and stop.
// clang-format off
constexpr Code93Character kCode93Characters[] = {
    {"0", "100010100"},  // 0
    {"1", "101001000"},
    {"2", "101000100"},
    {"3", "101000010"},
    {"4", "100101000"},
    {"5", "100100100"},
    {"6", "100100010"},
    {"7", "101010000"},
    {"8", "100010010"},
    {"9", "100001010"},
    {"A", "110101000"},  // 10
    {"B", "110100100"},
    {"C", "110100010"},
    {"D", "110010100"},
    {"E", "110010010"},
    {"F", "110001010"},
    {"G", "101101000"},
    {"H", "101100100"},
    {"I", "101100010"},
    {"J", "100110100"},
    {"K", "100011010"},  // 20
    {"L", "101011000"},
    {"M", "101001100"},
    {"N", "101000110"},
    {"O", "100101100"},
    {"P", "100010110"},
    {"Q", "110110100"},
    {"R", "110110010"},
    {"S", "110101100"},
    {"T", "110100110"},
    {"U", "110010110"},  // 30
    {"V", "110011010"},
    {"W", "101101100"},
    {"X", "101100110"},
    {"Y", "100110110"},
    {"Z", "100111010"},
    {"-", "100101110"},
    {".", "111010100"},
    {" ", "111010010"},
    {"$", "111001010"},
    {"/", "101101110"},  // 40
    {"+", "101110110"},
    {"%", "110101110"},
    {"($)", "100100110"},
    {"(%)", "111011010"},
    {"(/)", "111010110"},
    {"(+)", "100110010"},
    {"*", "101011110"},  // 47
};
// clang-format on
constexpr auto kLetters = ModuleLetters(kCode93Characters, &Code93Character::modules);
constexpr ModuleRows<9> kValues(kLetters);
constexpr int kCode93CharacterCount = sizeof(kCode93Characters) / sizeof(kCode93Characters[0]);

constexpr bool ThreeBarsAndThreeSpacesEach() {
  for (const Code93Character& row : kCode93Characters) {
    if (Runs(row.modules) != 6 || row.modules[0] != '1' || row.modules[8] != '0') return false;
  }
  return true;
}
static_assert(kCode93CharacterCount == 48, "values 0 to 46 and start/stop");
static_assert(AllOfFullLength(kCode93Characters, &Code93Character::modules), "9 modules");
static_assert(ThreeBarsAndThreeSpacesEach(), "6 runs, the first dark, the last light");
static_assert(AllDistinct(kCode93Characters, &Code93Character::modules), "48 patterns");

constexpr signed char ValueOfCharacter(char character) {
  for (signed char value = 0; value < kCode93CheckModulus; ++value) {
    const char* symbol = kCode93Characters[value].symbol;
    if (symbol[0] == character && symbol[1] == '\0') return value;
  }
  return kCode93NoValue;
}

constexpr signed char ValueOfShift(char sign) {
  for (signed char shift = 0; shift < kCode93CheckModulus; ++shift) {
    const char* symbol = kCode93Characters[shift].symbol;
    if (symbol[0] == '(' && symbol[1] == sign) return shift;
  }
  return kCode93NoValue;
}

struct ShiftRange {
  char first;
  char last;
  char shift;
  char letter;  // of the first character; those up to the last take the letters that follow
};

// Full ASCII: AIM USS Code 93, table of character pairs. A character in no row is written as
// itself.
// clang-format off
constexpr ShiftRange kShiftRanges[] = {
    {'\x00', '\x00', '%', 'U'},  // NUL, (%)U
    {'\x01', '\x1A', '$', 'A'},  // SOH to SUB, ($)A to ($)Z
    {'\x1B', '\x1F', '%', 'A'},  // ESC to US, (%)A to (%)E
    {'!', '#', '/', 'A'},        // (/)A to (/)C
    {'&', '*', '/', 'F'},        // (/)F to (/)J
    {',', ',', '/', 'L'},        // (/)L
    {':', ':', '/', 'Z'},        // (/)Z
    {';', '?', '%', 'F'},        // (%)F to (%)J
    {'@', '@', '%', 'V'},        // (%)V
    {'[', '_', '%', 'K'},        // (%)K to (%)O
    {'`', '`', '%', 'W'},        // (%)W
    {'a', 'z', '+', 'A'},        // (+)A to (+)Z
    {'{', '\x7F', '%', 'P'},     // (%)P to (%)T
};
// clang-format on

constexpr Code93Expansion ExpansionOf(char byte) {
  for (const ShiftRange& range : kShiftRanges) {
    if (byte < range.first || byte > range.last) continue;
    const char letter = static_cast<char>(range.letter + (byte - range.first));
    return {2, {ValueOfShift(range.shift), ValueOfCharacter(letter)}};
  }
  return {1, {ValueOfCharacter(byte), kCode93NoValue}};
}

struct AsciiExpansions {
  Code93Expansion of[128];
};

constexpr AsciiExpansions ExpandAscii() {
  AsciiExpansions expansions{};
  for (int byte = 0; byte < 128; ++byte) {
    expansions.of[byte] = ExpansionOf(static_cast<char>(byte));
  }
  return expansions;
}
constexpr AsciiExpansions kAscii = ExpandAscii();
constexpr Code93Expansion kNoCharacter = {1, {kCode93NoValue, kCode93NoValue}};

// What the device writes for the signs that have characters of their own, by value from '$' on.
constexpr signed char kShiftOfSigns = ValueOfShift('/');
constexpr Code93Expansion kSignPairs[] = {
    {2, {kShiftOfSigns, ValueOfCharacter('D')}},  // $
    {2, {kShiftOfSigns, ValueOfCharacter('O')}},  // /
    {2, {kShiftOfSigns, ValueOfCharacter('K')}},  // +
    {2, {kShiftOfSigns, ValueOfCharacter('E')}},  // %
};
constexpr signed char kFirstPairedSign = ValueOfCharacter('$');
constexpr signed char kLastPairedSign = ValueOfCharacter('%');
static_assert(kLastPairedSign - kFirstPairedSign + 1 == sizeof kSignPairs / sizeof *kSignPairs,
              "the four signs have values in a row");

// The way back, by shift and value.
struct PairedCharacters {
  signed char characters[kCode93CheckModulus - kCode93FirstShift][kCode93CheckModulus];
};

constexpr void AddPair(PairedCharacters& pairs, const Code93Expansion& pair, int character) {
  pairs.characters[pair.values[0] - kCode93FirstShift][pair.values[1]] =
      static_cast<signed char>(character);
}

constexpr PairedCharacters MakePairs() {
  PairedCharacters pairs{};
  for (auto& ofShift : pairs.characters) {
    for (signed char& character : ofShift) character = kCode93NoValue;
  }
  for (int byte = 0; byte < 128; ++byte) {
    if (kAscii.of[byte].count == 2) AddPair(pairs, kAscii.of[byte], byte);
  }
  for (int sign = kFirstPairedSign; sign <= kLastPairedSign; ++sign)
    AddPair(pairs, kSignPairs[sign - kFirstPairedSign], kCode93Characters[sign].symbol[0]);
  return pairs;
}
constexpr PairedCharacters kPairs = MakePairs();
static_assert(ValueOfShift('$') == kCode93FirstShift, "the shift characters are the last four");

constexpr bool EveryAsciiCharacterHasValues() {
  for (int byte = 0; byte < 128; ++byte) {
    for (int i = 0; i < kAscii.of[byte].count; ++i) {
      if (kAscii.of[byte].values[i] == kCode93NoValue) return false;
    }
  }
  return true;
}
static_assert(EveryAsciiCharacterHasValues(), "full ASCII leaves no character out");

}  // namespace

const Code93Expansion& ExpandCode93(char byte, Conformance& how) {
  const signed char index = AsSignedByte(byte);
  if (index < 0) return kNoCharacter;
  const Code93Expansion& expansion = kAscii.of[index];
  const signed char value = expansion.values[0];
  const bool isPairedSign = value >= kFirstPairedSign && value <= kLastPairedSign;
  return isPairedSign && how.Deviates(Deviation::kD93_1) ? kSignPairs[value - kFirstPairedSign]
                                                         : expansion;
}

const char* Code93Letters(int value) { return kLetters.rows[value]; }

int Code93Value(const char* letters) { return kValues.Find(letters); }

char Code93CharacterOf(int value) { return kCode93Characters[value].symbol[0]; }

int Code93CharacterOfPair(int shift, int value) {
  return kPairs.characters[shift - kCode93FirstShift][value];
}

const char* Code93Modules(int value) {
  return value >= 0 && value < kCode93CharacterCount ? kCode93Characters[value].modules : nullptr;
}

}  // namespace barhatch
