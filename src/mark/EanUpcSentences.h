// The words for refused texts of EAN and UPC.
#ifndef BARHATCH_MARK_EANUPCSENTENCES_H
#define BARHATCH_MARK_EANUPCSENTENCES_H

#include <cstdint>

#include "barhatch_mark.h"
#include "job/Refusal.h"
#include "mark/Message.h"

namespace barhatch {

// place: of the offending text, from 1. REQUIRES: a reason that EAN and UPC alone have.
void SayEanUpcRefusal(const BarhatchJob& job, const Refusal& refusal, std::int32_t place,
                      Message& message);

}  // namespace barhatch

#endif
