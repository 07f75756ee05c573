// A module string handed out by the library, taken over into a std::string; null becomes an empty
// optional.
#ifndef BARHATCH_TESTS_SUPPORT_OWNEDSTRING_H
#define BARHATCH_TESTS_SUPPORT_OWNEDSTRING_H

#include <memory>
#include <optional>
#include <string>

namespace barhatch::test {

inline std::optional<std::string> Take(char* moduleString) {
  const std::unique_ptr<char[]> owner(moduleString);
  if (!owner) return std::nullopt;
  return std::string(owner.get());
}

}  // namespace barhatch::test

#endif
