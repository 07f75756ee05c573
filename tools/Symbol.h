// One text turned into a symbol, and everything that is told and done about it: the same steps for
// a text on the command line and for each line of a batch.
#ifndef BARHATCH_TOOLS_SYMBOL_H
#define BARHATCH_TOOLS_SYMBOL_H

#include <cstddef>
#include <optional>
#include <string>

#include "CommandLine.h"
#include "Drawing.h"
#include "Explanation.h"
#include "Verification.h"

namespace preview {

struct Symbol {
  Request request;
  Explanation explanation;
  Drawing drawing;
  double moduleSize = 0.0;
  std::size_t bufferBytes = 0;
};

// Nothing and the reason where the library refuses.
std::optional<Symbol> MakeSymbol(const Request& request, std::string& reason);

// code39 "A1": 60 strokes
std::string Headline(const Symbol& symbol, const Speeds& speeds);

// The statistics, one a line.
std::string Facts(const Symbol& symbol, const Speeds& speeds);

// Accepted or refused, why, and the departures with what they do; ends with a line feed.
std::string ExplanationText(const Request& request);

// Draws the symbol and reads it back.
Verdict Verify(const Symbol& symbol, const Options& options);

}  // namespace preview

#endif
