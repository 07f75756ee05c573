// What the program says: facts to standard output, errors to standard error, one line each.
#ifndef BARHATCH_TOOLS_MESSAGES_H
#define BARHATCH_TOOLS_MESSAGES_H

#include <string>

namespace preview {

// Documented in the help text and the manual page.
enum ExitCode { kDone = 0, kRefused = 1, kBadArguments = 2, kReadsOtherwise = 3 };

// To standard output. A failure shows in ferror(stdout), for the end of the program.
void Print(const std::string& text);

// "barhatch: " and the text.
void PrintError(const std::string& text);

// "cannot write x.svg: No such file or directory": the reason is that of errno, where it has one.
std::string SystemFailure(const std::string& whatFailed);

// The text in quotes, fit for one line: control characters shown as \x09, no more than so many
// bytes and an ellipsis.
std::string Quoted(const std::string& text, std::size_t most = 80);

}  // namespace preview

#endif
