// Which application identifiers of the GS1 General Specifications go together, as far as it is
// about one message.
#ifndef BARHATCH_GS1_PARTNERRULES_H
#define BARHATCH_GS1_PARTNERRULES_H

#include <cstdint>

#include "gs1/ApplicationIdentifiers.h"

namespace barhatch {

// The assigned application identifiers of one message.
class AiPresence {
 public:
  // REQUIRES: the range has the identifier.
  void Add(const AiRange& range, AiCode ai);

  // Whether one of first to last is there, `except` left aside. REQUIRES: all begin with the same
  // two digits.
  bool HasAny(AiCode first, AiCode last, AiCode except) const;

 private:
  bool hasPrefix_[100] = {};
  bool isPresent_[kMostAis] = {};
};

// Whether each has a partner that it needs, and none that it does not go with.
bool HaveTheirPartners(const AiPresence& presence);

}  // namespace barhatch

#endif
