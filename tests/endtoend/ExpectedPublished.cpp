// What the text and the options of a job by the book have a reader say.
#include "PublishedReadings.h"
#include "support/CheckCharacters.h"
#include "support/DataMatrixReader.h"
#include "support/EanUpcReader.h"

namespace barhatch::test {

namespace {

constexpr int kGs = 29;

// Of an item of either kind.
template <typename Item>
bool IsIn(Item item, char first, char last) {
  return item >= static_cast<Item>(first) && item <= static_cast<Item>(last);
}
template <typename Item>
bool IsLetter(Item item) {
  return IsIn(item, 'A', 'Z') || IsIn(item, 'a', 'z');
}
template <typename Item>
bool IsDigit(Item item) {
  return IsIn(item, '0', '9');
}

std::string BytesOf(const PublishedJob& made) {
  std::string bytes;
  for (const std::uint32_t item : made.says) bytes += static_cast<char>(item);
  return bytes;
}

std::string OfCodabar(std::string text, const BarhatchJob& job) {
  const std::string ends = "ABCDTN*E";
  const bool hasEnds = ends.find(text.front()) != std::string::npos;
  if (!hasEnds) text = "A" + text + "A";
  const std::string inner = text.substr(1, text.size() - 2);
  const std::string letters = "ABCDABCD";
  const std::string all =
      letters[ends.find(text.front())] + inner + letters[ends.find(text.back())];
  return job.check == BARHATCH_CHECK_MOD_16 ? inner + Modulo16Of(all) : inner;
}

std::string OfInterleaved(std::string text, const BarhatchJob& job) {
  if (job.check == BARHATCH_CHECK_ITF_10) text += MissingCheckDigit(text);
  return (text.size() % 2 != 0 ? "0" : "") + text;
}

// The text that is to be verified has its check characters behind the data.
std::string WithoutVerified(const std::string& text, std::size_t checks, const BarhatchJob& job) {
  return job.check == BARHATCH_CHECK_VERIFY ? text.substr(0, text.size() - checks) : text;
}

std::string OfLinear(const PublishedJob& made) {
  const BarhatchJob& job = made.options;
  const std::string text = BytesOf(made);
  switch (job.symbology) {
    case BARHATCH_CODABAR:
      return OfCodabar(text, job);
    case BARHATCH_CODE_39:
      return job.check == BARHATCH_CHECK_MOD_43 ? text + Modulo43Of(text) : text;
    case BARHATCH_INTERLEAVED_2_OF_5:
      return OfInterleaved(text, job);
    case BARHATCH_ITF_14:
      return text.size() == 13 ? text + MissingCheckDigit(text) : text;
    case BARHATCH_CODE_11:
      return WithoutVerified(text, text.size() > 11 ? 2 : 1, job);
    case BARHATCH_MSI:
    case BARHATCH_CODE_39_FULL:
      return WithoutVerified(text, 1, job);
    default:
      return text;
  }
}

// FNC1 that is not in first position, nor in second behind a letter or a pair of digits, where it
// says what the text is.
template <typename Item>
bool IsSeparator(const std::vector<Item>& says, std::size_t i, bool hasPairs) {
  const bool isPair = hasPairs && i == 2 && IsDigit(says[0]) && IsDigit(says[1]);
  return i != 0 && !isPair && !(i == 1 && IsLetter(says[0]));
}

// ISO/IEC 15417: FNC1 that separates is read as GS. Pairs are of set C, in which symbols of types
// 6 and 7 do not begin.
std::string OfCode128(const PublishedJob& made) {
  const std::int32_t symbology = made.options.symbology;
  const bool hasPairs = symbology == BARHATCH_CODE_128 || symbology == BARHATCH_CODE_128_C;
  std::string text;
  for (std::size_t i = 0; i < made.says.size(); ++i) {
    const std::uint32_t item = made.says[i];
    if (item == kSaysFnc1 && IsSeparator(made.says, i, hasPairs)) text += static_cast<char>(kGs);
    if (IsCharacter(item)) text += static_cast<char>(item);
  }
  return text;
}

bool IsEanUpc(std::int32_t symbology) {
  return symbology == BARHATCH_EAN_13 ||
         (symbology >= BARHATCH_UPC_A && symbology <= 20 && symbology != BARHATCH_CODE_11);
}

void PutUtf8(std::uint32_t code, std::vector<int>& items) {
  const auto rest = [code](int shift) { return static_cast<int>(0x80 | (code >> shift & 0x3F)); };
  if (code < 0x80) {
    items.push_back(static_cast<int>(code));
  } else if (code < 0x800) {
    items.insert(items.end(), {static_cast<int>(0xC0 | code >> 6), rest(0)});
  } else if (code < 0x10000) {
    items.insert(items.end(), {static_cast<int>(0xE0 | code >> 12), rest(6), rest(0)});
  } else {
    items.insert(items.end(), {static_cast<int>(0xF0 | code >> 18), rest(12), rest(6), rest(0)});
  }
}

// The ECI in front: the host's, or 26 where a character is above 255 and the text names none.
std::int32_t EciInFront(const PublishedJob& made) {
  bool isWide = false;
  bool namesEci = false;
  for (const std::uint32_t item : made.says) {
    isWide |= IsCharacter(item) && item > 255;
    namesEci |= item >= kSaysEci;
  }
  return made.options.eci == 0 && isWide && !namesEci ? 26 : made.options.eci;
}

std::vector<int> BodyOf(const PublishedJob& made, std::int32_t eci) {
  bool isUtf8 = eci == 26 && made.options.input != BARHATCH_BYTES;
  std::vector<int> items;
  for (const std::uint32_t item : made.says) {
    if (item >= kSaysEci) {
      items.push_back(ReadEci(static_cast<int>(item - kSaysEci)));
      isUtf8 = item - kSaysEci == 26;
    } else if (item == kSaysFnc1) {
      items.push_back(kReadFnc1);
    } else if (isUtf8) {
      PutUtf8(item, items);
    } else {
      items.push_back(static_cast<int>(item));
    }
  }
  return items;
}

void AddSpelledEnvelope(std::int32_t envelope, std::vector<int>& items) {
  if (envelope != BARHATCH_ENVELOPE_12 && envelope != BARHATCH_ENVELOPE_DD) return;
  const std::string name = envelope == BARHATCH_ENVELOPE_12 ? "12" : "DD";
  const std::vector<int> head = ItemsOf("[)>\x1E" + name + "\x1D");
  items.insert(items.begin(), head.begin(), head.end());
  items.insert(items.end(), {0x1E, 0x04});
}

void WriteSeparatorsAsGs(std::vector<int>& items) {
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (items[i] == kReadFnc1 && IsSeparator(items, i, true)) items[i] = kGs;
  }
}

void AddBeginning(const BarhatchJob& job, std::vector<int>& items) {
  if (job.envelope == BARHATCH_ENVELOPE_05) items.insert(items.begin(), kReadMacro05);
  if (job.envelope == BARHATCH_ENVELOPE_06) items.insert(items.begin(), kReadMacro06);
  if ((job.flags & BARHATCH_READER_PROGRAMMING) != 0)
    items.insert(items.begin(), kReadReaderProgramming);
  if (job.parts == 0) return;
  const int place = (job.part - 1) * 16 + (17 - job.parts);
  items.insert(items.begin(),
               ReadStructuredAppend(place, job.part_id / 254 + 1, job.part_id % 254 + 1));
}

}  // namespace

std::optional<std::vector<int>> ExpectedItems(const PublishedJob& made) {
  const BarhatchJob& job = made.options;
  if (!made.isTextKnown || job.input == BARHATCH_GS1) return std::nullopt;
  const std::int32_t eci = EciInFront(made);
  std::vector<int> items = BodyOf(made, eci);
  AddSpelledEnvelope(job.envelope, items);
  std::size_t lead = 0;
  if ((job.flags & BARHATCH_FNC1_SECOND) != 0) {
    lead = IsLetter(items[0]) ? 1 : 2;
    items.insert(items.begin() + static_cast<std::ptrdiff_t>(lead++), kReadFnc1);
  }
  if (eci != 0) items.insert(items.begin() + static_cast<std::ptrdiff_t>(lead), ReadEci(eci));
  if ((job.flags & BARHATCH_GS_SEPARATORS) != 0) WriteSeparatorsAsGs(items);
  AddBeginning(job, items);
  return items;
}

std::optional<std::string> ExpectedText(const PublishedJob& made) {
  const std::int32_t symbology = made.options.symbology;
  if (!made.isTextKnown) return std::nullopt;
  if (IsEanUpc(symbology) || made.options.input == BARHATCH_GS1) return made.digits;
  if (symbology == BARHATCH_DATA_MATRIX) return std::nullopt;  // ExpectedItems
  const bool isCode128 = symbology >= BARHATCH_CODE_128 && symbology <= BARHATCH_CODE_128_C;
  return isCode128 ? OfCode128(made) : OfLinear(made);
}

}  // namespace barhatch::test
