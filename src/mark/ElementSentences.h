// The words for refused GS1 element strings.
#ifndef BARHATCH_MARK_ELEMENTSENTENCES_H
#define BARHATCH_MARK_ELEMENTSENTENCES_H

#include <cstdint>

#include "job/Refusal.h"
#include "mark/Message.h"

namespace barhatch {

// place: of the offending text, from 1; 0 for none. REQUIRES: a reason of an element string.
void SayElementRefusal(const Refusal& refusal, std::int32_t place, Message& message);

}  // namespace barhatch

#endif
