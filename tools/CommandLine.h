// The command line as options, checked: an option that has no effect on what was asked for is an
// error and not ignored.
#ifndef BARHATCH_TOOLS_COMMANDLINE_H
#define BARHATCH_TOOLS_COMMANDLINE_H

#include <optional>
#include <string>
#include <vector>

#include "GcodeWriter.h"
#include "Request.h"
#include "Statistics.h"

namespace preview {

struct Options {
  Request request;
  std::vector<std::string> outputs;
  std::string table;        // "types" to print it
  std::string batch;        // file of texts, "-" for standard input
  std::string mask;         // of texts that one size of a Data Matrix has to hold; empty: none
  std::size_t columns = 4;  // of the sheet
  Speeds speeds;
  Laser laser;
  double beam = 0.0;           // 0: as wide as the gap
  double margin = -1.0;        // negative: a tenth of the width
  double pixelsPerUnit = 0.0;  // 0: 1600 pixels across
  bool animate = false;
  bool darkPart = false;
  bool sheet = false;
  bool sameSize = false;
  bool verify = false;
  bool explain = false;
  bool quiet = false;
  bool list = false;
};

// The exit code where the program ends here, with the help, the version or an error printed.
std::optional<int> ParseCommandLine(int argc, const char* const* argv, Options& options);

bool HasEnding(const std::string& path, const std::string& ending);

}  // namespace preview

#endif
