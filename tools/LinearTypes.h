// The linear barcode types by the names that the command line takes.
#ifndef BARHATCH_TOOLS_LINEARTYPES_H
#define BARHATCH_TOOLS_LINEARTYPES_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace preview {

// The number of a type given by number ("1") or name ("code39", in any case); nothing for anything
// else.
std::optional<std::int32_t> LinearTypeFrom(std::string_view text);

// "code39" for 1; "type 23" where there is no such type.
std::string LinearTypeName(std::int32_t type);

// All numbers and names, one a line and Data Matrix last, for the help text.
std::string LinearTypeList();

}  // namespace preview

#endif
