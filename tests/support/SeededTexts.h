// Random texts that are the same on every machine: the generator is fixed by the standard, and no
// distribution, which is not, stands between it and the text.
#ifndef BARHATCH_TESTS_SUPPORT_SEEDEDTEXTS_H
#define BARHATCH_TESTS_SUPPORT_SEEDEDTEXTS_H

#include <cstdint>
#include <random>
#include <string>

namespace barhatch::test {

class SeededTexts {
 public:
  explicit SeededTexts(std::uint32_t seed) : random_(seed) {}

  // A text of shortest to longest characters out of the alphabet.
  std::string Next(const std::string& alphabet, std::size_t shortest, std::size_t longest) {
    std::string text(shortest + Below(longest - shortest + 1), '\0');
    for (char& character : text) character = alphabet[Below(alphabet.size())];
    return text;
  }

 private:
  std::size_t Below(std::size_t limit) { return random_() % limit; }

  std::mt19937 random_;
};

}  // namespace barhatch::test

#endif
