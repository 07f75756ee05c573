// Jobs by the book from a seed: texts that the symbology takes, in every input, with every option
// that goes with them, and a share of both with something wrong.
#ifndef BARHATCH_TESTS_ENDTOEND_RANDOMPUBLISHEDJOBS_H
#define BARHATCH_TESTS_ENDTOEND_RANDOMPUBLISHEDJOBS_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "barhatch_mark.h"

namespace barhatch::test {

// What a text says: code points, function characters, ECI designators.
constexpr std::uint32_t kSaysFnc1 = 0x200001;
constexpr std::uint32_t kSaysFnc2 = 0x200002;
constexpr std::uint32_t kSaysFnc3 = 0x200003;
constexpr std::uint32_t kSaysEci = 0x300000;  // and its number
constexpr bool IsCharacter(std::uint32_t item) { return item < 0x110000; }

struct PublishedJob {
  BarhatchJob options = {};           // all of the job but its text
  std::vector<std::uint32_t> says;    // the text
  bool isTextKnown = true;            // the text is what `says` says
  bool isSound = true;                // there is a mark of it
  std::optional<std::string> digits;  // of EAN, UPC and GS1: what a reader reports
  std::string bytes;                  // the text as the host gives it, unless in units
  std::u16string units;

  void Say(const std::string& text);

  // The object outlives the job.
  BarhatchJob Job() const;
};

class RandomPublishedJobs {
 public:
  explicit RandomPublishedJobs(std::uint32_t seed) : random_(seed) {}

  PublishedJob Next();

 private:
  std::size_t Below(std::size_t limit) { return random_() % limit; }
  bool OneIn(std::size_t count) { return Below(count) == 0; }
  template <typename Value, std::size_t count>
  Value Any(const Value (&values)[count]) {
    return values[Below(count)];
  }
  std::string Text(const std::string& alphabet, std::size_t shortest, std::size_t longest);
  std::string Data(const std::string& alphabet);

  void MakeSound(PublishedJob& made);
  std::string LinearText(PublishedJob& made);
  std::string CodabarText(PublishedJob& made);
  std::string Code39Text(PublishedJob& made);
  std::string Code39FullText(PublishedJob& made);
  std::string MsiText(PublishedJob& made);
  std::string Code11Text(PublishedJob& made);
  std::string InterleavedText(PublishedJob& made);
  std::string Itf14Text(PublishedJob& made);
  std::string EanUpcText(PublishedJob& made);
  std::string UpcEDigits(PublishedJob& made);
  std::string AnyBytes();
  void MakeCode128(PublishedJob& made);
  void MakeElements(PublishedJob& made);
  void MakeMatrix(PublishedJob& made);
  void SetBeginning(PublishedJob& made);
  void SetEci(PublishedJob& made);
  void SetSize(PublishedJob& made);

  void SpoilText(PublishedJob& made);
  void SpoilOptions(PublishedJob& made);
  void SpoilBytes(PublishedJob& made);
  void ChooseInput(PublishedJob& made);
  void Give(PublishedJob& made);
  std::string EscapedFormOf(std::uint32_t item);

  std::mt19937 random_;
};

}  // namespace barhatch::test

#endif
