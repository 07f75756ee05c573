#include "Verification.h"

#include <fmt/core.h>

#include <algorithm>
#include <string_view>

#include "Messages.h"

namespace preview {

namespace {

constexpr char kFnc1AsRead = '\x1D';
constexpr std::size_t kMostShown = 4000;
constexpr std::int32_t kUtf8Eci = 26;

std::string Utf8Of(std::string_view latin1) {
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
bool IsAsPromised(const Request& request, std::string_view promised, const Reading& reading) {
  if (reading.bytes == promised || reading.text == Utf8Of(promised)) return true;
  if (reading.format == "UPC-A" && "0" + reading.text == promised) return true;
  const bool hasFnc1 = (request.job.flags & BARHATCH_FNC1_SECOND) != 0;
  return hasFnc1 && WithoutFnc1(reading.bytes) == WithoutFnc1(std::string(promised));
}

std::string Causes(const Result& result) {
  const std::string ids = DeviationIds(result);
  return ids.empty() ? "" : ": " + ids;
}

Verdict JudgeBlank(const Request& request, const Result& result) {
  if (!IsKnownToReader(request.job.symbology)) {
    return {false, false, "cannot verify, the reader does not know this symbology"};
  }
  const std::string sentence = "the reader finds no symbol in the picture";
  if (result.Reading()) return {false, true, sentence};
  return {false, false, sentence + ", as the library says" + Causes(result)};
}

}  // namespace

std::string ReadingText(const Request& request, const Result& result) {
  if (!result.Reading()) return "nothing";
  const bool isUtf8 = request.job.eci == kUtf8Eci ||
                      (!request.device && result.warnings().Has(barhatch::Warning::kEci));
  const std::string bytes(*result.Reading());
  return Quoted(isUtf8 ? bytes : Utf8Of(bytes), kMostShown);
}

std::string DeviationIds(const Result& result) {
  std::string ids;
  for (const std::string_view line : result.DeviationLines()) {
    ids += ids.empty() ? "" : ", ";
    ids += line.substr(0, line.find(':'));
  }
  return ids;
}

Verdict Judge(const Request& request, const Result& result, const std::optional<Reading>& reading) {
  if (!reading) return JudgeBlank(request, result);
  const std::string found = fmt::format("{} reads {} {}", reading->reader, reading->format,
                                        Quoted(reading->text, kMostShown));
  if (!result.Reading() || !IsAsPromised(request, *result.Reading(), *reading)) {
    return {false, false,
            fmt::format("{}, but the library says {}", found, ReadingText(request, result))};
  }
  if (!result.warnings().Has(barhatch::Warning::kUnreadable)) return {true, false, found};
  return {false, false,
          fmt::format("{}, as the library says, and not {}{}", found,
                      Quoted(request.text, kMostShown), Causes(result))};
}

}  // namespace preview
