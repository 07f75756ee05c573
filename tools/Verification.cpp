#include "Verification.h"

#include <fmt/core.h>

#include <algorithm>
#include <sstream>

#include "Messages.h"

namespace preview {

namespace {

constexpr char kFnc1AsRead = '\x1D';
constexpr std::size_t kMostShown = 4000;

std::string Utf8Of(const std::string& latin1) {
  std::string utf8;
  for (const char c : latin1) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 128) {
      utf8 += static_cast<char>(0xC0 | byte >> 6);
      utf8 += static_cast<char>(0x80 | (byte & 0x3F));
    } else {
      utf8 += c;
    }
  }
  return utf8;
}

std::string WithoutFnc1(std::string text) {
  text.erase(std::remove(text.begin(), text.end(), kFnc1AsRead), text.end());
  return text;
}

// The reader has no decoder for these two.
bool IsKnownToReader(std::int32_t symbology) {
  return symbology != BARHATCH_MSI && symbology != BARHATCH_CODE_11;
}

// The reader tells bytes or text, of EAN-13 with a 0 in front UPC-A without the 0, and FNC1 as a
// character or not at all.
bool IsAsPromised(const Request& request, const std::string& promised, const Reading& reading) {
  if (reading.bytes == promised || reading.text == Utf8Of(promised)) return true;
  if (reading.format == "UPC-A" && "0" + reading.text == promised) return true;
  const bool hasFnc1 = IsMatrix(request) && request.format == 1;
  return hasFnc1 && WithoutFnc1(reading.bytes) == WithoutFnc1(promised);
}

std::string Causes(const BarhatchResult& result) {
  const std::string ids = DeviationIds(result);
  return ids.empty() ? "" : ": " + ids;
}

Verdict JudgeBlank(const Request& request, const BarhatchResult& result) {
  if (!IsKnownToReader(request.symbology)) {
    return {false, false, "cannot verify, the reader does not know this symbology"};
  }
  const std::string sentence = "the reader finds no symbol in the picture";
  if (ReadingOf(result)) return {false, true, sentence};
  return {false, false, sentence + ", as the library says" + Causes(result)};
}

}  // namespace

std::optional<std::string> ReadingOf(const BarhatchResult& result) {
  if (result.reading == nullptr) return std::nullopt;
  return std::string(result.reading, result.reading_length);
}

std::string ReadingText(const std::optional<std::string>& reading) {
  return reading ? Quoted(Utf8Of(*reading), kMostShown) : "nothing";
}

std::string DeviationIds(const BarhatchResult& result) {
  std::istringstream lines(result.deviations_met);
  std::string ids;
  for (std::string line; std::getline(lines, line);) {
    ids += (ids.empty() ? "" : ", ") + line.substr(0, line.find(':'));
  }
  return ids;
}

Verdict Judge(const Request& request, const BarhatchResult& result,
              const std::optional<Reading>& reading) {
  if (!reading) return JudgeBlank(request, result);
  const std::optional<std::string> promised = ReadingOf(result);
  const std::string found = fmt::format("{} reads {} {}", reading->reader, reading->format,
                                        Quoted(reading->text, kMostShown));
  if (!promised || !IsAsPromised(request, *promised, *reading)) {
    return {false, false, fmt::format("{}, but the library says {}", found, ReadingText(promised))};
  }
  if ((result.warnings & BARHATCH_W_UNREADABLE) == 0) return {true, false, found};
  return {false, false,
          fmt::format("{}, as the library says, and not {}{}", found,
                      Quoted(request.text, kMostShown), Causes(result))};
}

}  // namespace preview
