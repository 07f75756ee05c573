// The words of the mark interface: a sentence for each reason of a refusal and each warning. They
// stand here alone; whoever refuses gives a reason, a position and a figure.
#ifndef BARHATCH_MARK_SENTENCES_H
#define BARHATCH_MARK_SENTENCES_H

#include <cstdint>

#include "barhatch_mark.h"
#include "job/Refusal.h"
#include "mark/Message.h"

namespace barhatch {

// The status that hosts get for a reason.
std::int32_t StatusOf(Reason reason);

// The sentence of a refused job. place: of the offending text, from 1; 0 for none.
void SayRefusal(const BarhatchJob& job, const Refusal& refusal, std::int32_t place,
                Message message);

// The sentence of the gravest warning; nothing where there is none.
void SayWarning(const BarhatchJob& job, std::uint32_t warnings, Message message);

}  // namespace barhatch

#endif
