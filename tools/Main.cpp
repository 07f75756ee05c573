// The preview host: a host of the mark interface that shows what the head would mark.
#include <cstdio>
#include <exception>
#include <iostream>
#include <optional>
#include <string>

#include "Batch.h"
#include "CommandLine.h"
#include "Explanation.h"
#include "Messages.h"
#include "Outputs.h"
#include "SharedSize.h"
#include "Symbol.h"
#include "Symbologies.h"

namespace {

using namespace preview;

int VerifyAndTell(const Symbol& symbol, const Options& options) {
  const Verdict verdict = Verify(symbol, options);
  if (verdict.isRead) {
    Print(verdict.sentence + '\n');
    return kDone;
  }
  PrintError(verdict.sentence);
  return kReadsOtherwise;
}

int RunOne(const Options& options) {
  const Symbol symbol = MakeSymbol(options.request);
  if (options.explain) Print(ExplanationText(symbol));
  if (const std::optional<Failure> failure = FailureOf(symbol)) {
    const bool isExplained = options.explain && !symbol.result;
    if (!isExplained) PrintError(failure->sentence);
    return failure->code;
  }
  const Look look = LookOf(options, symbol.drawing.width, symbol.result.xDimension());
  for (const std::string& path : options.outputs) {
    const std::string reason = WriteOutput(path, symbol.drawing, look, options);
    if (reason.empty()) continue;
    PrintError(reason);
    return kRefused;
  }
  if (!options.quiet) Print(Headline(symbol) + '\n' + Facts(symbol, options.speeds));
  return options.verify ? VerifyAndTell(symbol, options) : kDone;
}

int ParseAndRun(int argc, char** argv) {
  Options options;
  if (const std::optional<int> code = ParseCommandLine(argc, argv, options)) return *code;
  if (options.list || !options.table.empty()) {
    Print(options.list ? SymbologyList() : SymbologyTable());
    return kDone;
  }
  if (!options.mask.empty()) {
    const std::string reason = TakeSizeOfMask(options.request, options.mask);
    if (!reason.empty()) {
      PrintError(reason);
      return kRefused;
    }
  }
  return options.batch.empty() ? RunOne(options) : RunBatch(options);
}

// What could not be printed, as on a full disk, is no answer.
int CodeOfPrinted(int code) {
  std::cout.flush();
  const bool isPrinted = std::cout.good() && std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
  if (isPrinted) return code;
  PrintError("cannot write to standard output");
  return code == kDone ? kRefused : code;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return CodeOfPrinted(ParseAndRun(argc, argv));
  } catch (const std::exception& error) {
    PrintError(error.what());
    return kRefused;
  }
}
