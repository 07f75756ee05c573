#include "RandomPublishedJobs.h"

#include <cstdio>

#include "support/PlainGrid.h"
#include "support/TextClasses.h"

namespace barhatch::test {

namespace {

constexpr std::uint32_t kFlags = 11;  // bits of BarhatchFlag

std::string Utf8Of(std::uint32_t code) {
  const auto byte = [](std::uint32_t value) { return std::string(1, static_cast<char>(value)); };
  const auto rest = [&](int shift) { return byte(0x80 | (code >> shift & 0x3F)); };
  if (code < 0x80) return byte(code);
  if (code < 0x800) return byte(0xC0 | code >> 6) + rest(0);
  if (code < 0x10000) return byte(0xE0 | code >> 12) + rest(6) + rest(0);
  return byte(0xF0 | code >> 18) + rest(12) + rest(6) + rest(0);
}

std::u16string UnitsOf(std::uint32_t code) {
  if (code < 0x10000) return {static_cast<char16_t>(code)};
  const std::uint32_t above = code - 0x10000;
  return {static_cast<char16_t>(0xD800 + (above >> 10)),
          static_cast<char16_t>(0xDC00 + (above & 0x3FF))};
}

bool NeedsEscapes(const PublishedJob& made) {
  for (const std::uint32_t item : made.says) {
    if (!IsCharacter(item)) return true;
  }
  return false;
}

bool IsAllBelow(const PublishedJob& made, std::uint32_t limit) {
  for (const std::uint32_t item : made.says) {
    if (item >= limit) return false;
  }
  return true;
}

}  // namespace

void PublishedJob::Say(const std::string& text) {
  for (const char byte : text) says.push_back(static_cast<unsigned char>(byte));
}

BarhatchJob PublishedJob::Job() const {
  BarhatchJob job = options;
  const bool isInUnits = job.input == BARHATCH_UNITS;
  job.text = isInUnits ? static_cast<const void*>(units.c_str()) : bytes.c_str();
  job.length = isInUnits ? units.size() : bytes.size();
  return job;
}

std::string RandomPublishedJobs::Text(const std::string& alphabet, std::size_t shortest,
                                      std::size_t longest) {
  std::string text(shortest + Below(longest - shortest + 1), '\0');
  for (char& character : text) character = alphabet[Below(alphabet.size())];
  return text;
}

// As long as texts of marks are, and now and then longer.
std::string RandomPublishedJobs::Data(const std::string& alphabet) {
  return Text(alphabet, 1, OneIn(12) ? 150 : 20);
}

std::string RandomPublishedJobs::AnyBytes() {
  const auto length = 1 + Below(OneIn(12) ? 150 : 24);
  return RandomText(random_, static_cast<int>(Below(kTextClassCount)), length);
}

PublishedJob RandomPublishedJobs::Next() {
  PublishedJob made;
  made.options.size = sizeof made.options;
  made.options.want = BARHATCH_WANT_MODULES | BARHATCH_WANT_READING;
  MakeSound(made);
  const bool isElements = made.options.input == BARHATCH_GS1;
  const std::size_t wrong = Below(8);
  if (wrong == 0 && !isElements) SpoilText(made);
  if (wrong == 1) SpoilOptions(made);
  if (!isElements) ChooseInput(made);
  Give(made);
  if (wrong == 2) SpoilBytes(made);
  return made;
}

void RandomPublishedJobs::MakeSound(PublishedJob& made) {
  constexpr std::size_t kLinear = 25;
  const std::size_t symbology = Below(kLinear + 10);
  std::int32_t& number = made.options.symbology;
  number = symbology < 23   ? static_cast<std::int32_t>(symbology)
           : symbology < 25 ? 101 + static_cast<std::int32_t>(symbology - 23)
                            : 100;
  const bool hasFunctions = (number >= 5 && number <= 8) || number == BARHATCH_DATA_MATRIX;
  if (hasFunctions && number != BARHATCH_CODE_128_B && OneIn(5)) return MakeElements(made);
  if (number == BARHATCH_DATA_MATRIX) return MakeMatrix(made);
  if (hasFunctions) return MakeCode128(made);
  made.Say(LinearText(made));
}

std::string RandomPublishedJobs::LinearText(PublishedJob& made) {
  const std::string code39 = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%";
  switch (made.options.symbology) {
    case BARHATCH_CODABAR:
      return CodabarText(made);
    case BARHATCH_CODE_39:
      return Code39Text(made);
    case BARHATCH_CODE_93:
      return Data(code39);
    case BARHATCH_CODE_93_FULL:
      return Data(Bytes(0, 127));
    case BARHATCH_CODE_39_FULL:
      return Code39FullText(made);
    case BARHATCH_MSI:
      return MsiText(made);
    case BARHATCH_CODE_11:
      return Code11Text(made);
    case BARHATCH_INTERLEAVED_2_OF_5:
      return InterleavedText(made);
    case BARHATCH_ITF_14:
      return Itf14Text(made);
    default:
      return EanUpcText(made);
  }
}

void RandomPublishedJobs::MakeCode128(PublishedJob& made) {
  const bool isOfSetB = made.options.symbology == BARHATCH_CODE_128_B;
  made.Say(isOfSetB ? Data(Bytes(32, 127)) : OneIn(2) ? Data("0123456789Aa\x01") : AnyBytes());
  constexpr std::uint32_t kFunctions[] = {kSaysFnc1, kSaysFnc1, kSaysFnc2, kSaysFnc3};
  for (std::size_t count = OneIn(3) ? 1 + Below(3) : 0; count > 0; --count) {
    const std::size_t at = OneIn(2) ? Below(3) : Below(made.says.size() + 1);
    if (at > made.says.size()) continue;
    made.says.insert(made.says.begin() + static_cast<std::ptrdiff_t>(at), Any(kFunctions));
  }
}

void RandomPublishedJobs::MakeMatrix(PublishedJob& made) {
  made.Say(AnyBytes());
  if (OneIn(6)) {
    constexpr std::uint32_t kWide[] = {0x100,  0x161,  0x7FF,   0x800,
                                       0x20AC, 0xFFFD, 0x1F600, 0x10FFFF};
    for (std::size_t count = 1 + Below(4); count > 0; --count) {
      const std::size_t at = Below(made.says.size() + 1);
      made.says.insert(made.says.begin() + static_cast<std::ptrdiff_t>(at), Any(kWide));
    }
  }
  SetBeginning(made);
  SetEci(made);
  SetSize(made);
  // An FNC1 that readers would take for one in second position is refused.
  if (made.says.size() > 1 && made.says[1] == kSaysFnc1) made.isSound = false;
  if (OneIn(4)) made.options.flags |= BARHATCH_LOOSE_END;
  if (OneIn(4)) made.options.flags |= BARHATCH_GS_SEPARATORS;
}

void RandomPublishedJobs::SetBeginning(PublishedJob& made) {
  BarhatchJob& job = made.options;
  constexpr std::int32_t kEnvelopes[] = {5, 6, BARHATCH_ENVELOPE_12, BARHATCH_ENVELOPE_DD};
  switch (Below(8)) {
    case 0: {
      job.flags |= BARHATCH_FNC1_SECOND;
      const std::string first = OneIn(2) ? "4" + Text("0123456789", 1, 1) : Text("AZaz", 1, 1);
      made.says.insert(made.says.begin(), first.begin(), first.end());
      return;
    }
    case 1:
      job.envelope = Any(kEnvelopes);
      return;
    case 2:
      job.parts = 2 + static_cast<std::int32_t>(Below(15));
      job.part = 1 + static_cast<std::int32_t>(Below(static_cast<std::size_t>(job.parts)));
      job.part_id = static_cast<std::int32_t>(Below(64516));
      return;
    case 3:
      job.flags |= BARHATCH_READER_PROGRAMMING;
      return;
    case 4:
      made.says.insert(made.says.begin(), kSaysFnc1);
      return;
    case 5:
      made.says.insert(made.says.begin() + static_cast<std::ptrdiff_t>(Below(made.says.size() + 1)),
                       kSaysFnc1);
      return;
    default:
      return;
  }
}

void RandomPublishedJobs::SetEci(PublishedJob& made) {
  constexpr std::int32_t kNumbers[] = {1,   3,     26,    4,     20,    126,
                                       127, 16382, 16383, 80898, 80899, 999999};
  if (!OneIn(4)) return;
  const std::int32_t number = Any(kNumbers);
  if (OneIn(3)) {  // in the text, under numbers of its own
    const std::size_t at = Below(made.says.size() + 1);
    made.says.insert(made.says.begin() + static_cast<std::ptrdiff_t>(at),
                     kSaysEci + static_cast<std::uint32_t>(number));
    made.isSound = false;  // what stands around it may need another one
    return;
  }
  made.options.eci = number;
  const std::uint32_t limit = number == 26 ? 0x110000 : number == 1 || number == 3 ? 256 : 128;
  made.isSound = IsAllBelow(made, limit);
}

void RandomPublishedJobs::SetSize(PublishedJob& made) {
  constexpr std::int32_t kShapes[] = {BARHATCH_SQUARE,    BARHATCH_SQUARE, BARHATCH_RECTANGLE,
                                      BARHATCH_ANY_SHAPE, BARHATCH_DMRE,   BARHATCH_DMRE_RECTANGLE};
  if (OneIn(2)) made.options.flags |= BARHATCH_INDUSTRY_144;
  if (!OneIn(3)) {
    made.options.shape = Any(kShapes);
    const bool hasSquares = made.options.shape % 4 != 1;
    made.isSound = made.isSound && hasSquares;
    return;
  }
  const std::vector<PlainSize>& sizes = PlainSizes();
  const ReferenceSize& size = sizes[Below(sizes.size())].size;
  made.options.rows = size.rows;
  made.options.columns = size.columns;
  if (OneIn(2)) made.options.flags |= BARHATCH_MAY_GROW;
  made.isSound = false;  // it may be too small
}

// A character more, less or another, or a function.
void RandomPublishedJobs::SpoilText(PublishedJob& made) {
  constexpr std::uint32_t kItems[] = {'+', '*',  'a',    '0',       '^',
                                      0,   0xE9, 0x20AC, kSaysFnc1, kSaysFnc2};
  const std::uint32_t item = OneIn(2) ? Any(kItems) : static_cast<std::uint32_t>(Below(0xD800));
  const auto at = made.says.begin() + static_cast<std::ptrdiff_t>(Below(made.says.size()));
  const std::size_t kind = Below(3);
  if (kind == 0) *at = item;
  if (kind == 1) made.says.insert(at, item);
  if (kind == 2) made.says.erase(at);
  made.isSound = false;
  made.digits.reset();
}

void RandomPublishedJobs::SpoilOptions(PublishedJob& made) {
  constexpr std::int32_t kNumbers[] = {-1, 1,  2,  3,  4,  5,  6,   7,
                                       9,  11, 12, 13, 14, 26, 100, 1000000};
  constexpr std::int32_t BarhatchJob::*kFields[] = {
      &BarhatchJob::check, &BarhatchJob::envelope, &BarhatchJob::eci,     &BarhatchJob::rows,
      &BarhatchJob::shape, &BarhatchJob::columns,  &BarhatchJob::part,    &BarhatchJob::parts,
      &BarhatchJob::check, &BarhatchJob::check,    &BarhatchJob::part_id, &BarhatchJob::addon_gap};
  constexpr std::uint32_t kNoMark = BARHATCH_MASK | BARHATCH_NO_PROOF;
  if (OneIn(2)) {
    made.options.flags ^= (1u << Below(kFlags)) & ~kNoMark;
  } else {
    made.options.*Any(kFields) = Any(kNumbers);
  }
  made.isSound = false;
  made.digits.reset();
}

void RandomPublishedJobs::SpoilBytes(PublishedJob& made) {
  if (made.options.input == BARHATCH_UNITS) {
    made.units[Below(made.units.size())] = static_cast<char16_t>(0xD800 + Below(0x800));
  } else {
    for (std::size_t count = 1 + Below(3); count > 0 && !made.bytes.empty(); --count) {
      const std::size_t at = Below(made.bytes.size());
      const std::string some = OneIn(2) ? Text(Bytes(0, 255), 1, 2)
                                        : Text(
                                              "()+^\\\x1D"
                                              "09",
                                              1, 2);
      made.bytes.replace(at, Below(2), some);
    }
  }
  made.isSound = made.isTextKnown = false;
  made.digits.reset();
}

void RandomPublishedJobs::ChooseInput(PublishedJob& made) {
  constexpr std::int32_t kInputs[] = {BARHATCH_UTF8, BARHATCH_BYTES, BARHATCH_ESCAPED,
                                      BARHATCH_UNITS};
  std::int32_t& input = made.options.input;
  input = NeedsEscapes(made) ? BARHATCH_ESCAPED : Any(kInputs);
  if (input == BARHATCH_BYTES && !IsAllBelow(made, 256)) input = BARHATCH_UTF8;
}

void RandomPublishedJobs::Give(PublishedJob& made) {
  for (const std::uint32_t item : made.says) {
    switch (made.options.input) {
      case BARHATCH_BYTES:
        made.bytes += static_cast<char>(item);
        break;
      case BARHATCH_UNITS:
        made.units += UnitsOf(item);
        break;
      case BARHATCH_ESCAPED:
        made.bytes += EscapedFormOf(item);
        break;
      default:
        made.bytes += Utf8Of(item);
        break;
    }
  }
}

std::string RandomPublishedJobs::EscapedFormOf(std::uint32_t item) {
  char escaped[16];
  if (item >= kSaysEci) {
    std::snprintf(escaped, sizeof escaped, "^ECI%06u", item - kSaysEci);
  } else if (!IsCharacter(item)) {
    std::snprintf(escaped, sizeof escaped, "^FNC%u", item - 0x200000);
  } else if (item < 256 && OneIn(3)) {
    std::snprintf(escaped, sizeof escaped, "^%03u", item);
  } else {
    return item == '^' ? "^^" : Utf8Of(item);
  }
  return escaped;
}

}  // namespace barhatch::test
