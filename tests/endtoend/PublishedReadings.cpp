#include "PublishedReadings.h"

#include "support/CheckCharacters.h"
#include "support/CodabarReader.h"
#include "support/Code11Reader.h"
#include "support/Code128Reader.h"
#include "support/Code39Reader.h"
#include "support/Code93Reader.h"
#include "support/DataMatrixReader.h"
#include "support/EanUpcReader.h"
#include "support/Interleaved2of5Reader.h"
#include "support/MsiReader.h"
#include "support/PlacementReference.h"
#include "support/PlainGrid.h"

namespace barhatch::test {

namespace {

using Text = std::optional<std::string>;

constexpr char kGs = '\x1D';

bool IsLetter(int item) { return (item >= 'A' && item <= 'Z') || (item >= 'a' && item <= 'z'); }

// The text without a last character, which has to be `right`.
Text WithoutCheck(const Text& text, char (*right)(const std::string&)) {
  if (!text || text->empty()) return std::nullopt;
  const std::string data = text->substr(0, text->size() - 1);
  return text->back() == right(data) ? Text(data) : std::nullopt;
}

char Ibm11(const std::string& data) { return MsiModulo11Of(data, 7); }
char Ncr11(const std::string& data) { return MsiModulo11Of(data, 9); }

Text MsiText(std::int32_t check, const std::string& letters) {
  const Text digits = ReadMsiDigits(letters);
  const auto withoutTens = [](const Text& text) {
    return WithoutCheck(text, PublishedMsiModulo10);
  };
  switch (check) {
    case BARHATCH_CHECK_NONE:
      return digits;
    case BARHATCH_MSI_10_10:
      return withoutTens(withoutTens(digits));
    case BARHATCH_MSI_11:
      return WithoutCheck(digits, Ibm11);
    case BARHATCH_MSI_11_10:
      return WithoutCheck(withoutTens(digits), Ibm11);
    case BARHATCH_MSI_NCR_11:
      return WithoutCheck(digits, Ncr11);
    case BARHATCH_MSI_NCR_11_10:
      return WithoutCheck(withoutTens(digits), Ncr11);
    default:
      return withoutTens(digits);
  }
}

// The usual scheme: C behind up to ten characters of data, C and K behind more.
Text Code11Text(std::int32_t check, const std::string& letters) {
  const Text characters = ReadCode11Characters(letters);
  if (!characters || check == BARHATCH_CHECK_NONE) return characters;
  const bool hasK =
      check == BARHATCH_CODE_11_CK || (check != BARHATCH_CODE_11_C && characters->size() > 11);
  return ReadCode11(letters, hasK ? Code11Checks::kCAndK : Code11Checks::kC);
}

// Readers that do not know the scheme report the check character; here it has to be right.
Text CodabarText(std::int32_t check, const std::string& letters) {
  const Text all = ReadCodabar(letters);
  if (!all || all->size() < 3) return std::nullopt;
  const std::string inner = all->substr(1, all->size() - 2);
  if (check < BARHATCH_CHECK_VERIFY) return inner;
  const std::string data = all->front() + inner.substr(0, inner.size() - 1) + all->back();
  return Modulo16Of(data) == inner.back() ? Text(inner) : std::nullopt;
}

Text Code39Text(std::int32_t check, const std::string& letters) {
  const Text all = ReadCode39(letters);
  if (!all || check < BARHATCH_CHECK_VERIFY) return all;
  return WithoutCheck(all, Modulo43Of) ? all : std::nullopt;
}

// The pairs of Code 39 are those of Code 93, whose signs have names of their own.
Text FromPairs(const std::string& pairs) {
  std::string text;
  for (std::size_t at = 0; at < pairs.size();) {
    const bool isPair = std::string("$/+%").find(pairs[at]) != std::string::npos;
    std::vector<std::string> names = {std::string(1, pairs[at])};
    if (isPair && at + 1 == pairs.size()) return std::nullopt;
    if (isPair) names = {"(" + names[0] + ")", std::string(1, pairs[at + 1])};
    int character = 0;
    while (character < 128 && PublishedCode93Pair(character) != names) ++character;
    if (character == 128) return std::nullopt;
    text += static_cast<char>(character);
    at += names.size();
  }
  return text;
}

Text Code39FullText(std::int32_t check, const std::string& letters) {
  Text pairs = Code39Text(check, letters);
  if (!pairs) return pairs;
  if (check >= BARHATCH_CHECK_VERIFY) pairs->pop_back();
  return FromPairs(*pairs);
}

Text InterleavedText(std::int32_t check, const std::string& letters) {
  const Text digits = ReadInterleaved2of5(letters);
  const bool isChecked = check >= BARHATCH_CHECK_VERIFY;
  return isChecked && !WithoutCheck(digits, MissingCheckDigit) ? std::nullopt : digits;
}

Text Itf14Text(const std::string& letters) {
  const Text digits = ReadInterleaved2of5(letters);
  const bool isRight = digits && digits->size() == 14 && WithoutCheck(digits, MissingCheckDigit);
  return isRight ? digits : std::nullopt;
}

// Code 93 of 43 characters has signs that are no pairs.
Text Code93Text(const std::string& letters) { return ReadCode93(letters); }

// ISO/IEC 15417: FNC1 in first position, and in second behind a letter or a pair of set C, says
// what the text is; elsewhere it is GS. FNC2 and FNC3 speak to the reader.
Text Code128Text(const std::string& letters) {
  const auto message = ReadCode128Message(letters);
  if (!message) return std::nullopt;
  const std::vector<int>& items = message->items;
  const bool isFnc1First = message->values[1] == 102;
  const bool isBehindPair = message->values[0] == 105 && message->values[2] == 102;
  std::string text;
  for (std::size_t i = 0; i < items.size(); ++i) {
    const bool isFirst = i == 0 && isFnc1First;
    const bool isSecond =
        (i == 1 && IsLetter(items[0])) || (i == 2 && isBehindPair && !isFnc1First);
    if (items[i] == kCode128Fnc1 && !isFirst && !isSecond) text += kGs;
    if (items[i] < 256) text += static_cast<char>(items[i]);
  }
  return text;
}

// UPC-A is drawn as the EAN-13 that begins with 0, and reported without it.
Text EanUpcText(const BarhatchJob& job, const std::string& letters) {
  const auto reading = ReadEanUpc(letters);
  if (!reading) return std::nullopt;
  std::string digits = reading->digits;
  const bool isUpcA = job.symbology == BARHATCH_UPC_A || job.symbology == BARHATCH_UPC_A_ADDON_2 ||
                      job.symbology == BARHATCH_UPC_A_ADDON_5;
  if (isUpcA && (digits.size() != 13 || digits[0] != '0')) return std::nullopt;
  if (isUpcA) digits.erase(0, 1);
  if (reading->addon.empty()) return digits;
  const std::int32_t gap = job.addon_gap == 0 ? 9 : job.addon_gap;
  return reading->gap == gap ? Text(digits + " " + reading->addon) : std::nullopt;
}

Text LinearText(const BarhatchJob& job, const std::string& letters) {
  switch (job.symbology) {
    case BARHATCH_CODABAR:
      return CodabarText(job.check, letters);
    case BARHATCH_CODE_39:
      return Code39Text(job.check, letters);
    case BARHATCH_CODE_39_FULL:
      return Code39FullText(job.check, letters);
    case BARHATCH_CODE_93:
    case BARHATCH_CODE_93_FULL:
      return Code93Text(letters);
    case BARHATCH_MSI:
      return MsiText(job.check, letters);
    case BARHATCH_CODE_11:
      return Code11Text(job.check, letters);
    case BARHATCH_INTERLEAVED_2_OF_5:
      return InterleavedText(job.check, letters);
    case BARHATCH_ITF_14:
      return Itf14Text(letters);
    case BARHATCH_CODE_128:
    case BARHATCH_CODE_128_A:
    case BARHATCH_CODE_128_B:
    case BARHATCH_CODE_128_C:
      return Code128Text(letters);
    default:
      return EanUpcText(job, letters);
  }
}

const PlainSize* SizeOf(const BarhatchResult& result) {
  for (const PlainSize& plain : PlainSizes()) {
    if (plain.size.rows == result.rows && plain.size.columns == result.columns) return &plain;
  }
  return nullptr;
}

// The codewords that the modules show, where the annex of the standard places their bits.
std::vector<int> StreamOf(const std::string& grid, const PlainSize& plain) {
  const int regionRows = plain.size.mappingRows / plain.regions.down;
  const int regionColumns = plain.size.mappingColumns / plain.regions.across;
  const std::vector<int> placement =
      ReferencePlacement(plain.size.mappingRows, plain.size.mappingColumns);
  std::vector<int> stream(static_cast<std::size_t>(plain.size.data + plain.size.ecc), 0);
  for (std::size_t i = 0; i < placement.size(); ++i) {
    const int row = static_cast<int>(i) / plain.size.mappingColumns;
    const int column = static_cast<int>(i) % plain.size.mappingColumns;
    const int gridRow = row + 1 + 2 * (row / regionRows);
    const int gridColumn = column + 1 + 2 * (column / regionColumns);
    const bool isDark =
        grid[static_cast<std::size_t>(gridRow * plain.size.columns + gridColumn)] == 'A';
    if (placement[i] >= 10 && isDark)
      stream[static_cast<std::size_t>(placement[i] / 10 - 1)] |= 1 << (8 - placement[i] % 10);
  }
  return stream;
}

// ISO/IEC 16022: FNC1 as first codeword, or second behind a letter or a pair of digits, is not
// reported, nor are ECI designators; a macro stands for head and tail of its message.
std::string ReportOf(const std::vector<int>& items, const std::vector<int>& codewords) {
  const bool isAppended =
      !items.empty() && items[0] >= kReadStructuredAppend && items[0] < ReadEci(0);
  const std::size_t first = isAppended ? 4 : 0;
  const std::size_t firstItem = isAppended ? 1 : 0;
  const bool isFnc1First = codewords[first] == 232;
  const bool isPair = codewords[first] >= 130 && codewords[first] <= 229;
  const bool isFnc1Second = codewords.size() > first + 1 && codewords[first + 1] == 232 &&
                            (isPair || IsLetter(codewords[first] - 1));
  const std::size_t silent = isFnc1First    ? firstItem
                             : isFnc1Second ? firstItem + (isPair ? 2 : 1)
                                            : items.size();
  std::string text;
  std::string tail;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (items[i] < 256) text += static_cast<char>(items[i]);
    if (items[i] == kReadFnc1 && i != silent) text += kGs;
    if (items[i] == kReadMacro05 || items[i] == kReadMacro06) {
      text += std::string("[)>\x1E") + (items[i] == kReadMacro05 ? "05" : "06") + kGs;
      tail = "\x1E\x04";
    }
  }
  return text + tail;
}

std::optional<PlainReading> ReadMatrix(const BarhatchJob& job, const BarhatchResult& result,
                                       const std::string& grid) {
  const PlainSize* const plain = SizeOf(result);
  if (plain == nullptr) return std::nullopt;
  const std::vector<int> stream = StreamOf(grid, *plain);
  const std::vector<int> data(stream.begin(), stream.begin() + plain->size.data);
  const bool isIndustry = (job.flags & BARHATCH_INDUSTRY_144) != 0;
  if (PlainGrid(PlainStream(data, *plain, isIndustry), *plain, 0) != grid) return std::nullopt;
  const Reading reading = ReadDataCodewords(data);
  if (!reading.isSound) return std::nullopt;
  return PlainReading{ReportOf(reading.items, data), reading.items};
}

}  // namespace

std::string LettersOf(const BarhatchResult& result) {
  const auto modules =
      static_cast<std::size_t>(result.rows) * static_cast<std::size_t>(result.columns);
  std::string letters;
  for (std::size_t i = 0; i < modules; ++i) letters += "aAbB"[result.modules[i] & 3];
  return letters;
}

std::optional<PlainReading> ReadPlainly(const BarhatchJob& job, const BarhatchResult& result,
                                        const std::string& letters) {
  if (job.symbology == BARHATCH_DATA_MATRIX) return ReadMatrix(job, result, letters);
  const Text text = LinearText(job, letters);
  return text ? std::optional<PlainReading>(PlainReading{*text, {}}) : std::nullopt;
}

}  // namespace barhatch::test
