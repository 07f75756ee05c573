// The symbologies by the names and numbers of the command line. Everything else that is told about
// them comes from the library.
#ifndef BARHATCH_TOOLS_SYMBOLOGIES_H
#define BARHATCH_TOOLS_SYMBOLOGIES_H

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace preview {

// Given by name ("code39", in any case) or by number ("1"); nothing for
// anything else.
std::optional<std::int32_t> SymbologyFrom(const std::string& text);

// REQUIRES: a symbology that SymbologyFrom gives.
const char* NameOf(std::int32_t symbology);

// All of them.
std::vector<std::int32_t> SymbologyNumbers();

// --list: for the terminal.
std::string SymbologyList();

// --table types: the same in Markdown.
std::string SymbologyTable();

}  // namespace preview

#endif
