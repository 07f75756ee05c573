// Holds what an independent reader reports of a picture against what the library promises that a
// standard reader reports of the symbol.
#ifndef BARHATCH_TOOLS_VERIFICATION_H
#define BARHATCH_TOOLS_VERIFICATION_H

#include <optional>
#include <string>
#include <string_view>

#include "ReadBack.h"
#include "Request.h"

namespace preview {

// What the library promises, in quotes; its bytes are Latin-1, or UTF-8 where the symbol says so.
// "nothing" where a reader reads nothing.
std::string ReadingText(const Request& request, const Result& result);

// "D-39-2, D-39-4": the deviations that the symbol has met; empty where it has met none.
std::string DeviationIds(const Result& result);

struct Verdict {
  bool isRead = false;   // as promised, and as the text that was marked
  bool isBlank = false;  // the reader knows the symbology and has not found the promised symbol
  std::string sentence;
};

// REQUIRES: the result of the request, not refused.
Verdict Judge(const Request& request, const Result& result, const std::optional<Reading>& reading);

}  // namespace preview

#endif
