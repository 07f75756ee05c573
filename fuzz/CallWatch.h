// Ends the program with a word on stderr when something holds no longer, when a call takes too long
// or when it needs too much memory. Time is that of the processor, so that a busy machine counts
// for nothing. Memory is seen where the program is built with AddressSanitizer.
#ifndef BARHATCH_FUZZ_CALLWATCH_H
#define BARHATCH_FUZZ_CALLWATCH_H

#include <cstddef>

namespace barhatch::fuzz {

[[noreturn]] void Fail(const char* meaning);

// Ends the program unless the statement is true.
inline void Demand(bool statement, const char* meaning) {
  if (!statement) Fail(meaning);
}

class CallWatch {
 public:
  CallWatch();

  // REQUIRES: called behind the watched calls and before their results are released.
  // mostBytes: what the calls may have held at any time.
  void DemandWithin(std::size_t mostBytes) const;

  // Nothing of what the watched calls allocated is left. REQUIRES: as above.
  void DemandNothingKept() const;

 private:
  double startSeconds_;
};

}  // namespace barhatch::fuzz

#endif
