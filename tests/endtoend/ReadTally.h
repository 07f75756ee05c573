// How many symbols of a test each reader has read; the test's record and its last line tell.
#ifndef BARHATCH_TESTS_ENDTOEND_READTALLY_H
#define BARHATCH_TESTS_ENDTOEND_READTALLY_H

#include <gtest/gtest.h>

#include <cstdio>
#include <map>
#include <string>

#include "support/TextClasses.h"

namespace barhatch::test {

// The sanitized programs take one text of so many.
#if defined(__SANITIZE_ADDRESS__)
constexpr int kSampleShare = 8;
#else
constexpr int kSampleShare = 1;
#endif

class ReadTally {
 public:
  ~ReadTally() {
    for (const auto& [what, count] : counts_) {
      testing::Test::RecordProperty(what, std::to_string(count));
      std::printf("[ READ     ] %s %ld\n", what.c_str(), count);
    }
  }
  void Count(const std::string& what) { ++counts_[what]; }

 private:
  std::map<std::string, long> counts_;
};

// A text as a C++ literal would have it: units outside printable ASCII in hexadecimal.
inline std::string Escaped(const std::u16string& text) {
  std::string escaped;
  for (const char16_t c : text) {
    char hex[8];
    std::snprintf(hex, sizeof hex, c < 256 ? "\\x%02X" : "\\u%04X", static_cast<unsigned>(c));
    escaped += c >= 32 && c < 127 && c != u'\\' ? std::string(1, static_cast<char>(c)) : hex;
  }
  return '"' + escaped + '"';
}

inline std::string Escaped(const std::string& bytes) { return Escaped(Wide(bytes)); }

}  // namespace barhatch::test

#endif
