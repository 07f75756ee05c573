// Full ASCII in Code 39 (ISO/IEC 16388, annex on the full ASCII character set): what the 43
// characters lack is written as one of $ / + % and a letter.
//
//   0           %U                  : to ?      /Z, %F to %J
//   1 to 26     $A to $Z            @           %V
//   27 to 31    %A to %E            [ to _      %K to %O
//   ! to ,      /A to /L            `           %W
//   /           /O                  a to z      +A to +Z
//                                   { to 127    %P to %T
//
// "a$" becomes +A/D. The check character modulo 43 is taken over the characters that are drawn and
// stands behind them, a single character of the set.
#ifndef BARHATCH_SYMBOLOGIES_CODE39FULLASCII_H
#define BARHATCH_SYMBOLOGIES_CODE39FULLASCII_H

#include <cstddef>

#include "job/Job.h"
#include "job/Refusal.h"
#include "symbologies/Preparation.h"

namespace barhatch {

// Spells the text out, with the check character that the options ask for, or the one that the text
// has at its end, which is verified.
Refusal PrepareCode39FullAscii(const LinearOptions& options, PreparedText& text, Conformance& how);

// Writes the characters that are drawn for a text of ASCII; returns where they end. REQUIRES: room
// for two each.
char* SpellOutCode39(const Characters& text, char* room);

// The way back, in place: the length, or kNoSpelling for characters that spell nothing. REQUIRES:
// characters of the set.
constexpr std::size_t kNoSpelling = static_cast<std::size_t>(-1);
std::size_t ResolveCode39(char* text, std::size_t length);

}  // namespace barhatch

#endif
