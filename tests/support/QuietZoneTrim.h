// What every reader of module strings does first.
#ifndef BARHATCH_TESTS_SUPPORT_QUIETZONETRIM_H
#define BARHATCH_TESTS_SUPPORT_QUIETZONETRIM_H

#include <string>

namespace barhatch::test {

// The letters from the first bar to the last; empty when there is no bar.
inline std::string WithoutQuietZone(const std::string& letters) {
  const std::size_t first = letters.find_first_of("AB");
  if (first == std::string::npos) return "";
  return letters.substr(first, letters.find_last_of("AB") - first + 1);
}

}  // namespace barhatch::test

#endif
