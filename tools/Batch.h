// Many texts at once: one file each, or all on one sheet. A line that is refused is told with its
// number, and the others go on.
#ifndef BARHATCH_TOOLS_BATCH_H
#define BARHATCH_TOOLS_BATCH_H

#include <cstddef>
#include <istream>
#include <string>
#include <vector>

#include "CommandLine.h"

namespace preview {

struct BatchLine {
  std::size_t number;  // from 1, empty lines counted
  std::string text;
};

// The lines that are not empty, without their line ends (LF or CR LF) and without a byte order mark
// in front of the first.
std::vector<BatchLine> ReadBatch(std::istream& in);

// The path of a line's file: {n} is its number in three digits or more, {text} its text, of which
// letters, digits, - . and _ are kept and all others become _.
std::string PathOf(const std::string& pattern, const BatchLine& line);

// Returns the exit code.
int RunBatch(const Options& options);

}  // namespace preview

#endif
