// What the program says: facts to standard output, errors to standard error, one line each.
#ifndef BARHATCH_TOOLS_MESSAGES_H
#define BARHATCH_TOOLS_MESSAGES_H

#include <string>

#include "barhatch.hpp"

namespace preview {

// Documented in the help text and the manual page.
enum ExitCode { kDone = 0, kRefused = 1, kBadArguments = 2, kReadsOtherwise = 3 };

// To standard output. A failure shows in ferror(stdout), for the end of the program.
void Print(const std::string& text);

// "barhatch: " and the text.
void PrintError(const std::string& text);

// "cannot write x.svg: No such file or directory": the reason is that of errno, where it has one.
std::string SystemFailure(const std::string& whatFailed);

// The text in quotes, fit for one line: control characters and stray bytes shown as \x09, no more
// than so many bytes and an ellipsis.
std::string Quoted(const std::string& text, std::size_t most = 80);

// The text on one line and, on the next, a ^ below each of so many bytes from there; behind the
// text where it ends there. Of a long text the part around it.
std::string Pointed(const std::string& text, std::size_t begin, std::size_t extent);

// Of a symbol: the library's sentence of the first warning, and how many there are besides; empty
// where there is none.
std::string WarningText(const barhatch::Result& symbol);

}  // namespace preview

#endif
