// The preview host: asks the library for a barcode as the host on a device would, and shows what
// the head would mark.
#include <cstdio>
#include <exception>
#include <iostream>
#include <optional>
#include <string>

#include "Batch.h"
#include "CommandLine.h"
#include "Messages.h"
#include "Outputs.h"
#include "Symbol.h"
#include "TypeTables.h"

namespace {

using namespace preview;

int PrintTables(const Options& options) {
  if (options.list) Print(TypeList());
  if (options.table == "types") Print(TypeTable());
  if (options.table == "departures") Print(DepartureTable());
  return kDone;
}

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
  if (options.explain) Print(ExplanationText(options.request));
  std::string reason;
  const std::optional<Symbol> symbol = MakeSymbol(options.request, reason);
  if (!symbol) {
    if (!options.explain) PrintError(reason);  // the explanation has said it
    return kRefused;
  }
  const Look look = LookOf(options, symbol->drawing.width, symbol->moduleSize);
  for (const std::string& path : options.outputs) {
    reason = WriteOutput(path, symbol->drawing, look, options);
    if (reason.empty()) continue;
    PrintError(reason);
    return kRefused;
  }
  if (!options.quiet) {
    Print(Headline(*symbol, options.speeds) + '\n' + Facts(*symbol, options.speeds));
  }
  return options.verify ? VerifyAndTell(*symbol, options) : kDone;
}

int ParseAndRun(int argc, char** argv) {
  Options options;
  if (const std::optional<int> code = ParseCommandLine(argc, argv, options)) return *code;
  if (options.list || !options.table.empty()) return PrintTables(options);
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
