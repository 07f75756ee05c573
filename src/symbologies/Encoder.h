// What the encoders of all linear symbologies have in common: text that was accepted in, elements
// out. An encoder is total: it takes every text that the rule of its symbology accepts under the
// same conformance.
#ifndef BARHATCH_SYMBOLOGIES_ENCODER_H
#define BARHATCH_SYMBOLOGIES_ENCODER_H

#include <cstddef>

#include "job/Deviations.h"
#include "job/Job.h"
#include "symbologies/SymbolWriter.h"

namespace barhatch {

// variant: which of the symbologies that share an encoder, as the encoder's header says.
using Encoder = void (*)(const Characters& text, int variant, Conformance& how, SymbolWriter& out);

}  // namespace barhatch

#endif
