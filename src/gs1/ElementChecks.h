// One value against the format of its application identifier: length, characters, check digits,
// dates that there are, and what else the components ask for.
#ifndef BARHATCH_GS1_ELEMENTCHECKS_H
#define BARHATCH_GS1_ELEMENTCHECKS_H

#include <cstddef>

#include "gs1/ApplicationIdentifiers.h"
#include "job/Refusal.h"
#include "job/Token.h"

namespace barhatch {

// What is wrong with a value, and where in it.
struct ValueFault {
  Reason reason = Reason::kNone;
  std::size_t position = 0;  // of a token of the value, from 0
  std::size_t extent = 0;    // tokens; 0 for a value that lacks some
  std::size_t detail = 0;    // as the reason has it in an AiFigure
};

// The first fault of the value: its length, then component by component its characters and checks.
ValueFault CheckValue(const AiRange& range, const TokenText& value);

// Of an application identifier that is not assigned: 1 to 90 characters of set 82, or as many as
// its prefix has predefined.
ValueFault CheckUnknownValue(const AiPrefix& prefix, const TokenText& value);

}  // namespace barhatch

#endif
