#include "MatrixRequest.h"

#include <cstddef>
#include <cstdio>
#include <string>

#include "support/SymbolSizeReference.h"
#include "support/TextClasses.h"

namespace barhatch::fuzz {

namespace {

constexpr std::size_t kLongestText = 3500;

// ---- Text ----

// From each length of UTF-8 and from both sides of its bounds.
constexpr Character kWide[16] = {0x100,   0x141,   0x17F,   0x3A9,   0x7FF,  0x800,
                                 0x20AC,  0x3042,  0xD7FF,  0xE000,  0xFFFD, 0xFFFF,
                                 0x10000, 0x1F600, 0xFFFFF, 0x10FFFF};
constexpr Character kDesignators[8] = {0, 3, 26, 126, 127, 16382, 16383, 999999};

struct Alphabet {
  int textClass;  // of TextClasses.h; beyond them each byte has its own, or is itself
  bool hasWide;
  bool hasFunctions;
};

Character OfClass(int textClass, std::uint8_t byte) {
  static const std::vector<std::string> classes = [] {
    std::vector<std::string> all;
    all.reserve(test::kTextClassCount);
    for (int i = 0; i < test::kTextClassCount; ++i) all.push_back(test::CharactersOfClass(i));
    return all;
  }();
  const std::string& characters = classes[static_cast<std::size_t>(textClass)];
  return static_cast<unsigned char>(characters[byte % characters.size()]);
}

Character CharacterOf(const Alphabet& alphabet, std::uint8_t byte) {
  if (alphabet.hasWide && byte >= 0xF0) return kWide[byte & 15];
  if (alphabet.hasFunctions && byte >= 0xE8 && byte < 0xF0)
    return kFirstEci + kDesignators[byte & 7];
  if (alphabet.hasFunctions && byte >= 0xE0 && byte < 0xE8) return kFnc1;
  if (alphabet.textClass < test::kTextClassCount) return OfClass(alphabet.textClass, byte);
  return alphabet.textClass == test::kTextClassCount ? OfClass(byte >> 5, byte & 31) : byte;
}

// The rest of the input, or that over and over up to a length of its own.
std::vector<std::uint8_t> BytesOf(FuzzInput& input) {
  const bool isRepeated = input.Byte() >= 128;
  std::size_t length = isRepeated ? 1 + input.Bits<std::uint16_t>() % kLongestText : kLongestText;
  std::vector<std::uint8_t> period;
  while (!input.IsEmpty() && period.size() < length) period.push_back(input.Byte());
  if (period.empty()) period.push_back(0);
  if (!isRepeated) length = period.size();
  std::vector<std::uint8_t> bytes;
  for (std::size_t i = 0; i < length; ++i) bytes.push_back(period[i % period.size()]);
  return bytes;
}

void AppendUnit(Character unit, std::vector<std::uint8_t>& bytes) {
  bytes.push_back(static_cast<std::uint8_t>(unit & 0xFF));
  bytes.push_back(static_cast<std::uint8_t>(unit >> 8));
}

void AppendUtf16(Character code, std::vector<std::uint8_t>& bytes) {
  if (code < 0x10000) return AppendUnit(code, bytes);
  AppendUnit(0xD800 + ((code - 0x10000) >> 10), bytes);
  AppendUnit(0xDC00 + ((code - 0x10000) & 0x3FF), bytes);
}

// Controls and bytes from 128 on by their numbers.
void AppendEscaped(Character character, std::vector<std::uint8_t>& bytes) {
  char escape[16] = "^^";
  if (character >= kFirstEci) {
    std::snprintf(escape, sizeof escape, "^ECI%06u", character - kFirstEci);
  } else if (character == kFnc1) {
    std::snprintf(escape, sizeof escape, "^FNC1");
  } else if (character < 256 && (character < 32 || character > 126)) {
    std::snprintf(escape, sizeof escape, "^%03u", character);
  } else if (character != '^') {
    return AppendUtf8(character, bytes);
  }
  for (const char* c = escape; *c != '\0'; ++c) bytes.push_back(static_cast<std::uint8_t>(*c));
}

void Append(std::int32_t form, Character character, std::vector<std::uint8_t>& bytes) {
  if (form == BARHATCH_UTF8) return AppendUtf8(character, bytes);
  if (form == BARHATCH_UNITS) return AppendUtf16(character, bytes);
  if (form == BARHATCH_ESCAPED) return AppendEscaped(character, bytes);
  bytes.push_back(static_cast<std::uint8_t>(character));
}

void ReadText(FuzzInput& input, MatrixRequest& request) {
  const std::int32_t form = request.job.input;
  const std::uint8_t choice = input.Byte();
  const bool hasBytes = form == BARHATCH_BYTES || form == BARHATCH_CODEWORDS;
  const Alphabet alphabet = {choice % (test::kTextClassCount + 2), !hasBytes && choice >= 128,
                             form == BARHATCH_ESCAPED};
  for (const std::uint8_t byte : BytesOf(input)) {
    request.characters.push_back(CharacterOf(alphabet, byte));
    Append(form, request.characters.back(), request.bytes);
  }
  request.job.length = request.bytes.size() / (form == BARHATCH_UNITS ? 2 : 1);
}

// ---- Options ----

void ReadHead(FuzzInput& input, BarhatchJob& job) {
  constexpr std::int32_t kEnvelopes[] = {BARHATCH_ENVELOPE_05, BARHATCH_ENVELOPE_06,
                                         BARHATCH_ENVELOPE_12, BARHATCH_ENVELOPE_DD};
  const int choice = input.Byte() % 12;
  if (choice < 4) job.envelope = kEnvelopes[choice];
  if (choice == 4) job.flags |= BARHATCH_READER_PROGRAMMING;
  if (choice != 5) return;
  job.parts = 2 + input.Byte() % 15;
  job.part = 1 + input.Byte() % job.parts;
  job.part_id = input.Bits<std::uint16_t>() % 64516;
}

void ReadFlags(FuzzInput& input, BarhatchJob& job) {
  constexpr std::uint32_t kFlags[] = {BARHATCH_FNC1_SECOND, BARHATCH_GS_SEPARATORS,
                                      BARHATCH_LOOSE_END,   BARHATCH_INDUSTRY_144,
                                      BARHATCH_MAY_GROW,    BARHATCH_NO_PROOF};
  const std::uint8_t choice = input.Byte();
  for (int bit = 0; bit < 6; ++bit) job.flags |= (choice >> bit & 1) != 0 ? kFlags[bit] : 0;
}

void ReadEci(FuzzInput& input, BarhatchJob& job) {
  const std::uint8_t choice = input.Byte();
  if (choice < 32) job.eci = choice;
  if (choice >= 32 && choice < 64) job.eci = input.Bits<std::int32_t>() & 0xFFFFF;
}

// Sizes of ISO/IEC 21471.
constexpr int kDmre[][2] = {{8, 48},  {8, 64},  {8, 80},  {8, 96},  {8, 120}, {8, 144},
                            {12, 64}, {12, 88}, {16, 64}, {20, 36}, {20, 44}, {20, 64},
                            {22, 48}, {24, 48}, {24, 64}, {26, 40}, {26, 48}, {26, 64}};

// False where there may be no such size.
bool ReadSize(FuzzInput& input, BarhatchJob& job) {
  const std::vector<test::ReferenceSize> sizes = test::ReferenceSizes();
  constexpr std::size_t kDmreCount = sizeof kDmre / sizeof kDmre[0];
  job.shape = input.Byte() % 6;
  const std::size_t choice = input.Byte();
  if (choice < sizes.size()) {
    job.rows = sizes[choice].rows;
    job.columns = sizes[choice].columns;
  } else if (choice < sizes.size() + kDmreCount) {
    job.rows = kDmre[choice - sizes.size()][0];
    job.columns = kDmre[choice - sizes.size()][1];
  } else if (choice >= 240) {
    job.rows = input.Byte();
    job.columns = input.Byte();
    return false;
  }
  return true;
}

bool IsOdd(const BarhatchJob& job) {
  const bool hasHead = job.envelope != 0 || job.parts != 0 || job.eci != 0 ||
                       (job.flags & BARHATCH_READER_PROGRAMMING) != 0;
  constexpr std::uint32_t kOfText =
      BARHATCH_FNC1_SECOND | BARHATCH_GS_SEPARATORS | BARHATCH_LOOSE_END;
  const bool isForText = hasHead || (job.flags & kOfText) != 0;
  const bool isSecond = (job.flags & BARHATCH_FNC1_SECOND) != 0;
  const bool isApart = job.envelope != 0 || (job.flags & BARHATCH_READER_PROGRAMMING) != 0;
  return job.eci > 999999 || job.shape == 3 || (job.input == BARHATCH_CODEWORDS && isForText) ||
         (isSecond && isApart);
}

}  // namespace

MatrixRequest ReadMatrixRequest(FuzzInput& input) {
  constexpr std::int32_t kForms[] = {BARHATCH_BYTES, BARHATCH_UTF8,    BARHATCH_ESCAPED,
                                     BARHATCH_UNITS, BARHATCH_ESCAPED, BARHATCH_CODEWORDS};
  MatrixRequest request;
  BarhatchJob& job = request.job;
  job.size = sizeof job;
  job.symbology = BARHATCH_DATA_MATRIX;
  job.input = kForms[input.Byte() % 6];
  job.want = BARHATCH_WANT_MODULES | BARHATCH_WANT_VALUES | BARHATCH_WANT_READING;
  ReadFlags(input, job);
  ReadHead(input, job);
  ReadEci(input, job);
  const bool isKnownSize = ReadSize(input, job);
  request.hasOddOption = !isKnownSize || IsOdd(job);
  ReadText(input, request);
  return request;
}

}  // namespace barhatch::fuzz
