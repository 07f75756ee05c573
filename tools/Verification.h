// Holds what a reader reports against the text that was marked. The readers add what the symbol
// carries beside the text (check digits, the leading 0 of Interleaved 2 of 5, macro headers) and
// leave out what is no data (start and stop of Codabar, FNC1).
#ifndef BARHATCH_TOOLS_VERIFICATION_H
#define BARHATCH_TOOLS_VERIFICATION_H

#include <optional>
#include <string>

#include "BarcodeText.h"
#include "ReadBack.h"

namespace preview {

// What a reader by the standard reports of the text, as bytes. REQUIRES: an accepted text.
std::string ExpectedReading(const BarcodeText& text);

struct Verdict {
  bool isRead = false;   // as the text that was marked
  bool isBlank = false;  // the reader knows the symbology and has found no symbol
  std::string sentence;
};

// Names the departure that explains a difference.
Verdict Judge(const BarcodeText& text, const std::optional<Reading>& reading);

}  // namespace preview

#endif
