// One text turned into a symbol, and everything that is told and done about it: the same steps for
// a text on the command line and for each line of a batch.
#ifndef BARHATCH_TOOLS_SYMBOL_H
#define BARHATCH_TOOLS_SYMBOL_H

#include <optional>
#include <string>

#include "CommandLine.h"
#include "Drawing.h"
#include "Verification.h"

namespace preview {

struct Symbol {
  Request request;
  Result result;    // made or refused
  Drawing drawing;  // empty where it is refused
};

Symbol MakeSymbol(const Request& request);

struct Failure {
  int code;  // ExitCode
  std::string sentence;
};

// Why there is no symbol, or none with these options; nothing where there is one.
std::optional<Failure> FailureOf(const Symbol& symbol);

// code39 "A1": 60 strokes, by the book; of a Data Matrix its modules as well
std::string Headline(const Symbol& symbol);

// The statistics, one a line.
std::string Facts(const Symbol& symbol, const Speeds& speeds);

// Draws the symbol and reads it back.
Verdict Verify(const Symbol& symbol, const Options& options);

}  // namespace preview

#endif
