#include "MatrixRequest.h"

#include <cstddef>
#include <cstdio>
#include <string>

#include "support/DataMatrixReader.h"
#include "support/SymbolSizeReference.h"
#include "support/TextClasses.h"

namespace barhatch::fuzz {

namespace {

using Items = std::vector<int>;

constexpr std::size_t kLongestText = 3500;
constexpr int kEciOfUtf8 = 26;

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

template <typename Bytes>
void AppendUtf8(Character code, Bytes& bytes) {
  const auto put = [&](Character byte) {
    bytes.push_back(static_cast<typename Bytes::value_type>(byte));
  };
  const auto follow = [&](int shift) { put(0x80 | (code >> shift & 0x3F)); };
  if (code < 0x80) return put(code);
  put(code < 0x800 ? 0xC0 | code >> 6 : code < 0x10000 ? 0xE0 | code >> 12 : 0xF0 | code >> 18);
  if (code >= 0x10000) follow(12);
  if (code >= 0x800) follow(6);
  follow(0);
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

// ---- What a reader gets ----

enum class Bytes { kAscii, kLatin1, kUtf8 };

bool HasWide(const MatrixRequest& request) {
  for (const Character character : request.characters) {
    if (character > 255 && character < kFnc1) return true;
  }
  return false;
}

bool HasDesignator(const MatrixRequest& request) {
  for (const Character character : request.characters) {
    if (character >= kFirstEci) return true;
  }
  return false;
}

// ECI 0 none. Without a designator of the text, characters above 255 ask for one.
int EciOf(const MatrixRequest& request) {
  if (request.job.eci != 0 || HasDesignator(request)) return request.job.eci;
  return HasWide(request) ? kEciOfUtf8 : 0;
}

Bytes BytesUnder(int eci) {
  if (eci == kEciOfUtf8) return Bytes::kUtf8;
  return eci == 0 || eci == 1 || eci == 3 ? Bytes::kLatin1 : Bytes::kAscii;
}

bool AppendBytes(Character character, Bytes bytes, Items& items) {
  if (bytes == Bytes::kUtf8) {
    AppendUtf8(character, items);
    return true;
  }
  items.push_back(static_cast<int>(character));
  return character < (bytes == Bytes::kAscii ? 128 : 256);
}

bool AppendText(const MatrixRequest& request, Items& items) {
  Bytes bytes = BytesUnder(EciOf(request));
  if (request.job.input == BARHATCH_BYTES) bytes = Bytes::kLatin1;
  for (const Character character : request.characters) {
    if (character >= kFirstEci) {
      const int eci = static_cast<int>(character - kFirstEci);
      items.push_back(test::ReadEci(eci));
      bytes = eci == kEciOfUtf8 ? Bytes::kUtf8 : Bytes::kLatin1;
    } else if (character == kFnc1) {
      items.push_back(test::kReadFnc1);
    } else if (!AppendBytes(character, bytes, items)) {
      return false;
    }
  }
  return true;
}

bool IsLetter(int item) { return (item >= 'A' && item <= 'Z') || (item >= 'a' && item <= 'z'); }
bool IsDigit(int item) { return item >= '0' && item <= '9'; }

// Items in front of which FNC1 is in second position: one letter or two digits; 0 for others.
std::size_t SecondPlace(const Items& items) {
  if (!items.empty() && IsLetter(items[0])) return 1;
  return items.size() > 1 && IsDigit(items[0]) && IsDigit(items[1]) ? 2 : 0;
}

// FNC1 that says what the symbol is, in front of those that separate: its place and 1; 0: none.
std::size_t MarkOf(const Items& items) {
  if (!items.empty() && items[0] == test::kReadFnc1) return 1;
  const std::size_t second = SecondPlace(items);
  const bool isThere = second != 0 && second < items.size() && items[second] == test::kReadFnc1;
  return isThere ? second + 1 : 0;
}

// FNC1 as the first codeword behind a macro header or the settings of a reader, or as the second
// behind a codeword, FNC1 itself among them, that is no letter and no pair of digits.
bool IsFnc1Misplaced(const Items& items, const BarhatchJob& job) {
  const bool isMacro = job.envelope == BARHATCH_ENVELOPE_05 || job.envelope == BARHATCH_ENVELOPE_06;
  const bool isSettings = (job.flags & BARHATCH_READER_PROGRAMMING) != 0;
  if (isMacro || isSettings) return items[0] == test::kReadFnc1;
  const bool isOneCodeword = items[0] < 128 || items[0] == test::kReadFnc1;
  return items.size() > 1 && items[1] == test::kReadFnc1 && MarkOf(items) < 2 && isOneCodeword;
}

// Head of ISO/IEC 15434 for the formats without a macro header.
const char* SpelledHeadOf(std::int32_t envelope) {
  constexpr const char* kFormat12 =
      "[)>\x1E"
      "12\x1D";
  constexpr const char* kFormatDd =
      "[)>\x1E"
      "DD\x1D";
  if (envelope == BARHATCH_ENVELOPE_12) return kFormat12;
  return envelope == BARHATCH_ENVELOPE_DD ? kFormatDd : nullptr;
}

void PrependHead(const BarhatchJob& job, Items& items) {
  int head = -1;
  if (job.envelope == BARHATCH_ENVELOPE_05) head = test::kReadMacro05;
  if (job.envelope == BARHATCH_ENVELOPE_06) head = test::kReadMacro06;
  if ((job.flags & BARHATCH_READER_PROGRAMMING) != 0) head = test::kReadReaderProgramming;
  if (job.parts != 0) {
    const int place = (job.part - 1) * 16 + 17 - job.parts;
    head = test::ReadStructuredAppend(place, job.part_id / 254 + 1, job.part_id % 254 + 1);
  }
  if (head >= 0) items.insert(items.begin(), head);
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

std::optional<Items> ItemsAskedFor(const MatrixRequest& request) {
  const BarhatchJob& job = request.job;
  const char* const head = SpelledHeadOf(job.envelope);
  Items items = head != nullptr ? test::ItemsOf(head) : Items();
  if (!AppendText(request, items)) return std::nullopt;
  if (head != nullptr) items.insert(items.end(), {0x1E, 0x04});
  std::size_t designatorAt = 0;
  if ((job.flags & BARHATCH_FNC1_SECOND) != 0) {
    const std::size_t second = SecondPlace(items);
    if (second == 0) return std::nullopt;
    items.insert(items.begin() + static_cast<std::ptrdiff_t>(second), test::kReadFnc1);
    designatorAt = second + 1;
  }
  if (EciOf(request) != 0) {
    items.insert(items.begin() + static_cast<std::ptrdiff_t>(designatorAt),
                 test::ReadEci(EciOf(request)));
  }
  if ((job.flags & BARHATCH_GS_SEPARATORS) != 0) {
    for (std::size_t i = MarkOf(items); i < items.size(); ++i)
      if (items[i] == test::kReadFnc1) items[i] = 29;
  }
  if (IsFnc1Misplaced(items, job)) return std::nullopt;
  PrependHead(job, items);
  return items;
}

}  // namespace barhatch::fuzz
