// What a plain reader has to get from a Data Matrix that was asked for.
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "MatrixRequest.h"
#include "support/DataMatrixReader.h"

namespace barhatch::fuzz {

namespace {

using Items = std::vector<int>;

constexpr int kEciOfUtf8 = 26;

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
