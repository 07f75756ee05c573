// GS1 element strings: application identifiers with their values become the tokens of a GS1-128 or
// GS1 DataMatrix symbol.
//
// "(01)09501101530003(10)ABC(17)261231" becomes FNC1 01 09501101530003 10 ABC FNC1 17 261231: FNC1
// in front says that it is GS1, and one stands behind each value whose length the reader cannot
// know.
#ifndef BARHATCH_GS1_ELEMENTSTRINGS_H
#define BARHATCH_GS1_ELEMENTSTRINGS_H

#include <cstddef>

#include "job/Memory.h"
#include "job/Refusal.h"
#include "job/Token.h"

namespace barhatch {

constexpr Token kGroupSeparator = 29;

struct ElementOptions {
  bool isPermitted = false;  // application identifiers that are not assigned are written too
  Token separator =
      kFnc1Token;  // or kGroupSeparator: the standard allows both; in front is FNC1 always
};

// What an element string became. Both blocks come from the memory of the call and belong to the
// caller.
struct ElementString {
  Token* tokens =
      nullptr;  // FNC1, elements and separators. A GS1-128 has at most 48 behind the first
  std::size_t length = 0;
  char* text = nullptr;  // to be read by people: "(01)09501101530003(10)ABC", with a NUL behind it
  std::size_t textLength = 0;

  // Warnings. A label may be spread over several symbols, and then partners stand in another one.
  bool missesPartner = false;         // an element needs another one, or does not go with one
  bool hasNeedlessSeparator = false;  // in another order there were one less
};

// Takes an element string in one of two forms.
//   "(01)...(10)..."  application identifiers in brackets. A value may have ")"; its "(" is "\(".
//   "01...10...GS.."  as a reader reports it, with GS or FNC1 behind each value that needs it. One
//   FNC1
//                     in front, and one separator behind any other value, are allowed and mean
//                     nothing.
// The elements keep their order. The same application identifier twice must have the same value.
//
// Positions and extents of a refusal are tokens of `given`; its figure is an AiFigure. A refused
// text has taken no memory. Takes time in proportion to its length. REQUIRES: given.length < 2^30.
Refusal ParseElements(const TokenText& given, const ElementOptions& options, const Memory& memory,
                      ElementString& found);

}  // namespace barhatch

#endif
